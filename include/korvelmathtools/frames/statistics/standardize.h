/**
 * @file
 * Flat functions: columns standardised, each number less its column's mean and divided by its column's
 * standard deviation, by their own statistics or by given ones.
 *
 * Tables are column after column. A cell is kept when it is not missing and its row has no flag; a NaN is a
 * number, and so is a missing weight. The flags bUnbiased and bFreq are true only when they are -1. Together
 * they choose what a sum of squares is divided by, S being the sum of the weights kept and m their number,
 * those of 0 included: S unless bUnbiased; otherwise S - 1 if bFreq, and S - S/m if not.
 */
#ifndef KORVEL_FRAMES_STATISTICS_STANDARDIZE_H
#define KORVEL_FRAMES_STATISTICS_STANDARDIZE_H

#include "frames/types.h"

/**
 * Standardises each column in turn. A column that has nothing to divide its sum of squares by ends the work:
 * its statistics become missing, and it and the columns after it stay as they are in x, or 0 in the results.
 * A deviation of 0 is reported and not divided by, so that a constant column becomes zeros.
 *
 * @param x         [inout] rows by cols numbers; unchanged unless out is null
 * @param rows      rows
 * @param cols      columns
 * @param out       [out] rows by cols numbers, missing where a cell is not kept; null: the cells of x that
 * are kept are replaced. May be the array of x
 * @param means     [out] cols means; may be null
 * @param sds       [out] cols deviations; may be null
 * @param vars      [out] cols variances; may be null
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights; may be null, then all are 1
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_M_Standardize(double* x, int rows, int cols, double* out, double* means, double* sds,
                                 double* vars, const short int* iMissing, const double* w,
                                 short int bUnbiased, short int bFreq);

/**
 * VB_M_Standardize with a result, on one vector and with bFreq false.
 *
 * @param x         [in] n numbers
 * @param n         number of elements
 * @param iMissing  [in] n flags; what has a flag other than 0 is left out; may be null
 * @param w         [in] n weights; may be null
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param out       [out] n numbers; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_V_Standardize(const double* x, int n, const short int* iMissing, const double* w,
                                 short int bUnbiased, double* out);

/**
 * VB_M_Standardize in place, on one vector and with bFreq false.
 *
 * @param x         [inout] n numbers
 * @param n         number of elements
 * @param iMissing  [in] n flags; what has a flag other than 0 is left out; may be null
 * @param w         [in] n weights; may be null
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @return 0
 */
KORVEL_FLAT int VB_V_Standardize2(double* x, int n, const short int* iMissing, const double* w,
                                  short int bUnbiased);

/**
 * Standardises the columns by given statistics. A deviation of 0 is not divided by. Where the mean or the
 * deviation of a column is missing, its cells that are kept become missing; a negative variance counts as a
 * missing deviation.
 *
 * @param x        [inout] rows by cols numbers; unchanged unless out is null
 * @param rows     rows
 * @param cols     columns
 * @param means    [in] cols means
 * @param sds      [in] cols deviations; null: the roots of vars
 * @param out      [out] rows by cols numbers, missing where a cell is not kept; null: the cells of x that are
 * kept are replaced. May be the array of x
 * @param vars     [in] cols variances, read only when sds is null
 * @param iMissing [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeKnownMeansStDev(double* x, int rows, int cols, const double* means,
                                                const double* sds, double* out, const double* vars,
                                                const short int* iMissing);

/**
 * VB_M_StandardizeKnownMeansStDev with deviations and a result, no row left out.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [in] cols means
 * @param sds   [in] cols deviations
 * @param out   [out] rows by cols numbers; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeByVect(const double* x, int rows, int cols, const double* means,
                                       const double* sds, double* out);

/**
 * VB_M_StandardizeKnownMeansStDev with deviations, in place, no row left out.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [in] cols means
 * @param sds   [in] cols deviations
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeByVect2(double* x, int rows, int cols, const double* means,
                                        const double* sds);

/**
 * Standardises the columns in place by given statistics. All cells of a column become missing when its
 * deviation is not greater than 0; a missing cell stays so in any case.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows
 * @param cols  columns
 * @param means [in] cols means
 * @param sds   [in] cols deviations
 * @return 0
 */
KORVEL_FLAT int Cpp_M_StandardizeApply2(double* x, int rows, int cols, const double* means,
                                        const double* sds);

#endif
