/**
 * @file
 * The scale on which a probability is computed: as it is, or as its logarithm. Each step of the incomplete
 * beta ratio is a template over the scale, and says in these terms how it puts a result together.
 */
#ifndef KORVEL_SPECIAL_SCALES_H
#define KORVEL_SPECIAL_SCALES_H

#include "platform/power.h"
#include "special/elementary.h"

#include <cfloat>
#include <cmath>

namespace korvel
{

/** Probabilities as they are. */
struct plain_scale {
    static constexpr bool isLogarithmic = false;
    static constexpr double zero = 0.0;
    static constexpr double one = 1.0;

    /** The value of an ordinary number on this scale, of 1 less it, of exp(x) and of a power. */
    static double of(double x) { return x; }
    static double of1Minus(double x) { return 1.0 - x; }
    static double ofExp(double x) { return std::exp(x); }
    static double ofPower(double x, double a) { return platform::power(x, a); }

    /** exp(x), which is given as `value` too, times a positive number; it does not underflow before the
     * product does. */
    static double product(double x, double value, double factor)
    {
        return value < DBL_MIN ? std::exp(x + std::log(factor)) : value * factor;
    }

    /** One value over another, as an ordinary number; 0 when both are 0. */
    static double ratio(double value, double other) { return value == 0.0 ? 0.0 : value / other; }

    /** The value on this scale times an ordinary number, and times 1 + x. */
    static double times(double value, double x) { return value * x; }
    static double times1Plus(double value, double x) { return value * (x + 1.0); }

    /** The sum of two values, and 1 less a value. */
    static double sum(double value, double other) { return value + other; }
    static double complement(double value) { return 1.0 - value; }
};

/** Probabilities as logarithms; that of 0 is missing. */
struct log_scale {
    static constexpr bool isLogarithmic = true;
    static constexpr double zero = MISSING_DBL;
    static constexpr double one = 0.0;

    static double of(double x) { return logOrMissing(x); }
    static double of1Minus(double x) { return log1pOrMissing(-x); }
    static double ofExp(double x) { return std::fmax(x, MISSING_DBL); }
    static double ofPower(double x, double a) { return a * logOrMissing(x); }
    static double product(double x, double /*value*/, double factor) { return x + logOrMissing(factor); }
    static double ratio(double value, double other) { return std::exp(value - other); }
    static double times(double value, double x) { return value + logOrMissing(x); }
    static double times1Plus(double value, double x) { return value + log1pOrMissing(x); }
    static double sum(double value, double other) { return logOfSum(value, other); }
    static double complement(double value) { return logOfComplement(value); }
};

} // namespace korvel

#endif
