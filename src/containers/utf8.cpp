#include "containers/utf8.h"

#include <cstddef>
#include <cstdint>

namespace korvel
{

namespace
{

constexpr char32_t replacement = 0xFFFD;

constexpr bool isHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/** Removes the first character of `units`, which is not empty. */
char32_t takeCharacter(std::u16string_view& units)
{
    const char16_t first = units.front();
    units.remove_prefix(1);
    if (isHighSurrogate(first) && !units.empty() && isLowSurrogate(units.front())) {
        const auto high = static_cast<char32_t>(first - 0xD800);
        const auto low = static_cast<char32_t>(units.front() - 0xDC00);
        units.remove_prefix(1);
        return 0x10000 + (high << 10) + low;
    }
    return isHighSurrogate(first) || isLowSurrogate(first) ? replacement : char32_t{first};
}

void append(std::string& bytes, char32_t character)
{
    const auto lead = [&](char32_t marker, unsigned shift) {
        bytes.push_back(static_cast<char>(marker | (character >> shift)));
    };
    const auto trail = [&](unsigned shift) {
        bytes.push_back(static_cast<char>(0x80 | ((character >> shift) & 0x3F)));
    };
    if (character < 0x80) {
        lead(0, 0);
    } else if (character < 0x800) {
        lead(0xC0, 6);
        trail(0);
    } else if (character < 0x10000) {
        lead(0xE0, 12);
        trail(6);
        trail(0);
    } else {
        lead(0xF0, 18);
        trail(12);
        trail(6);
        trail(0);
    }
}

} // namespace

std::string toUtf8(std::u16string_view units)
{
    std::string bytes;
    bytes.reserve(units.size());
    while (!units.empty()) {
        append(bytes, takeCharacter(units));
    }
    return bytes;
}

} // namespace korvel
