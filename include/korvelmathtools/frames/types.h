/**
 * @file
 * What every flat header stands on. Flat headers are plain C99.
 *
 * Common to all flat functions: counts and numbers are 32-bit `int`, rows before columns; tables are
 * column-major; row and column numbers start at 1; a Visual Basic Boolean is a `short int`, -1 true and 0
 * false. The caller owns every array and the library never frees one. A missing number is
 * KORVEL_MISSING_DBL, -1.79769313486231e308; a missing integer KORVEL_MISSING_LNG, -2147483648; a missing
 * text the empty one. Pointers are not validated. A C++ exception (`std::bad_alloc`,
 * `boost::numeric::positive_overflow`) passes through to the caller.
 */
#ifndef KORVEL_FRAMES_TYPES_H
#define KORVEL_FRAMES_TYPES_H

#include "containers/caller_records.h"
#include "containers/missing_values.h"
#include "platform/automation.h"
#include "platform/export.h"

#endif
