/**
 * @file
 * Square roots of symmetric tables, from their eigenvalues and eigenvectors (`M_Eigen`, with its reading of
 * the lower half only, its limits and its absolute tests).
 */
#ifndef KORVEL_LINALG_SQUARE_ROOTS_H
#define KORVEL_LINALG_SQUARE_ROOTS_H

#include "containers/matrix.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * A root R with R'·R = A: the roots of the eigenvalues, in descending order, times the transpose of the
 * eigenvectors, each eigenvector divided by its length. R is not symmetric. What rounding leaves of the
 * vectors' inner products is not taken out: it is multiplied in.
 *
 * An eigenvalue between -1e-12 and 0 counts as 0. The threshold is absolute: a table of tiny scale has a root
 * although it is not positive, and rounding alone can refuse a large singular one.
 *
 * @param A symmetric; its first `n` by `n` block is read
 * @param n order
 * @param R receives `n` by `n`; it is given that size when it is too small. Untouched unless the status is 0
 * @return 0; -1 when an eigenvalue is -1e-12 or below, and when there is no decomposition: a cell is missing,
 *         or the iteration did not converge; -2 when the squared length of an eigenvector is not positive.
 * The first eigenvector or eigenvalue that fails decides
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_SquareRoot(matrix<double>* A, int n, matrix<double>* R);

/** The same of a sparse table, which is laid out densely first. */
KORVEL_API int M_SquareRoot(matrixSparse* A, int n, matrix<double>* R);

/**
 * The symmetric root: U·diag(√d)·U' with the eigenvectors U and the eigenvalues d, in the order in which the
 * iteration leaves them. An eigenvalue below 0, however far, counts as 0.
 *
 * @param A symmetric; its first `n` by `n` block is read
 * @param n order
 * @param R receives `n` by `n`, and must have that size. Untouched when a cell of A is missing or the
 *          iteration does not converge, which nothing tells
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_SquareRootSDP(matrix<double> const& A, int n, matrix<double>& R);

#endif
