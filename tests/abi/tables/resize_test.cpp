#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

template <class Cell, class Function>
void expectResized(Function resize)
{
    const auto resized = [&](int rows, int cols, const codes& x, int newRows, int newCols, std::size_t size) {
        caller_cells<Cell> from(x);
        caller_cells<Cell> to(codes(size, 70));
        EXPECT_EQ(resize(from.data(), rows, cols, to.data(), newRows, newCols), 0);
        EXPECT_EQ(from.values(), x);
        return to.values();
    };
    constexpr int none = outside<Cell>;
    const codes table{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(resized(3, 2, table, 3, 2, 6), table);
    EXPECT_EQ(resized(3, 2, table, 2, 1, 2), (codes{1, 2}));
    EXPECT_EQ(resized(3, 2, table, 4, 3, 12), (codes{1, 2, 3, none, 4, 5, 6, none, none, none, none, none}));
    EXPECT_EQ(resized(3, 2, table, 1, 3, 3), (codes{1, 4, none}));
    EXPECT_EQ(resized(3, 2, table, 4, 1, 4), (codes{1, 2, 3, none}));
    EXPECT_EQ(resized(0, 1, {}, 2, 1, 2), (codes{none, none}));
    EXPECT_EQ(resized(3, 2, table, 0, 2, 0), codes{});
    EXPECT_EQ(resized(2, 0, {1, 2}, 3, 0, 3), (codes{1, 2, none})) << "0 is one column in both shapes";

    caller_cells<Cell> inPlace({1, 2, 3, 4, 5, 6, 70, 70, 70, 70, 70, 70});
    resize(inPlace.data(), 2, 3, inPlace.data(), 4, 3);
    EXPECT_EQ(inPlace.values(), (codes{1, 2, none, none, 3, 4, none, none, 5, 6, none, none}))
        << "over the table itself";
}

} // namespace

TEST(FlatTableResize, TheSharedCornerAndNothingElse)
{
    expectResized<double>(VB_M_CopyResize);
    expectResized<short int>(VB_M_CopyResizeBool);
    expectResized<text_cell>(VB_M_CopyResizeStr);
}

TEST(FlatTableResize, CopyToBigger)
{
    const auto copied = [](int rows, int cols, const codes& x, const codes& y, int yRows, int yCols) {
        caller_cells<double> from(x);
        caller_cells<double> to(y);
        EXPECT_EQ(VB_M_CopyToBigger(from.data(), rows, cols, to.data(), yRows, yCols), 0);
        EXPECT_EQ(from.values(), x);
        return to.values();
    };
    EXPECT_EQ(copied(2, 1, {1, 2}, {10, 20, 30, 40, 50, 60}, 3, 2), (codes{1, 2, 30, 40, 50, 60}));
    EXPECT_EQ(copied(2, 2, {1, 2, 3, 4}, {10, 20, 30}, 1, 3), (codes{1, 3, 30}))
        << "a table that is not bigger";
    EXPECT_EQ(copied(1, 0, {1}, {10, 20}, 2, 0), (codes{1, 20})) << "0 is one column";
}
