/**
 * @file
 * The inverse of a regular table by LU decomposition.
 */
#ifndef KORVEL_LINALG_LU_INVERSE_H
#define KORVEL_LINALG_LU_INVERSE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Inverse of a table that is held as a list of columns, by Crout's LU decomposition with implicit row
 * scaling, as in `M_LUDecomp`, and one solution per unit vector (Golub and Van Loan, Matrix Computations,
 * chapter 3).
 *
 * What counts as singular is a row without anything but zeros, a first column without a pivot, or a pivot
 * whose magnitude is at most 1e-8, equality included. The limit is absolute: a table of numbers below 1e-8
 * fails however regular it is, and one of numbers of 1e10 may pass with pivots that are rounding error. A NaN
 * pivot passes.
 *
 * @param A         `nChunks` columns of `n` elements, each through its own checked access. Missing cells are
 *                  numbers
 * @param inverse   receives `n` by `n` through the checked access; not resized, and left alone on failure
 * @param n         order
 * @param nChunks   columns in the list; those of the order that the list does not have read as -1
 * @param error     set to -1 on failure, and otherwise left alone
 * @param tolerance only its sign counts: when it is not positive the limit is 2.220446049250313e-16
 * @return 0, or -1 on failure; 0 for `n` below 1
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int Inverse1SPV(matrix<double>** A, matrix<double>* inverse, int n, int nChunks, short int& error,
                           double tolerance);

#endif
