/**
 * @file
 * Flat functions: summaries and vectors of what is not missing.
 */
#ifndef KORVEL_FRAMES_MISSING_MISSING_SUMMARIES_H
#define KORVEL_FRAMES_MISSING_MISSING_SUMMARIES_H

#include "frames/types.h"

/**
 * Sum of the numbers of one vector where neither it nor another vector is missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param y [in] n numbers
 * @return the sum, 0.0 when there are none; the missing number for n below 1
 */
KORVEL_FLAT double VB_V_SumIfNotMissing(const double* x, int n, const double* y);

/**
 * Strings the numbers that are not missing together, column after column.
 *
 * @param x            [in] n by p numbers
 * @param n            rows of the table
 * @param p            columns of the table; 0 stands for 1
 * @param counts       [inout] p numbers, each of which grows by the number of such cells in its column
 * @param emptyColumns [inout] one number: grows by 1 for each column whose count is 0 then
 * @param vector       [out] n by p numbers, of which the first receive the cells
 * @return 0
 */
KORVEL_FLAT int Cpp_MatToVect_NoMissing(const double* x, int n, int p, double* counts, double* emptyColumns,
                                        double* vector);

/**
 * The smallest number that is not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the smallest number; the missing one when there is none
 */
KORVEL_FLAT double Cpp_V_MinIgnoreMissing(const double* x, int n);

/**
 * The smallest number of a labelled table that is not missing.
 *
 * @param x    [in] table of numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @return the smallest number below 1.79769313486231e308; the missing one when there is none
 */
KORVEL_FLAT double Cpp_M_MinIgnoreMissing_ST(ST_MVect* x, int rows, int cols);

#endif
