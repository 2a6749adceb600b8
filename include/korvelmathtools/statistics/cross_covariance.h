/**
 * @file
 * Covariances and correlations between the columns of two tables, and of two vectors, in one pass with
 * running means (D. H. D. West, Communications of the ACM 22, 1979).
 */
#ifndef KORVEL_STATISTICS_CROSS_COVARIANCE_H
#define KORVEL_STATISTICS_CROSS_COVARIANCE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Covariances, or correlations, of each column of one table with each column of another, with pairwise
 * deletion: a row takes part in a pair when its flag is 0 and neither cell equals `MISSING_DBL`. Unlike in
 * `M_CovCorr` the variances behind a correlation are those over the same rows.
 *
 * @param x         the first table, `rows` by `colsX`
 * @param y         the second, `rows` by `colsY`
 * @param out       resized to `colsX` by `colsY` and filled; may be neither of the tables
 * @param iMissing  `rows` flags; null: none is set
 * @param w         `rows` weights; null: all are 1.0. A row of weight 0 counts among the rows kept and does
 *                  nothing else
 * @param bCorr     0: covariances. Otherwise correlations, where the magnitude of the product of the
 * variances is greater than 1e-12; elsewhere the cell is undefined
 * @param bSquare   other than 0: correlations are squared
 * @param bUnbiased true only when it is -1, as for `V_Var`
 * @param bFreq     true only when it is -1, as for `V_Var`. The denominator that the two choose is not looked
 *                  at: one of 0 gives what the division gives. So without a common row a covariance is a NaN,
 *                  or -0.0 when both are true, and a correlation is undefined
 * @param bUndefinedIsZero other than 0: an undefined cell is 0.0; otherwise it is missing
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_CorrMatMat(matrix<double>* x, int rows, int colsX, matrix<double>* y, int colsY,
                            matrix<double>*& out, short int* iMissing, matrix<double>* w, short int bCorr,
                            short int bSquare, short int bUnbiased, short int bFreq,
                            short int bUndefinedIsZero);

/** The same on chunks: `colsX` and `colsY` of `rows` elements, and `colsY` of `colsX` for the result. */
KORVEL_API int M_CorrMatMatSPV(matrix<double>** x, int rows, int colsX, matrix<double>** y, int colsY,
                               matrix<double>** out, short int* iMissing, matrix<double>* w, short int bCorr,
                               short int bSquare, short int bUnbiased, short int bFreq,
                               short int bUndefinedIsZero);

/**
 * Weighted correlation of two vectors, over the elements of which the weight is greater than 0 and both
 * values are greater than `MISSING_DBL`; so neither a NaN nor minus infinity is kept.
 *
 * @param x the first vector, `n` elements
 * @param n number of elements
 * @param y the second vector, `n` elements
 * @param w `n` weights
 * @return the correlation; `MISSING_DBL` unless the product of the two sums of squares is greater than 0
 */
KORVEL_API double V_Correl2W(matrix<double>* x, int n, matrix<double>* y, matrix<double>* w);

#endif
