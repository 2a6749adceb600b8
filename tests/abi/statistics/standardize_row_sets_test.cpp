#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const double none = MISSING_DBL;

} // namespace

TEST(FlatStandardizeRowSets, Companions)
{
    guarded<double> x{1, 2, 3, 4, none, 8};
    guarded<double> y{2, 7, none, 10};
    guarded<double> z{0, 6};
    EXPECT_EQ(VB_M_StandardizeMatrix(x.data(), 3, 2, y.data(), 2, z.data(), 1), 0);
    const double sd = std::sqrt(8.0);
    EXPECT_EQ(valuesOf(x), (doubles{-1, 0, 1, -2 / sd, none, 2 / sd}));
    EXPECT_EQ(valuesOf(y), (doubles{0, 5, none, 4 / sd}));
    EXPECT_EQ(valuesOf(z), (doubles{-2, 0}));
    guarded<double> alone{1, 2, 3};
    EXPECT_EQ(VB_M_StandardizeMatrix(alone.data(), 3, 1, nullptr, 0, nullptr, 0), 0);
    EXPECT_EQ(valuesOf(alone), (doubles{-1, 0, 1}));
}

TEST(FlatStandardizeRowSets, Groups)
{
    guarded<double> x{1, 10, 3, 14, 9};
    guarded<int> groups{1, 2, 1, 2, 3};
    EXPECT_EQ(Cpp_M_StandardizeByGroup(x.data(), 5, 1, groups.data(), 2, -1, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{-1, -1, 1, 1, 9}));
    guarded<double> y{1, 10, 3, 14, 9};
    EXPECT_EQ(Cpp_M_StandardizeByGroup(y.data(), 5, 1, groups.data(), 0, -1, 0), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 10, 3, 14, 9}));
    EXPECT_EQ(Cpp_M_StandardizeByGroup(y.data(), 5, 1, groups.data(), 3, 0, 0), 0);
    EXPECT_EQ(valuesOf(y), (doubles{-1, -2, 1, 2, 0}));
    EXPECT_EQ(valuesOf(groups), (ints{1, 2, 1, 2, 3}));
}

TEST(FlatStandardizeRowSets, CountsBelowOne)
{
    for (const int count : {0, -1}) {
        guarded<double> x{1, 2};
        guarded<int> groups{1, 1};
        VB_M_StandardizeMatrix(x.data(), 2, count, x.data(), 0, x.data(), 0);
        VB_M_StandardizeMatrix(x.data(), count, 2, x.data(), count, x.data(), count);
        Cpp_M_StandardizeByGroup(x.data(), count, 1, groups.data(), 1, -1, -1);
        Cpp_M_StandardizeByGroup(x.data(), 2, count, groups.data(), 1, -1, -1);
        EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
    }
}
