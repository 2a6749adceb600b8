// Products with sparse blocks, each rule cell by cell on the entries as they are stored.

#include "linalg/products_block.h"
#include "support/column_tables.h"
#include "support/near_tables.h"
#include "support/sparse_tables.h"

#include <cmath>
#include <random>

using namespace korvel::test;

namespace
{

/** Blocks with entries of all kinds, their sizes, and another table. */
struct sparse_case {
    matrix3D<matrixSparse> blocks;
    matrix<int> sizes;
    int count = 0;
    int order = 0;
};

int integer(std::mt19937_64& generator, int low, int high)
{
    return low + static_cast<int>(generator() % static_cast<unsigned>(high - low + 1));
}

/** Full, diagonal, in the first row alone, or with some entries; loaded, or stored one by one. */
matrixSparse someEntries(std::mt19937_64& generator, int rows, int cols)
{
    matrix<double> cells =
        randomTable(generator, rows, cols, static_cast<unsigned>(integer(generator, 1, 3)));
    const int kind = integer(generator, 0, 3);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            if ((kind == 1 && i != j) || (kind == 2 && i > 0)) {
                cells.setElement(i, j, 0.0);
            }
        }
    }
    if (integer(generator, 0, 1) == 0) {
        return matrixSparse(&cells);
    }
    matrixSparse made(rows, cols, 0.0, false);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            made.setElement(i, j, cells.getElement(i, j));
        }
    }
    if (!made.values.empty()) {
        constexpr double odd[]{0.0, -0.0, infinite, notANumber, 1.0};
        made.values[generator() % made.values.size()] = odd[integer(generator, 0, 4)];
    }
    return made;
}

sparse_case someBlocks(std::mt19937_64& generator)
{
    sparse_case made;
    made.count = integer(generator, 0, 9) == 0 ? integer(generator, -1, 0) : integer(generator, 2, 4);
    made.sizes = matrix<int>(std::max(made.count, 1), 1);
    for (int b = 0; b < std::max(made.count, 1); ++b) {
        made.sizes[b] = integer(generator, -1, 6);
        const int size = std::max(made.sizes[b], 0);
        const int held = std::max(size - integer(generator, 0, 8) / 7, 0);
        made.blocks.chunks.push_back(someEntries(generator, held, held));
        made.order += b < made.count ? size : 0;
    }
    return made;
}

/** How many entries are stored in each row, or column, and which of them is on the diagonal. */
struct line_entries {
    line_entries(const matrixSparse& block, int size, bool ofRows)
        : count(static_cast<std::size_t>(size)), onDiagonal(count.size())
    {
        for (int i = 0; i < std::min(size, block.nbrows); ++i) {
            for (int k = block.rowStart[static_cast<std::size_t>(i)];
                 k < block.rowStart[static_cast<std::size_t>(i) + 1]; ++k) {
                const int j = block.colIndex[static_cast<std::size_t>(k)];
                const auto line = static_cast<std::size_t>(ofRows ? i : j);
                ++count[line];
                onDiagonal[line] = onDiagonal[line] || i == j;
            }
        }
    }

    [[nodiscard]] bool isEmpty(int k) const { return count[static_cast<std::size_t>(k)] == 0; }
    [[nodiscard]] bool isDiagonal(int k) const
    {
        return count[static_cast<std::size_t>(k)] == 1 && onDiagonal[static_cast<std::size_t>(k)];
    }

    std::vector<int> count;
    std::vector<bool> onDiagonal;
};

bool isFilled(double x)
{
    return x != x || x != 0.0;
}

/** Whether line j of the other table is zero, or diagonal, opposite a block; `cell(c, j)` is its c-th cell.
 */
template <class Cell>
bool isZero(int size, int j, Cell cell)
{
    for (int c = 0; c < size; ++c) {
        if (isFilled(cell(c, j))) {
            return false;
        }
    }
    return true;
}
template <class Cell>
bool isDiagonal(int size, int j, Cell cell)
{
    for (int c = 0; c < size; ++c) {
        if (c != j && (isFilled(cell(c, j)) || isFilled(cell(j, c)))) {
            return false;
        }
    }
    return true;
}

/**
 * Element k of a block's lines by line j of the other table: `factor(k, c)` is the c-th cell of the block's
 * line, `cell(c, j)` that of the other one. The products are the same in both orders.
 */
template <class Factor, class Cell>
double element(const line_entries& lines, int size, int other, int k, int j, Factor factor, Cell cell)
{
    if (lines.isEmpty(k) || isZero(size, j, cell)) {
        return 0.0;
    }
    if (lines.isDiagonal(k)) {
        return factor(k, k) * cell(k, j);
    }
    if (size == other && isDiagonal(size, j, cell)) {
        return factor(k, j) * cell(j, j);
    }
    double sum = 0.0;
    for (int c = 0; c < size; ++c) {
        sum += factor(k, c) * cell(c, j);
    }
    return sum;
}

} // namespace

TEST(SparseBlocks, AreMultipliedByTheirEntries)
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 generator(seed);
        sparse_case c = someBlocks(generator);
        const int other = integer(generator, 0, 2) == 0 ? integer(generator, 1, 8) : std::max(c.sizes[0], 1);
        matrixSparse below = someEntries(generator, std::max(c.order, 1), other);
        matrixSparse beside = someEntries(generator, other, std::max(c.order, 1));
        const matrix<double> A = below.to_matrix();
        const matrix<double> turned = beside.to_matrix();
        matrix<double> left(c.order, other, 0.0);
        matrix<double> right(other, c.order, 0.0);
        matrix<double> transposed(other, c.order, 0.0);
        int offset = 0;
        for (int b = 0; b < c.count; ++b) {
            const int size = std::max(c.sizes[b], 0);
            const matrixSparse& block = c.blocks.chunks[static_cast<std::size_t>(b)];
            const line_entries rows(block, size, true);
            const line_entries cols(block, size, false);
            const auto along = [&](int r, int k) { return block.getElement(r, k); };
            const auto down = [&](int k, int r) { return block.getElement(r, k); };
            const auto cell = [&](int r, int j) { return A.getElement(offset + r, j); };
            const auto turnedCell = [&](int k, int i) { return turned.getElement(i, offset + k); };
            for (int k = 0; k < size; ++k) {
                for (int j = 0; j < other; ++j) {
                    left.setElement(offset + k, j, element(rows, size, other, k, j, along, cell));
                    right.setElement(j, offset + k, element(cols, size, other, k, j, down, turnedCell));
                    double sum = 0.0;
                    for (int l = 0; l < size; ++l) {
                        sum += turned.getElement(j, offset + l) * block.getElement(k, l);
                    }
                    transposed.setElement(j, offset + k, sum);
                }
            }
            offset += size;
        }
        matrixSparse C;
        M_BlockProductBckA(&c.blocks, c.count, &c.sizes, &below, other, &C);
        EXPECT_TRUE(sameStorage(C, matrixSparse(&left)));
        M_BlockProductABck(&beside, other, &c.blocks, c.count, &c.sizes, &C);
        EXPECT_TRUE(sameStorage(C, matrixSparse(&right)));
        M_BlockProductATrBck(&beside, other, &c.blocks, c.count, &c.sizes, &C);
        EXPECT_TRUE(sameStorage(C, matrixSparse(&transposed)));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(SparseBlocks, OfNoRowsOrColumnsGiveATableWithoutEntries)
{
    std::mt19937_64 generator(1);
    sparse_case c;
    c.sizes = vectorOf<int>({2, 1});
    c.blocks.chunks = {someEntries(generator, 2, 2), someEntries(generator, 1, 1)};
    matrixSparse A = someEntries(generator, 3, 3);
    matrixSparse C(2, 2, 5.0, false);
    for (const int none : {0, -2}) {
        M_BlockProductBckA(&c.blocks, 2, &c.sizes, &A, none, &C);
        EXPECT_EQ(C.nbrows, 3);
        EXPECT_EQ(C.nnz, 0);
        M_BlockProductABck(&A, none, &c.blocks, 2, &c.sizes, &C);
        EXPECT_EQ(C.nbrows, 0);
        EXPECT_EQ(C.nbcols, 3);
        M_BlockProductATrBck(&A, none, &c.blocks, 2, &c.sizes, &C);
        EXPECT_EQ(C.nbrows, 0);
        M_BlockProductBckA(&c.blocks, none, &c.sizes, &A, 3, &C);
        EXPECT_EQ(C.nbrows, 0);
        EXPECT_EQ(C.nnz, 0);
    }
}
