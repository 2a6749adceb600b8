/**
 * @file
 * Flat functions: missing cells of a contingency table filled by their expected frequencies.
 */
#ifndef KORVEL_FRAMES_MISSING_EXPECTED_FREQUENCIES_H
#define KORVEL_FRAMES_MISSING_EXPECTED_FREQUENCIES_H

#include "frames/types.h"

/**
 * Replaces each missing cell of a contingency table, a number at or below `KORVEL_MISSING_DBL`, by the sum of
 * its row times the sum of its column over the total. Missing cells are left out of the sums. A total of 0
 * is divided by as floating point does it.
 *
 * @param x    [inout] table of numbers; only its cells are changed
 * @param rows rows of the table
 * @return 0
 */
KORVEL_FLAT int Cpp_ReplaceMissingInContengencyByExp_ST(ST_MVect* x, int rows);

#endif
