#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

/** 2 rows by 3 columns, one cell of them missing. */
const std::vector<double> table{1.0, 2.0, 3.0, MISSING_DBL, 5.0, 6.0};

} // namespace

TEST(FlatElementWise, TimesANumber)
{
    guarded a(table);
    guarded c(std::vector<double>(6, 0.5));
    EXPECT_EQ(VB_M_ScalarsA(a.data(), 2, 3, -2.0, c.data()), 0);
    expectCells(c, {-2.0, -4.0, -6.0, MISSING_DBL, -10.0, -12.0});
    expectCells(a, table);

    EXPECT_EQ(VB_M_ScalarsTrA(a.data(), 2, 3, 10.0, c.data()), 0);
    expectCells(c, {10.0, 30.0, 50.0, 20.0, MISSING_DBL, 60.0});

    EXPECT_EQ(VB_M_ScalarsA2(a.data(), 2, 3, 0.5), 0);
    expectCells(a, {0.5, 1.0, 1.5, MISSING_DBL, 2.5, 3.0});

    EXPECT_EQ(Cpp_MultiplyByVal(a.data(), 3, 2, 0.5), 0);
    expectCells(a, {0.25, 0.5, 0.75, MISSING_DBL * 0.5, 1.25, 1.5});
}

TEST(FlatElementWise, TheResultMayBeAnArgument)
{
    guarded a(table);
    EXPECT_EQ(VB_M_ScalarsTrA(a.data(), 2, 3, 10.0, a.data()), 0);
    expectCells(a, {10.0, 30.0, 50.0, 20.0, MISSING_DBL, 60.0});
    guarded b({1.0, 2.0});
    EXPECT_EQ(VB_M_ProductByElement(b.data(), 2, 1, b.data(), b.data()), 0);
    expectCells(b, {1.0, 4.0});
}

TEST(FlatElementWise, PlusANumber)
{
    guarded a(table);
    guarded c(std::vector<double>(6, 0.5));
    EXPECT_EQ(VB_M_APlusVal(a.data(), 2, 3, 1e300, c.data()), 0);
    expectCells(c, {1e300, 1e300, 1e300, MISSING_DBL + 1e300, 1e300, 1e300});
    EXPECT_EQ(VB_M_APlusVal2(a.data(), 2, 3, 0.5), 0);
    expectCells(a, {1.5, 2.5, 3.5, MISSING_DBL, 5.5, 6.5});
}

TEST(FlatElementWise, Squares)
{
    guarded a(table);
    EXPECT_EQ(VB_M_Square(a.data(), 2, 3), 0);
    expectCells(a, {1.0, 4.0, 9.0, MISSING_DBL, 25.0, 36.0});
}

TEST(FlatElementWise, TwoTables)
{
    guarded a({1.0, 2.0, 3.0, 4.0});
    guarded b({0.5, -1.0, 2.0, 0.25});
    guarded c(std::vector<double>(4, 9.0));
    EXPECT_EQ(VB_M_ProductByElement(a.data(), 2, 2, b.data(), c.data()), 0);
    expectCells(c, {0.5, -2.0, 6.0, 1.0});
    EXPECT_EQ(Cpp_SumMat(a.data(), b.data(), 2, 2, c.data()), 0);
    expectCells(c, {1.5, 1.0, 5.0, 4.25});
}

TEST(FlatElementWise, NothingIsReadOrWrittenWithoutCells)
{
    EXPECT_EQ(VB_M_ScalarsA(nullptr, 0, 2, 1.0, nullptr), 0);
    EXPECT_EQ(VB_M_ScalarsA2(nullptr, 0, 2, 1.0), 0);
    EXPECT_EQ(VB_M_ScalarsTrA(nullptr, 2, 0, 1.0, nullptr), 0);
    EXPECT_EQ(VB_M_APlusVal(nullptr, 0, 2, 1.0, nullptr), 0);
    EXPECT_EQ(VB_M_APlusVal2(nullptr, 2, 0, 1.0), 0);
    EXPECT_EQ(VB_M_Square(nullptr, 0, 0), 0);
    EXPECT_EQ(VB_M_ProductByElement(nullptr, 0, 2, nullptr, nullptr), 0);
    EXPECT_EQ(Cpp_SumMat(nullptr, nullptr, 0, 2, nullptr), 0);
    EXPECT_EQ(Cpp_MultiplyByVal(nullptr, 0, 2, 1.0), 0);
}
