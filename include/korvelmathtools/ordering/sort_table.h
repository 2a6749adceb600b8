/**
 * @file
 * Sorting the rows of a table by an outside key, or its columns.
 *
 * All sorts here are stable in both directions: equal keys keep their order, also when descending. Missing
 * values have no special treatment; the missing number is smaller than every other finite number. The place
 * of a NaN key is not defined. Rows outside `from..to` are neither read nor moved; an empty range, or one
 * outside the table, changes nothing.
 */
#ifndef KORVEL_ORDERING_SORT_TABLE_H
#define KORVEL_ORDERING_SORT_TABLE_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Orders the rows of a table by a key, and a second table with it.
 *
 * @param table    the table, changed in place
 * @param rows     its rows
 * @param cols     its columns; below 1 no column moves
 * @param from     first row to sort, from 1
 * @param to       last row to sort, included
 * @param key      keys, read at positions `from..to`; may be the table's own storage
 * @param aux      a second table of the same row count, moved along unless it is the key or the table itself;
 * may be null when `auxCols` is below 1
 * @param auxCols  its columns; below 1 it is left alone
 * @param bDesc    descending when true
 * @param bSortKey true: the key is rewritten in sorted order. When the key is the table's own storage it is
 * the table's first column, and the columns from the second on are what moves
 */
KORVEL_API void SortQ(matrix<double>* table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrix<double>* aux, int auxCols, bool bDesc, bool bSortKey);
KORVEL_API void SortQ(matrix<int>* table, int rows, int cols, int from, int to, matrix<int>* key,
                      matrix<int>* aux, int auxCols, bool bDesc, bool bSortKey);
KORVEL_API void SortQ(matrix<short int>* table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrix<short int>* aux, int auxCols, bool bDesc, bool bSortKey);
KORVEL_API void SortQ(matrix<text>* table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrix<text>* aux, int auxCols, bool bDesc, bool bSortKey);

/**
 * The same on a record of labelled columns. A column that is shorter than the range is left alone.
 */
KORVEL_API void SortQ(cST_MVect<double>& table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrix<double>* aux, int auxCols, bool bDesc, bool bSortKey);
KORVEL_API void SortQ(cST_MVect<text>& table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrix<text>* aux, int auxCols, bool bDesc, bool bSortKey);

/**
 * The same on sparse tables. Each moved cell is written through `matrixSparse::setElement`, so a magnitude
 * below 1e-18 is no entry. The key is always rewritten in sorted order, whatever `bSortKey` says.
 */
KORVEL_API void SortQ(matrixSparse* table, int rows, int cols, int from, int to, matrix<double>* key,
                      matrixSparse* aux, int auxCols, bool bDesc, bool bSortKey);

/**
 * Orders the columns of a table by a key that has one entry a column.
 *
 * @param table    `rows` by `cols`, changed in place; the column of rank k goes to column `from + k`, k from
 * 0
 * @param rows     its rows
 * @param cols     its columns
 * @param from     first column to sort, from 1
 * @param to       last column to sort, included
 * @param key      keys, read at positions `from..to`
 * @param aux      a second table of the same column count, whose columns move along unless it is the key or
 * the table itself; may be null when `auxRows` is below 1
 * @param auxRows  its rows; below 1 it is left alone
 * @param bDesc    descending when true
 * @param bSortKey true: the key is rewritten in sorted order
 */
KORVEL_API void SortQByCol(matrix<double>* table, int rows, int cols, int from, int to, matrix<double>* key,
                           matrix<double>* aux, int auxRows, bool bDesc, bool bSortKey);

/**
 * Puts the rows with key 0 first, in their order, then those with key 1: all rows ascending by `key`, which
 * is rewritten in sorted order.
 */
KORVEL_API void SortDataBy01(matrix<double>* table, int rows, int cols, matrix<double>* key);
KORVEL_API void SortDataBy01(matrix<short int>* table, int rows, int cols, matrix<double>* key);
KORVEL_API void SortDataBy01(matrix<text>* table, int rows, int cols, matrix<double>* key);

#endif
