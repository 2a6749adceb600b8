/**
 * @file
 * Flat functions: tables of column chunks.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_MATRIX3D_H
#define KORVEL_FRAMES_CONTAINERS_MATRIX3D_H

#include "frames/types.h"

/**
 * Adds up everything that a labelled table holds: a check that a record crosses the boundary intact.
 *
 * @param record [in] a table of numbers, of which only the array of its columns is looked at
 * @return the sum over all columns, one after the other, with missing numbers taken as they are; 0.0 when the
 * array is null or empty
 */
KORVEL_FLAT double Cpp_Test(ST_MVect* record);

#endif
