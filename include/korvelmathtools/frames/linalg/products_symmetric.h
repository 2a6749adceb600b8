/**
 * @file
 * Flat functions: symmetric products of a table and its own transpose. Every element is one sum from 0.0 in
 * ascending order, each term a multiplication and then an addition. No cell is looked at for being missing.
 * What is read is copied first, so a result may be written over an array that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_SYMMETRIC_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_SYMMETRIC_H

#include "frames/types.h"

/**
 * Product of a table with itself, c = a' * a. Only the elements of the upper half are summed; each is stored
 * in both halves.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param c [out] p by p numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductTrAA(const double* a, int n, int p, double* c);

/**
 * Product of a table of integers with itself, c = a' * a. Each product is in 32-bit arithmetic that wraps
 * around, the sum in double precision, cut off to an integer; what no integer can hold gives -2147483648.
 * Only the elements of the upper half are summed; each is stored in both halves.
 *
 * @like VB_M_ProductTrAA, integers for numbers
 */
KORVEL_FLAT int Cpp_M_ProductTrAALng(const int* a, int n, int p, int* c);

/**
 * Product of a table with itself, c = a * a'. Only the elements of the upper half are summed; each is stored
 * in both halves.
 *
 * @like VB_M_ProductTrAA
 * @param c [out] n by n numbers, column after column; may be an array that is read
 */
KORVEL_FLAT int VB_M_ProductATrA(const double* a, int n, int p, double* c);

/**
 * Product with a diagonal, c = a * d * a', each term from left to right. Only the elements of the upper half
 * are summed; each is stored in both halves.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param d [in] p by p numbers; only the diagonal is read
 * @param c [out] n by n numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductADTrA(const double* a, int n, int p, const double* d, double* c);

/**
 * Product with a diagonal, c = a' * d * a, each term from left to right. Only the elements of the upper half
 * are summed; each is stored in both halves.
 *
 * @like VB_M_ProductTrAA
 * @param d [in] n by n numbers; only the diagonal is read
 */
KORVEL_FLAT int VB_M_ProductTrADA(const double* a, int n, int p, const double* d, double* c);

/**
 * Product with a diagonal that is given as a vector, c = a' * diag(d) * a, each term from left to right. Only
 * the elements of the upper half are summed; each is stored in both halves.
 *
 * @like VB_M_ProductTrAA
 * @param d [in] n numbers
 */
KORVEL_FLAT int VB_M_ProductTrADiagVA(const double* a, int n, int p, const double* d, double* c);

/**
 * Product with a diagonal that is given as a vector, c = a * diag(d) * a', each term from left to right. Only
 * the elements of the upper half are summed; each is stored in both halves.
 *
 * @like VB_M_ProductADTrA
 * @param d [in] p numbers
 */
KORVEL_FLAT int VB_M_ProductADiagVTrA(const double* a, int n, int p, const double* d, double* c);

#endif
