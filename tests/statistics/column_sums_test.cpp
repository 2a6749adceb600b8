#include "statistics/column_sums.h"

#include "support/bits.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

/** The sum of the terms that are not missing. */
template <class At, class Term>
double plainSum(At at, int n, Term term)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        if (at(i) != gone) {
            sum += term(at(i));
        }
    }
    return sum;
}

constexpr auto itself = [](double x) { return x; };
constexpr auto squared = [](double x) { return x * x; };

matrix<double> table()
{
    matrix<double> x(2, 3, 0.0);
    const std::vector<double> cells{1, gone, 2, 3, gone, 0.5};
    std::copy(cells.begin(), cells.end(), x.data);
    return x;
}

void expectVector(const matrix<double>& found, const std::vector<double>& expected)
{
    ASSERT_EQ(found.nbElem, expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_TRUE(sameBits(found.data[k], expected[k])) << k;
    }
}

} // namespace

TEST(ColumnSums, MissingCellsAreLeftOut)
{
    auto x = table();
    EXPECT_TRUE(sameBits(M_Sum2(&x), 6.5));
    EXPECT_TRUE(sameBits(M_ColSum2(&x, 2, 1), 1.0)) << "columns are counted from 1";
    EXPECT_TRUE(sameBits(M_ColSum2(&x, 2, 2), 5.0));
    EXPECT_TRUE(sameBits(M_ColSum2(&x, 1, 3), 0.0));
    EXPECT_TRUE(sameBits(korvel::sumOfCells(x, 2, 3), 6.5));
    EXPECT_TRUE(sameBits(korvel::sumOfCells(x, 2, 2), 6.0));
    matrix<double> byRow(2, 1, 9.0);
    matrix<double> byColumn(3, 1, 9.0);
    M_SumByRows(&x, 2, 3, &byRow);
    expectVector(byRow, {3.0, 3.5});
    korvel::sumByColumns(x, 2, 3, byColumn);
    expectVector(byColumn, {1.0, 5.0, 0.5});
    M_SumBySquareRows(&x, 2, 3, &byRow);
    expectVector(byRow, {5.0, 9.25});
    M_SumBySquareCols(&x, 2, 3, &byColumn);
    expectVector(byColumn, {1.0, 13.0, 0.25});
    matrix<double> empty;
    EXPECT_TRUE(sameBits(M_Sum2(&empty), 0.0));
}

TEST(ColumnSums, ResultsBehindReferencesAreResized)
{
    auto x = table();
    matrix<double> out;
    auto* to = &out;
    M_SquaredRows(&x, 2, 3, to);
    expectVector(out, {5.0, 9.25});
    EXPECT_EQ(out.nbcols, 1);
    M_SquaredColumns(&x, 2, 3, to);
    expectVector(out, {1.0, 13.0, 0.25});
    EXPECT_EQ(out.nbcols, 1) << "a column, of sums of columns too";
}

TEST(ColumnSums, PowersTakeMissingCellsAsNumbers)
{
    matrix<double> x(2, 2, 0.0);
    const std::vector<double> cells{2, 3, 5, 4};
    std::copy(cells.begin(), cells.end(), x.data);
    EXPECT_DOUBLE_EQ(M_SumDiagPow(&x, 2, 99, 3.0), 8.0 + 64.0);
    EXPECT_DOUBLE_EQ(M_Sum2Pow(&x, 2, 2, 0.5), std::sqrt(2.0) + std::sqrt(3.0) + std::sqrt(5.0) + 2.0);
    EXPECT_TRUE(sameBits(M_SumDiagPow(&x, 0, 0, 2.0), 0.0));
    EXPECT_TRUE(sameBits(M_Sum2Pow(&x, 0, 2, 2.0), 0.0));
    EXPECT_TRUE(sameBits(M_Sum2Pow(&x, 2, 0, 2.0), 0.0));
    x.data[0] = gone;
    EXPECT_TRUE(sameBits(M_SumDiagPow(&x, 2, 0, 2.0), infinite));
    EXPECT_TRUE(sameBits(M_Sum2Pow(&x, 2, 2, 1.0), gone));
    const std::vector<double> apart{1e16, 1, -1e16, 1};
    std::copy(apart.begin(), apart.end(), x.data);
    EXPECT_TRUE(sameBits(M_Sum2Pow(&x, 2, 2, 1.0), 1.0)) << "column after column";
}

TEST(ColumnSums, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const int tall = rows > 60 ? rows * 9 : rows;
        auto x = nearTable<double>(cells, tall, cols);
        const auto row = [&](int i) { return [&x, i](int j) { return x.getElement(i, j); }; };
        const auto column = [&](int j) { return [&x, j](int i) { return x.getElement(i, j); }; };
        matrix<double> sums(tall, 1, 9.0);
        matrix<double> squares(tall, 1, 9.0);
        M_SumByRows(&x, tall, cols, &sums);
        M_SumBySquareRows(&x, tall, cols, &squares);
        for (int i = 0; i < tall; ++i) {
            ASSERT_TRUE(sameBits(sums.data[i], plainSum(row(i), cols, itself)));
            ASSERT_TRUE(sameBits(squares.data[i], plainSum(row(i), cols, squared)));
        }
        matrix<double> ofColumns(cols, 1, 9.0);
        matrix<double> ofSquares(cols, 1, 9.0);
        korvel::sumByColumns(x, tall, cols, ofColumns);
        M_SumBySquareCols(&x, tall, cols, &ofSquares);
        double all = 0.0;
        for (int j = 0; j < cols; ++j) {
            ASSERT_TRUE(sameBits(ofColumns.data[j], plainSum(column(j), tall, itself)));
            ASSERT_TRUE(sameBits(ofSquares.data[j], plainSum(column(j), tall, squared)));
            ASSERT_TRUE(sameBits(M_ColSum2(&x, tall, j + 1), plainSum(column(j), tall, itself)));
            for (int i = 0; i < tall; ++i) {
                all += x.getElement(i, j) == gone ? 0.0 : x.getElement(i, j);
            }
        }
        ASSERT_TRUE(sameBits(korvel::sumOfCells(x, tall, cols), all));

        random_chunks<double> chunks(cells, cols, [&](int) { return tall; });
        matrix<double> out;
        auto* to = &out;
        M_SquaredRowsSPV(chunks.get(), tall, cols, to);
        for (int i = 0; i < tall; ++i) {
            const auto at = [&](int j) { return static_cast<const matrix<double>&>(chunks[j])[i]; };
            ASSERT_TRUE(sameBits(out.data[i], plainSum(at, cols, squared)));
        }
    });
}
