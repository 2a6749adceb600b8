#include "linalg/diagonal_scaling.h"

#include "linalg/results_taken_as_they_are.h"
#include "reference/cell_products.h"
#include "support/random_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;
using reference::orMissing;

namespace
{

/** Operands of one case, some of them a little too small. */
struct operands {
    matrix<double> a;
    matrix<double> rows;   ///< a factor for each row
    matrix<double> cols;   ///< and for each column
    matrix<double> square; ///< whose diagonal has factors for both

    operands(random_cells& cells, const table_sizes& s)
        : a(randomTable(cells, s.n - s.rowsShort, s.p - s.colsShort)), rows(cells.values(s.n - s.rowsShort)),
          cols(cells.values(s.p)), square(randomTable(cells, std::max(s.n, s.p), std::max(s.n, s.p)))
    {
    }
};

} // namespace

TEST(DiagonalScaling, ColumnsTimesTheDiagonalOfATable)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        operands x(cells, s);
        matrix<double> actual(s.n, s.p, 0.5);
        matrix<double> expected(s.n, s.p, 0.5);
        M_ProductADiag(&x.a, s.n, s.p, &x.square, &actual);
        reference::fill(expected, s.n, s.p,
                        [&](int i, int k) { return x.a.getElement(i, k) * x.square.getElement(k, k); });
        EXPECT_TRUE(sameTable(actual, expected));

        matrix<double> transposed(s.p, s.n, 0.5);
        matrix<double> expectedTransposed(s.p, s.n, 0.5);
        M_ProductTrADiag(&x.a, s.n, s.p, &x.square, &transposed);
        reference::fill(expectedTransposed, s.p, s.n,
                        [&](int k, int i) { return x.a.getElement(i, k) * x.square.getElement(i, i); });
        EXPECT_TRUE(sameTable(transposed, expectedTransposed));
    });
}

TEST(DiagonalScaling, ColumnsAndRowsTimesAVector)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        operands x(cells, s);
        const auto byColumn = [&](int i, int k) { return orMissing(x.a.getElement(i, k), x.cols[k]); };
        const auto byRow = [&](int i, int k) { return orMissing(x.rows[i], x.a.getElement(i, k)); };
        const auto byBoth = [&](int i, int k) { return orMissing(byRow(i, k), x.cols[k]); };
        const auto expect = [&](const matrix<double>& actual, auto cell) {
            matrix<double> expected(s.n, s.p, 0.5);
            reference::fill(expected, s.n, s.p, cell);
            EXPECT_TRUE(sameTable(actual, expected));
        };

        matrix<double> c(s.n, s.p, 0.5);
        M_ProductADiagV(&x.a, s.n, s.p, &x.cols, &c);
        expect(c, byColumn);
        M_ProductDiagVA(&x.rows, s.n, &x.a, s.p, &c);
        expect(c, byRow);
        M_ProductDiagV1ADiagV2(&x.rows, s.n, &x.a, s.p, &x.cols, &c);
        expect(c, byBoth);

        matrix<double> transposed(s.p, s.n, 0.5);
        matrix<double> expected(s.p, s.n, 0.5);
        M_ProductTrADiagV(&x.a, s.n, s.p, &x.rows, &transposed);
        reference::fill(expected, s.p, s.n, [&](int k, int r) { return x.a.getElement(r, k) * x.rows[r]; });
        EXPECT_TRUE(sameTable(transposed, expected));
    });
}

namespace
{

template <class M>
class ChunkedDiagonalScaling : public ::testing::Test
{
};

using chunk_types = ::testing::Types<matrix<double>, statistics_matrix<double>>;

} // namespace

TYPED_TEST_SUITE(ChunkedDiagonalScaling, chunk_types);

TYPED_TEST(ChunkedDiagonalScaling, IsThatOfTheDenseTable)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto dense = randomTable(cells, s.n, s.p);
        auto chunks = chunksOf<TypeParam>(dense);
        auto rows = cells.values(s.n);
        auto cols = cells.values(s.p);
        const auto expect = [&](const matrix3D<TypeParam>& actual, const matrix<double>& expected) {
            for (int j = 0; j < s.p; ++j) {
                for (int i = 0; i < s.n; ++i) {
                    EXPECT_SAME_BITS(actual.chunks[static_cast<std::size_t>(j)].data[i],
                                     expected.getElement(i, j));
                }
            }
        };

        matrix<double> c(s.n, s.p, 0.5);
        matrix3D<TypeParam> result(s.p, s.n, s.p, 0.5);
        M_ProductADiagV(&dense, s.n, s.p, &cols, &c);
        M_ProductADiagVSPV(&chunks, s.n, s.p, &cols, &result);
        expect(result, c);
        M_ProductDiagV1ADiagV2(&rows, s.n, &dense, s.p, &cols, &c);
        M_ProductDiagV1ADiagV2SPV(&rows, s.n, &chunks, s.p, &cols, &result);
        expect(result, c);
        M_ProductDiagVA(&rows, s.n, &dense, s.p, &c);
        M_ProductDiagVASPV(&rows, s.n, &chunks, s.p, &result);
        expect(result, c);
    });
}

TEST(DiagonalScaling, AMissingFactorMakesItsRowOrColumnMissing)
{
    matrix<double> a(2, 2, 3.0);
    auto factors = vectorOf<double>({2.0, MISSING_DBL});
    matrix<double> c(2, 2, 0.0);
    M_ProductADiagV(&a, 2, 2, &factors, &c);
    EXPECT_SAME_BITS(c.getElement(1, 0), 6.0);
    EXPECT_SAME_BITS(c.getElement(0, 1), MISSING_DBL);
    EXPECT_SAME_BITS(c.getElement(1, 1), MISSING_DBL);
    M_ProductDiagVA(&factors, 2, &a, 2, &c);
    EXPECT_SAME_BITS(c.getElement(0, 1), 6.0);
    EXPECT_SAME_BITS(c.getElement(1, 0), MISSING_DBL);
    EXPECT_SAME_BITS(c.getElement(1, 1), MISSING_DBL);
}

TEST(DiagonalScaling, ALargerResultKeepsItsShapeAndOnlyItsFirstElementsBecomeZero)
{
    matrix<double> a(2, 2, 3.0);
    matrix<double> d(2, 2, 2.0);
    matrix<double> c(3, 2, 9.0);
    M_ProductADiag(&a, 2, 2, &d, &c);
    EXPECT_EQ(c.nbrows, 3);
    EXPECT_SAME_BITS(c.getElement(1, 1), 6.0);
    EXPECT_SAME_BITS(c.getElement(2, 0), 0.0);
    EXPECT_SAME_BITS(c.getElement(2, 1), 9.0);
    matrix<double> transposed(3, 2, 9.0);
    M_ProductTrADiag(&a, 2, 2, &d, &transposed);
    EXPECT_EQ(transposed.nbrows, 3);
    EXPECT_SAME_BITS(transposed.getElement(2, 0), 0.0);
    EXPECT_SAME_BITS(transposed.getElement(2, 1), 9.0);
}

TEST(DiagonalScaling, ByVectorsTakesTheResultAsItIs)
{
    matrix<double> a(2, 2, 3.0);
    auto d = vectorOf<double>({2.0, 5.0});
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ProductADiagV(&a, 2, 2, &d, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ProductDiagVA(&d, 2, &a, 2, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ProductDiagV1ADiagV2(&d, 2, &a, 2, &d, c); });
    expectResultTakenAsItIs([&](matrix<double>* c) { M_ProductTrADiagV(&a, 2, 2, &d, c); });
}

TYPED_TEST(ChunkedDiagonalScaling, TakesTheChunksOfTheResultAsTheyAre)
{
    auto chunks = chunksOf<TypeParam>(matrix<double>(2, 2, 3.0));
    auto d = vectorOf<double>({2.0, 5.0});
    const auto expectKept = [](auto call) {
        matrix3D<TypeParam> c;
        c.chunks.emplace_back(3, 1, 9.0);
        c.chunks.emplace_back(1, 1, 9.0);
        call(&c);
        EXPECT_SAME_BITS(c.chunks[0].data[2], 9.0);
        EXPECT_NE(c.chunks[0].data[1], 9.0);
        EXPECT_EQ(c.chunks[1].nbrows, 1);
    };
    expectKept([&](matrix3D<TypeParam>* c) { M_ProductADiagVSPV(&chunks, 2, 2, &d, c); });
    expectKept([&](matrix3D<TypeParam>* c) { M_ProductDiagVASPV(&d, 2, &chunks, 2, c); });
    expectKept([&](matrix3D<TypeParam>* c) { M_ProductDiagV1ADiagV2SPV(&d, 2, &chunks, 2, &d, c); });
}
