/**
 * @file
 * Flat functions: the sweep of a packed symmetric table.
 */
#ifndef KORVEL_FRAMES_LINALG_PACKED_SWEEP_H
#define KORVEL_FRAMES_LINALG_PACKED_SWEEP_H

#include "frames/types.h"

/**
 * Sweeps one pivot of a symmetric table in place: after all pivots the table is the negative of its inverse.
 * The pivot is not tested, so that a zero gives infinities. Outside of the pivot's row and column a result
 * whose magnitude is below 1e-12 becomes 0. Missing elements are numbers.
 *
 * @param packed [inout] n * (n + 1) / 2 numbers, the lower triangle row after row
 * @param n      rows and columns of the table; at most 65535
 * @param k      number of the pivot, counted from 1
 * @return 0
 */
KORVEL_FLAT int VB_M_Sweep(double* packed, int n, int k);

#endif
