/**
 * @file
 * From covariances to correlations and back.
 */
#ifndef KORVEL_STATISTICS_CORRELATION_CONVERSION_H
#define KORVEL_STATISTICS_CORRELATION_CONVERSION_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Correlations from covariances: each cell over the root of the product of the two variances on the diagonal,
 * where that product is greater than 0. The diagonal is 1.0 where the variance is greater than 1e-12. All
 * other cells are undefined.
 *
 * @param cov   the covariances, `n` by `n`, read cell by cell: it need not be symmetric
 * @param n     order
 * @param out   receives `n` by `n`; may not be `cov`
 * @param bUndefinedIsZero other than 0: an undefined cell is 0.0; otherwise it is missing
 */
KORVEL_API void M_CorrMatFromCovMat(matrix<double>* cov, int n, matrix<double>* out,
                                    short int bUndefinedIsZero);

/**
 * The same in place on a symmetric table of which chunk j holds column j from the diagonal down; an undefined
 * cell is missing.
 */
KORVEL_API void M_CorrMatFromCovMatSPV2_T(matrix3D<matrix<double>>* table, int n);

/**
 * Covariances from correlations: each cell times the root of the product of two variances, of which nothing
 * is tested.
 *
 * @param corr the correlations, `n` by `n`
 * @param n    order
 * @param vars `n` variances
 * @param out  receives `n` by `n`; may be `corr`
 */
KORVEL_API void M_CovMatFromCorrMat(matrix<double>* corr, int n, matrix<double>* vars, matrix<double>* out);

#endif
