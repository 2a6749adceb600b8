/**
 * @file
 * Deviations of a vector around a centre, and winsorizing.
 */
#ifndef KORVEL_ORDERING_DEVIATIONS_H
#define KORVEL_ORDERING_DEVIATIONS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted mean of the absolute deviations from a centre.
 *
 * @param x        `n` numbers
 * @param n        number of elements
 * @param centre   the centre
 * @param iMissing `n` flags; an element with a non-zero flag is left out
 * @param w        `n` weights
 * @return sum of `w * |x - centre|` by sum of `w`, over the elements kept that are not missing; missing for
 * `n` below 1 and for a sum of weights of exactly 0
 */
KORVEL_API double V_MeanAbsDev(matrix<double>* x, int n, double centre, short int* iMissing,
                               matrix<double>* w);

/**
 * Median of the absolute deviations from a centre, over the elements kept that are not missing: `V_QuantileM`
 * at 0.5 of the deviations when the weights are constant, missing ones passed over, and `V_QuantileMW`
 * otherwise.
 */
KORVEL_API double V_MedianAbsDev(matrix<double>* x, int n, double centre, short int* iMissing,
                                 matrix<double>* w);

/**
 * Median of the absolute deviations from a centre, by `V_Quantile`. The deviation of a missing element is
 * missing, and takes part as the smallest number.
 *
 * @param centre the centre; when it is missing, it becomes the median of `x` and is so returned
 */
KORVEL_API double V_MedianAbsDev2(matrix<double>* x, int n, double& centre);

/**
 * Moves the elements outside two quantiles (`V_Quantile`) onto them, in place. An element that is not greater
 * than the missing value stays.
 */
KORVEL_API void V_Winsorize2(matrix<double>* x, int n, double qLow, double qHigh);

#endif
