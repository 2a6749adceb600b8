/**
 * @file
 * Texts that describe selections in a spreadsheet: lists of ranges of whole columns on one sheet.
 *
 * A list is ranges with commas between them. A range is the quoted name of its sheet, an exclamation mark, a
 * dollar, its first column, a colon, a dollar and its last column; a column is letters from A to Z. For
 * example: `'Sales'!$B:$B,'Sales'!$C:$C,'Sales'!$F:$G`. Texts are not validated.
 */
#ifndef KORVEL_DOMAIN_RANGE_TEXTS_H
#define KORVEL_DOMAIN_RANGE_TEXTS_H

#include "containers/missing.h"
#include "platform/export.h"

/**
 * Sorts the ranges of a list by their first columns and joins ranges that follow each other. Ranges that
 * overlap are not joined.
 *
 * @param value a list of ranges
 * @return the simpler list. Where a range does not follow the one before it, the last column of that one
 * stands without its dollar. A text comes back as it is when it has no comma, when its ranges are on several
 * sheets, when a column begins with a digit (as rows do), and when a quote, dollar, colon or comma is missing
 * where a range has one
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API text cSimplifyRange(text value);

/**
 * The column behind a column: the last letter that is not Z gives way to the next one, and each Z behind it
 * becomes an A. No letter is added: Z gives A, and ZZ gives AA.
 *
 * @param column letters; an empty text stays empty
 */
KORVEL_API text cIncrease1Col(text column);

/** -1 when `cIncrease1Col(first)` is `second`, otherwise 0. So Z and AA are not contiguous. */
KORVEL_API short int AreContiguous(text first, text second);

#endif
