// Beside the functions of the C library in its longest type. Bounds are about twice what was seen.
#include "special/elementary.h"

#include "support/bits.h"
#include "support/relative_error.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel;
using korvel::test::largestRelativeError;

TEST(Elementary, LogarithmsOfNothingAreMissing)
{
    EXPECT_SAME_BITS(logOrMissing(0.0), MISSING_DBL);
    EXPECT_SAME_BITS(logOrMissing(-1e-300), MISSING_DBL);
    EXPECT_SAME_BITS(logOrMissing(0.25), std::log(0.25));
    EXPECT_SAME_BITS(log1pOrMissing(-1.0), MISSING_DBL);
    EXPECT_SAME_BITS(log1pOrMissing(-1.25), MISSING_DBL);
    EXPECT_GT(log1pOrMissing(std::nextafter(-1.0, 0.0)), -40.0);
    EXPECT_SAME_BITS(logOfComplement(0.0), MISSING_DBL);
    EXPECT_EQ(logOfComplement(MISSING_DBL), 0.0);
}

TEST(Elementary, AreThoseOfTheLibrary)
{
    const auto log1pl = [](long double x) { return std::log1p(x); };
    const auto expm1l = [](long double x) { return std::expm1(x); };
    EXPECT_LT(largestRelativeError(-0.375, 0.375, log1pOrMissing, log1pl), 3.0);
    EXPECT_LT(largestRelativeError(0.376, 10.0, log1pOrMissing, log1pl), 2.0);
    EXPECT_LT(largestRelativeError(-0.9, -0.376, log1pOrMissing, log1pl), 3.0);
    EXPECT_LT(largestRelativeError(-0.15, 0.15, expMinus1, expm1l), 3.0);
    EXPECT_LT(largestRelativeError(0.151, 5.0, expMinus1, expm1l), 8.0);
    EXPECT_LT(largestRelativeError(-5.0, -0.151, expMinus1, expm1l), 8.0);
    EXPECT_LT(largestRelativeError(1e-9, 0.5, errorFunction, [](long double x) { return std::erf(x); }), 8.0);
    const auto scaled = [](long double x) { return std::exp(x * x) * std::erfc(x); };
    EXPECT_LT(largestRelativeError(0.0, 0.5, scaledErrorComplement, scaled), 8.0);
    EXPECT_LT(largestRelativeError(0.501, 4.0, scaledErrorComplement, scaled), 12.0);
    EXPECT_LT(largestRelativeError(4.01, 20.0, scaledErrorComplement, scaled), 4.0);
    const auto complement = [](long double x) {
        return x < -0.69L ? std::log1p(-std::exp(x)) : std::log(-std::expm1(x));
    };
    EXPECT_LT(largestRelativeError(-20.0, -0.7, logOfComplement, complement), 4.0);
    EXPECT_LT(largestRelativeError(-0.69, -1e-3, logOfComplement, complement), 4.0);
}

TEST(Elementary, ExcessOverALogarithmKeepsItsDigits)
{
    // A series where the difference of the library's values has lost digits.
    const auto excess = [](long double x) {
        if (std::fabs(x) > 0.05L) {
            return x - std::log1p(x);
        }
        long double sum = 0.0L;
        for (int n = 30; n >= 2; --n) {
            sum = (n % 2 == 0 ? 1.0L : -1.0L) / static_cast<long double>(n) + x * sum;
        }
        return x * x * sum;
    };
    EXPECT_LT(largestRelativeError(-0.05, 0.05, excessOverLog1p, excess), 8.0);
    EXPECT_LT(largestRelativeError(-0.18, 0.18, excessOverLog1p, excess), 8.0);
    EXPECT_LT(largestRelativeError(-0.39, -0.181, excessOverLog1p, excess), 16.0);
    EXPECT_LT(largestRelativeError(0.181, 0.57, excessOverLog1p, excess), 8.0);
    EXPECT_LT(largestRelativeError(-0.95, -0.391, excessOverLog1p, excess), 8.0);
    EXPECT_LT(largestRelativeError(0.571, 30.0, excessOverLog1p, excess), 8.0);
}

TEST(Elementary, SumsOfExponentialsDoNotOverflow)
{
    EXPECT_NEAR(logOfSum(-1000.0, -1000.0), -1000.0 + std::log(2.0), 1e-12);
    EXPECT_NEAR(logOfSum(-2.0, -3.0), std::log(std::exp(-2.0) + std::exp(-3.0)), 1e-15);
    EXPECT_SAME_BITS(logOfSum(-3.0, -2.0), logOfSum(-2.0, -3.0));
    EXPECT_SAME_BITS(logOfSum(MISSING_DBL, -2.0), -2.0);
}
