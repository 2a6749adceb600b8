/**
 * @file
 * What the cells of a file mean: numbers and dates in the ways in which they are written.
 */
#ifndef KORVEL_EXAMPLES_CELLS_H
#define KORVEL_EXAMPLES_CELLS_H

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace report
{

/** What the library takes for a missing number. */
inline constexpr double missingNumber = -1.79769313486231e308;

struct parsed_number {
    double value = missingNumber;
    int decimals = 0; ///< Digits after the point.
};

/** Reads a number with a decimal point and without groups; nothing for any other text, and beyond the numbers
 * that the library can hold. */
std::optional<parsed_number> readNumber(std::string_view cell);

/** A way of writing numbers. */
struct number_style {
    char decimal;     ///< The mark before the decimals.
    char group;       ///< Between groups of three digits; 0 when there are none. A blank is any blank.
    const char* told; ///< In words.
};

/** All ways of writing numbers; the likeliest first in a file whose cells this character separates. */
std::span<const number_style> numberStyles(char separator);

/** Reads a number that is written in a style. */
std::optional<parsed_number> readNumber(std::string_view cell, const number_style& style);

/** A way of writing dates. */
struct date_style {
    std::string_view order; ///< The letters y, m and d, in the order of the parts.
    char mark;              ///< Between the parts.
    const char* told;       ///< In words.
};

/** All ways of writing dates. */
std::span<const date_style> dateStyles();

/** A moment, in days from 1970 on. */
struct parsed_date {
    double days = missingNumber;
    bool hasTime = false;
};

/** Reads a date, perhaps with a time of day behind it. A zone behind the time must be Z, and is ignored. */
std::optional<parsed_date> readDate(std::string_view cell, const date_style& style);

/** The date as year, month and day, with the time of day if it is asked for. */
std::string shownDate(double days, bool withTime);

} // namespace report

#endif
