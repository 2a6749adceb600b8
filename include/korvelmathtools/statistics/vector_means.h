/**
 * @file
 * Means of one vector: arithmetic, of absolute values, harmonic, geometric.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. A missing element is one that
 * equals `MISSING_DBL`; a NaN counts as present. Weights are not normalised, and a missing weight is a number
 * like any other. Flags and weights must be given: a null pointer is not looked for.
 */
#ifndef KORVEL_STATISTICS_VECTOR_MEANS_H
#define KORVEL_STATISTICS_VECTOR_MEANS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted mean: the sum of `w[i] * x[i]` over the sum of `w[i]`.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        `n` weights
 * @return the mean; `MISSING_DBL` when `n` is below 1 or the weights kept sum to exactly 0
 */
KORVEL_API double V_Mean(matrix<double>* x, int n, short int* iMissing, matrix<double>* w);

/**
 * Weighted mean of absolute values: the sum of `w[i] * |x[i]|` over the sum of `w[i]`.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        `n` weights
 * @return the mean; `MISSING_DBL` when `n` is below 1 or the weights kept sum to exactly 0
 */
KORVEL_API double V_MeanAbs(matrix<double>* x, int n, short int* iMissing, matrix<double>* w);

/**
 * Mean of the elements that are not missing: their sum over their count.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the mean; `MISSING_DBL` when there is no such element
 */
KORVEL_API double V_Mean2(const matrix<double>& x, int n);

/** The same, given by pointer. */
KORVEL_API double V_Mean2(matrix<double>* x, int n);

/**
 * Weighted mean of the elements that are not missing.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @param w `n` weights
 * @return the sum of `w[i] * x[i]` over the sum of `w[i]`; `MISSING_DBL` when `n` is below 1, and unless the
 * sum of the weights is greater than 0
 */
KORVEL_API double V_MeanW2(matrix<double>* x, int n, matrix<double>* w);

/**
 * Weighted harmonic mean: the sum of `w[i]` over the sum of `w[i] / x[i]`.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        `n` weights
 * @return the mean; `MISSING_DBL` when `n` is below 1, when an element kept is 0, and when the quotients sum
 * to exactly 0
 */
KORVEL_API double V_HarmonicMean(matrix<double>* x, int n, short int* iMissing, matrix<double>* w);

/**
 * Geometric mean and geometric standard deviation, from the weighted one-pass mean and variance of the
 * logarithms (D. H. D. West, Communications of the ACM 22, 1979). The variance of the logarithms is divided
 * by the sum of the weights less the mean weight. An element of weight 0 counts in the mean weight and
 * nowhere else.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one
 * @param w        `n` weights
 * @param gmean    receives the geometric mean
 * @param gsd      receives the geometric standard deviation: `MISSING_DBL` when the denominator is exactly 0,
 *                 0.0 when the variance of the logarithms is negative
 * @return 0. Both results are `MISSING_DBL` when no element is kept or one that is kept is not greater than 0
 */
KORVEL_API int V_GMeanGSD(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, double& gmean,
                          double& gsd);

#endif
