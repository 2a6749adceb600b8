#include "domain/triangular_distribution.h"

#include "containers/missing.h"

#include <cmath>

namespace
{

/** The lower bound that the upper point leaves for an upper bound. */
double lowerFor(double b, double mode, double q2, double p2)
{
    return (((1 - p2) * mode - 2 * q2) * b + b * b * p2 + q2 * q2) / ((mode - b) * (1 - p2));
}

/** The upper bound that a point below the mode leaves for a lower bound. */
double upperFor(double a, double mode, double q, double p)
{
    return ((mode * p - 2 * q) * a + a * a * (1 - p) + q * q) / ((mode - a) * p);
}

/** How far a point at or below the mode is from being met by two bounds. */
double missedBy(double a, double b, double mode, double q, double p)
{
    return (mode - a) * (b * p) - ((mode * p - 2 * q) * a + a * a * (1 - p) + q * q);
}

/** The root of a ratio, missing below 0. */
double rootOf(double ratio)
{
    return ratio < 0.0 ? MISSING_DBL : std::sqrt(ratio);
}

/** The upper bound when the mode is between the quantiles. */
double upperBound(double q1, double mode, double q2, double p1, double p2)
{
    constexpr int mostSteps = 501;
    constexpr double tolerance = 1e-12;
    int steps = 0;
    double b = 0.0;
    double start = 5.0;
    do {
        b = start * q2;
        double change = 0.0;
        do {
            const double next =
                b - TriangularFunc(b, q1, mode, q2, p1, p2) / TriangularFuncDeriv(b, q1, mode, q2, p1, p2);
            change = std::fabs(next - b);
            b = next;
            ++steps;
        } while (!(change < tolerance) && steps < mostSteps);
        start += 1.0;
    } while (!(b > mode) && steps < mostSteps);
    return b;
}

} // namespace

double TriangularFunc(double x, double q1, double mode, double q2, double p1, double p2)
{
    return missedBy(lowerFor(x, mode, q2, p2), x, mode, q1, p1);
}

double TriangularFuncDeriv(double x, double q1, double mode, double q2, double p1, double p2)
{
    const double a = lowerFor(x, mode, q2, p2);
    // The quotient rule for a, whose denominator falls by 1 - p2.
    const double slope = ((1 - p2) * mode - 2 * q2 + 2 * x * p2 + a * (1 - p2)) / ((mode - x) * (1 - p2));
    return (mode - a) * p1 - slope * (x * p1) - ((mode * p1 - 2 * q1) * slope + 2 * a * slope * (1 - p1));
}

double TriangularFunc2(double x, double q1, double mode, double q2, double p1, double p2)
{
    return missedBy(upperFor(x, mode, q1, p1), x, mode, q2, p2);
}

void TriangularQFindAB(double q1, double mode, double q2, double p1, double p2, double* a, double* b)
{
    if (q1 <= mode && mode <= q2) {
        *b = upperBound(q1, mode, q2, p1, p2);
        *a = lowerFor(*b, mode, q2, p2);
    } else if (mode > q2) {
        const double s = rootOf(p1 / p2);
        *a = (s * q2 - q1) / (s - 1);
        *b = upperFor(*a, mode, q2, p2);
    } else {
        const double s = rootOf((1 - p2) / (1 - p1));
        *b = (s * q1 - q2) / (s - 1);
        const double g = *b - q1;
        const double h = (q1 - mode) * (1 - p1);
        *a = ((h - g * p1) * *b + g * q1) / (g * (1 - p1) + h);
    }
}
