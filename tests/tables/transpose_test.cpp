#include "tables/transpose.h"

#include "containers/element_types.h"
#include "reference/transpose.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/sparse_tables.h"
#include "tables/transposed_block.h"

#include <memory>
#include <random>
#include <type_traits>
#include <utility>
#include <vector>

using namespace korvel::test;
namespace plain = korvel::reference;

namespace
{

/** A dense table of random cells. */
template <class T>
matrix<T> randomCells(random_cells& cells, int rows, int cols)
{
    matrix<T> made(rows, cols, T{});
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        if constexpr (std::is_same_v<T, double>) {
            made.data[k] = cells.value();
        } else {
            made.data[k] = element<T>(cells.integer(0, 1000));
        }
    }
    return made;
}

template <class T>
void expectSameTable(const matrix<T>& actual, const matrix<T>& expected)
{
    ASSERT_EQ(actual.nbrows, expected.nbrows);
    ASSERT_EQ(actual.nbcols, expected.nbcols);
    ASSERT_EQ(actual.nbElem, expected.nbElem);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        if constexpr (std::is_same_v<T, double>) {
            ASSERT_SAME_BITS(actual.data[k], expected.data[k]) << k;
        } else {
            ASSERT_EQ(actual.data[k], expected.data[k]) << k;
        }
    }
    if constexpr (std::is_same_v<T, double>) {
        EXPECT_SAME_BITS(actual.oobValue, expected.oobValue);
    } else {
        EXPECT_EQ(actual.oobValue, expected.oobValue);
    }
}

using shape = std::pair<int, int>;

/** Shapes round each size at which the loops change their ways, for a result with elements of type `To`. */
template <class To>
std::vector<shape> shapes()
{
    constexpr int tile = korvel::detail::tileSide;
    constexpr int strip = korvel::detail::streamedRows;
    constexpr auto streamed = static_cast<int>(korvel::detail::streamedFrom / sizeof(To));
    return {{1, 1},
            {1, 50},
            {50, 1},
            {2, 3},
            {tile - 1, tile},
            {tile, tile + 1},
            {2 * tile + 1, 2 * tile - 1},
            {4 * tile, 4 * tile},
            {127, 129},
            {0, 4},
            {4, 0},
            {strip, streamed / strip - 1},
            {strip - 1, streamed / strip + 5},
            {strip, streamed / strip},
            {strip + 1, streamed / strip + 1},
            {2 * strip + 7, streamed / strip + 3},
            {3, streamed / 3 + 1},
            {streamed / 3 + 1, 3}};
}

template <class From, class To>
void expectTwin()
{
    random_cells cells(1, odd_cells::all);
    for (const auto& [rows, cols] : shapes<To>()) {
        const auto x = randomCells<From>(cells, rows, cols);
        // Into a table that is larger, smaller, or of another shape with the same size.
        for (const int extra : {-1, 0, 3}) {
            matrix<To> y(std::max(cols + extra, 0), std::max(rows, 1), korvel::test::element<To>(7));
            matrix<To> expected(y);
            y.oobValue = korvel::test::element<To>(9);
            expected.oobValue = y.oobValue;
            M_Transpose(x, rows, cols, y);
            plain::transpose(x, rows, cols, expected);
            expectSameTable(y, expected);
        }
    }
}

template <class T>
class InPlaceTranspose : public ::testing::Test
{
};
using element_kinds = ::testing::Types<double, int, text>;
TYPED_TEST_SUITE(InPlaceTranspose, element_kinds);

/** Column chunks of random cells; some chunks are shorter than the table. */
struct chunk_table {
    std::vector<std::unique_ptr<matrix<double>>> columns;
    std::vector<matrix<double>*> pointers;

    chunk_table(random_cells& cells, int rows, int cols, int missingRows)
    {
        for (int j = 0; j < cols; ++j) {
            const int held = std::max(0, rows - (j % 3 == 1 ? missingRows : 0));
            columns.push_back(std::make_unique<matrix<double>>(randomCells<double>(cells, held, 1)));
            columns.back()->oobValue = 100.0 + j;
            pointers.push_back(columns.back().get());
        }
    }
};

} // namespace

TEST(Transpose, OfNumbersIsThePlainLoop)
{
    expectTwin<double, double>();
}

TEST(Transpose, OfIntegersIsThePlainLoop)
{
    expectTwin<int, int>();
}

TEST(Transpose, OfIntegersToNumbersIsThePlainLoop)
{
    expectTwin<int, double>();
}

TEST(Transpose, OfTextsIsThePlainLoop)
{
    random_cells cells(2, odd_cells::none);
    for (const auto& [rows, cols] : {std::pair{1, 1}, {2, 3}, {17, 16}, {40, 33}, {0, 3}, {3, 0}}) {
        const auto x = randomCells<text>(cells, rows, cols);
        matrix<text> y(2, 2, text(u"old"));
        matrix<text> expected(y);
        M_Transpose(x, rows, cols, y);
        plain::transpose(x, rows, cols, expected);
        expectSameTable(y, expected);
    }
}

TEST(Transpose, AMissingIntegerIsANumberLikeTheOthers)
{
    auto x = vectorOf<int>({MISSING_LNG, 3});
    matrix<double> y;
    M_Transpose(x, 2, 1, y);
    EXPECT_EQ(y.data[0], -2147483648.0);
    EXPECT_EQ(y.data[1], 3.0);
}

TEST(Transpose, OfFewerRowsThanNoneIsOneColumnOfZeros)
{
    const auto x = numbered<double>(2, 3);
    matrix<double> y(3, 1, 9.0);
    M_Transpose(x, -1, 3, y);
    EXPECT_EQ(y.nbrows, 3);
    EXPECT_EQ(std::vector<double>(y.data, y.data + y.nbElem), std::vector<double>(3, 0.0));
}

TEST(Transpose, ReadsTheBlockInTheShapeThatItIsTold)
{
    const auto x = numbered<double>(2, 3); // 1 2 3 4 5 6
    matrix<double> y;
    M_Transpose(x, 3, 2, y);
    const std::vector<double> expected{1, 4, 2, 5, 3, 6};
    EXPECT_EQ(std::vector<double>(y.data, y.data + y.nbElem), expected);
}

TEST(Transpose, KeepsTheShapeOfABorrowedTableAndClearsTheRest)
{
    const auto x = numbered<double>(2, 2);
    std::vector<double> block(6, 9.0);
    auto y = viewOf(6, 1, block.data());
    M_Transpose(x, 2, 2, y);
    EXPECT_EQ(y.nbrows, 6);
    EXPECT_EQ(block, (std::vector<double>{1, 3, 2, 4, 0, 0}));
    EXPECT_EQ(y.oobValue, -1.0) << "raw stores leave no trace";
}

TEST(Transpose, WritesBlocksAtAnyAlignmentAndNothingOutside)
{
    constexpr int rows = 801;
    constexpr int cols = 659;
    random_cells cells(3, odd_cells::all);
    const auto x = randomCells<double>(cells, rows, cols);
    matrix<double> expected;
    plain::transpose(x, rows, cols, expected);
    std::vector<double> block(static_cast<std::size_t>(rows) * cols + 20, 77.0);
    for (std::size_t shift = 1; shift < 9; ++shift) {
        auto y = viewOf(cols, rows, block.data() + shift);
        M_Transpose(x, rows, cols, y);
        expectSameTable(y, expected);
        EXPECT_EQ(block[shift - 1], 77.0);
        EXPECT_EQ(block[shift + expected.nbElem], 77.0);
        std::fill(block.begin(), block.end(), 77.0);
    }
}

TYPED_TEST(InPlaceTranspose, TakesTheNewShape)
{
    auto x = numbered<TypeParam>(2, 3);
    x.oobValue = element<TypeParam>(8);
    M_Transpose2(&x, 2, 3);
    EXPECT_EQ(x.nbrows, 3);
    EXPECT_EQ(x.nbcols, 2);
    const std::vector<TypeParam> expected{element<TypeParam>(1), element<TypeParam>(3),
                                          element<TypeParam>(5), element<TypeParam>(2),
                                          element<TypeParam>(4), element<TypeParam>(6)};
    EXPECT_EQ(std::vector<TypeParam>(x.data, x.data + 6), expected);
    EXPECT_EQ(x.oobValue, element<TypeParam>(8));

    std::vector<TypeParam> block = elements<TypeParam>(6);
    auto borrowed = viewOf(2, 3, block.data());
    M_Transpose2(&borrowed, 2, 3);
    EXPECT_EQ(borrowed.nbrows, 2);
    EXPECT_EQ(block, expected);
}

TEST(TransposedChunks, AreThePlainLoop)
{
    using korvel::detail::runCols;
    using korvel::detail::stripRows;
    for (const auto& [rows, cols] :
         {shape{1, 1}, shape{5, 3}, shape{stripRows - 1, runCols - 1}, shape{stripRows, runCols},
          shape{stripRows + 1, runCols + 1}, shape{2 * stripRows + 1, 2 * runCols + 1}, shape{100, 7},
          shape{0, 3}, shape{3, 0}}) {
        for (const int missingRows : {0, 1, 4}) {
            random_cells cells(4, odd_cells::all);
            chunk_table x(cells, rows, cols, missingRows);
            random_cells sameCells(5, odd_cells::none);
            chunk_table y(sameCells, cols, rows, missingRows);
            random_cells again(5, odd_cells::none);
            chunk_table expected(again, cols, rows, missingRows);
            M_TransposeSPV(x.pointers.data(), rows, cols, y.pointers.data());
            plain::transposeChunks(x.pointers.data(), rows, cols, expected.pointers.data());
            for (int i = 0; i < rows; ++i) {
                expectSameTable(*y.pointers[static_cast<std::size_t>(i)],
                                *expected.pointers[static_cast<std::size_t>(i)]);
            }
        }
    }
}

TEST(TransposedObjects, FromChunksToDense)
{
    matrix3D<matrix<double>> x(2, 3, 2, 0.0);
    for (int j = 0; j < 2; ++j) {
        for (int i = 0; i < 3; ++i) {
            x.setElement(j, i, 10.0 * j + i);
        }
    }
    x.chunks[1].oobValue = 99.0;
    matrix<double> y;
    matrix<double>* result = &y;
    M_Transpose(&x, 4, 2, result);
    EXPECT_EQ(result, &y);
    EXPECT_EQ(y.nbrows, 2);
    EXPECT_EQ(y.nbcols, 4);
    // Row 4 is past the end of the chunks: their spare slots.
    EXPECT_EQ(std::vector<double>(y.data, y.data + 8), (std::vector<double>{0, 10, 1, 11, 2, 12, 2, 99}));
    EXPECT_EQ(y.oobValue, 99.0);

    M_Transpose(&x, 0, 2, result);
    EXPECT_EQ(std::vector<double>(y.data, y.data + y.nbElem), (std::vector<double>{0, 0}));
}

TEST(TransposedObjects, FromDenseToChunks)
{
    auto x = numbered<double>(2, 3);
    matrix3D<matrix<double>> y(3, 3, 3, 7.0);
    M_Transpose(&x, 3, 3, &y);
    EXPECT_EQ(std::vector<double>(y.chunks[0].data, y.chunks[0].data + 3), (std::vector<double>{1, 3, 5}));
    EXPECT_EQ(std::vector<double>(y.chunks[1].data, y.chunks[1].data + 3), (std::vector<double>{2, 4, 6}));
    EXPECT_EQ(y.chunks[0].oobValue, 5.0);
    EXPECT_EQ(y.chunks[1].oobValue, 6.0);
    EXPECT_EQ(y.chunks[2].data[0], -1.0) << "a row that the table does not have";

    matrix3D<matrix<double>> shorter(2, 2, 2, 7.0);
    M_Transpose(&x, 2, 3, &shorter);
    EXPECT_EQ(shorter.chunks[1].data[1], 4.0);
    EXPECT_EQ(shorter.chunks[1].oobValue, 6.0) << "what found no room stays in the spare slot";
}

TEST(TransposedSparse, HoldsTheSameCells)
{
    std::mt19937_64 generator(6);
    for (const auto& [rows, cols] : {std::pair{1, 1}, {3, 5}, {20, 13}, {0, 4}, {4, 0}}) {
        auto dense = randomTable(generator, rows, cols, 3);
        // Entries are put at the front of their rows, so that the columns of `x` are in no order.
        matrixSparse x(rows, cols, 0.0, false);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                x.setElement(i, j, dense.getElement(i, j));
            }
        }
        matrixSparse y(2, 2, 5.0, false);
        M_Transpose(x, rows, cols, y);
        ASSERT_EQ(y.nbrows, cols);
        ASSERT_EQ(y.nbcols, rows);
        EXPECT_EQ(y.nnz, x.nnz);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                EXPECT_SAME_BITS(y.getElement(j, i), x.getElement(i, j));
            }
        }
        for (int j = 0; j < cols; ++j) {
            const auto row = korvel::entriesOfRow(y, j);
            for (std::size_t k = row.first + 1; k < row.last; ++k) {
                EXPECT_LT(y.colIndex[k - 1], y.colIndex[k]) << "rows are in ascending column order";
            }
        }
    }
}

TEST(TransposedSparse, TakesOnlyTheBlockThatItIsTold)
{
    auto dense = tableOf({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
    const matrixSparse x(&dense);
    matrixSparse y;
    M_Transpose(x, 2, 2, y);
    auto expected = tableOf({{1, 4}, {2, 5}});
    EXPECT_TRUE(sameStorage(y, matrixSparse(&expected)));

    M_Transpose(x, 3, 4, y);
    EXPECT_EQ(y.nbrows, 4);
    EXPECT_EQ(y.rowStart, (std::vector<int>{0, 3, 6, 9, 9}));
}

TEST(TransposedSparse, OnlyRowZeroIsReadAsItself)
{
    matrixSparse x(3, 3, 0.0, false);
    x.setElement(1, 0, 4.0);
    x.setElement(2, 0, 6.0);
    matrixSparse y;
    M_Transpose(x, 3, 3, y);
    EXPECT_EQ(y.rowStart, (std::vector<int>{0, 2, 2, 2}));
    EXPECT_EQ(y.getElement(0, 1), 4.0);
    EXPECT_EQ(y.getElement(1, 1), 0.0);
}

TEST(TransposedSparse, KeepsStoredZerosAndForeignColumnsOut)
{
    matrixSparse x(2, 2, 0.0, false);
    x.colIndex = {1, 5, -1, 0, 0};
    x.values = {0.0, 3.0, 4.0, 8.0, 9.0};
    x.rowStart = {0, 3, 5};
    x.nnz = 5;
    matrixSparse y;
    M_Transpose(x, 2, 2, y);
    EXPECT_EQ(y.nnz, 3);
    EXPECT_EQ(y.rowStart, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(y.colIndex, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(y.values, (std::vector<double>{8.0, 9.0, 0.0}));
}

TEST(TransposedSparse, MayReplaceItsSource)
{
    auto dense = tableOf({{1, 0, 3}, {0, 5, 6}});
    matrixSparse x(&dense);
    M_Transpose(x, 2, 3, x);
    auto expected = tableOf({{1, 0}, {0, 5}, {3, 6}});
    EXPECT_TRUE(sameStorage(x, matrixSparse(&expected)));
}

TEST(TransposedSparse, TakesACountBelowNoneForNone)
{
    auto dense = tableOf({{1, 0, 3}, {0, 5, 6}});
    const matrixSparse x(&dense);
    for (const auto& [rows, cols] : {shape{-1, 3}, shape{2, -1}, shape{-1, -1}, shape{-5, -7}, shape{0, 0}}) {
        matrixSparse y(2, 2, 1.0, false);
        M_Transpose(x, rows, cols, y);
        const matrixSparse empty(std::max(cols, 0), std::max(rows, 0), 0.0, false);
        EXPECT_TRUE(sameStorage(y, empty)) << rows << " by " << cols;
    }
}
