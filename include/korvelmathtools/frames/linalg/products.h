/**
 * @file
 * Flat functions: products of tables. Every element is one sum from 0.0 in ascending order, each term a
 * multiplication and then an addition. No cell is looked at for being missing where nothing else is said.
 * What is read is copied first, so a result may be written over an array that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_H

#include "frames/types.h"

/**
 * Product of two tables, c = a * b. The work is shared among threads.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] p by q numbers
 * @param q columns of b
 * @param c [out] n by q numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductAB(const double* a, int n, int p, const double* b, int q, double* c);

/**
 * Product of two tables of integers, c = a * b, in 32-bit arithmetic that wraps around. No integer is missing
 * here.
 *
 * @like VB_M_ProductAB, integers for numbers
 */
KORVEL_FLAT int VB_M_ProductABLng(const int* a, int n, int p, const int* b, int q, int* c);

/**
 * Product of a transposed table and a table, c = a' * b.
 *
 * @like VB_M_ProductAB
 * @param b [in] n by q numbers
 * @param c [out] p by q numbers, column after column; may be an array that is read
 */
KORVEL_FLAT int VB_M_ProductTrAB(const double* a, int n, int p, const double* b, int q, double* c);

/**
 * Product of a table and a transposed table, c = a * b'.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] m by p numbers
 * @param m rows of b
 * @param c [out] n by m numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductATrB(const double* a, int n, int p, const double* b, int m, double* c);

/**
 * Product with a diagonal that is given as a vector, c = a * diag(d) * b, each term from left to right.
 *
 * @like VB_M_ProductAB
 * @param d [in] p numbers
 */
KORVEL_FLAT int VB_M_ProductADiagVB(const double* a, int n, int p, const double* d, const double* b, int q,
                                    double* c);

/**
 * Product with a diagonal that is given as a vector, c = a * diag(d) * b', each term from left to right.
 *
 * @like VB_M_ProductATrB
 * @param d [in] p numbers
 */
KORVEL_FLAT int VB_M_ProductADiagVTrB(const double* a, int n, int p, const double* d, const double* b, int m,
                                      double* c);

#endif
