/**
 * @file
 * Sums over one vector, or two. Every sum starts at 0.0 and adds in ascending index order in double
 * precision.
 *
 * A vector is the first `n` elements of a `matrix`, read through its checked access: a vector shorter than
 * `n` reads the matrix's `oobValue` for the elements that it does not have. With `n` below 1 nothing is read.
 */
#ifndef KORVEL_STATISTICS_VECTOR_SUMS_H
#define KORVEL_STATISTICS_VECTOR_SUMS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weighted sum of a vector: the sum of `w[i] * x[i]`.
 *
 * @param x        the vector, `n` elements
 * @param n        number of elements to read
 * @param iMissing `n` flags; an element with a non-zero flag is left out. Null: none is
 * @param w        `n` weights; null: all 1.0
 * @return the sum over the elements whose flag is 0 and of which neither value nor weight is `MISSING_DBL`;
 * 0.0 when there are none. A NaN counts as present.
 */
KORVEL_API double V_Sum(matrix<double>* x, int n, short int* iMissing, matrix<double>* w);

#endif
