#include "containers/sparse_matrix.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

namespace
{

using positions = std::vector<int>;
using numbers = std::vector<double>;

/** A table of 3 by 4 with entries in the columns 0, 1, 2 and 3, and row starts that a caller has written. */
matrixSparse withRowStart(positions rowStart)
{
    matrixSparse m(3, 4, 0.0, false);
    m.nnz = 4;
    m.colIndex = {0, 1, 2, 3};
    m.values = {1.0, 2.0, 3.0, 4.0};
    m.rowStart = std::move(rowStart);
    return m;
}

/** The entries of rows -1 to 3 as every reader meets them, which is inside of the arrays. */
std::vector<numbers> rowsOf(matrixSparse& m)
{
    std::vector<numbers> rows;
    for (int i = -1; i <= 3; ++i) {
        const korvel::entry_range row = korvel::entriesOfRow(m, i);
        EXPECT_LE(row.first, row.last);
        EXPECT_LE(row.last, std::min(m.colIndex.size(), m.values.size()));
        numbers& found = rows.emplace_back();
        for (std::size_t k = row.first; k < std::min(row.last, m.values.size()); ++k) {
            found.push_back(m.values[k]);
            EXPECT_EQ(m.getElement(i, m.colIndex[k]), m.values[k]);
        }
    }
    const matrix<double> dense = m.to_matrix();
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(dense.getElement(i, j), m.getElement(i, j)) << i << ", " << j;
        }
    }
    return rows;
}

} // namespace

TEST(SparseRowStarts, ARowWhoseStartIsNotThereHasNoEntries)
{
    auto shorter = withRowStart({0, 2, 3});
    EXPECT_EQ(rowsOf(shorter), (std::vector<numbers>{{}, {1.0, 2.0}, {3.0}, {}, {}}));
    shorter.setElement(2, 0, 9.0);
    EXPECT_EQ(shorter.values.size(), 4u) << "and keeps none";
    auto one = withRowStart({0});
    EXPECT_EQ(rowsOf(one), std::vector<numbers>(5));
    auto none = withRowStart({});
    EXPECT_EQ(rowsOf(none), std::vector<numbers>(5));
    none.setElement(0, 0, 9.0);
    EXPECT_EQ(none.values.size(), 4u);
}

TEST(SparseRowStarts, ANegativeStartIsTheFirstPosition)
{
    constexpr int least = std::numeric_limits<int>::min();
    auto first = withRowStart({-1, 2, 3, 4});
    EXPECT_EQ(rowsOf(first), (std::vector<numbers>{{}, {1.0, 2.0}, {3.0}, {4.0}, {}}));
    auto middle = withRowStart({0, least, 3, 4});
    EXPECT_EQ(rowsOf(middle), (std::vector<numbers>{{}, {}, {1.0, 2.0, 3.0}, {4.0}, {}}));
    auto all = withRowStart({-4, -3, -2, -1});
    EXPECT_EQ(rowsOf(all), std::vector<numbers>(5));
    all.setElement(0, 3, 9.0);
    EXPECT_EQ(all.values, (numbers{9.0, 1.0, 2.0, 3.0, 4.0}));
}

TEST(SparseRowStarts, ARowThatEndsBeforeItStartsHasNoEntries)
{
    auto m = withRowStart({3, 1, 4, 2});
    EXPECT_EQ(rowsOf(m), (std::vector<numbers>{{}, {}, {2.0, 3.0, 4.0}, {}, {}}));
    m.setElement(0, 0, 9.0);
    EXPECT_EQ(m.values, (numbers{1.0, 9.0, 2.0, 3.0, 4.0})) << "a new entry goes where the row ends";
}

TEST(SparseRowStarts, AStartPastTheArraysIsTheirEnd)
{
    constexpr int largest = std::numeric_limits<int>::max();
    auto m = withRowStart({0, 3, 5, largest});
    EXPECT_EQ(rowsOf(m), (std::vector<numbers>{{}, {1.0, 2.0, 3.0}, {4.0}, {}, {}}));
    auto all = withRowStart({5, 6, 7, 8});
    EXPECT_EQ(rowsOf(all), std::vector<numbers>(5));
    all.setElement(0, 0, 9.0);
    EXPECT_EQ(all.values, (numbers{1.0, 2.0, 3.0, 4.0, 9.0}));

    // Of arrays of two lengths the shorter one counts.
    auto fewerColumns = withRowStart({0, 2, 4, 4});
    fewerColumns.colIndex.resize(3);
    EXPECT_EQ(rowsOf(fewerColumns), (std::vector<numbers>{{}, {1.0, 2.0}, {3.0}, {}, {}}));
    auto fewerValues = withRowStart({0, 2, 4, 4});
    fewerValues.values.resize(1);
    EXPECT_EQ(rowsOf(fewerValues), (std::vector<numbers>{{}, {1.0}, {}, {}, {}}));
}
