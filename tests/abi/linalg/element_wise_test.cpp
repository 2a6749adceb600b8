#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

void expectCells(const guarded<double>& actual, const std::vector<double>& expected)
{
    const auto cells = valuesOf(actual);
    ASSERT_EQ(cells.size(), expected.size());
    for (std::size_t k = 0; k < cells.size(); ++k) {
        EXPECT_TRUE(sameBits(cells[k], expected[k])) << "cell " << k;
    }
}

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

TEST(FlatDiagonalScaling, DiagonalsOfTables)
{
    guarded a({1.0, 2.0, 3.0, 4.0, 5.0, 6.0});
    guarded d({2.0, 99.0, 99.0, 99.0, 3.0, 99.0, 99.0, 99.0, 4.0});
    guarded c(std::vector<double>(6, 0.5));
    EXPECT_EQ(VB_M_ProductADiag(a.data(), 2, 3, d.data(), c.data()), 0);
    expectCells(c, {2.0, 4.0, 9.0, 12.0, 20.0, 24.0});
    guarded e({2.0, 99.0, 99.0, 3.0});
    EXPECT_EQ(VB_M_ProductTrADiag(a.data(), 2, 3, e.data(), c.data()), 0);
    expectCells(c, {2.0, 6.0, 10.0, 6.0, 12.0, 18.0});
    EXPECT_EQ(VB_M_ProductTrADiag(a.data(), 2, 3, e.data(), a.data()), 0);
    expectCells(a, {2.0, 6.0, 10.0, 6.0, 12.0, 18.0});
}

TEST(FlatDiagonalScaling, Vectors)
{
    guarded a(table);
    guarded rows({10.0, 100.0});
    guarded cols({1.0, MISSING_DBL, 3.0});
    guarded c(std::vector<double>(6, 0.5));
    constexpr double none = MISSING_DBL;
    EXPECT_EQ(VB_M_ProductADiagV(a.data(), 2, 3, cols.data(), c.data()), 0);
    expectCells(c, {1.0, 2.0, none, none, 15.0, 18.0});
    EXPECT_EQ(VB_M_ProductDiagVA(rows.data(), 2, a.data(), 3, c.data()), 0);
    expectCells(c, {10.0, 200.0, 30.0, none, 50.0, 600.0});
    EXPECT_EQ(VB_M_ProductDiagV1ADiagV2(rows.data(), 2, a.data(), 3, cols.data(), c.data()), 0);
    expectCells(c, {10.0, 200.0, none, none, 150.0, 1800.0});
    EXPECT_EQ(VB_M_ProductTrADiagV(a.data(), 2, 3, rows.data(), c.data()), 0);
    expectCells(c, {10.0, 30.0, 50.0, 200.0, MISSING_DBL * 100.0, 600.0});
    EXPECT_EQ(VB_M_ProductDiagVA(rows.data(), 2, a.data(), 3, a.data()), 0);
    expectCells(a, {10.0, 200.0, 30.0, none, 50.0, 600.0});
}

TEST(FlatDiagonalScaling, NothingIsReadOrWrittenWithoutCells)
{
    EXPECT_EQ(VB_M_ProductADiag(nullptr, 0, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_M_ProductTrADiag(nullptr, 0, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_M_ProductADiagV(nullptr, 0, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_M_ProductDiagVA(nullptr, 0, nullptr, 0, nullptr), 0);
    EXPECT_EQ(VB_M_ProductDiagV1ADiagV2(nullptr, 0, nullptr, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_M_ProductTrADiagV(nullptr, 0, 0, nullptr, nullptr), 0);
}

TEST(FlatReductions, TracesAndNorms)
{
    guarded a({1.0, -2.0, 3.0, 4.0});
    guarded b({0.5, 1.0, 2.0, -1.0});
    EXPECT_TRUE(sameBits(VB_M_Trace(a.data(), 2), 5.0));
    EXPECT_TRUE(sameBits(VB_M_Trace(nullptr, 0), 0.0));
    EXPECT_TRUE(sameBits(VB_M_FrobeniusNorm(a.data(), 2, 2, b.data()), (0.5 - 2.0) + (6.0 - 4.0)));
    EXPECT_TRUE(sameBits(VB_M_FrobeniusNorm(a.data(), 2, 2, a.data()), 30.0)) << "no root";
    EXPECT_TRUE(sameBits(VB_M_FrobeniusNorm(nullptr, 0, 0, nullptr), 0.0));
    EXPECT_TRUE(sameBits(Cpp_M_RowSumNorm(a.data(), 2, 2), 6.0));
    a.data()[3] = MISSING_DBL;
    EXPECT_TRUE(sameBits(Cpp_M_RowSumNorm(a.data(), 2, 2), 4.0));
    EXPECT_TRUE(sameBits(Cpp_M_RowSumNorm(nullptr, 0, 2), 0.0));
}

TEST(FlatVectorProducts, AllOfThem)
{
    guarded x({2.0, MISSING_DBL, -3.0});
    guarded y({0.5, 2.0, 4.0});
    guarded out(std::vector<double>(3, 9.0));
    EXPECT_TRUE(sameBits(VB_V_ProductTrV1V2(x.data(), 1, y.data()), 1.0));
    EXPECT_TRUE(sameBits(VB_V_ProductTrV1V2(x.data(), 2, y.data()), 1.0 + MISSING_DBL * 2.0));
    EXPECT_TRUE(sameBits(VB_V_ProductTrV1V2(nullptr, 0, nullptr), 0.0));
    EXPECT_EQ(VB_V_ProductV1V2(x.data(), 3, y.data(), out.data()), 0);
    expectCells(out, {1.0, MISSING_DBL, -12.0});

    guarded outer(std::vector<double>(4, 9.0));
    guarded z({3.0, 5.0});
    EXPECT_EQ(VB_V_ProductV1TrV2(z.data(), 2, y.data(), outer.data()), 0);
    expectCells(outer, {1.5, 2.5, 6.0, 10.0});

    EXPECT_EQ(VB_V_ProductV1V22(y.data(), 3, y.data()), 0);
    expectCells(y, {0.25, 4.0, 16.0});
    EXPECT_EQ(VB_V_ProductV1V22(nullptr, 0, nullptr), 0);
    EXPECT_EQ(VB_V_ProductV1V2(nullptr, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_V_ProductV1TrV2(nullptr, 0, nullptr, nullptr), 0);
}

TEST(FlatVectorProducts, ProductsOfAllElements)
{
    guarded x({0.5, 3.0, -4.0});
    EXPECT_TRUE(sameBits(VB_V_Product1toNDbl(x.data(), 3), -6.0));
    EXPECT_TRUE(sameBits(VB_V_Product1toNDbl(nullptr, 0), 1.0));
    guarded<int> k({100000, 100000, 3});
    EXPECT_TRUE(sameBits(VB_V_Product1toNLng(k.data(), 3), 3e10));
    EXPECT_TRUE(sameBits(VB_V_Product1toNLng(nullptr, 0), 1.0));
}
