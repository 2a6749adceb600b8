/**
 * @file
 * Flat functions: the moments of one vector.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_MOMENTS_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_MOMENTS_H

#include "frames/types.h"

/**
 * Weighted mean, variance, skewness and kurtosis, with standard errors.
 *
 * S is the sum of the weights of the elements kept, m their number (those of weight 0 included), a = S/m, and
 * u = 1 if bFreq and a otherwise. All results are 0.0 at first. When the denominator of the variance is
 * exactly 0 (with bUnbiased neither -1 nor 0 it is not looked at), the variance and the four results for
 * skewness and kurtosis are missing; when the variance is exactly 0, those four are; the standard errors then
 * stay 0.0.
 *
 * Skewness and kurtosis are made from that variance, so they are those of the textbooks with bUnbiased 0;
 * with -1 the formulas divide by the powers of the larger, unbiased variance, and the results are nearer to 0
 * (the kurtosis before 3 is taken off).
 *
 * @param x         [in] n numbers
 * @param n         number of elements
 * @param mean      [out] one number: the mean
 * @param var       [out] one number: the variance: the sum of squares over S - u if bUnbiased, over S
 * otherwise
 * @param skewP     [out] one number: the skewness of the population
 * @param kurtP     [out] one number: the excess kurtosis of the population
 * @param skew      [out] one number: the skewness corrected for the sample size; missing unless S is above 2a
 * @param kurt      [out] one number: the excess kurtosis corrected for the sample size; missing unless S is
 * above 2u and 3u
 * @param seSkew    [out] one number: the standard error of skew; missing with it
 * @param seKurt    [out] one number: the standard error of kurt; missing with it
 * @param iMissing  [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         [in] n weights; a missing one is a number like any other
 * @param bUnbiased true only when -1
 * @param bFreq     true only when -1: each weight counts as so many observations
 * @return 0
 */
KORVEL_FLAT int VB_V_MeanVarSkewPKurtP(const double* x, int n, double* mean, double* var, double* skewP,
                                       double* kurtP, double* skew, double* kurt, double* seSkew,
                                       double* seKurt, const short int* iMissing, const double* w,
                                       short int bUnbiased, short int bFreq);

#endif
