/**
 * @file
 * Cholesky decompositions of symmetric positive definite tables: A = L·L' with L lower triangular.
 *
 * Each element of L is formed by the classic method, column after column (Golub and Van Loan, Matrix
 * Computations, chapter 4). Element (j, i) starts from A(i,j) and loses its products one by one in descending
 * order of their column, so that only the upper half of A is read.
 *
 * A table is positive definite here when no pivot is below 1e-12. That threshold is absolute: a table of tiny
 * scale is refused however well conditioned it is (1e-13 times the identity is), and a large one may pass
 * although it is singular to working accuracy. A NaN is not below anything and goes into L.
 */
#ifndef KORVEL_LINALG_CHOLESKY_H
#define KORVEL_LINALG_CHOLESKY_H

#include "containers/matrix.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Cholesky decomposition.
 *
 * @param A symmetric, of which the upper half of the first `n` by `n` block is read
 * @param n order; for 0 or less there is nothing to do
 * @param L receives the factor. It is made `n` by `n` zeros when it has fewer rows or columns; otherwise its
 *          first `n * n` cells in storage order are set to 0 first. Nothing above the diagonal is written
 * @return 0, or -1 when A is not positive definite; L then has the columns that were finished, and 0 in the
 *         others
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_CholDecomp(matrix<double>* A, int n, matrix<double>* L);

/**
 * The same for sparse tables. Every element is read by a search of its row and stored under the rule of
 * `setElement`: what is below `SPARSE_ZERO` in magnitude is no entry, and counts as 0.0 from then on.
 *
 * @param A symmetric, of which the upper half of the first `n` by `n` block is read
 * @param n order
 * @param L receives the factor as a table of `n` by `n`, whatever it was before
 * @return as above
 * @throws std::bad_alloc or std::length_error when memory is short, and for `n` below -1
 */
KORVEL_API int M_CholDecomp(matrixSparse* A, int n, matrixSparse* L);

/**
 * Cholesky decomposition with rows and columns exchanged alike: P·A·P' = L·L'.
 *
 * Before column k the variable with the largest score is brought there, the first one of equal scores. With W
 * the table as it is permuted by then, the score of variable i is W(i,i) for the first column and
 * W(i,i) - W(k-1,i)²/L(k-1,k-1) for a later one: it takes off the pivot before only, as it stands in W, and
 * divides by the factor's diagonal and not by its square. So it is not the pivot that would result, and the
 * variables do not come in the order that complete pivoting gives.
 *
 * The work ends at the first pivot below 1e-12. No rank is told, and an earlier choice is not taken back.
 *
 * @param A            symmetric; its first `n` by `n` block is read
 * @param n            order
 * @param L            receives the factor, as for `M_CholDecomp`
 * @param perm         `n` elements; receives in element i the number, from 1, of the variable of A that
 *                     stands at position i
 * @param replaceInput true only when -1: A's block is replaced by the permuted table, on failure too
 * @return 0, or -1 when a pivot was below 1e-12; L then has the columns that were finished
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_CholDecompPrinc(matrix<double>* A, int n, matrix<double>* L, matrix<double>* perm,
                                 short int replaceInput);

/** The same, with the variables' numbers as integers. */
KORVEL_API int M_CholDecompPrinc(matrix<double>* A, int n, matrix<double>* L, matrix<int>* perm,
                                 short int replaceInput);

/**
 * The same for sparse tables. L is made anew, and holds and gives up elements as in the sparse
 * `M_CholDecomp`; the permuted table is held densely and stored back element by element.
 */
KORVEL_API int M_CholDecompPrinc(matrixSparse* A, int n, matrixSparse* L, matrix<double>* perm,
                                 short int replaceInput);

#endif
