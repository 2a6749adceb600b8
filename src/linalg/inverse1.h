/**
 * @file
 * The inverse of a regular table.
 */
#ifndef KORVEL_LINALG_INVERSE1_H
#define KORVEL_LINALG_INVERSE1_H

#include "containers/matrix.h"

/**
 * Inverse of a square table by Crout's LU decomposition with implicit row scaling, as in `M_LUDecomp`, and
 * one solution per unit vector. The solutions are sums in ascending order too, so that back substitution
 * takes off first what it has found last.
 *
 * What counts as singular is a row without anything but zeros, a first column without a pivot, or a pivot
 * whose magnitude is at most 1e-8, equality included; of the tolerance only the sign counts: when it is not
 * positive the limit is 2.220446049250313e-16. The limit is absolute and meets the pivots before the division
 * by them, not scaled: a table of numbers below 1e-8 fails however regular it is, and one of numbers of 1e10
 * may pass with pivots that are rounding error. A NaN pivot passes.
 *
 * @param A         square, of the order that its rows say; not changed. Missing cells are numbers
 * @param inverse   receives the inverse through the checked access; not resized, and left alone on failure.
 *                  May be A
 * @param error     set to -1 on failure, and otherwise left alone
 * @param tolerance see above
 * @return 0, or -1 on failure; 0 for a table without rows
 * @throws std::bad_alloc when memory is short
 */
int Inverse1(matrix<double>* A, matrix<double>* inverse, short int* error, double tolerance);

#endif
