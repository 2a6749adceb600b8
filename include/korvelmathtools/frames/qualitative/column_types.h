/**
 * @file
 * Flat functions: the macro layer's codes for the type of a column.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_COLUMN_TYPES_H
#define KORVEL_FRAMES_QUALITATIVE_COLUMN_TYPES_H

#include "frames/types.h"

/**
 * Whether a column is qualitative: the types 2, 4 and 5.
 *
 * @param type code of the column's type
 * @return -1 for a qualitative column, otherwise 0
 */
KORVEL_FLAT short int isQuali(int type);

/**
 * Whether a column is qualitative and nothing else: the types 2 and 4.
 *
 * @param type code of the column's type
 * @return -1 for a purely qualitative column, otherwise 0
 */
KORVEL_FLAT short int isQualiPure(int type);

#endif
