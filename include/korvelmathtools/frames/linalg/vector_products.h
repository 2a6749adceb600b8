/**
 * @file
 * Flat functions: products of vectors.
 *
 * Missing elements are numbers, where nothing else is said. A count of 0 does nothing.
 */
#ifndef KORVEL_FRAMES_LINALG_VECTOR_PRODUCTS_H
#define KORVEL_FRAMES_LINALG_VECTOR_PRODUCTS_H

#include "frames/types.h"

/**
 * The inner product: the sum of x1(i) * x2(i).
 *
 * @param x1 [in] n elements
 * @param n  number of elements
 * @param x2 [in] n elements
 * @return the sum; 0.0 for n below 1
 */
KORVEL_FLAT double VB_V_ProductTrV1V2(const double* x1, int n, const double* x2);

/**
 * y(i) = x1(i) * x2(i), missing when one of the two is.
 *
 * @param x1 [in] n elements
 * @param n  number of elements
 * @param x2 [in] n elements
 * @param y  [out] n elements; may be x1 or x2
 * @return 0
 */
KORVEL_FLAT int VB_V_ProductV1V2(const double* x1, int n, const double* x2, double* y);

/**
 * x1(i) = x1(i) * x2(i).
 *
 * @param x1 [inout] n elements
 * @param n  number of elements
 * @param x2 [in] n elements; may be x1
 * @return 0
 */
KORVEL_FLAT int VB_V_ProductV1V22(double* x1, int n, const double* x2);

/**
 * The outer product: c(i, j) = x1(i) * x2(j).
 *
 * @like VB_V_ProductV1V2
 * @param c  [out] n by n cells, column after column
 */
KORVEL_FLAT int VB_V_ProductV1TrV2(const double* x1, int n, const double* x2, double* c);

/**
 * The product of all elements in ascending order, from 1.0.
 *
 * @param v [in] n elements
 * @param n number of elements
 * @return the product; 1.0 for n below 1
 */
KORVEL_FLAT double VB_V_Product1toNDbl(const double* v, int n);

/**
 * The product of all elements in ascending order, from 1.0, in Double.
 *
 * @param v [in] n elements
 * @param n number of elements
 * @return the product; 1.0 for n below 1
 */
KORVEL_FLAT double VB_V_Product1toNLng(const int* v, int n);

#endif
