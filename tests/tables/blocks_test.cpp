#include "tables/blocks.h"

#include "reference/block_moves.h"
#include "support/near_tables.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

/** A block that lies mostly inside `rows` by `cols`, sometimes reaches outside, and is sometimes empty. */
struct random_block {
    int firstRow, lastRow, firstCol, lastCol;

    random_block(random_cells& cells, int rows, int cols)
        : firstRow(cells.integer(-1, rows + 1)), lastRow(cells.integer(firstRow - 2, rows + 2)),
          firstCol(cells.integer(-1, cols + 1)), lastCol(cells.integer(firstCol - 2, cols + 2))
    {
    }

    /** With columns that are there. */
    static random_block ofChunks(random_cells& cells, int rows, int cols)
    {
        random_block made(cells, rows, cols);
        made.firstCol = cells.integer(1, cols + 1);
        made.lastCol = cells.integer(made.firstCol - 1, cols);
        return made;
    }

    int rows() const { return std::max(lastRow - firstRow + 1, 0); }
    int cols() const { return std::max(lastCol - firstCol + 1, 0); }

    template <class From, class To>
    void copyPlainly(const From& x, To& y, int row, int col) const
    {
        reference::copy(x, firstRow, firstCol, y, row, col, rows(), cols());
    }
};

template <class T>
void expectBlocks()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        const random_block block(cells, rows, cols);
        auto out = nearTable<T>(cells, block.rows(), block.cols());
        auto expected = twinOf(out);
        M_CopyBlock(&x, block.firstRow, block.lastRow, block.firstCol, block.lastCol, &out);
        block.copyPlainly(x, expected, 1, 1);
        expectSame(out, expected);
    });
}

template <class T, class Function>
void expectCopiedAndPasted(Function copyPaste)
{
    forRandomShapes([copyPaste](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        const random_block block(cells, rows, cols);
        auto y = nearTable<T>(cells, rows + 1, cols + 1);
        auto expected = twinOf(y);
        const int row = cells.integer(-1, rows + 1);
        const int col = cells.integer(-1, cols + 1);
        copyPaste(&x, block.firstRow, block.lastRow, block.firstCol, block.lastCol, &y, row, col);
        block.copyPlainly(x, expected, row, col);
        expectSame(y, expected);

        auto within = twinOf(x);
        expected = twinOf(x);
        copyPaste(&within, block.firstRow, block.lastRow, block.firstCol, block.lastCol, &within, row, col);
        block.copyPlainly(x, expected, row, col);
        expectSame(within, expected);
    });
}

template <class T>
void expectPasted()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        auto y = nearTable<T>(cells, rows + 2, cols + 2);
        auto expected = twinOf(y);
        const int row = cells.integer(-2, 4);
        const int col = cells.integer(-2, 4);
        M_PasteBlock(&x, rows, cols, &y, row, col);
        reference::copy(x, 1, 1, expected, row, col, rows, cols);
        expectSame(y, expected);
    });
}

matrix3D<matrix<double>> byValue(random_chunks<double>& chunks)
{
    matrix3D<matrix<double>> made;
    for (int j = 0; j < chunks.size(); ++j) {
        made.chunks.push_back(twinOf(chunks[j]));
    }
    return made;
}

void expectSameChunks(const matrix3D<matrix<double>>& actual, random_chunks<double>& expected)
{
    for (int j = 0; j < expected.size(); ++j) {
        SCOPED_TRACE(j);
        expectSame(actual.chunks[static_cast<std::size_t>(j)], expected[j]);
    }
}

} // namespace

TEST(TableBlocks, CopyBlockAsThePlainLoop)
{
    expectBlocks<double>();
    expectBlocks<text>();
}

TEST(TableBlocks, CopyBlockOfChunksAsThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const auto block = random_block::ofChunks(cells, rows, cols);
        random_chunks<double> x(cells, cols, [&](int) { return rows; });
        const random_chunks<double> before(cells, block.cols(), [&](int) { return block.rows(); });
        auto expected = before;
        auto** target = expected.get();
        block.copyPlainly(x.get(), target, 1, 1);

        auto out = before;
        M_CopyBlockSPV(x.get(), block.firstRow, block.lastRow, block.firstCol, block.lastCol, out.get());
        expectSame(out, expected);
        auto second = before;
        M_CopyBlockSPV2(x.get(), block.firstRow, block.lastRow, block.firstCol, block.lastCol, second.get());
        expectSame(second, expected);
        auto third = before;
        auto from = byValue(x);
        auto to = byValue(third);
        M_CopyBlockSPV(&from, block.firstRow, block.lastRow, block.firstCol, block.lastCol, &to);
        expectSameChunks(to, expected);
    });
}

TEST(TableBlocks, CopyBlockOfATriangleAsThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int, int n) {
        auto block = random_block::ofChunks(cells, n, n);
        block.firstRow = cells.integer(1, n + 1);
        block.lastRow = cells.integer(block.firstRow - 1, n);
        random_chunks<double> x(cells, n, [&](int j) { return n - j; });
        const random_chunks<double> before(cells, block.cols(), [&](int) { return block.rows(); });
        auto expected = before;
        auto** target = expected.get();
        block.copyPlainly(reference::triangle{x.get()}, target, 1, 1);

        auto out = before;
        M_CopyBlockSPV2_T(x.get(), block.firstRow, block.lastRow, block.firstCol, block.lastCol, out.get());
        expectSame(out, expected);
        auto second = before;
        auto from = byValue(x);
        auto to = byValue(second);
        M_CopyBlockSPV_T(&from, block.firstRow, block.lastRow, block.firstCol, block.lastCol, &to);
        expectSameChunks(to, expected);
    });
}

TEST(TableBlocks, PasteAsThePlainLoop)
{
    expectPasted<double>();
    expectPasted<int>();
    expectCopiedAndPasted<double>(M_CopyPasteBlock);
    expectCopiedAndPasted<text>(M_CopyPasteBlockStr);
}

TEST(TableBlocks, PasteOfChunksAsThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const auto block = random_block::ofChunks(cells, rows, cols);
        random_chunks<double> x(cells, cols, [&](int) { return rows; });
        random_chunks<double> y(cells, block.cols() + 1, [&](int) { return rows; });
        auto expected = y;
        const int row = cells.integer(-1, rows + 1);
        const int col = cells.integer(1, 2);
        M_CopyPasteBlockSPV(x.get(), block.firstRow, block.lastRow, block.firstCol, block.lastCol, y.get(),
                            row, col);
        auto** target = expected.get();
        block.copyPlainly(x.get(), target, row, col);
        expectSame(y, expected);
    });
}

TEST(TableBlocks, PasteIntoASparseTable)
{
    double cells[] = {1.0, 0.0, 1e-19, 4.0};
    matrix<double> x(2, 2, cells, true);
    matrixSparse y(3, 3, 0.0, true);
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            y.setElement(i, j, 9.0);
        }
    }
    M_PasteBlock(&x, 2, 2, &y, 2, 2);
    const auto dense = y.to_matrix();
    const std::vector<double> expected{9, 9, 9, 9, 1, 0, 9, 0, 4};
    EXPECT_EQ(std::vector<double>(dense.data, dense.data + 9), expected);

    M_PasteBlock(&x, 2, 2, &y, 6, 1);
    const auto same = y.to_matrix();
    EXPECT_EQ(std::vector<double>(same.data, same.data + 9), expected) << "no such rows";
}
