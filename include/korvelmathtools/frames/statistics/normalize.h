/**
 * @file
 * Flat functions: vectors and columns divided by a root of their sum of squares, in place.
 *
 * Tables are column after column. A missing number takes no part and stays; a NaN is a number, and so is a
 * missing weight. A sum of squares of 0 gives NaN.
 */
#ifndef KORVEL_FRAMES_STATISTICS_NORMALIZE_H
#define KORVEL_FRAMES_STATISTICS_NORMALIZE_H

#include "frames/types.h"

/**
 * Divides a vector by the root of its sum of squares, so that that becomes 1.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int VB_V_Norm(double* x, int n);

/**
 * The same with the sum of x * w * x.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @param w [in] n weights; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_V_NormW(double* x, int n, const double* w);

/**
 * Multiplies a vector by the root of value over its sum of squares, so that that becomes value.
 *
 * @param x     [inout] n numbers
 * @param n     number of elements
 * @param value the sum of squares to come to
 * @return 0
 */
KORVEL_FLAT int VB_V_NormToVal(double* x, int n, double value);

/**
 * The same with the sum of x * w * x.
 *
 * @param x     [inout] n numbers
 * @param n     number of elements
 * @param value the sum of squares to come to
 * @param w     [in] n weights; may be the array of x
 * @return 0
 */
KORVEL_FLAT int VB_V_NormToValW(double* x, int n, double value, const double* w);

/**
 * Changes the cells of each column to (x / s) * sqrt(n / (n - 1)), where s is the root of the column's sum of
 * x * x * w and n is rows, whatever is left out. One row is divided by 0.
 *
 * @param x        [inout] rows by cols numbers
 * @param rows     rows
 * @param cols     columns
 * @param w        [in] rows weights; may be null, then all are 1
 * @param iMissing [in] rows flags; a row with a non-zero flag is left out and stays; may be null, then none
 * is
 * @return 0
 */
KORVEL_FLAT int VB_M_Normalize(double* x, int rows, int cols, const double* w, const short int* iMissing);

/**
 * VB_M_Normalize, without weights and flags, on a table and two companions, tables of other rows and the same
 * columns, which are changed by the sums of squares and the number of rows of x.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows of x
 * @param cols  columns of all three
 * @param y     [inout] yRows by cols numbers; may be null when yRows is 0
 * @param yRows rows of y
 * @param z     [inout] zRows by cols numbers; may be null when zRows is 0
 * @param zRows rows of z
 * @return 0
 */
KORVEL_FLAT int VB_M_NormalizeMatrix(double* x, int rows, int cols, double* y, int yRows, double* z,
                                     int zRows);

#endif
