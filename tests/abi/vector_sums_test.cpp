#include "frames/KORVELMathTools.h"
#include "support/bits.h"

#include <array>

using korvel::test::sameBits;

TEST(FlatVectorSums, SumOfNothingReadsNothing)
{
    EXPECT_TRUE(sameBits(VB_V_Sum(nullptr, 0, nullptr, nullptr), 0.0));
}

TEST(FlatVectorSums, SumWeighsAndSkips)
{
    std::array x{1.0, 2.0, 4.0};
    std::array w{1.0, 0.5, 2.0};
    std::array<short int, 3> flags{0, 0, -1};
    EXPECT_TRUE(sameBits(VB_V_Sum(x.data(), 3, flags.data(), w.data()), 2.0));
    EXPECT_TRUE(sameBits(VB_V_Sum(x.data(), 3, nullptr, w.data()), 10.0));
}
