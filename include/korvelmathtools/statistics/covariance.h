/**
 * @file
 * Covariance and correlation tables of the columns of a table, with weights and with pairwise deletion: each
 * pair of columns is walked on its own, over the rows in which both are present, in one pass with running
 * means (D. H. D. West, Communications of the ACM 22, 1979).
 *
 * A row takes part in a pair when its flag is 0 and neither cell equals `MISSING_DBL`; a NaN is a number, and
 * so is a missing weight. A row of weight 0 counts among the rows kept and does nothing else. The sum of
 * products is divided by the denominator that `bUnbiased` and `bFreq` choose as for `V_Var`, see
 * `vector_variance.h`; it is not looked at, so that one of 0 gives what the division gives: a NaN for a
 * single row. A pair without a common row is undefined.
 *
 * A correlation is the covariance of the common rows over the root of the product of the two variances, each
 * over all the rows of its own column. So it may exceed 1 in magnitude, and is not cut off. The diagonal is
 * exactly 1. Where the product of the variances does not pass its test, on the diagonal too, the correlation
 * is undefined. An undefined cell is missing, or 0.0 with `bUndefinedIsZero`.
 *
 * Common arguments: `x` is the table, `rows` by `cols`, read through the checked access of its form;
 * `iMissing` are `rows` flags, null for none set; `w` are `rows` weights, null for all 1.0; `bUnbiased` and
 * `bFreq` are true only when they are -1, `bUndefinedIsZero` unless it is 0. All return 0, and throw
 * `std::bad_alloc` when memory is short. The result may not share memory with the table.
 */
#ifndef KORVEL_STATISTICS_COVARIANCE_H
#define KORVEL_STATISTICS_COVARIANCE_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Covariances, or correlations, of all pairs of columns. A correlation is defined when the product of the
 * variances is other than 0, a NaN not counting as such.
 *
 * @param out   resized to `cols` by `cols` and filled, both halves
 * @param bCorr correlations unless it is 0
 */
KORVEL_API int M_CovCorr(matrix<double>*& x, int rows, int cols, matrix<double>*& out, short int bCorr,
                         short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                         short int bUndefinedIsZero);

/** `M_CovCorr` into `cols` chunks of `cols` elements. */
KORVEL_API int M_CovCorrSPV(matrix<double>*& x, int rows, int cols, matrix<double>** out, short int bCorr,
                            short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                            short int bUndefinedIsZero);

/** `M_CovCorr` into a triangle, of which chunk j receives column j from the diagonal down. */
KORVEL_API int M_CovCorrSPV_T(matrix<double>*& x, int rows, int cols, matrix3D<matrix<double>>* out,
                              short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                              short int bFreq, short int bUndefinedIsZero);

/** `M_CovCorr` of `cols` chunks; `out` has room for `cols` by `cols`. */
KORVEL_API int M_CovCorr3(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>* out,
                          short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                          short int bFreq, short int bUndefinedIsZero);

/** The same into `cols` chunks of `cols` elements. */
KORVEL_API int M_CovCorr3SPV(matrix3D<matrix<double>>* x, int rows, int cols, matrix3D<matrix<double>>* out,
                             short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                             short int bFreq, short int bUndefinedIsZero);

/** `M_CovCorr` of a labelled table into the columns of another, whose counts stay as they are. */
KORVEL_API int M_CovCorr_ST(cST_MVect<double>& x, int rows, int cols, cST_MVect<double>& out, short int bCorr,
                            short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                            short int bUndefinedIsZero);

/**
 * Covariances, or correlations, with the mean, the standard deviation and the variance of each column; on
 * request the table itself is centred and reduced, each column after all pairs that need it. Unlike in
 * `M_CovCorr` a correlation is defined when the product of the variances is greater than 0.
 *
 * @param x       the table
 * @param out     receives `cols` by `cols`, both halves
 * @param means   receives `cols` means; missing for a column of which no row is kept
 * @param sds     receives `cols` deviations: the root of a variance greater than 0, any other variance as it
 * is
 * @param vars    receives `cols` variances; missing for a column of which no row is kept
 * @param bCorr   correlations when it is -1
 * @param bCenter -1: each cell that is neither missing nor in a flagged row loses the mean of its column
 * @param bReduce -1: it is divided by the deviation, after the mean is subtracted if `bCenter` asks for that.
 *                A column whose variance is not greater than 0 stays as it is
 */
KORVEL_API int M_CovCorrAndMeanStDevVar(matrix<double>* x, int rows, int cols, matrix<double>* out,
                                        matrix<double>* means, matrix<double>* sds, matrix<double>* vars,
                                        short int bCorr, short int* iMissing, matrix<double>* w,
                                        short int bUnbiased, short int bFreq, short int bCenter,
                                        short int bReduce, short int bUndefinedIsZero);

/** The same; `out` is resized to `cols` by `cols`, the vectors to `cols` by 1. */
KORVEL_API int M_CovCorrVAndMeanStDevVar(matrix<double>*& x, int rows, int cols, matrix<double>*& out,
                                         matrix<double>*& means, matrix<double>*& sds, matrix<double>*& vars,
                                         short int bCorr, short int* iMissing, matrix<double>* w,
                                         short int bUnbiased, short int bFreq, short int bCenter,
                                         short int bReduce, short int bUndefinedIsZero);

#endif
