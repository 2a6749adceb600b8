/**
 * @file
 * Flat functions: generalised inverses and the rank by singular value decomposition. The limits below which a
 * singular value counts as 0 are not scaled to the data. Missing cells are numbers.
 */
#ifndef KORVEL_FRAMES_LINALG_GENERALIZED_INVERSE_H
#define KORVEL_FRAMES_LINALG_GENERALIZED_INVERSE_H

#include "frames/types.h"

/**
 * Moore-Penrose inverse of a square table, column after column.
 *
 * @param a         [in] n by n numbers
 * @param n         rows and columns; 0: nothing is done but setting the rank
 * @param g         [out] n by n numbers; may be the array that is read
 * @param tolerance a singular value below it is dropped
 * @param rank      [out] one number: how many singular values were kept
 * @return 0, or -1 when the decomposition has not converged; g is made of what there is then as well
 */
KORVEL_FLAT int VB_M_InvGeneralized(const double* a, int n, double* g, double tolerance, int* rank);

/**
 * Generalised inverse of a symmetric positive semidefinite table: the left singular vectors stand on both
 * sides, so that a negative eigenvalue has a positive inverse.
 *
 * @like VB_M_InvGeneralized
 */
KORVEL_FLAT int VB_M_InvGeneralizedSym(const double* a, int n, double* g, double tolerance, int* rank);

/**
 * Rank of a table, column after column: the number of singular values up to the first that is at most 1e-12.
 *
 * @param a [in] n by p numbers
 * @param n rows
 * @param p columns
 * @return the rank; 0 when n or p is 0; -1 when the decomposition has not converged
 */
KORVEL_FLAT int VB_M_Rank(const double* a, int n, int p);

#endif
