#include "special/beta_terms.h"
#include "special/scales.h"

#include <cmath>

namespace korvel
{

namespace
{

/** Two convergents of a continued fraction, the last and the one before, up to a common factor. */
struct convergents {
    double numeratorBefore;
    double denominatorBefore;
    double numerator;
    double denominator;

    /** Adds a quotient: `above` / (`below` + what comes after). */
    void add(double above, double below)
    {
        const double newNumerator = above * numeratorBefore + below * numerator;
        const double newDenominator = above * denominatorBefore + below * denominator;
        numeratorBefore = numerator;
        denominatorBefore = denominator;
        numerator = newNumerator;
        denominator = newDenominator;
    }

    void shrink()
    {
        constexpr double large = 1e100;
        if (denominator > large) {
            const double factor = 1.0 / denominator;
            numeratorBefore *= factor;
            denominatorBefore *= factor;
            numerator *= factor;
            denominator = 1.0;
        }
    }

    /** Whether the two are the same, relative to the one before, without a division. */
    [[nodiscard]] bool agree(double epsilon) const
    {
        const double crossed = numeratorBefore * denominator;
        const double last = numerator * denominatorBefore;
        return std::fabs(last - crossed) <= epsilon * last;
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
    convergents fraction{0.0, 1.0, 1.0, first};
    double perWidth = 1.0 / (a + 1.0);
    for (int n = 1; n <= mostTerms && !fraction.agree(epsilon); ++n) {
        const double v = n * (b - n) * x;
        const double above = (a + (n - 1)) * perWidth * ((a + b + (n - 1)) * perWidth) * (v * x);
        const double vPerWidth = v * perWidth;
        perWidth = 1.0 / (a + 1.0 + 2.0 * n);
        const convergents before = fraction;
        fraction.add(above, n + vPerWidth + (a + n) * perWidth * (lambda + 1.0 + n * (1.0 + y)));
        if (!std::isfinite(fraction.denominator)) {
            // Only parameters beyond 1e100 overflow, of which these terms are no share.
            fraction = before;
            break;
        }
        fraction.shrink();
    }
    return Scale::times(factor, fraction.numerator / fraction.denominator);
}

template double continuedFraction<plain_scale>(double, double, double, double, double, double);
template double continuedFraction<log_scale>(double, double, double, double, double, double);

} // namespace korvel
