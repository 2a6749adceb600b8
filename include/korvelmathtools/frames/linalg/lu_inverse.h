/**
 * @file
 * Flat functions: the inverse of a regular table by LU decomposition.
 */
#ifndef KORVEL_FRAMES_LINALG_LU_INVERSE_H
#define KORVEL_FRAMES_LINALG_LU_INVERSE_H

#include "frames/types.h"

/**
 * Inverse of a square table, column after column, by LU decomposition with row scaling and partial pivoting.
 * Missing cells are numbers.
 *
 * A table is singular when a row has only zeros, when the first column has no pivot because of NaN, or when
 * the magnitude of a pivot is at most 1e-8. The limit is not scaled to the data.
 *
 * @param a         [in] n by n numbers
 * @param n         rows and columns; below 1 nothing is done
 * @param inverse   [out] n by n numbers: left alone when the table is singular; may be the array that is read
 * @param error     [inout] one number: becomes -1 when the table is singular, and otherwise stays as it is
 * @param tolerance only its sign counts: when it is 0, negative or a NaN, the limit is 2.220446049250313e-16
 * @return 0, or -1 when the table is singular
 */
KORVEL_FLAT int VB_M_Inverse1(const double* a, int n, double* inverse, short int* error, double tolerance);

#endif
