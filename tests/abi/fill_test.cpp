#include "frames/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using doubles = std::vector<double>;
using ints = std::vector<int>;
using flags = std::vector<short int>;
using texts = std::vector<std::u16string>;

} // namespace

TEST(FlatFill, NumbersVectors)
{
    for (const int n : {0, -1, 1, 3}) {
        doubles expected{7, 7, 7, 7};
        ints expectedIntegers{7, 7, 7, 7};
        for (int k = 0; k < n; ++k) {
            expected[static_cast<std::size_t>(k)] = k + 1;
            expectedIntegers[static_cast<std::size_t>(k)] = k + 1;
        }
        caller_block<double> x(doubles{7, 7, 7, 7});
        EXPECT_EQ(VB_V_Set1toNDbl(x.argument(), n), 0);
        EXPECT_EQ(x.cells(), expected);
        caller_block<int> y(ints{7, 7, 7, 7});
        EXPECT_EQ(VB_V_Set1toNLng(y.argument(), n), 0);
        EXPECT_EQ(y.cells(), expectedIntegers);
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
    caller_block<std::u16string> x(before);
    BSTR const kept = x.argument()[1];
    const automation_watch watch;
    EXPECT_EQ(VB_V_Set1toNStr(x.argument(), 1001), 0);
    EXPECT_EQ(x.cells(), expected);
    EXPECT_EQ(x.argument()[1], kept);
    EXPECT_TRUE(watch.texts(1000, 1000));
    EXPECT_EQ(VB_V_Set1toNStr(x.argument(), 0), 0);
}

TEST(FlatFill, SetsFlags)
{
    caller_block<short int> x(flags{5, 5, 5});
    EXPECT_EQ(VB_InitVectorToTrue(x.argument(), 2), 0);
    EXPECT_EQ(x.cells(), (flags{-1, -1, 5}));
    EXPECT_EQ(VB_InitVectorToFalse(x.argument(), 1), 0);
    EXPECT_EQ(x.cells(), (flags{0, -1, 5}));
    EXPECT_EQ(VB_InitVectorToTrue(x.argument(), 0), 0);
    EXPECT_EQ(VB_InitVectorToFalse(x.argument(), -3), 0);
    EXPECT_EQ(x.cells(), (flags{0, -1, 5}));
}

TEST(FlatFill, FlagsTheCellsThatEqualANumber)
{
    constexpr int missing = std::numeric_limits<int>::min();
    caller_block<int> x(ints{3, 4, missing, 3, 0, 5});
    caller_block<short int> y(flags{9, 9, 9, 9, 9, 9});
    EXPECT_EQ(Cpp_M_SetBooleanIfLng(x.argument(), 2, 3, 3, y.argument()), 0);
    EXPECT_EQ(y.cells(), (flags{-1, 0, 0, -1, 0, 0}));
    EXPECT_EQ(Cpp_M_SetBooleanIfLng(x.argument(), 3, 0, missing, y.argument()), 0);
    EXPECT_EQ(y.cells(), (flags{0, 0, -1, -1, 0, 0})) << "no columns stand for one";
    EXPECT_EQ(x.cells(), (ints{3, 4, missing, 3, 0, 5}));
}
