/**
 * @file
 * Vectors and columns divided by a root of their sum of squares.
 *
 * A vector is the first `n` elements of a `matrix`, and a table its first rows and columns, through the
 * checked access. A missing cell, one that equals `MISSING_DBL`, takes no part and stays; a NaN is a number,
 * and so is a missing weight. Nothing guards the divisions: a sum of squares of 0 gives NaN. Counts below 1
 * change nothing.
 */
#ifndef KORVEL_STATISTICS_NORMALIZE_H
#define KORVEL_STATISTICS_NORMALIZE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Divides a vector, in place, by the root of its sum of squares (`V_SumSq`), so that that becomes 1.
 *
 * @param x the vector
 * @param n number of elements
 */
KORVEL_API void V_Norm(matrix<double>*& x, int n);

/**
 * The same with the weighted sum of squares (`V_SumSqW`).
 *
 * @param w `n` weights
 */
KORVEL_API void V_NormW(matrix<double>*& x, int n, matrix<double>* w);

/**
 * Multiplies a vector, in place, by the root of `value` over its sum of squares (`V_SumSq`), so that that
 * becomes `value`.
 *
 * @param x     the vector
 * @param n     number of elements
 * @param value the sum of squares to come to
 */
KORVEL_API void V_NormToVal(matrix<double>*& x, int n, double value);

/**
 * The same with the weighted sum of squares (`V_SumSqW`).
 *
 * @param w `n` weights
 */
KORVEL_API void V_NormToValW(matrix<double>*& x, int n, double value, matrix<double>* w);

/**
 * Changes the cells of each column, in place, to (x / s) * sqrt(n / (n - 1)), where s is the root of the
 * column's sum of x * x * w and n is `rows`, whatever is left out: the sum of squares comes to n / (n - 1).
 * One row is divided by 0.
 *
 * @param x        the table
 * @param rows     rows
 * @param cols     columns
 * @param w        `rows` weights; null: all 1.0
 * @param iMissing `rows` flags; a row with a non-zero flag is left out and stays. Null: none is
 */
KORVEL_API void M_Normalize(matrix<double>*& x, int rows, int cols, matrix<double>* w, short int* iMissing);

/**
 * `M_Normalize`, without weights and flags, on a table and its companions, tables of other rows and the same
 * columns: the cells of `y` and `z` are changed by the sums of squares and the number of rows of `x`.
 *
 * @param x     the table
 * @param rows  rows of `x`
 * @param cols  columns of all three
 * @param y     first companion; not read, and so may be null, when `yRows` is below 1
 * @param yRows rows of `y`
 * @param z     second companion, alike
 * @param zRows rows of `z`
 */
KORVEL_API void M_NormalizeMatrix(matrix<double>*& x, int rows, int cols, matrix<double>*& y, int yRows,
                                  matrix<double>*& z, int zRows);

#endif
