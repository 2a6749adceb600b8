/**
 * @file
 * Plain twins of the extremes, with nothing done for speed. Null flags mean none.
 */
#ifndef KORVEL_TESTS_REFERENCE_VECTOR_EXTREMES_H
#define KORVEL_TESTS_REFERENCE_VECTOR_EXTREMES_H

#include "reference/vector_sums.h"

namespace korvel::reference
{

struct extremes {
    double smallest;
    double largest;
};

/** Compares the elements from `first` on, in order, with the smallest and the largest so far. */
template <class Cells, class Kept>
extremes extremesOf(const Cells& x, int first, int n, Kept isKept)
{
    bool any = false;
    extremes found{MISSING_DBL, MISSING_DBL};
    for (int i = first; i < n; ++i) {
        if (!isKept(i)) {
            continue;
        }
        const double value = x[i];
        if (!any) {
            found = {value, value};
            any = true;
        }
        if (value < found.smallest) {
            found.smallest = value;
        }
        if (value > found.largest) {
            found.largest = value;
        }
    }
    return found;
}

template <class Cells>
extremes keptExtremes(const Cells& x, int n, const short int* flags)
{
    return extremesOf(
        x, 0, n, [&](int i) { return !isFlagged(flags, i) && static_cast<double>(x[i]) != MISSING_DBL; });
}

/** For at least one element. */
template <class Cells>
extremes allExtremes(const Cells& x, int n, bool passOverLeadingMissing)
{
    int first = 0;
    while (passOverLeadingMissing && first < n && static_cast<double>(x[first]) == MISSING_DBL) {
        ++first;
    }
    if (first == n) {
        return {MISSING_DBL, static_cast<double>(x[0])};
    }
    return extremesOf(x, first, n, [](int) { return true; });
}

/** The smallest kept element of `chunks[j][i]`. The very first element always takes part. */
template <class Chunks>
double smallestOfChunks(const Chunks& chunks, int nChunks, int nPerChunk, const short int* flags)
{
    bool any = false;
    double least = MISSING_DBL;
    for (int j = 0; j < nChunks; ++j) {
        for (int i = 0; i < nPerChunk; ++i) {
            const double value = chunks[static_cast<std::size_t>(j)][i];
            if (isFlagged(flags, j * nPerChunk + i) || value == MISSING_DBL) {
                continue;
            }
            if (!any) {
                any = true;
                least = chunks[0][0];
            }
            if (value < least) {
                least = value;
            }
        }
    }
    return least;
}

struct extreme_position {
    double value;
    int pos;
};

/** The element that `replaces` all before it, starting with the first, and its position from 1. */
template <class Cells, class Replaces>
extreme_position withPosition(const Cells& x, int n, Replaces replaces)
{
    double value = x[0];
    int pos = 1;
    for (int i = 1; i < n; ++i) {
        if (replaces(x[i], value)) {
            value = x[i];
            pos = i + 1;
        }
    }
    return {value, pos};
}

} // namespace korvel::reference

#endif
