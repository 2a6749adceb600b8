/**
 * @file
 * Flags turned into their opposites.
 */
#ifndef KORVEL_LINALG_LOGICAL_INVERSE_H
#define KORVEL_LINALG_LOGICAL_INVERSE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Logical inversion in place: an element becomes 1 where it was 0, and otherwise 0. So -1, the caller's true,
 * becomes 0, and 0 becomes 1 and not -1.
 *
 * @param flags `rows` by `cols`, through the checked access
 * @param rows  rows; below 1 nothing is done
 * @param cols  columns; below 1 nothing is done
 */
KORVEL_API void M_Inverse(matrix<short int>& flags, int rows, int cols);

#endif
