/**
 * @file
 * Flat functions: sums over one vector, or two. Sums start at 0.0 and add in ascending order.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_SUMS_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_SUMS_H

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
KORVEL_FLAT double VB_V_Sum(const double* x, int n, const short int* iMissing, const double* w);

/**
 * Sum of x[i] * w[i] over all elements: a missing value or weight multiplies through.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param w [in] n weights
 * @return the sum; 0.0 when n is below 1
 */
KORVEL_FLAT double Cpp_V_SumW(const double* x, int n, const double* w);

/**
 * Sum of the elements that are not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the sum; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_Sum2Dbl(const double* x, int n);

/**
 * Sum of integers in 32-bit arithmetic that wraps around. No integer is missing here.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @return the wrapped sum as a number; 0.0 when n is below 1
 */
KORVEL_FLAT double VB_V_Sum2Lng(const int* x, int n);

/**
 * Sum of the elements of a host array that are not missing.
 *
 * @param sa [in] host array of Double
 * @param n  number of elements to read; one that the array does not have reads as -1
 * @return the sum; 0.0 when there are none
 */
KORVEL_FLAT double Cpp_V_Sum2Dbl_ST(SAFEARRAY** sa, int n);

/**
 * Sum of the integers of a host array in 32-bit arithmetic that wraps around. No integer is missing here.
 *
 * @param sa [in] host array of Long
 * @param n  number of elements to read; one that the array does not have reads as -1
 * @return the wrapped sum as a number; 0.0 when n is below 1
 */
KORVEL_FLAT double Cpp_V_Sum2Lng_ST(SAFEARRAY** sa, int n);

/**
 * Sum over a stretch of a vector, missing elements too.
 *
 * @param x    [in] to numbers, or more
 * @param n    not used
 * @param from first position, from 1
 * @param to   last position, from 1
 * @return the sum; 0.0 when `from` is above `to`
 */
KORVEL_FLAT double VB_V_SumFromTo(const double* x, int n, int from, int to);

/**
 * Sum over a stretch of a vector of integers, in 32-bit arithmetic that wraps around.
 *
 * @like VB_V_SumFromTo, integers for numbers
 * @return the wrapped sum; 0 when `from` is above `to`
 */
KORVEL_FLAT int VB_V_SumFromToLng(const int* x, int n, int from, int to);

/**
 * Sum of squares of the elements that are not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the sum; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_SumSq(const double* x, int n);

/**
 * Weighted sum of squares of the elements that are not missing: the sum of x[i] * w[i] * x[i]. A missing
 * weight multiplies through.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param w [in] n weights
 * @return the sum; 0.0 when there are none
 */
KORVEL_FLAT double VB_V_SumSqW(const double* x, int n, const double* w);

/**
 * Squared distance of two vectors, over all elements, missing ones too.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param y [in] n numbers
 * @return the sum of the squares of x[i] - y[i]; 0.0 when n is below 1
 */
KORVEL_FLAT double VB_V_DiffSq(const double* x, int n, const double* y);

/**
 * Weighted squared distance of two vectors, over all elements, missing ones too.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param y [in] n numbers
 * @param w [in] n weights
 * @return the sum of w[i] times the square of x[i] - y[i]; 0.0 when n is below 1
 */
KORVEL_FLAT double VB_V_DiffSqW(const double* x, int n, const double* y, const double* w);

/**
 * Squared distance of the tails of two vectors, over all elements, missing ones too.
 *
 * @param x     [in] n numbers
 * @param n     last position, from 1
 * @param y     [in] n numbers
 * @param start first position, from 1
 * @return the sum of the squares of the differences; 0.0 when `start` is above n
 */
KORVEL_FLAT double Cpp_V_DiffSqStart(const double* x, int n, const double* y, int start);

/**
 * Running sum over all elements, missing ones too.
 *
 * @param x   [in] n numbers
 * @param n   number of elements; below 1 nothing is written
 * @param out [out] n numbers: the first element, and then the one before plus x[i]. May be x itself
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CuSum(const double* x, int n, double* out);

#endif
