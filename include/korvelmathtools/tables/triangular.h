/**
 * @file
 * Square tables of which only one half is filled.
 */
#ifndef KORVEL_TABLES_TRIANGULAR_H
#define KORVEL_TABLES_TRIANGULAR_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Tells which half of a square table is filled, and fills the other half from it on request.
 *
 * A cell is empty when it exactly equals 0.0 or `MISSING_DBL`; a NaN is filled. The diagonal is not looked
 * at.
 *
 * @param x       table of order `n`
 * @param n       order
 * @param bMirror -1: unless the result is 0, the filled half is copied over the empty one, cell (i, j) onto
 *                cell (j, i), which leaves the table symmetric; at result 2 the upper half is the one that is
 *                copied. Any other value changes nothing
 * @return 2 when every cell below the diagonal is empty, and for `n` below 2; 1 when some cell below it is
 * filled and every cell above it is empty; 0 when both halves have a filled cell
 */
KORVEL_API int M_IsTriangular(matrix<double>& x, int n, short int bMirror);
/** The same on `n` chunks. */
KORVEL_API int M_IsTriangularSPV(matrix<double>** x, int n, short int bMirror);

#endif
