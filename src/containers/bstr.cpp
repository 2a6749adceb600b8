#include "containers/bstr.h"

#include <algorithm>
#include <new>

namespace korvel
{

namespace
{

const OLECHAR* endOfText(const OLECHAR* source)
{
    return source + std::char_traits<OLECHAR>::length(source);
}

} // namespace

text readBstr(BSTR source)
{
    const OLECHAR* first = source;
    return SysStringByteLen(source) == 0 ? text{} : text(first, endOfText(first));
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
