/**
 * @file
 * Flat functions: products of a table and a diagonal one.
 *
 * Tables are column after column. A count of 0 does nothing.
 */
#ifndef KORVEL_FRAMES_LINALG_DIAGONAL_SCALING_H
#define KORVEL_FRAMES_LINALG_DIAGONAL_SCALING_H

#include "frames/types.h"

/**
 * c(i, k) = a(i, k) * d(k, k). Missing cells are numbers here.
 *
 * @param a [in] n by p cells
 * @param n rows
 * @param p columns
 * @param d [in] p by p cells, of which the diagonal is read
 * @param c [out] n by p cells; may be the array of an argument
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductADiag(const double* a, int n, int p, const double* d, double* c);

/**
 * c(k, i) = a(i, k) * d(i, i). Missing cells are numbers here.
 *
 * @param a [in] n by p cells
 * @param n rows
 * @param p columns
 * @param d [in] n by n cells, of which the diagonal is read
 * @param c [out] p by n cells; may be the array of an argument
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductTrADiag(const double* a, int n, int p, const double* d, double* c);

/**
 * c(i, k) = a(i, k) * d(k). A missing d(k) makes column k of the result missing, and so does a missing cell
 * its own.
 *
 * @like VB_M_ProductADiag
 * @param d [in] p numbers
 */
KORVEL_FLAT int VB_M_ProductADiagV(const double* a, int n, int p, const double* d, double* c);

/**
 * c(i, k) = d(i) * a(i, k). A missing d(i) makes row i of the result missing, and so does a missing cell
 * its own.
 *
 * @like VB_M_ProductADiag
 * @param d [in] n numbers
 */
KORVEL_FLAT int VB_M_ProductDiagVA(const double* d, int n, const double* a, int p, double* c);

/**
 * c(i, k) = (d1(i) * a(i, k)) * d2(k). A missing factor makes its row or column of the result missing, and so
 * does a missing cell its own.
 *
 * @like VB_M_ProductADiag
 * @param d1 [in] n numbers
 * @param d2 [in] p numbers
 */
KORVEL_FLAT int VB_M_ProductDiagV1ADiagV2(const double* d1, int n, const double* a, int p, const double* d2,
                                          double* c);

/**
 * c(k, r) = a(r, k) * d(r). Missing cells are numbers here.
 *
 * @like VB_M_ProductTrADiag
 * @param d [in] n numbers
 */
KORVEL_FLAT int VB_M_ProductTrADiagV(const double* a, int n, int p, const double* d, double* c);

#endif
