/**
 * @file
 * Products of a table and a diagonal one: rows or columns multiplied by the numbers of a diagonal, which is
 * that of a square table (`Diag`) or a vector (`DiagV`).
 *
 * Sizes are passed beside each table, rows before columns, and may be smaller than the table's own. Access is
 * checked: a cell outside a table reads its `oobValue`, and every store also leaves its value in the result's
 * `oobValue`. The result may be `A` unless it is cleared or transposed. Counts below 1 do nothing else than
 * to clear.
 *
 * A result that is cleared first is given the counts asked for and filled with 0.0 when it has too few rows
 * or columns; a larger one keeps its shape, and as many of its first elements as are asked for become 0.0.
 */
#ifndef KORVEL_LINALG_DIAGONAL_SCALING_H
#define KORVEL_LINALG_DIAGONAL_SCALING_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * C(i, k) = A(i, k) * D(k, k). Missing cells are numbers here.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param D `p` by `p`, of which the diagonal is read
 * @param C receives `n` by `p` cells; cleared first. Not `A` or `D`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductADiag(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C);

/**
 * C(k, i) = A(i, k) * D(i, i), that is A'D. Missing cells are numbers here.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param D `n` by `n`, of which the diagonal is read
 * @param C receives `p` by `n` cells; cleared first. Not `A` or `D`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrADiag(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C);

/**
 * C(i, k) = A(i, k) * d(k). A missing d(k) makes column k of the result missing, and so does a missing cell
 * its own.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param d vector of `p`
 * @param C receives `n` by `p` cells, sized by the caller
 */
KORVEL_API void M_ProductADiagV(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C);

/** The same on tables of column chunks; chunks are not resized. */
KORVEL_API void M_ProductADiagVSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* d,
                                   matrix3D<matrix<double>>* C);
KORVEL_API void M_ProductADiagVSPV(matrix3D<statistics_matrix<double>>* A, int n, int p, matrix<double>* d,
                                   matrix3D<statistics_matrix<double>>* C);

/**
 * C(i, k) = d(i) * A(i, k). A missing d(i) makes row i of the result missing, and so does a missing cell its
 * own.
 *
 * @param d vector of `n`
 * @param n rows
 * @param A `n` by `p`
 * @param p columns
 * @param C receives `n` by `p` cells, sized by the caller
 */
KORVEL_API void M_ProductDiagVA(matrix<double>* d, int n, matrix<double>* A, int p, matrix<double>* C);

/** The same on tables of column chunks; chunks are not resized. */
KORVEL_API void M_ProductDiagVASPV(matrix<double>* d, int n, matrix3D<matrix<double>>* A, int p,
                                   matrix3D<matrix<double>>* C);
KORVEL_API void M_ProductDiagVASPV(matrix<double>* d, int n, matrix3D<statistics_matrix<double>>* A, int p,
                                   matrix3D<statistics_matrix<double>>* C);

/**
 * C(i, k) = (d1(i) * A(i, k)) * d2(k): `M_ProductDiagVA`, and then `M_ProductADiagV` on the result. A missing
 * factor makes its row or column missing.
 *
 * @param d1 vector of `n`
 * @param n  rows
 * @param A  `n` by `p`
 * @param p  columns
 * @param d2 vector of `p`
 * @param C  receives `n` by `p` cells, sized by the caller
 */
KORVEL_API void M_ProductDiagV1ADiagV2(matrix<double>* d1, int n, matrix<double>* A, int p,
                                       matrix<double>* d2, matrix<double>* C);

/** The same on tables of column chunks; chunks are not resized. */
KORVEL_API void M_ProductDiagV1ADiagV2SPV(matrix<double>* d1, int n, matrix3D<matrix<double>>* A, int p,
                                          matrix<double>* d2, matrix3D<matrix<double>>* C);
KORVEL_API void M_ProductDiagV1ADiagV2SPV(matrix<double>* d1, int n, matrix3D<statistics_matrix<double>>* A,
                                          int p, matrix<double>* d2, matrix3D<statistics_matrix<double>>* C);

/**
 * C(k, r) = A(r, k) * d(r), that is A' times the diagonal. Missing cells are numbers here.
 *
 * @param A `n` by `p`
 * @param n rows
 * @param p columns
 * @param d vector of `n`
 * @param C receives `p` by `n` cells, sized by the caller. Not `A`
 */
KORVEL_API void M_ProductTrADiagV(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C);

#endif
