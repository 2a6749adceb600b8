/**
 * @file
 * Flat functions: reducing a table to one row for each group.
 */
#ifndef KORVEL_FRAMES_STATISTICS_ROW_GROUPING_H
#define KORVEL_FRAMES_STATISTICS_ROW_GROUPING_H

#include "frames/types.h"

/**
 * Aggregates the rows that share the value of a key column, in ascending order of the keys, compared exactly.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows of the table
 * @param cols     columns of the table
 * @param kinds    [in] cols entries, not 0 for a qualitative column, whose aggregate is the most frequent
 * code
 * @param groupCol the key column, from 1
 * @param method   aggregate of the other columns: 0 sum, 1 mean, 2 median, 3 first row, 4 last row, 5
 * minimum, 6 maximum, 7 range; any other number leaves the sorted input
 * @param nOut     [out] one integer: the number of groups
 * @param out      [out] rows by cols numbers; the first nOut rows are the result, those below keep the sorted
 * input
 * @return 0
 */
KORVEL_FLAT int VB_M_GroupBy(const double* x, int rows, int cols, const int* kinds, int groupCol, int method,
                             int* nOut, double* out);

/**
 * Aggregates the rows that share the value of a key column, with a weight for each row.
 *
 * @like VB_M_GroupBy
 * @param method   aggregate of the other columns: 0 weighted sum, 1 weighted mean, 2 weighted median, 3 first
 * row, 4 last row, 5 minimum, 6 maximum, 7 range; any other number leaves the sorted input
 * @param w        [in] rows weights
 */
KORVEL_FLAT int VB_M_GroupByW(const double* x, int rows, int cols, const int* kinds, int groupCol, int method,
                              int* nOut, double* out, const double* w);

/**
 * Merges rows that are equal, exactly, in all data columns. The kept rows come first, in the order of their
 * identifiers, then the dropped ones.
 *
 * @param x    [in] rows by p + 1 numbers: p data columns, then an identifier of the row
 * @param rows rows of both tables
 * @param p    number of data columns
 * @param nOut [out] one integer: the number of rows kept
 * @param out  [out] rows by p + 3 numbers: the data, the number of rows merged (0 for a dropped row), the
 * identifier, and 1 for a kept row, 0 for a dropped one
 * @return 0
 */
KORVEL_FLAT int VB_M_Dedupe(const double* x, int rows, int p, int* nOut, double* out);

#endif
