/**
 * @file
 * How the page looks.
 */
#ifndef KORVEL_EXAMPLES_PAGE_STYLE_H
#define KORVEL_EXAMPLES_PAGE_STYLE_H

namespace report
{

/** The style sheet of the page: one palette, in light and in dark, and on paper always in light. */
const char* pageStyle();

} // namespace report

#endif
