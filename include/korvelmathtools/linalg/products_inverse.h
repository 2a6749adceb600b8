/**
 * @file
 * Products through an inverse.
 *
 * The inverse is that of a sweep (`M_InverseG2`) in `M_ProductTrAinvBA`, with the tolerance 1e-12, and that
 * of an LU decomposition in the others, which takes a table for singular when a pivot's magnitude is at most
 * 1e-8. No failure is reported: a pivot below the tolerance is passed over by the sweep, and an LU inverse
 * that failed is a table of zeros. Both limits are absolute: a table of numbers below 1e-8 gives 0 throughout
 * where the LU inverse is used, however well it could be inverted.
 *
 * See `products.h` for what the products have in common.
 */
#ifndef KORVEL_LINALG_PRODUCTS_INVERSE_H
#define KORVEL_LINALG_PRODUCTS_INVERSE_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * C = A'·G·A with G the swept generalised inverse of B: the sum over k of w(k)·A(k,j) with w the row i of
 * A'·G. The work is shared out by rows of C, which is not cleared.
 *
 * @param A         `n` by `p`
 * @param n         rows of A
 * @param p         columns of A
 * @param B         `n` by `n`
 * @param symmetric not 0: the caller's promise that B is symmetric, as in `M_ProductTrABA`; only the lower
 * half of C is summed, and mirrored
 * @param C         receives `p` by `p`
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductTrAinvBA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                                  matrix<double>* C);

/**
 * C = A·B⁻¹·A', the product of A and the inverse first. Clears.
 *
 * @param A `n` by `p`
 * @param n rows of A
 * @param p columns of A
 * @param B inverted in its own order, which is to be `p`
 * @param C receives `n` by `n`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductAinvBTrA(matrix<double>* A, int n, int p, matrix<double>* B, matrix<double>* C);

/** `M_ProductAinvBTrA` into a table of `n` chunks of `n` rows each, which is not cleared. */
KORVEL_API void M_ProductAinvBTrASPV(matrix<double>* A, int n, int p, matrix<double>* B,
                                     matrix3D<matrix<double>>* C);

/**
 * v'·B⁻¹·v, the product of the inverse and the vector first.
 *
 * @param v vector of `n`
 * @param n elements of v
 * @param B inverted in its own order, which is to be `n`
 * @return 0.0 for a singular B, and for `n` below 1
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double M_ProductTrVinvBV(matrix<double>* v, int n, matrix<double>* B);

/** The same with a sparse table, of which the first `n` rows and columns are laid out densely. */
KORVEL_API double M_ProductTrVinvBV(matrix<double>* v, int n, matrixSparse* B);

#endif
