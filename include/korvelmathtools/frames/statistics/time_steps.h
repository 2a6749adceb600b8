/**
 * @file
 * Flat functions: the step of a regular time scale.
 */
#ifndef KORVEL_FRAMES_STATISTICS_TIME_STEPS_H
#define KORVEL_FRAMES_STATISTICS_TIME_STEPS_H

#include "frames/types.h"

/**
 * The step of a time scale, whose differences must all be within 1e-6 of the first.
 *
 * @param x     [in] n numbers
 * @param n     number of elements
 * @param bSort -1: the step of the sorted numbers; otherwise of the numbers as they stand
 * @return the first difference; the missing number when another one differs, and when there is none
 */
KORVEL_FLAT double VB_V_TimeIntervalSize(const double* x, int n, short int bSort);

/**
 * The step of numbers, whose differences must all be within 1e-8 of the first, or of dates, which must agree
 * in days and months.
 *
 * @param x    [in] n numbers
 * @param n    number of elements
 * @param kind 2: dates, as days since 30 December 1899; otherwise numbers
 * @param d    [out] one number: the first difference; the missing number when the steps differ or there is
 * none
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CheckDateInterval(const double* x, int n, int kind, double* d);

#endif
