/**
 * @file
 * Products of sparse tables. The result is built row by row: for each row of the left table the columns that
 * its entries reach are gathered in a linked list (Gustavson, Two fast algorithms for sparse matrices, ACM
 * Transactions on Mathematical Software 4, 1978).
 *
 * The columns of a row of the result stand in reverse order of first touch, and a sum that cancels is stored
 * as an entry that is 0. Each sum runs from 0.0 over the entries of the left row as they are stored, a
 * multiplication and then an addition. A row that a table does not have is empty. Transposed tables are made
 * by `M_Transpose`, which takes only what lies inside the counts. All run on the calling thread. A result of
 * fewer than 0 rows or columns is left as it is, and without terms it has no entries.
 *
 * A result is replaced, and may be one of the tables that are read. It throws `std::bad_alloc` when memory is
 * short and `std::length_error` when it would have more than 2147483647 entries; it is then as it was, except
 * for one whose storage was to be kept.
 */
#ifndef KORVEL_LINALG_PRODUCTS_SPARSE_H
#define KORVEL_LINALG_PRODUCTS_SPARSE_H

#include "containers/matrix.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * C = A·B.
 *
 * @param A    `n` by `p`
 * @param B    `p` by `q`; an entry whose column is not below the largest of the three counts is passed over
 * @param C    receives `n` by `q`
 * @param keep whether C gives the memory that it has for the entries of the product, and does not release it
 *             first. Its old entries are gone either way
 * @return 0
 */
KORVEL_API int M_ProductAB(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, bool keep);

/** C = A'·B, A `n` by `p` and B `n` by `q`. */
KORVEL_API void M_ProductTrAB(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C);

/** C = A·B', A `n` by `p` and B `m` by `p`. */
KORVEL_API void M_ProductATrB(matrixSparse* A, int n, int p, matrixSparse* B, int m, matrixSparse* C);

/** C = A'·A, A `n` by `p`. */
KORVEL_API void M_ProductTrAA(matrixSparse* A, int n, int p, matrixSparse* C);

/** C = A·A', A `n` by `p`. */
KORVEL_API void M_ProductATrA(matrixSparse* A, int n, int p, matrixSparse* C);

/**
 * C = A·(B·A'), the product in brackets first.
 *
 * @param A         `n` by `p`
 * @param B         `p` by `p`
 * @param symmetric not used: all of the product is formed
 * @param C         receives `n` by `n`
 * @param keep      as for `M_ProductAB`
 */
KORVEL_API void M_ProductABTrA(matrixSparse* A, int n, int p, matrixSparse* B, bool symmetric,
                               matrixSparse* C, bool keep);

/**
 * C = (A'·B)·A, the product in brackets first.
 *
 * @param A         `n` by `p`
 * @param B         `n` by `n`
 * @param symmetric not used: all of the product is formed
 * @param C         receives `p` by `p`
 * @param keep      as for `M_ProductAB`
 */
KORVEL_API void M_ProductTrABA(matrixSparse* A, int n, int p, matrixSparse* B, bool symmetric,
                               matrixSparse* C, bool keep);

/** D = (A·B)·C, A `n` by `p`, B `p` by `q`, C `q` by `r`. */
KORVEL_API void M_ProductABC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                             matrixSparse* D);

/** D = (A'·B)·C, A `n` by `p`, B `n` by `q`, C `q` by `r`. */
KORVEL_API void M_ProductTrABC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                               matrixSparse* D);

/** D = (A·B')·C, A `n` by `p`, B `q` by `p`, C `q` by `r`. */
KORVEL_API void M_ProductATrBC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                               matrixSparse* D);

/**
 * y = B·v, each sum over the entries of a row as they are stored.
 *
 * @param B `n` by `p`
 * @param v `p` elements; what an entry's column reaches outside of it is its `oobValue`
 * @param y receives `n` elements, and in its `oobValue` the last of them
 * @return 0
 */
KORVEL_API int M_ProductBV(matrixSparse* B, int n, int p, matrix<double>* v, matrix<double>* y);

/** y = B'·v by way of a dense copy of B, `n` by `p`; y receives `p` elements. */
KORVEL_API void M_ProductTrBV(matrixSparse* B, int n, int p, matrix<double>* v, matrix<double>* y);

/** y = (A'·B)·v, A `n` by `p`, B `n` by `q`; y receives `p` elements. */
KORVEL_API void M_ProductTrABV(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrix<double>* v,
                               matrix<double>* y);

/** v'·B·v by way of y = B·v, B `n` by `n`; 0.0 when `n` is below 1. */
KORVEL_API double M_ProductTrVBV(matrix<double>* v, int n, matrixSparse* B);

#endif
