#include "frames/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_tables.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

using doubles = std::vector<double>;

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
    std::vector<int> table;
    std::vector<int> vector;
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
using element_types = ::testing::Types<double, std::u16string>;
TYPED_TEST_SUITE(FlatVectorByRow, element_types);

} // namespace

TYPED_TEST(FlatVectorByRow, GoesToAVectorAndBack)
{
    for (const by_row_case& given : cases) {
        const auto table = cellsFor<TypeParam>(given.table);
        const auto vector = cellsFor<TypeParam>(given.vector);
        caller_block<TypeParam> x(table);
        caller_block<TypeParam> v{std::vector<TypeParam>(table.size())};
        EXPECT_EQ(toVector(x.argument(), given.rows, given.cols, v.argument()), 0);
        EXPECT_EQ(v.cells(), vector) << given.rows << " by " << given.cols;
        EXPECT_EQ(x.cells(), table);

        caller_block<TypeParam> back{std::vector<TypeParam>(table.size())};
        EXPECT_EQ(toTable(v.argument(), given.rows, given.cols, back.argument()), 0);
        EXPECT_EQ(back.cells(), table) << given.rows << " by " << given.cols;
        EXPECT_EQ(v.cells(), vector);

        EXPECT_EQ(toVector(x.argument(), given.rows, given.cols, x.argument()), 0);
        EXPECT_EQ(x.cells(), vector) << "one array for both";
        EXPECT_EQ(toTable(x.argument(), given.rows, given.cols, x.argument()), 0);
        EXPECT_EQ(x.cells(), table) << "one array for both";
    }
}

TYPED_TEST(FlatVectorByRow, WithoutRowsWritesNothing)
{
    const auto cells = cellsFor<TypeParam>({1, 2});
    caller_block<TypeParam> x(cells);
    caller_block<TypeParam> v(cells);
    EXPECT_EQ(toVector(x.argument(), 0, 2, v.argument()), 0);
    EXPECT_EQ(toTable(v.argument(), 0, 2, x.argument()), 0);
    EXPECT_EQ(x.cells(), cells);
    EXPECT_EQ(v.cells(), cells);
}

TEST(FlatVectorByColumn, IsTheTableInLinearOrder)
{
    const doubles cells{1, missing, -0.0, notANumber, 5, 6};
    caller_block<double> x(cells);
    caller_block<double> v(doubles(6));
    EXPECT_EQ(Cpp_MatToVect(x.argument(), 2, 3, v.argument()), 0);
    const doubles found = v.cells();
    for (std::size_t k = 0; k < 6; ++k) {
        EXPECT_TRUE(sameBits(found[k], cells[k]));
    }
    caller_block<double> none(doubles{7});
    EXPECT_EQ(Cpp_MatToVect(x.argument(), 0, 3, none.argument()), 0);
    EXPECT_EQ(Cpp_MatToVect(x.argument(), 2, 0, none.argument()), 0);
    EXPECT_EQ(none.cells(), doubles{7});
}

TEST(FlatVectorByColumn, ReturnsToATableWithItsMissingCells)
{
    caller_block<double> v(doubles{1, 2, 3, 4, 5, 6});
    caller_block<double> pattern(doubles{0, missing, 9, notANumber, -0.0, missing});
    caller_block<double> x(doubles(6));
    EXPECT_EQ(Cpp_VectToMat(v.argument(), pattern.argument(), 3, 2, x.argument()), 0);
    EXPECT_EQ(x.cells(), (doubles{1, missing, 3, 4, 5, missing}));
    EXPECT_EQ(v.cells(), (doubles{1, 2, 3, 4, 5, 6}));

    caller_block<double> none(doubles{7});
    EXPECT_EQ(Cpp_VectToMat(v.argument(), pattern.argument(), 0, 2, none.argument()), 0);
    EXPECT_EQ(Cpp_VectToMat(v.argument(), pattern.argument(), 2, 0, none.argument()), 0);
    EXPECT_EQ(none.cells(), doubles{7});
}

TEST(FlatVectorByColumn, GoesThereAndBack)
{
    const doubles cells{1, missing, 3, missing, 5, 6};
    caller_block<double> x(cells);
    caller_block<double> v(doubles(6));
    Cpp_MatToVect(x.argument(), 2, 3, v.argument());
    Cpp_VectToMat(v.argument(), x.argument(), 2, 3, v.argument());
    EXPECT_EQ(v.cells(), cells);
}
