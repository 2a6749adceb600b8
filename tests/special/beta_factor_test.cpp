#include "special/beta_terms.h"

#include "special/scales.h"
#include "support/relative_error.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{

using korvel::betaFactor;
using korvel::distanceFromMean;
using korvel::log_scale;
using korvel::plain_scale;
using korvel::test::relativeError;

/** log(x^a y^b / B(a, b)) in the longest type. */
long double logFactor(long double a, long double b, long double x, long double y)
{
    return a * std::log(x) + b * std::log(y) - (std::lgamma(a) + std::lgamma(b) - std::lgamma(a + b));
}

} // namespace

TEST(BetaFactor, IsThatOfTheGammaFunction)
{
    for (const double a : {0.25, 1.0, 3.5, 8.0, 9.5, 40.0, 200.0}) {
        for (const double b : {0.125, 1.0, 7.5, 8.0, 12.0, 90.0}) {
            for (const double x : {0.0009765625, 0.0625, 0.375, 0.5, 0.625, 0.75, 0.96875}) {
                const double y = 1.0 - x;
                const long double truth = logFactor(a, b, x, y);
                const double logarithm = betaFactor<log_scale>(a, b, x, y);
                EXPECT_NEAR(logarithm, static_cast<double>(truth),
                            3e-15 * (1.0 + a * std::fabs(std::log(x)) + b * std::fabs(std::log(y))))
                    << a << ' ' << b << ' ' << x;
                if (truth > -600.0L) {
                    const auto exponent = static_cast<double>(std::fabs(truth));
                    EXPECT_LT(relativeError(betaFactor<plain_scale>(a, b, x, y), std::exp(truth)),
                              50.0 + 10.0 * exponent)
                        << a << ' ' << b << ' ' << x;
                }
            }
        }
    }
}

TEST(BetaFactor, HasNoRoundingErrorInTheDistanceFromTheMean)
{
    // (a + b) y - b, of numbers that have no rounding errors in the longest type.
    EXPECT_EQ(distanceFromMean(3.0, 5.0, 0.25, 0.75), 1.0);
    EXPECT_EQ(distanceFromMean(5.0, 3.0, 0.25, 0.75), 3.0);
    const double x = 0.3;
    const double distance = distanceFromMean(3e9, 7e9, x, 0.7);
    // 0.3 is less than three tenths by 1.11e-17.
    EXPECT_NEAR(distance, 1.1102230246251565e-7, 1e-15);
    EXPECT_EQ(distanceFromMean(0x1p1017, 0x1p1017, 0.25, 0.75), 0x1p1016) << "the sum may not be split";
    EXPECT_EQ(distanceFromMean(0x1p1023, 0x1p1023, 0.25, 0.75), 0x1p1022) << "nor formed";
}
