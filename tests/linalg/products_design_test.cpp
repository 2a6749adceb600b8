#include "linalg/products_design.h"

#include "reference/pair_products.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

#include <limits>

using namespace korvel::test;

namespace
{

/** Cells of a design: mostly 0, 1 and -1, and sums of effects. */
void fillAsDesign(random_cells& cells, matrix<double>& table)
{
    constexpr std::array kinds{0.0, 1.0, 1.0, 1.0, -1.0, 0.5, 2.0, 1e-13, 1e-9, 3e-16, 2.220446049250313e-16};
    for (std::uint64_t k = 0; k < table.nbElem; ++k) {
        const bool odd = cells.integer(0, 9) == 0;
        table.data[k] = odd ? cells.value() : kinds[static_cast<std::size_t>(cells.integer(0, 10))];
    }
    table.oobValue = cells.integer(0, 1);
}

/** A table of these counts, or one time in six of somewhat other ones. */
matrix<double> aTable(random_cells& cells, int rows, int cols)
{
    matrix<double> made =
        cells.integer(0, 5) == 0 ? nearTable<double>(cells, rows, cols) : matrix<double>(rows, cols, 0.0);
    fillAsDesign(cells, made);
    return made;
}

/** The room that a table of `colsA` columns needs for its products. */
int roomFor(int colsA, int colsB)
{
    return colsA * std::max(colsB, 1);
}

struct design_result {
    std::vector<double> cells;
    std::vector<double> sums;
};

/** The interactions of a design of `colsA` columns in a table that has room for them. */
design_result interactions(std::vector<double> cells, int n, int colsA, matrix<double> B, int type,
                           std::vector<double> weights)
{
    const int colsB = B.nbcols;
    cells.resize(static_cast<std::size_t>(n * colsA * colsB));
    matrix<double> A = columnTable(n, cells);
    matrix<double> w = vectorOf<double>(std::move(weights));
    matrix<double> sums(colsA * colsB, 1, 0.0);
    M_ProductDesignAB2(&A, n, colsA, &B, colsB, type, &w, &sums);
    EXPECT_EQ(colsA, sums.nbrows);
    return {cellsOf(A), cellsOf(sums)};
}

using columns = std::vector<double>;

} // namespace

TEST(DesignInteractions, AreThePlainOnes)
{
    for (std::uint64_t seed = 1; seed <= 900; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 3 == 0 ? odd_cells::all : odd_cells::missing_and_zeros);
        const int n = cells.integer(0, seed % 10 == 0 ? 70 : 6);
        const int colsA = cells.integer(0, 4);
        const int colsB = cells.integer(0, 4);
        const int type = cells.integer(4, 7);
        matrix<double> actual = aTable(cells, n, roomFor(colsA, colsB));
        matrix<double> expected = twinOf(actual);
        matrix<double> B = aTable(cells, n, colsB);
        matrix<double> weights = cells.integer(0, 5) == 0 ? nearTable<double>(cells, n, 1) : cells.weights(n);
        matrix<double>* const given = cells.integer(0, 3) == 0 ? nullptr : &weights;
        matrix<double> sums = cells.integer(0, 5) == 0 ? nearTable<double>(cells, colsA * colsB, 1)
                                                       : matrix<double>(colsA * colsB, 1, 0.5);
        matrix<double> expectedSums = twinOf(sums);
        int actualCols = colsA;
        int expectedCols = colsA;
        M_ProductDesignAB2(&actual, n, actualCols, &B, colsB, type, given, &sums);
        plainDesign(expected, n, expectedCols, B, colsB, type, given, expectedSums);
        EXPECT_EQ(actualCols, expectedCols);
        expectSame(actual, expected);
        expectSame(sums, expectedSums);
        if (HasFailure()) {
            return;
        }
    }
}

TEST(DesignInteractions, OfTypesBelowFiveAreProducts)
{
    const auto made = interactions({2, 3, 5, 7}, 2, 2, columnTable(2, {10, 100}), 4, {1, 2});
    EXPECT_EQ(made.cells, (columns{20, 300, 50, 700}));
    EXPECT_EQ(made.sums, (columns{3, 3}));
}

TEST(DesignInteractions, OfOtherTypesAreOneAfterTheFirstColumn)
{
    const auto made = interactions({2, 3, 5, 7}, 2, 2, columnTable(2, {10, 100}), 5, {1, 2});
    EXPECT_EQ(made.cells, (columns{20, 300, 1, 1}));
}

TEST(DesignInteractions, RepeatTheRowBeforeWhereAFactorIsNotPositive)
{
    // The carried value starts as 0, runs through a column, and on into the next.
    const auto made =
        interactions({0, 2, 0, 3, 0, 0, 5, 0}, 4, 2, columnTable(4, {1, 1, 1, 1}), 4, {1, 1, 1, 1});
    EXPECT_EQ(made.cells, (columns{0, 2, 2, 3, 3, 3, 5, 5}));
    const auto effects =
        interactions({0, 2, 0, 3, 0, 0, 5, 0}, 4, 2, columnTable(4, {1, 1, 1, 1}), 5, {1, 1, 1, 1});
    EXPECT_EQ(effects.cells, (columns{0, 2, 2, 3, 3, 3, 1, 1}));
}

TEST(DesignInteractions, CarryOnTheValueAndNotTheMinusOneOfTheReference)
{
    // Rows 1 and 3 of the reference are 1. Row 3 of the second column would carry on the 1 of row 2.
    const auto made =
        interactions({1, 0, 1, 0, 0, 1, 0, 0}, 4, 2, columnTable(4, {1, 2, 1, 2}), 5, {1, 1, 1, 1});
    EXPECT_EQ(made.cells, (columns{1, 1, 1, 1, -1, -1, -1, -1}));
    const auto other =
        interactions({2, 1, 2, 0, 0, 1, 0, 0}, 4, 2, columnTable(4, {1, 1, 1, 1}), 5, {1, 1, 1, 1});
    EXPECT_EQ(other.cells, (columns{2, 1, 2, 2, 2, -1, 1, 1}));
}

TEST(DesignInteractions, TakeAReferenceNearOneForOne)
{
    for (const auto& [reference, expected] : {std::pair{1.0 + 9e-13, -1.0}, std::pair{1.0 + 2e-12, 1.0}}) {
        const auto made = interactions({reference, 1}, 1, 2, columnTable(1, {1}), 5, {1});
        EXPECT_EQ(made.cells, (columns{reference, expected}));
    }
}

TEST(DesignInteractions, ClearAColumnThatHasNothing)
{
    // So the second column is the reference, and the carried value passes over the first.
    const auto made = interactions({0, 0, 1, 4, 1, 1}, 2, 3, columnTable(2, {1, 1}), 4, {1, 1});
    EXPECT_EQ(made.cells, (columns{0, 0, 1, 4, 1, 1}));
    const auto effects = interactions({0, 0, 1, 4, 1, 1}, 2, 3, columnTable(2, {1, 1}), 5, {1, 1});
    EXPECT_EQ(effects.cells, (columns{0, 0, 1, 1, -1, -1}));
    // A carried value does not stay in a column that has nothing.
    const auto last = interactions({3, 4, 0, 0}, 2, 2, columnTable(2, {1, 1}), 4, {1, 1});
    EXPECT_EQ(last.cells, (columns{3, 4, 0, 0}));
}

TEST(DesignInteractions, PassOverAProductThatIsTooSmall)
{
    // Both factors count, so the column is not cleared; but with effects the product must be above the limit.
    const auto made = interactions({1, 1e-9}, 1, 2, columnTable(1, {1e-9}), 5, {1});
    EXPECT_EQ(made.cells, (columns{1e-9, 1e-9}));
    const auto plain = interactions({1, 1e-9}, 1, 2, columnTable(1, {1e-9}), 4, {1});
    EXPECT_EQ(plain.cells, (columns{1e-9, 1e-9 * 1e-9}));
}

TEST(DesignInteractions, ScaleTheNegativeCellsOfTypeSixOnly)
{
    // The second column is 1, -1, 1 with weights 2, 3, 5.
    const std::vector<double> design{2, 1, 2, 1, 1, 1};
    const auto five = interactions(design, 3, 2, columnTable(3, {1, 1, 1}), 5, {2, 3, 5});
    EXPECT_EQ(five.cells, (columns{2, 1, 2, 1, -1, 1}));
    EXPECT_EQ(five.sums, (columns{10, 7}));
    const auto six = interactions(design, 3, 2, columnTable(3, {1, 1, 1}), 6, {2, 3, 5});
    EXPECT_EQ(six.cells, (columns{2, 1, 2, 1, -7.0 / 3.0, 1}));
    EXPECT_EQ(six.sums, (columns{10, 7}));
    const auto seven = interactions(design, 3, 2, columnTable(3, {1, 1, 1}), 7, {2, 3, 5});
    EXPECT_EQ(seven.cells, five.cells);
}

TEST(DesignInteractions, LeaveAColumnWithoutNegativeCells)
{
    const auto made = interactions({2, 3, 2, 2}, 2, 2, columnTable(2, {1, 1}), 6, {4, 8});
    EXPECT_EQ(made.cells, (columns{2, 3, 1, 1}));
    EXPECT_EQ(made.sums, (columns{12, 12}));
    // Negative cells without weight are left too.
    const auto weightless = interactions({1, 2, 1, 2}, 2, 2, columnTable(2, {1, 1}), 6, {0, 8});
    EXPECT_EQ(weightless.cells, (columns{1, 2, -1, 1}));
    // So are those of as little weight as the tolerance.
    constexpr double eps = std::numeric_limits<double>::epsilon();
    const auto little = interactions({1, 2, 1, 2}, 2, 2, columnTable(2, {1, 1}), 6, {eps, 8});
    EXPECT_EQ(little.cells, (columns{1, 2, -1, 1}));
    const auto more = interactions({1, 2, 1, 2}, 2, 2, columnTable(2, {1, 1}), 6, {2 * eps, 8});
    EXPECT_EQ(more.cells, (columns{1, 2, -8 / (2 * eps), 1}));
}

TEST(HorizontalProduct, IsThePlainOne)
{
    forRandomShapes([](random_cells& cells, int n, int colsA) {
        const int colsB = cells.integer(0, 4);
        matrix<double> A = nearTable<double>(cells, n, colsA);
        matrix<double> B = nearTable<double>(cells, n, colsB);
        matrix<double> made = nearTable<double>(cells, n, colsA * colsB);
        matrix<double> expected = twinOf(made);
        matrix<double>* C = &made;
        M_ProductHorizAB(&A, n, colsA, &B, colsB, C, 77);
        EXPECT_EQ(C, &made);
        if (colsA * colsB == 0) {
            EXPECT_EQ(made.nbrows, n);
            EXPECT_EQ(made.nbcols, 1);
            return;
        }
        expected.Redim(n, colsA * colsB);
        plainHorizontal(
            A, n, colsA, B, colsB, [](double a, double b) { return a * b; },
            [&](int r, int c, double x) { expected.setElement(r, c, x); });
        expectSame(made, expected);
    });
}

TEST(HorizontalProduct, InPlaceIsThePlainOneWithMissingCells)
{
    forRandomShapes([](random_cells& cells, int n, int colsA) {
        const int colsB = cells.integer(0, 4);
        matrix<double> actual = nearTable<double>(cells, n, roomFor(colsA, colsB));
        matrix<double> expected = twinOf(actual);
        matrix<double> B = nearTable<double>(cells, n, colsB);
        matrix<double> products(n, std::max(colsA * colsB, 1), 0.0);
        plainHorizontal(
            actual, n, colsA, B, colsB,
            [](double a, double b) { return a == MISSING_DBL || b == MISSING_DBL ? MISSING_DBL : a * b; },
            [&](int r, int c, double x) { products.setElement(r, c, x); });
        for (int c = 0; c < colsA * colsB; ++c) {
            for (int r = 0; r < n; ++r) {
                expected.setElement(r, c, products.getElement(r, c));
            }
        }
        int cols = colsA;
        M_ProductHorizAB2(&actual, n, cols, &B, colsB);
        EXPECT_EQ(cols, colsA * colsB);
        expectSame(actual, expected);
    });
}

TEST(HorizontalProduct, LosesColumnsThatTheTableHasNoRoomFor)
{
    matrix<double> A = columnTable(1, {2, 3});
    matrix<double> B = columnTable(1, {10, 100});
    int cols = 2;
    M_ProductHorizAB2(&A, 1, cols, &B, 2);
    EXPECT_EQ(cols, 4);
    EXPECT_EQ(cellsOf(A), (columns{20, 200}));
    EXPECT_EQ(A.oobValue, 300.0);
}

TEST(HorizontalProduct, OfATableWithItself)
{
    matrix<double> A = columnTable(1, {2, MISSING_DBL, 0, 0});
    int cols = 2;
    M_ProductHorizAB2(&A, 1, cols, &A, 2);
    EXPECT_EQ(cellsOf(A), (columns{4, MISSING_DBL, MISSING_DBL, MISSING_DBL}));
    // Out of place no cell is looked at.
    matrix<double> B = columnTable(1, {1, MISSING_DBL});
    matrix<double> made;
    matrix<double>* C = &made;
    M_ProductHorizAB(&B, 1, 2, &B, 1, C, 0);
    EXPECT_EQ(cellsOf(made), (columns{1, MISSING_DBL}));
    M_ProductHorizAB(&B, 1, 2, &B, 2, C, 0);
    EXPECT_EQ(cellsOf(made), (columns{1, MISSING_DBL, MISSING_DBL, infinite}));
}

TEST(VectorOfAllProducts, IsThePlainOne)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::all);
        const int n = cells.integer(0, 6);
        const int m = cells.integer(0, 6);
        matrix<double> actual = nearTable<double>(cells, n * std::max(m, 1), 1);
        matrix<double> expected = twinOf(actual);
        matrix<double> y = nearTable<double>(cells, m, 1);
        std::vector<double> products;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < m; ++j) {
                products.push_back(expected[i] * y[j]);
            }
        }
        for (int k = 0; k < n * m; ++k) {
            expected[k] = products[static_cast<std::size_t>(k)];
            expected.oobValue = products.back();
        }
        int count = n;
        V_ProductHorizV1V22(&actual, count, &y, m);
        EXPECT_EQ(count, n * m);
        expectSame(actual, expected);
    }
}

TEST(VectorOfAllProducts, RunsOverTheSecondVectorFirst)
{
    matrix<double> x = vectorOf<double>({2, 3, 0, 0, 0, 0});
    matrix<double> y = vectorOf<double>({10, 100, MISSING_DBL});
    int n = 2;
    V_ProductHorizV1V22(&x, n, &y, 3);
    EXPECT_EQ(cellsOf(x), (columns{20, 200, -infinite, 30, 300, -infinite}));
    EXPECT_EQ(n, 6);
}

TEST(HorizontalProduct, GivesItsResultTheShape)
{
    matrix<double> A = columnTable(2, {1, 2});
    matrix<double> B = columnTable(2, {10, 100});
    matrix<double> larger(4, 3, 9.0);
    matrix<double>* C = &larger;
    M_ProductHorizAB(&A, 2, 1, &B, 1, C, 0);
    EXPECT_EQ(larger.nbrows, 2);
    EXPECT_EQ(cellsOf(larger), (columns{10, 200}));
    // The caller's memory keeps its shape, and the cells beside the product.
    std::vector<double> memory(6, 9.0);
    matrix<double> lent(3, 2, memory.data(), true);
    matrix<double>* D = &lent;
    M_ProductHorizAB(&A, 3, 1, &B, 2, D, 0);
    EXPECT_EQ(lent.nbcols, 2);
    std::fill(memory.begin(), memory.end(), 9.0);
    M_ProductHorizAB(&A, 2, 1, &B, 1, D, 0);
    EXPECT_EQ(lent.nbrows, 3);
    EXPECT_EQ(memory, (columns{10, 200, 9, 9, 9, 9}));
    // Without columns nothing is stored in the one column that a table has at least.
    matrix<double> made(2, 1, 7.0);
    matrix<double>* E = &made;
    M_ProductHorizAB(&A, 2, 1, &B, 0, E, 0);
    EXPECT_EQ(cellsOf(made), (columns{7, 7}));
}

TEST(HorizontalProduct, TakesNegativeCountsForNone)
{
    matrix<double> A = columnTable(1, {2, 3});
    matrix<double> sums(1, 1, 7.0);
    matrix<double> made(1, 1, 7.0);
    matrix<double>* C = &made;
    for (const auto& [n, colsA, colsB] : {std::array{-1, 1, 1}, std::array{1, -1, 1}, std::array{1, 1, -2}}) {
        int cols = colsA;
        M_ProductHorizAB2(&A, n, cols, &A, colsB);
        EXPECT_EQ(cols, n < 0 ? 1 : 0);
        cols = colsA;
        M_ProductDesignAB2(&A, n, cols, &A, colsB, 4, nullptr, &sums);
        EXPECT_EQ(cols, n < 0 ? 1 : 0);
        M_ProductHorizAB(&A, n, colsA, &A, colsB, C, 0);
        EXPECT_EQ(cellsOf(A), (columns{2, 3}));
    }
    EXPECT_EQ(sums.data[0], 0.0) << "of a column without rows";
    int n = -2;
    V_ProductHorizV1V22(&A, n, &A, 2);
    EXPECT_EQ(n, 0);
    n = 2;
    V_ProductHorizV1V22(&A, n, &A, -2);
    EXPECT_EQ(n, 0);
    EXPECT_EQ(cellsOf(A), (columns{2, 3}));
}
