#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatEigenvalueFilter, CountsAndShares)
{
    guarded values({6.0, 3.0, 1.0, 0.5});
    guarded percents({9.0, 9.0, 9.0, 9.0});
    guarded kept({9});
    guarded retained({9});
    EXPECT_EQ(VB_FilterEigen(values.data(), 4, -1, 1.0, 75.0, 3, 2.0, kept.data(), retained.data(),
                             percents.data()),
              0);
    EXPECT_EQ(valuesOf(kept)[0], 3);
    EXPECT_EQ(valuesOf(retained)[0], 2);
    expectCells(percents, {6 / 0.1, 3 / 0.1, 1 / 0.1, 0.0});
    expectCells(values, {6, 3, 1, 0.5});
}

TEST(FlatEigenvalueFilter, TheLastValueMayBecomeZeroInPlace)
{
    guarded values({6.0, -3.0});
    guarded percents({9.0, 9.0});
    guarded kept({9});
    guarded retained({9});
    EXPECT_EQ(
        VB_FilterEigen(values.data(), 2, 0, 0.0, 0.0, 0, 0.0, kept.data(), retained.data(), percents.data()),
        0);
    expectCells(values, {6, 0});
    EXPECT_EQ(valuesOf(kept)[0], 2);
}
