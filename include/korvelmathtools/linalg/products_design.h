/**
 * @file
 * Products column by column: every column of one table with every column of another, as they make the
 * interactions of a design.
 *
 * Sizes are passed beside the tables and may differ from their own: a cell outside reads the table's
 * `oobValue`, and what is stored there is lost. So a table that is replaced by the wider one needs the room
 * of it from the start.
 */
#ifndef KORVEL_LINALG_PRODUCTS_DESIGN_H
#define KORVEL_LINALG_PRODUCTS_DESIGN_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Replaces the columns of a design by their interactions with those of another: column (i - 1)·colsB + j is
 * made of column i of A and column j of B. With EPS = 2.220446049250313e-16:
 *
 * - A row in which both cells are above EPS gets their product, when `type` is below 5 or i and j are both 1;
 *   otherwise it gets 1.0, if the product is above EPS.
 * - Any other row gets what the row before it got. That value is carried on from the last row of a column to
 *   the first of the next, and is 0.0 at the start.
 * - A column without a row in which both cells are above EPS becomes 0. The first one with such a row is the
 *   reference. In later columns, with `type` from 5 on, a row whose reference is 1 (nearer than 1e-12)
 *   gets -1.0 instead; the value that is carried on stays.
 *
 * Then, with `pos` the sum of the weights of the rows above EPS and `neg` of those below -EPS, `type` 6 makes
 * each cell below -EPS of a column with `neg` above EPS equal to `-pos / neg`.
 *
 * @param A       `n` by `colsA`; receives `n` by `colsA * colsB`
 * @param n       rows
 * @param colsA   columns of A; becomes `colsA * colsB`
 * @param B       `n` by `colsB`; not A
 * @param colsB   columns of B
 * @param type    below 5: plain products; 5: effect coding; 6: effect coding with scaled negative cells
 * @param weights `n` weights, or null: all of them are 1.0
 * @param sums    receives `pos` of each of the `colsA * colsB` columns, by linear index
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductDesignAB2(matrix<double>* A, int n, int& colsA, matrix<double>* B, int colsB,
                                   int type, matrix<double>* weights, matrix<double>* sums);

/**
 * Column (i - 1)·colsB + j of C is column i of A times column j of B, cell by cell. No cell is looked at for
 * being missing.
 *
 * @param A     `n` by `colsA`
 * @param n     rows
 * @param colsA columns of A
 * @param B     `n` by `colsB`
 * @param colsB columns of B
 * @param C     resized to `n` by `colsA * colsB` and filled; neither A nor B. Memory of the caller of another
 *              size keeps it, and its other cells. Without columns nothing is stored
 * @param extra not read
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductHorizAB(matrix<double>* A, int n, int colsA, matrix<double>* B, int colsB,
                                 matrix<double>*& C, int extra);

/**
 * The same in place of A, and missing where one of the two cells is.
 *
 * @param A     `n` by `colsA`; receives `n` by `colsA * colsB`
 * @param n     rows
 * @param colsA columns of A; becomes `colsA * colsB`
 * @param B     `n` by `colsB`; may be A
 * @param colsB columns of B
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void M_ProductHorizAB2(matrix<double>* A, int n, int& colsA, matrix<double>* B, int colsB);

/**
 * Replaces a vector by the products `x(i) * y(j)`, i outside, by linear index. No element is looked at for
 * being missing.
 *
 * @param x `n` elements; receives `n * m`
 * @param n elements of x; becomes `n * m`
 * @param y `m` elements; may be x
 * @param m elements of y
 * @throws std::bad_alloc when memory is short; nothing is then written
 */
KORVEL_API void V_ProductHorizV1V22(matrix<double>* x, int& n, matrix<double>* y, int m);

#endif
