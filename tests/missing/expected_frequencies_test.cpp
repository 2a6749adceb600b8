#include "missing/expected_frequencies.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <cmath>
#include <cstddef>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;

/** The columns of a table of `rows` rows after its missing cells were replaced in the first `counted`. */
std::vector<numbers> replaced(const std::vector<numbers>& columns, int counted)
{
    const int rows = static_cast<int>(columns.front().size());
    cST_MVect<double> table(rows, static_cast<int>(columns.size()));
    for (std::size_t j = 0; j < columns.size(); ++j) {
        std::copy(columns[j].begin(), columns[j].end(), table.Vectors[j].Vect.data);
    }
    ReplaceMissingInContengencyByExp_ST(table, counted);
    std::vector<numbers> found;
    for (const auto& column : table.Vectors) {
        found.emplace_back(column.Vect.data, column.Vect.data + rows);
    }
    return found;
}

} // namespace

TEST(ExpectedFrequencies, AreRowTimesColumnOverTotal)
{
    // Row sums 3, 8 and 13, column sums 9 and 15, total 24.
    EXPECT_EQ(replaced({{1, missing, 8}, {2, 8, 5}}, 3),
              (std::vector<numbers>{{1, 8.0 * 9.0 / 24.0, 8}, {2, 8, 5}}));
    // Two missing cells take the same sums: the second does not see the first.
    EXPECT_EQ(replaced({{1, missing, 8}, {2, missing, 5}}, 3), (std::vector<numbers>{{1, 0, 8}, {2, 0, 5}}));
    EXPECT_EQ(replaced({{missing, 2}, {3, missing}}, 2),
              (std::vector<numbers>{{3.0 * 2 / 5, 2}, {3, 2.0 * 3 / 5}}));
}

TEST(ExpectedFrequencies, OfNothingAreNoNumbers)
{
    for (const numbers& column : replaced({{missing, missing}, {missing, missing}}, 2)) {
        EXPECT_TRUE(std::isnan(column[0]) && std::isnan(column[1])) << "0 over 0";
    }
    const auto infinities = replaced({{missing, 2}, {-2, missing}}, 2);
    EXPECT_TRUE(std::isinf(infinities[0][0]) && infinities[0][0] < 0) << "-4 over 0";
}

TEST(ExpectedFrequencies, AreTakenFromTheFirstRows)
{
    EXPECT_EQ(replaced({{1, missing, 100, missing}, {2, 8, 100, 7}}, 2),
              (std::vector<numbers>{{1, 8.0 * 1 / 11, 100, missing}, {2, 8, 100, 7}}));
    EXPECT_EQ(replaced({{missing}, {2}}, 0), (std::vector<numbers>{{missing}, {2}}));
    EXPECT_EQ(replaced({{missing}, {2}}, -1), (std::vector<numbers>{{missing}, {2}}));
    EXPECT_EQ(replaced({{belowSentinel, 1}, {2, 4}}, 2), (std::vector<numbers>{{2.0 * 1 / 7, 1}, {2, 4}}))
        << "below the sentinel is missing too";
}

TEST(ExpectedFrequencies, LeaveOutARowSumThatLooksMissing)
{
    const double half = MISSING_DBL / 2;
    EXPECT_EQ(replaced({{half, missing, 8}, {half, 8, 4}}, 3)[0][1], 8.0 * (half + 8) / 20);
}

TEST(ExpectedFrequencies, EqualThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::missing : odd_cells::all);
        const int rows = cells.integer(1, 9);
        const int counted = seed % 4 == 0 ? rows + 2 : rows;
        const int cols = cells.integer(1, 5);
        cST_MVect<double> table(rows, cols);
        for (auto& column : table.Vectors) {
            for (int i = 0; i < rows; ++i) {
                column.Vect.data[i] = cells.value();
            }
        }
        cST_MVect<double> plain(table);
        const auto at = [&](int i, int j) -> double {
            return plain.Vectors[static_cast<std::size_t>(j)].Vect[i];
        };
        numbers r(static_cast<std::size_t>(counted));
        numbers c(static_cast<std::size_t>(cols));
        for (int i = 0; i < counted; ++i) {
            for (int j = 0; j < cols; ++j) {
                if (!(at(i, j) <= missing)) {
                    r[static_cast<std::size_t>(i)] += at(i, j);
                    c[static_cast<std::size_t>(j)] += at(i, j);
                }
            }
        }
        double total = 0.0;
        for (const double sum : r) {
            total += sum != missing ? sum : 0.0;
        }
        ReplaceMissingInContengencyByExp_ST(table, counted);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                const double before = at(i, j);
                EXPECT_SAME_BITS(table.Vectors[static_cast<std::size_t>(j)].Vect.data[i],
                                 before <= missing
                                     ? r[static_cast<std::size_t>(i)] * c[static_cast<std::size_t>(j)] / total
                                     : before);
            }
        }
    }
}
