/**
 * @file
 * What every flat header stands on. Flat headers are plain C.
 *
 * Common to all flat functions: counts and numbers are 32-bit `int`, rows before columns; tables are
 * column-major; row and column numbers start at 1; a Visual Basic Boolean is a `short int`, -1 true and 0
 * false. The caller owns every array and the library never frees one. A missing number is
 * -1.79769313486231e308, a missing integer -2147483648, a missing text the empty one. Pointers are not
 * validated: a null one where none may stand ends the process, unless the array has no cell.
 *
 * A table with a count of 0 has no cell, and its array is not touched; only where a function says so does 0
 * stand for 1. A count below 0 is a mistake: a function that works in the caller's own array then does
 * nothing, one that works on copies (of texts, or from one table into another) raises `std::bad_alloc` before
 * it has written anything. A C++ exception (`std::bad_alloc`, `boost::numeric::positive_overflow`) passes
 * through to the caller.
 */
#ifndef KORVEL_FRAMES_TYPES_H
#define KORVEL_FRAMES_TYPES_H

#include "containers/caller_records.h"
#include "containers/missing_values.h"
#include "platform/automation.h"
#include "platform/export.h"

#endif
