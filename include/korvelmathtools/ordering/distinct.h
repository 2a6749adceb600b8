/**
 * @file
 * Number and list of the distinct values of a vector. A missing value counts as a value.
 */
#ifndef KORVEL_ORDERING_DISTINCT_H
#define KORVEL_ORDERING_DISTINCT_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Number of distinct values: 1, and one more wherever the next value in ascending order exceeds the one
 * before by more than 2.220446049250313e-16. Integers and texts are compared exactly.
 *
 * @param x `n` elements, not modified
 * @return the number; 1 for `n` below 1
 */
KORVEL_API int V_NbDistinct(matrix<double>* x, int n);
KORVEL_API int V_NbDistinct(matrix<int>* x, int n);
KORVEL_API int V_NbDistinct(matrix<text>* x, int n);

/**
 * The distinct values in ascending order: the smallest, and each that exceeds the one before it by more than
 * the tolerance, which is the smaller of 2.220446049250313e-16 and the range of the data.
 *
 * @param x    `n` numbers, not modified
 * @param out  receives the values; room for `n`
 * @param nOut receives their number, 0 for `n` below 1
 */
KORVEL_API void V_ExtractDistinct(matrix<double>* x, int n, matrix<double>* out, int* nOut);

#endif
