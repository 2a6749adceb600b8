#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

} // namespace

TEST(FlatSymmetricEigen, ValuesAndVectors)
{
    guarded a({2.0, 1.0, 1.0, 2.0});
    guarded values({9.0, 9.0});
    guarded vectors({9.0, 9.0, 9.0, 9.0});
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), vectors.data(), 2, -1), 0);
    const numbers found = valuesOf(values);
    EXPECT_NEAR(found[0], 3.0, 1e-15);
    EXPECT_NEAR(found[1], 1.0, 1e-15);
    const numbers cells = valuesOf(vectors);
    const double half = std::sqrt(0.5);
    EXPECT_NEAR(std::fabs(cells[0]), half, 1e-15);
    EXPECT_NEAR(cells[0], cells[1], 1e-15);
    EXPECT_NEAR(cells[2], -cells[3], 1e-15);
    expectCells(a, {2.0, 1.0, 1.0, 2.0});
}

TEST(FlatSymmetricEigen, ADiagonalTableSortedAndNot)
{
    guarded a({1.0, 0.0, 0.0, 0.0, 3.0, 0.0, 0.0, 0.0, 2.0});
    guarded values({9.0, 9.0, 9.0});
    guarded vectors(numbers(9, 9.0));
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), vectors.data(), 3, 1), 0);
    expectCells(values, {1, 3, 2});
    expectCells(vectors, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), vectors.data(), 3, -1), 0);
    expectCells(values, {3, 2, 1});
    expectCells(vectors, {0, 1, 0, 0, 0, 1, 1, 0, 0});
}

TEST(FlatSymmetricEigen, AFailureLeavesTheResults)
{
    guarded a({2.0, MISSING_DBL, 1.0, 2.0});
    guarded values({9.0, 9.0});
    guarded vectors({9.0, 9.0, 9.0, 9.0});
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), vectors.data(), 2, -1), -1);
    a.data()[1] = std::nan("");
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), vectors.data(), 2, -1), -1) << "no convergence";
    expectCells(values, {9, 9});
    expectCells(vectors, {9, 9, 9, 9});
}

TEST(FlatSymmetricEigen, OneArrayForTableAndVectorsAndNoneForOrderZero)
{
    guarded a({2.0, 0.0, 0.0, 5.0});
    guarded values({9.0, 9.0});
    EXPECT_EQ(VB_M_Eigen(a.data(), values.data(), a.data(), 2, -1), 0);
    expectCells(values, {5, 2});
    expectCells(a, {0, 1, 1, 0});
    EXPECT_EQ(VB_M_Eigen(nullptr, nullptr, nullptr, 0, -1), 0);
    guarded one({-4.0});
    guarded unit({9.0});
    EXPECT_EQ(VB_M_Eigen(one.data(), values.data(), unit.data(), 1, -1), 0);
    expectCells(values, {-4, 2});
    expectCells(unit, {1});
}

TEST(FlatSymmetricEigen, OfATriangleOfColumns)
{
    caller_columns triangle({{1, 0, 0}, {3, 0}, {2}});
    caller_columns vectors({{9, 9, 9}, {9, 9, 9}, {9, 9, 9}});
    guarded values({9.0, 9.0, 9.0});
    EXPECT_EQ(Cpp_M_EigenSPV_T(triangle.argument(), values.data(), vectors.argument(), 3, -1), 0);
    expectCells(values, {3, 2, 1});
    EXPECT_EQ(vectors.values(), (caller_columns::columns{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}));
    EXPECT_EQ(triangle.values(), (caller_columns::columns{{1, 0, 0}, {3, 0}, {2}}));
    EXPECT_EQ(Cpp_M_EigenSPV_T(triangle.argument(), values.data(), vectors.argument(), 3, 0), 0);
    expectCells(values, {1, 3, 2});
}

TEST(FlatSymmetricEigen, ATriangleWithAMissingElementLeavesTheResults)
{
    caller_columns triangle({{1, MISSING_DBL}, {3}});
    caller_columns vectors({{9, 9}, {9, 9}});
    guarded values({9.0, 9.0});
    EXPECT_EQ(Cpp_M_EigenSPV_T(triangle.argument(), values.data(), vectors.argument(), 2, -1), -1);
    expectCells(values, {9, 9});
    EXPECT_EQ(vectors.values(), (caller_columns::columns{{9, 9}, {9, 9}}));
}
