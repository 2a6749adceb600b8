#include "special/beta_terms.h"
#include "special/gamma_pieces.h"
#include "special/scales.h"

#include <algorithm>
#include <cmath>

namespace korvel
{

namespace
{

constexpr double rootOfOneOver2Pi = 0.3989422804014327;

/** For a and b of at least 8, where a log x + b log y is a small difference from its greatest value. */
template <class Scale>
double factorForLarge(double a, double b, double x, double y)
{
    constexpr double farBelow = 0.6; // where 1 + e has lost digits
    double atGreatestX;
    double atGreatestY;
    if (a > b) {
        const double h = b / a;
        atGreatestX = 1.0 / (h + 1.0);
        atGreatestY = h / (h + 1.0);
    } else {
        const double h = a / b;
        atGreatestX = h / (h + 1.0);
        atGreatestY = 1.0 / (h + 1.0);
    }
    const double lambda = distanceFromMean(a, b, x, y);
    const auto loss = [=](double e, double place, double atGreatest) {
        return e >= -farBelow ? excessOverLog1p(e) : e - std::log(place / atGreatest);
    };
    const double total = a * loss(-lambda / a, x, atGreatestX) + b * loss(lambda / b, y, atGreatestY);
    const double value = Scale::ofExp(-total);
    return Scale::times(value, rootOfOneOver2Pi * std::sqrt(b * atGreatestX) * expOfNegatedCorrection(a, b));
}

/** a log x + b log y, each logarithm from the number that is near 0. */
double sumOfLogs(double a, double b, double x, double y)
{
    constexpr double nearZero = 0.375;
    const double logX = y <= nearZero ? log1pOrMissing(-y) : std::log(x);
    const double logY = x <= nearZero ? log1pOrMissing(-x) : std::log(y);
    return a * logX + b * logY;
}

/** A number in two parts of at most 26 bits (Dekker, A floating-point technique, Numerische Mathematik 18,
 * 1971). */
struct halves {
    explicit halves(double x) : high(x * 134217729.0 - (x * 134217729.0 - x)), low(x - high) {}

    double high;
    double low;
};

/** p - (p + q) z, with the rounding errors of the sum and of the product taken back. */
double exactDistance(double p, double q, double z)
{
    const double greater = std::max(p, q);
    const double sum = p + q;
    const double errorOfSum = std::min(p, q) - (sum - greater);
    const double product = sum * z;
    const halves s(sum);
    const halves t(z);
    const double errorOfProduct =
        ((s.high * t.high - product) + s.high * t.low + s.low * t.high) + s.low * t.low;
    return (p - product) - (errorOfProduct + errorOfSum * z);
}

} // namespace

double distanceFromMean(double a, double b, double x, double y)
{
    constexpr double splits = 1e300;
    if (a + b > splits) {
        return a * y - b * x;
    }
    return a > b ? -exactDistance(b, a, y) : exactDistance(a, b, x);
}

template <class Scale>
double betaFactor(double a, double b, double x, double y)
{
    if (std::min(a, b) >= 8.0) {
        return factorForLarge<Scale>(a, b, x, y);
    }
    const reciprocal_beta beta = reciprocalBeta(a, b);
    const double power = Scale::ofExp(sumOfLogs(a, b, x, y) - beta.logarithm);
    return Scale::times(power, beta.lesser * beta.factor);
}

template double betaFactor<plain_scale>(double, double, double, double);
template double betaFactor<log_scale>(double, double, double, double);

} // namespace korvel
