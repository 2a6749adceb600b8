/**
 * @file
 * Putting two tables together: side by side, or one below the other.
 *
 * The first table is stored, then the second, each through the checked access: what a table does not have
 * reads as its `oobValue`, and what falls outside of the result goes to the result's. A form without a
 * result works in place on its first table, which must have the room: its shape does not change.
 */
#ifndef KORVEL_TABLES_MERGE_H
#define KORVEL_TABLES_MERGE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The columns of `a`, then those of `b`.
 *
 * @param a     `rowsA` by `colsA`
 * @param rowsA rows of the first table
 * @param colsA columns of the first table
 * @param b     `rowsB` by `colsB`
 * @param rowsB rows of the second table
 * @param colsB columns of the second table
 * @param out   is redimensioned to the larger number of rows by `colsA + colsB`; cells below the shorter
 *              table are 0 (the empty text). Numbers lose their fraction in an integer result. Not `a` or `b`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void HMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                             matrix<double>*& out);
KORVEL_API void HMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                             matrix<int>*& out);
KORVEL_API void HMergeTables(matrix<int>* a, int rowsA, int colsA, matrix<int>* b, int rowsB, int colsB,
                             matrix<int>*& out);
KORVEL_API void HMergeTables(matrix<short int>* a, int rowsA, int colsA, matrix<short int>* b, int rowsB,
                             int colsB, matrix<short int>*& out);
KORVEL_API void HMergeTables(matrix<text>* a, int rowsA, int colsA, matrix<text>* b, int rowsB, int colsB,
                             matrix<text>*& out);

/**
 * Adds the columns of `b` to the right of the first `colsA` columns of `a`, in place.
 *
 * @param a     receives column j of `b` in column `colsA + j`; of chunks, each with its own column
 * @param rowsA rows of the first table
 * @param colsA columns that it has already
 * @param b     `rowsB` by `colsB`
 * @param rowsB rows of the second table
 * @param colsB columns of the second table
 */
KORVEL_API void HMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB,
                             int colsB);
KORVEL_API void HMergeTables(matrix<int>* a, int rowsA, int colsA, matrix<int>* b, int rowsB, int colsB);
KORVEL_API void HMergeTables(matrix<short int>* a, int rowsA, int colsA, matrix<short int>* b, int rowsB,
                             int colsB);
KORVEL_API void HMergeTables(matrix<text>* a, int rowsA, int colsA, matrix<text>* b, int rowsB, int colsB);
KORVEL_API void HMergeTables(matrix<double>** a, int rowsA, int colsA, matrix<double>* b, int rowsB,
                             int colsB);
KORVEL_API void HMergeTables(matrix<double>** a, int rowsA, int colsA, matrix<double>** b, int rowsB,
                             int colsB);

/**
 * Two vectors as the two columns of a table.
 *
 * @param a   `nA` numbers, for the first column
 * @param nA  length of the first vector
 * @param b   `nB` numbers, for the second column
 * @param nB  length of the second vector
 * @param out two columns of as many rows as the longer vector, sized by the caller; cells below the shorter
 *            one stay
 */
KORVEL_API void HMergeVectors(double* a, int nA, double* b, int nB, matrix<double>* out);

/**
 * A table with a vector as its last column.
 *
 * @param x       `rows` by `cols`
 * @param rows    rows of the table
 * @param cols    columns of the table
 * @param v       `n` numbers, for column `cols + 1`
 * @param n       length of the vector
 * @param out     `outRows` by `outCols`, sized by the caller; cells that neither has stay
 * @param outRows rows of the result; what lies below is left out
 * @param outCols columns of the result; what lies to the right is left out
 */
KORVEL_API void HMergeTableVect(matrix<double>* x, int rows, int cols, double* v, int n, matrix<double>* out,
                                int outRows, int outCols);

/**
 * Adds a vector as a last column, in place.
 *
 * @param x    receives the vector in column `cols + 1`
 * @param cols columns that it has already
 * @param v    `n` numbers
 * @param n    length of the vector
 */
KORVEL_API void HMergeTableVect2(matrix<double>* x, int cols, double* v, int n);

/**
 * A vector as the first column of a table, and the columns of another behind it.
 *
 * @param v       `n` numbers, for column 1
 * @param n       length of the vector
 * @param x       `rows` by `cols`, for the columns from 2 on
 * @param rows    rows of the table
 * @param cols    columns of the table
 * @param out     `outRows` by `outCols`, sized by the caller; cells that neither has stay
 * @param outRows rows of the result; what lies below is left out
 * @param outCols columns of the result; what lies to the right is left out
 */
KORVEL_API void HMergeVectTable(double* v, int n, matrix<double>* x, int rows, int cols, matrix<double>* out,
                                int outRows, int outCols);

/**
 * A vector, and beside it a column of a table.
 *
 * @param v       `n` numbers, for column 1
 * @param n       length of the vector
 * @param x       the table
 * @param rows    rows of the table that are taken
 * @param col     its column, from 1, for column 2
 * @param out     `outRows` by 2, sized by the caller; cells that neither has stay
 * @param outRows rows of the result; what lies below is left out
 */
KORVEL_API void HMergeVectCol(double* v, int n, matrix<double>* x, int rows, int col, matrix<double>* out,
                              int outRows);

/**
 * The elements of `a`, then those of `b`.
 *
 * @param a   the first vector
 * @param nA  its length; 0 gives a copy of `b`
 * @param b   the second vector
 * @param nB  its length
 * @param out is redimensioned to `nA + nB` elements. Not `a` or `b`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void VMergeVectors(matrix<double>* a, int nA, matrix<double>* b, int nB, matrix<double>* out);
KORVEL_API void VMergeVectors(matrix<text>* a, int nA, matrix<text>* b, int nB, matrix<text>* out);

/** Adds the first `nB` elements of `b` behind the first `nA` of `a`, in place. */
KORVEL_API void VMergeVectors2(matrix<double>* a, int nA, matrix<double>* b, int nB);
KORVEL_API void VMergeVectors2(matrix<text>* a, int nA, matrix<text>* b, int nB);

/** `VMergeVectors2` on flags. */
KORVEL_API void VMergeVectorsBool2(matrix<short int>* a, int nA, matrix<short int>* b, int nB);

/**
 * The rows of `a`, then those of `b`.
 *
 * @param a     `rowsA` by `colsA`; dense, or an array of `colsA` chunks
 * @param rowsA rows of the first table
 * @param colsA columns of the first table
 * @param b     `rowsB` by `colsB`
 * @param rowsB rows of the second table
 * @param colsB columns of the second table
 * @param out   `rowsA + rowsB` rows by the larger number of columns, sized by the caller; cells to the right
 *              of the narrower table stay
 */
KORVEL_API void VMergeTables(matrix<double>* a, int rowsA, int colsA, matrix<double>* b, int rowsB, int colsB,
                             matrix<double>* out);
KORVEL_API void VMergeTablesSPV(matrix<double>** a, int rowsA, int colsA, matrix<double>* b, int rowsB,
                                int colsB, matrix<double>* out);

#endif
