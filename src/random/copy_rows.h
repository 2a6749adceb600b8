/**
 * @file
 * Copying chosen rows of a table of texts into another.
 */
#ifndef KORVEL_RANDOM_COPY_ROWS_H
#define KORVEL_RANDOM_COPY_ROWS_H

#include "random/row_choice.h"

namespace korvel
{

/**
 * Copies row `chosen[t]` of one view to row t of the other, by the checked access of both. A dense table does
 * not check for rows before the first; such a row is read as empty texts.
 */
template <class From, class To>
void copyRows(const chosen_rows& chosen, int cols, const From& from, const To& to)
{
    const text nothing;
    for (int j = 0; j < cols; ++j) {
        for (std::size_t t = 0; t < chosen.size(); ++t) {
            const std::int64_t row = chosen[t] - 1;
            to.set(static_cast<int>(t), j, row >= 0 ? from.get(static_cast<int>(row), j) : nothing);
        }
    }
}

} // namespace korvel

#endif
