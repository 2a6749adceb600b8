/**
 * @file
 * Flat functions: mean, standard deviation and variance of each column of a table.
 *
 * A missing cell is left out, and so is a row of weight exactly 0; neither is counted. A NaN is a number, and
 * so is a missing weight. The flags bUnbiased and bFreq are true only when they are -1. Together they choose
 * what the sum of squares is divided by, S being the sum of the weights kept and m their number: S unless
 * bUnbiased; otherwise S - 1 if bFreq (each weight counts as so many observations), and S - S/m if not.
 *
 * The variance is missing when that is exactly 0; a negative one is divided by like any other. The deviation
 * is 0.0 for a variance of 0, and missing for a negative or missing one. Where nothing is kept the mean is
 * 0.0, and the variance missing unless bUnbiased, then -0.0 if bFreq and a NaN if not.
 */
#ifndef KORVEL_FRAMES_STATISTICS_COLUMN_DEVIATIONS_H
#define KORVEL_FRAMES_STATISTICS_COLUMN_DEVIATIONS_H

#include "frames/types.h"

/**
 * Means and standard deviations of the columns.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param means     [out] cols means
 * @param sds       [out] cols deviations
 * @param iMissing  [in] rows flags, read only when flag is 0; a row with a flag other than 0 is left
 * out; may be null, then none is
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param flag      0: rows with a flag other than 0 are left out; -1: all rows are kept, whatever their
 * flags; any other value: no row is kept
 * @return 0
 */
KORVEL_FLAT int VB_M_MeanStDev(const double* x, int rows, int cols, double* means, double* sds,
                               const short int* iMissing, const double* w, short int bUnbiased,
                               short int bFreq, short int flag);

/**
 * Means, standard deviations and variances of the columns.
 *
 * @like VB_M_MeanStDev
 * @param vars      [out] cols variances
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 */
KORVEL_FLAT int VB_M_MeanStDevVar(const double* x, int rows, int cols, double* means, double* sds,
                                  double* vars, const short int* iMissing, const double* w,
                                  short int bUnbiased, short int bFreq);

/**
 * Means and standard deviations of the rows.
 *
 * @like VB_M_MeanStDev
 * @param means     [out] rows means
 * @param sds       [out] rows deviations
 * @param w         [in] cols weights, one for each column
 */
KORVEL_FLAT int VB_M_MeanStDevByRow(const double* x, int rows, int cols, double* means, double* sds,
                                    const double* w, short int bUnbiased, short int bFreq);

/**
 * Mean, standard deviation and variance of all cells as one sample, column after column, each cell with the
 * weight of its row.
 *
 * @like VB_M_MeanStDev
 * @param mean      [out] one number: the mean
 * @param sd        [out] one number: the deviation
 * @param var       [out] one number: the variance
 */
KORVEL_FLAT int VB_M_MeanStDevVarOneInMat(const double* x, int rows, int cols, double* mean, double* sd,
                                          double* var, const double* w, short int bUnbiased, short int bFreq);

#endif
