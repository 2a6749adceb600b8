/**
 * @file
 * Reducing a table to one row for each group: the rows that share a key, or rows that are equal.
 */
#ifndef KORVEL_STATISTICS_ROW_GROUPING_H
#define KORVEL_STATISTICS_ROW_GROUPING_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Aggregates the rows that share the value of a key column, in ascending order of the keys. Keys are compared
 * exactly; a NaN is a group of its own.
 *
 * @param x        `rows` by `cols`, not modified
 * @param rows     rows of the table
 * @param cols     columns of the table
 * @param kinds    `cols` entries, not 0 for a qualitative column: its aggregate is `V_ModeCat`, whatever the
 * method
 * @param groupCol the key column, from 1
 * @param method   aggregate of a quantitative column: 0 `V_Sum2`, 1 `V_Mean2`, 2 the median (`V_Quantile`), 3
 * the first row of the group, 4 its last row, 5 `V_Min2`, 6 `V_Max2`, 7 the range, missing when the group
 * holds nothing. Any other number leaves what the sorted input has there
 * @param nOut     receives the number of groups
 * @param out      `rows` by `cols`, sized by the caller: its first `nOut` rows receive the result; those
 * below keep the sorted input
 */
KORVEL_API void M_GroupBy(matrix<double>* x, int rows, int cols, matrix<int>* kinds, int groupCol, int method,
                          int& nOut, matrix<double>* out);

/**
 * `M_GroupBy` with a weight for each row: method 0 is `V_Sum`, 1 `V_Mean` and 2 the weighted median
 * (`V_QuantileW`).
 * @param w `rows` weights, put into the order of the sorted rows
 */
KORVEL_API void M_GroupByW(matrix<double>* x, int rows, int cols, matrix<int>* kinds, int groupCol,
                           int method, int& nOut, matrix<double>* out, matrix<double>* w);

/**
 * Merges rows that are equal, exactly, in all data columns; a NaN makes two rows differ.
 *
 * @param x    `rows` by `p + 1`: `p` data columns, then an identifier of the row. Not modified
 * @param rows rows of both tables
 * @param p    number of data columns
 * @param nOut receives the number of rows kept
 * @param out  `rows` by `p + 3`, sized by the caller. Columns 1 to `p` receive the data, `p + 1` the number
 * of rows merged into a kept row, `p + 2` the identifier, `p + 3` 1.0. The kept rows come first, in the order
 * of their identifiers; then the dropped ones in the order of theirs, with 0.0 in columns `p + 1` and `p +
 * 3`. Of equal rows the one that comes first in `x` is kept
 */
KORVEL_API void M_Dedupe(matrix<double>* x, int rows, int p, int& nOut, matrix<double>* out);

#endif
