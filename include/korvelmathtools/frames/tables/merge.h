/**
 * @file
 * Flat functions: putting two tables together, side by side or one below the other. A column count of 0
 * stands for one column, but for chunked tables.
 *
 * A result is the caller's array and has room for all its cells; those that neither table has become 0 (the
 * empty text). It may be, or share memory with, an array that is read. A function whose name has a 2 works in
 * place: the array of its first table has room for what is added.
 */
#ifndef KORVEL_FRAMES_TABLES_MERGE_H
#define KORVEL_FRAMES_TABLES_MERGE_H

#include "frames/types.h"

/**
 * Puts two tables of numbers side by side.
 *
 * @param a     [in] rowsA by colsA numbers
 * @param rowsA rows of the first table
 * @param colsA columns of the first table; 0 stands for 1
 * @param b     [in] rowsB by colsB numbers
 * @param rowsB rows of the second table
 * @param colsB columns of the second table; 0 stands for 1
 * @param out   [out] max(rowsA, rowsB) by colsA + colsB numbers: the columns of the first
 * table, then those of the second
 * @return 0
 */
KORVEL_FLAT int VB_HMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB,
                                   int colsB, double* out);

/**
 * Puts two tables of flags side by side.
 *
 * @like VB_HMergeTablesDbl, flags for numbers
 */
KORVEL_FLAT int VB_HMergeTablesBool(const short int* a, int rowsA, int colsA, const short int* b, int rowsB,
                                    int colsB, short int* out);

/**
 * Puts two tables of texts side by side.
 *
 * @like VB_HMergeTablesDbl, texts for numbers
 */
KORVEL_FLAT int VB_HMergeTablesStr(OLECHAR* const* a, int rowsA, int colsA, OLECHAR* const* b, int rowsB,
                                   int colsB, OLECHAR** out);

/**
 * Adds the columns of a table of numbers to the right of another, in place.
 *
 * @param a     [inout] rowsA by colsA + colsB numbers, of which the last colsB columns receive the second
 * table; of these, rows that it does not have stay
 * @param rowsA rows of the first table
 * @param colsA columns that the first table has already; 0 stands for 1
 * @param b     [in] rowsB by colsB numbers; rows beyond rowsA are left out
 * @param rowsB rows of the second table
 * @param colsB columns of the second table; 0 stands for 1
 * @return 0
 */
KORVEL_FLAT int VB_HMergeTablesDbl2(double* a, int rowsA, int colsA, const double* b, int rowsB, int colsB);

/**
 * Adds the columns of a table of integers to the right of another, in place.
 *
 * @like VB_HMergeTablesDbl2, integers for numbers
 */
KORVEL_FLAT int VB_HMergeTablesLng2(int* a, int rowsA, int colsA, const int* b, int rowsB, int colsB);

/**
 * Adds the columns of a table of flags to the right of another, in place.
 *
 * @like VB_HMergeTablesDbl2, flags for numbers
 */
KORVEL_FLAT int VB_HMergeTablesBool2(short int* a, int rowsA, int colsA, const short int* b, int rowsB,
                                     int colsB);

/**
 * Adds the columns of a table of texts to the right of another, in place.
 *
 * @like VB_HMergeTablesDbl2, texts for numbers
 */
KORVEL_FLAT int VB_HMergeTablesStr2(OLECHAR** a, int rowsA, int colsA, OLECHAR* const* b, int rowsB,
                                    int colsB);

/**
 * Adds the columns of a table of numbers to a chunked one, in place.
 *
 * @like VB_HMergeTablesDbl2
 * @param a     [inout] host array of colsA + colsB records, each with a numeric column of rowsA numbers, of
 * which the last colsB receive the second table
 * @param colsA columns that the first table has already
 */
KORVEL_FLAT int VB_HMergeTablesDbl2SPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB,
                                       int colsB);

/**
 * Adds the columns of a chunked table of numbers to another, in place.
 *
 * @param a     [inout] host array of colsA + colsB records, each with a numeric column of rowsA numbers, of
 * which the last colsB receive the second table
 * @param rowsA rows of the first table
 * @param colsA columns that the first table has already
 * @param b     [in] host array of colsB records, each with a numeric column of rowsB numbers; rows beyond
 * rowsA are left out
 * @param rowsB rows of the second table
 * @param colsB columns of the second table
 * @return 0
 */
KORVEL_FLAT int VB_HMergeTablesDbl2SPV2(Hostarray** a, int rowsA, int colsA, Hostarray** b, int rowsB,
                                        int colsB);

/**
 * Puts two vectors side by side.
 *
 * @param a   [in] nA numbers
 * @param nA  length of the first vector
 * @param b   [in] nB numbers
 * @param nB  length of the second vector
 * @param out [out] max(nA, nB) by 2 numbers
 * @return 0
 */
KORVEL_FLAT int VB_HMergeVectors(const double* a, int nA, const double* b, int nB, double* out);

/**
 * Puts a vector to the right of a table.
 *
 * @param x       [in] rows by cols numbers
 * @param rows    rows of the table
 * @param cols    columns of the table; 0 stands for 1
 * @param v       [in] n numbers, for column cols + 1
 * @param n       length of the vector
 * @param out     [out] outRows by outCols numbers; what falls outside of them is left out
 * @param outRows rows of the result
 * @param outCols columns of the result; 0 stands for 1
 * @return 0
 */
KORVEL_FLAT int VB_HMergeTableVect(const double* x, int rows, int cols, const double* v, int n, double* out,
                                   int outRows, int outCols);

/**
 * Adds a vector to the right of a table, in place.
 *
 * @param x    [inout] rows by cols + 1 numbers, of which the last column receives the vector; rows that it
 * does not have stay
 * @param rows rows of the table
 * @param cols columns that the table has already; 0 stands for 1
 * @param v    [in] n numbers; those beyond rows are left out
 * @param n    length of the vector
 * @return 0
 */
KORVEL_FLAT int VB_HMergeTableVect2(double* x, int rows, int cols, const double* v, int n);

/**
 * Puts a vector to the left of a table.
 *
 * @like VB_HMergeTableVect
 * @param v       [in] n numbers, for column 1
 * @param x       [in] rows by cols numbers, for the columns from 2 on
 */
KORVEL_FLAT int VB_HMergeVectTable(const double* v, int n, const double* x, int rows, int cols, double* out,
                                   int outRows, int outCols);

/**
 * Puts a vector to the left of one column of a table.
 *
 * @like VB_HMergeTableVect
 * @param v       [in] n numbers, for column 1
 * @param col     the table's column, from 1, for column 2; one that it does not have gives -1
 * @param out     [out] outRows by 2 numbers; what falls outside of them is left out
 */
KORVEL_FLAT int VB_HMergeVectColDbl(const double* v, int n, const double* x, int rows, int cols, int col,
                                    double* out, int outRows);

/**
 * Puts a vector of numbers behind another.
 *
 * @like VB_HMergeVectors
 * @param out [out] nA + nB numbers
 */
KORVEL_FLAT int VB_VMergeVectorsDbl(const double* a, int nA, const double* b, int nB, double* out);

/**
 * Puts a vector of texts behind another.
 *
 * @like VB_HMergeVectors, texts for numbers
 * @param out [out] nA + nB texts
 */
KORVEL_FLAT int VB_VMergeVectorsStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB, OLECHAR** out);

/**
 * Adds a vector of numbers behind another, in place.
 *
 * @param a  [inout] nA + nB numbers, of which the last nB receive the second vector
 * @param nA length that the first vector has already
 * @param b  [in] nB numbers
 * @param nB length of the second vector
 * @return 0
 */
KORVEL_FLAT int VB_VMergeVectorsDbl2(double* a, int nA, const double* b, int nB);

/**
 * Adds a vector of flags behind another, in place.
 *
 * @like VB_VMergeVectorsDbl2, flags for numbers
 */
KORVEL_FLAT int VB_VMergeVectorsBool2(short int* a, int nA, const short int* b, int nB);

/**
 * Adds a vector of texts behind another, in place.
 *
 * @like VB_VMergeVectorsDbl2, texts for numbers
 */
KORVEL_FLAT int VB_VMergeVectorsStr2(OLECHAR** a, int nA, OLECHAR* const* b, int nB);

/**
 * Puts a table of numbers below another.
 *
 * @like VB_HMergeTablesDbl
 * @param out   [out] rowsA + rowsB by max(colsA, colsB) numbers
 */
KORVEL_FLAT int VB_VMergeTablesDbl(const double* a, int rowsA, int colsA, const double* b, int rowsB,
                                   int colsB, double* out);

/**
 * Puts a table of numbers below a chunked one.
 *
 * @param a     [in] host array of colsA records, each with a numeric column of rowsA numbers
 * @param rowsA rows of the first table
 * @param colsA columns of the first table
 * @param b     [in] rowsB by colsB numbers
 * @param rowsB rows of the second table
 * @param colsB columns of the second table; 0 stands for 1
 * @param out   [out] rowsA + rowsB by max(colsA, colsB) numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_VMergeTablesDblSPV(Hostarray** a, int rowsA, int colsA, const double* b, int rowsB,
                                       int colsB, double* out);

#endif
