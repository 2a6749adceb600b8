/**
 * @file
 * Eigenvalues and eigenvectors of a symmetric table: Householder reduction to tridiagonal form, and QL
 * iteration with implicit shifts (Wilkinson and Reinsch, Handbook for Automatic Computation II, 1971,
 * contributions II/2 and II/4).
 *
 * An off-diagonal element counts as zero when its magnitude is below 2.220446049250313e-16, whatever the
 * scale of the table. Two things follow:
 *
 * - Eigenvalues of a table are good to about that number, not to that share of the largest one. A table whose
 *   elements are all smaller may come out as its own tridiagonal form.
 * - A table with large elements is iterated further than its own precision would ask for.
 *
 * The vectors have unit length up to rounding. Nothing is done about their signs.
 *
 * Unless the values are sorted, they and their vectors stand in the order in which the iteration found them.
 * Sorted values descend, and equal ones keep their order. Only the lower triangle of a table is used; but a
 * missing element is looked for in all of it. NaN and infinite elements are numbers, with which the iteration
 * does not converge.
 */
#ifndef KORVEL_LINALG_SYMMETRIC_EIGEN_H
#define KORVEL_LINALG_SYMMETRIC_EIGEN_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Eigenvalues and eigenvectors of a dense table.
 *
 * @param A        symmetric, `n` by `n`; neither of the results
 * @param values   receives the eigenvalues, `n` by 1: first given that shape
 * @param vectors  receives the eigenvector of value k in column k, `n` by `n`: first given that shape. What
 * its spare slot holds afterwards has no meaning
 * @param n        order. 0 leaves both results empty
 * @param sortFlag -1 sorts the values; any other value, 1 too, does not
 * @return 0; or -1 when an element is missing (then the results are as they were), when a value did not
 *         converge within 28 sweeps, or when the work failed, as for want of memory or with `n` below 0 (then
 *         the results have no meaning). No exception comes out
 */
KORVEL_API int M_Eigen(matrix<double> const& A, matrix<double>& values, matrix<double>& vectors, int n,
                       short int sortFlag);

/** The same, given by pointers, none of them null. */
KORVEL_API int M_Eigen(matrix<double>* A, matrix<double>* values, matrix<double>* vectors, int n,
                       short int sortFlag);

/**
 * The same for a sparse table. Each element that is stored on the way follows the rule of
 * `matrixSparse::setElement`: one of a magnitude below 1e-18 becomes 0. The work takes place in a dense
 * table.
 *
 * @param A        symmetric, `n` by `n`; not null
 * @param values   as for a dense table; not null
 * @param vectors  as for a dense table; not null. The entries of each row stand in ascending column order
 * @param n        order
 * @param sortFlag -1 sorts the values; any other value does not
 * @return as for a dense table
 */
KORVEL_API int M_Eigen(matrixSparse* A, matrix<double>* values, matrixSparse* vectors, int n,
                       short int sortFlag);

/**
 * The same for a table of chunks.
 *
 * @param A        symmetric, `n` chunks of `n` elements; not null, not `vectors`
 * @param values   as for a dense table; not null
 * @param vectors  at least `n` chunks; not null. A chunk with too few elements is given `n` of them. The
 * spare slots have no meaning afterwards
 * @param n        order
 * @param sortFlag -1 sorts the values; any other value does not
 * @return 0; or -1 when an element is missing (then the results are as they were) or a value did not converge
 *         within 28 sweeps
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_EigenSPV(matrix3D<matrix<double>>* A, matrix<double>*& values,
                          matrix3D<matrix<double>>* vectors, int n, short int sortFlag);

/**
 * The same in place: `A` is replaced by the eigenvectors.
 *
 * @param A        as for `M_EigenSPV`; on failure because of a missing element as it was
 * @param values   as for a dense table; not null
 * @param n        order
 * @param sortFlag -1 sorts the values; any other value does not
 * @return as for `M_EigenSPV`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_EigenDestroySPV(matrix3D<matrix<double>>* A, matrix<double>*& values, int n,
                                 short int sortFlag);

/**
 * The same for a triangular table of chunks, of which chunk c holds column c from the diagonal down. A value
 * may take 29 sweeps, one more than elsewhere.
 *
 * @param A        the triangle: `n` chunks, of `n` elements the first and of one less each next; not null
 * @param values   as for a dense table; not null
 * @param vectors  `n` chunks of `n` elements, sized by the caller; not null. The spare slots have no meaning
 *                 afterwards
 * @param n        order
 * @param sortFlag -1 sorts the values; any other value does not
 * @return 0; or -1 when an element is missing (then the results are as they were) or a value did not converge
 *         within 29 sweeps
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_EigenSPV_T(matrix3D<matrix<double>>* A, matrix<double>* values,
                            matrix3D<matrix<double>>* vectors, int n, short int sortFlag);

#endif
