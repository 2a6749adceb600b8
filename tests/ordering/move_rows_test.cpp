#include "ordering/move_rows.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <numeric>
#include <omp.h>
#include <string>
#include <vector>

namespace korvel::test
{

namespace
{

/** An order of so many rows that leaves no row in its place: each takes the one `step` behind it. */
class turned_order
{
public:
    turned_order(std::size_t rows, std::size_t step) : rows_(rows), step_(step) {}
    [[nodiscard]] std::size_t size() const { return rows_; }
    [[nodiscard]] std::size_t position(std::size_t k) const { return (k + step_) % rows_; }

private:
    std::size_t rows_;
    std::size_t step_;
};

class MoveRows : public ::testing::TestWithParam<int>
{
protected:
    MoveRows() { omp_set_num_threads(GetParam()); }
    ~MoveRows() override { omp_set_num_threads(before_); }

private:
    int before_ = omp_get_max_threads();
};

TEST(MoveRowsThresholds, AColumnKeySharesAboveFiftyThousandCells)
{
    EXPECT_FALSE(sharesColumns(500, 100));
    EXPECT_TRUE(sharesColumns(501, 100));
    EXPECT_FALSE(sharesColumns(50'000, 1));
    EXPECT_TRUE(sharesColumns(50'001, 1));
    EXPECT_TRUE(sharesColumns(2'147'483'647, 2'147'483'647)) << "the count needs 64 bits";
}

TEST(MoveRowsThresholds, AnotherKeySharesFromHalfAMillionCellsAndAThousandRows)
{
    EXPECT_FALSE(sharesRows(499'999, 1, 499'999));
    EXPECT_TRUE(sharesRows(500'000, 1, 500'000));
    EXPECT_FALSE(sharesRows(1000, 500, 999));
    EXPECT_TRUE(sharesRows(1000, 500, 1000));
    EXPECT_FALSE(sharesRows(1000, 499, 1000));
}

TEST_P(MoveRows, SharedOrNotTheRowsComeOutTheSame)
{
    for (const std::size_t rows : {1U, 2U, 5U, 100U}) {
        for (const int columns : {1, 2, 3, 8}) {
            for (const bool shared : {false, true}) {
                std::vector<int> table(rows * static_cast<std::size_t>(columns));
                std::iota(table.begin(), table.end(), 0);
                const std::vector<int> before = table;
                const turned_order order(rows, 3);
                const auto begin = [&](int j) { return rows * static_cast<std::size_t>(j); };
                // The second column is left alone.
                moveRows<int>(
                    order, columns, [&](int j) { return j == 1 ? nullptr : table.data() + begin(j); },
                    shared);
                for (int j = 0; j < columns; ++j) {
                    for (std::size_t k = 0; k < rows; ++k) {
                        const std::size_t source = j == 1 ? k : order.position(k);
                        ASSERT_EQ(table[begin(j) + k], before[begin(j) + source])
                            << rows << " rows, column " << j << (shared ? ", shared" : ", alone");
                    }
                }
            }
        }
    }
}

TEST_P(MoveRows, TextsMoveWhole)
{
    for (const bool shared : {false, true}) {
        std::vector<std::string> column{"first of all", "second", "third, which is not a short one",
                                        "fourth"};
        moveRows<std::string>(
            turned_order(4, 1), 1, [&](int) { return column.data(); }, shared);
        EXPECT_EQ(column, (std::vector<std::string>{"second", "third, which is not a short one", "fourth",
                                                    "first of all"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, MoveRows, ::testing::Values(1, 2, 3, 7));

} // namespace

} // namespace korvel::test
