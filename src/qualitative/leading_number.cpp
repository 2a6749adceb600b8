#include "qualitative/leading_number.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace korvel
{

namespace
{

constexpr bool isBlank(char16_t unit)
{
    return unit == u' ' || (u'\t' <= unit && unit <= u'\r');
}

constexpr bool isDigit(char16_t unit)
{
    return u'0' <= unit && unit <= u'9';
}

/** Letters of ASCII become small; all other units stay. */
constexpr char16_t lowered(char16_t unit)
{
    return u'A' <= unit && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

constexpr bool isHexDigit(char16_t unit)
{
    return isDigit(unit) || (u'a' <= lowered(unit) && lowered(unit) <= u'f');
}

/** The digits of a number as `std::from_chars` takes them, and about how large the number is. */
struct numeral {
    std::string characters;
    std::int64_t place =
        0; ///< Digits before the point, from the first one that is not 0 on; negative behind it.
    std::int64_t exponent = 0;
    bool hasDigits = false;
    bool isZero = true;
};

constexpr std::int64_t largestExponent = 1'000'000'000'000;

/** Reads digits with one full stop at most. */
template <class IsDigit>
numeral readDigits(std::u16string_view& rest, IsDigit isOne)
{
    numeral read;
    bool pointSeen = false;
    for (; !rest.empty(); rest.remove_prefix(1)) {
        const char16_t unit = rest.front();
        if (unit == u'.' && !pointSeen) {
            pointSeen = true;
        } else if (isOne(unit)) {
            read.hasDigits = true;
            read.isZero = read.isZero && unit == u'0';
            read.place += pointSeen ? (read.isZero ? -1 : 0) : (read.isZero ? 0 : 1);
        } else {
            break;
        }
        read.characters += static_cast<char>(unit);
    }
    return read;
}

/** Reads an exponent behind a number, if a whole one is there. */
void readExponent(std::u16string_view& rest, char16_t mark, numeral& number)
{
    if (rest.empty() || lowered(rest.front()) != mark) {
        return;
    }
    std::size_t k = 1;
    const bool negative = k < rest.size() && rest[k] == u'-';
    if (k < rest.size() && (rest[k] == u'-' || rest[k] == u'+')) {
        ++k;
    }
    if (k == rest.size() || !isDigit(rest[k])) {
        return;
    }
    std::int64_t exponent = 0;
    std::string digits;
    for (; k < rest.size() && isDigit(rest[k]); ++k) {
        exponent = std::min(exponent * 10 + (rest[k] - u'0'), largestExponent);
        digits += static_cast<char>(rest[k]);
    }
    number.exponent = negative ? -exponent : exponent;
    number.characters += static_cast<char>(mark);
    number.characters += (negative ? "-" : "") + digits;
}

double valueOf(const numeral& number, std::chars_format format)
{
    double value = 0.0;
    const char* const end = number.characters.data() + number.characters.size();
    const auto result = std::from_chars(number.characters.data(), end, value, format);
    if (result.ec == std::errc::result_out_of_range && !number.isZero) {
        // Nothing was stored: the number is far too large or far too small.
        const std::int64_t digitBits = format == std::chars_format::hex ? 4 : 1;
        const bool large = digitBits * number.place + number.exponent > 0;
        return large ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return value;
}

bool startsWithWord(std::u16string_view rest, std::u16string_view word)
{
    return rest.size() >= word.size() &&
           std::equal(word.begin(), word.end(), rest.begin(),
                      [](char16_t letter, char16_t unit) { return letter == lowered(unit); });
}

std::optional<double> unsignedNumber(std::u16string_view rest)
{
    if (startsWithWord(rest, u"inf")) {
        return std::numeric_limits<double>::infinity();
    }
    if (startsWithWord(rest, u"nan")) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (startsWithWord(rest, u"0x")) {
        std::u16string_view digits = rest.substr(2);
        numeral number = readDigits(digits, isHexDigit);
        if (number.hasDigits) {
            readExponent(digits, u'p', number);
            return valueOf(number, std::chars_format::hex);
        }
    }
    numeral number = readDigits(rest, isDigit);
    if (!number.hasDigits) {
        return std::nullopt;
    }
    readExponent(rest, u'e', number);
    return valueOf(number, std::chars_format::general);
}

} // namespace

double leadingNumber(const text& source)
{
    std::u16string_view rest(source);
    while (!rest.empty() && isBlank(rest.front())) {
        rest.remove_prefix(1);
    }
    const bool negative = !rest.empty() && rest.front() == u'-';
    if (negative || (!rest.empty() && rest.front() == u'+')) {
        rest.remove_prefix(1);
    }
    const std::optional<double> value = unsignedNumber(rest);
    if (!value) {
        return 0.0;
    }
    return negative ? -*value : *value;
}

std::optional<double> categoryValue(const text& name)
{
    if (name.empty()) {
        return MISSING_DBL;
    }
    text numeralText(name);
    if (const std::size_t comma = numeralText.find(u','); comma != text::npos) {
        numeralText[comma] = u'.';
    }
    const double value = leadingNumber(numeralText);
    if (value == 0.0 && leadingNumber(numeralText + u'1') == 0.0) {
        return std::nullopt;
    }
    return value;
}

} // namespace korvel
