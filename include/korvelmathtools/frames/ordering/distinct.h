/**
 * @file
 * Flat functions: distinct values. Among numbers with a NaN, whose place in the order is not defined, the
 * result is not defined either.
 */
#ifndef KORVEL_FRAMES_ORDERING_DISTINCT_H
#define KORVEL_FRAMES_ORDERING_DISTINCT_H

#include "frames/types.h"

/**
 * Number of distinct values; neighbours in ascending order differ by more than 2.220446049250313e-16. Missing
 * is a value.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int VB_V_NbDistinct(const double* x, int n);

/**
 * Number of distinct integers.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int VB_V_NbDistinctLng(const int* x, int n);

/**
 * Number of distinct texts, compared exactly. The empty text is one.
 *
 * @param x [in] n texts
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int Cpp_V_NbDistinctStr(OLECHAR* const* x, int n);

/**
 * The distinct values in ascending order: each that exceeds the one before it by more than the smaller of
 * 2.220446049250313e-16 and the range of the data.
 *
 * @param x    [in] n numbers
 * @param n    number of elements
 * @param out  [out] n numbers; the values
 * @param nOut [out] one integer: their number, 0 for n below 1
 * @return 0
 */
KORVEL_FLAT int VB_V_ExtractDistinct(const double* x, int n, double* out, int* nOut);

#endif
