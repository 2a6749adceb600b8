/**
 * @file
 * Flat functions: missing cells.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_MISSING_H
#define KORVEL_FRAMES_CONTAINERS_MISSING_H

#include "frames/types.h"

/**
 * Tells whether a number is missing: whether it is at or below the sentinel -1.79769313486231e308.
 *
 * @param x a number; a NaN is not missing
 * @return -1 when missing, otherwise 0
 */
KORVEL_FLAT short int VB_IsMissingValueDbl(double x);

/**
 * Tells whether a cell, rendered as text, is empty.
 *
 * @param cell [in] one cell of any type, or a reference to one. A text is missing when it has no characters
 * before its first NUL; a number, a date or a Boolean never is; an empty cell always is
 * @return -1 when missing, otherwise 0
 */
KORVEL_FLAT short int VB_IsMissingValueStr(const VARIANT* cell);

#endif
