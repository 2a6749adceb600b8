/**
 * @file
 * Flat functions: square tables and their symmetry.
 */
#ifndef KORVEL_FRAMES_TABLES_SYMMETRIC_H
#define KORVEL_FRAMES_TABLES_SYMMETRIC_H

#include "frames/types.h"

/**
 * Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell takes the
 * value of the other; two missing ones stay.
 *
 * @param x    [inout] rows by cols numbers; the square in the top left corner is treated
 * @param rows rows of x
 * @param cols columns of x
 * @return 0
 */
KORVEL_FLAT int VB_M_Symmetrize(double* x, int rows, int cols);

/**
 * Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean. A missing cell takes the
 * value of the other; two missing ones stay.
 *
 * @param x    [inout] chunked table of cols columns of rows numbers; the square in the top left corner is
 * treated
 * @param rows rows of x
 * @param cols columns of x
 * @return 0
 */
KORVEL_FLAT int VB_M_SymmetrizeSPV(Hostarray** x, int rows, int cols);

/**
 * Tells whether a square table is symmetric.
 *
 * @param x [in] n by n numbers
 * @param n order
 * @return -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2; otherwise 0
 */
KORVEL_FLAT short int VB_M_IsSymmetric(const double* x, int n);

/**
 * Tells whether a square table is symmetric.
 *
 * @param x [in] chunked table of n columns of n numbers
 * @param n order
 * @return -1 when the cells of every pair are exactly equal, missing ones too, and for n below 2; otherwise 0
 */
KORVEL_FLAT short int VB_M_IsSymmetricSPV(Hostarray** x, int n);

/**
 * Tells whether the diagonal of a square table is constant.
 *
 * @param x [in] n by n numbers
 * @param n order
 * @return -1 when all its cells exactly equal the first, and for n below 2; otherwise 0
 */
KORVEL_FLAT short int VB_M_IsDiagConstant(const double* x, int n);

/**
 * Packs a symmetric table: its lower triangle row after row.
 *
 * @param x [in] n by n numbers; the upper half is not read
 * @param n order
 * @param v [out] n * (n + 1) / 2 numbers: cell (i, j) with j <= i at place i(i - 1)/2 + j, from 1; may be x
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopySymMatToVector(const double* x, int n, double* v);

/**
 * Unpacks a vector that holds a triangle row after row into both halves of a table.
 *
 * @param v [in] n * (n + 1) / 2 numbers
 * @param n order
 * @param x [out] n by n numbers; may be v
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopyVectorToSymMat(const double* v, int n, double* x);

#endif
