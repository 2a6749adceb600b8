/**
 * @file
 * Quantiles of a vector: plain, weighted and masked.
 *
 * `x` is the first `n` elements of a vector and is not modified unless a routine says so; `q` is a
 * probability, which is not tested: a position outside the data reads -1.0. Results that cannot be formed are
 * `MISSING_DBL`. The place of a NaN is not defined.
 */
#ifndef KORVEL_ORDERING_QUANTILES_H
#define KORVEL_ORDERING_QUANTILES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Quantile by linear interpolation between order statistics at position (n - 1) q, from 0: type 7 of R. J.
 * Hyndman and Y. Fan (The American Statistician 50, 1996), with three shortcuts: `q` 0 and 1 give the
 * extremes; a position whose fraction is within 1e-12 of 0 or of 1 gives the element at its integer part; and
 * two equal neighbours give their value exactly.
 *
 * @return the quantile; missing for `n` below 1. Missing values are not removed: they take part as the
 * smallest numbers
 */
KORVEL_API double V_Quantile(matrix<double>* x, int n, double q);

/**
 * Weighted quantile: the first value whose cumulative weight exceeds `q` times the total weight, or the mean
 * of it and the one before where a cumulative weight hits that exactly. There is no interpolation. Constant
 * weights, missing ones passed over, give `V_Quantile`.
 *
 * @param w `n` weights
 * @return the quantile; missing for `n` below 1, and when no element that is not missing has a positive
 * weight. Otherwise no element is dropped: missing values and zero weights take part
 */
KORVEL_API double V_QuantileW(matrix<double>* x, int n, matrix<double>* w, double q);

/** Weighted quantile of the elements of positive weight that are not missing; missing when there are none. */
KORVEL_API double V_QuantileW2(matrix<double>* x, int n, matrix<double>* w, double q);

/**
 * `V_Quantile` of the elements that are not missing and whose flag is 0; missing when there are none.
 * @param iMissing `n` flags; not null
 */
KORVEL_API double V_QuantileM(matrix<double>* x, int n, short int* iMissing, double q);

/** `V_QuantileW` of the elements that are not missing and whose flag is 0; missing when there are none. */
KORVEL_API double V_QuantileMW(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, double q);

/** `V_QuantileMW` of column `col`, from 1, of a table of `rows` rows. */
KORVEL_API double M_QuantileMW(matrix<double>* x, int rows, int col, short int* iMissing, matrix<double>* w,
                               double q);

/**
 * Sorts a vector, ascending, and takes 13 quantiles of it, at 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7,
 * 0.75, 0.8, 0.9 and 0.95. The position, from 1, is (n - 1) p + 0.5 up to the median and (n - 1) p + 1 above
 * it, with linear interpolation between its neighbours.
 *
 * @param x   `n` numbers, sorted in place
 * @param out receives 13 numbers; all missing for `n` below 1
 */
KORVEL_API void V_Quantiles13(matrix<double>* x, int n, matrix<double>* out);

#endif
