/**
 * @file
 * Flat functions: one number from a table.
 *
 * Tables are column after column. Missing cells are numbers, where nothing else is said.
 */
#ifndef KORVEL_FRAMES_LINALG_REDUCTIONS_H
#define KORVEL_FRAMES_LINALG_REDUCTIONS_H

#include "frames/types.h"

/**
 * The trace: the sum of a(i, i).
 *
 * @param a [in] n by n cells
 * @param n rows and columns; below 1 nothing is read
 * @return the sum; 0.0 for n below 1
 */
KORVEL_FLAT double VB_M_Trace(const double* a, int n);

/**
 * The trace of a' * b: the sum over the columns of the inner products of like columns. No square root is
 * taken, so that with b = a it is the square of the Frobenius norm.
 *
 * @param a [in] n by p cells
 * @param n rows
 * @param p columns
 * @param b [in] n by p cells
 * @return the trace; 0.0 when n or p is below 1
 */
KORVEL_FLAT double VB_M_FrobeniusNorm(const double* a, int n, int p, const double* b);

/**
 * The row sum norm: the largest sum of magnitudes of a row. Only cells greater than the missing value are
 * added, so that missing ones, -infinity and NaN are not.
 *
 * @param a [in] n by m cells
 * @param n rows
 * @param m columns
 * @return the norm; 0.0 for n below 1
 */
KORVEL_FLAT double Cpp_M_RowSumNorm(const double* a, int n, int m);

#endif
