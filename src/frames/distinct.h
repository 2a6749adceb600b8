/**
 * @file
 * Flat functions: modes, and distinct values.
 */
#ifndef KORVEL_FRAMES_DISTINCT_H
#define KORVEL_FRAMES_DISTINCT_H

#include "frames/types.h"

/**
 * The most frequent code of a vector of codes 0, 1, 2, ...; a number x is code trunc(x + 1) - 1.
 *
 * @param x [in] n numbers; missing ones and negative codes are not counted
 * @param n number of elements
 * @return the code, the smallest of equals; missing when there is none
 */
KORVEL_FLAT double VB_V_ModeCatDbl(double* x, int n);

/**
 * The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels
 * are not counted.
 *
 * @param labels   [in] n texts
 * @param n        number of elements
 * @param iMissing [in] n flags; an element with a non-zero flag is left out. Null: none is
 * @param w        [in] n weights
 * @param mode     [inout] one text, replaced by the label, empty when there is none
 * @return 0
 */
KORVEL_FLAT int VB_V_Mode(OLECHAR** labels, int n, short int* iMissing, double* w, OLECHAR** mode);

/**
 * The label with the greatest sum of weights, the first in the order of code units of equals. Empty labels
 * are not counted.
 *
 * @param labels [in] n texts
 * @param n      number of elements
 * @param w      [in] n weights
 * @param mode   [inout] one text, replaced by the label, empty when there is none
 * @return 0
 */
KORVEL_FLAT int Cpp_V_ModeW2(OLECHAR** labels, int n, double* w, OLECHAR** mode);

/**
 * Number of distinct values; neighbours in ascending order differ by more than 2.220446049250313e-16. Missing
 * is a value.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int VB_V_NbDistinct(double* x, int n);

/**
 * Number of distinct integers.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int VB_V_NbDistinctLng(int* x, int n);

/**
 * Number of distinct texts, compared exactly. The empty text is one.
 *
 * @param x [in] n texts
 * @param n number of elements
 * @return the number; 1 for n below 1
 */
KORVEL_FLAT int Cpp_V_NbDistinctStr(OLECHAR** x, int n);

/**
 * The distinct values in ascending order: each that exceeds the one before it by more than the smaller of
 * 2.220446049250313e-16 and the range of the data.
 *
 * @param x    [in] n numbers
 * @param n    number of elements
 * @param out  [out] room for n numbers; the values
 * @param nOut [out] their number, 0 for n below 1
 * @return 0
 */
KORVEL_FLAT int VB_V_ExtractDistinct(double* x, int n, double* out, int* nOut);

#endif
