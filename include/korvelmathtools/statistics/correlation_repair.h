/**
 * @file
 * Correlation and covariance tables from symmetric tables that are none: the nearest correlation matrix, by
 * alternating projections with Dykstra's correction (Higham, Computing the nearest correlation matrix: a
 * problem from finance, IMA Journal of Numerical Analysis 22, 2002).
 *
 * With Y the table and dS = 0 a step is R = Y - dS; X = R with its negative eigenvalues set to 0; dS = X - R;
 * Y = X with a diagonal of ones. The steps end when the row sum norm of Y - X is no more than 1e-6 of that of
 * Y. So a cell is right to about 1e-6, and an eigenvalue may be below 0 by as much. There is no limit to the
 * number of steps; NaN and infinite cells end them at once, and what is stored then has no meaning.
 *
 * A table that is a correlation matrix already, symmetric with ones on the diagonal and without an eigenvalue
 * below 0 by more than rounding, is left as it is, to the last bit.
 */
#ifndef KORVEL_STATISTICS_CORRELATION_REPAIR_H
#define KORVEL_STATISTICS_CORRELATION_REPAIR_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Replaces a table by the nearest correlation matrix.
 *
 * @param x symmetric, `n` by `n`; of each step's table only the lower triangle is used
 * @param n order; below 1 there is nothing to do
 * @return 0; or -1 when a cell is missing, and then nothing is changed
 * @throws std::bad_alloc when memory is short; nothing is then changed
 */
KORVEL_API int M_CorrMatFromSymMat(matrix<double>* x, int n);

/** The same for `n` chunks that are the columns. */
KORVEL_API int M_CorrMatFromSymMatSPV(matrix<double>** x, int n);

/** The same for a symmetric table of which chunk j holds column j from the diagonal down. */
KORVEL_API int M_CorrMatFromSymMatSPV_T(matrix3D<matrix<double>>* x, int n);

/**
 * Replaces a table by a covariance table: its correlations, those of a variance that is not above 0 being
 * 0.0, become the nearest correlation matrix, and are multiplied with the roots of the variances again. So
 * the variances stay, where their squares neither underflow nor overflow. A negative one becomes positive,
 * and its covariances with positive ones are NaN.
 *
 * @param x symmetric, `n` by `n`
 * @param n order; below 1 there is nothing to do
 * @return 0; or -1 when a cell is missing, and then nothing is changed
 * @throws std::bad_alloc when memory is short; nothing is then changed
 */
KORVEL_API int M_CovMatFromSymMat(matrix<double>* x, int n);

#endif
