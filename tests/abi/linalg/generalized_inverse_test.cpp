#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatGeneralizedInverse, DropsWhatIsBelowTheTolerance)
{
    const numbers a{2, 0, 0, 0.5};
    guarded<double> g(numbers(4, 9.0));
    int rank = -1;
    EXPECT_EQ(VB_M_InvGeneralized(a.data(), 2, g.data(), 0.5, &rank), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, 0, 0, 2}));
    EXPECT_EQ(rank, 2);
    EXPECT_EQ(VB_M_InvGeneralized(a.data(), 2, g.data(), 0.75, &rank), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, 0, 0, 0}));
    EXPECT_EQ(rank, 1);
    EXPECT_EQ(VB_M_InvGeneralizedSym(a.data(), 2, g.data(), 0.75, &rank), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, 0, 0, 0}));
    EXPECT_EQ(rank, 1);
    EXPECT_EQ(a, (numbers{2, 0, 0, 0.5}));
}

TEST(FlatGeneralizedInverse, OfZerosHasNoRank)
{
    guarded<double> a(numbers(4, 0.0));
    int rank = -1;
    EXPECT_EQ(VB_M_InvGeneralized(a.data(), 2, a.data(), 1e-12, &rank), 0);
    EXPECT_EQ(rank, 0);
    EXPECT_EQ(valuesOf(a), numbers(4, 0.0));
    EXPECT_EQ(VB_M_Rank(a.data(), 2, 2), 0);
}

TEST(FlatGeneralizedInverse, SaysWhenNothingConverged)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const numbers a{1, 2, nan, 3};
    guarded<double> g(numbers(4, 9.0));
    int rank = -1;
    EXPECT_EQ(VB_M_InvGeneralized(a.data(), 2, g.data(), 1e-12, &rank), -1);
    EXPECT_EQ(VB_M_InvGeneralizedSym(a.data(), 2, g.data(), 1e-12, &rank), -1);
    EXPECT_EQ(VB_M_Rank(a.data(), 2, 2), -1);
}

TEST(FlatRank, CountsDirections)
{
    const numbers a{1, 2, 0, 5, 2, 4, 1, 5, 3, 6, 1, 10};
    EXPECT_EQ(VB_M_Rank(a.data(), 4, 3), 2);
    EXPECT_EQ(VB_M_Rank(nullptr, 0, 0), 0);
}
