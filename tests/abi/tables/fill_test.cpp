#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using namespace korvel::test;

TEST(FlatFill, NumbersVectors)
{
    for (const int n : {0, -1, 1, 3}) {
        doubles expected{7, 7, 7, 7};
        ints expectedIntegers{7, 7, 7, 7};
        for (int k = 0; k < n; ++k) {
            expected[static_cast<std::size_t>(k)] = k + 1;
            expectedIntegers[static_cast<std::size_t>(k)] = k + 1;
        }
        guarded<double> x(doubles{7, 7, 7, 7});
        EXPECT_EQ(VB_V_Set1toNDbl(x.data(), n), 0);
        EXPECT_EQ(valuesOf(x), expected);
        guarded<int> y(ints{7, 7, 7, 7});
        EXPECT_EQ(VB_V_Set1toNLng(y.data(), n), 0);
        EXPECT_EQ(valuesOf(y), expectedIntegers);
    }
}

TEST(FlatFill, NumbersTextsInDecimalDigits)
{
    texts expected;
    for (int k = 1; k <= 1001; ++k) {
        const std::string digits = std::to_string(k);
        expected.emplace_back(digits.begin(), digits.end());
    }
    texts before(1001, u"x");
    before[1] = u"2";
    text_block x(before);
    BSTR const kept = x.data()[1];
    const automation_watch watch;
    EXPECT_EQ(VB_V_Set1toNStr(x.data(), 1001), 0);
    EXPECT_EQ(x.values(), expected);
    EXPECT_EQ(x.data()[1], kept);
    EXPECT_TRUE(watch.texts(1000, 1000));
    EXPECT_EQ(VB_V_Set1toNStr(x.data(), 0), 0);
}

TEST(FlatFill, SetsFlags)
{
    guarded<short int> x(shorts{5, 5, 5});
    EXPECT_EQ(VB_InitVectorToTrue(x.data(), 2), 0);
    EXPECT_EQ(valuesOf(x), (shorts{-1, -1, 5}));
    EXPECT_EQ(VB_InitVectorToFalse(x.data(), 1), 0);
    EXPECT_EQ(valuesOf(x), (shorts{0, -1, 5}));
    EXPECT_EQ(VB_InitVectorToTrue(x.data(), 0), 0);
    EXPECT_EQ(VB_InitVectorToFalse(x.data(), -3), 0);
    EXPECT_EQ(valuesOf(x), (shorts{0, -1, 5}));
}

TEST(FlatFill, FlagsTheCellsThatEqualANumber)
{
    constexpr int missing = std::numeric_limits<int>::min();
    guarded<int> x(ints{3, 4, missing, 3, 0, 5});
    guarded<short int> y(shorts{9, 9, 9, 9, 9, 9});
    EXPECT_EQ(Cpp_M_SetBooleanIfLng(x.data(), 2, 3, 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (shorts{-1, 0, 0, -1, 0, 0}));
    EXPECT_EQ(Cpp_M_SetBooleanIfLng(x.data(), 3, 0, missing, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (shorts{0, 0, -1, -1, 0, 0})) << "no columns stand for one";
    EXPECT_EQ(valuesOf(x), (ints{3, 4, missing, 3, 0, 5}));
}
