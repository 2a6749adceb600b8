/**
 * @file
 * Products of blocks with the rows opposite, for blocks that do little with each number: they are formed
 * column after column of the other table, for all blocks at once, so that memory is walked from end to end.
 */
#ifndef KORVEL_LINALG_BLOCK_COLUMNS_H
#define KORVEL_LINALG_BLOCK_COLUMNS_H

#include "linalg/block_stripes.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace korvel
{

/** Rows of one kind that stand one below the other. */
struct run_of_kind {
    line_kind kind;
    std::ptrdiff_t first;
    std::ptrdiff_t count;
};

[[nodiscard]] std::vector<run_of_kind> runsOf(const line_kinds& rows);

/** The diagonal of the left operand, as far as it goes. */
[[nodiscard]] std::vector<double> diagonalOf(const stripe_product& form);

/** Products with blocks on the left, gathered to be formed together. */
class block_columns
{
public:
    /** Whether a product is to be formed here: all cells lie inside, and few or no sums are formed, whatever
     * the columns of the right operand are. */
    [[nodiscard]] static bool suits(const stripe_product& form, const line_kinds& rows);

    void add(const stripe_product& form, const line_kinds& rows);

    /** Forms what was added since the last time. All of it has the same right and result tables. */
    void form();

private:
    struct entry {
        int rows;
        int depth;
        const double* left;
        std::ptrdiff_t leftStride;
        const double* right;
        double* result;
        std::vector<run_of_kind> runs;
        std::vector<double> diagonal;
    };

    template <int cols>
    void formColumns(const entry& block, std::ptrdiff_t j) const;
    template <int cols>
    void formRun(const entry& block, const run_of_kind& run, const double* from, double* to) const;

    std::vector<entry> entries_;
    int cols_ = 0;
    std::ptrdiff_t rightStride_ = 0;
    std::ptrdiff_t resultStride_ = 0;
    std::optional<part_written> last_; ///< where the last product is stored
};

} // namespace korvel

#endif
