#include "special/beta_terms.h"
#include "special/gamma_pieces.h"
#include "special/scales.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvel
{

namespace
{

constexpr double rootOfPi = 1.772453850905516;

/** The most terms of an expansion that are computed. */
constexpr int mostTerms = 30;

/** The coefficients of the expansion for one large parameter: d_1 ... d_n of the recurrence (9.3). */
class expansion_coefficients
{
public:
    explicit expansion_coefficients(double b) : b_(b) {}

    /** d_n, when it is asked for in ascending order. */
    double next()
    {
        const int n = ++count_;
        reciprocalFactorial_ /= 2.0 * n * (2.0 * n + 1.0);
        double sum = 0.0;
        double weight = b_ - n;
        for (int i = 1; i < n; ++i) {
            sum += weight * c_[at(i)] * d_[at(n - i)];
            weight += b_;
        }
        c_[at(n)] = reciprocalFactorial_;
        d_[at(n)] = (b_ - 1.0) * reciprocalFactorial_ + sum / n;
        return d_[at(n)];
    }

private:
    static std::size_t at(int n) { return static_cast<std::size_t>(n - 1); }

    double b_;
    int count_ = 0;
    double reciprocalFactorial_ = 1.0; ///< 1 / (2 n + 1)!
    std::array<double, mostTerms> c_{};
    std::array<double, mostTerms> d_{};
};

/** The Taylor series of 1 - gamma(1 + a) P(a, x) / x^a, where P is the incomplete gamma ratio. */
double lowerGammaSeries(double a, double x, double epsilon)
{
    const double tolerance = 0.1 * epsilon / (a + 1.0);
    double n = 3.0;
    double power = x;
    double sum = x / (a + 3.0);
    double term = 0.0;
    do {
        n += 1.0;
        power *= -(x / n);
        term = power / (a + n);
        sum += term;
    } while (std::fabs(term) > tolerance);
    return a * x * ((sum / 6.0 - 0.5 / (a + 2.0)) * x + 1.0 / (a + 1.0));
}

/** Q(a, x), the complement of the incomplete gamma ratio, for a <= 1 and x < 1.1. */
double upperGammaOfSmall(double a, double x, double epsilon)
{
    const double series = lowerGammaSeries(a, x, epsilon);
    const double exponent = a * std::log(x);
    const double h = reciprocalGammaExcess(a);
    const bool isSmall = x < 0.25 ? exponent > -0.13394 : a < x / 2.59 || exponent > -0.13394;
    if (isSmall) {
        const double l = expMinus1(exponent);
        return std::max(0.0, ((l + 1.0) * series - l) * (h + 1.0) - h);
    }
    return 1.0 - std::exp(exponent) * (h + 1.0) * (1.0 - series);
}

/** Q(a, x) exp(x) gamma(a) / x^a by a continued fraction, for a <= 1 and x >= 1.1. */
double scaledUpperGammaOfLarge(double a, double x, double epsilon)
{
    double oddNumerator = 1.0;
    double numerator = 1.0;
    double oddDenominator = x;
    double denominator = x + (1.0 - a);
    double n = 1.0;
    double before = 0.0;
    double last = 0.0;
    do {
        oddNumerator = x * numerator + n * oddNumerator;
        oddDenominator = x * denominator + n * oddDenominator;
        before = oddNumerator / oddDenominator;
        n += 1.0;
        numerator = oddNumerator + (n - a) * numerator;
        denominator = oddDenominator + (n - a) * denominator;
        last = numerator / denominator;
    } while (std::fabs(last - before) >= epsilon * last);
    return last;
}

/** Q(a, x) / r for a <= 1, where Q is the complement of the incomplete gamma ratio, and r exp(-x) x^a /
 * gamma(a). */
double scaledUpperGamma(double a, double x, double logR, double epsilon)
{
    if (a == 0.5) {
        const double root = std::sqrt(x);
        return x < 0.25 ? (1.0 - errorFunction(root)) * std::exp(-logR)
                        : scaledErrorComplement(root) / root * rootOfPi;
    }
    if (x < 1.1) {
        return upperGammaOfSmall(a, x, epsilon) * std::exp(-logR);
    }
    return scaledUpperGammaOfLarge(a, x, epsilon);
}

} // namespace

template <class Scale>
expansion_result addExpansionForLargeA(double start, double a, double b, double x, double y, double epsilon)
{
    // The names are those of section 9 of the paper: T = nu, u = z.
    const double nu = a + (b - 1.0) * 0.5;
    const double logX = y > 0.375 ? std::log(x) : log1pOrMissing(-y);
    const double z = -nu * logX;
    if (b * z == 0.0) {
        return {start, 1};
    }
    const double logR = std::log(b) + log1pOrMissing(reciprocalGammaExcess(b)) + b * std::log(z) + nu * logX;
    const double logScale = logR - (logGammaQuotient(b, a) + b * std::log(nu));
    if (logScale <= MISSING_DBL) {
        return {start, 2};
    }
    const double startPerScale = start == Scale::zero ? 0.0 : std::exp(Scale::log(start) - logScale);
    const double v = 0.25 / (nu * nu);
    const double squareOfHalfLog = logX * 0.25 * logX;
    expansion_coefficients coefficients(b);
    double j = scaledUpperGamma(b, z, logR, epsilon);
    double sum = j;
    double power = 1.0;
    for (int n = 0; n < mostTerms; ++n) {
        const double order = b + 2.0 * n;
        j = (order * (order + 1.0) * j + (z + order + 1.0) * power) * v;
        power *= squareOfHalfLog;
        const double term = coefficients.next() * j;
        sum += term;
        if (sum <= 0.0) {
            return {start, 3};
        }
        if (std::fabs(term) <= epsilon * (sum + startPerScale)) {
            break;
        }
    }
    return {Scale::sum(start, Scale::ofProduct(logScale, sum)), 0};
}

template expansion_result addExpansionForLargeA<plain_scale>(double, double, double, double, double, double);
template expansion_result addExpansionForLargeA<log_scale>(double, double, double, double, double, double);

} // namespace korvel
