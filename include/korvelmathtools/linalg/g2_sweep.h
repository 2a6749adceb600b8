/**
 * @file
 * Generalised inverses by sweeping: the pivots on the diagonal are taken one after the other, each by a
 * Gauss-Jordan step in place (Goodnight, A tutorial on the SWEEP operator, The American Statistician 33,
 * 1979). After the last one the table is its inverse.
 *
 * What counts as singular is a pivot whose magnitude is below the caller's tolerance, as it stands when its
 * turn comes: its row and its column become zeros, and the sweep goes on. The result is then a generalised
 * inverse G with A·G·A = A and G·A·G = G, as far as what was left of that row and column is negligible. There
 * is no status: zeros in G show a rank deficiency. The tolerance is absolute, so that a table of tiny numbers
 * has no pivots at all, and one of huge numbers may pass a pivot that is rounding error alone. Pivots are not
 * exchanged: the results are accurate for tables whose pivots need no search (symmetric positive semidefinite
 * ones, diagonally dominant ones); in others a small pivot above the tolerance costs as many digits as it is
 * smaller than its row.
 *
 * Cells are reached through the checked access of each form of a table. Missing cells are numbers.
 */
#ifndef KORVEL_LINALG_G2_SWEEP_H
#define KORVEL_LINALG_G2_SWEEP_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Sweeps one pivot d = A(k,k) of the top left block: row k is divided by d; every other row i has A(i,k)
 * times that row subtracted, product by product; column k becomes -A(i,k) / d and the pivot 1 / d.
 *
 * @param A         `n` by `n`, changed in place
 * @param n         order of the block
 * @param k         number of the pivot, counted from 1
 * @param tolerance with |d| below it, but not equal to it, row k and column k become zeros, and that is all.
 *                  A NaN is not below
 */
KORVEL_API void G2SweepStep(matrix<double>* A, int n, int k, double tolerance);

/** The same on a sparse table, under the rule of its `setElement`: what is below `SPARSE_ZERO` is dropped. */
KORVEL_API void G2SweepStep(matrixSparse* A, int n, int k, double tolerance);

/**
 * The same on `n * n` numbers, column after column, but by other operations: column k is multiplied by
 * -1 / d, and each other column j has t = A(k,j) times that column added, unless |t| is at most the
 * tolerance; A(k,j) becomes t / d. So numbers differ in the last places from those of the table, and an
 * element of row k that is no larger than the tolerance changes its own cell alone.
 *
 * @param A         not null when `n` is above 0
 * @param n         rows and columns
 * @param k         number of the pivot, from 1 to `n`
 * @param tolerance as above
 */
KORVEL_API void G2SweepStep(double* A, int n, int k, double tolerance);

/**
 * Generalised inverse: the top left block of A, with all pivots swept in ascending order.
 *
 * @param A         `n` by `n`
 * @param n         order; below 1 nothing is done
 * @param tolerance a pivot whose magnitude is below it is passed over, see above
 * @param G         receives `n` by `n`; not resized. May be A
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_InverseG2(matrix<double>* A, int n, double tolerance, matrix<double>* G);

/**
 * The same on labelled tables. Columns that a table does not have read as -1, and what is stored there is
 * lost.
 */
KORVEL_API void M_InverseG2_ST(cST_MVect<double>& A, int n, double tolerance, cST_MVect<double>& G);

/**
 * `M_InverseG2` with selected pivots only.
 *
 * @param A          `n` by `n`
 * @param n          order; below 1 nothing is done
 * @param selected   `n` numbers; pivot k is swept where element k is 1
 * @param tolerance  as for `M_InverseG2`
 * @param G          receives `n` by `n`; not resized. May be A
 * @param zeroOthers only when -1, row and column of a pivot that is not selected become zeros when its turn
 *                   comes; otherwise they stay as they are at that moment
 */
KORVEL_API void M_InverseG2Selective(matrix<double>* A, int n, matrix<int>* selected, double tolerance,
                                     matrix<double>* G, short int zeroOthers);

#endif
