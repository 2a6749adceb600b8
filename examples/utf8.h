/**
 * @file
 * Texts in UTF-8: how wide they print, and their way to the UTF-16 of a BSTR.
 */
#ifndef KORVEL_EXAMPLES_UTF8_H
#define KORVEL_EXAMPLES_UTF8_H

#include "frames/KORVELMathTools.h"

#include <string>
#include <string_view>

namespace report
{

/** The text itself when it is UTF-8, otherwise its bytes taken for Latin-1, as older spreadsheets save. */
std::string asUtf8(std::string bytes);

/** UTF-8 to the UTF-16 that a BSTR holds. */
std::basic_string<OLECHAR> toUtf16(std::string_view utf8);

/** Columns that a text takes on a terminal: none for a combining mark, two for an East Asian wide character.
 */
int displayWidth(std::string_view utf8);

/** The text fit to stand in a table: control characters blanked, and cut to `width` columns. */
std::string displayText(std::string_view utf8, int width);

} // namespace report

#endif
