/**
 * @file
 * From the caller's UTF-16 to UTF-8.
 */
#ifndef KORVEL_CONTAINERS_UTF8_H
#define KORVEL_CONTAINERS_UTF8_H

#include <string>
#include <string_view>

namespace korvel
{

/**
 * The text in well-formed UTF-8, whatever the units are: a surrogate pair becomes one character, a surrogate
 * without its partner U+FFFD, and the unit after a lone high surrogate is read again on its own.
 */
[[nodiscard]] std::string toUtf8(std::u16string_view units);

} // namespace korvel

#endif
