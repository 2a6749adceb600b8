#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const std::vector<double> table{4, 9, 2, -2, 9, 9, 9, 9, 2, 9, 10, 5, -2, 9, 5, 9};

} // namespace

TEST(FlatConstraintCleaning, TakesTheDeterminantOfTheFreePart)
{
    guarded<double> a(table);
    guarded<int> fixed{0, 1, 0, 0};
    guarded<short int> error{9};
    EXPECT_NEAR(VB_M_DeterminantCleaned(a.data(), 4, fixed.data(), error.data()), 144.0, 1e-11);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{0}));
    caller_columns triangle({{4, 9, 2, -2}, {9, 9, 9}, {10, 5}, {9}});
    EXPECT_NEAR(Cpp_M_DeterminantCleanedSPV_T(triangle.argument(), 4, fixed.data(), error.data()), 144.0,
                1e-11);
    guarded<int> negative{0, -1, 0, 0};
    EXPECT_SAME_BITS(Cpp_M_DeterminantCleanedSPV_T(triangle.argument(), 4, negative.data(), error.data()),
                     0.0);
    EXPECT_EQ(valuesOf(error), (std::vector<short int>{-1}));
}

TEST(FlatConstraintCleaning, FactorisesTheFreePart)
{
    guarded<double> a(table);
    guarded<int> fixed{0, 1, 0, 0};
    guarded<double> l(std::vector<double>(16, 7.0));
    EXPECT_EQ(VB_M_CholDecompCleaned(a.data(), 4, fixed.data(), l.data()), 0);
    expectCells(l, {2, 0, 1, -1, 7, 7, 7, 7, 0, 0, 3, 2, 0, 0, 0, 2});
    EXPECT_EQ(VB_M_CholDecompCleaned(a.data(), 4, fixed.data(), a.data()), 0) << "over its own table";
    expectCells(a, {2, 0, 1, -1, 9, 9, 9, 9, 0, 0, 3, 2, 0, 0, 0, 2});
    guarded<double> bad{-1};
    guarded<int> none{0};
    guarded<double> kept{7};
    EXPECT_EQ(VB_M_CholDecompCleaned(bad.data(), 1, none.data(), kept.data()), -1);
    expectCells(kept, {7});
}

TEST(FlatConstraintCleaning, InvertsTheFreePart)
{
    guarded<double> h{2, 9, 0, 9, 9, 9, 0, 9, 4};
    guarded<int> fixed{0, 1, 0};
    guarded<double> inverse(std::vector<double>(9, 7.0));
    EXPECT_EQ(CleanConstraintsAndInvert(3, fixed.data(), h.data(), inverse.data()), 0);
    expectCells(inverse, {0.5, 0, 0, 7, 7, 7, 0, 0, 0.25});
    EXPECT_EQ(CleanConstraintsAndInvert(3, fixed.data(), h.data(), h.data()), 0) << "over its own table";
    expectCells(h, {0.5, 0, 0, 9, 9, 9, 0, 0, 0.25});
    guarded<double> singular{1, 1, 1, 1};
    guarded<int> none{0, 0};
    guarded<double> swept{7, 7, 7, 7};
    EXPECT_EQ(CleanConstraintsAndInvert(2, none.data(), singular.data(), swept.data()), 1);
    expectCells(swept, {1, 0, 0, 0});
}

TEST(FlatConstraintCleaning, InvertsTheFreePartOfATriangle)
{
    guarded<double> lower{2, 9, 1, 0, 9, 9, 0, 0, 4};
    guarded<int> fixed{0, 1, 0};
    guarded<double> inverse(std::vector<double>(9, 7.0));
    EXPECT_EQ(CleanConstraintsAndInvertTriang(3, fixed.data(), lower.data(), -1, inverse.data()), 0);
    expectCells(inverse, {0.5, 0, -0.125, 7, 7, 7, 0, 0, 0.25});
    guarded<double> upper{2, 0, 0, 9, 9, 0, 1, 9, 4};
    EXPECT_EQ(CleanConstraintsAndInvertTriang(3, fixed.data(), upper.data(), 0, inverse.data()), 0);
    expectCells(inverse, {0.5, 0, 0, 7, 7, 7, -0.125, 0, 0.25});
    guarded<double> singular{2, 0, 0, 0};
    guarded<int> none{0, 0};
    guarded<double> kept{7, 7, 7, 7};
    EXPECT_EQ(CleanConstraintsAndInvertTriang(2, none.data(), singular.data(), 0, kept.data()), -1);
    expectCells(kept, {7, 7, 7, 7});
}
