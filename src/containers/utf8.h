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
 * The text in UTF-8, always well-formed. A surrogate pair becomes one character, a lone surrogate becomes
 * U+FFFD, and the unit after a lone high surrogate is read on its own.
 */
[[nodiscard]] std::string toUtf8(std::u16string_view units);

} // namespace korvel

#endif
