// The flat functions of KORVELMathTools. Made by tools/generate: edit the C headers instead. Compile it with Helpers.cs.

using System;
using System.Runtime.InteropServices;

namespace KORVEL
{
    /// <summary>One column of a chunked table, 16 bytes.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct Hostarray
    {
        /// <summary>The numeric column, or null.</summary>
        public IntPtr numbers;
        /// <summary>The text column (BSTR), or null.</summary>
        public IntPtr texts;
    }

    /// <summary>One labelled column, 24 bytes.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ST_Vect
    {
        /// <summary>Number of observations.</summary>
        public int Count;
        /// <summary>Name of the column.</summary>
        public IntPtr Label;
        /// <summary>The column.</summary>
        public IntPtr Vect;
    }

    /// <summary>A table of labelled columns, 40 bytes.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ST_MVect
    {
        /// <summary>Number of columns.</summary>
        public int nbcols;
        /// <summary>-1 when all columns have the same length, otherwise 0.</summary>
        public short samenbrows;
        /// <summary>Length of the longest column.</summary>
        public int nbrowsmax;
        /// <summary>int: row count of each column.</summary>
        public IntPtr nbrows;
        /// <summary>ST_Vect records, as many as the leftmost dimension says.</summary>
        public IntPtr Vectors;
        /// <summary>BSTR: column labels.</summary>
        public IntPtr CLabels;
    }

    /// <summary>Category statistics of a set of qualitative columns, 208 bytes.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct ST_QualiInfo
    {
        /// <summary>Number of rows.</summary>
        public int Count;
        /// <summary>Sum of the weights.</summary>
        public double SumW;
        /// <summary>Most categories of a column.</summary>
        public int MaxNbCat;
        /// <summary>int.</summary>
        public IntPtr NbCat;
        /// <summary>Categories of all columns together.</summary>
        public int NbCatTotal;
        /// <summary>Texts.</summary>
        public ST_MVect CatNames;
        /// <summary>double.</summary>
        public ST_MVect CatFreq;
        /// <summary>double.</summary>
        public ST_MVect CatFreqW;
        /// <summary>Largest frequency of a category.</summary>
        public double FreqMax;
        /// <summary>BSTR.</summary>
        public IntPtr VarLabels;
        /// <summary>0 makes an unknown category an error in validation.</summary>
        public short IgnoreNewCategoryInPred;
        /// <summary>Not 0: Codes is read.</summary>
        public short withRecode;
        /// <summary>Code of the first category.</summary>
        public int codeStart;
        /// <summary>double; read only when withRecode is not 0.</summary>
        public IntPtr Codes;
        /// <summary>Number of codes.</summary>
        public int nCodes;
        /// <summary>-1: categories are sorted.</summary>
        public short withSort;
        /// <summary>-1: every row weighs 1.</summary>
        public short noWeights;
        /// <summary>-1: category names carry the label of their variable.</summary>
        public short withLongLabels;
        /// <summary>Carried along for the caller.</summary>
        public int CheckType;
    }

    /// <summary>The flat functions. Arrays are checked against the counts before a call.</summary>
    public static class MathTools
    {
        /// <summary>The missing number.</summary>
        public const double KORVEL_MISSING_DBL = -1.79769313486231e308;

        /// <summary>The missing integer.</summary>
        public const int KORVEL_MISSING_LNG = -2147483647 - 1;

        /// <summary>The version of the library that this was made for.</summary>
        public const string Version = "0.1.0";

        /// <summary>Inverse of the free rows and columns. A table with a pivot of at most 1e-8 in magnitude is
        /// singular and gets a generalised inverse by sweeping, in which pivots below 1e-12 give zeros. A single
        /// free cell gives its reciprocal, 0 counting as 1e-12.</summary>
        /// <param name="n">rows and columns</param>
        /// <param name="constraints">in, n integers</param>
        /// <param name="h">in, n by n numbers, column after column</param>
        /// <param name="inverse">inout, n by n numbers; the columns of free positions are written whole, with 0 in
        /// the other rows. The other columns stay as they are: pass zeros. May be the array that is read</param>
        /// <returns>0; 1: the reduced table was singular</returns>
        public static int CleanConstraintsAndInvert(int n, int[] constraints, double[] h, double[] inverse)
        {
            Room.Check("CleanConstraintsAndInvert", "constraints", constraints, (long)n, 1);
            Room.Check("CleanConstraintsAndInvert", "h", h, (long)n, (long)n);
            Room.Check("CleanConstraintsAndInvert", "inverse", inverse, (long)n, (long)n);
            return Native.CleanConstraintsAndInvert(n, constraints, h, inverse);
        }

        /// <summary>Inverse of the free rows and columns of a triangular table. A single free cell gives its
        /// reciprocal, 0 counting as 1e-12.</summary>
        /// <param name="n">rows and columns</param>
        /// <param name="constraints">in, n integers</param>
        /// <param name="t">in, n by n numbers, column after column</param>
        /// <param name="lowerFlag">0: t is upper triangular; any other value: lower triangular</param>
        /// <param name="inverse">inout, n by n numbers, as for CleanConstraintsAndInvert; stays as it is on
        /// failure</param>
        /// <returns>0; -1: an element of the diagonal is below 1e-12 in magnitude</returns>
        public static int CleanConstraintsAndInvertTriang(int n, int[] constraints, double[] t, short lowerFlag,
            double[] inverse)
        {
            Room.Check("CleanConstraintsAndInvertTriang", "constraints", constraints, (long)n, 1);
            Room.Check("CleanConstraintsAndInvertTriang", "t", t, (long)n, (long)n);
            Room.Check("CleanConstraintsAndInvertTriang", "inverse", inverse, (long)n, (long)n);
            return Native.CleanConstraintsAndInvertTriang(n, constraints, t, lowerFlag, inverse);
        }

        /// <summary>Squared cosines of the rows of a table: each cell squared, over the sum of squares of its
        /// row.</summary>
        /// <param name="x">in, n by p numbers, column after column</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="result">inout, n by p numbers; rows whose sum of squares is not above 1e-12 stay as they
        /// are. May be x</param>
        /// <returns>0</returns>
        public static int ComputeCosines(double[] x, int n, int p, double[] result)
        {
            Room.Check("ComputeCosines", "x", x, (long)n, (long)p);
            Room.Check("ComputeCosines", "result", result, (long)n, (long)p);
            return Native.ComputeCosines(x, n, p, result);
        }

        /// <summary>The disjunctive table of a record.</summary>
        /// <param name="data">in, labelled table of texts; all columns are read down to the longest one</param>
        /// <param name="info">in, category statistics: `NbCat`, `CatNames` and `CatFreq` of its columns</param>
        /// <param name="result">inout, labelled table of numbers: each column that is needed and there receives as
        /// many rows, and is resized where it can be; its counts and labels stay</param>
        /// <param name="coding">0, 1, 2 or 3</param>
        /// <param name="firstCategoryOption">1, 2 or another value</param>
        /// <returns>0</returns>
        public static int Cpp_BuildDisjunctiveTable_ST(ref ST_MVect data, ref ST_QualiInfo info, ref ST_MVect result,
            int coding, int firstCategoryOption)
        {
            return Native.Cpp_BuildDisjunctiveTable_ST(ref data, ref info, ref result, coding, firstCategoryOption);
        }

        /// <summary>Copies a table without the rows and columns whose sum is not above 1e-12. Missing cells are
        /// left out of the sums.</summary>
        /// <param name="table">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="result">inout, rows by cols numbers: the rows and columns that stay come to its top left
        /// corner. Columns behind them stay as they were, and what is below them has no meaning</param>
        /// <param name="keptRows">out, one integer: how many rows stay</param>
        /// <param name="keptCols">out, one integer: how many columns stay</param>
        /// <param name="droppedRows">inout, rows integers, of which those of rows left out become 1</param>
        /// <param name="droppedCols">inout, cols integers, of which those of columns left out become 1</param>
        /// <returns>0</returns>
        public static int Cpp_CheckForMarginalSums(double[] table, int rows, int cols, double[] result,
            out int keptRows, out int keptCols, int[] droppedRows, int[] droppedCols)
        {
            Room.Check("Cpp_CheckForMarginalSums", "table", table, (long)rows, (long)cols);
            Room.Check("Cpp_CheckForMarginalSums", "result", result, (long)rows, (long)cols);
            Room.Check("Cpp_CheckForMarginalSums", "droppedRows", droppedRows, (long)rows, 1);
            Room.Check("Cpp_CheckForMarginalSums", "droppedCols", droppedCols, (long)cols, 1);
            return Native.Cpp_CheckForMarginalSums(table, rows, cols, result, out keptRows, out keptCols, droppedRows, droppedCols);
        }

        /// <summary>Tells whether two vectors have the same texts in the same order.</summary>
        /// <param name="a">in, nA texts</param>
        /// <param name="nA">number of elements of a</param>
        /// <param name="b">in, nB texts</param>
        /// <param name="nB">number of elements of b</param>
        /// <returns>-1 when the numbers are the same and so is every text, letter by letter; otherwise 0</returns>
        public static short Cpp_CheckSameVectorStr(string[] a, int nA, string[] b, int nB)
        {
            Room.Check("Cpp_CheckSameVectorStr", "a", a, (long)nA, 1);
            Room.Check("Cpp_CheckSameVectorStr", "b", b, (long)nB, 1);
            using (var aTexts = new Texts("Cpp_CheckSameVectorStr", "a", a))
            using (var bTexts = new Texts("Cpp_CheckSameVectorStr", "b", b))
                return Native.Cpp_CheckSameVectorStr(aTexts.Cells, nA, bTexts.Cells, nB);
        }

        /// <summary>Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of
        /// any other variable. Equal names in the same slot of two variables are not noticed. Empty names are equal
        /// to each other.</summary>
        /// <param name="categories">in, p by width texts: a row of names for each variable</param>
        /// <param name="p">number of variables</param>
        /// <param name="width">columns of the table; slots beyond it are empty</param>
        /// <param name="categoryCounts">in, p integers: the number of slots of each variable</param>
        /// <returns>1 when a name is used twice, otherwise 0</returns>
        public static int Cpp_CheckUniqueCatByVar(string[] categories, int p, int width, int[] categoryCounts)
        {
            Room.Check("Cpp_CheckUniqueCatByVar", "categories", categories, (long)p, (long)width);
            Room.Check("Cpp_CheckUniqueCatByVar", "categoryCounts", categoryCounts, (long)p, 1);
            using (var categoriesTexts = new Texts("Cpp_CheckUniqueCatByVar", "categories", categories))
                return Native.Cpp_CheckUniqueCatByVar(categoriesTexts.Cells, p, width, categoryCounts);
        }

        /// <summary>Copies a table of numbers into the columns of a labelled one. Its scalars, row counts and
        /// labels stay.</summary>
        /// <param name="m">in, rows by cols numbers</param>
        /// <param name="rows">number of rows; below 1: nothing is copied</param>
        /// <param name="cols">number of columns; below 1: nothing is copied</param>
        /// <param name="mv">inout, labelled table of Double; column j receives column j of the table. Elements for
        /// which a column has no room are dropped, as are columns that it does not have</param>
        /// <returns>0</returns>
        public static int Cpp_CopyDblToMVDbl(double[] m, int rows, int cols, ref ST_MVect mv)
        {
            Room.Check("Cpp_CopyDblToMVDbl", "m", m, (long)rows, (long)cols);
            return Native.Cpp_CopyDblToMVDbl(m, rows, cols, ref mv);
        }

        /// <summary>Takes a range of rows of a table of numbers. A row that it does not have gives -1.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="i">first row of the range</param>
        /// <param name="j">last row of the range; below i nothing is done</param>
        /// <param name="out">out, j - i + 1 by cols numbers</param>
        /// <returns>0</returns>
        public static int Cpp_Extractij(double[] x, int rows, int cols, int i, int j, double[] @out)
        {
            Room.Check("Cpp_Extractij", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_Extractij", "out", @out, (long)j - (long)i + 1, (cols == 0 ? 1L : cols));
            return Native.Cpp_Extractij(x, rows, cols, i, j, @out);
        }

        /// <summary>Picks the rows that are not negligible.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="threshold">a row is kept when the sum of squares of its cells, missing ones left out, is
        /// greater</param>
        /// <param name="kept">out, rows flags: -1 for a row that is kept, otherwise 0</param>
        /// <returns>the number of rows kept</returns>
        public static int Cpp_FilterOnSumOfSquares(double[] x, int rows, int cols, double threshold, short[] kept)
        {
            Room.Check("Cpp_FilterOnSumOfSquares", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_FilterOnSumOfSquares", "kept", kept, (long)rows, 1);
            return Native.Cpp_FilterOnSumOfSquares(x, rows, cols, threshold, kept);
        }

        /// <summary>Marks a range of elements of a host array.</summary>
        /// <param name="out">inout, host array of Double: its first n elements become 1 at positions first..last, 0
        /// elsewhere</param>
        /// <param name="n">number of elements</param>
        /// <param name="first">first position to mark, from 1; a position outside the array is left out</param>
        /// <param name="last">last position to mark, included</param>
        /// <returns>0</returns>
        public static int Cpp_GenerateIndicator_ST(HostArray @out, int n, int first, int last)
        {
            return Native.Cpp_GenerateIndicator_ST(HostArray.Of(@out), n, first, last);
        }

        /// <summary>Marks a random subset of k out of n elements of a host array.</summary>
        /// <param name="out">inout, host array of Double: its first n elements become 1 for the elements of the
        /// subset, 0 for the others</param>
        /// <param name="n">number of elements</param>
        /// <param name="k">size of the subset; below 1 none, from n on all</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_GenerateRandomIndicator_ST(HostArray @out, int n, int k, ref int seed, short flag,
            out int nextSeed)
        {
            return Native.Cpp_GenerateRandomIndicator_ST(HostArray.Of(@out), n, k, ref seed, flag, out nextSeed);
        }

        /// <summary>Gives letters to levels, of which two share one exactly when they do not differ: when the one
        /// that comes first in the order of the means is significantly different neither from the other one nor
        /// from any level between them. Letters come in the order of their first levels: A to Z, then AA, AB and so
        /// on. A level whose mean is missing has no letter.</summary>
        /// <param name="means">inout, k by column numbers: the last column has the means; changed only when
        /// sortResult is 0</param>
        /// <param name="k">number of levels</param>
        /// <param name="column">the column of the means, from 1; 0 stands for 1</param>
        /// <param name="significance">in, k by k integers: for each pair of levels, at the row of the larger number
        /// and the column of the smaller one, 0 when the two do not differ significantly</param>
        /// <param name="sortResult">not 0: order, means and labels come back in the order of the levels; 0: in the
        /// order of the means</param>
        /// <param name="order">out, k integers: the numbers of the levels</param>
        /// <param name="labels">out, k by k texts: the letters of each level, letter c in column c. With more than
        /// 256 levels there are 256 columns. When the first mean in the order is missing, column 1 stays
        /// empty</param>
        /// <param name="groupCount">out, one integer: how many columns are taken, 1 where there is no level; 257
        /// when there was no room for the last letter</param>
        /// <param name="success">out, one flag: -1, or 0 when there were too many letters</param>
        /// <param name="descending">not 0: from the largest mean down; 0: from the smallest one up</param>
        /// <returns>0</returns>
        public static int Cpp_GetCompMatrices(double[] means, int k, int column, int[] significance, short sortResult,
            int[] order, string[] labels, out int groupCount, out short success, short descending)
        {
            Room.Check("Cpp_GetCompMatrices", "means", means, (long)k, (column == 0 ? 1L : column));
            Room.Check("Cpp_GetCompMatrices", "significance", significance, (long)k, (long)k);
            Room.Check("Cpp_GetCompMatrices", "order", order, (long)k, 1);
            Room.Check("Cpp_GetCompMatrices", "labels", labels, (long)k, (long)k);
            using (var labelsTexts = new Texts("Cpp_GetCompMatrices", "labels", labels))
            {
                int answer = Native.Cpp_GetCompMatrices(means, k, column, significance, sortResult, order, labelsTexts.Cells, out groupCount, out success, descending);
                labelsTexts.CopyTo(labels);
                return answer;
            }
        }

        /// <summary>The number of different texts in each column, the empty one left out.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="categoryCounts">out, p integers: the numbers</param>
        /// <returns>the largest number; 0 when there is no column</returns>
        public static int Cpp_GetMaxCat(string[] data, int n, int p, int[] categoryCounts)
        {
            Room.Check("Cpp_GetMaxCat", "data", data, (long)n, (long)p);
            Room.Check("Cpp_GetMaxCat", "categoryCounts", categoryCounts, (long)p, 1);
            using (var dataTexts = new Texts("Cpp_GetMaxCat", "data", data))
                return Native.Cpp_GetMaxCat(dataTexts.Cells, n, p, categoryCounts);
        }

        /// <summary>Whether the address space that this process has left is large enough.</summary>
        /// <param name="amount">number of bytes; a fifth is added</param>
        /// <returns>-1 when it is, otherwise 0</returns>
        public static int Cpp_GetStatusMemory(int amount)
        {
            return Native.Cpp_GetStatusMemory(amount);
        }

        /// <summary>The Kronecker product: the block (i, j) of c is a(i, j) * b. No cell is looked at for being
        /// missing.</summary>
        /// <param name="a">in, r1 by c1 numbers</param>
        /// <param name="r1">rows of a</param>
        /// <param name="c1">columns of a</param>
        /// <param name="b">in, r2 by c2 numbers</param>
        /// <param name="r2">rows of b</param>
        /// <param name="c2">columns of b</param>
        /// <param name="c">out, r1 * r2 by c1 * c2 numbers, column after column; may be an array that is
        /// read</param>
        /// <returns>0</returns>
        public static int Cpp_KroneckerTensorProduct(double[] a, int r1, int c1, double[] b, int r2, int c2, double[] c)
        {
            Room.Check("Cpp_KroneckerTensorProduct", "a", a, (long)r1, (long)c1);
            Room.Check("Cpp_KroneckerTensorProduct", "b", b, (long)r2, (long)c2);
            Room.Check("Cpp_KroneckerTensorProduct", "c", c, (long)r1 * (long)r2, (long)c1 * (long)c2);
            return Native.Cpp_KroneckerTensorProduct(a, r1, c1, b, r2, c2, c);
        }

        /// <summary>The lower triangle of a * b, all three packed. The order m of the tables is the whole part of
        /// the root of 2n. When n is not m(m + 1)/2, some elements have terms that reach past the n numbers of a
        /// and of b; these numbers count as -1.0.</summary>
        /// <param name="a">in, n numbers, a lower triangle row after row</param>
        /// <param name="n">packed length</param>
        /// <param name="b">in, n numbers, as a</param>
        /// <param name="c">out, n numbers, as a; may be an array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_MV_ProductAsymBsym(double[] a, int n, double[] b, double[] c)
        {
            Room.Check("Cpp_MV_ProductAsymBsym", "a", a, (long)n, 1);
            Room.Check("Cpp_MV_ProductAsymBsym", "b", b, (long)n, 1);
            Room.Check("Cpp_MV_ProductAsymBsym", "c", c, (long)n, 1);
            return Native.Cpp_MV_ProductAsymBsym(a, n, b, c);
        }

        /// <summary>Marks one cell in each row of a table with -1.</summary>
        /// <param name="positions">in, n integers: the columns, counted from 1; one below 1 marks nothing</param>
        /// <param name="n">rows</param>
        /// <param name="table">inout, n by max(positions) integers, or more columns, one after the other</param>
        /// <returns>0</returns>
        public static int Cpp_M_BoldCosines(int[] positions, int n, int[] table)
        {
            Room.Check("Cpp_M_BoldCosines", "positions", positions, (long)n, 1);
            Room.Check("Cpp_M_BoldCosines", "table", table, (long)n, Room.Largest(positions));
            return Native.Cpp_M_BoldCosines(positions, n, table);
        }

        /// <summary>Each column, followed by 1 less the column. Missing numbers are numbers like any
        /// other.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="result">out, n by 2 * p numbers</param>
        /// <returns>0</returns>
        public static int Cpp_M_ConvertBinarytoDisjTable(double[] x, int n, int p, double[] result)
        {
            Room.Check("Cpp_M_ConvertBinarytoDisjTable", "x", x, (long)n, (long)p);
            Room.Check("Cpp_M_ConvertBinarytoDisjTable", "result", result, (long)n, 2 * (long)p);
            return Native.Cpp_M_ConvertBinarytoDisjTable(x, n, p, result);
        }

        /// <summary>Copies a block of a chunked table.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block, at least 1</param>
        /// <param name="lastCol">last column of the block, at most cols; below firstCol nothing is done</param>
        /// <param name="out">inout, host array of a record for each column of the block, each with a numeric column
        /// of as many numbers as the block has rows</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyBlockSPV2(HostArray x, int rows, int cols, int firstRow, int lastRow, int firstCol,
            int lastCol, HostArray @out)
        {
            return Native.Cpp_M_CopyBlockSPV2(HostArray.Of(x), rows, cols, firstRow, lastRow, firstCol, lastCol, HostArray.Of(@out));
        }

        /// <summary>Copies a block of a symmetric table, of which each column is held from the diagonal
        /// down.</summary>
        /// <param name="x">in, host array of n records, each with a numeric column: of n numbers the first, and of
        /// one less each next</param>
        /// <param name="n">order of the table</param>
        /// <param name="firstRow">first row of the block, at least 1</param>
        /// <param name="lastRow">last row of the block, at most n; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block, at least 1</param>
        /// <param name="lastCol">last column of the block, at most n; below firstCol nothing is done</param>
        /// <param name="out">inout, host array of a record for each column of the block, each with a numeric column
        /// of as many numbers as the block has rows</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyBlockSPV2_T(HostArray x, int n, int firstRow, int lastRow, int firstCol,
            int lastCol, HostArray @out)
        {
            return Native.Cpp_M_CopyBlockSPV2_T(HostArray.Of(x), n, firstRow, lastRow, firstCol, lastCol, HostArray.Of(@out));
        }

        /// <summary>Copies a block of a table of numbers to a place in another, which may be the same. What would
        /// fall outside of it is left out.</summary>
        /// <param name="x">in, rows by cols numbers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block</param>
        /// <param name="lastCol">last column of the block; below firstCol nothing is done</param>
        /// <param name="y">inout, yRows by yCols numbers</param>
        /// <param name="yRows">rows of the other table</param>
        /// <param name="yCols">columns of the other table; 0 stands for 1</param>
        /// <param name="row">its row for the first row of the block</param>
        /// <param name="col">its column for the first column of the block</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyPasteBlock(double[] x, int rows, int cols, int firstRow, int lastRow, int firstCol,
            int lastCol, double[] y, int yRows, int yCols, int row, int col)
        {
            Room.Check("Cpp_M_CopyPasteBlock", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_CopyPasteBlock", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.Cpp_M_CopyPasteBlock(x, rows, cols, firstRow, lastRow, firstCol, lastCol, y, yRows, yCols, row, col);
        }

        /// <summary>Copies a block of a chunked table to a place in another.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block, at least 1</param>
        /// <param name="lastCol">last column of the block, at most cols; below firstCol nothing is done</param>
        /// <param name="y">inout, host array of yCols records, each with a numeric column of yRows numbers; another
        /// than x</param>
        /// <param name="yRows">rows of the other table; what would fall below is left out</param>
        /// <param name="yCols">columns of the other table; all columns of the block must fall among them</param>
        /// <param name="row">its row for the first row of the block</param>
        /// <param name="col">its column for the first column of the block</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyPasteBlockSPV(HostArray x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, HostArray y, int yRows, int yCols, int row, int col)
        {
            return Native.Cpp_M_CopyPasteBlockSPV(HostArray.Of(x), rows, cols, firstRow, lastRow, firstCol, lastCol, HostArray.Of(y), yRows, yCols, row, col);
        }

        /// <summary>Copies a block of a table of texts to a place in another, which may be the same. What would
        /// fall outside of it is left out.</summary>
        /// <param name="x">in, rows by cols texts; cells outside of them read as the empty text</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block</param>
        /// <param name="lastCol">last column of the block; below firstCol nothing is done</param>
        /// <param name="y">inout, yRows by yCols texts</param>
        /// <param name="yRows">rows of the other table</param>
        /// <param name="yCols">columns of the other table; 0 stands for 1</param>
        /// <param name="row">its row for the first row of the block</param>
        /// <param name="col">its column for the first column of the block</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyPasteBlockStr(string[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, string[] y, int yRows, int yCols, int row, int col)
        {
            Room.Check("Cpp_M_CopyPasteBlockStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_CopyPasteBlockStr", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            using (var xTexts = new Texts("Cpp_M_CopyPasteBlockStr", "x", x))
            using (var yTexts = new Texts("Cpp_M_CopyPasteBlockStr", "y", y))
            {
                int answer = Native.Cpp_M_CopyPasteBlockStr(xTexts.Cells, rows, cols, firstRow, lastRow, firstCol, lastCol, yTexts.Cells, yRows, yCols, row, col);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Packs a symmetric table: its lower triangle row after row.</summary>
        /// <param name="x">in, n by n numbers; the upper half is not read</param>
        /// <param name="n">order</param>
        /// <param name="v">out, n * (n + 1) / 2 numbers: cell (i, j) with j &lt;= i at place i(i - 1)/2 + j, from
        /// 1; may be x</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopySymMatToVector(double[] x, int n, double[] v)
        {
            Room.Check("Cpp_M_CopySymMatToVector", "x", x, (long)n, (long)n);
            Room.Check("Cpp_M_CopySymMatToVector", "v", v, (long)n * ((long)n + 1) / 2, 1);
            return Native.Cpp_M_CopySymMatToVector(x, n, v);
        }

        /// <summary>The rows of a table one after the other, as a vector.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="v">out, rows by cols numbers; may be x</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyTabletoVectorByRowDbl(double[] x, int rows, int cols, double[] v)
        {
            Room.Check("Cpp_M_CopyTabletoVectorByRowDbl", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_CopyTabletoVectorByRowDbl", "v", v, (long)rows, (long)cols);
            return Native.Cpp_M_CopyTabletoVectorByRowDbl(x, rows, cols, v);
        }

        /// <summary>The rows of a table one after the other, as a vector.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="v">inout, rows by cols texts, replaced where they differ; may be x</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyTabletoVectorByRowStr(string[] x, int rows, int cols, string[] v)
        {
            Room.Check("Cpp_M_CopyTabletoVectorByRowStr", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_CopyTabletoVectorByRowStr", "v", v, (long)rows, (long)cols);
            using (var xTexts = new Texts("Cpp_M_CopyTabletoVectorByRowStr", "x", x))
            using (var vTexts = new Texts("Cpp_M_CopyTabletoVectorByRowStr", "v", v))
            {
                int answer = Native.Cpp_M_CopyTabletoVectorByRowStr(xTexts.Cells, rows, cols, vTexts.Cells);
                vTexts.CopyTo(v);
                return answer;
            }
        }

        /// <summary>Unpacks a vector that holds a triangle row after row into both halves of a table.</summary>
        /// <param name="v">in, n * (n + 1) / 2 numbers</param>
        /// <param name="n">order</param>
        /// <param name="x">out, n by n numbers; may be v</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyVectorToSymMat(double[] v, int n, double[] x)
        {
            Room.Check("Cpp_M_CopyVectorToSymMat", "v", v, (long)n * ((long)n + 1) / 2, 1);
            Room.Check("Cpp_M_CopyVectorToSymMat", "x", x, (long)n, (long)n);
            return Native.Cpp_M_CopyVectorToSymMat(v, n, x);
        }

        /// <summary>A vector cut into the rows of a table.</summary>
        /// <param name="v">in, rows by cols numbers, row after row</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="x">out, rows by cols numbers; may be v</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyVectortoTableByRowDbl(double[] v, int rows, int cols, double[] x)
        {
            Room.Check("Cpp_M_CopyVectortoTableByRowDbl", "v", v, (long)rows, (long)cols);
            Room.Check("Cpp_M_CopyVectortoTableByRowDbl", "x", x, (long)rows, (long)cols);
            return Native.Cpp_M_CopyVectortoTableByRowDbl(v, rows, cols, x);
        }

        /// <summary>A vector cut into the rows of a table.</summary>
        /// <param name="v">in, rows by cols texts, row after row</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="x">inout, rows by cols texts, replaced where they differ; may be v</param>
        /// <returns>0</returns>
        public static int Cpp_M_CopyVectortoTableByRowStr(string[] v, int rows, int cols, string[] x)
        {
            Room.Check("Cpp_M_CopyVectortoTableByRowStr", "v", v, (long)rows, (long)cols);
            Room.Check("Cpp_M_CopyVectortoTableByRowStr", "x", x, (long)rows, (long)cols);
            using (var vTexts = new Texts("Cpp_M_CopyVectortoTableByRowStr", "v", v))
            using (var xTexts = new Texts("Cpp_M_CopyVectortoTableByRowStr", "x", x))
            {
                int answer = Native.Cpp_M_CopyVectortoTableByRowStr(vTexts.Cells, rows, cols, xTexts.Cells);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>The same in place on a symmetric table, of which each separate column starts at the diagonal;
        /// an undefined cell is missing.</summary>
        /// <param name="table">inout, host array of n columns of numbers, column j holding n - j + 1 of
        /// them</param>
        /// <param name="n">order</param>
        /// <returns>0</returns>
        public static int Cpp_M_CorrMatFromCovMatSPV2_T(HostArray table, int n)
        {
            return Native.Cpp_M_CorrMatFromCovMatSPV2_T(HostArray.Of(table), n);
        }

        /// <summary>Replaces a symmetric table by the nearest correlation matrix, by alternating projections
        /// (Higham, IMA Journal of Numerical Analysis 22, 2002): cells are right to about 1e-6. A table that is a
        /// correlation matrix already is left as it is. There is no limit to the number of steps.</summary>
        /// <param name="x">inout, n by n numbers; of each step's table only the lower triangle is used</param>
        /// <param name="n">rows and columns</param>
        /// <returns>0; -1 when a cell is missing, and then nothing is changed</returns>
        public static int Cpp_M_CorrMatFromSymMat(double[] x, int n)
        {
            Room.Check("Cpp_M_CorrMatFromSymMat", "x", x, (long)n, (long)n);
            return Native.Cpp_M_CorrMatFromSymMat(x, n);
        }

        /// <summary>The same for a table of separate columns.</summary>
        /// <param name="x">inout, host array of n columns of n numbers</param>
        /// <param name="n">rows and columns</param>
        /// <returns>0; -1 when a cell is missing, and then nothing is changed</returns>
        public static int Cpp_M_CorrMatFromSymMatSPV(HostArray x, int n)
        {
            return Native.Cpp_M_CorrMatFromSymMatSPV(HostArray.Of(x), n);
        }

        /// <summary>The same for a table of which each separate column starts at the diagonal.</summary>
        /// <param name="x">inout, host array of n columns of numbers, column j holding n - j + 1 of them</param>
        /// <param name="n">rows and columns</param>
        /// <returns>0; -1 when a cell is missing, and then nothing is changed</returns>
        public static int Cpp_M_CorrMatFromSymMatSPV_T(HostArray x, int n)
        {
            return Native.Cpp_M_CorrMatFromSymMatSPV_T(HostArray.Of(x), n);
        }

        /// <summary>VB_M_CovCorr on a labelled table.</summary>
        /// <param name="x">in, labelled table of numbers, rows by cols</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">inout, labelled table of numbers whose columns receive cols by cols; its counts
        /// stay</param>
        /// <param name="bCorr">not 0: correlations</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bUndefinedIsZero">what an undefined cell is; true unless 0</param>
        /// <returns>0</returns>
        public static int Cpp_M_CovCorr_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect @out, short bCorr,
            short[] iMissing, double[] w, short bUnbiased, short bFreq, short bUndefinedIsZero)
        {
            Room.Check("Cpp_M_CovCorr_ST", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("Cpp_M_CovCorr_ST", "w", w, (long)rows, 1);
            return Native.Cpp_M_CovCorr_ST(ref x, rows, cols, ref @out, bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero);
        }

        /// <summary>Covariances from correlations: each cell times the root of the product of two variances, of
        /// which nothing is tested.</summary>
        /// <param name="corr">in, n by n correlations</param>
        /// <param name="n">order</param>
        /// <param name="vars">in, n variances</param>
        /// <param name="out">out, n by n covariances</param>
        /// <returns>0</returns>
        public static int Cpp_M_CovMatFromCorrMat(double[] corr, int n, double[] vars, double[] @out)
        {
            Room.Check("Cpp_M_CovMatFromCorrMat", "corr", corr, (long)n, (long)n);
            Room.Check("Cpp_M_CovMatFromCorrMat", "vars", vars, (long)n, 1);
            Room.Check("Cpp_M_CovMatFromCorrMat", "out", @out, (long)n, (long)n);
            return Native.Cpp_M_CovMatFromCorrMat(corr, n, vars, @out);
        }

        /// <summary>Replaces a symmetric table by a covariance table with the same variances: its correlations,
        /// those of a variance that is not above 0 being 0.0, become the nearest correlation matrix, and are
        /// multiplied with the roots of the variances again. A negative variance becomes positive, and its
        /// covariances with positive ones are NaN.</summary>
        /// <param name="x">inout, n by n numbers</param>
        /// <param name="n">rows and columns</param>
        /// <returns>0; -1 when a cell is missing, and then nothing is changed</returns>
        public static int Cpp_M_CovMatFromSymMat(double[] x, int n)
        {
            Room.Check("Cpp_M_CovMatFromSymMat", "x", x, (long)n, (long)n);
            return Native.Cpp_M_CovMatFromSymMat(x, n);
        }

        /// <summary>The determinant of the free rows and columns of a symmetric table, held as a
        /// triangle.</summary>
        /// <param name="a">in, host array of n columns of numbers; column j runs from the diagonal down</param>
        /// <param name="n">rows and columns</param>
        /// <param name="constraints">in, n integers</param>
        /// <param name="status">out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is
        /// above 709, or memory is short; 1: all of the first column is NaN</param>
        /// <returns>the determinant, as VB_M_Determinant returns it; 1.0 when no position is left</returns>
        public static double Cpp_M_DeterminantCleanedSPV_T(HostArray a, int n, int[] constraints, out short status)
        {
            Room.Check("Cpp_M_DeterminantCleanedSPV_T", "constraints", constraints, (long)n, 1);
            return Native.Cpp_M_DeterminantCleanedSPV_T(HostArray.Of(a), n, constraints, out status);
        }

        /// <summary>Copies a chunked table into a dense one.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, yRows by yCols numbers</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateDblSPV(HostArray x, int rows, int cols, double[] y, int yRows, int yCols,
            int row, int col)
        {
            Room.Check("Cpp_M_DuplicateDblSPV", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.Cpp_M_DuplicateDblSPV(HostArray.Of(x), rows, cols, y, yRows, yCols, row, col);
        }

        /// <summary>Copies a dense table into a chunked one.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <param name="y">inout, host array of yCols records, each with a numeric column of yRows numbers</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateDblSPV2(double[] x, int rows, int cols, HostArray y, int yRows, int yCols,
            int row, int col)
        {
            Room.Check("Cpp_M_DuplicateDblSPV2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_DuplicateDblSPV2(x, rows, cols, HostArray.Of(y), yRows, yCols, row, col);
        }

        /// <summary>Copies a dense table into a triangle, of which each column is held from the diagonal down. What
        /// would fall above the diagonal is left out.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <param name="y">inout, host array of yCols records, each with a numeric column: of yRows numbers the
        /// first, and of one less each next</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateDblSPV2_T(double[] x, int rows, int cols, HostArray y, int yRows, int yCols,
            int row, int col)
        {
            Room.Check("Cpp_M_DuplicateDblSPV2_T", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_DuplicateDblSPV2_T(x, rows, cols, HostArray.Of(y), yRows, yCols, row, col);
        }

        /// <summary>Copies a chunked table into another.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, host array of yCols records, each with a numeric column of yRows numbers; another
        /// than x</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateDblSPV3(HostArray x, int rows, int cols, HostArray y, int yRows, int yCols,
            int row, int col)
        {
            return Native.Cpp_M_DuplicateDblSPV3(HostArray.Of(x), rows, cols, HostArray.Of(y), yRows, yCols, row, col);
        }

        /// <summary>Copies a table of labelled columns of numbers into another. Columns that either does not have
        /// are left out.</summary>
        /// <param name="x">in, the record, with columns of numbers; an element that a column does not have reads as
        /// -1</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, another record; elements for which a column has no room are left out</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateDbl_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect y, int yRows,
            int yCols, int row, int col)
        {
            return Native.Cpp_M_DuplicateDbl_ST(ref x, rows, cols, ref y, yRows, yCols, row, col);
        }

        /// <summary>Copies a triangle from one labelled table to another: the first j elements of column j, for j
        /// from 1 to the smaller number of columns.</summary>
        /// <param name="src">in, labelled table of Double; an element that a column does not have counts as
        /// -1</param>
        /// <param name="dst">inout, labelled table of Double that receives the elements, as far as its columns have
        /// room</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateMVDblTriang_ST(ref ST_MVect src, ref ST_MVect dst)
        {
            return Native.Cpp_M_DuplicateMVDblTriang_ST(ref src, ref dst);
        }

        /// <summary>Copies a table of labelled columns of texts into another. Columns that either does not have are
        /// left out.</summary>
        /// <param name="x">in, the record, with columns of texts; an element that a column does not have reads as
        /// the empty text</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, another record; elements for which a column has no room are left out</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_DuplicateStr_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect y, int yRows,
            int yCols, int row, int col)
        {
            return Native.Cpp_M_DuplicateStr_ST(ref x, rows, cols, ref y, yRows, yCols, row, col);
        }

        /// <summary>Eigenvalues and eigenvectors of a symmetric table, of which each column is held from the
        /// diagonal down. A value may take 29 sweeps, one more than elsewhere.</summary>
        /// <param name="a">in, host array of n records, each with a numeric column: of n numbers the first, and of
        /// one less each next</param>
        /// <param name="values">inout, n eigenvalues; as they were when an element is missing, without meaning when
        /// a value did not converge</param>
        /// <param name="vectors">inout, host array of n records, each with a numeric column of n numbers, which
        /// become eigenvector k in column k; as for values</param>
        /// <param name="n">order</param>
        /// <param name="sortFlag">true only when -1: the values descend, and equal ones keep their order. Otherwise
        /// they stand in the order in which they were found</param>
        /// <returns>0; -1 when an element is missing or a value did not converge</returns>
        public static int Cpp_M_EigenSPV_T(HostArray a, double[] values, HostArray vectors, int n, short sortFlag)
        {
            Room.Check("Cpp_M_EigenSPV_T", "values", values, (long)n, 1);
            return Native.Cpp_M_EigenSPV_T(HostArray.Of(a), values, HostArray.Of(vectors), n, sortFlag);
        }

        /// <summary>The root mean square difference of each column, or row, from a vector, over the coordinates in
        /// which both are greater than the missing value, so that a NaN is not kept.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="v">in, rows numbers, or cols numbers when bRows is -1</param>
        /// <param name="bRows">-1: of each row; otherwise of each column</param>
        /// <param name="out">out, cols distances, or rows distances when bRows is -1; missing where no coordinate
        /// is kept</param>
        /// <returns>0</returns>
        public static int Cpp_M_EuclidDistToVector(double[] x, int rows, int cols, double[] v, short bRows,
            double[] @out)
        {
            Room.Check("Cpp_M_EuclidDistToVector", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_EuclidDistToVector", "v", v, bRows == -1 ? (long)cols : (long)rows, bRows == -1 ? 1 : 1);
            Room.Check("Cpp_M_EuclidDistToVector", "out", @out, bRows == -1 ? (long)rows : (long)cols, bRows == -1 ? 1 : 1);
            return Native.Cpp_M_EuclidDistToVector(x, rows, cols, v, bRows, @out);
        }

        /// <summary>Forward Doolittle reduction of a symmetric table.</summary>
        /// <param name="a">in, n by n numbers, column after column, of which the upper triangle is read</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="h">out, n by n numbers; may be the array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_M_ForwardDoolittle(double[] a, int n, double[] h)
        {
            Room.Check("Cpp_M_ForwardDoolittle", "a", a, (long)n, (long)n);
            Room.Check("Cpp_M_ForwardDoolittle", "h", h, (long)n, (long)n);
            return Native.Cpp_M_ForwardDoolittle(a, n, h);
        }

        /// <summary>The row that lies farthest from the origin.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="d">out, one number: the largest root of a row's sum of squares; missing without
        /// rows</param>
        /// <param name="row">out, one integer: the number of the first such row, from 1; 0 without rows</param>
        /// <returns>0</returns>
        public static int Cpp_M_GetMaxDistToOrigin(double[] x, int rows, int cols, out double d, out int row)
        {
            Room.Check("Cpp_M_GetMaxDistToOrigin", "x", x, (long)rows, (long)cols);
            return Native.Cpp_M_GetMaxDistToOrigin(x, rows, cols, out d, out row);
        }

        /// <summary>Flags the rows of a table that have a missing number, one at or below the missing
        /// one.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="iMissing">in, rows flags, one for each row, -1 for one that is left out; null: none
        /// is</param>
        /// <param name="iMissingOut">out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
        /// missing, otherwise 0; it may be iMissing</param>
        /// <returns>0</returns>
        public static int Cpp_M_GetMissingDbl(double[] x, int rows, int cols, short[] iMissing, short[] iMissingOut)
        {
            Room.Check("Cpp_M_GetMissingDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_GetMissingDbl", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("Cpp_M_GetMissingDbl", "iMissingOut", iMissingOut, (long)rows, 1);
            return Native.Cpp_M_GetMissingDbl(x, rows, cols, iMissing, iMissingOut);
        }

        /// <summary>The same for a chunked table of numbers.</summary>
        /// <param name="x">in, cols columns of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="iMissing">in, rows flags, one for each row, -1 for one that is left out; null: none
        /// is</param>
        /// <param name="iMissingOut">out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
        /// missing, otherwise 0; it may be iMissing</param>
        /// <returns>0</returns>
        public static int Cpp_M_GetMissingDblSPV(HostArray x, int rows, int cols, short[] iMissing, short[] iMissingOut)
        {
            Room.Check("Cpp_M_GetMissingDblSPV", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("Cpp_M_GetMissingDblSPV", "iMissingOut", iMissingOut, (long)rows, 1);
            return Native.Cpp_M_GetMissingDblSPV(HostArray.Of(x), rows, cols, iMissing, iMissingOut);
        }

        /// <summary>The same for texts, which are missing when empty.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="iMissing">in, rows flags, one for each row, -1 for one that is left out; null: none
        /// is</param>
        /// <param name="iMissingOut">out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is
        /// missing, otherwise 0; it may be iMissing</param>
        /// <returns>0</returns>
        public static int Cpp_M_GetMissingStr(string[] x, int rows, int cols, short[] iMissing, short[] iMissingOut)
        {
            Room.Check("Cpp_M_GetMissingStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_GetMissingStr", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("Cpp_M_GetMissingStr", "iMissingOut", iMissingOut, (long)rows, 1);
            using (var xTexts = new Texts("Cpp_M_GetMissingStr", "x", x))
                return Native.Cpp_M_GetMissingStr(xTexts.Cells, rows, cols, iMissing, iMissingOut);
        }

        /// <summary>Hermite canonical form of a symmetric table.</summary>
        /// <param name="a">in, n by n numbers, column after column, of which the upper triangle is read</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="h">out, n by n numbers; may be the array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_M_HermiteCanonical(double[] a, int n, double[] h)
        {
            Room.Check("Cpp_M_HermiteCanonical", "a", a, (long)n, (long)n);
            Room.Check("Cpp_M_HermiteCanonical", "h", h, (long)n, (long)n);
            return Native.Cpp_M_HermiteCanonical(a, n, h);
        }

        /// <summary>Marks the missing numbers of a table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="marks">inout, rows by cols integers: 1 where the number is missing; the others stay</param>
        /// <returns>0</returns>
        public static int Cpp_M_IdentifyMissingInMat(double[] x, int rows, int cols, int[] marks)
        {
            Room.Check("Cpp_M_IdentifyMissingInMat", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_IdentifyMissingInMat", "marks", marks, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_IdentifyMissingInMat(x, rows, cols, marks);
        }

        /// <summary>Marks the missing numbers of a chunked table.</summary>
        /// <param name="x">in, cols columns of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="marks">inout, rows by cols integers: 1 where the number is missing; the others stay</param>
        /// <returns>0</returns>
        public static int Cpp_M_IdentifyMissingInMatSPV(HostArray x, int rows, int cols, int[] marks)
        {
            Room.Check("Cpp_M_IdentifyMissingInMatSPV", "marks", marks, (long)rows, (long)cols);
            return Native.Cpp_M_IdentifyMissingInMatSPV(HostArray.Of(x), rows, cols, marks);
        }

        /// <summary>The categories of variables that all have the same number of them. The mode is that of the
        /// numbers of rows. It is looked for among the first `count` slots of each variable, and so many are
        /// sorted, whatever the variable has: empty slots come before all names.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="width">columns of the tables</param>
        /// <param name="count">number of categories of every variable</param>
        /// <param name="modes">out, p texts: the mode of each variable</param>
        /// <param name="modeFrequencies">out, p numbers: its number of rows</param>
        /// <param name="categories">out, p by width texts: the names</param>
        /// <param name="frequencies">out, p by width numbers: the numbers of rows</param>
        /// <param name="weightedFrequencies">out, p by width numbers: the sums of the weights</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="total">out, one integer: p times count</param>
        /// <param name="sort">-1: the categories are sorted</param>
        /// <returns>0</returns>
        public static int Cpp_M_InfoQuali3(string[] data, int n, int p, int width, int count, string[] modes,
            double[] modeFrequencies, string[] categories, double[] frequencies, double[] weightedFrequencies,
            double[] weights, out int total, short sort)
        {
            Room.Check("Cpp_M_InfoQuali3", "data", data, (long)n, (long)p);
            Room.Check("Cpp_M_InfoQuali3", "modes", modes, (long)p, 1);
            Room.Check("Cpp_M_InfoQuali3", "modeFrequencies", modeFrequencies, (long)p, 1);
            Room.Check("Cpp_M_InfoQuali3", "categories", categories, (long)p, (long)width);
            Room.Check("Cpp_M_InfoQuali3", "frequencies", frequencies, (long)p, (long)width);
            Room.Check("Cpp_M_InfoQuali3", "weightedFrequencies", weightedFrequencies, (long)p, (long)width);
            Room.Check("Cpp_M_InfoQuali3", "weights", weights, (long)n, 1);
            using (var dataTexts = new Texts("Cpp_M_InfoQuali3", "data", data))
            using (var modesTexts = new Texts("Cpp_M_InfoQuali3", "modes", modes))
            using (var categoriesTexts = new Texts("Cpp_M_InfoQuali3", "categories", categories))
            {
                int answer = Native.Cpp_M_InfoQuali3(dataTexts.Cells, n, p, width, count, modesTexts.Cells, modeFrequencies, categoriesTexts.Cells, frequencies, weightedFrequencies, weights, out total, sort);
                modesTexts.CopyTo(modes);
                categoriesTexts.CopyTo(categories);
                return answer;
            }
        }

        /// <summary>The categories of each variable of a labelled table, in order of first appearance, with their
        /// numbers of rows and their weights. The empty text is no category. The arrays of the record are filled as
        /// far as they go; none is resized. Of the record are read `withRecode`, `codeStart`, `withSort`,
        /// `noWeights` and `withLongLabels`, each of the flags set when it is -1. These are written: - `VarLabels`:
        /// the labels of the columns, `CLabels` of the table; - `NbCat`: the number of categories of each variable;
        /// 1 for a column without any, whose slots stay as they are; - `CatNames`: the text of the category; with
        /// `withLongLabels` the label of the variable, "-" and the text, so that each row starts a category of its
        /// own; - `CatFreq`: the number of rows, and `CatFreqW`: the sum of their weights, or again the number with
        /// `noWeights`; - `Codes`, with `withRecode`: `codeStart` for the first category of the variable and one
        /// more for each next one; missing for an empty text; - `Count`: the number of variables; `NbCatTotal`: the
        /// sum of `NbCat`; `FreqMax`: the largest number of rows of a category, unless it was larger before;
        /// `SumW`: the sum of the weights that are not missing, or the number of rows with `noWeights`. With
        /// `withSort` the categories of each variable are sorted as `VB_M_InfoQuali` sorts them, and the codes
        /// follow their categories.</summary>
        /// <param name="data">in, labelled table of texts. All columns are read down to the longest one:
        /// `nbrowsmax` rows of `nbcols`</param>
        /// <param name="weights">in, data.nbrowsmax weights, a weight for each row; may be null with
        /// `noWeights`</param>
        /// <param name="info">inout, category statistics: the record</param>
        /// <returns>0</returns>
        public static int Cpp_M_InfoQuali3_ST(ref ST_MVect data, double[] weights, ref ST_QualiInfo info)
        {
            Room.Check("Cpp_M_InfoQuali3_ST", "weights", weights, data.nbrowsmax, 1, true);
            return Native.Cpp_M_InfoQuali3_ST(ref data, weights, ref info);
        }

        /// <summary>The same function under the name that sibling modules know.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="modes">out, p texts: the mode of each variable</param>
        /// <param name="modeFrequencies">out, p numbers: its frequency</param>
        /// <param name="categoryCounts">out, p integers: the number of categories</param>
        /// <param name="categories">out, p by n texts: the names</param>
        /// <param name="frequencies">out, p by n numbers: the frequencies</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="total">out, one integer: the sum of the numbers of categories</param>
        /// <param name="sort">-1: the categories are sorted</param>
        /// <returns>0</returns>
        public static int Cpp_M_InfoQualiNoMiss(string[] data, int n, int p, string[] modes, double[] modeFrequencies,
            int[] categoryCounts, string[] categories, double[] frequencies, double[] weights, out int total,
            short sort)
        {
            Room.Check("Cpp_M_InfoQualiNoMiss", "data", data, (long)n, (long)p);
            Room.Check("Cpp_M_InfoQualiNoMiss", "modes", modes, (long)p, 1);
            Room.Check("Cpp_M_InfoQualiNoMiss", "modeFrequencies", modeFrequencies, (long)p, 1);
            Room.Check("Cpp_M_InfoQualiNoMiss", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("Cpp_M_InfoQualiNoMiss", "categories", categories, (long)p, (long)n);
            Room.Check("Cpp_M_InfoQualiNoMiss", "frequencies", frequencies, (long)p, (long)n);
            Room.Check("Cpp_M_InfoQualiNoMiss", "weights", weights, (long)n, 1);
            using (var dataTexts = new Texts("Cpp_M_InfoQualiNoMiss", "data", data))
            using (var modesTexts = new Texts("Cpp_M_InfoQualiNoMiss", "modes", modes))
            using (var categoriesTexts = new Texts("Cpp_M_InfoQualiNoMiss", "categories", categories))
            {
                int answer = Native.Cpp_M_InfoQualiNoMiss(dataTexts.Cells, n, p, modesTexts.Cells, modeFrequencies, categoryCounts, categoriesTexts.Cells, frequencies, weights, out total, sort);
                modesTexts.CopyTo(modes);
                categoriesTexts.CopyTo(categories);
                return answer;
            }
        }

        /// <summary>Counts the rows of each category on records. A text that is no known category is passed over
        /// when `IgnoreNewCategoryInPred` of the result is not 0.</summary>
        /// <param name="data">in, labelled table of texts, n by p</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="reference">in, category statistics that have the known categories: `NbCat` and
        /// `CatNames`</param>
        /// <param name="result">inout, category statistics: `CatFreq` receives the number of rows of each,
        /// `CatFreqW` the sum of their weights; all slots of the p variables are cleared first</param>
        /// <param name="newCategoryFound">out, one flag: -1 when a text that is no known category ended the
        /// function, otherwise 0</param>
        /// <param name="weights">in, n weights</param>
        /// <returns>0</returns>
        public static int Cpp_M_InfoQualiValid_ST(ref ST_MVect data, int n, int p, ref ST_QualiInfo reference,
            ref ST_QualiInfo result, out short newCategoryFound, double[] weights)
        {
            Room.Check("Cpp_M_InfoQualiValid_ST", "weights", weights, (long)n, 1);
            return Native.Cpp_M_InfoQualiValid_ST(ref data, n, p, ref reference, ref result, out newCategoryFound, weights);
        }

        /// <summary>Spreads the rows of a table, with rows of missing numbers between them.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="flags">in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one
        /// that is all missing</param>
        /// <param name="m">how many rows the result is longer</param>
        /// <param name="result">out, n + m by p numbers</param>
        /// <returns>0</returns>
        public static int Cpp_M_InsertMissingDbl(double[] x, int n, int p, short[] flags, int m, double[] result)
        {
            Room.Check("Cpp_M_InsertMissingDbl", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_M_InsertMissingDbl", "flags", flags, (long)n + (long)m, 1);
            Room.Check("Cpp_M_InsertMissingDbl", "result", result, (long)n + (long)m, (p == 0 ? 1L : p));
            return Native.Cpp_M_InsertMissingDbl(x, n, p, flags, m, result);
        }

        /// <summary>The same for integers; the missing one is -2147483648.</summary>
        /// <param name="x">in, n by p integers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="flags">in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one
        /// that is all missing</param>
        /// <param name="m">how many rows the result is longer</param>
        /// <param name="result">out, n + m by p integers</param>
        /// <returns>0</returns>
        public static int Cpp_M_InsertMissingLng(int[] x, int n, int p, short[] flags, int m, int[] result)
        {
            Room.Check("Cpp_M_InsertMissingLng", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_M_InsertMissingLng", "flags", flags, (long)n + (long)m, 1);
            Room.Check("Cpp_M_InsertMissingLng", "result", result, (long)n + (long)m, (p == 0 ? 1L : p));
            return Native.Cpp_M_InsertMissingLng(x, n, p, flags, m, result);
        }

        /// <summary>Logical inversion of a table of flags in place: 0 becomes 1, and anything else becomes
        /// 0.</summary>
        /// <param name="flags">inout, rows by cols flags, column after column</param>
        /// <param name="rows">rows; below 1 nothing is done</param>
        /// <param name="cols">columns; below 1 nothing is done</param>
        /// <returns>0</returns>
        public static int Cpp_M_Inverse(short[] flags, int rows, int cols)
        {
            Room.Check("Cpp_M_Inverse", "flags", flags, (long)rows, (long)cols);
            return Native.Cpp_M_Inverse(flags, rows, cols);
        }

        /// <summary>Generalised inverse of a square table by sweeping.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="tolerance">a pivot is passed over when its magnitude is below it</param>
        /// <param name="g">out, n by n numbers; may be the array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_M_InverseG2(double[] a, int n, double tolerance, double[] g)
        {
            Room.Check("Cpp_M_InverseG2", "a", a, (long)n, (long)n);
            Room.Check("Cpp_M_InverseG2", "g", g, (long)n, (long)n);
            return Native.Cpp_M_InverseG2(a, n, tolerance, g);
        }

        /// <summary>Generalised inverse of a square table by sweeping some of its pivots.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="selected">in, n numbers; a pivot is swept where the number is 1</param>
        /// <param name="tolerance">a pivot is passed over when its magnitude is below it</param>
        /// <param name="g">out, n by n numbers; may be the array that is read</param>
        /// <param name="zeroOthers">true only when -1: row and column of a pivot that is not selected become 0 when
        /// its turn comes. Otherwise they stay as they are then</param>
        /// <returns>0</returns>
        public static int Cpp_M_InverseG2Selective(double[] a, int n, int[] selected, double tolerance, double[] g,
            short zeroOthers)
        {
            Room.Check("Cpp_M_InverseG2Selective", "a", a, (long)n, (long)n);
            Room.Check("Cpp_M_InverseG2Selective", "selected", selected, (long)n, 1);
            Room.Check("Cpp_M_InverseG2Selective", "g", g, (long)n, (long)n);
            return Native.Cpp_M_InverseG2Selective(a, n, selected, tolerance, g, zeroOthers);
        }

        /// <summary>Generalised inverse of a labelled table by sweeping. No column is resized: an element past the
        /// end of a column reads as -1 and is not stored.</summary>
        /// <param name="a">in, labelled table of numbers, n by n</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="tolerance">a pivot is passed over when its magnitude is below it</param>
        /// <param name="g">inout, labelled table of numbers whose columns receive n by n; its counts stay as they
        /// are</param>
        /// <returns>0</returns>
        public static int Cpp_M_InverseG2_ST(ref ST_MVect a, int n, double tolerance, ref ST_MVect g)
        {
            return Native.Cpp_M_InverseG2_ST(ref a, n, tolerance, ref g);
        }

        /// <summary>Whether each column of a labelled table has at most two different values, as
        /// `Cpp_V_IsBinaryDbl` tells it of its first `Count` rows.</summary>
        /// <param name="x">in, labelled table of numbers</param>
        /// <param name="skipMissing">-1: missing numbers are passed over, and at the start a NaN too; otherwise
        /// they make the result false</param>
        /// <returns>-1 when all have, otherwise 0</returns>
        public static short Cpp_M_IsBinaryDbl_ST(ref ST_MVect x, short skipMissing)
        {
            return Native.Cpp_M_IsBinaryDbl_ST(ref x, skipMissing);
        }

        /// <summary>The same for a labelled table, as far as it has columns.</summary>
        /// <param name="x">in, table of numbers</param>
        /// <param name="rows">rows to test</param>
        /// <param name="cols">columns to test</param>
        /// <returns>-1 or 0</returns>
        public static short Cpp_M_IsLong_ST(ref ST_MVect x, int rows, int cols)
        {
            return Native.Cpp_M_IsLong_ST(ref x, rows, cols);
        }

        /// <summary>Whether some cell (i, j), i below j, of a square table is missing while the cells (i, i) and
        /// (j, j) are both above the missing number.</summary>
        /// <param name="x">in, n by n numbers</param>
        /// <param name="n">rows of the table; below 2 the result is 0</param>
        /// <returns>-1 or 0</returns>
        public static short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double[] x, int n)
        {
            Room.Check("Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags", "x", x, (long)n, (long)n);
            return Native.Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(x, n);
        }

        /// <summary>The same for a symmetric table of which column j holds the cells from the diagonal
        /// down.</summary>
        /// <param name="x">in, n columns, the first of n numbers and each next one of a number less</param>
        /// <param name="n">rows of the table; below 2 the result is 0</param>
        /// <returns>-1 or 0</returns>
        public static short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(HostArray x, int n)
        {
            return Native.Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(HostArray.Of(x), n);
        }

        /// <summary>The same for a table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="iMissing">in, rows flags, one for each row; a row with a flag other than 0 is left out.
        /// Null: none is</param>
        /// <param name="bStrict">not 0: a number must be above 0; 0: it may be 0</param>
        /// <returns>-1 or 0</returns>
        public static short Cpp_M_IsPositive(double[] x, int rows, int cols, short[] iMissing, short bStrict)
        {
            Room.Check("Cpp_M_IsPositive", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_IsPositive", "iMissing", iMissing, (long)rows, 1, true);
            return Native.Cpp_M_IsPositive(x, rows, cols, iMissing, bStrict);
        }

        /// <summary>The same for a labelled table, as far as it has columns.</summary>
        /// <param name="x">in, table of numbers</param>
        /// <param name="rows">rows to test</param>
        /// <param name="cols">columns to test</param>
        /// <param name="iMissing">in, rows flags, one for each row; a row with a flag other than 0 is left out.
        /// Null: none is</param>
        /// <param name="bStrict">not 0: a number must be above 0; 0: it may be 0</param>
        /// <returns>-1 or 0</returns>
        public static short Cpp_M_IsPositive_ST(ref ST_MVect x, int rows, int cols, short[] iMissing, short bStrict)
        {
            Room.Check("Cpp_M_IsPositive_ST", "iMissing", iMissing, (long)rows, 1, true);
            return Native.Cpp_M_IsPositive_ST(ref x, rows, cols, iMissing, bStrict);
        }

        /// <summary>The logarithm of the determinant. A pivot of exactly 0 counts as 1e-20.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns</param>
        /// <returns>the logarithm; the missing value when the determinant is negative or a row has only
        /// zeros</returns>
        public static double Cpp_M_LogDeterminant(double[] a, int n)
        {
            Room.Check("Cpp_M_LogDeterminant", "a", a, (long)n, (long)n);
            return Native.Cpp_M_LogDeterminant(a, n);
        }

        /// <summary>The column of the largest cell of each row. Missing cells are below all others.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="positions">out, rows column numbers from 1; of equal cells the first</param>
        /// <returns>0</returns>
        public static int Cpp_M_MaxPosByRow(double[] x, int rows, int cols, int[] positions)
        {
            Room.Check("Cpp_M_MaxPosByRow", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_MaxPosByRow", "positions", positions, (long)rows, 1);
            return Native.Cpp_M_MaxPosByRow(x, rows, cols, positions);
        }

        /// <summary>Weighted means over the cells greater than the missing value, so that a NaN is not kept. A
        /// weight of 0 is a number like any other: while the weights sum to 0 the mean is a NaN, and stays
        /// one.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="means">out, cols means; missing for a column with nothing kept</param>
        /// <returns>0</returns>
        public static int Cpp_M_Mean2(double[] x, int rows, int cols, double[] w, double[] means)
        {
            Room.Check("Cpp_M_Mean2", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_Mean2", "w", w, (long)rows, 1);
            Room.Check("Cpp_M_Mean2", "means", means, (long)cols, 1);
            return Native.Cpp_M_Mean2(x, rows, cols, w, means);
        }

        /// <summary>Cpp_M_Mean2 with all weights 1.0.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means; missing for a column with nothing kept</param>
        /// <returns>0</returns>
        public static int Cpp_M_Mean3(double[] x, int rows, int cols, double[] means)
        {
            Room.Check("Cpp_M_Mean3", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_Mean3", "means", means, (long)cols, 1);
            return Native.Cpp_M_Mean3(x, rows, cols, means);
        }

        /// <summary>VB_M_Mean on a table of separate columns.</summary>
        /// <param name="x">in, host array of cols columns of rows numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means; 0.0 for a column with nothing kept</param>
        /// <param name="w">in, rows weights</param>
        /// <returns>0</returns>
        public static int Cpp_M_MeanSPV(HostArray x, int rows, int cols, double[] means, double[] w)
        {
            Room.Check("Cpp_M_MeanSPV", "means", means, (long)cols, 1);
            Room.Check("Cpp_M_MeanSPV", "w", w, (long)rows, 1);
            return Native.Cpp_M_MeanSPV(HostArray.Of(x), rows, cols, means, w);
        }

        /// <summary>Joins the cells of each row of texts, from the first column on, with nothing between
        /// them.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="out">inout, rows texts, replaced where they differ; may be x</param>
        /// <returns>0</returns>
        public static int Cpp_M_MergeStringsByRow(string[] x, int rows, int cols, string[] @out)
        {
            Room.Check("Cpp_M_MergeStringsByRow", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_MergeStringsByRow", "out", @out, (long)rows, 1);
            using (var xTexts = new Texts("Cpp_M_MergeStringsByRow", "x", x))
            using (var outTexts = new Texts("Cpp_M_MergeStringsByRow", "out", @out))
            {
                int answer = Native.Cpp_M_MergeStringsByRow(xTexts.Cells, rows, cols, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>The smallest number of a table; missing numbers do not count.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <returns>the number</returns>
        public static double Cpp_M_MinAll(double[] x, int rows, int cols)
        {
            Room.Check("Cpp_M_MinAll", "x", x, (long)rows, (long)cols);
            return Native.Cpp_M_MinAll(x, rows, cols);
        }

        /// <summary>The smallest number of a labelled table that is not missing.</summary>
        /// <param name="x">in, table of numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <returns>the smallest number below 1.79769313486231e308; the missing one when there is none</returns>
        public static double Cpp_M_MinIgnoreMissing_ST(ref ST_MVect x, int rows, int cols)
        {
            return Native.Cpp_M_MinIgnoreMissing_ST(ref x, rows, cols);
        }

        /// <summary>Counts the missing numbers of a chunked table.</summary>
        /// <param name="x">in, cols columns of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <returns>the count</returns>
        public static int Cpp_M_NbMissingSPV(HostArray x, int rows, int cols)
        {
            return Native.Cpp_M_NbMissingSPV(HostArray.Of(x), rows, cols);
        }

        /// <summary>The largest singular value of a square table.</summary>
        /// <param name="a">in, rows by cols numbers, column after column; not read unless the counts are
        /// equal</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <returns>the norm; 0.0 when the counts differ; the missing value when a product of two rows is missing,
        /// or for counts of 0</returns>
        public static double Cpp_M_Norm2(double[] a, int rows, int cols)
        {
            Room.Check("Cpp_M_Norm2", "a", a, (long)rows, (long)cols);
            return Native.Cpp_M_Norm2(a, rows, cols);
        }

        /// <summary>Product of three labelled tables, c = a * b * a'.</summary>
        /// <param name="a">in, labelled table of numbers, n by p</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, labelled table of numbers, p by p</param>
        /// <param name="symmetric">-1 promises that b is symmetric: only the lower half is summed and then
        /// mirrored. With any other value all of the product is summed</param>
        /// <param name="c">inout, labelled table of numbers whose columns receive n by n; its counts become
        /// those</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductABTrA_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, short symmetric,
            ref ST_MVect c)
        {
            return Native.Cpp_M_ProductABTrA_ST(ref a, n, p, ref b, symmetric, ref c);
        }

        /// <summary>Product of two labelled tables, c = a * b.</summary>
        /// <param name="a">in, labelled table of numbers, n by p</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, labelled table of numbers, p by q</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">inout, labelled table of numbers whose columns receive n by q; its counts become
        /// those</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductAB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int q, ref ST_MVect c)
        {
            return Native.Cpp_M_ProductAB_ST(ref a, n, p, ref b, q, ref c);
        }

        /// <summary>Product of a labelled table and another transposed, c = a * b'.</summary>
        /// <param name="a">in, labelled table of numbers, n by p</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, labelled table of numbers, m by p</param>
        /// <param name="m">rows of b</param>
        /// <param name="c">inout, labelled table of numbers whose columns receive n by m; its counts become
        /// those</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductATrB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int m, ref ST_MVect c)
        {
            return Native.Cpp_M_ProductATrB_ST(ref a, n, p, ref b, m, ref c);
        }

        /// <summary>Product of a table of integers with itself, c = a' * a. Each product is in 32-bit arithmetic
        /// that wraps around, the sum in double precision, cut off to an integer; what no integer can hold gives
        /// -2147483648. Only the elements of the upper half are summed; each is stored in both halves.</summary>
        /// <param name="a">in, n by p integers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="c">out, p by p integers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductTrAALng(int[] a, int n, int p, int[] c)
        {
            Room.Check("Cpp_M_ProductTrAALng", "a", a, (long)n, (long)p);
            Room.Check("Cpp_M_ProductTrAALng", "c", c, (long)p, (long)p);
            return Native.Cpp_M_ProductTrAALng(a, n, p, c);
        }

        /// <summary>Product of two tables and a vector, y = a' * b * v.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, n by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="v">in, q numbers</param>
        /// <param name="y">out, p numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductTrABV(double[] a, int n, int p, double[] b, int q, double[] v, double[] y)
        {
            Room.Check("Cpp_M_ProductTrABV", "a", a, (long)n, (long)p);
            Room.Check("Cpp_M_ProductTrABV", "b", b, (long)n, (long)q);
            Room.Check("Cpp_M_ProductTrABV", "v", v, (long)q, 1);
            Room.Check("Cpp_M_ProductTrABV", "y", y, (long)p, 1);
            return Native.Cpp_M_ProductTrABV(a, n, p, b, q, v, y);
        }

        /// <summary>Product of a transposed labelled table and another, c = a' * b.</summary>
        /// <param name="a">in, labelled table of numbers, n by p</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, labelled table of numbers, n by q</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">inout, labelled table of numbers whose columns receive p by q; its counts become
        /// those</param>
        /// <returns>0</returns>
        public static int Cpp_M_ProductTrAB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int q, ref ST_MVect c)
        {
            return Native.Cpp_M_ProductTrAB_ST(ref a, n, p, ref b, q, ref c);
        }

        /// <summary>The quadratic form v' * s * v of a full symmetric table: twice the sum over i below j of v(i) *
        /// v(j) * s(j, i), i outside, plus the sum of v(i)^2 * s(i, i).</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">rows and columns of the table</param>
        /// <param name="s">in, n by n numbers, of which only the lower triangle is read</param>
        /// <returns>the form; 0.0 for n below 1</returns>
        public static double Cpp_M_ProductTrVSymV(double[] v, int n, double[] s)
        {
            Room.Check("Cpp_M_ProductTrVSymV", "v", v, (long)n, 1);
            Room.Check("Cpp_M_ProductTrVSymV", "s", s, (long)n, (long)n);
            return Native.Cpp_M_ProductTrVSymV(v, n, s);
        }

        /// <summary>Replaces texts by others.</summary>
        /// <param name="data">in, labelled table of texts, n by p</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="codes">in, labelled table of two columns: the texts to look for, and what replaces them; of
        /// equal ones the first counts</param>
        /// <param name="codeCount">number of texts to look for; below 1 the result is left alone</param>
        /// <param name="result">inout, labelled table of texts whose columns receive n by p texts; one that is not
        /// looked for stays</param>
        /// <returns>0</returns>
        public static int Cpp_M_RecodeDataWithCodes_ST(ref ST_MVect data, int n, int p, ref ST_MVect codes,
            int codeCount, ref ST_MVect result)
        {
            return Native.Cpp_M_RecodeDataWithCodes_ST(ref data, n, p, ref codes, codeCount, ref result);
        }

        /// <summary>Takes a run of rows out of a table of texts in place: those below it move up. The table keeps
        /// its shape, and the rows that become free at the bottom keep their texts.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="first">first row of the run; one below 1 counts as 1</param>
        /// <param name="last">last row of the run; one above rows counts as rows. Below first, nothing
        /// happens</param>
        /// <returns>0</returns>
        public static int Cpp_M_RemoveRowsStr2(string[] x, int rows, int cols, int first, int last)
        {
            Room.Check("Cpp_M_RemoveRowsStr2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            using (var xTexts = new Texts("Cpp_M_RemoveRowsStr2", "x", x))
            {
                int answer = Native.Cpp_M_RemoveRowsStr2(xTexts.Cells, rows, cols, first, last);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Takes the flagged rows out in place: those below move up, and the rows that become free stay as
        /// they were.</summary>
        /// <param name="x">inout, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="flags">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <returns>0</returns>
        public static int Cpp_M_RemoveRowsWithMissing2(double[] x, int n, int p, short[] flags)
        {
            Room.Check("Cpp_M_RemoveRowsWithMissing2", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_M_RemoveRowsWithMissing2", "flags", flags, (long)n, 1);
            return Native.Cpp_M_RemoveRowsWithMissing2(x, n, p, flags);
        }

        /// <summary>Makes cells missing where a table of marks has a 1.</summary>
        /// <param name="x">inout, n by p numbers</param>
        /// <param name="n">rows of both tables</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="marks">in, n by markColumns integers</param>
        /// <param name="markColumns">columns of the marks; 0 stands for 1</param>
        /// <param name="wholeRow">-1: all cells of a row with a mark become missing; otherwise only the cell in the
        /// same column</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceByMissing(double[] x, int n, int p, int[] marks, int markColumns, short wholeRow)
        {
            Room.Check("Cpp_M_ReplaceByMissing", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_M_ReplaceByMissing", "marks", marks, (long)n, (markColumns == 0 ? 1L : markColumns));
            return Native.Cpp_M_ReplaceByMissing(x, n, p, marks, markColumns, wholeRow);
        }

        /// <summary>Makes cells missing where a table of marks has a value.</summary>
        /// <param name="x">inout, n by p numbers</param>
        /// <param name="n">rows of both tables</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="marks">in, n by markColumns integers</param>
        /// <param name="markColumns">columns of the marks; 0 stands for 1</param>
        /// <param name="value">the mark</param>
        /// <param name="wholeRow">-1: all cells of a row with a mark become missing; otherwise only the cell in the
        /// same column</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceByMissingIfVal(double[] x, int n, int p, int[] marks, int markColumns, int value,
            short wholeRow)
        {
            Room.Check("Cpp_M_ReplaceByMissingIfVal", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_M_ReplaceByMissingIfVal", "marks", marks, (long)n, (markColumns == 0 ? 1L : markColumns));
            return Native.Cpp_M_ReplaceByMissingIfVal(x, n, p, marks, markColumns, value, wholeRow);
        }

        /// <summary>The code of each text, from 1 on. Of equal names the first counts. A text that is no category
        /// leaves its place in the result as it was.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="result">inout, n by p numbers: the codes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceCatByCodes(string[] data, int n, int p, int[] categoryCounts,
            string[] categories, double[] result)
        {
            Room.Check("Cpp_M_ReplaceCatByCodes", "data", data, (long)n, (long)p);
            Room.Check("Cpp_M_ReplaceCatByCodes", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("Cpp_M_ReplaceCatByCodes", "categories", categories, (long)p, Room.Largest(categoryCounts));
            Room.Check("Cpp_M_ReplaceCatByCodes", "result", result, (long)n, (long)p);
            using (var dataTexts = new Texts("Cpp_M_ReplaceCatByCodes", "data", data))
            using (var categoriesTexts = new Texts("Cpp_M_ReplaceCatByCodes", "categories", categories))
                return Native.Cpp_M_ReplaceCatByCodes(dataTexts.Cells, n, p, categoryCounts, categoriesTexts.Cells, result);
        }

        /// <summary>The same from a labelled table into another one.</summary>
        /// <param name="data">in, labelled table of texts, n by p</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="result">inout, labelled table of numbers whose columns receive n by p codes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceCatByCodes_ST(ref ST_MVect data, int n, int p, int[] categoryCounts,
            string[] categories, ref ST_MVect result)
        {
            Room.Check("Cpp_M_ReplaceCatByCodes_ST", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("Cpp_M_ReplaceCatByCodes_ST", "categories", categories, (long)p, Room.Largest(categoryCounts));
            using (var categoriesTexts = new Texts("Cpp_M_ReplaceCatByCodes_ST", "categories", categories))
                return Native.Cpp_M_ReplaceCatByCodes_ST(ref data, n, p, categoryCounts, categoriesTexts.Cells, ref result);
        }

        /// <summary>Replaces the empty texts of a labelled table, as far as it has columns.</summary>
        /// <param name="x">inout, table of texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="val">in, one text: what an empty one becomes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceMissingByStr_ST(ref ST_MVect x, int rows, int cols, string val)
        {
            using (var valTexts = new Texts("Cpp_M_ReplaceMissingByStr_ST", "val", new[] { val }))
                return Native.Cpp_M_ReplaceMissingByStr_ST(ref x, rows, cols, valTexts.Cells[0]);
        }

        /// <summary>Replaces the missing numbers of a labelled table, as far as it has columns.</summary>
        /// <param name="x">inout, table of numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="val">what a missing number becomes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceMissingByVal_ST(ref ST_MVect x, int rows, int cols, double val)
        {
            return Native.Cpp_M_ReplaceMissingByVal_ST(ref x, rows, cols, val);
        }

        /// <summary>The same into a chunked table.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="rowFlags">in, n flags: not 0 leaves a row out</param>
        /// <param name="firstCode">the code of a first category</param>
        /// <param name="result">inout, p columns that each receive n codes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceStrByCodesSPV(string[] data, int n, int p, int[] categoryCounts,
            string[] categories, short[] rowFlags, int firstCode, HostArray result)
        {
            Room.Check("Cpp_M_ReplaceStrByCodesSPV", "data", data, (long)n, (long)p);
            Room.Check("Cpp_M_ReplaceStrByCodesSPV", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("Cpp_M_ReplaceStrByCodesSPV", "categories", categories, (long)p, Room.Largest(categoryCounts));
            Room.Check("Cpp_M_ReplaceStrByCodesSPV", "rowFlags", rowFlags, (long)n, 1);
            using (var dataTexts = new Texts("Cpp_M_ReplaceStrByCodesSPV", "data", data))
            using (var categoriesTexts = new Texts("Cpp_M_ReplaceStrByCodesSPV", "categories", categories))
                return Native.Cpp_M_ReplaceStrByCodesSPV(dataTexts.Cells, n, p, categoryCounts, categoriesTexts.Cells, rowFlags, firstCode, HostArray.Of(result));
        }

        /// <summary>The same from a labelled table into another one.</summary>
        /// <param name="data">in, labelled table of texts, n by p</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="rowFlags">in, n flags: not 0 leaves a row out</param>
        /// <param name="firstCode">the code of a first category</param>
        /// <param name="result">inout, labelled table of numbers whose columns receive n by p codes</param>
        /// <returns>0</returns>
        public static int Cpp_M_ReplaceStrByCodes_ST(ref ST_MVect data, int n, int p, int[] categoryCounts,
            string[] categories, short[] rowFlags, int firstCode, ref ST_MVect result)
        {
            Room.Check("Cpp_M_ReplaceStrByCodes_ST", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("Cpp_M_ReplaceStrByCodes_ST", "categories", categories, (long)p, Room.Largest(categoryCounts));
            Room.Check("Cpp_M_ReplaceStrByCodes_ST", "rowFlags", rowFlags, (long)n, 1);
            using (var categoriesTexts = new Texts("Cpp_M_ReplaceStrByCodes_ST", "categories", categories))
                return Native.Cpp_M_ReplaceStrByCodes_ST(ref data, n, p, categoryCounts, categoriesTexts.Cells, rowFlags, firstCode, ref result);
        }

        /// <summary>The row sum norm: the largest sum of magnitudes of a row. Only cells greater than the missing
        /// value are added, so that missing ones, -infinity and NaN are not.</summary>
        /// <param name="a">in, n by m cells</param>
        /// <param name="n">rows</param>
        /// <param name="m">columns</param>
        /// <returns>the norm; 0.0 for n below 1</returns>
        public static double Cpp_M_RowSumNorm(double[] a, int n, int m)
        {
            Room.Check("Cpp_M_RowSumNorm", "a", a, (long)n, (long)m);
            return Native.Cpp_M_RowSumNorm(a, n, m);
        }

        /// <summary>Simple random sample with replacement from each stratum, a stratum being the rows of one
        /// label.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the whole sample</param>
        /// <param name="sample">inout, k by cols texts: stratum after stratum in ascending order of the
        /// labels</param>
        /// <param name="strata">in, rows labels</param>
        /// <param name="selected">inout, k numbers: the row number of each row of the sample</param>
        /// <param name="counts">in, nCounts numbers: the size of the sample from each stratum, truncated</param>
        /// <param name="nCounts">number of strata</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_M_SamplingRandomStratifiedByStr(string[] table, int rows, int cols, int k,
            string[] sample, string[] strata, double[] selected, double[] counts, int nCounts, ref int seed, short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_M_SamplingRandomStratifiedByStr", "table", table, (long)rows, (long)cols);
            Room.Check("Cpp_M_SamplingRandomStratifiedByStr", "sample", sample, (long)k, (long)cols);
            Room.Check("Cpp_M_SamplingRandomStratifiedByStr", "strata", strata, (long)rows, 1);
            Room.Check("Cpp_M_SamplingRandomStratifiedByStr", "selected", selected, (long)k, 1);
            Room.Check("Cpp_M_SamplingRandomStratifiedByStr", "counts", counts, (long)nCounts, 1);
            using (var tableTexts = new Texts("Cpp_M_SamplingRandomStratifiedByStr", "table", table))
            using (var sampleTexts = new Texts("Cpp_M_SamplingRandomStratifiedByStr", "sample", sample))
            using (var strataTexts = new Texts("Cpp_M_SamplingRandomStratifiedByStr", "strata", strata))
            {
                int answer = Native.Cpp_M_SamplingRandomStratifiedByStr(tableTexts.Cells, rows, cols, k, sampleTexts.Cells, strataTexts.Cells, selected, counts, nCounts, ref seed, flag, out nextSeed);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>Flags the cells of a table that equal a number.</summary>
        /// <param name="x">in, rows by cols integers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables; 0 stands for 1</param>
        /// <param name="value">the number; the missing integer is one like the others</param>
        /// <param name="flags">out, rows by cols flags: -1 where the cell equals value, otherwise 0</param>
        /// <returns>0</returns>
        public static int Cpp_M_SetBooleanIfLng(int[] x, int rows, int cols, int value, short[] flags)
        {
            Room.Check("Cpp_M_SetBooleanIfLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_SetBooleanIfLng", "flags", flags, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_SetBooleanIfLng(x, rows, cols, value, flags);
        }

        /// <summary>Shuffles the rows of a table of numbers into another table; the columns of a row stay
        /// together.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="out">out, rows by cols numbers; may be x</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_M_ShuffleDbl(double[] x, int rows, int cols, double[] @out, ref int seed, short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_M_ShuffleDbl", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_ShuffleDbl", "out", @out, (long)rows, (long)cols);
            return Native.Cpp_M_ShuffleDbl(x, rows, cols, @out, ref seed, flag, out nextSeed);
        }

        /// <summary>Shuffles the rows of a table of numbers in place; the columns of a row stay together.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_M_ShuffleDbl2(double[] x, int rows, int cols, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("Cpp_M_ShuffleDbl2", "x", x, (long)rows, (long)cols);
            return Native.Cpp_M_ShuffleDbl2(x, rows, cols, ref seed, flag, out nextSeed);
        }

        /// <summary>Shuffles the rows of a table of texts into another table; the columns of a row stay
        /// together.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="out">inout, rows by cols texts, replaced where they differ; may be x</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_M_ShuffleStr(string[] x, int rows, int cols, string[] @out, ref int seed, short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_M_ShuffleStr", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_ShuffleStr", "out", @out, (long)rows, (long)cols);
            using (var xTexts = new Texts("Cpp_M_ShuffleStr", "x", x))
            using (var outTexts = new Texts("Cpp_M_ShuffleStr", "out", @out))
            {
                int answer = Native.Cpp_M_ShuffleStr(xTexts.Cells, rows, cols, outTexts.Cells, ref seed, flag, out nextSeed);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Shuffles the rows of a table of texts in place; the columns of a row stay together.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_M_ShuffleStr2(string[] x, int rows, int cols, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("Cpp_M_ShuffleStr2", "x", x, (long)rows, (long)cols);
            using (var xTexts = new Texts("Cpp_M_ShuffleStr2", "x", x))
            {
                int answer = Native.Cpp_M_ShuffleStr2(xTexts.Cells, rows, cols, ref seed, flag, out nextSeed);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>A root r with r' * r = a, from the eigenvalues and eigenvectors of a. It is not symmetric. An
        /// eigenvalue between -1e-12 and 0 counts as 0.</summary>
        /// <param name="a">in, n by n numbers, column after column; of the symmetric table the lower half
        /// counts</param>
        /// <param name="n">rows and columns</param>
        /// <param name="r">out, n by n numbers, column after column; stays as it is unless 0 is returned. May be
        /// the array that is read</param>
        /// <returns>0; -1: an eigenvalue is -1e-12 or below, a cell is missing, or there is no convergence; -2: an
        /// eigenvector has no length</returns>
        public static int Cpp_M_SquareRoot(double[] a, int n, double[] r)
        {
            Room.Check("Cpp_M_SquareRoot", "a", a, (long)n, (long)n);
            Room.Check("Cpp_M_SquareRoot", "r", r, (long)n, (long)n);
            return Native.Cpp_M_SquareRoot(a, n, r);
        }

        /// <summary>Square roots.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables; 0 stands for 1</param>
        /// <param name="y">out, rows by cols numbers, missing for a cell below 0 and for a missing one; may be
        /// x</param>
        /// <returns>0</returns>
        public static int Cpp_M_SquareRootAij(double[] x, int rows, int cols, double[] y)
        {
            Room.Check("Cpp_M_SquareRootAij", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_M_SquareRootAij", "y", y, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_SquareRootAij(x, rows, cols, y);
        }

        /// <summary>Square roots, in place.</summary>
        /// <param name="x">inout, rows by cols numbers; a cell below 0 becomes missing</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int Cpp_M_SquareRootAij2(double[] x, int rows, int cols)
        {
            Room.Check("Cpp_M_SquareRootAij2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.Cpp_M_SquareRootAij2(x, rows, cols);
        }

        /// <summary>Standardises the columns in place by given statistics. All cells of a column become missing
        /// when its deviation is not greater than 0; a missing cell stays so in any case.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">in, cols means</param>
        /// <param name="sds">in, cols deviations</param>
        /// <returns>0</returns>
        public static int Cpp_M_StandardizeApply2(double[] x, int rows, int cols, double[] means, double[] sds)
        {
            Room.Check("Cpp_M_StandardizeApply2", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_StandardizeApply2", "means", means, (long)cols, 1);
            Room.Check("Cpp_M_StandardizeApply2", "sds", sds, (long)cols, 1);
            return Native.Cpp_M_StandardizeApply2(x, rows, cols, means, sds);
        }

        /// <summary>Standardises or centres each group of rows for itself, in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="groups">in, rows group codes; a row with a code that is not from 1 to nGroups stays</param>
        /// <param name="nGroups">number of groups; below 1 nothing is done</param>
        /// <param name="bStandardize">-1: each group is treated by VB_M_Standardize2; any other value: by
        /// VB_M_Center2</param>
        /// <param name="bUnbiased">whether the denominator is the number of cells less 1; true only when -1</param>
        /// <returns>0</returns>
        public static int Cpp_M_StandardizeByGroup(double[] x, int rows, int cols, int[] groups, int nGroups,
            short bStandardize, short bUnbiased)
        {
            Room.Check("Cpp_M_StandardizeByGroup", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_StandardizeByGroup", "groups", groups, (long)rows, 1);
            return Native.Cpp_M_StandardizeByGroup(x, rows, cols, groups, nGroups, bStandardize, bUnbiased);
        }

        /// <summary>Subtracts the first cell of its row from each cell, in place; the first column becomes
        /// 0.</summary>
        /// <param name="x">inout, rows by cols numbers. A missing cell stays missing, and a row whose first cell is
        /// missing becomes missing</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int Cpp_M_SubstractFirstCol2(double[] x, int rows, int cols)
        {
            Room.Check("Cpp_M_SubstractFirstCol2", "x", x, (long)rows, (long)cols);
            return Native.Cpp_M_SubstractFirstCol2(x, rows, cols);
        }

        /// <summary>The sum of squares of each column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols sums</param>
        /// <returns>0</returns>
        public static int Cpp_M_SumBySquareCols(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("Cpp_M_SumBySquareCols", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_SumBySquareCols", "out", @out, (long)cols, 1);
            return Native.Cpp_M_SumBySquareCols(x, rows, cols, @out);
        }

        /// <summary>The sum of squares of each row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows sums</param>
        /// <returns>0</returns>
        public static int Cpp_M_SumBySquareRows(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("Cpp_M_SumBySquareRows", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_M_SumBySquareRows", "out", @out, (long)rows, 1);
            return Native.Cpp_M_SumBySquareRows(x, rows, cols, @out);
        }

        /// <summary>VB_M_Sums1As2B on labelled tables.</summary>
        /// <param name="A">in, labelled table of numbers, rows by cols</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="B">in, labelled table of numbers, rows by cols</param>
        /// <param name="a">factor of A</param>
        /// <param name="b">factor of B</param>
        /// <param name="out">inout, labelled table of numbers whose columns receive rows by cols; its counts
        /// stay</param>
        /// <returns>0</returns>
        public static int Cpp_M_Sums1As2B_ST(ref ST_MVect A, int rows, int cols, ref ST_MVect B, double a, double b,
            ref ST_MVect @out)
        {
            return Native.Cpp_M_Sums1As2B_ST(ref A, rows, cols, ref B, a, b, ref @out);
        }

        /// <summary>The columns of a table one below the other, as a vector.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="v">out, rows by cols numbers; may be x</param>
        /// <returns>0</returns>
        public static int Cpp_MatToVect(double[] x, int rows, int cols, double[] v)
        {
            Room.Check("Cpp_MatToVect", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_MatToVect", "v", v, (long)rows, (long)cols);
            return Native.Cpp_MatToVect(x, rows, cols, v);
        }

        /// <summary>Strings the numbers that are not missing together, column after column.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="counts">inout, p numbers, each of which grows by the number of such cells in its
        /// column</param>
        /// <param name="emptyColumns">inout, one number: grows by 1 for each column whose count is 0 then</param>
        /// <param name="vector">out, n by p numbers, of which the first receive the cells</param>
        /// <returns>0</returns>
        public static int Cpp_MatToVect_NoMissing(double[] x, int n, int p, double[] counts, ref double emptyColumns,
            double[] vector)
        {
            Room.Check("Cpp_MatToVect_NoMissing", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_MatToVect_NoMissing", "counts", counts, (p == 0 ? 1L : p), 1);
            Room.Check("Cpp_MatToVect_NoMissing", "vector", vector, (long)n, (p == 0 ? 1L : p));
            return Native.Cpp_MatToVect_NoMissing(x, n, p, counts, ref emptyColumns, vector);
        }

        /// <summary>x(i, j) = x(i, j) * s. Missing cells are numbers here.</summary>
        /// <param name="x">inout, rows by cols cells</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="s">the factor</param>
        /// <returns>0</returns>
        public static int Cpp_MultiplyByVal(double[] x, int rows, int cols, double s)
        {
            Room.Check("Cpp_MultiplyByVal", "x", x, (long)rows, (long)cols);
            return Native.Cpp_MultiplyByVal(x, rows, cols, s);
        }

        /// <summary>Fills the missing cells of a table from its principal components, found by the NIPALS iteration
        /// over the cells that are there. Cells are weighted and centred but not scaled. A missing cell in a row of
        /// weight 0 becomes 0.</summary>
        /// <param name="n">rows</param>
        /// <param name="p">columns; with a single one no component can be found</param>
        /// <param name="x">inout, n by p numbers, column after column</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="tolerance">the largest variance of the changes of the loadings that ends a
        /// component</param>
        /// <param name="components">how many components are taken; below 1 none, so that a cell becomes the mean
        /// over the weight</param>
        /// <param name="columnShare">the largest share of missing cells in a column</param>
        /// <param name="tableShare">the largest share of missing cells in the table</param>
        /// <returns>0 when the table is complete, or was; -6 when too many cells are missing; 1 when a component
        /// cannot be found. With -6 and 1 the table is as it was</returns>
        public static int Cpp_NIPALS(int n, int p, double[] x, double[] weights, double tolerance, int components,
            double columnShare, double tableShare)
        {
            Room.Check("Cpp_NIPALS", "x", x, (long)n, (long)p);
            Room.Check("Cpp_NIPALS", "weights", weights, (long)n, 1);
            return Native.Cpp_NIPALS(n, p, x, weights, tolerance, components, columnShare, tableShare);
        }

        /// <summary>Seeds the random source and draws one uniform number.</summary>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: the source starts from the seed; 0: the sequence goes on, with the second
        /// state of the combined generator set to a tenth of the first</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run: the first state of the combined
        /// generator, or a further raw draw of MT19937</param>
        /// <returns>strictly between 0 and 1 from the combined generator; from -1.0000000004656613 to 1.0 from
        /// MT19937, whose outputs count as signed. Seed 0 with a non-zero flag makes the combined generator take
        /// the clock</returns>
        public static double Cpp_Random01(ref int seed, short flag, out int nextSeed)
        {
            return Native.Cpp_Random01(ref seed, flag, out nextSeed);
        }

        /// <summary>Random permutation of the numbers 1 to n.</summary>
        /// <param name="out">inout, n numbers</param>
        /// <param name="n">number of elements; below 2 nothing is drawn</param>
        /// <param name="bReset">-1: start from 1 to n in order, as is also done when the first element is 0.
        /// Otherwise what out holds is shuffled</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">inout, one flag: 0 when no seed is given, and then set to -1</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_Random1toNDbl(double[] @out, int n, short bReset, ref int seed, ref short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_Random1toNDbl", "out", @out, (long)n, 1);
            return Native.Cpp_Random1toNDbl(@out, n, bReset, ref seed, ref flag, out nextSeed);
        }

        /// <summary>Random permutation of the integers 1 to n.</summary>
        /// <param name="out">inout, n integers</param>
        /// <param name="n">number of elements; below 2 nothing is drawn</param>
        /// <param name="bReset">-1: start from 1 to n in order, as is also done when the first element is 0.
        /// Otherwise what out holds is shuffled</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">inout, one flag: 0 when no seed is given, and then set to -1</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_Random1toNLong(int[] @out, int n, short bReset, ref int seed, ref short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_Random1toNLong", "out", @out, (long)n, 1);
            return Native.Cpp_Random1toNLong(@out, n, bReset, ref seed, ref flag, out nextSeed);
        }

        /// <summary>Random permutation of the numbers from a to b in steps of 1, of which the array gets all but
        /// the last two.</summary>
        /// <param name="out">inout, b - a - 1 numbers, the first ones of the b - a + 1 that are permuted; a single
        /// one when a equals b</param>
        /// <param name="a">the smallest number</param>
        /// <param name="b">the largest number</param>
        /// <param name="bReset">-1: start from a to b in order, as is also done when the first element is 0.
        /// Otherwise what out holds is shuffled, and a - 1 added to it</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">inout, one flag: 0 when no seed is given, and then set to -1</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_RandomAtoBDbl(double[] @out, int a, int b, short bReset, ref int seed, ref short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_RandomAtoBDbl", "out", @out, (long)b - (long)a - 1, 1);
            return Native.Cpp_RandomAtoBDbl(@out, a, b, bReset, ref seed, ref flag, out nextSeed);
        }

        /// <summary>Random permutation of the integers from a to b, of which the array gets all but the last
        /// two.</summary>
        /// <param name="out">inout, b - a - 1 integers, the first ones of the b - a + 1 that are permuted; a single
        /// one when a equals b</param>
        /// <param name="a">the smallest integer</param>
        /// <param name="b">the largest integer</param>
        /// <param name="bReset">-1: start from a to b in order, as is also done when the first element is 0.
        /// Otherwise what out holds is shuffled, and a - 1 added to it</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">inout, one flag: 0 when no seed is given, and then set to -1</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_RandomAtoBLng(int[] @out, int a, int b, short bReset, ref int seed, ref short flag,
            out int nextSeed)
        {
            Room.Check("Cpp_RandomAtoBLng", "out", @out, (long)b - (long)a - 1, 1);
            return Native.Cpp_RandomAtoBLng(@out, a, b, bReset, ref seed, ref flag, out nextSeed);
        }

        /// <summary>Sorts the variables of a correlation table by a key of each, from the largest down; equal keys
        /// keep their order. The diagonal is set to 1.0 first. The keys of methods 1 and 2 are taken from the first
        /// row for all variables, and only that of variable 1 leaves the diagonal out.</summary>
        /// <param name="corr">inout, n by n numbers; not symmetric ones come back transposed</param>
        /// <param name="n">number of variables</param>
        /// <param name="method">1: the key is the largest cell; 2: the variance of the cells; 3: the cell of the
        /// first eigenvector, unless a cell is missing; any other number: the order stays</param>
        /// <param name="labels">inout, n texts</param>
        /// <param name="pValues">inout, n by n numbers, which move along</param>
        /// <param name="flags">inout, n by n integers, which move along</param>
        /// <returns>0</returns>
        public static int Cpp_ReOrderCorrelations(double[] corr, int n, int method, string[] labels, double[] pValues,
            int[] flags)
        {
            Room.Check("Cpp_ReOrderCorrelations", "corr", corr, (long)n, (long)n);
            Room.Check("Cpp_ReOrderCorrelations", "labels", labels, (long)n, 1);
            Room.Check("Cpp_ReOrderCorrelations", "pValues", pValues, (long)n, (long)n);
            Room.Check("Cpp_ReOrderCorrelations", "flags", flags, (long)n, (long)n);
            using (var labelsTexts = new Texts("Cpp_ReOrderCorrelations", "labels", labels))
            {
                int answer = Native.Cpp_ReOrderCorrelations(corr, n, method, labelsTexts.Cells, pValues, flags);
                labelsTexts.CopyTo(labels);
                return answer;
            }
        }

        /// <summary>Copies a table without the flagged rows, and tells how many stay.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="iMissing">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <param name="result">out, n by p numbers, of which as many rows as stay, by p, are written; it may be
        /// x</param>
        /// <returns>how many rows stay</returns>
        public static int Cpp_RemoveRowsWithMissingOniMissing(double[] x, int n, int p, short[] iMissing,
            double[] result)
        {
            Room.Check("Cpp_RemoveRowsWithMissingOniMissing", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_RemoveRowsWithMissingOniMissing", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_RemoveRowsWithMissingOniMissing", "result", result, (long)n, (p == 0 ? 1L : p));
            return Native.Cpp_RemoveRowsWithMissingOniMissing(x, n, p, iMissing, result);
        }

        /// <summary>The same for texts.</summary>
        /// <param name="x">in, n by p texts</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="iMissing">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <param name="result">inout, n by p texts, of which as many rows as stay, by p, are replaced where they
        /// differ; it may be x</param>
        /// <returns>how many rows stay</returns>
        public static int Cpp_RemoveRowsWithMissingOniMissingStr(string[] x, int n, int p, short[] iMissing,
            string[] result)
        {
            Room.Check("Cpp_RemoveRowsWithMissingOniMissingStr", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("Cpp_RemoveRowsWithMissingOniMissingStr", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_RemoveRowsWithMissingOniMissingStr", "result", result, (long)n, (p == 0 ? 1L : p));
            using (var xTexts = new Texts("Cpp_RemoveRowsWithMissingOniMissingStr", "x", x))
            using (var resultTexts = new Texts("Cpp_RemoveRowsWithMissingOniMissingStr", "result", result))
            {
                int answer = Native.Cpp_RemoveRowsWithMissingOniMissingStr(xTexts.Cells, n, p, iMissing, resultTexts.Cells);
                resultTexts.CopyTo(result);
                return answer;
            }
        }

        /// <summary>Replaces each missing cell of a contingency table, a number at or below `KORVEL_MISSING_DBL`,
        /// by the sum of its row times the sum of its column over the total. Missing cells are left out of the
        /// sums. A total of 0 is divided by as floating point does it.</summary>
        /// <param name="x">inout, table of numbers; only its cells are changed</param>
        /// <param name="rows">rows of the table</param>
        /// <returns>0</returns>
        public static int Cpp_ReplaceMissingInContengencyByExp_ST(ref ST_MVect x, int rows)
        {
            return Native.Cpp_ReplaceMissingInContengencyByExp_ST(ref x, rows);
        }

        /// <summary>Puts the rows of a table of flags into a given order, in place: row i becomes what row order[i]
        /// was.</summary>
        /// <param name="x">inout, rows by cols flags</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives 0</param>
        /// <returns>0</returns>
        public static int Cpp_SortApply2Bool(short[] x, int rows, int cols, double[] order)
        {
            Room.Check("Cpp_SortApply2Bool", "x", x, (long)rows, (long)cols);
            Room.Check("Cpp_SortApply2Bool", "order", order, (long)rows, 1);
            return Native.Cpp_SortApply2Bool(x, rows, cols, order);
        }

        /// <summary>Puts the rows of a record of labelled columns of numbers into a given order, in place: row i
        /// becomes what row order[i] was.</summary>
        /// <param name="x">inout, the record; its columns are changed in place</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives -1</param>
        /// <returns>0</returns>
        public static int Cpp_SortApply2_ST(ref ST_MVect x, int rows, int cols, double[] order)
        {
            Room.Check("Cpp_SortApply2_ST", "order", order, (long)rows, 1);
            return Native.Cpp_SortApply2_ST(ref x, rows, cols, order);
        }

        /// <summary>Orders the rows of a record of labelled columns of numbers by a key. A column shorter than `to`
        /// is left alone.</summary>
        /// <param name="x">inout, the record; its columns are changed in place</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols numbers, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int Cpp_SortQDbl_ST(ref ST_MVect x, int rows, int cols, int from, int to, double[] key,
            double[] aux, int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("Cpp_SortQDbl_ST", "key", key, (long)rows, 1);
            Room.Check("Cpp_SortQDbl_ST", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.Cpp_SortQDbl_ST(ref x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders the rows of a table of integers, a single array that comes out of a record, by a key of
        /// integers.</summary>
        /// <param name="x">inout, host array of Long, rows by cols</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols integers, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int Cpp_SortQLng_ST(HostArray x, int rows, int cols, int from, int to, int[] key, int[] aux,
            int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("Cpp_SortQLng_ST", "key", key, (long)rows, 1);
            Room.Check("Cpp_SortQLng_ST", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.Cpp_SortQLng_ST(HostArray.Of(x), rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders rows from..to of a table of numbers by one of its columns, all columns moving.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="keyCol">the column that orders, from 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int Cpp_SortQMatrixCol(double[] x, int rows, int cols, int keyCol, int from, int to, short bDesc)
        {
            Room.Check("Cpp_SortQMatrixCol", "x", x, (long)rows, (long)cols);
            return Native.Cpp_SortQMatrixCol(x, rows, cols, keyCol, from, to, bDesc);
        }

        /// <summary>Orders rows from..to of a table of integers by one of its columns, all columns
        /// moving.</summary>
        /// <param name="x">inout, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="keyCol">the column that orders, from 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int Cpp_SortQMatrixColLng(int[] x, int rows, int cols, int keyCol, int from, int to, short bDesc)
        {
            Room.Check("Cpp_SortQMatrixColLng", "x", x, (long)rows, (long)cols);
            return Native.Cpp_SortQMatrixColLng(x, rows, cols, keyCol, from, to, bDesc);
        }

        /// <summary>Orders rows from..to of a table of texts by one of its columns, by 16-bit code units, all
        /// columns moving.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="keyCol">the column that orders, from 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int Cpp_SortQMatrixColStr(string[] x, int rows, int cols, int keyCol, int from, int to,
            short bDesc)
        {
            Room.Check("Cpp_SortQMatrixColStr", "x", x, (long)rows, (long)cols);
            using (var xTexts = new Texts("Cpp_SortQMatrixColStr", "x", x))
            {
                int answer = Native.Cpp_SortQMatrixColStr(xTexts.Cells, rows, cols, keyCol, from, to, bDesc);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Orders the rows of a record of labelled columns of texts by a key. A column shorter than `to`
        /// is left alone.</summary>
        /// <param name="x">inout, the record; the texts of its columns are put back where they changed</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols texts, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int Cpp_SortQStr_ST(ref ST_MVect x, int rows, int cols, int from, int to, double[] key,
            string[] aux, int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("Cpp_SortQStr_ST", "key", key, (long)rows, 1);
            Room.Check("Cpp_SortQStr_ST", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            using (var auxTexts = new Texts("Cpp_SortQStr_ST", "aux", aux))
            {
                int answer = Native.Cpp_SortQStr_ST(ref x, rows, cols, from, to, key, auxTexts.Cells, auxCols, bDesc, bSortKey);
                auxTexts.CopyTo(aux);
                return answer;
            }
        }

        /// <summary>Sorts positions `from..to` of a vector of texts, and tells where each text came from.</summary>
        /// <param name="x">inout, n texts</param>
        /// <param name="n">number of texts</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="index">out, n numbers: the original position, from 1, of the text that now stands
        /// there</param>
        /// <returns>0</returns>
        public static int Cpp_SortQVector2Str(string[] x, int n, int from, int to, short bDesc, int[] index)
        {
            Room.Check("Cpp_SortQVector2Str", "x", x, (long)n, 1);
            Room.Check("Cpp_SortQVector2Str", "index", index, (long)n, 1);
            using (var xTexts = new Texts("Cpp_SortQVector2Str", "x", x))
            {
                int answer = Native.Cpp_SortQVector2Str(xTexts.Cells, n, from, to, bDesc, index);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>c(i, j) = a(i, j) + b(i, j). Missing cells are numbers here.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="b">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int Cpp_SumMat(double[] a, double[] b, int n, int p, double[] c)
        {
            Room.Check("Cpp_SumMat", "a", a, (long)n, (long)p);
            Room.Check("Cpp_SumMat", "b", b, (long)n, (long)p);
            Room.Check("Cpp_SumMat", "c", c, (long)n, (long)p);
            return Native.Cpp_SumMat(a, b, n, p, c);
        }

        /// <summary>Adds up everything that a labelled table holds: a check that a record crosses the boundary
        /// intact.</summary>
        /// <param name="record">in, a table of numbers, of which only the array of its columns is looked at</param>
        /// <returns>the sum over all columns, one after the other, with missing numbers taken as they are; 0.0 when
        /// the array is null or empty</returns>
        public static double Cpp_Test(ref ST_MVect record)
        {
            return Native.Cpp_Test(ref record);
        }

        /// <summary>Tries to allocate a tenth more than twenty tables of numbers take, and gives everything back.
        /// The bytes of each are truncated to 32 bits. A table with a count of 0 is passed over.</summary>
        /// <param name="rows1">in, one integer: rows of table 1</param>
        /// <param name="cols1">in, one integer: its columns</param>
        /// <param name="rows2">in, one integer: rows of table 2</param>
        /// <param name="cols2">in, one integer: its columns</param>
        /// <param name="rows3">in, one integer: rows of table 3</param>
        /// <param name="cols3">in, one integer: its columns</param>
        /// <param name="rows4">in, one integer: rows of table 4</param>
        /// <param name="cols4">in, one integer: its columns</param>
        /// <param name="rows5">in, one integer: rows of table 5</param>
        /// <param name="cols5">in, one integer: its columns</param>
        /// <param name="rows6">in, one integer: rows of table 6</param>
        /// <param name="cols6">in, one integer: its columns</param>
        /// <param name="rows7">in, one integer: rows of table 7</param>
        /// <param name="cols7">in, one integer: its columns</param>
        /// <param name="rows8">in, one integer: rows of table 8</param>
        /// <param name="cols8">in, one integer: its columns</param>
        /// <param name="rows9">in, one integer: rows of table 9</param>
        /// <param name="cols9">in, one integer: its columns</param>
        /// <param name="rows10">in, one integer: rows of table 10</param>
        /// <param name="cols10">in, one integer: its columns</param>
        /// <param name="rows11">in, one integer: rows of table 11</param>
        /// <param name="cols11">in, one integer: its columns</param>
        /// <param name="rows12">in, one integer: rows of table 12</param>
        /// <param name="cols12">in, one integer: its columns</param>
        /// <param name="rows13">in, one integer: rows of table 13</param>
        /// <param name="cols13">in, one integer: its columns</param>
        /// <param name="rows14">in, one integer: rows of table 14</param>
        /// <param name="cols14">in, one integer: its columns</param>
        /// <param name="rows15">in, one integer: rows of table 15</param>
        /// <param name="cols15">in, one integer: its columns</param>
        /// <param name="rows16">in, one integer: rows of table 16</param>
        /// <param name="cols16">in, one integer: its columns</param>
        /// <param name="rows17">in, one integer: rows of table 17</param>
        /// <param name="cols17">in, one integer: its columns</param>
        /// <param name="rows18">in, one integer: rows of table 18</param>
        /// <param name="cols18">in, one integer: its columns</param>
        /// <param name="rows19">in, one integer: rows of table 19</param>
        /// <param name="cols19">in, one integer: its columns</param>
        /// <param name="rows20">in, one integer: rows of table 20</param>
        /// <param name="cols20">in, one integer: its columns</param>
        /// <returns>-1 when all fit at the same time; otherwise the number of the first table that does not, from
        /// 1</returns>
        public static int Cpp_TestMemory(int rows1, int cols1, int rows2, int cols2, int rows3, int cols3, int rows4,
            int cols4, int rows5, int cols5, int rows6, int cols6, int rows7, int cols7, int rows8, int cols8,
            int rows9, int cols9, int rows10, int cols10, int rows11, int cols11, int rows12, int cols12, int rows13,
            int cols13, int rows14, int cols14, int rows15, int cols15, int rows16, int cols16, int rows17, int cols17,
            int rows18, int cols18, int rows19, int cols19, int rows20, int cols20)
        {
            return Native.Cpp_TestMemory(ref rows1, ref cols1, ref rows2, ref cols2, ref rows3, ref cols3, ref rows4, ref cols4, ref rows5, ref cols5, ref rows6, ref cols6, ref rows7, ref cols7, ref rows8, ref cols8, ref rows9, ref cols9, ref rows10, ref cols10, ref rows11, ref cols11, ref rows12, ref cols12, ref rows13, ref cols13, ref rows14, ref cols14, ref rows15, ref cols15, ref rows16, ref cols16, ref rows17, ref cols17, ref rows18, ref cols18, ref rows19, ref cols19, ref rows20, ref cols20);
        }

        /// <summary>The bounds of a triangular distribution with a given mode, whose distribution function is p1 at
        /// q1 and p2 at q2. With the mode between the quantiles they come from at most 501 steps of Newton's
        /// method; nothing tells when those were not enough.</summary>
        /// <param name="q1">the lower quantile</param>
        /// <param name="mode">the mode</param>
        /// <param name="q2">the upper quantile</param>
        /// <param name="p1">probability up to q1</param>
        /// <param name="p2">probability up to q2</param>
        /// <param name="a">out, one number: the lower bound</param>
        /// <param name="b">out, one number: the upper bound</param>
        /// <returns>0</returns>
        public static int Cpp_TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, out double a,
            out double b)
        {
            return Native.Cpp_TriangularQFindAB(q1, mode, q2, p1, p2, out a, out b);
        }

        /// <summary>Puts a table of numbers below a chunked one.</summary>
        /// <param name="a">in, host array of colsA records, each with a numeric column of rowsA numbers</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns of the first table</param>
        /// <param name="b">in, rowsB by colsB numbers</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <param name="out">out, rowsA + rowsB by max(colsA, colsB) numbers</param>
        /// <returns>0</returns>
        public static int Cpp_VMergeTablesDblSPV(HostArray a, int rowsA, int colsA, double[] b, int rowsB, int colsB,
            double[] @out)
        {
            Room.Check("Cpp_VMergeTablesDblSPV", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            Room.Check("Cpp_VMergeTablesDblSPV", "out", @out, (long)rowsA + (long)rowsB, Math.Max((long)colsA, (colsB == 0 ? 1L : colsB)));
            return Native.Cpp_VMergeTablesDblSPV(HostArray.Of(a), rowsA, colsA, b, rowsB, colsB, @out);
        }

        /// <summary>The step of numbers, whose differences must all be within 1e-8 of the first, or of dates, which
        /// must agree in days and months.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="kind">2: dates, as days since 30 December 1899; otherwise numbers</param>
        /// <param name="d">out, one number: the first difference; the missing number when the steps differ or there
        /// is none</param>
        /// <returns>0</returns>
        public static int Cpp_V_CheckDateInterval(double[] x, int n, int kind, out double d)
        {
            Room.Check("Cpp_V_CheckDateInterval", "x", x, (long)n, 1);
            return Native.Cpp_V_CheckDateInterval(x, n, kind, out d);
        }

        /// <summary>Moves the numbers above the missing one to the front, in their order. A NaN is not above. What
        /// stands behind them stays.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="m">out, one integer: how many they are</param>
        /// <returns>0</returns>
        public static int Cpp_V_CleanVectDbl2(double[] x, int n, out int m)
        {
            Room.Check("Cpp_V_CleanVectDbl2", "x", x, (long)n, 1);
            return Native.Cpp_V_CleanVectDbl2(x, n, out m);
        }

        /// <summary>The same, with weights moved along.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">inout, n weights</param>
        /// <param name="m">out, one integer: how many they are</param>
        /// <returns>0</returns>
        public static int Cpp_V_CleanVectDblW2(double[] x, int n, double[] w, out int m)
        {
            Room.Check("Cpp_V_CleanVectDblW2", "x", x, (long)n, 1);
            Room.Check("Cpp_V_CleanVectDblW2", "w", w, (long)n, 1);
            return Native.Cpp_V_CleanVectDblW2(x, n, w, out m);
        }

        /// <summary>Makes a vector of two values one of 0 and 1, the smaller value becoming 0. The first value is
        /// the first number that is neither missing nor a NaN; the second one is the next that differs from it, or
        /// 0 when there is none. Other numbers stay. Nothing happens when the first value is the last
        /// element.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int Cpp_V_ConvertBinaryTo01Dbl(double[] x, int n)
        {
            Room.Check("Cpp_V_ConvertBinaryTo01Dbl", "x", x, (long)n, 1);
            return Native.Cpp_V_ConvertBinaryTo01Dbl(x, n);
        }

        /// <summary>Copies numbers to integers, without their fraction. What no integer can hold becomes
        /// -2147483648.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">out, n integers</param>
        /// <returns>0</returns>
        public static int Cpp_V_CopyDoubleToLong(double[] x, int n, int[] y)
        {
            Room.Check("Cpp_V_CopyDoubleToLong", "x", x, (long)n, 1);
            Room.Check("Cpp_V_CopyDoubleToLong", "y", y, (long)n, 1);
            return Native.Cpp_V_CopyDoubleToLong(x, n, y);
        }

        /// <summary>Copies integers to numbers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">out, n numbers</param>
        /// <returns>0</returns>
        public static int Cpp_V_CopyLongToDouble(int[] x, int n, double[] y)
        {
            Room.Check("Cpp_V_CopyLongToDouble", "x", x, (long)n, 1);
            Room.Check("Cpp_V_CopyLongToDouble", "y", y, (long)n, 1);
            return Native.Cpp_V_CopyLongToDouble(x, n, y);
        }

        /// <summary>Weighted correlation of two vectors, over the elements of which the weight is greater than 0
        /// and both values are greater than the missing value, so that a NaN is not kept.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">in, n numbers</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the correlation; missing unless the product of the two sums of squares is greater than
        /// 0</returns>
        public static double Cpp_V_Correl2W(double[] x, int n, double[] y, double[] w)
        {
            Room.Check("Cpp_V_Correl2W", "x", x, (long)n, 1);
            Room.Check("Cpp_V_Correl2W", "y", y, (long)n, 1);
            Room.Check("Cpp_V_Correl2W", "w", w, (long)n, 1);
            return Native.Cpp_V_Correl2W(x, n, y, w);
        }

        /// <summary>Running sum over all elements, missing ones too.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements; below 1 nothing is written</param>
        /// <param name="out">out, n numbers: the first element, and then the one before plus x[i]. May be x
        /// itself</param>
        /// <returns>0</returns>
        public static int Cpp_V_CuSum(double[] x, int n, double[] @out)
        {
            Room.Check("Cpp_V_CuSum", "x", x, (long)n, 1);
            Room.Check("Cpp_V_CuSum", "out", @out, (long)n, 1);
            return Native.Cpp_V_CuSum(x, n, @out);
        }

        /// <summary>Squared distance of the tails of two vectors, over all elements, missing ones too.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">last position, from 1</param>
        /// <param name="y">in, n numbers</param>
        /// <param name="start">first position, from 1</param>
        /// <returns>the sum of the squares of the differences; 0.0 when `start` is above n</returns>
        public static double Cpp_V_DiffSqStart(double[] x, int n, double[] y, int start)
        {
            Room.Check("Cpp_V_DiffSqStart", "x", x, (long)n, 1);
            Room.Check("Cpp_V_DiffSqStart", "y", y, (long)n, 1);
            return Native.Cpp_V_DiffSqStart(x, n, y, start);
        }

        /// <summary>Copies a range of rows of a column of flags to a place in a table.</summary>
        /// <param name="x">in, rows by cols flags; cells outside of them read as 0</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols flags; may be x</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int Cpp_V_DuplicateBool(short[] x, int rows, int cols, int col, int from, int to, short[] y,
            int yRows, int yCols, int row, int yCol)
        {
            Room.Check("Cpp_V_DuplicateBool", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("Cpp_V_DuplicateBool", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.Cpp_V_DuplicateBool(x, rows, cols, col, from, to, y, yRows, yCols, row, yCol);
        }

        /// <summary>Copies a range of rows of a column of numbers to a place in a table, both host arrays that come
        /// out of a record.</summary>
        /// <param name="x">in, host array of Double; cells outside of it read as -1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, host array of Double; may be x. What would fall outside is left out</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int Cpp_V_DuplicateDbl_ST(HostArray x, int col, int from, int to, HostArray y, int row, int yCol)
        {
            return Native.Cpp_V_DuplicateDbl_ST(HostArray.Of(x), col, from, to, HostArray.Of(y), row, yCol);
        }

        /// <summary>Copies a range of rows of a column of integers to a place in a table, both host arrays that
        /// come out of a record.</summary>
        /// <param name="x">in, host array of Long; cells outside of it read as -1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, host array of Long; may be x. What would fall outside is left out</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int Cpp_V_DuplicateLng_ST(HostArray x, int col, int from, int to, HostArray y, int row, int yCol)
        {
            return Native.Cpp_V_DuplicateLng_ST(HostArray.Of(x), col, from, to, HostArray.Of(y), row, yCol);
        }

        /// <summary>Copies a range of rows of a column of texts to a place in a table, both host arrays that come
        /// out of a record.</summary>
        /// <param name="x">in, host array of String; cells outside of it read as the empty text</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, host array of String; may be x. What would fall outside is left out</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int Cpp_V_DuplicateStr_ST(HostArray x, int col, int from, int to, HostArray y, int row, int yCol)
        {
            return Native.Cpp_V_DuplicateStr_ST(HostArray.Of(x), col, from, to, HostArray.Of(y), row, yCol);
        }

        /// <summary>Whether an integer occurs.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">the integer to find</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short Cpp_V_FindLng(int[] x, int n, int val)
        {
            Room.Check("Cpp_V_FindLng", "x", x, (long)n, 1);
            return Native.Cpp_V_FindLng(x, n, val);
        }

        /// <summary>Whether a text occurs.</summary>
        /// <param name="x">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">in, one text, to be found</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short Cpp_V_FindStr(string[] x, int n, string val)
        {
            Room.Check("Cpp_V_FindStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("Cpp_V_FindStr", "x", x))
            using (var valTexts = new Texts("Cpp_V_FindStr", "val", new[] { val }))
                return Native.Cpp_V_FindStr(xTexts.Cells, n, valTexts.Cells[0]);
        }

        /// <summary>Geometric mean and geometric standard deviation. The variance of the logarithms is divided by
        /// the sum of the weights less the mean weight. An element of weight 0 counts in the mean weight and
        /// nowhere else.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="gmean">out, one number: the geometric mean</param>
        /// <param name="gsd">out, one number: the geometric standard deviation: missing when the denominator is
        /// exactly 0, 0.0 when the variance of the logarithms is negative</param>
        /// <returns>0. Both results are missing when no element is kept or one that is kept is not greater than
        /// 0</returns>
        public static int Cpp_V_GMeanGSD(double[] x, int n, short[] iMissing, double[] w, out double gmean,
            out double gsd)
        {
            Room.Check("Cpp_V_GMeanGSD", "x", x, (long)n, 1);
            Room.Check("Cpp_V_GMeanGSD", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_V_GMeanGSD", "w", w, (long)n, 1);
            return Native.Cpp_V_GMeanGSD(x, n, iMissing, w, out gmean, out gsd);
        }

        /// <summary>Solves a * x = b on a labelled table and a labelled column, and inverts a. No column is
        /// resized: an element past the end of a column reads as -1 and is not stored.</summary>
        /// <param name="a">inout, labelled table of numbers, n by n; becomes its inverse</param>
        /// <param name="n">rows and columns of a; below 1 nothing is done</param>
        /// <param name="b">inout, labelled column of n numbers; becomes the solution x</param>
        /// <returns>0, or -2 at a pivot that is exactly 0: both are then as the steps before have left
        /// them</returns>
        public static int Cpp_V_Gauss_ST(ref ST_MVect a, int n, ref ST_Vect b)
        {
            return Native.Cpp_V_Gauss_ST(ref a, n, ref b);
        }

        /// <summary>Weighted harmonic mean: the sum of w[i] over the sum of w[i] / x[i].</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <returns>the mean; missing when n is below 1, when an element kept is 0, and when the quotients sum to
        /// exactly 0</returns>
        public static double Cpp_V_HarmonicMean(double[] x, int n, short[] iMissing, double[] w)
        {
            Room.Check("Cpp_V_HarmonicMean", "x", x, (long)n, 1);
            Room.Check("Cpp_V_HarmonicMean", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_V_HarmonicMean", "w", w, (long)n, 1);
            return Native.Cpp_V_HarmonicMean(x, n, iMissing, w);
        }

        /// <summary>Puts a value into an ascending vector and lets the smallest fall out, unless the value is not
        /// above it.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">the value</param>
        /// <param name="bSort">-1: the vector is sorted first; otherwise it is taken to be sorted</param>
        /// <returns>0</returns>
        public static int Cpp_V_InsertValueLow(double[] x, int n, double val, short bSort)
        {
            Room.Check("Cpp_V_InsertValueLow", "x", x, (long)n, 1);
            return Native.Cpp_V_InsertValueLow(x, n, val, bSort);
        }

        /// <summary>Puts a value into an ascending vector and lets the largest fall out, unless the value is not
        /// below it.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">the value</param>
        /// <param name="bSort">-1: the vector is sorted first; otherwise it is taken to be sorted</param>
        /// <returns>0</returns>
        public static int Cpp_V_InsertValueUp(double[] x, int n, double val, short bSort)
        {
            Room.Check("Cpp_V_InsertValueUp", "x", x, (long)n, 1);
            return Native.Cpp_V_InsertValueUp(x, n, val, bSort);
        }

        /// <summary>Whether a vector has at most two different values.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="skipMissing">-1: missing numbers are passed over, and at the start a NaN too; otherwise
        /// they make the result false</param>
        /// <returns>-1 when there are at least two elements from the first that is kept on, and they have at most
        /// two values; -1 for n below 1 unless missing numbers are passed over; otherwise 0</returns>
        public static short Cpp_V_IsBinaryDbl(double[] x, int n, short skipMissing)
        {
            Room.Check("Cpp_V_IsBinaryDbl", "x", x, (long)n, 1);
            return Native.Cpp_V_IsBinaryDbl(x, n, skipMissing);
        }

        /// <summary>Whether each element of a vector is one of two values.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="a">a value</param>
        /// <param name="b">another value</param>
        /// <param name="skipMissing">-1: missing numbers are passed over, and at the start a NaN too</param>
        /// <returns>-1 when there are at least two elements from the first that is kept on, and each is one of the
        /// values; -1 for n below 1 unless missing numbers are passed over; otherwise 0</returns>
        public static short Cpp_V_IsBinaryDblXY(double[] x, int n, double a, double b, short skipMissing)
        {
            Room.Check("Cpp_V_IsBinaryDblXY", "x", x, (long)n, 1);
            return Native.Cpp_V_IsBinaryDblXY(x, n, a, b, skipMissing);
        }

        /// <summary>The same, which also looks for weights that are all 1.</summary>
        /// <param name="x">in, host array of Double</param>
        /// <param name="n">number of elements</param>
        /// <param name="bAll1">out, one flag: -1 when every number that is not missing is exactly 1, otherwise
        /// 0</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short Cpp_V_IsWeightsAndAll1_ST(HostArray x, int n, out short bAll1)
        {
            return Native.Cpp_V_IsWeightsAndAll1_ST(HostArray.Of(x), n, out bAll1);
        }

        /// <summary>The same for a host array.</summary>
        /// <param name="x">in, host array of Double</param>
        /// <param name="n">number of elements</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short Cpp_V_IsWeights_ST(HostArray x, int n)
        {
            return Native.Cpp_V_IsWeights_ST(HostArray.Of(x), n);
        }

        /// <summary>The largest integer of a host array.</summary>
        /// <param name="sa">in, host array of Long</param>
        /// <param name="n">number of elements to read; one that the array does not have reads as -1</param>
        /// <returns>the element as a number; the missing number when n is below 1</returns>
        public static double Cpp_V_Max2Lng_ST(HostArray sa, int n)
        {
            return Native.Cpp_V_Max2Lng_ST(HostArray.Of(sa), n);
        }

        /// <summary>The largest element of a host array that is not missing.</summary>
        /// <param name="sa">in, host array of Double</param>
        /// <param name="n">number of elements to read; one that the array does not have reads as -1</param>
        /// <returns>the element; missing when there is none</returns>
        public static double Cpp_V_Max2_ST(HostArray sa, int n)
        {
            return Native.Cpp_V_Max2_ST(HostArray.Of(sa), n);
        }

        /// <summary>Weighted mean of the absolute deviations from a centre.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="centre">the centre</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the mean over the elements kept that are not missing; missing when their weights sum to
        /// 0</returns>
        public static double Cpp_V_MeanAbsDev(double[] x, int n, double centre, short[] iMissing, double[] w)
        {
            Room.Check("Cpp_V_MeanAbsDev", "x", x, (long)n, 1);
            Room.Check("Cpp_V_MeanAbsDev", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_V_MeanAbsDev", "w", w, (long)n, 1);
            return Native.Cpp_V_MeanAbsDev(x, n, centre, iMissing, w);
        }

        /// <summary>Mean and standard deviation of the elements greater than the missing number, all of weight 1; a
        /// NaN is left out as well.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bUnbiased">-1: divided by the number kept less 1, otherwise by the number kept</param>
        /// <param name="mean">out, one number: the mean; 0.0 when nothing is kept</param>
        /// <param name="sd">out, one number: the standard deviation; a NaN with one element and unbiased; without
        /// elements a NaN, or -0.0 when unbiased</param>
        /// <returns>0</returns>
        public static int Cpp_V_MeanStdev2(double[] x, int n, short bUnbiased, out double mean, out double sd)
        {
            Room.Check("Cpp_V_MeanStdev2", "x", x, (long)n, 1);
            return Native.Cpp_V_MeanStdev2(x, n, bUnbiased, out mean, out sd);
        }

        /// <summary>Weighted mean and variance of the elements that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="mean">out, one number: the mean; 0.0 when there is no such element</param>
        /// <param name="var">out, one number: the variance: missing unless the denominator is greater than
        /// 0</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int Cpp_V_MeanVarW2(double[] x, int n, double[] w, out double mean, out double var,
            short bUnbiased, short bFreq)
        {
            Room.Check("Cpp_V_MeanVarW2", "x", x, (long)n, 1);
            Room.Check("Cpp_V_MeanVarW2", "w", w, (long)n, 1);
            return Native.Cpp_V_MeanVarW2(x, n, w, out mean, out var, bUnbiased, bFreq);
        }

        /// <summary>Weighted mean of the elements that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <returns>the sum of w[i] * x[i] over the sum of w[i]; missing when n is below 1, and unless the sum of
        /// the weights is greater than 0</returns>
        public static double Cpp_V_MeanW2(double[] x, int n, double[] w)
        {
            Room.Check("Cpp_V_MeanW2", "x", x, (long)n, 1);
            Room.Check("Cpp_V_MeanW2", "w", w, (long)n, 1);
            return Native.Cpp_V_MeanW2(x, n, w);
        }

        /// <summary>Median of the absolute deviations from a centre; weighted unless the weights are
        /// constant.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="centre">the centre</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the median over the elements kept that are not missing; missing when there are none</returns>
        public static double Cpp_V_MedianAbsDev(double[] x, int n, double centre, short[] iMissing, double[] w)
        {
            Room.Check("Cpp_V_MedianAbsDev", "x", x, (long)n, 1);
            Room.Check("Cpp_V_MedianAbsDev", "iMissing", iMissing, (long)n, 1);
            Room.Check("Cpp_V_MedianAbsDev", "w", w, (long)n, 1);
            return Native.Cpp_V_MedianAbsDev(x, n, centre, iMissing, w);
        }

        /// <summary>Median of the absolute deviations from a centre, missing elements taking part as the smallest
        /// numbers.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="centre">inout, one number: the centre; when missing, it becomes the median of x</param>
        /// <returns>the median; missing for n below 1</returns>
        public static double Cpp_V_MedianAbsDev2(double[] x, int n, ref double centre)
        {
            Room.Check("Cpp_V_MedianAbsDev2", "x", x, (long)n, 1);
            return Native.Cpp_V_MedianAbsDev2(x, n, ref centre);
        }

        /// <summary>Joins two vectors of labels.</summary>
        /// <param name="a">in, n texts</param>
        /// <param name="n">number of labels</param>
        /// <param name="b">in, n texts</param>
        /// <param name="sep">in, one text: what stands between them</param>
        /// <param name="out">inout, n texts, replaced where they differ; it may be a or b</param>
        /// <returns>0</returns>
        public static int Cpp_V_MergeVectorsStr(string[] a, int n, string[] b, string sep, string[] @out)
        {
            Room.Check("Cpp_V_MergeVectorsStr", "a", a, (long)n, 1);
            Room.Check("Cpp_V_MergeVectorsStr", "b", b, (long)n, 1);
            Room.Check("Cpp_V_MergeVectorsStr", "out", @out, (long)n, 1);
            using (var aTexts = new Texts("Cpp_V_MergeVectorsStr", "a", a))
            using (var bTexts = new Texts("Cpp_V_MergeVectorsStr", "b", b))
            using (var sepTexts = new Texts("Cpp_V_MergeVectorsStr", "sep", new[] { sep }))
            using (var outTexts = new Texts("Cpp_V_MergeVectorsStr", "out", @out))
            {
                int answer = Native.Cpp_V_MergeVectorsStr(aTexts.Cells, n, bTexts.Cells, sepTexts.Cells[0], outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>The smallest element of a record of labelled columns that is not missing.</summary>
        /// <param name="record">in, the record</param>
        /// <param name="nRows">rows to look at; below 1 there is nothing</param>
        /// <param name="nCols">columns to look at</param>
        /// <returns>the element; missing when there is none, or when it is 1.79769313486231e308 or above</returns>
        public static double Cpp_V_Min3(ref ST_MVect record, int nRows, int nCols)
        {
            return Native.Cpp_V_Min3(ref record, nRows, nCols);
        }

        /// <summary>The smallest number that is not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the smallest number; the missing one when there is none</returns>
        public static double Cpp_V_MinIgnoreMissing(double[] x, int n)
        {
            Room.Check("Cpp_V_MinIgnoreMissing", "x", x, (long)n, 1);
            return Native.Cpp_V_MinIgnoreMissing(x, n);
        }

        /// <summary>The label with the greatest sum of weights, the first in the order of code units of equals.
        /// Empty labels are not counted.</summary>
        /// <param name="labels">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="mode">inout, one text, replaced by the label, empty when there is none</param>
        /// <returns>0</returns>
        public static int Cpp_V_ModeW2(string[] labels, int n, double[] w, string[] mode)
        {
            Room.Check("Cpp_V_ModeW2", "labels", labels, (long)n, 1);
            Room.Check("Cpp_V_ModeW2", "w", w, (long)n, 1);
            Room.Check("Cpp_V_ModeW2", "mode", mode, 1, 1);
            using (var labelsTexts = new Texts("Cpp_V_ModeW2", "labels", labels))
            using (var modeTexts = new Texts("Cpp_V_ModeW2", "mode", mode))
            {
                int answer = Native.Cpp_V_ModeW2(labelsTexts.Cells, n, w, modeTexts.Cells);
                modeTexts.CopyTo(mode);
                return answer;
            }
        }

        /// <summary>Number of distinct texts, compared exactly. The empty text is one.</summary>
        /// <param name="x">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <returns>the number; 1 for n below 1</returns>
        public static int Cpp_V_NbDistinctStr(string[] x, int n)
        {
            Room.Check("Cpp_V_NbDistinctStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("Cpp_V_NbDistinctStr", "x", x))
                return Native.Cpp_V_NbDistinctStr(xTexts.Cells, n);
        }

        /// <summary>The same for a host array.</summary>
        /// <param name="x">in, host array of Boolean</param>
        /// <param name="n">number of flags</param>
        /// <returns>the count</returns>
        public static int Cpp_V_NbTrue_ST(HostArray x, int n)
        {
            return Native.Cpp_V_NbTrue_ST(HostArray.Of(x), n);
        }

        /// <summary>Keeps the elements of three series where the first two are both above `KORVEL_MISSING_DBL`; a
        /// NaN is not.</summary>
        /// <param name="x">in, n numbers, the first series</param>
        /// <param name="y">in, n numbers, the second series</param>
        /// <param name="z">in, n numbers that go with them</param>
        /// <param name="n">length of the series</param>
        /// <param name="xOut">inout, n + 1 numbers: the kept elements of x, from the second place on. The first
        /// place, and those behind the kept elements, stay as they are</param>
        /// <param name="yOut">inout, n + 1 numbers: likewise for y</param>
        /// <param name="zOut">inout, n + 1 numbers: likewise for z</param>
        /// <param name="count">out, one integer: how many elements are kept</param>
        /// <returns>0</returns>
        public static int Cpp_V_PairwiseDeletion(double[] x, double[] y, double[] z, int n, double[] xOut,
            double[] yOut, double[] zOut, out int count)
        {
            Room.Check("Cpp_V_PairwiseDeletion", "x", x, (long)n, 1);
            Room.Check("Cpp_V_PairwiseDeletion", "y", y, (long)n, 1);
            Room.Check("Cpp_V_PairwiseDeletion", "z", z, (long)n, 1);
            Room.Check("Cpp_V_PairwiseDeletion", "xOut", xOut, (long)n + 1, 1);
            Room.Check("Cpp_V_PairwiseDeletion", "yOut", yOut, (long)n + 1, 1);
            Room.Check("Cpp_V_PairwiseDeletion", "zOut", zOut, (long)n + 1, 1);
            return Native.Cpp_V_PairwiseDeletion(x, y, z, n, xOut, yOut, zOut, out count);
        }

        /// <summary>Weighted quantile of the elements of positive weight that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="q">probability, not tested: a position outside the data reads -1</param>
        /// <returns>the quantile; missing when there are none</returns>
        public static double Cpp_V_QuantileW2(double[] x, int n, double[] w, double q)
        {
            Room.Check("Cpp_V_QuantileW2", "x", x, (long)n, 1);
            Room.Check("Cpp_V_QuantileW2", "w", w, (long)n, 1);
            return Native.Cpp_V_QuantileW2(x, n, w, q);
        }

        /// <summary>Sorts a vector, ascending, and takes its quantiles at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6,
        /// 0.7, 0.75, 0.8, 0.9 and 0.95, at position (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above it,
        /// from 1.</summary>
        /// <param name="x">inout, n numbers, sorted in place</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, 13 numbers; all missing for n below 1</param>
        /// <returns>0</returns>
        public static int Cpp_V_Quantiles13(double[] x, int n, double[] @out)
        {
            Room.Check("Cpp_V_Quantiles13", "x", x, (long)n, 1);
            Room.Check("Cpp_V_Quantiles13", "out", @out, 13, 1);
            return Native.Cpp_V_Quantiles13(x, n, @out);
        }

        /// <summary>1 for each element that is the given text, 0 for all others.</summary>
        /// <param name="column">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">in, one text; it may be empty</param>
        /// <param name="result">out, n numbers</param>
        /// <returns>0</returns>
        public static int Cpp_V_RecodeToBinary(string[] column, int n, string value, double[] result)
        {
            Room.Check("Cpp_V_RecodeToBinary", "column", column, (long)n, 1);
            Room.Check("Cpp_V_RecodeToBinary", "result", result, (long)n, 1);
            using (var columnTexts = new Texts("Cpp_V_RecodeToBinary", "column", column))
            using (var valueTexts = new Texts("Cpp_V_RecodeToBinary", "value", new[] { value }))
                return Native.Cpp_V_RecodeToBinary(columnTexts.Cells, n, valueTexts.Cells[0], result);
        }

        /// <summary>A vector of flags back to front, in place.</summary>
        /// <param name="x">inout, n flags</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int Cpp_V_Reverse2Bool(short[] x, int n)
        {
            Room.Check("Cpp_V_Reverse2Bool", "x", x, (long)n, 1);
            return Native.Cpp_V_Reverse2Bool(x, n);
        }

        /// <summary>A vector of numbers back to front, in place.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int Cpp_V_Reverse2Dbl(double[] x, int n)
        {
            Room.Check("Cpp_V_Reverse2Dbl", "x", x, (long)n, 1);
            return Native.Cpp_V_Reverse2Dbl(x, n);
        }

        /// <summary>A vector of integers back to front, in place.</summary>
        /// <param name="x">inout, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int Cpp_V_Reverse2Lng(int[] x, int n)
        {
            Room.Check("Cpp_V_Reverse2Lng", "x", x, (long)n, 1);
            return Native.Cpp_V_Reverse2Lng(x, n);
        }

        /// <summary>Sets the elements of a host array to one integer. The array keeps its size.</summary>
        /// <param name="x">inout, host array of Long</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the value</param>
        /// <returns>0</returns>
        public static int Cpp_V_SetToValueLng_ST(HostArray x, int n, int value)
        {
            return Native.Cpp_V_SetToValueLng_ST(HostArray.Of(x), n, value);
        }

        /// <summary>Sets the elements of a host array to one number. The array keeps its size.</summary>
        /// <param name="x">inout, host array of Double</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the value</param>
        /// <returns>0</returns>
        public static int Cpp_V_SetToValue_ST(HostArray x, int n, double value)
        {
            return Native.Cpp_V_SetToValue_ST(HostArray.Of(x), n, value);
        }

        /// <summary>Shuffles a vector of numbers.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_V_Shuffle(double[] x, int n, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("Cpp_V_Shuffle", "x", x, (long)n, 1);
            return Native.Cpp_V_Shuffle(x, n, ref seed, flag, out nextSeed);
        }

        /// <summary>Shuffles a vector of integers.</summary>
        /// <param name="x">inout, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int Cpp_V_ShuffleLng(int[] x, int n, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("Cpp_V_ShuffleLng", "x", x, (long)n, 1);
            return Native.Cpp_V_ShuffleLng(x, n, ref seed, flag, out nextSeed);
        }

        /// <summary>Sum of the elements of a host array that are not missing.</summary>
        /// <param name="sa">in, host array of Double</param>
        /// <param name="n">number of elements to read; one that the array does not have reads as -1</param>
        /// <returns>the sum; 0.0 when there are none</returns>
        public static double Cpp_V_Sum2Dbl_ST(HostArray sa, int n)
        {
            return Native.Cpp_V_Sum2Dbl_ST(HostArray.Of(sa), n);
        }

        /// <summary>Sum of the integers of a host array in 32-bit arithmetic that wraps around. No integer is
        /// missing here.</summary>
        /// <param name="sa">in, host array of Long</param>
        /// <param name="n">number of elements to read; one that the array does not have reads as -1</param>
        /// <returns>the wrapped sum as a number; 0.0 when n is below 1</returns>
        public static double Cpp_V_Sum2Lng_ST(HostArray sa, int n)
        {
            return Native.Cpp_V_Sum2Lng_ST(HostArray.Of(sa), n);
        }

        /// <summary>Sum of x[i] * w[i] over all elements: a missing value or weight multiplies through.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the sum; 0.0 when n is below 1</returns>
        public static double Cpp_V_SumW(double[] x, int n, double[] w)
        {
            Room.Check("Cpp_V_SumW", "x", x, (long)n, 1);
            Room.Check("Cpp_V_SumW", "w", w, (long)n, 1);
            return Native.Cpp_V_SumW(x, n, w);
        }

        /// <summary>Exchanges two vectors of numbers.</summary>
        /// <param name="a">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="b">inout, n numbers</param>
        /// <returns>0</returns>
        public static int Cpp_V_SwapDbl(double[] a, int n, double[] b)
        {
            Room.Check("Cpp_V_SwapDbl", "a", a, (long)n, 1);
            Room.Check("Cpp_V_SwapDbl", "b", b, (long)n, 1);
            return Native.Cpp_V_SwapDbl(a, n, b);
        }

        /// <summary>Exchanges two vectors of texts.</summary>
        /// <param name="a">inout, n texts, replaced where they differ</param>
        /// <param name="n">number of elements</param>
        /// <param name="b">inout, n texts, replaced where they differ</param>
        /// <returns>0</returns>
        public static int Cpp_V_SwapStr(string[] a, int n, string[] b)
        {
            Room.Check("Cpp_V_SwapStr", "a", a, (long)n, 1);
            Room.Check("Cpp_V_SwapStr", "b", b, (long)n, 1);
            using (var aTexts = new Texts("Cpp_V_SwapStr", "a", a))
            using (var bTexts = new Texts("Cpp_V_SwapStr", "b", b))
            {
                int answer = Native.Cpp_V_SwapStr(aTexts.Cells, n, bTexts.Cells);
                aTexts.CopyTo(a);
                bTexts.CopyTo(b);
                return answer;
            }
        }

        /// <summary>Weights of the highest and lowest distinct scores, cumulative over one, two and three levels.
        /// Scores within 1e-12 of the first one met of a level belong to that level.</summary>
        /// <param name="x">in, n scores</param>
        /// <param name="n">number of scores; below 1 all boxes are 0</param>
        /// <param name="w">in, n weights</param>
        /// <param name="top1">out, one number: weight of the highest level</param>
        /// <param name="bottom1">out, one number: weight of the lowest level</param>
        /// <param name="top2">out, one number: weight of the highest two levels</param>
        /// <param name="bottom2">out, one number: weight of the lowest two levels</param>
        /// <param name="top3">out, one number: weight of the highest three levels</param>
        /// <param name="bottom3">out, one number: weight of the lowest three levels</param>
        /// <returns>0</returns>
        public static int Cpp_V_TopBottom3Box(double[] x, int n, double[] w, out double top1, out double bottom1,
            out double top2, out double bottom2, out double top3, out double bottom3)
        {
            Room.Check("Cpp_V_TopBottom3Box", "x", x, (long)n, 1);
            Room.Check("Cpp_V_TopBottom3Box", "w", w, (long)n, 1);
            return Native.Cpp_V_TopBottom3Box(x, n, w, out top1, out bottom1, out top2, out bottom2, out top3, out bottom3);
        }

        /// <summary>The boxes of one group: only elements whose group value is within 1e-12 of groupValue add their
        /// weight. The weight that counts at a sorted position is the one that stood at that position before the
        /// sort, so weights should be constant.</summary>
        /// <param name="x">in, n scores</param>
        /// <param name="n">number of scores; below 1 all boxes are 0</param>
        /// <param name="w">inout, n weights, moved into the order of the scores</param>
        /// <param name="group">in, n group values</param>
        /// <param name="groupValue">the group to count</param>
        /// <param name="top1">out, one number: weight of the highest level</param>
        /// <param name="bottom1">out, one number: weight of the lowest level</param>
        /// <param name="top2">out, one number: weight of the highest two levels</param>
        /// <param name="bottom2">out, one number: weight of the lowest two levels</param>
        /// <param name="top3">out, one number: weight of the highest three levels</param>
        /// <param name="bottom3">out, one number: weight of the lowest three levels</param>
        /// <returns>0</returns>
        public static int Cpp_V_TopBottom3BoxConditional(double[] x, int n, double[] w, double[] group,
            double groupValue, out double top1, out double bottom1, out double top2, out double bottom2,
            out double top3, out double bottom3)
        {
            Room.Check("Cpp_V_TopBottom3BoxConditional", "x", x, (long)n, 1);
            Room.Check("Cpp_V_TopBottom3BoxConditional", "w", w, (long)n, 1);
            Room.Check("Cpp_V_TopBottom3BoxConditional", "group", group, (long)n, 1);
            return Native.Cpp_V_TopBottom3BoxConditional(x, n, w, group, groupValue, out top1, out bottom1, out top2, out bottom2, out top3, out bottom3);
        }

        /// <summary>Strips spaces (U+0020) from the ends of texts.</summary>
        /// <param name="labels">in, n texts</param>
        /// <param name="n">number of texts</param>
        /// <param name="bLeft">-1: at the left end</param>
        /// <param name="bRight">-1: at the right end</param>
        /// <param name="out">inout, n texts, replaced where they differ; may be labels</param>
        /// <returns>0</returns>
        public static int Cpp_V_Trim(string[] labels, int n, short bLeft, short bRight, string[] @out)
        {
            Room.Check("Cpp_V_Trim", "labels", labels, (long)n, 1);
            Room.Check("Cpp_V_Trim", "out", @out, (long)n, 1);
            using (var labelsTexts = new Texts("Cpp_V_Trim", "labels", labels))
            using (var outTexts = new Texts("Cpp_V_Trim", "out", @out))
            {
                int answer = Native.Cpp_V_Trim(labelsTexts.Cells, n, bLeft, bRight, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Strips spaces (U+0020) from the ends of texts, in place.</summary>
        /// <param name="labels">inout, n texts</param>
        /// <param name="n">number of texts</param>
        /// <param name="bLeft">-1: at the left end</param>
        /// <param name="bRight">-1: at the right end</param>
        /// <returns>0</returns>
        public static int Cpp_V_Trim2(string[] labels, int n, short bLeft, short bRight)
        {
            Room.Check("Cpp_V_Trim2", "labels", labels, (long)n, 1);
            using (var labelsTexts = new Texts("Cpp_V_Trim2", "labels", labels))
            {
                int answer = Native.Cpp_V_Trim2(labelsTexts.Cells, n, bLeft, bRight);
                labelsTexts.CopyTo(labels);
                return answer;
            }
        }

        /// <summary>Variance of the elements that are not missing, all of weight 1: VB_V_Var with no flag
        /// set.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>as for VB_V_Var</returns>
        public static double Cpp_V_Var2(double[] x, int n, short bUnbiased, short bFreq)
        {
            Room.Check("Cpp_V_Var2", "x", x, (long)n, 1);
            return Native.Cpp_V_Var2(x, n, bUnbiased, bFreq);
        }

        /// <summary>Variance of a group. Only the value is tested for missing: the missing code is one like the
        /// others.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="val">code of the group</param>
        /// <param name="bUnbiased">-1: divided by the number of rows less 1; otherwise by their number</param>
        /// <returns>the variance; the missing number unless the divisor is greater than 0</returns>
        public static double Cpp_V_VarIf(double[] y, int n, double[] g, double val, short bUnbiased)
        {
            Room.Check("Cpp_V_VarIf", "y", y, (long)n, 1);
            Room.Check("Cpp_V_VarIf", "g", g, (long)n, 1);
            return Native.Cpp_V_VarIf(y, n, g, val, bUnbiased);
        }

        /// <summary>Weighted variance of the rows whose code is above 1e-12, with a step of its own. A NaN among
        /// the values is left out.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="w">in, n weights</param>
        /// <param name="bUnbiased">-1: divided by the total weight less 1; otherwise by the total weight</param>
        /// <returns>the variance; the missing number unless the divisor is greater than 0</returns>
        public static double Cpp_V_VarIfSup0W(double[] y, int n, double[] g, double[] w, short bUnbiased)
        {
            Room.Check("Cpp_V_VarIfSup0W", "y", y, (long)n, 1);
            Room.Check("Cpp_V_VarIfSup0W", "g", g, (long)n, 1);
            Room.Check("Cpp_V_VarIfSup0W", "w", w, (long)n, 1);
            return Native.Cpp_V_VarIfSup0W(y, n, g, w, bUnbiased);
        }

        /// <summary>Weighted variance of a group. A weight of 0 in the first row gives a NaN.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="w">in, n weights</param>
        /// <param name="val">code of the group</param>
        /// <param name="bUnbiased">-1: divided by the total weight less 1; otherwise by the total weight</param>
        /// <returns>the variance; the missing number unless the divisor is greater than 0</returns>
        public static double Cpp_V_VarIfW(double[] y, int n, double[] g, double[] w, double val, short bUnbiased)
        {
            Room.Check("Cpp_V_VarIfW", "y", y, (long)n, 1);
            Room.Check("Cpp_V_VarIfW", "g", g, (long)n, 1);
            Room.Check("Cpp_V_VarIfW", "w", w, (long)n, 1);
            return Native.Cpp_V_VarIfW(y, n, g, w, val, bUnbiased);
        }

        /// <summary>Moves the elements outside two quantiles onto them. Missing elements stay.</summary>
        /// <param name="x">inout, n numbers, changed in place</param>
        /// <param name="n">number of elements</param>
        /// <param name="qLow">probability of the lower quantile</param>
        /// <param name="qHigh">probability of the upper quantile</param>
        /// <returns>0</returns>
        public static int Cpp_V_Winsorize2(double[] x, int n, double qLow, double qHigh)
        {
            Room.Check("Cpp_V_Winsorize2", "x", x, (long)n, 1);
            return Native.Cpp_V_Winsorize2(x, n, qLow, qHigh);
        }

        /// <summary>How far each number lies from the centre, in deviations. A missing number has a missing score,
        /// and so has every number when the deviation is not greater than 2.220446049250313e-16.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bRobust">0: (x - centre) / scale; any other value: 0.6745 * (x - median) / MAD, by the
        /// median and the median absolute deviation, in which a missing number counts as the smallest</param>
        /// <param name="centre">inout, one number: the centre; when it is missing, it and scale become the mean and
        /// the standard deviation, divided by the number of elements less 1, of the numbers above the missing one.
        /// Not used, and may be null, for the robust scores</param>
        /// <param name="scale">inout, one number: the deviation; the same</param>
        /// <param name="out">out, n scores; may be the array of x</param>
        /// <returns>0</returns>
        public static int Cpp_V_ZScores(double[] x, int n, short bRobust, double[] centre, ref double scale,
            double[] @out)
        {
            Room.Check("Cpp_V_ZScores", "x", x, (long)n, 1);
            Room.Check("Cpp_V_ZScores", "centre", centre, 1, 1, true);
            Room.Check("Cpp_V_ZScores", "out", @out, (long)n, 1);
            return Native.Cpp_V_ZScores(x, n, bRobust, centre, ref scale, @out);
        }

        /// <summary>A vector back in the shape of the table that Cpp_MatToVect laid it out from. What is missing in
        /// that table is missing in the result, whatever the vector has in its place.</summary>
        /// <param name="v">in, rows by cols numbers</param>
        /// <param name="pattern">in, rows by cols numbers; only its missing cells matter</param>
        /// <param name="rows">rows of the tables</param>
        /// <param name="cols">columns of the tables</param>
        /// <param name="x">out, rows by cols numbers; may be v or pattern</param>
        /// <returns>0</returns>
        public static int Cpp_VectToMat(double[] v, double[] pattern, int rows, int cols, double[] x)
        {
            Room.Check("Cpp_VectToMat", "v", v, (long)rows, (long)cols);
            Room.Check("Cpp_VectToMat", "pattern", pattern, (long)rows, (long)cols);
            Room.Check("Cpp_VectToMat", "x", x, (long)rows, (long)cols);
            return Native.Cpp_VectToMat(v, pattern, rows, cols, x);
        }

        /// <summary>Writes a table of numbers to a text file.</summary>
        /// <param name="a">in, rows by cols numbers, written with 20 significant digits, a missing one like the
        /// others</param>
        /// <param name="rows">rows of a</param>
        /// <param name="cols">columns of a</param>
        /// <param name="name">in, base name of the file</param>
        public static void Cpp_WriteMatrixDbl(double[] a, int rows, int cols, string name)
        {
            Room.Check("Cpp_WriteMatrixDbl", "a", a, (long)rows, (long)cols);
            Native.Cpp_WriteMatrixDbl(a, rows, cols, name);
        }

        /// <summary>Writes a table of integers to a text file.</summary>
        /// <param name="a">in, rows by cols integers</param>
        /// <param name="rows">rows of a</param>
        /// <param name="cols">columns of a</param>
        /// <param name="name">in, base name of the file</param>
        public static void Cpp_WriteMatrixLng(int[] a, int rows, int cols, string name)
        {
            Room.Check("Cpp_WriteMatrixLng", "a", a, (long)rows, (long)cols);
            Native.Cpp_WriteMatrixLng(a, rows, cols, name);
        }

        /// <summary>Writes a table of texts to a text file.</summary>
        /// <param name="a">in, rows by cols texts, written in UTF-8, a missing one as nothing</param>
        /// <param name="rows">rows of a</param>
        /// <param name="cols">columns of a</param>
        /// <param name="name">in, base name of the file</param>
        /// <returns>0</returns>
        public static int Cpp_WriteMatrixStr(string[] a, int rows, int cols, string name)
        {
            Room.Check("Cpp_WriteMatrixStr", "a", a, (long)rows, (long)cols);
            using (var aTexts = new Texts("Cpp_WriteMatrixStr", "a", a))
                return Native.Cpp_WriteMatrixStr(aTexts.Cells, rows, cols, name);
        }

        /// <summary>Selects the random generator. Both generators keep their states; nothing is seeded.</summary>
        /// <param name="algorithm">1: MT19937 (Matsumoto and Nishimura 1998). Anything else: the combined generator
        /// of L'Ecuyer (1988), which is the one in use after loading</param>
        /// <returns>0</returns>
        public static int Cpp_set_rand_algo(int algorithm)
        {
            return Native.Cpp_set_rand_algo(algorithm);
        }

        /// <summary>The block of texts behind a host array, for functions that take such a block.</summary>
        /// <param name="sa">in, host array of String; its descriptor may be null</param>
        /// <returns>the array's data, or null when there is no array or it holds none</returns>
        public static IntPtr ExtractBSTR(HostArray sa)
        {
            return Native.ExtractBSTR(HostArray.Of(sa));
        }

        /// <summary>The column behind a column. No letter is added: Z gives A, and ZZ gives AA.</summary>
        /// <param name="column">in, one text: the letters of a column</param>
        /// <returns>a new text, which the caller frees</returns>
        /// <remarks>raises std::bad_alloc when memory is short</remarks>
        public static string Increase1Col(string column)
        {
            using (var columnTexts = new Texts("Increase1Col", "column", new[] { column }))
                return Texts.Take(Native.Increase1Col(columnTexts.Cells[0]));
        }

        /// <summary>The version of the library that is loaded.</summary>
        /// <returns>10000 times the major number, plus 100 times the minor one, plus the patch: 10203 for
        /// 1.2.3</returns>
        public static int KORVEL_Version()
        {
            return Native.KORVEL_Version();
        }

        /// <summary>One damped step of the Newton-Raphson method: the inverse of the Hessian over the free
        /// parameters times the gradient is subtracted from the parameters. Gradient and Hessian are those of the
        /// same objective, whether it is to become large or small. A singular Hessian gets a generalised
        /// inverse.</summary>
        /// <param name="parameters">inout, n numbers; the free ones are changed</param>
        /// <param name="n">parameters</param>
        /// <param name="constraints">in, n integers: 0 for a free parameter, any other value for one held
        /// fixed</param>
        /// <param name="gradient">in, n numbers</param>
        /// <param name="hessian">in, n by n numbers, column after column</param>
        /// <param name="tolerance">the largest absolute change that counts as none</param>
        /// <param name="standardErrors">out, n numbers: the roots of the magnitudes of the inverse's diagonal; 0
        /// for a fixed parameter</param>
        /// <param name="inverse">out, n by n numbers: the inverse, with 0 for fixed parameters</param>
        /// <param name="limitStep">not 0: a step longer than stepLimit is shortened, its direction kept</param>
        /// <param name="stepLimit">the largest absolute change of a parameter</param>
        /// <returns>1 when every free parameter moved by at most the tolerance; 0 when one moved by more; -1 when
        /// the inversion failed, which it does not at present</returns>
        public static int NewtonRaphson(double[] parameters, int n, int[] constraints, double[] gradient,
            double[] hessian, double tolerance, double[] standardErrors, double[] inverse, short limitStep,
            double stepLimit)
        {
            Room.Check("NewtonRaphson", "parameters", parameters, (long)n, 1);
            Room.Check("NewtonRaphson", "constraints", constraints, (long)n, 1);
            Room.Check("NewtonRaphson", "gradient", gradient, (long)n, 1);
            Room.Check("NewtonRaphson", "hessian", hessian, (long)n, (long)n);
            Room.Check("NewtonRaphson", "standardErrors", standardErrors, (long)n, 1);
            Room.Check("NewtonRaphson", "inverse", inverse, (long)n, (long)n);
            return Native.NewtonRaphson(parameters, n, constraints, gradient, hessian, tolerance, standardErrors, inverse, limitStep, stepLimit);
        }

        /// <summary>Regression: coefficients and fitted values.</summary>
        /// <param name="n">rows</param>
        /// <param name="p">predictors</param>
        /// <param name="x">in, n by p numbers, column after column</param>
        /// <param name="y">in, n numbers, the response</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="degree">the highest power of a predictor</param>
        /// <param name="interactions">-1: with the products of pairs of predictors</param>
        /// <param name="noConstant">not 0: the model has no intercept</param>
        /// <param name="tolerance">limit of a term's tolerance; a term is taken in when its own is greater</param>
        /// <param name="coefficients">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
        /// interactions is -1: that of each term, the intercept last</param>
        /// <param name="fitted">out, n numbers</param>
        /// <returns>0</returns>
        public static int RunOLSBasic(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] fitted)
        {
            Room.Check("RunOLSBasic", "x", x, (long)n, (long)p);
            Room.Check("RunOLSBasic", "y", y, (long)n, 1);
            Room.Check("RunOLSBasic", "weights", weights, (long)n, 1);
            Room.Check("RunOLSBasic", "coefficients", coefficients, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic", "fitted", fitted, (long)n, 1);
            return Native.RunOLSBasic(n, p, x, y, weights, degree, interactions, noConstant, tolerance, coefficients, fitted);
        }

        /// <summary>Regression: coefficients, their standard errors and fitted values.</summary>
        /// <param name="n">rows</param>
        /// <param name="p">predictors</param>
        /// <param name="x">in, n by p numbers, column after column</param>
        /// <param name="y">in, n numbers, the response</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="degree">the highest power of a predictor</param>
        /// <param name="interactions">-1: with the products of pairs of predictors</param>
        /// <param name="noConstant">not 0: the model has no intercept</param>
        /// <param name="tolerance">limit of a term's tolerance; a term is taken in when its own is greater</param>
        /// <param name="coefficients">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
        /// interactions is -1: that of each term, the intercept last</param>
        /// <param name="standardErrors">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers
        /// when interactions is -1. That of the intercept is a NaN when rounding made its square negative</param>
        /// <param name="fitted">out, n numbers</param>
        /// <returns>0</returns>
        public static int RunOLSBasic2(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] standardErrors,
            double[] fitted)
        {
            Room.Check("RunOLSBasic2", "x", x, (long)n, (long)p);
            Room.Check("RunOLSBasic2", "y", y, (long)n, 1);
            Room.Check("RunOLSBasic2", "weights", weights, (long)n, 1);
            Room.Check("RunOLSBasic2", "coefficients", coefficients, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic2", "standardErrors", standardErrors, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic2", "fitted", fitted, (long)n, 1);
            return Native.RunOLSBasic2(n, p, x, y, weights, degree, interactions, noConstant, tolerance, coefficients, standardErrors, fitted);
        }

        /// <summary>Regression as by RunOLSBasic2 on the columns of five tables, one behind the other, without
        /// powers or interactions. The standard errors of terms are over n less the terms, less 1, degrees of
        /// freedom. All results are set to 0 first; for any other degree than 1, and when the counts of columns add
        /// up to less than 1, they stay 0.</summary>
        /// <param name="n">rows</param>
        /// <param name="p1">columns of the first table; below 1 it does not take part</param>
        /// <param name="x1">in, n by p1 numbers, column after column; not read when p1 is below 1, and then may be
        /// null</param>
        /// <param name="p2">columns of the second table</param>
        /// <param name="x2">in, n by p2 numbers, likewise; may be null when p2 is below 1</param>
        /// <param name="p3">columns of the third table</param>
        /// <param name="x3">in, n by p3 numbers, likewise; may be null when p3 is below 1</param>
        /// <param name="p4">columns of the fourth table</param>
        /// <param name="x4">in, n by p4 numbers, likewise; may be null when p4 is below 1</param>
        /// <param name="p5">columns of the fifth table</param>
        /// <param name="x5">in, n by p5 numbers, likewise; may be null when p5 is below 1</param>
        /// <param name="y">in, n numbers, the response</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="degree">1</param>
        /// <param name="interactions">-1: the results have room for interactions, which are not formed: their tail
        /// stays 0</param>
        /// <param name="noConstant">not 0: the model has no intercept</param>
        /// <param name="tolerance">limit of a term's tolerance; a term is taken in when its own is greater</param>
        /// <param name="coefficients">out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 +
        /// p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions
        /// is -1: that of each column, and then the intercept</param>
        /// <param name="standardErrors">out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 +
        /// p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions
        /// is -1, likewise; missing with fewer rows than coefficients</param>
        /// <param name="fitted">out, n numbers</param>
        /// <returns>0</returns>
        public static int RunOLSBasic2Lg(int n, int p1, double[] x1, int p2, double[] x2, int p3, double[] x3, int p4,
            double[] x4, int p5, double[] x5, double[] y, double[] weights, int degree, short interactions,
            short noConstant, double tolerance, double[] coefficients, double[] standardErrors, double[] fitted)
        {
            Room.Check("RunOLSBasic2Lg", "x1", x1, (long)n, (long)p1, true);
            Room.Check("RunOLSBasic2Lg", "x2", x2, (long)n, (long)p2, true);
            Room.Check("RunOLSBasic2Lg", "x3", x3, (long)n, (long)p3, true);
            Room.Check("RunOLSBasic2Lg", "x4", x4, (long)n, (long)p4, true);
            Room.Check("RunOLSBasic2Lg", "x5", x5, (long)n, (long)p5, true);
            Room.Check("RunOLSBasic2Lg", "y", y, (long)n, 1);
            Room.Check("RunOLSBasic2Lg", "weights", weights, (long)n, 1);
            Room.Check("RunOLSBasic2Lg", "coefficients", coefficients, interactions == -1 ? ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * (long)degree + ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5 - 1) / 2 + 1 : ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic2Lg", "standardErrors", standardErrors, interactions == -1 ? ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * (long)degree + ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5 - 1) / 2 + 1 : ((long)p1 + (long)p2 + (long)p3 + (long)p4 + (long)p5) * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic2Lg", "fitted", fitted, (long)n, 1);
            return Native.RunOLSBasic2Lg(n, p1, x1, p2, x2, p3, x3, p4, x4, p5, x5, y, weights, degree, interactions, noConstant, tolerance, coefficients, standardErrors, fitted);
        }

        /// <summary>Regression: the same with the swept table and the statistics of the columns.</summary>
        /// <param name="n">rows</param>
        /// <param name="p">predictors</param>
        /// <param name="x">in, n by p numbers, column after column</param>
        /// <param name="y">in, n numbers, the response</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="degree">the highest power of a predictor</param>
        /// <param name="interactions">-1: with the products of pairs of predictors</param>
        /// <param name="noConstant">not 0: the model has no intercept</param>
        /// <param name="tolerance">limit of a term's tolerance; a term is taken in when its own is greater</param>
        /// <param name="coefficients">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
        /// interactions is -1: that of each term, the intercept last</param>
        /// <param name="standardErrors">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers
        /// when interactions is -1. That of the intercept is a NaN when rounding made its square negative</param>
        /// <param name="fitted">out, n numbers</param>
        /// <param name="sweptMatrix">out, p * degree + 1 by p * degree + 1 numbers, or p * degree + p * (p - 1) / 2
        /// + 1 by p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: the correlation table after all
        /// sweeps, the response last. Its last cell is the share of the variation that stays unexplained</param>
        /// <param name="means">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when
        /// interactions is -1</param>
        /// <param name="standardDeviations">out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1
        /// numbers when interactions is -1; 0 for each refused term</param>
        /// <returns>0</returns>
        public static int RunOLSBasic3(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] standardErrors,
            double[] fitted, double[] sweptMatrix, double[] means, double[] standardDeviations)
        {
            Room.Check("RunOLSBasic3", "x", x, (long)n, (long)p);
            Room.Check("RunOLSBasic3", "y", y, (long)n, 1);
            Room.Check("RunOLSBasic3", "weights", weights, (long)n, 1);
            Room.Check("RunOLSBasic3", "coefficients", coefficients, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic3", "standardErrors", standardErrors, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic3", "fitted", fitted, (long)n, 1);
            Room.Check("RunOLSBasic3", "sweptMatrix", sweptMatrix, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1);
            Room.Check("RunOLSBasic3", "means", means, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            Room.Check("RunOLSBasic3", "standardDeviations", standardDeviations, interactions == -1 ? (long)p * (long)degree + (long)p * ((long)p - 1) / 2 + 1 : (long)p * (long)degree + 1, interactions == -1 ? 1 : 1);
            return Native.RunOLSBasic3(n, p, x, y, weights, degree, interactions, noConstant, tolerance, coefficients, standardErrors, fitted, sweptMatrix, means, standardDeviations);
        }

        /// <summary>Sorts the ranges of a list by their first columns and joins ranges that follow each other.
        /// Where a range does not follow the one before it, the last column of that one stands without its dollar.
        /// A text without a comma, with ranges on several sheets, with rows, or that is no such list, comes back as
        /// it is.</summary>
        /// <param name="value">in, one text: the list of ranges</param>
        /// <returns>a new text, which the caller frees</returns>
        /// <remarks>raises std::bad_alloc when memory is short</remarks>
        public static string SimplifyRange(string value)
        {
            using (var valueTexts = new Texts("SimplifyRange", "value", new[] { value }))
                return Texts.Take(Native.SimplifyRange(valueTexts.Cells[0]));
        }

        /// <summary>Rescales the coordinates of a biplot by powers of the singular values: those of rows by
        /// s^(alpha/2 - 1/2), those of columns by s^(-alpha/2). A missing cell stays missing.</summary>
        /// <param name="rowCoordinates">in, rows by axes numbers, column after column</param>
        /// <param name="extraRowCoordinates">in, extraRows by axes numbers, to stand below them; may be null when
        /// there are none</param>
        /// <param name="columnCoordinates">in, columns by axes numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="extraRows">further rows</param>
        /// <param name="columns">columns</param>
        /// <param name="axes">axes</param>
        /// <param name="singularValues">in, axes numbers</param>
        /// <param name="scale">the coordinates of columns are multiplied by its root; a negative one makes them
        /// missing numbers or what these come to</param>
        /// <param name="alpha">1: rows stay as they are; 0: columns do</param>
        /// <param name="rowResult">out, rows + extraRows by axes numbers</param>
        /// <param name="columnResult">out, columns by axes numbers</param>
        /// <returns>0</returns>
        public static int VB_BiplotTransData(double[] rowCoordinates, double[] extraRowCoordinates,
            double[] columnCoordinates, int rows, int extraRows, int columns, int axes, double[] singularValues,
            double scale, double alpha, double[] rowResult, double[] columnResult)
        {
            Room.Check("VB_BiplotTransData", "rowCoordinates", rowCoordinates, (long)rows, (long)axes);
            Room.Check("VB_BiplotTransData", "extraRowCoordinates", extraRowCoordinates, (long)extraRows, (long)axes, true);
            Room.Check("VB_BiplotTransData", "columnCoordinates", columnCoordinates, (long)columns, (long)axes);
            Room.Check("VB_BiplotTransData", "singularValues", singularValues, (long)axes, 1);
            Room.Check("VB_BiplotTransData", "rowResult", rowResult, (long)rows + (long)extraRows, (long)axes);
            Room.Check("VB_BiplotTransData", "columnResult", columnResult, (long)columns, (long)axes);
            return Native.VB_BiplotTransData(rowCoordinates, extraRowCoordinates, columnCoordinates, rows, extraRows, columns, axes, singularValues, scale, alpha, rowResult, columnResult);
        }

        /// <summary>The same with coordinates in chunks.</summary>
        /// <param name="rowCoordinates">in, host array of axes columns of rows numbers</param>
        /// <param name="extraRowCoordinates">in, extraRows by axes numbers, to stand below them; may be null when
        /// there are none</param>
        /// <param name="columnCoordinates">in, host array of axes columns of columns numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="extraRows">further rows</param>
        /// <param name="columns">columns</param>
        /// <param name="axes">axes</param>
        /// <param name="singularValues">in, axes numbers</param>
        /// <param name="scale">the coordinates of columns are multiplied by its root; a negative one makes them
        /// missing numbers or what these come to</param>
        /// <param name="alpha">1: rows stay as they are; 0: columns do</param>
        /// <param name="rowResult">out, rows + extraRows by axes numbers</param>
        /// <param name="columnResult">out, columns by axes numbers</param>
        /// <returns>0</returns>
        public static int VB_BiplotTransDataSPV(HostArray rowCoordinates, double[] extraRowCoordinates,
            HostArray columnCoordinates, int rows, int extraRows, int columns, int axes, double[] singularValues,
            double scale, double alpha, double[] rowResult, double[] columnResult)
        {
            Room.Check("VB_BiplotTransDataSPV", "extraRowCoordinates", extraRowCoordinates, (long)extraRows, (long)axes, true);
            Room.Check("VB_BiplotTransDataSPV", "singularValues", singularValues, (long)axes, 1);
            Room.Check("VB_BiplotTransDataSPV", "rowResult", rowResult, (long)rows + (long)extraRows, (long)axes);
            Room.Check("VB_BiplotTransDataSPV", "columnResult", columnResult, (long)columns, (long)axes);
            return Native.VB_BiplotTransDataSPV(HostArray.Of(rowCoordinates), extraRowCoordinates, HostArray.Of(columnCoordinates), rows, extraRows, columns, axes, singularValues, scale, alpha, rowResult, columnResult);
        }

        /// <summary>The disjunctive table of a table of texts.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="totalColumns">columns of the result</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="frequencies">in, p by max(categoryCounts) numbers: their frequencies</param>
        /// <param name="result">out, n by totalColumns numbers</param>
        /// <param name="coding">0, 1, 2 or 3</param>
        /// <param name="firstCategoryOption">1, 2 or another value</param>
        /// <returns>0</returns>
        public static int VB_BuildDisjunctiveTable(string[] data, int n, int p, int totalColumns, int[] categoryCounts,
            string[] categories, double[] frequencies, double[] result, int coding, int firstCategoryOption)
        {
            Room.Check("VB_BuildDisjunctiveTable", "data", data, (long)n, (long)p);
            Room.Check("VB_BuildDisjunctiveTable", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("VB_BuildDisjunctiveTable", "categories", categories, (long)p, Room.Largest(categoryCounts));
            Room.Check("VB_BuildDisjunctiveTable", "frequencies", frequencies, (long)p, Room.Largest(categoryCounts));
            Room.Check("VB_BuildDisjunctiveTable", "result", result, (long)n, (long)totalColumns);
            using (var dataTexts = new Texts("VB_BuildDisjunctiveTable", "data", data))
            using (var categoriesTexts = new Texts("VB_BuildDisjunctiveTable", "categories", categories))
                return Native.VB_BuildDisjunctiveTable(dataTexts.Cells, n, p, totalColumns, categoryCounts, categoriesTexts.Cells, frequencies, result, coding, firstCategoryOption);
        }

        /// <summary>The tolerance of each variable of the selected groups, the share of its variation that the
        /// others leave unexplained, and its variance inflation factor. Groups are screened from the last to the
        /// first.</summary>
        /// <param name="r">in, p by p numbers, the correlations, column after column</param>
        /// <param name="p">variables</param>
        /// <param name="groupCount">groups</param>
        /// <param name="groupSelection">in, groupCount numbers; a group is screened when its number is exactly
        /// 1</param>
        /// <param name="groupNumbers">in, p numbers, counted from 1: the group of each variable; the variables of a
        /// group stand side by side</param>
        /// <param name="tolerance">limit below which a variable counts as explained; sweeping ends there</param>
        /// <param name="duplicates">not 0: variables that correlate with an earlier one at more than 0.999999999999
        /// in magnitude have the status 60000. -1: also those that are refused because others explain them</param>
        /// <param name="entered">-1: variables of status 60000 are swept too</param>
        /// <param name="reverse">-1: a group is walked from its last variable to its first</param>
        /// <param name="skipGroup">-1: variables of the same group as the one screened are not swept</param>
        /// <param name="status">out, p numbers: 50000 for a variable whose cell of the diagonal is 0, 60000 for a
        /// collinear one, -1 for all others</param>
        /// <param name="tolerances">inout, p numbers; written for variables that are screened, and 0 for constant
        /// ones and duplicates</param>
        /// <param name="inflationFactors">inout, p numbers, at the same places; missing where the tolerance is not
        /// above 0</param>
        /// <returns>0</returns>
        public static int VB_CheckTolerance(double[] r, int p, int groupCount, double[] groupSelection,
            double[] groupNumbers, double tolerance, short duplicates, short entered, short reverse, short skipGroup,
            double[] status, double[] tolerances, double[] inflationFactors)
        {
            Room.Check("VB_CheckTolerance", "r", r, (long)p, (long)p);
            Room.Check("VB_CheckTolerance", "groupSelection", groupSelection, (long)groupCount, 1);
            Room.Check("VB_CheckTolerance", "groupNumbers", groupNumbers, (long)p, 1);
            Room.Check("VB_CheckTolerance", "status", status, (long)p, 1);
            Room.Check("VB_CheckTolerance", "tolerances", tolerances, (long)p, 1);
            Room.Check("VB_CheckTolerance", "inflationFactors", inflationFactors, (long)p, 1);
            return Native.VB_CheckTolerance(r, p, groupCount, groupSelection, groupNumbers, tolerance, duplicates, entered, reverse, skipGroup, status, tolerances, inflationFactors);
        }

        /// <summary>A new variable as a weighted sum of those of a table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="coefficients">in, cols factors</param>
        /// <param name="out">out, rows numbers: the sum over the columns of cell times factor; missing when one of
        /// the cells or factors is</param>
        /// <returns>0</returns>
        public static int VB_ComputeNewVar(double[] x, int rows, int cols, double[] coefficients, double[] @out)
        {
            Room.Check("VB_ComputeNewVar", "x", x, (long)rows, (long)cols);
            Room.Check("VB_ComputeNewVar", "coefficients", coefficients, (long)cols, 1);
            Room.Check("VB_ComputeNewVar", "out", @out, (long)rows, 1);
            return Native.VB_ComputeNewVar(x, rows, cols, coefficients, @out);
        }

        /// <summary>Copies a column of a table into a column of another.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy; one that the table does not have reads as -1</param>
        /// <param name="y">inout, yRows by yCols numbers; may be x</param>
        /// <param name="yRows">rows of y; what would fall below is left out</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="colTo">the column of y; nothing is stored in one that it does not have</param>
        /// <param name="bReset">not 0: all other cells of y become 0</param>
        /// <returns>0</returns>
        public static int VB_CopyMatrixColToMatrixCol(double[] x, int rows, int cols, int col, double[] y, int yRows,
            int yCols, int colTo, short bReset)
        {
            Room.Check("VB_CopyMatrixColToMatrixCol", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_CopyMatrixColToMatrixCol", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_CopyMatrixColToMatrixCol(x, rows, cols, col, y, yRows, yCols, colTo, bReset);
        }

        /// <summary>Copies a column of a table of texts into a vector.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy; one that the table does not have reads as empty texts</param>
        /// <param name="y">out, rows texts</param>
        /// <returns>0</returns>
        public static int VB_CopyMatrixColToOneColMatStr(string[] x, int rows, int cols, int col, string[] y)
        {
            Room.Check("VB_CopyMatrixColToOneColMatStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_CopyMatrixColToOneColMatStr", "y", y, (long)rows, 1);
            using (var xTexts = new Texts("VB_CopyMatrixColToOneColMatStr", "x", x))
            using (var yTexts = new Texts("VB_CopyMatrixColToOneColMatStr", "y", y))
            {
                int answer = Native.VB_CopyMatrixColToOneColMatStr(xTexts.Cells, rows, cols, col, yTexts.Cells);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Copies a column of a table into a vector.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy; one that the table does not have reads as -1</param>
        /// <param name="y">out, rows numbers</param>
        /// <returns>0</returns>
        public static int VB_CopyMatrixColToVector(double[] x, int rows, int cols, int col, double[] y)
        {
            Room.Check("VB_CopyMatrixColToVector", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_CopyMatrixColToVector", "y", y, (long)rows, 1);
            return Native.VB_CopyMatrixColToVector(x, rows, cols, col, y);
        }

        /// <summary>Copies a row of a table into a row of another.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="row">the row to copy; one that the table does not have reads as -1</param>
        /// <param name="y">inout, yRows by yCols numbers; may be x</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1. What would fall to the right is left out</param>
        /// <param name="rowTo">the row of y; nothing is stored in one that it does not have</param>
        /// <param name="bReset">not 0: all other cells of y become 0</param>
        /// <returns>0</returns>
        public static int VB_CopyMatrixRowToMatrixRow(double[] x, int rows, int cols, int row, double[] y, int yRows,
            int yCols, int rowTo, short bReset)
        {
            Room.Check("VB_CopyMatrixRowToMatrixRow", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_CopyMatrixRowToMatrixRow", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_CopyMatrixRowToMatrixRow(x, rows, cols, row, y, yRows, yCols, rowTo, bReset);
        }

        /// <summary>Fills the missing numbers of flagged rows by the weighted means of their columns. A column
        /// without numbers has the mean 0.0.</summary>
        /// <param name="x">inout, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1, and then the mean of a column without numbers is
        /// missing</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is 0 stays as it is. Null: all rows stay</param>
        /// <param name="w">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingMean(double[] x, int n, int p, short[] rowFlags, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingMean", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingMean", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingMean", "w", w, (long)n, 1);
            return Native.VB_EstimateRowsWithMissingMean(x, n, p, rowFlags, w);
        }

        /// <summary>Fills the missing numbers of flagged rows by the weighted means of the columns of another
        /// table, of which a column without numbers has the mean 0.0.</summary>
        /// <param name="statistics">in, n by p numbers, of which the means are taken</param>
        /// <param name="n">rows of that table</param>
        /// <param name="x">inout, rows by p numbers</param>
        /// <param name="rows">rows of the table that is filled</param>
        /// <param name="p">columns of both tables; 0 stands for 1, and then the mean of a column without numbers is
        /// missing</param>
        /// <param name="rowFlags">in, rows flags; a row whose flag is 0 stays as it is. Null: all rows stay</param>
        /// <param name="w">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingMeanPred(double[] statistics, int n, double[] x, int rows, int p,
            short[] rowFlags, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingMeanPred", "statistics", statistics, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingMeanPred", "x", x, (long)rows, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingMeanPred", "rowFlags", rowFlags, (long)rows, 1, true);
            Room.Check("VB_EstimateRowsWithMissingMeanPred", "w", w, (long)n, 1);
            return Native.VB_EstimateRowsWithMissingMeanPred(statistics, n, x, rows, p, rowFlags, w);
        }

        /// <summary>Fills the missing numbers of flagged rows of a chunked table by the weighted means of their
        /// columns. A column without numbers has the mean 0.0.</summary>
        /// <param name="x">inout, p columns of n numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is 0 stays as it is. Null: all rows stay</param>
        /// <param name="w">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingMeanSPV(HostArray x, int n, int p, short[] rowFlags, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingMeanSPV", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingMeanSPV", "w", w, (long)n, 1);
            return Native.VB_EstimateRowsWithMissingMeanSPV(HostArray.Of(x), n, p, rowFlags, w);
        }

        /// <summary>Fills the empty texts of a table by the modes of their columns: of all texts of a column the
        /// one whose weights have the largest sum, the first of equals.</summary>
        /// <param name="x">inout, n by p texts, replaced where they are empty</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="w">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingMode(string[] x, int n, int p, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingMode", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingMode", "w", w, (long)n, 1);
            using (var xTexts = new Texts("VB_EstimateRowsWithMissingMode", "x", x))
            {
                int answer = Native.VB_EstimateRowsWithMissingMode(xTexts.Cells, n, p, w);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Fills the empty texts of a table by the modes of the columns of another table: of all texts of
        /// a column the one whose weights have the largest sum, the first of equals.</summary>
        /// <param name="statistics">in, n by p texts, of which the modes are taken</param>
        /// <param name="n">rows of that table</param>
        /// <param name="x">inout, rows by p texts, replaced where they are empty</param>
        /// <param name="rows">rows of the table that is filled</param>
        /// <param name="p">columns of both tables; 0 stands for 1</param>
        /// <param name="w">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingModePred(string[] statistics, int n, string[] x, int rows, int p,
            double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingModePred", "statistics", statistics, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingModePred", "x", x, (long)rows, (p == 0 ? 1L : p));
            Room.Check("VB_EstimateRowsWithMissingModePred", "w", w, (long)n, 1);
            using (var statisticsTexts = new Texts("VB_EstimateRowsWithMissingModePred", "statistics", statistics))
            using (var xTexts = new Texts("VB_EstimateRowsWithMissingModePred", "x", x))
            {
                int answer = Native.VB_EstimateRowsWithMissingModePred(statisticsTexts.Cells, n, xTexts.Cells, rows, p, w);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this
        /// file.</summary>
        /// <param name="primary">inout, n by primaryColumns numbers; may be null when primaryColumns is 0</param>
        /// <param name="n">rows of all groups</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="second">inout, n by secondColumns numbers; may be null when secondColumns is 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="third">inout, n by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNN(double[] primary, int n, int primaryColumns, short[] rowFlags,
            double[] second, int secondColumns, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNN", "primary", primary, (long)n, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNN", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNN", "second", second, (long)n, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNN", "third", third, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNN", "w", w, (long)n, 1);
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNN", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNN(primary, n, primaryColumns, rowFlags, second, secondColumns, thirdTexts.Cells, thirdColumns, w);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
        /// Means, variances and modes are those of other tables.</summary>
        /// <param name="primaryStatistics">in, n by primaryColumns numbers; may be null when primaryColumns is
        /// 0</param>
        /// <param name="n">rows of the tables of which means, variances and modes are taken</param>
        /// <param name="primary">inout, rows by primaryColumns numbers; may be null when primaryColumns is
        /// 0</param>
        /// <param name="rows">rows of the tables that are filled</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, rows flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="secondStatistics">in, n by secondColumns numbers; may be null when secondColumns is
        /// 0</param>
        /// <param name="second">inout, rows by secondColumns numbers; may be null when secondColumns is 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="thirdStatistics">in, n by thirdColumns texts; may be null when thirdColumns is 0</param>
        /// <param name="third">inout, rows by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNNPred(double[] primaryStatistics, int n, double[] primary,
            int rows, int primaryColumns, short[] rowFlags, double[] secondStatistics, double[] second,
            int secondColumns, string[] thirdStatistics, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNNPred", "primaryStatistics", primaryStatistics, (long)n, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "primary", primary, (long)rows, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "rowFlags", rowFlags, (long)rows, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "secondStatistics", secondStatistics, (long)n, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "second", second, (long)rows, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "thirdStatistics", thirdStatistics, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "third", third, (long)rows, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNPred", "w", w, (long)n, 1);
            using (var thirdStatisticsTexts = new Texts("VB_EstimateRowsWithMissingNNPred", "thirdStatistics", thirdStatistics))
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNNPred", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNNPred(primaryStatistics, n, primary, rows, primaryColumns, rowFlags, secondStatistics, second, secondColumns, thirdStatisticsTexts.Cells, thirdTexts.Cells, thirdColumns, w);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
        /// The primary group is chunked.</summary>
        /// <param name="primary">inout, primaryColumns columns of n numbers; may be null when primaryColumns is
        /// 0</param>
        /// <param name="n">rows of all groups</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="second">inout, n by secondColumns numbers; may be null when secondColumns is 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="third">inout, n by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNNSPV(HostArray primary, int n, int primaryColumns,
            short[] rowFlags, double[] second, int secondColumns, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNNSPV", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNNSPV", "second", second, (long)n, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNSPV", "third", third, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNSPV", "w", w, (long)n, 1);
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNNSPV", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNNSPV(HostArray.Of(primary), n, primaryColumns, rowFlags, second, secondColumns, thirdTexts.Cells, thirdColumns, w);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
        /// The primary and second groups are chunked.</summary>
        /// <param name="primary">inout, primaryColumns columns of n numbers; may be null when primaryColumns is
        /// 0</param>
        /// <param name="n">rows of all groups</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="second">inout, secondColumns columns of n numbers; may be null when secondColumns is
        /// 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="third">inout, n by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNNSPV2(HostArray primary, int n, int primaryColumns,
            short[] rowFlags, HostArray second, int secondColumns, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNNSPV2", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNNSPV2", "third", third, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNSPV2", "w", w, (long)n, 1);
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNNSPV2", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNNSPV2(HostArray.Of(primary), n, primaryColumns, rowFlags, HostArray.Of(second), secondColumns, thirdTexts.Cells, thirdColumns, w);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
        /// The primary group is one of texts.</summary>
        /// <param name="primary">inout, n by primaryColumns texts, replaced where they are empty; may be null when
        /// primaryColumns is 0</param>
        /// <param name="n">rows of all groups</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, n flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="second">inout, n by secondColumns numbers; may be null when secondColumns is 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="third">inout, n by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNNStr(string[] primary, int n, int primaryColumns, short[] rowFlags,
            double[] second, int secondColumns, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNNStr", "primary", primary, (long)n, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStr", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNNStr", "second", second, (long)n, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStr", "third", third, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStr", "w", w, (long)n, 1);
            using (var primaryTexts = new Texts("VB_EstimateRowsWithMissingNNStr", "primary", primary))
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNNStr", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNNStr(primaryTexts.Cells, n, primaryColumns, rowFlags, second, secondColumns, thirdTexts.Cells, thirdColumns, w);
                primaryTexts.CopyTo(primary);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
        /// The primary group is one of texts; means, variances and modes are those of other tables.</summary>
        /// <param name="primaryStatistics">in, n by primaryColumns texts; may be null when primaryColumns is
        /// 0</param>
        /// <param name="n">rows of the tables of which means, variances and modes are taken</param>
        /// <param name="primary">inout, rows by primaryColumns texts, replaced where they are empty; may be null
        /// when primaryColumns is 0</param>
        /// <param name="rows">rows of the tables that are filled</param>
        /// <param name="primaryColumns">columns of the primary group; below 1 there is none</param>
        /// <param name="rowFlags">in, rows flags; a row whose flag is not 0 is filled. Null: no row is</param>
        /// <param name="secondStatistics">in, n by secondColumns numbers; may be null when secondColumns is
        /// 0</param>
        /// <param name="second">inout, rows by secondColumns numbers; may be null when secondColumns is 0</param>
        /// <param name="secondColumns">columns of the second group; below 1 there is none</param>
        /// <param name="thirdStatistics">in, n by thirdColumns texts; may be null when thirdColumns is 0</param>
        /// <param name="third">inout, rows by thirdColumns texts, replaced where they are empty; may be null when
        /// thirdColumns is 0</param>
        /// <param name="thirdColumns">columns of the third group; below 1 there is none</param>
        /// <param name="w">in, n weights for means, variances and modes</param>
        /// <returns>0</returns>
        public static int VB_EstimateRowsWithMissingNNStrPred(string[] primaryStatistics, int n, string[] primary,
            int rows, int primaryColumns, short[] rowFlags, double[] secondStatistics, double[] second,
            int secondColumns, string[] thirdStatistics, string[] third, int thirdColumns, double[] w)
        {
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "primaryStatistics", primaryStatistics, (long)n, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "primary", primary, (long)rows, (long)primaryColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "rowFlags", rowFlags, (long)rows, 1, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "secondStatistics", secondStatistics, (long)n, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "second", second, (long)rows, (long)secondColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "thirdStatistics", thirdStatistics, (long)n, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "third", third, (long)rows, (long)thirdColumns, true);
            Room.Check("VB_EstimateRowsWithMissingNNStrPred", "w", w, (long)n, 1);
            using (var primaryStatisticsTexts = new Texts("VB_EstimateRowsWithMissingNNStrPred", "primaryStatistics", primaryStatistics))
            using (var primaryTexts = new Texts("VB_EstimateRowsWithMissingNNStrPred", "primary", primary))
            using (var thirdStatisticsTexts = new Texts("VB_EstimateRowsWithMissingNNStrPred", "thirdStatistics", thirdStatistics))
            using (var thirdTexts = new Texts("VB_EstimateRowsWithMissingNNStrPred", "third", third))
            {
                int answer = Native.VB_EstimateRowsWithMissingNNStrPred(primaryStatisticsTexts.Cells, n, primaryTexts.Cells, rows, primaryColumns, rowFlags, secondStatistics, second, secondColumns, thirdStatisticsTexts.Cells, thirdTexts.Cells, thirdColumns, w);
                primaryTexts.CopyTo(primary);
                thirdTexts.CopyTo(third);
                return answer;
            }
        }

        /// <summary>Drops small eigenvalues from the end, takes each one's share of the sum of those that are left,
        /// and counts how many of the leading ones satisfy all bounds. The first value is never dropped.</summary>
        /// <param name="values">inout, n eigenvalues in descending order; the last may be set to 0</param>
        /// <param name="n">number of values</param>
        /// <param name="dropTail">not 0: values below the threshold are dropped from the end. 0: the last one below
        /// it is set to 0, and with a threshold above 0 the call then does not return</param>
        /// <param name="threshold">what is below it is not kept</param>
        /// <param name="cumulativePercent">with a number above 0, the first values whose shares, in percent, sum up
        /// to at least it are enough</param>
        /// <param name="maxCount">with a number above 0, no more than so many are enough</param>
        /// <param name="minValue">with a number above 0, each value below minValue + 1e-12 lowers the number by
        /// one</param>
        /// <param name="kept">out, one integer: how many values were not dropped; 0 when their sum is NaN</param>
        /// <param name="retained">out, one integer: the smallest of the four numbers</param>
        /// <param name="percents">out, n shares of the values in the sum of those kept, in percent; 0.0 for a
        /// dropped one</param>
        /// <returns>0</returns>
        public static int VB_FilterEigen(double[] values, int n, short dropTail, double threshold,
            double cumulativePercent, int maxCount, double minValue, out int kept, out int retained, double[] percents)
        {
            Room.Check("VB_FilterEigen", "values", values, (long)n, 1);
            Room.Check("VB_FilterEigen", "percents", percents, (long)n, 1);
            return Native.VB_FilterEigen(values, n, dropTail, threshold, cumulativePercent, maxCount, minValue, out kept, out retained, percents);
        }

        /// <summary>Marks a range of elements.</summary>
        /// <param name="out">out, n numbers: 1 at positions first..last, 0 elsewhere</param>
        /// <param name="n">number of elements</param>
        /// <param name="first">first position to mark, from 1; a position outside is left out</param>
        /// <param name="last">last position to mark, included</param>
        /// <returns>0</returns>
        public static int VB_GenerateIndicator(double[] @out, int n, int first, int last)
        {
            Room.Check("VB_GenerateIndicator", "out", @out, (long)n, 1);
            return Native.VB_GenerateIndicator(@out, n, first, last);
        }

        /// <summary>Marks a random subset of k out of n elements: those of the k smallest of n uniform
        /// draws.</summary>
        /// <param name="out">out, n numbers, 1 for the elements of the subset, 0 for the others</param>
        /// <param name="n">number of elements</param>
        /// <param name="k">size of the subset; below 1 none, from n on all</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_GenerateRandomIndicator(double[] @out, int n, int k, ref int seed, short flag,
            out int nextSeed)
        {
            Room.Check("VB_GenerateRandomIndicator", "out", @out, (long)n, 1);
            return Native.VB_GenerateRandomIndicator(@out, n, k, ref seed, flag, out nextSeed);
        }

        /// <summary>Puts a vector to the right of a table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="v">in, n numbers, for column cols + 1</param>
        /// <param name="n">length of the vector</param>
        /// <param name="out">out, outRows by outCols numbers; what falls outside of them is left out</param>
        /// <param name="outRows">rows of the result</param>
        /// <param name="outCols">columns of the result; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTableVect(double[] x, int rows, int cols, double[] v, int n, double[] @out,
            int outRows, int outCols)
        {
            Room.Check("VB_HMergeTableVect", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_HMergeTableVect", "v", v, (long)n, 1);
            Room.Check("VB_HMergeTableVect", "out", @out, (long)outRows, (outCols == 0 ? 1L : outCols));
            return Native.VB_HMergeTableVect(x, rows, cols, v, n, @out, outRows, outCols);
        }

        /// <summary>Adds a vector to the right of a table, in place.</summary>
        /// <param name="x">inout, rows by cols + 1 numbers, of which the last column receives the vector; rows that
        /// it does not have stay</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns that the table has already; 0 stands for 1</param>
        /// <param name="v">in, n numbers; those beyond rows are left out</param>
        /// <param name="n">length of the vector</param>
        /// <returns>0</returns>
        public static int VB_HMergeTableVect2(double[] x, int rows, int cols, double[] v, int n)
        {
            Room.Check("VB_HMergeTableVect2", "x", x, (long)rows, (cols == 0 ? 1L : cols) + 1);
            Room.Check("VB_HMergeTableVect2", "v", v, (long)n, 1);
            return Native.VB_HMergeTableVect2(x, rows, cols, v, n);
        }

        /// <summary>Puts two tables of flags side by side.</summary>
        /// <param name="a">in, rowsA by colsA flags</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns of the first table; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB flags</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <param name="out">out, max(rowsA, rowsB) by colsA + colsB flags: the columns of the first table, then
        /// those of the second</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesBool(short[] a, int rowsA, int colsA, short[] b, int rowsB, int colsB,
            short[] @out)
        {
            Room.Check("VB_HMergeTablesBool", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA));
            Room.Check("VB_HMergeTablesBool", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesBool", "out", @out, Math.Max((long)rowsA, (long)rowsB), (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesBool(a, rowsA, colsA, b, rowsB, colsB, @out);
        }

        /// <summary>Adds the columns of a table of flags to the right of another, in place.</summary>
        /// <param name="a">inout, rowsA by colsA + colsB flags, of which the last colsB columns receive the second
        /// table; of these, rows that it does not have stay</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB flags; rows beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesBool2(short[] a, int rowsA, int colsA, short[] b, int rowsB, int colsB)
        {
            Room.Check("VB_HMergeTablesBool2", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesBool2", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesBool2(a, rowsA, colsA, b, rowsB, colsB);
        }

        /// <summary>Puts two tables of numbers side by side.</summary>
        /// <param name="a">in, rowsA by colsA numbers</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns of the first table; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB numbers</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <param name="out">out, max(rowsA, rowsB) by colsA + colsB numbers: the columns of the first table, then
        /// those of the second</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesDbl(double[] a, int rowsA, int colsA, double[] b, int rowsB, int colsB,
            double[] @out)
        {
            Room.Check("VB_HMergeTablesDbl", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA));
            Room.Check("VB_HMergeTablesDbl", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesDbl", "out", @out, Math.Max((long)rowsA, (long)rowsB), (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesDbl(a, rowsA, colsA, b, rowsB, colsB, @out);
        }

        /// <summary>Adds the columns of a table of numbers to the right of another, in place.</summary>
        /// <param name="a">inout, rowsA by colsA + colsB numbers, of which the last colsB columns receive the
        /// second table; of these, rows that it does not have stay</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB numbers; rows beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesDbl2(double[] a, int rowsA, int colsA, double[] b, int rowsB, int colsB)
        {
            Room.Check("VB_HMergeTablesDbl2", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesDbl2", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesDbl2(a, rowsA, colsA, b, rowsB, colsB);
        }

        /// <summary>Adds the columns of a table of numbers to a chunked one, in place.</summary>
        /// <param name="a">inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers,
        /// of which the last colsB receive the second table</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already</param>
        /// <param name="b">in, rowsB by colsB numbers; rows beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesDbl2SPV(HostArray a, int rowsA, int colsA, double[] b, int rowsB, int colsB)
        {
            Room.Check("VB_HMergeTablesDbl2SPV", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesDbl2SPV(HostArray.Of(a), rowsA, colsA, b, rowsB, colsB);
        }

        /// <summary>Adds the columns of a chunked table of numbers to another, in place.</summary>
        /// <param name="a">inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers,
        /// of which the last colsB receive the second table</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already</param>
        /// <param name="b">in, host array of colsB records, each with a numeric column of rowsB numbers; rows
        /// beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesDbl2SPV2(HostArray a, int rowsA, int colsA, HostArray b, int rowsB, int colsB)
        {
            return Native.VB_HMergeTablesDbl2SPV2(HostArray.Of(a), rowsA, colsA, HostArray.Of(b), rowsB, colsB);
        }

        /// <summary>Adds the columns of a table of integers to the right of another, in place.</summary>
        /// <param name="a">inout, rowsA by colsA + colsB integers, of which the last colsB columns receive the
        /// second table; of these, rows that it does not have stay</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB integers; rows beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesLng2(int[] a, int rowsA, int colsA, int[] b, int rowsB, int colsB)
        {
            Room.Check("VB_HMergeTablesLng2", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesLng2", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            return Native.VB_HMergeTablesLng2(a, rowsA, colsA, b, rowsB, colsB);
        }

        /// <summary>Puts two tables of texts side by side.</summary>
        /// <param name="a">in, rowsA by colsA texts</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns of the first table; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB texts</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <param name="out">out, max(rowsA, rowsB) by colsA + colsB texts: the columns of the first table, then
        /// those of the second</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesStr(string[] a, int rowsA, int colsA, string[] b, int rowsB, int colsB,
            string[] @out)
        {
            Room.Check("VB_HMergeTablesStr", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA));
            Room.Check("VB_HMergeTablesStr", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesStr", "out", @out, Math.Max((long)rowsA, (long)rowsB), (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            using (var aTexts = new Texts("VB_HMergeTablesStr", "a", a))
            using (var bTexts = new Texts("VB_HMergeTablesStr", "b", b))
            using (var outTexts = new Texts("VB_HMergeTablesStr", "out", @out))
            {
                int answer = Native.VB_HMergeTablesStr(aTexts.Cells, rowsA, colsA, bTexts.Cells, rowsB, colsB, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Adds the columns of a table of texts to the right of another, in place.</summary>
        /// <param name="a">inout, rowsA by colsA + colsB texts, of which the last colsB columns receive the second
        /// table; of these, rows that it does not have stay</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns that the first table has already; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB texts; rows beyond rowsA are left out</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeTablesStr2(string[] a, int rowsA, int colsA, string[] b, int rowsB, int colsB)
        {
            Room.Check("VB_HMergeTablesStr2", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA) + (colsB == 0 ? 1L : colsB));
            Room.Check("VB_HMergeTablesStr2", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            using (var aTexts = new Texts("VB_HMergeTablesStr2", "a", a))
            using (var bTexts = new Texts("VB_HMergeTablesStr2", "b", b))
            {
                int answer = Native.VB_HMergeTablesStr2(aTexts.Cells, rowsA, colsA, bTexts.Cells, rowsB, colsB);
                aTexts.CopyTo(a);
                return answer;
            }
        }

        /// <summary>Puts a vector to the left of one column of a table.</summary>
        /// <param name="v">in, n numbers, for column 1</param>
        /// <param name="n">length of the vector</param>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the table's column, from 1, for column 2; one that it does not have gives -1</param>
        /// <param name="out">out, outRows by 2 numbers; what falls outside of them is left out</param>
        /// <param name="outRows">rows of the result</param>
        /// <returns>0</returns>
        public static int VB_HMergeVectColDbl(double[] v, int n, double[] x, int rows, int cols, int col, double[] @out,
            int outRows)
        {
            Room.Check("VB_HMergeVectColDbl", "v", v, (long)n, 1);
            Room.Check("VB_HMergeVectColDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_HMergeVectColDbl", "out", @out, (long)outRows, 2);
            return Native.VB_HMergeVectColDbl(v, n, x, rows, cols, col, @out, outRows);
        }

        /// <summary>Puts a vector to the left of a table.</summary>
        /// <param name="v">in, n numbers, for column 1</param>
        /// <param name="n">length of the vector</param>
        /// <param name="x">in, rows by cols numbers, for the columns from 2 on</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="out">out, outRows by outCols numbers; what falls outside of them is left out</param>
        /// <param name="outRows">rows of the result</param>
        /// <param name="outCols">columns of the result; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_HMergeVectTable(double[] v, int n, double[] x, int rows, int cols, double[] @out,
            int outRows, int outCols)
        {
            Room.Check("VB_HMergeVectTable", "v", v, (long)n, 1);
            Room.Check("VB_HMergeVectTable", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_HMergeVectTable", "out", @out, (long)outRows, (outCols == 0 ? 1L : outCols));
            return Native.VB_HMergeVectTable(v, n, x, rows, cols, @out, outRows, outCols);
        }

        /// <summary>Puts two vectors side by side.</summary>
        /// <param name="a">in, nA numbers</param>
        /// <param name="nA">length of the first vector</param>
        /// <param name="b">in, nB numbers</param>
        /// <param name="nB">length of the second vector</param>
        /// <param name="out">out, max(nA, nB) by 2 numbers</param>
        /// <returns>0</returns>
        public static int VB_HMergeVectors(double[] a, int nA, double[] b, int nB, double[] @out)
        {
            Room.Check("VB_HMergeVectors", "a", a, (long)nA, 1);
            Room.Check("VB_HMergeVectors", "b", b, (long)nB, 1);
            Room.Check("VB_HMergeVectors", "out", @out, Math.Max((long)nA, (long)nB), 2);
            return Native.VB_HMergeVectors(a, nA, b, nB, @out);
        }

        /// <summary>Sets flags to false.</summary>
        /// <param name="flags">out, n flags, each 0 on return</param>
        /// <param name="n">number of flags</param>
        /// <returns>0</returns>
        public static int VB_InitVectorToFalse(short[] flags, int n)
        {
            Room.Check("VB_InitVectorToFalse", "flags", flags, (long)n, 1);
            return Native.VB_InitVectorToFalse(flags, n);
        }

        /// <summary>Sets flags to true.</summary>
        /// <param name="flags">out, n flags, each -1 on return</param>
        /// <param name="n">number of flags</param>
        /// <returns>0</returns>
        public static int VB_InitVectorToTrue(short[] flags, int n)
        {
            Room.Check("VB_InitVectorToTrue", "flags", flags, (long)n, 1);
            return Native.VB_InitVectorToTrue(flags, n);
        }

        /// <summary>Tells whether a number is missing: whether it is at or below the sentinel
        /// -1.79769313486231e308.</summary>
        /// <param name="x">a number; a NaN is not missing</param>
        /// <returns>-1 when missing, otherwise 0</returns>
        public static short VB_IsMissingValueDbl(double x)
        {
            return Native.VB_IsMissingValueDbl(x);
        }

        /// <summary>Tells whether a cell, rendered as text, is empty.</summary>
        /// <param name="cell">in, one cell of any type, or a reference to one. A text is missing when it has no
        /// characters before its first NUL; a number, a date or a Boolean never is; an empty cell always is</param>
        /// <returns>-1 when missing, otherwise 0</returns>
        public static short VB_IsMissingValueStr(IntPtr cell)
        {
            return Native.VB_IsMissingValueStr(cell);
        }

        /// <summary>Mean absolute error, weighted.</summary>
        /// <param name="actual">in, n values observed</param>
        /// <param name="predicted">in, n values forecast</param>
        /// <param name="n">number of rows</param>
        /// <param name="w">in, n weights; null: all 1.0</param>
        /// <param name="first">first row, from 1</param>
        /// <returns>the error; the missing number when first is above n or the weights add up to 0</returns>
        public static double VB_MAE(double[] actual, double[] predicted, int n, double[] w, int first)
        {
            Room.Check("VB_MAE", "actual", actual, (long)n, 1);
            Room.Check("VB_MAE", "predicted", predicted, (long)n, 1);
            Room.Check("VB_MAE", "w", w, (long)n, 1, true);
            return Native.VB_MAE(actual, predicted, n, w, first);
        }

        /// <summary>Mean absolute percentage error, weighted, over the rows whose observed value is not
        /// 0.</summary>
        /// <param name="actual">in, n values observed</param>
        /// <param name="predicted">in, n values forecast</param>
        /// <param name="n">number of rows</param>
        /// <param name="w">in, n weights; null: all 1.0</param>
        /// <param name="first">first row, from 1; 0 stands for 1</param>
        /// <returns>the error in percent; 0.0 when no row counts</returns>
        public static double VB_MAPE(double[] actual, double[] predicted, int n, double[] w, int first)
        {
            Room.Check("VB_MAPE", "actual", actual, (long)n, 1);
            Room.Check("VB_MAPE", "predicted", predicted, (long)n, 1);
            Room.Check("VB_MAPE", "w", w, (long)n, 1, true);
            return Native.VB_MAPE(actual, predicted, n, w, first);
        }

        /// <summary>Mean percentage error, weighted, over the rows whose observed value is not 0.</summary>
        /// <param name="actual">in, n values observed</param>
        /// <param name="predicted">in, n values forecast</param>
        /// <param name="n">number of rows</param>
        /// <param name="w">in, n weights; null: all 1.0</param>
        /// <param name="first">first row, from 1</param>
        /// <returns>the error in percent; the missing number when first is above n or the weights add up to
        /// 0</returns>
        public static double VB_MPE(double[] actual, double[] predicted, int n, double[] w, int first)
        {
            Room.Check("VB_MPE", "actual", actual, (long)n, 1);
            Room.Check("VB_MPE", "predicted", predicted, (long)n, 1);
            Room.Check("VB_MPE", "w", w, (long)n, 1, true);
            return Native.VB_MPE(actual, predicted, n, w, first);
        }

        /// <summary>c(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">what is added</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_APlusVal(double[] a, int n, int p, double s, double[] c)
        {
            Room.Check("VB_M_APlusVal", "a", a, (long)n, (long)p);
            Room.Check("VB_M_APlusVal", "c", c, (long)n, (long)p);
            return Native.VB_M_APlusVal(a, n, p, s, c);
        }

        /// <summary>a(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.</summary>
        /// <param name="a">inout, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">what is added</param>
        /// <returns>0</returns>
        public static int VB_M_APlusVal2(double[] a, int n, int p, double s)
        {
            Room.Check("VB_M_APlusVal2", "a", a, (long)n, (long)p);
            return Native.VB_M_APlusVal2(a, n, p, s);
        }

        /// <summary>Flags the flagged rows that have nothing but missing numbers.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="flagsIn">in, n flags, one for each row; only rows with -1 are looked at</param>
        /// <param name="flagsOut">inout, n flags, one for each row: -1 for one that has nothing but missing cells;
        /// the others stay</param>
        /// <returns>0</returns>
        public static int VB_M_AllMissingRows(double[] x, int n, int p, short[] flagsIn, short[] flagsOut)
        {
            Room.Check("VB_M_AllMissingRows", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_M_AllMissingRows", "flagsIn", flagsIn, (long)n, 1);
            Room.Check("VB_M_AllMissingRows", "flagsOut", flagsOut, (long)n, 1);
            return Native.VB_M_AllMissingRows(x, n, p, flagsIn, flagsOut);
        }

        /// <summary>Flags the flagged rows that have nothing but empty texts.</summary>
        /// <param name="x">in, n by p texts</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="flagsIn">in, n flags, one for each row; only rows with -1 are looked at</param>
        /// <param name="flagsOut">inout, n flags, one for each row: -1 for one that has nothing but missing cells;
        /// the others stay</param>
        /// <returns>0</returns>
        public static int VB_M_AllMissingRowsStr(string[] x, int n, int p, short[] flagsIn, short[] flagsOut)
        {
            Room.Check("VB_M_AllMissingRowsStr", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_M_AllMissingRowsStr", "flagsIn", flagsIn, (long)n, 1);
            Room.Check("VB_M_AllMissingRowsStr", "flagsOut", flagsOut, (long)n, 1);
            using (var xTexts = new Texts("VB_M_AllMissingRowsStr", "x", x))
                return Native.VB_M_AllMissingRowsStr(xTexts.Cells, n, p, flagsIn, flagsOut);
        }

        /// <summary>0 for a number closer to 0 than the machine epsilon, 1 for any other. A missing number stays
        /// missing.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="result">out, n by p numbers; may be x</param>
        /// <returns>0</returns>
        public static int VB_M_Binarize(double[] x, int n, int p, double[] result)
        {
            Room.Check("VB_M_Binarize", "x", x, (long)n, (long)p);
            Room.Check("VB_M_Binarize", "result", result, (long)n, (long)p);
            return Native.VB_M_Binarize(x, n, p, result);
        }

        /// <summary>0 for a number closer to 0 than the machine epsilon, 1 for any other, in place. A missing
        /// number becomes 1.</summary>
        /// <param name="x">inout, n by p numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <returns>0</returns>
        public static int VB_M_Binarize2(double[] x, int n, int p)
        {
            Room.Check("VB_M_Binarize2", "x", x, (long)n, (long)p);
            return Native.VB_M_Binarize2(x, n, p);
        }

        /// <summary>The same of a chunked table.</summary>
        /// <param name="x">inout, p columns of n numbers</param>
        /// <param name="p">number of columns</param>
        /// <param name="n">number of rows</param>
        /// <returns>0</returns>
        public static int VB_M_Binarize2SPV(HostArray x, int p, int n)
        {
            return Native.VB_M_Binarize2SPV(HostArray.Of(x), p, n);
        }

        /// <summary>Centres into a result.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows by cols numbers; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_M_Center(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_Center", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Center", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_Center(x, rows, cols, @out);
        }

        /// <summary>Centres in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <returns>0</returns>
        public static int VB_M_Center2(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_Center2", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Center2(x, rows, cols);
        }

        /// <summary>The same on a table of separate columns.</summary>
        /// <param name="x">inout, cols columns of rows numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <returns>0</returns>
        public static int VB_M_Center2SPV(HostArray x, int rows, int cols)
        {
            return Native.VB_M_Center2SPV(HostArray.Of(x), rows, cols);
        }

        /// <summary>Centres, with weights, into a result.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="out">out, rows by cols numbers; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_CenterW(double[] x, int rows, int cols, double[] w, double[] @out)
        {
            Room.Check("VB_M_CenterW", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_CenterW", "w", w, (long)rows, 1);
            Room.Check("VB_M_CenterW", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_CenterW(x, rows, cols, w, @out);
        }

        /// <summary>Centres, with weights, in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights; may be a column of x</param>
        /// <returns>0</returns>
        public static int VB_M_CenterW2(double[] x, int rows, int cols, double[] w)
        {
            Room.Check("VB_M_CenterW2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_CenterW2", "w", w, (long)rows, 1);
            return Native.VB_M_CenterW2(x, rows, cols, w);
        }

        /// <summary>Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no
        /// negative cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked
        /// for. Missing cells off the diagonal are passed over.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
        /// table that is not square or has no rows</returns>
        public static int VB_M_CheckIfSimOrDissim(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_CheckIfSimOrDissim", "x", x, (long)rows, (long)cols);
            return Native.VB_M_CheckIfSimOrDissim(x, rows, cols);
        }

        /// <summary>Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no
        /// negative cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked
        /// for. Missing cells off the diagonal are passed over.</summary>
        /// <param name="x">in, chunked table of cols columns of rows numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
        /// table that is not square or has no rows</returns>
        public static int VB_M_CheckIfSimOrDissimSPV(HostArray x, int rows, int cols)
        {
            return Native.VB_M_CheckIfSimOrDissimSPV(HostArray.Of(x), rows, cols);
        }

        /// <summary>Cholesky decomposition.</summary>
        /// <param name="a">in, n by n numbers, column after column, of which the upper half is read</param>
        /// <param name="n">rows and columns</param>
        /// <param name="l">out, n by n numbers, column after column; 0 above the diagonal, and, on failure, in the
        /// columns that were not finished. May be the array that is read</param>
        /// <returns>0; -1: a is not positive definite</returns>
        public static int VB_M_CholDecomp(double[] a, int n, double[] l)
        {
            Room.Check("VB_M_CholDecomp", "a", a, (long)n, (long)n);
            Room.Check("VB_M_CholDecomp", "l", l, (long)n, (long)n);
            return Native.VB_M_CholDecomp(a, n, l);
        }

        /// <summary>Cholesky factor of the free rows and columns. A pivot fails when it is below 0, or is 0 and has
        /// elements below it: a positive semidefinite table may pass.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns</param>
        /// <param name="constraints">in, n integers</param>
        /// <param name="l">inout, n by n numbers; the columns of free positions are written whole, with 0 in the
        /// other rows. The other columns stay as they are, and so does all of l on failure</param>
        /// <returns>0; -1: a pivot fails</returns>
        public static int VB_M_CholDecompCleaned(double[] a, int n, int[] constraints, double[] l)
        {
            Room.Check("VB_M_CholDecompCleaned", "a", a, (long)n, (long)n);
            Room.Check("VB_M_CholDecompCleaned", "constraints", constraints, (long)n, 1);
            Room.Check("VB_M_CholDecompCleaned", "l", l, (long)n, (long)n);
            return Native.VB_M_CholDecompCleaned(a, n, constraints, l);
        }

        /// <summary>Cholesky decomposition with rows and columns exchanged alike. What is brought to the front is
        /// chosen by a score that takes off the pivot before only, so it is not the order of complete pivoting. The
        /// work ends at the first pivot below 1e-12.</summary>
        /// <param name="a">inout, n by n numbers, column after column</param>
        /// <param name="n">rows and columns</param>
        /// <param name="l">out, n by n numbers, the factor of the permuted table, as far as it goes</param>
        /// <param name="perm">out, n integers; element i is the number, from 1, of the variable at position
        /// i</param>
        /// <param name="replaceInput">true only when -1: a is replaced by the permuted table, on failure
        /// too</param>
        /// <returns>0; -1: a pivot was below 1e-12</returns>
        public static int VB_M_CholDecompPrinc(double[] a, int n, double[] l, int[] perm, short replaceInput)
        {
            Room.Check("VB_M_CholDecompPrinc", "a", a, (long)n, (long)n);
            Room.Check("VB_M_CholDecompPrinc", "l", l, (long)n, (long)n);
            Room.Check("VB_M_CholDecompPrinc", "perm", perm, (long)n, 1);
            return Native.VB_M_CholDecompPrinc(a, n, l, perm, replaceInput);
        }

        /// <summary>Copies a block of a table of numbers.</summary>
        /// <param name="x">in, rows by cols numbers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block</param>
        /// <param name="lastCol">last column of the block; below firstCol nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by lastCol - firstCol + 1 numbers</param>
        /// <returns>0</returns>
        public static int VB_M_CopyBlock(double[] x, int rows, int cols, int firstRow, int lastRow, int firstCol,
            int lastCol, double[] @out)
        {
            Room.Check("VB_M_CopyBlock", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyBlock", "out", @out, (long)lastRow - (long)firstRow + 1, (long)lastCol - (long)firstCol + 1);
            return Native.VB_M_CopyBlock(x, rows, cols, firstRow, lastRow, firstCol, lastCol, @out);
        }

        /// <summary>Copies a block of a chunked table.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block, at least 1</param>
        /// <param name="lastCol">last column of the block, at most cols; below firstCol nothing is done</param>
        /// <param name="out">inout, host array of a record for each column of the block, each with a numeric column
        /// of as many numbers as the block has rows</param>
        /// <returns>0</returns>
        public static int VB_M_CopyBlockSPV(HostArray x, int rows, int cols, int firstRow, int lastRow, int firstCol,
            int lastCol, HostArray @out)
        {
            return Native.VB_M_CopyBlockSPV(HostArray.Of(x), rows, cols, firstRow, lastRow, firstCol, lastCol, HostArray.Of(@out));
        }

        /// <summary>Copies a block of a table of texts.</summary>
        /// <param name="x">in, rows by cols texts; cells outside of them read as the empty text</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the block</param>
        /// <param name="lastRow">last row of the block; below firstRow nothing is done</param>
        /// <param name="firstCol">first column of the block</param>
        /// <param name="lastCol">last column of the block; below firstCol nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by lastCol - firstCol + 1 texts</param>
        /// <returns>0</returns>
        public static int VB_M_CopyBlockStr(string[] x, int rows, int cols, int firstRow, int lastRow, int firstCol,
            int lastCol, string[] @out)
        {
            Room.Check("VB_M_CopyBlockStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyBlockStr", "out", @out, (long)lastRow - (long)firstRow + 1, (long)lastCol - (long)firstCol + 1);
            using (var xTexts = new Texts("VB_M_CopyBlockStr", "x", x))
            using (var outTexts = new Texts("VB_M_CopyBlockStr", "out", @out))
            {
                int answer = Native.VB_M_CopyBlockStr(xTexts.Cells, rows, cols, firstRow, lastRow, firstCol, lastCol, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Copies a table of numbers into another shape. Cells that it does not have become -1.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">out, newRows by newCols numbers; may be x</param>
        /// <param name="newRows">rows of the result</param>
        /// <param name="newCols">columns of the result; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_M_CopyResize(double[] x, int rows, int cols, double[] y, int newRows, int newCols)
        {
            Room.Check("VB_M_CopyResize", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyResize", "y", y, (long)newRows, (newCols == 0 ? 1L : newCols));
            return Native.VB_M_CopyResize(x, rows, cols, y, newRows, newCols);
        }

        /// <summary>Copies a table of flags into another shape. Cells that it does not have become 0.</summary>
        /// <param name="x">in, rows by cols flags</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">out, newRows by newCols flags; may be x</param>
        /// <param name="newRows">rows of the result</param>
        /// <param name="newCols">columns of the result; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_M_CopyResizeBool(short[] x, int rows, int cols, short[] y, int newRows, int newCols)
        {
            Room.Check("VB_M_CopyResizeBool", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyResizeBool", "y", y, (long)newRows, (newCols == 0 ? 1L : newCols));
            return Native.VB_M_CopyResizeBool(x, rows, cols, y, newRows, newCols);
        }

        /// <summary>Copies a table of texts into another shape. Cells that it does not have become the empty
        /// text.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">out, newRows by newCols texts; may be x</param>
        /// <param name="newRows">rows of the result</param>
        /// <param name="newCols">columns of the result; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_M_CopyResizeStr(string[] x, int rows, int cols, string[] y, int newRows, int newCols)
        {
            Room.Check("VB_M_CopyResizeStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyResizeStr", "y", y, (long)newRows, (newCols == 0 ? 1L : newCols));
            using (var xTexts = new Texts("VB_M_CopyResizeStr", "x", x))
            using (var yTexts = new Texts("VB_M_CopyResizeStr", "y", y))
            {
                int answer = Native.VB_M_CopyResizeStr(xTexts.Cells, rows, cols, yTexts.Cells, newRows, newCols);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Copies a table to the top left corner of a larger one, of which all other cells stay. What
        /// would fall outside of it is left out.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols numbers; may be x</param>
        /// <param name="yRows">rows of the larger table</param>
        /// <param name="yCols">columns of the larger table; 0 stands for 1</param>
        /// <returns>0</returns>
        public static int VB_M_CopyToBigger(double[] x, int rows, int cols, double[] y, int yRows, int yCols)
        {
            Room.Check("VB_M_CopyToBigger", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_CopyToBigger", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_M_CopyToBigger(x, rows, cols, y, yRows, yCols);
        }

        /// <summary>Correlations from covariances: each cell over the root of the product of the two variances on
        /// the diagonal, where that product is greater than 0. The diagonal is 1.0 where the variance is greater
        /// than 1e-12. All other cells are undefined.</summary>
        /// <param name="cov">in, n by n covariances, read cell by cell: they need not be symmetric</param>
        /// <param name="n">order</param>
        /// <param name="out">out, n by n correlations</param>
        /// <param name="bUndefinedIsZero">not 0: an undefined cell is 0.0; otherwise it is missing</param>
        /// <returns>0</returns>
        public static int VB_M_CorrMatFromCovMat(double[] cov, int n, double[] @out, short bUndefinedIsZero)
        {
            Room.Check("VB_M_CorrMatFromCovMat", "cov", cov, (long)n, (long)n);
            Room.Check("VB_M_CorrMatFromCovMat", "out", @out, (long)n, (long)n);
            return Native.VB_M_CorrMatFromCovMat(cov, n, @out, bUndefinedIsZero);
        }

        /// <summary>Covariances, or correlations, of each column of one table with each column of another. The
        /// variances behind a correlation are those over the rows common to the pair.</summary>
        /// <param name="x">in, rows by colsX numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="colsX">columns of x</param>
        /// <param name="y">in, rows by colsY numbers</param>
        /// <param name="colsY">columns of y</param>
        /// <param name="out">out, colsX by colsY numbers</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bCorr">not 0: correlations, where the magnitude of the product of the variances is greater
        /// than 1e-12; elsewhere the cell is undefined</param>
        /// <param name="bSquare">not 0: correlations are squared</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bUndefinedIsZero">not 0: an undefined cell is 0.0; otherwise it is missing</param>
        /// <returns>0</returns>
        public static int VB_M_CorrMatMat(double[] x, int rows, int colsX, double[] y, int colsY, double[] @out,
            short[] iMissing, double[] w, short bCorr, short bSquare, short bUnbiased, short bFreq,
            short bUndefinedIsZero)
        {
            Room.Check("VB_M_CorrMatMat", "x", x, (long)rows, (long)colsX);
            Room.Check("VB_M_CorrMatMat", "y", y, (long)rows, (long)colsY);
            Room.Check("VB_M_CorrMatMat", "out", @out, (long)colsX, (long)colsY);
            Room.Check("VB_M_CorrMatMat", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_CorrMatMat", "w", w, (long)rows, 1);
            return Native.VB_M_CorrMatMat(x, rows, colsX, y, colsY, @out, iMissing, w, bCorr, bSquare, bUnbiased, bFreq, bUndefinedIsZero);
        }

        /// <summary>VB_M_CorrMatMat on tables of separate columns.</summary>
        /// <param name="x">in, host array of colsX columns of rows numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="colsX">columns of x</param>
        /// <param name="y">in, host array of colsY columns of rows numbers</param>
        /// <param name="colsY">columns of y</param>
        /// <param name="out">inout, host array of colsY columns that receive colsX numbers each</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bCorr">not 0: correlations, where the magnitude of the product of the variances is greater
        /// than 1e-12; elsewhere the cell is undefined</param>
        /// <param name="bSquare">not 0: correlations are squared</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bUndefinedIsZero">not 0: an undefined cell is 0.0; otherwise it is missing</param>
        /// <returns>0</returns>
        public static int VB_M_CorrMatMatSPV(HostArray x, int rows, int colsX, HostArray y, int colsY, HostArray @out,
            short[] iMissing, double[] w, short bCorr, short bSquare, short bUnbiased, short bFreq,
            short bUndefinedIsZero)
        {
            Room.Check("VB_M_CorrMatMatSPV", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_CorrMatMatSPV", "w", w, (long)rows, 1);
            return Native.VB_M_CorrMatMatSPV(HostArray.Of(x), rows, colsX, HostArray.Of(y), colsY, HostArray.Of(@out), iMissing, w, bCorr, bSquare, bUnbiased, bFreq, bUndefinedIsZero);
        }

        /// <summary>Covariances, or correlations, of all pairs of columns. A correlation is defined when the
        /// product of the variances is other than 0.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols by cols numbers, both halves</param>
        /// <param name="bCorr">not 0: correlations</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bUndefinedIsZero">what an undefined cell is; true unless 0</param>
        /// <returns>0</returns>
        public static int VB_M_CovCorr(double[] x, int rows, int cols, double[] @out, short bCorr, short[] iMissing,
            double[] w, short bUnbiased, short bFreq, short bUndefinedIsZero)
        {
            Room.Check("VB_M_CovCorr", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_CovCorr", "out", @out, (long)cols, (long)cols);
            Room.Check("VB_M_CovCorr", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_CovCorr", "w", w, (long)rows, 1);
            return Native.VB_M_CovCorr(x, rows, cols, @out, bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero);
        }

        /// <summary>Covariances, or correlations, with the mean, the standard deviation and the variance of each
        /// column; on request the table itself is centred and reduced. A correlation is defined when the product of
        /// the variances is greater than 0.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols by cols numbers, both halves</param>
        /// <param name="means">out, cols means; missing for a column without rows</param>
        /// <param name="sds">out, cols deviations: the root of a variance greater than 0, any other variance as it
        /// is</param>
        /// <param name="vars">out, cols variances; missing for a column without rows</param>
        /// <param name="bCorr">-1: correlations</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bCenter">-1: each number that is neither missing nor in a flagged row loses the mean of its
        /// column</param>
        /// <param name="bReduce">-1: it is divided by the deviation, after the mean is subtracted if bCenter asks
        /// for that; a column whose variance is not greater than 0 stays as it is</param>
        /// <param name="bUndefinedIsZero">what an undefined cell is; true unless 0</param>
        /// <returns>0</returns>
        public static int VB_M_CovCorrAndMeanStDevVar(double[] x, int rows, int cols, double[] @out, double[] means,
            double[] sds, double[] vars, short bCorr, short[] iMissing, double[] w, short bUnbiased, short bFreq,
            short bCenter, short bReduce, short bUndefinedIsZero)
        {
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "out", @out, (long)cols, (long)cols);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "means", means, (long)cols, 1);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "sds", sds, (long)cols, 1);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "vars", vars, (long)cols, 1);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_CovCorrAndMeanStDevVar", "w", w, (long)rows, 1);
            return Native.VB_M_CovCorrAndMeanStDevVar(x, rows, cols, @out, means, sds, vars, bCorr, iMissing, w, bUnbiased, bFreq, bCenter, bReduce, bUndefinedIsZero);
        }

        /// <summary>The same as VB_M_CovCorrAndMeanStDevVar.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols by cols numbers</param>
        /// <param name="means">out, cols means</param>
        /// <param name="sds">out, cols deviations</param>
        /// <param name="vars">out, cols variances</param>
        /// <param name="bCorr">-1: correlations</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="bCenter">-1: the table is centred</param>
        /// <param name="bReduce">-1: it is reduced</param>
        /// <param name="bUndefinedIsZero">what an undefined cell is; true unless 0</param>
        /// <returns>0</returns>
        public static int VB_M_CovCorrVAndMeanStDevVar(double[] x, int rows, int cols, double[] @out, double[] means,
            double[] sds, double[] vars, short bCorr, short[] iMissing, double[] w, short bUnbiased, short bFreq,
            short bCenter, short bReduce, short bUndefinedIsZero)
        {
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "out", @out, (long)cols, (long)cols);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "means", means, (long)cols, 1);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "sds", sds, (long)cols, 1);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "vars", vars, (long)cols, 1);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_CovCorrVAndMeanStDevVar", "w", w, (long)rows, 1);
            return Native.VB_M_CovCorrVAndMeanStDevVar(x, rows, cols, @out, means, sds, vars, bCorr, iMissing, w, bUnbiased, bFreq, bCenter, bReduce, bUndefinedIsZero);
        }

        /// <summary>Merges rows that are equal, exactly, in all data columns. The kept rows come first, in the
        /// order of their identifiers, then the dropped ones.</summary>
        /// <param name="x">in, rows by p + 1 numbers: p data columns, then an identifier of the row</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="p">number of data columns</param>
        /// <param name="nOut">out, one integer: the number of rows kept</param>
        /// <param name="out">out, rows by p + 3 numbers: the data, the number of rows merged (0 for a dropped row),
        /// the identifier, and 1 for a kept row, 0 for a dropped one</param>
        /// <returns>0</returns>
        public static int VB_M_Dedupe(double[] x, int rows, int p, out int nOut, double[] @out)
        {
            Room.Check("VB_M_Dedupe", "x", x, (long)rows, (long)p + 1);
            Room.Check("VB_M_Dedupe", "out", @out, (long)rows, (long)p + 3);
            return Native.VB_M_Dedupe(x, rows, p, out nOut, @out);
        }

        /// <summary>The determinant, as the exponential of the logarithms of the pivots of an LU
        /// decomposition.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns</param>
        /// <param name="status">out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is
        /// above 709, or memory is short; 1: all of the first column is NaN</param>
        /// <returns>the determinant; 0.0 for a singular table, for a pivot below 1e-24 in magnitude, for a
        /// logarithm below -708, for a row of zeros and a first column of NaN; 1.79769313486231e308 when the
        /// logarithm is above 709 or memory is short; 1.0 when n is 0</returns>
        public static double VB_M_Determinant(double[] a, int n, out short status)
        {
            Room.Check("VB_M_Determinant", "a", a, (long)n, (long)n);
            return Native.VB_M_Determinant(a, n, out status);
        }

        /// <summary>The determinant of the free rows and columns.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="n">rows and columns</param>
        /// <param name="constraints">in, n integers</param>
        /// <param name="status">out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is
        /// above 709, or memory is short; 1: all of the first column is NaN</param>
        /// <returns>the determinant, as VB_M_Determinant returns it; 1.0 when no position is left</returns>
        public static double VB_M_DeterminantCleaned(double[] a, int n, int[] constraints, out short status)
        {
            Room.Check("VB_M_DeterminantCleaned", "a", a, (long)n, (long)n);
            Room.Check("VB_M_DeterminantCleaned", "constraints", constraints, (long)n, 1);
            return Native.VB_M_DeterminantCleaned(a, n, constraints, out status);
        }

        /// <summary>The determinant of a triangular table: the product of its diagonal, by logarithms.</summary>
        /// <param name="a">in, n by n numbers, column after column, of which the diagonal is read</param>
        /// <param name="n">rows and columns</param>
        /// <param name="status">out, one status: 0</param>
        /// <returns>the determinant; 0.0 when an element of the diagonal is 0</returns>
        public static double VB_M_DeterminantTriang(double[] a, int n, out short status)
        {
            Room.Check("VB_M_DeterminantTriang", "a", a, (long)n, (long)n);
            return Native.VB_M_DeterminantTriang(a, n, out status);
        }

        /// <summary>Copies a table of numbers into another.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols numbers; may be x</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int VB_M_DuplicateDbl(double[] x, int rows, int cols, double[] y, int yRows, int yCols, int row,
            int col)
        {
            Room.Check("VB_M_DuplicateDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_DuplicateDbl", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_M_DuplicateDbl(x, rows, cols, y, yRows, yCols, row, col);
        }

        /// <summary>Copies a table of integers into another.</summary>
        /// <param name="x">in, rows by cols integers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols integers; may be x</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int VB_M_DuplicateLng(int[] x, int rows, int cols, int[] y, int yRows, int yCols, int row,
            int col)
        {
            Room.Check("VB_M_DuplicateLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_DuplicateLng", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_M_DuplicateLng(x, rows, cols, y, yRows, yCols, row, col);
        }

        /// <summary>Copies a table of texts into another.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols texts; may be x</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int VB_M_DuplicateStr(string[] x, int rows, int cols, string[] y, int yRows, int yCols, int row,
            int col)
        {
            Room.Check("VB_M_DuplicateStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_DuplicateStr", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            using (var xTexts = new Texts("VB_M_DuplicateStr", "x", x))
            using (var yTexts = new Texts("VB_M_DuplicateStr", "y", y))
            {
                int answer = Native.VB_M_DuplicateStr(xTexts.Cells, rows, cols, yTexts.Cells, yRows, yCols, row, col);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Copies a chunked table of texts into a dense one.</summary>
        /// <param name="x">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, yRows by yCols texts</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="yCols">columns of y; 0 stands for 1</param>
        /// <param name="row">row of y for the first row of x</param>
        /// <param name="col">column of y for the first column of x</param>
        /// <returns>0</returns>
        public static int VB_M_DuplicateStrSPV(HostArray x, int rows, int cols, string[] y, int yRows, int yCols,
            int row, int col)
        {
            Room.Check("VB_M_DuplicateStrSPV", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            using (var yTexts = new Texts("VB_M_DuplicateStrSPV", "y", y))
            {
                int answer = Native.VB_M_DuplicateStrSPV(HostArray.Of(x), rows, cols, yTexts.Cells, yRows, yCols, row, col);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Eigenvalues and eigenvectors of a symmetric table.</summary>
        /// <param name="a">in, n by n numbers, column after column</param>
        /// <param name="values">out, n eigenvalues, written unless -1 is returned; may be a</param>
        /// <param name="vectors">out, n by n numbers, the eigenvector of value k in column k, written unless -1 is
        /// returned; may be a</param>
        /// <param name="n">order; with 0 nothing is read or written</param>
        /// <param name="sortFlag">true only when -1: the values descend, and equal ones keep their order. Otherwise
        /// they stand in the order in which they were found</param>
        /// <returns>0; -1 when an element is missing, a value did not converge within 28 sweeps, or memory is short
        /// in the work</returns>
        public static int VB_M_Eigen(double[] a, double[] values, double[] vectors, int n, short sortFlag)
        {
            Room.Check("VB_M_Eigen", "a", a, (long)n, (long)n);
            Room.Check("VB_M_Eigen", "values", values, (long)n, 1);
            Room.Check("VB_M_Eigen", "vectors", vectors, (long)n, (long)n);
            return Native.VB_M_Eigen(a, values, vectors, n, sortFlag);
        }

        /// <summary>Weighted Euclidean distances between the columns, or between rows: the root of the sum of w * d
        /// * d, d being the difference of two coordinates.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights, or cols weights when bRows is -1, one for each coordinate</param>
        /// <param name="out">out, cols by cols distances, or nRows by nRows distances when bRows is -1</param>
        /// <param name="bRows">-1: between rows; otherwise between columns</param>
        /// <param name="nRows">the number of first rows to compare; not used between columns</param>
        /// <returns>0</returns>
        public static int VB_M_EuclidDist2(double[] x, int rows, int cols, double[] w, double[] @out, short bRows,
            int nRows)
        {
            Room.Check("VB_M_EuclidDist2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_EuclidDist2", "w", w, bRows == -1 ? (long)cols : (long)rows, bRows == -1 ? 1 : 1);
            Room.Check("VB_M_EuclidDist2", "out", @out, bRows == -1 ? (long)nRows : (long)cols, bRows == -1 ? (long)nRows : (long)cols);
            return Native.VB_M_EuclidDist2(x, rows, cols, w, @out, bRows, nRows);
        }

        /// <summary>Takes a range of columns of a table. A column that it does not have gives -1.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstCol">first column of the range</param>
        /// <param name="lastCol">last column of the range; below firstCol nothing is done</param>
        /// <param name="out">out, rows by lastCol - firstCol + 1 numbers</param>
        /// <returns>0</returns>
        public static int VB_M_ExtractMatToMatByColDbl(double[] x, int rows, int cols, int firstCol, int lastCol,
            double[] @out)
        {
            Room.Check("VB_M_ExtractMatToMatByColDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_ExtractMatToMatByColDbl", "out", @out, (long)rows, (long)lastCol - (long)firstCol + 1);
            return Native.VB_M_ExtractMatToMatByColDbl(x, rows, cols, firstCol, lastCol, @out);
        }

        /// <summary>Takes a range of rows of a table of numbers. A row that it does not have gives -1.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the range</param>
        /// <param name="lastRow">last row of the range; below firstRow nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by cols numbers</param>
        /// <returns>0</returns>
        public static int VB_M_ExtractMatToMatDbl(double[] x, int rows, int cols, int firstRow, int lastRow,
            double[] @out)
        {
            Room.Check("VB_M_ExtractMatToMatDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_ExtractMatToMatDbl", "out", @out, (long)lastRow - (long)firstRow + 1, (cols == 0 ? 1L : cols));
            return Native.VB_M_ExtractMatToMatDbl(x, rows, cols, firstRow, lastRow, @out);
        }

        /// <summary>Takes a range of rows of a chunked table of numbers. A row that it does not have gives
        /// -1.</summary>
        /// <param name="x">in, host array of cols records, each with a numeric column of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="firstRow">first row of the range</param>
        /// <param name="lastRow">last row of the range; below firstRow nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by cols numbers</param>
        /// <returns>0</returns>
        public static int VB_M_ExtractMatToMatDblSPV(HostArray x, int rows, int cols, int firstRow, int lastRow,
            double[] @out)
        {
            Room.Check("VB_M_ExtractMatToMatDblSPV", "out", @out, (long)lastRow - (long)firstRow + 1, (long)cols);
            return Native.VB_M_ExtractMatToMatDblSPV(HostArray.Of(x), rows, cols, firstRow, lastRow, @out);
        }

        /// <summary>Takes a range of rows of a table of texts. A row that it does not have gives empty
        /// texts.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="firstRow">first row of the range</param>
        /// <param name="lastRow">last row of the range; below firstRow nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by cols texts</param>
        /// <returns>0</returns>
        public static int VB_M_ExtractMatToMatStr(string[] x, int rows, int cols, int firstRow, int lastRow,
            string[] @out)
        {
            Room.Check("VB_M_ExtractMatToMatStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_ExtractMatToMatStr", "out", @out, (long)lastRow - (long)firstRow + 1, (cols == 0 ? 1L : cols));
            using (var xTexts = new Texts("VB_M_ExtractMatToMatStr", "x", x))
            using (var outTexts = new Texts("VB_M_ExtractMatToMatStr", "out", @out))
            {
                int answer = Native.VB_M_ExtractMatToMatStr(xTexts.Cells, rows, cols, firstRow, lastRow, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Takes a range of rows of a chunked table of texts. A row that it does not have gives empty
        /// texts.</summary>
        /// <param name="x">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="firstRow">first row of the range</param>
        /// <param name="lastRow">last row of the range; below firstRow nothing is done</param>
        /// <param name="out">out, lastRow - firstRow + 1 by cols texts</param>
        /// <returns>0</returns>
        public static int VB_M_ExtractMatToMatStrSPV(HostArray x, int rows, int cols, int firstRow, int lastRow,
            string[] @out)
        {
            Room.Check("VB_M_ExtractMatToMatStrSPV", "out", @out, (long)lastRow - (long)firstRow + 1, (long)cols);
            using (var outTexts = new Texts("VB_M_ExtractMatToMatStrSPV", "out", @out))
            {
                int answer = Native.VB_M_ExtractMatToMatStrSPV(HostArray.Of(x), rows, cols, firstRow, lastRow, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>The trace of a' * b: the sum over the columns of the inner products of like columns. No square
        /// root is taken, so that with b = a it is the square of the Frobenius norm.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="b">in, n by p cells</param>
        /// <returns>the trace; 0.0 when n or p is below 1</returns>
        public static double VB_M_FrobeniusNorm(double[] a, int n, int p, double[] b)
        {
            Room.Check("VB_M_FrobeniusNorm", "a", a, (long)n, (long)p);
            Room.Check("VB_M_FrobeniusNorm", "b", b, (long)n, (long)p);
            return Native.VB_M_FrobeniusNorm(a, n, p, b);
        }

        /// <summary>Solves a * x = b for several right sides, and inverts a.</summary>
        /// <param name="a">inout, n by n numbers, column after column; becomes its inverse</param>
        /// <param name="n">rows and columns of a; below 1 nothing is done</param>
        /// <param name="m">columns of b</param>
        /// <param name="b">inout, n by m numbers; becomes the solution x. Null: allowed when m is 0</param>
        /// <returns>0, or -2 at a pivot that is exactly 0: both tables are then as the steps before have left
        /// them</returns>
        public static int VB_M_Gauss(double[] a, int n, int m, double[] b)
        {
            Room.Check("VB_M_Gauss", "a", a, (long)n, (long)n);
            Room.Check("VB_M_Gauss", "b", b, (long)n, (long)m, true);
            return Native.VB_M_Gauss(a, n, m, b);
        }

        /// <summary>Seeds the random source and fills an array with uniform numbers in storage order, column after
        /// column. The seeding and the next seed are done in every case.</summary>
        /// <param name="out">out, rows by cols numbers, each as Cpp_Random01 returns it</param>
        /// <param name="rows">number of rows; below 1 nothing is drawn</param>
        /// <param name="cols">number of columns; below 1 nothing is drawn</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_GenerateRandom01(double[] @out, int rows, int cols, ref int seed, short flag,
            out int nextSeed)
        {
            Room.Check("VB_M_GenerateRandom01", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_GenerateRandom01(@out, rows, cols, ref seed, flag, out nextSeed);
        }

        /// <summary>Aggregates the rows that share the value of a key column, in ascending order of the keys,
        /// compared exactly.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="kinds">in, cols entries, not 0 for a qualitative column, whose aggregate is the most
        /// frequent code</param>
        /// <param name="groupCol">the key column, from 1</param>
        /// <param name="method">aggregate of the other columns: 0 sum, 1 mean, 2 median, 3 first row, 4 last row, 5
        /// minimum, 6 maximum, 7 range; any other number leaves the sorted input</param>
        /// <param name="nOut">out, one integer: the number of groups</param>
        /// <param name="out">out, rows by cols numbers; the first nOut rows are the result, those below keep the
        /// sorted input</param>
        /// <returns>0</returns>
        public static int VB_M_GroupBy(double[] x, int rows, int cols, int[] kinds, int groupCol, int method,
            out int nOut, double[] @out)
        {
            Room.Check("VB_M_GroupBy", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_GroupBy", "kinds", kinds, (long)cols, 1);
            Room.Check("VB_M_GroupBy", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_GroupBy(x, rows, cols, kinds, groupCol, method, out nOut, @out);
        }

        /// <summary>Aggregates the rows that share the value of a key column, with a weight for each row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="kinds">in, cols entries, not 0 for a qualitative column, whose aggregate is the most
        /// frequent code</param>
        /// <param name="groupCol">the key column, from 1</param>
        /// <param name="method">aggregate of the other columns: 0 weighted sum, 1 weighted mean, 2 weighted median,
        /// 3 first row, 4 last row, 5 minimum, 6 maximum, 7 range; any other number leaves the sorted input</param>
        /// <param name="nOut">out, one integer: the number of groups</param>
        /// <param name="out">out, rows by cols numbers; the first nOut rows are the result, those below keep the
        /// sorted input</param>
        /// <param name="w">in, rows weights</param>
        /// <returns>0</returns>
        public static int VB_M_GroupByW(double[] x, int rows, int cols, int[] kinds, int groupCol, int method,
            out int nOut, double[] @out, double[] w)
        {
            Room.Check("VB_M_GroupByW", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_GroupByW", "kinds", kinds, (long)cols, 1);
            Room.Check("VB_M_GroupByW", "out", @out, (long)rows, (long)cols);
            Room.Check("VB_M_GroupByW", "w", w, (long)rows, 1);
            return Native.VB_M_GroupByW(x, rows, cols, kinds, groupCol, method, out nOut, @out, w);
        }

        /// <summary>The categories of each variable, in tables as wide as there are rows.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="modes">out, p texts: the mode of each variable</param>
        /// <param name="modeFrequencies">out, p numbers: its frequency</param>
        /// <param name="categoryCounts">out, p integers: the number of categories</param>
        /// <param name="categories">out, p by n texts: the names</param>
        /// <param name="frequencies">out, p by n numbers: the frequencies</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="total">out, one integer: the sum of the numbers of categories</param>
        /// <param name="sort">-1: the categories are sorted</param>
        /// <returns>0</returns>
        public static int VB_M_InfoQuali(string[] data, int n, int p, string[] modes, double[] modeFrequencies,
            int[] categoryCounts, string[] categories, double[] frequencies, double[] weights, out int total,
            short sort)
        {
            Room.Check("VB_M_InfoQuali", "data", data, (long)n, (long)p);
            Room.Check("VB_M_InfoQuali", "modes", modes, (long)p, 1);
            Room.Check("VB_M_InfoQuali", "modeFrequencies", modeFrequencies, (long)p, 1);
            Room.Check("VB_M_InfoQuali", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("VB_M_InfoQuali", "categories", categories, (long)p, (long)n);
            Room.Check("VB_M_InfoQuali", "frequencies", frequencies, (long)p, (long)n);
            Room.Check("VB_M_InfoQuali", "weights", weights, (long)n, 1);
            using (var dataTexts = new Texts("VB_M_InfoQuali", "data", data))
            using (var modesTexts = new Texts("VB_M_InfoQuali", "modes", modes))
            using (var categoriesTexts = new Texts("VB_M_InfoQuali", "categories", categories))
            {
                int answer = Native.VB_M_InfoQuali(dataTexts.Cells, n, p, modesTexts.Cells, modeFrequencies, categoryCounts, categoriesTexts.Cells, frequencies, weights, out total, sort);
                modesTexts.CopyTo(modes);
                categoriesTexts.CopyTo(categories);
                return answer;
            }
        }

        /// <summary>The categories of each variable, in tables of a width of the caller's; more categories are not
        /// kept.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="width">columns of the tables</param>
        /// <param name="categoryCounts">out, p integers: the number of categories</param>
        /// <param name="modes">out, p texts: the mode of each variable</param>
        /// <param name="modeFrequencies">out, p numbers: its frequency</param>
        /// <param name="categories">out, p by width texts: the names</param>
        /// <param name="frequencies">out, p by width numbers: the frequencies</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="total">out, one integer: the sum of the numbers of categories</param>
        /// <param name="sort">-1: the categories are sorted</param>
        /// <returns>0</returns>
        public static int VB_M_InfoQuali2(string[] data, int n, int p, int width, int[] categoryCounts, string[] modes,
            double[] modeFrequencies, string[] categories, double[] frequencies, double[] weights, out int total,
            short sort)
        {
            Room.Check("VB_M_InfoQuali2", "data", data, (long)n, (long)p);
            Room.Check("VB_M_InfoQuali2", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("VB_M_InfoQuali2", "modes", modes, (long)p, 1);
            Room.Check("VB_M_InfoQuali2", "modeFrequencies", modeFrequencies, (long)p, 1);
            Room.Check("VB_M_InfoQuali2", "categories", categories, (long)p, (long)width);
            Room.Check("VB_M_InfoQuali2", "frequencies", frequencies, (long)p, (long)width);
            Room.Check("VB_M_InfoQuali2", "weights", weights, (long)n, 1);
            using (var dataTexts = new Texts("VB_M_InfoQuali2", "data", data))
            using (var modesTexts = new Texts("VB_M_InfoQuali2", "modes", modes))
            using (var categoriesTexts = new Texts("VB_M_InfoQuali2", "categories", categories))
            {
                int answer = Native.VB_M_InfoQuali2(dataTexts.Cells, n, p, width, categoryCounts, modesTexts.Cells, modeFrequencies, categoriesTexts.Cells, frequencies, weights, out total, sort);
                modesTexts.CopyTo(modes);
                categoriesTexts.CopyTo(categories);
                return answer;
            }
        }

        /// <summary>Counts the rows of each category by their weights.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="width">columns of the tables of categories</param>
        /// <param name="categoryCounts">in, p integers: the number of known categories of each variable</param>
        /// <param name="categories">in, p by width texts: their names</param>
        /// <param name="counts">out, p by width numbers: the sum of the weights of each</param>
        /// <param name="newCategoryFound">out, one flag: -1 when a text is no known category, otherwise 0</param>
        /// <param name="weights">in, n weights</param>
        /// <returns>0</returns>
        public static int VB_M_InfoQualiValid(string[] data, int n, int p, int width, int[] categoryCounts,
            string[] categories, double[] counts, out short newCategoryFound, double[] weights)
        {
            Room.Check("VB_M_InfoQualiValid", "data", data, (long)n, (long)p);
            Room.Check("VB_M_InfoQualiValid", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("VB_M_InfoQualiValid", "categories", categories, (long)p, (long)width);
            Room.Check("VB_M_InfoQualiValid", "counts", counts, (long)p, (long)width);
            Room.Check("VB_M_InfoQualiValid", "weights", weights, (long)n, 1);
            using (var dataTexts = new Texts("VB_M_InfoQualiValid", "data", data))
            using (var categoriesTexts = new Texts("VB_M_InfoQualiValid", "categories", categories))
                return Native.VB_M_InfoQualiValid(dataTexts.Cells, n, p, width, categoryCounts, categoriesTexts.Cells, counts, out newCategoryFound, weights);
        }

        /// <summary>Moore-Penrose inverse of a square table, column after column.</summary>
        /// <param name="a">in, n by n numbers</param>
        /// <param name="n">rows and columns; 0: nothing is done but setting the rank</param>
        /// <param name="g">out, n by n numbers; may be the array that is read</param>
        /// <param name="tolerance">a singular value below it is dropped</param>
        /// <param name="rank">out, one number: how many singular values were kept</param>
        /// <returns>0, or -1 when the decomposition has not converged; g is made of what there is then as
        /// well</returns>
        public static int VB_M_InvGeneralized(double[] a, int n, double[] g, double tolerance, out int rank)
        {
            Room.Check("VB_M_InvGeneralized", "a", a, (long)n, (long)n);
            Room.Check("VB_M_InvGeneralized", "g", g, (long)n, (long)n);
            return Native.VB_M_InvGeneralized(a, n, g, tolerance, out rank);
        }

        /// <summary>Generalised inverse of a symmetric positive semidefinite table: the left singular vectors stand
        /// on both sides, so that a negative eigenvalue has a positive inverse.</summary>
        /// <param name="a">in, n by n numbers</param>
        /// <param name="n">rows and columns; 0: nothing is done but setting the rank</param>
        /// <param name="g">out, n by n numbers; may be the array that is read</param>
        /// <param name="tolerance">a singular value below it is dropped</param>
        /// <param name="rank">out, one number: how many singular values were kept</param>
        /// <returns>0, or -1 when the decomposition has not converged; g is made of what there is then as
        /// well</returns>
        public static int VB_M_InvGeneralizedSym(double[] a, int n, double[] g, double tolerance, out int rank)
        {
            Room.Check("VB_M_InvGeneralizedSym", "a", a, (long)n, (long)n);
            Room.Check("VB_M_InvGeneralizedSym", "g", g, (long)n, (long)n);
            return Native.VB_M_InvGeneralizedSym(a, n, g, tolerance, out rank);
        }

        /// <summary>Inverse of a square table, column after column, by LU decomposition with row scaling and
        /// partial pivoting. Missing cells are numbers. A table is singular when a row has only zeros, when the
        /// first column has no pivot because of NaN, or when the magnitude of a pivot is at most 1e-8. The limit is
        /// not scaled to the data.</summary>
        /// <param name="a">in, n by n numbers</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="inverse">out, n by n numbers: left alone when the table is singular; may be the array that
        /// is read</param>
        /// <param name="error">inout, one number: becomes -1 when the table is singular, and otherwise stays as it
        /// is</param>
        /// <param name="tolerance">only its sign counts: when it is 0, negative or a NaN, the limit is
        /// 2.220446049250313e-16</param>
        /// <returns>0, or -1 when the table is singular</returns>
        public static int VB_M_Inverse1(double[] a, int n, double[] inverse, ref short error, double tolerance)
        {
            Room.Check("VB_M_Inverse1", "a", a, (long)n, (long)n);
            Room.Check("VB_M_Inverse1", "inverse", inverse, (long)n, (long)n);
            return Native.VB_M_Inverse1(a, n, inverse, ref error, tolerance);
        }

        /// <summary>Inverse of a triangular table by back substitution. Missing cells are numbers.</summary>
        /// <param name="t">in, n by n numbers, column after column; the other triangle is not read</param>
        /// <param name="n">rows and columns; below 1 nothing is done</param>
        /// <param name="lowerFlag">0: t is upper triangular. Any other value: it is lower triangular</param>
        /// <param name="inverse">inout, n by n numbers; receives the same triangle. The other one is not written,
        /// so the caller passes zeros. May be the array that is read</param>
        /// <param name="tolerance">magnitude below which a diagonal element counts as 0; not scaled to the
        /// data</param>
        /// <returns>0, or -1 at the first diagonal element below the tolerance: the diagonal of `inverse` then has
        /// the reciprocals of those before it, and nothing else is written</returns>
        public static int VB_M_InverseTriang(double[] t, int n, short lowerFlag, double[] inverse, double tolerance)
        {
            Room.Check("VB_M_InverseTriang", "t", t, (long)n, (long)n);
            Room.Check("VB_M_InverseTriang", "inverse", inverse, (long)n, (long)n);
            return Native.VB_M_InverseTriang(t, n, lowerFlag, inverse, tolerance);
        }

        /// <summary>Tests each column of a table by itself, passing over missing numbers.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>-1 when every column is constant, otherwise 0</returns>
        public static short VB_M_IsColConstant(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_IsColConstant", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_IsColConstant(x, rows, cols);
        }

        /// <summary>The same for a chunked table.</summary>
        /// <param name="x">in, cols columns of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <returns>-1 when every column is constant, otherwise 0</returns>
        public static short VB_M_IsColConstantSPV(HostArray x, int rows, int cols)
        {
            return Native.VB_M_IsColConstantSPV(HostArray.Of(x), rows, cols);
        }

        /// <summary>Tells whether the diagonal of a square table is constant.</summary>
        /// <param name="x">in, n by n numbers</param>
        /// <param name="n">order</param>
        /// <returns>-1 when all its cells exactly equal the first, and for n below 2; otherwise 0</returns>
        public static short VB_M_IsDiagConstant(double[] x, int n)
        {
            Room.Check("VB_M_IsDiagConstant", "x", x, (long)n, (long)n);
            return Native.VB_M_IsDiagConstant(x, n);
        }

        /// <summary>Whether a table looks like a disjunctive one. The reference row is the first one, or the last
        /// of the run of flagged rows that starts with the second. The rows after it that are not flagged are
        /// compared with it: their sums must lie within 1e-12 of its truncated sum, and the last column must have a
        /// value that differs from the reference row's. The other columns have no influence, nor has the first
        /// flag.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="rowFlags">in, n flags: -1 moves the reference row, any but 0 leaves a later row out. Null:
        /// no row is flagged</param>
        /// <param name="rowSum">out, one integer: the sum of the reference row, truncated</param>
        /// <returns>-1 for a disjunctive table, and for one without columns; otherwise 0</returns>
        public static short VB_M_IsDisjTable(double[] x, int n, int p, short[] rowFlags, out int rowSum)
        {
            Room.Check("VB_M_IsDisjTable", "x", x, (long)n, (long)p);
            Room.Check("VB_M_IsDisjTable", "rowFlags", rowFlags, (long)n, 1, true);
            return Native.VB_M_IsDisjTable(x, n, p, rowFlags, out rowSum);
        }

        /// <summary>Whether every number lies from 0 to 1; a missing one does not.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>-1 or 0</returns>
        public static short VB_M_IsIn01(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_IsIn01", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_IsIn01(x, rows, cols);
        }

        /// <summary>Tells whether all cells of a table lie in an interval.</summary>
        /// <param name="x">in, chunked table of cols columns of rows numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="lo">lower end</param>
        /// <param name="hi">upper end</param>
        /// <param name="bOpen">-1: a cell equal to an end is outside; otherwise it is inside</param>
        /// <param name="bSkipMissing">-1: missing cells are passed over; otherwise they are compared like
        /// others</param>
        /// <returns>-1 when no cell is outside, also when there is none; otherwise 0</returns>
        public static short VB_M_IsInIntervalSPV(HostArray x, int rows, int cols, double lo, double hi, short bOpen,
            short bSkipMissing)
        {
            return Native.VB_M_IsInIntervalSPV(HostArray.Of(x), rows, cols, lo, hi, bOpen, bSkipMissing);
        }

        /// <summary>Whether every number is an integer within 1e-12; the missing number is.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>-1 or 0</returns>
        public static short VB_M_IsLong(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_IsLong", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_IsLong(x, rows, cols);
        }

        /// <summary>Tells whether a square table is symmetric.</summary>
        /// <param name="x">in, n by n numbers</param>
        /// <param name="n">order</param>
        /// <returns>-1 when the cells of every pair are exactly equal, missing ones too, and for n below 2;
        /// otherwise 0</returns>
        public static short VB_M_IsSymmetric(double[] x, int n)
        {
            Room.Check("VB_M_IsSymmetric", "x", x, (long)n, (long)n);
            return Native.VB_M_IsSymmetric(x, n);
        }

        /// <summary>Tells whether a square table is symmetric.</summary>
        /// <param name="x">in, chunked table of n columns of n numbers</param>
        /// <param name="n">order</param>
        /// <returns>-1 when the cells of every pair are exactly equal, missing ones too, and for n below 2;
        /// otherwise 0</returns>
        public static short VB_M_IsSymmetricSPV(HostArray x, int n)
        {
            return Native.VB_M_IsSymmetricSPV(HostArray.Of(x), n);
        }

        /// <summary>Tells which half of a square table is filled, and fills the other half from it on request. A
        /// cell is empty when it is exactly 0 or missing; the diagonal is not looked at.</summary>
        /// <param name="x">inout, n by n numbers; changed only with bMirror -1</param>
        /// <param name="n">order</param>
        /// <param name="bMirror">-1: unless the result is 0, the filled half is copied over the empty one, which
        /// leaves the table symmetric; at result 2 the upper half is the one that is copied</param>
        /// <returns>2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is
        /// filled and every cell above it is empty; 0 when both halves have a filled cell</returns>
        public static int VB_M_IsTriangular(double[] x, int n, short bMirror)
        {
            Room.Check("VB_M_IsTriangular", "x", x, (long)n, (long)n);
            return Native.VB_M_IsTriangular(x, n, bMirror);
        }

        /// <summary>Tells which half of a square table is filled, and fills the other half from it on request. A
        /// cell is empty when it is exactly 0 or missing; the diagonal is not looked at.</summary>
        /// <param name="x">inout, chunked table of n columns of n numbers; changed only with bMirror -1</param>
        /// <param name="n">order</param>
        /// <param name="bMirror">-1: unless the result is 0, the filled half is copied over the empty one, which
        /// leaves the table symmetric; at result 2 the upper half is the one that is copied</param>
        /// <returns>2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is
        /// filled and every cell above it is empty; 0 when both halves have a filled cell</returns>
        public static int VB_M_IsTriangularSPV(HostArray x, int n, short bMirror)
        {
            return Native.VB_M_IsTriangularSPV(HostArray.Of(x), n, bMirror);
        }

        /// <summary>LU decomposition, in place: a, with its rows swapped, is l * u with 1 on the diagonal of l. In
        /// each column the row is chosen whose element is the largest beside the largest of its row at the start,
        /// the last of equal ones. A pivot of exactly 0 is replaced by 1e-20.</summary>
        /// <param name="a">inout, n by n numbers, column after column; receives u on the diagonal and above, l
        /// below it</param>
        /// <param name="n">rows and columns</param>
        /// <param name="pivots">out, n integers; element j is the row, from 1, that was swapped with row j</param>
        /// <param name="sign">out, one number: 1, or -1 after an odd number of swaps</param>
        /// <param name="status">out, one status: 0; -1: a row has only zeros, and a is as it was; 1: the first
        /// column has no pivot, because all of it is NaN</param>
        /// <returns>0</returns>
        public static int VB_M_LUDecomp(double[] a, int n, int[] pivots, out double sign, out short status)
        {
            Room.Check("VB_M_LUDecomp", "a", a, (long)n, (long)n);
            Room.Check("VB_M_LUDecomp", "pivots", pivots, (long)n, 1);
            return Native.VB_M_LUDecomp(a, n, pivots, out sign, out status);
        }

        /// <summary>Logarithms to base 10.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables; 0 stands for 1</param>
        /// <param name="y">out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may
        /// be x</param>
        /// <returns>0</returns>
        public static int VB_M_Log10Matrix(double[] x, int rows, int cols, double[] y)
        {
            Room.Check("VB_M_Log10Matrix", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_Log10Matrix", "y", y, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_Log10Matrix(x, rows, cols, y);
        }

        /// <summary>Natural logarithms.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables; 0 stands for 1</param>
        /// <param name="y">out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may
        /// be x</param>
        /// <returns>0</returns>
        public static int VB_M_LogMatrix(double[] x, int rows, int cols, double[] y)
        {
            Room.Check("VB_M_LogMatrix", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_LogMatrix", "y", y, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_LogMatrix(x, rows, cols, y);
        }

        /// <summary>The largest number of each column; missing numbers do not count.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols numbers</param>
        /// <returns>0</returns>
        public static int VB_M_Max(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_Max", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Max", "out", @out, (long)cols, 1);
            return Native.VB_M_Max(x, rows, cols, @out);
        }

        /// <summary>Weighted means over the cells that are not missing. A row of weight 0 does nothing; a NaN is
        /// kept.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means; 0.0 for a column with nothing kept</param>
        /// <param name="w">in, rows weights</param>
        /// <returns>0</returns>
        public static int VB_M_Mean(double[] x, int rows, int cols, double[] means, double[] w)
        {
            Room.Check("VB_M_Mean", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Mean", "means", means, (long)cols, 1);
            Room.Check("VB_M_Mean", "w", w, (long)rows, 1);
            return Native.VB_M_Mean(x, rows, cols, means, w);
        }

        /// <summary>Means and standard deviations of the columns.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means</param>
        /// <param name="sds">out, cols deviations</param>
        /// <param name="iMissing">in, rows flags, read only when flag is 0; a row with a flag other than 0 is left
        /// out; may be null, then none is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="flag">0: rows with a flag other than 0 are left out; -1: all rows are kept, whatever their
        /// flags; any other value: no row is kept</param>
        /// <returns>0</returns>
        public static int VB_M_MeanStDev(double[] x, int rows, int cols, double[] means, double[] sds, short[] iMissing,
            double[] w, short bUnbiased, short bFreq, short flag)
        {
            Room.Check("VB_M_MeanStDev", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_MeanStDev", "means", means, (long)cols, 1);
            Room.Check("VB_M_MeanStDev", "sds", sds, (long)cols, 1);
            Room.Check("VB_M_MeanStDev", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_MeanStDev", "w", w, (long)rows, 1);
            return Native.VB_M_MeanStDev(x, rows, cols, means, sds, iMissing, w, bUnbiased, bFreq, flag);
        }

        /// <summary>Means and standard deviations of the rows.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, rows means</param>
        /// <param name="sds">out, rows deviations</param>
        /// <param name="w">in, cols weights, one for each column</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_MeanStDevByRow(double[] x, int rows, int cols, double[] means, double[] sds, double[] w,
            short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_MeanStDevByRow", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_MeanStDevByRow", "means", means, (long)rows, 1);
            Room.Check("VB_M_MeanStDevByRow", "sds", sds, (long)rows, 1);
            Room.Check("VB_M_MeanStDevByRow", "w", w, (long)cols, 1);
            return Native.VB_M_MeanStDevByRow(x, rows, cols, means, sds, w, bUnbiased, bFreq);
        }

        /// <summary>Means, standard deviations and variances of the columns.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means</param>
        /// <param name="sds">out, cols deviations</param>
        /// <param name="vars">out, cols variances</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_MeanStDevVar(double[] x, int rows, int cols, double[] means, double[] sds, double[] vars,
            short[] iMissing, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_MeanStDevVar", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_MeanStDevVar", "means", means, (long)cols, 1);
            Room.Check("VB_M_MeanStDevVar", "sds", sds, (long)cols, 1);
            Room.Check("VB_M_MeanStDevVar", "vars", vars, (long)cols, 1);
            Room.Check("VB_M_MeanStDevVar", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_MeanStDevVar", "w", w, (long)rows, 1);
            return Native.VB_M_MeanStDevVar(x, rows, cols, means, sds, vars, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Mean, standard deviation and variance of all cells as one sample, column after column, each
        /// cell with the weight of its row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="mean">out, one number: the mean</param>
        /// <param name="sd">out, one number: the deviation</param>
        /// <param name="var">out, one number: the variance</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_MeanStDevVarOneInMat(double[] x, int rows, int cols, out double mean, out double sd,
            out double var, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_MeanStDevVarOneInMat", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_MeanStDevVarOneInMat", "w", w, (long)rows, 1);
            return Native.VB_M_MeanStDevVarOneInMat(x, rows, cols, out mean, out sd, out var, w, bUnbiased, bFreq);
        }

        /// <summary>The smallest number of each column; missing numbers do not count.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols numbers</param>
        /// <returns>0</returns>
        public static int VB_M_Min(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_Min", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Min", "out", @out, (long)cols, 1);
            return Native.VB_M_Min(x, rows, cols, @out);
        }

        /// <summary>Both extremes of each column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="mins">out, cols smallest numbers</param>
        /// <param name="maxs">out, cols largest numbers</param>
        /// <param name="iMissing">in, rows flags, read only when flag is 0; a row with a flag other than 0 is left
        /// out; may be null, then none is</param>
        /// <param name="flag">-1: every number that is not missing counts; 0: every number of a row whose flag is 0
        /// counts, a missing one too; any other value: none counts</param>
        /// <returns>0</returns>
        public static int VB_M_MinMax(double[] x, int rows, int cols, double[] mins, double[] maxs, short[] iMissing,
            short flag)
        {
            Room.Check("VB_M_MinMax", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_MinMax", "mins", mins, (long)cols, 1);
            Room.Check("VB_M_MinMax", "maxs", maxs, (long)cols, 1);
            Room.Check("VB_M_MinMax", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_MinMax(x, rows, cols, mins, maxs, iMissing, flag);
        }

        /// <summary>VB_M_MinMax on a table of separate columns.</summary>
        /// <param name="x">in, host array of cols columns of rows numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="mins">out, cols smallest numbers</param>
        /// <param name="maxs">out, cols largest numbers</param>
        /// <param name="iMissing">in, rows flags, read only when flag is 0; a row with a flag other than 0 is left
        /// out; may be null, then none is</param>
        /// <param name="flag">-1: every number that is not missing counts; 0: every number of a row whose flag is 0
        /// counts, a missing one too; any other value: none counts</param>
        /// <returns>0</returns>
        public static int VB_M_MinMaxSPV(HostArray x, int rows, int cols, double[] mins, double[] maxs,
            short[] iMissing, short flag)
        {
            Room.Check("VB_M_MinMaxSPV", "mins", mins, (long)cols, 1);
            Room.Check("VB_M_MinMaxSPV", "maxs", maxs, (long)cols, 1);
            Room.Check("VB_M_MinMaxSPV", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_MinMaxSPV(HostArray.Of(x), rows, cols, mins, maxs, iMissing, flag);
        }

        /// <summary>VB_M_MinMax on a symmetric table, of which each separate column starts at the diagonal. A
        /// column is a whole one: what lies above its diagonal is read from the other half.</summary>
        /// <param name="x">in, host array of cols columns of numbers, column j holding rows - j + 1 of them</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="mins">out, cols smallest numbers</param>
        /// <param name="maxs">out, cols largest numbers</param>
        /// <param name="iMissing">in, rows flags, read only when flag is 0; a row with a flag other than 0 is left
        /// out; may be null, then none is</param>
        /// <param name="flag">-1: every number that is not missing counts; 0: every number of a row whose flag is 0
        /// counts, a missing one too; any other value: none counts</param>
        /// <returns>0</returns>
        public static int VB_M_MinMaxSPV_T(HostArray x, int rows, int cols, double[] mins, double[] maxs,
            short[] iMissing, short flag)
        {
            Room.Check("VB_M_MinMaxSPV_T", "mins", mins, (long)cols, 1);
            Room.Check("VB_M_MinMaxSPV_T", "maxs", maxs, (long)cols, 1);
            Room.Check("VB_M_MinMaxSPV_T", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_MinMaxSPV_T(HostArray.Of(x), rows, cols, mins, maxs, iMissing, flag);
        }

        /// <summary>Moves a row of a table to another place, in place; the rows between the two move up or down by
        /// one.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="from">the row to move</param>
        /// <param name="to">where it goes. Nothing happens unless both are rows of the table</param>
        /// <returns>0</returns>
        public static int VB_M_MoveRow(double[] x, int rows, int cols, int from, int to)
        {
            Room.Check("VB_M_MoveRow", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_MoveRow(x, rows, cols, from, to);
        }

        /// <summary>Counts the missing numbers of each column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="counts">out, cols counts</param>
        /// <returns>0</returns>
        public static int VB_M_NbMissing(double[] x, int rows, int cols, int[] counts)
        {
            Room.Check("VB_M_NbMissing", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_NbMissing", "counts", counts, (cols == 0 ? 1L : cols), 1);
            return Native.VB_M_NbMissing(x, rows, cols, counts);
        }

        /// <summary>Counts the missing numbers of a whole table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>the count</returns>
        public static int VB_M_NbMissing2(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_NbMissing2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_NbMissing2(x, rows, cols);
        }

        /// <summary>Counts the empty texts of a whole table.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>the count</returns>
        public static int VB_M_NbMissing2Str(string[] x, int rows, int cols)
        {
            Room.Check("VB_M_NbMissing2Str", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            using (var xTexts = new Texts("VB_M_NbMissing2Str", "x", x))
                return Native.VB_M_NbMissing2Str(xTexts.Cells, rows, cols);
        }

        /// <summary>Counts the missing numbers of a triangle.</summary>
        /// <param name="x">in, cols columns, the first of rows numbers and each next one of a number less</param>
        /// <param name="rows">numbers in the first column</param>
        /// <param name="cols">number of columns</param>
        /// <returns>the count</returns>
        public static int VB_M_NbMissingSPV_T(HostArray x, int rows, int cols)
        {
            return Native.VB_M_NbMissingSPV_T(HostArray.Of(x), rows, cols);
        }

        /// <summary>Counts the empty texts of each column.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="counts">out, cols counts</param>
        /// <returns>0</returns>
        public static int VB_M_NbMissingStr(string[] x, int rows, int cols, int[] counts)
        {
            Room.Check("VB_M_NbMissingStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_NbMissingStr", "counts", counts, (cols == 0 ? 1L : cols), 1);
            using (var xTexts = new Texts("VB_M_NbMissingStr", "x", x))
                return Native.VB_M_NbMissingStr(xTexts.Cells, rows, cols, counts);
        }

        /// <summary>Counts the numbers of each column that are not missing.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="counts">out, cols counts</param>
        /// <returns>0</returns>
        public static int VB_M_NbNonMissing(double[] x, int rows, int cols, int[] counts)
        {
            Room.Check("VB_M_NbNonMissing", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_NbNonMissing", "counts", counts, (cols == 0 ? 1L : cols), 1);
            return Native.VB_M_NbNonMissing(x, rows, cols, counts);
        }

        /// <summary>Changes the cells of each column to (x / s) * sqrt(n / (n - 1)), where s is the root of the
        /// column's sum of x * x * w and n is rows, whatever is left out. One row is divided by 0.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights; may be null, then all are 1</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out and stays; may be null,
        /// then none is</param>
        /// <returns>0</returns>
        public static int VB_M_Normalize(double[] x, int rows, int cols, double[] w, short[] iMissing)
        {
            Room.Check("VB_M_Normalize", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Normalize", "w", w, (long)rows, 1, true);
            Room.Check("VB_M_Normalize", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_Normalize(x, rows, cols, w, iMissing);
        }

        /// <summary>VB_M_Normalize, without weights and flags, on a table and two companions, tables of other rows
        /// and the same columns, which are changed by the sums of squares and the number of rows of x.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of all three</param>
        /// <param name="y">inout, yRows by cols numbers; may be null when yRows is 0</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="z">inout, zRows by cols numbers; may be null when zRows is 0</param>
        /// <param name="zRows">rows of z</param>
        /// <returns>0</returns>
        public static int VB_M_NormalizeMatrix(double[] x, int rows, int cols, double[] y, int yRows, double[] z,
            int zRows)
        {
            Room.Check("VB_M_NormalizeMatrix", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_NormalizeMatrix", "y", y, (long)yRows, (long)cols, true);
            Room.Check("VB_M_NormalizeMatrix", "z", z, (long)zRows, (long)cols, true);
            return Native.VB_M_NormalizeMatrix(x, rows, cols, y, yRows, z, zRows);
        }

        /// <summary>Writes a table of numbers into a larger one. What would fall outside of it is left
        /// out.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols numbers</param>
        /// <param name="yRows">rows of the larger table</param>
        /// <param name="yCols">columns of the larger table; 0 stands for 1</param>
        /// <param name="row">its row for the first row</param>
        /// <param name="col">its column for the first column</param>
        /// <returns>0</returns>
        public static int VB_M_PasteBlock(double[] x, int rows, int cols, double[] y, int yRows, int yCols, int row,
            int col)
        {
            Room.Check("VB_M_PasteBlock", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_PasteBlock", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_M_PasteBlock(x, rows, cols, y, yRows, yCols, row, col);
        }

        /// <summary>Writes a table of integers into a larger one. What would fall outside of it is left
        /// out.</summary>
        /// <param name="x">in, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="y">inout, yRows by yCols integers</param>
        /// <param name="yRows">rows of the larger table</param>
        /// <param name="yCols">columns of the larger table; 0 stands for 1</param>
        /// <param name="row">its row for the first row</param>
        /// <param name="col">its column for the first column</param>
        /// <returns>0</returns>
        public static int VB_M_PasteBlockLng(int[] x, int rows, int cols, int[] y, int yRows, int yCols, int row,
            int col)
        {
            Room.Check("VB_M_PasteBlockLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_PasteBlockLng", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_M_PasteBlockLng(x, rows, cols, y, yRows, yCols, row, col);
        }

        /// <summary>Product of two tables, c = a * b. The work is shared among threads.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">out, n by q numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductAB(double[] a, int n, int p, double[] b, int q, double[] c)
        {
            Room.Check("VB_M_ProductAB", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductAB", "b", b, (long)p, (long)q);
            Room.Check("VB_M_ProductAB", "c", c, (long)n, (long)q);
            return Native.VB_M_ProductAB(a, n, p, b, q, c);
        }

        /// <summary>Product of three tables, d = a * b * c. The work is shared among threads.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">in, q by r numbers</param>
        /// <param name="r">columns of c</param>
        /// <param name="d">out, n by r numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductABC(double[] a, int n, int p, double[] b, int q, double[] c, int r, double[] d)
        {
            Room.Check("VB_M_ProductABC", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductABC", "b", b, (long)p, (long)q);
            Room.Check("VB_M_ProductABC", "c", c, (long)q, (long)r);
            Room.Check("VB_M_ProductABC", "d", d, (long)n, (long)r);
            return Native.VB_M_ProductABC(a, n, p, b, q, c, r, d);
        }

        /// <summary>Product of two tables of integers, c = a * b, in 32-bit arithmetic that wraps around. No
        /// integer is missing here.</summary>
        /// <param name="a">in, n by p integers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by q integers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">out, n by q integers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductABLng(int[] a, int n, int p, int[] b, int q, int[] c)
        {
            Room.Check("VB_M_ProductABLng", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductABLng", "b", b, (long)p, (long)q);
            Room.Check("VB_M_ProductABLng", "c", c, (long)n, (long)q);
            return Native.VB_M_ProductABLng(a, n, p, b, q, c);
        }

        /// <summary>Product of two tables that heeds missing cells: where a term has a missing factor, c(i,j) is
        /// missing. So one missing cell of a blanks a row of c, and one of b a column.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">out, n by q numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductABMissing(double[] a, int n, int p, double[] b, int q, double[] c)
        {
            Room.Check("VB_M_ProductABMissing", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductABMissing", "b", b, (long)p, (long)q);
            Room.Check("VB_M_ProductABMissing", "c", c, (long)n, (long)q);
            return Native.VB_M_ProductABMissing(a, n, p, b, q, c);
        }

        /// <summary>Product of three tables, c = a * b * a'. The work is shared among threads.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by p numbers</param>
        /// <param name="symmetric">0: all of the product is summed. Any other value promises that b is symmetric:
        /// only the lower half is summed and then mirrored</param>
        /// <param name="c">out, n by n numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductABTrA(double[] a, int n, int p, double[] b, short symmetric, double[] c)
        {
            Room.Check("VB_M_ProductABTrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductABTrA", "b", b, (long)p, (long)p);
            Room.Check("VB_M_ProductABTrA", "c", c, (long)n, (long)n);
            return Native.VB_M_ProductABTrA(a, n, p, b, symmetric, c);
        }

        /// <summary>Product with a diagonal, c = a * d * a', each term from left to right. Only the elements of the
        /// upper half are summed; each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, p by p numbers; only the diagonal is read</param>
        /// <param name="c">out, n by n numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADTrA(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductADTrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADTrA", "d", d, (long)p, (long)p);
            Room.Check("VB_M_ProductADTrA", "c", c, (long)n, (long)n);
            return Native.VB_M_ProductADTrA(a, n, p, d, c);
        }

        /// <summary>c(i, k) = a(i, k) * d(k, k). Missing cells are numbers here.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="d">in, p by p cells, of which the diagonal is read</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADiag(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductADiag", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADiag", "d", d, (long)p, (long)p);
            Room.Check("VB_M_ProductADiag", "c", c, (long)n, (long)p);
            return Native.VB_M_ProductADiag(a, n, p, d, c);
        }

        /// <summary>c(i, k) = a(i, k) * d(k). A missing d(k) makes column k of the result missing, and so does a
        /// missing cell its own.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="d">in, p numbers</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADiagV(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductADiagV", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADiagV", "d", d, (long)p, 1);
            Room.Check("VB_M_ProductADiagV", "c", c, (long)n, (long)p);
            return Native.VB_M_ProductADiagV(a, n, p, d, c);
        }

        /// <summary>Product with a diagonal that is given as a vector, c = a * diag(d) * b, each term from left to
        /// right.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, p numbers</param>
        /// <param name="b">in, p by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">out, n by q numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADiagVB(double[] a, int n, int p, double[] d, double[] b, int q, double[] c)
        {
            Room.Check("VB_M_ProductADiagVB", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADiagVB", "d", d, (long)p, 1);
            Room.Check("VB_M_ProductADiagVB", "b", b, (long)p, (long)q);
            Room.Check("VB_M_ProductADiagVB", "c", c, (long)n, (long)q);
            return Native.VB_M_ProductADiagVB(a, n, p, d, b, q, c);
        }

        /// <summary>Product with a diagonal that is given as a vector, c = a * diag(d) * a', each term from left to
        /// right. Only the elements of the upper half are summed; each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, p numbers</param>
        /// <param name="c">out, n by n numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADiagVTrA(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductADiagVTrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADiagVTrA", "d", d, (long)p, 1);
            Room.Check("VB_M_ProductADiagVTrA", "c", c, (long)n, (long)n);
            return Native.VB_M_ProductADiagVTrA(a, n, p, d, c);
        }

        /// <summary>Product with a diagonal that is given as a vector, c = a * diag(d) * b', each term from left to
        /// right.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, p numbers</param>
        /// <param name="b">in, m by p numbers</param>
        /// <param name="m">rows of b</param>
        /// <param name="c">out, n by m numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductADiagVTrB(double[] a, int n, int p, double[] d, double[] b, int m, double[] c)
        {
            Room.Check("VB_M_ProductADiagVTrB", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductADiagVTrB", "d", d, (long)p, 1);
            Room.Check("VB_M_ProductADiagVTrB", "b", b, (long)m, (long)p);
            Room.Check("VB_M_ProductADiagVTrB", "c", c, (long)n, (long)m);
            return Native.VB_M_ProductADiagVTrB(a, n, p, d, b, m, c);
        }

        /// <summary>Product of a packed symmetric table and a vector, y = s * x.</summary>
        /// <param name="s">in, m * (m + 1) / 2 numbers, the lower triangle row after row</param>
        /// <param name="m">rows and columns of the table; at most 65535</param>
        /// <param name="x">in, m numbers</param>
        /// <param name="y">out, m numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductASymV(double[] s, int m, double[] x, double[] y)
        {
            Room.Check("VB_M_ProductASymV", "s", s, (long)m * ((long)m + 1) / 2, 1);
            Room.Check("VB_M_ProductASymV", "x", x, (long)m, 1);
            Room.Check("VB_M_ProductASymV", "y", y, (long)m, 1);
            return Native.VB_M_ProductASymV(s, m, x, y);
        }

        /// <summary>Product of a table with itself, c = a * a'. Only the elements of the upper half are summed;
        /// each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="c">out, n by n numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductATrA(double[] a, int n, int p, double[] c)
        {
            Room.Check("VB_M_ProductATrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductATrA", "c", c, (long)n, (long)n);
            return Native.VB_M_ProductATrA(a, n, p, c);
        }

        /// <summary>Product of a table and a transposed table, c = a * b'.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, m by p numbers</param>
        /// <param name="m">rows of b</param>
        /// <param name="c">out, n by m numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductATrB(double[] a, int n, int p, double[] b, int m, double[] c)
        {
            Room.Check("VB_M_ProductATrB", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductATrB", "b", b, (long)m, (long)p);
            Room.Check("VB_M_ProductATrB", "c", c, (long)n, (long)m);
            return Native.VB_M_ProductATrB(a, n, p, b, m, c);
        }

        /// <summary>Product of three tables, d = a * b' * c.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, q by p numbers</param>
        /// <param name="q">rows of b</param>
        /// <param name="c">in, q by r numbers</param>
        /// <param name="r">columns of c</param>
        /// <param name="d">out, n by r numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductATrBC(double[] a, int n, int p, double[] b, int q, double[] c, int r, double[] d)
        {
            Room.Check("VB_M_ProductATrBC", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductATrBC", "b", b, (long)q, (long)p);
            Room.Check("VB_M_ProductATrBC", "c", c, (long)q, (long)r);
            Room.Check("VB_M_ProductATrBC", "d", d, (long)n, (long)r);
            return Native.VB_M_ProductATrBC(a, n, p, b, q, c, r, d);
        }

        /// <summary>Product c = a * i * a' with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a
        /// pivot's magnitude is at most 1e-8.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, p by p numbers</param>
        /// <param name="c">out, n by n numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductAinvBTrA(double[] a, int n, int p, double[] b, double[] c)
        {
            Room.Check("VB_M_ProductAinvBTrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductAinvBTrA", "b", b, (long)p, (long)p);
            Room.Check("VB_M_ProductAinvBTrA", "c", c, (long)n, (long)n);
            return Native.VB_M_ProductAinvBTrA(a, n, p, b, c);
        }

        /// <summary>Table times vector, y = b * v.</summary>
        /// <param name="b">in, n by p numbers</param>
        /// <param name="n">rows of b</param>
        /// <param name="p">columns of b</param>
        /// <param name="v">in, p numbers</param>
        /// <param name="y">out, n numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductBV(double[] b, int n, int p, double[] v, double[] y)
        {
            Room.Check("VB_M_ProductBV", "b", b, (long)n, (long)p);
            Room.Check("VB_M_ProductBV", "v", v, (long)p, 1);
            Room.Check("VB_M_ProductBV", "y", y, (long)n, 1);
            return Native.VB_M_ProductBV(b, n, p, v, y);
        }

        /// <summary>c(i, j) = a(i, j) * b(i, j). Missing cells are numbers here.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="b">in, n by p cells</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductByElement(double[] a, int n, int p, double[] b, double[] c)
        {
            Room.Check("VB_M_ProductByElement", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductByElement", "b", b, (long)n, (long)p);
            Room.Check("VB_M_ProductByElement", "c", c, (long)n, (long)p);
            return Native.VB_M_ProductByElement(a, n, p, b, c);
        }

        /// <summary>Replaces the columns of a design by their interactions with those of another. With EPS =
        /// 2.220446049250313e-16: - A row in which both cells are above EPS gets their product, when type is below
        /// 5 or i and j are both 1; otherwise it gets 1.0, if the product is above EPS. - Any other row gets what
        /// the row before it got. That value is carried on from the last row of a column to the first of the next,
        /// and is 0.0 at the start. - A column without a row in which both cells are above EPS becomes 0. The first
        /// one with such a row is the reference. In later columns, with type from 5 on, a row whose reference is 1
        /// (nearer than 1e-12) gets -1.0 instead; the value that is carried on stays. Then, with pos the sum of the
        /// weights of the rows above EPS and neg of those below -EPS, type 6 makes each cell below -EPS of a column
        /// with neg above EPS equal to -pos / neg.</summary>
        /// <param name="a">inout, n by max(colsB, 1) * colsA numbers, the first colsA columns being the design;
        /// receives the colsA * colsB columns of the result</param>
        /// <param name="n">rows</param>
        /// <param name="colsA">inout, one integer: the columns of the design; receives those of the result</param>
        /// <param name="b">in, n by colsB numbers</param>
        /// <param name="colsB">columns of b</param>
        /// <param name="type">below 5: plain products; 5: effect coding; 6: effect coding with scaled negative
        /// cells</param>
        /// <param name="weights">in, n weights</param>
        /// <param name="sums">out, colsA * colsB numbers: pos of each column</param>
        /// <returns>0</returns>
        public static int VB_M_ProductDesignAB2(double[] a, int n, ref int colsA, double[] b, int colsB, int type,
            double[] weights, double[] sums)
        {
            Room.Check("VB_M_ProductDesignAB2", "a", a, (long)n, Math.Max((long)colsB, 1) * (long)colsA);
            Room.Check("VB_M_ProductDesignAB2", "b", b, (long)n, (long)colsB);
            Room.Check("VB_M_ProductDesignAB2", "weights", weights, (long)n, 1);
            Room.Check("VB_M_ProductDesignAB2", "sums", sums, (long)colsA * (long)colsB, 1);
            return Native.VB_M_ProductDesignAB2(a, n, ref colsA, b, colsB, type, weights, sums);
        }

        /// <summary>c(i, k) = (d1(i) * a(i, k)) * d2(k). A missing factor makes its row or column of the result
        /// missing, and so does a missing cell its own.</summary>
        /// <param name="d1">in, n numbers</param>
        /// <param name="n">rows</param>
        /// <param name="a">in, n by p cells</param>
        /// <param name="p">columns</param>
        /// <param name="d2">in, p numbers</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductDiagV1ADiagV2(double[] d1, int n, double[] a, int p, double[] d2, double[] c)
        {
            Room.Check("VB_M_ProductDiagV1ADiagV2", "d1", d1, (long)n, 1);
            Room.Check("VB_M_ProductDiagV1ADiagV2", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductDiagV1ADiagV2", "d2", d2, (long)p, 1);
            Room.Check("VB_M_ProductDiagV1ADiagV2", "c", c, (long)n, (long)p);
            return Native.VB_M_ProductDiagV1ADiagV2(d1, n, a, p, d2, c);
        }

        /// <summary>c(i, k) = d(i) * a(i, k). A missing d(i) makes row i of the result missing, and so does a
        /// missing cell its own.</summary>
        /// <param name="d">in, n numbers</param>
        /// <param name="n">rows</param>
        /// <param name="a">in, n by p cells</param>
        /// <param name="p">columns</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductDiagVA(double[] d, int n, double[] a, int p, double[] c)
        {
            Room.Check("VB_M_ProductDiagVA", "d", d, (long)n, 1);
            Room.Check("VB_M_ProductDiagVA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductDiagVA", "c", c, (long)n, (long)p);
            return Native.VB_M_ProductDiagVA(d, n, a, p, c);
        }

        /// <summary>Each column of the result is the product of two columns, cell by cell. No cell is looked at for
        /// being missing.</summary>
        /// <param name="a">in, n by colsA numbers</param>
        /// <param name="n">rows</param>
        /// <param name="colsA">columns of a</param>
        /// <param name="b">in, n by colsB numbers</param>
        /// <param name="colsB">columns of b</param>
        /// <param name="c">out, n by colsA * colsB numbers; may be an array that is read</param>
        /// <param name="extra">not read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductHorizAB(double[] a, int n, int colsA, double[] b, int colsB, double[] c,
            int extra)
        {
            Room.Check("VB_M_ProductHorizAB", "a", a, (long)n, (long)colsA);
            Room.Check("VB_M_ProductHorizAB", "b", b, (long)n, (long)colsB);
            Room.Check("VB_M_ProductHorizAB", "c", c, (long)n, (long)colsA * (long)colsB);
            return Native.VB_M_ProductHorizAB(a, n, colsA, b, colsB, c, extra);
        }

        /// <summary>The same in place of a, and missing where one of the two cells is.</summary>
        /// <param name="a">inout, n by max(colsB, 1) * colsA numbers, of which the first colsA columns are read;
        /// receives the colsA * colsB columns of the result</param>
        /// <param name="n">rows</param>
        /// <param name="colsA">inout, one integer: the columns of a; receives those of the result</param>
        /// <param name="b">in, n by colsB numbers; may be a</param>
        /// <param name="colsB">columns of b</param>
        /// <returns>0</returns>
        public static int VB_M_ProductHorizAB2(double[] a, int n, ref int colsA, double[] b, int colsB)
        {
            Room.Check("VB_M_ProductHorizAB2", "a", a, (long)n, Math.Max((long)colsB, 1) * (long)colsA);
            Room.Check("VB_M_ProductHorizAB2", "b", b, (long)n, (long)colsB);
            return Native.VB_M_ProductHorizAB2(a, n, ref colsA, b, colsB);
        }

        /// <summary>Product of a table with itself, c = a' * a. Only the elements of the upper half are summed;
        /// each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="c">out, p by p numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrAA(double[] a, int n, int p, double[] c)
        {
            Room.Check("VB_M_ProductTrAA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrAA", "c", c, (long)p, (long)p);
            return Native.VB_M_ProductTrAA(a, n, p, c);
        }

        /// <summary>Product of a transposed table and a table, c = a' * b.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, n by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">out, p by q numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrAB(double[] a, int n, int p, double[] b, int q, double[] c)
        {
            Room.Check("VB_M_ProductTrAB", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrAB", "b", b, (long)n, (long)q);
            Room.Check("VB_M_ProductTrAB", "c", c, (long)p, (long)q);
            return Native.VB_M_ProductTrAB(a, n, p, b, q, c);
        }

        /// <summary>Product of three tables, c = a' * b * a. The work is shared among threads.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, n by n numbers</param>
        /// <param name="symmetric">0: all of the product is summed. Any other value promises that b is symmetric:
        /// only the lower half is summed and then mirrored</param>
        /// <param name="c">out, p by p numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrABA(double[] a, int n, int p, double[] b, short symmetric, double[] c)
        {
            Room.Check("VB_M_ProductTrABA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrABA", "b", b, (long)n, (long)n);
            Room.Check("VB_M_ProductTrABA", "c", c, (long)p, (long)p);
            return Native.VB_M_ProductTrABA(a, n, p, b, symmetric, c);
        }

        /// <summary>Product of three tables, d = a' * b * c.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, n by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="c">in, q by r numbers</param>
        /// <param name="r">columns of c</param>
        /// <param name="d">out, p by r numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrABC(double[] a, int n, int p, double[] b, int q, double[] c, int r, double[] d)
        {
            Room.Check("VB_M_ProductTrABC", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrABC", "b", b, (long)n, (long)q);
            Room.Check("VB_M_ProductTrABC", "c", c, (long)q, (long)r);
            Room.Check("VB_M_ProductTrABC", "d", d, (long)p, (long)r);
            return Native.VB_M_ProductTrABC(a, n, p, b, q, c, r, d);
        }

        /// <summary>Product with a diagonal, c = a' * d * a, each term from left to right. Only the elements of the
        /// upper half are summed; each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, n by n numbers; only the diagonal is read</param>
        /// <param name="c">out, p by p numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrADA(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductTrADA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrADA", "d", d, (long)n, (long)n);
            Room.Check("VB_M_ProductTrADA", "c", c, (long)p, (long)p);
            return Native.VB_M_ProductTrADA(a, n, p, d, c);
        }

        /// <summary>c(k, i) = a(i, k) * d(i, i). Missing cells are numbers here.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="d">in, n by n cells, of which the diagonal is read</param>
        /// <param name="c">out, p by n cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrADiag(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductTrADiag", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrADiag", "d", d, (long)n, (long)n);
            Room.Check("VB_M_ProductTrADiag", "c", c, (long)p, (long)n);
            return Native.VB_M_ProductTrADiag(a, n, p, d, c);
        }

        /// <summary>c(k, r) = a(r, k) * d(r). Missing cells are numbers here.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="d">in, n numbers</param>
        /// <param name="c">out, p by n cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrADiagV(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductTrADiagV", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrADiagV", "d", d, (long)n, 1);
            Room.Check("VB_M_ProductTrADiagV", "c", c, (long)p, (long)n);
            return Native.VB_M_ProductTrADiagV(a, n, p, d, c);
        }

        /// <summary>Product with a diagonal that is given as a vector, c = a' * diag(d) * a, each term from left to
        /// right. Only the elements of the upper half are summed; each is stored in both halves.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="d">in, n numbers</param>
        /// <param name="c">out, p by p numbers, column after column; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrADiagVA(double[] a, int n, int p, double[] d, double[] c)
        {
            Room.Check("VB_M_ProductTrADiagVA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrADiagVA", "d", d, (long)n, 1);
            Room.Check("VB_M_ProductTrADiagVA", "c", c, (long)p, (long)p);
            return Native.VB_M_ProductTrADiagVA(a, n, p, d, c);
        }

        /// <summary>Product c = a' * g * a with g the generalised inverse of b by sweeping, as `Cpp_M_InverseG2`
        /// makes it with the tolerance 1e-12. The work is shared among threads.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows of a</param>
        /// <param name="p">columns of a</param>
        /// <param name="b">in, n by n numbers</param>
        /// <param name="symmetric">0: all of the product is summed. Any other value promises that b is symmetric:
        /// only the lower half is summed and then mirrored</param>
        /// <param name="c">out, p by p numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrAinvBA(double[] a, int n, int p, double[] b, short symmetric, double[] c)
        {
            Room.Check("VB_M_ProductTrAinvBA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ProductTrAinvBA", "b", b, (long)n, (long)n);
            Room.Check("VB_M_ProductTrAinvBA", "c", c, (long)p, (long)p);
            return Native.VB_M_ProductTrAinvBA(a, n, p, b, symmetric, c);
        }

        /// <summary>Transposed table times vector, y = b' * v.</summary>
        /// <param name="b">in, n by p numbers</param>
        /// <param name="n">rows of b</param>
        /// <param name="p">columns of b</param>
        /// <param name="v">in, n numbers</param>
        /// <param name="y">out, p numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductTrBV(double[] b, int n, int p, double[] v, double[] y)
        {
            Room.Check("VB_M_ProductTrBV", "b", b, (long)n, (long)p);
            Room.Check("VB_M_ProductTrBV", "v", v, (long)n, 1);
            Room.Check("VB_M_ProductTrBV", "y", y, (long)p, 1);
            return Native.VB_M_ProductTrBV(b, n, p, v, y);
        }

        /// <summary>The bilinear form x1' * b * x2.</summary>
        /// <param name="x1">in, n numbers</param>
        /// <param name="n">elements of each vector</param>
        /// <param name="b">in, n by n numbers</param>
        /// <param name="x2">in, n numbers</param>
        /// <returns>the number; 0.0 when n is below 1</returns>
        public static double VB_M_ProductTrV1BV2(double[] x1, int n, double[] b, double[] x2)
        {
            Room.Check("VB_M_ProductTrV1BV2", "x1", x1, (long)n, 1);
            Room.Check("VB_M_ProductTrV1BV2", "b", b, (long)n, (long)n);
            Room.Check("VB_M_ProductTrV1BV2", "x2", x2, (long)n, 1);
            return Native.VB_M_ProductTrV1BV2(x1, n, b, x2);
        }

        /// <summary>The quadratic form v' * b * v.</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">elements of v</param>
        /// <param name="b">in, n by n numbers</param>
        /// <returns>the number; 0.0 when n is below 1</returns>
        public static double VB_M_ProductTrVBV(double[] v, int n, double[] b)
        {
            Room.Check("VB_M_ProductTrVBV", "v", v, (long)n, 1);
            Room.Check("VB_M_ProductTrVBV", "b", b, (long)n, (long)n);
            return Native.VB_M_ProductTrVBV(v, n, b);
        }

        /// <summary>The quadratic form v' * i * v with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when
        /// a pivot's magnitude is at most 1e-8.</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">elements of v</param>
        /// <param name="b">in, n by n numbers</param>
        /// <returns>the number; 0.0 when b is singular, and when n is below 1</returns>
        public static double VB_M_ProductTrVinvBV(double[] v, int n, double[] b)
        {
            Room.Check("VB_M_ProductTrVinvBV", "v", v, (long)n, 1);
            Room.Check("VB_M_ProductTrVinvBV", "b", b, (long)n, (long)n);
            return Native.VB_M_ProductTrVinvBV(v, n, b);
        }

        /// <summary>Product of a vector and a packed symmetric table, y = x' * s.</summary>
        /// <param name="x">in, m numbers</param>
        /// <param name="m">rows and columns of the table; at most 65535</param>
        /// <param name="s">in, m * (m + 1) / 2 numbers, the lower triangle row after row</param>
        /// <param name="y">out, m numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductVASym(double[] x, int m, double[] s, double[] y)
        {
            Room.Check("VB_M_ProductVASym", "x", x, (long)m, 1);
            Room.Check("VB_M_ProductVASym", "s", s, (long)m * ((long)m + 1) / 2, 1);
            Room.Check("VB_M_ProductVASym", "y", y, (long)m, 1);
            return Native.VB_M_ProductVASym(x, m, s, y);
        }

        /// <summary>Vector times table, y = v' * b, that heeds missing cells: where a term has a missing factor,
        /// y(j) is missing.</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">elements of v, rows of b</param>
        /// <param name="b">in, n by q numbers</param>
        /// <param name="q">columns of b</param>
        /// <param name="y">out, q numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductVB(double[] v, int n, double[] b, int q, double[] y)
        {
            Room.Check("VB_M_ProductVB", "v", v, (long)n, 1);
            Room.Check("VB_M_ProductVB", "b", b, (long)n, (long)q);
            Room.Check("VB_M_ProductVB", "y", y, (long)q, 1);
            return Native.VB_M_ProductVB(v, n, b, q, y);
        }

        /// <summary>Vector times transposed table, y = v' * b'.</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">elements of v, columns of b</param>
        /// <param name="b">in, m by n numbers</param>
        /// <param name="m">rows of b</param>
        /// <param name="y">out, m numbers; may be an array that is read</param>
        /// <returns>0</returns>
        public static int VB_M_ProductVTrB(double[] v, int n, double[] b, int m, double[] y)
        {
            Room.Check("VB_M_ProductVTrB", "v", v, (long)n, 1);
            Room.Check("VB_M_ProductVTrB", "b", b, (long)m, (long)n);
            Room.Check("VB_M_ProductVTrB", "y", y, (long)m, 1);
            return Native.VB_M_ProductVTrB(v, n, b, m, y);
        }

        /// <summary>Rank of a table, column after column: the number of singular values up to the first that is at
        /// most 1e-12.</summary>
        /// <param name="a">in, n by p numbers</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <returns>the rank; 0 when n or p is 0; -1 when the decomposition has not converged</returns>
        public static int VB_M_Rank(double[] a, int n, int p)
        {
            Room.Check("VB_M_Rank", "a", a, (long)n, (long)p);
            return Native.VB_M_Rank(a, n, p);
        }

        /// <summary>Reduces into a result.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows by cols numbers; may be the array of x</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Reduce(double[] x, int rows, int cols, double[] @out, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_Reduce", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Reduce", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_Reduce(x, rows, cols, @out, bUnbiased, bFreq);
        }

        /// <summary>Reduces in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Reduce2(double[] x, int rows, int cols, short bUnbiased)
        {
            Room.Check("VB_M_Reduce2", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Reduce2(x, rows, cols, bUnbiased);
        }

        /// <summary>Reduces, with weights, into a result.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="out">out, rows by cols numbers; may be the array of an argument</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_ReduceW(double[] x, int rows, int cols, double[] w, double[] @out, short bUnbiased,
            short bFreq)
        {
            Room.Check("VB_M_ReduceW", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_ReduceW", "w", w, (long)rows, 1);
            Room.Check("VB_M_ReduceW", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_ReduceW(x, rows, cols, w, @out, bUnbiased, bFreq);
        }

        /// <summary>Reduces, with weights, in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights; may be a column of x</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_ReduceW2(double[] x, int rows, int cols, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_ReduceW2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_ReduceW2", "w", w, (long)rows, 1);
            return Native.VB_M_ReduceW2(x, rows, cols, w, bUnbiased, bFreq);
        }

        /// <summary>Copies a table without one column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="k">the column to leave out; one below 1 counts as 1, and one above cols as cols</param>
        /// <param name="out">out, rows by cols - 1 numbers</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveCol(double[] x, int rows, int cols, int k, double[] @out)
        {
            Room.Check("VB_M_RemoveCol", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_RemoveCol", "out", @out, (long)rows, (cols == 0 ? 1L : cols) - 1);
            return Native.VB_M_RemoveCol(x, rows, cols, k, @out);
        }

        /// <summary>Takes a run of columns out of a table in place: those behind it move left. The columns that
        /// become free at the right keep their numbers.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="first">first column of the run; one below 1 counts as 1</param>
        /// <param name="last">last column of the run; one above cols counts as cols. Below first, nothing
        /// happens</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveCols2(double[] x, int rows, int cols, int first, int last)
        {
            Room.Check("VB_M_RemoveCols2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_RemoveCols2(x, rows, cols, first, last);
        }

        /// <summary>Copies a table without the columns in a list.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="list">in, n numbers of columns, in any order, also more than once. One that is not exactly
        /// the number of a column leaves out none</param>
        /// <param name="n">length of the list</param>
        /// <param name="out">out, rows by cols numbers, of which as many columns as stay are written</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveColsInList(double[] x, int rows, int cols, double[] list, int n, double[] @out)
        {
            Room.Check("VB_M_RemoveColsInList", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_RemoveColsInList", "list", list, (long)n, 1);
            Room.Check("VB_M_RemoveColsInList", "out", @out, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_RemoveColsInList(x, rows, cols, list, n, @out);
        }

        /// <summary>Copies a table without one row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="k">the row to leave out; one below 1 counts as 1, and one above rows as rows</param>
        /// <param name="out">out, rows - 1 by cols numbers</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveRow(double[] x, int rows, int cols, int k, double[] @out)
        {
            Room.Check("VB_M_RemoveRow", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_RemoveRow", "out", @out, (long)rows - 1, (cols == 0 ? 1L : cols));
            return Native.VB_M_RemoveRow(x, rows, cols, k, @out);
        }

        /// <summary>Takes a run of rows out of a table in place: those below it move up. The table keeps its shape,
        /// and the rows that become free at the bottom keep their numbers.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="first">first row of the run; one below 1 counts as 1</param>
        /// <param name="last">last row of the run; one above rows counts as rows. Below first, nothing
        /// happens</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveRows2(double[] x, int rows, int cols, int first, int last)
        {
            Room.Check("VB_M_RemoveRows2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_RemoveRows2(x, rows, cols, first, last);
        }

        /// <summary>Copies a table without the rows in a list.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="list">in, n numbers of rows, in any order, also more than once. One that is not the number
        /// of a row leaves out none</param>
        /// <param name="n">length of the list</param>
        /// <param name="out">out, rows by cols numbers, of which as many rows as stay, by cols, are written</param>
        /// <returns>0</returns>
        public static int VB_M_RemoveRowsInList(double[] x, int rows, int cols, int[] list, int n, double[] @out)
        {
            Room.Check("VB_M_RemoveRowsInList", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_M_RemoveRowsInList", "list", list, (long)n, 1);
            Room.Check("VB_M_RemoveRowsInList", "out", @out, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_RemoveRowsInList(x, rows, cols, list, n, @out);
        }

        /// <summary>Replaces the empty texts of a table.</summary>
        /// <param name="x">inout, rows by cols texts, replaced where they are empty</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="val">in, one text: what an empty one becomes</param>
        /// <returns>0</returns>
        public static int VB_M_ReplaceMissingByStr(string[] x, int rows, int cols, string val)
        {
            Room.Check("VB_M_ReplaceMissingByStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            using (var xTexts = new Texts("VB_M_ReplaceMissingByStr", "x", x))
            using (var valTexts = new Texts("VB_M_ReplaceMissingByStr", "val", new[] { val }))
            {
                int answer = Native.VB_M_ReplaceMissingByStr(xTexts.Cells, rows, cols, valTexts.Cells[0]);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Replaces the missing numbers of a table.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="val">what a missing number becomes</param>
        /// <returns>0</returns>
        public static int VB_M_ReplaceMissingByVal(double[] x, int rows, int cols, double val)
        {
            Room.Check("VB_M_ReplaceMissingByVal", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            return Native.VB_M_ReplaceMissingByVal(x, rows, cols, val);
        }

        /// <summary>Replaces the missing numbers of a chunked table.</summary>
        /// <param name="x">inout, cols columns of rows numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="val">what a missing number becomes</param>
        /// <returns>0</returns>
        public static int VB_M_ReplaceMissingByValSPV(HostArray x, int rows, int cols, double val)
        {
            return Native.VB_M_ReplaceMissingByValSPV(HostArray.Of(x), rows, cols, val);
        }

        /// <summary>The code of each text: `firstCode` for the first category of its variable, and one more for
        /// each next one. Of equal names the first counts. A text that is no category, and a flagged row, gets the
        /// missing number.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of variables</param>
        /// <param name="categoryCounts">in, p integers: the number of categories of each variable</param>
        /// <param name="categories">in, p by max(categoryCounts) texts: their names, a row for each
        /// variable</param>
        /// <param name="rowFlags">in, n flags: not 0 leaves a row out</param>
        /// <param name="firstCode">the code of a first category</param>
        /// <param name="result">out, n by p numbers: the codes</param>
        /// <returns>0</returns>
        public static int VB_M_ReplaceStrByCodes(string[] data, int n, int p, int[] categoryCounts, string[] categories,
            short[] rowFlags, int firstCode, double[] result)
        {
            Room.Check("VB_M_ReplaceStrByCodes", "data", data, (long)n, (long)p);
            Room.Check("VB_M_ReplaceStrByCodes", "categoryCounts", categoryCounts, (long)p, 1);
            Room.Check("VB_M_ReplaceStrByCodes", "categories", categories, (long)p, Room.Largest(categoryCounts));
            Room.Check("VB_M_ReplaceStrByCodes", "rowFlags", rowFlags, (long)n, 1);
            Room.Check("VB_M_ReplaceStrByCodes", "result", result, (long)n, (long)p);
            using (var dataTexts = new Texts("VB_M_ReplaceStrByCodes", "data", data))
            using (var categoriesTexts = new Texts("VB_M_ReplaceStrByCodes", "categories", categories))
                return Native.VB_M_ReplaceStrByCodes(dataTexts.Cells, n, p, categoryCounts, categoriesTexts.Cells, rowFlags, firstCode, result);
        }

        /// <summary>Codes from 0 on in the order in which texts first appear in the whole table, column after
        /// column. The empty text has a code like any other.</summary>
        /// <param name="data">in, n by p texts</param>
        /// <param name="n">number of rows</param>
        /// <param name="p">number of columns</param>
        /// <param name="rowFlags">in, n flags: not 0 gives a row missing numbers, and its texts no code. Null: no
        /// row is flagged</param>
        /// <param name="result">out, n by p numbers: the codes</param>
        /// <returns>0</returns>
        public static int VB_M_ReplaceStrByCodesBinary(string[] data, int n, int p, short[] rowFlags, double[] result)
        {
            Room.Check("VB_M_ReplaceStrByCodesBinary", "data", data, (long)n, (long)p);
            Room.Check("VB_M_ReplaceStrByCodesBinary", "rowFlags", rowFlags, (long)n, 1, true);
            Room.Check("VB_M_ReplaceStrByCodesBinary", "result", result, (long)n, (long)p);
            using (var dataTexts = new Texts("VB_M_ReplaceStrByCodesBinary", "data", data))
                return Native.VB_M_ReplaceStrByCodesBinary(dataTexts.Cells, n, p, rowFlags, result);
        }

        /// <summary>VB_V_Rescale on each column, each to a range of its own.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="lo">in, cols lower ends</param>
        /// <param name="hi">in, cols upper ends</param>
        /// <param name="iMissing">in, rows flags; what has a flag other than 0 is left out; may be null</param>
        /// <param name="out">out, rows by cols numbers, missing where a cell is left out; may be the array of
        /// x</param>
        /// <returns>0</returns>
        public static int VB_M_RescaleByVect(double[] x, int rows, int cols, double[] lo, double[] hi, short[] iMissing,
            double[] @out)
        {
            Room.Check("VB_M_RescaleByVect", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_RescaleByVect", "lo", lo, (long)cols, 1);
            Room.Check("VB_M_RescaleByVect", "hi", hi, (long)cols, 1);
            Room.Check("VB_M_RescaleByVect", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_RescaleByVect", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_RescaleByVect(x, rows, cols, lo, hi, iMissing, @out);
        }

        /// <summary>The same in place; a cell left out stays.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="lo">in, cols lower ends</param>
        /// <param name="hi">in, cols upper ends</param>
        /// <param name="iMissing">in, rows flags; what has a flag other than 0 is left out; may be null</param>
        /// <returns>0</returns>
        public static int VB_M_RescaleByVect2(double[] x, int rows, int cols, double[] lo, double[] hi,
            short[] iMissing)
        {
            Room.Check("VB_M_RescaleByVect2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_RescaleByVect2", "lo", lo, (long)cols, 1);
            Room.Check("VB_M_RescaleByVect2", "hi", hi, (long)cols, 1);
            Room.Check("VB_M_RescaleByVect2", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_RescaleByVect2(x, rows, cols, lo, hi, iMissing);
        }

        /// <summary>Singular value decomposition. A value may take 500 steps.</summary>
        /// <param name="a">in, n by p numbers, column after column</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
        /// descending, and perhaps a 0</param>
        /// <param name="u">out, n by n numbers, column after column; n by p numbers are enough when the job asks
        /// for min(n, p) columns. May be null when it asks for none</param>
        /// <param name="v">out, p by p numbers, column after column. May be null when the job does not ask for
        /// it</param>
        /// <param name="job">what is wanted, see above</param>
        /// <param name="info">out, one integer: 0; minus the number of values that did not converge, which are the
        /// first ones</param>
        /// <returns>0</returns>
        public static int VB_M_SVDecomp(double[] a, int n, int p, double[] s, double[] u, double[] v, int job,
            out int info)
        {
            Room.Check("VB_M_SVDecomp", "a", a, (long)n, (long)p);
            Room.Check("VB_M_SVDecomp", "s", s, (long)p, 1);
            Room.Check("VB_M_SVDecomp", "u", u, (long)n, (long)n);
            Room.Check("VB_M_SVDecomp", "v", v, (long)p, (long)p);
            return Native.VB_M_SVDecomp(a, n, p, s, u, v, job, out info);
        }

        /// <summary>Singular value decomposition of a chunked table. A value may take 60 steps.</summary>
        /// <param name="a">in, host array of p records, each with a numeric column of n numbers</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
        /// descending, and perhaps a 0</param>
        /// <param name="u">inout, host array of a record for each column that the job asks for, each with a numeric
        /// column of n numbers; a null array when it asks for none</param>
        /// <param name="v">inout, host array of p records, each with a numeric column of p numbers; a null array
        /// when the job does not ask for it</param>
        /// <param name="job">what is wanted, see above</param>
        /// <param name="info">out, one integer: 0; minus the number of values that did not converge, which are the
        /// first ones</param>
        /// <returns>0</returns>
        public static int VB_M_SVDecompSPV(HostArray a, int n, int p, double[] s, HostArray u, HostArray v, int job,
            out int info)
        {
            Room.Check("VB_M_SVDecompSPV", "s", s, (long)p, 1);
            return Native.VB_M_SVDecompSPV(HostArray.Of(a), n, p, s, HostArray.Of(u), HostArray.Of(v), job, out info);
        }

        /// <summary>Takes each row as many times as the caller says, in the order of the rows.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="sample">inout, sum(counts) by cols texts, the sum being that of the truncated positive
        /// counts</param>
        /// <param name="counts">in, rows numbers, truncated; a row with a number below 1 is left out</param>
        /// <param name="selected">out, sum(counts) numbers: the row number in the table of each row of the
        /// sample</param>
        /// <returns>0</returns>
        public static int VB_M_SampleUserDefined(string[] table, int rows, int cols, string[] sample, double[] counts,
            double[] selected)
        {
            Room.Check("VB_M_SampleUserDefined", "table", table, (long)rows, (long)cols);
            Room.Check("VB_M_SampleUserDefined", "sample", sample, Room.PositiveSum(counts), (long)cols);
            Room.Check("VB_M_SampleUserDefined", "counts", counts, (long)rows, 1);
            Room.Check("VB_M_SampleUserDefined", "selected", selected, Room.PositiveSum(counts), 1);
            using (var tableTexts = new Texts("VB_M_SampleUserDefined", "table", table))
            using (var sampleTexts = new Texts("VB_M_SampleUserDefined", "sample", sample))
            {
                int answer = Native.VB_M_SampleUserDefined(tableTexts.Cells, rows, cols, sampleTexts.Cells, counts, selected);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>Takes each row of a chunked table as many times as the caller says, in the order of the
        /// rows.</summary>
        /// <param name="table">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="sample">inout, host array of cols records, each with a text column of as many rows as the
        /// truncated positive counts add up to</param>
        /// <param name="counts">in, rows numbers, truncated; a row with a number below 1 is left out</param>
        /// <param name="selected">out, sum(counts) numbers: the row number in the table of each row of the
        /// sample</param>
        /// <returns>0</returns>
        public static int VB_M_SampleUserDefinedSPV(HostArray table, int rows, int cols, HostArray sample,
            double[] counts, double[] selected)
        {
            Room.Check("VB_M_SampleUserDefinedSPV", "counts", counts, (long)rows, 1);
            Room.Check("VB_M_SampleUserDefinedSPV", "selected", selected, Room.PositiveSum(counts), 1);
            return Native.VB_M_SampleUserDefinedSPV(HostArray.Of(table), rows, cols, HostArray.Of(sample), counts, selected);
        }

        /// <summary>One random row from each of k strata of consecutive rows. Strata may overlap.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, k by cols texts</param>
        /// <param name="selected">inout, k numbers: the row number of each row of the sample</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingRandomStratified(string[] table, int rows, int cols, int k, string[] sample,
            double[] selected, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("VB_M_SamplingRandomStratified", "table", table, (long)rows, (long)cols);
            Room.Check("VB_M_SamplingRandomStratified", "sample", sample, (long)k, (long)cols);
            Room.Check("VB_M_SamplingRandomStratified", "selected", selected, (long)k, 1);
            using (var tableTexts = new Texts("VB_M_SamplingRandomStratified", "table", table))
            using (var sampleTexts = new Texts("VB_M_SamplingRandomStratified", "sample", sample))
            {
                int answer = Native.VB_M_SamplingRandomStratified(tableTexts.Cells, rows, cols, k, sampleTexts.Cells, selected, ref seed, flag, out nextSeed);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>One random row of a chunked table from each of k strata of consecutive rows. Strata may
        /// overlap.</summary>
        /// <param name="table">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, host array of cols records, each with a text column of k texts</param>
        /// <param name="selected">inout, k numbers: the row number of each row of the sample</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingRandomStratifiedSPV(HostArray table, int rows, int cols, int k, HostArray sample,
            double[] selected, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("VB_M_SamplingRandomStratifiedSPV", "selected", selected, (long)k, 1);
            return Native.VB_M_SamplingRandomStratifiedSPV(HostArray.Of(table), rows, cols, k, HostArray.Of(sample), selected, ref seed, flag, out nextSeed);
        }

        /// <summary>Systematic sample of rows with a start in the middle of the possible ones. Nothing is
        /// drawn.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, k by cols texts</param>
        /// <param name="selected">inout, rows numbers: receives rows + 1 for each row that is not taken; the others
        /// stay</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingSystematicCentered(string[] table, int rows, int cols, int k, string[] sample,
            double[] selected)
        {
            Room.Check("VB_M_SamplingSystematicCentered", "table", table, (long)rows, (long)cols);
            Room.Check("VB_M_SamplingSystematicCentered", "sample", sample, (long)k, (long)cols);
            Room.Check("VB_M_SamplingSystematicCentered", "selected", selected, (long)rows, 1);
            using (var tableTexts = new Texts("VB_M_SamplingSystematicCentered", "table", table))
            using (var sampleTexts = new Texts("VB_M_SamplingSystematicCentered", "sample", sample))
            {
                int answer = Native.VB_M_SamplingSystematicCentered(tableTexts.Cells, rows, cols, k, sampleTexts.Cells, selected);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>Systematic sample of the rows of a chunked table with a start in the middle of the possible
        /// ones.</summary>
        /// <param name="table">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, host array of cols records, each with a text column of k texts</param>
        /// <param name="selected">inout, rows numbers: receives rows + 1 for each row that is not taken; the others
        /// stay</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingSystematicCenteredSPV(HostArray table, int rows, int cols, int k,
            HostArray sample, double[] selected)
        {
            Room.Check("VB_M_SamplingSystematicCenteredSPV", "selected", selected, (long)rows, 1);
            return Native.VB_M_SamplingSystematicCenteredSPV(HostArray.Of(table), rows, cols, k, HostArray.Of(sample), selected);
        }

        /// <summary>Systematic sample of rows with a random start: with the step s, the quotient (rows - 1) / (k -
        /// 1) without its fraction, every s-th row from a random one of the first rows - (k - 1) s.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, k by cols texts</param>
        /// <param name="selected">inout, rows numbers: receives rows + 1 for each row that is not taken; the others
        /// stay</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingSystematicRdStart(string[] table, int rows, int cols, int k, string[] sample,
            double[] selected, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("VB_M_SamplingSystematicRdStart", "table", table, (long)rows, (long)cols);
            Room.Check("VB_M_SamplingSystematicRdStart", "sample", sample, (long)k, (long)cols);
            Room.Check("VB_M_SamplingSystematicRdStart", "selected", selected, (long)rows, 1);
            using (var tableTexts = new Texts("VB_M_SamplingSystematicRdStart", "table", table))
            using (var sampleTexts = new Texts("VB_M_SamplingSystematicRdStart", "sample", sample))
            {
                int answer = Native.VB_M_SamplingSystematicRdStart(tableTexts.Cells, rows, cols, k, sampleTexts.Cells, selected, ref seed, flag, out nextSeed);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>Systematic sample of the rows of a chunked table with a random start: see
        /// VB_M_SamplingSystematicRdStart.</summary>
        /// <param name="table">in, host array of cols records, each with a text column of rows texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample; of 1, or above the number of rows, takes one row</param>
        /// <param name="sample">inout, host array of cols records, each with a text column of k texts</param>
        /// <param name="selected">inout, rows numbers: receives rows + 1 for each row that is not taken; the others
        /// stay</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingSystematicRdStartSPV(HostArray table, int rows, int cols, int k,
            HostArray sample, double[] selected, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("VB_M_SamplingSystematicRdStartSPV", "selected", selected, (long)rows, 1);
            return Native.VB_M_SamplingSystematicRdStartSPV(HostArray.Of(table), rows, cols, k, HostArray.Of(sample), selected, ref seed, flag, out nextSeed);
        }

        /// <summary>Simple random sample of rows with replacement, in the order of the rows.</summary>
        /// <param name="table">in, rows by cols texts</param>
        /// <param name="rows">number of rows</param>
        /// <param name="cols">number of columns</param>
        /// <param name="k">size of the sample</param>
        /// <param name="sample">inout, k by cols texts</param>
        /// <param name="selected">out, k numbers: the row number of each row of the sample, ascending</param>
        /// <param name="seed">inout, one integer: the seed, when flag is not 0; receives the seed in use when flag
        /// is 0</param>
        /// <param name="flag">not 0: a seed is given</param>
        /// <param name="nextSeed">out, one integer: a seed for the next run</param>
        /// <returns>0</returns>
        public static int VB_M_SamplingWithReplacement(string[] table, int rows, int cols, int k, string[] sample,
            double[] selected, ref int seed, short flag, out int nextSeed)
        {
            Room.Check("VB_M_SamplingWithReplacement", "table", table, (long)rows, (long)cols);
            Room.Check("VB_M_SamplingWithReplacement", "sample", sample, (long)k, (long)cols);
            Room.Check("VB_M_SamplingWithReplacement", "selected", selected, (long)k, 1);
            using (var tableTexts = new Texts("VB_M_SamplingWithReplacement", "table", table))
            using (var sampleTexts = new Texts("VB_M_SamplingWithReplacement", "sample", sample))
            {
                int answer = Native.VB_M_SamplingWithReplacement(tableTexts.Cells, rows, cols, k, sampleTexts.Cells, selected, ref seed, flag, out nextSeed);
                sampleTexts.CopyTo(sample);
                return answer;
            }
        }

        /// <summary>c(i, j) = s * a(i, j); a missing cell stays missing.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">the factor</param>
        /// <param name="c">out, n by p cells; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_ScalarsA(double[] a, int n, int p, double s, double[] c)
        {
            Room.Check("VB_M_ScalarsA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ScalarsA", "c", c, (long)n, (long)p);
            return Native.VB_M_ScalarsA(a, n, p, s, c);
        }

        /// <summary>a(i, j) = s * a(i, j); a missing cell stays missing.</summary>
        /// <param name="a">inout, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">the factor</param>
        /// <returns>0</returns>
        public static int VB_M_ScalarsA2(double[] a, int n, int p, double s)
        {
            Room.Check("VB_M_ScalarsA2", "a", a, (long)n, (long)p);
            return Native.VB_M_ScalarsA2(a, n, p, s);
        }

        /// <summary>c(j, i) = s * a(i, j); a missing cell stays missing.</summary>
        /// <param name="a">in, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <param name="s">the factor</param>
        /// <param name="c">out, p by n cells; may be a</param>
        /// <returns>0</returns>
        public static int VB_M_ScalarsTrA(double[] a, int n, int p, double s, double[] c)
        {
            Room.Check("VB_M_ScalarsTrA", "a", a, (long)n, (long)p);
            Room.Check("VB_M_ScalarsTrA", "c", c, (long)p, (long)n);
            return Native.VB_M_ScalarsTrA(a, n, p, s, c);
        }

        /// <summary>Sets weights to 0 where numbers are missing.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="weights">inout, n by p weights, or n weights when mode is 1</param>
        /// <param name="mode">1: a row with a missing number gets weight 0; otherwise the weight cell of each
        /// missing number does</param>
        /// <returns>0</returns>
        public static int VB_M_SetWeightsToZeroForMissing(double[] x, int n, int p, double[] weights, int mode)
        {
            Room.Check("VB_M_SetWeightsToZeroForMissing", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_M_SetWeightsToZeroForMissing", "weights", weights, mode == 1 ? (long)n : (long)n, mode == 1 ? 1 : (p == 0 ? 1L : p));
            return Native.VB_M_SetWeightsToZeroForMissing(x, n, p, weights, mode);
        }

        /// <summary>a(i, j) = a(i, j) * a(i, j); a missing cell stays missing.</summary>
        /// <param name="a">inout, n by p cells</param>
        /// <param name="n">rows</param>
        /// <param name="p">columns</param>
        /// <returns>0</returns>
        public static int VB_M_Square(double[] a, int n, int p)
        {
            Room.Check("VB_M_Square", "a", a, (long)n, (long)p);
            return Native.VB_M_Square(a, n, p);
        }

        /// <summary>The sum of squares of each column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols sums</param>
        /// <returns>0</returns>
        public static int VB_M_SquaredColumns(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_SquaredColumns", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_SquaredColumns", "out", @out, (long)cols, 1);
            return Native.VB_M_SquaredColumns(x, rows, cols, @out);
        }

        /// <summary>The sum of squares of each row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows sums</param>
        /// <returns>0</returns>
        public static int VB_M_SquaredRows(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_SquaredRows", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_SquaredRows", "out", @out, (long)rows, 1);
            return Native.VB_M_SquaredRows(x, rows, cols, @out);
        }

        /// <summary>Standardises each column in turn. A column that has nothing to divide its sum of squares by
        /// ends the work: its statistics become missing, and it and the columns after it stay as they are in x, or
        /// 0 in the results. A deviation of 0 is reported and not divided by, so that a constant column becomes
        /// zeros.</summary>
        /// <param name="x">inout, rows by cols numbers; unchanged unless out is null</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows by cols numbers, missing where a cell is not kept; null: the cells of x that
        /// are kept are replaced. May be the array of x</param>
        /// <param name="means">out, cols means; may be null</param>
        /// <param name="sds">out, cols deviations; may be null</param>
        /// <param name="vars">out, cols variances; may be null</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="w">in, rows weights; may be null, then all are 1</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Standardize(double[] x, int rows, int cols, double[] @out, double[] means, double[] sds,
            double[] vars, short[] iMissing, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_Standardize", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Standardize", "out", @out, (long)rows, (long)cols, true);
            Room.Check("VB_M_Standardize", "means", means, (long)cols, 1, true);
            Room.Check("VB_M_Standardize", "sds", sds, (long)cols, 1, true);
            Room.Check("VB_M_Standardize", "vars", vars, (long)cols, 1, true);
            Room.Check("VB_M_Standardize", "iMissing", iMissing, (long)rows, 1, true);
            Room.Check("VB_M_Standardize", "w", w, (long)rows, 1, true);
            return Native.VB_M_Standardize(x, rows, cols, @out, means, sds, vars, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Standardises in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Standardize2(double[] x, int rows, int cols, short bUnbiased)
        {
            Room.Check("VB_M_Standardize2", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Standardize2(x, rows, cols, bUnbiased);
        }

        /// <summary>The same on a table of separate columns.</summary>
        /// <param name="x">inout, cols columns of rows numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Standardize2SPV(HostArray x, int rows, int cols, short bUnbiased)
        {
            return Native.VB_M_Standardize2SPV(HostArray.Of(x), rows, cols, bUnbiased);
        }

        /// <summary>Standardises in place and returns the statistics.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">out, cols means</param>
        /// <param name="sds">out, cols deviations</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_Standardize3(double[] x, int rows, int cols, double[] means, double[] sds,
            short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_Standardize3", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Standardize3", "means", means, (long)cols, 1);
            Room.Check("VB_M_Standardize3", "sds", sds, (long)cols, 1);
            return Native.VB_M_Standardize3(x, rows, cols, means, sds, bUnbiased, bFreq);
        }

        /// <summary>VB_M_StandardizeKnownMeansStDev with deviations and a result, no row left out.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">in, cols means</param>
        /// <param name="sds">in, cols deviations</param>
        /// <param name="out">out, rows by cols numbers; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeByVect(double[] x, int rows, int cols, double[] means, double[] sds,
            double[] @out)
        {
            Room.Check("VB_M_StandardizeByVect", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeByVect", "means", means, (long)cols, 1);
            Room.Check("VB_M_StandardizeByVect", "sds", sds, (long)cols, 1);
            Room.Check("VB_M_StandardizeByVect", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_StandardizeByVect(x, rows, cols, means, sds, @out);
        }

        /// <summary>VB_M_StandardizeKnownMeansStDev with deviations, in place, no row left out.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">in, cols means</param>
        /// <param name="sds">in, cols deviations</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeByVect2(double[] x, int rows, int cols, double[] means, double[] sds)
        {
            Room.Check("VB_M_StandardizeByVect2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeByVect2", "means", means, (long)cols, 1);
            Room.Check("VB_M_StandardizeByVect2", "sds", sds, (long)cols, 1);
            return Native.VB_M_StandardizeByVect2(x, rows, cols, means, sds);
        }

        /// <summary>Standardises the columns by given statistics. A deviation of 0 is not divided by. Where the
        /// mean or the deviation of a column is missing, its cells that are kept become missing; a negative
        /// variance counts as a missing deviation.</summary>
        /// <param name="x">inout, rows by cols numbers; unchanged unless out is null</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="means">in, cols means</param>
        /// <param name="sds">in, cols deviations; null: the roots of vars</param>
        /// <param name="out">out, rows by cols numbers, missing where a cell is not kept; null: the cells of x that
        /// are kept are replaced. May be the array of x</param>
        /// <param name="vars">in, cols variances, read only when sds is null</param>
        /// <param name="iMissing">in, rows flags; a row with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeKnownMeansStDev(double[] x, int rows, int cols, double[] means, double[] sds,
            double[] @out, double[] vars, short[] iMissing)
        {
            Room.Check("VB_M_StandardizeKnownMeansStDev", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeKnownMeansStDev", "means", means, (long)cols, 1);
            Room.Check("VB_M_StandardizeKnownMeansStDev", "sds", sds, (long)cols, 1, true);
            Room.Check("VB_M_StandardizeKnownMeansStDev", "out", @out, (long)rows, (long)cols, true);
            Room.Check("VB_M_StandardizeKnownMeansStDev", "vars", vars, (long)cols, 1);
            Room.Check("VB_M_StandardizeKnownMeansStDev", "iMissing", iMissing, (long)rows, 1, true);
            return Native.VB_M_StandardizeKnownMeansStDev(x, rows, cols, means, sds, @out, vars, iMissing);
        }

        /// <summary>Standardises a table in place, (x - mean) / sd by column, the sum of squares divided by the
        /// number of cells less 1, and by the same means and deviations two companions, tables of other rows and
        /// the same columns. Where the deviation of x is not greater than 0, the column stays as it is in all
        /// three.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of all three</param>
        /// <param name="y">inout, yRows by cols numbers; may be null when yRows is 0</param>
        /// <param name="yRows">rows of y</param>
        /// <param name="z">inout, zRows by cols numbers; may be null when zRows is 0</param>
        /// <param name="zRows">rows of z</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeMatrix(double[] x, int rows, int cols, double[] y, int yRows, double[] z,
            int zRows)
        {
            Room.Check("VB_M_StandardizeMatrix", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeMatrix", "y", y, (long)yRows, (long)cols, true);
            Room.Check("VB_M_StandardizeMatrix", "z", z, (long)zRows, (long)cols, true);
            return Native.VB_M_StandardizeMatrix(x, rows, cols, y, yRows, z, zRows);
        }

        /// <summary>Standardises, with weights, into a result.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <param name="out">out, rows by cols numbers; may be the array of an argument</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeW(double[] x, int rows, int cols, double[] w, short bUnbiased, short bFreq,
            double[] @out)
        {
            Room.Check("VB_M_StandardizeW", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeW", "w", w, (long)rows, 1);
            Room.Check("VB_M_StandardizeW", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_StandardizeW(x, rows, cols, w, bUnbiased, bFreq, @out);
        }

        /// <summary>Standardises, with weights, in place.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights; may be a column of x</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeW2(double[] x, int rows, int cols, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_StandardizeW2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeW2", "w", w, (long)rows, 1);
            return Native.VB_M_StandardizeW2(x, rows, cols, w, bUnbiased, bFreq);
        }

        /// <summary>Standardises, with weights, in place and returns the statistics.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="w">in, rows weights; may be a column of x</param>
        /// <param name="means">out, cols means</param>
        /// <param name="sds">out, cols deviations</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_M_StandardizeW3(double[] x, int rows, int cols, double[] w, double[] means, double[] sds,
            short bUnbiased, short bFreq)
        {
            Room.Check("VB_M_StandardizeW3", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_StandardizeW3", "w", w, (long)rows, 1);
            Room.Check("VB_M_StandardizeW3", "means", means, (long)cols, 1);
            Room.Check("VB_M_StandardizeW3", "sds", sds, (long)cols, 1);
            return Native.VB_M_StandardizeW3(x, rows, cols, w, means, sds, bUnbiased, bFreq);
        }

        /// <summary>The sum of each column.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, cols sums</param>
        /// <returns>0</returns>
        public static int VB_M_SumByCols(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_SumByCols", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_SumByCols", "out", @out, (long)cols, 1);
            return Native.VB_M_SumByCols(x, rows, cols, @out);
        }

        /// <summary>The sum of each row.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="out">out, rows sums</param>
        /// <returns>0</returns>
        public static int VB_M_SumByRows(double[] x, int rows, int cols, double[] @out)
        {
            Room.Check("VB_M_SumByRows", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_SumByRows", "out", @out, (long)rows, 1);
            return Native.VB_M_SumByRows(x, rows, cols, @out);
        }

        /// <summary>The sum of all cells.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <returns>the sum</returns>
        public static double VB_M_SumOfElem(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_SumOfElem", "x", x, (long)rows, (long)cols);
            return Native.VB_M_SumOfElem(x, rows, cols);
        }

        /// <summary>The sum of two tables, each times a number: a * A + b * B, cell by cell.</summary>
        /// <param name="A">in, rows by cols numbers</param>
        /// <param name="rows">rows</param>
        /// <param name="cols">columns</param>
        /// <param name="B">in, rows by cols numbers</param>
        /// <param name="a">factor of A</param>
        /// <param name="b">factor of B</param>
        /// <param name="out">out, rows by cols numbers, 0.0 where one is missing in either table; may be A or
        /// B</param>
        /// <returns>0</returns>
        public static int VB_M_Sums1As2B(double[] A, int rows, int cols, double[] B, double a, double b, double[] @out)
        {
            Room.Check("VB_M_Sums1As2B", "A", A, (long)rows, (long)cols);
            Room.Check("VB_M_Sums1As2B", "B", B, (long)rows, (long)cols);
            Room.Check("VB_M_Sums1As2B", "out", @out, (long)rows, (long)cols);
            return Native.VB_M_Sums1As2B(A, rows, cols, B, a, b, @out);
        }

        /// <summary>Sweeps one pivot of a symmetric table in place: after all pivots the table is the negative of
        /// its inverse. The pivot is not tested, so that a zero gives infinities. Outside of the pivot's row and
        /// column a result whose magnitude is below 1e-12 becomes 0. Missing elements are numbers.</summary>
        /// <param name="packed">inout, n * (n + 1) / 2 numbers, the lower triangle row after row</param>
        /// <param name="n">rows and columns of the table; at most 65535</param>
        /// <param name="k">number of the pivot, counted from 1</param>
        /// <returns>0</returns>
        public static int VB_M_Sweep(double[] packed, int n, int k)
        {
            Room.Check("VB_M_Sweep", "packed", packed, (long)n * ((long)n + 1) / 2, 1);
            return Native.VB_M_Sweep(packed, n, k);
        }

        /// <summary>Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell
        /// takes the value of the other; two missing ones stay.</summary>
        /// <param name="x">inout, rows by cols numbers; the square in the top left corner is treated</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int VB_M_Symmetrize(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_Symmetrize", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Symmetrize(x, rows, cols);
        }

        /// <summary>Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell
        /// takes the value of the other; two missing ones stay.</summary>
        /// <param name="x">inout, chunked table of cols columns of rows numbers; the square in the top left corner
        /// is treated</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int VB_M_SymmetrizeSPV(HostArray x, int rows, int cols)
        {
            return Native.VB_M_SymmetrizeSPV(HostArray.Of(x), rows, cols);
        }

        /// <summary>The trace: the sum of a(i, i).</summary>
        /// <param name="a">in, n by n cells</param>
        /// <param name="n">rows and columns; below 1 nothing is read</param>
        /// <returns>the sum; 0.0 for n below 1</returns>
        public static double VB_M_Trace(double[] a, int n)
        {
            Room.Check("VB_M_Trace", "a", a, (long)n, (long)n);
            return Native.VB_M_Trace(a, n);
        }

        /// <summary>Turns similarities into dissimilarities: every cell becomes the largest cell of the table less
        /// itself. Missing cells stay and do not count as the largest.</summary>
        /// <param name="x">inout, n by n numbers</param>
        /// <param name="n">order</param>
        /// <returns>0</returns>
        public static int VB_M_TransformSimToDissim(double[] x, int n)
        {
            Room.Check("VB_M_TransformSimToDissim", "x", x, (long)n, (long)n);
            return Native.VB_M_TransformSimToDissim(x, n);
        }

        /// <summary>Transposes a table of numbers.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">out, cols by rows numbers; may be x</param>
        /// <returns>0</returns>
        public static int VB_M_Transpose(double[] x, int rows, int cols, double[] y)
        {
            Room.Check("VB_M_Transpose", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_Transpose", "y", y, (long)cols, (long)rows);
            return Native.VB_M_Transpose(x, rows, cols, y);
        }

        /// <summary>Transposes a table of numbers in place.</summary>
        /// <param name="x">inout, rows by cols numbers; cols by rows on return</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int VB_M_Transpose2(double[] x, int rows, int cols)
        {
            Room.Check("VB_M_Transpose2", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Transpose2(x, rows, cols);
        }

        /// <summary>Transposes a table of integers in place.</summary>
        /// <param name="x">inout, rows by cols integers; cols by rows on return</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int VB_M_Transpose2Lng(int[] x, int rows, int cols)
        {
            Room.Check("VB_M_Transpose2Lng", "x", x, (long)rows, (long)cols);
            return Native.VB_M_Transpose2Lng(x, rows, cols);
        }

        /// <summary>Transposes a table of texts in place.</summary>
        /// <param name="x">inout, rows by cols texts, replaced where they differ; cols by rows on return</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <returns>0</returns>
        public static int VB_M_Transpose2Str(string[] x, int rows, int cols)
        {
            Room.Check("VB_M_Transpose2Str", "x", x, (long)rows, (long)cols);
            using (var xTexts = new Texts("VB_M_Transpose2Str", "x", x))
            {
                int answer = Native.VB_M_Transpose2Str(xTexts.Cells, rows, cols);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Transposes a table of integers.</summary>
        /// <param name="x">in, rows by cols integers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">out, cols by rows integers; may be x</param>
        /// <returns>0</returns>
        public static int VB_M_TransposeLng(int[] x, int rows, int cols, int[] y)
        {
            Room.Check("VB_M_TransposeLng", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_TransposeLng", "y", y, (long)cols, (long)rows);
            return Native.VB_M_TransposeLng(x, rows, cols, y);
        }

        /// <summary>Transposes a table of separate columns of numbers.</summary>
        /// <param name="x">in, chunked table of cols columns of rows numbers</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">out, chunked table of rows columns of cols numbers; none of x</param>
        /// <returns>0</returns>
        public static int VB_M_TransposeSPV(HostArray x, int rows, int cols, HostArray y)
        {
            return Native.VB_M_TransposeSPV(HostArray.Of(x), rows, cols, HostArray.Of(y));
        }

        /// <summary>Transposes a table of texts.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of x</param>
        /// <param name="cols">columns of x</param>
        /// <param name="y">inout, cols by rows texts, replaced where they differ; may be x</param>
        /// <returns>0</returns>
        public static int VB_M_TransposeStr(string[] x, int rows, int cols, string[] y)
        {
            Room.Check("VB_M_TransposeStr", "x", x, (long)rows, (long)cols);
            Room.Check("VB_M_TransposeStr", "y", y, (long)cols, (long)rows);
            using (var xTexts = new Texts("VB_M_TransposeStr", "x", x))
            using (var yTexts = new Texts("VB_M_TransposeStr", "y", y))
            {
                int answer = Native.VB_M_TransposeStr(xTexts.Cells, rows, cols, yTexts.Cells);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>Root mean squared error of one column of two tables, over the rows whose first value is above
        /// the missing number.</summary>
        /// <param name="x">in, n by col numbers or more</param>
        /// <param name="n">number of rows</param>
        /// <param name="col">the column, from 1</param>
        /// <param name="y">in, n by col numbers or more, not tested for missing</param>
        /// <param name="df">what the sum of squares is divided by; 0 gives infinity, or a NaN when the sum is
        /// 0</param>
        /// <returns>the error; 0.0 when col is below 1</returns>
        public static double VB_RMSE(double[] x, int n, int col, double[] y, double df)
        {
            Room.Check("VB_RMSE", "x", x, (long)n, (long)col);
            Room.Check("VB_RMSE", "y", y, (long)n, (long)col);
            return Native.VB_RMSE(x, n, col, y, df);
        }

        /// <summary>Copies a table without the flagged rows.</summary>
        /// <param name="x">in, n by p numbers</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="removed">how many rows the result is shorter</param>
        /// <param name="flags">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <param name="result">out, n - removed by p numbers; it may be x</param>
        /// <returns>0</returns>
        public static int VB_RemoveRowsWithMissing(double[] x, int n, int p, int removed, short[] flags,
            double[] result)
        {
            Room.Check("VB_RemoveRowsWithMissing", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_RemoveRowsWithMissing", "flags", flags, (long)n, 1);
            Room.Check("VB_RemoveRowsWithMissing", "result", result, (long)n - (long)removed, (p == 0 ? 1L : p));
            return Native.VB_RemoveRowsWithMissing(x, n, p, removed, flags, result);
        }

        /// <summary>Copies a table of flags without the flagged rows.</summary>
        /// <param name="x">in, n by p flags</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="removed">how many rows the result is shorter</param>
        /// <param name="flags">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <param name="result">out, n - removed by p flags; it may be x</param>
        /// <returns>0</returns>
        public static int VB_RemoveRowsWithMissingBool(short[] x, int n, int p, int removed, short[] flags,
            short[] result)
        {
            Room.Check("VB_RemoveRowsWithMissingBool", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_RemoveRowsWithMissingBool", "flags", flags, (long)n, 1);
            Room.Check("VB_RemoveRowsWithMissingBool", "result", result, (long)n - (long)removed, (p == 0 ? 1L : p));
            return Native.VB_RemoveRowsWithMissingBool(x, n, p, removed, flags, result);
        }

        /// <summary>Takes the flagged rows out of a table of texts in place, as Cpp_M_RemoveRowsWithMissing2 does,
        /// and copies its first rows.</summary>
        /// <param name="x">inout, n by p texts, replaced where they differ</param>
        /// <param name="n">rows of the table</param>
        /// <param name="p">columns of the table; 0 stands for 1</param>
        /// <param name="removed">how many rows the result is shorter</param>
        /// <param name="flags">in, n flags, one for each row; not 0: the row is taken out</param>
        /// <param name="result">inout, n - removed by p texts, replaced where they differ; it may be x</param>
        /// <returns>0</returns>
        public static int VB_RemoveRowsWithMissingStr(string[] x, int n, int p, int removed, short[] flags,
            string[] result)
        {
            Room.Check("VB_RemoveRowsWithMissingStr", "x", x, (long)n, (p == 0 ? 1L : p));
            Room.Check("VB_RemoveRowsWithMissingStr", "flags", flags, (long)n, 1);
            Room.Check("VB_RemoveRowsWithMissingStr", "result", result, (long)n - (long)removed, (p == 0 ? 1L : p));
            using (var xTexts = new Texts("VB_RemoveRowsWithMissingStr", "x", x))
            using (var resultTexts = new Texts("VB_RemoveRowsWithMissingStr", "result", result))
            {
                int answer = Native.VB_RemoveRowsWithMissingStr(xTexts.Cells, n, p, removed, flags, resultTexts.Cells);
                xTexts.CopyTo(x);
                resultTexts.CopyTo(result);
                return answer;
            }
        }

        /// <summary>Makes a label for each flagged row: the prefix and the row number, and a further number while
        /// another row has that label.</summary>
        /// <param name="labels">inout, n texts, replaced where they differ</param>
        /// <param name="n">number of rows</param>
        /// <param name="flags">inout, n flags, one for each row, -1 for one that gets a label; it is 0 then</param>
        /// <param name="prefix">in, one text: what a made label starts with</param>
        /// <returns>0</returns>
        public static int VB_ReplaceMissingObsLabels(string[] labels, int n, short[] flags, string prefix)
        {
            Room.Check("VB_ReplaceMissingObsLabels", "labels", labels, (long)n, 1);
            Room.Check("VB_ReplaceMissingObsLabels", "flags", flags, (long)n, 1);
            using (var labelsTexts = new Texts("VB_ReplaceMissingObsLabels", "labels", labels))
            using (var prefixTexts = new Texts("VB_ReplaceMissingObsLabels", "prefix", new[] { prefix }))
            {
                int answer = Native.VB_ReplaceMissingObsLabels(labelsTexts.Cells, n, flags, prefixTexts.Cells[0]);
                labelsTexts.CopyTo(labels);
                return answer;
            }
        }

        /// <summary>Takes the rows of a table of numbers in a given order: row i of the result is row order[i] of
        /// the table.</summary>
        /// <param name="x">in, rows by cols numbers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives -1</param>
        /// <param name="out">out, rows by cols numbers; may be x</param>
        /// <returns>0</returns>
        public static int VB_SortApply(double[] x, int rows, int cols, double[] order, double[] @out)
        {
            Room.Check("VB_SortApply", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApply", "order", order, (long)rows, 1);
            Room.Check("VB_SortApply", "out", @out, (long)rows, (long)cols);
            return Native.VB_SortApply(x, rows, cols, order, @out);
        }

        /// <summary>Puts the rows of a table of numbers into a given order, in place: row i becomes what row
        /// order[i] was.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives -1</param>
        /// <returns>0</returns>
        public static int VB_SortApply2(double[] x, int rows, int cols, double[] order)
        {
            Room.Check("VB_SortApply2", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApply2", "order", order, (long)rows, 1);
            return Native.VB_SortApply2(x, rows, cols, order);
        }

        /// <summary>Puts the rows of a table of integers into a given order, in place: row i becomes what row
        /// order[i] was.</summary>
        /// <param name="x">inout, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives -1</param>
        /// <returns>0</returns>
        public static int VB_SortApply2Lng(int[] x, int rows, int cols, double[] order)
        {
            Room.Check("VB_SortApply2Lng", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApply2Lng", "order", order, (long)rows, 1);
            return Native.VB_SortApply2Lng(x, rows, cols, order);
        }

        /// <summary>Puts the rows of a table of texts into a given order, in place: row i becomes what row order[i]
        /// was.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives an empty text</param>
        /// <returns>0</returns>
        public static int VB_SortApply2Str(string[] x, int rows, int cols, double[] order)
        {
            Room.Check("VB_SortApply2Str", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApply2Str", "order", order, (long)rows, 1);
            using (var xTexts = new Texts("VB_SortApply2Str", "x", x))
            {
                int answer = Native.VB_SortApply2Str(xTexts.Cells, rows, cols, order);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Takes the rows of a table of integers in a given order: row i of the result is row order[i] of
        /// the table.</summary>
        /// <param name="x">in, rows by cols integers</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives -1</param>
        /// <param name="out">out, rows by cols integers; may be x</param>
        /// <returns>0</returns>
        public static int VB_SortApplyLng(int[] x, int rows, int cols, double[] order, int[] @out)
        {
            Room.Check("VB_SortApplyLng", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApplyLng", "order", order, (long)rows, 1);
            Room.Check("VB_SortApplyLng", "out", @out, (long)rows, (long)cols);
            return Native.VB_SortApplyLng(x, rows, cols, order, @out);
        }

        /// <summary>Takes the rows of a table of texts in a given order: row i of the result is row order[i] of the
        /// table.</summary>
        /// <param name="x">in, rows by cols texts</param>
        /// <param name="rows">rows of both tables</param>
        /// <param name="cols">columns of both tables</param>
        /// <param name="order">in, rows row numbers from 1, truncated to integers; one that is not the number of a
        /// row gives an empty text</param>
        /// <param name="out">out, rows by cols texts; may be x</param>
        /// <returns>0</returns>
        public static int VB_SortApplyStr(string[] x, int rows, int cols, double[] order, string[] @out)
        {
            Room.Check("VB_SortApplyStr", "x", x, (long)rows, (long)cols);
            Room.Check("VB_SortApplyStr", "order", order, (long)rows, 1);
            Room.Check("VB_SortApplyStr", "out", @out, (long)rows, (long)cols);
            using (var xTexts = new Texts("VB_SortApplyStr", "x", x))
            using (var outTexts = new Texts("VB_SortApplyStr", "out", @out))
            {
                int answer = Native.VB_SortApplyStr(xTexts.Cells, rows, cols, order, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Puts the rows of a table of numbers with key 0 first, in their order, then those with key
        /// 1.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="key">inout, rows keys, rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortDataBy01(double[] x, int rows, int cols, double[] key)
        {
            Room.Check("VB_SortDataBy01", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortDataBy01", "key", key, (long)rows, 1);
            return Native.VB_SortDataBy01(x, rows, cols, key);
        }

        /// <summary>Puts the rows of a table of flags with key 0 first, in their order, then those with key
        /// 1.</summary>
        /// <param name="x">inout, rows by cols flags</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="key">inout, rows keys, rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortDataBy01Bool(short[] x, int rows, int cols, double[] key)
        {
            Room.Check("VB_SortDataBy01Bool", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortDataBy01Bool", "key", key, (long)rows, 1);
            return Native.VB_SortDataBy01Bool(x, rows, cols, key);
        }

        /// <summary>Puts the rows of a table of texts with key 0 first, in their order, then those with key
        /// 1.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="key">inout, rows keys, rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortDataBy01Str(string[] x, int rows, int cols, double[] key)
        {
            Room.Check("VB_SortDataBy01Str", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortDataBy01Str", "key", key, (long)rows, 1);
            using (var xTexts = new Texts("VB_SortDataBy01Str", "x", x))
            {
                int answer = Native.VB_SortDataBy01Str(xTexts.Cells, rows, cols, key);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Orders all rows of a table of numbers, ascending, by column 1, then column 2, and so
        /// on.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <returns>0</returns>
        public static int VB_SortMatrixSeqQDbl(double[] x, int rows, int cols)
        {
            Room.Check("VB_SortMatrixSeqQDbl", "x", x, (long)rows, (long)cols);
            return Native.VB_SortMatrixSeqQDbl(x, rows, cols);
        }

        /// <summary>Orders all rows of a table of integers, ascending, by column 1, then column 2, and so
        /// on.</summary>
        /// <param name="x">inout, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <returns>0</returns>
        public static int VB_SortMatrixSeqQLng(int[] x, int rows, int cols)
        {
            Room.Check("VB_SortMatrixSeqQLng", "x", x, (long)rows, (long)cols);
            return Native.VB_SortMatrixSeqQLng(x, rows, cols);
        }

        /// <summary>Sorts all rows of a table of numbers, ascending, by column p1, then again by the next, up to
        /// p2: column p2 orders first, then the one before it.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="p1">first column, from 1</param>
        /// <param name="p2">last column, included</param>
        /// <returns>0</returns>
        public static int VB_SortMatrixSeqQP1toP2Dbl(double[] x, int rows, int cols, int p1, int p2)
        {
            Room.Check("VB_SortMatrixSeqQP1toP2Dbl", "x", x, (long)rows, (long)cols);
            return Native.VB_SortMatrixSeqQP1toP2Dbl(x, rows, cols, p1, p2);
        }

        /// <summary>Sorts all rows of a table of integers, ascending, by column p1, then again by the next, up to
        /// p2: column p2 orders first, then the one before it.</summary>
        /// <param name="x">inout, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="p1">first column, from 1</param>
        /// <param name="p2">last column, included</param>
        /// <returns>0</returns>
        public static int VB_SortMatrixSeqQP1toP2Lng(int[] x, int rows, int cols, int p1, int p2)
        {
            Room.Check("VB_SortMatrixSeqQP1toP2Lng", "x", x, (long)rows, (long)cols);
            return Native.VB_SortMatrixSeqQP1toP2Lng(x, rows, cols, p1, p2);
        }

        /// <summary>Orders the rows of a table of flags by a key of numbers.</summary>
        /// <param name="x">inout, rows by cols flags</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols flags, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQBool(short[] x, int rows, int cols, int from, int to, double[] key, short[] aux,
            int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQBool", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortQBool", "key", key, (long)rows, 1);
            Room.Check("VB_SortQBool", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.VB_SortQBool(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders the columns of a table of numbers by a key with one entry a column: the column of rank
        /// k, from 0, goes to column from + k.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table; 0 counts as 1</param>
        /// <param name="cols">columns of the table</param>
        /// <param name="from">first column to sort, from 1</param>
        /// <param name="to">last column to sort, included</param>
        /// <param name="key">inout, cols keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, auxRows by cols numbers, a second table whose columns move along</param>
        /// <param name="auxRows">rows of aux; 0 counts as 1</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQByColDbl(double[] x, int rows, int cols, int from, int to, double[] key, double[] aux,
            int auxRows, short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQByColDbl", "x", x, (rows == 0 ? 1L : rows), (long)cols);
            Room.Check("VB_SortQByColDbl", "key", key, (long)cols, 1);
            Room.Check("VB_SortQByColDbl", "aux", aux, (auxRows == 0 ? 1L : auxRows), (long)cols);
            return Native.VB_SortQByColDbl(x, rows, cols, from, to, key, aux, auxRows, bDesc, bSortKey);
        }

        /// <summary>Orders the rows of a table of numbers by a key, on copies that then replace the caller's
        /// arrays.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols numbers, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQDbl(double[] x, int rows, int cols, int from, int to, double[] key, double[] aux,
            int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortQDbl", "key", key, (long)rows, 1);
            Room.Check("VB_SortQDbl", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.VB_SortQDbl(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders the rows of a table of numbers by a key, in the caller's arrays. With bSortKey set and
        /// the key at the table's own address, the key is the table's first column, and the columns from the second
        /// on move.</summary>
        /// <param name="x">inout, rows by cols numbers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols numbers, moved along unless it is the key or the table itself;
        /// may be null when auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQDbl2(double[] x, int rows, int cols, int from, int to, double[] key, double[] aux,
            int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQDbl2", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortQDbl2", "key", key, (long)rows, 1);
            Room.Check("VB_SortQDbl2", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.VB_SortQDbl2(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders the rows of a table of integers by a key of integers.</summary>
        /// <param name="x">inout, rows by cols integers</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols integers, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQLng(int[] x, int rows, int cols, int from, int to, int[] key, int[] aux, int auxCols,
            short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortQLng", "key", key, (long)rows, 1);
            Room.Check("VB_SortQLng", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            return Native.VB_SortQLng(x, rows, cols, from, to, key, aux, auxCols, bDesc, bSortKey);
        }

        /// <summary>Orders the rows of a table of texts by a key of numbers. A text that stays in its place keeps
        /// its BSTR.</summary>
        /// <param name="x">inout, rows by cols texts</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 counts as 1</param>
        /// <param name="from">first row to sort, from 1</param>
        /// <param name="to">last row to sort, included</param>
        /// <param name="key">inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey
        /// is set</param>
        /// <param name="aux">inout, rows by auxCols texts, a second table that moves along; may be null when
        /// auxCols is below 0</param>
        /// <param name="auxCols">columns of aux; 0 counts as 1, so there must be one; below 0 there is none</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <param name="bSortKey">not 0: the key is rewritten in sorted order</param>
        /// <returns>0</returns>
        public static int VB_SortQStr(string[] x, int rows, int cols, int from, int to, double[] key, string[] aux,
            int auxCols, short bDesc, short bSortKey)
        {
            Room.Check("VB_SortQStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_SortQStr", "key", key, (long)rows, 1);
            Room.Check("VB_SortQStr", "aux", aux, (long)rows, (auxCols == 0 ? 1L : auxCols), true);
            using (var xTexts = new Texts("VB_SortQStr", "x", x))
            using (var auxTexts = new Texts("VB_SortQStr", "aux", aux))
            {
                int answer = Native.VB_SortQStr(xTexts.Cells, rows, cols, from, to, key, auxTexts.Cells, auxCols, bDesc, bSortKey);
                xTexts.CopyTo(x);
                auxTexts.CopyTo(aux);
                return answer;
            }
        }

        /// <summary>Sorts positions `from..to` of a vector of numbers.</summary>
        /// <param name="sa">inout, host array of Double, one column, sorted in place</param>
        /// <param name="ignored">not used; the array knows its length</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int VB_SortQVectorDbl(HostArray sa, int ignored, int from, int to, short bDesc)
        {
            return Native.VB_SortQVectorDbl(HostArray.Of(sa), ignored, from, to, bDesc);
        }

        /// <summary>Sorts positions `from..to` of a vector of integers.</summary>
        /// <param name="sa">inout, host array of Long, one column, sorted in place</param>
        /// <param name="ignored">not used; the array knows its length</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int VB_SortQVectorLng(HostArray sa, int ignored, int from, int to, short bDesc)
        {
            return Native.VB_SortQVectorLng(HostArray.Of(sa), ignored, from, to, bDesc);
        }

        /// <summary>Sorts positions `from..to` of a vector of texts by 16-bit code units, a prefix before its
        /// extensions.</summary>
        /// <param name="x">inout, n texts</param>
        /// <param name="n">number of texts</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, included</param>
        /// <param name="bDesc">not 0: descending</param>
        /// <returns>0</returns>
        public static int VB_SortQVectorStr(string[] x, int n, int from, int to, short bDesc)
        {
            Room.Check("VB_SortQVectorStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("VB_SortQVectorStr", "x", x))
            {
                int answer = Native.VB_SortQVectorStr(xTexts.Cells, n, from, to, bDesc);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Sets the result to -1 where both flags are -1, and leaves the other entries as they
        /// were.</summary>
        /// <param name="n">number of entries</param>
        /// <param name="a">in, n flags, set where -1</param>
        /// <param name="b">in, n flags, set where -1</param>
        /// <param name="count">out, one integer: how many entries were set</param>
        /// <param name="result">inout, n flags; it may be one of the others</param>
        /// <returns>0</returns>
        public static int VB_SummarizeAllMissing(int n, short[] a, short[] b, out int count, short[] result)
        {
            Room.Check("VB_SummarizeAllMissing", "a", a, (long)n, 1);
            Room.Check("VB_SummarizeAllMissing", "b", b, (long)n, 1);
            Room.Check("VB_SummarizeAllMissing", "result", result, (long)n, 1);
            return Native.VB_SummarizeAllMissing(n, a, b, out count, result);
        }

        /// <summary>Sets the result to -1 where one of the flags is -1, and leaves the other entries as they
        /// were.</summary>
        /// <param name="n">number of entries</param>
        /// <param name="count">out, one integer: how many entries were set</param>
        /// <param name="result">inout, n flags; it may be one of the others</param>
        /// <param name="a">in, n flags, set where -1</param>
        /// <param name="b">in, n flags, set where -1</param>
        /// <param name="c">in, n flags, set where -1; null: only the first two count</param>
        /// <returns>0</returns>
        public static int VB_SummarizeMissing(int n, out int count, short[] result, short[] a, short[] b, short[] c)
        {
            Room.Check("VB_SummarizeMissing", "result", result, (long)n, 1);
            Room.Check("VB_SummarizeMissing", "a", a, (long)n, 1);
            Room.Check("VB_SummarizeMissing", "b", b, (long)n, 1);
            Room.Check("VB_SummarizeMissing", "c", c, (long)n, 1, true);
            return Native.VB_SummarizeMissing(n, out count, result, a, b, c);
        }

        /// <summary>Puts a table of numbers below another.</summary>
        /// <param name="a">in, rowsA by colsA numbers</param>
        /// <param name="rowsA">rows of the first table</param>
        /// <param name="colsA">columns of the first table; 0 stands for 1</param>
        /// <param name="b">in, rowsB by colsB numbers</param>
        /// <param name="rowsB">rows of the second table</param>
        /// <param name="colsB">columns of the second table; 0 stands for 1</param>
        /// <param name="out">out, rowsA + rowsB by max(colsA, colsB) numbers</param>
        /// <returns>0</returns>
        public static int VB_VMergeTablesDbl(double[] a, int rowsA, int colsA, double[] b, int rowsB, int colsB,
            double[] @out)
        {
            Room.Check("VB_VMergeTablesDbl", "a", a, (long)rowsA, (colsA == 0 ? 1L : colsA));
            Room.Check("VB_VMergeTablesDbl", "b", b, (long)rowsB, (colsB == 0 ? 1L : colsB));
            Room.Check("VB_VMergeTablesDbl", "out", @out, (long)rowsA + (long)rowsB, Math.Max((colsA == 0 ? 1L : colsA), (colsB == 0 ? 1L : colsB)));
            return Native.VB_VMergeTablesDbl(a, rowsA, colsA, b, rowsB, colsB, @out);
        }

        /// <summary>Adds a vector of flags behind another, in place.</summary>
        /// <param name="a">inout, nA + nB flags, of which the last nB receive the second vector</param>
        /// <param name="nA">length that the first vector has already</param>
        /// <param name="b">in, nB flags</param>
        /// <param name="nB">length of the second vector</param>
        /// <returns>0</returns>
        public static int VB_VMergeVectorsBool2(short[] a, int nA, short[] b, int nB)
        {
            Room.Check("VB_VMergeVectorsBool2", "a", a, (long)nA + (long)nB, 1);
            Room.Check("VB_VMergeVectorsBool2", "b", b, (long)nB, 1);
            return Native.VB_VMergeVectorsBool2(a, nA, b, nB);
        }

        /// <summary>Puts a vector of numbers behind another.</summary>
        /// <param name="a">in, nA numbers</param>
        /// <param name="nA">length of the first vector</param>
        /// <param name="b">in, nB numbers</param>
        /// <param name="nB">length of the second vector</param>
        /// <param name="out">out, nA + nB numbers</param>
        /// <returns>0</returns>
        public static int VB_VMergeVectorsDbl(double[] a, int nA, double[] b, int nB, double[] @out)
        {
            Room.Check("VB_VMergeVectorsDbl", "a", a, (long)nA, 1);
            Room.Check("VB_VMergeVectorsDbl", "b", b, (long)nB, 1);
            Room.Check("VB_VMergeVectorsDbl", "out", @out, (long)nA + (long)nB, 1);
            return Native.VB_VMergeVectorsDbl(a, nA, b, nB, @out);
        }

        /// <summary>Adds a vector of numbers behind another, in place.</summary>
        /// <param name="a">inout, nA + nB numbers, of which the last nB receive the second vector</param>
        /// <param name="nA">length that the first vector has already</param>
        /// <param name="b">in, nB numbers</param>
        /// <param name="nB">length of the second vector</param>
        /// <returns>0</returns>
        public static int VB_VMergeVectorsDbl2(double[] a, int nA, double[] b, int nB)
        {
            Room.Check("VB_VMergeVectorsDbl2", "a", a, (long)nA + (long)nB, 1);
            Room.Check("VB_VMergeVectorsDbl2", "b", b, (long)nB, 1);
            return Native.VB_VMergeVectorsDbl2(a, nA, b, nB);
        }

        /// <summary>Puts a vector of texts behind another.</summary>
        /// <param name="a">in, nA texts</param>
        /// <param name="nA">length of the first vector</param>
        /// <param name="b">in, nB texts</param>
        /// <param name="nB">length of the second vector</param>
        /// <param name="out">out, nA + nB texts</param>
        /// <returns>0</returns>
        public static int VB_VMergeVectorsStr(string[] a, int nA, string[] b, int nB, string[] @out)
        {
            Room.Check("VB_VMergeVectorsStr", "a", a, (long)nA, 1);
            Room.Check("VB_VMergeVectorsStr", "b", b, (long)nB, 1);
            Room.Check("VB_VMergeVectorsStr", "out", @out, (long)nA + (long)nB, 1);
            using (var aTexts = new Texts("VB_VMergeVectorsStr", "a", a))
            using (var bTexts = new Texts("VB_VMergeVectorsStr", "b", b))
            using (var outTexts = new Texts("VB_VMergeVectorsStr", "out", @out))
            {
                int answer = Native.VB_VMergeVectorsStr(aTexts.Cells, nA, bTexts.Cells, nB, outTexts.Cells);
                outTexts.CopyTo(@out);
                return answer;
            }
        }

        /// <summary>Adds a vector of texts behind another, in place.</summary>
        /// <param name="a">inout, nA + nB texts, of which the last nB receive the second vector</param>
        /// <param name="nA">length that the first vector has already</param>
        /// <param name="b">in, nB texts</param>
        /// <param name="nB">length of the second vector</param>
        /// <returns>0</returns>
        public static int VB_VMergeVectorsStr2(string[] a, int nA, string[] b, int nB)
        {
            Room.Check("VB_VMergeVectorsStr2", "a", a, (long)nA + (long)nB, 1);
            Room.Check("VB_VMergeVectorsStr2", "b", b, (long)nB, 1);
            using (var aTexts = new Texts("VB_VMergeVectorsStr2", "a", a))
            using (var bTexts = new Texts("VB_VMergeVectorsStr2", "b", b))
            {
                int answer = Native.VB_VMergeVectorsStr2(aTexts.Cells, nA, bTexts.Cells, nB);
                aTexts.CopyTo(a);
                return answer;
            }
        }

        /// <summary>Squared distance of two vectors, over all elements, missing ones too.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">in, n numbers</param>
        /// <returns>the sum of the squares of x[i] - y[i]; 0.0 when n is below 1</returns>
        public static double VB_V_DiffSq(double[] x, int n, double[] y)
        {
            Room.Check("VB_V_DiffSq", "x", x, (long)n, 1);
            Room.Check("VB_V_DiffSq", "y", y, (long)n, 1);
            return Native.VB_V_DiffSq(x, n, y);
        }

        /// <summary>Weighted squared distance of two vectors, over all elements, missing ones too.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">in, n numbers</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the sum of w[i] times the square of x[i] - y[i]; 0.0 when n is below 1</returns>
        public static double VB_V_DiffSqW(double[] x, int n, double[] y, double[] w)
        {
            Room.Check("VB_V_DiffSqW", "x", x, (long)n, 1);
            Room.Check("VB_V_DiffSqW", "y", y, (long)n, 1);
            Room.Check("VB_V_DiffSqW", "w", w, (long)n, 1);
            return Native.VB_V_DiffSqW(x, n, y, w);
        }

        /// <summary>Copies a range of rows of a column of numbers to a place in a table.</summary>
        /// <param name="x">in, rows by cols numbers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols numbers; may be x</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int VB_V_DuplicateDbl(double[] x, int rows, int cols, int col, int from, int to, double[] y,
            int yRows, int yCols, int row, int yCol)
        {
            Room.Check("VB_V_DuplicateDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_V_DuplicateDbl", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_V_DuplicateDbl(x, rows, cols, col, from, to, y, yRows, yCols, row, yCol);
        }

        /// <summary>Copies a range of rows of a column of numbers to a place in a table of integers. A number loses
        /// its fraction; what no integer holds, a missing number too, becomes the missing integer.</summary>
        /// <param name="x">in, rows by cols numbers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols integers</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int VB_V_DuplicateDblToLng(double[] x, int rows, int cols, int col, int from, int to, int[] y,
            int yRows, int yCols, int row, int yCol)
        {
            Room.Check("VB_V_DuplicateDblToLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_V_DuplicateDblToLng", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_V_DuplicateDblToLng(x, rows, cols, col, from, to, y, yRows, yCols, row, yCol);
        }

        /// <summary>Copies a range of rows of a column of integers to a place in a table.</summary>
        /// <param name="x">in, rows by cols integers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols integers; may be x</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int VB_V_DuplicateLng(int[] x, int rows, int cols, int col, int from, int to, int[] y, int yRows,
            int yCols, int row, int yCol)
        {
            Room.Check("VB_V_DuplicateLng", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_V_DuplicateLng", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_V_DuplicateLng(x, rows, cols, col, from, to, y, yRows, yCols, row, yCol);
        }

        /// <summary>Copies a range of rows of a column of integers to a place in a table of numbers. An integer
        /// becomes the same number, a missing integer -2147483648, which is not missing.</summary>
        /// <param name="x">in, rows by cols integers; cells outside of them read as -1</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols numbers</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int VB_V_DuplicateLngToDbl(int[] x, int rows, int cols, int col, int from, int to, double[] y,
            int yRows, int yCols, int row, int yCol)
        {
            Room.Check("VB_V_DuplicateLngToDbl", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_V_DuplicateLngToDbl", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            return Native.VB_V_DuplicateLngToDbl(x, rows, cols, col, from, to, y, yRows, yCols, row, yCol);
        }

        /// <summary>Copies a range of rows of a column of texts to a place in a table.</summary>
        /// <param name="x">in, rows by cols texts; cells outside of them read as the empty text</param>
        /// <param name="rows">rows of the table</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <param name="col">the column to copy</param>
        /// <param name="from">first row to copy</param>
        /// <param name="to">last row to copy; below from nothing is done</param>
        /// <param name="y">inout, yRows by yCols texts; may be x</param>
        /// <param name="yRows">rows of the table written; what would fall outside is left out</param>
        /// <param name="yCols">columns of the table written; 0 stands for 1</param>
        /// <param name="row">row of y for the first</param>
        /// <param name="yCol">column of y</param>
        /// <returns>0</returns>
        public static int VB_V_DuplicateStr(string[] x, int rows, int cols, int col, int from, int to, string[] y,
            int yRows, int yCols, int row, int yCol)
        {
            Room.Check("VB_V_DuplicateStr", "x", x, (long)rows, (cols == 0 ? 1L : cols));
            Room.Check("VB_V_DuplicateStr", "y", y, (long)yRows, (yCols == 0 ? 1L : yCols));
            using (var xTexts = new Texts("VB_V_DuplicateStr", "x", x))
            using (var yTexts = new Texts("VB_V_DuplicateStr", "y", y))
            {
                int answer = Native.VB_V_DuplicateStr(xTexts.Cells, rows, cols, col, from, to, yTexts.Cells, yRows, yCols, row, yCol);
                yTexts.CopyTo(y);
                return answer;
            }
        }

        /// <summary>The distinct values in ascending order: each that exceeds the one before it by more than the
        /// smaller of 2.220446049250313e-16 and the range of the data.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, n numbers; the values</param>
        /// <param name="nOut">out, one integer: their number, 0 for n below 1</param>
        /// <returns>0</returns>
        public static int VB_V_ExtractDistinct(double[] x, int n, double[] @out, out int nOut)
        {
            Room.Check("VB_V_ExtractDistinct", "x", x, (long)n, 1);
            Room.Check("VB_V_ExtractDistinct", "out", @out, (long)n, 1);
            return Native.VB_V_ExtractDistinct(x, n, @out, out nOut);
        }

        /// <summary>Total weight of the numbers that are near a value.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="value">the value</param>
        /// <param name="tol">an element counts when its distance from the value is less than this, so that 0 counts
        /// none</param>
        /// <returns>the sum of their weights; 0.0 when there are none</returns>
        public static double VB_V_Freq(double[] x, int n, double[] w, double value, double tol)
        {
            Room.Check("VB_V_Freq", "x", x, (long)n, 1);
            Room.Check("VB_V_Freq", "w", w, (long)n, 1);
            return Native.VB_V_Freq(x, n, w, value, tol);
        }

        /// <summary>Total weight of the integers that are near a value.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="value">the value</param>
        /// <param name="tol">an element counts when its distance from the value is less than this, so that 0 counts
        /// none</param>
        /// <returns>the sum of their weights; 0.0 when there are none</returns>
        public static double VB_V_FreqLng(int[] x, int n, double[] w, double value, double tol)
        {
            Room.Check("VB_V_FreqLng", "x", x, (long)n, 1);
            Room.Check("VB_V_FreqLng", "w", w, (long)n, 1);
            return Native.VB_V_FreqLng(x, n, w, value, tol);
        }

        /// <summary>Total weight of the texts that equal a value: of the same length and with the same code
        /// units.</summary>
        /// <param name="labels">in, n texts, each up to its first NUL</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="value">in, one text (BSTR), up to its first NUL. Null: the empty text</param>
        /// <returns>the sum of their weights; 0.0 when there are none</returns>
        public static double VB_V_FreqStr(string[] labels, int n, double[] w, string value)
        {
            Room.Check("VB_V_FreqStr", "labels", labels, (long)n, 1);
            Room.Check("VB_V_FreqStr", "w", w, (long)n, 1);
            using (var labelsTexts = new Texts("VB_V_FreqStr", "labels", labels))
            using (var valueTexts = new Texts("VB_V_FreqStr", "value", new[] { value }))
                return Native.VB_V_FreqStr(labelsTexts.Cells, n, w, valueTexts.Cells[0]);
        }

        /// <summary>Solves a * x = b for one right side, and inverts a.</summary>
        /// <param name="a">inout, n by n numbers, column after column; becomes its inverse</param>
        /// <param name="n">rows and columns of a; below 1 nothing is done</param>
        /// <param name="b">inout, n numbers; becomes the solution x</param>
        /// <returns>0, or -2 at a pivot that is exactly 0: both are then as the steps before have left
        /// them</returns>
        public static int VB_V_Gauss(double[] a, int n, double[] b)
        {
            Room.Check("VB_V_Gauss", "a", a, (long)n, (long)n);
            Room.Check("VB_V_Gauss", "b", b, (long)n, 1);
            return Native.VB_V_Gauss(a, n, b);
        }

        /// <summary>Combines the two sources of missingness of a vector: a flag, and a number at or below the
        /// missing one.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags, -1 for one that is left out; null: none is</param>
        /// <param name="iMissingOut">out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0;
        /// it may be iMissing</param>
        /// <returns>0</returns>
        public static int VB_V_GetMissingDbl(double[] x, int n, short[] iMissing, short[] iMissingOut)
        {
            Room.Check("VB_V_GetMissingDbl", "x", x, (long)n, 1);
            Room.Check("VB_V_GetMissingDbl", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_GetMissingDbl", "iMissingOut", iMissingOut, (long)n, 1);
            return Native.VB_V_GetMissingDbl(x, n, iMissing, iMissingOut);
        }

        /// <summary>The same for texts, which are missing when empty.</summary>
        /// <param name="x">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags, -1 for one that is left out; null: none is</param>
        /// <param name="iMissingOut">out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0;
        /// it may be iMissing</param>
        /// <returns>0</returns>
        public static int VB_V_GetMissingStr(string[] x, int n, short[] iMissing, short[] iMissingOut)
        {
            Room.Check("VB_V_GetMissingStr", "x", x, (long)n, 1);
            Room.Check("VB_V_GetMissingStr", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_GetMissingStr", "iMissingOut", iMissingOut, (long)n, 1);
            using (var xTexts = new Texts("VB_V_GetMissingStr", "x", x))
                return Native.VB_V_GetMissingStr(xTexts.Cells, n, iMissing, iMissingOut);
        }

        /// <summary>Position of a linear index in a square table, read row by row. With n below 1 nothing is
        /// written.</summary>
        /// <param name="k">linear index, from 1</param>
        /// <param name="n">order of the table</param>
        /// <param name="row">out, one integer: row, from 1</param>
        /// <param name="col">out, one integer: column, from 1</param>
        /// <returns>0</returns>
        public static int VB_V_GetPositionInMatNN(int k, int n, out int row, out int col)
        {
            return Native.VB_V_GetPositionInMatNN(k, n, out row, out col);
        }

        /// <summary>Position of a linear index in the strict upper triangle of a square table, read row by row.
        /// With n below 2, or past the triangle, nothing is written.</summary>
        /// <param name="k">linear index, from 1</param>
        /// <param name="n">order of the table</param>
        /// <param name="row">out, one integer: row, from 1</param>
        /// <param name="col">out, one integer: column, from 1</param>
        /// <returns>0</returns>
        public static int VB_V_GetPositionInMatNNm1o2(int k, int n, out int row, out int col)
        {
            return Native.VB_V_GetPositionInMatNNm1o2(k, n, out row, out col);
        }

        /// <summary>Dense ranks: 1 for the smallest element, one more at each change of value.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, n ranks, in the order of x</param>
        /// <returns>0</returns>
        public static int VB_V_GetRanksDbl(double[] x, int n, double[] @out)
        {
            Room.Check("VB_V_GetRanksDbl", "x", x, (long)n, 1);
            Room.Check("VB_V_GetRanksDbl", "out", @out, (long)n, 1);
            return Native.VB_V_GetRanksDbl(x, n, @out);
        }

        /// <summary>Dense ranks as integers: 1 for the smallest element, one more at each change of
        /// value.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, n ranks, in the order of x</param>
        /// <returns>0</returns>
        public static int VB_V_GetRanksLng(double[] x, int n, int[] @out)
        {
            Room.Check("VB_V_GetRanksLng", "x", x, (long)n, 1);
            Room.Check("VB_V_GetRanksLng", "out", @out, (long)n, 1);
            return Native.VB_V_GetRanksLng(x, n, @out);
        }

        /// <summary>Weighted mid-ranks: a weight acts as a count of repetitions; tied elements, closer than 1e-15,
        /// share the mean of their ranks; a missing element has a missing rank.</summary>
        /// <param name="x">inout, n numbers, sorted ascending</param>
        /// <param name="n">number of elements</param>
        /// <param name="bRestore">-1: x, w and ranks return to the original order; otherwise they stay
        /// sorted</param>
        /// <param name="w">inout, n weights, sorted along</param>
        /// <param name="ranks">out, n ranks</param>
        /// <param name="nTies">out, one integer: the number of groups: tied ones, and single elements that weigh
        /// more than 1</param>
        /// <param name="tieSizes">out, n numbers; the weight of each group</param>
        /// <returns>0</returns>
        public static int VB_V_GetRanksTiesDbl(double[] x, int n, short bRestore, double[] w, double[] ranks,
            out int nTies, double[] tieSizes)
        {
            Room.Check("VB_V_GetRanksTiesDbl", "x", x, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesDbl", "w", w, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesDbl", "ranks", ranks, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesDbl", "tieSizes", tieSizes, (long)n, 1);
            return Native.VB_V_GetRanksTiesDbl(x, n, bRestore, w, ranks, out nTies, tieSizes);
        }

        /// <summary>Mid-ranks: tied elements, closer than 1e-15, share the mean of their ranks; a missing element
        /// has a missing rank.</summary>
        /// <param name="x">inout, n numbers, sorted ascending</param>
        /// <param name="n">number of elements</param>
        /// <param name="bRestore">-1: x and ranks return to the original order; otherwise they stay sorted</param>
        /// <param name="ranks">out, n ranks</param>
        /// <param name="nTies">out, one integer: the number of groups: tied ones, and single elements that weigh
        /// more than 1</param>
        /// <param name="tieSizes">out, n numbers; the weight of each group</param>
        /// <returns>0</returns>
        public static int VB_V_GetRanksTiesDbl2(double[] x, int n, short bRestore, double[] ranks, out int nTies,
            double[] tieSizes)
        {
            Room.Check("VB_V_GetRanksTiesDbl2", "x", x, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesDbl2", "ranks", ranks, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesDbl2", "tieSizes", tieSizes, (long)n, 1);
            return Native.VB_V_GetRanksTiesDbl2(x, n, bRestore, ranks, out nTies, tieSizes);
        }

        /// <summary>Ranks 1, 2, ... in ascending order, tied elements in their original order; a missing element
        /// has a missing rank.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="ranks">out, n ranks, in the order of x</param>
        /// <param name="nTies">out, one integer: the number of groups: tied ones, and single elements that weigh
        /// more than 1</param>
        /// <param name="tieSizes">out, n numbers; the weight of each group</param>
        /// <returns>0</returns>
        public static int VB_V_GetRanksTiesIntDbl(double[] x, int n, double[] w, double[] ranks, out int nTies,
            double[] tieSizes)
        {
            Room.Check("VB_V_GetRanksTiesIntDbl", "x", x, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesIntDbl", "w", w, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesIntDbl", "ranks", ranks, (long)n, 1);
            Room.Check("VB_V_GetRanksTiesIntDbl", "tieSizes", tieSizes, (long)n, 1);
            return Native.VB_V_GetRanksTiesIntDbl(x, n, w, ranks, out nTies, tieSizes);
        }

        /// <summary>Whether every number is exactly 0 or 1; a missing one is not.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>-1 or 0</returns>
        public static short VB_V_Is01(double[] x, int n)
        {
            Room.Check("VB_V_Is01", "x", x, (long)n, 1);
            return Native.VB_V_Is01(x, n);
        }

        /// <summary>Whether numbers can be counts: weights, each of them an integer within 1e-12.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short VB_V_IsCWeights(double[] x, int n)
        {
            Room.Check("VB_V_IsCWeights", "x", x, (long)n, 1);
            return Native.VB_V_IsCWeights(x, n);
        }

        /// <summary>Tests a column of a table.</summary>
        /// <param name="x">in, n by col numbers or more</param>
        /// <param name="n">number of rows</param>
        /// <param name="bSkipMissing">-1: missing numbers are passed over; otherwise every one is compared with the
        /// first</param>
        /// <param name="col">the column, from 1; 0 stands for 1</param>
        /// <returns>-1 when it holds one value only, otherwise 0</returns>
        public static short VB_V_IsConstant(double[] x, int n, short bSkipMissing, int col)
        {
            Room.Check("VB_V_IsConstant", "x", x, (long)n, (col == 0 ? 1L : col));
            return Native.VB_V_IsConstant(x, n, bSkipMissing, col);
        }

        /// <summary>Tests flags.</summary>
        /// <param name="x">in, n flags</param>
        /// <param name="n">number of flags</param>
        /// <returns>-1 when all are equal, otherwise 0</returns>
        public static short VB_V_IsConstantBool(short[] x, int n)
        {
            Room.Check("VB_V_IsConstantBool", "x", x, (long)n, 1);
            return Native.VB_V_IsConstantBool(x, n);
        }

        /// <summary>Tests integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bSkipMissing">-1: missing integers are passed over; otherwise every one is compared with
        /// the first</param>
        /// <returns>-1 when all are equal, otherwise 0</returns>
        public static short VB_V_IsConstantLng(int[] x, int n, short bSkipMissing)
        {
            Room.Check("VB_V_IsConstantLng", "x", x, (long)n, 1);
            return Native.VB_V_IsConstantLng(x, n, bSkipMissing);
        }

        /// <summary>Tests texts.</summary>
        /// <param name="x">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="bSkipMissing">-1: empty texts are passed over; otherwise every one is compared with the
        /// first</param>
        /// <returns>-1 when all are equal, otherwise 0</returns>
        public static short VB_V_IsConstantStr(string[] x, int n, short bSkipMissing)
        {
            Room.Check("VB_V_IsConstantStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("VB_V_IsConstantStr", "x", x))
                return Native.VB_V_IsConstantStr(xTexts.Cells, n, bSkipMissing);
        }

        /// <summary>Whether every number lies in an interval.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="lo">lower end</param>
        /// <param name="hi">upper end</param>
        /// <param name="bOpen">-1: the ends do not belong to the interval</param>
        /// <param name="bSkipMissing">-1: missing numbers are passed over</param>
        /// <returns>-1 or 0</returns>
        public static short VB_V_IsInInterval(double[] x, int n, double lo, double hi, short bOpen, short bSkipMissing)
        {
            Room.Check("VB_V_IsInInterval", "x", x, (long)n, 1);
            return Native.VB_V_IsInInterval(x, n, lo, hi, bOpen, bSkipMissing);
        }

        /// <summary>Whether every number is 0 or 1, and some number is 1.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short VB_V_IsIndicator(double[] x, int n)
        {
            Room.Check("VB_V_IsIndicator", "x", x, (long)n, 1);
            return Native.VB_V_IsIndicator(x, n);
        }

        /// <summary>The same for a column of a chunked table.</summary>
        /// <param name="x">in, columns of n numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="col">the column, from 1</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short VB_V_IsIndicatorSPV(HostArray x, int n, int col)
        {
            return Native.VB_V_IsIndicatorSPV(HostArray.Of(x), n, col);
        }

        /// <summary>Whether no number is negative, missing ones left aside.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bStrict">not 0: a number must be above 0; 0: it may be 0</param>
        /// <returns>-1 or 0</returns>
        public static short VB_V_IsPositive(double[] x, int n, short bStrict)
        {
            Room.Check("VB_V_IsPositive", "x", x, (long)n, 1);
            return Native.VB_V_IsPositive(x, n, bStrict);
        }

        /// <summary>Tells whether a vector is in ascending order. Missing values are compared like any
        /// other.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements; below 2 the vector is sorted</param>
        /// <param name="bStrict">not 0: every element must be smaller than the next one; 0: not greater</param>
        /// <returns>-1 when sorted, otherwise 0</returns>
        public static short VB_V_IsSorted(double[] x, int n, short bStrict)
        {
            Room.Check("VB_V_IsSorted", "x", x, (long)n, 1);
            return Native.VB_V_IsSorted(x, n, bStrict);
        }

        /// <summary>Whether numbers can be weights: none is negative and their sum is above 0, missing ones left
        /// aside.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>-1 or 0; 0 for nothing</returns>
        public static short VB_V_IsWeights(double[] x, int n)
        {
            Room.Check("VB_V_IsWeights", "x", x, (long)n, 1);
            return Native.VB_V_IsWeights(x, n);
        }

        /// <summary>The largest element that is kept.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one. Null: no flag is set</param>
        /// <returns>the element; missing when none is kept</returns>
        public static double VB_V_Max(double[] x, int n, short[] iMissing)
        {
            Room.Check("VB_V_Max", "x", x, (long)n, 1);
            Room.Check("VB_V_Max", "iMissing", iMissing, (long)n, 1, true);
            return Native.VB_V_Max(x, n, iMissing);
        }

        /// <summary>The largest element that is not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the element; missing when there is none</returns>
        public static double VB_V_Max2(double[] x, int n)
        {
            Room.Check("VB_V_Max2", "x", x, (long)n, 1);
            return Native.VB_V_Max2(x, n);
        }

        /// <summary>The largest of some integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the element as a number; the missing number when n is below 1</returns>
        public static double VB_V_Max2Lng(int[] x, int n)
        {
            Room.Check("VB_V_Max2Lng", "x", x, (long)n, 1);
            return Native.VB_V_Max2Lng(x, n);
        }

        /// <summary>The largest of all elements, missing ones too, and the first of its positions.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements; below 2 only the first is read</param>
        /// <param name="pos">out, one integer: the position, from 1</param>
        /// <returns>the element</returns>
        public static double VB_V_MaxAndMaxPos(double[] x, int n, out int pos)
        {
            Room.Check("VB_V_MaxAndMaxPos", "x", x, (long)n, 1);
            return Native.VB_V_MaxAndMaxPos(x, n, out pos);
        }

        /// <summary>Largest value of a group.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="val">code of the group</param>
        /// <returns>the largest value; the missing number when no row counts</returns>
        public static double VB_V_MaxIf(double[] y, int n, double[] g, double val)
        {
            Room.Check("VB_V_MaxIf", "y", y, (long)n, 1);
            Room.Check("VB_V_MaxIf", "g", g, (long)n, 1);
            return Native.VB_V_MaxIf(y, n, g, val);
        }

        /// <summary>The largest integer that is kept, as an integer.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out. Null: no flag is
        /// set</param>
        /// <returns>the element; -2147483648 when none is kept</returns>
        public static int VB_V_MaxInt(int[] x, int n, short[] iMissing)
        {
            Room.Check("VB_V_MaxInt", "x", x, (long)n, 1);
            Room.Check("VB_V_MaxInt", "iMissing", iMissing, (long)n, 1, true);
            return Native.VB_V_MaxInt(x, n, iMissing);
        }

        /// <summary>Weighted mean: the sum of w[i] * x[i] over the sum of w[i].</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <returns>the mean; missing when n is below 1 or the weights kept sum to exactly 0</returns>
        public static double VB_V_Mean(double[] x, int n, short[] iMissing, double[] w)
        {
            Room.Check("VB_V_Mean", "x", x, (long)n, 1);
            Room.Check("VB_V_Mean", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_Mean", "w", w, (long)n, 1);
            return Native.VB_V_Mean(x, n, iMissing, w);
        }

        /// <summary>Mean of the elements that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the mean; missing when there is no such element</returns>
        public static double VB_V_Mean2(double[] x, int n)
        {
            Room.Check("VB_V_Mean2", "x", x, (long)n, 1);
            return Native.VB_V_Mean2(x, n);
        }

        /// <summary>Weighted mean of absolute values.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <returns>the sum of w[i] * |x[i]| over the sum of w[i]; missing when n is below 1 or the weights kept
        /// sum to exactly 0</returns>
        public static double VB_V_MeanAbs(double[] x, int n, short[] iMissing, double[] w)
        {
            Room.Check("VB_V_MeanAbs", "x", x, (long)n, 1);
            Room.Check("VB_V_MeanAbs", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_MeanAbs", "w", w, (long)n, 1);
            return Native.VB_V_MeanAbs(x, n, iMissing, w);
        }

        /// <summary>Mean of the values of a group. A row counts when its code equals the group's, and neither is
        /// missing.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="val">code of the group</param>
        /// <returns>the mean; the missing number when no row counts</returns>
        public static double VB_V_MeanIf(double[] y, int n, double[] g, double val)
        {
            Room.Check("VB_V_MeanIf", "y", y, (long)n, 1);
            Room.Check("VB_V_MeanIf", "g", g, (long)n, 1);
            return Native.VB_V_MeanIf(y, n, g, val);
        }

        /// <summary>Weighted mean of a group. No weight is tested by itself.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="w">in, n weights</param>
        /// <param name="val">code of the group</param>
        /// <returns>the mean; the missing number unless the total weight is greater than 0</returns>
        public static double VB_V_MeanIfW(double[] y, int n, double[] g, double[] w, double val)
        {
            Room.Check("VB_V_MeanIfW", "y", y, (long)n, 1);
            Room.Check("VB_V_MeanIfW", "g", g, (long)n, 1);
            Room.Check("VB_V_MeanIfW", "w", w, (long)n, 1);
            return Native.VB_V_MeanIfW(y, n, g, w, val);
        }

        /// <summary>Weighted mean and standard deviation. When nothing is kept both are 0.0.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="mean">out, one number: the mean</param>
        /// <param name="sd">out, one number: the standard deviation: missing unless the denominator is greater than
        /// 0, and for a negative variance</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_V_MeanStdev(double[] x, int n, out double mean, out double sd, short[] iMissing,
            double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_V_MeanStdev", "x", x, (long)n, 1);
            Room.Check("VB_V_MeanStdev", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_MeanStdev", "w", w, (long)n, 1);
            return Native.VB_V_MeanStdev(x, n, out mean, out sd, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Weighted mean and variance. When nothing is kept both are 0.0.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="mean">out, one number: the mean</param>
        /// <param name="var">out, one number: the variance: missing unless the denominator is greater than
        /// 0</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_V_MeanVar(double[] x, int n, out double mean, out double var, short[] iMissing, double[] w,
            short bUnbiased, short bFreq)
        {
            Room.Check("VB_V_MeanVar", "x", x, (long)n, 1);
            Room.Check("VB_V_MeanVar", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_MeanVar", "w", w, (long)n, 1);
            return Native.VB_V_MeanVar(x, n, out mean, out var, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Weighted mean, variance, skewness and kurtosis, with standard errors. S is the sum of the
        /// weights of the elements kept, m their number (those of weight 0 included), a = S/m, and u = 1 if bFreq
        /// and a otherwise. All results are 0.0 at first. When the denominator of the variance is exactly 0 (with
        /// bUnbiased neither -1 nor 0 it is not looked at), the variance and the four results for skewness and
        /// kurtosis are missing; when the variance is exactly 0, those four are; the standard errors then stay 0.0.
        /// Skewness and kurtosis are made from that variance, so they are those of the textbooks with bUnbiased 0;
        /// with -1 the formulas divide by the powers of the larger, unbiased variance, and the results are nearer
        /// to 0 (the kurtosis before 3 is taken off).</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="mean">out, one number: the mean</param>
        /// <param name="var">out, one number: the variance: the sum of squares over S - u if bUnbiased, over S
        /// otherwise</param>
        /// <param name="skewP">out, one number: the skewness of the population</param>
        /// <param name="kurtP">out, one number: the excess kurtosis of the population</param>
        /// <param name="skew">out, one number: the skewness corrected for the sample size; missing unless S is
        /// above 2a</param>
        /// <param name="kurt">out, one number: the excess kurtosis corrected for the sample size; missing unless S
        /// is above 2u and 3u</param>
        /// <param name="seSkew">out, one number: the standard error of skew; missing with it</param>
        /// <param name="seKurt">out, one number: the standard error of kurt; missing with it</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="bUnbiased">true only when -1</param>
        /// <param name="bFreq">true only when -1: each weight counts as so many observations</param>
        /// <returns>0</returns>
        public static int VB_V_MeanVarSkewPKurtP(double[] x, int n, out double mean, out double var, out double skewP,
            out double kurtP, out double skew, out double kurt, out double seSkew, out double seKurt, short[] iMissing,
            double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_V_MeanVarSkewPKurtP", "x", x, (long)n, 1);
            Room.Check("VB_V_MeanVarSkewPKurtP", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_MeanVarSkewPKurtP", "w", w, (long)n, 1);
            return Native.VB_V_MeanVarSkewPKurtP(x, n, out mean, out var, out skewP, out kurtP, out skew, out kurt, out seSkew, out seKurt, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>The smallest element that is kept.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <returns>the element; missing when none is kept</returns>
        public static double VB_V_Min(double[] x, int n, short[] iMissing)
        {
            Room.Check("VB_V_Min", "x", x, (long)n, 1);
            Room.Check("VB_V_Min", "iMissing", iMissing, (long)n, 1);
            return Native.VB_V_Min(x, n, iMissing);
        }

        /// <summary>The smallest element that is not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the element; missing when there is none</returns>
        public static double VB_V_Min2(double[] x, int n)
        {
            Room.Check("VB_V_Min2", "x", x, (long)n, 1);
            return Native.VB_V_Min2(x, n);
        }

        /// <summary>The smallest of some integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the element as a number; the missing number when n is below 1</returns>
        public static double VB_V_Min2Lng(int[] x, int n)
        {
            Room.Check("VB_V_Min2Lng", "x", x, (long)n, 1);
            return Native.VB_V_Min2Lng(x, n);
        }

        /// <summary>The smallest of all elements, missing ones too, and its position.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements; below 2 only the first is read</param>
        /// <param name="pos">out, one integer: the position, from 1</param>
        /// <param name="bLast">not 0: the last of equal elements; 0: the first</param>
        /// <returns>the element</returns>
        public static double VB_V_MinAndMinPos(double[] x, int n, out int pos, short bLast)
        {
            Room.Check("VB_V_MinAndMinPos", "x", x, (long)n, 1);
            return Native.VB_V_MinAndMinPos(x, n, out pos, bLast);
        }

        /// <summary>Smallest value of a group, below 1.79769313486231e308.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="val">code of the group</param>
        /// <returns>the smallest value; the missing number when there is none</returns>
        public static double VB_V_MinIf(double[] y, int n, double[] g, double val)
        {
            Room.Check("VB_V_MinIf", "y", y, (long)n, 1);
            Room.Check("VB_V_MinIf", "g", g, (long)n, 1);
            return Native.VB_V_MinIf(y, n, g, val);
        }

        /// <summary>The smallest and the largest element that are kept. When none is, both are missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="min">out, one number: the smallest</param>
        /// <param name="max">out, one number: the largest</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <returns>0</returns>
        public static int VB_V_MinMax(double[] x, int n, out double min, out double max, short[] iMissing)
        {
            Room.Check("VB_V_MinMax", "x", x, (long)n, 1);
            Room.Check("VB_V_MinMax", "iMissing", iMissing, (long)n, 1);
            return Native.VB_V_MinMax(x, n, out min, out max, iMissing);
        }

        /// <summary>The smallest and the largest element. When missing elements are passed over, only those in
        /// front of the first one that is present are; one that comes later is compared like any other, and is then
        /// the smallest.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements; with none, element 1 reads as -1</param>
        /// <param name="min">out, one number: the smallest; missing when missing elements are passed over and there
        /// is no other</param>
        /// <param name="max">out, one number: the largest; in that case element 1</param>
        /// <param name="bSkipMissing">not 0: missing elements are passed over</param>
        /// <returns>0</returns>
        public static int VB_V_MinMax2(double[] x, int n, out double min, out double max, short bSkipMissing)
        {
            Room.Check("VB_V_MinMax2", "x", x, (long)n, 1);
            return Native.VB_V_MinMax2(x, n, out min, out max, bSkipMissing);
        }

        /// <summary>The smallest and the largest integer that are kept. When none is, both are the missing
        /// number.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="min">out, one number: the smallest, as a number</param>
        /// <param name="max">out, one number: the largest, as a number</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out</param>
        /// <returns>0</returns>
        public static int VB_V_MinMaxLng(int[] x, int n, out double min, out double max, short[] iMissing)
        {
            Room.Check("VB_V_MinMaxLng", "x", x, (long)n, 1);
            Room.Check("VB_V_MinMaxLng", "iMissing", iMissing, (long)n, 1);
            return Native.VB_V_MinMaxLng(x, n, out min, out max, iMissing);
        }

        /// <summary>The smallest and the largest of some integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements; with none, element 1 reads as -1</param>
        /// <param name="min">out, one number: the smallest, as a number; with no elements and bSkipMissing not 0
        /// the missing number</param>
        /// <param name="max">out, one number: the largest, as a number</param>
        /// <param name="bSkipMissing">no integer is missing, so this matters only without elements; true unless
        /// 0</param>
        /// <returns>0</returns>
        public static int VB_V_MinMaxLng2(int[] x, int n, out double min, out double max, short bSkipMissing)
        {
            Room.Check("VB_V_MinMaxLng2", "x", x, (long)n, 1);
            return Native.VB_V_MinMaxLng2(x, n, out min, out max, bSkipMissing);
        }

        /// <summary>The label with the greatest sum of weights, the first in the order of code units of equals.
        /// Empty labels are not counted.</summary>
        /// <param name="labels">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out. Null: none is</param>
        /// <param name="w">in, n weights</param>
        /// <param name="mode">inout, one text, replaced by the label, empty when there is none</param>
        /// <returns>0</returns>
        public static int VB_V_Mode(string[] labels, int n, short[] iMissing, double[] w, string[] mode)
        {
            Room.Check("VB_V_Mode", "labels", labels, (long)n, 1);
            Room.Check("VB_V_Mode", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_Mode", "w", w, (long)n, 1);
            Room.Check("VB_V_Mode", "mode", mode, 1, 1);
            using (var labelsTexts = new Texts("VB_V_Mode", "labels", labels))
            using (var modeTexts = new Texts("VB_V_Mode", "mode", mode))
            {
                int answer = Native.VB_V_Mode(labelsTexts.Cells, n, iMissing, w, modeTexts.Cells);
                modeTexts.CopyTo(mode);
                return answer;
            }
        }

        /// <summary>The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) -
        /// 1.</summary>
        /// <param name="x">in, n numbers; missing ones and negative codes are not counted</param>
        /// <param name="n">number of elements</param>
        /// <returns>the code, the smallest of equals; missing when there is none</returns>
        public static double VB_V_ModeCatDbl(double[] x, int n)
        {
            Room.Check("VB_V_ModeCatDbl", "x", x, (long)n, 1);
            return Native.VB_V_ModeCatDbl(x, n);
        }

        /// <summary>Number of distinct values; neighbours in ascending order differ by more than
        /// 2.220446049250313e-16. Missing is a value.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the number; 1 for n below 1</returns>
        public static int VB_V_NbDistinct(double[] x, int n)
        {
            Room.Check("VB_V_NbDistinct", "x", x, (long)n, 1);
            return Native.VB_V_NbDistinct(x, n);
        }

        /// <summary>Number of distinct integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the number; 1 for n below 1</returns>
        public static int VB_V_NbDistinctLng(int[] x, int n)
        {
            Room.Check("VB_V_NbDistinctLng", "x", x, (long)n, 1);
            return Native.VB_V_NbDistinctLng(x, n);
        }

        /// <summary>Counts the elements that equal a value, exactly; the missing number is one like the
        /// others.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="val">the value</param>
        /// <returns>the count; 0.0 when there are none</returns>
        public static double VB_V_NbIf(double[] x, int n, double val)
        {
            Room.Check("VB_V_NbIf", "x", x, (long)n, 1);
            return Native.VB_V_NbIf(x, n, val);
        }

        /// <summary>The same for integers.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of rows</param>
        /// <param name="val">the value</param>
        /// <returns>the count; 0.0 when there are none</returns>
        public static double VB_V_NbIfLng(int[] x, int n, int val)
        {
            Room.Check("VB_V_NbIfLng", "x", x, (long)n, 1);
            return Native.VB_V_NbIfLng(x, n, val);
        }

        /// <summary>Total weight of the elements that equal a value, exactly. Only weights above 0 count.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="w">in, n weights</param>
        /// <param name="val">the value</param>
        /// <returns>the total; 0.0 when there are none</returns>
        public static double VB_V_NbIfW(double[] x, int n, double[] w, double val)
        {
            Room.Check("VB_V_NbIfW", "x", x, (long)n, 1);
            Room.Check("VB_V_NbIfW", "w", w, (long)n, 1);
            return Native.VB_V_NbIfW(x, n, w, val);
        }

        /// <summary>Counts the missing numbers.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the count</returns>
        public static int VB_V_NbMissing(double[] x, int n)
        {
            Room.Check("VB_V_NbMissing", "x", x, (long)n, 1);
            return Native.VB_V_NbMissing(x, n);
        }

        /// <summary>Counts the empty texts.</summary>
        /// <param name="x">in, n texts</param>
        /// <param name="n">number of elements</param>
        /// <returns>the count</returns>
        public static int VB_V_NbMissingStr(string[] x, int n)
        {
            Room.Check("VB_V_NbMissingStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("VB_V_NbMissingStr", "x", x))
                return Native.VB_V_NbMissingStr(xTexts.Cells, n);
        }

        /// <summary>Counts the numbers that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the count</returns>
        public static int VB_V_NbNonMissing(double[] x, int n)
        {
            Room.Check("VB_V_NbNonMissing", "x", x, (long)n, 1);
            return Native.VB_V_NbNonMissing(x, n);
        }

        /// <summary>Counts the flags that are -1; another value than 0 does not count.</summary>
        /// <param name="x">in, n flags</param>
        /// <param name="n">number of flags</param>
        /// <returns>the count</returns>
        public static int VB_V_NbTrue(short[] x, int n)
        {
            Room.Check("VB_V_NbTrue", "x", x, (long)n, 1);
            return Native.VB_V_NbTrue(x, n);
        }

        /// <summary>The same for a stretch of flags.</summary>
        /// <param name="x">in, to flags</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, included</param>
        /// <returns>the count; 0 when from is above to</returns>
        public static int VB_V_NbTrueFromTo(short[] x, int from, int to)
        {
            Room.Check("VB_V_NbTrueFromTo", "x", x, (long)to, 1);
            return Native.VB_V_NbTrueFromTo(x, from, to);
        }

        /// <summary>Divides a vector by the root of its sum of squares, so that that becomes 1.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int VB_V_Norm(double[] x, int n)
        {
            Room.Check("VB_V_Norm", "x", x, (long)n, 1);
            return Native.VB_V_Norm(x, n);
        }

        /// <summary>Multiplies a vector by the root of value over its sum of squares, so that that becomes
        /// value.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the sum of squares to come to</param>
        /// <returns>0</returns>
        public static int VB_V_NormToVal(double[] x, int n, double value)
        {
            Room.Check("VB_V_NormToVal", "x", x, (long)n, 1);
            return Native.VB_V_NormToVal(x, n, value);
        }

        /// <summary>The same with the sum of x * w * x.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the sum of squares to come to</param>
        /// <param name="w">in, n weights; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_V_NormToValW(double[] x, int n, double value, double[] w)
        {
            Room.Check("VB_V_NormToValW", "x", x, (long)n, 1);
            Room.Check("VB_V_NormToValW", "w", w, (long)n, 1);
            return Native.VB_V_NormToValW(x, n, value, w);
        }

        /// <summary>The same with the sum of x * w * x.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_V_NormW(double[] x, int n, double[] w)
        {
            Room.Check("VB_V_NormW", "x", x, (long)n, 1);
            Room.Check("VB_V_NormW", "w", w, (long)n, 1);
            return Native.VB_V_NormW(x, n, w);
        }

        /// <summary>Adds a number to the elements that are not flagged, missing ones too.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">the number</param>
        /// <param name="iMissing">in, n flags; an element with a flag other than 0 stays. Null: none is
        /// flagged</param>
        /// <returns>0</returns>
        public static int VB_V_PlusVal(double[] x, int n, double val, short[] iMissing)
        {
            Room.Check("VB_V_PlusVal", "x", x, (long)n, 1);
            Room.Check("VB_V_PlusVal", "iMissing", iMissing, (long)n, 1, true);
            return Native.VB_V_PlusVal(x, n, val, iMissing);
        }

        /// <summary>Adds a number to the elements that are not missing.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="val">the number</param>
        /// <returns>0</returns>
        public static int VB_V_PlusVal2(double[] x, int n, double val)
        {
            Room.Check("VB_V_PlusVal2", "x", x, (long)n, 1);
            return Native.VB_V_PlusVal2(x, n, val);
        }

        /// <summary>The product of all elements in ascending order, from 1.0.</summary>
        /// <param name="v">in, n elements</param>
        /// <param name="n">number of elements</param>
        /// <returns>the product; 1.0 for n below 1</returns>
        public static double VB_V_Product1toNDbl(double[] v, int n)
        {
            Room.Check("VB_V_Product1toNDbl", "v", v, (long)n, 1);
            return Native.VB_V_Product1toNDbl(v, n);
        }

        /// <summary>The product of all elements in ascending order, from 1.0, in Double.</summary>
        /// <param name="v">in, n elements</param>
        /// <param name="n">number of elements</param>
        /// <returns>the product; 1.0 for n below 1</returns>
        public static double VB_V_Product1toNLng(int[] v, int n)
        {
            Room.Check("VB_V_Product1toNLng", "v", v, (long)n, 1);
            return Native.VB_V_Product1toNLng(v, n);
        }

        /// <summary>Every element of one vector times every element of another: x(i) * y(j), i outside. No element
        /// is looked at for being missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">elements of x</param>
        /// <param name="y">in, m numbers</param>
        /// <param name="m">elements of y</param>
        /// <param name="out">out, n * m numbers; may be a vector that is read</param>
        /// <returns>0</returns>
        public static int VB_V_ProductHorizV1V2(double[] x, int n, double[] y, int m, double[] @out)
        {
            Room.Check("VB_V_ProductHorizV1V2", "x", x, (long)n, 1);
            Room.Check("VB_V_ProductHorizV1V2", "y", y, (long)m, 1);
            Room.Check("VB_V_ProductHorizV1V2", "out", @out, (long)n * (long)m, 1);
            return Native.VB_V_ProductHorizV1V2(x, n, y, m, @out);
        }

        /// <summary>The same in place of x.</summary>
        /// <param name="x">inout, max(m, 1) * n numbers, of which the first n are read; receives the n * m
        /// products</param>
        /// <param name="n">inout, one integer: the elements of x; receives those of the result</param>
        /// <param name="y">in, m numbers; may be x</param>
        /// <param name="m">elements of y</param>
        /// <returns>0</returns>
        public static int VB_V_ProductHorizV1V22(double[] x, ref int n, double[] y, int m)
        {
            Room.Check("VB_V_ProductHorizV1V22", "x", x, Math.Max((long)m, 1) * (long)n, 1);
            Room.Check("VB_V_ProductHorizV1V22", "y", y, (long)m, 1);
            return Native.VB_V_ProductHorizV1V22(x, ref n, y, m);
        }

        /// <summary>The inner product: the sum of x1(i) * x2(i).</summary>
        /// <param name="x1">in, n elements</param>
        /// <param name="n">number of elements</param>
        /// <param name="x2">in, n elements</param>
        /// <returns>the sum; 0.0 for n below 1</returns>
        public static double VB_V_ProductTrV1V2(double[] x1, int n, double[] x2)
        {
            Room.Check("VB_V_ProductTrV1V2", "x1", x1, (long)n, 1);
            Room.Check("VB_V_ProductTrV1V2", "x2", x2, (long)n, 1);
            return Native.VB_V_ProductTrV1V2(x1, n, x2);
        }

        /// <summary>The outer product: c(i, j) = x1(i) * x2(j).</summary>
        /// <param name="x1">in, n elements</param>
        /// <param name="n">number of elements</param>
        /// <param name="x2">in, n elements</param>
        /// <param name="c">out, n by n cells, column after column</param>
        /// <returns>0</returns>
        public static int VB_V_ProductV1TrV2(double[] x1, int n, double[] x2, double[] c)
        {
            Room.Check("VB_V_ProductV1TrV2", "x1", x1, (long)n, 1);
            Room.Check("VB_V_ProductV1TrV2", "x2", x2, (long)n, 1);
            Room.Check("VB_V_ProductV1TrV2", "c", c, (long)n, (long)n);
            return Native.VB_V_ProductV1TrV2(x1, n, x2, c);
        }

        /// <summary>y(i) = x1(i) * x2(i), missing when one of the two is.</summary>
        /// <param name="x1">in, n elements</param>
        /// <param name="n">number of elements</param>
        /// <param name="x2">in, n elements</param>
        /// <param name="y">out, n elements; may be x1 or x2</param>
        /// <returns>0</returns>
        public static int VB_V_ProductV1V2(double[] x1, int n, double[] x2, double[] y)
        {
            Room.Check("VB_V_ProductV1V2", "x1", x1, (long)n, 1);
            Room.Check("VB_V_ProductV1V2", "x2", x2, (long)n, 1);
            Room.Check("VB_V_ProductV1V2", "y", y, (long)n, 1);
            return Native.VB_V_ProductV1V2(x1, n, x2, y);
        }

        /// <summary>x1(i) = x1(i) * x2(i).</summary>
        /// <param name="x1">inout, n elements</param>
        /// <param name="n">number of elements</param>
        /// <param name="x2">in, n elements; may be x1</param>
        /// <returns>0</returns>
        public static int VB_V_ProductV1V22(double[] x1, int n, double[] x2)
        {
            Room.Check("VB_V_ProductV1V22", "x1", x1, (long)n, 1);
            Room.Check("VB_V_ProductV1V22", "x2", x2, (long)n, 1);
            return Native.VB_V_ProductV1V22(x1, n, x2);
        }

        /// <summary>Quantile by linear interpolation between order statistics (type 7 of Hyndman and Fan). Missing
        /// values are not removed: they take part as the smallest numbers.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="q">probability, not tested: a position outside the data reads -1</param>
        /// <returns>the quantile; missing for n below 1</returns>
        public static double VB_V_Quantile(double[] x, int n, double q)
        {
            Room.Check("VB_V_Quantile", "x", x, (long)n, 1);
            return Native.VB_V_Quantile(x, n, q);
        }

        /// <summary>Plain quantile of the elements that are not missing and not flagged.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out</param>
        /// <param name="q">probability, not tested: a position outside the data reads -1</param>
        /// <returns>the quantile; missing when there are none</returns>
        public static double VB_V_QuantileM(double[] x, int n, short[] iMissing, double q)
        {
            Room.Check("VB_V_QuantileM", "x", x, (long)n, 1);
            Room.Check("VB_V_QuantileM", "iMissing", iMissing, (long)n, 1);
            return Native.VB_V_QuantileM(x, n, iMissing, q);
        }

        /// <summary>Weighted quantile of the elements that are not missing and not flagged.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out</param>
        /// <param name="w">in, n weights</param>
        /// <param name="q">probability, not tested: a position outside the data reads -1</param>
        /// <returns>the quantile; missing when there are none</returns>
        public static double VB_V_QuantileMW(double[] x, int n, short[] iMissing, double[] w, double q)
        {
            Room.Check("VB_V_QuantileMW", "x", x, (long)n, 1);
            Room.Check("VB_V_QuantileMW", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_QuantileMW", "w", w, (long)n, 1);
            return Native.VB_V_QuantileMW(x, n, iMissing, w, q);
        }

        /// <summary>Weighted quantile: the first value whose cumulative weight exceeds q times the total, or the
        /// mean of it and the one before where a cumulative weight hits that exactly. Constant weights give the
        /// plain quantile.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <param name="q">probability, not tested: a position outside the data reads -1</param>
        /// <returns>the quantile; missing for n below 1, and when no element that is not missing has a positive
        /// weight</returns>
        public static double VB_V_QuantileW(double[] x, int n, double[] w, double q)
        {
            Room.Check("VB_V_QuantileW", "x", x, (long)n, 1);
            Room.Check("VB_V_QuantileW", "w", w, (long)n, 1);
            return Native.VB_V_QuantileW(x, n, w, q);
        }

        /// <summary>Copies a vector without one element.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="pos">the element to leave out, from 1. One above n or below 1 leaves out none, so that the
        /// last or the first falls outside</param>
        /// <param name="out">out, n - 1 numbers; it may be x</param>
        /// <returns>0</returns>
        public static int VB_V_RemoveVal(double[] x, int n, int pos, double[] @out)
        {
            Room.Check("VB_V_RemoveVal", "x", x, (long)n, 1);
            Room.Check("VB_V_RemoveVal", "out", @out, (long)n - 1, 1);
            return Native.VB_V_RemoveVal(x, n, pos, @out);
        }

        /// <summary>Makes repeated labels distinct: a repeat gets a number behind it, from 2 on.</summary>
        /// <param name="labels">inout, n texts, replaced where they differ</param>
        /// <param name="n">number of labels</param>
        /// <returns>0</returns>
        public static int VB_V_ReplaceDoubles(string[] labels, int n)
        {
            Room.Check("VB_V_ReplaceDoubles", "labels", labels, (long)n, 1);
            using (var labelsTexts = new Texts("VB_V_ReplaceDoubles", "labels", labels))
            {
                int answer = Native.VB_V_ReplaceDoubles(labelsTexts.Cells, n);
                labelsTexts.CopyTo(labels);
                return answer;
            }
        }

        /// <summary>Copies a vector, in which each element that equals a number, exactly, becomes
        /// another.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="oldValue">the number to replace</param>
        /// <param name="newValue">what it becomes</param>
        /// <param name="out">out, n numbers; it may be x</param>
        /// <returns>0</returns>
        public static int VB_V_ReplaceVal(double[] x, int n, double oldValue, double newValue, double[] @out)
        {
            Room.Check("VB_V_ReplaceVal", "x", x, (long)n, 1);
            Room.Check("VB_V_ReplaceVal", "out", @out, (long)n, 1);
            return Native.VB_V_ReplaceVal(x, n, oldValue, newValue, @out);
        }

        /// <summary>Replaces each element that equals a number, exactly, by another.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="oldValue">the number to replace</param>
        /// <param name="newValue">what it becomes</param>
        /// <returns>0</returns>
        public static int VB_V_ReplaceVal2(double[] x, int n, double oldValue, double newValue)
        {
            Room.Check("VB_V_ReplaceVal2", "x", x, (long)n, 1);
            return Native.VB_V_ReplaceVal2(x, n, oldValue, newValue);
        }

        /// <summary>Brings a vector to the range from lo to hi: (x - a) * (hi - lo) / r + lo, where a is the
        /// smallest number kept and r the largest less the smallest. Where all are equal the result is a
        /// NaN.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="lo">what the smallest becomes</param>
        /// <param name="hi">what the largest becomes</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out; may be null, then none
        /// is</param>
        /// <param name="out">out, n numbers, missing where an element is left out; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_V_Rescale(double[] x, int n, double lo, double hi, short[] iMissing, double[] @out)
        {
            Room.Check("VB_V_Rescale", "x", x, (long)n, 1);
            Room.Check("VB_V_Rescale", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_Rescale", "out", @out, (long)n, 1);
            return Native.VB_V_Rescale(x, n, lo, hi, iMissing, @out);
        }

        /// <summary>The same in place; an element left out stays.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="lo">what the smallest becomes</param>
        /// <param name="hi">what the largest becomes</param>
        /// <param name="iMissing">in, n flags; what has a flag other than 0 is left out; may be null</param>
        /// <returns>0</returns>
        public static int VB_V_Rescale2(double[] x, int n, double lo, double hi, short[] iMissing)
        {
            Room.Check("VB_V_Rescale2", "x", x, (long)n, 1);
            Room.Check("VB_V_Rescale2", "iMissing", iMissing, (long)n, 1, true);
            return Native.VB_V_Rescale2(x, n, lo, hi, iMissing);
        }

        /// <summary>A vector of flags back to front.</summary>
        /// <param name="x">in, n flags</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, n flags; may be x</param>
        /// <returns>0</returns>
        public static int VB_V_ReverseBool(short[] x, int n, short[] @out)
        {
            Room.Check("VB_V_ReverseBool", "x", x, (long)n, 1);
            Room.Check("VB_V_ReverseBool", "out", @out, (long)n, 1);
            return Native.VB_V_ReverseBool(x, n, @out);
        }

        /// <summary>A vector of numbers back to front.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="out">out, n numbers; may be x</param>
        /// <returns>0</returns>
        public static int VB_V_ReverseDbl(double[] x, int n, double[] @out)
        {
            Room.Check("VB_V_ReverseDbl", "x", x, (long)n, 1);
            Room.Check("VB_V_ReverseDbl", "out", @out, (long)n, 1);
            return Native.VB_V_ReverseDbl(x, n, @out);
        }

        /// <summary>Numbers a vector: element k, from 1, becomes k.</summary>
        /// <param name="x">out, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int VB_V_Set1toNDbl(double[] x, int n)
        {
            Room.Check("VB_V_Set1toNDbl", "x", x, (long)n, 1);
            return Native.VB_V_Set1toNDbl(x, n);
        }

        /// <summary>Numbers a vector: element k, from 1, becomes k.</summary>
        /// <param name="x">out, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int VB_V_Set1toNLng(int[] x, int n)
        {
            Room.Check("VB_V_Set1toNLng", "x", x, (long)n, 1);
            return Native.VB_V_Set1toNLng(x, n);
        }

        /// <summary>Numbers a vector: element k, from 1, becomes k, in decimal digits.</summary>
        /// <param name="x">inout, n texts, replaced where they differ</param>
        /// <param name="n">number of elements</param>
        /// <returns>0</returns>
        public static int VB_V_Set1toNStr(string[] x, int n)
        {
            Room.Check("VB_V_Set1toNStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("VB_V_Set1toNStr", "x", x))
            {
                int answer = Native.VB_V_Set1toNStr(xTexts.Cells, n);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>Sets every element to one number.</summary>
        /// <param name="x">out, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the value</param>
        /// <returns>0</returns>
        public static int VB_V_SetToValue(double[] x, int n, double value)
        {
            Room.Check("VB_V_SetToValue", "x", x, (long)n, 1);
            return Native.VB_V_SetToValue(x, n, value);
        }

        /// <summary>Sets every element to one integer.</summary>
        /// <param name="x">out, n integers</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">the value</param>
        /// <returns>0</returns>
        public static int VB_V_SetToValueLng(int[] x, int n, int value)
        {
            Room.Check("VB_V_SetToValueLng", "x", x, (long)n, 1);
            return Native.VB_V_SetToValueLng(x, n, value);
        }

        /// <summary>Sets every element to one text.</summary>
        /// <param name="x">inout, n texts, replaced where they differ</param>
        /// <param name="n">number of elements</param>
        /// <param name="value">in, one text</param>
        /// <returns>0</returns>
        public static int VB_V_SetToValueStr(string[] x, int n, string value)
        {
            Room.Check("VB_V_SetToValueStr", "x", x, (long)n, 1);
            using (var xTexts = new Texts("VB_V_SetToValueStr", "x", x))
            using (var valueTexts = new Texts("VB_V_SetToValueStr", "value", new[] { value }))
            {
                int answer = Native.VB_V_SetToValueStr(xTexts.Cells, n, valueTexts.Cells[0]);
                xTexts.CopyTo(x);
                return answer;
            }
        }

        /// <summary>VB_M_Standardize with a result, on one vector and with bFreq false.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; what has a flag other than 0 is left out; may be null</param>
        /// <param name="w">in, n weights; may be null</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="out">out, n numbers; may be the array of x</param>
        /// <returns>0</returns>
        public static int VB_V_Standardize(double[] x, int n, short[] iMissing, double[] w, short bUnbiased,
            double[] @out)
        {
            Room.Check("VB_V_Standardize", "x", x, (long)n, 1);
            Room.Check("VB_V_Standardize", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_Standardize", "w", w, (long)n, 1, true);
            Room.Check("VB_V_Standardize", "out", @out, (long)n, 1);
            return Native.VB_V_Standardize(x, n, iMissing, w, bUnbiased, @out);
        }

        /// <summary>VB_M_Standardize in place, on one vector and with bFreq false.</summary>
        /// <param name="x">inout, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; what has a flag other than 0 is left out; may be null</param>
        /// <param name="w">in, n weights; may be null</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <returns>0</returns>
        public static int VB_V_Standardize2(double[] x, int n, short[] iMissing, double[] w, short bUnbiased)
        {
            Room.Check("VB_V_Standardize2", "x", x, (long)n, 1);
            Room.Check("VB_V_Standardize2", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_Standardize2", "w", w, (long)n, 1, true);
            return Native.VB_V_Standardize2(x, n, iMissing, w, bUnbiased);
        }

        /// <summary>Weighted standard deviation: the square root of VB_V_Var.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>the root; 0.0 for a variance of 0; missing for a negative one and for a missing one</returns>
        public static double VB_V_Stdev(double[] x, int n, short[] iMissing, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_V_Stdev", "x", x, (long)n, 1);
            Room.Check("VB_V_Stdev", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_Stdev", "w", w, (long)n, 1);
            return Native.VB_V_Stdev(x, n, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Weighted sum of a vector: the sum of w[i] * x[i] in ascending order.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out. Null: none is</param>
        /// <param name="w">in, n weights; not null unless n is below 1</param>
        /// <returns>the sum over the elements whose flag is 0 and of which neither value nor weight is missing; 0.0
        /// when there are none</returns>
        public static double VB_V_Sum(double[] x, int n, short[] iMissing, double[] w)
        {
            Room.Check("VB_V_Sum", "x", x, (long)n, 1);
            Room.Check("VB_V_Sum", "iMissing", iMissing, (long)n, 1, true);
            Room.Check("VB_V_Sum", "w", w, (long)n, 1);
            return Native.VB_V_Sum(x, n, iMissing, w);
        }

        /// <summary>Sum of the elements that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the sum; 0.0 when there are none</returns>
        public static double VB_V_Sum2Dbl(double[] x, int n)
        {
            Room.Check("VB_V_Sum2Dbl", "x", x, (long)n, 1);
            return Native.VB_V_Sum2Dbl(x, n);
        }

        /// <summary>Sum of integers in 32-bit arithmetic that wraps around. No integer is missing here.</summary>
        /// <param name="x">in, n integers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the wrapped sum as a number; 0.0 when n is below 1</returns>
        public static double VB_V_Sum2Lng(int[] x, int n)
        {
            Room.Check("VB_V_Sum2Lng", "x", x, (long)n, 1);
            return Native.VB_V_Sum2Lng(x, n);
        }

        /// <summary>Sum over a stretch of a vector, missing elements too.</summary>
        /// <param name="x">in, to numbers, or more</param>
        /// <param name="n">not used</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, from 1</param>
        /// <returns>the sum; 0.0 when `from` is above `to`</returns>
        public static double VB_V_SumFromTo(double[] x, int n, int from, int to)
        {
            Room.Check("VB_V_SumFromTo", "x", x, (long)to, 1);
            return Native.VB_V_SumFromTo(x, n, from, to);
        }

        /// <summary>Sum over a stretch of a vector of integers, in 32-bit arithmetic that wraps around.</summary>
        /// <param name="x">in, to integers, or more</param>
        /// <param name="n">not used</param>
        /// <param name="from">first position, from 1</param>
        /// <param name="to">last position, from 1</param>
        /// <returns>the wrapped sum; 0 when `from` is above `to`</returns>
        public static int VB_V_SumFromToLng(int[] x, int n, int from, int to)
        {
            Room.Check("VB_V_SumFromToLng", "x", x, (long)to, 1);
            return Native.VB_V_SumFromToLng(x, n, from, to);
        }

        /// <summary>Sum of the values of a group. A row counts when its code equals the group's, and neither is
        /// missing.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="val">code of the group</param>
        /// <returns>the sum; the missing number when no row counts</returns>
        public static double VB_V_SumIf(double[] y, int n, double[] g, double val)
        {
            Room.Check("VB_V_SumIf", "y", y, (long)n, 1);
            Room.Check("VB_V_SumIf", "g", g, (long)n, 1);
            return Native.VB_V_SumIf(y, n, g, val);
        }

        /// <summary>Sum of the numbers of one vector where neither it nor another vector is missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="y">in, n numbers</param>
        /// <returns>the sum, 0.0 when there are none; the missing number for n below 1</returns>
        public static double VB_V_SumIfNotMissing(double[] x, int n, double[] y)
        {
            Room.Check("VB_V_SumIfNotMissing", "x", x, (long)n, 1);
            Room.Check("VB_V_SumIfNotMissing", "y", y, (long)n, 1);
            return Native.VB_V_SumIfNotMissing(x, n, y);
        }

        /// <summary>Sum of weight times value of a group, over the rows of a weight above 0 of which neither is
        /// missing.</summary>
        /// <param name="y">in, n values</param>
        /// <param name="n">number of rows</param>
        /// <param name="g">in, n codes</param>
        /// <param name="w">in, n weights</param>
        /// <param name="val">code of the group</param>
        /// <returns>the sum; the missing number when no row counts</returns>
        public static double VB_V_SumIfW(double[] y, int n, double[] g, double[] w, double val)
        {
            Room.Check("VB_V_SumIfW", "y", y, (long)n, 1);
            Room.Check("VB_V_SumIfW", "g", g, (long)n, 1);
            Room.Check("VB_V_SumIfW", "w", w, (long)n, 1);
            return Native.VB_V_SumIfW(y, n, g, w, val);
        }

        /// <summary>Sum of squares of the elements that are not missing.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <returns>the sum; 0.0 when there are none</returns>
        public static double VB_V_SumSq(double[] x, int n)
        {
            Room.Check("VB_V_SumSq", "x", x, (long)n, 1);
            return Native.VB_V_SumSq(x, n);
        }

        /// <summary>Weighted sum of squares of the elements that are not missing: the sum of x[i] * w[i] * x[i]. A
        /// missing weight multiplies through.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="w">in, n weights</param>
        /// <returns>the sum; 0.0 when there are none</returns>
        public static double VB_V_SumSqW(double[] x, int n, double[] w)
        {
            Room.Check("VB_V_SumSqW", "x", x, (long)n, 1);
            Room.Check("VB_V_SumSqW", "w", w, (long)n, 1);
            return Native.VB_V_SumSqW(x, n, w);
        }

        /// <summary>The step of a time scale, whose differences must all be within 1e-6 of the first.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="bSort">-1: the step of the sorted numbers; otherwise of the numbers as they stand</param>
        /// <returns>the first difference; the missing number when another one differs, and when there is
        /// none</returns>
        public static double VB_V_TimeIntervalSize(double[] x, int n, short bSort)
        {
            Room.Check("VB_V_TimeIntervalSize", "x", x, (long)n, 1);
            return Native.VB_V_TimeIntervalSize(x, n, bSort);
        }

        /// <summary>Whether each row of a vector is at least as large as every number in that row of a
        /// table.</summary>
        /// <param name="v">in, n numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="m">in, n by cols numbers</param>
        /// <param name="cols">columns of the table; 0 stands for 1</param>
        /// <returns>-1 or 0</returns>
        public static short VB_V_V1GreaterThanMatCols(double[] v, int n, double[] m, int cols)
        {
            Room.Check("VB_V_V1GreaterThanMatCols", "v", v, (long)n, 1);
            Room.Check("VB_V_V1GreaterThanMatCols", "m", m, (long)n, (cols == 0 ? 1L : cols));
            return Native.VB_V_V1GreaterThanMatCols(v, n, m, cols);
        }

        /// <summary>Whether each number of one vector is at most that of another.</summary>
        /// <param name="a">in, n numbers</param>
        /// <param name="n">number of rows</param>
        /// <param name="b">in, n numbers</param>
        /// <returns>-1 or 0</returns>
        public static short VB_V_V1inferiorV2(double[] a, int n, double[] b)
        {
            Room.Check("VB_V_V1inferiorV2", "a", a, (long)n, 1);
            Room.Check("VB_V_V1inferiorV2", "b", b, (long)n, 1);
            return Native.VB_V_V1inferiorV2(a, n, b);
        }

        /// <summary>Weighted variance.</summary>
        /// <param name="x">in, n numbers</param>
        /// <param name="n">number of elements</param>
        /// <param name="iMissing">in, n flags; an element with a non-zero flag is left out, and so is a missing
        /// one</param>
        /// <param name="w">in, n weights; a missing one is a number like any other</param>
        /// <param name="bUnbiased">whether the denominator is corrected; true only when -1</param>
        /// <param name="bFreq">how it is; true only when -1</param>
        /// <returns>the variance; missing when the denominator is exactly 0. A negative denominator is divided by
        /// like any other; when nothing is kept the result is missing unless unbiased, -0.0 with frequency weights,
        /// and a NaN without</returns>
        public static double VB_V_Var(double[] x, int n, short[] iMissing, double[] w, short bUnbiased, short bFreq)
        {
            Room.Check("VB_V_Var", "x", x, (long)n, 1);
            Room.Check("VB_V_Var", "iMissing", iMissing, (long)n, 1);
            Room.Check("VB_V_Var", "w", w, (long)n, 1);
            return Native.VB_V_Var(x, n, iMissing, w, bUnbiased, bFreq);
        }

        /// <summary>Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36,
        /// a line end. A line of more than 999 bytes is cut.</summary>
        /// <param name="value">the number</param>
        /// <param name="label">in, narrow text, NUL-terminated</param>
        public static void dprint(double value, string label)
        {
            Native.dprint(value, label);
        }

        /// <summary>Whether a column is qualitative: the types 2, 4 and 5.</summary>
        /// <param name="type">code of the column's type</param>
        /// <returns>-1 for a qualitative column, otherwise 0</returns>
        public static short isQuali(int type)
        {
            return Native.isQuali(type);
        }

        /// <summary>Whether a column is qualitative and nothing else: the types 2 and 4.</summary>
        /// <param name="type">code of the column's type</param>
        /// <returns>-1 for a purely qualitative column, otherwise 0</returns>
        public static short isQualiPure(int type)
        {
            return Native.isQualiPure(type);
        }
    }

    internal static class Native
    {
        private const string Library = "KORVELMathTools";

        [DllImport(Library)]
        internal static extern int CleanConstraintsAndInvert(int n, int[] constraints, double[] h, double[] inverse);

        [DllImport(Library)]
        internal static extern int CleanConstraintsAndInvertTriang(int n, int[] constraints, double[] t,
            short lowerFlag, double[] inverse);

        [DllImport(Library)]
        internal static extern int ComputeCosines(double[] x, int n, int p, double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_BuildDisjunctiveTable_ST(ref ST_MVect data, ref ST_QualiInfo info,
            ref ST_MVect result, int coding, int firstCategoryOption);

        [DllImport(Library)]
        internal static extern int Cpp_CheckForMarginalSums(double[] table, int rows, int cols, double[] result,
            out int keptRows, out int keptCols, int[] droppedRows, int[] droppedCols);

        [DllImport(Library)]
        internal static extern short Cpp_CheckSameVectorStr(IntPtr[] a, int nA, IntPtr[] b, int nB);

        [DllImport(Library)]
        internal static extern int Cpp_CheckUniqueCatByVar(IntPtr[] categories, int p, int width, int[] categoryCounts);

        [DllImport(Library)]
        internal static extern int Cpp_CopyDblToMVDbl(double[] m, int rows, int cols, ref ST_MVect mv);

        [DllImport(Library)]
        internal static extern int Cpp_Extractij(double[] x, int rows, int cols, int i, int j, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_FilterOnSumOfSquares(double[] x, int rows, int cols, double threshold,
            short[] kept);

        [DllImport(Library)]
        internal static extern int Cpp_GenerateIndicator_ST(IntPtr[] @out, int n, int first, int last);

        [DllImport(Library)]
        internal static extern int Cpp_GenerateRandomIndicator_ST(IntPtr[] @out, int n, int k, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_GetCompMatrices(double[] means, int k, int column, int[] significance,
            short sortResult, int[] order, IntPtr[] labels, out int groupCount, out short success, short descending);

        [DllImport(Library)]
        internal static extern int Cpp_GetMaxCat(IntPtr[] data, int n, int p, int[] categoryCounts);

        [DllImport(Library)]
        internal static extern int Cpp_GetStatusMemory(int amount);

        [DllImport(Library)]
        internal static extern int Cpp_KroneckerTensorProduct(double[] a, int r1, int c1, double[] b, int r2, int c2,
            double[] c);

        [DllImport(Library)]
        internal static extern int Cpp_MV_ProductAsymBsym(double[] a, int n, double[] b, double[] c);

        [DllImport(Library)]
        internal static extern int Cpp_M_BoldCosines(int[] positions, int n, int[] table);

        [DllImport(Library)]
        internal static extern int Cpp_M_ConvertBinarytoDisjTable(double[] x, int n, int p, double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyBlockSPV2(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyBlockSPV2_T(IntPtr[] x, int n, int firstRow, int lastRow, int firstCol,
            int lastCol, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyPasteBlock(double[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, double[] y, int yRows, int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyPasteBlockSPV(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, IntPtr[] y, int yRows, int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyPasteBlockStr(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, IntPtr[] y, int yRows, int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopySymMatToVector(double[] x, int n, double[] v);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyTabletoVectorByRowDbl(double[] x, int rows, int cols, double[] v);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyTabletoVectorByRowStr(IntPtr[] x, int rows, int cols, IntPtr[] v);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyVectorToSymMat(double[] v, int n, double[] x);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyVectortoTableByRowDbl(double[] v, int rows, int cols, double[] x);

        [DllImport(Library)]
        internal static extern int Cpp_M_CopyVectortoTableByRowStr(IntPtr[] v, int rows, int cols, IntPtr[] x);

        [DllImport(Library)]
        internal static extern int Cpp_M_CorrMatFromCovMatSPV2_T(IntPtr[] table, int n);

        [DllImport(Library)]
        internal static extern int Cpp_M_CorrMatFromSymMat(double[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_M_CorrMatFromSymMatSPV(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_M_CorrMatFromSymMatSPV_T(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_M_CovCorr_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect @out, short bCorr,
            short[] iMissing, double[] w, short bUnbiased, short bFreq, short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int Cpp_M_CovMatFromCorrMat(double[] corr, int n, double[] vars, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_CovMatFromSymMat(double[] x, int n);

        [DllImport(Library)]
        internal static extern double Cpp_M_DeterminantCleanedSPV_T(IntPtr[] a, int n, int[] constraints,
            out short status);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateDblSPV(IntPtr[] x, int rows, int cols, double[] y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateDblSPV2(double[] x, int rows, int cols, IntPtr[] y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateDblSPV2_T(double[] x, int rows, int cols, IntPtr[] y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateDblSPV3(IntPtr[] x, int rows, int cols, IntPtr[] y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateDbl_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateMVDblTriang_ST(ref ST_MVect src, ref ST_MVect dst);

        [DllImport(Library)]
        internal static extern int Cpp_M_DuplicateStr_ST(ref ST_MVect x, int rows, int cols, ref ST_MVect y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int Cpp_M_EigenSPV_T(IntPtr[] a, double[] values, IntPtr[] vectors, int n,
            short sortFlag);

        [DllImport(Library)]
        internal static extern int Cpp_M_EuclidDistToVector(double[] x, int rows, int cols, double[] v, short bRows,
            double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_ForwardDoolittle(double[] a, int n, double[] h);

        [DllImport(Library)]
        internal static extern int Cpp_M_GetMaxDistToOrigin(double[] x, int rows, int cols, out double d, out int row);

        [DllImport(Library)]
        internal static extern int Cpp_M_GetMissingDbl(double[] x, int rows, int cols, short[] iMissing,
            short[] iMissingOut);

        [DllImport(Library)]
        internal static extern int Cpp_M_GetMissingDblSPV(IntPtr[] x, int rows, int cols, short[] iMissing,
            short[] iMissingOut);

        [DllImport(Library)]
        internal static extern int Cpp_M_GetMissingStr(IntPtr[] x, int rows, int cols, short[] iMissing,
            short[] iMissingOut);

        [DllImport(Library)]
        internal static extern int Cpp_M_HermiteCanonical(double[] a, int n, double[] h);

        [DllImport(Library)]
        internal static extern int Cpp_M_IdentifyMissingInMat(double[] x, int rows, int cols, int[] marks);

        [DllImport(Library)]
        internal static extern int Cpp_M_IdentifyMissingInMatSPV(IntPtr[] x, int rows, int cols, int[] marks);

        [DllImport(Library)]
        internal static extern int Cpp_M_InfoQuali3(IntPtr[] data, int n, int p, int width, int count, IntPtr[] modes,
            double[] modeFrequencies, IntPtr[] categories, double[] frequencies, double[] weightedFrequencies,
            double[] weights, out int total, short sort);

        [DllImport(Library)]
        internal static extern int Cpp_M_InfoQuali3_ST(ref ST_MVect data, double[] weights, ref ST_QualiInfo info);

        [DllImport(Library)]
        internal static extern int Cpp_M_InfoQualiNoMiss(IntPtr[] data, int n, int p, IntPtr[] modes,
            double[] modeFrequencies, int[] categoryCounts, IntPtr[] categories, double[] frequencies, double[] weights,
            out int total, short sort);

        [DllImport(Library)]
        internal static extern int Cpp_M_InfoQualiValid_ST(ref ST_MVect data, int n, int p, ref ST_QualiInfo reference,
            ref ST_QualiInfo result, out short newCategoryFound, double[] weights);

        [DllImport(Library)]
        internal static extern int Cpp_M_InsertMissingDbl(double[] x, int n, int p, short[] flags, int m,
            double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_M_InsertMissingLng(int[] x, int n, int p, short[] flags, int m, int[] result);

        [DllImport(Library)]
        internal static extern int Cpp_M_Inverse(short[] flags, int rows, int cols);

        [DllImport(Library)]
        internal static extern int Cpp_M_InverseG2(double[] a, int n, double tolerance, double[] g);

        [DllImport(Library)]
        internal static extern int Cpp_M_InverseG2Selective(double[] a, int n, int[] selected, double tolerance,
            double[] g, short zeroOthers);

        [DllImport(Library)]
        internal static extern int Cpp_M_InverseG2_ST(ref ST_MVect a, int n, double tolerance, ref ST_MVect g);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsBinaryDbl_ST(ref ST_MVect x, short skipMissing);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsLong_ST(ref ST_MVect x, int rows, int cols);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double[] x, int n);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsPositive(double[] x, int rows, int cols, short[] iMissing, short bStrict);

        [DllImport(Library)]
        internal static extern short Cpp_M_IsPositive_ST(ref ST_MVect x, int rows, int cols, short[] iMissing,
            short bStrict);

        [DllImport(Library)]
        internal static extern double Cpp_M_LogDeterminant(double[] a, int n);

        [DllImport(Library)]
        internal static extern int Cpp_M_MaxPosByRow(double[] x, int rows, int cols, int[] positions);

        [DllImport(Library)]
        internal static extern int Cpp_M_Mean2(double[] x, int rows, int cols, double[] w, double[] means);

        [DllImport(Library)]
        internal static extern int Cpp_M_Mean3(double[] x, int rows, int cols, double[] means);

        [DllImport(Library)]
        internal static extern int Cpp_M_MeanSPV(IntPtr[] x, int rows, int cols, double[] means, double[] w);

        [DllImport(Library)]
        internal static extern int Cpp_M_MergeStringsByRow(IntPtr[] x, int rows, int cols, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern double Cpp_M_MinAll(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern double Cpp_M_MinIgnoreMissing_ST(ref ST_MVect x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int Cpp_M_NbMissingSPV(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern double Cpp_M_Norm2(double[] a, int rows, int cols);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductABTrA_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, short symmetric,
            ref ST_MVect c);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductAB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int q,
            ref ST_MVect c);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductATrB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int m,
            ref ST_MVect c);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductTrAALng(int[] a, int n, int p, int[] c);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductTrABV(double[] a, int n, int p, double[] b, int q, double[] v,
            double[] y);

        [DllImport(Library)]
        internal static extern int Cpp_M_ProductTrAB_ST(ref ST_MVect a, int n, int p, ref ST_MVect b, int q,
            ref ST_MVect c);

        [DllImport(Library)]
        internal static extern double Cpp_M_ProductTrVSymV(double[] v, int n, double[] s);

        [DllImport(Library)]
        internal static extern int Cpp_M_RecodeDataWithCodes_ST(ref ST_MVect data, int n, int p, ref ST_MVect codes,
            int codeCount, ref ST_MVect result);

        [DllImport(Library)]
        internal static extern int Cpp_M_RemoveRowsStr2(IntPtr[] x, int rows, int cols, int first, int last);

        [DllImport(Library)]
        internal static extern int Cpp_M_RemoveRowsWithMissing2(double[] x, int n, int p, short[] flags);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceByMissing(double[] x, int n, int p, int[] marks, int markColumns,
            short wholeRow);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceByMissingIfVal(double[] x, int n, int p, int[] marks, int markColumns,
            int value, short wholeRow);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceCatByCodes(IntPtr[] data, int n, int p, int[] categoryCounts,
            IntPtr[] categories, double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceCatByCodes_ST(ref ST_MVect data, int n, int p, int[] categoryCounts,
            IntPtr[] categories, ref ST_MVect result);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceMissingByStr_ST(ref ST_MVect x, int rows, int cols, IntPtr val);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceMissingByVal_ST(ref ST_MVect x, int rows, int cols, double val);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceStrByCodesSPV(IntPtr[] data, int n, int p, int[] categoryCounts,
            IntPtr[] categories, short[] rowFlags, int firstCode, IntPtr[] result);

        [DllImport(Library)]
        internal static extern int Cpp_M_ReplaceStrByCodes_ST(ref ST_MVect data, int n, int p, int[] categoryCounts,
            IntPtr[] categories, short[] rowFlags, int firstCode, ref ST_MVect result);

        [DllImport(Library)]
        internal static extern double Cpp_M_RowSumNorm(double[] a, int n, int m);

        [DllImport(Library)]
        internal static extern int Cpp_M_SamplingRandomStratifiedByStr(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, IntPtr[] strata, double[] selected, double[] counts, int nCounts, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_M_SetBooleanIfLng(int[] x, int rows, int cols, int value, short[] flags);

        [DllImport(Library)]
        internal static extern int Cpp_M_ShuffleDbl(double[] x, int rows, int cols, double[] @out, ref int seed,
            short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_M_ShuffleDbl2(double[] x, int rows, int cols, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_M_ShuffleStr(IntPtr[] x, int rows, int cols, IntPtr[] @out, ref int seed,
            short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_M_ShuffleStr2(IntPtr[] x, int rows, int cols, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_M_SquareRoot(double[] a, int n, double[] r);

        [DllImport(Library)]
        internal static extern int Cpp_M_SquareRootAij(double[] x, int rows, int cols, double[] y);

        [DllImport(Library)]
        internal static extern int Cpp_M_SquareRootAij2(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int Cpp_M_StandardizeApply2(double[] x, int rows, int cols, double[] means,
            double[] sds);

        [DllImport(Library)]
        internal static extern int Cpp_M_StandardizeByGroup(double[] x, int rows, int cols, int[] groups, int nGroups,
            short bStandardize, short bUnbiased);

        [DllImport(Library)]
        internal static extern int Cpp_M_SubstractFirstCol2(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int Cpp_M_SumBySquareCols(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_SumBySquareRows(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_M_Sums1As2B_ST(ref ST_MVect A, int rows, int cols, ref ST_MVect B, double a,
            double b, ref ST_MVect @out);

        [DllImport(Library)]
        internal static extern int Cpp_MatToVect(double[] x, int rows, int cols, double[] v);

        [DllImport(Library)]
        internal static extern int Cpp_MatToVect_NoMissing(double[] x, int n, int p, double[] counts,
            ref double emptyColumns, double[] vector);

        [DllImport(Library)]
        internal static extern int Cpp_MultiplyByVal(double[] x, int rows, int cols, double s);

        [DllImport(Library)]
        internal static extern int Cpp_NIPALS(int n, int p, double[] x, double[] weights, double tolerance,
            int components, double columnShare, double tableShare);

        [DllImport(Library)]
        internal static extern double Cpp_Random01(ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_Random1toNDbl(double[] @out, int n, short bReset, ref int seed, ref short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_Random1toNLong(int[] @out, int n, short bReset, ref int seed, ref short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_RandomAtoBDbl(double[] @out, int a, int b, short bReset, ref int seed,
            ref short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_RandomAtoBLng(int[] @out, int a, int b, short bReset, ref int seed,
            ref short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_ReOrderCorrelations(double[] corr, int n, int method, IntPtr[] labels,
            double[] pValues, int[] flags);

        [DllImport(Library)]
        internal static extern int Cpp_RemoveRowsWithMissingOniMissing(double[] x, int n, int p, short[] iMissing,
            double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_RemoveRowsWithMissingOniMissingStr(IntPtr[] x, int n, int p, short[] iMissing,
            IntPtr[] result);

        [DllImport(Library)]
        internal static extern int Cpp_ReplaceMissingInContengencyByExp_ST(ref ST_MVect x, int rows);

        [DllImport(Library)]
        internal static extern int Cpp_SortApply2Bool(short[] x, int rows, int cols, double[] order);

        [DllImport(Library)]
        internal static extern int Cpp_SortApply2_ST(ref ST_MVect x, int rows, int cols, double[] order);

        [DllImport(Library)]
        internal static extern int Cpp_SortQDbl_ST(ref ST_MVect x, int rows, int cols, int from, int to, double[] key,
            double[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int Cpp_SortQLng_ST(IntPtr[] x, int rows, int cols, int from, int to, int[] key,
            int[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int Cpp_SortQMatrixCol(double[] x, int rows, int cols, int keyCol, int from, int to,
            short bDesc);

        [DllImport(Library)]
        internal static extern int Cpp_SortQMatrixColLng(int[] x, int rows, int cols, int keyCol, int from, int to,
            short bDesc);

        [DllImport(Library)]
        internal static extern int Cpp_SortQMatrixColStr(IntPtr[] x, int rows, int cols, int keyCol, int from, int to,
            short bDesc);

        [DllImport(Library)]
        internal static extern int Cpp_SortQStr_ST(ref ST_MVect x, int rows, int cols, int from, int to, double[] key,
            IntPtr[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int Cpp_SortQVector2Str(IntPtr[] x, int n, int from, int to, short bDesc, int[] index);

        [DllImport(Library)]
        internal static extern int Cpp_SumMat(double[] a, double[] b, int n, int p, double[] c);

        [DllImport(Library)]
        internal static extern double Cpp_Test(ref ST_MVect record);

        [DllImport(Library)]
        internal static extern int Cpp_TestMemory(ref int rows1, ref int cols1, ref int rows2, ref int cols2,
            ref int rows3, ref int cols3, ref int rows4, ref int cols4, ref int rows5, ref int cols5, ref int rows6,
            ref int cols6, ref int rows7, ref int cols7, ref int rows8, ref int cols8, ref int rows9, ref int cols9,
            ref int rows10, ref int cols10, ref int rows11, ref int cols11, ref int rows12, ref int cols12,
            ref int rows13, ref int cols13, ref int rows14, ref int cols14, ref int rows15, ref int cols15,
            ref int rows16, ref int cols16, ref int rows17, ref int cols17, ref int rows18, ref int cols18,
            ref int rows19, ref int cols19, ref int rows20, ref int cols20);

        [DllImport(Library)]
        internal static extern int Cpp_TriangularQFindAB(double q1, double mode, double q2, double p1, double p2,
            out double a, out double b);

        [DllImport(Library)]
        internal static extern int Cpp_VMergeTablesDblSPV(IntPtr[] a, int rowsA, int colsA, double[] b, int rowsB,
            int colsB, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_V_CheckDateInterval(double[] x, int n, int kind, out double d);

        [DllImport(Library)]
        internal static extern int Cpp_V_CleanVectDbl2(double[] x, int n, out int m);

        [DllImport(Library)]
        internal static extern int Cpp_V_CleanVectDblW2(double[] x, int n, double[] w, out int m);

        [DllImport(Library)]
        internal static extern int Cpp_V_ConvertBinaryTo01Dbl(double[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_CopyDoubleToLong(double[] x, int n, int[] y);

        [DllImport(Library)]
        internal static extern int Cpp_V_CopyLongToDouble(int[] x, int n, double[] y);

        [DllImport(Library)]
        internal static extern double Cpp_V_Correl2W(double[] x, int n, double[] y, double[] w);

        [DllImport(Library)]
        internal static extern int Cpp_V_CuSum(double[] x, int n, double[] @out);

        [DllImport(Library)]
        internal static extern double Cpp_V_DiffSqStart(double[] x, int n, double[] y, int start);

        [DllImport(Library)]
        internal static extern int Cpp_V_DuplicateBool(short[] x, int rows, int cols, int col, int from, int to,
            short[] y, int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int Cpp_V_DuplicateDbl_ST(IntPtr[] x, int col, int from, int to, IntPtr[] y, int row,
            int yCol);

        [DllImport(Library)]
        internal static extern int Cpp_V_DuplicateLng_ST(IntPtr[] x, int col, int from, int to, IntPtr[] y, int row,
            int yCol);

        [DllImport(Library)]
        internal static extern int Cpp_V_DuplicateStr_ST(IntPtr[] x, int col, int from, int to, IntPtr[] y, int row,
            int yCol);

        [DllImport(Library)]
        internal static extern short Cpp_V_FindLng(int[] x, int n, int val);

        [DllImport(Library)]
        internal static extern short Cpp_V_FindStr(IntPtr[] x, int n, IntPtr val);

        [DllImport(Library)]
        internal static extern int Cpp_V_GMeanGSD(double[] x, int n, short[] iMissing, double[] w, out double gmean,
            out double gsd);

        [DllImport(Library)]
        internal static extern int Cpp_V_Gauss_ST(ref ST_MVect a, int n, ref ST_Vect b);

        [DllImport(Library)]
        internal static extern double Cpp_V_HarmonicMean(double[] x, int n, short[] iMissing, double[] w);

        [DllImport(Library)]
        internal static extern int Cpp_V_InsertValueLow(double[] x, int n, double val, short bSort);

        [DllImport(Library)]
        internal static extern int Cpp_V_InsertValueUp(double[] x, int n, double val, short bSort);

        [DllImport(Library)]
        internal static extern short Cpp_V_IsBinaryDbl(double[] x, int n, short skipMissing);

        [DllImport(Library)]
        internal static extern short Cpp_V_IsBinaryDblXY(double[] x, int n, double a, double b, short skipMissing);

        [DllImport(Library)]
        internal static extern short Cpp_V_IsWeightsAndAll1_ST(IntPtr[] x, int n, out short bAll1);

        [DllImport(Library)]
        internal static extern short Cpp_V_IsWeights_ST(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern double Cpp_V_Max2Lng_ST(IntPtr[] sa, int n);

        [DllImport(Library)]
        internal static extern double Cpp_V_Max2_ST(IntPtr[] sa, int n);

        [DllImport(Library)]
        internal static extern double Cpp_V_MeanAbsDev(double[] x, int n, double centre, short[] iMissing, double[] w);

        [DllImport(Library)]
        internal static extern int Cpp_V_MeanStdev2(double[] x, int n, short bUnbiased, out double mean, out double sd);

        [DllImport(Library)]
        internal static extern int Cpp_V_MeanVarW2(double[] x, int n, double[] w, out double mean, out double var,
            short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern double Cpp_V_MeanW2(double[] x, int n, double[] w);

        [DllImport(Library)]
        internal static extern double Cpp_V_MedianAbsDev(double[] x, int n, double centre, short[] iMissing,
            double[] w);

        [DllImport(Library)]
        internal static extern double Cpp_V_MedianAbsDev2(double[] x, int n, ref double centre);

        [DllImport(Library)]
        internal static extern int Cpp_V_MergeVectorsStr(IntPtr[] a, int n, IntPtr[] b, IntPtr sep, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern double Cpp_V_Min3(ref ST_MVect record, int nRows, int nCols);

        [DllImport(Library)]
        internal static extern double Cpp_V_MinIgnoreMissing(double[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_ModeW2(IntPtr[] labels, int n, double[] w, IntPtr[] mode);

        [DllImport(Library)]
        internal static extern int Cpp_V_NbDistinctStr(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_NbTrue_ST(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_PairwiseDeletion(double[] x, double[] y, double[] z, int n, double[] xOut,
            double[] yOut, double[] zOut, out int count);

        [DllImport(Library)]
        internal static extern double Cpp_V_QuantileW2(double[] x, int n, double[] w, double q);

        [DllImport(Library)]
        internal static extern int Cpp_V_Quantiles13(double[] x, int n, double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_V_RecodeToBinary(IntPtr[] column, int n, IntPtr value, double[] result);

        [DllImport(Library)]
        internal static extern int Cpp_V_Reverse2Bool(short[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_Reverse2Dbl(double[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_Reverse2Lng(int[] x, int n);

        [DllImport(Library)]
        internal static extern int Cpp_V_SetToValueLng_ST(IntPtr[] x, int n, int value);

        [DllImport(Library)]
        internal static extern int Cpp_V_SetToValue_ST(IntPtr[] x, int n, double value);

        [DllImport(Library)]
        internal static extern int Cpp_V_Shuffle(double[] x, int n, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int Cpp_V_ShuffleLng(int[] x, int n, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern double Cpp_V_Sum2Dbl_ST(IntPtr[] sa, int n);

        [DllImport(Library)]
        internal static extern double Cpp_V_Sum2Lng_ST(IntPtr[] sa, int n);

        [DllImport(Library)]
        internal static extern double Cpp_V_SumW(double[] x, int n, double[] w);

        [DllImport(Library)]
        internal static extern int Cpp_V_SwapDbl(double[] a, int n, double[] b);

        [DllImport(Library)]
        internal static extern int Cpp_V_SwapStr(IntPtr[] a, int n, IntPtr[] b);

        [DllImport(Library)]
        internal static extern int Cpp_V_TopBottom3Box(double[] x, int n, double[] w, out double top1,
            out double bottom1, out double top2, out double bottom2, out double top3, out double bottom3);

        [DllImport(Library)]
        internal static extern int Cpp_V_TopBottom3BoxConditional(double[] x, int n, double[] w, double[] group,
            double groupValue, out double top1, out double bottom1, out double top2, out double bottom2,
            out double top3, out double bottom3);

        [DllImport(Library)]
        internal static extern int Cpp_V_Trim(IntPtr[] labels, int n, short bLeft, short bRight, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_V_Trim2(IntPtr[] labels, int n, short bLeft, short bRight);

        [DllImport(Library)]
        internal static extern double Cpp_V_Var2(double[] x, int n, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern double Cpp_V_VarIf(double[] y, int n, double[] g, double val, short bUnbiased);

        [DllImport(Library)]
        internal static extern double Cpp_V_VarIfSup0W(double[] y, int n, double[] g, double[] w, short bUnbiased);

        [DllImport(Library)]
        internal static extern double Cpp_V_VarIfW(double[] y, int n, double[] g, double[] w, double val,
            short bUnbiased);

        [DllImport(Library)]
        internal static extern int Cpp_V_Winsorize2(double[] x, int n, double qLow, double qHigh);

        [DllImport(Library)]
        internal static extern int Cpp_V_ZScores(double[] x, int n, short bRobust, double[] centre, ref double scale,
            double[] @out);

        [DllImport(Library)]
        internal static extern int Cpp_VectToMat(double[] v, double[] pattern, int rows, int cols, double[] x);

        [DllImport(Library)]
        internal static extern void Cpp_WriteMatrixDbl(double[] a, int rows, int cols, string name);

        [DllImport(Library)]
        internal static extern void Cpp_WriteMatrixLng(int[] a, int rows, int cols, string name);

        [DllImport(Library)]
        internal static extern int Cpp_WriteMatrixStr(IntPtr[] a, int rows, int cols, string name);

        [DllImport(Library)]
        internal static extern int Cpp_set_rand_algo(int algorithm);

        [DllImport(Library)]
        internal static extern IntPtr ExtractBSTR(IntPtr[] sa);

        [DllImport(Library)]
        internal static extern IntPtr Increase1Col(IntPtr column);

        [DllImport(Library)]
        internal static extern int KORVEL_Version();

        [DllImport(Library)]
        internal static extern int NewtonRaphson(double[] parameters, int n, int[] constraints, double[] gradient,
            double[] hessian, double tolerance, double[] standardErrors, double[] inverse, short limitStep,
            double stepLimit);

        [DllImport(Library)]
        internal static extern int RunOLSBasic(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] fitted);

        [DllImport(Library)]
        internal static extern int RunOLSBasic2(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] standardErrors,
            double[] fitted);

        [DllImport(Library)]
        internal static extern int RunOLSBasic2Lg(int n, int p1, double[] x1, int p2, double[] x2, int p3, double[] x3,
            int p4, double[] x4, int p5, double[] x5, double[] y, double[] weights, int degree, short interactions,
            short noConstant, double tolerance, double[] coefficients, double[] standardErrors, double[] fitted);

        [DllImport(Library)]
        internal static extern int RunOLSBasic3(int n, int p, double[] x, double[] y, double[] weights, int degree,
            short interactions, short noConstant, double tolerance, double[] coefficients, double[] standardErrors,
            double[] fitted, double[] sweptMatrix, double[] means, double[] standardDeviations);

        [DllImport(Library)]
        internal static extern IntPtr SimplifyRange(IntPtr value);

        [DllImport(Library)]
        internal static extern int VB_BiplotTransData(double[] rowCoordinates, double[] extraRowCoordinates,
            double[] columnCoordinates, int rows, int extraRows, int columns, int axes, double[] singularValues,
            double scale, double alpha, double[] rowResult, double[] columnResult);

        [DllImport(Library)]
        internal static extern int VB_BiplotTransDataSPV(IntPtr[] rowCoordinates, double[] extraRowCoordinates,
            IntPtr[] columnCoordinates, int rows, int extraRows, int columns, int axes, double[] singularValues,
            double scale, double alpha, double[] rowResult, double[] columnResult);

        [DllImport(Library)]
        internal static extern int VB_BuildDisjunctiveTable(IntPtr[] data, int n, int p, int totalColumns,
            int[] categoryCounts, IntPtr[] categories, double[] frequencies, double[] result, int coding,
            int firstCategoryOption);

        [DllImport(Library)]
        internal static extern int VB_CheckTolerance(double[] r, int p, int groupCount, double[] groupSelection,
            double[] groupNumbers, double tolerance, short duplicates, short entered, short reverse, short skipGroup,
            double[] status, double[] tolerances, double[] inflationFactors);

        [DllImport(Library)]
        internal static extern int VB_ComputeNewVar(double[] x, int rows, int cols, double[] coefficients,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_CopyMatrixColToMatrixCol(double[] x, int rows, int cols, int col, double[] y,
            int yRows, int yCols, int colTo, short bReset);

        [DllImport(Library)]
        internal static extern int VB_CopyMatrixColToOneColMatStr(IntPtr[] x, int rows, int cols, int col, IntPtr[] y);

        [DllImport(Library)]
        internal static extern int VB_CopyMatrixColToVector(double[] x, int rows, int cols, int col, double[] y);

        [DllImport(Library)]
        internal static extern int VB_CopyMatrixRowToMatrixRow(double[] x, int rows, int cols, int row, double[] y,
            int yRows, int yCols, int rowTo, short bReset);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingMean(double[] x, int n, int p, short[] rowFlags,
            double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingMeanPred(double[] statistics, int n, double[] x, int rows,
            int p, short[] rowFlags, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingMeanSPV(IntPtr[] x, int n, int p, short[] rowFlags,
            double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingMode(IntPtr[] x, int n, int p, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingModePred(IntPtr[] statistics, int n, IntPtr[] x, int rows,
            int p, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNN(double[] primary, int n, int primaryColumns,
            short[] rowFlags, double[] second, int secondColumns, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNNPred(double[] primaryStatistics, int n, double[] primary,
            int rows, int primaryColumns, short[] rowFlags, double[] secondStatistics, double[] second,
            int secondColumns, IntPtr[] thirdStatistics, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNNSPV(IntPtr[] primary, int n, int primaryColumns,
            short[] rowFlags, double[] second, int secondColumns, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNNSPV2(IntPtr[] primary, int n, int primaryColumns,
            short[] rowFlags, IntPtr[] second, int secondColumns, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNNStr(IntPtr[] primary, int n, int primaryColumns,
            short[] rowFlags, double[] second, int secondColumns, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_EstimateRowsWithMissingNNStrPred(IntPtr[] primaryStatistics, int n,
            IntPtr[] primary, int rows, int primaryColumns, short[] rowFlags, double[] secondStatistics,
            double[] second, int secondColumns, IntPtr[] thirdStatistics, IntPtr[] third, int thirdColumns, double[] w);

        [DllImport(Library)]
        internal static extern int VB_FilterEigen(double[] values, int n, short dropTail, double threshold,
            double cumulativePercent, int maxCount, double minValue, out int kept, out int retained, double[] percents);

        [DllImport(Library)]
        internal static extern int VB_GenerateIndicator(double[] @out, int n, int first, int last);

        [DllImport(Library)]
        internal static extern int VB_GenerateRandomIndicator(double[] @out, int n, int k, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_HMergeTableVect(double[] x, int rows, int cols, double[] v, int n, double[] @out,
            int outRows, int outCols);

        [DllImport(Library)]
        internal static extern int VB_HMergeTableVect2(double[] x, int rows, int cols, double[] v, int n);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesBool(short[] a, int rowsA, int colsA, short[] b, int rowsB, int colsB,
            short[] @out);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesBool2(short[] a, int rowsA, int colsA, short[] b, int rowsB,
            int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesDbl(double[] a, int rowsA, int colsA, double[] b, int rowsB,
            int colsB, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesDbl2(double[] a, int rowsA, int colsA, double[] b, int rowsB,
            int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesDbl2SPV(IntPtr[] a, int rowsA, int colsA, double[] b, int rowsB,
            int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesDbl2SPV2(IntPtr[] a, int rowsA, int colsA, IntPtr[] b, int rowsB,
            int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesLng2(int[] a, int rowsA, int colsA, int[] b, int rowsB, int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesStr(IntPtr[] a, int rowsA, int colsA, IntPtr[] b, int rowsB,
            int colsB, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_HMergeTablesStr2(IntPtr[] a, int rowsA, int colsA, IntPtr[] b, int rowsB,
            int colsB);

        [DllImport(Library)]
        internal static extern int VB_HMergeVectColDbl(double[] v, int n, double[] x, int rows, int cols, int col,
            double[] @out, int outRows);

        [DllImport(Library)]
        internal static extern int VB_HMergeVectTable(double[] v, int n, double[] x, int rows, int cols, double[] @out,
            int outRows, int outCols);

        [DllImport(Library)]
        internal static extern int VB_HMergeVectors(double[] a, int nA, double[] b, int nB, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_InitVectorToFalse(short[] flags, int n);

        [DllImport(Library)]
        internal static extern int VB_InitVectorToTrue(short[] flags, int n);

        [DllImport(Library)]
        internal static extern short VB_IsMissingValueDbl(double x);

        [DllImport(Library)]
        internal static extern short VB_IsMissingValueStr(IntPtr cell);

        [DllImport(Library)]
        internal static extern double VB_MAE(double[] actual, double[] predicted, int n, double[] w, int first);

        [DllImport(Library)]
        internal static extern double VB_MAPE(double[] actual, double[] predicted, int n, double[] w, int first);

        [DllImport(Library)]
        internal static extern double VB_MPE(double[] actual, double[] predicted, int n, double[] w, int first);

        [DllImport(Library)]
        internal static extern int VB_M_APlusVal(double[] a, int n, int p, double s, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_APlusVal2(double[] a, int n, int p, double s);

        [DllImport(Library)]
        internal static extern int VB_M_AllMissingRows(double[] x, int n, int p, short[] flagsIn, short[] flagsOut);

        [DllImport(Library)]
        internal static extern int VB_M_AllMissingRowsStr(IntPtr[] x, int n, int p, short[] flagsIn, short[] flagsOut);

        [DllImport(Library)]
        internal static extern int VB_M_Binarize(double[] x, int n, int p, double[] result);

        [DllImport(Library)]
        internal static extern int VB_M_Binarize2(double[] x, int n, int p);

        [DllImport(Library)]
        internal static extern int VB_M_Binarize2SPV(IntPtr[] x, int p, int n);

        [DllImport(Library)]
        internal static extern int VB_M_Center(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_Center2(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_Center2SPV(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_CenterW(double[] x, int rows, int cols, double[] w, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_CenterW2(double[] x, int rows, int cols, double[] w);

        [DllImport(Library)]
        internal static extern int VB_M_CheckIfSimOrDissim(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_CheckIfSimOrDissimSPV(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_CholDecomp(double[] a, int n, double[] l);

        [DllImport(Library)]
        internal static extern int VB_M_CholDecompCleaned(double[] a, int n, int[] constraints, double[] l);

        [DllImport(Library)]
        internal static extern int VB_M_CholDecompPrinc(double[] a, int n, double[] l, int[] perm, short replaceInput);

        [DllImport(Library)]
        internal static extern int VB_M_CopyBlock(double[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_CopyBlockSPV(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_CopyBlockStr(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            int firstCol, int lastCol, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_CopyResize(double[] x, int rows, int cols, double[] y, int newRows,
            int newCols);

        [DllImport(Library)]
        internal static extern int VB_M_CopyResizeBool(short[] x, int rows, int cols, short[] y, int newRows,
            int newCols);

        [DllImport(Library)]
        internal static extern int VB_M_CopyResizeStr(IntPtr[] x, int rows, int cols, IntPtr[] y, int newRows,
            int newCols);

        [DllImport(Library)]
        internal static extern int VB_M_CopyToBigger(double[] x, int rows, int cols, double[] y, int yRows, int yCols);

        [DllImport(Library)]
        internal static extern int VB_M_CorrMatFromCovMat(double[] cov, int n, double[] @out, short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_CorrMatMat(double[] x, int rows, int colsX, double[] y, int colsY,
            double[] @out, short[] iMissing, double[] w, short bCorr, short bSquare, short bUnbiased, short bFreq,
            short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_CorrMatMatSPV(IntPtr[] x, int rows, int colsX, IntPtr[] y, int colsY,
            IntPtr[] @out, short[] iMissing, double[] w, short bCorr, short bSquare, short bUnbiased, short bFreq,
            short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_CovCorr(double[] x, int rows, int cols, double[] @out, short bCorr,
            short[] iMissing, double[] w, short bUnbiased, short bFreq, short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_CovCorrAndMeanStDevVar(double[] x, int rows, int cols, double[] @out,
            double[] means, double[] sds, double[] vars, short bCorr, short[] iMissing, double[] w, short bUnbiased,
            short bFreq, short bCenter, short bReduce, short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_CovCorrVAndMeanStDevVar(double[] x, int rows, int cols, double[] @out,
            double[] means, double[] sds, double[] vars, short bCorr, short[] iMissing, double[] w, short bUnbiased,
            short bFreq, short bCenter, short bReduce, short bUndefinedIsZero);

        [DllImport(Library)]
        internal static extern int VB_M_Dedupe(double[] x, int rows, int p, out int nOut, double[] @out);

        [DllImport(Library)]
        internal static extern double VB_M_Determinant(double[] a, int n, out short status);

        [DllImport(Library)]
        internal static extern double VB_M_DeterminantCleaned(double[] a, int n, int[] constraints, out short status);

        [DllImport(Library)]
        internal static extern double VB_M_DeterminantTriang(double[] a, int n, out short status);

        [DllImport(Library)]
        internal static extern int VB_M_DuplicateDbl(double[] x, int rows, int cols, double[] y, int yRows, int yCols,
            int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_DuplicateLng(int[] x, int rows, int cols, int[] y, int yRows, int yCols,
            int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_DuplicateStr(IntPtr[] x, int rows, int cols, IntPtr[] y, int yRows, int yCols,
            int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_DuplicateStrSPV(IntPtr[] x, int rows, int cols, IntPtr[] y, int yRows,
            int yCols, int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_Eigen(double[] a, double[] values, double[] vectors, int n, short sortFlag);

        [DllImport(Library)]
        internal static extern int VB_M_EuclidDist2(double[] x, int rows, int cols, double[] w, double[] @out,
            short bRows, int nRows);

        [DllImport(Library)]
        internal static extern int VB_M_ExtractMatToMatByColDbl(double[] x, int rows, int cols, int firstCol,
            int lastCol, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_ExtractMatToMatDbl(double[] x, int rows, int cols, int firstRow, int lastRow,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_ExtractMatToMatDblSPV(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_ExtractMatToMatStr(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_ExtractMatToMatStrSPV(IntPtr[] x, int rows, int cols, int firstRow, int lastRow,
            IntPtr[] @out);

        [DllImport(Library)]
        internal static extern double VB_M_FrobeniusNorm(double[] a, int n, int p, double[] b);

        [DllImport(Library)]
        internal static extern int VB_M_Gauss(double[] a, int n, int m, double[] b);

        [DllImport(Library)]
        internal static extern int VB_M_GenerateRandom01(double[] @out, int rows, int cols, ref int seed, short flag,
            out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_GroupBy(double[] x, int rows, int cols, int[] kinds, int groupCol, int method,
            out int nOut, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_GroupByW(double[] x, int rows, int cols, int[] kinds, int groupCol, int method,
            out int nOut, double[] @out, double[] w);

        [DllImport(Library)]
        internal static extern int VB_M_InfoQuali(IntPtr[] data, int n, int p, IntPtr[] modes, double[] modeFrequencies,
            int[] categoryCounts, IntPtr[] categories, double[] frequencies, double[] weights, out int total,
            short sort);

        [DllImport(Library)]
        internal static extern int VB_M_InfoQuali2(IntPtr[] data, int n, int p, int width, int[] categoryCounts,
            IntPtr[] modes, double[] modeFrequencies, IntPtr[] categories, double[] frequencies, double[] weights,
            out int total, short sort);

        [DllImport(Library)]
        internal static extern int VB_M_InfoQualiValid(IntPtr[] data, int n, int p, int width, int[] categoryCounts,
            IntPtr[] categories, double[] counts, out short newCategoryFound, double[] weights);

        [DllImport(Library)]
        internal static extern int VB_M_InvGeneralized(double[] a, int n, double[] g, double tolerance, out int rank);

        [DllImport(Library)]
        internal static extern int VB_M_InvGeneralizedSym(double[] a, int n, double[] g, double tolerance,
            out int rank);

        [DllImport(Library)]
        internal static extern int VB_M_Inverse1(double[] a, int n, double[] inverse, ref short error,
            double tolerance);

        [DllImport(Library)]
        internal static extern int VB_M_InverseTriang(double[] t, int n, short lowerFlag, double[] inverse,
            double tolerance);

        [DllImport(Library)]
        internal static extern short VB_M_IsColConstant(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern short VB_M_IsColConstantSPV(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern short VB_M_IsDiagConstant(double[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_M_IsDisjTable(double[] x, int n, int p, short[] rowFlags, out int rowSum);

        [DllImport(Library)]
        internal static extern short VB_M_IsIn01(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern short VB_M_IsInIntervalSPV(IntPtr[] x, int rows, int cols, double lo, double hi,
            short bOpen, short bSkipMissing);

        [DllImport(Library)]
        internal static extern short VB_M_IsLong(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern short VB_M_IsSymmetric(double[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_M_IsSymmetricSPV(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_M_IsTriangular(double[] x, int n, short bMirror);

        [DllImport(Library)]
        internal static extern int VB_M_IsTriangularSPV(IntPtr[] x, int n, short bMirror);

        [DllImport(Library)]
        internal static extern int VB_M_LUDecomp(double[] a, int n, int[] pivots, out double sign, out short status);

        [DllImport(Library)]
        internal static extern int VB_M_Log10Matrix(double[] x, int rows, int cols, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_LogMatrix(double[] x, int rows, int cols, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_Max(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_Mean(double[] x, int rows, int cols, double[] means, double[] w);

        [DllImport(Library)]
        internal static extern int VB_M_MeanStDev(double[] x, int rows, int cols, double[] means, double[] sds,
            short[] iMissing, double[] w, short bUnbiased, short bFreq, short flag);

        [DllImport(Library)]
        internal static extern int VB_M_MeanStDevByRow(double[] x, int rows, int cols, double[] means, double[] sds,
            double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_MeanStDevVar(double[] x, int rows, int cols, double[] means, double[] sds,
            double[] vars, short[] iMissing, double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_MeanStDevVarOneInMat(double[] x, int rows, int cols, out double mean,
            out double sd, out double var, double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_Min(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_MinMax(double[] x, int rows, int cols, double[] mins, double[] maxs,
            short[] iMissing, short flag);

        [DllImport(Library)]
        internal static extern int VB_M_MinMaxSPV(IntPtr[] x, int rows, int cols, double[] mins, double[] maxs,
            short[] iMissing, short flag);

        [DllImport(Library)]
        internal static extern int VB_M_MinMaxSPV_T(IntPtr[] x, int rows, int cols, double[] mins, double[] maxs,
            short[] iMissing, short flag);

        [DllImport(Library)]
        internal static extern int VB_M_MoveRow(double[] x, int rows, int cols, int from, int to);

        [DllImport(Library)]
        internal static extern int VB_M_NbMissing(double[] x, int rows, int cols, int[] counts);

        [DllImport(Library)]
        internal static extern int VB_M_NbMissing2(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_NbMissing2Str(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_NbMissingSPV_T(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_NbMissingStr(IntPtr[] x, int rows, int cols, int[] counts);

        [DllImport(Library)]
        internal static extern int VB_M_NbNonMissing(double[] x, int rows, int cols, int[] counts);

        [DllImport(Library)]
        internal static extern int VB_M_Normalize(double[] x, int rows, int cols, double[] w, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_M_NormalizeMatrix(double[] x, int rows, int cols, double[] y, int yRows,
            double[] z, int zRows);

        [DllImport(Library)]
        internal static extern int VB_M_PasteBlock(double[] x, int rows, int cols, double[] y, int yRows, int yCols,
            int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_PasteBlockLng(int[] x, int rows, int cols, int[] y, int yRows, int yCols,
            int row, int col);

        [DllImport(Library)]
        internal static extern int VB_M_ProductAB(double[] a, int n, int p, double[] b, int q, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductABC(double[] a, int n, int p, double[] b, int q, double[] c, int r,
            double[] d);

        [DllImport(Library)]
        internal static extern int VB_M_ProductABLng(int[] a, int n, int p, int[] b, int q, int[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductABMissing(double[] a, int n, int p, double[] b, int q, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductABTrA(double[] a, int n, int p, double[] b, short symmetric, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADTrA(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADiag(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADiagV(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADiagVB(double[] a, int n, int p, double[] d, double[] b, int q,
            double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADiagVTrA(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductADiagVTrB(double[] a, int n, int p, double[] d, double[] b, int m,
            double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductASymV(double[] s, int m, double[] x, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_ProductATrA(double[] a, int n, int p, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductATrB(double[] a, int n, int p, double[] b, int m, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductATrBC(double[] a, int n, int p, double[] b, int q, double[] c, int r,
            double[] d);

        [DllImport(Library)]
        internal static extern int VB_M_ProductAinvBTrA(double[] a, int n, int p, double[] b, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductBV(double[] b, int n, int p, double[] v, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_ProductByElement(double[] a, int n, int p, double[] b, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductDesignAB2(double[] a, int n, ref int colsA, double[] b, int colsB,
            int type, double[] weights, double[] sums);

        [DllImport(Library)]
        internal static extern int VB_M_ProductDiagV1ADiagV2(double[] d1, int n, double[] a, int p, double[] d2,
            double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductDiagVA(double[] d, int n, double[] a, int p, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductHorizAB(double[] a, int n, int colsA, double[] b, int colsB, double[] c,
            int extra);

        [DllImport(Library)]
        internal static extern int VB_M_ProductHorizAB2(double[] a, int n, ref int colsA, double[] b, int colsB);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrAA(double[] a, int n, int p, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrAB(double[] a, int n, int p, double[] b, int q, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrABA(double[] a, int n, int p, double[] b, short symmetric, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrABC(double[] a, int n, int p, double[] b, int q, double[] c, int r,
            double[] d);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrADA(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrADiag(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrADiagV(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrADiagVA(double[] a, int n, int p, double[] d, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrAinvBA(double[] a, int n, int p, double[] b, short symmetric,
            double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ProductTrBV(double[] b, int n, int p, double[] v, double[] y);

        [DllImport(Library)]
        internal static extern double VB_M_ProductTrV1BV2(double[] x1, int n, double[] b, double[] x2);

        [DllImport(Library)]
        internal static extern double VB_M_ProductTrVBV(double[] v, int n, double[] b);

        [DllImport(Library)]
        internal static extern double VB_M_ProductTrVinvBV(double[] v, int n, double[] b);

        [DllImport(Library)]
        internal static extern int VB_M_ProductVASym(double[] x, int m, double[] s, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_ProductVB(double[] v, int n, double[] b, int q, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_ProductVTrB(double[] v, int n, double[] b, int m, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_Rank(double[] a, int n, int p);

        [DllImport(Library)]
        internal static extern int VB_M_Reduce(double[] x, int rows, int cols, double[] @out, short bUnbiased,
            short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_Reduce2(double[] x, int rows, int cols, short bUnbiased);

        [DllImport(Library)]
        internal static extern int VB_M_ReduceW(double[] x, int rows, int cols, double[] w, double[] @out,
            short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_ReduceW2(double[] x, int rows, int cols, double[] w, short bUnbiased,
            short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveCol(double[] x, int rows, int cols, int k, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveCols2(double[] x, int rows, int cols, int first, int last);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveColsInList(double[] x, int rows, int cols, double[] list, int n,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveRow(double[] x, int rows, int cols, int k, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveRows2(double[] x, int rows, int cols, int first, int last);

        [DllImport(Library)]
        internal static extern int VB_M_RemoveRowsInList(double[] x, int rows, int cols, int[] list, int n,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_ReplaceMissingByStr(IntPtr[] x, int rows, int cols, IntPtr val);

        [DllImport(Library)]
        internal static extern int VB_M_ReplaceMissingByVal(double[] x, int rows, int cols, double val);

        [DllImport(Library)]
        internal static extern int VB_M_ReplaceMissingByValSPV(IntPtr[] x, int rows, int cols, double val);

        [DllImport(Library)]
        internal static extern int VB_M_ReplaceStrByCodes(IntPtr[] data, int n, int p, int[] categoryCounts,
            IntPtr[] categories, short[] rowFlags, int firstCode, double[] result);

        [DllImport(Library)]
        internal static extern int VB_M_ReplaceStrByCodesBinary(IntPtr[] data, int n, int p, short[] rowFlags,
            double[] result);

        [DllImport(Library)]
        internal static extern int VB_M_RescaleByVect(double[] x, int rows, int cols, double[] lo, double[] hi,
            short[] iMissing, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_RescaleByVect2(double[] x, int rows, int cols, double[] lo, double[] hi,
            short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_M_SVDecomp(double[] a, int n, int p, double[] s, double[] u, double[] v, int job,
            out int info);

        [DllImport(Library)]
        internal static extern int VB_M_SVDecompSPV(IntPtr[] a, int n, int p, double[] s, IntPtr[] u, IntPtr[] v,
            int job, out int info);

        [DllImport(Library)]
        internal static extern int VB_M_SampleUserDefined(IntPtr[] table, int rows, int cols, IntPtr[] sample,
            double[] counts, double[] selected);

        [DllImport(Library)]
        internal static extern int VB_M_SampleUserDefinedSPV(IntPtr[] table, int rows, int cols, IntPtr[] sample,
            double[] counts, double[] selected);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingRandomStratified(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingRandomStratifiedSPV(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingSystematicCentered(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingSystematicCenteredSPV(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingSystematicRdStart(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingSystematicRdStartSPV(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_SamplingWithReplacement(IntPtr[] table, int rows, int cols, int k,
            IntPtr[] sample, double[] selected, ref int seed, short flag, out int nextSeed);

        [DllImport(Library)]
        internal static extern int VB_M_ScalarsA(double[] a, int n, int p, double s, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_ScalarsA2(double[] a, int n, int p, double s);

        [DllImport(Library)]
        internal static extern int VB_M_ScalarsTrA(double[] a, int n, int p, double s, double[] c);

        [DllImport(Library)]
        internal static extern int VB_M_SetWeightsToZeroForMissing(double[] x, int n, int p, double[] weights,
            int mode);

        [DllImport(Library)]
        internal static extern int VB_M_Square(double[] a, int n, int p);

        [DllImport(Library)]
        internal static extern int VB_M_SquaredColumns(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_SquaredRows(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_Standardize(double[] x, int rows, int cols, double[] @out, double[] means,
            double[] sds, double[] vars, short[] iMissing, double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_Standardize2(double[] x, int rows, int cols, short bUnbiased);

        [DllImport(Library)]
        internal static extern int VB_M_Standardize2SPV(IntPtr[] x, int rows, int cols, short bUnbiased);

        [DllImport(Library)]
        internal static extern int VB_M_Standardize3(double[] x, int rows, int cols, double[] means, double[] sds,
            short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeByVect(double[] x, int rows, int cols, double[] means, double[] sds,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeByVect2(double[] x, int rows, int cols, double[] means,
            double[] sds);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeKnownMeansStDev(double[] x, int rows, int cols, double[] means,
            double[] sds, double[] @out, double[] vars, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeMatrix(double[] x, int rows, int cols, double[] y, int yRows,
            double[] z, int zRows);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeW(double[] x, int rows, int cols, double[] w, short bUnbiased,
            short bFreq, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeW2(double[] x, int rows, int cols, double[] w, short bUnbiased,
            short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_StandardizeW3(double[] x, int rows, int cols, double[] w, double[] means,
            double[] sds, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_M_SumByCols(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_SumByRows(double[] x, int rows, int cols, double[] @out);

        [DllImport(Library)]
        internal static extern double VB_M_SumOfElem(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_Sums1As2B(double[] A, int rows, int cols, double[] B, double a, double b,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_M_Sweep(double[] packed, int n, int k);

        [DllImport(Library)]
        internal static extern int VB_M_Symmetrize(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_SymmetrizeSPV(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern double VB_M_Trace(double[] a, int n);

        [DllImport(Library)]
        internal static extern int VB_M_TransformSimToDissim(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_M_Transpose(double[] x, int rows, int cols, double[] y);

        [DllImport(Library)]
        internal static extern int VB_M_Transpose2(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_Transpose2Lng(int[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_Transpose2Str(IntPtr[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_M_TransposeLng(int[] x, int rows, int cols, int[] y);

        [DllImport(Library)]
        internal static extern int VB_M_TransposeSPV(IntPtr[] x, int rows, int cols, IntPtr[] y);

        [DllImport(Library)]
        internal static extern int VB_M_TransposeStr(IntPtr[] x, int rows, int cols, IntPtr[] y);

        [DllImport(Library)]
        internal static extern double VB_RMSE(double[] x, int n, int col, double[] y, double df);

        [DllImport(Library)]
        internal static extern int VB_RemoveRowsWithMissing(double[] x, int n, int p, int removed, short[] flags,
            double[] result);

        [DllImport(Library)]
        internal static extern int VB_RemoveRowsWithMissingBool(short[] x, int n, int p, int removed, short[] flags,
            short[] result);

        [DllImport(Library)]
        internal static extern int VB_RemoveRowsWithMissingStr(IntPtr[] x, int n, int p, int removed, short[] flags,
            IntPtr[] result);

        [DllImport(Library)]
        internal static extern int VB_ReplaceMissingObsLabels(IntPtr[] labels, int n, short[] flags, IntPtr prefix);

        [DllImport(Library)]
        internal static extern int VB_SortApply(double[] x, int rows, int cols, double[] order, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_SortApply2(double[] x, int rows, int cols, double[] order);

        [DllImport(Library)]
        internal static extern int VB_SortApply2Lng(int[] x, int rows, int cols, double[] order);

        [DllImport(Library)]
        internal static extern int VB_SortApply2Str(IntPtr[] x, int rows, int cols, double[] order);

        [DllImport(Library)]
        internal static extern int VB_SortApplyLng(int[] x, int rows, int cols, double[] order, int[] @out);

        [DllImport(Library)]
        internal static extern int VB_SortApplyStr(IntPtr[] x, int rows, int cols, double[] order, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_SortDataBy01(double[] x, int rows, int cols, double[] key);

        [DllImport(Library)]
        internal static extern int VB_SortDataBy01Bool(short[] x, int rows, int cols, double[] key);

        [DllImport(Library)]
        internal static extern int VB_SortDataBy01Str(IntPtr[] x, int rows, int cols, double[] key);

        [DllImport(Library)]
        internal static extern int VB_SortMatrixSeqQDbl(double[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_SortMatrixSeqQLng(int[] x, int rows, int cols);

        [DllImport(Library)]
        internal static extern int VB_SortMatrixSeqQP1toP2Dbl(double[] x, int rows, int cols, int p1, int p2);

        [DllImport(Library)]
        internal static extern int VB_SortMatrixSeqQP1toP2Lng(int[] x, int rows, int cols, int p1, int p2);

        [DllImport(Library)]
        internal static extern int VB_SortQBool(short[] x, int rows, int cols, int from, int to, double[] key,
            short[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQByColDbl(double[] x, int rows, int cols, int from, int to, double[] key,
            double[] aux, int auxRows, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQDbl(double[] x, int rows, int cols, int from, int to, double[] key,
            double[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQDbl2(double[] x, int rows, int cols, int from, int to, double[] key,
            double[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQLng(int[] x, int rows, int cols, int from, int to, int[] key, int[] aux,
            int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQStr(IntPtr[] x, int rows, int cols, int from, int to, double[] key,
            IntPtr[] aux, int auxCols, short bDesc, short bSortKey);

        [DllImport(Library)]
        internal static extern int VB_SortQVectorDbl(IntPtr[] sa, int ignored, int from, int to, short bDesc);

        [DllImport(Library)]
        internal static extern int VB_SortQVectorLng(IntPtr[] sa, int ignored, int from, int to, short bDesc);

        [DllImport(Library)]
        internal static extern int VB_SortQVectorStr(IntPtr[] x, int n, int from, int to, short bDesc);

        [DllImport(Library)]
        internal static extern int VB_SummarizeAllMissing(int n, short[] a, short[] b, out int count, short[] result);

        [DllImport(Library)]
        internal static extern int VB_SummarizeMissing(int n, out int count, short[] result, short[] a, short[] b,
            short[] c);

        [DllImport(Library)]
        internal static extern int VB_VMergeTablesDbl(double[] a, int rowsA, int colsA, double[] b, int rowsB,
            int colsB, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_VMergeVectorsBool2(short[] a, int nA, short[] b, int nB);

        [DllImport(Library)]
        internal static extern int VB_VMergeVectorsDbl(double[] a, int nA, double[] b, int nB, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_VMergeVectorsDbl2(double[] a, int nA, double[] b, int nB);

        [DllImport(Library)]
        internal static extern int VB_VMergeVectorsStr(IntPtr[] a, int nA, IntPtr[] b, int nB, IntPtr[] @out);

        [DllImport(Library)]
        internal static extern int VB_VMergeVectorsStr2(IntPtr[] a, int nA, IntPtr[] b, int nB);

        [DllImport(Library)]
        internal static extern double VB_V_DiffSq(double[] x, int n, double[] y);

        [DllImport(Library)]
        internal static extern double VB_V_DiffSqW(double[] x, int n, double[] y, double[] w);

        [DllImport(Library)]
        internal static extern int VB_V_DuplicateDbl(double[] x, int rows, int cols, int col, int from, int to,
            double[] y, int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int VB_V_DuplicateDblToLng(double[] x, int rows, int cols, int col, int from, int to,
            int[] y, int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int VB_V_DuplicateLng(int[] x, int rows, int cols, int col, int from, int to, int[] y,
            int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int VB_V_DuplicateLngToDbl(int[] x, int rows, int cols, int col, int from, int to,
            double[] y, int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int VB_V_DuplicateStr(IntPtr[] x, int rows, int cols, int col, int from, int to,
            IntPtr[] y, int yRows, int yCols, int row, int yCol);

        [DllImport(Library)]
        internal static extern int VB_V_ExtractDistinct(double[] x, int n, double[] @out, out int nOut);

        [DllImport(Library)]
        internal static extern double VB_V_Freq(double[] x, int n, double[] w, double value, double tol);

        [DllImport(Library)]
        internal static extern double VB_V_FreqLng(int[] x, int n, double[] w, double value, double tol);

        [DllImport(Library)]
        internal static extern double VB_V_FreqStr(IntPtr[] labels, int n, double[] w, IntPtr value);

        [DllImport(Library)]
        internal static extern int VB_V_Gauss(double[] a, int n, double[] b);

        [DllImport(Library)]
        internal static extern int VB_V_GetMissingDbl(double[] x, int n, short[] iMissing, short[] iMissingOut);

        [DllImport(Library)]
        internal static extern int VB_V_GetMissingStr(IntPtr[] x, int n, short[] iMissing, short[] iMissingOut);

        [DllImport(Library)]
        internal static extern int VB_V_GetPositionInMatNN(int k, int n, out int row, out int col);

        [DllImport(Library)]
        internal static extern int VB_V_GetPositionInMatNNm1o2(int k, int n, out int row, out int col);

        [DllImport(Library)]
        internal static extern int VB_V_GetRanksDbl(double[] x, int n, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_GetRanksLng(double[] x, int n, int[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_GetRanksTiesDbl(double[] x, int n, short bRestore, double[] w, double[] ranks,
            out int nTies, double[] tieSizes);

        [DllImport(Library)]
        internal static extern int VB_V_GetRanksTiesDbl2(double[] x, int n, short bRestore, double[] ranks,
            out int nTies, double[] tieSizes);

        [DllImport(Library)]
        internal static extern int VB_V_GetRanksTiesIntDbl(double[] x, int n, double[] w, double[] ranks, out int nTies,
            double[] tieSizes);

        [DllImport(Library)]
        internal static extern short VB_V_Is01(double[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_V_IsCWeights(double[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_V_IsConstant(double[] x, int n, short bSkipMissing, int col);

        [DllImport(Library)]
        internal static extern short VB_V_IsConstantBool(short[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_V_IsConstantLng(int[] x, int n, short bSkipMissing);

        [DllImport(Library)]
        internal static extern short VB_V_IsConstantStr(IntPtr[] x, int n, short bSkipMissing);

        [DllImport(Library)]
        internal static extern short VB_V_IsInInterval(double[] x, int n, double lo, double hi, short bOpen,
            short bSkipMissing);

        [DllImport(Library)]
        internal static extern short VB_V_IsIndicator(double[] x, int n);

        [DllImport(Library)]
        internal static extern short VB_V_IsIndicatorSPV(IntPtr[] x, int n, int col);

        [DllImport(Library)]
        internal static extern short VB_V_IsPositive(double[] x, int n, short bStrict);

        [DllImport(Library)]
        internal static extern short VB_V_IsSorted(double[] x, int n, short bStrict);

        [DllImport(Library)]
        internal static extern short VB_V_IsWeights(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_Max(double[] x, int n, short[] iMissing);

        [DllImport(Library)]
        internal static extern double VB_V_Max2(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_Max2Lng(int[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_MaxAndMaxPos(double[] x, int n, out int pos);

        [DllImport(Library)]
        internal static extern double VB_V_MaxIf(double[] y, int n, double[] g, double val);

        [DllImport(Library)]
        internal static extern int VB_V_MaxInt(int[] x, int n, short[] iMissing);

        [DllImport(Library)]
        internal static extern double VB_V_Mean(double[] x, int n, short[] iMissing, double[] w);

        [DllImport(Library)]
        internal static extern double VB_V_Mean2(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_MeanAbs(double[] x, int n, short[] iMissing, double[] w);

        [DllImport(Library)]
        internal static extern double VB_V_MeanIf(double[] y, int n, double[] g, double val);

        [DllImport(Library)]
        internal static extern double VB_V_MeanIfW(double[] y, int n, double[] g, double[] w, double val);

        [DllImport(Library)]
        internal static extern int VB_V_MeanStdev(double[] x, int n, out double mean, out double sd, short[] iMissing,
            double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_V_MeanVar(double[] x, int n, out double mean, out double var, short[] iMissing,
            double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern int VB_V_MeanVarSkewPKurtP(double[] x, int n, out double mean, out double var,
            out double skewP, out double kurtP, out double skew, out double kurt, out double seSkew, out double seKurt,
            short[] iMissing, double[] w, short bUnbiased, short bFreq);

        [DllImport(Library)]
        internal static extern double VB_V_Min(double[] x, int n, short[] iMissing);

        [DllImport(Library)]
        internal static extern double VB_V_Min2(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_Min2Lng(int[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_MinAndMinPos(double[] x, int n, out int pos, short bLast);

        [DllImport(Library)]
        internal static extern double VB_V_MinIf(double[] y, int n, double[] g, double val);

        [DllImport(Library)]
        internal static extern int VB_V_MinMax(double[] x, int n, out double min, out double max, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_V_MinMax2(double[] x, int n, out double min, out double max, short bSkipMissing);

        [DllImport(Library)]
        internal static extern int VB_V_MinMaxLng(int[] x, int n, out double min, out double max, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_V_MinMaxLng2(int[] x, int n, out double min, out double max, short bSkipMissing);

        [DllImport(Library)]
        internal static extern int VB_V_Mode(IntPtr[] labels, int n, short[] iMissing, double[] w, IntPtr[] mode);

        [DllImport(Library)]
        internal static extern double VB_V_ModeCatDbl(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbDistinct(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbDistinctLng(int[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_NbIf(double[] x, int n, double val);

        [DllImport(Library)]
        internal static extern double VB_V_NbIfLng(int[] x, int n, int val);

        [DllImport(Library)]
        internal static extern double VB_V_NbIfW(double[] x, int n, double[] w, double val);

        [DllImport(Library)]
        internal static extern int VB_V_NbMissing(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbMissingStr(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbNonMissing(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbTrue(short[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NbTrueFromTo(short[] x, int from, int to);

        [DllImport(Library)]
        internal static extern int VB_V_Norm(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_NormToVal(double[] x, int n, double value);

        [DllImport(Library)]
        internal static extern int VB_V_NormToValW(double[] x, int n, double value, double[] w);

        [DllImport(Library)]
        internal static extern int VB_V_NormW(double[] x, int n, double[] w);

        [DllImport(Library)]
        internal static extern int VB_V_PlusVal(double[] x, int n, double val, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_V_PlusVal2(double[] x, int n, double val);

        [DllImport(Library)]
        internal static extern double VB_V_Product1toNDbl(double[] v, int n);

        [DllImport(Library)]
        internal static extern double VB_V_Product1toNLng(int[] v, int n);

        [DllImport(Library)]
        internal static extern int VB_V_ProductHorizV1V2(double[] x, int n, double[] y, int m, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_ProductHorizV1V22(double[] x, ref int n, double[] y, int m);

        [DllImport(Library)]
        internal static extern double VB_V_ProductTrV1V2(double[] x1, int n, double[] x2);

        [DllImport(Library)]
        internal static extern int VB_V_ProductV1TrV2(double[] x1, int n, double[] x2, double[] c);

        [DllImport(Library)]
        internal static extern int VB_V_ProductV1V2(double[] x1, int n, double[] x2, double[] y);

        [DllImport(Library)]
        internal static extern int VB_V_ProductV1V22(double[] x1, int n, double[] x2);

        [DllImport(Library)]
        internal static extern double VB_V_Quantile(double[] x, int n, double q);

        [DllImport(Library)]
        internal static extern double VB_V_QuantileM(double[] x, int n, short[] iMissing, double q);

        [DllImport(Library)]
        internal static extern double VB_V_QuantileMW(double[] x, int n, short[] iMissing, double[] w, double q);

        [DllImport(Library)]
        internal static extern double VB_V_QuantileW(double[] x, int n, double[] w, double q);

        [DllImport(Library)]
        internal static extern int VB_V_RemoveVal(double[] x, int n, int pos, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_ReplaceDoubles(IntPtr[] labels, int n);

        [DllImport(Library)]
        internal static extern int VB_V_ReplaceVal(double[] x, int n, double oldValue, double newValue, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_ReplaceVal2(double[] x, int n, double oldValue, double newValue);

        [DllImport(Library)]
        internal static extern int VB_V_Rescale(double[] x, int n, double lo, double hi, short[] iMissing,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_Rescale2(double[] x, int n, double lo, double hi, short[] iMissing);

        [DllImport(Library)]
        internal static extern int VB_V_ReverseBool(short[] x, int n, short[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_ReverseDbl(double[] x, int n, double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_Set1toNDbl(double[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_Set1toNLng(int[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_Set1toNStr(IntPtr[] x, int n);

        [DllImport(Library)]
        internal static extern int VB_V_SetToValue(double[] x, int n, double value);

        [DllImport(Library)]
        internal static extern int VB_V_SetToValueLng(int[] x, int n, int value);

        [DllImport(Library)]
        internal static extern int VB_V_SetToValueStr(IntPtr[] x, int n, IntPtr value);

        [DllImport(Library)]
        internal static extern int VB_V_Standardize(double[] x, int n, short[] iMissing, double[] w, short bUnbiased,
            double[] @out);

        [DllImport(Library)]
        internal static extern int VB_V_Standardize2(double[] x, int n, short[] iMissing, double[] w, short bUnbiased);

        [DllImport(Library)]
        internal static extern double VB_V_Stdev(double[] x, int n, short[] iMissing, double[] w, short bUnbiased,
            short bFreq);

        [DllImport(Library)]
        internal static extern double VB_V_Sum(double[] x, int n, short[] iMissing, double[] w);

        [DllImport(Library)]
        internal static extern double VB_V_Sum2Dbl(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_Sum2Lng(int[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_SumFromTo(double[] x, int n, int from, int to);

        [DllImport(Library)]
        internal static extern int VB_V_SumFromToLng(int[] x, int n, int from, int to);

        [DllImport(Library)]
        internal static extern double VB_V_SumIf(double[] y, int n, double[] g, double val);

        [DllImport(Library)]
        internal static extern double VB_V_SumIfNotMissing(double[] x, int n, double[] y);

        [DllImport(Library)]
        internal static extern double VB_V_SumIfW(double[] y, int n, double[] g, double[] w, double val);

        [DllImport(Library)]
        internal static extern double VB_V_SumSq(double[] x, int n);

        [DllImport(Library)]
        internal static extern double VB_V_SumSqW(double[] x, int n, double[] w);

        [DllImport(Library)]
        internal static extern double VB_V_TimeIntervalSize(double[] x, int n, short bSort);

        [DllImport(Library)]
        internal static extern short VB_V_V1GreaterThanMatCols(double[] v, int n, double[] m, int cols);

        [DllImport(Library)]
        internal static extern short VB_V_V1inferiorV2(double[] a, int n, double[] b);

        [DllImport(Library)]
        internal static extern double VB_V_Var(double[] x, int n, short[] iMissing, double[] w, short bUnbiased,
            short bFreq);

        [DllImport(Library)]
        internal static extern void dprint(double value, string label);

        [DllImport(Library)]
        internal static extern short isQuali(int type);

        [DllImport(Library)]
        internal static extern short isQualiPure(int type);
    }
}
