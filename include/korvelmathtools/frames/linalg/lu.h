/**
 * @file
 * Flat functions: the LU decomposition of a square table.
 */
#ifndef KORVEL_FRAMES_LINALG_LU_H
#define KORVEL_FRAMES_LINALG_LU_H

#include "frames/types.h"

/**
 * LU decomposition, in place: a, with its rows swapped, is l * u with 1 on the diagonal of l. In each column
 * the row is chosen whose element is the largest beside the largest of its row at the start, the last of
 * equal ones. A pivot of exactly 0 is replaced by 1e-20.
 *
 * @param a      [inout] n by n numbers, column after column; receives u on the diagonal and above, l below it
 * @param n      rows and columns
 * @param pivots [out] n integers; element j is the row, from 1, that was swapped with row j
 * @param sign   [out] one number: 1, or -1 after an odd number of swaps
 * @param status [out] one status: 0; -1: a row has only zeros, and a is as it was; 1: the first column has no
 * pivot, because all of it is NaN
 * @return 0
 */
KORVEL_FLAT int VB_M_LUDecomp(double* a, int n, int* pivots, double* sign, short int* status);

#endif
