/**
 * @file
 * The gamma and beta functions as the incomplete beta ratio needs them: in pieces that keep all digits where
 * the whole would lose them.
 *
 * The reductions and the coefficients are those of DiDonato and Morris, Algorithm 708, ACM Transactions on
 * Mathematical Software 18, 1992; those of the digamma function are of Cody, Strecok and Thacher, Chebyshev
 * approximations for the psi function, Mathematics of Computation 27, 1973.
 */
#ifndef KORVEL_SPECIAL_GAMMA_PIECES_H
#define KORVEL_SPECIAL_GAMMA_PIECES_H

namespace korvel
{

/** 1/gamma(1 + a) - 1, for -0.5 <= a <= 1.5. */
[[nodiscard]] double reciprocalGammaExcess(double a);

/** log gamma(1 + a), for -0.2 <= a <= 1.25. */
[[nodiscard]] double logGammaOf1Plus(double a);

/** log(gamma(b) / gamma(a + b)), for b >= 8 and a <= b. */
[[nodiscard]] double logGammaQuotient(double a, double b);

/** d(a) + d(b) - d(a + b), where d is the correction of the Stirling series, for a and b >= 8. */
[[nodiscard]] double betaCorrection(double a, double b);

/** exp(-betaCorrection(a, b)). */
[[nodiscard]] double expOfNegatedCorrection(double a, double b);

/** The derivative of log gamma, for x > 0. */
[[nodiscard]] double digamma(double x);

/** The reciprocal of the beta function: `lesser * factor * exp(-logarithm)`. */
struct reciprocal_beta {
    double lesser;    ///< the lesser argument where that is below 1, otherwise 1
    double factor;    ///< of moderate size
    double logarithm; ///< exactly 0 when both arguments are at most 1
};

/** The reciprocal of the beta function in parts, for a and b > 0. */
[[nodiscard]] reciprocal_beta reciprocalBeta(double a, double b);

} // namespace korvel

#endif
