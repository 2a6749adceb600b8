/**
 * @file
 * Square tables and their symmetry, dense and as column chunks. Cells are reached through the checked access;
 * an order below 1 has no cells.
 */
#ifndef KORVEL_TABLES_SYMMETRIC_H
#define KORVEL_TABLES_SYMMETRIC_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Makes a table symmetric: both cells of a pair (i, j), (j, i) become their mean `(a + b) / 2`. A missing
 * cell (equal to `MISSING_DBL`) takes the value of the other; two missing ones stay. The diagonal stays.
 *
 * @param x    `rows` by `cols`, of which the square in the top left corner is treated
 * @param rows rows of the table
 * @param cols columns of the table
 */
KORVEL_API void M_Symmetrize(matrix<double>*& x, int rows, int cols);
/** The same on `cols` chunks. */
KORVEL_API void M_SymmetrizeSPV(matrix<double>** x, int rows, int cols);

/**
 * Tells whether a table of order `n` is symmetric.
 * @return -1 when the two cells of every pair are exactly equal, two missing ones too, and for `n` below 2;
 * 0 otherwise, also when a NaN is off the diagonal
 */
KORVEL_API short int M_IsSymmetric(matrix<double>* x, int n);
/** The same on `n` chunks. */
KORVEL_API short int M_IsSymmetricSPV(matrix<double>** x, int n);

/** Tells whether all cells of the diagonal of a table of order `n` exactly equal the first: -1, or 0. It is
 * so for `n` below 2. */
KORVEL_API short int M_IsDiagConstant(matrix<double>* x, int n);

/**
 * Packs a symmetric table: its lower triangle row after row, element (i, j) with j <= i, from 1, at place
 * i(i - 1)/2 + j.
 *
 * @param x the table of order `n`; its upper half is not read
 * @param n order
 * @param v receives n(n + 1)/2 elements, sized by the caller; its `oobValue` is then the last cell stored
 */
KORVEL_API void M_CopySymMatToVector(matrix<double>* x, int n, matrix<double>* v);

/** Unpacks such a vector into both halves of a table of order `n`, sized by the caller. */
KORVEL_API void M_CopyVectorToSymMat(matrix<double>* v, int n, matrix<double>* x);

#endif
