/**
 * @file
 * Flat functions: the inverse of a triangular table.
 */
#ifndef KORVEL_FRAMES_LINALG_TRIANGULAR_INVERSE_H
#define KORVEL_FRAMES_LINALG_TRIANGULAR_INVERSE_H

#include "frames/types.h"

/**
 * Inverse of a triangular table by back substitution. Missing cells are numbers.
 *
 * @param t         [in] n by n numbers, column after column; the other triangle is not read
 * @param n         rows and columns; below 1 nothing is done
 * @param lowerFlag 0: t is upper triangular. Any other value: it is lower triangular
 * @param inverse   [inout] n by n numbers; receives the same triangle. The other one is not written, so the
 *                  caller passes zeros. May be the array that is read
 * @param tolerance magnitude below which a diagonal element counts as 0; not scaled to the data
 * @return 0, or -1 at the first diagonal element below the tolerance: the diagonal of `inverse` then has the
 *         reciprocals of those before it, and nothing else is written
 */
KORVEL_FLAT int VB_M_InverseTriang(const double* t, int n, short int lowerFlag, double* inverse,
                                   double tolerance);

#endif
