/**
 * @file
 * Flat functions: Cholesky decompositions of symmetric tables, a = l * l' with l lower triangular. A table
 * with a pivot below 1e-12 is refused, whatever its scale.
 */
#ifndef KORVEL_FRAMES_LINALG_CHOLESKY_H
#define KORVEL_FRAMES_LINALG_CHOLESKY_H

#include "frames/types.h"

/**
 * Cholesky decomposition.
 *
 * @param a [in] n by n numbers, column after column, of which the upper half is read
 * @param n rows and columns
 * @param l [out] n by n numbers, column after column; 0 above the diagonal, and, on failure, in the columns
 * that were not finished. May be the array that is read
 * @return 0; -1: a is not positive definite
 */
KORVEL_FLAT int VB_M_CholDecomp(const double* a, int n, double* l);

/**
 * Cholesky decomposition with rows and columns exchanged alike. What is brought to the front is chosen by a
 * score that takes off the pivot before only, so it is not the order of complete pivoting. The work ends at
 * the first pivot below 1e-12.
 *
 * @param a            [inout] n by n numbers, column after column
 * @param n            rows and columns
 * @param l            [out] n by n numbers, the factor of the permuted table, as far as it goes
 * @param perm         [out] n integers; element i is the number, from 1, of the variable at position i
 * @param replaceInput true only when -1: a is replaced by the permuted table, on failure too
 * @return 0; -1: a pivot was below 1e-12
 */
KORVEL_FLAT int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short int replaceInput);

#endif
