#include "reference/block_moves.h"
#include "support/near_tables.h"
#include "tables/merge.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

struct shapes {
    int rowsA, colsA, rowsB, colsB;

    shapes(random_cells& cells, int rows, int cols)
        : rowsA(rows), colsA(cols), rowsB(cells.integer(0, 1) == 0 ? rows : cells.integer(0, 6)),
          colsB(cells.integer(0, 4))
    {
    }
};

template <class T>
void expectSideBySide()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const shapes s(cells, rows, cols);
        auto a = nearTable<T>(cells, s.rowsA, s.colsA);
        auto b = nearTable<T>(cells, s.rowsB, s.colsB);
        auto out = nearTable<T>(cells, rows, cols);
        auto expected = twinOf(out);
        auto* result = &out;
        HMergeTables(&a, s.rowsA, s.colsA, &b, s.rowsB, s.colsB, result);
        expected.Redim(std::max(s.rowsA, s.rowsB), s.colsA + s.colsB, T{});
        reference::hMerge(a, s.rowsA, s.colsA, b, s.rowsB, s.colsB, expected);
        expectSame(out, expected);
    });
}

template <class T>
void expectAddedColumns()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const shapes s(cells, rows, cols);
        auto a = nearTable<T>(cells, s.rowsA, s.colsA + s.colsB);
        auto b = nearTable<T>(cells, s.rowsB, s.colsB);
        auto expected = twinOf(a);
        HMergeTables(&a, s.rowsA, s.colsA, &b, s.rowsB, s.colsB);
        reference::copy(b, 1, 1, expected, 1, s.colsA + 1, s.rowsB, s.colsB);
        expectSame(a, expected);
    });
}

template <class T, class Append>
void expectAppended(Append append)
{
    forRandomShapes([append](random_cells& cells, int nA, int nB) {
        auto a = nearTable<T>(cells, nA + nB, 1);
        auto b = nearTable<T>(cells, nB, 1);
        auto expected = twinOf(a);
        append(&a, nA, &b, nB);
        reference::copy(b, 1, 1, expected, nA + 1, 1, nB, 1);
        expectSame(a, expected);
    });
}

template <class T>
void expectOneBelowTheOther()
{
    forRandomShapes([](random_cells& cells, int nA, int nB) {
        auto a = nearTable<T>(cells, nA, 1);
        auto b = nearTable<T>(cells, nB, 1);
        auto out = nearTable<T>(cells, nA, 1);
        auto expected = twinOf(out);
        VMergeVectors(&a, nA, &b, nB, &out);
        expected.Redim(nA + nB, 1, T{});
        reference::vMerge(a, nA, 1, b, nB, 1, expected);
        expectSame(out, expected);
    });
}

} // namespace

TEST(TableMerge, SideBySideAsThePlainLoops)
{
    expectSideBySide<double>();
    expectSideBySide<int>();
    expectSideBySide<short int>();
    expectSideBySide<text>();
    expectAddedColumns<double>();
    expectAddedColumns<int>();
    expectAddedColumns<short int>();
    expectAddedColumns<text>();
}

TEST(TableMerge, AnIntegerResultTakesNumbersWithoutTheirFraction)
{
    double left[] = {1.9, -1.9};
    double right[] = {3e9, MISSING_DBL};
    matrix<double> a(2, 1, left, true);
    matrix<double> b(2, 1, right, true);
    matrix<int> out(5, 5);
    auto* result = &out;
    HMergeTables(&a, 2, 1, &b, 2, 1, result);
    EXPECT_EQ(out.nbrows, 2);
    EXPECT_EQ(out.nbcols, 2);
    EXPECT_EQ(std::vector<int>(out.data, out.data + 4), (std::vector<int>{1, -1, MISSING_LNG, MISSING_LNG}));
    EXPECT_EQ(out.oobValue, MISSING_LNG);
}

TEST(TableMerge, AResultThatCannotTakeTheShapeIsClearedAndKeepsItsOwn)
{
    matrix<double> a(1, 1, 5.0);
    matrix<double> b(1, 1, 6.0);
    double cells[] = {70, 70, 70};
    matrix<double> borrowed(3, 1, cells, true);
    auto* result = &borrowed;
    HMergeTables(&a, 1, 1, &b, 1, 1, result);
    EXPECT_EQ(borrowed.nbrows, 3);
    EXPECT_EQ(std::vector<double>(cells, cells + 3), (std::vector<double>{5, 0, 0}));
    EXPECT_EQ(borrowed.oobValue, 6.0);
}

TEST(TableMerge, ChunksInPlaceAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const shapes s(cells, rows, cols);
        const random_chunks<double> a(cells, s.colsA + s.colsB, [&](int) { return s.rowsA; });
        auto b = nearTable<double>(cells, s.rowsB, s.colsB);
        auto actual = a;
        auto expected = a;
        HMergeTables(actual.get(), s.rowsA, s.colsA, &b, s.rowsB, s.colsB);
        auto** target = expected.get();
        reference::copy(b, 1, 1, target, 1, s.colsA + 1, s.rowsB, s.colsB);
        expectSame(actual, expected);

        random_chunks<double> chunks(cells, s.colsB, [&](int) { return s.rowsB; });
        HMergeTables(actual.get(), s.rowsA, s.colsA, chunks.get(), s.rowsB, s.colsB);
        auto** source = chunks.get();
        reference::copy(source, 1, 1, target, 1, s.colsA + 1, s.rowsB, s.colsB);
        expectSame(actual, expected);
    });
}

TEST(TableMerge, VectorsAndTablesAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        matrix<double> v(cells.integer(0, 6), 1, 0.0);
        fillRandomly(cells, v);
        const int n = v.nbrows;
        auto out = nearTable<double>(cells, std::max(rows, n), cols + 1);
        auto expected = twinOf(out);

        HMergeVectors(v.data, n, v.data, n / 2, &out);
        reference::hMerge(v, n, 1, v, n / 2, 1, expected);
        expectSame(out, expected);

        const int outRows = cells.integer(0, rows + 1);
        HMergeVectCol(v.data, n, &x, rows, cols, &out, outRows);
        reference::copy(v, 1, 1, expected, 1, 1, std::min(n, outRows), 1);
        reference::copy(x, 1, cols, expected, 1, 2, std::min(rows, outRows), 1);
        expectSame(out, expected);

        HMergeTableVect2(&out, cols, v.data, n);
        reference::copy(v, 1, 1, expected, 1, cols + 1, n, 1);
        expectSame(out, expected);

        const int outCols = cells.integer(0, cols + 2);
        HMergeTableVect(&x, rows, cols, v.data, n, &out, outRows, outCols);
        reference::copy(x, 1, 1, expected, 1, 1, std::min(rows, outRows), std::min(cols, outCols));
        if (cols < outCols) {
            reference::copy(v, 1, 1, expected, 1, cols + 1, std::min(n, outRows), 1);
        }
        expectSame(out, expected);

        HMergeVectTable(v.data, n, &x, rows, cols, &out, outRows, outCols);
        if (outCols > 0) {
            reference::copy(v, 1, 1, expected, 1, 1, std::min(n, outRows), 1);
        }
        reference::copy(x, 1, 1, expected, 1, 2, std::min(rows, outRows), std::min(cols, outCols - 1));
        expectSame(out, expected);
    });
}

TEST(TableMerge, OneBelowTheOtherAsThePlainLoops)
{
    expectOneBelowTheOther<double>();
    expectOneBelowTheOther<text>();
    using numbers = matrix<double>;
    using texts = matrix<text>;
    expectAppended<double>([](numbers* a, int nA, numbers* b, int nB) { VMergeVectors2(a, nA, b, nB); });
    expectAppended<text>([](texts* a, int nA, texts* b, int nB) { VMergeVectors2(a, nA, b, nB); });
    expectAppended<short int>(VMergeVectorsBool2);

    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const shapes s(cells, rows, cols);
        auto a = nearTable<double>(cells, s.rowsA, s.colsA);
        auto b = nearTable<double>(cells, s.rowsB, s.colsB);
        auto out = nearTable<double>(cells, s.rowsA + s.rowsB, std::max(s.colsA, s.colsB));
        auto expected = twinOf(out);
        VMergeTables(&a, s.rowsA, s.colsA, &b, s.rowsB, s.colsB, &out);
        reference::vMerge(a, s.rowsA, s.colsA, b, s.rowsB, s.colsB, expected);
        expectSame(out, expected);

        random_chunks<double> chunks(cells, s.colsA, [&](int) { return s.rowsA; });
        VMergeTablesSPV(chunks.get(), s.rowsA, s.colsA, &b, s.rowsB, s.colsB, &out);
        auto** upper = chunks.get();
        reference::vMerge(upper, s.rowsA, s.colsA, b, s.rowsB, s.colsB, expected);
        expectSame(out, expected);
    });
}

TEST(TableMerge, TheLastValueStoredStaysInTheSpareSlot)
{
    matrix<double> a(2, 1, 3.0);
    matrix<double> b(2, 1, 4.0);
    b.data[1] = 5.0;
    matrix<double> out;
    VMergeVectors(&a, 2, &b, 2, &out);
    EXPECT_EQ(out.nbrows, 4);
    EXPECT_EQ(out.oobValue, 5.0);
    VMergeVectors(&a, 2, &b, 0, &out);
    EXPECT_EQ(out.oobValue, 3.0);
    VMergeVectors(&a, 0, &b, 0, &out);
    EXPECT_EQ(out.nbrows, 0);
    EXPECT_EQ(out.oobValue, 3.0);
}
