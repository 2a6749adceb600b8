/**
 * @file
 * Errors of a forecast. A row counts when neither of its two values is missing, that is, equals
 * `MISSING_DBL`; a NaN counts as present.
 *
 * Vectors are read through the checked access of `matrix`: a vector shorter than `n` reads its `oobValue`,
 * and so does a position below 1. Sums are taken in ascending order.
 */
#ifndef KORVEL_STATISTICS_ERROR_MEASURES_H
#define KORVEL_STATISTICS_ERROR_MEASURES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Mean absolute percentage error: 100 times the sum of `w * |1 - predicted / actual|`, divided by the sum of
 * `w`, over the rows whose `actual` is not 0.
 *
 * @param actual    the values observed
 * @param predicted the values forecast
 * @param n         last row, from 1
 * @param w         a weight for each row; null: all 1.0
 * @param first     first row, from 1; 0 stands for 1
 * @return the error in percent. When the weights of the rows that count add up to exactly 0, 100 times the
 * sum as it stands, which is 0.0 when no row counts
 */
KORVEL_API double MAPE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w,
                       int first);

/**
 * Mean percentage error: 100 times the sum of `(actual - predicted) * w / actual`, divided by the sum of `w`,
 * over the rows whose `actual` is not 0. Arguments as for `MAPE`, save that a `first` of 0 is the position
 * before row 1.
 *
 * @return the error in percent; `MISSING_DBL` when `first` is above `n` or the weights add up to exactly 0
 */
KORVEL_API double MPE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w, int first);

/**
 * Mean absolute error: the sum of `w * |actual - predicted|`, divided by the sum of `w`. Arguments as for
 * `MPE`.
 *
 * @return the error; `MISSING_DBL` when `first` is above `n` or the weights add up to exactly 0
 */
KORVEL_API double MAE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w, int first);

/**
 * Root mean squared error: the root of the sum of `(x - y) * (x - y)` over `df`, for one column of two
 * tables. A row counts when its `x` is above `MISSING_DBL`; `y` is not tested.
 *
 * @param x   the first table
 * @param n   rows to read
 * @param col the column, from 1
 * @param y   the second table
 * @param df  what the sum is divided by. 0 gives infinity, or a NaN when the sum is 0
 * @return the error; 0.0 when `col` is below 1
 */
KORVEL_API double RMSE(matrix<double>* x, int n, int col, matrix<double>* y, double df);

/**
 * Weighted sum of squared deviations from the unweighted mean, over the elements that are not missing.
 *
 * @param y    the vector, `n` elements
 * @param n    number of elements
 * @param w    `n` weights
 * @param mean receives the mean of the elements, by `V_Mean2`, in every case
 * @return the sum of `w * (y - mean) * (y - mean)`; `MISSING_DBL` when `n` is below 1 or the weights of the
 * elements that are not missing add up to exactly 0
 */
KORVEL_API double GetSSE(matrix<double>* y, int n, matrix<double>* w, double& mean);

#endif
