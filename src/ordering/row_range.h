#ifndef KORVEL_ORDERING_ROW_RANGE_H
#define KORVEL_ORDERING_ROW_RANGE_H

namespace korvel
{

/** The rows or positions `from..to`, 1-based and inclusive, out of `length`. */
struct row_range {
    int first; ///< The first one, counted from 0.
    int count; ///< How many; 0 when the range is empty or reaches outside, and nothing is sorted.

    row_range(int from, int to, int length)
        : first(from - 1), count(from >= 1 && from <= to && to <= length ? to - from + 1 : 0)
    {
    }
};

} // namespace korvel

#endif
