/**
 * @file
 * Sorting a vector in place. Equal elements keep their order in both directions. Missing values have no
 * special treatment: the missing number is smaller than every other finite number. A sort of a vector works
 * on the calling thread alone, however long the vector.
 */
#ifndef KORVEL_ORDERING_SORT_VECTOR_H
#define KORVEL_ORDERING_SORT_VECTOR_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Sorts part of a vector: stable, by value; texts by 16-bit code units, a prefix before its extensions.
 *
 * @param x     the vector, in place
 * @param n     its number of elements
 * @param from  first position to sort, from 1
 * @param to    last position to sort, included
 * @param bDesc descending when true
 *
 * Positions outside `from..to` are neither read nor moved. `from > to`, or a range that is not inside the
 * vector, changes nothing. The place of a NaN is not defined.
 */
KORVEL_API void SortQVector(matrix<double>* x, int n, int from, int to, bool bDesc);
KORVEL_API void SortQVector(matrix<int>* x, int n, int from, int to, bool bDesc);
KORVEL_API void SortQVector(matrix<text>* x, int n, int from, int to, bool bDesc);

/**
 * `SortQVector` on texts, which also tells where each text came from.
 *
 * @param index receives `n` numbers: at each position of `from..to` the 1-based original position of the text
 * that now stands there, elsewhere the position itself
 */
KORVEL_API void SortQVector2(matrix<text>* x, int n, int from, int to, bool bDesc, matrix<int>* index);

/**
 * Tells whether a vector is in ascending order.
 *
 * @param x       the vector, `n` elements; missing values and NaN are compared like any other
 * @param n       number of elements; below 2 the vector is sorted
 * @param bStrict true: every element must be smaller than the next one; false: not greater
 * @return -1 when sorted, otherwise 0
 */
KORVEL_API short int V_IsSorted(matrix<double>* x, int n, bool bStrict);

#endif
