#include "tables/duplicate.h"

#include "reference/block_moves.h"
#include "support/near_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

/** Where a table goes in another of `yRows` by `yCols`. */
struct target {
    int yRows, yCols, row, col;

    target(random_cells& cells, int rows, int cols)
        : yRows(cells.integer(0, rows + 3)), yCols(cells.integer(0, cols + 3)), row(cells.integer(-1, 4)),
          col(cells.integer(-1, 4))
    {
    }

    template <class From, class To>
    void copyPlainly(const From& x, int rows, int cols, To& y) const
    {
        for (int i = 1; i <= rows; ++i) {
            for (int j = 1; j <= cols; ++j) {
                if (falls(i, j)) {
                    reference::store(y, row + i - 1, col + j - 1, reference::cell(x, i, j));
                }
            }
        }
    }

    bool falls(int i, int j) const
    {
        return 1 <= row + i - 1 && row + i - 1 <= yRows && 1 <= col + j - 1 && col + j - 1 <= yCols;
    }
};

template <class T>
void expectDense()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const target to(cells, rows, cols);
        auto x = nearTable<T>(cells, rows, cols);
        auto y = nearTable<T>(cells, to.yRows, to.yCols);
        auto expected = twinOf(y);
        M_Duplicate(&x, rows, cols, &y, to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(x, rows, cols, expected);
        expectSame(y, expected);
    });
}

template <class T, class Function>
void expectChunksToDense(Function duplicate)
{
    forRandomShapes([duplicate](random_cells& cells, int rows, int cols) {
        const target to(cells, rows, cols);
        random_chunks<T> x(cells, cols, [&](int) { return rows; });
        auto y = nearTable<T>(cells, to.yRows, to.yCols);
        auto expected = twinOf(y);
        duplicate(x.get(), rows, cols, &y, to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(x.get(), rows, cols, expected);
        expectSame(y, expected);
    });
}

template <class T>
void expectRecords()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const target to(cells, rows, cols);
        const auto filled = [&](int height, int width) {
            cST_MVect<T> made(height, width);
            for (auto& column : made.Vectors) {
                fillRandomly(cells, column.Vect);
            }
            return made;
        };
        auto x = filled(rows, cols);
        auto y = filled(to.yRows, to.yCols);
        matrix<T> dense(rows, cols, T{});
        for (int j = 0; j < cols; ++j) {
            std::copy_n(x.Vectors[static_cast<std::size_t>(j)].Vect.data, rows, dense.data + j * rows);
        }
        matrix<T> expected(to.yRows, to.yCols, T{});
        for (int j = 0; j < to.yCols; ++j) {
            std::copy_n(y.Vectors[static_cast<std::size_t>(j)].Vect.data, to.yRows,
                        expected.data + j * to.yRows);
        }
        // One more column than there is, in both.
        M_Duplicate(x, rows, cols + 1, y, to.yRows, to.yCols + 1, to.row, to.col);
        to.copyPlainly(dense, rows, cols, expected);
        for (int j = 0; j < to.yCols; ++j) {
            const auto& column = y.Vectors[static_cast<std::size_t>(j)].Vect;
            for (int i = 0; i < to.yRows; ++i) {
                ASSERT_TRUE(sameCell(column.data[i], expected.data[i + j * to.yRows])) << i << ", " << j;
            }
        }
    });
}

} // namespace

TEST(TableDuplicate, AsThePlainLoops)
{
    expectDense<double>();
    expectDense<int>();
    expectDense<text>();
    expectChunksToDense<double>(M_DuplicateSPV);
    expectChunksToDense<text>(M_DuplicateStrSPV);
    expectRecords<double>();
    expectRecords<text>();
}

TEST(TableDuplicate, ToChunksAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const target to(cells, rows, cols);
        auto dense = nearTable<double>(cells, rows, cols);
        random_chunks<double> chunks(cells, cols, [&](int) { return rows; });
        random_chunks<double> y(cells, to.yCols, [&](int) { return to.yRows; });
        auto expected = y;
        auto** written = expected.get();
        M_DuplicateSPV2(&dense, rows, cols, y.get(), to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(dense, rows, cols, written);
        expectSame(y, expected);
        M_DuplicateSPV3(chunks.get(), rows, cols, y.get(), to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(chunks.get(), rows, cols, written);
        expectSame(y, expected);
    });
}

TEST(TableDuplicate, ToATriangleAsThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        target to(cells, rows, cols);
        to.yCols = to.yRows;
        auto dense = nearTable<double>(cells, rows, cols);
        random_chunks<double> y(cells, to.yCols, [&](int j) { return to.yRows - j; });
        auto expected = y;
        reference::triangle written{expected.get()};
        M_DuplicateSPV2_T(&dense, rows, cols, y.get(), to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(dense, rows, cols, written);
        expectSame(y, expected);

        const int n = std::max(rows, cols);
        random_chunks<double> x(cells, n, [&](int j) { return n - j; });
        M_DuplicateSPV3_T(x.get(), rows, cols, y.get(), to.yRows, to.yCols, to.row, to.col);
        to.copyPlainly(reference::triangle{x.get()}, rows, cols, written);
        expectSame(y, expected);
    });
}

TEST(TableDuplicate, ToATriangleOfChunksByValue)
{
    double cells[] = {1, 2, 3, 2, 4, 5, 3, 5, 6};
    matrix<double> x(3, 3, cells, true);
    matrix3D<matrix<double>> y;
    for (int length = 3; length > 0; --length) {
        y.chunks.push_back(matrix<double>(length, 1, 0.0));
    }
    M_DuplicateSPV2_T(&x, 3, 3, &y, 3, 3, 1, 1);
    EXPECT_EQ(y.vbget(1, 1), 1.0);
    EXPECT_EQ(y.vbget(1, 3), 3.0);
    EXPECT_EQ(y.vbget(2, 1), 4.0);
    EXPECT_EQ(y.vbget(2, 2), 5.0);
    EXPECT_EQ(y.vbget(3, 1), 6.0);
    EXPECT_EQ(y.chunks[0].oobValue, 3.0);
}
