/**
 * @file
 * Converts numbers to integers as the processor does, and conditions to flags.
 */
#ifndef KORVEL_CONTAINERS_CONVERSION_H
#define KORVEL_CONTAINERS_CONVERSION_H

#include <limits>

namespace korvel
{

/**
 * A number without its fraction. A number that no `int` can hold, an infinity or a NaN gives -2147483648, as
 * the processor's own conversion does.
 */
[[nodiscard]] constexpr int truncateToInt(double x) noexcept
{
    constexpr double below = -2147483649.0;
    constexpr double above = 2147483648.0;
    return x > below && x < above ? static_cast<int>(x) : std::numeric_limits<int>::min();
}

/** A condition as the flag that callers know: -1 for true, 0 for false. */
[[nodiscard]] constexpr short int flagOf(bool isTrue) noexcept
{
    return isTrue ? -1 : 0;
}

} // namespace korvel

#endif
