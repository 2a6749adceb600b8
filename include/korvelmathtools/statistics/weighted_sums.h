/**
 * @file
 * Sums of two tables, each times a number.
 */
#ifndef KORVEL_STATISTICS_WEIGHTED_SUMS_H
#define KORVEL_STATISTICS_WEIGHTED_SUMS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * The sum of two tables, each times a number: `a * A + b * B`, cell by cell.
 *
 * @param A    the first table, `rows` by `cols`
 * @param rows rows
 * @param cols columns
 * @param B    the second table, `rows` by `cols`
 * @param a    factor of A
 * @param b    factor of B
 * @param out  receives `rows` by `cols`; 0.0 where a cell equals `MISSING_DBL` in either table. May be one of
 *             the tables
 */
KORVEL_API void M_Sums1As2B(matrix<double>* A, int rows, int cols, matrix<double>* B, double a, double b,
                            matrix<double>* out);
/** The same of sparse tables; `out` is replaced by a table of `rows` by `cols`. */
KORVEL_API void M_Sums1As2B(matrixSparse* A, int rows, int cols, matrixSparse* B, double a, double b,
                            matrixSparse* out);
/** The same on `cols` chunks each. */
KORVEL_API void M_Sums1As2BSPV(matrix<double>** A, int rows, int cols, matrix<double>** B, double a, double b,
                               matrix<double>** out);
/** The same on triangles, of which chunk j holds column j from the diagonal down, `rows - j` cells. */
KORVEL_API void M_Sums1As2BSPV_T(matrix3D<matrix<double>>* A, int rows, int cols, matrix3D<matrix<double>>* B,
                                 double a, double b, matrix3D<matrix<double>>* out);
/** The same of labelled tables; the counts of `out` stay as they are. */
KORVEL_API void M_Sums1As2B_ST(cST_MVect<double>& A, int rows, int cols, cST_MVect<double>& B, double a,
                               double b, cST_MVect<double>& out);

#endif
