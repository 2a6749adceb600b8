/**
 * @file
 * Flat functions: sums of two tables, each times a number.
 */
#ifndef KORVEL_FRAMES_STATISTICS_WEIGHTED_SUMS_H
#define KORVEL_FRAMES_STATISTICS_WEIGHTED_SUMS_H

#include "frames/types.h"

/**
 * The sum of two tables, each times a number: a * A + b * B, cell by cell.
 *
 * @param A    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param B    [in] rows by cols numbers
 * @param a    factor of A
 * @param b    factor of B
 * @param out  [out] rows by cols numbers, 0.0 where one is missing in either table; may be A or B
 * @return 0
 */
KORVEL_FLAT int VB_M_Sums1As2B(const double* A, int rows, int cols, const double* B, double a, double b,
                               double* out);

/**
 * VB_M_Sums1As2B on labelled tables.
 *
 * @param A    [in] labelled table of numbers, rows by cols
 * @param rows rows
 * @param cols columns
 * @param B    [in] labelled table of numbers, rows by cols
 * @param a    factor of A
 * @param b    factor of B
 * @param out  [inout] labelled table of numbers whose columns receive rows by cols; its counts stay
 * @return 0
 */
KORVEL_FLAT int Cpp_M_Sums1As2B_ST(ST_MVect* A, int rows, int cols, ST_MVect* B, double a, double b,
                                   ST_MVect* out);

#endif
