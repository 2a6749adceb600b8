#include "linalg/lu.h"

#include "linalg/kernels/instruction_sets.h"
#include "linalg/square_kinds.h"
#include "reference/lu.h"
#include "support/near_tables.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>
#include <numeric>

using namespace korvel::test;

namespace
{

struct decomposition {
    matrix<double> table;
    matrix<int> pivots{};
    int sign = 0;
    short int error = 9;

    explicit decomposition(const matrix<double>& from) : table(from)
    {
        M_LUDecomp(&table, table.nbrows, &pivots, sign, &error);
    }
};

void expectTable(const matrix<double>& actual, const matrix<double>& expected)
{
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        EXPECT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
}

void expectPivots(const matrix<int>& actual, const std::vector<int>& expected)
{
    EXPECT_EQ(std::vector<int>(actual.data, actual.data + actual.nbElem), expected);
}

void compareWithThePlainLoop()
{
    constexpr std::array sizes{0,  1,  2,  3,  4,  5,  7,  8,  9,  10, 12, 15, 16, 17,  20,  23,  24,
                               25, 31, 32, 33, 40, 47, 48, 49, 63, 64, 65, 80, 96, 100, 129, 160, 257};
    std::uint64_t seed = 0;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing, odd_cells::all}) {
        for (const int n : sizes) {
            random_cells cells(++seed, odd);
            const int isShort = seed % 5 == 0 ? std::min(n, cells.integer(0, 2)) : 0;
            const int isWide = seed % 7 == 0 ? cells.integer(1, 9) : 0;
            matrix<double> table = randomTable(cells, n - isShort + isWide, n + isWide);
            if (seed % 3 == 0 && n > 3) { // and singular ones
                for (int i = 0; i < table.nbrows; ++i) {
                    table.setElement(i, n / 2, table.getElement(i, n / 3));
                }
            }
            matrix<double> expected = twinOf(table);
            matrix<int> pivots(std::max(n - isShort, 0), 1);
            matrix<int> expectedPivots(std::max(n - isShort, 0), 1);
            int sign = 0;
            int expectedSign = 0;
            short int error = 9;
            short int expectedError = 9;
            M_LUDecomp(&table, n, &pivots, sign, &error);
            plainLU(expected, n, expectedPivots, expectedSign, expectedError);
            SCOPED_TRACE(::testing::Message() << "order " << n << " seed " << seed);
            ASSERT_EQ(error, expectedError);
            ASSERT_EQ(sign, expectedSign);
            ASSERT_TRUE(sameTable(table, expected));
            expectSame(pivots, expectedPivots);
        }
    }
}

} // namespace

TEST(LU, PutsMultipliersBelowTheDiagonalAndUOnAndAbove)
{
    const decomposition lu(tableOf({{2, 1, 1}, {4, 4, 0}, {-2, 3, 8}}));
    EXPECT_EQ(lu.error, 0);
    // Scaled, the first column is 1, 1, 1/4, and the second one of equal elements is taken.
    expectPivots(lu.pivots, {2, 3, 3});
    expectTable(lu.table, tableOf({{4, 4, 0}, {-0.5, 5, 8}, {0.5, -0.2, 1 + 0.2 * 8}}));
    EXPECT_EQ(lu.sign, 1) << "two swaps";
}

TEST(LU, ChoosesThePivotBesideTheLargestOfItsRow)
{
    // 10 is the larger element, but 1 is the larger share of its row.
    const decomposition lu(tableOf({{10, 1000}, {1, 1}}));
    expectPivots(lu.pivots, {2, 2});
    EXPECT_EQ(lu.sign, -1);
    expectTable(lu.table, tableOf({{1, 1}, {10, 990}}));
}

TEST(LU, MovesTheScaleOfTheSwappedRowAlong)
{
    // Row 1, whose scale is 1/8, is swapped down to place 3: there its 8 counts 1 and beats row 2's 3/4.
    const decomposition lu(tableOf({{0, 8, 1}, {0, 3, 4}, {1, 1, 1}}));
    expectPivots(lu.pivots, {3, 3, 3});
    EXPECT_EQ(lu.sign, 1);
}

TEST(LU, TakesTheLastOfEqualPivots)
{
    const decomposition lu(tableOf({{1, 0, 0}, {1, 1, 0}, {1, 1, 1}}));
    expectPivots(lu.pivots, {3, 3, 3});
}

TEST(LU, OfARowOfZerosLeavesTheTableAsItWas)
{
    for (const double nothing : {0.0, -0.0, notANumber}) {
        const matrix<double> table = tableOf({{3, 1, 2}, {nothing, nothing, nothing}, {1, 1, 1}});
        const decomposition lu(table);
        EXPECT_EQ(lu.error, -1);
        EXPECT_EQ(lu.sign, 1);
        expectTable(lu.table, table);
        expectPivots(lu.pivots, {0, 0, 0});
    }
}

TEST(LU, PutsASmallNumberInPlaceOfAZeroPivot)
{
    const decomposition lu(tableOf({{1, 1}, {1, 1}}));
    EXPECT_EQ(lu.error, 0);
    expectTable(lu.table, tableOf({{1, 1}, {1, 1e-20}}));
    expectPivots(lu.pivots, {2, 2});
    const decomposition early(tableOf({{0, 1, 2}, {0, 1, 3}, {0, 4, 1}}));
    EXPECT_EQ(early.error, 0);
    EXPECT_SAME_BITS(early.table.getElement(0, 0), 1e-20);
    EXPECT_SAME_BITS(early.table.getElement(1, 0), 0.0);
    EXPECT_EQ(early.pivots[0], 3) << "zeros are equal too, and the last one counts";
}

TEST(LU, OfATableOfTinySinglesIsNotItsProduct)
{
    // The threshold is absolute: beside cells of 1e-30 the 1e-20 is not small.
    const decomposition lu(tableOf({{1e-30, 1e-30}, {1e-30, 1e-30}}));
    EXPECT_EQ(lu.error, 0);
    EXPECT_SAME_BITS(lu.table.getElement(1, 1), 1e-20);
}

TEST(LU, WithoutAPivotInTheFirstColumnEndsThere)
{
    const matrix<double> table = tableOf({{notANumber, 1}, {notANumber, 2}});
    const decomposition lu(table);
    EXPECT_EQ(lu.error, 1);
    EXPECT_EQ(lu.sign, 1);
    expectTable(lu.table, table);
    expectPivots(lu.pivots, {0, 0});
}

TEST(LU, WithoutAPivotInALaterColumnTakesTheLastOneAgain)
{
    const decomposition lu(tableOf({{1, notANumber, 1}, {1, notANumber, 1}, {1, notANumber, 1}}));
    EXPECT_EQ(lu.error, 0);
    EXPECT_EQ(lu.pivots[0], 3);
    EXPECT_EQ(lu.pivots[1], 3) << "chosen in the first column";
    const decomposition above(tableOf({{4, notANumber}, {1, notANumber}}));
    expectPivots(above.pivots, {2, 2});
    const decomposition first(tableOf({{4, notANumber, 1}, {1, notANumber, 8}, {1, notANumber, 8}}));
    expectPivots(first.pivots, {1, 1, 1});
    EXPECT_EQ(first.sign, 1) << "a row that was done with is swapped too, and counts";
}

TEST(LU, TakesAMissingCellForANumber)
{
    const decomposition lu(tableOf({{MISSING_DBL, 0}, {0, 2}}));
    EXPECT_EQ(lu.error, 0);
    expectTable(lu.table, tableOf({{MISSING_DBL, 0}, {-0.0, 2}}));
}

TEST(LU, GivesThePivotsTheirSizeOnlyWhenTheyAreTooFew)
{
    matrix<double> A = tableOf({{3}});
    matrix<int> pivots(3, 1);
    std::fill_n(pivots.data, 3, 9);
    int sign = 0;
    short int error = 9;
    M_LUDecomp(&A, 1, &pivots, sign, &error);
    expectPivots(pivots, {1, 9, 9});
    EXPECT_EQ(error, 0);
    EXPECT_EQ(sign, 1);
    matrix<int> none;
    M_LUDecomp(&A, 0, &none, sign, &error);
    EXPECT_EQ(none.nbrows, 0);
    EXPECT_EQ(error, 0);
}

TEST(LU, HasTheBitsOfThePlainLoop)
{
    for (const auto set : korvel::test::setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        compareWithThePlainLoop();
    }
}

TEST(LU, MultipliedAgainGivesTheTable)
{
    for (const int n : orders) {
        const matrix<double> random = randomSquare(n);
        matrix<double> deficient = randomSquare(n, 8);
        for (int i = 0; n > 2 && i < n; ++i) {
            deficient.setElement(i, n - 1, deficient.getElement(i, 0) - deficient.getElement(i, 1));
        }
        const std::vector<square_kind> kinds{
            {"random", random},
            {"graded", graded(random, 1.5)},
            {"Hilbert", hilbert(n)},
            {"rank deficient", deficient},
            {"diagonal", squareOf(n, [](int i, int j) { return i == j ? 1.0 / (i + 1) : 0.0; })},
            {"tiny", scaled(random, 1e-290)},
            {"huge", scaled(random, 1e290)}};
        for (const square_kind& kind : kinds) {
            SCOPED_TRACE(kind.name + " " + std::to_string(n));
            const decomposition lu(kind.table);
            ASSERT_EQ(lu.error, 0);
            const matrix<double> lower = squareOf(
                n, [&](int i, int j) { return i > j ? lu.table.getElement(i, j) : (i == j ? 1.0 : 0.0); });
            const matrix<double> upper =
                squareOf(n, [&](int i, int j) { return i <= j ? lu.table.getElement(i, j) : 0.0; });
            matrix<double> swapped(kind.table);
            for (int k = 0; k < n; ++k) {
                for (int j = 0; j < n; ++j) {
                    std::swap(swapped.data[k + n * j], swapped.data[lu.pivots[k] - 1 + n * j]);
                }
            }
            EXPECT_LT(scaledResidual(lower, upper, swapped), lapackThreshold);
        }
        if (n > 0) {
            EXPECT_EQ(decomposition(scaled(random, 0.0)).error, -1);
        }
    }
}
