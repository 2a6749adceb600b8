/**
 * @file
 * Flat functions: means of one vector.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_MEANS_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_MEANS_H

#include "frames/types.h"

/**
 * Weighted mean: the sum of w[i] * x[i] over the sum of w[i].
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        [in] n weights; a missing one is a number like any other
 * @return the mean; missing when n is below 1 or the weights kept sum to exactly 0
 */
KORVEL_FLAT double VB_V_Mean(const double* x, int n, const short int* iMissing, const double* w);

/**
 * Weighted mean of absolute values.
 *
 * @like VB_V_Mean
 * @return the sum of w[i] * |x[i]| over the sum of w[i]; missing when n is below 1 or the weights kept sum to
 * exactly 0
 */
KORVEL_FLAT double VB_V_MeanAbs(const double* x, int n, const short int* iMissing, const double* w);

/**
 * Mean of the elements that are not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the mean; missing when there is no such element
 */
KORVEL_FLAT double VB_V_Mean2(const double* x, int n);

/**
 * Weighted mean of the elements that are not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param w [in] n weights; a missing one is a number like any other
 * @return the sum of w[i] * x[i] over the sum of w[i]; missing when n is below 1, and unless the sum of the
 * weights is greater than 0
 */
KORVEL_FLAT double Cpp_V_MeanW2(const double* x, int n, const double* w);

/**
 * Weighted harmonic mean: the sum of w[i] over the sum of w[i] / x[i].
 *
 * @like VB_V_Mean
 * @return the mean; missing when n is below 1, when an element kept is 0, and when the quotients sum to
 * exactly 0
 */
KORVEL_FLAT double Cpp_V_HarmonicMean(const double* x, int n, const short int* iMissing, const double* w);

/**
 * Geometric mean and geometric standard deviation. The variance of the logarithms is divided by the sum of
 * the weights less the mean weight. An element of weight 0 counts in the mean weight and nowhere else.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        [in] n weights; a missing one is a number like any other
 * @param gmean    [out] one number: the geometric mean
 * @param gsd      [out] one number: the geometric standard deviation: missing when the denominator is exactly
 * 0, 0.0 when the variance of the logarithms is negative
 * @return 0. Both results are missing when no element is kept or one that is kept is not greater than 0
 */
KORVEL_FLAT int Cpp_V_GMeanGSD(const double* x, int n, const short int* iMissing, const double* w,
                               double* gmean, double* gsd);

#endif
