/**
 * @file
 * The categories of a caller's variables, as several flat functions take them.
 */
#ifndef KORVEL_FRAMES_KNOWN_CATEGORIES_H
#define KORVEL_FRAMES_KNOWN_CATEGORIES_H

#include "frames/frame.h"

#include <algorithm>

namespace korvel::frame
{

/** The number of categories of each of `p` variables, and their names in a table as wide as the largest
 * number. */
struct known_categories {
    matrix<int> counts;
    matrix<text> names;

    known_categories(const int* categoryCounts, OLECHAR* const* categories, int p)
        : counts(borrow(categoryCounts, p)), names(readTexts(categories, p, largest(categoryCounts, p)))
    {
    }

private:
    static int largest(const int* counts, int p)
    {
        int most = 0;
        for (int j = 0; j < p; ++j) {
            most = std::max(most, counts[j]);
        }
        return most;
    }
};

} // namespace korvel::frame

#endif
