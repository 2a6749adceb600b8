/**
 * @file
 * Flat functions: deviations around a centre, winsorizing.
 */
#ifndef KORVEL_FRAMES_ORDERING_DEVIATIONS_H
#define KORVEL_FRAMES_ORDERING_DEVIATIONS_H

#include "frames/types.h"

/**
 * Weighted mean of the absolute deviations from a centre.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param centre   the centre
 * @param iMissing [in] n flags; an element with a non-zero flag is left out
 * @param w        [in] n weights
 * @return the mean over the elements kept that are not missing; missing when their weights sum to 0
 */
KORVEL_FLAT double Cpp_V_MeanAbsDev(const double* x, int n, double centre, const short int* iMissing,
                                    const double* w);

/**
 * Median of the absolute deviations from a centre; weighted unless the weights are constant.
 *
 * @like Cpp_V_MeanAbsDev
 * @return the median over the elements kept that are not missing; missing when there are none
 */
KORVEL_FLAT double Cpp_V_MedianAbsDev(const double* x, int n, double centre, const short int* iMissing,
                                      const double* w);

/**
 * Median of the absolute deviations from a centre, missing elements taking part as the smallest numbers.
 *
 * @param x      [in] n numbers
 * @param n      number of elements
 * @param centre [inout] one number: the centre; when missing, it becomes the median of x
 * @return the median; missing for n below 1
 */
KORVEL_FLAT double Cpp_V_MedianAbsDev2(const double* x, int n, double* centre);

/**
 * Moves the elements outside two quantiles onto them. Missing elements stay.
 *
 * @param x     [inout] n numbers, changed in place
 * @param n     number of elements
 * @param qLow  probability of the lower quantile
 * @param qHigh probability of the upper quantile
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Winsorize2(double* x, int n, double qLow, double qHigh);

#endif
