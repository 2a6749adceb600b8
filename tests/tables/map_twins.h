/**
 * @file
 * Tables and vectors of random cells, now and then smaller than the counts say, for a routine and its plain
 * loop.
 */
#ifndef KORVEL_TESTS_TABLES_MAP_TWINS_H
#define KORVEL_TESTS_TABLES_MAP_TWINS_H

#include "containers/matrix.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace korvel::test
{

using table = matrix<double>;

/** The same cells and counts, and the same spare slot. */
template <class T>
void expectSame(const matrix<T>& actual, const matrix<T>& expected)
{
    ASSERT_EQ(actual.nbrows, expected.nbrows);
    ASSERT_EQ(actual.nbcols, expected.nbcols);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        ASSERT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
    EXPECT_SAME_BITS(actual.oobValue, expected.oobValue);
}

/** Counts, and tables of random cells that mostly have them. */
class random_tables
{
public:
    random_tables(std::uint64_t seed, int rowCount, int colCount)
        : rows(rowCount), cols(colCount), cells_(seed, odd_cells::all), isShort_(seed % 3 == 0)
    {
    }

    table made(int tableRows, int tableCols)
    {
        const int held = isShort_ && tableRows > 0 ? cells_.integer(0, tableRows) : tableRows;
        const int heldCols = isShort_ && tableCols > 1 ? cells_.integer(1, tableCols) : tableCols;
        table x(held, heldCols, 0.0);
        for (std::uint64_t k = 0; k < x.nbElem; ++k) {
            x.data[k] = cells_.value();
        }
        x.oobValue = 4.5;
        return x;
    }
    table input() { return made(rows, cols); }
    table vector() { return made(rows * cols, 1); }

    int rows;
    int cols;

private:
    random_cells cells_;
    bool isShort_;
};

template <class Compare>
void forRandomTables(Compare compare)
{
    for (const auto& [rows, cols] : std::vector<std::pair<int, int>>{
             {0, 0}, {0, 3}, {3, 0}, {1, 1}, {1, 7}, {7, 1}, {2, 3}, {5, 5}, {8, 9}, {33, 17}, {100, 4}}) {
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            compare(random_tables(seed, rows, cols));
        }
    }
}

/** Runs `core` and `twin` on tables of their own that start alike. */
template <class T, class Core, class Twin>
void expectAlike(const matrix<T>& start, Core core, Twin twin)
{
    matrix<T> actual(start);
    matrix<T> expected(start);
    actual.oobValue = start.oobValue;
    expected.oobValue = start.oobValue;
    core(actual);
    twin(expected);
    expectSame(actual, expected);
}

/**
 * Hands out square tables whose cells can be alike: a constant diagonal, and pairs that are equal now and
 * then.
 */
template <class Look>
void forTwoHalves(random_tables& given, Look look)
{
    for (const double spare : {0.0, 1.0, -1.0}) {
        for (const bool bLower : {false, true}) {
            table x = given.made(given.cols, given.cols);
            for (int j = 0; j < x.nbcols; ++j) {
                for (int i = 0; i < x.nbrows; ++i) {
                    x.data[i + x.nbrows * j] = i == j ? spare : (i > j) == bLower ? 0.0 : -spare;
                }
            }
            x.oobValue = spare;
            look(x);
        }
    }
}

} // namespace korvel::test

#endif
