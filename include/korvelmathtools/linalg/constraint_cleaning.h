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

/**
 * The inverse of the reduced table, by LU decomposition as in `Inverse1SPV` with a positive tolerance: what
 * is singular has a pivot whose magnitude is at most 1e-8. A singular table gets the generalised inverse of
 * `M_InverseG2` with the tolerance 1e-12 instead, which is a full inverse where all pivots lie between the
 * two. Both limits are absolute: a table of tiny scale counts as singular. A reduced table of order 1 has the
 * reciprocal of its only cell, a cell of exactly 0 counting as 1e-12.
 *
 * @param n           order
 * @param constraints `n` elements
 * @param H           `n` by `n`; only free rows and columns are read
 * @param inverse     `n` by `n`; the columns of free positions are written whole, with 0 in the rows of other
 *                    positions. The columns of other positions stay as they are: the caller clears them
 * @return 0, or 1 when the reduced table was singular
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int cCleanConstraintsAndInvert(int n, matrix<double> const& constraints, matrix<double> const& H,
                                          matrix<double>& inverse);

/** The same, with constraints that are integers. */
KORVEL_API int cCleanConstraintsAndInvert(int n, matrix<int> const& constraints, matrix<double> const& H,
                                          matrix<double>& inverse);

/** Both, given by pointers. */
KORVEL_API int cCleanConstraintsAndInvert(int n, matrix<double>* constraints, matrix<double>* H,
                                          matrix<double>* inverse);
KORVEL_API int cCleanConstraintsAndInvert(int n, matrix<int>* constraints, matrix<double>* H,
                                          matrix<double>* inverse);

/**
 * The inverse of the reduced table of a triangular one, by `M_InverseTriang` with the tolerance 1e-12. A
 * reduced table of order 1 as above.
 *
 * @param n           order
 * @param constraints `n` elements
 * @param T           `n` by `n`, triangular
 * @param lowerFlag   0: T is upper triangular; otherwise it is lower triangular
 * @param inverse     written as above; untouched on failure
 * @return 0, or -1 when an element of the diagonal is below 1e-12 in magnitude
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int cCleanConstraintsAndInvertTriang(int n, matrix<double>* constraints, matrix<double>* T,
                                                short int lowerFlag, matrix<double>*& inverse);

/** The same, with constraints that are integers. */
KORVEL_API int cCleanConstraintsAndInvertTriang(int n, matrix<int>* constraints, matrix<double>* T,
                                                short int lowerFlag, matrix<double>* inverse);

#endif
