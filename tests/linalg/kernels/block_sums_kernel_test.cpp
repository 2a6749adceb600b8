#include "linalg/kernels/block_sums.h"

#include "linalg/kernels/instruction_sets.h"
#include "linalg/products_block.h"
#include "reference/block_products.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

#include <vector>

using namespace korvel::test;

namespace
{

matrix<double> filled(random_cells& cells, int rows, int cols)
{
    matrix<double> made(rows, cols, 0.0);
    fillRandomly(cells, made);
    return made;
}

/** Makes zeros of every second to ninth row and column. */
void emptyLines(random_cells& cells, matrix<double>& table)
{
    const int rowStep = cells.integer(2, 9);
    const int colStep = cells.integer(2, 9);
    for (int j = 0; j < table.nbcols; ++j) {
        for (int i = 0; i < table.nbrows; ++i) {
            if (i % rowStep == 0 || j % colStep == 0) {
                table.setElement(i, j, cells.integer(0, 1) == 0 ? 0.0 : -0.0);
            }
        }
    }
}

/** All products with blocks of these sizes, beside the plain ones. */
void compareAll(random_cells& cells, const std::vector<int>& sizeList, int other)
{
    matrix3D<matrix<double>> blocks;
    int order = 0;
    for (const int size : sizeList) {
        blocks.chunks.push_back(filled(cells, size, size));
        if (cells.integer(0, 2) == 0) {
            emptyLines(cells, blocks.chunks.back());
        }
        order += size;
    }
    matrix<int> sizes = vectorOf<int>(sizeList);
    const int count = sizes.nbrows;
    matrix<double> below = filled(cells, order, other);
    matrix<double> beside = filled(cells, other, order);
    emptyLines(cells, below);
    emptyLines(cells, beside);
    matrix<double> actual(order, other, 9.0);
    matrix<double> expected(order, other, 9.0);
    M_BlockProductBckA(&blocks, count, &sizes, &below, other, &actual);
    plainBlockBckA(blocks, count, sizes, below, other, expected);
    expectSame(actual, expected);
    matrix<double> actualBeside(other, order, 9.0);
    matrix<double> expectedBeside(other, order, 9.0);
    M_BlockProductABck(&beside, other, &blocks, count, &sizes, &actualBeside);
    plainBlockABck(beside, other, blocks, count, sizes, expectedBeside);
    expectSame(actualBeside, expectedBeside);
    M_BlockProductATrBck(&beside, other, &blocks, count, &sizes, &actualBeside);
    plainBlockATrBck(beside, other, blocks, count, sizes, expectedBeside);
    expectSame(actualBeside, expectedBeside);
}

} // namespace

TEST(BlockSumsKernel, FormsThePlainSumsWithEachInstructionSet)
{
    for (const auto set : setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        for (const odd_cells odd : {odd_cells::none, odd_cells::all}) {
            random_cells cells(7, odd);
            // All counts of rows and columns around those of a tile.
            for (int size = 2; size <= 35; ++size) {
                SCOPED_TRACE(size);
                compareAll(cells, {size, 1 + size % 7, size}, 1 + size * 5 % 23);
            }
            // Blocks that are too large to be multiplied together, or where they lie; many rows.
            compareAll(cells, {100, 3, 100, 100, 128, 17, 129, 2, 90}, 13);
            compareAll(cells, {40, 5, 130}, 150);
        }
    }
}

TEST(BlockSumsKernel, IsThatOfTheSetInUse)
{
    const korvel::kernels::forced_set forced(korvel::kernels::instruction_set::baseline);
    EXPECT_EQ(&korvel::kernels::blockSumsKernel(), &korvel::kernels::baseline::blockSumsKernel);
}
