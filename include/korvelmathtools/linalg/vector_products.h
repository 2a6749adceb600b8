/**
 * @file
 * Products of vectors: inner, outer, element by element, and of all elements of one.
 *
 * Vectors are read by linear index, checked: an element outside reads the vector's `oobValue`, and every
 * store also leaves its value in the result's `oobValue`. Counts below 1 do nothing. Missing elements are
 * numbers, where nothing else is said.
 */
#ifndef KORVEL_LINALG_VECTOR_PRODUCTS_H
#define KORVEL_LINALG_VECTOR_PRODUCTS_H

#include "containers/matrix.h"
#include "platform/export.h"

/** The inner product: the running sum of x1(i) * x2(i) over the first `n` elements; 0.0 for `n` below 1. */
KORVEL_API double V_ProductTrV1V2(matrix<double>* x1, int n, matrix<double>* x2);

/**
 * The weighted mean product: the running sum of x1(i) * x2(i) * w(i) over the elements that are missing in
 * neither vector, divided by the total weight when that is positive.
 *
 * @param x1 vector of `n`
 * @param n  number of elements
 * @param x2 vector of `n`
 * @param w  vector of `n` weights. The total takes in every weight that is not missing, also those of
 *           elements that are left out of the sum
 * @return the sum itself when the total weight is not positive; 0.0 for `n` below 1
 */
KORVEL_API double V_ProductWTrV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* w);

/** y(i) = x1(i) * x2(i), missing when one of the two is. `y` is sized by the caller and may be `x1` or `x2`.
 */
KORVEL_API void V_ProductV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* y);

/** x1(i) = x1(i) * x2(i) in place. */
KORVEL_API void V_ProductV1V22(matrix<double>* x1, int n, matrix<double>* x2);

/**
 * The outer product: C(i, j) = x1(i) * x2(j).
 *
 * @param x1 vector of `n`
 * @param n  number of elements of both
 * @param x2 vector of `n`
 * @param C  receives `n` by `n` cells. Cleared first: with too few rows or columns it is given these counts
 * and filled with 0.0; a larger one keeps its shape, and its first `n * n` elements become 0.0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void V_ProductV1TrV2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* C);

/** The product of the first `n` elements in ascending order, from 1.0, in `double`; 1.0 for `n` below 1. */
KORVEL_API double V_Product1toN(matrix<double>* v, int n);
KORVEL_API double V_Product1toN(matrix<int>* v, int n);

#endif
