#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatCholesky, GivesTheFactorAndTheColumnsFinishedBeforeAFailure)
{
    guarded<double> a{4, 2, -2, 2, 10, 5, -2, 5, 9};
    guarded<double> l(std::vector<double>(9, 7.0));
    EXPECT_EQ(VB_M_CholDecomp(a.data(), 3, l.data()), 0);
    expectCells(l, {2, 1, -1, 0, 3, 2, 0, 0, 2});
    EXPECT_EQ(VB_M_CholDecomp(a.data(), 3, a.data()), 0) << "over its own table";
    expectCells(a, {2, 1, -1, 0, 3, 2, 0, 0, 2});
    guarded<double> bad{4, 2, -2, 2, 1, 5, -2, 5, 9};
    EXPECT_EQ(VB_M_CholDecomp(bad.data(), 3, l.data()), -1);
    expectCells(l, {2, 1, -1, 0, 0, 0, 0, 0, 0});
}

TEST(FlatCholesky, WithPivotingTellsTheOrderAndReplacesItsInputOnDemand)
{
    const std::vector<double> table{1, 2, 3, 2, 4, 5, 3, 5, 9};
    for (const short int replace : {short{0}, short{-1}, short{1}}) {
        guarded<double> a(table);
        guarded<double> l(std::vector<double>(9, 7.0));
        guarded<int> perm{9, 9, 9};
        EXPECT_EQ(VB_M_CholDecompPrinc(a.data(), 3, l.data(), perm.data(), replace), -1);
        expectCells(l, {3, 1, 5.0 / 3.0, 0, 0, 0, 0, 0, 0});
        EXPECT_EQ(valuesOf(perm), (std::vector<int>{3, 1, 2}));
        expectCells(a, replace == -1 ? std::vector<double>{9, 3, 5, 3, 1, 2, 5, 2, 4} : table);
    }
}
