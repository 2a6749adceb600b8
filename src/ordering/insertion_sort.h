/**
 * @file
 * Stable sorting of a few elements in place.
 */
#ifndef KORVEL_ORDERING_INSERTION_SORT_H
#define KORVEL_ORDERING_INSERTION_SORT_H

#include <cstddef>
#include <span>

namespace korvel
{

/** Sorts by insertion: stable, and allocates nothing. `before(a, b)` says that `a` must stand before `b`. */
template <class T, class Before>
void insertionSort(std::span<T> elements, Before before)
{
    for (std::size_t i = 1; i < elements.size(); ++i) {
        const T moving = elements[i];
        std::size_t place = i;
        for (; place > 0 && before(moving, elements[place - 1]); --place) {
            elements[place] = elements[place - 1];
        }
        elements[place] = moving;
    }
}

} // namespace korvel

#endif
