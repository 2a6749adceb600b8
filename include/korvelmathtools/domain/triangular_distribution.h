/**
 * @file
 * The triangular distribution with a given mode whose distribution function passes through two points.
 *
 * With a bound on each side of the mode, the two conditions leave one equation. For a trial upper bound b the
 * point (q2, p2) gives the lower bound
 *
 *     a(b) = (((1 - p2) mode - 2 q2) b + b^2 p2 + q2^2) / ((mode - b) (1 - p2))
 *
 * and the point (q1, p1) is met where
 *
 *     f(b) = (mode - a(b)) b p1 - ((mode p1 - 2 q1) a(b) + a(b)^2 (1 - p1) + q1^2)
 *
 * is 0.
 */
#ifndef KORVEL_DOMAIN_TRIANGULAR_DISTRIBUTION_H
#define KORVEL_DOMAIN_TRIANGULAR_DISTRIBUTION_H

#include "platform/export.h"

/**
 * The bounds of the distribution. A mode between the quantiles, or at one of them, takes Newton's iteration
 * of `f(b)` from 5 times `q2`, until a step is below 1e-12; when it ends at or below the mode, it starts
 * again from 6 times `q2`, and so on. After 501 steps in all the last value stands: nothing tells of that.
 * With the mode on one side the bounds have a closed form. Divisions by 0 follow floating point.
 *
 * @param q1   the lower quantile
 * @param mode the mode
 * @param q2   the upper quantile
 * @param p1   probability up to `q1`
 * @param p2   probability up to `q2`
 * @param a    receives the lower bound
 * @param b    receives the upper bound
 */
KORVEL_API void TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, double* a,
                                  double* b);

/** The function `f` at `x`, as above. */
KORVEL_API double TriangularFunc(double x, double q1, double mode, double q2, double p1, double p2);

/** Its derivative. */
KORVEL_API double TriangularFuncDeriv(double x, double q1, double mode, double q2, double p1, double p2);

/**
 * The same with the bounds exchanged: the upper bound for the trial lower bound `x` is
 * `b(x) = ((mode p1 - 2 q1) x + x^2 (1 - p1) + q1^2) / ((mode - x) p1)`, and the result
 * `(mode - b(x)) x p2 - ((mode p2 - 2 q2) b(x) + b(x)^2 (1 - p2) + q2^2)`.
 */
KORVEL_API double TriangularFunc2(double x, double q1, double mode, double q2, double p1, double p2);

#endif
