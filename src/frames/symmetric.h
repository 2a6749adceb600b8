/**
 * @file
 * Flat functions: square tables, their symmetry and their triangles.
 */
#ifndef KORVEL_FRAMES_SYMMETRIC_H
#define KORVEL_FRAMES_SYMMETRIC_H

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
KORVEL_FLAT short int VB_M_IsSymmetric(double* x, int n);

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
KORVEL_FLAT short int VB_M_IsDiagConstant(double* x, int n);

/**
 * Packs a symmetric table: its lower triangle row after row.
 *
 * @param x [in] n by n numbers; the upper half is not read
 * @param n order
 * @param v [out] n(n + 1)/2 numbers: cell (i, j) with j <= i at place i(i - 1)/2 + j, from 1; may be x
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopySymMatToVector(double* x, int n, double* v);

/**
 * Unpacks a vector that holds a triangle row after row into both halves of a table.
 *
 * @param v [in] n(n + 1)/2 numbers
 * @param n order
 * @param x [out] n by n numbers; may be v
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopyVectorToSymMat(double* v, int n, double* x);

/**
 * Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative
 * cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing
 * cells off the diagonal are passed over.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of x
 * @param cols columns of x
 * @return 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
 * table that is not square or has no rows
 */
KORVEL_FLAT int VB_M_CheckIfSimOrDissim(double* x, int rows, int cols);

/**
 * Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative
 * cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing
 * cells off the diagonal are passed over.
 *
 * @param x    [in] chunked table of cols columns of rows numbers
 * @param rows rows of x
 * @param cols columns of x
 * @return 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
 * table that is not square or has no rows
 */
KORVEL_FLAT int VB_M_CheckIfSimOrDissimSPV(Hostarray** x, int rows, int cols);

/**
 * Turns similarities into dissimilarities: every cell becomes the largest cell of the table less itself.
 * Missing cells stay and do not count as the largest.
 *
 * @param x [inout] n by n numbers
 * @param n order
 * @return 0
 */
KORVEL_FLAT int VB_M_TransformSimToDissim(double* x, int n);

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
