#include "linalg/products_block.h"

#include "linalg/block_operands.h"
#include "linalg/block_stripes.h"
#include "linalg/product_forms.h"
#include "linalg/products.h"
#include "linalg/products_sparse.h"
#include "linalg/products_table_vector.h"
#include "tables/block_copy.h"
#include "tables/transpose.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

using korvel::block_side;
using korvel::kindsOfColumns;
using korvel::kindsOfRows;
using korvel::line_kind;
using korvel::line_kinds;
using korvel::part_read;
using korvel::part_written;
using korvel::stripe_product;

/** The blocks of a block-diagonal table, whatever they are. */
template <class Block>
class block_list
{
public:
    block_list(matrix3D<Block>& blocks, int count, const matrix<int>& sizes)
        : blocks_(&blocks), count_(count), sizes_(&sizes)
    {
    }

    [[nodiscard]] bool single() const { return count_ == 1; }
    [[nodiscard]] Block& first() const { return blocks_->chunks.front(); }
    [[nodiscard]] int firstSize() const { return (*sizes_)[0]; }

    /** The rows, and columns, of all blocks together. */
    [[nodiscard]] int order() const
    {
        int sum = 0;
        forEach([&](Block&, int size, int) { sum += size; });
        return sum;
    }

    /** Calls `work(block, size, offset)` for each block that has a size. */
    template <class Work>
    void forEach(Work work) const
    {
        int offset = 0;
        for (int b = 0; b < count_; ++b) {
            const int size = std::max((*sizes_)[b], 0);
            if (size > 0) {
                work(blocks_->chunks[static_cast<std::size_t>(b)], size, offset);
            }
            offset += size;
        }
    }

private:
    matrix3D<Block>* blocks_;
    int count_;
    const matrix<int>* sizes_;
};

stripe_product blockTimesRows(const matrix<double>& block, int size, const matrix<double>& A, int offset,
                              int p, matrix<double>& C)
{
    return {size, size, p, part_read(block), part_read(A, offset, 0), part_written(C, offset, 0)};
}

stripe_product columnsTimesBlock(const matrix<double>& A, int n, int offset, const matrix<double>& block,
                                 int size, matrix<double>& C)
{
    return {n, size, size, part_read(A, 0, offset), part_read(block), part_written(C, 0, offset)};
}

/** The cells of a block, read through its own access. */
matrix<double> expanded(const matrixSparse& block, int size)
{
    matrix<double> cells(size, size, 0.0);
    korvel::copyBlock(korvel::reading(block), {}, korvel::writing(cells), {}, size, size);
    return cells;
}

/** The kinds of the rows of a sparse block. */
line_kinds kindsOfEntries(matrixSparse& block, int size)
{
    std::vector<bool> colEmpty;
    std::vector<bool> rowEmpty;
    std::vector<bool> rowDiagOnly;
    block.calcStrucInfo(size, size, colEmpty, rowEmpty, rowDiagOnly, 0, 0);
    line_kinds kinds(static_cast<std::size_t>(size), line_kind::summed);
    for (std::size_t r = 0; r < kinds.size(); ++r) {
        if (rowEmpty[r]) {
            kinds[r] = line_kind::zero;
        } else if (rowDiagOnly[r]) {
            kinds[r] = line_kind::diagonal;
        }
    }
    return kinds;
}

/** A stripe times a block that is summed along its rows. */
void multiplyTransposed(const stripe_product& form, std::vector<double>& scratch)
{
    if (korvel::blockDecides(form, {})) {
        multiplyByTransposedBlock(form, scratch);
        return;
    }
    for (int i = 0; i < form.rows; ++i) {
        for (int j = 0; j < form.cols; ++j) {
            double sum = 0.0;
            for (int c = 0; c < form.depth; ++c) {
                sum += form.left.get(i, c) * form.right.get(j, c);
            }
            form.result.set(i, j, sum);
        }
    }
}

} // namespace

void M_BlockProductBckA(matrix3D<matrix<double>>* blocks, int nBlocks, matrix<int>* sizes, matrix<double>* A,
                        int p, matrix<double>* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    if (list.single()) {
        const int size = list.firstSize();
        M_ProductAB(list.first(), size, size, *A, p, *C);
        return;
    }
    korvel::left_blocks together;
    list.forEach([&](const matrix<double>& block, int size, int offset) {
        const stripe_product form = blockTimesRows(block, size, *A, offset, p, *C);
        const line_kinds rows = kindsOfRows(form);
        if (korvel::blockDecides(form, rows)) {
            together.add(form, rows);
            return;
        }
        together.form();
        multiplyStripe(form, rows, kindsOfColumns(form), block_side::left);
    });
    together.form();
}

void M_BlockProductBckA(matrix3D<matrixSparse>* blocks, int nBlocks, matrix<int>* sizes, matrixSparse* A,
                        int p, matrixSparse* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    if (list.single()) {
        const int size = list.firstSize();
        M_ProductAB(&list.first(), size, size, A, p, C, false);
        return;
    }
    const matrix<double> dense = A->to_matrix();
    matrix<double> product(list.order(), p, 0.0);
    list.forEach([&](matrixSparse& block, int size, int offset) {
        const matrix<double> cells = expanded(block, size);
        const stripe_product form = blockTimesRows(cells, size, dense, offset, p, product);
        multiplyStripe(form, kindsOfEntries(block, size), kindsOfColumns(form), block_side::left);
    });
    C->outputSparse(&product);
}

void M_BlockProductABck(matrix<double>* A, int n, matrix3D<matrix<double>>* blocks, int nBlocks,
                        matrix<int>* sizes, matrix<double>* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    if (list.single()) {
        const int size = list.firstSize();
        M_ProductAB(*A, n, size, list.first(), size, *C);
        return;
    }
    list.forEach([&](const matrix<double>& block, int size, int offset) {
        const stripe_product form = columnsTimesBlock(*A, n, offset, block, size, *C);
        const line_kinds cols = kindsOfColumns(form);
        if (korvel::blockDecides(form, cols)) {
            multiplyByBlock(form, cols);
        } else {
            multiplyStripe(form, kindsOfRows(form), cols, block_side::right);
        }
    });
}

void M_BlockProductABck(matrixSparse* A, int n, matrix3D<matrixSparse>* blocks, int nBlocks,
                        matrix<int>* sizes, matrixSparse* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    if (list.single()) {
        const int size = list.firstSize();
        M_ProductAB(A, n, size, &list.first(), size, C, false);
        return;
    }
    const matrix<double> dense = A->to_matrix();
    matrix<double> product(std::max(n, 0), list.order(), 0.0);
    list.forEach([&](matrixSparse& block, int size, int offset) {
        const matrix<double> cells = expanded(block, size);
        matrixSparse turned;
        M_Transpose(block, size, size, turned);
        const stripe_product form = columnsTimesBlock(dense, n, offset, cells, size, product);
        multiplyStripe(form, kindsOfRows(form), kindsOfEntries(turned, size), block_side::right);
    });
    C->outputSparse(&product);
}

void M_BlockProductATrBck(matrix<double>* A, int n, matrix3D<matrix<double>>* blocks, int nBlocks,
                          matrix<int>* sizes, matrix<double>* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    std::vector<double> scratch;
    list.forEach([&](const matrix<double>& block, int size, int offset) {
        multiplyTransposed(columnsTimesBlock(*A, n, offset, block, size, *C), scratch);
    });
}

void M_BlockProductATrBck(matrixSparse* A, int n, matrix3D<matrixSparse>* blocks, int nBlocks,
                          matrix<int>* sizes, matrixSparse* C)
{
    const block_list list(*blocks, nBlocks, *sizes);
    if (list.single()) {
        const int size = list.firstSize();
        M_ProductATrB(A, n, size, &list.first(), size, C);
        return;
    }
    const matrix<double> dense = A->to_matrix();
    matrix<double> product(std::max(n, 0), list.order(), 0.0);
    std::vector<double> scratch;
    list.forEach([&](const matrixSparse& block, int size, int offset) {
        const matrix<double> cells = expanded(block, size);
        multiplyTransposed(columnsTimesBlock(dense, n, offset, cells, size, product), scratch);
    });
    C->outputSparse(&product);
}

void M_BlockProductBckVect(matrix3D<matrix<double>>* blocks, int nBlocks, matrix<int>* sizes,
                           matrix<double>* v, matrix<double>* y)
{
    const block_list list(*blocks, nBlocks, *sizes);
    const matrix<double>& vector = *v;
    list.forEach([&](const matrix<double>& block, int size, int offset) {
        const part_read rows(block);
        if (rows.inside(size, size) && korvel::holds(vector, offset + size) &&
            korvel::holds(*y, offset + size)) {
            korvel::kernels::product form{size, 1, size};
            form.left = {{rows.cells(), rows.stride()}, false};
            form.right = {{vector.data + offset, 0}, true};
            form.result = {y->data + offset, 0};
            korvel::multiply(form);
            y->oobValue = y->data[offset + size - 1];
            return;
        }
        for (int r = 0; r < size; ++r) {
            double sum = 0.0;
            for (int c = 0; c < size; ++c) {
                sum += rows.get(r, c) * vector[offset + c];
            }
            korvel::storeChecked(*y, offset + r, sum);
        }
    });
}
