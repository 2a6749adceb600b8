#include "special/log_binomial.h"

#include "containers/missing.h"
#include "support/bits.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{

TEST(LogBinomial, OfNoneAndOfAllIs0)
{
    EXPECT_SAME_BITS(cLogCnk(10.0, 0.0), 0.0);
    EXPECT_SAME_BITS(cLogCnk(10.0, 10.0), 0.0);
    EXPECT_SAME_BITS(cLogCnk(-3.5, -3.5), 0.0);
}

TEST(LogBinomial, OfOneAndOfAllButOneIsTheLogarithmOfN)
{
    EXPECT_SAME_BITS(cLogCnk(10.0, 1.0), std::log(10.0));
    EXPECT_SAME_BITS(cLogCnk(10.0, 9.0), std::log(10.0));
}

TEST(LogBinomial, SumsOverTheSmallerCount)
{
    // 10 over 3: the base is 7, for either of the two.
    const double expected =
        std::log(8.0) + (std::log(9.0) - std::log(2.0)) + (std::log(10.0) - std::log(3.0));
    EXPECT_SAME_BITS(cLogCnk(10.0, 3.0), expected);
    EXPECT_SAME_BITS(cLogCnk(10.0, 7.0), expected);
    // mpmath, 40 digits.
    EXPECT_NEAR(cLogCnk(52.0, 5.0), 14.77062192297037073, 1e-14);
    EXPECT_NEAR(cLogCnk(1000.0, 500.0), 689.46726156785118008, 2e-12);
    EXPECT_NEAR(cLogCnk(1e12, 3.0), std::log(1e36 / 6.0), 1e-11);
}

TEST(LogBinomial, LeavesFractionsInTheBaseOnly)
{
    // d is 5 - 2 = 3, above 2.3: two terms over the base 5.7 - 2.
    EXPECT_SAME_BITS(cLogCnk(5.7, 2.3),
                     std::log(5.7 - 2.0 + 1.0) + (std::log(2.0 + (5.7 - 2.0)) - std::log(2.0)));
    // d is 2, not above 8.25: two terms over the base 8.25.
    EXPECT_SAME_BITS(cLogCnk(10.5, 8.25), std::log(9.25) + (std::log(10.25) - std::log(2.0)));
    // d is 5, not above 5: five terms over the base 5, not over 5.5.
    EXPECT_NEAR(cLogCnk(10.5, 5.0), std::log(252.0), 1e-14);
    // d is 3, not above 3.5, although it is above its whole part less one.
    EXPECT_SAME_BITS(cLogCnk(6.0, 3.5),
                     std::log(4.5) + (std::log(5.5) - std::log(2.0)) + (std::log(6.5) - std::log(3.0)));
}

TEST(LogBinomial, OfMoreThanThereAreIsTheLogarithmOfOneMore)
{
    EXPECT_SAME_BITS(cLogCnk(3.0, 7.0), std::log(8.0));
    EXPECT_SAME_BITS(cLogCnk(3.0, 7.5), std::log(8.5));
}

TEST(LogBinomial, IsMissingWhereALogarithmHasNoValue)
{
    EXPECT_SAME_BITS(cLogCnk(-2.0, -1.0), MISSING_DBL);
    EXPECT_SAME_BITS(cLogCnk(-9.0, -4.0), MISSING_DBL);
    EXPECT_SAME_BITS(cLogCnk(5.0, -1.0), std::log(7.0));
}

TEST(LogBinomial, HasTwoNames)
{
    EXPECT_SAME_BITS(LogCnk(10.0, 4.0), cLogCnk(10.0, 4.0));
    EXPECT_SAME_BITS(LogCnk(3.0, 7.0), std::log(8.0));
}

} // namespace
