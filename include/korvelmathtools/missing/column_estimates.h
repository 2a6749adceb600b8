/**
 * @file
 * Missing cells filled by what their column comes to: the mean of its numbers, the mode of its texts. What a
 * column comes to may be learnt on one table and fill another.
 *
 * A number is missing when it is at or below `MISSING_DBL`, a text when it is empty. Tables are read and
 * written through the checked access of `matrix`, row after row.
 */
#ifndef KORVEL_MISSING_COLUMN_ESTIMATES_H
#define KORVEL_MISSING_COLUMN_ESTIMATES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Fills the missing cells of flagged rows by the weighted means of the columns.
 *
 * @param statisticsTable `n` by `p`, of which the means are taken: by `M_Mean`, for which a column without
 * numbers has the mean 0.0. May be the table that is filled
 * @param n               rows of the statistics table
 * @param table           `rows` by `p`, in place
 * @param rows            rows of the table that is filled
 * @param p               columns of both; below 1 both are vectors, and the mean is that of `V_Mean`, which
 * is missing for a vector without numbers
 * @param rowFlags        `rows` flags; a row whose flag is 0 stays as it is. Null: no row is flagged
 * @param weights         `n` weights; null: all are 1.0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void EstimateRowsWithMissingMean(matrix<double>* statisticsTable, int n, matrix<double>*& table,
                                            int rows, int p, short int* rowFlags, matrix<double>* weights);

/** The same for `p` chunks of `n` rows, filled by their own means; below 1 there is no column. */
KORVEL_API void EstimateRowsWithMissingMeanSPV(matrix<double>** table, int n, int p, short int* rowFlags,
                                               matrix<double>* weights);

/**
 * Fills the empty texts of a table by the modes of the columns: of all texts of a column the one whose
 * weights have the largest sum, the first of equals.
 *
 * @param statisticsTable `n` by `p`, of which the modes are taken; may be the table that is filled
 * @param n               rows of the statistics table
 * @param table           `rows` by `p`, in place; a column whose mode is empty stays as it is
 * @param rows            rows of the table that is filled
 * @param p               columns of both; below 1 nothing is filled
 * @param weights         `n` weights; null: all are 1.0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void EstimateRowsWithMissingMode(matrix<text>* statisticsTable, int n, matrix<text>*& table,
                                            int rows, int p, matrix<double>* weights);

#endif
