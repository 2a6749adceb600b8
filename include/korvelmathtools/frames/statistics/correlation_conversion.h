/**
 * @file
 * Flat functions: from covariances to correlations and back.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CORRELATION_CONVERSION_H
#define KORVEL_FRAMES_STATISTICS_CORRELATION_CONVERSION_H

#include "frames/types.h"

/**
 * Correlations from covariances: each cell over the root of the product of the two variances on the diagonal,
 * where that product is greater than 0. The diagonal is 1.0 where the variance is greater than 1e-12. All
 * other cells are undefined.
 *
 * @param cov  [in] n by n covariances, read cell by cell: they need not be symmetric
 * @param n    order
 * @param out  [out] n by n correlations
 * @param bUndefinedIsZero not 0: an undefined cell is 0.0; otherwise it is missing
 * @return 0
 */
KORVEL_FLAT int VB_M_CorrMatFromCovMat(const double* cov, int n, double* out, short int bUndefinedIsZero);

/**
 * The same in place on a symmetric table, of which each separate column starts at the diagonal; an undefined
 * cell is missing.
 *
 * @param table [inout] host array of n columns of numbers, column j holding n - j + 1 of them
 * @param n     order
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CorrMatFromCovMatSPV2_T(Hostarray** table, int n);

/**
 * Covariances from correlations: each cell times the root of the product of two variances, of which nothing
 * is tested.
 *
 * @param corr [in] n by n correlations
 * @param n    order
 * @param vars [in] n variances
 * @param out  [out] n by n covariances
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CovMatFromCorrMat(const double* corr, int n, const double* vars, double* out);

#endif
