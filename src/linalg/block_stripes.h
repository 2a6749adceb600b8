/**
 * @file
 * What a product with a block-diagonal table is made of: the product of one block with the stripe of the
 * other table that lies opposite.
 */
#ifndef KORVEL_LINALG_BLOCK_STRIPES_H
#define KORVEL_LINALG_BLOCK_STRIPES_H

#include "containers/matrix.h"

#include <cstddef>
#include <vector>

namespace korvel
{

/** The cells of a dense table from a place on, read through the checked access. */
template <class T>
class table_part
{
public:
    explicit table_part(T& table, int row = 0, int col = 0) : table_(&table), row_(row), col_(col) {}

    [[nodiscard]] double get(int i, int j) const { return table_->getElement(row_ + i, col_ + j); }
    void set(int i, int j, double value) const { table_->setElement(row_ + i, col_ + j, value); }

    [[nodiscard]] bool inside(int rows, int cols) const
    {
        return row_ >= 0 && col_ >= 0 && rows <= table_->nbrows - row_ && cols <= table_->nbcols - col_;
    }
    [[nodiscard]] auto* cells() const { return table_->data + row_ + stride() * col_; }
    [[nodiscard]] std::ptrdiff_t stride() const { return table_->nbrows; }
    /** Leaves a value in the spare slot. */
    void leave(double value) const { table_->oobValue = value; }

private:
    T* table_;
    int row_;
    int col_;
};

using part_read = table_part<const matrix<double>>;
using part_written = table_part<matrix<double>>;

/** What is known of a row or a column. */
enum class line_kind : unsigned char { summed, diagonal, zero };

using line_kinds = std::vector<line_kind>;

/** Lines of one kind that stand one after the other. */
struct run_of_kind {
    line_kind kind;
    std::ptrdiff_t first;
    std::ptrdiff_t count;
};

[[nodiscard]] std::vector<run_of_kind> runsOf(const line_kinds& lines);

/** The product of a block and a stripe, one of which stands left and the other right. */
struct stripe_product {
    int rows = 0;
    int depth = 0;
    int cols = 0;
    part_read left;
    part_read right;
    part_written result;
};

/** Which operand is the block. Where a line of each is diagonal, that of the block decides. */
enum class block_side { left, right };

/** The kinds of the rows of the left operand. */
[[nodiscard]] line_kinds kindsOfRows(const stripe_product& form);

/** The kinds of the columns of the right operand. */
[[nodiscard]] line_kinds kindsOfColumns(const stripe_product& form);

/** Forms the product under the rules of structure, given the kinds of the rows and columns of the result. */
void multiplyStripe(const stripe_product& form, const line_kinds& rows, const line_kinds& cols,
                    block_side block);

} // namespace korvel

#endif
