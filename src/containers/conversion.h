/**
 * @file
 * Numbers to integers as the machine does it.
 */
#ifndef KORVEL_CONTAINERS_CONVERSION_H
#define KORVEL_CONTAINERS_CONVERSION_H

#include <limits>

namespace korvel
{

/**
 * A number without its fraction. What no `int` can hold, infinities and NaN too, gives -2147483648, as the
 * processor's own conversion does.
 */
[[nodiscard]] constexpr int truncateToInt(double x) noexcept
{
    constexpr double below = -2147483649.0;
    constexpr double above = 2147483648.0;
    return x > below && x < above ? static_cast<int>(x) : std::numeric_limits<int>::min();
}

} // namespace korvel

#endif
