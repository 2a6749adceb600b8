/**
 * @file
 * Smallest and largest elements of one vector, with and without their positions.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. A missing element is one that
 * equals `MISSING_DBL`; integers are compared with it as numbers, so that none of them is missing.
 *
 * Elements are compared in ascending order with the first of them, by `<` and `>`: of equal ones the first
 * stays, of two zeros too; a NaN stays when it comes first, and is passed over afterwards.
 */
#ifndef KORVEL_STATISTICS_VECTOR_EXTREMES_H
#define KORVEL_STATISTICS_VECTOR_EXTREMES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The smallest element that is kept.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags, not null; an element with a non-zero flag is left out, and so is a missing one
 * @return the element; `MISSING_DBL` when none is kept
 */
KORVEL_API double V_Min(matrix<double>* x, int n, short int* iMissing);
KORVEL_API double V_Min(matrix<int>* x, int n, short int* iMissing);

/**
 * The largest element that is kept.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one. Null: no
 *                 flag is set
 * @return the element; `MISSING_DBL` when none is kept
 */
KORVEL_API double V_Max(matrix<double>* x, int n, short int* iMissing);
KORVEL_API double V_Max(matrix<int>* x, int n, short int* iMissing);

/**
 * The smallest element that is not missing.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the element; `MISSING_DBL` when there is none
 */
KORVEL_API double V_Min2(const matrix<double>& x, int n);
KORVEL_API double V_Min2(matrix<double>* x, int n);
KORVEL_API double V_Min2(matrix<int>* x, int n);

/**
 * The largest element that is not missing.
 *
 * @param x the vector, `n` elements
 * @param n number of elements to read
 * @return the element; `MISSING_DBL` when there is none
 */
KORVEL_API double V_Max2(const matrix<double>& x, int n);
KORVEL_API double V_Max2(matrix<double>* x, int n);

/** The same of integers: the element itself, or `MISSING_LNG` when there is none. */
KORVEL_API int V_Max2(matrix<int>* x, int n);

/**
 * The smallest and the largest element that are kept.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param min      receives the smallest; `MISSING_DBL` when none is kept
 * @param max      receives the largest; `MISSING_DBL` when none is kept
 * @param iMissing `n` flags, not null; an element with a non-zero flag is left out, and so is a missing one
 */
KORVEL_API void V_MinMax(matrix<double>* x, int n, double* min, double* max, short int* iMissing);
KORVEL_API void V_MinMax(matrix<int>* x, int n, double* min, double* max, short int* iMissing);

/**
 * The smallest and the largest element. With `bSkipMissing` not 0 only the missing elements in front of the
 * first one that is present are passed over; one that comes later is compared like any other, and is then
 * the smallest.
 *
 * @param x            the vector, at least one element
 * @param n            number of elements to read
 * @param min          receives the smallest; `MISSING_DBL` when missing elements are passed over and there is
 *                     no other
 * @param max          receives the largest; in that case element 1
 * @param bSkipMissing 0: no element is passed over
 */
KORVEL_API void V_MinMax2(matrix<double>* x, int n, double* min, double* max, short int bSkipMissing);
KORVEL_API void V_MinMax2(matrix<int>* x, int n, double* min, double* max, short int bSkipMissing);

/**
 * The smallest of all elements, missing ones too, and its position.
 *
 * @param x     the vector, at least one element
 * @param n     number of elements to read; below 2 only the first is
 * @param pos   receives the position, from 1
 * @param bLast of equal elements, true takes the last, false the first
 * @return the element
 */
KORVEL_API double V_MinAndMinPos(matrix<double>* x, int n, int* pos, bool bLast);

/**
 * The largest of all elements, missing ones too, and the first of its positions.
 *
 * @param x   the vector, at least one element
 * @param n   number of elements to read; below 2 only the first is
 * @param pos receives the position, from 1
 * @return the element
 */
KORVEL_API double V_MaxAndMaxPos(matrix<double>* x, int n, int* pos);
KORVEL_API double V_MaxAndMaxPos(matrix<int>* x, int n, int* pos);

#endif
