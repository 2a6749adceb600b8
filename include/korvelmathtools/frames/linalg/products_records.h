/**
 * @file
 * Flat functions: products of labelled tables. Every element is one sum from 0.0 in ascending order, each
 * term a multiplication and then an addition. No cell is looked at for being missing, and no column is
 * resized: an element past the end of a column reads as -1 and is not stored. No array may serve as input
 * and as result.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_RECORDS_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_RECORDS_H

#include "frames/types.h"

/**
 * Product of two labelled tables, c = a * b.
 *
 * @param a [in] labelled table of numbers, n by p
 * @param n rows of a
 * @param p columns of a
 * @param b [in] labelled table of numbers, p by q
 * @param q columns of b
 * @param c [inout] labelled table of numbers whose columns receive n by q; its counts become those
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ProductAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c);

/**
 * Product of a transposed labelled table and another, c = a' * b.
 *
 * @like Cpp_M_ProductAB_ST
 * @param b [in] labelled table of numbers, n by q
 * @param c [inout] labelled table of numbers whose columns receive p by q; its counts become those
 */
KORVEL_FLAT int Cpp_M_ProductTrAB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int q, ST_MVect* c);

/**
 * Product of a labelled table and another transposed, c = a * b'.
 *
 * @param a [in] labelled table of numbers, n by p
 * @param n rows of a
 * @param p columns of a
 * @param b [in] labelled table of numbers, m by p
 * @param m rows of b
 * @param c [inout] labelled table of numbers whose columns receive n by m; its counts become those
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ProductATrB_ST(ST_MVect* a, int n, int p, ST_MVect* b, int m, ST_MVect* c);

/**
 * Product of three labelled tables, c = a * b * a'.
 *
 * @param a         [in] labelled table of numbers, n by p
 * @param n         rows of a
 * @param p         columns of a
 * @param b         [in] labelled table of numbers, p by p
 * @param symmetric -1 promises that b is symmetric: only the lower half is summed and then mirrored. With any
 * other value all of the product is summed
 * @param c         [inout] labelled table of numbers whose columns receive n by n; its counts become those
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ProductABTrA_ST(ST_MVect* a, int n, int p, ST_MVect* b, short int symmetric,
                                      ST_MVect* c);

#endif
