/**
 * @file
 * Products of a table and a vector, of vectors, and forms like v'·B·v. See `products.h` for what they share
 * with the products of two tables. None of them clears its result but where said. A vector is reached by
 * linear index, so its own shape does not matter. All of them run on the calling thread.
 */
#ifndef KORVEL_LINALG_PRODUCTS_VECTOR_H
#define KORVEL_LINALG_PRODUCTS_VECTOR_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * y = B·v.
 *
 * @param B `n` by `p`
 * @param v `p` elements
 * @param y receives `n` elements
 * @return 0
 */
KORVEL_API int M_ProductBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y);

/**
 * y = v'·B where nothing is missing. In ascending i the first v(i) or B(i,j) that equals `MISSING_DBL` ends
 * the sum, and y(j) is `MISSING_DBL`. Clears y to `q` by 1.
 *
 * @param v `n` elements
 * @param B `n` by `q`
 * @param y receives `q` elements
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_ProductVB(matrix<double>* v, int n, matrix<double>* B, int q, matrix<double>*& y);

/**
 * y = B'·v.
 *
 * @param B `n` by `p`
 * @param v `n` elements
 * @param y receives `p` elements
 */
KORVEL_API void M_ProductTrBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y);

/**
 * y = v'·B'.
 *
 * @param v `n` elements
 * @param B `m` by `n`
 * @param y receives `m` elements
 */
KORVEL_API void M_ProductVTrB(matrix<double>* v, int n, matrix<double>* B, int m, matrix<double>* y);

/**
 * v'·B·v, by way of y = B·v.
 *
 * @param v `n` elements
 * @param B `n` by `n`
 * @return the sum of v(i)·y(i); 0.0 when `n` is below 1
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double M_ProductTrVBV(const matrix<double>& v, int n, const matrix<double>& B);
KORVEL_API double M_ProductTrVBV(matrix<double>* v, int n, matrix<double>* B);

/**
 * x1'·B·x2, by way of y = B·x2.
 *
 * @param x1 `n` elements
 * @param B  `n` by `n`
 * @param x2 `n` elements
 * @return the sum of x1(i)·y(i); 0.0 when `n` is below 1
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double M_ProductTrV1BV2(matrix<double>* x1, int n, matrix<double>* B, matrix<double>* x2);

/** The sum of x1(i)·x2(i) over `n` elements; 0.0 when there are none. Missing ones multiply through. */
KORVEL_API double V_ProductTrV1V2(matrix<double>* x1, int n, matrix<double>* x2);

/**
 * Weighted mean product: the sum of `x1(i) * x2(i) * w(i)` over the rows where neither x1(i) nor x2(i) equals
 * `MISSING_DBL`, nor w(i), divided by W, the sum of the weights that are not missing, when W is above 0. A
 * row that is left out for its x1 or x2 still counts in W.
 *
 * @param x1 `n` elements
 * @param x2 `n` elements
 * @param w  `n` weights
 * @return the quotient; the sum itself when W is not above 0
 */
KORVEL_API double V_ProductWTrV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* w);

/** y(i) = x1(i)·x2(i) for `n` elements; `MISSING_DBL` where either of them is that. y may be x1 or x2. */
KORVEL_API void V_ProductV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* y);

/** x1(i) becomes x1(i)·x2(i) for `n` elements, missing ones too. */
KORVEL_API void V_ProductV1V22(matrix<double>* x1, int n, matrix<double>* x2);

/**
 * The outer product of a vector with itself or another, C(i,j) = x1(i)·x2(j). Clears C.
 *
 * @param x1 `n` elements
 * @param x2 `n` elements
 * @param C  receives `n` by `n`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void V_ProductV1TrV2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* C);

/** The product of the first `n` elements, from 1.0 and in ascending order, missing ones too. */
KORVEL_API double V_Product1toN(matrix<double>* v, int n);
KORVEL_API double V_Product1toN(matrix<int>* v, int n);

#endif
