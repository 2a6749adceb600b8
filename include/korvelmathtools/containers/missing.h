/**
 * @file
 * Missing cells. A table has no mask: a missing cell is a value of its element type.
 */
#ifndef KORVEL_CONTAINERS_MISSING_H
#define KORVEL_CONTAINERS_MISSING_H

#include "containers/missing_values.h"
#include "platform/automation.h"
#include "platform/export.h"

#include <cmath>
#include <string>

/** Text as this library keeps it: UTF-16 code units, on every system. */
using text = std::basic_string<char16_t>;

/** The missing number. */
inline constexpr double MISSING_DBL = KORVEL_MISSING_DBL;

/** The missing integer. */
inline constexpr int MISSING_LNG = KORVEL_MISSING_LNG;

/**
 * Tells whether a text is missing, that is, empty.
 * @return -1 when it has length 0, otherwise 0.
 */
KORVEL_API short int IsMissingValue(const std::basic_string<char16_t>& value);

/**
 * Tells whether a BSTR is missing.
 * @return -1 when the pointer is null or the BSTR has no bytes, otherwise 0.
 */
KORVEL_API short int IsMissingValue(OLECHAR* const& value);

template <class T>
class KORVEL_TYPE matrix;

/**
 * Combines the two sources of missingness of a vector.
 *
 * @param x          vector of `n` numbers, read through the checked access of `matrix`
 * @param n          number of elements
 * @param iMissing   `n` flags, -1 for an element that is left out; null when none is
 * @param iMissingOut receives `n` flags: -1 when the flag is -1 or `x[i] <= MISSING_DBL`, otherwise 0
 * @return 0
 *
 * A NaN is not missing. With `n` below 1 nothing is read or written.
 */
KORVEL_API int V_GetMissingDbl(matrix<double>* x, int n, short int* iMissing, short int* iMissingOut);

namespace korvel
{

/** The missing number of an element type. */
template <class T>
inline constexpr T missingNumber = MISSING_DBL;
template <>
inline constexpr int missingNumber<int> = MISSING_LNG;

/** The exact test: whether a number equals the missing one of its type, or a text is empty. */
[[nodiscard]] constexpr bool isMissing(double x) noexcept
{
    return x == MISSING_DBL;
}
[[nodiscard]] constexpr bool isMissing(int x) noexcept
{
    return x == MISSING_LNG;
}
[[nodiscard]] inline bool isMissing(const text& x) noexcept
{
    return x.empty();
}

/** The ordered test: the sentinel and the 29 doubles below it are missing, a NaN is not. */
[[nodiscard]] constexpr bool isMissingOrdered(double x) noexcept
{
    return x <= MISSING_DBL;
}

/** The square root; what a rounding error has made negative becomes missing. */
[[nodiscard]] inline double rootOrMissing(double x)
{
    return x < 0.0 ? MISSING_DBL : std::sqrt(x);
}

} // namespace korvel

#endif
