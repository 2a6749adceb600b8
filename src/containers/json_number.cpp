#include "containers/json_number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace korvel
{

namespace
{

/** The number 0.d1d2d3... times 10 to the power of `point`. */
struct decimal_digits {
    std::string digits;
    int point = 0;
};

decimal_digits shortestDigits(double magnitude)
{
    std::array<char, 32> characters{};
    char* const first = characters.data();
    const char* const end =
        std::to_chars(first, first + characters.size(), magnitude, std::chars_format::scientific).ptr;
    const std::string_view scientific(first, end);
    const std::size_t mark = scientific.find('e');

    decimal_digits found;
    found.digits = scientific[0];
    if (mark > 1) {
        found.digits += scientific.substr(2, mark - 2);
    }
    int exponent = 0;
    std::from_chars(first + mark + 2, end, exponent);
    found.point = (scientific[mark + 1] == '-' ? -exponent : exponent) + 1;
    return found;
}

} // namespace

std::string jsonNumber(double value)
{
    auto [digits, point] = shortestDigits(std::fabs(value));
    if (point > 21 || point <= -6) {
        if (digits.size() > 1) {
            digits.insert(1, 1, '.');
        }
        digits += 'e' + std::to_string(point - 1);
    } else if (point <= 0) {
        digits.insert(0, "0." + std::string(static_cast<std::size_t>(-point), '0'));
    } else {
        const auto whole = static_cast<std::size_t>(point);
        if (digits.size() <= whole) {
            digits.append(whole - digits.size() + 1, '0');
        }
        digits.insert(whole, 1, '.');
    }
    return std::signbit(value) ? '-' + digits : digits;
}

} // namespace korvel
