/**
 * @file
 * The number that a text begins with.
 */
#ifndef KORVEL_QUALITATIVE_LEADING_NUMBER_H
#define KORVEL_QUALITATIVE_LEADING_NUMBER_H

#include "containers/missing.h"

#include <optional>

namespace korvel
{

/**
 * Reads as much of a leading number as there is, by the rules of the C standard for `wcstod` in the "C"
 * locale, whatever locale the process has:
 *
 * - first any number of blanks: space, tab, line feed, vertical tab, form feed, carriage return;
 * - then perhaps one sign;
 * - then one of: decimal digits, of which a full stop may stand before, among or behind, and an exponent (`e`
 * or `E`, perhaps a sign, digits); `0x` or `0X` and hexadecimal digits, with a full stop likewise, and an
 * exponent of two (`p` or `P`); `inf` or `infinity`; `nan`. Letters may be of either case.
 *
 * The longest such beginning counts, and what follows is not looked at. The value is the nearest double; past
 * the largest it is infinite, below the smallest it is 0.
 *
 * @return the number; 0 for a text that begins with none
 */
[[nodiscard]] double leadingNumber(const text& source);

/**
 * The value by which a category is sorted among numbers. The first comma of the name counts as a full stop. A
 * name whose leading number is 0 is a number only if it no longer is 0 with the digit 1 behind it, which
 * tells `0.00` from a word. The empty name is a number: the missing one.
 *
 * @return the leading number; nothing when the name is not a number
 */
[[nodiscard]] std::optional<double> categoryValue(const text& name);

} // namespace korvel

#endif
