/**
 * @file
 * Products of a table and a vector, and forms like v'·B·v. See `products.h` for what they share
 * with the products of two tables. None of them clears its result but where said. A vector is reached by
 * linear index, so its own shape does not matter. All of them run on the calling thread.
 */
#ifndef KORVEL_LINALG_PRODUCTS_TABLE_VECTOR_H
#define KORVEL_LINALG_PRODUCTS_TABLE_VECTOR_H

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
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductVB(matrix<double>* v, int n, matrix<double>* B, int q, matrix<double>*& y);

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

#endif
