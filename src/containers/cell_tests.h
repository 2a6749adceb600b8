/**
 * @file
 * Tests of a cell for `allOf` and `countOf`. Each takes a number, or lanes of doubles. Tests join conditions
 * by `lanes::either` and `lanes::both`: GCC 12 takes `|` and `&` of two comparisons apart, lane by lane.
 */
#ifndef KORVEL_CONTAINERS_CELL_TESTS_H
#define KORVEL_CONTAINERS_CELL_TESTS_H

#include "containers/missing.h"
#include "platform/lanes.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace korvel
{

/** A cell that is missing: the number that equals the sentinel of its type, or the empty text. */
inline constexpr auto isMissingCell = [](const auto& x) {
    using cell = std::remove_cvref_t<decltype(x)>;
    if constexpr (std::is_same_v<cell, text>) {
        return x.empty();
    } else if constexpr (std::is_same_v<cell, int>) {
        return x == MISSING_LNG;
    } else {
        return x == MISSING_DBL;
    }
};

/** The test of order, which also finds the doubles below the sentinel. */
inline constexpr auto isAtOrBelowSentinel = [](auto x) { return x <= MISSING_DBL; };

/** Passes missing cells, and those that pass `isGood`. */
template <class Test>
[[nodiscard]] auto orMissing(Test isGood)
{
    return [isGood](auto x) { return lanes::either(x == MISSING_DBL, isGood(x)); };
}

inline constexpr auto isZeroOrMore = [](auto x) { return x >= 0.0; };
inline constexpr auto isAboveZero = [](auto x) { return x > 0.0; };
inline constexpr auto isZeroOrOne = [](auto x) { return lanes::either(x == 0.0, x == 1.0); };

/** From `lo` to `hi`, both included. */
[[nodiscard]] inline auto isWithin(double lo, double hi)
{
    return [lo, hi](auto x) { return lanes::both(x >= lo, x <= hi); };
}

/** Between `lo` and `hi`, neither included. */
[[nodiscard]] inline auto isBetween(double lo, double hi)
{
    return [lo, hi](auto x) { return lanes::both(x > lo, x < hi); };
}

/** An integer within 1e-12. An infinity or a NaN is not an integer. */
inline constexpr auto isWhole = [](auto x) {
    constexpr double tolerance = 1e-12;
    // From this magnitude on a double has no fraction. Below it, this sum rounds to an integer.
    constexpr double allWhole = 0x1p52;
    const auto size = [x] {
        if constexpr (std::is_same_v<decltype(x), double>) {
            return std::fabs(x);
        } else {
            return lanes::absolute(x);
        }
    }();
    const auto offset = size - ((size + allWhole) - allWhole);
    return lanes::either(lanes::both(size >= allWhole, size <= std::numeric_limits<double>::max()),
                         lanes::both(offset <= tolerance, offset >= -tolerance));
};

/**
 * Calls `use` with the test of an interval: closed unless `bOpen` is -1, and passing a missing cell when
 * `bSkipMissing` is -1.
 */
template <class Use>
[[nodiscard]] auto withInterval(double lo, double hi, short int bOpen, short int bSkipMissing, Use use)
{
    const auto withMissing = [&](auto test) { return bSkipMissing == -1 ? use(orMissing(test)) : use(test); };
    return bOpen == -1 ? withMissing(isBetween(lo, hi)) : withMissing(isWithin(lo, hi));
}

} // namespace korvel

#endif
