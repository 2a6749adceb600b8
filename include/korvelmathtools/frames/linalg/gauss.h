/**
 * @file
 * Flat functions: systems of linear equations by Gauss-Jordan elimination with full pivoting. Missing cells
 * are numbers.
 */
#ifndef KORVEL_FRAMES_LINALG_GAUSS_H
#define KORVEL_FRAMES_LINALG_GAUSS_H

#include "frames/types.h"

/**
 * Solves a * x = b for several right sides, and inverts a.
 *
 * @param a [inout] n by n numbers, column after column; becomes its inverse
 * @param n rows and columns of a; below 1 nothing is done
 * @param m columns of b
 * @param b [inout] n by m numbers; becomes the solution x. Null: allowed when m is 0
 * @return 0, or -2 at a pivot that is exactly 0: both tables are then as the steps before have left them
 */
KORVEL_FLAT int VB_M_Gauss(double* a, int n, int m, double* b);

/**
 * Solves a * x = b for one right side, and inverts a.
 *
 * @param a [inout] n by n numbers, column after column; becomes its inverse
 * @param n rows and columns of a; below 1 nothing is done
 * @param b [inout] n numbers; becomes the solution x
 * @return 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them
 */
KORVEL_FLAT int VB_V_Gauss(double* a, int n, double* b);

/**
 * Solves a * x = b on a labelled table and a labelled column, and inverts a. No column is resized: an element
 * past the end of a column reads as -1 and is not stored.
 *
 * @param a [inout] labelled table of numbers, n by n; becomes its inverse
 * @param n rows and columns of a; below 1 nothing is done
 * @param b [inout] labelled column of n numbers; becomes the solution x
 * @return 0, or -2 at a pivot that is exactly 0: both are then as the steps before have left them
 */
KORVEL_FLAT int Cpp_V_Gauss_ST(ST_MVect* a, int n, ST_Vect* b);

#endif
