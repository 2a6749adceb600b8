#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <array>

using namespace korvel::test;

namespace
{

std::array x{5.0, MISSING_DBL, 2.0, 7.0, -90.0};
std::array counts{5, 2, 7, -90};
std::array<short int, 5> flags{0, 0, 0, 0, 1};
std::array<short int, 4> countFlags{0, 0, 0, 7};
std::array<short int, 5> allFlags{-1, 1, 7, -1, -1};

} // namespace

TEST(FlatVectorExtremes, SmallestAndLargest)
{
    EXPECT_SAME_BITS(VB_V_Min(x.data(), 5, flags.data()), 2.0);
    EXPECT_SAME_BITS(VB_V_Max(x.data(), 5, flags.data()), 7.0);
    EXPECT_SAME_BITS(VB_V_Max(x.data(), 4, nullptr), 7.0);
    EXPECT_SAME_BITS(VB_V_Min2(x.data(), 5), -90.0);
    EXPECT_SAME_BITS(VB_V_Max2(x.data(), 5), 7.0);
    EXPECT_SAME_BITS(VB_V_Min2Lng(counts.data(), 4), -90.0);
    EXPECT_SAME_BITS(VB_V_Max2Lng(counts.data(), 4), 7.0);
    EXPECT_EQ(VB_V_MaxInt(counts.data(), 4, countFlags.data()), 7);
    EXPECT_EQ(VB_V_MaxInt(counts.data(), 2, nullptr), 5);
}

TEST(FlatVectorExtremes, NothingKept)
{
    EXPECT_SAME_BITS(VB_V_Min(x.data(), 5, allFlags.data()), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Max(x.data(), 5, allFlags.data()), MISSING_DBL);
    EXPECT_EQ(VB_V_MaxInt(counts.data(), 4, allFlags.data()), MISSING_LNG);
    EXPECT_SAME_BITS(VB_V_Min(nullptr, 0, nullptr), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Max(nullptr, 0, nullptr), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Min2(nullptr, 0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Max2(nullptr, 0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Min2Lng(nullptr, 0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Max2Lng(nullptr, 0), MISSING_DBL);
    EXPECT_EQ(VB_V_MaxInt(nullptr, 0, nullptr), MISSING_LNG);
}

TEST(FlatVectorExtremes, TheLargestIntegerKeepsItsValue)
{
    std::array<int, 2> ends{MISSING_LNG, 2147483647};
    EXPECT_EQ(VB_V_MaxInt(ends.data(), 1, nullptr), MISSING_LNG);
    EXPECT_EQ(VB_V_MaxInt(ends.data(), 2, nullptr), 2147483647);
}

TEST(FlatVectorExtremes, LargestOfAHostArray)
{
    caller_memory caller;
    SAFEARRAY* numbers = caller.array<double>({-5.0, MISSING_DBL, -7.0});
    SAFEARRAY* longs = caller.array<int>({-5, -2, -7});
    EXPECT_SAME_BITS(Cpp_V_Max2_ST(&numbers, 3), -5.0);
    EXPECT_SAME_BITS(Cpp_V_Max2_ST(&numbers, 4), -1.0) << "an element past the end reads as -1";
    EXPECT_SAME_BITS(Cpp_V_Max2_ST(&numbers, 0), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_Max2Lng_ST(&longs, 3), -2.0);
    EXPECT_SAME_BITS(Cpp_V_Max2Lng_ST(&longs, 4), -1.0);
    EXPECT_SAME_BITS(Cpp_V_Max2Lng_ST(&longs, 0), MISSING_DBL);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatVectorExtremes, BothExtremes)
{
    guarded<double> min{77};
    guarded<double> max{77};
    const auto expectBoth = [&](double smallest, double largest) {
        EXPECT_SAME_BITS(valuesOf(min)[0], smallest);
        EXPECT_SAME_BITS(valuesOf(max)[0], largest);
    };
    EXPECT_EQ(VB_V_MinMax(x.data(), 5, min.data(), max.data(), flags.data()), 0);
    expectBoth(2.0, 7.0);
    EXPECT_EQ(VB_V_MinMax(x.data(), 5, min.data(), max.data(), allFlags.data()), 0);
    expectBoth(MISSING_DBL, MISSING_DBL);
    EXPECT_EQ(VB_V_MinMaxLng(counts.data(), 4, min.data(), max.data(), countFlags.data()), 0);
    expectBoth(2.0, 7.0);
    EXPECT_EQ(VB_V_MinMaxLng(counts.data(), 4, min.data(), max.data(), allFlags.data()), 0);
    expectBoth(MISSING_DBL, MISSING_DBL);
    EXPECT_EQ(VB_V_MinMax2(x.data(), 4, min.data(), max.data(), -1), 0);
    expectBoth(MISSING_DBL, 7.0);
    EXPECT_EQ(VB_V_MinMax2(x.data() + 1, 3, min.data(), max.data(), 1), 0);
    expectBoth(2.0, 7.0);
    EXPECT_EQ(VB_V_MinMax2(x.data() + 1, 3, min.data(), max.data(), 0), 0);
    expectBoth(MISSING_DBL, 7.0);
    EXPECT_EQ(VB_V_MinMaxLng2(counts.data(), 4, min.data(), max.data(), -1), 0);
    expectBoth(-90.0, 7.0);
    EXPECT_EQ(VB_V_MinMax2(nullptr, 0, min.data(), max.data(), 0), 0);
    expectBoth(-1.0, -1.0);
    EXPECT_EQ(VB_V_MinMaxLng2(nullptr, 0, min.data(), max.data(), -1), 0);
    expectBoth(MISSING_DBL, -1.0);
}

TEST(FlatVectorExtremes, Positions)
{
    std::array cells{3.0, 1.0, 3.0, 1.0};
    guarded<int> pos{77};
    EXPECT_SAME_BITS(VB_V_MinAndMinPos(cells.data(), 4, pos.data(), 0), 1.0);
    EXPECT_EQ(valuesOf(pos)[0], 2);
    for (const short int yes : std::array<short int, 2>{-1, 1}) {
        EXPECT_SAME_BITS(VB_V_MinAndMinPos(cells.data(), 4, pos.data(), yes), 1.0);
        EXPECT_EQ(valuesOf(pos)[0], 4);
    }
    EXPECT_SAME_BITS(VB_V_MaxAndMaxPos(cells.data() + 1, 3, pos.data()), 3.0);
    EXPECT_EQ(valuesOf(pos)[0], 2);
    EXPECT_SAME_BITS(VB_V_MaxAndMaxPos(cells.data(), 1, pos.data()), 3.0);
    EXPECT_EQ(valuesOf(pos)[0], 1);
}
