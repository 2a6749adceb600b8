#include "special/beta_terms.h"
#include "special/gamma_pieces.h"
#include "special/scales.h"

#include <cmath>

namespace korvel
{

template <class Scale>
double ratioForTinyB(double a, double b, double x, double epsilon)
{
    constexpr double smallestPower = 3.307553003638408e-308; // exp(-708)
    const double powerOfX = Scale::ofPower(x, a);
    if (!Scale::isLogarithmic && powerOfX < smallestPower) {
        return Scale::zero;
    }
    const double tolerance = epsilon / a;
    double n = a + 1.0;
    double power = x;
    double sum = power / n;
    double term = 0.0;
    do {
        n += 1.0;
        power *= x;
        term = power / n;
        sum += term;
    } while (term > tolerance);
    // 1/B(a, b) is b.
    return Scale::times1Plus(Scale::times(powerOfX, b / a), a * sum);
}

double complementForTinyA(double a, double b, double x, double epsilon)
{
    constexpr double euler = 0.5772156649015329;
    const double bx = b * x;
    double power = x - bx;
    const double logarithms = b * epsilon <= 0.02 ? std::log(x) + digamma(b) : std::log(bx);
    const double first = logarithms + euler + power;
    const double tolerance = 5.0 * epsilon * std::fabs(first);
    double n = 1.0;
    double sum = 0.0;
    double term = 0.0;
    do {
        n += 1.0;
        power *= x - bx / n;
        term = power / n;
        sum += term;
    } while (std::fabs(term) > tolerance);
    return -a * (first + sum);
}

template <class Scale>
double powerSeries(double a, double b, double x, double epsilon)
{
    constexpr double mostTerms = 1e7;
    const reciprocal_beta beta = reciprocalBeta(a, b);
    // Without a logarithm the power keeps the digits that exp(a log x) would lose.
    const double powerOfX =
        beta.logarithm == 0.0 ? Scale::ofPower(x, a) : Scale::ofExp(a * std::log(x) - beta.logarithm);
    const double first = Scale::times(powerOfX, beta.lesser / a * beta.factor);
    if (first == Scale::zero || (!Scale::isLogarithmic && a <= 0.1 * epsilon)) {
        return first;
    }
    const double tolerance = epsilon / a;
    double n = 0.0;
    double product = 1.0;
    double sum = 0.0;
    double term = 0.0;
    do {
        n += 1.0;
        const double inverse = 1.0 / (n * (a + n));
        product *= (n - b) * x * (inverse * (a + n));
        term = product * (inverse * n);
        sum += term;
    } while (n < mostTerms && std::fabs(term) > tolerance);
    return Scale::times1Plus(first, a * sum);
}

template <class Scale>
double differenceOfSteps(double a, double b, double x, double y, int steps, double epsilon)
{
    constexpr double tooSmall = 1e-280;
    constexpr double tooLarge = 1e30;
    double first = Scale::times(betaFactor<Scale>(a, b, x, y), 1.0 / a);
    const double greatestTerm = (b - 1.0) * x / y - a;
    if (!Scale::isLogarithmic && first < tooSmall) {
        // Later terms may be far greater.
        return greatestTerm < 1.0 ? first
                                  : std::exp(differenceOfSteps<log_scale>(a, b, x, y, steps, epsilon));
    }
    double term = 1.0;
    double sum = 1.0;
    for (double i = 1.0; i < steps; ++i) {
        term *= (a + b + (i - 1.0)) / (a + i) * x;
        sum += term;
        if (i > greatestTerm && term <= epsilon * sum) {
            break;
        }
        if (sum > tooLarge) {
            first = Scale::times(first, sum);
            term /= sum;
            sum = 1.0;
        }
    }
    return Scale::times(first, sum);
}

template double ratioForTinyB<plain_scale>(double, double, double, double);
template double ratioForTinyB<log_scale>(double, double, double, double);
template double powerSeries<plain_scale>(double, double, double, double);
template double powerSeries<log_scale>(double, double, double, double);
template double differenceOfSteps<plain_scale>(double, double, double, double, int, double);
template double differenceOfSteps<log_scale>(double, double, double, double, int, double);

} // namespace korvel
