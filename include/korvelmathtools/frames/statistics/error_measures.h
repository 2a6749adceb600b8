/**
 * @file
 * Flat functions: errors of a forecast. A row counts when neither of its two values is missing.
 */
#ifndef KORVEL_FRAMES_STATISTICS_ERROR_MEASURES_H
#define KORVEL_FRAMES_STATISTICS_ERROR_MEASURES_H

#include "frames/types.h"

/**
 * Mean absolute percentage error, weighted, over the rows whose observed value is not 0.
 *
 * @param actual    [in] n values observed
 * @param predicted [in] n values forecast
 * @param n         number of rows
 * @param w         [in] n weights; null: all 1.0
 * @param first     first row, from 1; 0 stands for 1
 * @return the error in percent; 0.0 when no row counts
 */
KORVEL_FLAT double VB_MAPE(const double* actual, const double* predicted, int n, const double* w, int first);

/**
 * Mean percentage error, weighted, over the rows whose observed value is not 0.
 *
 * @param actual    [in] n values observed
 * @param predicted [in] n values forecast
 * @param n         number of rows
 * @param w         [in] n weights; null: all 1.0
 * @param first     first row, from 1
 * @return the error in percent; the missing number when first is above n or the weights add up to 0
 */
KORVEL_FLAT double VB_MPE(const double* actual, const double* predicted, int n, const double* w, int first);

/**
 * Mean absolute error, weighted.
 *
 * @param actual    [in] n values observed
 * @param predicted [in] n values forecast
 * @param n         number of rows
 * @param w         [in] n weights; null: all 1.0
 * @param first     first row, from 1
 * @return the error; the missing number when first is above n or the weights add up to 0
 */
KORVEL_FLAT double VB_MAE(const double* actual, const double* predicted, int n, const double* w, int first);

/**
 * Root mean squared error of one column of two tables, over the rows whose first value is above the missing
 * number.
 *
 * @param x   [in] n by col numbers or more
 * @param n   number of rows
 * @param col the column, from 1
 * @param y   [in] n by col numbers or more, not tested for missing
 * @param df  what the sum of squares is divided by; 0 gives infinity, or a NaN when the sum is 0
 * @return the error; 0.0 when col is below 1
 */
KORVEL_FLAT double VB_RMSE(const double* x, int n, int col, const double* y, double df);

#endif
