/**
 * @file
 * Flat functions: generalised inverses by sweeping the pivots on the diagonal, one after the other. A pivot
 * whose magnitude is below the tolerance, as it stands when its turn comes, has its row and column set to 0,
 * and the sweep goes on: that is how a rank deficiency shows. The tolerance is not scaled to the data.
 * Missing cells are numbers.
 */
#ifndef KORVEL_FRAMES_LINALG_G2_SWEEP_H
#define KORVEL_FRAMES_LINALG_G2_SWEEP_H

#include "frames/types.h"

/**
 * Generalised inverse of a square table by sweeping.
 *
 * @param a         [in] n by n numbers, column after column
 * @param n         rows and columns; below 1 nothing is done
 * @param tolerance a pivot is passed over when its magnitude is below it
 * @param g         [out] n by n numbers; may be the array that is read
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InverseG2(const double* a, int n, double tolerance, double* g);

/**
 * Generalised inverse of a labelled table by sweeping. No column is resized: an element past the end of a
 * column reads as -1 and is not stored.
 *
 * @param a         [in] labelled table of numbers, n by n
 * @param n         rows and columns; below 1 nothing is done
 * @param tolerance a pivot is passed over when its magnitude is below it
 * @param g         [inout] labelled table of numbers whose columns receive n by n; its counts stay as they
 * are
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InverseG2_ST(ST_MVect* a, int n, double tolerance, ST_MVect* g);

/**
 * Generalised inverse of a square table by sweeping some of its pivots.
 *
 * @param a          [in] n by n numbers, column after column
 * @param n          rows and columns; below 1 nothing is done
 * @param selected   [in] n numbers; a pivot is swept where the number is 1
 * @param tolerance  a pivot is passed over when its magnitude is below it
 * @param g          [out] n by n numbers; may be the array that is read
 * @param zeroOthers true only when -1: row and column of a pivot that is not selected become 0 when its turn
 *                   comes. Otherwise they stay as they are then
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InverseG2Selective(const double* a, int n, const int* selected, double tolerance,
                                         double* g, short int zeroOthers);

#endif
