#ifndef KORVEL_ORDERING_ROW_RANGE_H
#define KORVEL_ORDERING_ROW_RANGE_H

namespace korvel
{

/** Rows or positions `from..to`, 1-based and inclusive, of something that has `length` of them. */
struct row_range {
    int first; ///< The first one, from 0.
    int count; ///< 0 when the range is empty or not inside: then there is nothing to sort.

    row_range(int from, int to, int length)
        : first(from - 1), count(from >= 1 && from <= to && to <= length ? to - from + 1 : 0)
    {
    }
};

} // namespace korvel

#endif
