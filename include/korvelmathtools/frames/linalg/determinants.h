/**
 * @file
 * Flat functions: determinants of square tables.
 */
#ifndef KORVEL_FRAMES_LINALG_DETERMINANTS_H
#define KORVEL_FRAMES_LINALG_DETERMINANTS_H

#include "frames/types.h"

/**
 * The determinant, as the exponential of the logarithms of the pivots of an LU decomposition.
 *
 * @param a      [in] n by n numbers, column after column
 * @param n      rows and columns
 * @param status [out] one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is above
 * 709, or memory is short; 1: all of the first column is NaN
 * @return the determinant; 0.0 for a singular table, for a pivot below 1e-24 in magnitude, for a logarithm
 * below -708, for a row of zeros and a first column of NaN; 1.79769313486231e308 when the logarithm is above
 * 709 or memory is short; 1.0 when n is 0
 */
KORVEL_FLAT double VB_M_Determinant(const double* a, int n, short int* status);

/**
 * The logarithm of the determinant. A pivot of exactly 0 counts as 1e-20.
 *
 * @param a [in] n by n numbers, column after column
 * @param n rows and columns
 * @return the logarithm; the missing value when the determinant is negative or a row has only zeros
 */
KORVEL_FLAT double Cpp_M_LogDeterminant(const double* a, int n);

/**
 * The determinant of a triangular table: the product of its diagonal, by logarithms.
 *
 * @param a      [in] n by n numbers, column after column, of which the diagonal is read
 * @param n      rows and columns
 * @param status [out] one status: 0
 * @return the determinant; 0.0 when an element of the diagonal is 0
 */
KORVEL_FLAT double VB_M_DeterminantTriang(const double* a, int n, short int* status);

#endif
