/**
 * @file
 * Flat functions: missing cells, host arrays, diagnostics.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_H
#define KORVEL_FRAMES_CONTAINERS_H

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
 * @param cell [in] a cell of any type, or a reference to one. A text is missing when it has no characters
 * before its first NUL; a number, a date or a Boolean never is; an empty cell always is
 * @return -1 when missing, otherwise 0
 */
KORVEL_FLAT short int VB_IsMissingValueStr(VARIANT* cell);

/**
 * The block of texts behind a host array, for functions that take such a block.
 *
 * @param sa [in] host array of String; its descriptor may be null
 * @return the array's data, or null when there is no array or it holds none
 */
KORVEL_FLAT OLECHAR** ExtractBSTR(SAFEARRAY** sa);

/**
 * Adds up everything that a labelled table holds: a check that a record crosses the boundary intact.
 *
 * @param record [in] a table of numbers, of which only the array of its columns is looked at
 * @return the sum over all columns, one after the other, with missing numbers taken as they are; 0.0 when the
 * array is null or empty
 */
KORVEL_FLAT double Cpp_Test(ST_MVect* record);

/**
 * Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a line end.
 * A line of more than 999 bytes is cut.
 *
 * @param value the number
 * @param label [in] narrow text, NUL-terminated
 */
KORVEL_FLAT void dprint(double value, const char* label);

#endif
