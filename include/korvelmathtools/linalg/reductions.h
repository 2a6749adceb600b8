/**
 * @file
 * One number from a table: traces and norms.
 *
 * Sizes are passed beside the table, rows before columns, and may be smaller than its own. Access is checked:
 * a cell outside reads the table's `oobValue`. Each sum is one running sum from 0.0 in ascending order, the
 * row number before the column number. Missing cells are numbers, where nothing else is said.
 */
#ifndef KORVEL_LINALG_REDUCTIONS_H
#define KORVEL_LINALG_REDUCTIONS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/** The sum of A(i, i), i from 1 to `n`; 0.0 for `n` below 1. */
KORVEL_API double M_Trace(matrix<double>* A, int n);
KORVEL_API double M_Trace(matrixSparse* A, int n);

/** The sum of A(i, i) * A(i, i), i from 1 to `n`; 0.0 for `n` below 1. */
KORVEL_API double M_TraceSq(matrix<double>* A, int n);

/** The trace of A * A': the sum of A(i, j) * A(i, j) over the `n` by `n` table; 0.0 for `n` below 1. */
KORVEL_API double M_TraceProductAA(matrix<double>* A, int n);

/** The trace of A * B': the sum of A(i, j) * B(i, j) over the `n` by `n` tables; 0.0 for `n` below 1. */
KORVEL_API double M_TraceProductAB(matrix<double>* A, int n, matrix<double>* B);

/**
 * The trace of A' * B, both `n` by `p`: the sum over the columns of the inner products of like columns. By
 * design no square root is taken, so that with B = A it is the square of the Frobenius norm.
 * @return 0.0 when `n` or `p` is below 1
 */
KORVEL_API double M_FrobeniusNorm(matrix<double>* A, int n, int p, matrix<double>* B);

/**
 * The row sum norm: the largest sum of magnitudes of a row.
 *
 * @param A `n` by `m`; only cells greater than the missing value are added, so that missing ones, -infinity
 *          and NaN are not
 * @param n rows; below 1 gives 0.0
 * @param m columns
 */
KORVEL_API double M_RowSumNorm(matrix<double>* A, int n, int m);

/** The same for `m` chunks that are the columns. */
KORVEL_API double M_RowSumNormSPV(matrix<double>** A, int n, int m);

/**
 * The same for a symmetric table of which chunk j holds column j from the diagonal down: the cell (i, j) is
 * read there for j up to i, and as (j, i) otherwise. The smaller count is at most the number of chunks.
 */
KORVEL_API double M_RowSumNormSPV_T(matrix3D<matrix<double>>* A, int n, int m);

#endif
