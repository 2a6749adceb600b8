/**
 * @file
 * Flat functions: sorting a vector in place. Equal elements keep their order in both directions; the missing
 * number is smaller than every other finite number; the place of a NaN is not defined. A range that is empty
 * or not inside the vector changes nothing.
 */
#ifndef KORVEL_FRAMES_ORDERING_SORT_VECTOR_H
#define KORVEL_FRAMES_ORDERING_SORT_VECTOR_H

#include "frames/types.h"

/**
 * Sorts positions `from..to` of a vector of numbers.
 *
 * @param sa      [inout] host array of Double, one column, sorted in place
 * @param ignored not used; the array knows its length
 * @param from    first position, from 1
 * @param to      last position, included
 * @param bDesc   not 0: descending
 * @return 0
 */
KORVEL_FLAT int VB_SortQVectorDbl(SAFEARRAY** sa, int ignored, int from, int to, short int bDesc);

/**
 * Sorts positions `from..to` of a vector of integers.
 *
 * @like VB_SortQVectorDbl, Long for Double
 */
KORVEL_FLAT int VB_SortQVectorLng(SAFEARRAY** sa, int ignored, int from, int to, short int bDesc);

/**
 * Sorts positions `from..to` of a vector of texts by 16-bit code units, a prefix before its extensions.
 *
 * @param x     [inout] n texts
 * @param n     number of texts
 * @param from  first position, from 1
 * @param to    last position, included
 * @param bDesc not 0: descending
 * @return 0
 */
KORVEL_FLAT int VB_SortQVectorStr(OLECHAR** x, int n, int from, int to, short int bDesc);

/**
 * Sorts positions `from..to` of a vector of texts, and tells where each text came from.
 *
 * @like VB_SortQVectorStr
 * @param index [out] n numbers: the original position, from 1, of the text that now stands there
 */
KORVEL_FLAT int Cpp_SortQVector2Str(OLECHAR** x, int n, int from, int to, short int bDesc, int* index);

/**
 * Tells whether a vector is in ascending order. Missing values are compared like any other.
 *
 * @param x       [in] n numbers
 * @param n       number of elements; below 2 the vector is sorted
 * @param bStrict not 0: every element must be smaller than the next one; 0: not greater
 * @return -1 when sorted, otherwise 0
 */
KORVEL_FLAT short int VB_V_IsSorted(const double* x, int n, short int bStrict);

#endif
