#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatTriangularInverse, WritesOneTriangle)
{
    const numbers t{2, 7, 3, 4};
    guarded<double> inverse(numbers(4, 9.0));
    EXPECT_EQ(VB_M_InverseTriang(t.data(), 2, 0, inverse.data(), 1e-12), 0);
    EXPECT_EQ(valuesOf(inverse), (numbers{0.5, 9, -0.375, 0.25}));
    guarded<double> lower(numbers(4, 9.0));
    EXPECT_EQ(VB_M_InverseTriang(t.data(), 2, 5, lower.data(), 1e-12), 0);
    EXPECT_EQ(valuesOf(lower), (numbers{0.5, -0.875, 9, 0.25}));
}

TEST(FlatTriangularInverse, MayBeWrittenOverTheTable)
{
    guarded<double> t({2, 0, 3, 4});
    EXPECT_EQ(VB_M_InverseTriang(t.data(), 2, 0, t.data(), 1e-12), 0);
    EXPECT_EQ(valuesOf(t), (numbers{0.5, 0, -0.375, 0.25}));
}

TEST(FlatTriangularInverse, SaysWhenItFails)
{
    const numbers t{2, 0, 3, 0.5};
    guarded<double> inverse(numbers(4, 0.0));
    EXPECT_EQ(VB_M_InverseTriang(t.data(), 2, 0, inverse.data(), 0.75), -1);
    EXPECT_EQ(valuesOf(inverse), (numbers{0.5, 0, 0, 0}));
    EXPECT_EQ(VB_M_InverseTriang(nullptr, 0, 0, nullptr, 0.75), 0);
}
