/**
 * @file
 * The two projections between which the search for the nearest correlation matrix goes back and forth
 * (Higham, Computing the nearest correlation matrix: a problem from finance, IMA Journal of Numerical
 * Analysis 22, 2002): onto the positive semidefinite tables, and onto those with a diagonal of ones.
 */
#ifndef KORVEL_LINALG_PROJECTIONS_H
#define KORVEL_LINALG_PROJECTIONS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Projects onto the positive semidefinite tables in the norm of a weight table. With R the `M_SquareRoot` of
 * W and R⁻ its `Inverse1` (tolerance 1e-6, so that pivots up to 1e-8 count as singular), X is R⁻·P·R⁻, where
 * P is R·A·R with its negative eigenvalues set to 0.
 *
 * Nothing is reported: when W has no root or R no inverse, zeros stand for it, so that X is 0 where A is
 * finite. When the eigenvalues do not converge X has no meaning.
 *
 * @param A symmetric, `n` by `n`
 * @param n order; below 1 nothing is stored
 * @param W symmetric and positive definite, `n` by `n`
 * @param X receives `n` by `n`, sized by the caller; may be A or W
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_SProject(matrix<double>* A, int n, matrix<double>* W, matrix<double>* X);

/**
 * X = A with 1.0 in each diagonal cell.
 *
 * @param A `n` by `n`
 * @param n order; below 1 nothing is stored
 * @param X receives `n` by `n`, sized by the caller; may be A
 */
KORVEL_API void M_UProject(matrix<double>* A, int n, matrix<double>* X);

/** The same into `n` chunks that are the columns. */
KORVEL_API void M_UProjectSPV(matrix<double>* A, int n, matrix<double>** X);

/** The same into a triangle of `n` chunks, of which chunk j holds column j from the diagonal down. */
KORVEL_API void M_UProjectSPV_T(matrix<double>* A, int n, matrix3D<matrix<double>>* X);

#endif
