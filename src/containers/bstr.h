/**
 * @file
 * Texts of the caller: reading a BSTR, and putting a text back where a BSTR stands.
 */
#ifndef KORVEL_CONTAINERS_BSTR_H
#define KORVEL_CONTAINERS_BSTR_H

#include "containers/missing.h"
#include "platform/automation.h"

#include <cstdint>
#include <string_view>

namespace korvel
{

/** The characters of a BSTR up to its first NUL; empty for a null pointer or a BSTR of no bytes. */
[[nodiscard]] text readBstr(BSTR source);

/** The same characters where they stand, for as long as the BSTR is. */
[[nodiscard]] std::u16string_view viewBstr(BSTR source);

/** Whether `readBstr(source)` equals `value`, without making the text. */
[[nodiscard]] bool readsAs(BSTR source, const text& value);

/**
 * Makes a BSTR of a text, which ends at its first NUL.
 * @throws std::bad_alloc when memory is short
 */
[[nodiscard]] BSTR makeBstr(const text& value);

/**
 * Puts `value` into a place that holds a BSTR, unless what stands there reads the same. The new BSTR is made
 * before the old one is freed, so that a failure leaves the caller's text as it was.
 * @throws std::bad_alloc when memory is short
 */
void replaceIfDifferent(BSTR& place, const text& value);

/** `replaceIfDifferent` over a block: text k goes to place k. */
void writeBack(const text* values, std::uint64_t count, BSTR* block);

} // namespace korvel

#endif
