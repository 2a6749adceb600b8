#include "reference/block_moves.h"
#include "support/near_tables.h"
#include "tables/remove.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

template <class List>
std::vector<bool> listed(int n, const List& list)
{
    std::vector<bool> removed;
    for (int k = 1; k <= n; ++k) {
        removed.push_back(std::find(list.data, list.data + list.nbElem, k) != list.data + list.nbElem);
    }
    return removed;
}

/**
 * Columns below `k` stay, and those above it move left by one. A column that has no place there moves out of
 * the table.
 */
void plainRemoveCol(const matrix<double>& x, int rows, int cols, int k, matrix<double>& out)
{
    for (int i = 1; i <= rows; ++i) {
        for (int j = 1; j <= cols; ++j) {
            if (j != k) {
                reference::store(out, i, j < k ? j : j - 1, reference::cell(x, i, j));
            }
        }
    }
}

void plainRemoveRow(const matrix<double>& x, int rows, int cols, int k, matrix<double>& out)
{
    for (int i = 1; i <= rows; ++i) {
        for (int j = 1; j <= cols; ++j) {
            if (i != k) {
                reference::store(out, i < k ? i : i - 1, j, reference::cell(x, i, j));
            }
        }
    }
}

int countOf(const std::vector<bool>& flags)
{
    return static_cast<int>(std::count(flags.begin(), flags.end(), true));
}

/** The rows below the run move up one place at a time. Reads and writes outside reach the spare slot of x. */
template <class T>
void plainRemoveRows2(matrix<T>& x, int rows, int cols, int first, int last)
{
    for (int i = last + 1; i <= rows; ++i) {
        for (int j = 1; j <= cols; ++j) {
            reference::store(x, i - (last - first + 1), j, reference::cell(x, i, j));
        }
    }
}

template <class T>
void plainRemoveCols2(matrix<T>& x, int rows, int cols, int first, int last)
{
    for (int i = 1; i <= rows; ++i) {
        for (int j = last + 1; j <= cols; ++j) {
            reference::store(x, i, j - (last - first + 1), reference::cell(x, i, j));
        }
    }
}

template <class T>
void expectRowsRemovedInPlace()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        auto expected = twinOf(x);
        const int first = cells.integer(1, rows + 1);
        const int last = cells.integer(first - 1, rows);
        auto* table = &x;
        M_RemoveRows2(table, rows, cols, first, last);
        EXPECT_EQ(table, &x);
        if (first <= last) {
            plainRemoveRows2(expected, rows, cols, first, last);
        }
        expectSame(x, expected);
    });
}

} // namespace

TEST(TableRemove, OneRowOrColumnAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto out = nearTable<double>(cells, rows, cols - 1);
        auto expected = twinOf(out);
        int k = cells.integer(-1, cols + 2);
        M_RemoveCol(&x, rows, cols, k, &out);
        plainRemoveCol(x, rows, cols, k, expected);
        expectSame(out, expected);

        k = cells.integer(-1, rows + 2);
        M_RemoveRow(&x, rows, cols, k, &out);
        plainRemoveRow(x, rows, cols, k, expected);
        expectSame(out, expected);
    });
}

TEST(TableRemove, TheLastStoreIsThatOfTheLastRow)
{
    double cells[] = {1, 2, 3, 4, 5, 6};
    matrix<double> x(2, 3, cells, true);
    matrix<double> out(2, 2, 0.0);
    M_RemoveCol(&x, 2, 3, 1, &out);
    EXPECT_EQ(out.oobValue, 6.0);
    M_RemoveCol(&x, 2, 3, 3, &out);
    EXPECT_EQ(out.oobValue, 4.0);
    matrix<double> single(1, 3, 0.0);
    M_RemoveRow(&x, 2, 3, 2, &single);
    EXPECT_EQ(single.oobValue, 5.0);
    // The table has no column 4: the last column can only go to the spare slot.
    M_RemoveCol(&x, 2, 3, 4, &out);
    EXPECT_EQ(out.oobValue, 6.0);
    EXPECT_EQ(std::vector<double>(out.data, out.data + 4), (std::vector<double>{1, 2, 3, 4}));
}

TEST(TableRemove, ARunInPlaceAsThePlainLoops)
{
    expectRowsRemovedInPlace<double>();
    expectRowsRemovedInPlace<text>();
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto expected = twinOf(x);
        const int first = cells.integer(1, cols + 1);
        const int last = cells.integer(first - 1, cols);
        M_RemoveCols2(&x, rows, cols, first, last);
        if (first <= last) {
            plainRemoveCols2(expected, rows, cols, first, last);
        }
        expectSame(x, expected);
    });
}

TEST(TableRemove, AListAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        matrix<double> columns(cells.integer(0, 4), 1, 0.0);
        std::generate_n(columns.data, columns.nbElem,
                        [&] { return static_cast<double>(cells.integer(-1, 2 * cols + 2)) / 2.0; });
        const auto removedCols = listed(cols, columns);
        EXPECT_EQ(korvel::countNotListed(columns, cols), cols - countOf(removedCols));
        auto out = nearTable<double>(cells, rows, cols);
        auto expected = twinOf(out);
        EXPECT_EQ(M_RemoveColsInList(&x, rows, cols, &columns, &out), 0);
        reference::removeCols(x, rows, cols, removedCols, expected);
        expectSame(out, expected);

        auto list = cells.integers(cells.integer(0, 9), -1, rows + 2);
        const auto removedRows = listed(rows, list);
        EXPECT_EQ(korvel::countNotListed(list, rows), rows - countOf(removedRows));
        EXPECT_EQ(M_RemoveRowsInList(&x, rows, cols, &list, &out), 0);
        reference::removeRows(x, rows, cols, removedRows, expected);
        expectSame(out, expected);
    });
}
