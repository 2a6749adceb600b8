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
