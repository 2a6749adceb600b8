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
    std::array<double, mostTerms> c_;
    std::array<double, mostTerms> d_;
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
double upperGammaOfSmall(double a, double x, double logX, double epsilon)
{
    if (a == 0.5 && x < 0.25) {
        return 1.0 - errorFunction(std::sqrt(x));
    }
    const double series = lowerGammaSeries(a, x, epsilon);
    const double exponent = a * logX;
    const double h = reciprocalGammaExcess(a);
    const bool isSmall = exponent > -0.13394 || (x >= 0.25 && a < x / 2.59);
    if (isSmall) {
        const double l = expMinus1(exponent);
        return std::max(0.0, ((l + 1.0) * series - l) * (h + 1.0) - h);
    }
    return 1.0 - std::exp(exponent) * (h + 1.0) * (1.0 - series);
}

/** Q(a, x) exp(x) gamma(a) / x^a by a continued fraction, for a <= 1 and x >= 1.1, or a = 1/2 and x >= 1/4.
 */
double scaledUpperGammaOfLarge(double a, double x, double epsilon)
{
    if (a == 0.5) {
        const double root = std::sqrt(x);
        return scaledErrorComplement(root) / root * rootOfPi;
    }
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
    // The scale is r = exp(-z) z^b / gamma(b) over nu^b gamma(a) / gamma(a + b). Both powers go together in
    // it.
    const double quotient = logGammaQuotient(b, a);
    const double logScale =
        std::log(b * (reciprocalGammaExcess(b) + 1.0)) + b * std::log(-logX) + nu * logX - quotient;
    if (logScale <= MISSING_DBL) {
        return {start, 2};
    }
    const double scale = Scale::ofExp(logScale);
    const double startPerScale = Scale::ratio(start, scale);
    const double v = 0.25 / (nu * nu);
    const double squareOfHalfLog = logX * 0.25 * logX;
    expansion_coefficients coefficients(b);
    double j = 0.0;
    if (z >= 1.1 || (b == 0.5 && z >= 0.25)) {
        j = scaledUpperGammaOfLarge(b, z, epsilon);
    } else {
        const double logNu = std::log(nu);
        const double logR = logScale + (quotient + b * logNu);
        j = upperGammaOfSmall(b, z, logNu + std::log(-logX), epsilon) * std::exp(-logR);
    }
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
    return {Scale::sum(start, Scale::product(logScale, scale, sum)), 0};
}

template expansion_result addExpansionForLargeA<plain_scale>(double, double, double, double, double, double);
template expansion_result addExpansionForLargeA<log_scale>(double, double, double, double, double, double);

} // namespace korvel
