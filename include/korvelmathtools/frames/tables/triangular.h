/**
 * @file
 * Flat functions: triangles of square tables.
 */
#ifndef KORVEL_FRAMES_TABLES_TRIANGULAR_H
#define KORVEL_FRAMES_TABLES_TRIANGULAR_H

#include "frames/types.h"

/**
 * Tells which half of a square table is filled, and fills the other half from it on request. A cell is empty
 * when it is exactly 0 or missing; the diagonal is not looked at.
 *
 * @param x       [inout] n by n numbers; changed only with bMirror -1
 * @param n       order
 * @param bMirror -1: unless the result is 0, the filled half is copied over the empty one, which leaves the
 *                table symmetric; at result 2 the upper half is the one that is copied
 * @return 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is
 * filled and every cell above it is empty; 0 when both halves have a filled cell
 */
KORVEL_FLAT int VB_M_IsTriangular(double* x, int n, short int bMirror);

/**
 * Tells which half of a square table is filled, and fills the other half from it on request. A cell is empty
 * when it is exactly 0 or missing; the diagonal is not looked at.
 *
 * @param x       [inout] chunked table of n columns of n numbers; changed only with bMirror -1
 * @param n       order
 * @param bMirror -1: unless the result is 0, the filled half is copied over the empty one, which leaves the
 *                table symmetric; at result 2 the upper half is the one that is copied
 * @return 2 when every cell below the diagonal is empty, and for n below 2; 1 when some cell below it is
 * filled and every cell above it is empty; 0 when both halves have a filled cell
 */
KORVEL_FLAT int VB_M_IsTriangularSPV(Hostarray** x, int n, short int bMirror);

#endif
