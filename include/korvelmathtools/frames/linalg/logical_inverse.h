/**
 * @file
 * Flat functions: flags turned into their opposites.
 */
#ifndef KORVEL_FRAMES_LINALG_LOGICAL_INVERSE_H
#define KORVEL_FRAMES_LINALG_LOGICAL_INVERSE_H

#include "frames/types.h"

/**
 * Logical inversion of a table of flags in place: 0 becomes 1, and anything else becomes 0.
 *
 * @param flags [inout] rows by cols flags, column after column
 * @param rows  rows; below 1 nothing is done
 * @param cols  columns; below 1 nothing is done
 * @return 0
 */
KORVEL_FLAT int Cpp_M_Inverse(short int* flags, int rows, int cols);

#endif
