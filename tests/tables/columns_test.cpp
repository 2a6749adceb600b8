#include "tables/columns.h"

#include "reference/block_moves.h"
#include "support/near_tables.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

/** As the machine makes an integer of a number. */
int truncated(double x)
{
    return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int>(x) : MISSING_LNG;
}

template <class S, class T, class Convert>
void expectParts(Convert convert)
{
    forRandomShapes([convert](random_cells& cells, int rows, int cols) {
        auto src = nearTable<S>(cells, rows, cols);
        auto dst = nearTable<T>(cells, rows, cols);
        auto expected = twinOf(dst);
        const int col = cells.integer(0, cols + 1);
        const int from = cells.integer(-1, rows + 1);
        const int to = cells.integer(from - 1, rows + 2);
        const int row = cells.integer(-1, rows + 1);
        const int colTo = cells.integer(-1, cols + 1);
        V_Duplicate(&src, col, from, to, &dst, row, colTo);
        for (int i = from; i <= to; ++i) {
            reference::store(expected, row + i - from, colTo, convert(reference::cell(src, i, col)));
        }
        expectSame(dst, expected);
    });
}

template <class T>
void expectPartsOf()
{
    expectParts<T, T>([](const T& value) { return value; });
}

template <class T>
void expectFirstElements()
{
    forRandomShapes([](random_cells& cells, int n, int) {
        auto src = nearTable<T>(cells, n, 2);
        auto dst = nearTable<T>(cells, n, 1);
        auto expected = twinOf(dst);
        V_Duplicate2(&src, n, &dst);
        for (int k = 0; k < n; ++k) {
            const T value = std::as_const(src)[k];
            expected[k] = value;
            expected.oobValue = value;
        }
        expectSame(dst, expected);
    });
}

template <class T, class Function>
void expectVector(Function copy)
{
    forRandomShapes([copy](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        auto y = nearTable<T>(cells, rows, 1);
        auto expected = twinOf(y);
        const int col = cells.integer(0, cols + 1);
        copy(x, rows, col, y);
        expected.Redim(rows, 1, T{});
        reference::copy(x, 1, col, expected, 1, 1, rows, 1);
        expectSame(y, expected);
    });
}

} // namespace

TEST(TableColumns, CopiesAsThePlainLoops)
{
    expectVector<double>(CopyMatrixColToVector);
    expectVector<text>(CopyMatrixColToOneColMatStr);

    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto y = nearTable<double>(cells, rows, cols);
        auto expected = twinOf(y);
        auto* changed = &y;
        const int from = cells.integer(-1, 6);
        const int to = cells.integer(-1, 6);
        const auto bReset = static_cast<short int>(cells.integer(0, 3) == 0 ? -1 : 0);
        CopyMatrixColToMatrixCol(x, rows, from, y, to, bReset);
        if (bReset != 0) {
            expected.Redim(rows, to, 0.0);
        }
        reference::copy(x, 1, from, expected, 1, to, rows, 1);
        expectSame(y, expected);

        CopyMatrixRowToMatrixRow(&x, cols, from, changed, rows, to, bReset);
        if (bReset != 0) {
            expected.Redim(rows, cols, 0.0);
        }
        reference::copy(x, from, 1, expected, to, 1, 1, cols);
        expectSame(y, expected);

        random_chunks<double> chunks(cells, 3, [&](int) { return rows; });
        const int chunk = cells.integer(1, 3);
        CopyMatrixColToVectorSPV(chunks.get(), rows, chunk, &y);
        auto** source = chunks.get();
        reference::copy(source, 1, chunk, expected, 1, 1, rows, 1);
        expectSame(y, expected);
    });
}

TEST(TableColumns, MovesARowAsThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        if (x.nbrows < 1) {
            return;
        }
        auto expected = twinOf(x);
        const int from = cells.integer(1, x.nbrows);
        const int to = cells.integer(1, x.nbrows);
        auto* changed = &x;
        M_MoveRow(changed, cols, from, to);
        std::vector<double> moved;
        for (int j = 1; j <= std::min(cols, expected.nbcols); ++j) {
            moved.push_back(reference::cell(expected, from, j));
        }
        const int held = static_cast<int>(moved.size());
        const int step = from < to ? 1 : -1;
        for (int i = from; i != to; i += step) {
            for (int j = 1; j <= held; ++j) {
                reference::store(expected, i, j, reference::cell(expected, i + step, j));
            }
        }
        for (int j = 1; j <= held; ++j) {
            reference::store(expected, to, j, moved[static_cast<std::size_t>(j) - 1]);
        }
        expectSame(x, expected);
    });
}

TEST(VectorDuplicate, PartsAsThePlainLoop)
{
    expectPartsOf<double>();
    expectPartsOf<int>();
    expectPartsOf<short int>();
    expectPartsOf<text>();
    expectParts<int, double>([](int value) { return static_cast<double>(value); });
    expectParts<double, int>(truncated);
}

TEST(VectorDuplicate, FirstElementsAsThePlainLoop)
{
    expectFirstElements<double>();
    expectFirstElements<int>();
    expectFirstElements<short int>();
    expectFirstElements<text>();
}

TEST(VectorDuplicate, WithinOneTable)
{
    const std::vector<text> start{u"a", u"b", u"c", u"d"};
    const auto moved = [&](int from, int to, int row) {
        matrix<text> x(4, 1, text());
        std::copy(start.begin(), start.end(), x.data);
        V_Duplicate(&x, 1, from, to, &x, row, 1);
        return std::vector<text>(x.data, x.data + 4);
    };
    EXPECT_EQ(moved(1, 3, 2), (std::vector<text>{u"a", u"a", u"b", u"c"}));
    EXPECT_EQ(moved(2, 4, 1), (std::vector<text>{u"b", u"c", u"d", u"d"}));
    EXPECT_EQ(moved(1, 4, 1), start);
}
