/**
 * @file
 * Sums at the speed of their additions. The additions run one by one, in order, each waiting for the one
 * before. The terms are computed meanwhile, two neighbouring elements at a time and without a branch, so that
 * elements left out at random cost nothing.
 *
 * An element that is left out adds +0.0, since all its factors are replaced by +0.0. That changes no bit,
 * because a sum that starts at +0.0 never becomes -0.0.
 */
#ifndef KORVEL_STATISTICS_PAIRS_H
#define KORVEL_STATISTICS_PAIRS_H

#include "containers/missing.h"
#include "platform/lanes.h"
#include "statistics/stand_ins.h"

#include <cstdint>
#include <type_traits>

namespace korvel
{

/** Two neighbouring elements, or for each of two elements all bits set or none. */
using pair = lanes::doubles<2>;

/** For each of two elements all bits or none, of a comparison. */
inline pair pairOf(lanes::mask<2> chosen)
{
    return reinterpret_cast<pair>(chosen);
}

/** The same for `lanes`. */
inline lanes::mask<2> maskOf(pair chosen)
{
    return reinterpret_cast<lanes::mask<2>>(chosen);
}

/** Elements `i` and `i + 1`. */
inline pair pairAt(const double* cells, std::int64_t i)
{
    return lanes::load<2>(cells + i);
}
inline pair pairAt(const int* cells, std::int64_t i)
{
    return lanes::load<2>(cells + i);
}
template <class Checked>
requires std::is_class_v<Checked> pair pairAt(const Checked& cells, std::int64_t i)
{
    return pair{static_cast<double>(cells[i]), static_cast<double>(cells[i + 1])};
}
inline pair pairAt(unit_weights, std::int64_t)
{
    return lanes::everywhere<2>(1.0);
}

/** For flags: whether the elements are to be kept. */
inline pair pairAt(const short int* flags, std::int64_t i)
{
    return pairOf(lanes::areClear<2>(flags + i));
}
inline pair pairAt(no_flags, std::int64_t)
{
    return pairOf(lanes::everyLane<2>(true));
}

/** Element `i` in both places, for the last one of an odd number. */
inline pair twice(const double* cells, std::int64_t i)
{
    return lanes::everywhere<2>(cells[i]);
}
inline pair twice(const int* cells, std::int64_t i)
{
    return lanes::everywhere<2>(cells[i]);
}
template <class Checked>
requires std::is_class_v<Checked> pair twice(const Checked& cells, std::int64_t i)
{
    return lanes::everywhere<2>(cells[i]);
}
inline pair twice(unit_weights weights, std::int64_t i)
{
    return pairAt(weights, i);
}
inline pair twice(const short int* flags, std::int64_t i)
{
    return pairOf(lanes::everyLane<2>(flags[i] == 0));
}
inline pair twice(no_flags flags, std::int64_t i)
{
    return pairAt(flags, i);
}

/**
 * Prefetches the cache line that lies one page of memory behind cell `i`. The processor's own prefetching
 * stops at the end of a page, so a sum over a long vector would otherwise wait at the start of each page.
 */
template <class T>
void fetchAhead(const T* cells, std::int64_t i)
{
    constexpr std::uintptr_t page = 4096;
    lanes::prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(cells + i) + page));
}
template <class Other>
requires std::is_class_v<Other>
void fetchAhead(const Other&, std::int64_t) {}

/**
 * Calls `step(i)` for the pairs of positions from `first` on, in ascending order.
 * @param cells readers of the vectors that `step` reads
 * @return the position that is left over before `last`, or `last`
 */
template <class Step, class... Cells>
std::int64_t forEachPair(std::int64_t first, std::int64_t last, Step step, const Cells&... cells)
{
    constexpr std::int64_t lineOfNumbers = 8;
    std::int64_t i = first;
    for (; i + lineOfNumbers <= last; i += lineOfNumbers) {
        (fetchAhead(cells, i), ...);
        for (std::int64_t k = 0; k < lineOfNumbers; k += 2) {
            step(i + k);
        }
    }
    for (; i + 1 < last; i += 2) {
        step(i);
    }
    return i;
}

/** Whether each element is present, that is, differs from the sentinel. */
inline pair present(pair x)
{
    return pairOf(x != MISSING_DBL);
}

/** The elements that are kept; +0.0 for the others. */
inline pair only(pair kept, pair x)
{
    return lanes::only(maskOf(kept), x);
}

inline pair absolute(pair x)
{
    return lanes::absolute(x);
}

/** Whether one of the two is chosen. */
inline bool any(pair chosen)
{
    return lanes::any(maskOf(chosen));
}

/**
 * The sum of a term over the positions `first` to `last - 1`, from 0, in ascending order.
 *
 * @param term  makes two terms from a pair of each of `cells`
 * @param cells readers of the vectors that the term is made from
 */
template <class Term, class... Cells>
double sumOf(std::int64_t first, std::int64_t last, Term term, const Cells&... cells)
{
    double sum = 0.0;
    const auto addPair = [&](std::int64_t i) {
        const pair terms = term(pairAt(cells, i)...);
        sum += terms[0];
        sum += terms[1];
    };
    const std::int64_t i = forEachPair(first, last, addPair, cells...);
    if (i < last) {
        sum += term(twice(cells, i)...)[0];
    }
    return sum;
}

} // namespace korvel

#endif
