/**
 * @file
 * Changing the values of a vector: adding, replacing, filling, exchanging, and closing the gaps of missing
 * ones.
 *
 * A vector is the first `n` elements of a `matrix`, read and written through its checked access. With `n`
 * below 1 nothing happens.
 */
#ifndef KORVEL_TABLES_VECTOR_VALUES_H
#define KORVEL_TABLES_VECTOR_VALUES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Adds a number to the elements that are not flagged, missing ones too.
 *
 * @param x        the vector, in place
 * @param n        number of elements
 * @param val      the number
 * @param iMissing `n` flags; an element with a flag other than 0 stays as it is. Null: none is flagged
 */
KORVEL_API void V_PlusVal(matrix<double>* x, int n, double val, short int* iMissing);

/** Adds a number to the elements that are not `MISSING_DBL`. */
KORVEL_API void V_PlusVal2(matrix<double>* x, int n, double val);

/**
 * Copies a vector, in which each element that equals a number, exactly, becomes another.
 *
 * @param x        the vector
 * @param n        number of elements
 * @param oldValue the number to replace; a NaN equals none
 * @param newValue what it becomes
 * @param out      receives `n` elements, sized by the caller; it may be `x`
 */
KORVEL_API void V_ReplaceVal(matrix<double>* x, int n, double oldValue, double newValue, matrix<double>* out);

/** The same in place. */
KORVEL_API void V_ReplaceVal2(matrix<double>* x, int n, double oldValue, double newValue);

/** Sets every text of a vector to one text. */
KORVEL_API void V_SetToValueStr(matrix<text>* x, int n, text value);

/**
 * Moves the elements above `MISSING_DBL` to the front, in their order; a NaN is not above. The elements
 * behind them stay as they were.
 *
 * @param x the vector, in place
 * @param n number of elements
 * @param m receives how many were moved or already stood there
 */
KORVEL_API void V_CleanVectDbl2(matrix<double>* x, int n, int& m);

/** The same, with the `n` weights `w` moved along. */
KORVEL_API void V_CleanVectDblW2(matrix<double>* x, int n, matrix<double>* w, int& m);

namespace korvel
{

/** Sets every element to one value. For numbers and texts. */
template <class T>
void setToValue(matrix<T>& x, int n, const T& value);

/** Exchanges the elements of two vectors. For `double` and `text`. */
template <class T>
void swapVectors(matrix<T>& a, int n, matrix<T>& b);

} // namespace korvel

#endif
