/**
 * @file
 * Flat functions: products column by column, every column of one table with every column of another, as they
 * make the interactions of a design. Column (i - 1) * colsB + j of the result is made of column i of a and
 * column j of b.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_DESIGN_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_DESIGN_H

#include "frames/types.h"

/**
 * Replaces the columns of a design by their interactions with those of another. With EPS =
 * 2.220446049250313e-16:
 *
 * - A row in which both cells are above EPS gets their product, when type is below 5 or i and j are both 1;
 *   otherwise it gets 1.0, if the product is above EPS.
 * - Any other row gets what the row before it got. That value is carried on from the last row of a column to
 *   the first of the next, and is 0.0 at the start.
 * - A column without a row in which both cells are above EPS becomes 0. The first one with such a row is the
 *   reference. In later columns, with type from 5 on, a row whose reference is 1 (nearer than 1e-12) gets
 *   -1.0 instead; the value that is carried on stays.
 *
 * Then, with pos the sum of the weights of the rows above EPS and neg of those below -EPS, type 6 makes each
 * cell below -EPS of a column with neg above EPS equal to -pos / neg.
 *
 * @param a       [inout] n by max(colsB, 1) * colsA numbers, the first colsA columns being the design;
 * receives the colsA * colsB columns of the result
 * @param n       rows
 * @param colsA   [inout] one integer: the columns of the design; receives those of the result
 * @param b       [in] n by colsB numbers
 * @param colsB   columns of b
 * @param type    below 5: plain products; 5: effect coding; 6: effect coding with scaled negative cells
 * @param weights [in] n weights
 * @param sums    [out] colsA * colsB numbers: pos of each column
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductDesignAB2(double* a, int n, int* colsA, const double* b, int colsB, int type,
                                      const double* weights, double* sums);

/**
 * Each column of the result is the product of two columns, cell by cell. No cell is looked at for being
 * missing.
 *
 * @param a     [in] n by colsA numbers
 * @param n     rows
 * @param colsA columns of a
 * @param b     [in] n by colsB numbers
 * @param colsB columns of b
 * @param c     [out] n by colsA * colsB numbers; may be an array that is read
 * @param extra not read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductHorizAB(const double* a, int n, int colsA, const double* b, int colsB, double* c,
                                    int extra);

/**
 * The same in place of a, and missing where one of the two cells is.
 *
 * @param a     [inout] n by max(colsB, 1) * colsA numbers, of which the first colsA columns are read;
 * receives the colsA * colsB columns of the result
 * @param n     rows
 * @param colsA [inout] one integer: the columns of a; receives those of the result
 * @param b     [in] n by colsB numbers; may be a
 * @param colsB columns of b
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductHorizAB2(double* a, int n, int* colsA, const double* b, int colsB);

/**
 * Every element of one vector times every element of another: x(i) * y(j), i outside. No element is looked at
 * for being missing.
 *
 * @param x   [in] n numbers
 * @param n   elements of x
 * @param y   [in] m numbers
 * @param m   elements of y
 * @param out [out] n * m numbers; may be a vector that is read
 * @return 0
 */
KORVEL_FLAT int VB_V_ProductHorizV1V2(const double* x, int n, const double* y, int m, double* out);

/**
 * The same in place of x.
 *
 * @param x [inout] max(m, 1) * n numbers, of which the first n are read; receives the n * m products
 * @param n [inout] one integer: the elements of x; receives those of the result
 * @param y [in] m numbers; may be x
 * @param m elements of y
 * @return 0
 */
KORVEL_FLAT int VB_V_ProductHorizV1V22(double* x, int* n, const double* y, int m);

#endif
