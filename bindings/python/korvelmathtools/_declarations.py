"""What the flat functions take and give. Made by tools/generate: edit the C headers instead."""

VERSION = "0.1.0"
ABI = "0.1"

# Name: result; parameters (name, type, direction, may be null, rooms (rows, columns, (argument, its value) of another room),
# what a count of 0 stands for); description.
FUNCTIONS = {
    'CleanConstraintsAndInvert': ('int', (
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('h', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('inverse', 'double*', 'inout', False, (('n', 'n', None),), 0),
    ), (
        'int CleanConstraintsAndInvert(int n, const int* constraints, const double* h, double* inverse);\n'
        '\n'
        'Inverse of the free rows and columns. A table with a pivot of at most 1e-8 in magnitude is singular and\n'
        'gets a generalised inverse by sweeping, in which pivots below 1e-12 give zeros. A single free cell gives\n'
        'its reciprocal, 0 counting as 1e-12.\n'
        '\n'
        'n: rows and columns\n'
        'constraints: in, n integers\n'
        'h: in, n by n numbers, column after column\n'
        'inverse: inout, n by n numbers; the columns of free positions are written whole, with 0 in the other rows. The other columns stay as they are: pass zeros. May be the array that is read\n'
        'returns 0; 1: the reduced table was singular\n'
    )),
    'CleanConstraintsAndInvertTriang': ('int', (
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('t', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('lowerFlag', 'short int', '', False, (), 0),
        ('inverse', 'double*', 'inout', False, (('n', 'n', None),), 0),
    ), (
        'int CleanConstraintsAndInvertTriang(int n, const int* constraints, const double* t, short int lowerFlag, double* inverse);\n'
        '\n'
        'Inverse of the free rows and columns of a triangular table. A single free cell gives its reciprocal, 0\n'
        'counting as 1e-12.\n'
        '\n'
        'n: rows and columns\n'
        'constraints: in, n integers\n'
        't: in, n by n numbers, column after column\n'
        'lowerFlag: 0: t is upper triangular; any other value: lower triangular\n'
        'inverse: inout, n by n numbers, as for CleanConstraintsAndInvert; stays as it is on failure\n'
        'returns 0; -1: an element of the diagonal is below 1e-12 in magnitude\n'
    )),
    'ComputeCosines': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('result', 'double*', 'inout', False, (('n', 'p', None),), 0),
    ), (
        'int ComputeCosines(const double* x, int n, int p, double* result);\n'
        '\n'
        'Squared cosines of the rows of a table: each cell squared, over the sum of squares of its row.\n'
        '\n'
        'x: in, n by p numbers, column after column\n'
        'n: rows\n'
        'p: columns\n'
        'result: inout, n by p numbers; rows whose sum of squares is not above 1e-12 stay as they are. May be x\n'
        'returns 0\n'
    )),
    'Cpp_BuildDisjunctiveTable_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('info', 'ST_QualiInfo*', 'in', False, (('category', '1', None),), 0),
        ('result', 'ST_MVect*', 'inout', False, (), 0),
        ('coding', 'int', '', False, (), 0),
        ('firstCategoryOption', 'int', '', False, (), 0),
    ), (
        'int Cpp_BuildDisjunctiveTable_ST(ST_MVect* data, ST_QualiInfo* info, ST_MVect* result, int coding, int firstCategoryOption);\n'
        '\n'
        'The disjunctive table of a record.\n'
        '\n'
        'data: in, labelled table of texts; all columns are read down to the longest one\n'
        'info: in, category statistics: `NbCat`, `CatNames` and `CatFreq` of its columns\n'
        'result: inout, labelled table of numbers: each column that is needed and there receives as many rows, and is resized where it can be; its counts and labels stay\n'
        'coding: 0, 1, 2 or 3\n'
        'firstCategoryOption: 1, 2 or another value\n'
        'returns 0\n'
    )),
    'Cpp_CheckForMarginalSums': ('int', (
        ('table', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('result', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('keptRows', 'int*', 'out', False, (('1', '1', None),), 0),
        ('keptCols', 'int*', 'out', False, (('1', '1', None),), 0),
        ('droppedRows', 'int*', 'inout', False, (('rows', '1', None),), 0),
        ('droppedCols', 'int*', 'inout', False, (('cols', '1', None),), 0),
    ), (
        'int Cpp_CheckForMarginalSums(const double* table, int rows, int cols, double* result, int* keptRows, int* keptCols, int* droppedRows, int* droppedCols);\n'
        '\n'
        'Copies a table without the rows and columns whose sum is not above 1e-12. Missing cells are left out of the\n'
        'sums.\n'
        '\n'
        'table: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'result: inout, rows by cols numbers: the rows and columns that stay come to its top left corner. Columns behind them stay as they were, and what is below them has no meaning\n'
        'keptRows: out, one integer: how many rows stay\n'
        'keptCols: out, one integer: how many columns stay\n'
        'droppedRows: inout, rows integers, of which those of rows left out become 1\n'
        'droppedCols: inout, cols integers, of which those of columns left out become 1\n'
        'returns 0\n'
    )),
    'Cpp_CheckSameVectorStr': ('short int', (
        ('a', 'OLECHAR**', 'in', False, (('nA', '1', None),), 0),
        ('nA', 'int', '', False, (('number', '1', None),), 0),
        ('b', 'OLECHAR**', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int Cpp_CheckSameVectorStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB);\n'
        '\n'
        'Tells whether two vectors have the same texts in the same order.\n'
        '\n'
        'a: in, nA texts\n'
        'nA: number of elements of a\n'
        'b: in, nB texts\n'
        'nB: number of elements of b\n'
        'returns -1 when the numbers are the same and so is every text, letter by letter; otherwise 0\n'
    )),
    'Cpp_CheckUniqueCatByVar': ('int', (
        ('categories', 'OLECHAR**', 'in', False, (('p', 'width', None),), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('width', 'int', '', False, (), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
    ), (
        'int Cpp_CheckUniqueCatByVar(OLECHAR* const* categories, int p, int width, const int* categoryCounts);\n'
        '\n'
        'Whether a name is used twice: in a slot of one variable, and in a later slot of the same or of any other\n'
        'variable. Equal names in the same slot of two variables are not noticed. Empty names are equal to each\n'
        'other.\n'
        '\n'
        'categories: in, p by width texts: a row of names for each variable\n'
        'p: number of variables\n'
        'width: columns of the table; slots beyond it are empty\n'
        'categoryCounts: in, p integers: the number of slots of each variable\n'
        'returns 1 when a name is used twice, otherwise 0\n'
    )),
    'Cpp_CopyDblToMVDbl': ('int', (
        ('m', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('mv', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_CopyDblToMVDbl(const double* m, int rows, int cols, ST_MVect* mv);\n'
        '\n'
        'Copies a table of numbers into the columns of a labelled one. Its scalars, row counts and labels stay.\n'
        '\n'
        'm: in, rows by cols numbers\n'
        'rows: number of rows; below 1: nothing is copied\n'
        'cols: number of columns; below 1: nothing is copied\n'
        'mv: inout, labelled table of Double; column j receives column j of the table. Elements for which a column has no room are dropped, as are columns that it does not have\n'
        'returns 0\n'
    )),
    'Cpp_Extractij': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('i', 'int', '', False, (), 0),
        ('j', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('j - i + 1', 'cols', None),), 0),
    ), (
        'int Cpp_Extractij(const double* x, int rows, int cols, int i, int j, double* out);\n'
        '\n'
        'Takes a range of rows of a table of numbers. A row that it does not have gives -1.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'i: first row of the range\n'
        'j: last row of the range; below i nothing is done\n'
        'out: out, j - i + 1 by cols numbers\n'
        'returns 0\n'
    )),
    'Cpp_FilterOnSumOfSquares': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('threshold', 'double', '', False, (('a', '1', None),), 0),
        ('kept', 'short int*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_FilterOnSumOfSquares(const double* x, int rows, int cols, double threshold, short int* kept);\n'
        '\n'
        'Picks the rows that are not negligible.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'threshold: a row is kept when the sum of squares of its cells, missing ones left out, is greater\n'
        'kept: out, rows flags: -1 for a row that is kept, otherwise 0\n'
        'returns the number of rows kept\n'
    )),
    'Cpp_GenerateIndicator_ST': ('int', (
        ('out', 'SAFEARRAY**', 'inout', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('first', 'int', '', False, (), 0),
        ('last', 'int', '', False, (), 0),
    ), (
        'int Cpp_GenerateIndicator_ST(SAFEARRAY** out, int n, int first, int last);\n'
        '\n'
        'Marks a range of elements of a host array.\n'
        '\n'
        'out: inout, host array of Double: its first n elements become 1 at positions first..last, 0 elsewhere\n'
        'n: number of elements\n'
        'first: first position to mark, from 1; a position outside the array is left out\n'
        'last: last position to mark, included\n'
        'returns 0\n'
    )),
    'Cpp_GenerateRandomIndicator_ST': ('int', (
        ('out', 'SAFEARRAY**', 'inout', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('k', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_GenerateRandomIndicator_ST(SAFEARRAY** out, int n, int k, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Marks a random subset of k out of n elements of a host array.\n'
        '\n'
        'out: inout, host array of Double: its first n elements become 1 for the elements of the subset, 0 for the others\n'
        'n: number of elements\n'
        'k: size of the subset; below 1 none, from n on all\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_GetCompMatrices': ('int', (
        ('means', 'double*', 'inout', False, (('k', 'column', None),), 0),
        ('k', 'int', '', False, (('number', '1', None),), 0),
        ('column', 'int', '', False, (), 1),
        ('significance', 'int*', 'in', False, (('k', 'k', None),), 0),
        ('sortResult', 'short int', '', False, (), 0),
        ('order', 'int*', 'out', False, (('k', '1', None),), 0),
        ('labels', 'OLECHAR**', 'out', False, (('k', 'k', None),), 0),
        ('groupCount', 'int*', 'out', False, (('1', '1', None),), 0),
        ('success', 'short int*', 'out', False, (('1', '1', None),), 0),
        ('descending', 'short int', '', False, (), 0),
    ), (
        'int Cpp_GetCompMatrices(double* means, int k, int column, const int* significance, short int sortResult, int* order, OLECHAR** labels, int* groupCount, short int* success, short int descending);\n'
        '\n'
        'Gives letters to levels, of which two share one exactly when they do not differ: when the one that comes\n'
        'first in the order of the means is significantly different neither from the other one nor from any level\n'
        'between them. Letters come in the order of their first levels: A to Z, then AA, AB and so on. A level whose\n'
        'mean is missing has no letter.\n'
        '\n'
        'means: inout, k by column numbers: the last column has the means; changed only when sortResult is 0\n'
        'k: number of levels\n'
        'column: the column of the means, from 1; 0 stands for 1\n'
        'significance: in, k by k integers: for each pair of levels, at the row of the larger number and the column of the smaller one, 0 when the two do not differ significantly\n'
        'sortResult: not 0: order, means and labels come back in the order of the levels; 0: in the order of the means\n'
        'order: out, k integers: the numbers of the levels\n'
        'labels: out, k by k texts: the letters of each level, letter c in column c. With more than 256 levels there are 256 columns. When the first mean in the order is missing, column 1 stays empty\n'
        'groupCount: out, one integer: how many columns are taken, 1 where there is no level; 257 when there was no room for the last letter\n'
        'success: out, one flag: -1, or 0 when there were too many letters\n'
        'descending: not 0: from the largest mean down; 0: from the smallest one up\n'
        'returns 0\n'
    )),
    'Cpp_GetMaxCat': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('categoryCounts', 'int*', 'out', False, (('p', '1', None),), 0),
    ), (
        'int Cpp_GetMaxCat(OLECHAR* const* data, int n, int p, int* categoryCounts);\n'
        '\n'
        'The number of different texts in each column, the empty one left out.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'categoryCounts: out, p integers: the numbers\n'
        'returns the largest number; 0 when there is no column\n'
    )),
    'Cpp_GetStatusMemory': ('int', (
        ('amount', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_GetStatusMemory(int amount);\n'
        '\n'
        'Whether the address space that this process has left is large enough.\n'
        '\n'
        'amount: number of bytes; a fifth is added\n'
        'returns -1 when it is, otherwise 0\n'
    )),
    'Cpp_KroneckerTensorProduct': ('int', (
        ('a', 'double*', 'in', False, (('r1', 'c1', None),), 0),
        ('r1', 'int', '', False, (), 0),
        ('c1', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('r2', 'c2', None),), 0),
        ('r2', 'int', '', False, (), 0),
        ('c2', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('r1 * r2', 'c1 * c2', None),), 0),
    ), (
        'int Cpp_KroneckerTensorProduct(const double* a, int r1, int c1, const double* b, int r2, int c2, double* c);\n'
        '\n'
        'The Kronecker product: the block (i, j) of c is a(i, j) * b. No cell is looked at for being missing.\n'
        '\n'
        'a: in, r1 by c1 numbers\n'
        'r1: rows of a\n'
        'c1: columns of a\n'
        'b: in, r2 by c2 numbers\n'
        'r2: rows of b\n'
        'c2: columns of b\n'
        'c: out, r1 * r2 by c1 * c2 numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'Cpp_MV_ProductAsymBsym': ('int', (
        ('a', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_MV_ProductAsymBsym(const double* a, int n, const double* b, double* c);\n'
        '\n'
        'The lower triangle of a * b, all three packed. The order m of the tables is the whole part of the root of\n'
        '2n. When n is not m(m + 1)/2, some elements have terms that reach past the n numbers of a and of b;\n'
        'these numbers count as -1.0.\n'
        '\n'
        'a: in, n numbers, a lower triangle row after row\n'
        'n: packed length\n'
        'b: in, n numbers, as a\n'
        'c: out, n numbers, as a; may be an array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_BoldCosines': ('int', (
        ('positions', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('table', 'int*', 'inout', False, (('n', 'max(positions)', None),), 0),
    ), (
        'int Cpp_M_BoldCosines(const int* positions, int n, int* table);\n'
        '\n'
        'Marks one cell in each row of a table with -1.\n'
        '\n'
        'positions: in, n integers: the columns, counted from 1; one below 1 marks nothing\n'
        'n: rows\n'
        'table: inout, n by max(positions) integers, or more columns, one after the other\n'
        'returns 0\n'
    )),
    'Cpp_M_ConvertBinarytoDisjTable': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('result', 'double*', 'out', False, (('n', '2 * p', None),), 0),
    ), (
        'int Cpp_M_ConvertBinarytoDisjTable(const double* x, int n, int p, double* result);\n'
        '\n'
        'Each column, followed by 1 less the column. Missing numbers are numbers like any other.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'result: out, n by 2 * p numbers\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyBlockSPV2': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'Hostarray**', 'inout', False, (), 0),
    ), (
        'int Cpp_M_CopyBlockSPV2(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, Hostarray** out);\n'
        '\n'
        'Copies a block of a chunked table.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block, at least 1\n'
        'lastCol: last column of the block, at most cols; below firstCol nothing is done\n'
        'out: inout, host array of a record for each column of the block, each with a numeric column of as many numbers as the block has rows\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyBlockSPV2_T': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'Hostarray**', 'inout', False, (), 0),
    ), (
        'int Cpp_M_CopyBlockSPV2_T(Hostarray** x, int n, int firstRow, int lastRow, int firstCol, int lastCol, Hostarray** out);\n'
        '\n'
        'Copies a block of a symmetric table, of which each column is held from the diagonal down.\n'
        '\n'
        'x: in, host array of n records, each with a numeric column: of n numbers the first, and of one less each next\n'
        'n: order of the table\n'
        'firstRow: first row of the block, at least 1\n'
        'lastRow: last row of the block, at most n; below firstRow nothing is done\n'
        'firstCol: first column of the block, at least 1\n'
        'lastCol: last column of the block, at most n; below firstCol nothing is done\n'
        'out: inout, host array of a record for each column of the block, each with a numeric column of as many numbers as the block has rows\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyPasteBlock': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CopyPasteBlock(const double* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, double* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a block of a table of numbers to a place in another, which may be the same. What would fall outside\n'
        'of it is left out.\n'
        '\n'
        'x: in, rows by cols numbers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block\n'
        'lastCol: last column of the block; below firstCol nothing is done\n'
        'y: inout, yRows by yCols numbers\n'
        'yRows: rows of the other table\n'
        'yCols: columns of the other table; 0 stands for 1\n'
        'row: its row for the first row of the block\n'
        'col: its column for the first column of the block\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyPasteBlockSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('y', 'Hostarray**', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CopyPasteBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, Hostarray** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a block of a chunked table to a place in another.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block, at least 1\n'
        'lastCol: last column of the block, at most cols; below firstCol nothing is done\n'
        'y: inout, host array of yCols records, each with a numeric column of yRows numbers; another than x\n'
        'yRows: rows of the other table; what would fall below is left out\n'
        'yCols: columns of the other table; all columns of the block must fall among them\n'
        'row: its row for the first row of the block\n'
        'col: its column for the first column of the block\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyPasteBlockStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('y', 'OLECHAR**', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CopyPasteBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, OLECHAR** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a block of a table of texts to a place in another, which may be the same. What would fall outside of\n'
        'it is left out.\n'
        '\n'
        'x: in, rows by cols texts; cells outside of them read as the empty text\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block\n'
        'lastCol: last column of the block; below firstCol nothing is done\n'
        'y: inout, yRows by yCols texts\n'
        'yRows: rows of the other table\n'
        'yCols: columns of the other table; 0 stands for 1\n'
        'row: its row for the first row of the block\n'
        'col: its column for the first column of the block\n'
        'returns 0\n'
    )),
    'Cpp_M_CopySymMatToVector': ('int', (
        ('x', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('v', 'double*', 'out', False, (('n * (n + 1) / 2', '1', None),), 0),
    ), (
        'int Cpp_M_CopySymMatToVector(const double* x, int n, double* v);\n'
        '\n'
        'Packs a symmetric table: its lower triangle row after row.\n'
        '\n'
        'x: in, n by n numbers; the upper half is not read\n'
        'n: order\n'
        'v: out, n * (n + 1) / 2 numbers: cell (i, j) with j <= i at place i(i - 1)/2 + j, from 1; may be x\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyTabletoVectorByRowDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('v', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_CopyTabletoVectorByRowDbl(const double* x, int rows, int cols, double* v);\n'
        '\n'
        'The rows of a table one after the other, as a vector.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'v: out, rows by cols numbers; may be x\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyTabletoVectorByRowStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('v', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_CopyTabletoVectorByRowStr(OLECHAR* const* x, int rows, int cols, OLECHAR** v);\n'
        '\n'
        'The rows of a table one after the other, as a vector.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'v: inout, rows by cols texts, replaced where they differ; may be x\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyVectorToSymMat': ('int', (
        ('v', 'double*', 'in', False, (('n * (n + 1) / 2', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('x', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_CopyVectorToSymMat(const double* v, int n, double* x);\n'
        '\n'
        'Unpacks a vector that holds a triangle row after row into both halves of a table.\n'
        '\n'
        'v: in, n * (n + 1) / 2 numbers\n'
        'n: order\n'
        'x: out, n by n numbers; may be v\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyVectortoTableByRowDbl': ('int', (
        ('v', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('x', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_CopyVectortoTableByRowDbl(const double* v, int rows, int cols, double* x);\n'
        '\n'
        'A vector cut into the rows of a table.\n'
        '\n'
        'v: in, rows by cols numbers, row after row\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'x: out, rows by cols numbers; may be v\n'
        'returns 0\n'
    )),
    'Cpp_M_CopyVectortoTableByRowStr': ('int', (
        ('v', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_CopyVectortoTableByRowStr(OLECHAR* const* v, int rows, int cols, OLECHAR** x);\n'
        '\n'
        'A vector cut into the rows of a table.\n'
        '\n'
        'v: in, rows by cols texts, row after row\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'x: inout, rows by cols texts, replaced where they differ; may be v\n'
        'returns 0\n'
    )),
    'Cpp_M_CorrMatFromCovMatSPV2_T': ('int', (
        ('table', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CorrMatFromCovMatSPV2_T(Hostarray** table, int n);\n'
        '\n'
        'The same in place on a symmetric table, of which each separate column starts at the diagonal; an undefined\n'
        'cell is missing.\n'
        '\n'
        'table: inout, host array of n columns of numbers, column j holding n - j + 1 of them\n'
        'n: order\n'
        'returns 0\n'
    )),
    'Cpp_M_CorrMatFromSymMat': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CorrMatFromSymMat(double* x, int n);\n'
        '\n'
        'Replaces a symmetric table by the nearest correlation matrix, by alternating projections (Higham, IMA\n'
        'Journal of Numerical Analysis 22, 2002): cells are right to about 1e-6. A table that is a correlation\n'
        'matrix already is left as it is. There is no limit to the number of steps.\n'
        '\n'
        "x: inout, n by n numbers; of each step's table only the lower triangle is used\n"
        'n: rows and columns\n'
        'returns 0; -1 when a cell is missing, and then nothing is changed\n'
    )),
    'Cpp_M_CorrMatFromSymMatSPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CorrMatFromSymMatSPV(Hostarray** x, int n);\n'
        '\n'
        'The same for a table of separate columns.\n'
        '\n'
        'x: inout, host array of n columns of n numbers\n'
        'n: rows and columns\n'
        'returns 0; -1 when a cell is missing, and then nothing is changed\n'
    )),
    'Cpp_M_CorrMatFromSymMatSPV_T': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CorrMatFromSymMatSPV_T(Hostarray** x, int n);\n'
        '\n'
        'The same for a table of which each separate column starts at the diagonal.\n'
        '\n'
        'x: inout, host array of n columns of numbers, column j holding n - j + 1 of them\n'
        'n: rows and columns\n'
        'returns 0; -1 when a cell is missing, and then nothing is changed\n'
    )),
    'Cpp_M_CovCorr_ST': ('int', (
        ('x', 'ST_MVect*', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'ST_MVect*', 'inout', False, (), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_CovCorr_ST(ST_MVect* x, int rows, int cols, ST_MVect* out, short int bCorr, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq, short int bUndefinedIsZero);\n'
        '\n'
        'VB_M_CovCorr on a labelled table.\n'
        '\n'
        'x: in, labelled table of numbers, rows by cols\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: inout, labelled table of numbers whose columns receive cols by cols; its counts stay\n'
        'bCorr: not 0: correlations\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bUndefinedIsZero: what an undefined cell is; true unless 0\n'
        'returns 0\n'
    )),
    'Cpp_M_CovMatFromCorrMat': ('int', (
        ('corr', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('vars', 'double*', 'in', False, (('n', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_CovMatFromCorrMat(const double* corr, int n, const double* vars, double* out);\n'
        '\n'
        'Covariances from correlations: each cell times the root of the product of two variances, of which nothing\n'
        'is tested.\n'
        '\n'
        'corr: in, n by n correlations\n'
        'n: order\n'
        'vars: in, n variances\n'
        'out: out, n by n covariances\n'
        'returns 0\n'
    )),
    'Cpp_M_CovMatFromSymMat': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_CovMatFromSymMat(double* x, int n);\n'
        '\n'
        'Replaces a symmetric table by a covariance table with the same variances: its correlations, those of a\n'
        'variance that is not above 0 being 0.0, become the nearest correlation matrix, and are multiplied with the\n'
        'roots of the variances again. A negative variance becomes positive, and its covariances with positive ones\n'
        'are NaN.\n'
        '\n'
        'x: inout, n by n numbers\n'
        'n: rows and columns\n'
        'returns 0; -1 when a cell is missing, and then nothing is changed\n'
    )),
    'Cpp_M_DeterminantCleanedSPV_T': ('double', (
        ('a', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('status', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double Cpp_M_DeterminantCleanedSPV_T(Hostarray** a, int n, const int* constraints, short int* status);\n'
        '\n'
        'The determinant of the free rows and columns of a symmetric table, held as a triangle.\n'
        '\n'
        'a: in, host array of n columns of numbers; column j runs from the diagonal down\n'
        'n: rows and columns\n'
        'constraints: in, n integers\n'
        'status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above 709, or memory is short; 1: all of the first column is NaN\n'
        'returns the determinant, as VB_M_Determinant returns it; 1.0 when no position is left\n'
    )),
    'Cpp_M_DuplicateDblSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateDblSPV(Hostarray** x, int rows, int cols, double* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a chunked table into a dense one.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, yRows by yCols numbers\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateDblSPV2': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'Hostarray**', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateDblSPV2(const double* x, int rows, int cols, Hostarray** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a dense table into a chunked one.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'y: inout, host array of yCols records, each with a numeric column of yRows numbers\n'
        'yRows: rows of y\n'
        'yCols: columns of y\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateDblSPV2_T': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'Hostarray**', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateDblSPV2_T(const double* x, int rows, int cols, Hostarray** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a dense table into a triangle, of which each column is held from the diagonal down. What would fall\n'
        'above\n'
        'the diagonal is left out.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'y: inout, host array of yCols records, each with a numeric column: of yRows numbers the first, and of one less each next\n'
        'yRows: rows of y\n'
        'yCols: columns of y\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateDblSPV3': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'Hostarray**', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateDblSPV3(Hostarray** x, int rows, int cols, Hostarray** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a chunked table into another.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, host array of yCols records, each with a numeric column of yRows numbers; another than x\n'
        'yRows: rows of y\n'
        'yCols: columns of y\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateDbl_ST': ('int', (
        ('x', 'ST_MVect*', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'ST_MVect*', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateDbl_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a table of labelled columns of numbers into another. Columns that either does not have are left out.\n'
        '\n'
        'x: in, the record, with columns of numbers; an element that a column does not have reads as -1\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, another record; elements for which a column has no room are left out\n'
        'yRows: rows of y\n'
        'yCols: columns of y\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateMVDblTriang_ST': ('int', (
        ('src', 'ST_MVect*', 'in', False, (), 0),
        ('dst', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_DuplicateMVDblTriang_ST(ST_MVect* src, ST_MVect* dst);\n'
        '\n'
        'Copies a triangle from one labelled table to another: the first j elements of column j, for j from 1 to the\n'
        'smaller number of columns.\n'
        '\n'
        'src: in, labelled table of Double; an element that a column does not have counts as -1\n'
        'dst: inout, labelled table of Double that receives the elements, as far as its columns have room\n'
        'returns 0\n'
    )),
    'Cpp_M_DuplicateStr_ST': ('int', (
        ('x', 'ST_MVect*', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'ST_MVect*', 'inout', False, (), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_DuplicateStr_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a table of labelled columns of texts into another. Columns that either does not have are left out.\n'
        '\n'
        'x: in, the record, with columns of texts; an element that a column does not have reads as the empty text\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, another record; elements for which a column has no room are left out\n'
        'yRows: rows of y\n'
        'yCols: columns of y\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'Cpp_M_EigenSPV_T': ('int', (
        ('a', 'Hostarray**', 'in', False, (), 0),
        ('values', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('vectors', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('sortFlag', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_EigenSPV_T(Hostarray** a, double* values, Hostarray** vectors, int n, short int sortFlag);\n'
        '\n'
        'Eigenvalues and eigenvectors of a symmetric table, of which each column is held from the diagonal down. A\n'
        'value may take 29 sweeps, one more than elsewhere.\n'
        '\n'
        'a: in, host array of n records, each with a numeric column: of n numbers the first, and of one less each next\n'
        'values: inout, n eigenvalues; as they were when an element is missing, without meaning when a value did not converge\n'
        'vectors: inout, host array of n records, each with a numeric column of n numbers, which become eigenvector k in column k; as for values\n'
        'n: order\n'
        'sortFlag: true only when -1: the values descend, and equal ones keep their order. Otherwise they stand in the order in which they were found\n'
        'returns 0; -1 when an element is missing or a value did not converge\n'
    )),
    'Cpp_M_EuclidDistToVector': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('v', 'double*', 'in', False, (('rows', '1', None), ('cols', '1', ('bRows', -1))), 0),
        ('bRows', 'short int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None), ('rows', '1', ('bRows', -1))), 0),
    ), (
        'int Cpp_M_EuclidDistToVector(const double* x, int rows, int cols, const double* v, short int bRows, double* out);\n'
        '\n'
        'The root mean square difference of each column, or row, from a vector, over the coordinates in which both\n'
        'are greater than the missing value, so that a NaN is not kept.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'v: in, rows numbers, or cols numbers when bRows is -1\n'
        'bRows: -1: of each row; otherwise of each column\n'
        'out: out, cols distances, or rows distances when bRows is -1; missing where no coordinate is kept\n'
        'returns 0\n'
    )),
    'Cpp_M_ForwardDoolittle': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('h', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_ForwardDoolittle(const double* a, int n, double* h);\n'
        '\n'
        'Forward Doolittle reduction of a symmetric table.\n'
        '\n'
        'a: in, n by n numbers, column after column, of which the upper triangle is read\n'
        'n: rows and columns; below 1 nothing is done\n'
        'h: out, n by n numbers; may be the array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_GetMaxDistToOrigin': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('d', 'double*', 'out', False, (('1', '1', None),), 0),
        ('row', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_GetMaxDistToOrigin(const double* x, int rows, int cols, double* d, int* row);\n'
        '\n'
        'The row that lies farthest from the origin.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        "d: out, one number: the largest root of a row's sum of squares; missing without rows\n"
        'row: out, one integer: the number of the first such row, from 1; 0 without rows\n'
        'returns 0\n'
    )),
    'Cpp_M_GetMissingDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('iMissingOut', 'short int*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_GetMissingDbl(const double* x, int rows, int cols, const short int* iMissing, short int* iMissingOut);\n'
        '\n'
        'Flags the rows of a table that have a missing number, one at or below the missing one.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'iMissing: in, rows flags, one for each row, -1 for one that is left out; null: none is\n'
        'iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing, otherwise 0; it may be iMissing\n'
        'returns 0\n'
    )),
    'Cpp_M_GetMissingDblSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('iMissingOut', 'short int*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_GetMissingDblSPV(Hostarray** x, int rows, int cols, const short int* iMissing, short int* iMissingOut);\n'
        '\n'
        'The same for a chunked table of numbers.\n'
        '\n'
        'x: in, cols columns of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'iMissing: in, rows flags, one for each row, -1 for one that is left out; null: none is\n'
        'iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing, otherwise 0; it may be iMissing\n'
        'returns 0\n'
    )),
    'Cpp_M_GetMissingStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('iMissingOut', 'short int*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_GetMissingStr(OLECHAR* const* x, int rows, int cols, const short int* iMissing, short int* iMissingOut);\n'
        '\n'
        'The same for texts, which are missing when empty.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'iMissing: in, rows flags, one for each row, -1 for one that is left out; null: none is\n'
        'iMissingOut: out, rows flags, one for each row: -1 when its flag is -1 or a cell of it is missing, otherwise 0; it may be iMissing\n'
        'returns 0\n'
    )),
    'Cpp_M_HermiteCanonical': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('h', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_HermiteCanonical(const double* a, int n, double* h);\n'
        '\n'
        'Hermite canonical form of a symmetric table.\n'
        '\n'
        'a: in, n by n numbers, column after column, of which the upper triangle is read\n'
        'n: rows and columns; below 1 nothing is done\n'
        'h: out, n by n numbers; may be the array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_IdentifyMissingInMat': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('marks', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_IdentifyMissingInMat(const double* x, int rows, int cols, int* marks);\n'
        '\n'
        'Marks the missing numbers of a table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'marks: inout, rows by cols integers: 1 where the number is missing; the others stay\n'
        'returns 0\n'
    )),
    'Cpp_M_IdentifyMissingInMatSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('marks', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_IdentifyMissingInMatSPV(Hostarray** x, int rows, int cols, int* marks);\n'
        '\n'
        'Marks the missing numbers of a chunked table.\n'
        '\n'
        'x: in, cols columns of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'marks: inout, rows by cols integers: 1 where the number is missing; the others stay\n'
        'returns 0\n'
    )),
    'Cpp_M_InfoQuali3': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('width', 'int', '', False, (), 0),
        ('count', 'int', '', False, (('number', '1', None),), 0),
        ('modes', 'OLECHAR**', 'out', False, (('p', '1', None),), 0),
        ('modeFrequencies', 'double*', 'out', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'out', False, (('p', 'width', None),), 0),
        ('frequencies', 'double*', 'out', False, (('p', 'width', None),), 0),
        ('weightedFrequencies', 'double*', 'out', False, (('p', 'width', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('total', 'int*', 'out', False, (('1', '1', None),), 0),
        ('sort', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_InfoQuali3(OLECHAR* const* data, int n, int p, int width, int count, OLECHAR** modes, double* modeFrequencies, OLECHAR** categories, double* frequencies, double* weightedFrequencies, const double* weights, int* total, short int sort);\n'
        '\n'
        'The categories of variables that all have the same number of them. The mode is that of the numbers of rows.\n'
        'It is looked for among the first `count` slots of each variable, and so many are sorted, whatever the\n'
        'variable has: empty slots come before all names.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'width: columns of the tables\n'
        'count: number of categories of every variable\n'
        'modes: out, p texts: the mode of each variable\n'
        'modeFrequencies: out, p numbers: its number of rows\n'
        'categories: out, p by width texts: the names\n'
        'frequencies: out, p by width numbers: the numbers of rows\n'
        'weightedFrequencies: out, p by width numbers: the sums of the weights\n'
        'weights: in, n weights\n'
        'total: out, one integer: p times count\n'
        'sort: -1: the categories are sorted\n'
        'returns 0\n'
    )),
    'Cpp_M_InfoQuali3_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('weights', 'double*', 'in', True, (('data.nbrowsmax', '1', None),), 0),
        ('info', 'ST_QualiInfo*', 'inout', False, (('category', '1', None),), 0),
    ), (
        'int Cpp_M_InfoQuali3_ST(ST_MVect* data, const double* weights, ST_QualiInfo* info);\n'
        '\n'
        'The categories of each variable of a labelled table, in order of first appearance, with their numbers of\n'
        'rows and their weights. The empty text is no category. The arrays of the record are filled as far as they\n'
        'go; none is resized.\n'
        '\n'
        'Of the record are read `withRecode`, `codeStart`, `withSort`, `noWeights` and `withLongLabels`, each of the\n'
        'flags set when it is -1. These are written:\n'
        '\n'
        '- `VarLabels`: the labels of the columns, `CLabels` of the table;\n'
        '- `NbCat`: the number of categories of each variable; 1 for a column without any, whose slots stay as they\n'
        'are;\n'
        '- `CatNames`: the text of the category; with `withLongLabels` the label of the variable, "-" and the text,\n'
        'so that each row starts a category of its own;\n'
        '- `CatFreq`: the number of rows, and `CatFreqW`: the sum of their weights, or again the number with\n'
        '`noWeights`;\n'
        '- `Codes`, with `withRecode`: `codeStart` for the first category of the variable and one more for each next\n'
        'one; missing for an empty text;\n'
        '- `Count`: the number of variables; `NbCatTotal`: the sum of `NbCat`; `FreqMax`: the largest number of rows\n'
        'of a category, unless it was larger before; `SumW`: the sum of the weights that are not missing, or the\n'
        'number of rows with `noWeights`.\n'
        '\n'
        'With `withSort` the categories of each variable are sorted as `VB_M_InfoQuali` sorts them, and the codes\n'
        'follow their categories.\n'
        '\n'
        'data: in, labelled table of texts. All columns are read down to the longest one: `nbrowsmax` rows of `nbcols`\n'
        'weights: in, data.nbrowsmax weights, a weight for each row; may be null with `noWeights`\n'
        'info: inout, category statistics: the record\n'
        'returns 0\n'
    )),
    'Cpp_M_InfoQualiNoMiss': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('modes', 'OLECHAR**', 'out', False, (('p', '1', None),), 0),
        ('modeFrequencies', 'double*', 'out', False, (('p', '1', None),), 0),
        ('categoryCounts', 'int*', 'out', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'out', False, (('p', 'n', None),), 0),
        ('frequencies', 'double*', 'out', False, (('p', 'n', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('total', 'int*', 'out', False, (('1', '1', None),), 0),
        ('sort', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_InfoQualiNoMiss(OLECHAR* const* data, int n, int p, OLECHAR** modes, double* modeFrequencies, int* categoryCounts, OLECHAR** categories, double* frequencies, const double* weights, int* total, short int sort);\n'
        '\n'
        'The same function under the name that sibling modules know.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'modes: out, p texts: the mode of each variable\n'
        'modeFrequencies: out, p numbers: its frequency\n'
        'categoryCounts: out, p integers: the number of categories\n'
        'categories: out, p by n texts: the names\n'
        'frequencies: out, p by n numbers: the frequencies\n'
        'weights: in, n weights\n'
        'total: out, one integer: the sum of the numbers of categories\n'
        'sort: -1: the categories are sorted\n'
        'returns 0\n'
    )),
    'Cpp_M_InfoQualiValid_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('reference', 'ST_QualiInfo*', 'in', False, (('category', '1', None),), 0),
        ('result', 'ST_QualiInfo*', 'inout', False, (('category', '1', None),), 0),
        ('newCategoryFound', 'short int*', 'out', False, (('1', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_M_InfoQualiValid_ST(ST_MVect* data, int n, int p, ST_QualiInfo* reference, ST_QualiInfo* result, short int* newCategoryFound, const double* weights);\n'
        '\n'
        'Counts the rows of each category on records. A text that is no known category is passed over when\n'
        '`IgnoreNewCategoryInPred` of the result is not 0.\n'
        '\n'
        'data: in, labelled table of texts, n by p\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'reference: in, category statistics that have the known categories: `NbCat` and `CatNames`\n'
        'result: inout, category statistics: `CatFreq` receives the number of rows of each, `CatFreqW` the sum of their weights; all slots of the p variables are cleared first\n'
        'newCategoryFound: out, one flag: -1 when a text that is no known category ended the function, otherwise 0\n'
        'weights: in, n weights\n'
        'returns 0\n'
    )),
    'Cpp_M_InsertMissingDbl': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('flags', 'short int*', 'in', False, (('n + m', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('result', 'double*', 'out', False, (('n + m', 'p', None),), 0),
    ), (
        'int Cpp_M_InsertMissingDbl(const double* x, int n, int p, const short int* flags, int m, double* result);\n'
        '\n'
        'Spreads the rows of a table, with rows of missing numbers between them.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'flags: in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one that is all missing\n'
        'm: how many rows the result is longer\n'
        'result: out, n + m by p numbers\n'
        'returns 0\n'
    )),
    'Cpp_M_InsertMissingLng': ('int', (
        ('x', 'int*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('flags', 'short int*', 'in', False, (('n + m', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('result', 'int*', 'out', False, (('n + m', 'p', None),), 0),
    ), (
        'int Cpp_M_InsertMissingLng(const int* x, int n, int p, const short int* flags, int m, int* result);\n'
        '\n'
        'The same for integers; the missing one is -2147483648.\n'
        '\n'
        'x: in, n by p integers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'flags: in, n + m flags: 0 for a row that takes the next one of the table, otherwise for one that is all missing\n'
        'm: how many rows the result is longer\n'
        'result: out, n + m by p integers\n'
        'returns 0\n'
    )),
    'Cpp_M_Inverse': ('int', (
        ('flags', 'short int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_Inverse(short int* flags, int rows, int cols);\n'
        '\n'
        'Logical inversion of a table of flags in place: 0 becomes 1, and anything else becomes 0.\n'
        '\n'
        'flags: inout, rows by cols flags, column after column\n'
        'rows: rows; below 1 nothing is done\n'
        'cols: columns; below 1 nothing is done\n'
        'returns 0\n'
    )),
    'Cpp_M_InverseG2': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('tolerance', 'double', '', False, (('a', '1', None),), 0),
        ('g', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_InverseG2(const double* a, int n, double tolerance, double* g);\n'
        '\n'
        'Generalised inverse of a square table by sweeping.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns; below 1 nothing is done\n'
        'tolerance: a pivot is passed over when its magnitude is below it\n'
        'g: out, n by n numbers; may be the array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_InverseG2Selective': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('selected', 'int*', 'in', False, (('n', '1', None),), 0),
        ('tolerance', 'double', '', False, (('a', '1', None),), 0),
        ('g', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('zeroOthers', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_InverseG2Selective(const double* a, int n, const int* selected, double tolerance, double* g, short int zeroOthers);\n'
        '\n'
        'Generalised inverse of a square table by sweeping some of its pivots.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns; below 1 nothing is done\n'
        'selected: in, n numbers; a pivot is swept where the number is 1\n'
        'tolerance: a pivot is passed over when its magnitude is below it\n'
        'g: out, n by n numbers; may be the array that is read\n'
        'zeroOthers: true only when -1: row and column of a pivot that is not selected become 0 when its turn comes. Otherwise they stay as they are then\n'
        'returns 0\n'
    )),
    'Cpp_M_InverseG2_ST': ('int', (
        ('a', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('tolerance', 'double', '', False, (('a', '1', None),), 0),
        ('g', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_InverseG2_ST(ST_MVect* a, int n, double tolerance, ST_MVect* g);\n'
        '\n'
        'Generalised inverse of a labelled table by sweeping. No column is resized: an element past the end of a\n'
        'column reads as -1 and is not stored.\n'
        '\n'
        'a: in, labelled table of numbers, n by n\n'
        'n: rows and columns; below 1 nothing is done\n'
        'tolerance: a pivot is passed over when its magnitude is below it\n'
        'g: inout, labelled table of numbers whose columns receive n by n; its counts stay as they are\n'
        'returns 0\n'
    )),
    'Cpp_M_IsBinaryDbl_ST': ('short int', (
        ('x', 'ST_MVect*', 'in', False, (), 0),
        ('skipMissing', 'short int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsBinaryDbl_ST(ST_MVect* x, short int skipMissing);\n'
        '\n'
        'Whether each column of a labelled table has at most two different values, as `Cpp_V_IsBinaryDbl` tells it\n'
        'of its first `Count` rows.\n'
        '\n'
        'x: in, labelled table of numbers\n'
        'skipMissing: -1: missing numbers are passed over, and at the start a NaN too; otherwise they make the result false\n'
        'returns -1 when all have, otherwise 0\n'
    )),
    'Cpp_M_IsLong_ST': ('short int', (
        ('x', 'ST_MVect*', 'in', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsLong_ST(ST_MVect* x, int rows, int cols);\n'
        '\n'
        'The same for a labelled table, as far as it has columns.\n'
        '\n'
        'x: in, table of numbers\n'
        'rows: rows to test\n'
        'cols: columns to test\n'
        'returns -1 or 0\n'
    )),
    'Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags': ('short int', (
        ('x', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(const double* x, int n);\n'
        '\n'
        'Whether some cell (i, j), i below j, of a square table is missing while the cells (i, i) and (j, j) are\n'
        'both above the missing number.\n'
        '\n'
        'x: in, n by n numbers\n'
        'n: rows of the table; below 2 the result is 0\n'
        'returns -1 or 0\n'
    )),
    'Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T': ('short int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(Hostarray** x, int n);\n'
        '\n'
        'The same for a symmetric table of which column j holds the cells from the diagonal down.\n'
        '\n'
        'x: in, n columns, the first of n numbers and each next one of a number less\n'
        'n: rows of the table; below 2 the result is 0\n'
        'returns -1 or 0\n'
    )),
    'Cpp_M_IsPositive': ('short int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('bStrict', 'short int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsPositive(const double* x, int rows, int cols, const short int* iMissing, short int bStrict);\n'
        '\n'
        'The same for a table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'iMissing: in, rows flags, one for each row; a row with a flag other than 0 is left out. Null: none is\n'
        'bStrict: not 0: a number must be above 0; 0: it may be 0\n'
        'returns -1 or 0\n'
    )),
    'Cpp_M_IsPositive_ST': ('short int', (
        ('x', 'ST_MVect*', 'in', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('bStrict', 'short int', '', False, (), 0),
    ), (
        'short int Cpp_M_IsPositive_ST(ST_MVect* x, int rows, int cols, const short int* iMissing, short int bStrict);\n'
        '\n'
        'The same for a labelled table, as far as it has columns.\n'
        '\n'
        'x: in, table of numbers\n'
        'rows: rows to test\n'
        'cols: columns to test\n'
        'iMissing: in, rows flags, one for each row; a row with a flag other than 0 is left out. Null: none is\n'
        'bStrict: not 0: a number must be above 0; 0: it may be 0\n'
        'returns -1 or 0\n'
    )),
    'Cpp_M_LogDeterminant': ('double', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'double Cpp_M_LogDeterminant(const double* a, int n);\n'
        '\n'
        'The logarithm of the determinant. A pivot of exactly 0 counts as 1e-20.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns\n'
        'returns the logarithm; the missing value when the determinant is negative or a row has only zeros\n'
    )),
    'Cpp_M_MaxPosByRow': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('positions', 'int*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_MaxPosByRow(const double* x, int rows, int cols, int* positions);\n'
        '\n'
        'The column of the largest cell of each row. Missing cells are below all others.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'positions: out, rows column numbers from 1; of equal cells the first\n'
        'returns 0\n'
    )),
    'Cpp_M_Mean2': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int Cpp_M_Mean2(const double* x, int rows, int cols, const double* w, double* means);\n'
        '\n'
        'Weighted means over the cells greater than the missing value, so that a NaN is not kept. A weight of 0 is a\n'
        'number like any other: while the weights sum to 0 the mean is a NaN, and stays one.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights\n'
        'means: out, cols means; missing for a column with nothing kept\n'
        'returns 0\n'
    )),
    'Cpp_M_Mean3': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int Cpp_M_Mean3(const double* x, int rows, int cols, double* means);\n'
        '\n'
        'Cpp_M_Mean2 with all weights 1.0.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means; missing for a column with nothing kept\n'
        'returns 0\n'
    )),
    'Cpp_M_MeanSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_MeanSPV(Hostarray** x, int rows, int cols, double* means, const double* w);\n'
        '\n'
        'VB_M_Mean on a table of separate columns.\n'
        '\n'
        'x: in, host array of cols columns of rows numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means; 0.0 for a column with nothing kept\n'
        'w: in, rows weights\n'
        'returns 0\n'
    )),
    'Cpp_M_MergeStringsByRow': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_MergeStringsByRow(OLECHAR* const* x, int rows, int cols, OLECHAR** out);\n'
        '\n'
        'Joins the cells of each row of texts, from the first column on, with nothing between them.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'out: inout, rows texts, replaced where they differ; may be x\n'
        'returns 0\n'
    )),
    'Cpp_M_MinAll': ('double', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'double Cpp_M_MinAll(const double* x, int rows, int cols);\n'
        '\n'
        'The smallest number of a table; missing numbers do not count.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'returns the number\n'
    )),
    'Cpp_M_MinIgnoreMissing_ST': ('double', (
        ('x', 'ST_MVect*', 'in', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'double Cpp_M_MinIgnoreMissing_ST(ST_MVect* x, int rows, int cols);\n'
        '\n'
        'The smallest number of a labelled table that is not missing.\n'
        '\n'
        'x: in, table of numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'returns the smallest number below 1.79769313486231e308; the missing one when there is none\n'
    )),
    'Cpp_M_NbMissingSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_NbMissingSPV(Hostarray** x, int rows, int cols);\n'
        '\n'
        'Counts the missing numbers of a chunked table.\n'
        '\n'
        'x: in, cols columns of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'returns the count\n'
    )),
    'Cpp_M_Norm2': ('double', (
        ('a', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'double Cpp_M_Norm2(const double* a, int rows, int cols);\n'
        '\n'
        'The largest singular value of a square table.\n'
        '\n'
        'a: in, rows by cols numbers, column after column; not read unless the counts are equal\n'
        'rows: rows\n'
        'cols: columns\n'
        'returns the norm; 0.0 when the counts differ; the missing value when a product of two rows is missing, or for counts of 0\n'
    )),
    'Cpp_M_ProductABTrA_ST': ('int', (
        ('a', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'ST_MVect*', 'in', False, (), 0),
        ('symmetric', 'short int', '', False, (), 0),
        ('c', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ProductABTrA_ST(ST_MVect* a, int n, int p, ST_MVect* b, short int symmetric, ST_MVect* c);\n'
        '\n'
        "Product of three labelled tables, c = a * b * a'.\n"
        '\n'
        'a: in, labelled table of numbers, n by p\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, labelled table of numbers, p by p\n'
        'symmetric: -1 promises that b is symmetric: only the lower half is summed and then mirrored. With any other value all of the product is summed\n'
        'c: inout, labelled table of numbers whose columns receive n by n; its counts become those\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductAB_ST': ('int', (
        ('a', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'ST_MVect*', 'in', False, (), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ProductAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c);\n'
        '\n'
        'Product of two labelled tables, c = a * b.\n'
        '\n'
        'a: in, labelled table of numbers, n by p\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, labelled table of numbers, p by q\n'
        'q: columns of b\n'
        'c: inout, labelled table of numbers whose columns receive n by q; its counts become those\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductATrB_ST': ('int', (
        ('a', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'ST_MVect*', 'in', False, (), 0),
        ('m', 'int', '', False, (), 0),
        ('c', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ProductATrB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int m, ST_MVect* c);\n'
        '\n'
        "Product of a labelled table and another transposed, c = a * b'.\n"
        '\n'
        'a: in, labelled table of numbers, n by p\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, labelled table of numbers, m by p\n'
        'm: rows of b\n'
        'c: inout, labelled table of numbers whose columns receive n by m; its counts become those\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductTrAALng': ('int', (
        ('a', 'int*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('c', 'int*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int Cpp_M_ProductTrAALng(const int* a, int n, int p, int* c);\n'
        '\n'
        "Product of a table of integers with itself, c = a' * a. Each product is in 32-bit arithmetic that wraps\n"
        'around, the sum in double precision, cut off to an integer; what no integer can hold gives -2147483648.\n'
        'Only the elements of the upper half are summed; each is stored in both halves.\n'
        '\n'
        'a: in, n by p integers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'c: out, p by p integers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductTrABV': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('v', 'double*', 'in', False, (('q', '1', None),), 0),
        ('y', 'double*', 'out', False, (('p', '1', None),), 0),
    ), (
        'int Cpp_M_ProductTrABV(const double* a, int n, int p, const double* b, int q, const double* v, double* y);\n'
        '\n'
        "Product of two tables and a vector, y = a' * b * v.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, n by q numbers\n'
        'q: columns of b\n'
        'v: in, q numbers\n'
        'y: out, p numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductTrAB_ST': ('int', (
        ('a', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'ST_MVect*', 'in', False, (), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ProductTrAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c);\n'
        '\n'
        "Product of a transposed labelled table and another, c = a' * b.\n"
        '\n'
        'a: in, labelled table of numbers, n by p\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, labelled table of numbers, n by q\n'
        'q: columns of b\n'
        'c: inout, labelled table of numbers whose columns receive p by q; its counts become those\n'
        'returns 0\n'
    )),
    'Cpp_M_ProductTrVSymV': ('double', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('s', 'double*', 'in', False, (('n', 'n', None),), 0),
    ), (
        'double Cpp_M_ProductTrVSymV(const double* v, int n, const double* s);\n'
        '\n'
        "The quadratic form v' * s * v of a full symmetric table: twice the sum over i below j of v(i) * v(j) * s(j,\n"
        'i), i outside, plus the sum of v(i)^2 * s(i, i).\n'
        '\n'
        'v: in, n numbers\n'
        'n: rows and columns of the table\n'
        's: in, n by n numbers, of which only the lower triangle is read\n'
        'returns the form; 0.0 for n below 1\n'
    )),
    'Cpp_M_RecodeDataWithCodes_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('codes', 'ST_MVect*', 'in', False, (), 0),
        ('codeCount', 'int', '', False, (('number', '1', None),), 0),
        ('result', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_RecodeDataWithCodes_ST(ST_MVect* data, int n, int p, ST_MVect* codes, int codeCount, ST_MVect* result);\n'
        '\n'
        'Replaces texts by others.\n'
        '\n'
        'data: in, labelled table of texts, n by p\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'codes: in, labelled table of two columns: the texts to look for, and what replaces them; of equal ones the first counts\n'
        'codeCount: number of texts to look for; below 1 the result is left alone\n'
        'result: inout, labelled table of texts whose columns receive n by p texts; one that is not looked for stays\n'
        'returns 0\n'
    )),
    'Cpp_M_RemoveRowsStr2': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('first', 'int', '', False, (), 0),
        ('last', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_RemoveRowsStr2(OLECHAR** x, int rows, int cols, int first, int last);\n'
        '\n'
        'Takes a run of rows out of a table of texts in place: those below it move up. The table keeps its shape,\n'
        'and the rows that become free at the bottom keep their texts.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'first: first row of the run; one below 1 counts as 1\n'
        'last: last row of the run; one above rows counts as rows. Below first, nothing happens\n'
        'returns 0\n'
    )),
    'Cpp_M_RemoveRowsWithMissing2': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('flags', 'short int*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_M_RemoveRowsWithMissing2(double* x, int n, int p, const short int* flags);\n'
        '\n'
        'Takes the flagged rows out in place: those below move up, and the rows that become free stay as they were.\n'
        '\n'
        'x: inout, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'flags: in, n flags, one for each row; not 0: the row is taken out\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceByMissing': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('marks', 'int*', 'in', False, (('n', 'markColumns', None),), 0),
        ('markColumns', 'int', '', False, (), 1),
        ('wholeRow', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_ReplaceByMissing(double* x, int n, int p, const int* marks, int markColumns, short int wholeRow);\n'
        '\n'
        'Makes cells missing where a table of marks has a 1.\n'
        '\n'
        'x: inout, n by p numbers\n'
        'n: rows of both tables\n'
        'p: columns of the table; 0 stands for 1\n'
        'marks: in, n by markColumns integers\n'
        'markColumns: columns of the marks; 0 stands for 1\n'
        'wholeRow: -1: all cells of a row with a mark become missing; otherwise only the cell in the same column\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceByMissingIfVal': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('marks', 'int*', 'in', False, (('n', 'markColumns', None),), 0),
        ('markColumns', 'int', '', False, (), 1),
        ('value', 'int', '', False, (), 0),
        ('wholeRow', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_ReplaceByMissingIfVal(double* x, int n, int p, const int* marks, int markColumns, int value, short int wholeRow);\n'
        '\n'
        'Makes cells missing where a table of marks has a value.\n'
        '\n'
        'x: inout, n by p numbers\n'
        'n: rows of both tables\n'
        'p: columns of the table; 0 stands for 1\n'
        'marks: in, n by markColumns integers\n'
        'markColumns: columns of the marks; 0 stands for 1\n'
        'value: the mark\n'
        'wholeRow: -1: all cells of a row with a mark become missing; otherwise only the cell in the same column\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceCatByCodes': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('result', 'double*', 'inout', False, (('n', 'p', None),), 0),
    ), (
        'int Cpp_M_ReplaceCatByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts, OLECHAR* const* categories, double* result);\n'
        '\n'
        'The code of each text, from 1 on. Of equal names the first counts. A text that is no category leaves its\n'
        'place in the result as it was.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'result: inout, n by p numbers: the codes\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceCatByCodes_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('result', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ReplaceCatByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts, OLECHAR* const* categories, ST_MVect* result);\n'
        '\n'
        'The same from a labelled table into another one.\n'
        '\n'
        'data: in, labelled table of texts, n by p\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'result: inout, labelled table of numbers whose columns receive n by p codes\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceMissingByStr_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('val', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_ReplaceMissingByStr_ST(ST_MVect* x, int rows, int cols, const OLECHAR* val);\n'
        '\n'
        'Replaces the empty texts of a labelled table, as far as it has columns.\n'
        '\n'
        'x: inout, table of texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'val: in, one text: what an empty one becomes\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceMissingByVal_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'int Cpp_M_ReplaceMissingByVal_ST(ST_MVect* x, int rows, int cols, double val);\n'
        '\n'
        'Replaces the missing numbers of a labelled table, as far as it has columns.\n'
        '\n'
        'x: inout, table of numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'val: what a missing number becomes\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceStrByCodesSPV': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('rowFlags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('firstCode', 'int', '', False, (), 0),
        ('result', 'Hostarray**', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ReplaceStrByCodesSPV(OLECHAR* const* data, int n, int p, const int* categoryCounts, OLECHAR* const* categories, const short int* rowFlags, int firstCode, Hostarray** result);\n'
        '\n'
        'The same into a chunked table.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'rowFlags: in, n flags: not 0 leaves a row out\n'
        'firstCode: the code of a first category\n'
        'result: inout, p columns that each receive n codes\n'
        'returns 0\n'
    )),
    'Cpp_M_ReplaceStrByCodes_ST': ('int', (
        ('data', 'ST_MVect*', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('rowFlags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('firstCode', 'int', '', False, (), 0),
        ('result', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_ReplaceStrByCodes_ST(ST_MVect* data, int n, int p, const int* categoryCounts, OLECHAR* const* categories, const short int* rowFlags, int firstCode, ST_MVect* result);\n'
        '\n'
        'The same from a labelled table into another one.\n'
        '\n'
        'data: in, labelled table of texts, n by p\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'rowFlags: in, n flags: not 0 leaves a row out\n'
        'firstCode: the code of a first category\n'
        'result: inout, labelled table of numbers whose columns receive n by p codes\n'
        'returns 0\n'
    )),
    'Cpp_M_RowSumNorm': ('double', (
        ('a', 'double*', 'in', False, (('n', 'm', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('m', 'int', '', False, (), 0),
    ), (
        'double Cpp_M_RowSumNorm(const double* a, int n, int m);\n'
        '\n'
        'The row sum norm: the largest sum of magnitudes of a row. Only cells greater than the missing value are\n'
        'added, so that missing ones, -infinity and NaN are not.\n'
        '\n'
        'a: in, n by m cells\n'
        'n: rows\n'
        'm: columns\n'
        'returns the norm; 0.0 for n below 1\n'
    )),
    'Cpp_M_SamplingRandomStratifiedByStr': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('k', 'cols', None),), 0),
        ('strata', 'OLECHAR**', 'in', False, (('rows', '1', None),), 0),
        ('selected', 'double*', 'inout', False, (('k', '1', None),), 0),
        ('counts', 'double*', 'in', False, (('nCounts', '1', None),), 0),
        ('nCounts', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_SamplingRandomStratifiedByStr(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample, OLECHAR* const* strata, double* selected, const double* counts, int nCounts, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Simple random sample with replacement from each stratum, a stratum being the rows of one label.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the whole sample\n'
        'sample: inout, k by cols texts: stratum after stratum in ascending order of the labels\n'
        'strata: in, rows labels\n'
        'selected: inout, k numbers: the row number of each row of the sample\n'
        'counts: in, nCounts numbers: the size of the sample from each stratum, truncated\n'
        'nCounts: number of strata\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_M_SetBooleanIfLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('value', 'int', '', False, (), 0),
        ('flags', 'short int*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_SetBooleanIfLng(const int* x, int rows, int cols, int value, short int* flags);\n'
        '\n'
        'Flags the cells of a table that equal a number.\n'
        '\n'
        'x: in, rows by cols integers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables; 0 stands for 1\n'
        'value: the number; the missing integer is one like the others\n'
        'flags: out, rows by cols flags: -1 where the cell equals value, otherwise 0\n'
        'returns 0\n'
    )),
    'Cpp_M_ShuffleDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_ShuffleDbl(const double* x, int rows, int cols, double* out, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles the rows of a table of numbers into another table; the columns of a row stay together.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'out: out, rows by cols numbers; may be x\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_M_ShuffleDbl2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_ShuffleDbl2(double* x, int rows, int cols, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles the rows of a table of numbers in place; the columns of a row stay together.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_M_ShuffleStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_ShuffleStr(OLECHAR* const* x, int rows, int cols, OLECHAR** out, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles the rows of a table of texts into another table; the columns of a row stay together.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'out: inout, rows by cols texts, replaced where they differ; may be x\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_M_ShuffleStr2': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_M_ShuffleStr2(OLECHAR** x, int rows, int cols, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles the rows of a table of texts in place; the columns of a row stay together.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_M_SquareRoot': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('r', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_M_SquareRoot(const double* a, int n, double* r);\n'
        '\n'
        "A root r with r' * r = a, from the eigenvalues and eigenvectors of a. It is not symmetric. An eigenvalue\n"
        'between -1e-12 and 0 counts as 0.\n'
        '\n'
        'a: in, n by n numbers, column after column; of the symmetric table the lower half counts\n'
        'n: rows and columns\n'
        'r: out, n by n numbers, column after column; stays as it is unless 0 is returned. May be the array that is read\n'
        'returns 0; -1: an eigenvalue is -1e-12 or below, a cell is missing, or there is no convergence; -2: an eigenvector has no length\n'
    )),
    'Cpp_M_SquareRootAij': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_M_SquareRootAij(const double* x, int rows, int cols, double* y);\n'
        '\n'
        'Square roots.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables; 0 stands for 1\n'
        'y: out, rows by cols numbers, missing for a cell below 0 and for a missing one; may be x\n'
        'returns 0\n'
    )),
    'Cpp_M_SquareRootAij2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'int Cpp_M_SquareRootAij2(double* x, int rows, int cols);\n'
        '\n'
        'Square roots, in place.\n'
        '\n'
        'x: inout, rows by cols numbers; a cell below 0 becomes missing\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'returns 0\n'
    )),
    'Cpp_M_StandardizeApply2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'in', False, (('cols', '1', None),), 0),
    ), (
        'int Cpp_M_StandardizeApply2(double* x, int rows, int cols, const double* means, const double* sds);\n'
        '\n'
        'Standardises the columns in place by given statistics. All cells of a column become missing when its\n'
        'deviation is not greater than 0; a missing cell stays so in any case.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: in, cols means\n'
        'sds: in, cols deviations\n'
        'returns 0\n'
    )),
    'Cpp_M_StandardizeByGroup': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('groups', 'int*', 'in', False, (('rows', '1', None),), 0),
        ('nGroups', 'int', '', False, (('number', '1', None),), 0),
        ('bStandardize', 'short int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'int Cpp_M_StandardizeByGroup(double* x, int rows, int cols, const int* groups, int nGroups, short int bStandardize, short int bUnbiased);\n'
        '\n'
        'Standardises or centres each group of rows for itself, in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'groups: in, rows group codes; a row with a code that is not from 1 to nGroups stays\n'
        'nGroups: number of groups; below 1 nothing is done\n'
        'bStandardize: -1: each group is treated by VB_M_Standardize2; any other value: by VB_M_Center2\n'
        'bUnbiased: whether the denominator is the number of cells less 1; true only when -1\n'
        'returns 0\n'
    )),
    'Cpp_M_SubstractFirstCol2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int Cpp_M_SubstractFirstCol2(double* x, int rows, int cols);\n'
        '\n'
        'Subtracts the first cell of its row from each cell, in place; the first column becomes 0.\n'
        '\n'
        'x: inout, rows by cols numbers. A missing cell stays missing, and a row whose first cell is missing becomes missing\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'Cpp_M_SumBySquareCols': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int Cpp_M_SumBySquareCols(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of squares of each column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols sums\n'
        'returns 0\n'
    )),
    'Cpp_M_SumBySquareRows': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_M_SumBySquareRows(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of squares of each row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows sums\n'
        'returns 0\n'
    )),
    'Cpp_M_Sums1As2B_ST': ('int', (
        ('A', 'ST_MVect*', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('B', 'ST_MVect*', 'in', False, (), 0),
        ('a', 'double', '', False, (), 0),
        ('b', 'double', '', False, (), 0),
        ('out', 'ST_MVect*', 'inout', False, (), 0),
    ), (
        'int Cpp_M_Sums1As2B_ST(ST_MVect* A, int rows, int cols, ST_MVect* B, double a, double b, ST_MVect* out);\n'
        '\n'
        'VB_M_Sums1As2B on labelled tables.\n'
        '\n'
        'A: in, labelled table of numbers, rows by cols\n'
        'rows: rows\n'
        'cols: columns\n'
        'B: in, labelled table of numbers, rows by cols\n'
        'a: factor of A\n'
        'b: factor of B\n'
        'out: inout, labelled table of numbers whose columns receive rows by cols; its counts stay\n'
        'returns 0\n'
    )),
    'Cpp_MatToVect': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('v', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_MatToVect(const double* x, int rows, int cols, double* v);\n'
        '\n'
        'The columns of a table one below the other, as a vector.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'v: out, rows by cols numbers; may be x\n'
        'returns 0\n'
    )),
    'Cpp_MatToVect_NoMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('counts', 'double*', 'inout', False, (('p', '1', None),), 0),
        ('emptyColumns', 'double*', 'inout', False, (('1', '1', None),), 0),
        ('vector', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int Cpp_MatToVect_NoMissing(const double* x, int n, int p, double* counts, double* emptyColumns, double* vector);\n'
        '\n'
        'Strings the numbers that are not missing together, column after column.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'counts: inout, p numbers, each of which grows by the number of such cells in its column\n'
        'emptyColumns: inout, one number: grows by 1 for each column whose count is 0 then\n'
        'vector: out, n by p numbers, of which the first receive the cells\n'
        'returns 0\n'
    )),
    'Cpp_MultiplyByVal': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('s', 'double', '', False, (), 0),
    ), (
        'int Cpp_MultiplyByVal(double* x, int rows, int cols, double s);\n'
        '\n'
        'x(i, j) = x(i, j) * s. Missing cells are numbers here.\n'
        '\n'
        'x: inout, rows by cols cells\n'
        'rows: rows\n'
        'cols: columns\n'
        's: the factor\n'
        'returns 0\n'
    )),
    'Cpp_NIPALS': ('int', (
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('components', 'int', '', False, (('how', '1', None),), 0),
        ('columnShare', 'double', '', False, (), 0),
        ('tableShare', 'double', '', False, (), 0),
    ), (
        'int Cpp_NIPALS(int n, int p, double* x, const double* weights, double tolerance, int components, double columnShare, double tableShare);\n'
        '\n'
        'Fills the missing cells of a table from its principal components, found by the NIPALS iteration over the\n'
        'cells that are there. Cells are weighted and centred but not scaled. A missing cell in a row of weight 0\n'
        'becomes 0.\n'
        '\n'
        'n: rows\n'
        'p: columns; with a single one no component can be found\n'
        'x: inout, n by p numbers, column after column\n'
        'weights: in, n weights\n'
        'tolerance: the largest variance of the changes of the loadings that ends a component\n'
        'components: how many components are taken; below 1 none, so that a cell becomes the mean over the weight\n'
        'columnShare: the largest share of missing cells in a column\n'
        'tableShare: the largest share of missing cells in the table\n'
        'returns 0 when the table is complete, or was; -6 when too many cells are missing; 1 when a component cannot be found. With -6 and 1 the table is as it was\n'
    )),
    'Cpp_Random01': ('double', (
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double Cpp_Random01(int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Seeds the random source and draws one uniform number.\n'
        '\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: the source starts from the seed; 0: the sequence goes on, with the second state of the combined generator set to a tenth of the first\n'
        'nextSeed: out, one integer: a seed for the next run: the first state of the combined generator, or a further raw draw of MT19937\n'
        'returns strictly between 0 and 1 from the combined generator; from -1.0000000004656613 to 1.0 from MT19937, whose outputs count as signed. Seed 0 with a non-zero flag makes the combined generator take the clock\n'
    )),
    'Cpp_Random1toNDbl': ('int', (
        ('out', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bReset', 'short int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int*', 'inout', False, (('1', '1', None),), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_Random1toNDbl(double* out, int n, short int bReset, int* seed, short int* flag, int* nextSeed);\n'
        '\n'
        'Random permutation of the numbers 1 to n.\n'
        '\n'
        'out: inout, n numbers\n'
        'n: number of elements; below 2 nothing is drawn\n'
        'bReset: -1: start from 1 to n in order, as is also done when the first element is 0. Otherwise what out holds is shuffled\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: inout, one flag: 0 when no seed is given, and then set to -1\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_Random1toNLong': ('int', (
        ('out', 'int*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bReset', 'short int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int*', 'inout', False, (('1', '1', None),), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_Random1toNLong(int* out, int n, short int bReset, int* seed, short int* flag, int* nextSeed);\n'
        '\n'
        'Random permutation of the integers 1 to n.\n'
        '\n'
        'out: inout, n integers\n'
        'n: number of elements; below 2 nothing is drawn\n'
        'bReset: -1: start from 1 to n in order, as is also done when the first element is 0. Otherwise what out holds is shuffled\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: inout, one flag: 0 when no seed is given, and then set to -1\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_RandomAtoBDbl': ('int', (
        ('out', 'double*', 'inout', False, (('b - a - 1', '1', None),), 0),
        ('a', 'int', '', False, (), 0),
        ('b', 'int', '', False, (), 0),
        ('bReset', 'short int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int*', 'inout', False, (('1', '1', None),), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_RandomAtoBDbl(double* out, int a, int b, short int bReset, int* seed, short int* flag, int* nextSeed);\n'
        '\n'
        'Random permutation of the numbers from a to b in steps of 1, of which the array gets all but the last two.\n'
        '\n'
        'out: inout, b - a - 1 numbers, the first ones of the b - a + 1 that are permuted; a single one when a equals b\n'
        'a: the smallest number\n'
        'b: the largest number\n'
        'bReset: -1: start from a to b in order, as is also done when the first element is 0. Otherwise what out holds is shuffled, and a - 1 added to it\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: inout, one flag: 0 when no seed is given, and then set to -1\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_RandomAtoBLng': ('int', (
        ('out', 'int*', 'inout', False, (('b - a - 1', '1', None),), 0),
        ('a', 'int', '', False, (), 0),
        ('b', 'int', '', False, (), 0),
        ('bReset', 'short int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int*', 'inout', False, (('1', '1', None),), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_RandomAtoBLng(int* out, int a, int b, short int bReset, int* seed, short int* flag, int* nextSeed);\n'
        '\n'
        'Random permutation of the integers from a to b, of which the array gets all but the last two.\n'
        '\n'
        'out: inout, b - a - 1 integers, the first ones of the b - a + 1 that are permuted; a single one when a equals b\n'
        'a: the smallest integer\n'
        'b: the largest integer\n'
        'bReset: -1: start from a to b in order, as is also done when the first element is 0. Otherwise what out holds is shuffled, and a - 1 added to it\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: inout, one flag: 0 when no seed is given, and then set to -1\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_ReOrderCorrelations': ('int', (
        ('corr', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('method', 'int', '', False, (), 0),
        ('labels', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('pValues', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('flags', 'int*', 'inout', False, (('n', 'n', None),), 0),
    ), (
        'int Cpp_ReOrderCorrelations(double* corr, int n, int method, OLECHAR** labels, double* pValues, int* flags);\n'
        '\n'
        'Sorts the variables of a correlation table by a key of each, from the largest down; equal keys keep their\n'
        'order. The diagonal is set to 1.0 first. The keys of methods 1 and 2 are taken from the first row for all\n'
        'variables, and only that of variable 1 leaves the diagonal out.\n'
        '\n'
        'corr: inout, n by n numbers; not symmetric ones come back transposed\n'
        'n: number of variables\n'
        'method: 1: the key is the largest cell; 2: the variance of the cells; 3: the cell of the first eigenvector, unless a cell is missing; any other number: the order stays\n'
        'labels: inout, n texts\n'
        'pValues: inout, n by n numbers, which move along\n'
        'flags: inout, n by n integers, which move along\n'
        'returns 0\n'
    )),
    'Cpp_RemoveRowsWithMissingOniMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('result', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int Cpp_RemoveRowsWithMissingOniMissing(const double* x, int n, int p, const short int* iMissing, double* result);\n'
        '\n'
        'Copies a table without the flagged rows, and tells how many stay.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'iMissing: in, n flags, one for each row; not 0: the row is taken out\n'
        'result: out, n by p numbers, of which as many rows as stay, by p, are written; it may be x\n'
        'returns how many rows stay\n'
    )),
    'Cpp_RemoveRowsWithMissingOniMissingStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('result', 'OLECHAR**', 'inout', False, (('n', 'p', None),), 0),
    ), (
        'int Cpp_RemoveRowsWithMissingOniMissingStr(OLECHAR* const* x, int n, int p, const short int* iMissing, OLECHAR** result);\n'
        '\n'
        'The same for texts.\n'
        '\n'
        'x: in, n by p texts\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'iMissing: in, n flags, one for each row; not 0: the row is taken out\n'
        'result: inout, n by p texts, of which as many rows as stay, by p, are replaced where they differ; it may be x\n'
        'returns how many rows stay\n'
    )),
    'Cpp_ReplaceMissingInContengencyByExp_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (('table', '1', None),), 0),
        ('rows', 'int', '', False, (), 0),
    ), (
        'int Cpp_ReplaceMissingInContengencyByExp_ST(ST_MVect* x, int rows);\n'
        '\n'
        'Replaces each missing cell of a contingency table, a number at or below `KORVEL_MISSING_DBL`, by the sum of\n'
        'its row times the sum of its column over the total. Missing cells are left out of the sums. A total of 0\n'
        'is divided by as floating point does it.\n'
        '\n'
        'x: inout, table of numbers; only its cells are changed\n'
        'rows: rows of the table\n'
        'returns 0\n'
    )),
    'Cpp_SortApply2Bool': ('int', (
        ('x', 'short int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_SortApply2Bool(short int* x, int rows, int cols, const double* order);\n'
        '\n'
        'Puts the rows of a table of flags into a given order, in place: row i becomes what row order[i] was.\n'
        '\n'
        'x: inout, rows by cols flags\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives 0\n'
        'returns 0\n'
    )),
    'Cpp_SortApply2_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int Cpp_SortApply2_ST(ST_MVect* x, int rows, int cols, const double* order);\n'
        '\n'
        'Puts the rows of a record of labelled columns of numbers into a given order, in place: row i becomes what\n'
        'row order[i] was.\n'
        '\n'
        'x: inout, the record; its columns are changed in place\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives -1\n'
        'returns 0\n'
    )),
    'Cpp_SortQDbl_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'double*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQDbl_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a record of labelled columns of numbers by a key. A column shorter than `to` is left\n'
        'alone.\n'
        '\n'
        'x: inout, the record; its columns are changed in place\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols numbers, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'Cpp_SortQLng_ST': ('int', (
        ('x', 'SAFEARRAY**', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'int*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'int*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQLng_ST(SAFEARRAY** x, int rows, int cols, int from, int to, int* key, int* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a table of integers, a single array that comes out of a record, by a key of integers.\n'
        '\n'
        'x: inout, host array of Long, rows by cols\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols integers, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'Cpp_SortQMatrixCol': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('keyCol', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQMatrixCol(double* x, int rows, int cols, int keyCol, int from, int to, short int bDesc);\n'
        '\n'
        'Orders rows from..to of a table of numbers by one of its columns, all columns moving.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'keyCol: the column that orders, from 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'Cpp_SortQMatrixColLng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('keyCol', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQMatrixColLng(int* x, int rows, int cols, int keyCol, int from, int to, short int bDesc);\n'
        '\n'
        'Orders rows from..to of a table of integers by one of its columns, all columns moving.\n'
        '\n'
        'x: inout, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'keyCol: the column that orders, from 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'Cpp_SortQMatrixColStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('keyCol', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQMatrixColStr(OLECHAR** x, int rows, int cols, int keyCol, int from, int to, short int bDesc);\n'
        '\n'
        'Orders rows from..to of a table of texts by one of its columns, by 16-bit code units, all columns moving.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'keyCol: the column that orders, from 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'Cpp_SortQStr_ST': ('int', (
        ('x', 'ST_MVect*', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'OLECHAR**', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int Cpp_SortQStr_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, OLECHAR** aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a record of labelled columns of texts by a key. A column shorter than `to` is left\n'
        'alone.\n'
        '\n'
        'x: inout, the record; the texts of its columns are put back where they changed\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols texts, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'Cpp_SortQVector2Str': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
        ('index', 'int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_SortQVector2Str(OLECHAR** x, int n, int from, int to, short int bDesc, int* index);\n'
        '\n'
        'Sorts positions `from..to` of a vector of texts, and tells where each text came from.\n'
        '\n'
        'x: inout, n texts\n'
        'n: number of texts\n'
        'from: first position, from 1\n'
        'to: last position, included\n'
        'bDesc: not 0: descending\n'
        'index: out, n numbers: the original position, from 1, of the text that now stands there\n'
        'returns 0\n'
    )),
    'Cpp_SumMat': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('b', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int Cpp_SumMat(const double* a, const double* b, int n, int p, double* c);\n'
        '\n'
        'c(i, j) = a(i, j) + b(i, j). Missing cells are numbers here.\n'
        '\n'
        'a: in, n by p cells\n'
        'b: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'Cpp_Test': ('double', (
        ('record', 'ST_MVect*', 'in', False, (), 0),
    ), (
        'double Cpp_Test(ST_MVect* record);\n'
        '\n'
        'Adds up everything that a labelled table holds: a check that a record crosses the boundary intact.\n'
        '\n'
        'record: in, a table of numbers, of which only the array of its columns is looked at\n'
        'returns the sum over all columns, one after the other, with missing numbers taken as they are; 0.0 when the array is null or empty\n'
    )),
    'Cpp_TestMemory': ('int', (
        ('rows1', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols1', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows2', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols2', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows3', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols3', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows4', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols4', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows5', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols5', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows6', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols6', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows7', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols7', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows8', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols8', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows9', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols9', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows10', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols10', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows11', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols11', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows12', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols12', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows13', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols13', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows14', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols14', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows15', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols15', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows16', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols16', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows17', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols17', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows18', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols18', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows19', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols19', 'int*', 'in', False, (('1', '1', None),), 0),
        ('rows20', 'int*', 'in', False, (('1', '1', None),), 0),
        ('cols20', 'int*', 'in', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_TestMemory(const int* rows1, const int* cols1, const int* rows2, const int* cols2, const int* rows3, const int* cols3, const int* rows4, const int* cols4, const int* rows5, const int* cols5, const int* rows6, const int* cols6, const int* rows7, const int* cols7, const int* rows8, const int* cols8, const int* rows9, const int* cols9, const int* rows10, const int* cols10, const int* rows11, const int* cols11, const int* rows12, const int* cols12, const int* rows13, const int* cols13, const int* rows14, const int* cols14, const int* rows15, const int* cols15, const int* rows16, const int* cols16, const int* rows17, const int* cols17, const int* rows18, const int* cols18, const int* rows19, const int* cols19, const int* rows20, const int* cols20);\n'
        '\n'
        'Tries to allocate a tenth more than twenty tables of numbers take, and gives everything back. The bytes of\n'
        'each are truncated to 32 bits. A table with a count of 0 is passed over.\n'
        '\n'
        'rows1: in, one integer: rows of table 1\n'
        'cols1: in, one integer: its columns\n'
        'rows2: in, one integer: rows of table 2\n'
        'cols2: in, one integer: its columns\n'
        'rows3: in, one integer: rows of table 3\n'
        'cols3: in, one integer: its columns\n'
        'rows4: in, one integer: rows of table 4\n'
        'cols4: in, one integer: its columns\n'
        'rows5: in, one integer: rows of table 5\n'
        'cols5: in, one integer: its columns\n'
        'rows6: in, one integer: rows of table 6\n'
        'cols6: in, one integer: its columns\n'
        'rows7: in, one integer: rows of table 7\n'
        'cols7: in, one integer: its columns\n'
        'rows8: in, one integer: rows of table 8\n'
        'cols8: in, one integer: its columns\n'
        'rows9: in, one integer: rows of table 9\n'
        'cols9: in, one integer: its columns\n'
        'rows10: in, one integer: rows of table 10\n'
        'cols10: in, one integer: its columns\n'
        'rows11: in, one integer: rows of table 11\n'
        'cols11: in, one integer: its columns\n'
        'rows12: in, one integer: rows of table 12\n'
        'cols12: in, one integer: its columns\n'
        'rows13: in, one integer: rows of table 13\n'
        'cols13: in, one integer: its columns\n'
        'rows14: in, one integer: rows of table 14\n'
        'cols14: in, one integer: its columns\n'
        'rows15: in, one integer: rows of table 15\n'
        'cols15: in, one integer: its columns\n'
        'rows16: in, one integer: rows of table 16\n'
        'cols16: in, one integer: its columns\n'
        'rows17: in, one integer: rows of table 17\n'
        'cols17: in, one integer: its columns\n'
        'rows18: in, one integer: rows of table 18\n'
        'cols18: in, one integer: its columns\n'
        'rows19: in, one integer: rows of table 19\n'
        'cols19: in, one integer: its columns\n'
        'rows20: in, one integer: rows of table 20\n'
        'cols20: in, one integer: its columns\n'
        'returns -1 when all fit at the same time; otherwise the number of the first table that does not, from 1\n'
    )),
    'Cpp_TriangularQFindAB': ('int', (
        ('q1', 'double', '', False, (), 0),
        ('mode', 'double', '', False, (), 0),
        ('q2', 'double', '', False, (), 0),
        ('p1', 'double', '', False, (), 0),
        ('p2', 'double', '', False, (), 0),
        ('a', 'double*', 'out', False, (('1', '1', None),), 0),
        ('b', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, double* a, double* b);\n'
        '\n'
        'The bounds of a triangular distribution with a given mode, whose distribution function is p1 at q1 and p2\n'
        "at q2. With the mode between the quantiles they come from at most 501 steps of Newton's method; nothing\n"
        'tells when those were not enough.\n'
        '\n'
        'q1: the lower quantile\n'
        'mode: the mode\n'
        'q2: the upper quantile\n'
        'p1: probability up to q1\n'
        'p2: probability up to q2\n'
        'a: out, one number: the lower bound\n'
        'b: out, one number: the upper bound\n'
        'returns 0\n'
    )),
    'Cpp_VMergeTablesDblSPV': ('int', (
        ('a', 'Hostarray**', 'in', False, (), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
        ('out', 'double*', 'out', False, (('rowsA + rowsB', 'max(colsA, colsB)', None),), 0),
    ), (
        'int Cpp_VMergeTablesDblSPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB, int colsB, double* out);\n'
        '\n'
        'Puts a table of numbers below a chunked one.\n'
        '\n'
        'a: in, host array of colsA records, each with a numeric column of rowsA numbers\n'
        'rowsA: rows of the first table\n'
        'colsA: columns of the first table\n'
        'b: in, rowsB by colsB numbers\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'out: out, rowsA + rowsB by max(colsA, colsB) numbers\n'
        'returns 0\n'
    )),
    'Cpp_V_CheckDateInterval': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('kind', 'int', '', False, (), 0),
        ('d', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_CheckDateInterval(const double* x, int n, int kind, double* d);\n'
        '\n'
        'The step of numbers, whose differences must all be within 1e-8 of the first, or of dates, which must agree\n'
        'in days and months.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'kind: 2: dates, as days since 30 December 1899; otherwise numbers\n'
        'd: out, one number: the first difference; the missing number when the steps differ or there is none\n'
        'returns 0\n'
    )),
    'Cpp_V_CleanVectDbl2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('m', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_CleanVectDbl2(double* x, int n, int* m);\n'
        '\n'
        'Moves the numbers above the missing one to the front, in their order. A NaN is not above. What stands\n'
        'behind them stays.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'm: out, one integer: how many they are\n'
        'returns 0\n'
    )),
    'Cpp_V_CleanVectDblW2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('m', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_CleanVectDblW2(double* x, int n, double* w, int* m);\n'
        '\n'
        'The same, with weights moved along.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'w: inout, n weights\n'
        'm: out, one integer: how many they are\n'
        'returns 0\n'
    )),
    'Cpp_V_ConvertBinaryTo01Dbl': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_ConvertBinaryTo01Dbl(double* x, int n);\n'
        '\n'
        'Makes a vector of two values one of 0 and 1, the smaller value becoming 0. The first value is the first\n'
        'number that is neither missing nor a NaN; the second one is the next that differs from it, or 0 when there\n'
        'is none. Other numbers stay. Nothing happens when the first value is the last element.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'Cpp_V_CopyDoubleToLong': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_CopyDoubleToLong(const double* x, int n, int* y);\n'
        '\n'
        'Copies numbers to integers, without their fraction. What no integer can hold becomes -2147483648.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'y: out, n integers\n'
        'returns 0\n'
    )),
    'Cpp_V_CopyLongToDouble': ('int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_CopyLongToDouble(const int* x, int n, double* y);\n'
        '\n'
        'Copies integers to numbers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'y: out, n numbers\n'
        'returns 0\n'
    )),
    'Cpp_V_Correl2W': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_Correl2W(const double* x, int n, const double* y, const double* w);\n'
        '\n'
        'Weighted correlation of two vectors, over the elements of which the weight is greater than 0 and both\n'
        'values are greater than the missing value, so that a NaN is not kept.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'y: in, n numbers\n'
        'w: in, n weights\n'
        'returns the correlation; missing unless the product of the two sums of squares is greater than 0\n'
    )),
    'Cpp_V_CuSum': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_CuSum(const double* x, int n, double* out);\n'
        '\n'
        'Running sum over all elements, missing ones too.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements; below 1 nothing is written\n'
        'out: out, n numbers: the first element, and then the one before plus x[i]. May be x itself\n'
        'returns 0\n'
    )),
    'Cpp_V_DiffSqStart': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('start', 'int', '', False, (), 0),
    ), (
        'double Cpp_V_DiffSqStart(const double* x, int n, const double* y, int start);\n'
        '\n'
        'Squared distance of the tails of two vectors, over all elements, missing ones too.\n'
        '\n'
        'x: in, n numbers\n'
        'n: last position, from 1\n'
        'y: in, n numbers\n'
        'start: first position, from 1\n'
        'returns the sum of the squares of the differences; 0.0 when `start` is above n\n'
    )),
    'Cpp_V_DuplicateBool': ('int', (
        ('x', 'short int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'short int*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int Cpp_V_DuplicateBool(const short int* x, int rows, int cols, int col, int from, int to, short int* y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of flags to a place in a table.\n'
        '\n'
        'x: in, rows by cols flags; cells outside of them read as 0\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols flags; may be x\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'Cpp_V_DuplicateDbl_ST': ('int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'SAFEARRAY**', 'inout', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int Cpp_V_DuplicateDbl_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of numbers to a place in a table, both host arrays that come out of a\n'
        'record.\n'
        '\n'
        'x: in, host array of Double; cells outside of it read as -1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, host array of Double; may be x. What would fall outside is left out\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'Cpp_V_DuplicateLng_ST': ('int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'SAFEARRAY**', 'inout', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int Cpp_V_DuplicateLng_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of integers to a place in a table, both host arrays that come out of a\n'
        'record.\n'
        '\n'
        'x: in, host array of Long; cells outside of it read as -1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, host array of Long; may be x. What would fall outside is left out\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'Cpp_V_DuplicateStr_ST': ('int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'SAFEARRAY**', 'inout', False, (), 0),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int Cpp_V_DuplicateStr_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of texts to a place in a table, both host arrays that come out of a\n'
        'record.\n'
        '\n'
        'x: in, host array of String; cells outside of it read as the empty text\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, host array of String; may be x. What would fall outside is left out\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'Cpp_V_FindLng': ('short int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'int', '', False, (), 0),
    ), (
        'short int Cpp_V_FindLng(const int* x, int n, int val);\n'
        '\n'
        'Whether an integer occurs.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'val: the integer to find\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'Cpp_V_FindStr': ('short int', (
        ('x', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'short int Cpp_V_FindStr(OLECHAR* const* x, int n, const OLECHAR* val);\n'
        '\n'
        'Whether a text occurs.\n'
        '\n'
        'x: in, n texts\n'
        'n: number of elements\n'
        'val: in, one text, to be found\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'Cpp_V_GMeanGSD': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('gmean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('gsd', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_GMeanGSD(const double* x, int n, const short int* iMissing, const double* w, double* gmean, double* gsd);\n'
        '\n'
        'Geometric mean and geometric standard deviation. The variance of the logarithms is divided by the sum of\n'
        'the weights less the mean weight. An element of weight 0 counts in the mean weight and nowhere else.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'gmean: out, one number: the geometric mean\n'
        'gsd: out, one number: the geometric standard deviation: missing when the denominator is exactly 0, 0.0 when the variance of the logarithms is negative\n'
        'returns 0. Both results are missing when no element is kept or one that is kept is not greater than 0\n'
    )),
    'Cpp_V_Gauss_ST': ('int', (
        ('a', 'ST_MVect*', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'ST_Vect*', 'inout', False, (), 0),
    ), (
        'int Cpp_V_Gauss_ST(ST_MVect* a, int n, ST_Vect* b);\n'
        '\n'
        'Solves a * x = b on a labelled table and a labelled column, and inverts a. No column is resized: an element\n'
        'past the end of a column reads as -1 and is not stored.\n'
        '\n'
        'a: inout, labelled table of numbers, n by n; becomes its inverse\n'
        'n: rows and columns of a; below 1 nothing is done\n'
        'b: inout, labelled column of n numbers; becomes the solution x\n'
        'returns 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them\n'
    )),
    'Cpp_V_HarmonicMean': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_HarmonicMean(const double* x, int n, const short int* iMissing, const double* w);\n'
        '\n'
        'Weighted harmonic mean: the sum of w[i] over the sum of w[i] / x[i].\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'returns the mean; missing when n is below 1, when an element kept is 0, and when the quotients sum to exactly 0\n'
    )),
    'Cpp_V_InsertValueLow': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
        ('bSort', 'short int', '', False, (), 0),
    ), (
        'int Cpp_V_InsertValueLow(double* x, int n, double val, short int bSort);\n'
        '\n'
        'Puts a value into an ascending vector and lets the smallest fall out, unless the value is not above it.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'val: the value\n'
        'bSort: -1: the vector is sorted first; otherwise it is taken to be sorted\n'
        'returns 0\n'
    )),
    'Cpp_V_InsertValueUp': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
        ('bSort', 'short int', '', False, (), 0),
    ), (
        'int Cpp_V_InsertValueUp(double* x, int n, double val, short int bSort);\n'
        '\n'
        'Puts a value into an ascending vector and lets the largest fall out, unless the value is not below it.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'val: the value\n'
        'bSort: -1: the vector is sorted first; otherwise it is taken to be sorted\n'
        'returns 0\n'
    )),
    'Cpp_V_IsBinaryDbl': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('skipMissing', 'short int', '', False, (), 0),
    ), (
        'short int Cpp_V_IsBinaryDbl(const double* x, int n, short int skipMissing);\n'
        '\n'
        'Whether a vector has at most two different values.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'skipMissing: -1: missing numbers are passed over, and at the start a NaN too; otherwise they make the result false\n'
        'returns -1 when there are at least two elements from the first that is kept on, and they have at most two values; -1 for n below 1 unless missing numbers are passed over; otherwise 0\n'
    )),
    'Cpp_V_IsBinaryDblXY': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('a', 'double', '', False, (), 0),
        ('b', 'double', '', False, (), 0),
        ('skipMissing', 'short int', '', False, (), 0),
    ), (
        'short int Cpp_V_IsBinaryDblXY(const double* x, int n, double a, double b, short int skipMissing);\n'
        '\n'
        'Whether each element of a vector is one of two values.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'a: a value\n'
        'b: another value\n'
        'skipMissing: -1: missing numbers are passed over, and at the start a NaN too\n'
        'returns -1 when there are at least two elements from the first that is kept on, and each is one of the values; -1 for n below 1 unless missing numbers are passed over; otherwise 0\n'
    )),
    'Cpp_V_IsWeightsAndAll1_ST': ('short int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bAll1', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'short int Cpp_V_IsWeightsAndAll1_ST(SAFEARRAY** x, int n, short int* bAll1);\n'
        '\n'
        'The same, which also looks for weights that are all 1.\n'
        '\n'
        'x: in, host array of Double\n'
        'n: number of elements\n'
        'bAll1: out, one flag: -1 when every number that is not missing is exactly 1, otherwise 0\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'Cpp_V_IsWeights_ST': ('short int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int Cpp_V_IsWeights_ST(SAFEARRAY** x, int n);\n'
        '\n'
        'The same for a host array.\n'
        '\n'
        'x: in, host array of Double\n'
        'n: number of elements\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'Cpp_V_Max2Lng_ST': ('double', (
        ('sa', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double Cpp_V_Max2Lng_ST(SAFEARRAY** sa, int n);\n'
        '\n'
        'The largest integer of a host array.\n'
        '\n'
        'sa: in, host array of Long\n'
        'n: number of elements to read; one that the array does not have reads as -1\n'
        'returns the element as a number; the missing number when n is below 1\n'
    )),
    'Cpp_V_Max2_ST': ('double', (
        ('sa', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double Cpp_V_Max2_ST(SAFEARRAY** sa, int n);\n'
        '\n'
        'The largest element of a host array that is not missing.\n'
        '\n'
        'sa: in, host array of Double\n'
        'n: number of elements to read; one that the array does not have reads as -1\n'
        'returns the element; missing when there is none\n'
    )),
    'Cpp_V_MeanAbsDev': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('centre', 'double', '', False, (), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_MeanAbsDev(const double* x, int n, double centre, const short int* iMissing, const double* w);\n'
        '\n'
        'Weighted mean of the absolute deviations from a centre.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'centre: the centre\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out\n'
        'w: in, n weights\n'
        'returns the mean over the elements kept that are not missing; missing when their weights sum to 0\n'
    )),
    'Cpp_V_MeanStdev2': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('sd', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_MeanStdev2(const double* x, int n, short int bUnbiased, double* mean, double* sd);\n'
        '\n'
        'Mean and standard deviation of the elements greater than the missing number, all of weight 1; a NaN is left\n'
        'out as well.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'bUnbiased: -1: divided by the number kept less 1, otherwise by the number kept\n'
        'mean: out, one number: the mean; 0.0 when nothing is kept\n'
        'sd: out, one number: the standard deviation; a NaN with one element and unbiased; without elements a NaN, or -0.0 when unbiased\n'
        'returns 0\n'
    )),
    'Cpp_V_MeanVarW2': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('var', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int Cpp_V_MeanVarW2(const double* x, int n, const double* w, double* mean, double* var, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted mean and variance of the elements that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'mean: out, one number: the mean; 0.0 when there is no such element\n'
        'var: out, one number: the variance: missing unless the denominator is greater than 0\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'Cpp_V_MeanW2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_MeanW2(const double* x, int n, const double* w);\n'
        '\n'
        'Weighted mean of the elements that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'returns the sum of w[i] * x[i] over the sum of w[i]; missing when n is below 1, and unless the sum of the weights is greater than 0\n'
    )),
    'Cpp_V_MedianAbsDev': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('centre', 'double', '', False, (), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_MedianAbsDev(const double* x, int n, double centre, const short int* iMissing, const double* w);\n'
        '\n'
        'Median of the absolute deviations from a centre; weighted unless the weights are constant.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'centre: the centre\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out\n'
        'w: in, n weights\n'
        'returns the median over the elements kept that are not missing; missing when there are none\n'
    )),
    'Cpp_V_MedianAbsDev2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('centre', 'double*', 'inout', False, (('1', '1', None),), 0),
    ), (
        'double Cpp_V_MedianAbsDev2(const double* x, int n, double* centre);\n'
        '\n'
        'Median of the absolute deviations from a centre, missing elements taking part as the smallest numbers.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'centre: inout, one number: the centre; when missing, it becomes the median of x\n'
        'returns the median; missing for n below 1\n'
    )),
    'Cpp_V_MergeVectorsStr': ('int', (
        ('a', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('b', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('sep', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
        ('out', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_MergeVectorsStr(OLECHAR* const* a, int n, OLECHAR* const* b, const OLECHAR* sep, OLECHAR** out);\n'
        '\n'
        'Joins two vectors of labels.\n'
        '\n'
        'a: in, n texts\n'
        'n: number of labels\n'
        'b: in, n texts\n'
        'sep: in, one text: what stands between them\n'
        'out: inout, n texts, replaced where they differ; it may be a or b\n'
        'returns 0\n'
    )),
    'Cpp_V_Min3': ('double', (
        ('record', 'ST_MVect*', 'in', False, (), 0),
        ('nRows', 'int', '', False, (), 0),
        ('nCols', 'int', '', False, (), 0),
    ), (
        'double Cpp_V_Min3(ST_MVect* record, int nRows, int nCols);\n'
        '\n'
        'The smallest element of a record of labelled columns that is not missing.\n'
        '\n'
        'record: in, the record\n'
        'nRows: rows to look at; below 1 there is nothing\n'
        'nCols: columns to look at\n'
        'returns the element; missing when there is none, or when it is 1.79769313486231e308 or above\n'
    )),
    'Cpp_V_MinIgnoreMissing': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double Cpp_V_MinIgnoreMissing(const double* x, int n);\n'
        '\n'
        'The smallest number that is not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the smallest number; the missing one when there is none\n'
    )),
    'Cpp_V_ModeW2': ('int', (
        ('labels', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('mode', 'OLECHAR**', 'inout', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_ModeW2(OLECHAR* const* labels, int n, const double* w, OLECHAR** mode);\n'
        '\n'
        'The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels\n'
        'are not counted.\n'
        '\n'
        'labels: in, n texts\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'mode: inout, one text, replaced by the label, empty when there is none\n'
        'returns 0\n'
    )),
    'Cpp_V_NbDistinctStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_NbDistinctStr(OLECHAR* const* x, int n);\n'
        '\n'
        'Number of distinct texts, compared exactly. The empty text is one.\n'
        '\n'
        'x: in, n texts\n'
        'n: number of elements\n'
        'returns the number; 1 for n below 1\n'
    )),
    'Cpp_V_NbTrue_ST': ('int', (
        ('x', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_NbTrue_ST(SAFEARRAY** x, int n);\n'
        '\n'
        'The same for a host array.\n'
        '\n'
        'x: in, host array of Boolean\n'
        'n: number of flags\n'
        'returns the count\n'
    )),
    'Cpp_V_PairwiseDeletion': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('z', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('xOut', 'double*', 'inout', False, (('n + 1', '1', None),), 0),
        ('yOut', 'double*', 'inout', False, (('n + 1', '1', None),), 0),
        ('zOut', 'double*', 'inout', False, (('n + 1', '1', None),), 0),
        ('count', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_PairwiseDeletion(const double* x, const double* y, const double* z, int n, double* xOut, double* yOut, double* zOut, int* count);\n'
        '\n'
        'Keeps the elements of three series where the first two are both above `KORVEL_MISSING_DBL`; a NaN is not.\n'
        '\n'
        'x: in, n numbers, the first series\n'
        'y: in, n numbers, the second series\n'
        'z: in, n numbers that go with them\n'
        'n: length of the series\n'
        'xOut: inout, n + 1 numbers: the kept elements of x, from the second place on. The first place, and those behind the kept elements, stay as they are\n'
        'yOut: inout, n + 1 numbers: likewise for y\n'
        'zOut: inout, n + 1 numbers: likewise for z\n'
        'count: out, one integer: how many elements are kept\n'
        'returns 0\n'
    )),
    'Cpp_V_QuantileW2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('q', 'double', '', False, (), 0),
    ), (
        'double Cpp_V_QuantileW2(const double* x, int n, const double* w, double q);\n'
        '\n'
        'Weighted quantile of the elements of positive weight that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'q: probability, not tested: a position outside the data reads -1\n'
        'returns the quantile; missing when there are none\n'
    )),
    'Cpp_V_Quantiles13': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'double*', 'out', False, (('13', '1', None),), 0),
    ), (
        'int Cpp_V_Quantiles13(double* x, int n, double* out);\n'
        '\n'
        'Sorts a vector, ascending, and takes its quantiles at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75,\n'
        '0.8, 0.9 and 0.95, at position (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above it, from 1.\n'
        '\n'
        'x: inout, n numbers, sorted in place\n'
        'n: number of elements\n'
        'out: out, 13 numbers; all missing for n below 1\n'
        'returns 0\n'
    )),
    'Cpp_V_RecodeToBinary': ('int', (
        ('column', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
        ('result', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_RecodeToBinary(OLECHAR* const* column, int n, const OLECHAR* value, double* result);\n'
        '\n'
        '1 for each element that is the given text, 0 for all others.\n'
        '\n'
        'column: in, n texts\n'
        'n: number of elements\n'
        'value: in, one text; it may be empty\n'
        'result: out, n numbers\n'
        'returns 0\n'
    )),
    'Cpp_V_Reverse2Bool': ('int', (
        ('x', 'short int*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_Reverse2Bool(short int* x, int n);\n'
        '\n'
        'A vector of flags back to front, in place.\n'
        '\n'
        'x: inout, n flags\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'Cpp_V_Reverse2Dbl': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_Reverse2Dbl(double* x, int n);\n'
        '\n'
        'A vector of numbers back to front, in place.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'Cpp_V_Reverse2Lng': ('int', (
        ('x', 'int*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int Cpp_V_Reverse2Lng(int* x, int n);\n'
        '\n'
        'A vector of integers back to front, in place.\n'
        '\n'
        'x: inout, n integers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'Cpp_V_SetToValueLng_ST': ('int', (
        ('x', 'SAFEARRAY**', 'inout', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'int', '', False, (), 0),
    ), (
        'int Cpp_V_SetToValueLng_ST(SAFEARRAY** x, int n, int value);\n'
        '\n'
        'Sets the elements of a host array to one integer. The array keeps its size.\n'
        '\n'
        'x: inout, host array of Long\n'
        'n: number of elements\n'
        'value: the value\n'
        'returns 0\n'
    )),
    'Cpp_V_SetToValue_ST': ('int', (
        ('x', 'SAFEARRAY**', 'inout', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
    ), (
        'int Cpp_V_SetToValue_ST(SAFEARRAY** x, int n, double value);\n'
        '\n'
        'Sets the elements of a host array to one number. The array keeps its size.\n'
        '\n'
        'x: inout, host array of Double\n'
        'n: number of elements\n'
        'value: the value\n'
        'returns 0\n'
    )),
    'Cpp_V_Shuffle': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_Shuffle(double* x, int n, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles a vector of numbers.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_V_ShuffleLng': ('int', (
        ('x', 'int*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_ShuffleLng(int* x, int n, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Shuffles a vector of integers.\n'
        '\n'
        'x: inout, n integers\n'
        'n: number of elements\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'Cpp_V_Sum2Dbl_ST': ('double', (
        ('sa', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double Cpp_V_Sum2Dbl_ST(SAFEARRAY** sa, int n);\n'
        '\n'
        'Sum of the elements of a host array that are not missing.\n'
        '\n'
        'sa: in, host array of Double\n'
        'n: number of elements to read; one that the array does not have reads as -1\n'
        'returns the sum; 0.0 when there are none\n'
    )),
    'Cpp_V_Sum2Lng_ST': ('double', (
        ('sa', 'SAFEARRAY**', 'in', False, (), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double Cpp_V_Sum2Lng_ST(SAFEARRAY** sa, int n);\n'
        '\n'
        'Sum of the integers of a host array in 32-bit arithmetic that wraps around. No integer is missing here.\n'
        '\n'
        'sa: in, host array of Long\n'
        'n: number of elements to read; one that the array does not have reads as -1\n'
        'returns the wrapped sum as a number; 0.0 when n is below 1\n'
    )),
    'Cpp_V_SumW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double Cpp_V_SumW(const double* x, int n, const double* w);\n'
        '\n'
        'Sum of x[i] * w[i] over all elements: a missing value or weight multiplies through.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'returns the sum; 0.0 when n is below 1\n'
    )),
    'Cpp_V_SwapDbl': ('int', (
        ('a', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('b', 'double*', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_SwapDbl(double* a, int n, double* b);\n'
        '\n'
        'Exchanges two vectors of numbers.\n'
        '\n'
        'a: inout, n numbers\n'
        'n: number of elements\n'
        'b: inout, n numbers\n'
        'returns 0\n'
    )),
    'Cpp_V_SwapStr': ('int', (
        ('a', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('b', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_SwapStr(OLECHAR** a, int n, OLECHAR** b);\n'
        '\n'
        'Exchanges two vectors of texts.\n'
        '\n'
        'a: inout, n texts, replaced where they differ\n'
        'n: number of elements\n'
        'b: inout, n texts, replaced where they differ\n'
        'returns 0\n'
    )),
    'Cpp_V_TopBottom3Box': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('top1', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom1', 'double*', 'out', False, (('1', '1', None),), 0),
        ('top2', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom2', 'double*', 'out', False, (('1', '1', None),), 0),
        ('top3', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom3', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_TopBottom3Box(const double* x, int n, const double* w, double* top1, double* bottom1, double* top2, double* bottom2, double* top3, double* bottom3);\n'
        '\n'
        'Weights of the highest and lowest distinct scores, cumulative over one, two and three levels. Scores within\n'
        '1e-12 of the first one met of a level belong to that level.\n'
        '\n'
        'x: in, n scores\n'
        'n: number of scores; below 1 all boxes are 0\n'
        'w: in, n weights\n'
        'top1: out, one number: weight of the highest level\n'
        'bottom1: out, one number: weight of the lowest level\n'
        'top2: out, one number: weight of the highest two levels\n'
        'bottom2: out, one number: weight of the lowest two levels\n'
        'top3: out, one number: weight of the highest three levels\n'
        'bottom3: out, one number: weight of the lowest three levels\n'
        'returns 0\n'
    )),
    'Cpp_V_TopBottom3BoxConditional': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('group', 'double*', 'in', False, (('n', '1', None),), 0),
        ('groupValue', 'double', '', False, (), 0),
        ('top1', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom1', 'double*', 'out', False, (('1', '1', None),), 0),
        ('top2', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom2', 'double*', 'out', False, (('1', '1', None),), 0),
        ('top3', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bottom3', 'double*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int Cpp_V_TopBottom3BoxConditional(const double* x, int n, double* w, const double* group, double groupValue, double* top1, double* bottom1, double* top2, double* bottom2, double* top3, double* bottom3);\n'
        '\n'
        'The boxes of one group: only elements whose group value is within 1e-12 of groupValue add their weight. The\n'
        'weight that counts at a sorted position is the one that stood at that position before the sort, so weights\n'
        'should be constant.\n'
        '\n'
        'x: in, n scores\n'
        'n: number of scores; below 1 all boxes are 0\n'
        'w: inout, n weights, moved into the order of the scores\n'
        'group: in, n group values\n'
        'groupValue: the group to count\n'
        'top1: out, one number: weight of the highest level\n'
        'bottom1: out, one number: weight of the lowest level\n'
        'top2: out, one number: weight of the highest two levels\n'
        'bottom2: out, one number: weight of the lowest two levels\n'
        'top3: out, one number: weight of the highest three levels\n'
        'bottom3: out, one number: weight of the lowest three levels\n'
        'returns 0\n'
    )),
    'Cpp_V_Trim': ('int', (
        ('labels', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bLeft', 'short int', '', False, (), 0),
        ('bRight', 'short int', '', False, (), 0),
        ('out', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_Trim(OLECHAR* const* labels, int n, short int bLeft, short int bRight, OLECHAR** out);\n'
        '\n'
        'Strips spaces (U+0020) from the ends of texts.\n'
        '\n'
        'labels: in, n texts\n'
        'n: number of texts\n'
        'bLeft: -1: at the left end\n'
        'bRight: -1: at the right end\n'
        'out: inout, n texts, replaced where they differ; may be labels\n'
        'returns 0\n'
    )),
    'Cpp_V_Trim2': ('int', (
        ('labels', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bLeft', 'short int', '', False, (), 0),
        ('bRight', 'short int', '', False, (), 0),
    ), (
        'int Cpp_V_Trim2(OLECHAR** labels, int n, short int bLeft, short int bRight);\n'
        '\n'
        'Strips spaces (U+0020) from the ends of texts, in place.\n'
        '\n'
        'labels: inout, n texts\n'
        'n: number of texts\n'
        'bLeft: -1: at the left end\n'
        'bRight: -1: at the right end\n'
        'returns 0\n'
    )),
    'Cpp_V_Var2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'double Cpp_V_Var2(const double* x, int n, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Variance of the elements that are not missing, all of weight 1: VB_V_Var with no flag set.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns as for VB_V_Var\n'
    )),
    'Cpp_V_VarIf': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'double Cpp_V_VarIf(const double* y, int n, const double* g, double val, short int bUnbiased);\n'
        '\n'
        'Variance of a group. Only the value is tested for missing: the missing code is one like the others.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'val: code of the group\n'
        'bUnbiased: -1: divided by the number of rows less 1; otherwise by their number\n'
        'returns the variance; the missing number unless the divisor is greater than 0\n'
    )),
    'Cpp_V_VarIfSup0W': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'double Cpp_V_VarIfSup0W(const double* y, int n, const double* g, const double* w, short int bUnbiased);\n'
        '\n'
        'Weighted variance of the rows whose code is above 1e-12, with a step of its own. A NaN among the values is\n'
        'left out.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'w: in, n weights\n'
        'bUnbiased: -1: divided by the total weight less 1; otherwise by the total weight\n'
        'returns the variance; the missing number unless the divisor is greater than 0\n'
    )),
    'Cpp_V_VarIfW': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'double Cpp_V_VarIfW(const double* y, int n, const double* g, const double* w, double val, short int bUnbiased);\n'
        '\n'
        'Weighted variance of a group. A weight of 0 in the first row gives a NaN.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'w: in, n weights\n'
        'val: code of the group\n'
        'bUnbiased: -1: divided by the total weight less 1; otherwise by the total weight\n'
        'returns the variance; the missing number unless the divisor is greater than 0\n'
    )),
    'Cpp_V_Winsorize2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('qLow', 'double', '', False, (), 0),
        ('qHigh', 'double', '', False, (), 0),
    ), (
        'int Cpp_V_Winsorize2(double* x, int n, double qLow, double qHigh);\n'
        '\n'
        'Moves the elements outside two quantiles onto them. Missing elements stay.\n'
        '\n'
        'x: inout, n numbers, changed in place\n'
        'n: number of elements\n'
        'qLow: probability of the lower quantile\n'
        'qHigh: probability of the upper quantile\n'
        'returns 0\n'
    )),
    'Cpp_V_ZScores': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bRobust', 'short int', '', False, (), 0),
        ('centre', 'double*', 'inout', True, (('1', '1', None),), 0),
        ('scale', 'double*', 'inout', False, (('1', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int Cpp_V_ZScores(const double* x, int n, short int bRobust, double* centre, double* scale, double* out);\n'
        '\n'
        'How far each number lies from the centre, in deviations. A missing number has a missing score, and so has\n'
        'every number when the deviation is not greater than 2.220446049250313e-16.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'bRobust: 0: (x - centre) / scale; any other value: 0.6745 * (x - median) / MAD, by the median and the median absolute deviation, in which a missing number counts as the smallest\n'
        'centre: inout, one number: the centre; when it is missing, it and scale become the mean and the standard deviation, divided by the number of elements less 1, of the numbers above the missing one. Not used, and may be null, for the robust scores\n'
        'scale: inout, one number: the deviation; the same\n'
        'out: out, n scores; may be the array of x\n'
        'returns 0\n'
    )),
    'Cpp_VectToMat': ('int', (
        ('v', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('pattern', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('x', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int Cpp_VectToMat(const double* v, const double* pattern, int rows, int cols, double* x);\n'
        '\n'
        'A vector back in the shape of the table that Cpp_MatToVect laid it out from. What is missing in that table\n'
        'is missing in the result, whatever the vector has in its place.\n'
        '\n'
        'v: in, rows by cols numbers\n'
        'pattern: in, rows by cols numbers; only its missing cells matter\n'
        'rows: rows of the tables\n'
        'cols: columns of the tables\n'
        'x: out, rows by cols numbers; may be v or pattern\n'
        'returns 0\n'
    )),
    'Cpp_WriteMatrixDbl': ('void', (
        ('a', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('name', 'const char*', 'in', False, (), 0),
    ), (
        'void Cpp_WriteMatrixDbl(const double* a, int rows, int cols, const char* name);\n'
        '\n'
        'Writes a table of numbers to a text file.\n'
        '\n'
        'a: in, rows by cols numbers, written with 20 significant digits, a missing one like the others\n'
        'rows: rows of a\n'
        'cols: columns of a\n'
        'name: in, base name of the file\n'
    )),
    'Cpp_WriteMatrixLng': ('void', (
        ('a', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('name', 'const char*', 'in', False, (), 0),
    ), (
        'void Cpp_WriteMatrixLng(const int* a, int rows, int cols, const char* name);\n'
        '\n'
        'Writes a table of integers to a text file.\n'
        '\n'
        'a: in, rows by cols integers\n'
        'rows: rows of a\n'
        'cols: columns of a\n'
        'name: in, base name of the file\n'
    )),
    'Cpp_WriteMatrixStr': ('int', (
        ('a', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('name', 'const char*', 'in', False, (), 0),
    ), (
        'int Cpp_WriteMatrixStr(OLECHAR* const* a, int rows, int cols, const char* name);\n'
        '\n'
        'Writes a table of texts to a text file.\n'
        '\n'
        'a: in, rows by cols texts, written in UTF-8, a missing one as nothing\n'
        'rows: rows of a\n'
        'cols: columns of a\n'
        'name: in, base name of the file\n'
        'returns 0\n'
    )),
    'Cpp_set_rand_algo': ('int', (
        ('algorithm', 'int', '', False, (), 0),
    ), (
        'int Cpp_set_rand_algo(int algorithm);\n'
        '\n'
        'Selects the random generator. Both generators keep their states; nothing is seeded.\n'
        '\n'
        "algorithm: 1: MT19937 (Matsumoto and Nishimura 1998). Anything else: the combined generator of L'Ecuyer (1988), which is the one in use after loading\n"
        'returns 0\n'
    )),
    'ExtractBSTR': ('OLECHAR**', (
        ('sa', 'SAFEARRAY**', 'in', True, (), 0),
    ), (
        'OLECHAR** ExtractBSTR(SAFEARRAY** sa);\n'
        '\n'
        'The block of texts behind a host array, for functions that take such a block.\n'
        '\n'
        'sa: in, host array of String; its descriptor may be null\n'
        "returns the array's data, or null when there is no array or it holds none\n"
    )),
    'Increase1Col': ('OLECHAR*', (
        ('column', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'OLECHAR* Increase1Col(const OLECHAR* column);\n'
        '\n'
        'The column behind a column. No letter is added: Z gives A, and ZZ gives AA.\n'
        '\n'
        'column: in, one text: the letters of a column\n'
        'returns a new text, which the caller frees\n'
        'raises  std::bad_alloc when memory is short\n'
    )),
    'KORVEL_Version': ('int', (
    ), (
        'int KORVEL_Version(void);\n'
        '\n'
        'The version of the library that is loaded.\n'
        '\n'
        'returns 10000 times the major number, plus 100 times the minor one, plus the patch: 10203 for 1.2.3\n'
    )),
    'NewtonRaphson': ('int', (
        ('parameters', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('gradient', 'double*', 'in', False, (('n', '1', None),), 0),
        ('hessian', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('standardErrors', 'double*', 'out', False, (('n', '1', None),), 0),
        ('inverse', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('limitStep', 'short int', '', False, (), 0),
        ('stepLimit', 'double', '', False, (), 0),
    ), (
        'int NewtonRaphson(double* parameters, int n, const int* constraints, const double* gradient, const double* hessian, double tolerance, double* standardErrors, double* inverse, short int limitStep, double stepLimit);\n'
        '\n'
        'One damped step of the Newton-Raphson method: the inverse of the Hessian over the free parameters times the\n'
        'gradient is subtracted from the parameters. Gradient and Hessian are those of the same objective, whether\n'
        'it is to become large or small. A singular Hessian gets a generalised inverse.\n'
        '\n'
        'parameters: inout, n numbers; the free ones are changed\n'
        'n: parameters\n'
        'constraints: in, n integers: 0 for a free parameter, any other value for one held fixed\n'
        'gradient: in, n numbers\n'
        'hessian: in, n by n numbers, column after column\n'
        'tolerance: the largest absolute change that counts as none\n'
        "standardErrors: out, n numbers: the roots of the magnitudes of the inverse's diagonal; 0 for a fixed parameter\n"
        'inverse: out, n by n numbers: the inverse, with 0 for fixed parameters\n'
        'limitStep: not 0: a step longer than stepLimit is shortened, its direction kept\n'
        'stepLimit: the largest absolute change of a parameter\n'
        'returns 1 when every free parameter moved by at most the tolerance; 0 when one moved by more; -1 when the inversion failed, which it does not at present\n'
    )),
    'RunOLSBasic': ('int', (
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('degree', 'int', '', False, (), 0),
        ('interactions', 'short int', '', False, (), 0),
        ('noConstant', 'short int', '', False, (), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('coefficients', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('fitted', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int RunOLSBasic(int n, int p, const double* x, const double* y, const double* weights, int degree, short int interactions, short int noConstant, double tolerance, double* coefficients, double* fitted);\n'
        '\n'
        'Regression: coefficients and fitted values.\n'
        '\n'
        'n: rows\n'
        'p: predictors\n'
        'x: in, n by p numbers, column after column\n'
        'y: in, n numbers, the response\n'
        'weights: in, n weights\n'
        'degree: the highest power of a predictor\n'
        'interactions: -1: with the products of pairs of predictors\n'
        'noConstant: not 0: the model has no intercept\n'
        "tolerance: limit of a term's tolerance; a term is taken in when its own is greater\n"
        'coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: that of each term, the intercept last\n'
        'fitted: out, n numbers\n'
        'returns 0\n'
    )),
    'RunOLSBasic2': ('int', (
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('degree', 'int', '', False, (), 0),
        ('interactions', 'short int', '', False, (), 0),
        ('noConstant', 'short int', '', False, (), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('coefficients', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('standardErrors', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('fitted', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int RunOLSBasic2(int n, int p, const double* x, const double* y, const double* weights, int degree, short int interactions, short int noConstant, double tolerance, double* coefficients, double* standardErrors, double* fitted);\n'
        '\n'
        'Regression: coefficients, their standard errors and fitted values.\n'
        '\n'
        'n: rows\n'
        'p: predictors\n'
        'x: in, n by p numbers, column after column\n'
        'y: in, n numbers, the response\n'
        'weights: in, n weights\n'
        'degree: the highest power of a predictor\n'
        'interactions: -1: with the products of pairs of predictors\n'
        'noConstant: not 0: the model has no intercept\n'
        "tolerance: limit of a term's tolerance; a term is taken in when its own is greater\n"
        'coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: that of each term, the intercept last\n'
        'standardErrors: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1. That of the intercept is a NaN when rounding made its square negative\n'
        'fitted: out, n numbers\n'
        'returns 0\n'
    )),
    'RunOLSBasic2Lg': ('int', (
        ('n', 'int', '', False, (), 0),
        ('p1', 'int', '', False, (), 0),
        ('x1', 'double*', 'in', True, (('n', 'p1', None),), 0),
        ('p2', 'int', '', False, (), 0),
        ('x2', 'double*', 'in', True, (('n', 'p2', None),), 0),
        ('p3', 'int', '', False, (), 0),
        ('x3', 'double*', 'in', True, (('n', 'p3', None),), 0),
        ('p4', 'int', '', False, (), 0),
        ('x4', 'double*', 'in', True, (('n', 'p4', None),), 0),
        ('p5', 'int', '', False, (), 0),
        ('x5', 'double*', 'in', True, (('n', 'p5', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('degree', 'int', '', False, (), 0),
        ('interactions', 'short int', '', False, (), 0),
        ('noConstant', 'short int', '', False, (), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('coefficients', 'double*', 'out', False, (('(p1 + p2 + p3 + p4 + p5) * degree + 1', '1', None), ('(p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('standardErrors', 'double*', 'out', False, (('(p1 + p2 + p3 + p4 + p5) * degree + 1', '1', None), ('(p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('fitted', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int RunOLSBasic2Lg(int n, int p1, const double* x1, int p2, const double* x2, int p3, const double* x3, int p4, const double* x4, int p5, const double* x5, const double* y, const double* weights, int degree, short int interactions, short int noConstant, double tolerance, double* coefficients, double* standardErrors, double* fitted);\n'
        '\n'
        'Regression as by RunOLSBasic2 on the columns of five tables, one behind the other, without powers or\n'
        'interactions. The standard errors of terms are over n less the terms, less 1, degrees of freedom. All\n'
        'results are set to 0 first; for any other degree than 1, and when the counts of columns add up to less than\n'
        '1, they stay 0.\n'
        '\n'
        'n: rows\n'
        'p1: columns of the first table; below 1 it does not take part\n'
        'x1: in, n by p1 numbers, column after column; not read when p1 is below 1, and then may be null\n'
        'p2: columns of the second table\n'
        'x2: in, n by p2 numbers, likewise; may be null when p2 is below 1\n'
        'p3: columns of the third table\n'
        'x3: in, n by p3 numbers, likewise; may be null when p3 is below 1\n'
        'p4: columns of the fourth table\n'
        'x4: in, n by p4 numbers, likewise; may be null when p4 is below 1\n'
        'p5: columns of the fifth table\n'
        'x5: in, n by p5 numbers, likewise; may be null when p5 is below 1\n'
        'y: in, n numbers, the response\n'
        'weights: in, n weights\n'
        'degree: 1\n'
        'interactions: -1: the results have room for interactions, which are not formed: their tail stays 0\n'
        'noConstant: not 0: the model has no intercept\n'
        "tolerance: limit of a term's tolerance; a term is taken in when its own is greater\n"
        'coefficients: out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions is -1: that of each column, and then the intercept\n'
        'standardErrors: out, (p1 + p2 + p3 + p4 + p5) * degree + 1 numbers, or (p1 + p2 + p3 + p4 + p5) * degree + (p1 + p2 + p3 + p4 + p5) * (p1 + p2 + p3 + p4 + p5 - 1) / 2 + 1 numbers when interactions is -1, likewise; missing with fewer rows than coefficients\n'
        'fitted: out, n numbers\n'
        'returns 0\n'
    )),
    'RunOLSBasic3': ('int', (
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('degree', 'int', '', False, (), 0),
        ('interactions', 'short int', '', False, (), 0),
        ('noConstant', 'short int', '', False, (), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('coefficients', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('standardErrors', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('fitted', 'double*', 'out', False, (('n', '1', None),), 0),
        ('sweptMatrix', 'double*', 'out', False, (('p * degree + 1', 'p * degree + 1', None), ('p * degree + p * (p - 1) / 2 + 1', 'p * degree + p * (p - 1) / 2 + 1', ('interactions', -1))), 0),
        ('means', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
        ('standardDeviations', 'double*', 'out', False, (('p * degree + 1', '1', None), ('p * degree + p * (p - 1) / 2 + 1', '1', ('interactions', -1))), 0),
    ), (
        'int RunOLSBasic3(int n, int p, const double* x, const double* y, const double* weights, int degree, short int interactions, short int noConstant, double tolerance, double* coefficients, double* standardErrors, double* fitted, double* sweptMatrix, double* means, double* standardDeviations);\n'
        '\n'
        'Regression: the same with the swept table and the statistics of the columns.\n'
        '\n'
        'n: rows\n'
        'p: predictors\n'
        'x: in, n by p numbers, column after column\n'
        'y: in, n numbers, the response\n'
        'weights: in, n weights\n'
        'degree: the highest power of a predictor\n'
        'interactions: -1: with the products of pairs of predictors\n'
        'noConstant: not 0: the model has no intercept\n'
        "tolerance: limit of a term's tolerance; a term is taken in when its own is greater\n"
        'coefficients: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: that of each term, the intercept last\n'
        'standardErrors: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1. That of the intercept is a NaN when rounding made its square negative\n'
        'fitted: out, n numbers\n'
        'sweptMatrix: out, p * degree + 1 by p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 by p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1: the correlation table after all sweeps, the response last. Its last cell is the share of the variation that stays unexplained\n'
        'means: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1\n'
        'standardDeviations: out, p * degree + 1 numbers, or p * degree + p * (p - 1) / 2 + 1 numbers when interactions is -1; 0 for each refused term\n'
        'returns 0\n'
    )),
    'SimplifyRange': ('OLECHAR*', (
        ('value', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'OLECHAR* SimplifyRange(const OLECHAR* value);\n'
        '\n'
        'Sorts the ranges of a list by their first columns and joins ranges that follow each other. Where a range\n'
        'does not follow the one before it, the last column of that one stands without its dollar. A text without a\n'
        'comma, with ranges on several sheets, with rows, or that is no such list, comes back as it is.\n'
        '\n'
        'value: in, one text: the list of ranges\n'
        'returns a new text, which the caller frees\n'
        'raises  std::bad_alloc when memory is short\n'
    )),
    'VB_BiplotTransData': ('int', (
        ('rowCoordinates', 'double*', 'in', False, (('rows', 'axes', None),), 0),
        ('extraRowCoordinates', 'double*', 'in', True, (('extraRows', 'axes', None),), 0),
        ('columnCoordinates', 'double*', 'in', False, (('columns', 'axes', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('extraRows', 'int', '', False, (), 0),
        ('columns', 'int', '', False, (), 0),
        ('axes', 'int', '', False, (), 0),
        ('singularValues', 'double*', 'in', False, (('axes', '1', None),), 0),
        ('scale', 'double', '', False, (('the', '1', None),), 0),
        ('alpha', 'double', '', False, (), 0),
        ('rowResult', 'double*', 'out', False, (('rows + extraRows', 'axes', None),), 0),
        ('columnResult', 'double*', 'out', False, (('columns', 'axes', None),), 0),
    ), (
        'int VB_BiplotTransData(const double* rowCoordinates, const double* extraRowCoordinates, const double* columnCoordinates, int rows, int extraRows, int columns, int axes, const double* singularValues, double scale, double alpha, double* rowResult, double* columnResult);\n'
        '\n'
        'Rescales the coordinates of a biplot by powers of the singular values: those of rows by s^(alpha/2 - 1/2),\n'
        'those of columns by s^(-alpha/2). A missing cell stays missing.\n'
        '\n'
        'rowCoordinates: in, rows by axes numbers, column after column\n'
        'extraRowCoordinates: in, extraRows by axes numbers, to stand below them; may be null when there are none\n'
        'columnCoordinates: in, columns by axes numbers\n'
        'rows: rows\n'
        'extraRows: further rows\n'
        'columns: columns\n'
        'axes: axes\n'
        'singularValues: in, axes numbers\n'
        'scale: the coordinates of columns are multiplied by its root; a negative one makes them missing numbers or what these come to\n'
        'alpha: 1: rows stay as they are; 0: columns do\n'
        'rowResult: out, rows + extraRows by axes numbers\n'
        'columnResult: out, columns by axes numbers\n'
        'returns 0\n'
    )),
    'VB_BiplotTransDataSPV': ('int', (
        ('rowCoordinates', 'Hostarray**', 'in', False, (), 0),
        ('extraRowCoordinates', 'double*', 'in', True, (('extraRows', 'axes', None),), 0),
        ('columnCoordinates', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('extraRows', 'int', '', False, (), 0),
        ('columns', 'int', '', False, (), 0),
        ('axes', 'int', '', False, (), 0),
        ('singularValues', 'double*', 'in', False, (('axes', '1', None),), 0),
        ('scale', 'double', '', False, (('the', '1', None),), 0),
        ('alpha', 'double', '', False, (), 0),
        ('rowResult', 'double*', 'out', False, (('rows + extraRows', 'axes', None),), 0),
        ('columnResult', 'double*', 'out', False, (('columns', 'axes', None),), 0),
    ), (
        'int VB_BiplotTransDataSPV(Hostarray** rowCoordinates, const double* extraRowCoordinates, Hostarray** columnCoordinates, int rows, int extraRows, int columns, int axes, const double* singularValues, double scale, double alpha, double* rowResult, double* columnResult);\n'
        '\n'
        'The same with coordinates in chunks.\n'
        '\n'
        'rowCoordinates: in, host array of axes columns of rows numbers\n'
        'extraRowCoordinates: in, extraRows by axes numbers, to stand below them; may be null when there are none\n'
        'columnCoordinates: in, host array of axes columns of columns numbers\n'
        'rows: rows\n'
        'extraRows: further rows\n'
        'columns: columns\n'
        'axes: axes\n'
        'singularValues: in, axes numbers\n'
        'scale: the coordinates of columns are multiplied by its root; a negative one makes them missing numbers or what these come to\n'
        'alpha: 1: rows stay as they are; 0: columns do\n'
        'rowResult: out, rows + extraRows by axes numbers\n'
        'columnResult: out, columns by axes numbers\n'
        'returns 0\n'
    )),
    'VB_BuildDisjunctiveTable': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('totalColumns', 'int', '', False, (), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('frequencies', 'double*', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('result', 'double*', 'out', False, (('n', 'totalColumns', None),), 0),
        ('coding', 'int', '', False, (), 0),
        ('firstCategoryOption', 'int', '', False, (), 0),
    ), (
        'int VB_BuildDisjunctiveTable(OLECHAR* const* data, int n, int p, int totalColumns, const int* categoryCounts, OLECHAR* const* categories, const double* frequencies, double* result, int coding, int firstCategoryOption);\n'
        '\n'
        'The disjunctive table of a table of texts.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'totalColumns: columns of the result\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'frequencies: in, p by max(categoryCounts) numbers: their frequencies\n'
        'result: out, n by totalColumns numbers\n'
        'coding: 0, 1, 2 or 3\n'
        'firstCategoryOption: 1, 2 or another value\n'
        'returns 0\n'
    )),
    'VB_CheckTolerance': ('int', (
        ('r', 'double*', 'in', False, (('p', 'p', None),), 0),
        ('p', 'int', '', False, (), 0),
        ('groupCount', 'int', '', False, (), 0),
        ('groupSelection', 'double*', 'in', False, (('groupCount', '1', None),), 0),
        ('groupNumbers', 'double*', 'in', False, (('p', '1', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('duplicates', 'short int', '', False, (), 0),
        ('entered', 'short int', '', False, (), 0),
        ('reverse', 'short int', '', False, (), 0),
        ('skipGroup', 'short int', '', False, (), 0),
        ('status', 'double*', 'out', False, (('p', '1', None),), 0),
        ('tolerances', 'double*', 'inout', False, (('p', '1', None),), 0),
        ('inflationFactors', 'double*', 'inout', False, (('p', '1', None),), 0),
    ), (
        'int VB_CheckTolerance(const double* r, int p, int groupCount, const double* groupSelection, const double* groupNumbers, double tolerance, short int duplicates, short int entered, short int reverse, short int skipGroup, double* status, double* tolerances, double* inflationFactors);\n'
        '\n'
        'The tolerance of each variable of the selected groups, the share of its variation that the others leave\n'
        'unexplained, and its variance inflation factor. Groups are screened from the last to the first.\n'
        '\n'
        'r: in, p by p numbers, the correlations, column after column\n'
        'p: variables\n'
        'groupCount: groups\n'
        'groupSelection: in, groupCount numbers; a group is screened when its number is exactly 1\n'
        'groupNumbers: in, p numbers, counted from 1: the group of each variable; the variables of a group stand side by side\n'
        'tolerance: limit below which a variable counts as explained; sweeping ends there\n'
        'duplicates: not 0: variables that correlate with an earlier one at more than 0.999999999999 in magnitude have the status 60000. -1: also those that are refused because others explain them\n'
        'entered: -1: variables of status 60000 are swept too\n'
        'reverse: -1: a group is walked from its last variable to its first\n'
        'skipGroup: -1: variables of the same group as the one screened are not swept\n'
        'status: out, p numbers: 50000 for a variable whose cell of the diagonal is 0, 60000 for a collinear one, -1 for all others\n'
        'tolerances: inout, p numbers; written for variables that are screened, and 0 for constant ones and duplicates\n'
        'inflationFactors: inout, p numbers, at the same places; missing where the tolerance is not above 0\n'
        'returns 0\n'
    )),
    'VB_ComputeNewVar': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('coefficients', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int VB_ComputeNewVar(const double* x, int rows, int cols, const double* coefficients, double* out);\n'
        '\n'
        'A new variable as a weighted sum of those of a table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'coefficients: in, cols factors\n'
        'out: out, rows numbers: the sum over the columns of cell times factor; missing when one of the cells or factors is\n'
        'returns 0\n'
    )),
    'VB_CopyMatrixColToMatrixCol': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('colTo', 'int', '', False, (), 0),
        ('bReset', 'short int', '', False, (), 0),
    ), (
        'int VB_CopyMatrixColToMatrixCol(const double* x, int rows, int cols, int col, double* y, int yRows, int yCols, int colTo, short int bReset);\n'
        '\n'
        'Copies a column of a table into a column of another.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy; one that the table does not have reads as -1\n'
        'y: inout, yRows by yCols numbers; may be x\n'
        'yRows: rows of y; what would fall below is left out\n'
        'yCols: columns of y; 0 stands for 1\n'
        'colTo: the column of y; nothing is stored in one that it does not have\n'
        'bReset: not 0: all other cells of y become 0\n'
        'returns 0\n'
    )),
    'VB_CopyMatrixColToOneColMatStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('y', 'OLECHAR**', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int VB_CopyMatrixColToOneColMatStr(OLECHAR* const* x, int rows, int cols, int col, OLECHAR** y);\n'
        '\n'
        'Copies a column of a table of texts into a vector.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy; one that the table does not have reads as empty texts\n'
        'y: out, rows texts\n'
        'returns 0\n'
    )),
    'VB_CopyMatrixColToVector': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('y', 'double*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int VB_CopyMatrixColToVector(const double* x, int rows, int cols, int col, double* y);\n'
        '\n'
        'Copies a column of a table into a vector.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy; one that the table does not have reads as -1\n'
        'y: out, rows numbers\n'
        'returns 0\n'
    )),
    'VB_CopyMatrixRowToMatrixRow': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('rowTo', 'int', '', False, (), 0),
        ('bReset', 'short int', '', False, (), 0),
    ), (
        'int VB_CopyMatrixRowToMatrixRow(const double* x, int rows, int cols, int row, double* y, int yRows, int yCols, int rowTo, short int bReset);\n'
        '\n'
        'Copies a row of a table into a row of another.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'row: the row to copy; one that the table does not have reads as -1\n'
        'y: inout, yRows by yCols numbers; may be x\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1. What would fall to the right is left out\n'
        'rowTo: the row of y; nothing is stored in one that it does not have\n'
        'bReset: not 0: all other cells of y become 0\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingMean': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingMean(double* x, int n, int p, const short int* rowFlags, const double* w);\n'
        '\n'
        'Fills the missing numbers of flagged rows by the weighted means of their columns. A column without numbers\n'
        'has the mean 0.0.\n'
        '\n'
        'x: inout, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1, and then the mean of a column without numbers is missing\n'
        'rowFlags: in, n flags; a row whose flag is 0 stays as it is. Null: all rows stay\n'
        'w: in, n weights\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingMeanPred': ('int', (
        ('statistics', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('x', 'double*', 'inout', False, (('rows', 'p', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('rowFlags', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingMeanPred(const double* statistics, int n, double* x, int rows, int p, const short int* rowFlags, const double* w);\n'
        '\n'
        'Fills the missing numbers of flagged rows by the weighted means of the columns of another table, of which a\n'
        'column without numbers has the mean 0.0.\n'
        '\n'
        'statistics: in, n by p numbers, of which the means are taken\n'
        'n: rows of that table\n'
        'x: inout, rows by p numbers\n'
        'rows: rows of the table that is filled\n'
        'p: columns of both tables; 0 stands for 1, and then the mean of a column without numbers is missing\n'
        'rowFlags: in, rows flags; a row whose flag is 0 stays as it is. Null: all rows stay\n'
        'w: in, n weights\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingMeanSPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingMeanSPV(Hostarray** x, int n, int p, const short int* rowFlags, const double* w);\n'
        '\n'
        'Fills the missing numbers of flagged rows of a chunked table by the weighted means of their columns. A\n'
        'column without numbers has the mean 0.0.\n'
        '\n'
        'x: inout, p columns of n numbers\n'
        'n: rows of the table\n'
        'p: columns of the table\n'
        'rowFlags: in, n flags; a row whose flag is 0 stays as it is. Null: all rows stay\n'
        'w: in, n weights\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingMode': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingMode(OLECHAR** x, int n, int p, const double* w);\n'
        '\n'
        'Fills the empty texts of a table by the modes of their columns: of all texts of a column the one whose\n'
        'weights have the largest sum, the first of equals.\n'
        '\n'
        'x: inout, n by p texts, replaced where they are empty\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'w: in, n weights\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingModePred': ('int', (
        ('statistics', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'p', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingModePred(OLECHAR* const* statistics, int n, OLECHAR** x, int rows, int p, const double* w);\n'
        '\n'
        'Fills the empty texts of a table by the modes of the columns of another table: of all texts of a column the\n'
        'one whose weights have the largest sum, the first of equals.\n'
        '\n'
        'statistics: in, n by p texts, of which the modes are taken\n'
        'n: rows of that table\n'
        'x: inout, rows by p texts, replaced where they are empty\n'
        'rows: rows of the table that is filled\n'
        'p: columns of both tables; 0 stands for 1\n'
        'w: in, n weights\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNN': ('int', (
        ('primary', 'double*', 'inout', True, (('n', 'primaryColumns', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('second', 'double*', 'inout', True, (('n', 'secondColumns', None),), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('third', 'OLECHAR**', 'inout', True, (('n', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNN(double* primary, int n, int primaryColumns, const short int* rowFlags, double* second, int secondColumns, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.\n'
        '\n'
        'primary: inout, n by primaryColumns numbers; may be null when primaryColumns is 0\n'
        'n: rows of all groups\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, n flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'second: inout, n by secondColumns numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'third: inout, n by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNNPred': ('int', (
        ('primaryStatistics', 'double*', 'in', True, (('n', 'primaryColumns', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('primary', 'double*', 'inout', True, (('rows', 'primaryColumns', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('secondStatistics', 'double*', 'in', True, (('n', 'secondColumns', None),), 0),
        ('second', 'double*', 'inout', True, (('rows', 'secondColumns', None),), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('thirdStatistics', 'OLECHAR**', 'in', True, (('n', 'thirdColumns', None),), 0),
        ('third', 'OLECHAR**', 'inout', True, (('rows', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNNPred(const double* primaryStatistics, int n, double* primary, int rows, int primaryColumns, const short int* rowFlags, const double* secondStatistics, double* second, int secondColumns, OLECHAR* const* thirdStatistics, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. Means,\n'
        'variances and modes are those of other tables.\n'
        '\n'
        'primaryStatistics: in, n by primaryColumns numbers; may be null when primaryColumns is 0\n'
        'n: rows of the tables of which means, variances and modes are taken\n'
        'primary: inout, rows by primaryColumns numbers; may be null when primaryColumns is 0\n'
        'rows: rows of the tables that are filled\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, rows flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'secondStatistics: in, n by secondColumns numbers; may be null when secondColumns is 0\n'
        'second: inout, rows by secondColumns numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'thirdStatistics: in, n by thirdColumns texts; may be null when thirdColumns is 0\n'
        'third: inout, rows by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNNSPV': ('int', (
        ('primary', 'Hostarray**', 'inout', True, (), 0),
        ('n', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('second', 'double*', 'inout', True, (('n', 'secondColumns', None),), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('third', 'OLECHAR**', 'inout', True, (('n', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNNSPV(Hostarray** primary, int n, int primaryColumns, const short int* rowFlags, double* second, int secondColumns, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary\n'
        'group is chunked.\n'
        '\n'
        'primary: inout, primaryColumns columns of n numbers; may be null when primaryColumns is 0\n'
        'n: rows of all groups\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, n flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'second: inout, n by secondColumns numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'third: inout, n by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNNSPV2': ('int', (
        ('primary', 'Hostarray**', 'inout', True, (), 0),
        ('n', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('second', 'Hostarray**', 'inout', True, (), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('third', 'OLECHAR**', 'inout', True, (('n', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNNSPV2(Hostarray** primary, int n, int primaryColumns, const short int* rowFlags, Hostarray** second, int secondColumns, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary\n'
        'and second groups are chunked.\n'
        '\n'
        'primary: inout, primaryColumns columns of n numbers; may be null when primaryColumns is 0\n'
        'n: rows of all groups\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, n flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'second: inout, secondColumns columns of n numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'third: inout, n by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNNStr': ('int', (
        ('primary', 'OLECHAR**', 'inout', True, (('n', 'primaryColumns', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('second', 'double*', 'inout', True, (('n', 'secondColumns', None),), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('third', 'OLECHAR**', 'inout', True, (('n', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNNStr(OLECHAR** primary, int n, int primaryColumns, const short int* rowFlags, double* second, int secondColumns, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary\n'
        'group is one of texts.\n'
        '\n'
        'primary: inout, n by primaryColumns texts, replaced where they are empty; may be null when primaryColumns is 0\n'
        'n: rows of all groups\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, n flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'second: inout, n by secondColumns numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'third: inout, n by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_EstimateRowsWithMissingNNStrPred': ('int', (
        ('primaryStatistics', 'OLECHAR**', 'in', True, (('n', 'primaryColumns', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('primary', 'OLECHAR**', 'inout', True, (('rows', 'primaryColumns', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('primaryColumns', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('secondStatistics', 'double*', 'in', True, (('n', 'secondColumns', None),), 0),
        ('second', 'double*', 'inout', True, (('rows', 'secondColumns', None),), 0),
        ('secondColumns', 'int', '', False, (), 0),
        ('thirdStatistics', 'OLECHAR**', 'in', True, (('n', 'thirdColumns', None),), 0),
        ('third', 'OLECHAR**', 'inout', True, (('rows', 'thirdColumns', None),), 0),
        ('thirdColumns', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_EstimateRowsWithMissingNNStrPred(OLECHAR* const* primaryStatistics, int n, OLECHAR** primary, int rows, int primaryColumns, const short int* rowFlags, const double* secondStatistics, double* second, int secondColumns, OLECHAR* const* thirdStatistics, OLECHAR** third, int thirdColumns, const double* w);\n'
        '\n'
        'Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary\n'
        'group is one of texts; means, variances and modes are those of other tables.\n'
        '\n'
        'primaryStatistics: in, n by primaryColumns texts; may be null when primaryColumns is 0\n'
        'n: rows of the tables of which means, variances and modes are taken\n'
        'primary: inout, rows by primaryColumns texts, replaced where they are empty; may be null when primaryColumns is 0\n'
        'rows: rows of the tables that are filled\n'
        'primaryColumns: columns of the primary group; below 1 there is none\n'
        'rowFlags: in, rows flags; a row whose flag is not 0 is filled. Null: no row is\n'
        'secondStatistics: in, n by secondColumns numbers; may be null when secondColumns is 0\n'
        'second: inout, rows by secondColumns numbers; may be null when secondColumns is 0\n'
        'secondColumns: columns of the second group; below 1 there is none\n'
        'thirdStatistics: in, n by thirdColumns texts; may be null when thirdColumns is 0\n'
        'third: inout, rows by thirdColumns texts, replaced where they are empty; may be null when thirdColumns is 0\n'
        'thirdColumns: columns of the third group; below 1 there is none\n'
        'w: in, n weights for means, variances and modes\n'
        'returns 0\n'
    )),
    'VB_FilterEigen': ('int', (
        ('values', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('dropTail', 'short int', '', False, (), 0),
        ('threshold', 'double', '', False, (('what', '1', None),), 0),
        ('cumulativePercent', 'double', '', False, (), 0),
        ('maxCount', 'int', '', False, (), 0),
        ('minValue', 'double', '', False, (), 0),
        ('kept', 'int*', 'out', False, (('1', '1', None),), 0),
        ('retained', 'int*', 'out', False, (('1', '1', None),), 0),
        ('percents', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_FilterEigen(double* values, int n, short int dropTail, double threshold, double cumulativePercent, int maxCount, double minValue, int* kept, int* retained, double* percents);\n'
        '\n'
        "Drops small eigenvalues from the end, takes each one's share of the sum of those that are left, and counts\n"
        'how many of the leading ones satisfy all bounds. The first value is never dropped.\n'
        '\n'
        'values: inout, n eigenvalues in descending order; the last may be set to 0\n'
        'n: number of values\n'
        'dropTail: not 0: values below the threshold are dropped from the end. 0: the last one below it is set to 0, and with a threshold above 0 the call then does not return\n'
        'threshold: what is below it is not kept\n'
        'cumulativePercent: with a number above 0, the first values whose shares, in percent, sum up to at least it are enough\n'
        'maxCount: with a number above 0, no more than so many are enough\n'
        'minValue: with a number above 0, each value below minValue + 1e-12 lowers the number by one\n'
        'kept: out, one integer: how many values were not dropped; 0 when their sum is NaN\n'
        'retained: out, one integer: the smallest of the four numbers\n'
        'percents: out, n shares of the values in the sum of those kept, in percent; 0.0 for a dropped one\n'
        'returns 0\n'
    )),
    'VB_GenerateIndicator': ('int', (
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('first', 'int', '', False, (), 0),
        ('last', 'int', '', False, (), 0),
    ), (
        'int VB_GenerateIndicator(double* out, int n, int first, int last);\n'
        '\n'
        'Marks a range of elements.\n'
        '\n'
        'out: out, n numbers: 1 at positions first..last, 0 elsewhere\n'
        'n: number of elements\n'
        'first: first position to mark, from 1; a position outside is left out\n'
        'last: last position to mark, included\n'
        'returns 0\n'
    )),
    'VB_GenerateRandomIndicator': ('int', (
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('k', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Marks a random subset of k out of n elements: those of the k smallest of n uniform draws.\n'
        '\n'
        'out: out, n numbers, 1 for the elements of the subset, 0 for the others\n'
        'n: number of elements\n'
        'k: size of the subset; below 1 none, from n on all\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_HMergeTableVect': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('outRows', 'outCols', None),), 0),
        ('outRows', 'int', '', False, (), 0),
        ('outCols', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTableVect(const double* x, int rows, int cols, const double* v, int n, double* out, int outRows, int outCols);\n'
        '\n'
        'Puts a vector to the right of a table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'v: in, n numbers, for column cols + 1\n'
        'n: length of the vector\n'
        'out: out, outRows by outCols numbers; what falls outside of them is left out\n'
        'outRows: rows of the result\n'
        'outCols: columns of the result; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeTableVect2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols + 1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int VB_HMergeTableVect2(double* x, int rows, int cols, const double* v, int n);\n'
        '\n'
        'Adds a vector to the right of a table, in place.\n'
        '\n'
        'x: inout, rows by cols + 1 numbers, of which the last column receives the vector; rows that it does not have stay\n'
        'rows: rows of the table\n'
        'cols: columns that the table has already; 0 stands for 1\n'
        'v: in, n numbers; those beyond rows are left out\n'
        'n: length of the vector\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesBool': ('int', (
        ('a', 'short int*', 'in', False, (('rowsA', 'colsA', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'short int*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
        ('out', 'short int*', 'out', False, (('max(rowsA, rowsB)', 'colsA + colsB', None),), 0),
    ), (
        'int VB_HMergeTablesBool(const short int* a, int rowsA, int colsA, const short int* b, int rowsB, int colsB, short int* out);\n'
        '\n'
        'Puts two tables of flags side by side.\n'
        '\n'
        'a: in, rowsA by colsA flags\n'
        'rowsA: rows of the first table\n'
        'colsA: columns of the first table; 0 stands for 1\n'
        'b: in, rowsB by colsB flags\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'out: out, max(rowsA, rowsB) by colsA + colsB flags: the columns of the first table, then those of the second\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesBool2': ('int', (
        ('a', 'short int*', 'inout', False, (('rowsA', 'colsA + colsB', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'short int*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTablesBool2(short int* a, int rowsA, int colsA, const short int* b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a table of flags to the right of another, in place.\n'
        '\n'
        'a: inout, rowsA by colsA + colsB flags, of which the last colsB columns receive the second table; of these, rows that it does not have stay\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already; 0 stands for 1\n'
        'b: in, rowsB by colsB flags; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesDbl': ('int', (
        ('a', 'double*', 'in', False, (('rowsA', 'colsA', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'double*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
        ('out', 'double*', 'out', False, (('max(rowsA, rowsB)', 'colsA + colsB', None),), 0),
    ), (
        'int VB_HMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB, double* out);\n'
        '\n'
        'Puts two tables of numbers side by side.\n'
        '\n'
        'a: in, rowsA by colsA numbers\n'
        'rowsA: rows of the first table\n'
        'colsA: columns of the first table; 0 stands for 1\n'
        'b: in, rowsB by colsB numbers\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'out: out, max(rowsA, rowsB) by colsA + colsB numbers: the columns of the first table, then those of the second\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesDbl2': ('int', (
        ('a', 'double*', 'inout', False, (('rowsA', 'colsA + colsB', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'double*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTablesDbl2(double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a table of numbers to the right of another, in place.\n'
        '\n'
        'a: inout, rowsA by colsA + colsB numbers, of which the last colsB columns receive the second table; of these, rows that it does not have stay\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already; 0 stands for 1\n'
        'b: in, rowsB by colsB numbers; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesDbl2SPV': ('int', (
        ('a', 'Hostarray**', 'inout', False, (), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTablesDbl2SPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a table of numbers to a chunked one, in place.\n'
        '\n'
        'a: inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers, of which the last colsB receive the second table\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already\n'
        'b: in, rowsB by colsB numbers; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesDbl2SPV2': ('int', (
        ('a', 'Hostarray**', 'inout', False, (), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 0),
        ('b', 'Hostarray**', 'in', False, (), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 0),
    ), (
        'int VB_HMergeTablesDbl2SPV2(Hostarray** a, int rowsA, int colsA, Hostarray** b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a chunked table of numbers to another, in place.\n'
        '\n'
        'a: inout, host array of colsA + colsB records, each with a numeric column of rowsA numbers, of which the last colsB receive the second table\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already\n'
        'b: in, host array of colsB records, each with a numeric column of rowsB numbers; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesLng2': ('int', (
        ('a', 'int*', 'inout', False, (('rowsA', 'colsA + colsB', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'int*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTablesLng2(int* a, int rowsA, int colsA, const int* b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a table of integers to the right of another, in place.\n'
        '\n'
        'a: inout, rowsA by colsA + colsB integers, of which the last colsB columns receive the second table; of these, rows that it does not have stay\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already; 0 stands for 1\n'
        'b: in, rowsB by colsB integers; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesStr': ('int', (
        ('a', 'OLECHAR**', 'in', False, (('rowsA', 'colsA', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'OLECHAR**', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
        ('out', 'OLECHAR**', 'out', False, (('max(rowsA, rowsB)', 'colsA + colsB', None),), 0),
    ), (
        'int VB_HMergeTablesStr(OLECHAR* const* a, int rowsA, int colsA, OLECHAR* const* b, int rowsB, int colsB, OLECHAR** out);\n'
        '\n'
        'Puts two tables of texts side by side.\n'
        '\n'
        'a: in, rowsA by colsA texts\n'
        'rowsA: rows of the first table\n'
        'colsA: columns of the first table; 0 stands for 1\n'
        'b: in, rowsB by colsB texts\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'out: out, max(rowsA, rowsB) by colsA + colsB texts: the columns of the first table, then those of the second\n'
        'returns 0\n'
    )),
    'VB_HMergeTablesStr2': ('int', (
        ('a', 'OLECHAR**', 'inout', False, (('rowsA', 'colsA + colsB', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'OLECHAR**', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeTablesStr2(OLECHAR** a, int rowsA, int colsA, OLECHAR* const* b, int rowsB, int colsB);\n'
        '\n'
        'Adds the columns of a table of texts to the right of another, in place.\n'
        '\n'
        'a: inout, rowsA by colsA + colsB texts, of which the last colsB columns receive the second table; of these, rows that it does not have stay\n'
        'rowsA: rows of the first table\n'
        'colsA: columns that the first table has already; 0 stands for 1\n'
        'b: in, rowsB by colsB texts; rows beyond rowsA are left out\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeVectColDbl': ('int', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('outRows', '2', None),), 0),
        ('outRows', 'int', '', False, (), 0),
    ), (
        'int VB_HMergeVectColDbl(const double* v, int n, const double* x, int rows, int cols, int col, double* out, int outRows);\n'
        '\n'
        'Puts a vector to the left of one column of a table.\n'
        '\n'
        'v: in, n numbers, for column 1\n'
        'n: length of the vector\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        "col: the table's column, from 1, for column 2; one that it does not have gives -1\n"
        'out: out, outRows by 2 numbers; what falls outside of them is left out\n'
        'outRows: rows of the result\n'
        'returns 0\n'
    )),
    'VB_HMergeVectTable': ('int', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('out', 'double*', 'out', False, (('outRows', 'outCols', None),), 0),
        ('outRows', 'int', '', False, (), 0),
        ('outCols', 'int', '', False, (), 1),
    ), (
        'int VB_HMergeVectTable(const double* v, int n, const double* x, int rows, int cols, double* out, int outRows, int outCols);\n'
        '\n'
        'Puts a vector to the left of a table.\n'
        '\n'
        'v: in, n numbers, for column 1\n'
        'n: length of the vector\n'
        'x: in, rows by cols numbers, for the columns from 2 on\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'out: out, outRows by outCols numbers; what falls outside of them is left out\n'
        'outRows: rows of the result\n'
        'outCols: columns of the result; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_HMergeVectors': ('int', (
        ('a', 'double*', 'in', False, (('nA', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('max(nA, nB)', '2', None),), 0),
    ), (
        'int VB_HMergeVectors(const double* a, int nA, const double* b, int nB, double* out);\n'
        '\n'
        'Puts two vectors side by side.\n'
        '\n'
        'a: in, nA numbers\n'
        'nA: length of the first vector\n'
        'b: in, nB numbers\n'
        'nB: length of the second vector\n'
        'out: out, max(nA, nB) by 2 numbers\n'
        'returns 0\n'
    )),
    'VB_InitVectorToFalse': ('int', (
        ('flags', 'short int*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_InitVectorToFalse(short int* flags, int n);\n'
        '\n'
        'Sets flags to false.\n'
        '\n'
        'flags: out, n flags, each 0 on return\n'
        'n: number of flags\n'
        'returns 0\n'
    )),
    'VB_InitVectorToTrue': ('int', (
        ('flags', 'short int*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_InitVectorToTrue(short int* flags, int n);\n'
        '\n'
        'Sets flags to true.\n'
        '\n'
        'flags: out, n flags, each -1 on return\n'
        'n: number of flags\n'
        'returns 0\n'
    )),
    'VB_IsMissingValueDbl': ('short int', (
        ('x', 'double', '', False, (), 0),
    ), (
        'short int VB_IsMissingValueDbl(double x);\n'
        '\n'
        'Tells whether a number is missing: whether it is at or below the sentinel -1.79769313486231e308.\n'
        '\n'
        'x: a number; a NaN is not missing\n'
        'returns -1 when missing, otherwise 0\n'
    )),
    'VB_IsMissingValueStr': ('short int', (
        ('cell', 'VARIANT*', 'in', False, (('1', '1', None),), 0),
    ), (
        'short int VB_IsMissingValueStr(const VARIANT* cell);\n'
        '\n'
        'Tells whether a cell, rendered as text, is empty.\n'
        '\n'
        'cell: in, one cell of any type, or a reference to one. A text is missing when it has no characters before its first NUL; a number, a date or a Boolean never is; an empty cell always is\n'
        'returns -1 when missing, otherwise 0\n'
    )),
    'VB_MAE': ('double', (
        ('actual', 'double*', 'in', False, (('n', '1', None),), 0),
        ('predicted', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('w', 'double*', 'in', True, (('n', '1', None),), 0),
        ('first', 'int', '', False, (), 0),
    ), (
        'double VB_MAE(const double* actual, const double* predicted, int n, const double* w, int first);\n'
        '\n'
        'Mean absolute error, weighted.\n'
        '\n'
        'actual: in, n values observed\n'
        'predicted: in, n values forecast\n'
        'n: number of rows\n'
        'w: in, n weights; null: all 1.0\n'
        'first: first row, from 1\n'
        'returns the error; the missing number when first is above n or the weights add up to 0\n'
    )),
    'VB_MAPE': ('double', (
        ('actual', 'double*', 'in', False, (('n', '1', None),), 0),
        ('predicted', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('w', 'double*', 'in', True, (('n', '1', None),), 0),
        ('first', 'int', '', False, (), 1),
    ), (
        'double VB_MAPE(const double* actual, const double* predicted, int n, const double* w, int first);\n'
        '\n'
        'Mean absolute percentage error, weighted, over the rows whose observed value is not 0.\n'
        '\n'
        'actual: in, n values observed\n'
        'predicted: in, n values forecast\n'
        'n: number of rows\n'
        'w: in, n weights; null: all 1.0\n'
        'first: first row, from 1; 0 stands for 1\n'
        'returns the error in percent; 0.0 when no row counts\n'
    )),
    'VB_MPE': ('double', (
        ('actual', 'double*', 'in', False, (('n', '1', None),), 0),
        ('predicted', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('w', 'double*', 'in', True, (('n', '1', None),), 0),
        ('first', 'int', '', False, (), 0),
    ), (
        'double VB_MPE(const double* actual, const double* predicted, int n, const double* w, int first);\n'
        '\n'
        'Mean percentage error, weighted, over the rows whose observed value is not 0.\n'
        '\n'
        'actual: in, n values observed\n'
        'predicted: in, n values forecast\n'
        'n: number of rows\n'
        'w: in, n weights; null: all 1.0\n'
        'first: first row, from 1\n'
        'returns the error in percent; the missing number when first is above n or the weights add up to 0\n'
    )),
    'VB_M_APlusVal': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double', '', False, (('what', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_APlusVal(const double* a, int n, int p, double s, double* c);\n'
        '\n'
        'c(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        's: what is added\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_APlusVal2': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double', '', False, (('what', '1', None),), 0),
    ), (
        'int VB_M_APlusVal2(double* a, int n, int p, double s);\n'
        '\n'
        'a(i, j) = a(i, j) + s. Missing cells are numbers here: the sum is no longer missing.\n'
        '\n'
        'a: inout, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        's: what is added\n'
        'returns 0\n'
    )),
    'VB_M_AllMissingRows': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('flagsIn', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('flagsOut', 'short int*', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int VB_M_AllMissingRows(const double* x, int n, int p, const short int* flagsIn, short int* flagsOut);\n'
        '\n'
        'Flags the flagged rows that have nothing but missing numbers.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'flagsIn: in, n flags, one for each row; only rows with -1 are looked at\n'
        'flagsOut: inout, n flags, one for each row: -1 for one that has nothing but missing cells; the others stay\n'
        'returns 0\n'
    )),
    'VB_M_AllMissingRowsStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('flagsIn', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('flagsOut', 'short int*', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int VB_M_AllMissingRowsStr(OLECHAR* const* x, int n, int p, const short int* flagsIn, short int* flagsOut);\n'
        '\n'
        'Flags the flagged rows that have nothing but empty texts.\n'
        '\n'
        'x: in, n by p texts\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'flagsIn: in, n flags, one for each row; only rows with -1 are looked at\n'
        'flagsOut: inout, n flags, one for each row: -1 for one that has nothing but missing cells; the others stay\n'
        'returns 0\n'
    )),
    'VB_M_Binarize': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('result', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_Binarize(const double* x, int n, int p, double* result);\n'
        '\n'
        '0 for a number closer to 0 than the machine epsilon, 1 for any other. A missing number stays missing.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'result: out, n by p numbers; may be x\n'
        'returns 0\n'
    )),
    'VB_M_Binarize2': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
    ), (
        'int VB_M_Binarize2(double* x, int n, int p);\n'
        '\n'
        '0 for a number closer to 0 than the machine epsilon, 1 for any other, in place. A missing number becomes 1.\n'
        '\n'
        'x: inout, n by p numbers\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'returns 0\n'
    )),
    'VB_M_Binarize2SPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int VB_M_Binarize2SPV(Hostarray** x, int p, int n);\n'
        '\n'
        'The same of a chunked table.\n'
        '\n'
        'x: inout, p columns of n numbers\n'
        'p: number of columns\n'
        'n: number of rows\n'
        'returns 0\n'
    )),
    'VB_M_Center': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_Center(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'Centres into a result.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows by cols numbers; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_M_Center2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Center2(double* x, int rows, int cols);\n'
        '\n'
        'Centres in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'returns 0\n'
    )),
    'VB_M_Center2SPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Center2SPV(Hostarray** x, int rows, int cols);\n'
        '\n'
        'The same on a table of separate columns.\n'
        '\n'
        'x: inout, cols columns of rows numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'returns 0\n'
    )),
    'VB_M_CenterW': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_CenterW(const double* x, int rows, int cols, const double* w, double* out);\n'
        '\n'
        'Centres, with weights, into a result.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights\n'
        'out: out, rows by cols numbers; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_CenterW2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_CenterW2(double* x, int rows, int cols, const double* w);\n'
        '\n'
        'Centres, with weights, in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights; may be a column of x\n'
        'returns 0\n'
    )),
    'VB_M_CheckIfSimOrDissim': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_CheckIfSimOrDissim(const double* x, int rows, int cols);\n'
        '\n'
        'Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative\n'
        'cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing\n'
        'cells off the diagonal are passed over.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a table that is not square or has no rows\n'
    )),
    'VB_M_CheckIfSimOrDissimSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_CheckIfSimOrDissimSPV(Hostarray** x, int rows, int cols);\n'
        '\n'
        'Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative\n'
        'cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing\n'
        'cells off the diagonal are passed over.\n'
        '\n'
        'x: in, chunked table of cols columns of rows numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a table that is not square or has no rows\n'
    )),
    'VB_M_CholDecomp': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('l', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_CholDecomp(const double* a, int n, double* l);\n'
        '\n'
        'Cholesky decomposition.\n'
        '\n'
        'a: in, n by n numbers, column after column, of which the upper half is read\n'
        'n: rows and columns\n'
        'l: out, n by n numbers, column after column; 0 above the diagonal, and, on failure, in the columns that were not finished. May be the array that is read\n'
        'returns 0; -1: a is not positive definite\n'
    )),
    'VB_M_CholDecompCleaned': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('l', 'double*', 'inout', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_CholDecompCleaned(const double* a, int n, const int* constraints, double* l);\n'
        '\n'
        'Cholesky factor of the free rows and columns. A pivot fails when it is below 0, or is 0 and has elements\n'
        'below it: a positive semidefinite table may pass.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns\n'
        'constraints: in, n integers\n'
        'l: inout, n by n numbers; the columns of free positions are written whole, with 0 in the other rows. The other columns stay as they are, and so does all of l on failure\n'
        'returns 0; -1: a pivot fails\n'
    )),
    'VB_M_CholDecompPrinc': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('l', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('perm', 'int*', 'out', False, (('n', '1', None),), 0),
        ('replaceInput', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short int replaceInput);\n'
        '\n'
        'Cholesky decomposition with rows and columns exchanged alike. What is brought to the front is chosen by a\n'
        'score that takes off the pivot before only, so it is not the order of complete pivoting. The work ends at\n'
        'the first pivot below 1e-12.\n'
        '\n'
        'a: inout, n by n numbers, column after column\n'
        'n: rows and columns\n'
        'l: out, n by n numbers, the factor of the permuted table, as far as it goes\n'
        'perm: out, n integers; element i is the number, from 1, of the variable at position i\n'
        'replaceInput: true only when -1: a is replaced by the permuted table, on failure too\n'
        'returns 0; -1: a pivot was below 1e-12\n'
    )),
    'VB_M_CopyBlock': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('lastRow - firstRow + 1', 'lastCol - firstCol + 1', None),), 0),
    ), (
        'int VB_M_CopyBlock(const double* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, double* out);\n'
        '\n'
        'Copies a block of a table of numbers.\n'
        '\n'
        'x: in, rows by cols numbers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block\n'
        'lastCol: last column of the block; below firstCol nothing is done\n'
        'out: out, lastRow - firstRow + 1 by lastCol - firstCol + 1 numbers\n'
        'returns 0\n'
    )),
    'VB_M_CopyBlockSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'Hostarray**', 'inout', False, (), 0),
    ), (
        'int VB_M_CopyBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, Hostarray** out);\n'
        '\n'
        'Copies a block of a chunked table.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block, at least 1\n'
        'lastCol: last column of the block, at most cols; below firstCol nothing is done\n'
        'out: inout, host array of a record for each column of the block, each with a numeric column of as many numbers as the block has rows\n'
        'returns 0\n'
    )),
    'VB_M_CopyBlockStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'out', False, (('lastRow - firstRow + 1', 'lastCol - firstCol + 1', None),), 0),
    ), (
        'int VB_M_CopyBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, int firstCol, int lastCol, OLECHAR** out);\n'
        '\n'
        'Copies a block of a table of texts.\n'
        '\n'
        'x: in, rows by cols texts; cells outside of them read as the empty text\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the block\n'
        'lastRow: last row of the block; below firstRow nothing is done\n'
        'firstCol: first column of the block\n'
        'lastCol: last column of the block; below firstCol nothing is done\n'
        'out: out, lastRow - firstRow + 1 by lastCol - firstCol + 1 texts\n'
        'returns 0\n'
    )),
    'VB_M_CopyResize': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'out', False, (('newRows', 'newCols', None),), 0),
        ('newRows', 'int', '', False, (), 0),
        ('newCols', 'int', '', False, (), 1),
    ), (
        'int VB_M_CopyResize(const double* x, int rows, int cols, double* y, int newRows, int newCols);\n'
        '\n'
        'Copies a table of numbers into another shape. Cells that it does not have become -1.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: out, newRows by newCols numbers; may be x\n'
        'newRows: rows of the result\n'
        'newCols: columns of the result; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_M_CopyResizeBool': ('int', (
        ('x', 'short int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'short int*', 'out', False, (('newRows', 'newCols', None),), 0),
        ('newRows', 'int', '', False, (), 0),
        ('newCols', 'int', '', False, (), 1),
    ), (
        'int VB_M_CopyResizeBool(const short int* x, int rows, int cols, short int* y, int newRows, int newCols);\n'
        '\n'
        'Copies a table of flags into another shape. Cells that it does not have become 0.\n'
        '\n'
        'x: in, rows by cols flags\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: out, newRows by newCols flags; may be x\n'
        'newRows: rows of the result\n'
        'newCols: columns of the result; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_M_CopyResizeStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'OLECHAR**', 'out', False, (('newRows', 'newCols', None),), 0),
        ('newRows', 'int', '', False, (), 0),
        ('newCols', 'int', '', False, (), 1),
    ), (
        'int VB_M_CopyResizeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int newRows, int newCols);\n'
        '\n'
        'Copies a table of texts into another shape. Cells that it does not have become the empty text.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: out, newRows by newCols texts; may be x\n'
        'newRows: rows of the result\n'
        'newCols: columns of the result; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_M_CopyToBigger': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
    ), (
        'int VB_M_CopyToBigger(const double* x, int rows, int cols, double* y, int yRows, int yCols);\n'
        '\n'
        'Copies a table to the top left corner of a larger one, of which all other cells stay. What would fall\n'
        'outside of it is left out.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: inout, yRows by yCols numbers; may be x\n'
        'yRows: rows of the larger table\n'
        'yCols: columns of the larger table; 0 stands for 1\n'
        'returns 0\n'
    )),
    'VB_M_CorrMatFromCovMat': ('int', (
        ('cov', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CorrMatFromCovMat(const double* cov, int n, double* out, short int bUndefinedIsZero);\n'
        '\n'
        'Correlations from covariances: each cell over the root of the product of the two variances on the diagonal,\n'
        'where that product is greater than 0. The diagonal is 1.0 where the variance is greater than 1e-12. All\n'
        'other cells are undefined.\n'
        '\n'
        'cov: in, n by n covariances, read cell by cell: they need not be symmetric\n'
        'n: order\n'
        'out: out, n by n correlations\n'
        'bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing\n'
        'returns 0\n'
    )),
    'VB_M_CorrMatMat': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'colsX', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('colsX', 'int', '', False, (), 0),
        ('y', 'double*', 'in', False, (('rows', 'colsY', None),), 0),
        ('colsY', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('colsX', 'colsY', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('bSquare', 'short int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CorrMatMat(const double* x, int rows, int colsX, const double* y, int colsY, double* out, const short int* iMissing, const double* w, short int bCorr, short int bSquare, short int bUnbiased, short int bFreq, short int bUndefinedIsZero);\n'
        '\n'
        'Covariances, or correlations, of each column of one table with each column of another. The variances behind\n'
        'a correlation are those over the rows common to the pair.\n'
        '\n'
        'x: in, rows by colsX numbers\n'
        'rows: rows\n'
        'colsX: columns of x\n'
        'y: in, rows by colsY numbers\n'
        'colsY: columns of y\n'
        'out: out, colsX by colsY numbers\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bCorr: not 0: correlations, where the magnitude of the product of the variances is greater than 1e-12; elsewhere the cell is undefined\n'
        'bSquare: not 0: correlations are squared\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing\n'
        'returns 0\n'
    )),
    'VB_M_CorrMatMatSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('colsX', 'int', '', False, (), 0),
        ('y', 'Hostarray**', 'in', False, (), 0),
        ('colsY', 'int', '', False, (), 0),
        ('out', 'Hostarray**', 'inout', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('bSquare', 'short int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CorrMatMatSPV(Hostarray** x, int rows, int colsX, Hostarray** y, int colsY, Hostarray** out, const short int* iMissing, const double* w, short int bCorr, short int bSquare, short int bUnbiased, short int bFreq, short int bUndefinedIsZero);\n'
        '\n'
        'VB_M_CorrMatMat on tables of separate columns.\n'
        '\n'
        'x: in, host array of colsX columns of rows numbers\n'
        'rows: rows\n'
        'colsX: columns of x\n'
        'y: in, host array of colsY columns of rows numbers\n'
        'colsY: columns of y\n'
        'out: inout, host array of colsY columns that receive colsX numbers each\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bCorr: not 0: correlations, where the magnitude of the product of the variances is greater than 1e-12; elsewhere the cell is undefined\n'
        'bSquare: not 0: correlations are squared\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bUndefinedIsZero: not 0: an undefined cell is 0.0; otherwise it is missing\n'
        'returns 0\n'
    )),
    'VB_M_CovCorr': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', 'cols', None),), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CovCorr(const double* x, int rows, int cols, double* out, short int bCorr, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq, short int bUndefinedIsZero);\n'
        '\n'
        'Covariances, or correlations, of all pairs of columns. A correlation is defined when the product of the\n'
        'variances is other than 0.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols by cols numbers, both halves\n'
        'bCorr: not 0: correlations\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bUndefinedIsZero: what an undefined cell is; true unless 0\n'
        'returns 0\n'
    )),
    'VB_M_CovCorrAndMeanStDevVar': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', 'cols', None),), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('vars', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bCenter', 'short int', '', False, (), 0),
        ('bReduce', 'short int', '', False, (), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CovCorrAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means, double* sds, double* vars, short int bCorr, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq, short int bCenter, short int bReduce, short int bUndefinedIsZero);\n'
        '\n'
        'Covariances, or correlations, with the mean, the standard deviation and the variance of each column; on\n'
        'request the table itself is centred and reduced. A correlation is defined when the product of the variances\n'
        'is greater than 0.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols by cols numbers, both halves\n'
        'means: out, cols means; missing for a column without rows\n'
        'sds: out, cols deviations: the root of a variance greater than 0, any other variance as it is\n'
        'vars: out, cols variances; missing for a column without rows\n'
        'bCorr: -1: correlations\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bCenter: -1: each number that is neither missing nor in a flagged row loses the mean of its column\n'
        'bReduce: -1: it is divided by the deviation, after the mean is subtracted if bCenter asks for that; a column whose variance is not greater than 0 stays as it is\n'
        'bUndefinedIsZero: what an undefined cell is; true unless 0\n'
        'returns 0\n'
    )),
    'VB_M_CovCorrVAndMeanStDevVar': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', 'cols', None),), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('vars', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('bCorr', 'short int', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('bCenter', 'short int', '', False, (), 0),
        ('bReduce', 'short int', '', False, (), 0),
        ('bUndefinedIsZero', 'short int', '', False, (), 0),
    ), (
        'int VB_M_CovCorrVAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means, double* sds, double* vars, short int bCorr, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq, short int bCenter, short int bReduce, short int bUndefinedIsZero);\n'
        '\n'
        'The same as VB_M_CovCorrAndMeanStDevVar.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols by cols numbers\n'
        'means: out, cols means\n'
        'sds: out, cols deviations\n'
        'vars: out, cols variances\n'
        'bCorr: -1: correlations\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'bCenter: -1: the table is centred\n'
        'bReduce: -1: it is reduced\n'
        'bUndefinedIsZero: what an undefined cell is; true unless 0\n'
        'returns 0\n'
    )),
    'VB_M_Dedupe': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'p + 1', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('nOut', 'int*', 'out', False, (('1', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'p + 3', None),), 0),
    ), (
        'int VB_M_Dedupe(const double* x, int rows, int p, int* nOut, double* out);\n'
        '\n'
        'Merges rows that are equal, exactly, in all data columns. The kept rows come first, in the order of their\n'
        'identifiers, then the dropped ones.\n'
        '\n'
        'x: in, rows by p + 1 numbers: p data columns, then an identifier of the row\n'
        'rows: rows of both tables\n'
        'p: number of data columns\n'
        'nOut: out, one integer: the number of rows kept\n'
        'out: out, rows by p + 3 numbers: the data, the number of rows merged (0 for a dropped row), the identifier, and 1 for a kept row, 0 for a dropped one\n'
        'returns 0\n'
    )),
    'VB_M_Determinant': ('double', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('status', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double VB_M_Determinant(const double* a, int n, short int* status);\n'
        '\n'
        'The determinant, as the exponential of the logarithms of the pivots of an LU decomposition.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns\n'
        'status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above 709, or memory is short; 1: all of the first column is NaN\n'
        'returns the determinant; 0.0 for a singular table, for a pivot below 1e-24 in magnitude, for a logarithm below -708, for a row of zeros and a first column of NaN; 1.79769313486231e308 when the logarithm is above 709 or memory is short; 1.0 when n is 0\n'
    )),
    'VB_M_DeterminantCleaned': ('double', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('constraints', 'int*', 'in', False, (('n', '1', None),), 0),
        ('status', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double VB_M_DeterminantCleaned(const double* a, int n, const int* constraints, short int* status);\n'
        '\n'
        'The determinant of the free rows and columns.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'n: rows and columns\n'
        'constraints: in, n integers\n'
        'status: out, one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above 709, or memory is short; 1: all of the first column is NaN\n'
        'returns the determinant, as VB_M_Determinant returns it; 1.0 when no position is left\n'
    )),
    'VB_M_DeterminantTriang': ('double', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('status', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double VB_M_DeterminantTriang(const double* a, int n, short int* status);\n'
        '\n'
        'The determinant of a triangular table: the product of its diagonal, by logarithms.\n'
        '\n'
        'a: in, n by n numbers, column after column, of which the diagonal is read\n'
        'n: rows and columns\n'
        'status: out, one status: 0\n'
        'returns the determinant; 0.0 when an element of the diagonal is 0\n'
    )),
    'VB_M_DuplicateDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_DuplicateDbl(const double* x, int rows, int cols, double* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a table of numbers into another.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'y: inout, yRows by yCols numbers; may be x\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'VB_M_DuplicateLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'int*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_DuplicateLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a table of integers into another.\n'
        '\n'
        'x: in, rows by cols integers\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'y: inout, yRows by yCols integers; may be x\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'VB_M_DuplicateStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'OLECHAR**', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_DuplicateStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a table of texts into another.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of x\n'
        'cols: columns of x; 0 stands for 1\n'
        'y: inout, yRows by yCols texts; may be x\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'VB_M_DuplicateStrSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'OLECHAR**', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_DuplicateStrSPV(Hostarray** x, int rows, int cols, OLECHAR** y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Copies a chunked table of texts into a dense one.\n'
        '\n'
        'x: in, host array of cols records, each with a text column of rows texts\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, yRows by yCols texts\n'
        'yRows: rows of y\n'
        'yCols: columns of y; 0 stands for 1\n'
        'row: row of y for the first row of x\n'
        'col: column of y for the first column of x\n'
        'returns 0\n'
    )),
    'VB_M_Eigen': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('values', 'double*', 'out', False, (('n', '1', None),), 0),
        ('vectors', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('sortFlag', 'short int', '', False, (), 0),
    ), (
        'int VB_M_Eigen(const double* a, double* values, double* vectors, int n, short int sortFlag);\n'
        '\n'
        'Eigenvalues and eigenvectors of a symmetric table.\n'
        '\n'
        'a: in, n by n numbers, column after column\n'
        'values: out, n eigenvalues, written unless -1 is returned; may be a\n'
        'vectors: out, n by n numbers, the eigenvector of value k in column k, written unless -1 is returned; may be a\n'
        'n: order; with 0 nothing is read or written\n'
        'sortFlag: true only when -1: the values descend, and equal ones keep their order. Otherwise they stand in the order in which they were found\n'
        'returns 0; -1 when an element is missing, a value did not converge within 28 sweeps, or memory is short in the work\n'
    )),
    'VB_M_EuclidDist2': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None), ('cols', '1', ('bRows', -1))), 0),
        ('out', 'double*', 'out', False, (('cols', 'cols', None), ('nRows', 'nRows', ('bRows', -1))), 0),
        ('bRows', 'short int', '', False, (), 0),
        ('nRows', 'int', '', False, (), 0),
    ), (
        'int VB_M_EuclidDist2(const double* x, int rows, int cols, const double* w, double* out, short int bRows, int nRows);\n'
        '\n'
        'Weighted Euclidean distances between the columns, or between rows: the root of the sum of w * d * d, d\n'
        'being the difference of two coordinates.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights, or cols weights when bRows is -1, one for each coordinate\n'
        'out: out, cols by cols distances, or nRows by nRows distances when bRows is -1\n'
        'bRows: -1: between rows; otherwise between columns\n'
        'nRows: the number of first rows to compare; not used between columns\n'
        'returns 0\n'
    )),
    'VB_M_ExtractMatToMatByColDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstCol', 'int', '', False, (), 0),
        ('lastCol', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'lastCol - firstCol + 1', None),), 0),
    ), (
        'int VB_M_ExtractMatToMatByColDbl(const double* x, int rows, int cols, int firstCol, int lastCol, double* out);\n'
        '\n'
        'Takes a range of columns of a table. A column that it does not have gives -1.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstCol: first column of the range\n'
        'lastCol: last column of the range; below firstCol nothing is done\n'
        'out: out, rows by lastCol - firstCol + 1 numbers\n'
        'returns 0\n'
    )),
    'VB_M_ExtractMatToMatDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('lastRow - firstRow + 1', 'cols', None),), 0),
    ), (
        'int VB_M_ExtractMatToMatDbl(const double* x, int rows, int cols, int firstRow, int lastRow, double* out);\n'
        '\n'
        'Takes a range of rows of a table of numbers. A row that it does not have gives -1.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the range\n'
        'lastRow: last row of the range; below firstRow nothing is done\n'
        'out: out, lastRow - firstRow + 1 by cols numbers\n'
        'returns 0\n'
    )),
    'VB_M_ExtractMatToMatDblSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('lastRow - firstRow + 1', 'cols', None),), 0),
    ), (
        'int VB_M_ExtractMatToMatDblSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, double* out);\n'
        '\n'
        'Takes a range of rows of a chunked table of numbers. A row that it does not have gives -1.\n'
        '\n'
        'x: in, host array of cols records, each with a numeric column of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'firstRow: first row of the range\n'
        'lastRow: last row of the range; below firstRow nothing is done\n'
        'out: out, lastRow - firstRow + 1 by cols numbers\n'
        'returns 0\n'
    )),
    'VB_M_ExtractMatToMatStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'out', False, (('lastRow - firstRow + 1', 'cols', None),), 0),
    ), (
        'int VB_M_ExtractMatToMatStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow, OLECHAR** out);\n'
        '\n'
        'Takes a range of rows of a table of texts. A row that it does not have gives empty texts.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'firstRow: first row of the range\n'
        'lastRow: last row of the range; below firstRow nothing is done\n'
        'out: out, lastRow - firstRow + 1 by cols texts\n'
        'returns 0\n'
    )),
    'VB_M_ExtractMatToMatStrSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('firstRow', 'int', '', False, (), 0),
        ('lastRow', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'out', False, (('lastRow - firstRow + 1', 'cols', None),), 0),
    ), (
        'int VB_M_ExtractMatToMatStrSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, OLECHAR** out);\n'
        '\n'
        'Takes a range of rows of a chunked table of texts. A row that it does not have gives empty texts.\n'
        '\n'
        'x: in, host array of cols records, each with a text column of rows texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'firstRow: first row of the range\n'
        'lastRow: last row of the range; below firstRow nothing is done\n'
        'out: out, lastRow - firstRow + 1 by cols texts\n'
        'returns 0\n'
    )),
    'VB_M_FrobeniusNorm': ('double', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'p', None),), 0),
    ), (
        'double VB_M_FrobeniusNorm(const double* a, int n, int p, const double* b);\n'
        '\n'
        "The trace of a' * b: the sum over the columns of the inner products of like columns. No square root is\n"
        'taken, so that with b = a it is the square of the Frobenius norm.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'b: in, n by p cells\n'
        'returns the trace; 0.0 when n or p is below 1\n'
    )),
    'VB_M_Gauss': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('m', 'int', '', False, (), 0),
        ('b', 'double*', 'inout', True, (('n', 'm', None),), 0),
    ), (
        'int VB_M_Gauss(double* a, int n, int m, double* b);\n'
        '\n'
        'Solves a * x = b for several right sides, and inverts a.\n'
        '\n'
        'a: inout, n by n numbers, column after column; becomes its inverse\n'
        'n: rows and columns of a; below 1 nothing is done\n'
        'm: columns of b\n'
        'b: inout, n by m numbers; becomes the solution x. Null: allowed when m is 0\n'
        'returns 0, or -2 at a pivot that is exactly 0: both tables are then as the steps before have left them\n'
    )),
    'VB_M_GenerateRandom01': ('int', (
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_GenerateRandom01(double* out, int rows, int cols, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Seeds the random source and fills an array with uniform numbers in storage order, column after column.\n'
        '\n'
        '\n'
        'The seeding and the next seed are done in every case.\n'
        '\n'
        'out: out, rows by cols numbers, each as Cpp_Random01 returns it\n'
        'rows: number of rows; below 1 nothing is drawn\n'
        'cols: number of columns; below 1 nothing is drawn\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_GroupBy': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('kinds', 'int*', 'in', False, (('cols', '1', None),), 0),
        ('groupCol', 'int', '', False, (), 0),
        ('method', 'int', '', False, (), 0),
        ('nOut', 'int*', 'out', False, (('1', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_GroupBy(const double* x, int rows, int cols, const int* kinds, int groupCol, int method, int* nOut, double* out);\n'
        '\n'
        'Aggregates the rows that share the value of a key column, in ascending order of the keys, compared exactly.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'kinds: in, cols entries, not 0 for a qualitative column, whose aggregate is the most frequent code\n'
        'groupCol: the key column, from 1\n'
        'method: aggregate of the other columns: 0 sum, 1 mean, 2 median, 3 first row, 4 last row, 5 minimum, 6 maximum, 7 range; any other number leaves the sorted input\n'
        'nOut: out, one integer: the number of groups\n'
        'out: out, rows by cols numbers; the first nOut rows are the result, those below keep the sorted input\n'
        'returns 0\n'
    )),
    'VB_M_GroupByW': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('kinds', 'int*', 'in', False, (('cols', '1', None),), 0),
        ('groupCol', 'int', '', False, (), 0),
        ('method', 'int', '', False, (), 0),
        ('nOut', 'int*', 'out', False, (('1', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_GroupByW(const double* x, int rows, int cols, const int* kinds, int groupCol, int method, int* nOut, double* out, const double* w);\n'
        '\n'
        'Aggregates the rows that share the value of a key column, with a weight for each row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'kinds: in, cols entries, not 0 for a qualitative column, whose aggregate is the most frequent code\n'
        'groupCol: the key column, from 1\n'
        'method: aggregate of the other columns: 0 weighted sum, 1 weighted mean, 2 weighted median, 3 first row, 4 last row, 5 minimum, 6 maximum, 7 range; any other number leaves the sorted input\n'
        'nOut: out, one integer: the number of groups\n'
        'out: out, rows by cols numbers; the first nOut rows are the result, those below keep the sorted input\n'
        'w: in, rows weights\n'
        'returns 0\n'
    )),
    'VB_M_InfoQuali': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('modes', 'OLECHAR**', 'out', False, (('p', '1', None),), 0),
        ('modeFrequencies', 'double*', 'out', False, (('p', '1', None),), 0),
        ('categoryCounts', 'int*', 'out', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'out', False, (('p', 'n', None),), 0),
        ('frequencies', 'double*', 'out', False, (('p', 'n', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('total', 'int*', 'out', False, (('1', '1', None),), 0),
        ('sort', 'short int', '', False, (), 0),
    ), (
        'int VB_M_InfoQuali(OLECHAR* const* data, int n, int p, OLECHAR** modes, double* modeFrequencies, int* categoryCounts, OLECHAR** categories, double* frequencies, const double* weights, int* total, short int sort);\n'
        '\n'
        'The categories of each variable, in tables as wide as there are rows.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'modes: out, p texts: the mode of each variable\n'
        'modeFrequencies: out, p numbers: its frequency\n'
        'categoryCounts: out, p integers: the number of categories\n'
        'categories: out, p by n texts: the names\n'
        'frequencies: out, p by n numbers: the frequencies\n'
        'weights: in, n weights\n'
        'total: out, one integer: the sum of the numbers of categories\n'
        'sort: -1: the categories are sorted\n'
        'returns 0\n'
    )),
    'VB_M_InfoQuali2': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('width', 'int', '', False, (), 0),
        ('categoryCounts', 'int*', 'out', False, (('p', '1', None),), 0),
        ('modes', 'OLECHAR**', 'out', False, (('p', '1', None),), 0),
        ('modeFrequencies', 'double*', 'out', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'out', False, (('p', 'width', None),), 0),
        ('frequencies', 'double*', 'out', False, (('p', 'width', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('total', 'int*', 'out', False, (('1', '1', None),), 0),
        ('sort', 'short int', '', False, (), 0),
    ), (
        'int VB_M_InfoQuali2(OLECHAR* const* data, int n, int p, int width, int* categoryCounts, OLECHAR** modes, double* modeFrequencies, OLECHAR** categories, double* frequencies, const double* weights, int* total, short int sort);\n'
        '\n'
        "The categories of each variable, in tables of a width of the caller's; more categories are not kept.\n"
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'width: columns of the tables\n'
        'categoryCounts: out, p integers: the number of categories\n'
        'modes: out, p texts: the mode of each variable\n'
        'modeFrequencies: out, p numbers: its frequency\n'
        'categories: out, p by width texts: the names\n'
        'frequencies: out, p by width numbers: the frequencies\n'
        'weights: in, n weights\n'
        'total: out, one integer: the sum of the numbers of categories\n'
        'sort: -1: the categories are sorted\n'
        'returns 0\n'
    )),
    'VB_M_InfoQualiValid': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('width', 'int', '', False, (), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'width', None),), 0),
        ('counts', 'double*', 'out', False, (('p', 'width', None),), 0),
        ('newCategoryFound', 'short int*', 'out', False, (('1', '1', None),), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_M_InfoQualiValid(OLECHAR* const* data, int n, int p, int width, const int* categoryCounts, OLECHAR* const* categories, double* counts, short int* newCategoryFound, const double* weights);\n'
        '\n'
        'Counts the rows of each category by their weights.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'width: columns of the tables of categories\n'
        'categoryCounts: in, p integers: the number of known categories of each variable\n'
        'categories: in, p by width texts: their names\n'
        'counts: out, p by width numbers: the sum of the weights of each\n'
        'newCategoryFound: out, one flag: -1 when a text is no known category, otherwise 0\n'
        'weights: in, n weights\n'
        'returns 0\n'
    )),
    'VB_M_InvGeneralized': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('rank', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_InvGeneralized(const double* a, int n, double* g, double tolerance, int* rank);\n'
        '\n'
        'Moore-Penrose inverse of a square table, column after column.\n'
        '\n'
        'a: in, n by n numbers\n'
        'n: rows and columns; 0: nothing is done but setting the rank\n'
        'g: out, n by n numbers; may be the array that is read\n'
        'tolerance: a singular value below it is dropped\n'
        'rank: out, one number: how many singular values were kept\n'
        'returns 0, or -1 when the decomposition has not converged; g is made of what there is then as well\n'
    )),
    'VB_M_InvGeneralizedSym': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
        ('rank', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_InvGeneralizedSym(const double* a, int n, double* g, double tolerance, int* rank);\n'
        '\n'
        'Generalised inverse of a symmetric positive semidefinite table: the left singular vectors stand on both\n'
        'sides, so that a negative eigenvalue has a positive inverse.\n'
        '\n'
        'a: in, n by n numbers\n'
        'n: rows and columns; 0: nothing is done but setting the rank\n'
        'g: out, n by n numbers; may be the array that is read\n'
        'tolerance: a singular value below it is dropped\n'
        'rank: out, one number: how many singular values were kept\n'
        'returns 0, or -1 when the decomposition has not converged; g is made of what there is then as well\n'
    )),
    'VB_M_Inverse1': ('int', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('inverse', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('error', 'short int*', 'inout', False, (('1', '1', None),), 0),
        ('tolerance', 'double', '', False, (('only', '1', None),), 0),
    ), (
        'int VB_M_Inverse1(const double* a, int n, double* inverse, short int* error, double tolerance);\n'
        '\n'
        'Inverse of a square table, column after column, by LU decomposition with row scaling and partial pivoting.\n'
        'Missing cells are numbers.\n'
        '\n'
        'A table is singular when a row has only zeros, when the first column has no pivot because of NaN, or when\n'
        'the magnitude of a pivot is at most 1e-8. The limit is not scaled to the data.\n'
        '\n'
        'a: in, n by n numbers\n'
        'n: rows and columns; below 1 nothing is done\n'
        'inverse: out, n by n numbers: left alone when the table is singular; may be the array that is read\n'
        'error: inout, one number: becomes -1 when the table is singular, and otherwise stays as it is\n'
        'tolerance: only its sign counts: when it is 0, negative or a NaN, the limit is 2.220446049250313e-16\n'
        'returns 0, or -1 when the table is singular\n'
    )),
    'VB_M_InverseTriang': ('int', (
        ('t', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('lowerFlag', 'short int', '', False, (), 0),
        ('inverse', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('tolerance', 'double', '', False, (), 0),
    ), (
        'int VB_M_InverseTriang(const double* t, int n, short int lowerFlag, double* inverse, double tolerance);\n'
        '\n'
        'Inverse of a triangular table by back substitution. Missing cells are numbers.\n'
        '\n'
        't: in, n by n numbers, column after column; the other triangle is not read\n'
        'n: rows and columns; below 1 nothing is done\n'
        'lowerFlag: 0: t is upper triangular. Any other value: it is lower triangular\n'
        'inverse: inout, n by n numbers; receives the same triangle. The other one is not written, so the caller passes zeros. May be the array that is read\n'
        'tolerance: magnitude below which a diagonal element counts as 0; not scaled to the data\n'
        'returns 0, or -1 at the first diagonal element below the tolerance: the diagonal of `inverse` then has the reciprocals of those before it, and nothing else is written\n'
    )),
    'VB_M_IsColConstant': ('short int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'short int VB_M_IsColConstant(const double* x, int rows, int cols);\n'
        '\n'
        'Tests each column of a table by itself, passing over missing numbers.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns -1 when every column is constant, otherwise 0\n'
    )),
    'VB_M_IsColConstantSPV': ('short int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'short int VB_M_IsColConstantSPV(Hostarray** x, int rows, int cols);\n'
        '\n'
        'The same for a chunked table.\n'
        '\n'
        'x: in, cols columns of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'returns -1 when every column is constant, otherwise 0\n'
    )),
    'VB_M_IsDiagConstant': ('short int', (
        ('x', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'short int VB_M_IsDiagConstant(const double* x, int n);\n'
        '\n'
        'Tells whether the diagonal of a square table is constant.\n'
        '\n'
        'x: in, n by n numbers\n'
        'n: order\n'
        'returns -1 when all its cells exactly equal the first, and for n below 2; otherwise 0\n'
    )),
    'VB_M_IsDisjTable': ('short int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('rowSum', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'short int VB_M_IsDisjTable(const double* x, int n, int p, const short int* rowFlags, int* rowSum);\n'
        '\n'
        'Whether a table looks like a disjunctive one.\n'
        '\n'
        'The reference row is the first one, or the last of the run of flagged rows that starts with the second. The\n'
        'rows after it that are not flagged are compared with it: their sums must lie within 1e-12 of its truncated\n'
        "sum, and the last column must have a value that differs from the reference row's. The other columns have no\n"
        'influence, nor has the first flag.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'rowFlags: in, n flags: -1 moves the reference row, any but 0 leaves a later row out. Null: no row is flagged\n'
        'rowSum: out, one integer: the sum of the reference row, truncated\n'
        'returns -1 for a disjunctive table, and for one without columns; otherwise 0\n'
    )),
    'VB_M_IsIn01': ('short int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'short int VB_M_IsIn01(const double* x, int rows, int cols);\n'
        '\n'
        'Whether every number lies from 0 to 1; a missing one does not.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns -1 or 0\n'
    )),
    'VB_M_IsInIntervalSPV': ('short int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('lo', 'double', '', False, (), 0),
        ('hi', 'double', '', False, (), 0),
        ('bOpen', 'short int', '', False, (), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
    ), (
        'short int VB_M_IsInIntervalSPV(Hostarray** x, int rows, int cols, double lo, double hi, short int bOpen, short int bSkipMissing);\n'
        '\n'
        'Tells whether all cells of a table lie in an interval.\n'
        '\n'
        'x: in, chunked table of cols columns of rows numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'lo: lower end\n'
        'hi: upper end\n'
        'bOpen: -1: a cell equal to an end is outside; otherwise it is inside\n'
        'bSkipMissing: -1: missing cells are passed over; otherwise they are compared like others\n'
        'returns -1 when no cell is outside, also when there is none; otherwise 0\n'
    )),
    'VB_M_IsLong': ('short int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'short int VB_M_IsLong(const double* x, int rows, int cols);\n'
        '\n'
        'Whether every number is an integer within 1e-12; the missing number is.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns -1 or 0\n'
    )),
    'VB_M_IsSymmetric': ('short int', (
        ('x', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'short int VB_M_IsSymmetric(const double* x, int n);\n'
        '\n'
        'Tells whether a square table is symmetric.\n'
        '\n'
        'x: in, n by n numbers\n'
        'n: order\n'
        'returns -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2; otherwise 0\n'
    )),
    'VB_M_IsSymmetricSPV': ('short int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'short int VB_M_IsSymmetricSPV(Hostarray** x, int n);\n'
        '\n'
        'Tells whether a square table is symmetric.\n'
        '\n'
        'x: in, chunked table of n columns of n numbers\n'
        'n: order\n'
        'returns -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2; otherwise 0\n'
    )),
    'VB_M_IsTriangular': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('bMirror', 'short int', '', False, (), 0),
    ), (
        'int VB_M_IsTriangular(double* x, int n, short int bMirror);\n'
        '\n'
        'Tells which half of a square table is filled, and fills the other half from it on request. A cell is empty\n'
        'when it is exactly 0 or missing; the diagonal is not looked at.\n'
        '\n'
        'x: inout, n by n numbers; changed only with bMirror -1\n'
        'n: order\n'
        'bMirror: -1: unless the result is 0, the filled half is copied over the empty one, which leaves the table symmetric; at result 2 the upper half is the one that is copied\n'
        'returns 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is filled and every cell above it is empty; 0 when both halves have a filled cell\n'
    )),
    'VB_M_IsTriangularSPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('bMirror', 'short int', '', False, (), 0),
    ), (
        'int VB_M_IsTriangularSPV(Hostarray** x, int n, short int bMirror);\n'
        '\n'
        'Tells which half of a square table is filled, and fills the other half from it on request. A cell is empty\n'
        'when it is exactly 0 or missing; the diagonal is not looked at.\n'
        '\n'
        'x: inout, chunked table of n columns of n numbers; changed only with bMirror -1\n'
        'n: order\n'
        'bMirror: -1: unless the result is 0, the filled half is copied over the empty one, which leaves the table symmetric; at result 2 the upper half is the one that is copied\n'
        'returns 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is filled and every cell above it is empty; 0 when both halves have a filled cell\n'
    )),
    'VB_M_LUDecomp': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('pivots', 'int*', 'out', False, (('n', '1', None),), 0),
        ('sign', 'double*', 'out', False, (('1', '1', None),), 0),
        ('status', 'short int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_LUDecomp(double* a, int n, int* pivots, double* sign, short int* status);\n'
        '\n'
        'LU decomposition, in place: a, with its rows swapped, is l * u with 1 on the diagonal of l. In each column\n'
        'the row is chosen whose element is the largest beside the largest of its row at the start, the last of\n'
        'equal ones. A pivot of exactly 0 is replaced by 1e-20.\n'
        '\n'
        'a: inout, n by n numbers, column after column; receives u on the diagonal and above, l below it\n'
        'n: rows and columns\n'
        'pivots: out, n integers; element j is the row, from 1, that was swapped with row j\n'
        'sign: out, one number: 1, or -1 after an odd number of swaps\n'
        'status: out, one status: 0; -1: a row has only zeros, and a is as it was; 1: the first column has no pivot, because all of it is NaN\n'
        'returns 0\n'
    )),
    'VB_M_Log10Matrix': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_Log10Matrix(const double* x, int rows, int cols, double* y);\n'
        '\n'
        'Logarithms to base 10.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables; 0 stands for 1\n'
        'y: out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may be x\n'
        'returns 0\n'
    )),
    'VB_M_LogMatrix': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_LogMatrix(const double* x, int rows, int cols, double* y);\n'
        '\n'
        'Natural logarithms.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables; 0 stands for 1\n'
        'y: out, rows by cols numbers, missing for a cell of 0 or below and for a missing one; may be x\n'
        'returns 0\n'
    )),
    'VB_M_Max': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_Max(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The largest number of each column; missing numbers do not count.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols numbers\n'
        'returns 0\n'
    )),
    'VB_M_Mean': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_Mean(const double* x, int rows, int cols, double* means, const double* w);\n'
        '\n'
        'Weighted means over the cells that are not missing. A row of weight 0 does nothing; a NaN is kept.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means; 0.0 for a column with nothing kept\n'
        'w: in, rows weights\n'
        'returns 0\n'
    )),
    'VB_M_MeanStDev': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
    ), (
        'int VB_M_MeanStDev(const double* x, int rows, int cols, double* means, double* sds, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq, short int flag);\n'
        '\n'
        'Means and standard deviations of the columns.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means\n'
        'sds: out, cols deviations\n'
        'iMissing: in, rows flags, read only when flag is 0; a row with a flag other than 0 is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'flag: 0: rows with a flag other than 0 are left out; -1: all rows are kept, whatever their flags; any other value: no row is kept\n'
        'returns 0\n'
    )),
    'VB_M_MeanStDevByRow': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('rows', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_MeanStDevByRow(const double* x, int rows, int cols, double* means, double* sds, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Means and standard deviations of the rows.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, rows means\n'
        'sds: out, rows deviations\n'
        'w: in, cols weights, one for each column\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_MeanStDevVar': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('vars', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_MeanStDevVar(const double* x, int rows, int cols, double* means, double* sds, double* vars, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Means, standard deviations and variances of the columns.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means\n'
        'sds: out, cols deviations\n'
        'vars: out, cols variances\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_MeanStDevVarOneInMat': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('sd', 'double*', 'out', False, (('1', '1', None),), 0),
        ('var', 'double*', 'out', False, (('1', '1', None),), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_MeanStDevVarOneInMat(const double* x, int rows, int cols, double* mean, double* sd, double* var, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Mean, standard deviation and variance of all cells as one sample, column after column, each cell with the\n'
        'weight of its row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'mean: out, one number: the mean\n'
        'sd: out, one number: the deviation\n'
        'var: out, one number: the variance\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_Min': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_Min(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The smallest number of each column; missing numbers do not count.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols numbers\n'
        'returns 0\n'
    )),
    'VB_M_MinMax': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('mins', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('maxs', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
    ), (
        'int VB_M_MinMax(const double* x, int rows, int cols, double* mins, double* maxs, const short int* iMissing, short int flag);\n'
        '\n'
        'Both extremes of each column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'mins: out, cols smallest numbers\n'
        'maxs: out, cols largest numbers\n'
        'iMissing: in, rows flags, read only when flag is 0; a row with a flag other than 0 is left out; may be null, then none is\n'
        'flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0 counts, a missing one too; any other value: none counts\n'
        'returns 0\n'
    )),
    'VB_M_MinMaxSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('mins', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('maxs', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
    ), (
        'int VB_M_MinMaxSPV(Hostarray** x, int rows, int cols, double* mins, double* maxs, const short int* iMissing, short int flag);\n'
        '\n'
        'VB_M_MinMax on a table of separate columns.\n'
        '\n'
        'x: in, host array of cols columns of rows numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'mins: out, cols smallest numbers\n'
        'maxs: out, cols largest numbers\n'
        'iMissing: in, rows flags, read only when flag is 0; a row with a flag other than 0 is left out; may be null, then none is\n'
        'flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0 counts, a missing one too; any other value: none counts\n'
        'returns 0\n'
    )),
    'VB_M_MinMaxSPV_T': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('mins', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('maxs', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
    ), (
        'int VB_M_MinMaxSPV_T(Hostarray** x, int rows, int cols, double* mins, double* maxs, const short int* iMissing, short int flag);\n'
        '\n'
        'VB_M_MinMax on a symmetric table, of which each separate column starts at the diagonal. A column is a whole\n'
        'one: what lies above its diagonal is read from the other half.\n'
        '\n'
        'x: in, host array of cols columns of numbers, column j holding rows - j + 1 of them\n'
        'rows: rows\n'
        'cols: columns\n'
        'mins: out, cols smallest numbers\n'
        'maxs: out, cols largest numbers\n'
        'iMissing: in, rows flags, read only when flag is 0; a row with a flag other than 0 is left out; may be null, then none is\n'
        'flag: -1: every number that is not missing counts; 0: every number of a row whose flag is 0 counts, a missing one too; any other value: none counts\n'
        'returns 0\n'
    )),
    'VB_M_MoveRow': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (('where', '1', None),), 0),
    ), (
        'int VB_M_MoveRow(double* x, int rows, int cols, int from, int to);\n'
        '\n'
        'Moves a row of a table to another place, in place; the rows between the two move up or down by one.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'from: the row to move\n'
        'to: where it goes. Nothing happens unless both are rows of the table\n'
        'returns 0\n'
    )),
    'VB_M_NbMissing': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('counts', 'int*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_NbMissing(const double* x, int rows, int cols, int* counts);\n'
        '\n'
        'Counts the missing numbers of each column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'counts: out, cols counts\n'
        'returns 0\n'
    )),
    'VB_M_NbMissing2': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'int VB_M_NbMissing2(const double* x, int rows, int cols);\n'
        '\n'
        'Counts the missing numbers of a whole table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns the count\n'
    )),
    'VB_M_NbMissing2Str': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'int VB_M_NbMissing2Str(OLECHAR* const* x, int rows, int cols);\n'
        '\n'
        'Counts the empty texts of a whole table.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns the count\n'
    )),
    'VB_M_NbMissingSPV_T': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_NbMissingSPV_T(Hostarray** x, int rows, int cols);\n'
        '\n'
        'Counts the missing numbers of a triangle.\n'
        '\n'
        'x: in, cols columns, the first of rows numbers and each next one of a number less\n'
        'rows: numbers in the first column\n'
        'cols: number of columns\n'
        'returns the count\n'
    )),
    'VB_M_NbMissingStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('counts', 'int*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_NbMissingStr(OLECHAR* const* x, int rows, int cols, int* counts);\n'
        '\n'
        'Counts the empty texts of each column.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'counts: out, cols counts\n'
        'returns 0\n'
    )),
    'VB_M_NbNonMissing': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('counts', 'int*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_NbNonMissing(const double* x, int rows, int cols, int* counts);\n'
        '\n'
        'Counts the numbers of each column that are not missing.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'counts: out, cols counts\n'
        'returns 0\n'
    )),
    'VB_M_Normalize': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', True, (('rows', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
    ), (
        'int VB_M_Normalize(double* x, int rows, int cols, const double* w, const short int* iMissing);\n'
        '\n'
        "Changes the cells of each column to (x / s) * sqrt(n / (n - 1)), where s is the root of the column's sum of\n"
        'x * x * w and n is rows, whatever is left out. One row is divided by 0.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights; may be null, then all are 1\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out and stays; may be null, then none is\n'
        'returns 0\n'
    )),
    'VB_M_NormalizeMatrix': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', True, (('yRows', 'cols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('z', 'double*', 'inout', True, (('zRows', 'cols', None),), 0),
        ('zRows', 'int', '', False, (), 0),
    ), (
        'int VB_M_NormalizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z, int zRows);\n'
        '\n'
        'VB_M_Normalize, without weights and flags, on a table and two companions, tables of other rows and the same\n'
        'columns, which are changed by the sums of squares and the number of rows of x.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of all three\n'
        'y: inout, yRows by cols numbers; may be null when yRows is 0\n'
        'yRows: rows of y\n'
        'z: inout, zRows by cols numbers; may be null when zRows is 0\n'
        'zRows: rows of z\n'
        'returns 0\n'
    )),
    'VB_M_PasteBlock': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_PasteBlock(const double* x, int rows, int cols, double* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Writes a table of numbers into a larger one. What would fall outside of it is left out.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: inout, yRows by yCols numbers\n'
        'yRows: rows of the larger table\n'
        'yCols: columns of the larger table; 0 stands for 1\n'
        'row: its row for the first row\n'
        'col: its column for the first column\n'
        'returns 0\n'
    )),
    'VB_M_PasteBlockLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('y', 'int*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'int VB_M_PasteBlockLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row, int col);\n'
        '\n'
        'Writes a table of integers into a larger one. What would fall outside of it is left out.\n'
        '\n'
        'x: in, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'y: inout, yRows by yCols integers\n'
        'yRows: rows of the larger table\n'
        'yCols: columns of the larger table; 0 stands for 1\n'
        'row: its row for the first row\n'
        'col: its column for the first column\n'
        'returns 0\n'
    )),
    'VB_M_ProductAB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('p', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'q', None),), 0),
    ), (
        'int VB_M_ProductAB(const double* a, int n, int p, const double* b, int q, double* c);\n'
        '\n'
        'Product of two tables, c = a * b. The work is shared among threads.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by q numbers\n'
        'q: columns of b\n'
        'c: out, n by q numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductABC': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('p', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'in', False, (('q', 'r', None),), 0),
        ('r', 'int', '', False, (), 0),
        ('d', 'double*', 'out', False, (('n', 'r', None),), 0),
    ), (
        'int VB_M_ProductABC(const double* a, int n, int p, const double* b, int q, const double* c, int r, double* d);\n'
        '\n'
        'Product of three tables, d = a * b * c. The work is shared among threads.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by q numbers\n'
        'q: columns of b\n'
        'c: in, q by r numbers\n'
        'r: columns of c\n'
        'd: out, n by r numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductABLng': ('int', (
        ('a', 'int*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'int*', 'in', False, (('p', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'int*', 'out', False, (('n', 'q', None),), 0),
    ), (
        'int VB_M_ProductABLng(const int* a, int n, int p, const int* b, int q, int* c);\n'
        '\n'
        'Product of two tables of integers, c = a * b, in 32-bit arithmetic that wraps around. No integer is missing\n'
        'here.\n'
        '\n'
        'a: in, n by p integers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by q integers\n'
        'q: columns of b\n'
        'c: out, n by q integers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductABMissing': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('p', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'q', None),), 0),
    ), (
        'int VB_M_ProductABMissing(const double* a, int n, int p, const double* b, int q, double* c);\n'
        '\n'
        'Product of two tables that heeds missing cells: where a term has a missing factor, c(i,j) is missing. So\n'
        'one missing cell of a blanks a row of c, and one of b a column.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by q numbers\n'
        'q: columns of b\n'
        'c: out, n by q numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductABTrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('p', 'p', None),), 0),
        ('symmetric', 'short int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_ProductABTrA(const double* a, int n, int p, const double* b, short int symmetric, double* c);\n'
        '\n'
        "Product of three tables, c = a * b * a'. The work is shared among threads.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by p numbers\n'
        'symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only the lower half is summed and then mirrored\n'
        'c: out, n by n numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductADTrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', 'p', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_ProductADTrA(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        "Product with a diagonal, c = a * d * a', each term from left to right. Only the elements of the upper half\n"
        'are summed; each is stored in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, p by p numbers; only the diagonal is read\n'
        'c: out, n by n numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductADiag': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', 'p', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ProductADiag(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        'c(i, k) = a(i, k) * d(k, k). Missing cells are numbers here.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'd: in, p by p cells, of which the diagonal is read\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductADiagV': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ProductADiagV(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        'c(i, k) = a(i, k) * d(k). A missing d(k) makes column k of the result missing, and so does a missing cell\n'
        'its own.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'd: in, p numbers\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductADiagVB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', '1', None),), 0),
        ('b', 'double*', 'in', False, (('p', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'q', None),), 0),
    ), (
        'int VB_M_ProductADiagVB(const double* a, int n, int p, const double* d, const double* b, int q, double* c);\n'
        '\n'
        'Product with a diagonal that is given as a vector, c = a * diag(d) * b, each term from left to right.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, p numbers\n'
        'b: in, p by q numbers\n'
        'q: columns of b\n'
        'c: out, n by q numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductADiagVTrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_ProductADiagVTrA(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        "Product with a diagonal that is given as a vector, c = a * diag(d) * a', each term from left to right. Only\n"
        'the elements of the upper half are summed; each is stored in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, p numbers\n'
        'c: out, n by n numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductADiagVTrB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('p', '1', None),), 0),
        ('b', 'double*', 'in', False, (('m', 'p', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'm', None),), 0),
    ), (
        'int VB_M_ProductADiagVTrB(const double* a, int n, int p, const double* d, const double* b, int m, double* c);\n'
        '\n'
        "Product with a diagonal that is given as a vector, c = a * diag(d) * b', each term from left to right.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, p numbers\n'
        'b: in, m by p numbers\n'
        'm: rows of b\n'
        'c: out, n by m numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductASymV': ('int', (
        ('s', 'double*', 'in', False, (('m * (m + 1) / 2', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('x', 'double*', 'in', False, (('m', '1', None),), 0),
        ('y', 'double*', 'out', False, (('m', '1', None),), 0),
    ), (
        'int VB_M_ProductASymV(const double* s, int m, const double* x, double* y);\n'
        '\n'
        'Product of a packed symmetric table and a vector, y = s * x.\n'
        '\n'
        's: in, m * (m + 1) / 2 numbers, the lower triangle row after row\n'
        'm: rows and columns of the table; at most 65535\n'
        'x: in, m numbers\n'
        'y: out, m numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductATrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_ProductATrA(const double* a, int n, int p, double* c);\n'
        '\n'
        "Product of a table with itself, c = a * a'. Only the elements of the upper half are summed; each is stored\n"
        'in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'c: out, n by n numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductATrB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('m', 'p', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'm', None),), 0),
    ), (
        'int VB_M_ProductATrB(const double* a, int n, int p, const double* b, int m, double* c);\n'
        '\n'
        "Product of a table and a transposed table, c = a * b'.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, m by p numbers\n'
        'm: rows of b\n'
        'c: out, n by m numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductATrBC': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('q', 'p', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'in', False, (('q', 'r', None),), 0),
        ('r', 'int', '', False, (), 0),
        ('d', 'double*', 'out', False, (('n', 'r', None),), 0),
    ), (
        'int VB_M_ProductATrBC(const double* a, int n, int p, const double* b, int q, const double* c, int r, double* d);\n'
        '\n'
        "Product of three tables, d = a * b' * c.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, q by p numbers\n'
        'q: rows of b\n'
        'c: in, q by r numbers\n'
        'r: columns of c\n'
        'd: out, n by r numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductAinvBTrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('p', 'p', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_M_ProductAinvBTrA(const double* a, int n, int p, const double* b, double* c);\n'
        '\n'
        "Product c = a * i * a' with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's magnitude\n"
        'is at most 1e-8.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, p by p numbers\n'
        'c: out, n by n numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductBV': ('int', (
        ('b', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('v', 'double*', 'in', False, (('p', '1', None),), 0),
        ('y', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_M_ProductBV(const double* b, int n, int p, const double* v, double* y);\n'
        '\n'
        'Table times vector, y = b * v.\n'
        '\n'
        'b: in, n by p numbers\n'
        'n: rows of b\n'
        'p: columns of b\n'
        'v: in, p numbers\n'
        'y: out, n numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductByElement': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ProductByElement(const double* a, int n, int p, const double* b, double* c);\n'
        '\n'
        'c(i, j) = a(i, j) * b(i, j). Missing cells are numbers here.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'b: in, n by p cells\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductDesignAB2': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'max(colsB, 1) * colsA', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('colsA', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('b', 'double*', 'in', False, (('n', 'colsB', None),), 0),
        ('colsB', 'int', '', False, (), 0),
        ('type', 'int', '', False, (), 0),
        ('weights', 'double*', 'in', False, (('n', '1', None),), 0),
        ('sums', 'double*', 'out', False, (('colsA * colsB', '1', None),), 0),
    ), (
        'int VB_M_ProductDesignAB2(double* a, int n, int* colsA, const double* b, int colsB, int type, const double* weights, double* sums);\n'
        '\n'
        'Replaces the columns of a design by their interactions with those of another. With EPS =\n'
        '2.220446049250313e-16:\n'
        '\n'
        '- A row in which both cells are above EPS gets their product, when type is below 5 or i and j are both 1;\n'
        'otherwise it gets 1.0, if the product is above EPS.\n'
        '- Any other row gets what the row before it got. That value is carried on from the last row of a column to\n'
        'the first of the next, and is 0.0 at the start.\n'
        '- A column without a row in which both cells are above EPS becomes 0. The first one with such a row is the\n'
        'reference. In later columns, with type from 5 on, a row whose reference is 1 (nearer than 1e-12) gets\n'
        '-1.0 instead; the value that is carried on stays.\n'
        '\n'
        'Then, with pos the sum of the weights of the rows above EPS and neg of those below -EPS, type 6 makes each\n'
        'cell below -EPS of a column with neg above EPS equal to -pos / neg.\n'
        '\n'
        'a: inout, n by max(colsB, 1) * colsA numbers, the first colsA columns being the design; receives the colsA * colsB columns of the result\n'
        'n: rows\n'
        'colsA: inout, one integer: the columns of the design; receives those of the result\n'
        'b: in, n by colsB numbers\n'
        'colsB: columns of b\n'
        'type: below 5: plain products; 5: effect coding; 6: effect coding with scaled negative cells\n'
        'weights: in, n weights\n'
        'sums: out, colsA * colsB numbers: pos of each column\n'
        'returns 0\n'
    )),
    'VB_M_ProductDiagV1ADiagV2': ('int', (
        ('d1', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('p', 'int', '', False, (), 0),
        ('d2', 'double*', 'in', False, (('p', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ProductDiagV1ADiagV2(const double* d1, int n, const double* a, int p, const double* d2, double* c);\n'
        '\n'
        'c(i, k) = (d1(i) * a(i, k)) * d2(k). A missing factor makes its row or column of the result missing, and so\n'
        'does a missing cell its own.\n'
        '\n'
        'd1: in, n numbers\n'
        'n: rows\n'
        'a: in, n by p cells\n'
        'p: columns\n'
        'd2: in, p numbers\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductDiagVA': ('int', (
        ('d', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('p', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ProductDiagVA(const double* d, int n, const double* a, int p, double* c);\n'
        '\n'
        'c(i, k) = d(i) * a(i, k). A missing d(i) makes row i of the result missing, and so does a missing cell\n'
        'its own.\n'
        '\n'
        'd: in, n numbers\n'
        'n: rows\n'
        'a: in, n by p cells\n'
        'p: columns\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductHorizAB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'colsA', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'colsB', None),), 0),
        ('colsB', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'colsA * colsB', None),), 0),
        ('extra', 'int', '', False, (), 0),
    ), (
        'int VB_M_ProductHorizAB(const double* a, int n, int colsA, const double* b, int colsB, double* c, int extra);\n'
        '\n'
        'Each column of the result is the product of two columns, cell by cell. No cell is looked at for being\n'
        'missing.\n'
        '\n'
        'a: in, n by colsA numbers\n'
        'n: rows\n'
        'colsA: columns of a\n'
        'b: in, n by colsB numbers\n'
        'colsB: columns of b\n'
        'c: out, n by colsA * colsB numbers; may be an array that is read\n'
        'extra: not read\n'
        'returns 0\n'
    )),
    'VB_M_ProductHorizAB2': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'max(colsB, 1) * colsA', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('colsA', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('b', 'double*', 'in', False, (('n', 'colsB', None),), 0),
        ('colsB', 'int', '', False, (), 0),
    ), (
        'int VB_M_ProductHorizAB2(double* a, int n, int* colsA, const double* b, int colsB);\n'
        '\n'
        'The same in place of a, and missing where one of the two cells is.\n'
        '\n'
        'a: inout, n by max(colsB, 1) * colsA numbers, of which the first colsA columns are read; receives the colsA * colsB columns of the result\n'
        'n: rows\n'
        'colsA: inout, one integer: the columns of a; receives those of the result\n'
        'b: in, n by colsB numbers; may be a\n'
        'colsB: columns of b\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrAA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int VB_M_ProductTrAA(const double* a, int n, int p, double* c);\n'
        '\n'
        "Product of a table with itself, c = a' * a. Only the elements of the upper half are summed; each is stored\n"
        'in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'c: out, p by p numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrAB': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('p', 'q', None),), 0),
    ), (
        'int VB_M_ProductTrAB(const double* a, int n, int p, const double* b, int q, double* c);\n'
        '\n'
        "Product of a transposed table and a table, c = a' * b.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, n by q numbers\n'
        'q: columns of b\n'
        'c: out, p by q numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrABA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('symmetric', 'short int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int VB_M_ProductTrABA(const double* a, int n, int p, const double* b, short int symmetric, double* c);\n'
        '\n'
        "Product of three tables, c = a' * b * a. The work is shared among threads.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, n by n numbers\n'
        'symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only the lower half is summed and then mirrored\n'
        'c: out, p by p numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrABC': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('c', 'double*', 'in', False, (('q', 'r', None),), 0),
        ('r', 'int', '', False, (), 0),
        ('d', 'double*', 'out', False, (('p', 'r', None),), 0),
    ), (
        'int VB_M_ProductTrABC(const double* a, int n, int p, const double* b, int q, const double* c, int r, double* d);\n'
        '\n'
        "Product of three tables, d = a' * b * c.\n"
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, n by q numbers\n'
        'q: columns of b\n'
        'c: in, q by r numbers\n'
        'r: columns of c\n'
        'd: out, p by r numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrADA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('c', 'double*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int VB_M_ProductTrADA(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        "Product with a diagonal, c = a' * d * a, each term from left to right. Only the elements of the upper half\n"
        'are summed; each is stored in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, n by n numbers; only the diagonal is read\n'
        'c: out, p by p numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrADiag': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('c', 'double*', 'out', False, (('p', 'n', None),), 0),
    ), (
        'int VB_M_ProductTrADiag(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        'c(k, i) = a(i, k) * d(i, i). Missing cells are numbers here.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'd: in, n by n cells, of which the diagonal is read\n'
        'c: out, p by n cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrADiagV': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('n', '1', None),), 0),
        ('c', 'double*', 'out', False, (('p', 'n', None),), 0),
    ), (
        'int VB_M_ProductTrADiagV(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        'c(k, r) = a(r, k) * d(r). Missing cells are numbers here.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'd: in, n numbers\n'
        'c: out, p by n cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrADiagVA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('d', 'double*', 'in', False, (('n', '1', None),), 0),
        ('c', 'double*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int VB_M_ProductTrADiagVA(const double* a, int n, int p, const double* d, double* c);\n'
        '\n'
        "Product with a diagonal that is given as a vector, c = a' * diag(d) * a, each term from left to right. Only\n"
        'the elements of the upper half are summed; each is stored in both halves.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'd: in, n numbers\n'
        'c: out, p by p numbers, column after column; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrAinvBA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('symmetric', 'short int', '', False, (), 0),
        ('c', 'double*', 'out', False, (('p', 'p', None),), 0),
    ), (
        'int VB_M_ProductTrAinvBA(const double* a, int n, int p, const double* b, short int symmetric, double* c);\n'
        '\n'
        "Product c = a' * g * a with g the generalised inverse of b by sweeping, as `Cpp_M_InverseG2` makes it with\n"
        'the tolerance 1e-12. The work is shared among threads.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows of a\n'
        'p: columns of a\n'
        'b: in, n by n numbers\n'
        'symmetric: 0: all of the product is summed. Any other value promises that b is symmetric: only the lower half is summed and then mirrored\n'
        'c: out, p by p numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrBV': ('int', (
        ('b', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('y', 'double*', 'out', False, (('p', '1', None),), 0),
    ), (
        'int VB_M_ProductTrBV(const double* b, int n, int p, const double* v, double* y);\n'
        '\n'
        "Transposed table times vector, y = b' * v.\n"
        '\n'
        'b: in, n by p numbers\n'
        'n: rows of b\n'
        'p: columns of b\n'
        'v: in, n numbers\n'
        'y: out, p numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductTrV1BV2': ('double', (
        ('x1', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('x2', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_M_ProductTrV1BV2(const double* x1, int n, const double* b, const double* x2);\n'
        '\n'
        "The bilinear form x1' * b * x2.\n"
        '\n'
        'x1: in, n numbers\n'
        'n: elements of each vector\n'
        'b: in, n by n numbers\n'
        'x2: in, n numbers\n'
        'returns the number; 0.0 when n is below 1\n'
    )),
    'VB_M_ProductTrVBV': ('double', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'n', None),), 0),
    ), (
        'double VB_M_ProductTrVBV(const double* v, int n, const double* b);\n'
        '\n'
        "The quadratic form v' * b * v.\n"
        '\n'
        'v: in, n numbers\n'
        'n: elements of v\n'
        'b: in, n by n numbers\n'
        'returns the number; 0.0 when n is below 1\n'
    )),
    'VB_M_ProductTrVinvBV': ('double', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'n', None),), 0),
    ), (
        'double VB_M_ProductTrVinvBV(const double* v, int n, const double* b);\n'
        '\n'
        "The quadratic form v' * i * v with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's\n"
        'magnitude is at most 1e-8.\n'
        '\n'
        'v: in, n numbers\n'
        'n: elements of v\n'
        'b: in, n by n numbers\n'
        'returns the number; 0.0 when b is singular, and when n is below 1\n'
    )),
    'VB_M_ProductVASym': ('int', (
        ('x', 'double*', 'in', False, (('m', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('s', 'double*', 'in', False, (('m * (m + 1) / 2', '1', None),), 0),
        ('y', 'double*', 'out', False, (('m', '1', None),), 0),
    ), (
        'int VB_M_ProductVASym(const double* x, int m, const double* s, double* y);\n'
        '\n'
        "Product of a vector and a packed symmetric table, y = x' * s.\n"
        '\n'
        'x: in, m numbers\n'
        'm: rows and columns of the table; at most 65535\n'
        's: in, m * (m + 1) / 2 numbers, the lower triangle row after row\n'
        'y: out, m numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductVB': ('int', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', 'q', None),), 0),
        ('q', 'int', '', False, (), 0),
        ('y', 'double*', 'out', False, (('q', '1', None),), 0),
    ), (
        'int VB_M_ProductVB(const double* v, int n, const double* b, int q, double* y);\n'
        '\n'
        "Vector times table, y = v' * b, that heeds missing cells: where a term has a missing factor, y(j) is\n"
        'missing.\n'
        '\n'
        'v: in, n numbers\n'
        'n: elements of v, rows of b\n'
        'b: in, n by q numbers\n'
        'q: columns of b\n'
        'y: out, q numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_ProductVTrB': ('int', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('m', 'n', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('y', 'double*', 'out', False, (('m', '1', None),), 0),
    ), (
        'int VB_M_ProductVTrB(const double* v, int n, const double* b, int m, double* y);\n'
        '\n'
        "Vector times transposed table, y = v' * b'.\n"
        '\n'
        'v: in, n numbers\n'
        'n: elements of v, columns of b\n'
        'b: in, m by n numbers\n'
        'm: rows of b\n'
        'y: out, m numbers; may be an array that is read\n'
        'returns 0\n'
    )),
    'VB_M_Rank': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
    ), (
        'int VB_M_Rank(const double* a, int n, int p);\n'
        '\n'
        'Rank of a table, column after column: the number of singular values up to the first that is at most 1e-12.\n'
        '\n'
        'a: in, n by p numbers\n'
        'n: rows\n'
        'p: columns\n'
        'returns the rank; 0 when n or p is 0; -1 when the decomposition has not converged\n'
    )),
    'VB_M_Reduce': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_Reduce(const double* x, int rows, int cols, double* out, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Reduces into a result.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows by cols numbers; may be the array of x\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_Reduce2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'int VB_M_Reduce2(double* x, int rows, int cols, short int bUnbiased);\n'
        '\n'
        'Reduces in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_ReduceW': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_ReduceW(const double* x, int rows, int cols, const double* w, double* out, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Reduces, with weights, into a result.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights\n'
        'out: out, rows by cols numbers; may be the array of an argument\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_ReduceW2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_ReduceW2(double* x, int rows, int cols, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Reduces, with weights, in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights; may be a column of x\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_RemoveCol': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('k', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols - 1', None),), 0),
    ), (
        'int VB_M_RemoveCol(const double* x, int rows, int cols, int k, double* out);\n'
        '\n'
        'Copies a table without one column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'k: the column to leave out; one below 1 counts as 1, and one above cols as cols\n'
        'out: out, rows by cols - 1 numbers\n'
        'returns 0\n'
    )),
    'VB_M_RemoveCols2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('first', 'int', '', False, (), 0),
        ('last', 'int', '', False, (), 0),
    ), (
        'int VB_M_RemoveCols2(double* x, int rows, int cols, int first, int last);\n'
        '\n'
        'Takes a run of columns out of a table in place: those behind it move left. The columns that become free at\n'
        'the right keep their numbers.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'first: first column of the run; one below 1 counts as 1\n'
        'last: last column of the run; one above cols counts as cols. Below first, nothing happens\n'
        'returns 0\n'
    )),
    'VB_M_RemoveColsInList': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('list', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_RemoveColsInList(const double* x, int rows, int cols, const double* list, int n, double* out);\n'
        '\n'
        'Copies a table without the columns in a list.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'list: in, n numbers of columns, in any order, also more than once. One that is not exactly the number of a column leaves out none\n'
        'n: length of the list\n'
        'out: out, rows by cols numbers, of which as many columns as stay are written\n'
        'returns 0\n'
    )),
    'VB_M_RemoveRow': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('k', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows - 1', 'cols', None),), 0),
    ), (
        'int VB_M_RemoveRow(const double* x, int rows, int cols, int k, double* out);\n'
        '\n'
        'Copies a table without one row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'k: the row to leave out; one below 1 counts as 1, and one above rows as rows\n'
        'out: out, rows - 1 by cols numbers\n'
        'returns 0\n'
    )),
    'VB_M_RemoveRows2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('first', 'int', '', False, (), 0),
        ('last', 'int', '', False, (), 0),
    ), (
        'int VB_M_RemoveRows2(double* x, int rows, int cols, int first, int last);\n'
        '\n'
        'Takes a run of rows out of a table in place: those below it move up. The table keeps its shape, and the\n'
        'rows that become free at the bottom keep their numbers.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'first: first row of the run; one below 1 counts as 1\n'
        'last: last row of the run; one above rows counts as rows. Below first, nothing happens\n'
        'returns 0\n'
    )),
    'VB_M_RemoveRowsInList': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('list', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_RemoveRowsInList(const double* x, int rows, int cols, const int* list, int n, double* out);\n'
        '\n'
        'Copies a table without the rows in a list.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'list: in, n numbers of rows, in any order, also more than once. One that is not the number of a row leaves out none\n'
        'n: length of the list\n'
        'out: out, rows by cols numbers, of which as many rows as stay, by cols, are written\n'
        'returns 0\n'
    )),
    'VB_M_ReplaceMissingByStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('val', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_ReplaceMissingByStr(OLECHAR** x, int rows, int cols, const OLECHAR* val);\n'
        '\n'
        'Replaces the empty texts of a table.\n'
        '\n'
        'x: inout, rows by cols texts, replaced where they are empty\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'val: in, one text: what an empty one becomes\n'
        'returns 0\n'
    )),
    'VB_M_ReplaceMissingByVal': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('val', 'double', '', False, (), 0),
    ), (
        'int VB_M_ReplaceMissingByVal(double* x, int rows, int cols, double val);\n'
        '\n'
        'Replaces the missing numbers of a table.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'val: what a missing number becomes\n'
        'returns 0\n'
    )),
    'VB_M_ReplaceMissingByValSPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'int VB_M_ReplaceMissingByValSPV(Hostarray** x, int rows, int cols, double val);\n'
        '\n'
        'Replaces the missing numbers of a chunked table.\n'
        '\n'
        'x: inout, cols columns of rows numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'val: what a missing number becomes\n'
        'returns 0\n'
    )),
    'VB_M_ReplaceStrByCodes': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (('number', '1', None),), 0),
        ('categoryCounts', 'int*', 'in', False, (('p', '1', None),), 0),
        ('categories', 'OLECHAR**', 'in', False, (('p', 'max(categoryCounts)', None),), 0),
        ('rowFlags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('firstCode', 'int', '', False, (), 0),
        ('result', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ReplaceStrByCodes(OLECHAR* const* data, int n, int p, const int* categoryCounts, OLECHAR* const* categories, const short int* rowFlags, int firstCode, double* result);\n'
        '\n'
        'The code of each text: `firstCode` for the first category of its variable, and one more for each next one.\n'
        'Of equal names the first counts. A text that is no category, and a flagged row, gets the missing number.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of variables\n'
        'categoryCounts: in, p integers: the number of categories of each variable\n'
        'categories: in, p by max(categoryCounts) texts: their names, a row for each variable\n'
        'rowFlags: in, n flags: not 0 leaves a row out\n'
        'firstCode: the code of a first category\n'
        'result: out, n by p numbers: the codes\n'
        'returns 0\n'
    )),
    'VB_M_ReplaceStrByCodesBinary': ('int', (
        ('data', 'OLECHAR**', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('rowFlags', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('result', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ReplaceStrByCodesBinary(OLECHAR* const* data, int n, int p, const short int* rowFlags, double* result);\n'
        '\n'
        'Codes from 0 on in the order in which texts first appear in the whole table, column after column. The empty\n'
        'text has a code like any other.\n'
        '\n'
        'data: in, n by p texts\n'
        'n: number of rows\n'
        'p: number of columns\n'
        'rowFlags: in, n flags: not 0 gives a row missing numbers, and its texts no code. Null: no row is flagged\n'
        'result: out, n by p numbers: the codes\n'
        'returns 0\n'
    )),
    'VB_M_RescaleByVect': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('lo', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('hi', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_RescaleByVect(const double* x, int rows, int cols, const double* lo, const double* hi, const short int* iMissing, double* out);\n'
        '\n'
        'VB_V_Rescale on each column, each to a range of its own.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'lo: in, cols lower ends\n'
        'hi: in, cols upper ends\n'
        'iMissing: in, rows flags; what has a flag other than 0 is left out; may be null\n'
        'out: out, rows by cols numbers, missing where a cell is left out; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_M_RescaleByVect2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('lo', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('hi', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
    ), (
        'int VB_M_RescaleByVect2(double* x, int rows, int cols, const double* lo, const double* hi, const short int* iMissing);\n'
        '\n'
        'The same in place; a cell left out stays.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'lo: in, cols lower ends\n'
        'hi: in, cols upper ends\n'
        'iMissing: in, rows flags; what has a flag other than 0 is left out; may be null\n'
        'returns 0\n'
    )),
    'VB_M_SVDecomp': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double*', 'out', False, (('p', '1', None),), 0),
        ('u', 'double*', 'out', False, (('n', 'n', None),), 0),
        ('v', 'double*', 'out', False, (('p', 'p', None),), 0),
        ('job', 'int', '', False, (('what', '1', None),), 0),
        ('info', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SVDecomp(const double* a, int n, int p, double* s, double* u, double* v, int job, int* info);\n'
        '\n'
        'Singular value decomposition. A value may take 500 steps.\n'
        '\n'
        'a: in, n by p numbers, column after column\n'
        'n: rows\n'
        'p: columns\n'
        's: out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values, descending, and perhaps a 0\n'
        'u: out, n by n numbers, column after column; n by p numbers are enough when the job asks for min(n, p) columns. May be null when it asks for none\n'
        'v: out, p by p numbers, column after column. May be null when the job does not ask for it\n'
        'job: what is wanted, see above\n'
        'info: out, one integer: 0; minus the number of values that did not converge, which are the first ones\n'
        'returns 0\n'
    )),
    'VB_M_SVDecompSPV': ('int', (
        ('a', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double*', 'out', False, (('p', '1', None),), 0),
        ('u', 'Hostarray**', 'inout', False, (), 0),
        ('v', 'Hostarray**', 'inout', False, (), 0),
        ('job', 'int', '', False, (('what', '1', None),), 0),
        ('info', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SVDecompSPV(Hostarray** a, int n, int p, double* s, Hostarray** u, Hostarray** v, int job, int* info);\n'
        '\n'
        'Singular value decomposition of a chunked table. A value may take 60 steps.\n'
        '\n'
        'a: in, host array of p records, each with a numeric column of n numbers\n'
        'n: rows\n'
        'p: columns\n'
        's: out, p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values, descending, and perhaps a 0\n'
        'u: inout, host array of a record for each column that the job asks for, each with a numeric column of n numbers; a null array when it asks for none\n'
        'v: inout, host array of p records, each with a numeric column of p numbers; a null array when the job does not ask for it\n'
        'job: what is wanted, see above\n'
        'info: out, one integer: 0; minus the number of values that did not converge, which are the first ones\n'
        'returns 0\n'
    )),
    'VB_M_SampleUserDefined': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('sum(counts)', 'cols', None),), 0),
        ('counts', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('selected', 'double*', 'out', False, (('sum(counts)', '1', None),), 0),
    ), (
        'int VB_M_SampleUserDefined(OLECHAR* const* table, int rows, int cols, OLECHAR** sample, const double* counts, double* selected);\n'
        '\n'
        'Takes each row as many times as the caller says, in the order of the rows.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'sample: inout, sum(counts) by cols texts, the sum being that of the truncated positive counts\n'
        'counts: in, rows numbers, truncated; a row with a number below 1 is left out\n'
        'selected: out, sum(counts) numbers: the row number in the table of each row of the sample\n'
        'returns 0\n'
    )),
    'VB_M_SampleUserDefinedSPV': ('int', (
        ('table', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('sample', 'Hostarray**', 'inout', False, (), 0),
        ('counts', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('selected', 'double*', 'out', False, (('sum(counts)', '1', None),), 0),
    ), (
        'int VB_M_SampleUserDefinedSPV(Hostarray** table, int rows, int cols, Hostarray** sample, const double* counts, double* selected);\n'
        '\n'
        'Takes each row of a chunked table as many times as the caller says, in the order of the rows.\n'
        '\n'
        'table: in, host array of cols records, each with a text column of rows texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'sample: inout, host array of cols records, each with a text column of as many rows as the truncated positive counts add up to\n'
        'counts: in, rows numbers, truncated; a row with a number below 1 is left out\n'
        'selected: out, sum(counts) numbers: the row number in the table of each row of the sample\n'
        'returns 0\n'
    )),
    'VB_M_SamplingRandomStratified': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('k', 'cols', None),), 0),
        ('selected', 'double*', 'inout', False, (('k', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SamplingRandomStratified(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample, double* selected, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'One random row from each of k strata of consecutive rows. Strata may overlap.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, k by cols texts\n'
        'selected: inout, k numbers: the row number of each row of the sample\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_SamplingRandomStratifiedSPV': ('int', (
        ('table', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'Hostarray**', 'inout', False, (), 0),
        ('selected', 'double*', 'inout', False, (('k', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SamplingRandomStratifiedSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample, double* selected, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'One random row of a chunked table from each of k strata of consecutive rows. Strata may overlap.\n'
        '\n'
        'table: in, host array of cols records, each with a text column of rows texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, host array of cols records, each with a text column of k texts\n'
        'selected: inout, k numbers: the row number of each row of the sample\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_SamplingSystematicCentered': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('k', 'cols', None),), 0),
        ('selected', 'double*', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_SamplingSystematicCentered(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample, double* selected);\n'
        '\n'
        'Systematic sample of rows with a start in the middle of the possible ones. Nothing is drawn.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, k by cols texts\n'
        'selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay\n'
        'returns 0\n'
    )),
    'VB_M_SamplingSystematicCenteredSPV': ('int', (
        ('table', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'Hostarray**', 'inout', False, (), 0),
        ('selected', 'double*', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_SamplingSystematicCenteredSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample, double* selected);\n'
        '\n'
        'Systematic sample of the rows of a chunked table with a start in the middle of the possible ones.\n'
        '\n'
        'table: in, host array of cols records, each with a text column of rows texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, host array of cols records, each with a text column of k texts\n'
        'selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay\n'
        'returns 0\n'
    )),
    'VB_M_SamplingSystematicRdStart': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('k', 'cols', None),), 0),
        ('selected', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SamplingSystematicRdStart(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample, double* selected, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Systematic sample of rows with a random start: with the step s, the quotient (rows - 1) / (k - 1) without\n'
        'its fraction, every s-th row from a random one of the first rows - (k - 1) s.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, k by cols texts\n'
        'selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_SamplingSystematicRdStartSPV': ('int', (
        ('table', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'Hostarray**', 'inout', False, (), 0),
        ('selected', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SamplingSystematicRdStartSPV(Hostarray** table, int rows, int cols, int k, Hostarray** sample, double* selected, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Systematic sample of the rows of a chunked table with a random start: see VB_M_SamplingSystematicRdStart.\n'
        '\n'
        'table: in, host array of cols records, each with a text column of rows texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample; of 1, or above the number of rows, takes one row\n'
        'sample: inout, host array of cols records, each with a text column of k texts\n'
        'selected: inout, rows numbers: receives rows + 1 for each row that is not taken; the others stay\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_SamplingWithReplacement': ('int', (
        ('table', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
        ('sample', 'OLECHAR**', 'inout', False, (('k', 'cols', None),), 0),
        ('selected', 'double*', 'out', False, (('k', '1', None),), 0),
        ('seed', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('flag', 'short int', '', False, (), 0),
        ('nextSeed', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_M_SamplingWithReplacement(OLECHAR* const* table, int rows, int cols, int k, OLECHAR** sample, double* selected, int* seed, short int flag, int* nextSeed);\n'
        '\n'
        'Simple random sample of rows with replacement, in the order of the rows.\n'
        '\n'
        'table: in, rows by cols texts\n'
        'rows: number of rows\n'
        'cols: number of columns\n'
        'k: size of the sample\n'
        'sample: inout, k by cols texts\n'
        'selected: out, k numbers: the row number of each row of the sample, ascending\n'
        'seed: inout, one integer: the seed, when flag is not 0; receives the seed in use when flag is 0\n'
        'flag: not 0: a seed is given\n'
        'nextSeed: out, one integer: a seed for the next run\n'
        'returns 0\n'
    )),
    'VB_M_ScalarsA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double', '', False, (), 0),
        ('c', 'double*', 'out', False, (('n', 'p', None),), 0),
    ), (
        'int VB_M_ScalarsA(const double* a, int n, int p, double s, double* c);\n'
        '\n'
        'c(i, j) = s * a(i, j); a missing cell stays missing.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        's: the factor\n'
        'c: out, n by p cells; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_ScalarsA2': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double', '', False, (), 0),
    ), (
        'int VB_M_ScalarsA2(double* a, int n, int p, double s);\n'
        '\n'
        'a(i, j) = s * a(i, j); a missing cell stays missing.\n'
        '\n'
        'a: inout, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        's: the factor\n'
        'returns 0\n'
    )),
    'VB_M_ScalarsTrA': ('int', (
        ('a', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
        ('s', 'double', '', False, (), 0),
        ('c', 'double*', 'out', False, (('p', 'n', None),), 0),
    ), (
        'int VB_M_ScalarsTrA(const double* a, int n, int p, double s, double* c);\n'
        '\n'
        'c(j, i) = s * a(i, j); a missing cell stays missing.\n'
        '\n'
        'a: in, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        's: the factor\n'
        'c: out, p by n cells; may be a\n'
        'returns 0\n'
    )),
    'VB_M_SetWeightsToZeroForMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('weights', 'double*', 'inout', False, (('n', 'p', None), ('n', '1', ('mode', 1))), 0),
        ('mode', 'int', '', False, (), 0),
    ), (
        'int VB_M_SetWeightsToZeroForMissing(const double* x, int n, int p, double* weights, int mode);\n'
        '\n'
        'Sets weights to 0 where numbers are missing.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'weights: inout, n by p weights, or n weights when mode is 1\n'
        'mode: 1: a row with a missing number gets weight 0; otherwise the weight cell of each missing number does\n'
        'returns 0\n'
    )),
    'VB_M_Square': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 0),
    ), (
        'int VB_M_Square(double* a, int n, int p);\n'
        '\n'
        'a(i, j) = a(i, j) * a(i, j); a missing cell stays missing.\n'
        '\n'
        'a: inout, n by p cells\n'
        'n: rows\n'
        'p: columns\n'
        'returns 0\n'
    )),
    'VB_M_SquaredColumns': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_SquaredColumns(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of squares of each column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols sums\n'
        'returns 0\n'
    )),
    'VB_M_SquaredRows': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_SquaredRows(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of squares of each row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows sums\n'
        'returns 0\n'
    )),
    'VB_M_Standardize': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', True, (('rows', 'cols', None),), 0),
        ('means', 'double*', 'out', True, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', True, (('cols', '1', None),), 0),
        ('vars', 'double*', 'out', True, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
        ('w', 'double*', 'in', True, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_Standardize(double* x, int rows, int cols, double* out, double* means, double* sds, double* vars, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Standardises each column in turn. A column that has nothing to divide its sum of squares by ends the work:\n'
        'its statistics become missing, and it and the columns after it stay as they are in x, or 0 in the results.\n'
        'A deviation of 0 is reported and not divided by, so that a constant column becomes zeros.\n'
        '\n'
        'x: inout, rows by cols numbers; unchanged unless out is null\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows by cols numbers, missing where a cell is not kept; null: the cells of x that are kept are replaced. May be the array of x\n'
        'means: out, cols means; may be null\n'
        'sds: out, cols deviations; may be null\n'
        'vars: out, cols variances; may be null\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'w: in, rows weights; may be null, then all are 1\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_Standardize2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'int VB_M_Standardize2(double* x, int rows, int cols, short int bUnbiased);\n'
        '\n'
        'Standardises in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_Standardize2SPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'int VB_M_Standardize2SPV(Hostarray** x, int rows, int cols, short int bUnbiased);\n'
        '\n'
        'The same on a table of separate columns.\n'
        '\n'
        'x: inout, cols columns of rows numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_Standardize3': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_Standardize3(double* x, int rows, int cols, double* means, double* sds, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Standardises in place and returns the statistics.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: out, cols means\n'
        'sds: out, cols deviations\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeByVect': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_StandardizeByVect(const double* x, int rows, int cols, const double* means, const double* sds, double* out);\n'
        '\n'
        'VB_M_StandardizeKnownMeansStDev with deviations and a result, no row left out.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: in, cols means\n'
        'sds: in, cols deviations\n'
        'out: out, rows by cols numbers; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeByVect2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'in', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_StandardizeByVect2(double* x, int rows, int cols, const double* means, const double* sds);\n'
        '\n'
        'VB_M_StandardizeKnownMeansStDev with deviations, in place, no row left out.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: in, cols means\n'
        'sds: in, cols deviations\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeKnownMeansStDev': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('means', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'in', True, (('cols', '1', None),), 0),
        ('out', 'double*', 'out', True, (('rows', 'cols', None),), 0),
        ('vars', 'double*', 'in', False, (('cols', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('rows', '1', None),), 0),
    ), (
        'int VB_M_StandardizeKnownMeansStDev(double* x, int rows, int cols, const double* means, const double* sds, double* out, const double* vars, const short int* iMissing);\n'
        '\n'
        'Standardises the columns by given statistics. A deviation of 0 is not divided by. Where the mean or the\n'
        'deviation of a column is missing, its cells that are kept become missing; a negative variance counts as a\n'
        'missing deviation.\n'
        '\n'
        'x: inout, rows by cols numbers; unchanged unless out is null\n'
        'rows: rows\n'
        'cols: columns\n'
        'means: in, cols means\n'
        'sds: in, cols deviations; null: the roots of vars\n'
        'out: out, rows by cols numbers, missing where a cell is not kept; null: the cells of x that are kept are replaced. May be the array of x\n'
        'vars: in, cols variances, read only when sds is null\n'
        'iMissing: in, rows flags; a row with a non-zero flag is left out; may be null, then none is\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeMatrix': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', True, (('yRows', 'cols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('z', 'double*', 'inout', True, (('zRows', 'cols', None),), 0),
        ('zRows', 'int', '', False, (), 0),
    ), (
        'int VB_M_StandardizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z, int zRows);\n'
        '\n'
        'Standardises a table in place, (x - mean) / sd by column, the sum of squares divided by the number of cells\n'
        'less 1, and by the same means and deviations two companions, tables of other rows and the same columns.\n'
        'Where the deviation of x is not greater than 0, the column stays as it is in all three.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of all three\n'
        'y: inout, yRows by cols numbers; may be null when yRows is 0\n'
        'yRows: rows of y\n'
        'z: inout, zRows by cols numbers; may be null when zRows is 0\n'
        'zRows: rows of z\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeW': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_StandardizeW(const double* x, int rows, int cols, const double* w, short int bUnbiased, short int bFreq, double* out);\n'
        '\n'
        'Standardises, with weights, into a result.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'out: out, rows by cols numbers; may be the array of an argument\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeW2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_StandardizeW2(double* x, int rows, int cols, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Standardises, with weights, in place.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights; may be a column of x\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_StandardizeW3': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('means', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('sds', 'double*', 'out', False, (('cols', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_M_StandardizeW3(double* x, int rows, int cols, const double* w, double* means, double* sds, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Standardises, with weights, in place and returns the statistics.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'w: in, rows weights; may be a column of x\n'
        'means: out, cols means\n'
        'sds: out, cols deviations\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_M_SumByCols': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('cols', '1', None),), 0),
    ), (
        'int VB_M_SumByCols(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of each column.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, cols sums\n'
        'returns 0\n'
    )),
    'VB_M_SumByRows': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', '1', None),), 0),
    ), (
        'int VB_M_SumByRows(const double* x, int rows, int cols, double* out);\n'
        '\n'
        'The sum of each row.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'out: out, rows sums\n'
        'returns 0\n'
    )),
    'VB_M_SumOfElem': ('double', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'double VB_M_SumOfElem(const double* x, int rows, int cols);\n'
        '\n'
        'The sum of all cells.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'returns the sum\n'
    )),
    'VB_M_Sums1As2B': ('int', (
        ('A', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('B', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('a', 'double', '', False, (), 0),
        ('b', 'double', '', False, (), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_M_Sums1As2B(const double* A, int rows, int cols, const double* B, double a, double b, double* out);\n'
        '\n'
        'The sum of two tables, each times a number: a * A + b * B, cell by cell.\n'
        '\n'
        'A: in, rows by cols numbers\n'
        'rows: rows\n'
        'cols: columns\n'
        'B: in, rows by cols numbers\n'
        'a: factor of A\n'
        'b: factor of B\n'
        'out: out, rows by cols numbers, 0.0 where one is missing in either table; may be A or B\n'
        'returns 0\n'
    )),
    'VB_M_Sweep': ('int', (
        ('packed', 'double*', 'inout', False, (('n * (n + 1) / 2', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('k', 'int', '', False, (), 0),
    ), (
        'int VB_M_Sweep(double* packed, int n, int k);\n'
        '\n'
        'Sweeps one pivot of a symmetric table in place: after all pivots the table is the negative of its inverse.\n'
        "The pivot is not tested, so that a zero gives infinities. Outside of the pivot's row and column a result\n"
        'whose magnitude is below 1e-12 becomes 0. Missing elements are numbers.\n'
        '\n'
        'packed: inout, n * (n + 1) / 2 numbers, the lower triangle row after row\n'
        'n: rows and columns of the table; at most 65535\n'
        'k: number of the pivot, counted from 1\n'
        'returns 0\n'
    )),
    'VB_M_Symmetrize': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Symmetrize(double* x, int rows, int cols);\n'
        '\n'
        'Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell takes the\n'
        'value of the other; two missing ones stay.\n'
        '\n'
        'x: inout, rows by cols numbers; the square in the top left corner is treated\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'VB_M_SymmetrizeSPV': ('int', (
        ('x', 'Hostarray**', 'inout', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_SymmetrizeSPV(Hostarray** x, int rows, int cols);\n'
        '\n'
        'Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell takes the\n'
        'value of the other; two missing ones stay.\n'
        '\n'
        'x: inout, chunked table of cols columns of rows numbers; the square in the top left corner is treated\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'VB_M_Trace': ('double', (
        ('a', 'double*', 'in', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'double VB_M_Trace(const double* a, int n);\n'
        '\n'
        'The trace: the sum of a(i, i).\n'
        '\n'
        'a: in, n by n cells\n'
        'n: rows and columns; below 1 nothing is read\n'
        'returns the sum; 0.0 for n below 1\n'
    )),
    'VB_M_TransformSimToDissim': ('int', (
        ('x', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
    ), (
        'int VB_M_TransformSimToDissim(double* x, int n);\n'
        '\n'
        'Turns similarities into dissimilarities: every cell becomes the largest cell of the table less itself.\n'
        'Missing cells stay and do not count as the largest.\n'
        '\n'
        'x: inout, n by n numbers\n'
        'n: order\n'
        'returns 0\n'
    )),
    'VB_M_Transpose': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'double*', 'out', False, (('cols', 'rows', None),), 0),
    ), (
        'int VB_M_Transpose(const double* x, int rows, int cols, double* y);\n'
        '\n'
        'Transposes a table of numbers.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: out, cols by rows numbers; may be x\n'
        'returns 0\n'
    )),
    'VB_M_Transpose2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Transpose2(double* x, int rows, int cols);\n'
        '\n'
        'Transposes a table of numbers in place.\n'
        '\n'
        'x: inout, rows by cols numbers; cols by rows on return\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'VB_M_Transpose2Lng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Transpose2Lng(int* x, int rows, int cols);\n'
        '\n'
        'Transposes a table of integers in place.\n'
        '\n'
        'x: inout, rows by cols integers; cols by rows on return\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'VB_M_Transpose2Str': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_M_Transpose2Str(OLECHAR** x, int rows, int cols);\n'
        '\n'
        'Transposes a table of texts in place.\n'
        '\n'
        'x: inout, rows by cols texts, replaced where they differ; cols by rows on return\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'returns 0\n'
    )),
    'VB_M_TransposeLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'int*', 'out', False, (('cols', 'rows', None),), 0),
    ), (
        'int VB_M_TransposeLng(const int* x, int rows, int cols, int* y);\n'
        '\n'
        'Transposes a table of integers.\n'
        '\n'
        'x: in, rows by cols integers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: out, cols by rows integers; may be x\n'
        'returns 0\n'
    )),
    'VB_M_TransposeSPV': ('int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'Hostarray**', 'out', False, (), 0),
    ), (
        'int VB_M_TransposeSPV(Hostarray** x, int rows, int cols, Hostarray** y);\n'
        '\n'
        'Transposes a table of separate columns of numbers.\n'
        '\n'
        'x: in, chunked table of cols columns of rows numbers\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: out, chunked table of rows columns of cols numbers; none of x\n'
        'returns 0\n'
    )),
    'VB_M_TransposeStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('y', 'OLECHAR**', 'inout', False, (('cols', 'rows', None),), 0),
    ), (
        'int VB_M_TransposeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y);\n'
        '\n'
        'Transposes a table of texts.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of x\n'
        'cols: columns of x\n'
        'y: inout, cols by rows texts, replaced where they differ; may be x\n'
        'returns 0\n'
    )),
    'VB_RMSE': ('double', (
        ('x', 'double*', 'in', False, (('n', 'col', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
        ('y', 'double*', 'in', False, (('n', 'col', None),), 0),
        ('df', 'double', '', False, (), 0),
    ), (
        'double VB_RMSE(const double* x, int n, int col, const double* y, double df);\n'
        '\n'
        'Root mean squared error of one column of two tables, over the rows whose first value is above the missing\n'
        'number.\n'
        '\n'
        'x: in, n by col numbers or more\n'
        'n: number of rows\n'
        'col: the column, from 1\n'
        'y: in, n by col numbers or more, not tested for missing\n'
        'df: what the sum of squares is divided by; 0 gives infinity, or a NaN when the sum is 0\n'
        'returns the error; 0.0 when col is below 1\n'
    )),
    'VB_RemoveRowsWithMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('removed', 'int', '', False, (), 0),
        ('flags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('result', 'double*', 'out', False, (('n - removed', 'p', None),), 0),
    ), (
        'int VB_RemoveRowsWithMissing(const double* x, int n, int p, int removed, const short int* flags, double* result);\n'
        '\n'
        'Copies a table without the flagged rows.\n'
        '\n'
        'x: in, n by p numbers\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'removed: how many rows the result is shorter\n'
        'flags: in, n flags, one for each row; not 0: the row is taken out\n'
        'result: out, n - removed by p numbers; it may be x\n'
        'returns 0\n'
    )),
    'VB_RemoveRowsWithMissingBool': ('int', (
        ('x', 'short int*', 'in', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('removed', 'int', '', False, (), 0),
        ('flags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('result', 'short int*', 'out', False, (('n - removed', 'p', None),), 0),
    ), (
        'int VB_RemoveRowsWithMissingBool(const short int* x, int n, int p, int removed, const short int* flags, short int* result);\n'
        '\n'
        'Copies a table of flags without the flagged rows.\n'
        '\n'
        'x: in, n by p flags\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'removed: how many rows the result is shorter\n'
        'flags: in, n flags, one for each row; not 0: the row is taken out\n'
        'result: out, n - removed by p flags; it may be x\n'
        'returns 0\n'
    )),
    'VB_RemoveRowsWithMissingStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', 'p', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('p', 'int', '', False, (), 1),
        ('removed', 'int', '', False, (), 0),
        ('flags', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('result', 'OLECHAR**', 'inout', False, (('n - removed', 'p', None),), 0),
    ), (
        'int VB_RemoveRowsWithMissingStr(OLECHAR** x, int n, int p, int removed, const short int* flags, OLECHAR** result);\n'
        '\n'
        'Takes the flagged rows out of a table of texts in place, as Cpp_M_RemoveRowsWithMissing2 does, and copies\n'
        'its first rows.\n'
        '\n'
        'x: inout, n by p texts, replaced where they differ\n'
        'n: rows of the table\n'
        'p: columns of the table; 0 stands for 1\n'
        'removed: how many rows the result is shorter\n'
        'flags: in, n flags, one for each row; not 0: the row is taken out\n'
        'result: inout, n - removed by p texts, replaced where they differ; it may be x\n'
        'returns 0\n'
    )),
    'VB_ReplaceMissingObsLabels': ('int', (
        ('labels', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('flags', 'short int*', 'inout', False, (('n', '1', None),), 0),
        ('prefix', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'int VB_ReplaceMissingObsLabels(OLECHAR** labels, int n, short int* flags, const OLECHAR* prefix);\n'
        '\n'
        'Makes a label for each flagged row: the prefix and the row number, and a further number while another row\n'
        'has that label.\n'
        '\n'
        'labels: inout, n texts, replaced where they differ\n'
        'n: number of rows\n'
        'flags: inout, n flags, one for each row, -1 for one that gets a label; it is 0 then\n'
        'prefix: in, one text: what a made label starts with\n'
        'returns 0\n'
    )),
    'VB_SortApply': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('out', 'double*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_SortApply(const double* x, int rows, int cols, const double* order, double* out);\n'
        '\n'
        'Takes the rows of a table of numbers in a given order: row i of the result is row order[i] of the table.\n'
        '\n'
        'x: in, rows by cols numbers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives -1\n'
        'out: out, rows by cols numbers; may be x\n'
        'returns 0\n'
    )),
    'VB_SortApply2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortApply2(double* x, int rows, int cols, const double* order);\n'
        '\n'
        'Puts the rows of a table of numbers into a given order, in place: row i becomes what row order[i] was.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives -1\n'
        'returns 0\n'
    )),
    'VB_SortApply2Lng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortApply2Lng(int* x, int rows, int cols, const double* order);\n'
        '\n'
        'Puts the rows of a table of integers into a given order, in place: row i becomes what row order[i] was.\n'
        '\n'
        'x: inout, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives -1\n'
        'returns 0\n'
    )),
    'VB_SortApply2Str': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortApply2Str(OLECHAR** x, int rows, int cols, const double* order);\n'
        '\n'
        'Puts the rows of a table of texts into a given order, in place: row i becomes what row order[i] was.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives an empty text\n'
        'returns 0\n'
    )),
    'VB_SortApplyLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('out', 'int*', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_SortApplyLng(const int* x, int rows, int cols, const double* order, int* out);\n'
        '\n'
        'Takes the rows of a table of integers in a given order: row i of the result is row order[i] of the table.\n'
        '\n'
        'x: in, rows by cols integers\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives -1\n'
        'out: out, rows by cols integers; may be x\n'
        'returns 0\n'
    )),
    'VB_SortApplyStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('order', 'double*', 'in', False, (('rows', '1', None),), 0),
        ('out', 'OLECHAR**', 'out', False, (('rows', 'cols', None),), 0),
    ), (
        'int VB_SortApplyStr(OLECHAR* const* x, int rows, int cols, const double* order, OLECHAR** out);\n'
        '\n'
        'Takes the rows of a table of texts in a given order: row i of the result is row order[i] of the table.\n'
        '\n'
        'x: in, rows by cols texts\n'
        'rows: rows of both tables\n'
        'cols: columns of both tables\n'
        'order: in, rows row numbers from 1, truncated to integers; one that is not the number of a row gives an empty text\n'
        'out: out, rows by cols texts; may be x\n'
        'returns 0\n'
    )),
    'VB_SortDataBy01': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortDataBy01(double* x, int rows, int cols, double* key);\n'
        '\n'
        'Puts the rows of a table of numbers with key 0 first, in their order, then those with key 1.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'key: inout, rows keys, rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortDataBy01Bool': ('int', (
        ('x', 'short int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortDataBy01Bool(short int* x, int rows, int cols, double* key);\n'
        '\n'
        'Puts the rows of a table of flags with key 0 first, in their order, then those with key 1.\n'
        '\n'
        'x: inout, rows by cols flags\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'key: inout, rows keys, rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortDataBy01Str': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
    ), (
        'int VB_SortDataBy01Str(OLECHAR** x, int rows, int cols, double* key);\n'
        '\n'
        'Puts the rows of a table of texts with key 0 first, in their order, then those with key 1.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'key: inout, rows keys, rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortMatrixSeqQDbl': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_SortMatrixSeqQDbl(double* x, int rows, int cols);\n'
        '\n'
        'Orders all rows of a table of numbers, ascending, by column 1, then column 2, and so on.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'returns 0\n'
    )),
    'VB_SortMatrixSeqQLng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
    ), (
        'int VB_SortMatrixSeqQLng(int* x, int rows, int cols);\n'
        '\n'
        'Orders all rows of a table of integers, ascending, by column 1, then column 2, and so on.\n'
        '\n'
        'x: inout, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'returns 0\n'
    )),
    'VB_SortMatrixSeqQP1toP2Dbl': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('p1', 'int', '', False, (), 0),
        ('p2', 'int', '', False, (), 0),
    ), (
        'int VB_SortMatrixSeqQP1toP2Dbl(double* x, int rows, int cols, int p1, int p2);\n'
        '\n'
        'Sorts all rows of a table of numbers, ascending, by column p1, then again by the next, up to p2: column p2\n'
        'orders first, then the one before it.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'p1: first column, from 1\n'
        'p2: last column, included\n'
        'returns 0\n'
    )),
    'VB_SortMatrixSeqQP1toP2Lng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 0),
        ('p1', 'int', '', False, (), 0),
        ('p2', 'int', '', False, (), 0),
    ), (
        'int VB_SortMatrixSeqQP1toP2Lng(int* x, int rows, int cols, int p1, int p2);\n'
        '\n'
        'Sorts all rows of a table of integers, ascending, by column p1, then again by the next, up to p2: column p2\n'
        'orders first, then the one before it.\n'
        '\n'
        'x: inout, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table\n'
        'p1: first column, from 1\n'
        'p2: last column, included\n'
        'returns 0\n'
    )),
    'VB_SortQBool': ('int', (
        ('x', 'short int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'short int*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQBool(short int* x, int rows, int cols, int from, int to, double* key, short int* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a table of flags by a key of numbers.\n'
        '\n'
        'x: inout, rows by cols flags\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols flags, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQByColDbl': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 1),
        ('cols', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('cols', '1', None),), 0),
        ('aux', 'double*', 'inout', False, (('auxRows', 'cols', None),), 0),
        ('auxRows', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQByColDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxRows, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the columns of a table of numbers by a key with one entry a column: the column of rank k, from 0,\n'
        'goes to column from + k.\n'
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table; 0 counts as 1\n'
        'cols: columns of the table\n'
        'from: first column to sort, from 1\n'
        'to: last column to sort, included\n'
        'key: inout, cols keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, auxRows by cols numbers, a second table whose columns move along\n'
        'auxRows: rows of aux; 0 counts as 1\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQDbl': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'double*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        "Orders the rows of a table of numbers by a key, on copies that then replace the caller's arrays.\n"
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols numbers, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQDbl2': ('int', (
        ('x', 'double*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'double*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQDbl2(double* x, int rows, int cols, int from, int to, double* key, double* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        "Orders the rows of a table of numbers by a key, in the caller's arrays. With bSortKey set and the key at\n"
        "the table's own address, the key is the table's first column, and the columns from the second on move.\n"
        '\n'
        'x: inout, rows by cols numbers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols numbers, moved along unless it is the key or the table itself; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQLng': ('int', (
        ('x', 'int*', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'int*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'int*', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQLng(int* x, int rows, int cols, int from, int to, int* key, int* aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a table of integers by a key of integers.\n'
        '\n'
        'x: inout, rows by cols integers\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols integers, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('key', 'double*', 'inout', False, (('rows', '1', None),), 0),
        ('aux', 'OLECHAR**', 'inout', True, (('rows', 'auxCols', None),), 0),
        ('auxCols', 'int', '', False, (), 1),
        ('bDesc', 'short int', '', False, (), 0),
        ('bSortKey', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQStr(OLECHAR** x, int rows, int cols, int from, int to, double* key, OLECHAR** aux, int auxCols, short int bDesc, short int bSortKey);\n'
        '\n'
        'Orders the rows of a table of texts by a key of numbers. A text that stays in its place keeps its BSTR.\n'
        '\n'
        'x: inout, rows by cols texts\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 counts as 1\n'
        'from: first row to sort, from 1\n'
        'to: last row to sort, included\n'
        'key: inout, rows keys, read at positions from..to, rewritten in sorted order when bSortKey is set\n'
        'aux: inout, rows by auxCols texts, a second table that moves along; may be null when auxCols is below 0\n'
        'auxCols: columns of aux; 0 counts as 1, so there must be one; below 0 there is none\n'
        'bDesc: not 0: descending\n'
        'bSortKey: not 0: the key is rewritten in sorted order\n'
        'returns 0\n'
    )),
    'VB_SortQVectorDbl': ('int', (
        ('sa', 'SAFEARRAY**', 'inout', False, (), 0),
        ('ignored', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQVectorDbl(SAFEARRAY** sa, int ignored, int from, int to, short int bDesc);\n'
        '\n'
        'Sorts positions `from..to` of a vector of numbers.\n'
        '\n'
        'sa: inout, host array of Double, one column, sorted in place\n'
        'ignored: not used; the array knows its length\n'
        'from: first position, from 1\n'
        'to: last position, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'VB_SortQVectorLng': ('int', (
        ('sa', 'SAFEARRAY**', 'inout', False, (), 0),
        ('ignored', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQVectorLng(SAFEARRAY** sa, int ignored, int from, int to, short int bDesc);\n'
        '\n'
        'Sorts positions `from..to` of a vector of integers.\n'
        '\n'
        'sa: inout, host array of Long, one column, sorted in place\n'
        'ignored: not used; the array knows its length\n'
        'from: first position, from 1\n'
        'to: last position, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'VB_SortQVectorStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('bDesc', 'short int', '', False, (), 0),
    ), (
        'int VB_SortQVectorStr(OLECHAR** x, int n, int from, int to, short int bDesc);\n'
        '\n'
        'Sorts positions `from..to` of a vector of texts by 16-bit code units, a prefix before its extensions.\n'
        '\n'
        'x: inout, n texts\n'
        'n: number of texts\n'
        'from: first position, from 1\n'
        'to: last position, included\n'
        'bDesc: not 0: descending\n'
        'returns 0\n'
    )),
    'VB_SummarizeAllMissing': ('int', (
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('a', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('b', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('count', 'int*', 'out', False, (('1', '1', None),), 0),
        ('result', 'short int*', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int VB_SummarizeAllMissing(int n, const short int* a, const short int* b, int* count, short int* result);\n'
        '\n'
        'Sets the result to -1 where both flags are -1, and leaves the other entries as they were.\n'
        '\n'
        'n: number of entries\n'
        'a: in, n flags, set where -1\n'
        'b: in, n flags, set where -1\n'
        'count: out, one integer: how many entries were set\n'
        'result: inout, n flags; it may be one of the others\n'
        'returns 0\n'
    )),
    'VB_SummarizeMissing': ('int', (
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('count', 'int*', 'out', False, (('1', '1', None),), 0),
        ('result', 'short int*', 'inout', False, (('n', '1', None),), 0),
        ('a', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('b', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('c', 'short int*', 'in', True, (('n', '1', None),), 0),
    ), (
        'int VB_SummarizeMissing(int n, int* count, short int* result, const short int* a, const short int* b, const short int* c);\n'
        '\n'
        'Sets the result to -1 where one of the flags is -1, and leaves the other entries as they were.\n'
        '\n'
        'n: number of entries\n'
        'count: out, one integer: how many entries were set\n'
        'result: inout, n flags; it may be one of the others\n'
        'a: in, n flags, set where -1\n'
        'b: in, n flags, set where -1\n'
        'c: in, n flags, set where -1; null: only the first two count\n'
        'returns 0\n'
    )),
    'VB_VMergeTablesDbl': ('int', (
        ('a', 'double*', 'in', False, (('rowsA', 'colsA', None),), 0),
        ('rowsA', 'int', '', False, (), 0),
        ('colsA', 'int', '', False, (), 1),
        ('b', 'double*', 'in', False, (('rowsB', 'colsB', None),), 0),
        ('rowsB', 'int', '', False, (), 0),
        ('colsB', 'int', '', False, (), 1),
        ('out', 'double*', 'out', False, (('rowsA + rowsB', 'max(colsA, colsB)', None),), 0),
    ), (
        'int VB_VMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB, double* out);\n'
        '\n'
        'Puts a table of numbers below another.\n'
        '\n'
        'a: in, rowsA by colsA numbers\n'
        'rowsA: rows of the first table\n'
        'colsA: columns of the first table; 0 stands for 1\n'
        'b: in, rowsB by colsB numbers\n'
        'rowsB: rows of the second table\n'
        'colsB: columns of the second table; 0 stands for 1\n'
        'out: out, rowsA + rowsB by max(colsA, colsB) numbers\n'
        'returns 0\n'
    )),
    'VB_VMergeVectorsBool2': ('int', (
        ('a', 'short int*', 'inout', False, (('nA + nB', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'short int*', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
    ), (
        'int VB_VMergeVectorsBool2(short int* a, int nA, const short int* b, int nB);\n'
        '\n'
        'Adds a vector of flags behind another, in place.\n'
        '\n'
        'a: inout, nA + nB flags, of which the last nB receive the second vector\n'
        'nA: length that the first vector has already\n'
        'b: in, nB flags\n'
        'nB: length of the second vector\n'
        'returns 0\n'
    )),
    'VB_VMergeVectorsDbl': ('int', (
        ('a', 'double*', 'in', False, (('nA', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('nA + nB', '1', None),), 0),
    ), (
        'int VB_VMergeVectorsDbl(const double* a, int nA, const double* b, int nB, double* out);\n'
        '\n'
        'Puts a vector of numbers behind another.\n'
        '\n'
        'a: in, nA numbers\n'
        'nA: length of the first vector\n'
        'b: in, nB numbers\n'
        'nB: length of the second vector\n'
        'out: out, nA + nB numbers\n'
        'returns 0\n'
    )),
    'VB_VMergeVectorsDbl2': ('int', (
        ('a', 'double*', 'inout', False, (('nA + nB', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
    ), (
        'int VB_VMergeVectorsDbl2(double* a, int nA, const double* b, int nB);\n'
        '\n'
        'Adds a vector of numbers behind another, in place.\n'
        '\n'
        'a: inout, nA + nB numbers, of which the last nB receive the second vector\n'
        'nA: length that the first vector has already\n'
        'b: in, nB numbers\n'
        'nB: length of the second vector\n'
        'returns 0\n'
    )),
    'VB_VMergeVectorsStr': ('int', (
        ('a', 'OLECHAR**', 'in', False, (('nA', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'OLECHAR**', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
        ('out', 'OLECHAR**', 'out', False, (('nA + nB', '1', None),), 0),
    ), (
        'int VB_VMergeVectorsStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB, OLECHAR** out);\n'
        '\n'
        'Puts a vector of texts behind another.\n'
        '\n'
        'a: in, nA texts\n'
        'nA: length of the first vector\n'
        'b: in, nB texts\n'
        'nB: length of the second vector\n'
        'out: out, nA + nB texts\n'
        'returns 0\n'
    )),
    'VB_VMergeVectorsStr2': ('int', (
        ('a', 'OLECHAR**', 'inout', False, (('nA + nB', '1', None),), 0),
        ('nA', 'int', '', False, (), 0),
        ('b', 'OLECHAR**', 'in', False, (('nB', '1', None),), 0),
        ('nB', 'int', '', False, (), 0),
    ), (
        'int VB_VMergeVectorsStr2(OLECHAR** a, int nA, OLECHAR* const* b, int nB);\n'
        '\n'
        'Adds a vector of texts behind another, in place.\n'
        '\n'
        'a: inout, nA + nB texts, of which the last nB receive the second vector\n'
        'nA: length that the first vector has already\n'
        'b: in, nB texts\n'
        'nB: length of the second vector\n'
        'returns 0\n'
    )),
    'VB_V_DiffSq': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_DiffSq(const double* x, int n, const double* y);\n'
        '\n'
        'Squared distance of two vectors, over all elements, missing ones too.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'y: in, n numbers\n'
        'returns the sum of the squares of x[i] - y[i]; 0.0 when n is below 1\n'
    )),
    'VB_V_DiffSqW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_DiffSqW(const double* x, int n, const double* y, const double* w);\n'
        '\n'
        'Weighted squared distance of two vectors, over all elements, missing ones too.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'y: in, n numbers\n'
        'w: in, n weights\n'
        'returns the sum of w[i] times the square of x[i] - y[i]; 0.0 when n is below 1\n'
    )),
    'VB_V_DuplicateDbl': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int VB_V_DuplicateDbl(const double* x, int rows, int cols, int col, int from, int to, double* y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of numbers to a place in a table.\n'
        '\n'
        'x: in, rows by cols numbers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols numbers; may be x\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'VB_V_DuplicateDblToLng': ('int', (
        ('x', 'double*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'int*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int VB_V_DuplicateDblToLng(const double* x, int rows, int cols, int col, int from, int to, int* y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of numbers to a place in a table of integers.\n'
        '\n'
        'A number loses its fraction; what no integer holds, a missing number too, becomes the missing integer.\n'
        '\n'
        'x: in, rows by cols numbers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols integers\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'VB_V_DuplicateLng': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'int*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int VB_V_DuplicateLng(const int* x, int rows, int cols, int col, int from, int to, int* y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of integers to a place in a table.\n'
        '\n'
        'x: in, rows by cols integers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols integers; may be x\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'VB_V_DuplicateLngToDbl': ('int', (
        ('x', 'int*', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'double*', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int VB_V_DuplicateLngToDbl(const int* x, int rows, int cols, int col, int from, int to, double* y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of integers to a place in a table of numbers.\n'
        '\n'
        'An integer becomes the same number, a missing integer -2147483648, which is not missing.\n'
        '\n'
        'x: in, rows by cols integers; cells outside of them read as -1\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols numbers\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'VB_V_DuplicateStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('rows', 'cols', None),), 0),
        ('rows', 'int', '', False, (), 0),
        ('cols', 'int', '', False, (), 1),
        ('col', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
        ('y', 'OLECHAR**', 'inout', False, (('yRows', 'yCols', None),), 0),
        ('yRows', 'int', '', False, (), 0),
        ('yCols', 'int', '', False, (), 1),
        ('row', 'int', '', False, (), 0),
        ('yCol', 'int', '', False, (), 0),
    ), (
        'int VB_V_DuplicateStr(OLECHAR* const* x, int rows, int cols, int col, int from, int to, OLECHAR** y, int yRows, int yCols, int row, int yCol);\n'
        '\n'
        'Copies a range of rows of a column of texts to a place in a table.\n'
        '\n'
        'x: in, rows by cols texts; cells outside of them read as the empty text\n'
        'rows: rows of the table\n'
        'cols: columns of the table; 0 stands for 1\n'
        'col: the column to copy\n'
        'from: first row to copy\n'
        'to: last row to copy; below from nothing is done\n'
        'y: inout, yRows by yCols texts; may be x\n'
        'yRows: rows of the table written; what would fall outside is left out\n'
        'yCols: columns of the table written; 0 stands for 1\n'
        'row: row of y for the first\n'
        'yCol: column of y\n'
        'returns 0\n'
    )),
    'VB_V_ExtractDistinct': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
        ('nOut', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_V_ExtractDistinct(const double* x, int n, double* out, int* nOut);\n'
        '\n'
        'The distinct values in ascending order: each that exceeds the one before it by more than the smaller of\n'
        '2.220446049250313e-16 and the range of the data.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'out: out, n numbers; the values\n'
        'nOut: out, one integer: their number, 0 for n below 1\n'
        'returns 0\n'
    )),
    'VB_V_Freq': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
        ('tol', 'double', '', False, (('an', '1', None),), 0),
    ), (
        'double VB_V_Freq(const double* x, int n, const double* w, double value, double tol);\n'
        '\n'
        'Total weight of the numbers that are near a value.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'value: the value\n'
        'tol: an element counts when its distance from the value is less than this, so that 0 counts none\n'
        'returns the sum of their weights; 0.0 when there are none\n'
    )),
    'VB_V_FreqLng': ('double', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
        ('tol', 'double', '', False, (('an', '1', None),), 0),
    ), (
        'double VB_V_FreqLng(const int* x, int n, const double* w, double value, double tol);\n'
        '\n'
        'Total weight of the integers that are near a value.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'value: the value\n'
        'tol: an element counts when its distance from the value is less than this, so that 0 counts none\n'
        'returns the sum of their weights; 0.0 when there are none\n'
    )),
    'VB_V_FreqStr': ('double', (
        ('labels', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('value', 'OLECHAR*', 'in', True, (('1', '1', None),), 0),
    ), (
        'double VB_V_FreqStr(OLECHAR* const* labels, int n, const double* w, const OLECHAR* value);\n'
        '\n'
        'Total weight of the texts that equal a value: of the same length and with the same code units.\n'
        '\n'
        'labels: in, n texts, each up to its first NUL\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'value: in, one text (BSTR), up to its first NUL. Null: the empty text\n'
        'returns the sum of their weights; 0.0 when there are none\n'
    )),
    'VB_V_Gauss': ('int', (
        ('a', 'double*', 'inout', False, (('n', 'n', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'inout', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_Gauss(double* a, int n, double* b);\n'
        '\n'
        'Solves a * x = b for one right side, and inverts a.\n'
        '\n'
        'a: inout, n by n numbers, column after column; becomes its inverse\n'
        'n: rows and columns of a; below 1 nothing is done\n'
        'b: inout, n numbers; becomes the solution x\n'
        'returns 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them\n'
    )),
    'VB_V_GetMissingDbl': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('iMissingOut', 'short int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetMissingDbl(const double* x, int n, const short int* iMissing, short int* iMissingOut);\n'
        '\n'
        'Combines the two sources of missingness of a vector: a flag, and a number at or below the missing one.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags, -1 for one that is left out; null: none is\n'
        'iMissingOut: out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may be iMissing\n'
        'returns 0\n'
    )),
    'VB_V_GetMissingStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('iMissingOut', 'short int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetMissingStr(OLECHAR* const* x, int n, const short int* iMissing, short int* iMissingOut);\n'
        '\n'
        'The same for texts, which are missing when empty.\n'
        '\n'
        'x: in, n texts\n'
        'n: number of elements\n'
        'iMissing: in, n flags, -1 for one that is left out; null: none is\n'
        'iMissingOut: out, n flags: -1 when the flag is -1 or the element is missing, otherwise 0; it may be iMissing\n'
        'returns 0\n'
    )),
    'VB_V_GetPositionInMatNN': ('int', (
        ('k', 'int', '', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('row', 'int*', 'out', False, (('1', '1', None),), 0),
        ('col', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_V_GetPositionInMatNN(int k, int n, int* row, int* col);\n'
        '\n'
        'Position of a linear index in a square table, read row by row. With n below 1 nothing is written.\n'
        '\n'
        'k: linear index, from 1\n'
        'n: order of the table\n'
        'row: out, one integer: row, from 1\n'
        'col: out, one integer: column, from 1\n'
        'returns 0\n'
    )),
    'VB_V_GetPositionInMatNNm1o2': ('int', (
        ('k', 'int', '', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('row', 'int*', 'out', False, (('1', '1', None),), 0),
        ('col', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'int VB_V_GetPositionInMatNNm1o2(int k, int n, int* row, int* col);\n'
        '\n'
        'Position of a linear index in the strict upper triangle of a square table, read row by row. With n below 2,\n'
        'or past the triangle, nothing is written.\n'
        '\n'
        'k: linear index, from 1\n'
        'n: order of the table\n'
        'row: out, one integer: row, from 1\n'
        'col: out, one integer: column, from 1\n'
        'returns 0\n'
    )),
    'VB_V_GetRanksDbl': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetRanksDbl(const double* x, int n, double* out);\n'
        '\n'
        'Dense ranks: 1 for the smallest element, one more at each change of value.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'out: out, n ranks, in the order of x\n'
        'returns 0\n'
    )),
    'VB_V_GetRanksLng': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetRanksLng(const double* x, int n, int* out);\n'
        '\n'
        'Dense ranks as integers: 1 for the smallest element, one more at each change of value.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'out: out, n ranks, in the order of x\n'
        'returns 0\n'
    )),
    'VB_V_GetRanksTiesDbl': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bRestore', 'short int', '', False, (), 0),
        ('w', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('ranks', 'double*', 'out', False, (('n', '1', None),), 0),
        ('nTies', 'int*', 'out', False, (('1', '1', None),), 0),
        ('tieSizes', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetRanksTiesDbl(double* x, int n, short int bRestore, double* w, double* ranks, int* nTies, double* tieSizes);\n'
        '\n'
        'Weighted mid-ranks: a weight acts as a count of repetitions; tied elements, closer than 1e-15, share the\n'
        'mean of their ranks; a missing element has a missing rank.\n'
        '\n'
        'x: inout, n numbers, sorted ascending\n'
        'n: number of elements\n'
        'bRestore: -1: x, w and ranks return to the original order; otherwise they stay sorted\n'
        'w: inout, n weights, sorted along\n'
        'ranks: out, n ranks\n'
        'nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more than 1\n'
        'tieSizes: out, n numbers; the weight of each group\n'
        'returns 0\n'
    )),
    'VB_V_GetRanksTiesDbl2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bRestore', 'short int', '', False, (), 0),
        ('ranks', 'double*', 'out', False, (('n', '1', None),), 0),
        ('nTies', 'int*', 'out', False, (('1', '1', None),), 0),
        ('tieSizes', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetRanksTiesDbl2(double* x, int n, short int bRestore, double* ranks, int* nTies, double* tieSizes);\n'
        '\n'
        'Mid-ranks: tied elements, closer than 1e-15, share the mean of their ranks; a missing element has a missing\n'
        'rank.\n'
        '\n'
        'x: inout, n numbers, sorted ascending\n'
        'n: number of elements\n'
        'bRestore: -1: x and ranks return to the original order; otherwise they stay sorted\n'
        'ranks: out, n ranks\n'
        'nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more than 1\n'
        'tieSizes: out, n numbers; the weight of each group\n'
        'returns 0\n'
    )),
    'VB_V_GetRanksTiesIntDbl': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('ranks', 'double*', 'out', False, (('n', '1', None),), 0),
        ('nTies', 'int*', 'out', False, (('1', '1', None),), 0),
        ('tieSizes', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_GetRanksTiesIntDbl(const double* x, int n, const double* w, double* ranks, int* nTies, double* tieSizes);\n'
        '\n'
        'Ranks 1, 2, ... in ascending order, tied elements in their original order; a missing element has a missing\n'
        'rank.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'ranks: out, n ranks, in the order of x\n'
        'nTies: out, one integer: the number of groups: tied ones, and single elements that weigh more than 1\n'
        'tieSizes: out, n numbers; the weight of each group\n'
        'returns 0\n'
    )),
    'VB_V_Is01': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int VB_V_Is01(const double* x, int n);\n'
        '\n'
        'Whether every number is exactly 0 or 1; a missing one is not.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns -1 or 0\n'
    )),
    'VB_V_IsCWeights': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int VB_V_IsCWeights(const double* x, int n);\n'
        '\n'
        'Whether numbers can be counts: weights, each of them an integer within 1e-12.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'VB_V_IsConstant': ('short int', (
        ('x', 'double*', 'in', False, (('n', 'col', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
        ('col', 'int', '', False, (), 1),
    ), (
        'short int VB_V_IsConstant(const double* x, int n, short int bSkipMissing, int col);\n'
        '\n'
        'Tests a column of a table.\n'
        '\n'
        'x: in, n by col numbers or more\n'
        'n: number of rows\n'
        'bSkipMissing: -1: missing numbers are passed over; otherwise every one is compared with the first\n'
        'col: the column, from 1; 0 stands for 1\n'
        'returns -1 when it holds one value only, otherwise 0\n'
    )),
    'VB_V_IsConstantBool': ('short int', (
        ('x', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int VB_V_IsConstantBool(const short int* x, int n);\n'
        '\n'
        'Tests flags.\n'
        '\n'
        'x: in, n flags\n'
        'n: number of flags\n'
        'returns -1 when all are equal, otherwise 0\n'
    )),
    'VB_V_IsConstantLng': ('short int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
    ), (
        'short int VB_V_IsConstantLng(const int* x, int n, short int bSkipMissing);\n'
        '\n'
        'Tests integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'bSkipMissing: -1: missing integers are passed over; otherwise every one is compared with the first\n'
        'returns -1 when all are equal, otherwise 0\n'
    )),
    'VB_V_IsConstantStr': ('short int', (
        ('x', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
    ), (
        'short int VB_V_IsConstantStr(OLECHAR* const* x, int n, short int bSkipMissing);\n'
        '\n'
        'Tests texts.\n'
        '\n'
        'x: in, n texts\n'
        'n: number of elements\n'
        'bSkipMissing: -1: empty texts are passed over; otherwise every one is compared with the first\n'
        'returns -1 when all are equal, otherwise 0\n'
    )),
    'VB_V_IsInInterval': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('lo', 'double', '', False, (), 0),
        ('hi', 'double', '', False, (), 0),
        ('bOpen', 'short int', '', False, (), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
    ), (
        'short int VB_V_IsInInterval(const double* x, int n, double lo, double hi, short int bOpen, short int bSkipMissing);\n'
        '\n'
        'Whether every number lies in an interval.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'lo: lower end\n'
        'hi: upper end\n'
        'bOpen: -1: the ends do not belong to the interval\n'
        'bSkipMissing: -1: missing numbers are passed over\n'
        'returns -1 or 0\n'
    )),
    'VB_V_IsIndicator': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int VB_V_IsIndicator(const double* x, int n);\n'
        '\n'
        'Whether every number is 0 or 1, and some number is 1.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'VB_V_IsIndicatorSPV': ('short int', (
        ('x', 'Hostarray**', 'in', False, (), 0),
        ('n', 'int', '', False, (), 0),
        ('col', 'int', '', False, (), 0),
    ), (
        'short int VB_V_IsIndicatorSPV(Hostarray** x, int n, int col);\n'
        '\n'
        'The same for a column of a chunked table.\n'
        '\n'
        'x: in, columns of n numbers\n'
        'n: number of rows\n'
        'col: the column, from 1\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'VB_V_IsPositive': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bStrict', 'short int', '', False, (), 0),
    ), (
        'short int VB_V_IsPositive(const double* x, int n, short int bStrict);\n'
        '\n'
        'Whether no number is negative, missing ones left aside.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'bStrict: not 0: a number must be above 0; 0: it may be 0\n'
        'returns -1 or 0\n'
    )),
    'VB_V_IsSorted': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bStrict', 'short int', '', False, (), 0),
    ), (
        'short int VB_V_IsSorted(const double* x, int n, short int bStrict);\n'
        '\n'
        'Tells whether a vector is in ascending order. Missing values are compared like any other.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements; below 2 the vector is sorted\n'
        'bStrict: not 0: every element must be smaller than the next one; 0: not greater\n'
        'returns -1 when sorted, otherwise 0\n'
    )),
    'VB_V_IsWeights': ('short int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'short int VB_V_IsWeights(const double* x, int n);\n'
        '\n'
        'Whether numbers can be weights: none is negative and their sum is above 0, missing ones left aside.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns -1 or 0; 0 for nothing\n'
    )),
    'VB_V_Max': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
    ), (
        'double VB_V_Max(const double* x, int n, const short int* iMissing);\n'
        '\n'
        'The largest element that is kept.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one. Null: no flag is set\n'
        'returns the element; missing when none is kept\n'
    )),
    'VB_V_Max2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Max2(const double* x, int n);\n'
        '\n'
        'The largest element that is not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the element; missing when there is none\n'
    )),
    'VB_V_Max2Lng': ('double', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Max2Lng(const int* x, int n);\n'
        '\n'
        'The largest of some integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'returns the element as a number; the missing number when n is below 1\n'
    )),
    'VB_V_MaxAndMaxPos': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('pos', 'int*', 'out', False, (('1', '1', None),), 0),
    ), (
        'double VB_V_MaxAndMaxPos(const double* x, int n, int* pos);\n'
        '\n'
        'The largest of all elements, missing ones too, and the first of its positions.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements; below 2 only the first is read\n'
        'pos: out, one integer: the position, from 1\n'
        'returns the element\n'
    )),
    'VB_V_MaxIf': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_MaxIf(const double* y, int n, const double* g, double val);\n'
        '\n'
        'Largest value of a group.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'val: code of the group\n'
        'returns the largest value; the missing number when no row counts\n'
    )),
    'VB_V_MaxInt': ('int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
    ), (
        'int VB_V_MaxInt(const int* x, int n, const short int* iMissing);\n'
        '\n'
        'The largest integer that is kept, as an integer.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out. Null: no flag is set\n'
        'returns the element; -2147483648 when none is kept\n'
    )),
    'VB_V_Mean': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_Mean(const double* x, int n, const short int* iMissing, const double* w);\n'
        '\n'
        'Weighted mean: the sum of w[i] * x[i] over the sum of w[i].\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'returns the mean; missing when n is below 1 or the weights kept sum to exactly 0\n'
    )),
    'VB_V_Mean2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Mean2(const double* x, int n);\n'
        '\n'
        'Mean of the elements that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the mean; missing when there is no such element\n'
    )),
    'VB_V_MeanAbs': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_MeanAbs(const double* x, int n, const short int* iMissing, const double* w);\n'
        '\n'
        'Weighted mean of absolute values.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'returns the sum of w[i] * |x[i]| over the sum of w[i]; missing when n is below 1 or the weights kept sum to exactly 0\n'
    )),
    'VB_V_MeanIf': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_MeanIf(const double* y, int n, const double* g, double val);\n'
        '\n'
        "Mean of the values of a group. A row counts when its code equals the group's, and neither is missing.\n"
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'val: code of the group\n'
        'returns the mean; the missing number when no row counts\n'
    )),
    'VB_V_MeanIfW': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_MeanIfW(const double* y, int n, const double* g, const double* w, double val);\n'
        '\n'
        'Weighted mean of a group. No weight is tested by itself.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'w: in, n weights\n'
        'val: code of the group\n'
        'returns the mean; the missing number unless the total weight is greater than 0\n'
    )),
    'VB_V_MeanStdev': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('sd', 'double*', 'out', False, (('1', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_V_MeanStdev(const double* x, int n, double* mean, double* sd, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted mean and standard deviation. When nothing is kept both are 0.0.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'mean: out, one number: the mean\n'
        'sd: out, one number: the standard deviation: missing unless the denominator is greater than 0, and for a negative variance\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_V_MeanVar': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('var', 'double*', 'out', False, (('1', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'int VB_V_MeanVar(const double* x, int n, double* mean, double* var, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted mean and variance. When nothing is kept both are 0.0.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'mean: out, one number: the mean\n'
        'var: out, one number: the variance: missing unless the denominator is greater than 0\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns 0\n'
    )),
    'VB_V_MeanVarSkewPKurtP': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('mean', 'double*', 'out', False, (('1', '1', None),), 0),
        ('var', 'double*', 'out', False, (('1', '1', None),), 0),
        ('skewP', 'double*', 'out', False, (('1', '1', None),), 0),
        ('kurtP', 'double*', 'out', False, (('1', '1', None),), 0),
        ('skew', 'double*', 'out', False, (('1', '1', None),), 0),
        ('kurt', 'double*', 'out', False, (('1', '1', None),), 0),
        ('seSkew', 'double*', 'out', False, (('1', '1', None),), 0),
        ('seKurt', 'double*', 'out', False, (('1', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (), 0),
    ), (
        'int VB_V_MeanVarSkewPKurtP(const double* x, int n, double* mean, double* var, double* skewP, double* kurtP, double* skew, double* kurt, double* seSkew, double* seKurt, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted mean, variance, skewness and kurtosis, with standard errors.\n'
        '\n'
        'S is the sum of the weights of the elements kept, m their number (those of weight 0 included), a = S/m, and\n'
        'u = 1 if bFreq and a otherwise. All results are 0.0 at first. When the denominator of the variance is\n'
        'exactly 0 (with bUnbiased neither -1 nor 0 it is not looked at), the variance and the four results for\n'
        'skewness and kurtosis are missing; when the variance is exactly 0, those four are; the standard errors then\n'
        'stay 0.0.\n'
        '\n'
        'Skewness and kurtosis are made from that variance, so they are those of the textbooks with bUnbiased 0;\n'
        'with -1 the formulas divide by the powers of the larger, unbiased variance, and the results are nearer to 0\n'
        '(the kurtosis before 3 is taken off).\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'mean: out, one number: the mean\n'
        'var: out, one number: the variance: the sum of squares over S - u if bUnbiased, over S otherwise\n'
        'skewP: out, one number: the skewness of the population\n'
        'kurtP: out, one number: the excess kurtosis of the population\n'
        'skew: out, one number: the skewness corrected for the sample size; missing unless S is above 2a\n'
        'kurt: out, one number: the excess kurtosis corrected for the sample size; missing unless S is above 2u and 3u\n'
        'seSkew: out, one number: the standard error of skew; missing with it\n'
        'seKurt: out, one number: the standard error of kurt; missing with it\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'bUnbiased: true only when -1\n'
        'bFreq: true only when -1: each weight counts as so many observations\n'
        'returns 0\n'
    )),
    'VB_V_Min': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_Min(const double* x, int n, const short int* iMissing);\n'
        '\n'
        'The smallest element that is kept.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'returns the element; missing when none is kept\n'
    )),
    'VB_V_Min2': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Min2(const double* x, int n);\n'
        '\n'
        'The smallest element that is not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the element; missing when there is none\n'
    )),
    'VB_V_Min2Lng': ('double', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Min2Lng(const int* x, int n);\n'
        '\n'
        'The smallest of some integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'returns the element as a number; the missing number when n is below 1\n'
    )),
    'VB_V_MinAndMinPos': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('pos', 'int*', 'out', False, (('1', '1', None),), 0),
        ('bLast', 'short int', '', False, (), 0),
    ), (
        'double VB_V_MinAndMinPos(const double* x, int n, int* pos, short int bLast);\n'
        '\n'
        'The smallest of all elements, missing ones too, and its position.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements; below 2 only the first is read\n'
        'pos: out, one integer: the position, from 1\n'
        'bLast: not 0: the last of equal elements; 0: the first\n'
        'returns the element\n'
    )),
    'VB_V_MinIf': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_MinIf(const double* y, int n, const double* g, double val);\n'
        '\n'
        'Smallest value of a group, below 1.79769313486231e308.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'val: code of the group\n'
        'returns the smallest value; the missing number when there is none\n'
    )),
    'VB_V_MinMax': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('min', 'double*', 'out', False, (('1', '1', None),), 0),
        ('max', 'double*', 'out', False, (('1', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_MinMax(const double* x, int n, double* min, double* max, const short int* iMissing);\n'
        '\n'
        'The smallest and the largest element that are kept. When none is, both are missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'min: out, one number: the smallest\n'
        'max: out, one number: the largest\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'returns 0\n'
    )),
    'VB_V_MinMax2': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('min', 'double*', 'out', False, (('1', '1', None),), 0),
        ('max', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bSkipMissing', 'short int', '', False, (), 0),
    ), (
        'int VB_V_MinMax2(const double* x, int n, double* min, double* max, short int bSkipMissing);\n'
        '\n'
        'The smallest and the largest element. When missing elements are passed over, only those in front of the\n'
        'first one that is present are; one that comes later is compared like any other, and is then the smallest.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements; with none, element 1 reads as -1\n'
        'min: out, one number: the smallest; missing when missing elements are passed over and there is no other\n'
        'max: out, one number: the largest; in that case element 1\n'
        'bSkipMissing: not 0: missing elements are passed over\n'
        'returns 0\n'
    )),
    'VB_V_MinMaxLng': ('int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('min', 'double*', 'out', False, (('1', '1', None),), 0),
        ('max', 'double*', 'out', False, (('1', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_MinMaxLng(const int* x, int n, double* min, double* max, const short int* iMissing);\n'
        '\n'
        'The smallest and the largest integer that are kept. When none is, both are the missing number.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'min: out, one number: the smallest, as a number\n'
        'max: out, one number: the largest, as a number\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out\n'
        'returns 0\n'
    )),
    'VB_V_MinMaxLng2': ('int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('min', 'double*', 'out', False, (('1', '1', None),), 0),
        ('max', 'double*', 'out', False, (('1', '1', None),), 0),
        ('bSkipMissing', 'short int', '', False, (('no', '1', None),), 0),
    ), (
        'int VB_V_MinMaxLng2(const int* x, int n, double* min, double* max, short int bSkipMissing);\n'
        '\n'
        'The smallest and the largest of some integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements; with none, element 1 reads as -1\n'
        'min: out, one number: the smallest, as a number; with no elements and bSkipMissing not 0 the missing number\n'
        'max: out, one number: the largest, as a number\n'
        'bSkipMissing: no integer is missing, so this matters only without elements; true unless 0\n'
        'returns 0\n'
    )),
    'VB_V_Mode': ('int', (
        ('labels', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('mode', 'OLECHAR**', 'inout', False, (('1', '1', None),), 0),
    ), (
        'int VB_V_Mode(OLECHAR* const* labels, int n, const short int* iMissing, const double* w, OLECHAR** mode);\n'
        '\n'
        'The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels\n'
        'are not counted.\n'
        '\n'
        'labels: in, n texts\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out. Null: none is\n'
        'w: in, n weights\n'
        'mode: inout, one text, replaced by the label, empty when there is none\n'
        'returns 0\n'
    )),
    'VB_V_ModeCatDbl': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_ModeCatDbl(const double* x, int n);\n'
        '\n'
        'The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.\n'
        '\n'
        'x: in, n numbers; missing ones and negative codes are not counted\n'
        'n: number of elements\n'
        'returns the code, the smallest of equals; missing when there is none\n'
    )),
    'VB_V_NbDistinct': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbDistinct(const double* x, int n);\n'
        '\n'
        'Number of distinct values; neighbours in ascending order differ by more than 2.220446049250313e-16. Missing\n'
        'is a value.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the number; 1 for n below 1\n'
    )),
    'VB_V_NbDistinctLng': ('int', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbDistinctLng(const int* x, int n);\n'
        '\n'
        'Number of distinct integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'returns the number; 1 for n below 1\n'
    )),
    'VB_V_NbIf': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_NbIf(const double* x, int n, double val);\n'
        '\n'
        'Counts the elements that equal a value, exactly; the missing number is one like the others.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of rows\n'
        'val: the value\n'
        'returns the count; 0.0 when there are none\n'
    )),
    'VB_V_NbIfLng': ('double', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('val', 'int', '', False, (), 0),
    ), (
        'double VB_V_NbIfLng(const int* x, int n, int val);\n'
        '\n'
        'The same for integers.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of rows\n'
        'val: the value\n'
        'returns the count; 0.0 when there are none\n'
    )),
    'VB_V_NbIfW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_NbIfW(const double* x, int n, const double* w, double val);\n'
        '\n'
        'Total weight of the elements that equal a value, exactly. Only weights above 0 count.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of rows\n'
        'w: in, n weights\n'
        'val: the value\n'
        'returns the total; 0.0 when there are none\n'
    )),
    'VB_V_NbMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbMissing(const double* x, int n);\n'
        '\n'
        'Counts the missing numbers.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the count\n'
    )),
    'VB_V_NbMissingStr': ('int', (
        ('x', 'OLECHAR**', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbMissingStr(OLECHAR* const* x, int n);\n'
        '\n'
        'Counts the empty texts.\n'
        '\n'
        'x: in, n texts\n'
        'n: number of elements\n'
        'returns the count\n'
    )),
    'VB_V_NbNonMissing': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbNonMissing(const double* x, int n);\n'
        '\n'
        'Counts the numbers that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the count\n'
    )),
    'VB_V_NbTrue': ('int', (
        ('x', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_NbTrue(const short int* x, int n);\n'
        '\n'
        'Counts the flags that are -1; another value than 0 does not count.\n'
        '\n'
        'x: in, n flags\n'
        'n: number of flags\n'
        'returns the count\n'
    )),
    'VB_V_NbTrueFromTo': ('int', (
        ('x', 'short int*', 'in', False, (('to', '1', None),), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
    ), (
        'int VB_V_NbTrueFromTo(const short int* x, int from, int to);\n'
        '\n'
        'The same for a stretch of flags.\n'
        '\n'
        'x: in, to flags\n'
        'from: first position, from 1\n'
        'to: last position, included\n'
        'returns the count; 0 when from is above to\n'
    )),
    'VB_V_Norm': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_Norm(double* x, int n);\n'
        '\n'
        'Divides a vector by the root of its sum of squares, so that that becomes 1.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'VB_V_NormToVal': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
    ), (
        'int VB_V_NormToVal(double* x, int n, double value);\n'
        '\n'
        'Multiplies a vector by the root of value over its sum of squares, so that that becomes value.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'value: the sum of squares to come to\n'
        'returns 0\n'
    )),
    'VB_V_NormToValW': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_NormToValW(double* x, int n, double value, const double* w);\n'
        '\n'
        'The same with the sum of x * w * x.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'value: the sum of squares to come to\n'
        'w: in, n weights; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_V_NormW': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_NormW(double* x, int n, const double* w);\n'
        '\n'
        'The same with the sum of x * w * x.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_V_PlusVal': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
    ), (
        'int VB_V_PlusVal(double* x, int n, double val, const short int* iMissing);\n'
        '\n'
        'Adds a number to the elements that are not flagged, missing ones too.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'val: the number\n'
        'iMissing: in, n flags; an element with a flag other than 0 stays. Null: none is flagged\n'
        'returns 0\n'
    )),
    'VB_V_PlusVal2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'int VB_V_PlusVal2(double* x, int n, double val);\n'
        '\n'
        'Adds a number to the elements that are not missing.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'val: the number\n'
        'returns 0\n'
    )),
    'VB_V_Product1toNDbl': ('double', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Product1toNDbl(const double* v, int n);\n'
        '\n'
        'The product of all elements in ascending order, from 1.0.\n'
        '\n'
        'v: in, n elements\n'
        'n: number of elements\n'
        'returns the product; 1.0 for n below 1\n'
    )),
    'VB_V_Product1toNLng': ('double', (
        ('v', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Product1toNLng(const int* v, int n);\n'
        '\n'
        'The product of all elements in ascending order, from 1.0, in Double.\n'
        '\n'
        'v: in, n elements\n'
        'n: number of elements\n'
        'returns the product; 1.0 for n below 1\n'
    )),
    'VB_V_ProductHorizV1V2': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('y', 'double*', 'in', False, (('m', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('n * m', '1', None),), 0),
    ), (
        'int VB_V_ProductHorizV1V2(const double* x, int n, const double* y, int m, double* out);\n'
        '\n'
        'Every element of one vector times every element of another: x(i) * y(j), i outside. No element is looked at\n'
        'for being missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: elements of x\n'
        'y: in, m numbers\n'
        'm: elements of y\n'
        'out: out, n * m numbers; may be a vector that is read\n'
        'returns 0\n'
    )),
    'VB_V_ProductHorizV1V22': ('int', (
        ('x', 'double*', 'inout', False, (('max(m, 1) * n', '1', None),), 0),
        ('n', 'int*', 'inout', False, (('1', '1', None),), 0),
        ('y', 'double*', 'in', False, (('m', '1', None),), 0),
        ('m', 'int', '', False, (), 0),
    ), (
        'int VB_V_ProductHorizV1V22(double* x, int* n, const double* y, int m);\n'
        '\n'
        'The same in place of x.\n'
        '\n'
        'x: inout, max(m, 1) * n numbers, of which the first n are read; receives the n * m products\n'
        'n: inout, one integer: the elements of x; receives those of the result\n'
        'y: in, m numbers; may be x\n'
        'm: elements of y\n'
        'returns 0\n'
    )),
    'VB_V_ProductTrV1V2': ('double', (
        ('x1', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('x2', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_ProductTrV1V2(const double* x1, int n, const double* x2);\n'
        '\n'
        'The inner product: the sum of x1(i) * x2(i).\n'
        '\n'
        'x1: in, n elements\n'
        'n: number of elements\n'
        'x2: in, n elements\n'
        'returns the sum; 0.0 for n below 1\n'
    )),
    'VB_V_ProductV1TrV2': ('int', (
        ('x1', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('x2', 'double*', 'in', False, (('n', '1', None),), 0),
        ('c', 'double*', 'out', False, (('n', 'n', None),), 0),
    ), (
        'int VB_V_ProductV1TrV2(const double* x1, int n, const double* x2, double* c);\n'
        '\n'
        'The outer product: c(i, j) = x1(i) * x2(j).\n'
        '\n'
        'x1: in, n elements\n'
        'n: number of elements\n'
        'x2: in, n elements\n'
        'c: out, n by n cells, column after column\n'
        'returns 0\n'
    )),
    'VB_V_ProductV1V2': ('int', (
        ('x1', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('x2', 'double*', 'in', False, (('n', '1', None),), 0),
        ('y', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_ProductV1V2(const double* x1, int n, const double* x2, double* y);\n'
        '\n'
        'y(i) = x1(i) * x2(i), missing when one of the two is.\n'
        '\n'
        'x1: in, n elements\n'
        'n: number of elements\n'
        'x2: in, n elements\n'
        'y: out, n elements; may be x1 or x2\n'
        'returns 0\n'
    )),
    'VB_V_ProductV1V22': ('int', (
        ('x1', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('x2', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_ProductV1V22(double* x1, int n, const double* x2);\n'
        '\n'
        'x1(i) = x1(i) * x2(i).\n'
        '\n'
        'x1: inout, n elements\n'
        'n: number of elements\n'
        'x2: in, n elements; may be x1\n'
        'returns 0\n'
    )),
    'VB_V_Quantile': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('q', 'double', '', False, (), 0),
    ), (
        'double VB_V_Quantile(const double* x, int n, double q);\n'
        '\n'
        'Quantile by linear interpolation between order statistics (type 7 of Hyndman and Fan). Missing values are\n'
        'not removed: they take part as the smallest numbers.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'q: probability, not tested: a position outside the data reads -1\n'
        'returns the quantile; missing for n below 1\n'
    )),
    'VB_V_QuantileM': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('q', 'double', '', False, (), 0),
    ), (
        'double VB_V_QuantileM(const double* x, int n, const short int* iMissing, double q);\n'
        '\n'
        'Plain quantile of the elements that are not missing and not flagged.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out\n'
        'q: probability, not tested: a position outside the data reads -1\n'
        'returns the quantile; missing when there are none\n'
    )),
    'VB_V_QuantileMW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('q', 'double', '', False, (), 0),
    ), (
        'double VB_V_QuantileMW(const double* x, int n, const short int* iMissing, const double* w, double q);\n'
        '\n'
        'Weighted quantile of the elements that are not missing and not flagged.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out\n'
        'w: in, n weights\n'
        'q: probability, not tested: a position outside the data reads -1\n'
        'returns the quantile; missing when there are none\n'
    )),
    'VB_V_QuantileW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('q', 'double', '', False, (), 0),
    ), (
        'double VB_V_QuantileW(const double* x, int n, const double* w, double q);\n'
        '\n'
        'Weighted quantile: the first value whose cumulative weight exceeds q times the total, or the mean of it and\n'
        'the one before where a cumulative weight hits that exactly. Constant weights give the plain quantile.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'q: probability, not tested: a position outside the data reads -1\n'
        'returns the quantile; missing for n below 1, and when no element that is not missing has a positive weight\n'
    )),
    'VB_V_RemoveVal': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('pos', 'int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('n - 1', '1', None),), 0),
    ), (
        'int VB_V_RemoveVal(const double* x, int n, int pos, double* out);\n'
        '\n'
        'Copies a vector without one element.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'pos: the element to leave out, from 1. One above n or below 1 leaves out none, so that the last or the first falls outside\n'
        'out: out, n - 1 numbers; it may be x\n'
        'returns 0\n'
    )),
    'VB_V_ReplaceDoubles': ('int', (
        ('labels', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_ReplaceDoubles(OLECHAR** labels, int n);\n'
        '\n'
        'Makes repeated labels distinct: a repeat gets a number behind it, from 2 on.\n'
        '\n'
        'labels: inout, n texts, replaced where they differ\n'
        'n: number of labels\n'
        'returns 0\n'
    )),
    'VB_V_ReplaceVal': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('oldValue', 'double', '', False, (), 0),
        ('newValue', 'double', '', False, (('what', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_ReplaceVal(const double* x, int n, double oldValue, double newValue, double* out);\n'
        '\n'
        'Copies a vector, in which each element that equals a number, exactly, becomes another.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'oldValue: the number to replace\n'
        'newValue: what it becomes\n'
        'out: out, n numbers; it may be x\n'
        'returns 0\n'
    )),
    'VB_V_ReplaceVal2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('oldValue', 'double', '', False, (), 0),
        ('newValue', 'double', '', False, (('what', '1', None),), 0),
    ), (
        'int VB_V_ReplaceVal2(double* x, int n, double oldValue, double newValue);\n'
        '\n'
        'Replaces each element that equals a number, exactly, by another.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'oldValue: the number to replace\n'
        'newValue: what it becomes\n'
        'returns 0\n'
    )),
    'VB_V_Rescale': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('lo', 'double', '', False, (), 0),
        ('hi', 'double', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_Rescale(const double* x, int n, double lo, double hi, const short int* iMissing, double* out);\n'
        '\n'
        'Brings a vector to the range from lo to hi: (x - a) * (hi - lo) / r + lo, where a is the smallest number\n'
        'kept and r the largest less the smallest. Where all are equal the result is a NaN.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'lo: what the smallest becomes\n'
        'hi: what the largest becomes\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out; may be null, then none is\n'
        'out: out, n numbers, missing where an element is left out; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_V_Rescale2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('lo', 'double', '', False, (), 0),
        ('hi', 'double', '', False, (), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
    ), (
        'int VB_V_Rescale2(double* x, int n, double lo, double hi, const short int* iMissing);\n'
        '\n'
        'The same in place; an element left out stays.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'lo: what the smallest becomes\n'
        'hi: what the largest becomes\n'
        'iMissing: in, n flags; what has a flag other than 0 is left out; may be null\n'
        'returns 0\n'
    )),
    'VB_V_ReverseBool': ('int', (
        ('x', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'short int*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_ReverseBool(const short int* x, int n, short int* out);\n'
        '\n'
        'A vector of flags back to front.\n'
        '\n'
        'x: in, n flags\n'
        'n: number of elements\n'
        'out: out, n flags; may be x\n'
        'returns 0\n'
    )),
    'VB_V_ReverseDbl': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_ReverseDbl(const double* x, int n, double* out);\n'
        '\n'
        'A vector of numbers back to front.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'out: out, n numbers; may be x\n'
        'returns 0\n'
    )),
    'VB_V_Set1toNDbl': ('int', (
        ('x', 'double*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_Set1toNDbl(double* x, int n);\n'
        '\n'
        'Numbers a vector: element k, from 1, becomes k.\n'
        '\n'
        'x: out, n numbers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'VB_V_Set1toNLng': ('int', (
        ('x', 'int*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_Set1toNLng(int* x, int n);\n'
        '\n'
        'Numbers a vector: element k, from 1, becomes k.\n'
        '\n'
        'x: out, n integers\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'VB_V_Set1toNStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'int VB_V_Set1toNStr(OLECHAR** x, int n);\n'
        '\n'
        'Numbers a vector: element k, from 1, becomes k, in decimal digits.\n'
        '\n'
        'x: inout, n texts, replaced where they differ\n'
        'n: number of elements\n'
        'returns 0\n'
    )),
    'VB_V_SetToValue': ('int', (
        ('x', 'double*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'double', '', False, (), 0),
    ), (
        'int VB_V_SetToValue(double* x, int n, double value);\n'
        '\n'
        'Sets every element to one number.\n'
        '\n'
        'x: out, n numbers\n'
        'n: number of elements\n'
        'value: the value\n'
        'returns 0\n'
    )),
    'VB_V_SetToValueLng': ('int', (
        ('x', 'int*', 'out', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'int', '', False, (), 0),
    ), (
        'int VB_V_SetToValueLng(int* x, int n, int value);\n'
        '\n'
        'Sets every element to one integer.\n'
        '\n'
        'x: out, n integers\n'
        'n: number of elements\n'
        'value: the value\n'
        'returns 0\n'
    )),
    'VB_V_SetToValueStr': ('int', (
        ('x', 'OLECHAR**', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('value', 'OLECHAR*', 'in', False, (('1', '1', None),), 0),
    ), (
        'int VB_V_SetToValueStr(OLECHAR** x, int n, const OLECHAR* value);\n'
        '\n'
        'Sets every element to one text.\n'
        '\n'
        'x: inout, n texts, replaced where they differ\n'
        'n: number of elements\n'
        'value: in, one text\n'
        'returns 0\n'
    )),
    'VB_V_Standardize': ('int', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', True, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('out', 'double*', 'out', False, (('n', '1', None),), 0),
    ), (
        'int VB_V_Standardize(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased, double* out);\n'
        '\n'
        'VB_M_Standardize with a result, on one vector and with bFreq false.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; what has a flag other than 0 is left out; may be null\n'
        'w: in, n weights; may be null\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'out: out, n numbers; may be the array of x\n'
        'returns 0\n'
    )),
    'VB_V_Standardize2': ('int', (
        ('x', 'double*', 'inout', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', True, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
    ), (
        'int VB_V_Standardize2(double* x, int n, const short int* iMissing, const double* w, short int bUnbiased);\n'
        '\n'
        'VB_M_Standardize in place, on one vector and with bFreq false.\n'
        '\n'
        'x: inout, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; what has a flag other than 0 is left out; may be null\n'
        'w: in, n weights; may be null\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'returns 0\n'
    )),
    'VB_V_Stdev': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'double VB_V_Stdev(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted standard deviation: the square root of VB_V_Var.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns the root; 0.0 for a variance of 0; missing for a negative one and for a missing one\n'
    )),
    'VB_V_Sum': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', True, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_Sum(const double* x, int n, const short int* iMissing, const double* w);\n'
        '\n'
        'Weighted sum of a vector: the sum of w[i] * x[i] in ascending order.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out. Null: none is\n'
        'w: in, n weights; not null unless n is below 1\n'
        'returns the sum over the elements whose flag is 0 and of which neither value nor weight is missing; 0.0 when there are none\n'
    )),
    'VB_V_Sum2Dbl': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Sum2Dbl(const double* x, int n);\n'
        '\n'
        'Sum of the elements that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the sum; 0.0 when there are none\n'
    )),
    'VB_V_Sum2Lng': ('double', (
        ('x', 'int*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_Sum2Lng(const int* x, int n);\n'
        '\n'
        'Sum of integers in 32-bit arithmetic that wraps around. No integer is missing here.\n'
        '\n'
        'x: in, n integers\n'
        'n: number of elements\n'
        'returns the wrapped sum as a number; 0.0 when n is below 1\n'
    )),
    'VB_V_SumFromTo': ('double', (
        ('x', 'double*', 'in', False, (('to', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
    ), (
        'double VB_V_SumFromTo(const double* x, int n, int from, int to);\n'
        '\n'
        'Sum over a stretch of a vector, missing elements too.\n'
        '\n'
        'x: in, to numbers, or more\n'
        'n: not used\n'
        'from: first position, from 1\n'
        'to: last position, from 1\n'
        'returns the sum; 0.0 when `from` is above `to`\n'
    )),
    'VB_V_SumFromToLng': ('int', (
        ('x', 'int*', 'in', False, (('to', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('from', 'int', '', False, (), 0),
        ('to', 'int', '', False, (), 0),
    ), (
        'int VB_V_SumFromToLng(const int* x, int n, int from, int to);\n'
        '\n'
        'Sum over a stretch of a vector of integers, in 32-bit arithmetic that wraps around.\n'
        '\n'
        'x: in, to integers, or more\n'
        'n: not used\n'
        'from: first position, from 1\n'
        'to: last position, from 1\n'
        'returns the wrapped sum; 0 when `from` is above `to`\n'
    )),
    'VB_V_SumIf': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_SumIf(const double* y, int n, const double* g, double val);\n'
        '\n'
        "Sum of the values of a group. A row counts when its code equals the group's, and neither is missing.\n"
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'val: code of the group\n'
        'returns the sum; the missing number when no row counts\n'
    )),
    'VB_V_SumIfNotMissing': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_SumIfNotMissing(const double* x, int n, const double* y);\n'
        '\n'
        'Sum of the numbers of one vector where neither it nor another vector is missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'y: in, n numbers\n'
        'returns the sum, 0.0 when there are none; the missing number for n below 1\n'
    )),
    'VB_V_SumIfW': ('double', (
        ('y', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('g', 'double*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('val', 'double', '', False, (), 0),
    ), (
        'double VB_V_SumIfW(const double* y, int n, const double* g, const double* w, double val);\n'
        '\n'
        'Sum of weight times value of a group, over the rows of a weight above 0 of which neither is missing.\n'
        '\n'
        'y: in, n values\n'
        'n: number of rows\n'
        'g: in, n codes\n'
        'w: in, n weights\n'
        'val: code of the group\n'
        'returns the sum; the missing number when no row counts\n'
    )),
    'VB_V_SumSq': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
    ), (
        'double VB_V_SumSq(const double* x, int n);\n'
        '\n'
        'Sum of squares of the elements that are not missing.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'returns the sum; 0.0 when there are none\n'
    )),
    'VB_V_SumSqW': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'double VB_V_SumSqW(const double* x, int n, const double* w);\n'
        '\n'
        'Weighted sum of squares of the elements that are not missing: the sum of x[i] * w[i] * x[i]. A missing\n'
        'weight multiplies through.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'w: in, n weights\n'
        'returns the sum; 0.0 when there are none\n'
    )),
    'VB_V_TimeIntervalSize': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('bSort', 'short int', '', False, (), 0),
    ), (
        'double VB_V_TimeIntervalSize(const double* x, int n, short int bSort);\n'
        '\n'
        'The step of a time scale, whose differences must all be within 1e-6 of the first.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'bSort: -1: the step of the sorted numbers; otherwise of the numbers as they stand\n'
        'returns the first difference; the missing number when another one differs, and when there is none\n'
    )),
    'VB_V_V1GreaterThanMatCols': ('short int', (
        ('v', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('m', 'double*', 'in', False, (('n', 'cols', None),), 0),
        ('cols', 'int', '', False, (), 1),
    ), (
        'short int VB_V_V1GreaterThanMatCols(const double* v, int n, const double* m, int cols);\n'
        '\n'
        'Whether each row of a vector is at least as large as every number in that row of a table.\n'
        '\n'
        'v: in, n numbers\n'
        'n: number of rows\n'
        'm: in, n by cols numbers\n'
        'cols: columns of the table; 0 stands for 1\n'
        'returns -1 or 0\n'
    )),
    'VB_V_V1inferiorV2': ('short int', (
        ('a', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (), 0),
        ('b', 'double*', 'in', False, (('n', '1', None),), 0),
    ), (
        'short int VB_V_V1inferiorV2(const double* a, int n, const double* b);\n'
        '\n'
        'Whether each number of one vector is at most that of another.\n'
        '\n'
        'a: in, n numbers\n'
        'n: number of rows\n'
        'b: in, n numbers\n'
        'returns -1 or 0\n'
    )),
    'VB_V_Var': ('double', (
        ('x', 'double*', 'in', False, (('n', '1', None),), 0),
        ('n', 'int', '', False, (('number', '1', None),), 0),
        ('iMissing', 'short int*', 'in', False, (('n', '1', None),), 0),
        ('w', 'double*', 'in', False, (('n', '1', None),), 0),
        ('bUnbiased', 'short int', '', False, (), 0),
        ('bFreq', 'short int', '', False, (('how', '1', None),), 0),
    ), (
        'double VB_V_Var(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased, short int bFreq);\n'
        '\n'
        'Weighted variance.\n'
        '\n'
        'x: in, n numbers\n'
        'n: number of elements\n'
        'iMissing: in, n flags; an element with a non-zero flag is left out, and so is a missing one\n'
        'w: in, n weights; a missing one is a number like any other\n'
        'bUnbiased: whether the denominator is corrected; true only when -1\n'
        'bFreq: how it is; true only when -1\n'
        'returns the variance; missing when the denominator is exactly 0. A negative denominator is divided by like any other; when nothing is kept the result is missing unless unbiased, -0.0 with frequency weights, and a NaN without\n'
    )),
    'dprint': ('void', (
        ('value', 'double', '', False, (), 0),
        ('label', 'const char*', 'in', False, (), 0),
    ), (
        'void dprint(double value, const char* label);\n'
        '\n'
        'Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a line end.\n'
        'A line of more than 999 bytes is cut.\n'
        '\n'
        'value: the number\n'
        'label: in, narrow text, NUL-terminated\n'
    )),
    'isQuali': ('short int', (
        ('type', 'int', '', False, (), 0),
    ), (
        'short int isQuali(int type);\n'
        '\n'
        'Whether a column is qualitative: the types 2, 4 and 5.\n'
        '\n'
        "type: code of the column's type\n"
        'returns -1 for a qualitative column, otherwise 0\n'
    )),
    'isQualiPure': ('short int', (
        ('type', 'int', '', False, (), 0),
    ), (
        'short int isQualiPure(int type);\n'
        '\n'
        'Whether a column is qualitative and nothing else: the types 2 and 4.\n'
        '\n'
        "type: code of the column's type\n"
        'returns -1 for a purely qualitative column, otherwise 0\n'
    )),
}
