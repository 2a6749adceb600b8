/**
 * @file
 * Products of two tables that heed missing cells: in ascending k the first A(i,k) or B(k,j) that equals
 * `MISSING_DBL` ends the sum, and C(i,j) is `MISSING_DBL`. So one missing cell blanks its whole row of A
 * against every column of B. See `products.h` for what they share with the other products of two tables.
 *
 * All of them run on the calling thread and clear their result, of a `matrix3D` column by column.
 */
#ifndef KORVEL_LINALG_PRODUCTS_MISSING_H
#define KORVEL_LINALG_PRODUCTS_MISSING_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * C = A·B.
 *
 * @param A `n` by `p`
 * @param B `p` by `q`
 * @param C receives `n` by `q`
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_ProductABMissing(matrix<double>* A, int n, int p, matrix<double>* B, int q,
                                  matrix<double>* C);

/** The same with A in chunks. */
KORVEL_API int M_ProductABMissingSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* B, int q,
                                     matrix<double>*& C);

/** The same with C in chunks. */
KORVEL_API int M_ProductABMissingSPV2(matrix<double>* A, int n, int p, matrix<double>* B, int q,
                                      matrix3D<matrix<double>>* C);

/** The same with A and C in chunks. */
KORVEL_API int M_ProductABMissingSPV3(matrix3D<statistics_matrix<double>>* A, int n, int p, matrix<double>* B,
                                      int q, matrix3D<matrix<double>>* C);

#endif
