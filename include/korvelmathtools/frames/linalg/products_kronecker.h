/**
 * @file
 * Flat functions: the Kronecker product.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_KRONECKER_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_KRONECKER_H

#include "frames/types.h"

/**
 * The Kronecker product: the block (i, j) of c is a(i, j) * b. No cell is looked at for being missing.
 *
 * @param a  [in] r1 by c1 numbers
 * @param r1 rows of a
 * @param c1 columns of a
 * @param b  [in] r2 by c2 numbers
 * @param r2 rows of b
 * @param c2 columns of b
 * @param c  [out] r1 * r2 by c1 * c2 numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int Cpp_KroneckerTensorProduct(const double* a, int r1, int c1, const double* b, int r2, int c2,
                                           double* c);

#endif
