/**
 * @file
 * Which of its ways the incomplete beta ratio takes, by the sizes of its arguments.
 */
#ifndef KORVEL_SPECIAL_BETA_CHOICE_H
#define KORVEL_SPECIAL_BETA_CHOICE_H

namespace korvel
{

/** The ways of section 2 of DiDonato and Morris. What is computed is the ratio of the arguments as they are
 * turned. */
enum class beta_way {
    tinyBoth,            ///< the ratio does not depend on x
    tinyB,               ///< the series for a tiny b
    tinyA,               ///< the complement by the series for a tiny a
    series,              ///< the power series
    complementSeries,    ///< the complement by its power series
    expansion,           ///< the complement by the expansion for a large b
    stepsAndExpansion,   ///< the same, with b made large by steps
    fraction,            ///< the continued fraction
    largeBoth,           ///< the expansion for both large
    wholeAndSeries,      ///< steps that take off the whole part of b, and the power series for the rest
    wholeAndExpansion,   ///< such steps, and the expansion for a large a
    wholeStepsExpansion, ///< the same, with a made large by steps
};

/** The arguments, turned where that helps, so that the ratio of `a`, `b`, `x` and `y` is the complement asked
 * for. */
struct beta_choice {
    beta_way way;
    bool isTurned;
    double a;
    double b;
    double x;
    double y;
    double lambda; ///< (a + b) y - b, when both are above 1
};

/** The way for a and b above 0, and x and y above 0. */
[[nodiscard]] beta_choice chooseBetaWay(double a, double b, double x, double y);

} // namespace korvel

#endif
