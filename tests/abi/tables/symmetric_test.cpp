#include "abi/tables/square_forms.h"
#include "support/special_values.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

template <class Form>
class FlatSymmetric : public ::testing::Test
{
};
TYPED_TEST_SUITE(FlatSymmetric, square_forms);

} // namespace

TYPED_TEST(FlatSymmetric, IsSymmetricWhenThePairsAreExactlyEqual)
{
    struct given {
        int n;
        doubles cells;
        short int expected;
    };
    for (const given& table : std::vector<given>{
             {1, {5}, -1},
             {1, {notANumber}, -1},
             {2, {1, 2, 2, 3}, -1},
             {2, {1, 2, std::nextafter(2.0, 3.0), 3}, 0},
             {2, {1, 0.0, -0.0, 3}, -1},
             {2, {1, missing, missing, 3}, -1},
             {2, {1, missing, 2, 3}, 0},
             {2, {notANumber, 2, 2, notANumber}, -1},
             {2, {1, notANumber, notANumber, 3}, 0},
             {3, {1, 2, 3, 2, 5, 6, 3, 6, 9}, -1},
             {3, {1, 2, 3, 2, 5, 6, 3, 7, 9}, 0},
         }) {
        TypeParam x(table.cells, table.n);
        EXPECT_EQ(x.isSymmetric(), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.cells);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    none.order = 0;
    EXPECT_EQ(none.isSymmetric(), -1);
}

TYPED_TEST(FlatSymmetric, SymmetrizeTakesTheMeanOfEachPair)
{
    TypeParam x({1, 2, missing, 6, 5, missing, 4, missing, notANumber}, 3);
    EXPECT_EQ(x.symmetrize(), 0);
    expectCells(x.cells(), {1, 4, 4, 4, 5, missing, 4, missing, notANumber});
    EXPECT_EQ(x.symmetrize(), 0);
    expectCells(x.cells(), {1, 4, 4, 4, 5, missing, 4, missing, notANumber});

    constexpr double smallest = 5e-324;
    TypeParam exact({1, smallest, belowSentinel, smallest, 1, 2, 2, belowSentinel, 1}, 3);
    exact.symmetrize();
    constexpr double half = belowSentinel / 2.0;
    expectCells(exact.cells(), {1, smallest, half, smallest, 1, half, half, half, 1});

    TypeParam y({1, 3, missing, 4}, 2);
    y.symmetrize();
    expectCells(y.cells(), {1, 3, 3, 4});
    y.order = 0;
    y.symmetrize();
    expectCells(y.cells(), {1, 3, 3, 4});
}

TEST(FlatSymmetricTable, IsMadeSymmetricInItsTopLeftCorner)
{
    guarded<double> x(doubles{1, 2, 9, 4, 1, 9});
    VB_M_Symmetrize(x.data(), 3, 2);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 9, 3, 1, 9}));
    guarded<double> wide(doubles{1, 2, 4, 1, 9, 9});
    VB_M_Symmetrize(wide.data(), 2, 3);
    EXPECT_EQ(valuesOf(wide), (doubles{1, 3, 3, 1, 9, 9}));
    caller_columns columns({{1, 2, 9}, {4, 1, 9}});
    VB_M_SymmetrizeSPV(columns.argument(), 3, 2);
    EXPECT_EQ(columns.values(), (caller_columns::columns{{1, 3, 9}, {3, 1, 9}}));
}

TEST(FlatSymmetricTable, HasAConstantDiagonal)
{
    guarded<double> x(doubles{2, 1, 5, 7, 2, 1, 0, 3, 2});
    EXPECT_EQ(VB_M_IsDiagConstant(x.data(), 3), -1);
    guarded<double> other(doubles{2, 1, 5, 7, 2, 1, 0, 3, std::nextafter(2.0, 3.0)});
    EXPECT_EQ(VB_M_IsDiagConstant(other.data(), 3), 0);
    guarded<double> none(doubles{missing, 1, 1, missing});
    EXPECT_EQ(VB_M_IsDiagConstant(none.data(), 2), -1);
    guarded<double> nans(doubles{notANumber, 1, 1, notANumber});
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 2), 0);
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 1), -1);
    EXPECT_EQ(VB_M_IsDiagConstant(nans.data(), 0), -1);
}

TEST(FlatSymmetricTable, IsPackedRowAfterRow)
{
    // 1 . .
    // 2 3 .
    // 4 5 6
    guarded<double> x(doubles{1, 2, 4, 77, 3, 5, 77, 77, 6});
    guarded<double> v(doubles(6));
    EXPECT_EQ(Cpp_M_CopySymMatToVector(x.data(), 3, v.data()), 0);
    EXPECT_EQ(valuesOf(v), (doubles{1, 2, 3, 4, 5, 6}));
    guarded<double> y(doubles(9));
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(v.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6}));

    EXPECT_EQ(Cpp_M_CopySymMatToVector(y.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 3, 4, 5, 6, 4, 5, 6})) << "one array for both";
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(y.data(), 3, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6})) << "one array for both";

    EXPECT_EQ(Cpp_M_CopySymMatToVector(x.data(), 0, v.data()), 0);
    EXPECT_EQ(Cpp_M_CopyVectorToSymMat(v.data(), 0, y.data()), 0);
    EXPECT_EQ(valuesOf(v), (doubles{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 4, 2, 3, 5, 4, 5, 6}));
}
