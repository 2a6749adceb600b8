/**
 * @file
 * Flat functions: tables standardised together with companions, or in groups of rows.
 *
 * Tables are column after column. A missing cell has no part in the statistics and stays missing; a NaN is a
 * number.
 */
#ifndef KORVEL_FRAMES_STATISTICS_STANDARDIZE_ROW_SETS_H
#define KORVEL_FRAMES_STATISTICS_STANDARDIZE_ROW_SETS_H

#include "frames/types.h"

/**
 * Standardises a table in place, (x - mean) / sd by column, the sum of squares divided by the number of cells
 * less 1, and by the same means and deviations two companions, tables of other rows and the same columns.
 * Where the deviation of x is not greater than 0, the column stays as it is in all three.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows of x
 * @param cols  columns of all three
 * @param y     [inout] yRows by cols numbers; may be null when yRows is 0
 * @param yRows rows of y
 * @param z     [inout] zRows by cols numbers; may be null when zRows is 0
 * @param zRows rows of z
 * @return 0
 */
KORVEL_FLAT int VB_M_StandardizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z,
                                       int zRows);

/**
 * Standardises or centres each group of rows for itself, in place.
 *
 * @param x            [inout] rows by cols numbers
 * @param rows         rows
 * @param cols         columns
 * @param groups       [in] rows group codes; a row with a code that is not from 1 to nGroups stays
 * @param nGroups      number of groups; below 1 nothing is done
 * @param bStandardize -1: each group is treated by VB_M_Standardize2; any other value: by VB_M_Center2
 * @param bUnbiased    whether the denominator is the number of cells less 1; true only when -1
 * @return 0
 */
KORVEL_FLAT int Cpp_M_StandardizeByGroup(double* x, int rows, int cols, const int* groups, int nGroups,
                                         short int bStandardize, short int bUnbiased);

#endif
