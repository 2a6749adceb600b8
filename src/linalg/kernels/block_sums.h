/**
 * @file
 * Many small products, each a block of the left operands times the rows opposite: element (i, j) is the sum
 * over c of left(i, c) * right(c, j), from 0.0 in ascending c. Nothing is packed: all columns are read where
 * they lie, and a tile of the result is summed in registers.
 *
 * It is compiled for each instruction set; see `product.h`.
 */
#ifndef KORVEL_LINALG_KERNELS_BLOCK_SUMS_H
#define KORVEL_LINALG_KERNELS_BLOCK_SUMS_H

#include <cstddef>

namespace korvel::kernels
{

/** One product, but for what all of a list have in common. The counts are not negative. */
struct block_sum {
    std::ptrdiff_t rows = 0;
    std::ptrdiff_t depth = 0;
    const double* left = nullptr; ///< `rows` by `depth`
    std::ptrdiff_t leftStride = 0;
    const double* right = nullptr; ///< `depth` rows of the right table, from its first column on
    double* result = nullptr;      ///< `rows` rows of the result, from its first column on
};

/** The columns of the right table and of the result. */
struct block_columns_between {
    std::ptrdiff_t count = 0;
    std::ptrdiff_t rightStride = 0;
    std::ptrdiff_t resultStride = 0;
};

/** What is compiled once for each instruction set. */
struct block_sums_kernel {
    /** Forms some columns of all products before the next columns: for blocks that lie one below the other.
     */
    void (*byColumns)(const block_sum* first, std::size_t count, const block_columns_between& columns);
    /** Forms some rows of all columns of a product before the next rows: for a table with many rows. */
    void (*byRows)(const block_sum& product, const block_columns_between& columns);
};

/** The kernel of the instruction set in use. */
[[nodiscard]] const block_sums_kernel& blockSumsKernel() noexcept;

namespace baseline
{
extern const block_sums_kernel blockSumsKernel;
}

namespace avx2
{
extern const block_sums_kernel blockSumsKernel;
}

namespace avx512
{
extern const block_sums_kernel blockSumsKernel;
}

} // namespace korvel::kernels

#endif
