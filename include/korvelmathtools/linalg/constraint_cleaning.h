/**
 * @file
 * Determinants, factors and inverses of the free part of a table, in models of which some parameters are held
 * fixed: the table keeps its full order, and rows and columns of constrained parameters do not take part.
 *
 * Position i is free when its constraint is exactly 0. The order of the reduced table is `n` less the number
 * of constraints above 0. A constraint that is neither (a negative number, a missing value, a NaN) takes its
 * position out of the free ones but not out of that order: for each of them the reduced table ends with a row
 * and a column of zeros, which makes it singular.
 */
#ifndef KORVEL_LINALG_CONSTRAINT_CLEANING_H
#define KORVEL_LINALG_CONSTRAINT_CLEANING_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The determinant of the reduced table, by `M_Determinant` with mode 0.
 *
 * @param A           square table of `n` by `n`; only free rows and columns are read
 * @param n           order
 * @param constraints `n` elements, read by linear index
 * @param error       receives what `M_Determinant` tells
 * @return the determinant, as `M_Determinant` returns it; 1.0 when no position is left
 * @throws std::bad_alloc when there is no memory for the reduced table
 */
KORVEL_API double M_DeterminantCleaned(matrix<double>* A, int n, matrix<double>* constraints,
                                       short int* error);

/** The same, with constraints that are integers. */
KORVEL_API double M_DeterminantCleaned(matrix<double>* A, int n, matrix<int>* constraints, short int* error);

/**
 * The same for a symmetric table held as a triangle.
 *
 * @param A           `n` chunks, of which the j-th holds column j from the diagonal down
 * @param n           order
 * @param constraints `n` elements
 * @param error       receives what `M_Determinant` tells
 * @return as above
 * @throws std::bad_alloc when there is no memory for the reduced table
 */
KORVEL_API double M_DeterminantCleanedSPV_T(matrix<double>** A, int n, matrix<int>* constraints,
                                            short int* error);

/**
 * Cholesky factor of the reduced table, with the sums of `M_CholDecomp` and another rule for pivots: one
 * fails when it is below 0. A pivot of exactly 0 fails when there are elements below it, so that the last one
 * may be 0 and a positive semidefinite table pass.
 *
 * @param A           symmetric table of `n` by `n`
 * @param n           order
 * @param constraints `n` elements
 * @param L           `n` by `n`; the columns of free positions are written whole, with 0 in the rows of other
 *                    positions. The columns of other positions stay as they are, and so does all of L on
 *                    failure. It is not cleared
 * @return 0, or -1 when a pivot fails
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_CholDecompCleaned(matrix<double>* A, int n, matrix<double>* constraints, matrix<double>* L);

/** The same, with constraints that are integers. */
KORVEL_API int M_CholDecompCleaned(matrix<double>* A, int n, matrix<int>* constraints, matrix<double>* L);

#endif
