/**
 * @file
 * Variance and standard deviation of one vector, in one pass with a running mean (B. P. Welford,
 * Technometrics 4, 1962; with weights, D. H. D. West, Communications of the ACM 22, 1979). The routines
 * differ in rounding, in what they leave out and in what they give when there is nothing to divide by.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. A missing element is one that
 * equals `MISSING_DBL`; a NaN counts as present. Weights are not normalised, and a missing weight is a number
 * like any other. Flags and weights must be given: a null pointer is not looked for.
 *
 * The flags `bUnbiased` and `bFreq` are true only when they are -1. Together they choose what a sum of
 * squares is divided by, S being the sum of the weights kept and m their number, those of 0 included: S
 * unless `bUnbiased`; otherwise S - 1 if `bFreq`, and S - S/m if not.
 */
#ifndef KORVEL_STATISTICS_VECTOR_VARIANCE_H
#define KORVEL_STATISTICS_VECTOR_VARIANCE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted variance.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param iMissing  `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         `n` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 * @return the variance; `MISSING_DBL` when the denominator is exactly 0. A negative denominator is divided by
 * like any other. So when nothing is kept the result is `MISSING_DBL` unless unbiased, -0.0 with frequency
 * weights (0 over -1), and a NaN without (0 over 0 - 0/0)
 */
KORVEL_API double V_Var(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, short int bUnbiased,
                        short int bFreq);

/**
 * Variance of the elements that are not missing, all of weight 1.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param bUnbiased see above
 * @param bFreq     see above
 * @return the variance. There is no guard on the denominator, and the result is what the division gives: with
 * one element and unbiased a NaN; without elements a NaN, or -0.0 (0 over -1) when both flags are true
 */
KORVEL_API double V_Var2(matrix<double>* x, int n, short int bUnbiased, short int bFreq);

/**
 * Weighted standard deviation: the square root of `V_Var`.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param iMissing  `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         `n` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 * @return the root; 0.0 for a variance of either zero; `MISSING_DBL` for a negative one and for a missing one
 */
KORVEL_API double V_Stdev(matrix<double>* x, int n, short int* iMissing, matrix<double>* w,
                          short int bUnbiased, short int bFreq);

/**
 * Weighted mean and variance.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param mean      receives the mean
 * @param var       receives the variance: `MISSING_DBL` unless the denominator is greater than 0
 * @param iMissing  `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         `n` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 *
 * When nothing is kept both results are 0.0.
 */
KORVEL_API void V_MeanVar(matrix<double>* x, int n, double* mean, double* var, short int* iMissing,
                          matrix<double>* w, short int bUnbiased, short int bFreq);

/**
 * Weighted mean and variance of the elements that are not missing.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param w         `n` weights
 * @param mean      receives the mean; 0.0 when there is no such element
 * @param var       receives the variance: `MISSING_DBL` unless the denominator is greater than 0
 * @param bUnbiased see above
 * @param bFreq     see above
 */
KORVEL_API void V_MeanVarW2(matrix<double>* x, int n, matrix<double>* w, double* mean, double* var,
                            short int bUnbiased, short int bFreq);

/**
 * Weighted mean and standard deviation.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param mean      receives the mean, as from `V_MeanVar`
 * @param sd        receives the square root of the variance from `V_MeanVar`, `MISSING_DBL` for a negative
 *                  one and for a missing one
 * @param iMissing  `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w         `n` weights
 * @param bUnbiased see above
 * @param bFreq     see above
 */
KORVEL_API void V_MeanStdev(matrix<double>* x, int n, double* mean, double* sd, short int* iMissing,
                            matrix<double>* w, short int bUnbiased, short int bFreq);

/**
 * Mean and standard deviation, all elements of weight 1. Only elements greater than `MISSING_DBL` are kept:
 * neither a NaN nor minus infinity is.
 *
 * @param x         the vector, `n` elements
 * @param n         number of elements to read
 * @param bUnbiased -1: divided by the number kept less 1, otherwise by the number kept
 * @param mean      receives the mean; 0.0 when nothing is kept
 * @param sd        receives the standard deviation. There is no guard on the denominator: with one element
 * and unbiased it is a NaN; without elements a NaN, or -0.0 (0 over -1) when unbiased
 */
KORVEL_API void V_MeanStdev2(matrix<double>* x, int n, short int bUnbiased, double& mean, double& sd);

namespace korvel
{

/** `V_Var` with no flag set and all weights 1.0. */
[[nodiscard]] double unweightedVariance(const matrix<double>& x, int n, short int bUnbiased, short int bFreq);

} // namespace korvel

#endif
