#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatLU, FactorisesInPlaceAndTellsTheSignAsANumber)
{
    guarded<double> a{10, 1, 1000, 1};
    guarded<int> pivots{9, 9};
    guarded<double> sign{1e300};
    guarded<short int> error{9};
    EXPECT_EQ(VB_M_LUDecomp(a.data(), 2, pivots.data(), sign.data(), error.data()), 0);
    expectCells(a, {1, 10, 1, 990});
    EXPECT_EQ(valuesOf(pivots), (std::vector<int>{2, 2}));
    expectCells(sign, {-1});
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{0}));
}

TEST(FlatLU, OfARowOfZerosTellsItInTheErrorOnly)
{
    guarded<double> a{1, 0, 1, 0};
    guarded<int> pivots{9, 9};
    guarded<double> sign{-5};
    guarded<short int> error{9};
    EXPECT_EQ(VB_M_LUDecomp(a.data(), 2, pivots.data(), sign.data(), error.data()), 0);
    expectCells(a, {1, 0, 1, 0});
    EXPECT_EQ(valuesOf(pivots), (std::vector<int>{0, 0}));
    expectCells(sign, {1});
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{-1}));
}
