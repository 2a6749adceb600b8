/**
 * @file
 * Pieces of HTML and SVG.
 */
#ifndef KORVEL_EXAMPLES_MARKUP_H
#define KORVEL_EXAMPLES_MARKUP_H

#include <string>
#include <string_view>

namespace report
{

/** A text so written that it stands for itself between tags and in quoted attributes. */
std::string escaped(std::string_view text);

} // namespace report

#endif
