#include "platform/wrapping.h"

#include <gtest/gtest.h>
#include <limits>

using korvel::wrappedProduct;
using korvel::wrappedSum;

TEST(Wrapping, SumsAndProductsComeRoundAtTheEnds)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(wrappedSum(most, 1), least);
    EXPECT_EQ(wrappedSum(least, -1), most);
    EXPECT_EQ(wrappedSum(-5, 3), -2);
    EXPECT_EQ(wrappedProduct(least, -1), least);
    EXPECT_EQ(wrappedProduct(65536, 65536), 0);
    EXPECT_EQ(wrappedProduct(46341, 46341), -2147479015); // 2147488281 - 2^32
    EXPECT_EQ(wrappedProduct(-7, 6), -42);
}
