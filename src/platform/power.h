/**
 * @file
 * Powers with the digits that the system's own function may lose.
 */
#ifndef KORVEL_PLATFORM_POWER_H
#define KORVEL_PLATFORM_POWER_H

#include <cmath>

namespace korvel::platform
{

/**
 * x to the power a, within about a unit in the last place. The Windows runtime multiplies x by itself when
 * `a` is an integer, and loses a few bits more with each step; its extended type has them to spare.
 */
[[nodiscard]] inline double power(double x, double a)
{
#if defined(_WIN32)
    return static_cast<double>(std::pow(static_cast<long double>(x), static_cast<long double>(a)));
#else
    return std::pow(x, a);
#endif
}

} // namespace korvel::platform

#endif
