#include "linalg/element_wise.h"

#include "linalg/results_taken_as_they_are.h"
#include "reference/cell_products.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

namespace
{

/** A table of the sizes of a case, less what it is short by. */
matrix<double> heldTable(random_cells& cells, const table_sizes& s)
{
    return randomTable(cells, s.n - s.rowsShort, s.p - s.colsShort);
}

} // namespace

TEST(ElementWise, TablesTimesANumber)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto a = heldTable(cells, s);
        const double factor = cells.value();
        const auto scaled = [&](int i, int j) {
            return reference::orMissing(a.getElement(i, j), 1.0) == MISSING_DBL ? MISSING_DBL
                                                                                : factor * a.getElement(i, j);
        };

        matrix<double> actual(s.n, s.p, 0.5);
        matrix<double> expected(s.n, s.p, 0.5);
        M_ScalarsA(&a, s.n, s.p, factor, &actual);
        reference::fill(expected, s.n, s.p, scaled);
        EXPECT_TRUE(sameTable(actual, expected));

        matrix<double> transposed(s.p, s.n, 0.5);
        matrix<double> expectedTransposed(s.p, s.n, 0.5);
        M_ScalarsTrA(&a, s.n, s.p, factor, &transposed);
        reference::fill(expectedTransposed, s.p, s.n, [&](int j, int i) { return scaled(i, j); });
        EXPECT_TRUE(sameTable(transposed, expectedTransposed));

        matrix<double> inPlace(a);
        matrix<double> expectedInPlace(a);
        M_ScalarsA2(&inPlace, s.n, s.p, factor);
        reference::fill(expectedInPlace, s.n, s.p, [&](int i, int j) { return expected.getElement(i, j); });
        EXPECT_TRUE(sameTable(inPlace, expectedInPlace));
    });
}

TEST(ElementWise, TablesPlusANumber)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto a = heldTable(cells, s);
        const double value = cells.value();
        matrix<double> actual(s.n, s.p, 0.5);
        matrix<double> expected(s.n, s.p, 0.5);
        M_APlusVal(&a, s.n, s.p, value, &actual);
        reference::fill(expected, s.n, s.p, [&](int i, int j) { return a.getElement(i, j) + value; });
        EXPECT_TRUE(sameTable(actual, expected));

        matrix<double> inPlace(a);
        matrix<double> expectedInPlace(a);
        M_APlusVal2(&inPlace, s.n, s.p, value);
        reference::fill(expectedInPlace, s.n, s.p,
                        [&](int i, int j) { return expectedInPlace.getElement(i, j) + value; });
        EXPECT_TRUE(sameTable(inPlace, expectedInPlace));
    });
}

TEST(ElementWise, IntegersPlusANumberLoseTheFraction)
{
    matrix<int> a(2, 2);
    a.data[0] = 1;
    a.data[1] = -4;
    a.data[2] = MISSING_LNG;
    a.data[3] = 2147483647;
    matrix<double> exact(2, 2, 0.0);
    M_APlusVal(&a, 2, 2, 1.75, &exact);
    EXPECT_SAME_BITS(exact.data[0], 2.75);
    EXPECT_SAME_BITS(exact.data[1], -2.25);
    EXPECT_SAME_BITS(exact.data[2], -2147483646.25);
    EXPECT_SAME_BITS(exact.data[3], 2147483648.75);

    matrix<int> whole(2, 2);
    M_APlusVal(&a, 2, 2, 1.75, &whole);
    EXPECT_EQ(whole.data[0], 2);
    EXPECT_EQ(whole.data[1], -2);
    EXPECT_EQ(whole.data[2], -2147483646);
    EXPECT_EQ(whole.data[3], MISSING_LNG) << "no int holds it";
    EXPECT_EQ(whole.oobValue, MISSING_LNG);

    matrix<int> truncated(2, 2);
    M_APlusVal(&exact, 2, 2, -0.25, &truncated);
    EXPECT_EQ(truncated.data[0], 2);
    EXPECT_EQ(truncated.data[1], -2);

    M_APlusVal2(&a, 2, 1, 0.5);
    EXPECT_EQ(a.data[0], 1);
    EXPECT_EQ(a.data[1], -3);
    EXPECT_EQ(a.data[2], MISSING_LNG);
}

TEST(ElementWise, AMissingCellPlusANumberIsNoLongerMissing)
{
    matrix<double> a(1, 1, MISSING_DBL);
    M_APlusVal2(&a, 1, 1, 1e300);
    EXPECT_SAME_BITS(a.data[0], MISSING_DBL + 1e300);
    EXPECT_NE(a.data[0], MISSING_DBL);
}

TEST(ElementWise, SquaresKeepMissingCells)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto actual = heldTable(cells, s);
        matrix<double> expected(actual);
        M_Square(&actual, s.n, s.p);
        reference::fill(expected, s.n, s.p, [&](int i, int j) {
            const double cell = expected.getElement(i, j);
            return reference::orMissing(cell, cell);
        });
        EXPECT_TRUE(sameTable(actual, expected));
    });
}

TEST(ElementWise, ProductsAndSumsOfTwoTables)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto a = heldTable(cells, s);
        auto b = randomTable(cells, s.n, s.p);
        matrix<double> product(s.n, s.p, 0.5);
        matrix<double> sum(s.n, s.p, 0.5);
        matrix<double> expectedProduct(s.n, s.p, 0.5);
        matrix<double> expectedSum(s.n, s.p, 0.5);
        M_ProductByElement(&a, s.n, s.p, &b, &product);
        SumMat(&a, &b, s.n, s.p, &sum);
        reference::fill(expectedProduct, s.n, s.p,
                        [&](int i, int j) { return a.getElement(i, j) * b.getElement(i, j); });
        reference::fill(expectedSum, s.n, s.p,
                        [&](int i, int j) { return a.getElement(i, j) + b.getElement(i, j); });
        EXPECT_TRUE(sameTable(product, expectedProduct));
        EXPECT_TRUE(sameTable(sum, expectedSum));
    });
}

TEST(ElementWise, TimesANumberInPlaceWithoutMissingCells)
{
    matrix<double> a(2, 1, MISSING_DBL);
    a.data[1] = 3.0;
    multiplyByValue(a, 2, 1, 0.5);
    EXPECT_SAME_BITS(a.data[0], MISSING_DBL * 0.5);
    EXPECT_SAME_BITS(a.data[1], 1.5);
}

TEST(ElementWise, ALargerResultKeepsItsShapeAndOnlyItsFirstElementsBecomeZero)
{
    matrix<double> a(2, 2, 1.0);
    matrix<double> c(3, 2, 9.0);
    M_ScalarsTrA(&a, 1, 2, 4.0, &c);
    EXPECT_TRUE(sameTable(c, [] {
        auto expected = tableOf({{4.0, 9.0}, {4.0, 9.0}, {9.0, 9.0}});
        expected.oobValue = 4.0;
        return expected;
    }()));
    M_ScalarsTrA(&a, 2, 2, 4.0, &c);
    EXPECT_SAME_BITS(c.getElement(2, 0), 0.0) << "the third element, below the block";
    EXPECT_SAME_BITS(c.getElement(2, 1), 9.0);
}

TEST(ElementWise, ASparseTableStaysWhenACountIsBelowNone)
{
    matrix<double> dense = tableOf({{1, 0}, {0, 3}});
    const matrixSparse before(&dense);
    matrixSparse a = before;
    M_ScalarsA2(&a, -1, 2, 5.0);
    M_ScalarsA2(&a, 2, -1, 5.0);
    M_ScalarsA2(&a, -2, -2, 5.0);
    EXPECT_TRUE(sameStorage(a, before));
    M_ScalarsA2(&a, 0, 0, 5.0);
    EXPECT_TRUE(sameStorage(a, matrixSparse(0, 0, 0.0, false)));
}

TEST(ElementWise, SparseTablesTimesANumber)
{
    auto dense = tableOf({{1.0, 0.0, MISSING_DBL}, {0.0, 2.0, 1e-10}});
    matrixSparse a(&dense);
    matrixSparse c(2, 3, 0.0, false);
    c.setElement(0, 1, 7.0);
    M_ScalarsA(&a, 2, 3, 1e-9, &c);
    EXPECT_SAME_BITS(c.getElement(0, 0), 1e-9);
    EXPECT_SAME_BITS(c.getElement(0, 2), MISSING_DBL);
    EXPECT_SAME_BITS(c.getElement(1, 1), 1e-9 * 2.0);
    EXPECT_EQ(c.nnz, 3) << "zeros take entries out, and so does a product that is too small";
    EXPECT_EQ(c.colIndex, (std::vector<int>{2, 0, 1})) << "new entries go to the front of their row";

    M_ScalarsA2(&a, 2, 2, 3.0);
    EXPECT_EQ(a.nbrows, 2);
    EXPECT_EQ(a.nbcols, 2);
    EXPECT_EQ(a.nnz, 2);
    EXPECT_SAME_BITS(a.getElement(0, 0), 3.0);
    EXPECT_SAME_BITS(a.getElement(1, 1), 6.0);
}

TEST(ElementWise, OtherResultsAreTakenAsTheyAre)
{
    matrix<double> a(2, 2, 2.0);
    matrix<int> whole(2, 2, 3);
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ScalarsA(&a, 2, 2, 4.0, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_APlusVal(&a, 2, 2, 4.0, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_APlusVal(&whole, 2, 2, 4.0, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ProductByElement(&a, 2, 2, &a, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { SumMat(&a, &a, 2, 2, c); });
    matrix<int> larger(3, 2, 9);
    M_APlusVal(&whole, 2, 2, 4.0, &larger);
    EXPECT_EQ(larger.getElement(2, 0), 9);
    larger.setElement(2, 0, 8);
    M_APlusVal(&a, 2, 2, 4.0, &larger);
    EXPECT_EQ(larger.getElement(2, 0), 8);
}
