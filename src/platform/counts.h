/**
 * @file
 * Counts of what does not overflow.
 */
#ifndef KORVEL_PLATFORM_COUNTS_H
#define KORVEL_PLATFORM_COUNTS_H

#include <algorithm>
#include <cstdint>
#include <limits>

namespace korvel
{

/** `a * b`, where a count below 0 stands for none. More than an `int` can tell is its largest value, which is
 * a count that no table has room for. */
[[nodiscard]] constexpr int productOfCounts(int a, int b) noexcept
{
    const std::int64_t product = std::int64_t{std::max(a, 0)} * std::max(b, 0);
    return static_cast<int>(std::min<std::int64_t>(product, std::numeric_limits<int>::max()));
}

} // namespace korvel

#endif
