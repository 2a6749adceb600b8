/**
 * @file
 * Numbers from texts and texts from numbers, in a way that depends neither on the locale nor on the C
 * library.
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
 * A text is made of digits, at most one decimal separator, at most one `e` or `E`, and signs. A sign may come
 * first, and anywhere after the exponent mark; a count that each sign raises and the mark lowers must never
 * exceed 1. No part needs to be there, so that "", "+", "." and "e5" are all 0.
 *
 * The digits before the separator are folded from the left, `v = v * 10.0 + digit`, those after it from the
 * right, `f = digit * 0.1 + f * 0.1`, and the value is `(f + v) * sign`; so it may differ from the nearest
 * double in its last places. An exponent then multiplies it by `pow(10.0, e)`. Of the exponent one leading
 * sign counts and the digits up to the first character that is none; it is folded in 32-bit arithmetic, which
 * wraps.
 *
 * @param number           the text
 * @param decimalSeparator its first character is the separator; empty: there is none
 * @return the value, or nothing when the text is not a number
 */
[[nodiscard]] std::optional<double> parseNumber(std::u16string_view number,
                                                std::u16string_view decimalSeparator);

/**
 * The number rounded to an integer, half to even, in plain decimal digits ("-0" for what rounds to zero from
 * below, "nan", "inf" with their signs). `MISSING_DBL` is "-2e+308": it is written in the shorter of the
 * plain and the exponential form with one significant digit.
 */
[[nodiscard]] text renderWhole(double value);

} // namespace korvel

#endif
