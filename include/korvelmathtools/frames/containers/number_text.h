/**
 * @file
 * Flat functions: numbers as text.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_NUMBER_TEXT_H
#define KORVEL_FRAMES_CONTAINERS_NUMBER_TEXT_H

#include "frames/types.h"

/**
 * Sends a line to the debugger: the label, a blank, the value with 16 decimals in a field of 36, a line end.
 * A line of more than 999 bytes is cut.
 *
 * @param value the number
 * @param label [in] narrow text, NUL-terminated
 */
KORVEL_FLAT void dprint(double value, const char* label);

#endif
