/**
 * @file
 * Products with blocks where only the lines of the block tell which elements are sums. They are formed
 * without a look at the other table: what its zero lines make stands in the sums already, but for the sign of
 * zero products and for infinite or NaN cells of a block, and is set right afterwards where that may be.
 */
#ifndef KORVEL_LINALG_BLOCK_OPERANDS_H
#define KORVEL_LINALG_BLOCK_OPERANDS_H

#include "linalg/block_stripes.h"
#include "linalg/kernels/block_sums.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace korvel
{

/** Whether a product may be formed by this file: all cells lie inside, and no diagonal line of the other
 * table matters. `kinds` are those of the block's lines. */
[[nodiscard]] bool blockDecides(const stripe_product& form, const line_kinds& kinds);

/** Products with blocks on the left, gathered to be formed together, so that memory is walked from end to
 * end. */
class left_blocks
{
public:
    void add(const stripe_product& form, const line_kinds& rows);

    /** Forms what was added since the last time. All of it has the same right and result tables. */
    void form();

private:
    /** Rows of the result and those of the right table opposite, in the first column of each. */
    struct rows_opposite {
        const double* right;
        double* result;
        std::ptrdiff_t count;
    };

    static void append(std::vector<rows_opposite>& list, const rows_opposite& rows);
    void formSums() const;
    template <int cols>
    void formColumns(std::ptrdiff_t j) const;
    void clearOppositeZeros(const std::vector<rows_opposite>& stripes, std::ptrdiff_t j) const;

    kernels::block_columns_between columns_;
    std::vector<rows_opposite> zeros_;
    std::vector<rows_opposite> diagonals_;
    std::vector<double> factors_; ///< of all diagonal rows
    std::vector<kernels::block_sum> sums_;
    std::vector<rows_opposite> withDiagonals_; ///< stripes in which a zero product may have the wrong sign
    std::vector<rows_opposite> notFinite_;     ///< stripes in which a sum may be NaN that is to be 0.0
    std::optional<part_written> last_;         ///< where the last product is stored
    std::ptrdiff_t lastRow_ = 0;
};

/** The product of a table and a block on its right, given the kinds of the block's columns. */
void multiplyByBlock(const stripe_product& form, const line_kinds& cols);

/** The same for a block that is summed along its rows, all of whose elements are sums. `turned` is scratch.
 */
void multiplyByTransposedBlock(const stripe_product& form, std::vector<double>& turned);

} // namespace korvel

#endif
