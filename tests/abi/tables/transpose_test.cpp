#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/bits.h"
#include "support/caller_cells.h"
#include "support/caller_tables.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

int transpose(double* x, int rows, int cols, double* y)
{
    return VB_M_Transpose(x, rows, cols, y);
}
int transpose(int* x, int rows, int cols, int* y)
{
    return VB_M_TransposeLng(x, rows, cols, y);
}
int transpose(OLECHAR** x, int rows, int cols, OLECHAR** y)
{
    return VB_M_TransposeStr(x, rows, cols, y);
}

int transposeInPlace(double* x, int rows, int cols)
{
    return VB_M_Transpose2(x, rows, cols);
}
int transposeInPlace(int* x, int rows, int cols)
{
    return VB_M_Transpose2Lng(x, rows, cols);
}
int transposeInPlace(OLECHAR** x, int rows, int cols)
{
    return VB_M_Transpose2Str(x, rows, cols);
}

struct transpose_case {
    int rows;
    int cols;
    codes cells;
    codes transposed;
};

const std::vector<transpose_case> cases{
    {1, 1, {1}, {1}},
    {3, 1, {1, 2, 3}, {1, 2, 3}},
    {1, 3, {1, 2, 3}, {1, 2, 3}},
    {2, 3, {1, 2, 3, 4, 5, 6}, {1, 3, 5, 2, 4, 6}},
    {3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9}, {1, 4, 7, 2, 5, 8, 3, 6, 9}},
    {5, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {1, 6, 2, 7, 3, 8, 4, 9, 5, 10}},
};

template <class T>
class FlatTranspose : public ::testing::Test
{
};
using element_types = ::testing::Types<double, int, text_cell>;
TYPED_TEST_SUITE(FlatTranspose, element_types);

} // namespace

TYPED_TEST(FlatTranspose, TurnsRowsIntoColumns)
{
    for (const transpose_case& given : cases) {
        caller_cells<TypeParam> x(given.cells);
        caller_cells<TypeParam> y(codes(given.cells.size()));
        EXPECT_EQ(transpose(x.data(), given.rows, given.cols, y.data()), 0);
        EXPECT_EQ(y.values(), given.transposed) << given.rows << " by " << given.cols;
        EXPECT_EQ(x.values(), given.cells) << "the source stays";
    }
}

TYPED_TEST(FlatTranspose, WorksInPlace)
{
    for (const transpose_case& given : cases) {
        caller_cells<TypeParam> x(given.cells);
        EXPECT_EQ(transposeInPlace(x.data(), given.rows, given.cols), 0);
        EXPECT_EQ(x.values(), given.transposed) << given.rows << " by " << given.cols;
    }
}

TYPED_TEST(FlatTranspose, MayHaveOneArrayForBoth)
{
    for (const transpose_case& given : cases) {
        caller_cells<TypeParam> x(given.cells);
        EXPECT_EQ(transpose(x.data(), given.rows, given.cols, x.data()), 0);
        EXPECT_EQ(x.values(), given.transposed) << given.rows << " by " << given.cols;
    }
}

TYPED_TEST(FlatTranspose, WithoutRowsOrColumnsWritesNothing)
{
    caller_cells<TypeParam> x{1, 2, 3};
    caller_cells<TypeParam> y{5, 6, 7};
    for (const auto& [rows, cols] : {std::pair(2, 0), std::pair(0, 2), std::pair(0, 0)}) {
        EXPECT_EQ(transpose(x.data(), rows, cols, y.data()), 0);
        EXPECT_EQ(y.values(), (codes{5, 6, 7})) << rows << " by " << cols;
        EXPECT_EQ(transposeInPlace(x.data(), rows, cols), 0);
        EXPECT_EQ(x.values(), (codes{1, 2, 3})) << rows << " by " << cols;
    }
}

TEST(FlatTransposedNumbers, KeepTheirBits)
{
    const std::vector<double> cells{-1.79769313486231e308, notANumber, -0.0, -infinite, 5e-324,
                                    belowSentinel};
    guarded<double> x(cells);
    guarded<double> y(std::vector<double>(6));
    VB_M_Transpose(x.data(), 3, 2, y.data());
    VB_M_Transpose2(x.data(), 3, 2);
    const auto once = valuesOf(y);
    const auto inPlace = valuesOf(x);
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 2; ++j) {
            EXPECT_SAME_BITS(once[j + 2 * i], cells[i + 3 * j]);
            EXPECT_SAME_BITS(inPlace[j + 2 * i], cells[i + 3 * j]);
        }
    }
}

TEST(FlatTransposedTexts, KeepABstrThatReadsTheSame)
{
    text_block x({u"a", u"b", u"c", u"d"});
    BSTR const corner = x.data()[0];
    const automation_watch watch;
    VB_M_Transpose2Str(x.data(), 2, 2);
    EXPECT_EQ(x.values(), (texts{u"a", u"c", u"b", u"d"}));
    EXPECT_EQ(x.data()[0], corner);
    EXPECT_TRUE(watch.texts(2, 2));
}

TEST(FlatTransposedChunks, TurnRowsIntoChunks)
{
    caller_columns x({{1, 2, 3}, {4, 5, 6}});
    caller_columns y({{0, 0}, {0, 0}, {0, 0}});
    EXPECT_EQ(VB_M_TransposeSPV(x.argument(), 3, 2, y.argument()), 0);
    EXPECT_EQ(y.values(), (caller_columns::columns{{1, 4}, {2, 5}, {3, 6}}));
    EXPECT_EQ(x.values(), (caller_columns::columns{{1, 2, 3}, {4, 5, 6}}));

    caller_columns untouched(caller_columns::columns(1, {7}));
    EXPECT_EQ(VB_M_TransposeSPV(x.argument(), 0, 2, untouched.argument()), 0);
    EXPECT_EQ(untouched.values(), caller_columns::columns(1, {7}));
}
