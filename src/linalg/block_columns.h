/**
 * @file
 * Products of blocks with the rows opposite, for blocks that do little with each number: they are formed
 * column after column of the other table, for all blocks at once, so that memory is walked from end to end.
 */
#ifndef KORVEL_LINALG_BLOCK_COLUMNS_H
#define KORVEL_LINALG_BLOCK_COLUMNS_H

#include "linalg/block_stripes.h"

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
        stripe_product product;
        std::vector<run_of_kind> runs;
        std::vector<double> diagonal;
    };

    static void formColumn(const entry& block, int j);

    std::vector<entry> entries_;
};

} // namespace korvel

#endif
