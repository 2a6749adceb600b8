/**
 * @file
 * Sums over one vector, or two. Every sum starts at 0.0 and adds in ascending index order in double
 * precision.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. With `n` below 1 nothing is read,
 * and every sum is 0. A missing element is one that equals `MISSING_DBL`; a NaN counts as present.
 */
#ifndef KORVEL_STATISTICS_VECTOR_SUMS_H
#define KORVEL_STATISTICS_VECTOR_SUMS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted sum of a vector: the sum of `w[i] * x[i]`.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out. Null: none is
 * @param w        `n` weights; null: all 1.0
 * @return the sum over the elements whose flag is 0 and of which neither value nor weight is missing; 0.0
 * when there are none
 */
KORVEL_API double V_Sum(matrix<double>* x, int n, short int* iMissing, matrix<double>* w);

/**
 * Sum of the elements that are not missing.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the sum; 0.0 when every element is missing
 */
KORVEL_API double V_Sum2(const matrix<double>& x, int n);

/** The same, given by pointer. */
KORVEL_API double V_Sum2(matrix<double>* x, int n);

/**
 * Sum of integers in 32-bit arithmetic that wraps around, converted to `double` at the end. No integer is
 * missing here.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the wrapped sum
 */
KORVEL_API double V_Sum2(matrix<int>* x, int n);

/** The same over `n` integers in a row. */
KORVEL_API double V_Sum2(int* x, int n);

/**
 * Sum of squares of the elements that are not missing.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the sum of `x[i] * x[i]`
 */
KORVEL_API double V_SumSq(matrix<double>* x, int n);

/**
 * Weighted sum of squares of the elements that are not missing. The weights are not looked at: a missing
 * weight multiplies through.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @param w `n` weights
 * @return the sum of `x[i] * w[i] * x[i]`
 */
KORVEL_API double V_SumSqW(matrix<double>* x, int n, matrix<double>* w);

/**
 * Sum of squares of all elements, missing ones too.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the sum of `x[i] * x[i]`
 */
KORVEL_API double V_Sq(matrix<double>* x, int n);

/**
 * Squared distance of two vectors, over all elements, missing ones too.
 *
 * @param x the first vector, `n` elements
 * @param n number of elements to read
 * @param y the second vector, `n` elements
 * @return the sum of the squares of `x[i] - y[i]`
 */
KORVEL_API double V_DiffSq(matrix<double>* x, int n, matrix<double>* y);

/**
 * Weighted squared distance of two vectors, over all elements, missing ones too.
 *
 * @param x the first vector, `n` elements
 * @param n number of elements to read
 * @param y the second vector, `n` elements
 * @param w `n` weights
 * @return the sum of `w[i]` times the square of `x[i] - y[i]`
 */
KORVEL_API double V_DiffSqW(matrix<double>* x, int n, matrix<double>* y, matrix<double>* w);

/**
 * Squared distance of the tails of two vectors, over all elements, missing ones too.
 *
 * @param x     the first vector, `n` elements
 * @param n     last position, from 1
 * @param y     the second vector, `n` elements
 * @param start first position, from 1
 * @return the sum of the squares of the differences at positions `start` to `n`; 0.0 when `start` is above
 * `n`
 */
KORVEL_API double V_DiffSqStart(matrix<double>* x, int n, matrix<double>* y, int start);

/**
 * Running sum over all elements, missing ones too. Reads and writes the blocks themselves, which must hold
 * `n` elements; they may be the same block.
 *
 * @param x   the vector, `n` elements
 * @param n   number of elements; below 1 nothing is written
 * @param out receives `x[0]`, and then the element before plus `x[i]`
 */
KORVEL_API void V_CuSum(matrix<double>* x, const int& n, matrix<double>* out);

namespace korvel
{

/**
 * Sum of `x[i] * w[i]` over all elements: a missing value or weight multiplies through.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @param w `n` weights
 */
[[nodiscard]] double sumOfProducts(const matrix<double>& x, int n, const matrix<double>& w);

/**
 * Sum over a stretch of an array, missing elements too.
 *
 * @param x    the array
 * @param from first position, from 1; the caller sees to it that it exists
 * @param to   last position, from 1
 * @return the sum; 0.0 when `from` is above `to`
 */
[[nodiscard]] double sumFromTo(const double* x, int from, int to);

/** The same over integers, in 32-bit arithmetic that wraps around. */
[[nodiscard]] int sumFromTo(const int* x, int from, int to);

} // namespace korvel

#endif
