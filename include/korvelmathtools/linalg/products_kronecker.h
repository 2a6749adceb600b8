/**
 * @file
 * The Kronecker product.
 */
#ifndef KORVEL_LINALG_PRODUCTS_KRONECKER_H
#define KORVEL_LINALG_PRODUCTS_KRONECKER_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The Kronecker product: the block (i, j) of C is A(i,j)·B. No cell is looked at for being missing.
 *
 * @param A  `r1` by `c1`, reached through the checked access
 * @param r1 rows of A
 * @param c1 columns of A
 * @param B  `r2` by `c2`, reached through the checked access
 * @param r2 rows of B
 * @param c2 columns of B
 * @param C  receives the product; neither A nor B. Nothing happens unless it has exactly `r1 * r2` rows and
 *           `c1 * c2` columns
 */
KORVEL_API void KroneckerTensorProduct(matrix<double>* A, int r1, int c1, matrix<double>* B, int r2, int c2,
                                       matrix<double>* C);

#endif
