#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = KORVEL_MISSING_DBL;

} // namespace

TEST(FlatNipals, FillsTheTableInPlace)
{
    guarded<double> x{1, 2, gone, 5, 4, 6, 5, 7};
    guarded<double> weights{1, 1, 2, 1};
    EXPECT_EQ(Cpp_NIPALS(4, 2, x.data(), weights.data(), 1e-12, 0, 0.25, 0.125), 0);
    expectCells(x, {1, 2, 8.0 / 3.0 / 2.0, 5, 4, 6, 5, 7});
    guarded<double> line{1, 2, gone, 5, 2, 4, 6, 10};
    guarded<double> ones{1, 1, 1, 1};
    EXPECT_EQ(Cpp_NIPALS(4, 2, line.data(), ones.data(), 1e-12, 1, 1.0, 1.0), 0);
    EXPECT_GT(valuesOf(line)[2], 2.0);
}

TEST(FlatNipals, LeavesTheTableWithAStatus)
{
    guarded<double> x{1, 2, gone, 5, 4, 6, 5, 7};
    guarded<double> weights{1, 1, 1, 1};
    EXPECT_EQ(Cpp_NIPALS(4, 2, x.data(), weights.data(), 1e-12, 1, 0.24, 1.0), -6);
    EXPECT_EQ(Cpp_NIPALS(4, 2, x.data(), weights.data(), 1e-12, 1, 1.0, 0.12), -6);
    EXPECT_EQ(Cpp_NIPALS(4, 1, x.data(), weights.data(), 1e-12, 1, 1.0, 1.0), 1);
    expectCells(x, {1, 2, gone, 5, 4, 6, 5, 7});
}
