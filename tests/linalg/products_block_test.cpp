#include "linalg/products_block.h"

#include "linalg/products.h"
#include "linalg/products_sparse.h"
#include "linalg/products_table_vector.h"
#include "reference/block_products.h"
#include "support/column_tables.h"
#include "support/near_tables.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

using blocks_of_numbers = matrix3D<matrix<double>>;

/** Zeros some of the cells of a table, so that it has rows, columns or blocks of all kinds. */
void structure(random_cells& cells, matrix<double>& table)
{
    const int kind = cells.integer(0, 5);
    for (int j = 0; j < table.nbcols; ++j) {
        const bool emptyColumn = cells.integer(0, 2) == 0;
        for (int i = 0; i < table.nbrows; ++i) {
            const bool kept = kind == 0   ? true
                              : kind == 1 ? i == j
                              : kind == 2 ? !emptyColumn
                              : kind == 3 ? (i + j) % 2 == 0
                              : kind == 4 ? i == j || cells.integer(0, 5) == 0
                                          : i % 3 != 0;
            if (!kept) {
                table.setElement(i, j, cells.integer(0, 3) == 0 ? -0.0 : 0.0);
            }
        }
    }
}

matrix<double> structured(random_cells& cells, int rows, int cols, bool exact)
{
    matrix<double> made = exact ? matrix<double>(rows, cols, 0.0) : nearTable<double>(cells, rows, cols);
    fillRandomly(cells, made);
    structure(cells, made);
    return made;
}

/** Blocks, their sizes, and the other operand's two counts. */
struct block_case {
    blocks_of_numbers blocks;
    matrix<int> sizes;
    int order = 0;
    int other = 0;
    bool exact = true;
};

block_case randomBlocks(random_cells& cells)
{
    block_case made;
    const int count = cells.integer(2, 4);
    made.sizes = matrix<int>(count, 1);
    made.exact = cells.integer(0, 3) != 0;
    for (int b = 0; b < count; ++b) {
        const int size = cells.integer(0, cells.integer(0, 4) == 0 ? 40 : 5);
        made.sizes[b] = size;
        made.order += size;
        made.blocks.chunks.push_back(structured(cells, size, size, made.exact));
    }
    // Often as many as a block has rows, so that the other operand's stripe is square.
    made.other = cells.integer(0, 2) == 0 ? cells.integer(0, 9) : made.sizes[cells.integer(0, count - 1)];
    return made;
}

/** Calls `compare(cells, blocks)` for many block-diagonal tables. */
template <class Compare>
void forBlocks(Compare compare)
{
    for (std::uint64_t seed = 1; seed <= 600; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::all : odd_cells::none);
        block_case made = randomBlocks(cells);
        compare(cells, made);
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

/** Stacks structured stripes, one for each block, below each other or side by side. */
matrix<double> stripes(random_cells& cells, block_case& c, bool below)
{
    matrix<double> made =
        below ? structured(cells, c.order, c.other, c.exact) : structured(cells, c.other, c.order, c.exact);
    int offset = 0;
    for (std::size_t b = 0; b < c.blocks.chunks.size(); ++b) {
        const int size = c.sizes[static_cast<int>(b)];
        matrix<double> stripe =
            below ? structured(cells, size, c.other, true) : structured(cells, c.other, size, true);
        for (int j = 0; c.exact && j < stripe.nbcols; ++j) {
            for (int i = 0; i < stripe.nbrows; ++i) {
                made.setElement(below ? offset + i : i, below ? j : offset + j, stripe.getElement(i, j));
            }
        }
        offset += size;
    }
    return made;
}

matrix<int> sizesOf(std::vector<int> sizes)
{
    return vectorOf<int>(std::move(sizes));
}

blocks_of_numbers blocksOf(std::vector<matrix<double>> tables)
{
    blocks_of_numbers made;
    for (const matrix<double>& table : tables) {
        made.chunks.push_back(table);
    }
    return made;
}

matrix3D<matrixSparse> sparseBlocksOf(const blocks_of_numbers& blocks)
{
    matrix3D<matrixSparse> made;
    for (const matrix<double>& block : blocks.chunks) {
        // Entry by entry: a load may put those of the first row into the second.
        matrixSparse sparse(block.nbrows, block.nbcols, 0.0, false);
        for (int i = 0; i < block.nbrows; ++i) {
            for (int j = 0; j < block.nbcols; ++j) {
                sparse.setElement(i, j, block.getElement(i, j));
            }
        }
        made.chunks.push_back(sparse);
    }
    return made;
}

using columns = std::vector<double>;

} // namespace

TEST(BlockTimesTable, IsThePlainOne)
{
    forBlocks([](random_cells& cells, block_case& c) {
        matrix<double> A = stripes(cells, c, true);
        matrix<double> actual = structured(cells, c.order, c.other, c.exact);
        matrix<double> expected = twinOf(actual);
        const int count = c.sizes.nbrows;
        M_BlockProductBckA(&c.blocks, count, &c.sizes, &A, c.other, &actual);
        plainBlockBckA(c.blocks, count, c.sizes, A, c.other, expected);
        expectSame(actual, expected);
    });
}

TEST(TableTimesBlock, IsThePlainOne)
{
    forBlocks([](random_cells& cells, block_case& c) {
        matrix<double> A = stripes(cells, c, false);
        matrix<double> actual = structured(cells, c.other, c.order, c.exact);
        matrix<double> expected = twinOf(actual);
        const int count = c.sizes.nbrows;
        M_BlockProductABck(&A, c.other, &c.blocks, count, &c.sizes, &actual);
        plainBlockABck(A, c.other, c.blocks, count, c.sizes, expected);
        expectSame(actual, expected);
    });
}

TEST(TableTimesTransposedBlock, IsThePlainOne)
{
    forBlocks([](random_cells& cells, block_case& c) {
        matrix<double> A = stripes(cells, c, false);
        matrix<double> actual = structured(cells, c.other, c.order, c.exact);
        matrix<double> expected = twinOf(actual);
        const int count = c.sizes.nbrows;
        M_BlockProductATrBck(&A, c.other, &c.blocks, count, &c.sizes, &actual);
        plainBlockATrBck(A, c.other, c.blocks, count, c.sizes, expected);
        expectSame(actual, expected);
    });
}

TEST(BlockTimesVector, IsThePlainOne)
{
    forBlocks([](random_cells& cells, block_case& c) {
        matrix<double> v = structured(cells, c.order, 1, c.exact);
        matrix<double> actual = structured(cells, c.order, 1, c.exact);
        matrix<double> expected = twinOf(actual);
        const int count = c.sizes.nbrows;
        M_BlockProductBckVect(&c.blocks, count, &c.sizes, &v, &actual);
        plainBlockBckVect(c.blocks, count, c.sizes, v, expected);
        expectSame(actual, expected);
    });
}

TEST(BlockProducts, OfASingleBlockAreThoseOfTables)
{
    random_cells cells(5, odd_cells::all);
    blocks_of_numbers blocks = blocksOf({structured(cells, 6, 6, true)});
    matrix<double>& block = blocks.chunks.front();
    matrix<int> sizes = sizesOf({6});
    matrix<double> A = structured(cells, 6, 6, true);
    // The result is given its shape; the product of several blocks would leave it alone.
    matrix<double> actual;
    matrix<double> expected;
    M_BlockProductBckA(&blocks, 1, &sizes, &A, 6, &actual);
    M_ProductAB(block, 6, 6, A, 6, expected);
    EXPECT_EQ(actual.nbrows, 6);
    actual.oobValue = expected.oobValue; // which has no meaning after a team's work
    expectSame(actual, expected);
    matrix<double> right;
    M_BlockProductABck(&A, 6, &blocks, 1, &sizes, &right);
    M_ProductAB(A, 6, 6, block, 6, expected);
    right.oobValue = expected.oobValue;
    expectSame(right, expected);
    matrix<double> transposed(6, 6, 0.0);
    M_BlockProductATrBck(&A, 6, &blocks, 1, &sizes, &transposed);
    M_ProductATrB(&A, 6, 6, &block, 6, &expected);
    expectSame(transposed, expected);
    matrix<double> v = cells.values(6);
    matrix<double> y(6, 1, 0.0);
    matrix<double> expectedY(6, 1, 0.0);
    M_BlockProductBckVect(&blocks, 1, &sizes, &v, &y);
    M_ProductBV(&block, 6, 6, &v, &expectedY);
    expectSame(y, expectedY);
}

TEST(BlockProducts, OfABlockOfZerosAreZerosWhateverIsOpposite)
{
    blocks_of_numbers blocks = blocksOf({matrix<double>(2, 2, 0.0), columnTable(1, {3})});
    blocks.chunks.front().setElement(0, 1, -0.0);
    matrix<int> sizes = sizesOf({2, 1});
    matrix<double> A = columnTable(3, {notANumber, infinite, 5, -1, MISSING_DBL, 7});
    matrix<double> C(3, 2, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 2, &C);
    const columns expected{0, 0, 15, 0, 0, 21};
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(C.data[k], expected[k]);
    }
    matrix<double> turned = columnTable(2, {notANumber, -1, infinite, MISSING_DBL, 5, 7});
    matrix<double> D(2, 3, 9.0);
    M_BlockProductABck(&turned, 2, &blocks, 2, &sizes, &D);
    const columns expectedD{0, 0, 0, 0, 15, 21};
    for (std::size_t k = 0; k < expectedD.size(); ++k) {
        EXPECT_SAME_BITS(D.data[k], expectedD[k]);
    }
}

TEST(BlockProducts, OfAColumnOfZerosAreZerosWhateverTheBlockHas)
{
    blocks_of_numbers blocks = blocksOf({columnTable(2, {infinite, 1, 2, notANumber}), columnTable(1, {3})});
    matrix<int> sizes = sizesOf({2, 1});
    matrix<double> A = columnTable(3, {0, -0.0, 5, 1, 0, 0});
    matrix<double> C(3, 2, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 2, &C);
    EXPECT_SAME_BITS(C.data[0], 0.0);
    EXPECT_SAME_BITS(C.data[1], 0.0);
    EXPECT_SAME_BITS(C.data[2], 15.0);
    // The block's size is A's number of columns, and the second column of A has its one cell on the first
    // row: no rule but the sum applies.
    EXPECT_SAME_BITS(C.data[3], infinite);
    EXPECT_SAME_BITS(C.data[4], notANumber);
    EXPECT_SAME_BITS(C.data[5], 0.0);
}

TEST(BlockProducts, FormNoSumWhereALineIsDiagonal)
{
    // A diagonal row meets an infinite cell opposite its zeros, and a negative zero stays one.
    blocks_of_numbers blocks = blocksOf({columnTable(2, {2, 0, 0, 3}), columnTable(2, {1, 1, 1, 1})});
    matrix<int> sizes = sizesOf({2, 2});
    matrix<double> A = columnTable(4, {infinite, -0.0, 4, 0, 1, 1, 0, 5});
    matrix<double> C(4, 2, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 2, &C);
    const columns expected{infinite, -0.0, 4, 4, 2, 3, 5, 5};
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(C.data[k], expected[k]) << k;
    }
    // The columns of A opposite the second block are diagonal: an infinite cell of that is not multiplied by
    // 0.
    blocks.chunks[1] = columnTable(2, {infinite, 1, -infinite, 1});
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 2, &C);
    EXPECT_SAME_BITS(C.data[2], infinite);
    EXPECT_SAME_BITS(C.data[6], -infinite);
}

TEST(BlockProducts, LetTheBlockDecideWhereBothLinesAreDiagonal)
{
    // Off the diagonal the one gives 2 * 0, the other 0 * -3.
    blocks_of_numbers blocks = blocksOf({columnTable(2, {2, 0, 0, 5}), columnTable(1, {1})});
    matrix<int> sizes = sizesOf({2, 1});
    matrix<double> A = columnTable(3, {-7, 0, 0, 0, -3, 0});
    matrix<double> C(3, 2, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 2, &C);
    EXPECT_SAME_BITS(C.data[3], 0.0);
    matrix<double> turned = columnTable(2, {-7, 0, 0, -3, 0, 0});
    matrix<double> D(2, 3, 9.0);
    M_BlockProductABck(&turned, 2, &blocks, 2, &sizes, &D);
    EXPECT_SAME_BITS(D.data[1], 0.0) << "A(2,1) * block(1,1)";
    EXPECT_SAME_BITS(D.data[2], 0.0) << "A(1,2) * block(2,2)";
}

TEST(BlockProducts, TakeANaNForACell)
{
    // A NaN beside the diagonal makes a sum of its row, and of its column's row.
    blocks_of_numbers blocks = blocksOf({columnTable(2, {2, 0, notANumber, 3}), columnTable(1, {1})});
    matrix<int> sizes = sizesOf({2, 1});
    matrix<double> A = columnTable(3, {1, infinite, 1});
    matrix<double> C(3, 1, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_SAME_BITS(C.data[0], notANumber);
    EXPECT_SAME_BITS(C.data[1], infinite);
    matrix<double> lone = columnTable(3, {notANumber, 0, 1});
    blocks.chunks.front() = columnTable(2, {1, 1, 1, 1});
    M_BlockProductBckA(&blocks, 2, &sizes, &lone, 1, &C);
    EXPECT_SAME_BITS(C.data[0], notANumber) << "its column is none of zeros";
}

TEST(BlockProducts, ReadTheSpareSlotWhereSizesReachPastTheTable)
{
    blocks_of_numbers blocks = blocksOf({columnTable(1, {2}), columnTable(2, {1, 10, 100, 1000})});
    matrix<int> sizes = sizesOf({1, 2});
    matrix<double> A = columnTable(2, {3, 4});
    A.oobValue = 7.0;
    matrix<double> C(3, 1, 9.0);
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_EQ(cellsOf(C), (columns{6, 704, 7040}));
    // Sizes that fall short leave the rest of the result alone.
    matrix<int> shorter = sizesOf({1, 1});
    matrix<double> D(3, 1, 9.0);
    M_BlockProductBckA(&blocks, 2, &shorter, &A, 1, &D);
    EXPECT_EQ(cellsOf(D), (columns{6, 4, 9}));
}

TEST(BlockProducts, OfNoBlocksStoreNothing)
{
    blocks_of_numbers blocks;
    matrix<int> sizes = sizesOf({1});
    matrix<double> A = columnTable(1, {3});
    matrix<double> C(1, 1, 9.0);
    M_BlockProductBckA(&blocks, 0, &sizes, &A, 1, &C);
    M_BlockProductABck(&A, 1, &blocks, -1, &sizes, &C);
    M_BlockProductATrBck(&A, 1, &blocks, 0, &sizes, &C);
    M_BlockProductBckVect(&blocks, 0, &sizes, &A, &C);
    EXPECT_EQ(C.data[0], 9.0);
    EXPECT_EQ(C.oobValue, -1.0);
    // Nor of blocks and a table without columns, or a size below 0.
    blocks = blocksOf({columnTable(1, {2}), columnTable(1, {2})});
    matrix<int> two = sizesOf({1, -1});
    M_BlockProductBckA(&blocks, 2, &two, &A, 0, &C);
    M_BlockProductABck(&A, -1, &blocks, 2, &two, &C);
    M_BlockProductATrBck(&A, -1, &blocks, 2, &two, &C);
    EXPECT_EQ(C.data[0], 9.0);
}

TEST(SparseBlockProducts, AgreeWithTheDenseOnes)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::none);
        block_case c = randomBlocks(cells);
        c.exact = true;
        for (std::size_t b = 0; b < c.blocks.chunks.size(); ++b) {
            const int size = c.sizes[static_cast<int>(b)];
            c.blocks.chunks[b] = structured(cells, size, size, true);
        }
        c.other = std::max(c.other, 1);
        const int count = c.sizes.nbrows;
        matrix3D<matrixSparse> blocks = sparseBlocksOf(c.blocks);
        matrix<double> A = stripes(cells, c, true);
        matrix<double> turned = stripes(cells, c, false);
        const matrix3D<matrixSparse> operands = sparseBlocksOf(blocksOf({A, turned}));
        matrixSparse sparseA = operands.chunks[0];
        matrixSparse sparseTurned = operands.chunks[1];
        matrix<double> dense(c.order, c.other, 0.0);
        M_BlockProductBckA(&c.blocks, count, &c.sizes, &A, c.other, &dense);
        matrixSparse actual;
        M_BlockProductBckA(&blocks, count, &c.sizes, &sparseA, c.other, &actual);
        EXPECT_TRUE(sameStorage(actual, matrixSparse(&dense)));
        matrix<double> right(c.other, c.order, 0.0);
        M_BlockProductABck(&turned, c.other, &c.blocks, count, &c.sizes, &right);
        M_BlockProductABck(&sparseTurned, c.other, &blocks, count, &c.sizes, &actual);
        EXPECT_TRUE(sameStorage(actual, matrixSparse(&right)));
        M_BlockProductATrBck(&turned, c.other, &c.blocks, count, &c.sizes, &right);
        M_BlockProductATrBck(&sparseTurned, c.other, &blocks, count, &c.sizes, &actual);
        EXPECT_TRUE(sameStorage(actual, matrixSparse(&right)));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(SparseBlockProducts, TakeThePatternOfABlockFromItsEntries)
{
    // Row 1 has one entry, on the diagonal; that row 2 has one in its column matters to the dense form only.
    // So nothing but that entry meets the infinite cell.
    const blocks_of_numbers dense = blocksOf({columnTable(2, {2, 4, 0, 3}), columnTable(1, {1})});
    matrix3D<matrixSparse> blocks = sparseBlocksOf(dense);
    matrix<int> sizes = sizesOf({2, 1});
    matrix<double> table = columnTable(3, {1, infinite, 1});
    matrixSparse A(&table);
    matrixSparse C;
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_SAME_BITS(C.getElement(0, 0), 2.0);
    EXPECT_SAME_BITS(C.getElement(1, 0), infinite);
    // A stored zero is an entry: its row is not empty, and an infinite cell shows.
    matrixSparse stored(2, 2, 0.0, false);
    stored.setElement(0, 0, 1.0);
    stored.values[0] = 0.0;
    blocks.chunks[0] = stored;
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_SAME_BITS(C.getElement(0, 0), 0.0) << "0 * 1";
    stored.setElement(0, 1, 1.0);
    stored.values[0] = 0.0;
    blocks.chunks[0] = stored;
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_EQ(C.nnz, 1) << "a NaN is not loaded, nor are zeros";
    EXPECT_SAME_BITS(C.getElement(2, 0), 1.0);
    // The mirror looks at columns: column 1 has one entry, though its row has two.
    blocks = sparseBlocksOf(blocksOf({columnTable(2, {2, 0, 4, 3}), columnTable(1, {1})}));
    matrix<double> row = columnTable(1, {1, infinite, 1});
    matrixSparse left(&row);
    M_BlockProductABck(&left, 1, &blocks, 2, &sizes, &C);
    EXPECT_SAME_BITS(C.getElement(0, 0), 2.0);
    EXPECT_SAME_BITS(C.getElement(0, 1), infinite);
}

TEST(SparseBlockProducts, OfASingleBlockAreThoseOfTables)
{
    matrix<double> cells = columnTable(2, {1, 2, 3, 4});
    matrix<double> table = columnTable(2, {5, 6, 7, 8});
    matrix3D<matrixSparse> blocks = sparseBlocksOf(blocksOf({cells}));
    matrix<int> sizes = sizesOf({2});
    matrixSparse A(&table);
    matrixSparse actual;
    matrixSparse expected;
    // The entries of a row stand in the order of that product, which is not the ascending one.
    M_BlockProductBckA(&blocks, 1, &sizes, &A, 2, &actual);
    M_ProductAB(&blocks.chunks[0], 2, 2, &A, 2, &expected, false);
    EXPECT_TRUE(sameStorage(actual, expected));
    EXPECT_EQ(actual.colIndex.front(), 1);
    M_BlockProductABck(&A, 2, &blocks, 1, &sizes, &actual);
    M_ProductAB(&A, 2, 2, &blocks.chunks[0], 2, &expected, false);
    EXPECT_TRUE(sameStorage(actual, expected));
    M_BlockProductATrBck(&A, 2, &blocks, 1, &sizes, &actual);
    M_ProductATrB(&A, 2, 2, &blocks.chunks[0], 2, &expected);
    EXPECT_TRUE(sameStorage(actual, expected));
}

TEST(SparseBlockProducts, ReadTheSpareSlotOfTheExpandedTable)
{
    matrix3D<matrixSparse> blocks = sparseBlocksOf(blocksOf({columnTable(1, {2}), columnTable(1, {10})}));
    matrix<int> sizes = sizesOf({1, 1});
    matrix<double> table = columnTable(1, {3});
    matrixSparse A(&table);
    matrixSparse C;
    M_BlockProductBckA(&blocks, 2, &sizes, &A, 1, &C);
    EXPECT_EQ(C.nbrows, 2);
    EXPECT_SAME_BITS(C.getElement(0, 0), 6.0);
    EXPECT_SAME_BITS(C.getElement(1, 0), -10.0);
}
