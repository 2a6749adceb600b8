/**
 * @file
 * Determinants of square tables, from the diagonal of their LU decomposition.
 */
#ifndef KORVEL_LINALG_DETERMINANTS_H
#define KORVEL_LINALG_DETERMINANTS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The determinant, from the factors of `M_LUDecomp`: the exponential of the sum of the logarithms of the
 * magnitudes of U's diagonal, taken in order, with the sign of the swaps and of the negative elements. It has
 * the digits that a sum of logarithms keeps: the determinant of a table of whole numbers need not be whole.
 *
 * The thresholds are absolute. A table in whose decomposition an element of the diagonal is below 1e-24 in
 * magnitude has the determinant 0.0, however regular it is: so has 1e-25 times the identity.
 *
 * @param A     square table, of which the first `n` by `n` block is read; it is not changed
 * @param n     order; for 0 the determinant is 1.0
 * @param error receives what `M_LUDecomp` tells: 0; -1 when a row has only zeros; 1 when the first column has
 *              only NaN. Besides -1 when the logarithm is above 709, unless `mode` is -1, and when memory is
 *              short: no exception leaves
 * @param mode  true only when -1: where the logarithm of the magnitude is above 709 that logarithm, with the
 *              determinant's sign, is returned in its place
 * @return the determinant; 0.0 when `error` tells of the decomposition, when a pivot was exactly 0 (a
 *         singular table), when an element of the diagonal is below 1e-24 in magnitude, and when the
 * logarithm is below -708. 1.79769313486231e308, whatever the sign, where the logarithm is above 709 and
 * `mode` is not -1, and when memory is short. A NaN on the diagonal gives a NaN
 */
KORVEL_API double M_Determinant(matrix<double>* A, int n, short int* error, short int mode);

/**
 * The logarithm of the determinant: the sum of the logarithms of the magnitudes of the diagonal of U as
 * `M_LUDecomp` leaves it. A pivot that was exactly 0 counts as the 1e-20 that stands in its place, so that a
 * singular table has a logarithm too.
 *
 * @param A square table, of which the first `n` by `n` block is read; it is not changed
 * @param n order; for 0 the logarithm is 0.0
 * @return the logarithm; `MISSING_DBL` when the determinant is negative or a row has only zeros. A first
 *         column of NaN ends the decomposition, and the diagonal is read as it then stands: 0.0 when an
 *         element of it is 0, otherwise a NaN
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API double M_LogDeterminant(matrix<double>* A, int n);

/**
 * The determinant of a triangular table: the exponential of the sum of the logarithms of the magnitudes of
 * its diagonal, with the sign of the negative ones. No bound is put on the sum.
 *
 * @param A     triangular table, upper or lower; only the first `n` elements of its diagonal are read
 * @param n     order; for 0 or less the determinant is 1.0
 * @param error receives 0
 * @return the determinant; 0.0 when an element of the diagonal is exactly 0
 */
KORVEL_API double M_DeterminantTriang(matrix<double>* A, int n, short int* error);

#endif
