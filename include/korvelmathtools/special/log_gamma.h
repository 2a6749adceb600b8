/**
 * @file
 * The logarithm of the gamma function, and the pieces of its Stirling series.
 */
#ifndef KORVEL_SPECIAL_LOG_GAMMA_H
#define KORVEL_SPECIAL_LOG_GAMMA_H

#include "platform/export.h"

/**
 * The logarithm of the gamma function, by the form of Lanczos for g = 7 with nine terms (A precision
 * approximation of the gamma function, SIAM Journal on Numerical Analysis 1, 1964), with coefficients of this
 * library's own.
 *
 * @param x any number. Poles are not tested: 0 and the negative integers down to -6 divide by zero, and the
 * result follows the arithmetic, as it does for other negative numbers, for infinities and for a NaN
 * @return the logarithm; exactly 0.0 for 1.0; `MISSING_DBL` for `x` below -6.5
 */
KORVEL_API double GammaLn(double x);

/**
 * The correction of the Stirling series: what is left of the logarithm of gamma(x) after
 * (x - 0.5) log(x) - x + log(2 pi) / 2, by a Chebyshev series of five terms.
 *
 * @param x a number; from 94906265.6242516 on the correction is 1 / (12 x)
 * @return the correction; `MISSING_DBL` for `x` below 10, and from 3.74519403096316e306 on
 */
KORVEL_API double GammaLnCorr(double x);

/**
 * The Chebyshev series of the correction of the Stirling series, by the recurrence of Clenshaw (A note on the
 * summation of Chebyshev series, Mathematics of Computation 9, 1955). The table of coefficients is fixed.
 *
 * @param x where, from -1.1 to 1.1
 * @param n how many terms, from 1 to 1,000. The table has 15; the coefficients behind it are 0
 * @return half of the difference of the last member of the recurrence and the last but two; `MISSING_DBL` for
 * `x` or `n` outside these ranges. A NaN gives a NaN
 */
KORVEL_API double chebyshev_eval(double x, int n);

#endif
