#include "encoding.h"

#include "csv_records.h"
#include "utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string_view>

namespace report
{

namespace
{

struct byte_mark {
    std::string_view bytes;
    const char* encoding;
    const char* shown;
};

// The longer marks first: that of UTF-32 begins like one of UTF-16.
constexpr std::array<byte_mark, 4> marks{{
    {{"\xFF\xFE\0\0", 4}, "UTF-32", "FF FE 00 00"},
    {{"\0\0\xFE\xFF", 4}, "UTF-32", "00 00 FE FF"},
    {{"\xFF\xFE", 2}, "UTF-16", "FF FE"},
    {{"\xFE\xFF", 2}, "UTF-16", "FE FF"},
}};

// Where Windows-1252 differs from Latin-1; 0 for a byte without a character.
constexpr std::array<char32_t, 32> windowsCharacters{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::string lineAndByte(std::string_view bytes, std::size_t place)
{
    const std::string_view before = bytes.substr(0, place);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    return "line " + std::to_string(line) + ", byte " + std::to_string(place + 1) + " of the file";
}

char32_t characterOf(char byte)
{
    const char32_t code = static_cast<unsigned char>(byte);
    const bool differs = code >= 0x80 && code < 0xA0 && windowsCharacters[code - 0x80] != 0;
    return differs ? windowsCharacters[code - 0x80] : code;
}

} // namespace

std::optional<std::string> makeUtf8(std::string& bytes)
{
    for (const byte_mark& mark : marks) {
        if (bytes.starts_with(mark.bytes)) {
            throw csv_error(std::string("is in ") + mark.encoding + ", as its first bytes tell (" +
                            mark.shown + "); save it as UTF-8");
        }
    }
    const std::size_t zero = bytes.find('\0');
    if (zero != std::string::npos) {
        throw csv_error("is no text in UTF-8: " + lineAndByte(bytes, zero) + " is zero, as in UTF-16");
    }
    const std::size_t place = endOfUtf8(bytes);
    if (place == bytes.size()) {
        return std::nullopt;
    }
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "%02X",
                  static_cast<unsigned>(static_cast<unsigned char>(bytes[place])));
    std::string note = "The file is not in UTF-8 (" + lineAndByte(bytes, place) + ", is " + code.data() +
                       "). It was read as Windows-1252, of which Latin-1 is a part.";
    std::string converted;
    converted.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        appendUtf8(converted, characterOf(byte));
    }
    bytes = std::move(converted);
    return note;
}

} // namespace report
