#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/** 3 by 3: row i of column j is 10 j + i. */
const codes square{11, 12, 13, 21, 22, 23, 31, 32, 33};

template <class Function>
codes without(Function remove, int rows, int cols, int k, std::size_t size)
{
    caller_cells<double> x(square);
    caller_cells<double> out(codes(size, 70));
    EXPECT_EQ(remove(x.data(), rows, cols, k, out.data()), 0);
    EXPECT_EQ(x.values(), square);
    return out.values();
}

template <class Cell, class Function>
codes withoutRun(Function remove, int rows, int cols, int first, int last)
{
    caller_cells<Cell> x(square);
    EXPECT_EQ(remove(x.data(), rows, cols, first, last), 0);
    return x.values();
}

} // namespace

TEST(FlatTableRemove, OneColumn)
{
    const auto removed = [](int k) { return without(VB_M_RemoveCol, 3, 3, k, 6); };
    EXPECT_EQ(removed(1), (codes{21, 22, 23, 31, 32, 33})) << "all move left";
    EXPECT_EQ(removed(2), (codes{11, 12, 13, 31, 32, 33}));
    EXPECT_EQ(removed(3), (codes{11, 12, 13, 21, 22, 23})) << "all but the last";
    EXPECT_EQ(removed(4), removed(3));
    EXPECT_EQ(removed(highest), removed(3));
    EXPECT_EQ(removed(0), removed(1));
    EXPECT_EQ(removed(lowest), removed(1));
    EXPECT_EQ(without(VB_M_RemoveCol, 3, 0, 1, 0), codes{}) << "0 is one column";
    EXPECT_EQ(without(VB_M_RemoveCol, 3, 1, 2, 0), codes{}) << "no room for the only column";
}

TEST(FlatTableRemove, OneRow)
{
    const auto removed = [](int k) { return without(VB_M_RemoveRow, 3, 3, k, 6); };
    EXPECT_EQ(removed(1), (codes{12, 13, 22, 23, 32, 33}));
    EXPECT_EQ(removed(2), (codes{11, 13, 21, 23, 31, 33}));
    EXPECT_EQ(removed(3), (codes{11, 12, 21, 22, 31, 32}));
    EXPECT_EQ(removed(4), removed(3));
    EXPECT_EQ(removed(0), removed(1));
    EXPECT_EQ(without(VB_M_RemoveRow, 3, 0, 2, 2), (codes{11, 13})) << "0 is one column";
    EXPECT_EQ(without(VB_M_RemoveRow, 1, 2, 1, 0), codes{});
}

TEST(FlatTableRemove, OverTheTableItself)
{
    caller_cells<double> x(square);
    VB_M_RemoveRow(x.data(), 3, 3, 1, x.data());
    EXPECT_EQ(x.values(), (codes{12, 13, 22, 23, 32, 33, 31, 32, 33}));
    caller_cells<double> y(square);
    VB_M_RemoveCol(y.data(), 3, 3, 2, y.data());
    EXPECT_EQ(y.values(), (codes{11, 12, 13, 31, 32, 33, 31, 32, 33}));
}

TEST(FlatTableRemove, ARunOfColumns)
{
    const auto removed = [](int first, int last) {
        return withoutRun<double>(VB_M_RemoveCols2, 3, 3, first, last);
    };
    EXPECT_EQ(removed(1, 1), (codes{21, 22, 23, 31, 32, 33, 31, 32, 33}));
    EXPECT_EQ(removed(1, 2), (codes{31, 32, 33, 21, 22, 23, 31, 32, 33}));
    EXPECT_EQ(removed(0, 2), removed(1, 2));
    EXPECT_EQ(removed(lowest, 2), removed(1, 2));
    EXPECT_EQ(removed(2, 3), square) << "nothing stands behind them";
    EXPECT_EQ(removed(2, highest), square);
    EXPECT_EQ(removed(2, 1), square) << "an empty run";
    EXPECT_EQ(removed(4, 4), square) << "no such column";
    EXPECT_EQ(removed(-3, -1), square) << "no such columns";
    EXPECT_EQ(removed(0, 0), square) << "no such column";
}

TEST(FlatTableRemove, ARunOfRows)
{
    const auto expectRuns = [](auto removed) {
        EXPECT_EQ(removed(3, 1, 1), (codes{12, 13, 13, 22, 23, 23, 32, 33, 33}));
        EXPECT_EQ(removed(3, 1, 2), (codes{13, 12, 13, 23, 22, 23, 33, 32, 33}));
        EXPECT_EQ(removed(3, lowest, 2), removed(3, 1, 2));
        EXPECT_EQ(removed(3, 2, highest), square) << "nothing stands below them";
        EXPECT_EQ(removed(3, 2, 1), square) << "an empty run";
        EXPECT_EQ(removed(3, 4, 4), square) << "no such row";
        EXPECT_EQ(removed(3, -3, -1), square) << "no such rows";
        EXPECT_EQ(removed(0, 1, 1), (codes{12, 13, 13, 21, 22, 23, 31, 32, 33})) << "0 is one column";
    };
    expectRuns([](int cols, int first, int last) {
        return withoutRun<double>(VB_M_RemoveRows2, 3, cols, first, last);
    });
    expectRuns([](int cols, int first, int last) {
        return withoutRun<text_cell>(Cpp_M_RemoveRowsStr2, 3, cols, first, last);
    });
}

TEST(FlatTableRemove, ColumnsInAList)
{
    const auto removed = [](const std::vector<double>& list, std::size_t size) {
        caller_cells<double> x(square);
        caller_cells<double> out(codes(size, 70));
        std::vector<double> numbers(list);
        EXPECT_EQ(VB_M_RemoveColsInList(x.data(), 3, 3, numbers.data(), static_cast<int>(numbers.size()),
                                        out.data()),
                  0);
        EXPECT_EQ(x.values(), square);
        EXPECT_EQ(numbers, list);
        return out.values();
    };
    EXPECT_EQ(removed({2}, 6), (codes{11, 12, 13, 31, 32, 33}));
    EXPECT_EQ(removed({3, 1, 3}, 3), (codes{21, 22, 23}));
    EXPECT_EQ(removed({1, 2, 3}, 0), codes{});
    EXPECT_EQ(removed({}, 9), square);
    EXPECT_EQ(removed({0, 4, 1.5, -1, 1e300, infinite, -infinite}, 9), square)
        << "not the number of a column";

    caller_cells<double> x({1, 2});
    caller_cells<double> out({70, 70});
    double number = 2.0;
    VB_M_RemoveColsInList(x.data(), 2, 0, &number, 1, out.data());
    EXPECT_EQ(out.values(), (codes{1, 2})) << "0 is one column";
}

TEST(FlatTableRemove, RowsInAList)
{
    const auto removed = [](const codes& list, std::size_t size) {
        caller_cells<double> x(square);
        caller_cells<int> numbers(list);
        caller_cells<double> out(codes(size, 70));
        EXPECT_EQ(
            VB_M_RemoveRowsInList(x.data(), 3, 3, numbers.data(), static_cast<int>(list.size()), out.data()),
            0);
        EXPECT_EQ(x.values(), square);
        EXPECT_EQ(numbers.values(), list);
        return out.values();
    };
    EXPECT_EQ(removed({2}, 6), (codes{11, 13, 21, 23, 31, 33}));
    EXPECT_EQ(removed({3, 1, 3}, 3), (codes{12, 22, 32}));
    EXPECT_EQ(removed({1, 2, 3}, 0), codes{});
    EXPECT_EQ(removed({}, 9), square);
    EXPECT_EQ(removed({0, 4, -1, lowest, highest}, 9), square);

    caller_cells<double> x({1, 2, 3});
    caller_cells<int> list({1});
    caller_cells<double> out({70, 70});
    VB_M_RemoveRowsInList(x.data(), 3, 0, list.data(), 1, out.data());
    EXPECT_EQ(out.values(), (codes{2, 3})) << "0 is one column";
}
