#include "special/gamma_pieces.h"

#include "special/elementary.h"

#include <algorithm>
#include <cmath>

namespace korvel
{

namespace
{

// The series of the correction d(a) in odd powers of 1/a, from that of 1/a^11 on.
constexpr double c5 = -0.00165322962780713;
constexpr double c4 = 8.37308034031215e-4;
constexpr double c3 = -5.9520293135187e-4;
constexpr double c2 = 7.9365066682539e-4;
constexpr double c1 = -0.00277777777760991;
constexpr double c0 = 1.0 / 12.0;

/** d(a), for a >= 8. */
double correction(double a)
{
    return polynomial((1.0 / a) * (1.0 / a), c5, c4, c3, c2, c1, c0) / a;
}

/** d(b) - d(a + b), for b >= 8 and a <= b. */
double correctionDifference(double a, double b)
{
    const double h = a / b;
    const double x = 1.0 / (h + 1.0);
    // (1 - x^n) / (1 - x) for n = 3, 5, 7, 9, 11.
    const double x2 = x * x;
    const double s3 = 1.0 + (x + x2);
    const double s5 = 1.0 + (x + x2 * s3);
    const double s7 = 1.0 + (x + x2 * s5);
    const double s9 = 1.0 + (x + x2 * s7);
    const double s11 = 1.0 + (x + x2 * s9);
    const double t = (1.0 / b) * (1.0 / b);
    return polynomial(t, c5 * s11, c4 * s9, c3 * s7, c2 * s5, c1 * s3, c0) * (h / (h + 1.0) / b);
}

/** log gamma(a + b), for 1 <= a <= 2 and 1 <= b <= 2. */
double logGammaOfSum(double a, double b)
{
    const double x = a + b - 2.0;
    if (x <= 0.25) {
        return logGammaOf1Plus(x + 1.0);
    }
    if (x <= 1.25) {
        return logGammaOf1Plus(x) + log1pOrMissing(x);
    }
    return logGammaOf1Plus(x - 1.0) + std::log(x * (x + 1.0));
}

/** 1/gamma(1 + sum) for a sum of up to 2. */
double reciprocalGammaOf1Plus(double sum)
{
    return sum > 1.0 ? (reciprocalGammaExcess(sum - 1.0) + 1.0) / sum : reciprocalGammaExcess(sum) + 1.0;
}

/**
 * Takes 1 from `b` as often as it stays at least 1, and multiplies what each step leaves of the beta
 * function: B(a, b + 1) = B(a, b) b / (a + b).
 */
double reduceToBelow2(double a, double& b)
{
    double numerator = 1.0;
    double denominator = 1.0;
    for (int steps = static_cast<int>(b - 1.0); steps > 0; --steps) {
        b -= 1.0;
        numerator *= b;
        denominator *= a + b;
    }
    return numerator / denominator;
}

/** log gamma(a), for 1 <= a <= 2. */
double logGamma(double a)
{
    return logGammaOf1Plus(a - 1.0);
}

/** log B(a, b) for 1 <= a < 2 and 1 <= b < 8. */
double logBetaOfSmall(double a, double b)
{
    const double logOfSteps = b > 2.0 ? std::log(reduceToBelow2(a, b)) : 0.0;
    return logOfSteps + (logGamma(a) + (logGamma(b) - logGammaOfSum(a, b)));
}

/** log B(a, b) for 1 <= a < 2 and b >= 8. */
double logBetaOfSmallAndLarge(double a, double b)
{
    return logGamma(a) + logGammaQuotient(a, b);
}

/** log B(a, b) for 2 <= a < 8 and b > 1000, where the steps of `a` alone would lose b's digits. */
double logBetaOfFarApart(double a, double b)
{
    const int steps = static_cast<int>(a - 1.0);
    double product = 1.0;
    for (int k = 0; k < steps; ++k) {
        a -= 1.0;
        product *= a / (a / b + 1.0);
    }
    return std::log(product) - steps * std::log(b) + logBetaOfSmallAndLarge(a, b);
}

/** log B(a, b) for 8 <= a <= b. */
double logBetaOfLarge(double a, double b)
{
    constexpr double halfLogOf2Pi = 0.9189385332046727;
    const double h = a / b;
    const double u = -(a - 0.5) * std::log(h / (h + 1.0));
    const double v = b * log1pOrMissing(h);
    const double others = -0.5 * std::log(b) + halfLogOf2Pi + betaCorrection(a, b);
    return others - std::min(u, v) - std::max(u, v);
}

/** log B(a, b), for 1 <= a <= b. */
double logBeta(double a, double b)
{
    if (a >= 8.0) {
        return logBetaOfLarge(a, b);
    }
    if (a < 2.0) {
        return b < 8.0 ? logBetaOfSmall(a, b) : logBetaOfSmallAndLarge(a, b);
    }
    if (b > 1000.0) {
        return logBetaOfFarApart(a, b);
    }
    double reduced = a;
    const double logOfSteps = std::log(reduceToBelow2(b, reduced));
    return logOfSteps + (b < 8.0 ? logBetaOfSmall(reduced, b) : logBetaOfSmallAndLarge(reduced, b));
}

} // namespace

double reciprocalGammaExcess(double a)
{
    const double t = a > 0.5 ? a - 1.0 : a;
    if (t == 0.0) {
        return 0.0;
    }
    if (t < 0.0) {
        const double w = polynomial(t, -1.32674909766242e-4, 2.66505979058923e-4, 0.00223047661158249,
                                    -0.0118290993445146, 9.30357293360349e-4, 0.118378989872749,
                                    -0.244757765222226, -0.771330383816272, -0.422784335098468) /
                         polynomial(t, 0.0559398236957378, 0.273076135303957, 1.0);
        return a > 0.5 ? t * w / a : a * (w + 1.0);
    }
    const double w =
        polynomial(t, 5.89597428611429e-4, -0.00514889771323592, 0.0076696818164949, 0.0597275330452234,
                   -0.230975380857675, -0.409078193005776, 0.577215664901533) /
        polynomial(t, 0.00423244297896961, 0.0261132021441447, 0.158451672430138, 0.427569613095214, 1.0);
    return a > 0.5 ? t / a * (w - 1.0) : a * w;
}

double logGammaOf1Plus(double a)
{
    if (a < 0.6) {
        return -a *
               (polynomial(a, -0.00271935708322958, -0.0673562214325671, -0.402055799310489,
                           -0.780427615533591, -0.168860593646662, 0.844203922187225, 0.577215664901533) /
                polynomial(a, 6.67465618796164e-4, 0.0325038868253937, 0.361951990101499, 1.56875193295039,
                           3.12755088914843, 2.88743195473681, 1.0));
    }
    const double x = a - 1.0;
    return x * (polynomial(x, 4.97958207639485e-4, 0.017050248402265, 0.156513060486551, 0.565221050691933,
                           0.848044614534529, 0.422784335098467) /
                polynomial(x, 1.16165475989616e-4, 0.00713309612391, 0.10155218743983, 0.548042109832463,
                           1.24313399877507, 1.0));
}

double logGammaQuotient(double a, double b)
{
    const double u = (b + (a - 0.5)) * log1pOrMissing(a / b);
    const double v = a * (std::log(b) - 1.0);
    return correctionDifference(a, b) - std::min(u, v) - std::max(u, v);
}

double betaCorrection(double a, double b)
{
    return correction(std::min(a, b)) + correctionDifference(std::min(a, b), std::max(a, b));
}

double expOfNegatedCorrection(double a, double b)
{
    return expMinus1(-betaCorrection(a, b)) + 1.0;
}

double digamma(double x)
{
    constexpr double zero = 1.4616321449683623;
    if (x < 0.5) {
        return digamma(x + 1.0) - 1.0 / x;
    }
    if (x <= 3.0) {
        return (x - zero) *
               (polynomial(x, 0.0089538502298197, 4.77762828042627, 142.441585084029, 1186.45200713425,
                           3633.51846806499, 4138.10161269013, 1305.60269827897) /
                polynomial(x, 1.0, 44.8452573429826, 520.752771467162, 2210.0079924783, 3641.27349079381,
                           1908.310765963, 6.91091682714533e-6));
    }
    const double t = 1.0 / (x * x);
    const double series =
        t * polynomial(t, -2.12940445131011, -7.01677227766759, -4.48616543918019, -0.648157123766197) /
        polynomial(t, 1.0, 32.2703493791143, 89.2920700481861, 54.6117738103215, 7.77788548522962);
    return series - 0.5 / x + std::log(x);
}

reciprocal_beta reciprocalBeta(double a, double b)
{
    const double lesser = std::min(a, b);
    double greater = std::max(a, b);
    if (lesser >= 1.0) {
        return {1.0, 1.0, logBeta(lesser, greater)};
    }
    if (greater >= 8.0) {
        return {lesser, 1.0, logGammaOf1Plus(lesser) + logGammaQuotient(lesser, greater)};
    }
    if (greater <= 1.0) {
        const double gammas = (reciprocalGammaExcess(a) + 1.0) * (reciprocalGammaExcess(b) + 1.0) /
                              reciprocalGammaOf1Plus(a + b);
        return {lesser, gammas * (greater / (a + b)), 0.0};
    }
    const double logOfSteps = std::log(reduceToBelow2(lesser, greater));
    greater -= 1.0;
    return {lesser, (reciprocalGammaExcess(greater) + 1.0) / reciprocalGammaOf1Plus(lesser + greater),
            logGammaOf1Plus(lesser) + logOfSteps};
}

} // namespace korvel
