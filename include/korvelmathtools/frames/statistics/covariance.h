/**
 * @file
 * Flat functions: covariance and correlation tables of the columns of a table, with weights and with pairwise
 * deletion: each pair of columns is walked over the rows in which both are present. A NaN is a number, and so
 * is a missing weight; a row of weight 0 counts among the rows and does nothing else.
 *
 * The flags bUnbiased and bFreq are true only when they are -1. Together they choose what a sum of products
 * is divided by, S being the sum of the weights of the rows kept and m their number: S unless bUnbiased;
 * otherwise S - 1 if bFreq, and S - S/m if not. A denominator of 0 gives what the division gives: a NaN for a
 * single row.
 *
 * A correlation is the covariance of the common rows over the root of the product of the two variances, each
 * over all the rows of its own column; it may exceed 1. The diagonal is exactly 1. A cell is undefined when
 * the two columns have no common row, and as a correlation when the product of the variances does not pass
 * its test; it is missing, or 0.0 if bUndefinedIsZero is not 0.
 */
#ifndef KORVEL_FRAMES_STATISTICS_COVARIANCE_H
#define KORVEL_FRAMES_STATISTICS_COVARIANCE_H

#include "frames/types.h"

/**
 * Covariances, or correlations, of all pairs of columns. A correlation is defined when the product of the
 * variances is other than 0.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param out       [out] cols by cols numbers, both halves
 * @param bCorr     not 0: correlations
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bUndefinedIsZero what an undefined cell is; true unless 0
 * @return 0
 */
KORVEL_FLAT int VB_M_CovCorr(const double* x, int rows, int cols, double* out, short int bCorr,
                             const short int* iMissing, const double* w, short int bUnbiased, short int bFreq,
                             short int bUndefinedIsZero);

/**
 * VB_M_CovCorr on a labelled table.
 *
 * @param x         [in] labelled table of numbers, rows by cols
 * @param rows      rows
 * @param cols      columns
 * @param out       [inout] labelled table of numbers whose columns receive cols by cols; its counts stay
 * @param bCorr     not 0: correlations
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bUndefinedIsZero what an undefined cell is; true unless 0
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CovCorr_ST(ST_MVect* x, int rows, int cols, ST_MVect* out, short int bCorr,
                                 const short int* iMissing, const double* w, short int bUnbiased,
                                 short int bFreq, short int bUndefinedIsZero);

/**
 * Covariances, or correlations, with the mean, the standard deviation and the variance of each column; on
 * request the table itself is centred and reduced. A correlation is defined when the product of the variances
 * is greater than 0.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param out       [out] cols by cols numbers, both halves
 * @param means     [out] cols means; missing for a column without rows
 * @param sds       [out] cols deviations: the root of a variance greater than 0, any other variance as it is
 * @param vars      [out] cols variances; missing for a column without rows
 * @param bCorr     -1: correlations
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bCenter   -1: each number that is neither missing nor in a flagged row loses the mean of its column
 * @param bReduce   -1: it is divided by the deviation, after the mean is subtracted if bCenter asks for that;
 * a column whose variance is not greater than 0 stays as it is
 * @param bUndefinedIsZero what an undefined cell is; true unless 0
 * @return 0
 */
KORVEL_FLAT int VB_M_CovCorrAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means,
                                            double* sds, double* vars, short int bCorr,
                                            const short int* iMissing, const double* w, short int bUnbiased,
                                            short int bFreq, short int bCenter, short int bReduce,
                                            short int bUndefinedIsZero);

/**
 * The same as VB_M_CovCorrAndMeanStDevVar.
 *
 * @param x         [inout] rows by cols numbers
 * @param rows      rows
 * @param cols      columns
 * @param out       [out] cols by cols numbers
 * @param means     [out] cols means
 * @param sds       [out] cols deviations
 * @param vars      [out] cols variances
 * @param bCorr     -1: correlations
 * @param iMissing  [in] rows flags; a row with a non-zero flag is left out; may be null, then none is
 * @param w         [in] rows weights
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @param bCenter   -1: the table is centred
 * @param bReduce   -1: it is reduced
 * @param bUndefinedIsZero what an undefined cell is; true unless 0
 * @return 0
 */
KORVEL_FLAT int VB_M_CovCorrVAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means,
                                             double* sds, double* vars, short int bCorr,
                                             const short int* iMissing, const double* w, short int bUnbiased,
                                             short int bFreq, short int bCenter, short int bReduce,
                                             short int bUndefinedIsZero);

#endif
