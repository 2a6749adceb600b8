/**
 * @file
 * Whether a time scale is regular, and its step.
 */
#ifndef KORVEL_STATISTICS_TIME_STEPS_H
#define KORVEL_STATISTICS_TIME_STEPS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The step of a time scale, whose differences must all be within 1e-6 of the first.
 *
 * @param x     the vector, `n` numbers, which stays as it is; missing ones are numbers like the others
 * @param n     number of elements
 * @param bSort -1: the step is that of the sorted numbers; otherwise of the numbers as they stand
 * @return the first difference; `MISSING_DBL` when another one differs, and when there is none
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double V_TimeIntervalSize(matrix<double>* x, int n, short int bSort);

/**
 * The step of numbers or of dates, in the order in which they stand.
 *
 * @param x    the vector, `n` numbers, which stays as it is
 * @param n    number of elements
 * @param kind 2: dates, as days since 30 December 1899. Their steps are regular when they agree in days of
 * the month, and in months with a year counted as 12. Otherwise: numbers, whose differences must all be
 * within 1e-8 of the first
 * @param d    receives the first difference; `MISSING_DBL` when the steps are not regular, when there is
 * none, and for a number that is no date of the years 100 to 9999
 */
KORVEL_API void V_CheckDateInterval(matrix<double>* x, int n, int kind, double& d);

#endif
