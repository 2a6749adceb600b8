/**
 * @file
 * Products of symmetric tables that are held packed: the lower triangle row after row, element (i, j) with j
 * not above i, both counted from 1, at position i(i - 1)/2 + j. Packed tables and vectors are reached by
 * linear index: one outside reads `oobValue`, and what is stored there is lost.
 *
 * Every element of a result is one sum from 0.0 in ascending order, each term a multiplication and then an
 * addition. No cell is looked at for being missing. All run on the calling thread.
 */
#ifndef KORVEL_LINALG_PRODUCTS_PACKED_H
#define KORVEL_LINALG_PRODUCTS_PACKED_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * y = S·x.
 *
 * @param S the m(m + 1)/2 elements of a packed table
 * @param m order of the table; below 1 nothing is stored
 * @param x `m` elements
 * @param y receives `m` elements, sized by the caller; neither `S` nor `x`
 */
KORVEL_API void M_ProductASymV(matrix<double>* S, int m, matrix<double>* x, matrix<double>* y);

/** y = x'·S, which has the elements of S·x. The arguments are those of `M_ProductASymV`. */
KORVEL_API void M_ProductVASym(matrix<double>* x, int m, matrix<double>* S, matrix<double>* y);

/**
 * v'·S·v: twice the sum over i below j of `v(i) * v(j) * S(j,i)`, i outside, plus the sum of
 * `v(i)^2 * S(i,i)`.
 *
 * @param v `n` elements
 * @param n order; below 1 gives 0.0
 * @param S a full table, `n` by `n`, of which only the lower triangle is read
 * @return the sum of both
 */
KORVEL_API double M_ProductTrVSymV(matrix<double>* v, int n, matrix<double>* S);

/**
 * C = the lower triangle of A·B, all three packed: element (i, j) is the sum over l from 1 to m of
 * `A(i,l) * B(l,j)`, m being the whole part of the root of 2n. Element k is (i, j) with i the whole part of
 * `sqrt(2k + 0.25) + 0.5 - 1e-12` and j what is left. When `n` is not m(m + 1)/2, some sums
 * reach past the end of A and of B.
 *
 * @param A `n` elements of a packed table
 * @param n packed length; below 1 nothing is stored
 * @param B `n` elements of a packed table
 * @param C receives `n` elements, sized by the caller; neither `A` nor `B`
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void MV_ProductAsymBsym(matrix<double>* A, int n, matrix<double>* B, matrix<double>* C);

#endif
