/**
 * @file
 * Flat functions: sums over one vector, or two.
 */
#ifndef KORVEL_FRAMES_VECTOR_SUMS_H
#define KORVEL_FRAMES_VECTOR_SUMS_H

#include "frames/types.h"

/**
 * Weighted sum of a vector: the sum of w[i] * x[i] in ascending order.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out. Null: none is
 * @param w        [in] n weights; not null unless n is below 1
 * @return the sum over the elements whose flag is 0 and of which neither value nor weight is missing; 0.0
 * when there are none
 */
KORVEL_FLAT double VB_V_Sum(double* x, int n, short int* iMissing, double* w);

#endif
