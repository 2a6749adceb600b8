#include "containers/conversion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using korvel::truncateToInt;

TEST(TruncateToInt, DropsTheFraction)
{
    EXPECT_EQ(truncateToInt(2.9), 2);
    EXPECT_EQ(truncateToInt(-2.9), -2);
    EXPECT_EQ(truncateToInt(-0.0), 0);
    EXPECT_EQ(truncateToInt(2147483647.9), 2147483647);
    EXPECT_EQ(truncateToInt(-2147483648.9), -2147483647 - 1);
}

TEST(TruncateToInt, GivesTheLeastIntForWhatNoIntHolds)
{
    constexpr int least = std::numeric_limits<int>::min();
    for (const double x : {2147483648.0, -2147483649.0, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_EQ(truncateToInt(x), least) << x;
    }
}
