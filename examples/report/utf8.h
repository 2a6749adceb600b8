/**
 * @file
 * Texts in UTF-8: how wide they print, and their way into a BSTR.
 */
#ifndef KORVEL_EXAMPLES_UTF8_H
#define KORVEL_EXAMPLES_UTF8_H

#include "korvelmathtools/KORVELMathTools.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace report
{

/** How many of the first bytes are UTF-8. */
std::size_t endOfUtf8(std::string_view text);

/** Appends a character to a text in UTF-8. */
void appendUtf8(std::string& utf8, char32_t character);

/** Frees a BSTR. */
struct bstr_free {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};
using bstr_pointer = std::unique_ptr<OLECHAR, bstr_free>;

/** A BSTR with the text in UTF-16. */
bstr_pointer toBstr(std::string_view utf8);

/** The text of a BSTR, which holds UTF-16. */
std::string toUtf8(OLECHAR* bstr);

/** Columns that a text takes on a terminal: none for a combining mark, two for an East Asian wide character.
 */
int displayWidth(std::string_view utf8);

/** The text fit to stand in a table: control characters blanked, and cut to `width` columns. */
std::string displayText(std::string_view utf8, int width);

} // namespace report

#endif
