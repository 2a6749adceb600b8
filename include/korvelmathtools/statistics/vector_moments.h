/**
 * @file
 * The first four moments of one vector with the standard errors of skewness and kurtosis.
 */
#ifndef KORVEL_STATISTICS_VECTOR_MOMENTS_H
#define KORVEL_STATISTICS_VECTOR_MOMENTS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted mean, variance, skewness and kurtosis of a vector, in one pass with running central moments
 * (D. H. D. West, Communications of the ACM 22, 1979, carried on to the fourth moment as in P. Pebay, Sandia
 * report SAND2008-6212, 2008).
 *
 * With S the sum of the weights of the elements kept, m their number (those of weight 0 included), a = S/m, u
 * = 1 if `bFreq` and a otherwise, and M2, M3, M4 the sums of powers of the deviations:
 *
 * @param x         the vector, `n` elements, read through its checked access
 * @param n         number of elements to read
 * @param mean      receives the mean
 * @param var       receives the variance: M2/(S - u) when `bUnbiased` is -1, M2/S otherwise
 * @param skewP     receives the skewness of the population: (M3/S) / var^(3/2)
 * @param kurtP     receives the excess kurtosis of the population: (M4/S) / var^2 - 3
 * @param skew      receives the skewness corrected for the sample size; missing unless S > 2a
 * @param kurt      receives the excess kurtosis corrected for the sample size; missing unless S > 2u and S >
 *                  3u
 * @param seSkew    receives the standard error of `skew`; missing with it
 * @param seKurt    receives the standard error of `kurt`, made from `seSkew` even if that is missing; missing
 *                  with `kurt`
 * @param iMissing  `n` flags, not null; an element with a non-zero flag is left out, and so is one that
 * equals `MISSING_DBL`; a NaN is kept
 * @param w         `n` weights, not null; a missing one is a number like any other
 * @param bUnbiased true only when -1
 * @param bFreq     true only when -1: each weight counts as so many observations
 *
 * The powers in the skewness and the kurtosis are those of `var` as it is returned: they are those of the
 * textbooks with `bUnbiased` 0, while with -1 they are divided by the powers of the unbiased variance.
 *
 * All eight results are 0.0 at first. When the denominator of the variance is exactly 0 (with `bUnbiased`
 * neither -1 nor 0 it is not looked at), the variance and the four results for skewness and kurtosis are
 * `MISSING_DBL`; when the variance is exactly 0, those four are; in both cases the standard errors stay 0.0.
 * A negative number under a root gives `MISSING_DBL` for the root.
 */
KORVEL_API void V_MeanVarSkewPKurtP(matrix<double>* x, int n, double& mean, double& var, double& skewP,
                                    double& kurtP, double& skew, double& kurt, double& seSkew, double& seKurt,
                                    short int* iMissing, matrix<double>* w, short int bUnbiased,
                                    short int bFreq);

#endif
