/**
 * @file
 * Elementary functions of the incomplete beta ratio, by rational approximations that are accurate near the
 * zeros of the functions and have the same bits on every system.
 *
 * The coefficients are those of DiDonato and Morris, Algorithm 708, ACM Transactions on Mathematical Software
 * 18, 1992; those of the error function go back to Cody, Rational Chebyshev approximations for the error
 * function, Mathematics of Computation 23, 1969.
 */
#ifndef KORVEL_SPECIAL_ELEMENTARY_H
#define KORVEL_SPECIAL_ELEMENTARY_H

#include "containers/missing.h"

#include <cmath>

namespace korvel
{

/** The polynomial with these coefficients, that of the highest power first, by Horner's rule. */
template <class... Coefficients>
[[nodiscard]] constexpr double polynomial(double x, double highest, Coefficients... others)
{
    ((highest = highest * x + others), ...);
    return highest;
}

/** The logarithm; that of 0, and of what rounding errors have made negative, is missing. */
[[nodiscard]] inline double logOrMissing(double x)
{
    return x <= 0.0 ? MISSING_DBL : std::log(x);
}

/** log(1 + x), missing for -1 and below. */
[[nodiscard]] inline double log1pOrMissing(double x)
{
    if (x <= -1.0) {
        return MISSING_DBL;
    }
    if (std::fabs(x) > 0.375) {
        return std::log(1.0 + x);
    }
    const double t = x / (x + 2.0);
    const double t2 = t * t;
    return t * 2.0 *
           (polynomial(t2, -0.0178874546012214, 0.405303492862024, -1.29418923021993, 1.0) /
            polynomial(t2, -0.0845104217945565, 0.747811014037616, -1.62752256355323, 1.0));
}

/** exp(x) - 1. */
[[nodiscard]] inline double expMinus1(double x)
{
    if (std::fabs(x) <= 0.15) {
        return x * (polynomial(x, 0.0238082361044469, 9.14041914819518e-10, 1.0) /
                    polynomial(x, 5.95130811860248e-4, -0.0119041179760821, 0.107141568980644,
                               -0.499999999085958, 1.0));
    }
    return std::exp(x) - 1.0;
}

/** log(1 - exp(x)) for a negative x: what the logarithm of a probability says of the complement. */
[[nodiscard]] inline double logOfComplement(double x)
{
    constexpr double logOf2 = 0.6931471805599453;
    return x > -logOf2 ? logOrMissing(-expMinus1(x)) : log1pOrMissing(-std::exp(x));
}

/** log(exp(x) + exp(y)). */
[[nodiscard]] inline double logOfSum(double x, double y)
{
    const double greater = std::fmax(x, y);
    return greater + log1pOrMissing(std::exp(std::fmin(x, y) - greater));
}

/** x - log(1 + x), accurate where it is small. */
[[nodiscard]] double excessOverLog1p(double x);

/** The error function, for 0 <= x <= 0.5. */
[[nodiscard]] double errorFunction(double x);

/** exp(x²) (1 - erf(x)), for x >= 0. */
[[nodiscard]] double scaledErrorComplement(double x);

} // namespace korvel

#endif
