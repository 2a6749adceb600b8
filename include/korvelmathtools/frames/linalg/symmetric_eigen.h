/**
 * @file
 * Flat functions: eigenvalues and eigenvectors of a symmetric table, by Householder reduction and QL
 * iteration.
 *
 * An off-diagonal element counts as zero when its magnitude is below 2.220446049250313e-16, whatever the
 * scale of the table: eigenvalues are good to about that number, not to that share of the largest one. The
 * vectors have unit length up to rounding, and nothing is done about their signs. Only the lower triangle is
 * used, but a missing element is looked for in all of the table.
 */
#ifndef KORVEL_FRAMES_LINALG_SYMMETRIC_EIGEN_H
#define KORVEL_FRAMES_LINALG_SYMMETRIC_EIGEN_H

#include "frames/types.h"

/**
 * Eigenvalues and eigenvectors of a symmetric table.
 *
 * @param a        [in] n by n numbers, column after column
 * @param values   [out] n eigenvalues, written unless -1 is returned; may be a
 * @param vectors  [out] n by n numbers, the eigenvector of value k in column k, written unless -1 is
 * returned; may be a
 * @param n        order; with 0 nothing is read or written
 * @param sortFlag true only when -1: the values descend, and equal ones keep their order. Otherwise they
 * stand in the order in which they were found
 * @return 0; -1 when an element is missing, a value did not converge within 28 sweeps, or memory is short in
 * the work
 */
KORVEL_FLAT int VB_M_Eigen(const double* a, double* values, double* vectors, int n, short int sortFlag);

/**
 * Eigenvalues and eigenvectors of a symmetric table, of which each column is held from the diagonal down. A
 * value may take 29 sweeps, one more than elsewhere.
 *
 * @param a        [in] host array of n records, each with a numeric column: of n numbers the first, and of
 * one less each next
 * @param values   [inout] n eigenvalues; as they were when an element is missing, without meaning when a
 * value did not converge
 * @param vectors  [inout] host array of n records, each with a numeric column of n numbers, which become
 * eigenvector k in column k; as for values
 * @param n        order
 * @param sortFlag true only when -1: the values descend, and equal ones keep their order. Otherwise they
 * stand in the order in which they were found
 * @return 0; -1 when an element is missing or a value did not converge
 */
KORVEL_FLAT int Cpp_M_EigenSPV_T(Hostarray** a, double* values, Hostarray** vectors, int n,
                                 short int sortFlag);

#endif
