/**
 * @file
 * The inverse of a triangular table.
 */
#ifndef KORVEL_LINALG_TRIANGULAR_INVERSE_H
#define KORVEL_LINALG_TRIANGULAR_INVERSE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Inverse of a triangular table by back substitution: element (i, j) is -inverse(i,i) times the running sum,
 * in ascending k, of T(i,k)·inverse(k,j).
 *
 * What counts as singular is a diagonal element whose magnitude is below the tolerance, which is absolute: a
 * table of tiny numbers fails although it could be inverted, and a NaN passes.
 *
 * @param T         `n` by `n`, of which one triangle and the diagonal are read, through the checked access.
 *                  Missing cells are numbers
 * @param n         order
 * @param lowerFlag 0: T is upper triangular; otherwise it is lower triangular
 * @param inverse   receives the same triangle and the diagonal; the other triangle is not written and the
 *                  table not resized, so the caller passes zeros. Not T
 * @param tolerance see above
 * @return 0, or -1 at the first diagonal element below the tolerance; the diagonal of `inverse` is then
 *         stored up to there, and nothing else
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_InverseTriang(matrix<double>* T, int n, short int lowerFlag, matrix<double>*& inverse,
                               double tolerance);

#endif
