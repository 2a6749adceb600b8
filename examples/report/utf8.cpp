#include "utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>

namespace report
{

namespace
{

struct decoded {
    char32_t character;
    std::size_t length; // Bytes read; 0 when they are not UTF-8.
};

// The character that `text`, which is not empty, begins with.
decoded decodeFirst(std::string_view text)
{
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC0 || lead >= 0xF8 || text.size() < length) {
        return {0, 0};
    }
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(text[k]);
        if ((next & 0xC0U) != 0x80) {
            return {0, 0};
        }
        character = (character << 6U) | (next & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[length] || character > 0x10FFFF || surrogate) {
        return {0, 0};
    }
    return {character, length};
}

struct range {
    char32_t first;
    char32_t last;
};

template <std::size_t N>
bool isIn(const std::array<range, N>& ranges, char32_t c)
{
    return std::any_of(ranges.begin(), ranges.end(), [c](range r) { return r.first <= c && c <= r.last; });
}

int characterWidth(char32_t c)
{
    constexpr std::array<range, 8> combining{{{0x300, 0x36F},
                                              {0x483, 0x489},
                                              {0x591, 0x5BD},
                                              {0x1AB0, 0x1AFF},
                                              {0x1DC0, 0x1DFF},
                                              {0x200B, 0x200F},
                                              {0x20D0, 0x20FF},
                                              {0xFE00, 0xFE2F}}};
    constexpr std::array<range, 9> wide{{{0x1100, 0x115F},
                                         {0x2E80, 0x303E},
                                         {0x3041, 0xA4CF},
                                         {0xAC00, 0xD7A3},
                                         {0xF900, 0xFAFF},
                                         {0xFE30, 0xFE6F},
                                         {0xFF00, 0xFF60},
                                         {0xFFE0, 0xFFE6},
                                         {0x1F300, 0x3FFFD}}};
    return isIn(combining, c) ? 0 : isIn(wide, c) ? 2 : 1;
}

bool isControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

} // namespace

std::size_t endOfUtf8(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t length = decodeFirst(text.substr(end)).length;
        if (length == 0) {
            break;
        }
        end += length;
    }
    return end;
}

void appendUtf8(std::string& utf8, char32_t character)
{
    const auto add = [&utf8](char32_t byte) { utf8 += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto addLast = [&add](char32_t bits) { add(0x80U | (bits & 0x3FU)); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0U | (character >> 6U));
        addLast(character);
    } else if (character < 0x10000) {
        add(0xE0U | (character >> 12U));
        addLast(character >> 6U);
        addLast(character);
    } else {
        add(0xF0U | (character >> 18U));
        addLast(character >> 12U);
        addLast(character >> 6U);
        addLast(character);
    }
}

bstr_pointer toBstr(std::string_view utf8)
{
    std::basic_string<OLECHAR> units;
    while (!utf8.empty()) {
        const decoded first = decodeFirst(utf8);
        if (first.character < 0x10000) {
            units += static_cast<OLECHAR>(first.character);
        } else {
            units += static_cast<OLECHAR>(0xD7C0 + (first.character >> 10U));
            units += static_cast<OLECHAR>(0xDC00 + (first.character & 0x3FFU));
        }
        utf8.remove_prefix(first.length);
    }
    bstr_pointer text(SysAllocStringLen(units.data(), static_cast<UINT>(units.size())));
    if (text == nullptr) {
        throw std::bad_alloc();
    }
    return text;
}

std::string toUtf8(OLECHAR* bstr)
{
    std::string utf8;
    char32_t leading = 0;
    for (UINT k = 0; k < SysStringLen(bstr); ++k) {
        const char32_t unit = bstr[k];
        if (unit >= 0xD800 && unit < 0xDC00) {
            leading = unit - 0xD7C0;
        } else {
            appendUtf8(utf8, leading == 0 ? unit : (leading << 10U) | (unit & 0x3FFU));
            leading = 0;
        }
    }
    return utf8;
}

int displayWidth(std::string_view utf8)
{
    int width = 0;
    while (!utf8.empty()) {
        const decoded first = decodeFirst(utf8);
        width += characterWidth(first.character);
        utf8.remove_prefix(first.length);
    }
    return width;
}

std::string displayText(std::string_view utf8, int width)
{
    constexpr std::string_view ellipsis = "\u2026";
    const bool fits = displayWidth(utf8) <= width;
    int room = fits ? width : width - 1;
    std::string shown;
    while (!utf8.empty()) {
        const decoded first = decodeFirst(utf8);
        room -= characterWidth(first.character);
        if (room < 0) {
            break;
        }
        shown += isControl(first.character) ? " " : utf8.substr(0, first.length);
        utf8.remove_prefix(first.length);
    }
    return fits ? shown : shown.append(ellipsis);
}

} // namespace report
