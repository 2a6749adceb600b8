/**
 * @file
 * Flat functions: products of symmetric tables, most of them packed: the lower triangle row after row. Every
 * element is one sum from 0.0 in ascending order, each term a multiplication and then an addition. No cell is
 * looked at for being missing.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_PACKED_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_PACKED_H

#include "frames/types.h"

/**
 * Product of a packed symmetric table and a vector, y = s * x.
 *
 * @param s [in] m * (m + 1) / 2 numbers, the lower triangle row after row
 * @param m rows and columns of the table; at most 65535
 * @param x [in] m numbers
 * @param y [out] m numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductASymV(const double* s, int m, const double* x, double* y);

/**
 * Product of a vector and a packed symmetric table, y = x' * s.
 *
 * @like VB_M_ProductASymV
 */
KORVEL_FLAT int VB_M_ProductVASym(const double* x, int m, const double* s, double* y);

/**
 * The quadratic form v' * s * v of a full symmetric table: twice the sum over i below j of v(i) * v(j) * s(j,
 * i), i outside, plus the sum of v(i)^2 * s(i, i).
 *
 * @param v [in] n numbers
 * @param n rows and columns of the table
 * @param s [in] n by n numbers, of which only the lower triangle is read
 * @return the form; 0.0 for n below 1
 */
KORVEL_FLAT double Cpp_M_ProductTrVSymV(const double* v, int n, const double* s);

/**
 * The lower triangle of a * b, all three packed. The order m of the tables is the whole part of the root of
 * 2n. When n is not m(m + 1)/2, some elements have terms that reach past the n numbers of a and of b;
 * these numbers count as -1.0.
 *
 * @param a [in] n numbers, a lower triangle row after row
 * @param n packed length
 * @param b [in] n numbers, as a
 * @param c [out] n numbers, as a; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int Cpp_MV_ProductAsymBsym(const double* a, int n, const double* b, double* c);

#endif
