/**
 * @file
 * Flat functions: texts that describe selections of whole columns in a spreadsheet, such as
 * `'Sales'!$B:$B,'Sales'!$C:$C,'Sales'!$F:$G`.
 */
#ifndef KORVEL_FRAMES_DOMAIN_RANGE_TEXTS_H
#define KORVEL_FRAMES_DOMAIN_RANGE_TEXTS_H

#include "frames/types.h"

/**
 * Sorts the ranges of a list by their first columns and joins ranges that follow each other. Where a range
 * does not follow the one before it, the last column of that one stands without its dollar. A text without a
 * comma, with ranges on several sheets, with rows, or that is no such list, comes back as it is.
 *
 * @param value [in] one text: the list of ranges
 * @return a new text, which the caller frees
 * @throws std::bad_alloc when memory is short
 */
KORVEL_FLAT OLECHAR* SimplifyRange(const OLECHAR* value);

/**
 * The column behind a column. No letter is added: Z gives A, and ZZ gives AA.
 *
 * @param column [in] one text: the letters of a column
 * @return a new text, which the caller frees
 * @throws std::bad_alloc when memory is short
 */
KORVEL_FLAT OLECHAR* Increase1Col(const OLECHAR* column);

#endif
