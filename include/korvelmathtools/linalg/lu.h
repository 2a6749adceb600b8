/**
 * @file
 * The LU decomposition of a square table.
 */
#ifndef KORVEL_LINALG_LU_H
#define KORVEL_LINALG_LU_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * LU decomposition by Crout's method with implicit row scaling (Golub and Van Loan, Matrix Computations,
 * chapter 3): rows swapped, A = L·U with a unit diagonal in L. Element (i, j) loses its products with the
 * columns before it one by one, in ascending order. In each column that row is chosen whose element, divided
 * by the largest magnitude of the row at the start, is the largest in magnitude; of equal ones the last.
 *
 * A pivot of exactly 0 becomes 1e-20 and the work goes on, so that a singular table without a row of zeros
 * has no status of its own. That threshold is absolute: it makes no difference to a table of ordinary size,
 * but the factors of a table whose cells are near 1e-20 or below are then those of another table.
 *
 * @param A      square table, of which the first `n` by `n` block is replaced by its factors: the multipliers
 *               below the diagonal, U on it and above, in the order of rows after the swaps
 * @param n      order; for 0 or less nothing but `pivots`, `sign` and `error` is written
 * @param pivots receives, `n` by 1, in element j the row, counted from 1, that was swapped with row j. It is
 *               given that size when it has fewer rows or no column, and otherwise its first `n` elements are
 *               set to 0 first
 * @param sign   receives 1, or -1 after an odd number of swaps
 * @param error  receives 0; -1 when a row has only zeros (or NaN), and A is then as it was; 1 when the first
 *               column has no pivot, because each of its elements is a NaN once it is scaled. A missing cell
 *               is a number like others. Where a later column has no pivot, the row that was the last to be
 *               chosen is taken again
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_LUDecomp(matrix<double>* A, int n, matrix<int>* pivots, int& sign, short int* error);

#endif
