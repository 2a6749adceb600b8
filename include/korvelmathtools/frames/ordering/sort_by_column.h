/**
 * @file
 * Flat functions: sorting the rows of a table by its own columns.
 *
 * All sorts are stable in both directions: equal keys keep their order, also when descending. The missing
 * number is smaller than every other finite number; the place of a NaN key is not defined. Rows outside
 * `from..to` are neither read nor moved; an empty range, or one outside the table, changes nothing.
 */
#ifndef KORVEL_FRAMES_ORDERING_SORT_BY_COLUMN_H
#define KORVEL_FRAMES_ORDERING_SORT_BY_COLUMN_H

#include "frames/types.h"

/**
 * Orders rows from..to of a table of numbers by one of its columns, all columns moving.
 *
 * @param x      [inout] rows by cols numbers
 * @param rows   rows of the table
 * @param cols   columns of the table
 * @param keyCol the column that orders, from 1
 * @param from   first row to sort, from 1
 * @param to     last row to sort, included
 * @param bDesc  not 0: descending
 * @return 0
 */
KORVEL_FLAT int Cpp_SortQMatrixCol(double* x, int rows, int cols, int keyCol, int from, int to,
                                   short int bDesc);

/**
 * Orders rows from..to of a table of integers by one of its columns, all columns moving.
 *
 * @like Cpp_SortQMatrixCol, integers for numbers
 */
KORVEL_FLAT int Cpp_SortQMatrixColLng(int* x, int rows, int cols, int keyCol, int from, int to,
                                      short int bDesc);

/**
 * Orders rows from..to of a table of texts by one of its columns, by 16-bit code units, all columns moving.
 *
 * @like Cpp_SortQMatrixCol, texts for numbers
 */
KORVEL_FLAT int Cpp_SortQMatrixColStr(OLECHAR** x, int rows, int cols, int keyCol, int from, int to,
                                      short int bDesc);

/**
 * Orders all rows of a table of numbers, ascending, by column 1, then column 2, and so on.
 *
 * @like Cpp_SortQMatrixCol
 */
KORVEL_FLAT int VB_SortMatrixSeqQDbl(double* x, int rows, int cols);

/**
 * Orders all rows of a table of integers, ascending, by column 1, then column 2, and so on.
 *
 * @like Cpp_SortQMatrixCol, integers for numbers
 */
KORVEL_FLAT int VB_SortMatrixSeqQLng(int* x, int rows, int cols);

/**
 * Sorts all rows of a table of numbers, ascending, by column p1, then again by the next, up to p2: column p2
 * orders first, then the one before it.
 *
 * @param x    [inout] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @param p1   first column, from 1
 * @param p2   last column, included
 * @return 0
 */
KORVEL_FLAT int VB_SortMatrixSeqQP1toP2Dbl(double* x, int rows, int cols, int p1, int p2);

/**
 * Sorts all rows of a table of integers, ascending, by column p1, then again by the next, up to p2: column p2
 * orders first, then the one before it.
 *
 * @like VB_SortMatrixSeqQP1toP2Dbl, integers for numbers
 */
KORVEL_FLAT int VB_SortMatrixSeqQP1toP2Lng(int* x, int rows, int cols, int p1, int p2);

#endif
