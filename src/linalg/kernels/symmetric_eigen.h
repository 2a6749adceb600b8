/**
 * @file
 * The symmetric eigen decomposition on raw memory, with the bits of the plain loops of
 * `linalg/tridiagonal_ql.h`: each element is one chain of operations in the order of those, and only
 * independent elements are computed side by side. It is compiled for each instruction set as the product
 * kernel is, and chosen with it.
 *
 * - The reduction keeps the lower triangle in tiles of 8 by 8. One pass over them does the update of a step
 * and the product of the next; the upper half is had by transposing each tile in registers.
 * - Reflectors are applied some dozens at a time to columns that stay in the cache meanwhile; the update by
 * one and the sums of the next are one walk.
 * - The QL recurrence works on the tridiagonal form alone. Its rotations are recorded and turn strips of rows
 *   later, several sweeps in one walk, woven into the recurrence of the next sweeps, whose latency they fill.
 */
#ifndef KORVEL_LINALG_KERNELS_SYMMETRIC_EIGEN_H
#define KORVEL_LINALG_KERNELS_SYMMETRIC_EIGEN_H

#include "linalg/kernels/product.h"

#include <cstddef>

namespace korvel::kernels
{

/** A table to be decomposed, of order 1 at least. */
struct eigen_problem {
    std::ptrdiff_t n = 0;
    columns_of<const double> table{}; ///< read from the diagonal down
    double* vectors = nullptr;        ///< `n * n` numbers, apart from the table
    double* values = nullptr;
    int tooMany = 0; ///< the sweep at which a value counts as lost
};

/** What is compiled once for each instruction set. */
struct symmetric_eigen_kernel {
    /** Doubles of scratch that the other two need. */
    std::size_t (*scratchSize)(std::ptrdiff_t n);
    /** Finds the values, and the vectors in an order of cells of its own; false when a value was lost. */
    bool (*decompose)(const eigen_problem& problem, double* scratch);
    /** Puts the vectors where they belong, number `order[k]` into column k, with the scratch of `decompose`.
     */
    void (*arrange)(const eigen_problem& problem, const int* order, double* scratch);
};

/** The kernel of the set that is used. */
[[nodiscard]] const symmetric_eigen_kernel& symmetricEigenKernel() noexcept;

namespace baseline
{
extern const symmetric_eigen_kernel symmetricEigenKernel;
}

namespace avx2
{
extern const symmetric_eigen_kernel symmetricEigenKernel;
}

namespace avx512
{
extern const symmetric_eigen_kernel symmetricEigenKernel;
}

} // namespace korvel::kernels

#endif
