/**
 * @file
 * Tables standardised together or in parts: a table with companions that share its columns, and groups of
 * rows of one table.
 */
#ifndef KORVEL_STATISTICS_STANDARDIZE_ROW_SETS_H
#define KORVEL_STATISTICS_STANDARDIZE_ROW_SETS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Standardises a table in place, as `M_Standardize2` with the unbiased deviation does, and by its means and
 * deviations two companions, tables of other rows and the same columns. Where the deviation of `x` is not
 * greater than 0, the column stays as it is in all three. Missing cells stay missing.
 *
 * @param x     the table
 * @param rows  rows of `x`
 * @param cols  columns of all three
 * @param y     first companion; not read, and so may be null, when `yRows` is below 1
 * @param yRows rows of `y`
 * @param z     second companion, alike
 * @param zRows rows of `z`
 */
KORVEL_API void M_StandardizeMatrix(matrix<double>*& x, int rows, int cols, matrix<double>*& y, int yRows,
                                    matrix<double>*& z, int zRows);

/**
 * Standardises or centres each group of rows for itself, in place.
 *
 * @param x            the table
 * @param rows         rows
 * @param cols         columns
 * @param groups       `rows` group codes; a row with a code that is not from 1 to `nGroups` stays
 * @param nGroups      number of groups; below 1 nothing is done
 * @param bStandardize -1: each group is treated by `M_Standardize2`; any other value: by `M_Center2`
 * @param bUnbiased    of `M_Standardize2`
 * @throws std::bad_alloc when memory is short; the table is then as it was
 */
KORVEL_API void M_StandardizeByGroup(matrix<double>* x, int rows, int cols, matrix<int>* groups, int nGroups,
                                     short int bStandardize, short int bUnbiased);

#endif
