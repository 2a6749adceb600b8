/**
 * @file
 * Flat functions: changing the values of a vector.
 */
#ifndef KORVEL_FRAMES_TABLES_VECTOR_VALUES_H
#define KORVEL_FRAMES_TABLES_VECTOR_VALUES_H

#include "frames/types.h"

/**
 * Adds a number to the elements that are not flagged, missing ones too.
 *
 * @param x        [inout] n numbers
 * @param n        number of elements
 * @param val      the number
 * @param iMissing [in] n flags; an element with a flag other than 0 stays. Null: none is flagged
 * @return 0
 */
KORVEL_FLAT int VB_V_PlusVal(double* x, int n, double val, const short int* iMissing);

/**
 * Adds a number to the elements that are not missing.
 *
 * @param x   [inout] n numbers
 * @param n   number of elements
 * @param val the number
 * @return 0
 */
KORVEL_FLAT int VB_V_PlusVal2(double* x, int n, double val);

/**
 * Copies a vector, in which each element that equals a number, exactly, becomes another.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param oldValue the number to replace
 * @param newValue what it becomes
 * @param out      [out] n numbers; it may be x
 * @return 0
 */
KORVEL_FLAT int VB_V_ReplaceVal(const double* x, int n, double oldValue, double newValue, double* out);

/**
 * Replaces each element that equals a number, exactly, by another.
 *
 * @param x        [inout] n numbers
 * @param n        number of elements
 * @param oldValue the number to replace
 * @param newValue what it becomes
 * @return 0
 */
KORVEL_FLAT int VB_V_ReplaceVal2(double* x, int n, double oldValue, double newValue);

/**
 * Copies a vector without one element.
 *
 * @param x   [in] n numbers
 * @param n   number of elements
 * @param pos the element to leave out, from 1. One above n or below 1 leaves out none, so that the last or
 * the first falls outside
 * @param out [out] n - 1 numbers; it may be x
 * @return 0
 */
KORVEL_FLAT int VB_V_RemoveVal(const double* x, int n, int pos, double* out);

/**
 * Sets every element to one number.
 *
 * @param x     [out] n numbers
 * @param n     number of elements
 * @param value the value
 * @return 0
 */
KORVEL_FLAT int VB_V_SetToValue(double* x, int n, double value);

/**
 * Sets the elements of a host array to one number. The array keeps its size.
 *
 * @param x     [inout] host array of Double
 * @param n     number of elements
 * @param value the value
 * @return 0
 */
KORVEL_FLAT int Cpp_V_SetToValue_ST(SAFEARRAY** x, int n, double value);

/**
 * Sets every element to one integer.
 *
 * @param x     [out] n integers
 * @param n     number of elements
 * @param value the value
 * @return 0
 */
KORVEL_FLAT int VB_V_SetToValueLng(int* x, int n, int value);

/**
 * Sets the elements of a host array to one integer. The array keeps its size.
 *
 * @param x     [inout] host array of Long
 * @param n     number of elements
 * @param value the value
 * @return 0
 */
KORVEL_FLAT int Cpp_V_SetToValueLng_ST(SAFEARRAY** x, int n, int value);

/**
 * Sets every element to one text.
 *
 * @param x     [inout] n texts, replaced where they differ
 * @param n     number of elements
 * @param value [in] one text
 * @return 0
 */
KORVEL_FLAT int VB_V_SetToValueStr(OLECHAR** x, int n, const OLECHAR* value);

/**
 * Copies numbers to integers, without their fraction. What no integer can hold becomes -2147483648.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @param y [out] n integers
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CopyDoubleToLong(const double* x, int n, int* y);

/**
 * Copies integers to numbers.
 *
 * @param x [in] n integers
 * @param n number of elements
 * @param y [out] n numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CopyLongToDouble(const int* x, int n, double* y);

/**
 * Exchanges two vectors of numbers.
 *
 * @param a [inout] n numbers
 * @param n number of elements
 * @param b [inout] n numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_V_SwapDbl(double* a, int n, double* b);

/**
 * Exchanges two vectors of texts.
 *
 * @param a [inout] n texts, replaced where they differ
 * @param n number of elements
 * @param b [inout] n texts, replaced where they differ
 * @return 0
 */
KORVEL_FLAT int Cpp_V_SwapStr(OLECHAR** a, int n, OLECHAR** b);

/**
 * Moves the numbers above the missing one to the front, in their order. A NaN is not above. What stands
 * behind them stays.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @param m [out] one integer: how many they are
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CleanVectDbl2(double* x, int n, int* m);

/**
 * The same, with weights moved along.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @param w [inout] n weights
 * @param m [out] one integer: how many they are
 * @return 0
 */
KORVEL_FLAT int Cpp_V_CleanVectDblW2(double* x, int n, double* w, int* m);

#endif
