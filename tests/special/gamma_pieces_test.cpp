// Beside the gamma function of the C library in its longest type, and, where that loses digits, its formulas.
// Bounds are about twice what was seen.
#include "special/gamma_pieces.h"

#include "support/relative_error.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{

using namespace korvel;
using korvel::test::largestRelativeError;
using korvel::test::relativeError;

long double logBeta(long double a, long double b)
{
    return std::lgamma(a) + std::lgamma(b) - std::lgamma(a + b);
}

/** The correction of the Stirling series by its own terms, for a of at least 8. */
long double stirling(long double a)
{
    const long double t = 1.0L / (a * a);
    const long double terms[] = {1.0L / 12,    -1.0L / 360,       1.0L / 1260,
                                 -1.0L / 1680, 1.0L / 1188,       -691.0L / 360360,
                                 1.0L / 156,   -3617.0L / 122400, 43867.0L / 244188};
    long double sum = 0.0L;
    for (int k = 8; k >= 0; --k) {
        sum = terms[k] + t * sum;
    }
    return sum / a;
}

} // namespace

TEST(GammaPieces, ReciprocalsKeepTheirDigitsNearTheirZeros)
{
    const auto excess = [](long double a) { return std::expm1(-std::lgamma(1.0L + a)); };
    EXPECT_EQ(reciprocalGammaExcess(0.0), 0.0);
    EXPECT_EQ(reciprocalGammaExcess(1.0), 0.0);
    EXPECT_LT(largestRelativeError(-0.5, -0.001, reciprocalGammaExcess, excess), 14.0);
    EXPECT_LT(largestRelativeError(0.001, 0.5, reciprocalGammaExcess, excess), 9.0);
    EXPECT_LT(largestRelativeError(0.501, 0.999, reciprocalGammaExcess, excess), 20.0);
    EXPECT_LT(largestRelativeError(1.001, 1.5, reciprocalGammaExcess, excess), 9.0);
}

TEST(GammaPieces, LogarithmsKeepTheirDigitsNearTheirZeros)
{
    const auto logGamma = [](long double a) { return std::lgamma(1.0L + a); };
    EXPECT_LT(largestRelativeError(-0.2, -0.001, logGammaOf1Plus, logGamma), 20.0);
    EXPECT_LT(largestRelativeError(0.001, 0.599, logGammaOf1Plus, logGamma), 8.0);
    EXPECT_LT(largestRelativeError(0.6, 0.999, logGammaOf1Plus, logGamma), 8.0);
    EXPECT_LT(largestRelativeError(1.001, 1.25, logGammaOf1Plus, logGamma), 8.0);
}

TEST(GammaPieces, QuotientsAndCorrectionsOfLargeArguments)
{
    // mpmath, 40 digits, of these doubles.
    const struct {
        double a;
        double b;
        long double logarithm;
    } quotients[]{
        {0.001, 8.0, -0.002015708043513224641L},    {0.5, 8.0, -1.02410589623558341157L},
        {1.0, 8.0, -2.07944154167983592825L},       {3.7, 8.0, -8.2482929767009643842L},
        {8.0, 8.0, -19.3741100227754772659L},       {0.001, 11.5, -0.00239828455149190311061L},
        {0.5, 11.5, -1.21030736930664451904L},      {1.0, 11.5, -2.44234703536920438139L},
        {3.7, 11.5, -9.43546251219833615923L},      {8.0, 11.5, -21.5690860323938556715L},
        {0.001, 40.0, -0.00367634003147996182102L}, {0.5, 40.0, -1.841314808421924927L},
        {1.0, 40.0, -3.68887945411393630285L},      {3.7, 40.0, -13.7705231913337675906L},
        {8.0, 40.0, -30.1709623766829093434L},      {0.001, 700.0, -0.00655036659405694729156L},
        {0.5, 700.0, -3.27536159610831554399L},     {1.0, 700.0, -6.55108033504340467314L},
        {3.7, 700.0, -24.2461221046596915187L},     {8.0, 700.0, -52.4485005802745966739L},
    };
    for (const auto& [a, b, logarithm] : quotients) {
        EXPECT_LT(relativeError(logGammaQuotient(a, b), logarithm), 8.0) << a << ' ' << b;
    }
    for (const double b : {8.0, 11.5, 40.0, 700.0}) {
        for (const double a : {8.0, 9.0, 30.0, 5000.0}) {
            const long double truth = stirling(a) + stirling(b) - stirling(static_cast<long double>(a) + b);
            EXPECT_LT(relativeError(betaCorrection(a, b), truth), 12.0) << a << ' ' << b;
            EXPECT_LT(relativeError(expOfNegatedCorrection(a, b), std::exp(-truth)), 8.0) << a << ' ' << b;
        }
    }
}

TEST(GammaPieces, DigammaHasItsRecurrenceAndKnownValues)
{
    // mpmath, 40 digits.
    EXPECT_LT(relativeError(digamma(1.0), -0.57721566490153286061L), 8.0);
    EXPECT_LT(relativeError(digamma(0.5), -1.9635100260214234794L), 20.0);
    EXPECT_LT(relativeError(digamma(0.25), -4.2274535333762654081L), 4.0);
    EXPECT_LT(relativeError(digamma(3.0), 0.92278433509846713939L), 10.0);
    EXPECT_LT(relativeError(digamma(10.0), 2.2517525890667211077L), 4.0);
    EXPECT_LT(relativeError(digamma(1e6), 13.815510057964191016L), 4.0);
    EXPECT_LT(relativeError(digamma(1e-10), -10000000000.577215665L), 4.0);
    for (double x = 0.03; x < 12.0; x += 0.37) {
        EXPECT_NEAR(digamma(x + 1.0) - digamma(x), 1.0 / x, 3e-15 * (1.0 / x + 3.0)) << x;
    }
}

TEST(GammaPieces, ReciprocalsOfTheBetaFunctionInParts)
{
    const double arguments[] = {1e-12, 0.01, 0.3, 0.9,  1.0,  1.2,   1.7,   2.0,    2.3, 5.5,
                                7.9,   8.0,  8.1, 12.0, 40.5, 300.0, 999.0, 1001.0, 1e5};
    for (const double a : arguments) {
        for (const double b : arguments) {
            const reciprocal_beta parts = reciprocalBeta(a, b);
            const auto found = std::log(static_cast<long double>(parts.lesser)) +
                               std::log(static_cast<long double>(parts.factor)) - parts.logarithm;
            const long double truth = -logBeta(a, b);
            // The truth is a difference of logarithms, each of which is rounded.
            const auto rounding = 1e-18 * std::lgamma(a + b);
            EXPECT_NEAR(static_cast<double>(found - truth), 0.0,
                        5e-15 * (1.0 + static_cast<double>(std::fabs(truth))) + rounding)
                << a << ' ' << b;
            EXPECT_EQ(parts.lesser, std::fmin(1.0, std::fmin(a, b)));
            EXPECT_EQ(parts.logarithm == 0.0, a <= 1.0 && b <= 1.0) << a << ' ' << b;
        }
    }
}
