/**
 * @file
 * The singular value decomposition on raw memory, with the bits of the plain loops of `linalg/golub_kahan.h`:
 * each element is one chain of operations in the order of those, and only independent elements are computed
 * side by side. It is compiled for each instruction set as the product kernel is, and chosen with it.
 *
 * - The reduction walks over the table twice a step: the update from the row before goes with the products
 *   with the next reflector, eight columns side by side, and the update from that with the sums along rows.
 * - Some columns of the vectors at a time meet all reflectors while they stay in the cache; the update by one
 *   and the products with the next are one walk.
 * - The QR recurrence works on the bidiagonal form alone. Its rotations are recorded and turn strips of rows
 *   later, several sweeps in one walk, woven into the recurrence of the next sweeps, whose latency they fill.
 */
#ifndef KORVEL_LINALG_KERNELS_SINGULAR_VALUES_H
#define KORVEL_LINALG_KERNELS_SINGULAR_VALUES_H

#include "linalg/bidiagonal.h"
#include "linalg/kernels/product.h"

#include <cstddef>

namespace korvel::kernels
{

/** A table to be decomposed, of one row and one column at least. */
struct svd_problem {
    svd_shape shape;
    columns_of<double> table{};
    double* values = nullptr;
    columns_of<double> U{};
    columns_of<double> V{};
    bool keepsTable = true; ///< otherwise it receives its reduced form
};

/** What is compiled once for each instruction set. */
struct singular_value_kernel {
    /** Doubles of scratch that `decompose` needs. */
    std::size_t (*scratchSize)(const svd_shape& shape);
    /** Returns 0 or minus the number of values that did not converge. */
    int (*decompose)(const svd_problem& problem, double* scratch);
};

/** The kernel of the set that is used. */
[[nodiscard]] const singular_value_kernel& singularValueKernel() noexcept;

namespace baseline
{
extern const singular_value_kernel singularValueKernel;
}

namespace avx2
{
extern const singular_value_kernel singularValueKernel;
}

namespace avx512
{
extern const singular_value_kernel singularValueKernel;
}

} // namespace korvel::kernels

#endif
