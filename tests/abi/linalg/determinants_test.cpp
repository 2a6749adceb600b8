#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatDeterminants, OfATable)
{
    guarded<double> a{1, 3, 2, 4};
    guarded<short int> error{9};
    EXPECT_DOUBLE_EQ(VB_M_Determinant(a.data(), 2, error.data()), -2.0);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{0}));
    EXPECT_SAME_BITS(Cpp_M_LogDeterminant(a.data(), 2), MISSING_DBL);
    expectCells(a, {1, 3, 2, 4});
    guarded<double> swapped{3, 1, 4, 2};
    EXPECT_NEAR(Cpp_M_LogDeterminant(swapped.data(), 2), std::log(2.0), 1e-15);
}

TEST(FlatDeterminants, TellOverflow)
{
    // This way never computes the logarithm.
    guarded<double> a{-1e300, 0, 0, 1e300};
    guarded<short int> error{9};
    EXPECT_SAME_BITS(VB_M_Determinant(a.data(), 2, error.data()), 1.79769313486231e308);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{-1}));
    guarded<double> none(std::vector<double>{});
    EXPECT_SAME_BITS(VB_M_Determinant(none.data(), 0, error.data()), 1.0);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{0}));
}

TEST(FlatDeterminants, OfATriangle)
{
    guarded<double> a{2, 9, 9, -4};
    guarded<short int> error{9};
    EXPECT_DOUBLE_EQ(VB_M_DeterminantTriang(a.data(), 2, error.data()), -8.0);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{0}));
}
