#include "domain/marginal_sums.h"

#include "support/bits.h"
#include "support/random_tables.h"

#include <cstddef>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using ints = std::vector<int>;

struct smaller_table {
    numbers cells;
    int rows = -7;
    int cols = -7;
    ints droppedRows;
    ints droppedCols;
};

/** What stays of a table, in a result of 7s. */
smaller_table checked(numbers cells, int rows, int cols)
{
    smaller_table made{numbers(cells.size(), 7), -7, -7, ints(static_cast<std::size_t>(rows)),
                       ints(static_cast<std::size_t>(cols))};
    matrix<double> table(rows, cols, cells.data(), true);
    matrix<double> result(rows, cols, made.cells.data(), true);
    matrix<int> droppedRows(rows, 1, made.droppedRows.data(), true);
    matrix<int> droppedCols(cols, 1, made.droppedCols.data(), true);
    CheckForMarginalSums(table, rows, cols, result, made.rows, made.cols, droppedRows, droppedCols);
    return made;
}

} // namespace

TEST(MarginalSums, OfZeroTakeRowsAndColumnsOut)
{
    const auto made = checked({1, 0, 3, 0, 0, 0, 4, 0, 6}, 3, 3);
    EXPECT_EQ(made.rows, 2);
    EXPECT_EQ(made.cols, 2);
    EXPECT_EQ(made.droppedRows, (ints{0, 1, 0}));
    EXPECT_EQ(made.droppedCols, (ints{0, 1, 0}));
    EXPECT_EQ(made.cells, (numbers{1, 3, 3, 4, 6, 6, 7, 7, 7})) << "rows move up";
}

TEST(MarginalSums, OfATableOfZerosLeaveNothing)
{
    const auto made = checked({0, 0, 0, 0, 0, 0}, 2, 3);
    EXPECT_EQ(made.rows, 0);
    EXPECT_EQ(made.cols, 0);
    EXPECT_EQ(made.droppedRows, (ints{1, 1}));
    EXPECT_EQ(made.droppedCols, (ints{1, 1, 1}));
    EXPECT_EQ(made.cells, numbers(6, 7));
    const auto none = checked({}, 0, 0);
    EXPECT_EQ(none.rows, 0);
    EXPECT_EQ(none.cols, 0);
}

TEST(MarginalSums, OfANegativeCountTakeNothingFromIt)
{
    matrix<double> table(2, 2, 5.0);
    matrix<double> result(2, 2, 7.0);
    matrix<int> dropped(2, 1, 0);
    int keptRows = 9;
    int keptCols = 9;
    CheckForMarginalSums(table, 2, -3, result, keptRows, keptCols, dropped, dropped);
    EXPECT_EQ(keptRows, 0) << "without columns every sum is 0";
    EXPECT_EQ(keptCols, -3);
    CheckForMarginalSums(table, -3, 2, result, keptRows, keptCols, dropped, dropped);
    EXPECT_EQ(keptRows, -3);
    EXPECT_EQ(keptCols, 0);
    EXPECT_EQ(numbers(result.data, result.data + 4), numbers(4, 7.0));
}

TEST(MarginalSums, MustBeAboveTheLimit)
{
    EXPECT_EQ(checked({1e-12}, 1, 1).cols, 0);
    EXPECT_EQ(checked({1.0000001e-12}, 1, 1).cols, 1);
    EXPECT_EQ(checked({-5, 2, 1, 1}, 2, 2).droppedCols, (ints{1, 0}));
    EXPECT_EQ(checked({-5, 2, 1, 1}, 2, 2).droppedRows, (ints{1, 0})) << "of the whole table";
    EXPECT_EQ(checked({notANumber, 1}, 1, 2).droppedRows, ints{1});
    EXPECT_EQ(checked({notANumber, 1}, 1, 2).droppedCols, (ints{1, 0}));
}

TEST(MarginalSums, LeaveMissingCellsOut)
{
    const auto made = checked({missing, missing, 2, missing}, 2, 2);
    EXPECT_EQ(made.droppedCols, (ints{1, 0}));
    EXPECT_EQ(made.droppedRows, (ints{0, 1}));
    EXPECT_EQ(made.cells[0], 2);
}

TEST(MarginalSums, MarkOnlyWhatIsLeftOut)
{
    numbers cells{1, 0};
    matrix<double> table(2, 1, cells.data(), true);
    matrix<int> rows(2, 1, 5);
    matrix<int> cols(1, 1, 5);
    int keptRows = 0;
    int keptCols = 0;
    CheckForMarginalSums(table, 2, 1, table, keptRows, keptCols, rows, cols);
    EXPECT_EQ(rows.data[0], 5);
    EXPECT_EQ(rows.data[1], 1);
    EXPECT_EQ(cols.data[0], 5);
    EXPECT_EQ(keptRows, 1);
}

TEST(MarginalSums, EqualThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 80; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::missing : odd_cells::all);
        const int n = cells.integer(0, 9);
        const int p = cells.integer(0, 9);
        matrix<double> x = randomTable(cells, n, p);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < p; ++j) {
                if (cells.integer(0, 3) == 0 || i % 4 == 1) {
                    x.setElement(i, j, 0.0);
                }
            }
        }
        std::vector<int> rows;
        std::vector<int> cols;
        for (int i = 0; i < n; ++i) {
            double sum = 0.0;
            for (int j = 0; j < p; ++j) {
                sum += x.getElement(i, j) != missing ? x.getElement(i, j) : 0.0;
            }
            if (sum > 1e-12) {
                rows.push_back(i);
            }
        }
        for (int j = 0; j < p; ++j) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i) {
                sum += x.getElement(i, j) != missing ? x.getElement(i, j) : 0.0;
            }
            if (sum > 1e-12) {
                cols.push_back(j);
            }
        }
        matrix<double> result(n, p, 7.0);
        matrix<int> droppedRows(n, 1);
        matrix<int> droppedCols(p, 1);
        int keptRows = 0;
        int keptCols = 0;
        CheckForMarginalSums(x, n, p, result, keptRows, keptCols, droppedRows, droppedCols);
        ASSERT_EQ(keptRows, static_cast<int>(rows.size()));
        ASSERT_EQ(keptCols, static_cast<int>(cols.size()));
        for (int i = 0; i < keptRows; ++i) {
            EXPECT_EQ(droppedRows.data[rows[static_cast<std::size_t>(i)]], 0);
            for (int j = 0; j < keptCols; ++j) {
                EXPECT_SAME_BITS(result.getElement(i, j), x.getElement(rows[static_cast<std::size_t>(i)],
                                                                       cols[static_cast<std::size_t>(j)]));
            }
        }
        int marked = 0;
        for (int i = 0; i < n; ++i) {
            marked += droppedRows.data[i];
        }
        EXPECT_EQ(marked, n - keptRows);
    }
}
