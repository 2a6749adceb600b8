/**
 * @file
 * Flat functions: smallest elements of tables.
 */
#ifndef KORVEL_FRAMES_STATISTICS_TABLE_EXTREMES_H
#define KORVEL_FRAMES_STATISTICS_TABLE_EXTREMES_H

#include "frames/types.h"

/**
 * The smallest element of a record of labelled columns that is not missing.
 *
 * @param record [in] the record
 * @param nRows  rows to look at; below 1 there is nothing
 * @param nCols  columns to look at
 * @return the element; missing when there is none, or when it is 1.79769313486231e308 or above
 */
KORVEL_FLAT double Cpp_V_Min3(ST_MVect* record, int nRows, int nCols);

#endif
