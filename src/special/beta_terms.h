/**
 * @file
 * The ways in which the incomplete beta ratio is computed, each for its own part of the arguments, after
 * DiDonato and Morris, Algorithm 708, ACM Transactions on Mathematical Software 18, 1992. `Scale` is
 * `plain_scale` or `log_scale`, and says what is returned. In all of them y is 1 - x, and `epsilon` the
 * tolerance.
 */
#ifndef KORVEL_SPECIAL_BETA_TERMS_H
#define KORVEL_SPECIAL_BETA_TERMS_H

namespace korvel
{

/** The tolerance of all ways but the expansions and the fraction, for which it is a multiple of this. */
inline constexpr double betaEpsilon = 1e-15;

/** How many steps make a parameter large enough for an expansion. */
inline constexpr int stepsToLarge = 20;

/** (a + b) y - b, without the digits that are lost where it is a small difference of large numbers. */
[[nodiscard]] double distanceFromMean(double a, double b, double x, double y);

/** x^a y^b / B(a, b), for x and y above 0. */
template <class Scale>
[[nodiscard]] double betaFactor(double a, double b, double x, double y);

/** I_x(a, b) for a `b` below min(epsilon, epsilon * a), and x <= 1/2. */
template <class Scale>
[[nodiscard]] double ratioForTinyB(double a, double b, double x, double epsilon);

/** 1 - I_x(a, b) for an `a` of at most min(epsilon, epsilon * b), b x <= 1 and x <= 1/2. */
[[nodiscard]] double complementForTinyA(double a, double b, double x, double epsilon);

/** I_x(a, b) by the power series in x, for b <= 1 or b x <= 0.7. */
template <class Scale>
[[nodiscard]] double powerSeries(double a, double b, double x, double epsilon);

/** I_x(a, b) - I_x(a + steps, b), for one step or more. */
template <class Scale>
[[nodiscard]] double differenceOfSteps(double a, double b, double x, double y, int steps, double epsilon);

/** I_x(a, b) by a continued fraction, for a and b above 1; lambda is (a + b) y - b. */
template <class Scale>
[[nodiscard]] double continuedFraction(double a, double b, double x, double y, double lambda, double epsilon);

/** I_x(a, b) by an asymptotic expansion, for a and b of at least 15; lambda is (a + b) y - b, not negative.
 */
template <class Scale>
[[nodiscard]] double expansionForLargeBoth(double a, double b, double lambda, double epsilon);

/** What a sum came to, on its scale, and how: 0, or the code of the step that could not be computed. */
struct expansion_result {
    double value;
    int status;
};

/**
 * `start` + I_x(a, b) by an asymptotic expansion, for `a` of at least 15 and `b` of at most 1. When it cannot
 * be computed, the value is `start`, and the status 1, 2 or 3: its argument, its scale or its sum has
 * underflowed.
 */
template <class Scale>
[[nodiscard]] expansion_result addExpansionForLargeA(double start, double a, double b, double x, double y,
                                                     double epsilon);

} // namespace korvel

#endif
