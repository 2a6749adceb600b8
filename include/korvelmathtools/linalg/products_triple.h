/**
 * @file
 * Products of three tables. Each row of the product of the first two is formed in scratch and used up at once
 * for a row of the result: sixty-four rows at a time for each thread, never the whole of that product, except
 * where said otherwise. None of them clears its result. See `products.h` for what they share with the
 * products of two tables.
 *
 * Where a member takes the promise that its result is symmetric, only the elements (i, j) with j not above i
 * are summed, and each is stored at (i, j) and at (j, i): when the promise does not hold, the result is the
 * lower half of the product, mirrored.
 */
#ifndef KORVEL_LINALG_PRODUCTS_TRIPLE_H
#define KORVEL_LINALG_PRODUCTS_TRIPLE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * C = A·B·A', the sum over k of w(k)·A(j,k) with w the row i of A·B. The work is shared out by rows of C.
 *
 * @param A         `n` by `p`
 * @param B         `p` by `p`
 * @param symmetric the caller's promise that B is symmetric
 * @param C         receives `n` by `n`
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductABTrA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                               matrix<double>& C);

/** The same, any `symmetric` but 0 being the promise. */
KORVEL_API void M_ProductABTrA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                               matrix<double>* C);

/**
 * C = A'·B·A, the sum over r of w(r)·A(r,j) with w the row i of A'·B. The work is shared out by rows of C.
 *
 * @param A         `n` by `p`
 * @param B         `n` by `n`
 * @param symmetric the caller's promise that B is symmetric
 * @param C         receives `p` by `p`
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductTrABA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                               matrix<double>& C);

/** The same, any `symmetric` but 0 being the promise. */
KORVEL_API void M_ProductTrABA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                               matrix<double>* C);

/**
 * D = A·B·C. The work is shared out by rows of D.
 *
 * @param A `n` by `p`
 * @param B `p` by `q`
 * @param C `q` by `r`
 * @param D receives `n` by `r`
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C,
                             int r, matrix<double>* D);

/**
 * D = A'·B·C, with A'·B formed in a table first. On the calling thread.
 *
 * @param A `n` by `p`
 * @param B `n` by `q`
 * @param C `q` by `r`
 * @param D receives `p` by `r`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C,
                               int r, matrix<double>* D);

/**
 * D = A·B'·C, with A·B' formed in a table first. On the calling thread.
 *
 * @param A `n` by `p`
 * @param B `q` by `p`
 * @param C `q` by `r`
 * @param D receives `n` by `r`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductATrBC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C,
                               int r, matrix<double>* D);

/**
 * y = A'·B·v, the sum over j of (the sum over r of A(r,i)·B(r,j))·v(j). On the calling thread.
 *
 * @param A `n` by `p`
 * @param B `n` by `q`
 * @param v `q` elements
 * @param y receives `p` elements
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrABV(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* v,
                               matrix<double>* y);

#endif
