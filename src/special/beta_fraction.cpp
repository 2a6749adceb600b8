#include "special/beta_terms.h"
#include "special/scales.h"

#include <cmath>

namespace korvel
{

namespace
{

/** Convergents of a continued fraction, of which the last has the denominator 1. */
struct convergents {
    double numeratorBefore;
    double denominatorBefore;
    double last;

    /** Adds a quotient: `numerator` / (`denominator` + what comes after). */
    void add(double numerator, double denominator)
    {
        const double newNumerator = numerator * numeratorBefore + denominator * last;
        const double newDenominator = numerator * denominatorBefore + denominator;
        numeratorBefore = last / newDenominator;
        denominatorBefore = 1.0 / newDenominator;
        last = newNumerator / newDenominator;
    }
};

} // namespace

template <class Scale>
double continuedFraction(double a, double b, double x, double y, double lambda, double epsilon)
{
    constexpr int mostTerms = 10'000;
    const double factor = betaFactor<Scale>(a, b, x, y);
    if (factor == Scale::zero) {
        return factor;
    }
    // All parts are taken per a, so that none overflows.
    const double first = (lambda + 1.0) / (1.0 + 1.0 / a);
    convergents fraction{0.0, 1.0 / first, 1.0 / first};
    double perWidth = 1.0 / (a + 1.0);
    for (int n = 1; n <= mostTerms; ++n) {
        const double before = fraction.last;
        const double v = n * (b - n) * x;
        const double numerator = (a + (n - 1)) * perWidth * ((a + b + (n - 1)) * perWidth) * (v * x);
        const double vPerWidth = v * perWidth;
        perWidth = 1.0 / (a + 1.0 + 2.0 * n);
        const double denominator = n + vPerWidth + (a + n) * perWidth * (lambda + 1.0 + n * (1.0 + y));
        fraction.add(numerator, denominator);
        if (!std::isfinite(fraction.last)) {
            // Only parameters beyond 1e100 overflow, of which these terms are no share.
            return Scale::times(factor, before);
        }
        if (std::fabs(fraction.last - before) <= epsilon * fraction.last) {
            break;
        }
    }
    return Scale::times(factor, fraction.last);
}

template double continuedFraction<plain_scale>(double, double, double, double, double, double);
template double continuedFraction<log_scale>(double, double, double, double, double, double);

} // namespace korvel
