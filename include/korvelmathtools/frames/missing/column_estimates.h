/**
 * @file
 * Flat functions: missing cells filled by the means and modes of their columns. A number is missing when it
 * is at or below `KORVEL_MISSING_DBL`, a text when it is empty.
 */
#ifndef KORVEL_FRAMES_MISSING_COLUMN_ESTIMATES_H
#define KORVEL_FRAMES_MISSING_COLUMN_ESTIMATES_H

#include "frames/types.h"

/**
 * Fills the missing numbers of flagged rows by the weighted means of their columns. A column without numbers
 * has the mean 0.0.
 *
 * @param x        [inout] n by p numbers
 * @param n        rows of the table
 * @param p        columns of the table; 0 stands for 1, and then the mean of a column without numbers is
 * missing
 * @param rowFlags [in] n flags; a row whose flag is 0 stays as it is. Null: all rows stay
 * @param w        [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingMean(double* x, int n, int p, const short int* rowFlags,
                                               const double* w);

/**
 * Fills the missing numbers of flagged rows by the weighted means of the columns of another table, of which a
 * column without numbers has the mean 0.0.
 *
 * @param statistics [in] n by p numbers, of which the means are taken
 * @param n          rows of that table
 * @param x          [inout] rows by p numbers
 * @param rows       rows of the table that is filled
 * @param p          columns of both tables; 0 stands for 1, and then the mean of a column without numbers is
 * missing
 * @param rowFlags   [in] rows flags; a row whose flag is 0 stays as it is. Null: all rows stay
 * @param w          [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingMeanPred(const double* statistics, int n, double* x, int rows,
                                                   int p, const short int* rowFlags, const double* w);

/**
 * Fills the missing numbers of flagged rows of a chunked table by the weighted means of their columns. A
 * column without numbers has the mean 0.0.
 *
 * @param x        [inout] p columns of n numbers
 * @param n        rows of the table
 * @param p        columns of the table
 * @param rowFlags [in] n flags; a row whose flag is 0 stays as it is. Null: all rows stay
 * @param w        [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingMeanSPV(Hostarray** x, int n, int p, const short int* rowFlags,
                                                  const double* w);

/**
 * Fills the empty texts of a table by the modes of their columns: of all texts of a column the one whose
 * weights have the largest sum, the first of equals.
 *
 * @param x [inout] n by p texts, replaced where they are empty
 * @param n rows of the table
 * @param p columns of the table; 0 stands for 1
 * @param w [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingMode(OLECHAR** x, int n, int p, const double* w);

/**
 * Fills the empty texts of a table by the modes of the columns of another table: of all texts of a column the
 * one whose weights have the largest sum, the first of equals.
 *
 * @param statistics [in] n by p texts, of which the modes are taken
 * @param n          rows of that table
 * @param x          [inout] rows by p texts, replaced where they are empty
 * @param rows       rows of the table that is filled
 * @param p          columns of both tables; 0 stands for 1
 * @param w          [in] n weights
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingModePred(OLECHAR* const* statistics, int n, OLECHAR** x, int rows,
                                                   int p, const double* w);

#endif
