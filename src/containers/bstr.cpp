#include "containers/bstr.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace korvel
{

namespace
{

const OLECHAR* endOfText(const OLECHAR* source)
{
    return source + std::char_traits<OLECHAR>::length(source);
}

/** Whether one of four characters is NUL. Taking 1 from each sets the highest bit of those that are 0 or had
 * it set; without a character of 0 nothing is borrowed from the next one. */
bool hasNul(const OLECHAR* source)
{
    constexpr std::uint64_t ones = 0x0001000100010001u;
    constexpr std::uint64_t highest = 0x8000800080008000u;
    std::uint64_t four = 0;
    std::memcpy(&four, source, sizeof four);
    return ((four - ones) & ~four & highest) != 0;
}

} // namespace

text readBstr(BSTR source)
{
    return text(viewBstr(source));
}

std::u16string_view viewBstr(BSTR source)
{
    const std::size_t bytes = SysStringByteLen(source);
    if (bytes == 0) {
        return u"";
    }
    std::size_t length = 0;
    while (length + 4 <= bytes / sizeof(OLECHAR) && !hasNul(source + length)) {
        length += 4;
    }
    length = static_cast<std::size_t>(endOfText(source + length) - source);
    return {reinterpret_cast<const char16_t*>(source), length};
}

bool readsAs(BSTR source, const text& value)
{
    if (SysStringByteLen(source) == 0) {
        return value.empty();
    }
    return std::equal(value.begin(), value.end(), static_cast<const OLECHAR*>(source), endOfText(source),
                      [](char16_t a, OLECHAR b) { return a == static_cast<char16_t>(b); });
}

BSTR makeBstr(const text& value)
{
    BSTR made = SysAllocString(reinterpret_cast<const OLECHAR*>(value.c_str()));
    if (made == nullptr) {
        throw std::bad_alloc();
    }
    return made;
}

void replaceIfDifferent(BSTR& place, const text& value)
{
    if (!readsAs(place, value)) {
        BSTR made = makeBstr(value);
        SysFreeString(place);
        place = made;
    }
}

void writeBack(const text* values, std::uint64_t count, BSTR* block)
{
    for (std::uint64_t k = 0; k < count; ++k) {
        replaceIfDifferent(block[k], values[k]);
    }
}

} // namespace korvel
