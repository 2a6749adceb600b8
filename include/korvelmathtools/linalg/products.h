/**
 * @file
 * Products of two tables. The name of a member spells its formula: `Tr` is the transpose of what follows.
 *
 * Every element of a result is one sum from 0.0 over k in ascending order, each term a multiplication and
 * then an addition. The loops run on the counts that are passed, not on those of the tables: a table may be
 * larger, and an index outside one reads and writes its spare slot. No cell is looked at for being missing.
 *
 * A member that *clears* first makes its result ready: one with too few rows or columns is given the counts
 * of the product (what is borrowed stays as it is), any other keeps its shape, and its first rows times
 * columns elements in storage order become 0. Other members take the result as it is. With a count below 1
 * there is nothing to sum: a cleared result stays 0, and with no terms each element is 0.0.
 *
 * Where nothing else is said a member runs on the calling thread, and the spare slot of the result keeps the
 * value stored last. Members that share out the work fork a team of the runtime's size at every call; they
 * leave that slot without meaning. The team never changes a bit.
 */
#ifndef KORVEL_LINALG_PRODUCTS_H
#define KORVEL_LINALG_PRODUCTS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * C = A·B, summed onto what clearing leaves in C. The work is shared out by columns of C. Clears.
 *
 * @param A `n` by `p`
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @return 0
 * @throws std::bad_alloc when memory is short; C is then cleared
 */
KORVEL_API int M_ProductAB(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                           matrix<double>& C);

/**
 * C = A·B of integers in 32-bit arithmetic that wraps around, no integer missing. The work is shared out by
 * rows of C. Clears.
 *
 * @param A `n` by `p`
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @return 0
 */
KORVEL_API int M_ProductAB(matrix<int>* A, int n, int p, matrix<int>* B, int q, matrix<int>* C);

/**
 * C = A·B with A a list of columns. The work is shared out by rows of C. Clears.
 *
 * @param A `p` columns of `n` rows
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_ProductABSPV(matrix<double>** A, int n, int p, matrix<double>* B, int q, matrix<double>*& C);

/**
 * C = A·B with all three lists of columns. The work is shared out by rows of C.
 *
 * @param A `p` columns of `n` rows
 * @param B `q` columns of `p` rows
 * @param C `q` columns, which receive `n` rows
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_ProductABSPV2(matrix<double>** A, int n, int p, matrix<double>** B, int q,
                               matrix<double>** C);

/**
 * C = A'·B. Clears.
 *
 * @param A `n` by `p`
 * @param B `n` by `q`
 * @param C receives `p` by `q`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrAB(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>*& C);

/**
 * C = A·B'. Clears.
 *
 * @param A `n` by `p`
 * @param B `m` by `p`
 * @param C receives `n` by `m`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductATrB(matrix<double>* A, int n, int p, matrix<double>* B, int m, matrix<double>* C);

/** `M_ProductATrB` into a table of chunks, of `n` rows each, which is not cleared. */
KORVEL_API void M_ProductATrBSPV(matrix<double>* A, int n, int p, matrix<double>* B, int m,
                                 matrix3D<matrix<double>>* C);

/**
 * C = A·diag(d)·B, the sum over k of `A(i,k) * d(k) * B(k,j)`, from left to right.
 *
 * @param A `n` by `p`
 * @param d `p` elements
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductADiagVB(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* B, int q,
                                 matrix<double>* C);

/**
 * C = A·diag(d)·B', the sum over k of `A(i,k) * d(k) * B(j,k)`, from left to right.
 *
 * @param A `n` by `p`
 * @param d `p` elements
 * @param B `m` by `p`
 * @param C receives `n` by `m`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductADiagVTrB(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* B,
                                   int m, matrix<double>* C);

#endif
