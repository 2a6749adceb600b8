/**
 * @file
 * The beta function and the incomplete beta ratio.
 */
#ifndef KORVEL_SPECIAL_BETA_H
#define KORVEL_SPECIAL_BETA_H

#include "platform/export.h"

/**
 * The logarithm of the beta function: from three logarithms of gamma where both arguments are below 10,
 * otherwise from the Stirling series with its corrections.
 *
 * @param a,b the arguments, in either order. Nothing is tested: where `GammaLn` and `GammaLnCorr` have no
 * value, the result follows the arithmetic
 * @return the logarithm of beta(a, b)
 */
KORVEL_API double betaln(double a, double b);

/**
 * The incomplete beta ratio I_x(a, b) and its complement, or the logarithms of both, by Algorithm 708
 * (DiDonato and Morris, Significant digit computation of the incomplete beta function ratios, ACM
 * Transactions on Mathematical Software 18, 1992).
 *
 * Where a logarithm is asked for, that of 0 is `MISSING_DBL`. When one of `a` and `b` is infinite, the ratio
 * is its limit: all weight lies at 1, at 0, or, when both are, at 1/2.
 *
 * @param a,b   the parameters, at least 0, not both 0
 * @param x,y   the place, from 0 to 1, and 1 less the place. Of the two the smaller one decides, so that
 * places very near to 1 are told apart
 * @param w     receives I_x(a, b); not null
 * @param w1    receives 1 - I_x(a, b); not null
 * @param ierr  receives the status; not null:
 *              0 success;
 *              1 `a` or `b` is negative;
 *              2 both are 0;
 *              3 `x` is outside 0 to 1;
 *              4 `y` is outside 0 to 1;
 *              5 `x` and `y` do not sum to 1, within 6.661338147750939e-16;
 *              6 `x` and `a` are both 0;
 *              7 `y` and `b` are both 0;
 *              9 an argument is a NaN;
 *              11, 12, 13 the expansion for one large parameter underflowed in its argument, in its scale or
 * in its sum; the results are what was found before. For 1 to 9 the results are those of weight 0: 0.0, and
 * `MISSING_DBL` for logarithms
 * @param log_p not 0: the results are logarithms
 */
KORVEL_API void bratio(double a, double b, double x, double y, double* w, double* w1, int* ierr, int log_p);

/**
 * The incomplete beta ratio: see `bratio`, which is given 1 - x for y.
 *
 * @param x   the place, from 0 to 1
 * @param a,b the parameters
 * @return I_x(a, b); 0.0 for arguments that `bratio` refuses
 */
KORVEL_API double IncompleteBetaR(double x, double a, double b);

/**
 * The incomplete beta integral: the ratio of `IncompleteBetaR` times the beta function.
 *
 * @param x   the place, from 0 to 1
 * @param a,b the parameters
 * @return exp(betaln(a, b)) I_x(a, b), which follows the arithmetic where the beta function has no value
 */
KORVEL_API double IncompleteBeta(double x, double a, double b);

#endif
