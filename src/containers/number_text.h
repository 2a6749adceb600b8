/**
 * @file
 * Converts texts to numbers and numbers to texts, independent of the locale and of the C library.
 */
#ifndef KORVEL_CONTAINERS_NUMBER_TEXT_H
#define KORVEL_CONTAINERS_NUMBER_TEXT_H

#include "containers/missing.h"

#include <optional>
#include <string_view>

namespace korvel
{

/**
 * Reads a whole text as a number.
 *
 * A text consists of digits, at most one decimal separator, at most one `e` or `E`, and signs. A sign may
 * stand first, and anywhere after the exponent mark. A count goes up by 1 at each sign and down by 1 at the
 * mark; it must never exceed 1. Every part may be left out: "", "+", "." and "e5" are all 0.
 *
 * Digits before the separator are folded from the left, `v = v * 10.0 + digit`, digits after it from the
 * right, `f = digit * 0.1 + f * 0.1`. The value is `(f + v) * sign`, so it may differ from the nearest double
 * in its last places. An exponent then multiplies it by `pow(10.0, e)`. The exponent consists of one leading
 * sign and the digits up to the first other character; it is folded in 32-bit arithmetic, which wraps.
 *
 * @param number           the text
 * @param decimalSeparator its first character is the separator; empty for none
 * @return the value, or nothing when the text is not a number
 */
[[nodiscard]] std::optional<double> parseNumber(std::u16string_view number,
                                                std::u16string_view decimalSeparator);

/**
 * The number rounded to an integer, half to even, in plain decimal digits. A negative number that rounds to
 * zero is "-0"; a NaN is "nan" and an infinity "inf", with their signs. `MISSING_DBL` is "-2e+308", since it
 * is written with one significant digit in the shorter of plain and exponential form.
 */
[[nodiscard]] text renderWhole(double value);

} // namespace korvel

#endif
