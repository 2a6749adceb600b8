/**
 * @file
 * Flat functions: variance and standard deviation of one vector.
 *
 * The flags bUnbiased and bFreq are true only when they are -1. Together they choose what the sum of squares
 * is divided by, S being the sum of the weights kept and m their number, those of 0 included: S unless
 * bUnbiased; otherwise S - 1 if bFreq (each weight counts as so many observations), and S - S/m if not.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_VARIANCE_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_VARIANCE_H

#include "frames/types.h"

/**
 * Weighted variance.
 *
 * @param x         [in] n numbers
 * @param n         number of elements
 * @param iMissing  [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         [in] n weights; a missing one is a number like any other
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return the variance; missing when the denominator is exactly 0. A negative denominator is divided by like
 * any other; when nothing is kept the result is missing unless unbiased, -0.0 with frequency weights, and a
 * NaN without
 */
KORVEL_FLAT double VB_V_Var(const double* x, int n, const short int* iMissing, const double* w,
                            short int bUnbiased, short int bFreq);

/**
 * Variance of the elements that are not missing, all of weight 1: VB_V_Var with no flag set.
 *
 * @like VB_V_Var
 * @return as for VB_V_Var
 */
KORVEL_FLAT double Cpp_V_Var2(const double* x, int n, short int bUnbiased, short int bFreq);

/**
 * Weighted standard deviation: the square root of VB_V_Var.
 *
 * @like VB_V_Var
 * @return the root; 0.0 for a variance of 0; missing for a negative one and for a missing one
 */
KORVEL_FLAT double VB_V_Stdev(const double* x, int n, const short int* iMissing, const double* w,
                              short int bUnbiased, short int bFreq);

/**
 * Weighted mean and variance. When nothing is kept both are 0.0.
 *
 * @like VB_V_Var
 * @param mean      [out] one number: the mean
 * @param var       [out] one number: the variance: missing unless the denominator is greater than 0
 * @return 0
 */
KORVEL_FLAT int VB_V_MeanVar(const double* x, int n, double* mean, double* var, const short int* iMissing,
                             const double* w, short int bUnbiased, short int bFreq);

/**
 * Weighted mean and variance of the elements that are not missing.
 *
 * @param x         [in] n numbers
 * @param n         number of elements
 * @param w         [in] n weights; a missing one is a number like any other
 * @param mean      [out] one number: the mean; 0.0 when there is no such element
 * @param var       [out] one number: the variance: missing unless the denominator is greater than 0
 * @param bUnbiased whether the denominator is corrected; true only when -1
 * @param bFreq     how it is; true only when -1
 * @return 0
 */
KORVEL_FLAT int Cpp_V_MeanVarW2(const double* x, int n, const double* w, double* mean, double* var,
                                short int bUnbiased, short int bFreq);

/**
 * Weighted mean and standard deviation. When nothing is kept both are 0.0.
 *
 * @like VB_V_Var
 * @param mean      [out] one number: the mean
 * @param sd        [out] one number: the standard deviation: missing unless the denominator is greater than
 * 0, and for a negative variance
 * @return 0
 */
KORVEL_FLAT int VB_V_MeanStdev(const double* x, int n, double* mean, double* sd, const short int* iMissing,
                               const double* w, short int bUnbiased, short int bFreq);

/**
 * Mean and standard deviation of the elements greater than the missing number, all of weight 1; a NaN is left
 * out as well.
 *
 * @param x         [in] n numbers
 * @param n         number of elements
 * @param bUnbiased -1: divided by the number kept less 1, otherwise by the number kept
 * @param mean      [out] one number: the mean; 0.0 when nothing is kept
 * @param sd        [out] one number: the standard deviation; a NaN with one element and unbiased;
 * without elements a NaN, or -0.0 when unbiased
 * @return 0
 */
KORVEL_FLAT int Cpp_V_MeanStdev2(const double* x, int n, short int bUnbiased, double* mean, double* sd);

#endif
