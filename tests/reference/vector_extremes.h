/**
 * @file
 * Plain loops over the checked access: what the extremes compute, with nothing done for speed. Null flags
 * stand for none.
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
template <class T, class Kept>
extremes extremesOf(const matrix<T>& x, int first, int n, Kept isKept)
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

template <class T>
extremes keptExtremes(const matrix<T>& x, int n, const short int* flags)
{
    return extremesOf(
        x, 0, n, [&](int i) { return !isFlagged(flags, i) && static_cast<double>(x[i]) != MISSING_DBL; });
}

/** For at least one element. */
template <class T>
extremes allExtremes(const matrix<T>& x, int n, bool passOverLeadingMissing)
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

struct extreme_position {
    double value;
    int pos;
};

/** The element that `replaces` those before it, starting from the first, with its position from 1. */
template <class T, class Replaces>
extreme_position withPosition(const matrix<T>& x, int n, Replaces replaces)
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
