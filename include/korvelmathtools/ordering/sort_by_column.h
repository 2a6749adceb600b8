/**
 * @file
 * Sorting the rows of a table by its own columns. Stable in both directions; the missing number is smaller
 * than every other finite number; the place of a NaN key is not defined.
 */
#ifndef KORVEL_ORDERING_SORT_BY_COLUMN_H
#define KORVEL_ORDERING_SORT_BY_COLUMN_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Orders rows `from..to` by one column, all columns moving; texts by 16-bit code units.
 *
 * @param table  `rows` by `cols`, changed in place
 * @param rows   its rows
 * @param cols   its columns
 * @param keyCol the column that orders, from 1; another number changes nothing
 * @param from   first row to sort, from 1
 * @param to     last row to sort, included; an empty range, or one outside the table, changes nothing
 * @param bDesc  descending when true
 */
KORVEL_API void SortQMatrixCol(matrix<double>* table, int rows, int cols, int keyCol, int from, int to,
                               bool bDesc);
KORVEL_API void SortQMatrixCol(matrix<int>* table, int rows, int cols, int keyCol, int from, int to,
                               bool bDesc);
KORVEL_API void SortQMatrixCol(matrix<text>* table, int rows, int cols, int keyCol, int from, int to,
                               bool bDesc);

/**
 * Orders all rows by column 1, then column 2, and so on: one ascending sort for each column, the last column
 * first.
 */
KORVEL_API void SortMatrixSeqQ(matrix<double>* table, int rows, int cols);
KORVEL_API void SortMatrixSeqQ(matrix<int>* table, int rows, int cols);

/**
 * One ascending sort of all rows for each column from `p1` up to `p2`, both from 1. The direction is the
 * opposite of `SortMatrixSeqQ`, so it is column `p2` that orders first, then the one before it.
 */
KORVEL_API void SortMatrixSeqQP1toP2(matrix<double>* table, int rows, int cols, int p1, int p2);
KORVEL_API void SortMatrixSeqQP1toP2(matrix<int>* table, int rows, int cols, int p1, int p2);

#endif
