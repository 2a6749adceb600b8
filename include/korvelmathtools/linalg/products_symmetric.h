/**
 * @file
 * Products of a table with its own transpose, with or without a diagonal between them. Only the elements
 * (i, j) with j not below i are summed, and each is stored at (i, j) and at (j, i). They run on the calling
 * thread. Those without a vector clear their result, those with one take it as it is; see `products.h` for
 * what clearing does, and for what they share with the other products.
 */
#ifndef KORVEL_LINALG_PRODUCTS_SYMMETRIC_H
#define KORVEL_LINALG_PRODUCTS_SYMMETRIC_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * C = A'·A.
 *
 * @param A `n` by `p`
 * @param C receives `p` by `p`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrAA(matrix<double>* A, int n, int p, matrix<double>* C);

/** The same, each sum cut off to an integer when it is stored; what no `int` can hold gives -2147483648. */
KORVEL_API void M_ProductTrAA(matrix<double>* A, int n, int p, matrix<int>* C);

/** The same of integers: each product in 32-bit arithmetic that wraps around, the sum in double precision. */
KORVEL_API void M_ProductTrAA(matrix<int>* A, int n, int p, matrix<double>* C);
KORVEL_API void M_ProductTrAA(matrix<int>* A, int n, int p, matrix<int>* C);

/**
 * C = A·A'.
 *
 * @param A `n` by `p`
 * @param C receives `n` by `n`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductATrA(matrix<double>* A, int n, int p, matrix<double>* C);

/** The same of integers: each product in 32-bit arithmetic that wraps around, the sum in double precision. */
KORVEL_API void M_ProductATrA(matrix<int>* A, int n, int p, matrix<double>*& C);

/**
 * C = A·D·A': the sum over k of `A(i,k) * D(k,k) * A(j,k)`, from left to right.
 *
 * @param A `n` by `p`
 * @param D a square table of order `p`, of which the diagonal is read
 * @param C receives `n` by `n`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductADTrA(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C);

/**
 * C = A'·D·A: the sum over r of `A(r,i) * D(r,r) * A(r,j)`, from left to right.
 *
 * @param A `n` by `p`
 * @param D a square table of order `n`, of which the diagonal is read
 * @param C receives `p` by `p`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ProductTrADA(matrix<double>* A, int n, int p, matrix<double>* D, matrix<double>* C);

/** `M_ProductTrADA` with the diagonal as a vector of `n`. */
KORVEL_API void M_ProductTrADiagVA(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C);

/** `M_ProductADTrA` with the diagonal as a vector of `p`. */
KORVEL_API void M_ProductADiagVTrA(matrix<double>* A, int n, int p, matrix<double>* d, matrix<double>* C);

#endif
