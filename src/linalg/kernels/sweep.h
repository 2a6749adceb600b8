/**
 * @file
 * The G2 sweep of every pivot of a square table, in ascending order. For a pivot d = a(k,k) row k is divided
 * by d, every other element loses a(i,k) times that row, and column k becomes -a(i,k) / d; the row and the
 * column of a pivot whose magnitude is below the tolerance become zeros.
 *
 * The pivots are taken a block at a time. Each element still meets the pivots one by one in ascending order,
 * a multiplication and then a subtraction for each, so that its bits are those of the sweep pivot by pivot.
 *
 * It is compiled for each instruction set; see `product.h`.
 */
#ifndef KORVEL_LINALG_KERNELS_SWEEP_H
#define KORVEL_LINALG_KERNELS_SWEEP_H

#include <cstddef>

namespace korvel::kernels
{

/** Counts at which the kernel goes another way, so that tests can lie around each. */
struct sweep_edges {
    std::ptrdiff_t stripRows;
    std::ptrdiff_t groupColumns;
    std::ptrdiff_t blockPivots;
};

/** What is compiled once for each instruction set. */
struct sweep_kernel {
    /** Doubles of scratch that a table of this order needs. */
    std::size_t (*scratchSize)(std::ptrdiff_t order);
    /** Sweeps the table in place, column after column, `stride` elements from one to the next. */
    void (*sweep)(double* table, std::ptrdiff_t stride, std::ptrdiff_t order, double tolerance,
                  double* scratch);
    sweep_edges edges;
};

/** The kernel of the instruction set in use. */
[[nodiscard]] const sweep_kernel& sweepKernel() noexcept;

namespace baseline
{
extern const sweep_kernel sweepKernel;
}

namespace avx2
{
extern const sweep_kernel sweepKernel;
}

namespace avx512
{
extern const sweep_kernel sweepKernel;
}

} // namespace korvel::kernels

#endif
