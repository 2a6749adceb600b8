#include "cells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace report
{

namespace
{

constexpr double secondsOfDay = 86400;

int decimalsOf(std::string_view digits)
{
    const std::size_t exponent = std::min(digits.find_first_of("eE"), digits.size());
    const std::size_t point = std::min(digits.find('.'), exponent);
    int decimals = static_cast<int>(exponent - std::min(point + 1, exponent));
    if (exponent < digits.size()) {
        digits.remove_prefix(exponent + 1);
        if (digits.starts_with('+')) {
            digits.remove_prefix(1);
        }
        int power = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), power);
        decimals -= power;
    }
    return std::max(decimals, 0);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// With every blank that is used between groups as a plain one, and every minus and apostrophe in ASCII.
std::string inAscii(std::string_view cell)
{
    struct replacement {
        std::string_view from;
        char to;
    };
    constexpr std::array<replacement, 5> replacements{
        {{"\u00A0", ' '}, {"\u202F", ' '}, {"\u2009", ' '}, {"\u2019", '\''}, {"\u2212", '-'}}};
    std::string ascii;
    while (!cell.empty()) {
        const auto found = std::find_if(replacements.begin(), replacements.end(),
                                        [&](const replacement& r) { return cell.starts_with(r.from); });
        const bool isReplaced = found != replacements.end();
        ascii += isReplaced ? found->to : cell[0];
        cell.remove_prefix(isReplaced ? found->from.size() : 1);
    }
    return ascii;
}

// Takes the marks between groups out of the digits before the decimals; false when the groups are not of
// three digits behind a first one of one to three.
bool takeGroupsOut(std::string& number, const number_style& style)
{
    const std::size_t begin = number.starts_with('-') || number.starts_with('+') ? 1 : 0;
    const std::size_t end = std::min(number.find(style.decimal), number.size());
    const std::size_t first = number.find(style.group, begin);
    if (first == std::string::npos) {
        return true;
    }
    const std::size_t leading = first - begin;
    if (leading == 0 || leading > 3 || number[begin] == '0') {
        return false;
    }
    for (std::size_t k = begin; k < end; ++k) {
        const bool atMark = k >= first && (k - first) % 4 == 0;
        if (atMark ? number[k] != style.group : !isDigit(number[k])) {
            return false;
        }
    }
    if ((end - first) % 4 != 0) {
        return false;
    }
    number.erase(std::remove(number.begin(), number.end(), style.group), number.end());
    return true;
}

// Takes a whole number of some digits off the text; -1 when it does not begin with one.
int takeDigits(std::string_view& text, std::size_t least, std::size_t most)
{
    std::size_t count = 0;
    int number = 0;
    while (count < most && count < text.size() && isDigit(text[count])) {
        number = 10 * number + (text[count++] - '0');
    }
    text.remove_prefix(count);
    return count >= least ? number : -1;
}

bool take(std::string_view& text, char expected)
{
    const bool found = text.starts_with(expected);
    text.remove_prefix(found ? 1 : 0);
    return found;
}

// A time of day, hh:mm or hh:mm:ss with decimals, in seconds.
std::optional<double> readTime(std::string_view text)
{
    const int hour = takeDigits(text, 1, 2);
    if (hour < 0 || hour > 24 || !take(text, ':')) {
        return std::nullopt;
    }
    const int minute = takeDigits(text, 2, 2);
    if (minute < 0 || minute > 59) {
        return std::nullopt;
    }
    double seconds = 0.0;
    if (take(text, ':')) {
        const std::size_t end = std::min(text.find_first_not_of("0123456789."), text.size());
        const auto read = readNumber(text.substr(0, end));
        if (!read || read->value >= 60.0) {
            return std::nullopt;
        }
        seconds = read->value;
        text.remove_prefix(end);
    }
    take(text, 'Z');
    return text.empty() ? std::optional(3600.0 * hour + 60.0 * minute + seconds) : std::nullopt;
}

} // namespace

std::optional<parsed_number> readNumber(std::string_view cell)
{
    if (cell.starts_with('+') && !cell.starts_with("+-")) {
        cell.remove_prefix(1);
    }
    parsed_number number;
    const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number.value);
    if (error != std::errc{} || end != cell.data() + cell.size() || !std::isfinite(number.value) ||
        number.value <= missingNumber) {
        return std::nullopt;
    }
    number.decimals = decimalsOf(cell);
    return number;
}

std::span<const number_style> numberStyles(char separator)
{
    static constexpr number_style plain{'.', 0, "with a decimal point"};
    static constexpr number_style comma{',', 0, "with a decimal comma"};
    static constexpr number_style byComma{'.', ',', "with commas between thousands"};
    static constexpr number_style byPoint{',', '.', "with points between thousands and a decimal comma"};
    static constexpr number_style byBlank{'.', ' ', "with blanks between thousands"};
    static constexpr number_style byBlankComma{',', ' ', "with blanks between thousands and a decimal comma"};
    static constexpr number_style byMark{'.', '\'', "with apostrophes between thousands"};
    static constexpr std::array whereCommasSeparate{plain,   byComma,      comma, byPoint,
                                                    byBlank, byBlankComma, byMark};
    static constexpr std::array elsewhere{plain, comma, byPoint, byComma, byBlank, byBlankComma, byMark};
    return separator == ';' ? std::span<const number_style>(elsewhere)
                            : std::span<const number_style>(whereCommasSeparate);
}

std::optional<parsed_number> readNumber(std::string_view cell, const number_style& style)
{
    std::string number = inAscii(cell);
    if (style.group != 0 && !takeGroupsOut(number, style)) {
        return std::nullopt;
    }
    if (style.decimal != '.') {
        if (number.find('.') != std::string::npos) {
            return std::nullopt;
        }
        std::replace(number.begin(), number.end(), style.decimal, '.');
    }
    return readNumber(number);
}

std::span<const date_style> dateStyles()
{
    static constexpr std::array styles{
        date_style{"ymd", '-', "year-month-day"}, date_style{"ymd", '/', "year/month/day"},
        date_style{"dmy", '.', "day.month.year"}, date_style{"dmy", '/', "day/month/year"},
        date_style{"mdy", '/', "month/day/year"}, date_style{"dmy", '-', "day-month-year"},
        date_style{"mdy", '-', "month-day-year"}, date_style{"ymd", '.', "year.month.day"},
    };
    return styles;
}

std::optional<parsed_date> readDate(std::string_view cell, const date_style& style)
{
    int year = 0;
    int month = 0;
    int day = 0;
    for (std::size_t k = 0; k < style.order.size(); ++k) {
        if (k > 0 && !take(cell, style.mark)) {
            return std::nullopt;
        }
        const char part = style.order[k];
        int& number = part == 'y' ? year : part == 'm' ? month : day;
        number = part == 'y' ? takeDigits(cell, 4, 4) : takeDigits(cell, 1, 2);
        if (number < 0) {
            return std::nullopt;
        }
    }
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) {
        return std::nullopt;
    }
    const auto days = static_cast<double>(std::chrono::sys_days(date).time_since_epoch().count());
    if (cell.empty()) {
        return parsed_date{days};
    }
    if (!take(cell, 'T') && !take(cell, ' ')) {
        return std::nullopt;
    }
    const auto seconds = readTime(cell);
    return seconds ? std::optional(parsed_date{days + *seconds / secondsOfDay, true}) : std::nullopt;
}

std::string shownDate(double days, bool withTime)
{
    const double midnight = std::floor(days + 0.5 / secondsOfDay);
    const auto second = static_cast<int>(std::max((days - midnight) * secondsOfDay + 0.5, 0.0));
    const std::chrono::year_month_day date{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(midnight)))};
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), withTime ? "%04d-%02u-%02u %02d:%02d:%02d" : "%04d-%02u-%02u",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), second / 3600, second / 60 % 60, second % 60);
    return buffer.data();
}

} // namespace report
