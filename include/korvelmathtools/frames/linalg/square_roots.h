/**
 * @file
 * Flat functions: square roots of symmetric tables.
 */
#ifndef KORVEL_FRAMES_LINALG_SQUARE_ROOTS_H
#define KORVEL_FRAMES_LINALG_SQUARE_ROOTS_H

#include "frames/types.h"

/**
 * A root r with r' * r = a, from the eigenvalues and eigenvectors of a. It is not symmetric. An eigenvalue
 * between -1e-12 and 0 counts as 0.
 *
 * @param a [in] n by n numbers, column after column; of the symmetric table the lower half counts
 * @param n rows and columns
 * @param r [out] n by n numbers, column after column; stays as it is unless 0 is returned. May be the array
 * that is read
 * @return 0; -1: an eigenvalue is -1e-12 or below, a cell is missing, or there is no convergence; -2: an
 * eigenvector has no length
 */
KORVEL_FLAT int Cpp_M_SquareRoot(const double* a, int n, double* r);

#endif
