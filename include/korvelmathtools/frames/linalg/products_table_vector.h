/**
 * @file
 * Flat functions: products with vectors. Every element is one sum from 0.0 in ascending order, each term a
 * multiplication and then an addition. What is read is copied first where there is a result array, which
 * may therefore be an array that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_TABLE_VECTOR_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_TABLE_VECTOR_H

#include "frames/types.h"

/**
 * Table times vector, y = b * v.
 *
 * @param b [in] n by p numbers
 * @param n rows of b
 * @param p columns of b
 * @param v [in] p numbers
 * @param y [out] n numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductBV(const double* b, int n, int p, const double* v, double* y);

/**
 * Vector times table, y = v' * b, that heeds missing cells: where a term has a missing factor, y(j) is
 * missing.
 *
 * @param v [in] n numbers
 * @param n elements of v, rows of b
 * @param b [in] n by q numbers
 * @param q columns of b
 * @param y [out] q numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductVB(const double* v, int n, const double* b, int q, double* y);

/**
 * Transposed table times vector, y = b' * v.
 *
 * @param b [in] n by p numbers
 * @param n rows of b
 * @param p columns of b
 * @param v [in] n numbers
 * @param y [out] p numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductTrBV(const double* b, int n, int p, const double* v, double* y);

/**
 * Vector times transposed table, y = v' * b'.
 *
 * @param v [in] n numbers
 * @param n elements of v, columns of b
 * @param b [in] m by n numbers
 * @param m rows of b
 * @param y [out] m numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductVTrB(const double* v, int n, const double* b, int m, double* y);

/**
 * The quadratic form v' * b * v.
 *
 * @param v [in] n numbers
 * @param n elements of v
 * @param b [in] n by n numbers
 * @return the number; 0.0 when n is below 1
 */
KORVEL_FLAT double VB_M_ProductTrVBV(const double* v, int n, const double* b);

/**
 * The bilinear form x1' * b * x2.
 *
 * @param x1 [in] n numbers
 * @param n  elements of each vector
 * @param b  [in] n by n numbers
 * @param x2 [in] n numbers
 * @return the number; 0.0 when n is below 1
 */
KORVEL_FLAT double VB_M_ProductTrV1BV2(const double* x1, int n, const double* b, const double* x2);

#endif
