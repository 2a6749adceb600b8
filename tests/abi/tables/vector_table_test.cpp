#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_cells.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

int toVector(double* x, int rows, int cols, double* v)
{
    return Cpp_M_CopyTabletoVectorByRowDbl(x, rows, cols, v);
}
int toVector(OLECHAR** x, int rows, int cols, OLECHAR** v)
{
    return Cpp_M_CopyTabletoVectorByRowStr(x, rows, cols, v);
}
int toTable(double* v, int rows, int cols, double* x)
{
    return Cpp_M_CopyVectortoTableByRowDbl(v, rows, cols, x);
}
int toTable(OLECHAR** v, int rows, int cols, OLECHAR** x)
{
    return Cpp_M_CopyVectortoTableByRowStr(v, rows, cols, x);
}

struct by_row_case {
    int rows;
    int cols;
    codes table;
    codes vector;
};

const std::vector<by_row_case> cases{
    {1, 1, {1}, {1}},
    {3, 1, {1, 2, 3}, {1, 2, 3}},
    {1, 3, {1, 2, 3}, {1, 2, 3}},
    {2, 3, {1, 2, 3, 4, 5, 6}, {1, 3, 5, 2, 4, 6}},
    {3, 2, {1, 2, 3, 4, 5, 6}, {1, 4, 2, 5, 3, 6}},
};

template <class T>
class FlatVectorByRow : public ::testing::Test
{
};
using element_types = ::testing::Types<double, text_cell>;
TYPED_TEST_SUITE(FlatVectorByRow, element_types);

} // namespace

TYPED_TEST(FlatVectorByRow, GoesToAVectorAndBack)
{
    for (const by_row_case& given : cases) {
        const codes& table = given.table;
        const codes& vector = given.vector;
        caller_cells<TypeParam> x(table);
        caller_cells<TypeParam> v(codes(table.size()));
        EXPECT_EQ(toVector(x.data(), given.rows, given.cols, v.data()), 0);
        EXPECT_EQ(v.values(), vector) << given.rows << " by " << given.cols;
        EXPECT_EQ(x.values(), table);

        caller_cells<TypeParam> back(codes(table.size()));
        EXPECT_EQ(toTable(v.data(), given.rows, given.cols, back.data()), 0);
        EXPECT_EQ(back.values(), table) << given.rows << " by " << given.cols;
        EXPECT_EQ(v.values(), vector);

        EXPECT_EQ(toVector(x.data(), given.rows, given.cols, x.data()), 0);
        EXPECT_EQ(x.values(), vector) << "one array for both";
        EXPECT_EQ(toTable(x.data(), given.rows, given.cols, x.data()), 0);
        EXPECT_EQ(x.values(), table) << "one array for both";
    }
}

TYPED_TEST(FlatVectorByRow, WithoutRowsOrColumnsWritesNothing)
{
    const codes cells{1, 2};
    caller_cells<TypeParam> x(cells);
    caller_cells<TypeParam> v(cells);
    EXPECT_EQ(toVector(x.data(), 0, 2, v.data()), 0);
    EXPECT_EQ(toTable(v.data(), 0, 2, x.data()), 0);
    EXPECT_EQ(toVector(x.data(), 2, 0, v.data()), 0);
    EXPECT_EQ(toTable(v.data(), 2, 0, x.data()), 0);
    EXPECT_EQ(x.values(), cells);
    EXPECT_EQ(v.values(), cells);
}

TEST(FlatVectorByColumn, IsTheTableInLinearOrder)
{
    const doubles cells{1, missing, -0.0, notANumber, 5, 6};
    guarded<double> x(cells);
    guarded<double> v(doubles(6));
    EXPECT_EQ(Cpp_MatToVect(x.data(), 2, 3, v.data()), 0);
    const doubles found = valuesOf(v);
    for (std::size_t k = 0; k < 6; ++k) {
        EXPECT_SAME_BITS(found[k], cells[k]);
    }
    guarded<double> none(doubles{7});
    EXPECT_EQ(Cpp_MatToVect(x.data(), 0, 3, none.data()), 0);
    EXPECT_EQ(Cpp_MatToVect(x.data(), 2, 0, none.data()), 0);
    EXPECT_EQ(valuesOf(none), doubles{7});
}

TEST(FlatVectorByColumn, ReturnsToATableWithItsMissingCells)
{
    guarded<double> v(doubles{1, 2, 3, 4, 5, 6});
    guarded<double> pattern(doubles{0, missing, 9, notANumber, -0.0, missing});
    guarded<double> x(doubles(6));
    EXPECT_EQ(Cpp_VectToMat(v.data(), pattern.data(), 3, 2, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, missing, 3, 4, 5, missing}));
    EXPECT_EQ(valuesOf(v), (doubles{1, 2, 3, 4, 5, 6}));

    EXPECT_EQ(Cpp_VectToMat(v.data(), pattern.data(), 5, 1, v.data() + 1), 0);
    EXPECT_EQ(valuesOf(v), (doubles{1, 1, missing, 3, 4, 5})) << "read before it is written over";
    EXPECT_EQ(Cpp_VectToMat(x.data(), pattern.data(), 5, 1, pattern.data() + 1), 0);
    EXPECT_EQ(valuesOf(pattern), (doubles{0, 1, missing, 3, 4, 5})) << "read before it is written over";

    guarded<double> none(doubles{7});
    EXPECT_EQ(Cpp_VectToMat(v.data(), pattern.data(), 0, 2, none.data()), 0);
    EXPECT_EQ(Cpp_VectToMat(v.data(), pattern.data(), 2, 0, none.data()), 0);
    EXPECT_EQ(valuesOf(none), doubles{7});
}

TEST(FlatVectorByColumn, GoesThereAndBack)
{
    const doubles cells{1, missing, 3, missing, 5, 6};
    guarded<double> x(cells);
    guarded<double> v(doubles(6));
    Cpp_MatToVect(x.data(), 2, 3, v.data());
    Cpp_VectToMat(v.data(), x.data(), 2, 3, v.data());
    EXPECT_EQ(valuesOf(v), cells);
}
