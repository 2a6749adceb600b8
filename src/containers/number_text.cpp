#include "containers/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace korvel
{

namespace
{

/** The texts between signs, separator and exponent mark. */
struct number_parts {
    std::u16string_view whole;
    std::u16string_view fraction;
    std::optional<std::u16string_view> exponent;
};

constexpr bool isSign(char16_t unit)
{
    return unit == u'+' || unit == u'-';
}

constexpr bool isDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

constexpr int digitValue(char16_t unit)
{
    return unit - u'0';
}

/** Splits a number into its parts; nothing when a character does not belong there. */
std::optional<number_parts> split(std::u16string_view number, std::u16string_view decimalSeparator)
{
    constexpr std::size_t none = std::u16string_view::npos;
    std::size_t point = none;
    std::size_t mark = none;
    int signs = 0;
    for (std::size_t k = 0; k < number.size(); ++k) {
        const char16_t unit = number[k];
        if (isSign(unit) && (k == 0 || mark != none)) {
            if (++signs > 1) {
                return std::nullopt;
            }
        } else if (point == none && decimalSeparator.starts_with(unit)) {
            point = k;
        } else if (mark == none && (unit == u'e' || unit == u'E')) {
            mark = k;
            --signs;
        } else if (!isDigit(unit)) {
            return std::nullopt;
        }
    }

    number_parts parts;
    const std::u16string_view mantissa = number.substr(0, mark);
    parts.whole = mantissa.substr(0, point);
    if (point < mantissa.size()) {
        parts.fraction = mantissa.substr(point + 1);
    }
    if (mark != none) {
        parts.exponent = number.substr(mark + 1);
    }
    return parts;
}

/** Removes a leading sign and tells whether it was a minus. */
bool takeMinus(std::u16string_view& number)
{
    const bool negative = number.starts_with(u'-');
    if (negative || number.starts_with(u'+')) {
        number.remove_prefix(1);
    }
    return negative;
}

std::int32_t exponentOf(std::u16string_view digits)
{
    const bool negative = takeMinus(digits);
    std::uint32_t folded = 0;
    for (auto unit = digits.begin(); unit != digits.end() && isDigit(*unit); ++unit) {
        folded = folded * 10u + static_cast<std::uint32_t>(digitValue(*unit));
    }
    return static_cast<std::int32_t>(negative ? 0u - folded : folded);
}

} // namespace

std::optional<double> parseNumber(std::u16string_view number, std::u16string_view decimalSeparator)
{
    std::optional<number_parts> parts = split(number, decimalSeparator);
    if (!parts) {
        return std::nullopt;
    }
    const double sign = takeMinus(parts->whole) ? -1.0 : 1.0;
    double v = 0.0;
    for (const char16_t unit : parts->whole) {
        v = v * 10.0 + digitValue(unit);
    }
    double f = 0.0;
    std::for_each(parts->fraction.rbegin(), parts->fraction.rend(),
                  [&](char16_t unit) { f = digitValue(unit) * 0.1 + f * 0.1; });
    const double value = (f + v) * sign;
    return parts->exponent ? value * std::pow(10.0, exponentOf(*parts->exponent)) : value;
}

text renderWhole(double value)
{
    // The longest one has a sign and 309 digits.
    std::array<char, 320> characters{};
    char* const first = characters.data();
    const auto format = value == MISSING_DBL ? std::chars_format::general : std::chars_format::fixed;
    const auto end = std::to_chars(first, first + characters.size(), value, format, 0).ptr;
    return text(first, end);
}

} // namespace korvel
