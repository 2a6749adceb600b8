/**
 * @file
 * Missing cells of a contingency table filled by their expected frequencies.
 */
#ifndef KORVEL_MISSING_EXPECTED_FREQUENCIES_H
#define KORVEL_MISSING_EXPECTED_FREQUENCIES_H

#include "containers/records.h"
#include "platform/export.h"

/**
 * Replaces each missing cell (i, j), a number at or below `MISSING_DBL`, by the sum of row i times the sum of
 * column j over the total, where missing cells are left out of the sums. The total is that of the row sums,
 * but for one that equals `MISSING_DBL`; where it is 0 the division goes to floating point.
 *
 * @param table the labelled table, of which the first `rows` rows of all columns are taken, in place, through
 * the checked access of `matrix`; only its cells are changed
 * @param rows  rows of the table
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void ReplaceMissingInContengencyByExp_ST(cST_MVect<double>& table, int rows);

#endif
