/**
 * @file
 * Generalised inverses and the rank, from the singular value decomposition (`M_SVDecomp`).
 *
 * What counts as singular is a singular value below the caller's tolerance, or at most 1e-12 for the rank.
 * The limits are absolute and are held against the values themselves, not against the largest of them: a
 * regular table of numbers below the tolerance has the rank 0 and the inverse 0, and the rank of a table of
 * huge numbers counts rounding errors. Missing cells are numbers.
 */
#ifndef KORVEL_LINALG_GENERALIZED_INVERSE_H
#define KORVEL_LINALG_GENERALIZED_INVERSE_H

#include "containers/matrix.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Moore-Penrose inverse of a square table: with A = U·diag(s)·V', it is V·diag(1/s)·U' without the singular
 * values below the tolerance (Golub and Van Loan, Matrix Computations, section 5.5).
 *
 * @param A         `n` by `n`
 * @param n         order; below 1 nothing is done, and the rank is 0
 * @param G         receives `n` by `n`; not resized. May be A
 * @param tolerance a singular value that is not at least this, a NaN among them, is dropped
 * @param rank      receives the number of values that were kept. When the decomposition has converged, they
 *                  are in descending order, and all behind the first one dropped are dropped too
 * @return 0, or -1 when the decomposition has not converged; G is made of what there is then as well
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_InvGeneralized(const matrix<double>& A, int n, matrix<double>& G, double tolerance,
                                int& rank);
KORVEL_API int M_InvGeneralized(matrix<double>* A, int n, matrix<double>* G, double tolerance, int& rank);

/** The same on a sparse table, through dense ones; G becomes what `outputSparse` makes of the result. */
KORVEL_API int M_InvGeneralized(matrixSparse* A, int n, matrixSparse* G, double tolerance, int& rank);

/** The same on a list of `n` columns. */
KORVEL_API int M_InvGeneralizedSPV(matrix<double>** A, int n, matrix<double>* G, double tolerance, int& rank);

/**
 * The same on a symmetric positive semidefinite table, as U·diag(1/s)·U': U stands on both sides, so that the
 * inverse of a negative eigenvalue comes out positive. Only the lower half is summed, and mirrored.
 *
 * @param A         `n` by `n`; used as working space, and as before afterwards
 * @param n         order; below 1 nothing is done, and the rank is 0
 * @param G         receives `n` by `n`; not resized
 * @param tolerance as for `M_InvGeneralized`
 * @param rank      as for `M_InvGeneralized`
 * @return as for `M_InvGeneralized`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_InvGeneralizedSym(matrix<double>* A, int n, matrix<double>* G, double tolerance, int& rank);

/**
 * Rank of a table: its singular values from the first one on, up to the first that is at most 1e-12, and no
 * more than `p`. A NaN counts.
 *
 * @param A `n` by `p`; used as working space, and as before afterwards
 * @param n rows
 * @param p columns
 * @return the rank; 0 when `n` or `p` is below 1; -1 when the decomposition has not converged
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_Rank(matrix<double>* A, int n, int p);

#endif
