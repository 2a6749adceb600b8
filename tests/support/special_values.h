#ifndef KORVEL_TESTS_SUPPORT_SPECIAL_VALUES_H
#define KORVEL_TESTS_SUPPORT_SPECIAL_VALUES_H

#include <limits>

namespace korvel::test
{

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinite = std::numeric_limits<double>::infinity();
inline constexpr double largest = std::numeric_limits<double>::max();

/** The most negative double: missing to a test of order, present to a test of equality. */
inline constexpr double belowSentinel = -largest;

} // namespace korvel::test

#endif
