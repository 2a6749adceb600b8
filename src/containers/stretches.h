/**
 * @file
 * Tests the cells of vectors. A loop that may stop at any cell can only test one cell at a time. These loops
 * stop only between stretches of cells, and so test several cells of a stretch at once.
 *
 * A test is a generic lambda that takes numbers or lanes of doubles, and joins conditions by `lanes::either`
 * and `lanes::both`:
 *
 *     allOf(n, [](auto x) { return lanes::either(x == MISSING_DBL, x >= 0.0); }, cells)
 */
#ifndef KORVEL_CONTAINERS_STRETCHES_H
#define KORVEL_CONTAINERS_STRETCHES_H

#include "platform/lanes.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstdint>
#include <type_traits>

namespace korvel
{

/**
 * Calls `look(from, to)` for stretches of the positions `first` to `last - 1`, in ascending order, until it
 * returns false.
 * @return whether it never returned false
 */
template <class Look>
bool whileStretches(std::int64_t first, std::int64_t last, Look look)
{
    constexpr std::int64_t length = 256;
    for (std::int64_t from = first; from < last; from += length) {
        if (!look(from, std::min(from + length, last))) {
            return false;
        }
    }
    return true;
}

namespace detail
{

/** Counts the doubles of a stretch that pass, two at a time. */
template <class Test, class... Cells>
[[nodiscard]] std::int64_t countInLanes(std::int64_t first, std::int64_t last, Test isGood, Cells... x)
{
    lanes::mask<2> count{};
    std::int64_t i = first;
    for (; i + 2 <= last; i += 2) {
        count -= isGood(lanes::load<2>(x + i)...);
    }
    return count[0] + count[1] + (i < last && isGood(x[i]...) ? 1 : 0);
}

/** Whether all integers of a stretch pass, without a branch for each. */
template <class Test, class... Cells>
[[nodiscard]] bool allTogether(std::int64_t first, std::int64_t last, Test isGood, Cells... x)
{
    int bad = 0;
    for (std::int64_t i = first; i < last; ++i) {
        bad |= isGood(x[i]...) ? 0 : 1;
    }
    return bad == 0;
}

template <class Cells, class T>
concept pointer_to =
    std::is_pointer_v<Cells> && std::same_as<std::remove_const_t<std::remove_pointer_t<Cells>>, T>;

} // namespace detail

/**
 * Whether `isGood(x[i]...)` holds at each of the positions `first` to `last - 1`.
 * @param x readers of the vectors
 */
template <class Test, class... Cells>
[[nodiscard]] bool allBetween(std::int64_t first, std::int64_t last, Test isGood, const Cells&... x)
{
    using detail::pointer_to;
    if constexpr ((pointer_to<Cells, double> && ...)) {
        return whileStretches(first, last, [&](std::int64_t from, std::int64_t to) {
            return detail::countInLanes(from, to, isGood, x...) == to - from;
        });
    } else if constexpr (((pointer_to<Cells, int> || pointer_to<Cells, short int>)&&...)) {
        return whileStretches(first, last, [&](std::int64_t from, std::int64_t to) {
            return detail::allTogether(from, to, isGood, x...);
        });
    } else {
        for (std::int64_t i = first; i < last; ++i) {
            if (!isGood(x[i]...)) {
                return false;
            }
        }
        return true;
    }
}

/** The same for the positions 0 to `n - 1`. */
template <class Test, class... Cells>
[[nodiscard]] bool allOf(std::int64_t n, Test isGood, const Cells&... x)
{
    return allBetween(0, n, isGood, x...);
}

/** How often `isGood(x[i]...)` holds at the positions 0 to `n - 1`. */
template <class Test, class... Cells>
[[nodiscard]] std::int64_t countOf(std::int64_t n, Test isGood, const Cells&... x)
{
    if constexpr ((detail::pointer_to<Cells, double> && ...)) {
        return detail::countInLanes(0, n, isGood, x...);
    } else {
        std::int64_t found = 0;
        for (std::int64_t i = 0; i < n; ++i) {
            found += isGood(x[i]...) ? 1 : 0;
        }
        return found;
    }
}

/**
 * Calls `visit(i)` for each of the positions 0 to `n - 1` at which `isFound(x[i])` holds, in ascending order.
 * Numbers are tested 64 at a time without a branch, because the processor could rarely predict it.
 */
template <class Test, class Cells, class Visit>
void forEachFound(int n, Test isFound, const Cells& x, Visit visit)
{
    int i = 0;
    if constexpr (detail::pointer_to<Cells, double> || detail::pointer_to<Cells, int>) {
        constexpr int bits = 64;
        for (; i + bits <= n; i += bits) {
            std::uint64_t found = 0;
            for (int k = 0; k < bits; k += 2) {
                found |= std::uint64_t{lanes::chosenBits(isFound(lanes::load<2>(x + i + k)))} << k;
            }
            for (; found != 0; found &= found - 1) {
                visit(i + std::countr_zero(found));
            }
        }
    }
    for (; i < n; ++i) {
        if (isFound(x[i])) {
            visit(i);
        }
    }
}

} // namespace korvel

#endif
