#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_cells.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace korvel::test;

namespace
{

/** 3 by 2: row i of column j is 10 j + i. */
const codes table{11, 12, 13, 21, 22, 23};

codes columnToColumn(int col, int yRows, int yCols, int colTo, short int bReset)
{
    caller_cells<double> x(table);
    caller_cells<double> y(codes(static_cast<std::size_t>(yRows * (yCols == 0 ? 1 : yCols)), 70));
    EXPECT_EQ(VB_CopyMatrixColToMatrixCol(x.data(), 3, 2, col, y.data(), yRows, yCols, colTo, bReset), 0);
    EXPECT_EQ(x.values(), table);
    return y.values();
}

codes rowToRow(int row, int yRows, int yCols, int rowTo, short int bReset)
{
    caller_cells<double> x(table);
    caller_cells<double> y(codes(static_cast<std::size_t>(yRows * yCols), 70));
    EXPECT_EQ(VB_CopyMatrixRowToMatrixRow(x.data(), 3, 2, row, y.data(), yRows, yCols, rowTo, bReset), 0);
    EXPECT_EQ(x.values(), table);
    return y.values();
}

template <class Cell, class Function>
void expectVector(Function copy)
{
    const auto copied = [&](int col) {
        caller_cells<Cell> x(table);
        caller_cells<Cell> y({70, 70, 70});
        EXPECT_EQ(copy(x.data(), 3, 2, col, y.data()), 0);
        EXPECT_EQ(x.values(), table);
        return y.values();
    };
    EXPECT_EQ(copied(1), (codes{11, 12, 13}));
    EXPECT_EQ(copied(2), (codes{21, 22, 23}));
    EXPECT_EQ(copied(3), codes(3, outside<Cell>));
    EXPECT_EQ(copied(0), codes(3, outside<Cell>));
    caller_cells<Cell> x({1, 2});
    caller_cells<Cell> y({70, 70});
    copy(x.data(), 2, 0, 1, y.data());
    EXPECT_EQ(y.values(), (codes{1, 2})) << "0 is one column";
}

struct part_case {
    const char* name;
    int col, from, to, row, yCol;
    codes expected; // of a table of 2 by 2 of 70
};

/** A read outside gives 99 here. */
const std::vector<part_case> partCases{
    {"two rows", 2, 2, 3, 1, 2, {70, 70, 22, 23}},
    {"one row", 1, 3, 3, 2, 1, {70, 13, 70, 70}},
    {"no rows", 1, 3, 2, 1, 1, {70, 70, 70, 70}},
    {"reaching outside", 1, 1, 3, 2, 1, {70, 11, 70, 70}},
    {"starting outside", 1, 1, 2, 0, 2, {70, 70, 12, 70}},
    {"reading outside", 2, 3, 4, 1, 1, {23, 99, 70, 70}},
    {"reading no column", 3, 1, 1, 1, 1, {99, 70, 70, 70}},
    {"to no column", 1, 1, 2, 1, 3, {70, 70, 70, 70}},
    {"to a column below 1", 1, 1, 2, 1, 0, {70, 70, 70, 70}},
};

template <class Cell>
codes withOutside(codes expected)
{
    std::replace(expected.begin(), expected.end(), 99, outside<Cell>);
    return expected;
}

template <class From, class To, class Function>
void expectParts(Function duplicate)
{
    for (const part_case& with : partCases) {
        SCOPED_TRACE(with.name);
        caller_cells<From> x(table);
        caller_cells<To> y(codes(4, 70));
        EXPECT_EQ(
            duplicate(x.data(), 3, 2, with.col, with.from, with.to, y.data(), 2, 2, with.row, with.yCol), 0);
        EXPECT_EQ(y.values(), withOutside<From>(with.expected));
        EXPECT_EQ(x.values(), table);
    }
    caller_cells<From> x({1, 2});
    caller_cells<To> y({70, 70});
    duplicate(x.data(), 2, 0, 1, 2, 2, y.data(), 2, 0, 1, 1);
    EXPECT_EQ(y.values(), (codes{2, 70})) << "0 is one column";
    if constexpr (std::same_as<From, To>) {
        caller_cells<From> within({1, 2, 3, 4});
        duplicate(within.data(), 4, 1, 1, 1, 3, within.data(), 4, 1, 2, 1);
        EXPECT_EQ(within.values(), (codes{1, 1, 2, 3})) << "within one table";
    }
}

template <class Cell, class Function>
void expectPartsOfHostArrays(Function duplicate)
{
    for (const part_case& with : partCases) {
        SCOPED_TRACE(with.name);
        caller_cells<Cell> x({3, 2}, table);
        caller_cells<Cell> y({2, 2}, codes(4, 70));
        EXPECT_EQ(duplicate(x.argument(), with.col, with.from, with.to, y.argument(), with.row, with.yCol),
                  0);
        EXPECT_EQ(y.values(), withOutside<Cell>(with.expected));
        EXPECT_EQ(x.values(), table);
    }
    caller_cells<Cell> within({1, 2, 3, 4});
    duplicate(within.argument(), 1, 1, 3, within.argument(), 2, 1);
    EXPECT_EQ(within.values(), (codes{1, 1, 2, 3})) << "within one array of one dimension";
}

} // namespace

TEST(FlatTableColumns, ColumnToColumn)
{
    EXPECT_EQ(columnToColumn(2, 3, 2, 1, 0), (codes{21, 22, 23, 70, 70, 70}));
    EXPECT_EQ(columnToColumn(1, 3, 2, 2, 0), (codes{70, 70, 70, 11, 12, 13}));
    EXPECT_EQ(columnToColumn(1, 3, 2, 2, -1), (codes{0, 0, 0, 11, 12, 13})) << "reset";
    EXPECT_EQ(columnToColumn(1, 3, 2, 1, 1), (codes{11, 12, 13, 0, 0, 0})) << "reset";
    EXPECT_EQ(columnToColumn(1, 4, 1, 1, 0), (codes{11, 12, 13, 70})) << "a longer target";
    EXPECT_EQ(columnToColumn(1, 2, 2, 1, 0), (codes{11, 12, 70, 70})) << "a shorter target";
    EXPECT_EQ(columnToColumn(3, 3, 1, 1, 0), (codes{-1, -1, -1})) << "no such column";
    EXPECT_EQ(columnToColumn(1, 3, 1, 2, 0), (codes{70, 70, 70})) << "no such column of the target";
    EXPECT_EQ(columnToColumn(1, 3, 1, 0, 0), (codes{70, 70, 70})) << "no such column of the target";
    EXPECT_EQ(columnToColumn(1, 3, 0, 1, 0), (codes{11, 12, 13})) << "0 is one column";

    caller_cells<double> within(table);
    VB_CopyMatrixColToMatrixCol(within.data(), 3, 2, 1, within.data(), 3, 2, 2, -1);
    EXPECT_EQ(within.values(), (codes{0, 0, 0, 11, 12, 13})) << "within one table";
}

TEST(FlatTableColumns, RowToRow)
{
    EXPECT_EQ(rowToRow(2, 2, 2, 1, 0), (codes{12, 70, 22, 70}));
    EXPECT_EQ(rowToRow(3, 2, 2, 2, -1), (codes{0, 13, 0, 23})) << "reset";
    EXPECT_EQ(rowToRow(3, 1, 3, 1, 0), (codes{13, 23, 70})) << "a wider target";
    EXPECT_EQ(rowToRow(3, 2, 1, 1, 0), (codes{13, 70})) << "a narrower target";
    EXPECT_EQ(rowToRow(4, 1, 2, 1, 0), (codes{-1, -1})) << "no such row";
    EXPECT_EQ(rowToRow(1, 1, 2, 2, 0), (codes{70, 70})) << "no such row of the target";
    EXPECT_EQ(rowToRow(1, 1, 2, 0, 0), (codes{70, 70})) << "no such row of the target";

    caller_cells<double> x({1, 2});
    caller_cells<double> y({70, 70});
    VB_CopyMatrixRowToMatrixRow(x.data(), 2, 0, 2, y.data(), 2, 0, 1, 0);
    EXPECT_EQ(y.values(), (codes{2, 70})) << "0 is one column";
}

TEST(FlatTableColumns, ColumnToVector)
{
    expectVector<double>(VB_CopyMatrixColToVector);
    expectVector<text_cell>(VB_CopyMatrixColToOneColMatStr);
}

TEST(FlatTableColumns, MoveRow)
{
    const auto moved = [](int cols, int from, int to) {
        caller_cells<double> x({1, 2, 3, 4, 5, 6, 7, 8});
        EXPECT_EQ(VB_M_MoveRow(x.data(), 4, cols, from, to), 0);
        return x.values();
    };
    const codes asItWas{1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(moved(2, 1, 3), (codes{2, 3, 1, 4, 6, 7, 5, 8}));
    EXPECT_EQ(moved(2, 4, 2), (codes{1, 4, 2, 3, 5, 8, 6, 7}));
    EXPECT_EQ(moved(2, 1, 4), (codes{2, 3, 4, 1, 6, 7, 8, 5}));
    EXPECT_EQ(moved(0, 2, 1), (codes{2, 1, 3, 4, 5, 6, 7, 8})) << "0 is one column";
    EXPECT_EQ(moved(2, 2, 2), asItWas);
    for (const int nowhere : {0, -1, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(moved(2, nowhere, 2), asItWas);
        EXPECT_EQ(moved(2, 2, nowhere), asItWas);
    }
}

TEST(FlatVectorDuplicate, Parts)
{
    expectParts<double, double>(VB_V_DuplicateDbl);
    expectParts<int, int>(VB_V_DuplicateLng);
    expectParts<double, int>(VB_V_DuplicateDblToLng);
    expectParts<int, double>(VB_V_DuplicateLngToDbl);
    expectParts<text_cell, text_cell>(VB_V_DuplicateStr);
    expectParts<short int, short int>(Cpp_V_DuplicateBool);
}

TEST(FlatVectorDuplicate, PartsOfHostArrays)
{
    expectPartsOfHostArrays<double>(Cpp_V_DuplicateDbl_ST);
    expectPartsOfHostArrays<int>(Cpp_V_DuplicateLng_ST);
    expectPartsOfHostArrays<text_cell>(Cpp_V_DuplicateStr_ST);
}

TEST(FlatVectorDuplicate, NumbersBecomeIntegersAndBack)
{
    constexpr int missing = std::numeric_limits<int>::min();
    constexpr double missingNumber = -1.79769313486231e308;
    guarded<double> x{1.9, -1.9, 2147483647.5, 2147483648.0, missingNumber, notANumber, -infinite};
    guarded<int> y(std::vector<int>(7, 70));
    EXPECT_EQ(VB_V_DuplicateDblToLng(x.data(), 7, 1, 1, 1, 7, y.data(), 7, 1, 1, 1), 0);
    EXPECT_EQ(valuesOf(y), (std::vector<int>{1, -1, 2147483647, missing, missing, missing, missing}));

    guarded<int> integers{missing, 5};
    guarded<double> numbers{70.0, 70.0};
    EXPECT_EQ(VB_V_DuplicateLngToDbl(integers.data(), 2, 1, 1, 1, 2, numbers.data(), 2, 1, 1, 1), 0);
    EXPECT_EQ(valuesOf(numbers), (std::vector<double>{-2147483648.0, 5.0}));
}
