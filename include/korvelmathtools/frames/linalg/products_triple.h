/**
 * @file
 * Flat functions: products of three tables, the first two multiplied first. Every element is one sum from
 * 0.0 in ascending order, each term a multiplication and then an addition. No cell is looked at for being
 * missing. What is read is copied first, so a result may be written over an array that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_TRIPLE_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_TRIPLE_H

#include "frames/types.h"

/**
 * Product of three tables, c = a * b * a'. The work is shared among threads.
 *
 * @param a         [in] n by p numbers
 * @param n         rows of a
 * @param p         columns of a
 * @param b         [in] p by p numbers
 * @param symmetric 0: all of the product is summed. Any other value promises that b is symmetric: only the
 * lower half is summed and then mirrored
 * @param c         [out] n by n numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductABTrA(const double* a, int n, int p, const double* b, short int symmetric,
                                  double* c);

/**
 * Product of three tables, c = a' * b * a. The work is shared among threads.
 *
 * @like VB_M_ProductABTrA
 * @param b         [in] n by n numbers
 * @param c         [out] p by p numbers, column after column; may be an array that is read
 */
KORVEL_FLAT int VB_M_ProductTrABA(const double* a, int n, int p, const double* b, short int symmetric,
                                  double* c);

/**
 * Product of three tables, d = a * b * c. The work is shared among threads.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] p by q numbers
 * @param q columns of b
 * @param c [in] q by r numbers
 * @param r columns of c
 * @param d [out] n by r numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductABC(const double* a, int n, int p, const double* b, int q, const double* c, int r,
                                double* d);

/**
 * Product of three tables, d = a' * b * c.
 *
 * @like VB_M_ProductABC
 * @param b [in] n by q numbers
 * @param d [out] p by r numbers, column after column; may be an array that is read
 */
KORVEL_FLAT int VB_M_ProductTrABC(const double* a, int n, int p, const double* b, int q, const double* c,
                                  int r, double* d);

/**
 * Product of three tables, d = a * b' * c.
 *
 * @like VB_M_ProductABC
 * @param b [in] q by p numbers
 * @param q rows of b
 */
KORVEL_FLAT int VB_M_ProductATrBC(const double* a, int n, int p, const double* b, int q, const double* c,
                                  int r, double* d);

/**
 * Product of two tables and a vector, y = a' * b * v.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] n by q numbers
 * @param q columns of b
 * @param v [in] q numbers
 * @param y [out] p numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ProductTrABV(const double* a, int n, int p, const double* b, int q, const double* v,
                                   double* y);

#endif
