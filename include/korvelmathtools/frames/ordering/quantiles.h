/**
 * @file
 * Flat functions: quantiles.
 *
 * A NaN is a number like any other here, not a missing one. Where it is sorted to is not defined, so no
 * result is either when there is one among the elements that count.
 */
#ifndef KORVEL_FRAMES_ORDERING_QUANTILES_H
#define KORVEL_FRAMES_ORDERING_QUANTILES_H

#include "frames/types.h"

/**
 * Quantile by linear interpolation between order statistics (type 7 of Hyndman and Fan). Missing values are
 * not removed: they take part as the smallest numbers.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param q probability, not tested: a position outside the data reads -1
 * @return the quantile; missing for n below 1
 */
KORVEL_FLAT double VB_V_Quantile(const double* x, int n, double q);

/**
 * Weighted quantile: the first value whose cumulative weight exceeds q times the total, or the mean of it and
 * the one before where a cumulative weight hits that exactly. Constant weights give the plain quantile.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param w [in] n weights
 * @param q probability, not tested: a position outside the data reads -1
 * @return the quantile; missing for n below 1, and when no element that is not missing has a positive weight
 */
KORVEL_FLAT double VB_V_QuantileW(const double* x, int n, const double* w, double q);

/**
 * Weighted quantile of the elements of positive weight that are not missing.
 *
 * @like VB_V_QuantileW
 * @return the quantile; missing when there are none
 */
KORVEL_FLAT double Cpp_V_QuantileW2(const double* x, int n, const double* w, double q);

/**
 * Plain quantile of the elements that are not missing and not flagged.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out
 * @param q        probability, not tested: a position outside the data reads -1
 * @return the quantile; missing when there are none
 */
KORVEL_FLAT double VB_V_QuantileM(const double* x, int n, const short int* iMissing, double q);

/**
 * Weighted quantile of the elements that are not missing and not flagged.
 *
 * @like VB_V_QuantileM
 * @param w        [in] n weights
 */
KORVEL_FLAT double VB_V_QuantileMW(const double* x, int n, const short int* iMissing, const double* w,
                                   double q);

/**
 * Sorts a vector, ascending, and takes its quantiles at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75,
 * 0.8, 0.9 and 0.95, at position (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above it, from 1.
 *
 * @param x   [inout] n numbers, sorted in place
 * @param n   number of elements
 * @param out [out] 13 numbers; all missing for n below 1
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Quantiles13(double* x, int n, double* out);

#endif
