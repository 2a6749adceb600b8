#include "platform/automation.h"
#include "platform/automation/ledger.h"

#include <cstdlib>
#include <cstring>
#include <string>

using korvel::automation::theLedger;

namespace
{

/** The bytes before the text: padding that keeps the text aligned, then its length in bytes. */
struct text_header {
    std::uint32_t padding;
    std::uint32_t bytes;
};

text_header* headerOf(BSTR text)
{
    return reinterpret_cast<text_header*>(text) - 1;
}

} // namespace

extern "C" BSTR SysAllocStringLen(const OLECHAR* text, UINT length)
{
    constexpr UINT longest = 0x7FFFFFF0u / sizeof(OLECHAR);
    if (length > longest || !theLedger().permits()) {
        return nullptr;
    }
    const std::size_t bytes = std::size_t{length} * sizeof(OLECHAR);
    auto* header = static_cast<text_header*>(std::calloc(1, sizeof(text_header) + bytes + sizeof(OLECHAR)));
    if (header == nullptr) {
        return nullptr;
    }
    header->bytes = static_cast<std::uint32_t>(bytes);
    auto* characters = reinterpret_cast<BSTR>(header + 1);
    if (text != nullptr) {
        std::memcpy(characters, text, bytes);
    }
    ++theLedger().texts.made;
    return characters;
}

extern "C" BSTR SysAllocString(const OLECHAR* text)
{
    if (text == nullptr) {
        return nullptr;
    }
    return SysAllocStringLen(text, static_cast<UINT>(std::char_traits<OLECHAR>::length(text)));
}

extern "C" void SysFreeString(BSTR text)
{
    if (text == nullptr) {
        return;
    }
    ++theLedger().texts.freed;
    std::free(headerOf(text));
}

extern "C" UINT SysStringByteLen(BSTR text)
{
    return text == nullptr ? 0 : headerOf(text)->bytes;
}

extern "C" UINT SysStringLen(BSTR text)
{
    return SysStringByteLen(text) / static_cast<UINT>(sizeof(OLECHAR));
}
