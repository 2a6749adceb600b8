/**
 * @file
 * Flat functions: smallest and largest elements of one vector.
 *
 * Elements are compared in ascending order with the first of them: of equal ones the first stays; a NaN stays
 * when it comes first, and is passed over afterwards. No integer is missing here.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_EXTREMES_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_EXTREMES_H

#include "frames/types.h"

/**
 * The smallest element that is kept.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @return the element; missing when none is kept
 */
KORVEL_FLAT double VB_V_Min(const double* x, int n, const short int* iMissing);

/**
 * The smallest element that is not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the element; missing when there is none
 */
KORVEL_FLAT double VB_V_Min2(const double* x, int n);

/**
 * The smallest of some integers.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @return the element as a number; the missing number when n is below 1
 */
KORVEL_FLAT double VB_V_Min2Lng(const int* x, int n);

/**
 * The largest element that is kept.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out, and so is a missing one. Null:
 * no flag is set
 * @return the element; missing when none is kept
 */
KORVEL_FLAT double VB_V_Max(const double* x, int n, const short int* iMissing);

/**
 * The largest element that is not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the element; missing when there is none
 */
KORVEL_FLAT double VB_V_Max2(const double* x, int n);

/**
 * The largest of some integers.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @return the element as a number; the missing number when n is below 1
 */
KORVEL_FLAT double VB_V_Max2Lng(const int* x, int n);

/**
 * The largest element of a host array that is not missing.
 *
 * @param sa [in] host array of Double
 * @param n  number of elements to read; one that the array does not have reads as -1
 * @return the element; missing when there is none
 */
KORVEL_FLAT double Cpp_V_Max2_ST(SAFEARRAY** sa, int n);

/**
 * The largest integer of a host array.
 *
 * @param sa [in] host array of Long
 * @param n  number of elements to read; one that the array does not have reads as -1
 * @return the element as a number; the missing number when n is below 1
 */
KORVEL_FLAT double Cpp_V_Max2Lng_ST(SAFEARRAY** sa, int n);

/**
 * The largest integer that is kept, as an integer.
 *
 * @param x        [in] n integers
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out. Null: no flag is set
 * @return the element; -2147483648 when none is kept
 */
KORVEL_FLAT int VB_V_MaxInt(const int* x, int n, const short int* iMissing);

/**
 * The smallest and the largest element that are kept. When none is, both are missing.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param min      [out] one number: the smallest
 * @param max      [out] one number: the largest
 * @param iMissing [in] n flags; an element with a non-zero flag is left out, and so is a missing one
 * @return 0
 */
KORVEL_FLAT int VB_V_MinMax(const double* x, int n, double* min, double* max, const short int* iMissing);

/**
 * The smallest and the largest integer that are kept. When none is, both are the missing number.
 *
 * @param x        [in] n integers
 * @param n        number of elements
 * @param min      [out] one number: the smallest, as a number
 * @param max      [out] one number: the largest, as a number
 * @param iMissing [in] n flags; an element with a non-zero flag is left out
 * @return 0
 */
KORVEL_FLAT int VB_V_MinMaxLng(const int* x, int n, double* min, double* max, const short int* iMissing);

/**
 * The smallest and the largest element. When missing elements are passed over, only those in front of the
 * first one that is present are; one that comes later is compared like any other, and is then the smallest.
 *
 * @param x            [in] n numbers
 * @param n            number of elements; with none, element 1 reads as -1
 * @param min          [out] one number: the smallest; missing when missing elements are passed over and there
 * is no other
 * @param max          [out] one number: the largest; in that case element 1
 * @param bSkipMissing not 0: missing elements are passed over
 * @return 0
 */
KORVEL_FLAT int VB_V_MinMax2(const double* x, int n, double* min, double* max, short int bSkipMissing);

/**
 * The smallest and the largest of some integers.
 *
 * @param x            [in] n integers
 * @param n            number of elements; with none, element 1 reads as -1
 * @param min          [out] one number: the smallest, as a number; with no elements and bSkipMissing not 0
 * the missing number
 * @param max          [out] one number: the largest, as a number
 * @param bSkipMissing no integer is missing, so this matters only without elements; true unless 0
 * @return 0
 */
KORVEL_FLAT int VB_V_MinMaxLng2(const int* x, int n, double* min, double* max, short int bSkipMissing);

/**
 * The smallest of all elements, missing ones too, and its position.
 *
 * @param x     [in] n numbers
 * @param n     number of elements; below 2 only the first is read
 * @param pos   [out] one integer: the position, from 1
 * @param bLast not 0: the last of equal elements; 0: the first
 * @return the element
 */
KORVEL_FLAT double VB_V_MinAndMinPos(const double* x, int n, int* pos, short int bLast);

/**
 * The largest of all elements, missing ones too, and the first of its positions.
 *
 * @like VB_V_MinAndMinPos
 */
KORVEL_FLAT double VB_V_MaxAndMaxPos(const double* x, int n, int* pos);

#endif
