/**
 * @file
 * Transposed tables: `y(j, i) = x(i, j)`. Cells are moved as they are, missing ones too.
 */
#ifndef KORVEL_TABLES_TRANSPOSE_H
#define KORVEL_TABLES_TRANSPOSE_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Transposes a dense table, from block to block.
 *
 * @param x    a block of `rows` by `cols` cells. The counts are trusted: they need not be the ones that `x`
 *             has, but its block must hold that many cells
 * @param rows rows of `x`
 * @param cols columns of `x`
 * @param y    receives `cols` by `rows` cells; first given that shape, which a borrowed table does not take:
 *             its block must have room, and what it has beyond becomes 0 or the empty text. Not `x`, and no
 *             block of `x`. Its `oobValue` stays
 *
 * Without rows, the one column that `y` keeps is 0 or empty; without columns, `y` is empty.
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Transpose(const matrix<double>& x, int rows, int cols, matrix<double>& y);
KORVEL_API void M_Transpose(const matrix<int>& x, int rows, int cols, matrix<int>& y);
/** Each integer as a number; a missing integer is one like the others. */
KORVEL_API void M_Transpose(const matrix<int>& x, int rows, int cols, matrix<double>& y);
KORVEL_API void M_Transpose(const matrix<text>& x, int rows, int cols, matrix<text>& y);

/**
 * From column chunks to a dense table, through the checked access of both.
 *
 * @param x    chunks 0 to `cols - 1` are its columns; a cell past the end of its chunk reads that chunk's
 *             `oobValue`
 * @param rows rows of `x`
 * @param cols columns of `x`
 * @param y    given the shape `cols` by `rows` and filled with 0.0 first; its `oobValue` is then the last
 *             cell stored
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Transpose(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>*& y);

/**
 * From a dense table to column chunks, through the checked access of both.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of `x`
 * @param cols columns of `x`
 * @param y    chunks 0 to `rows - 1`, sized by the caller, receive a row of `x` each; the `oobValue` of each
 *             is then the last cell stored
 */
KORVEL_API void M_Transpose(matrix<double>* x, int rows, int cols, matrix3D<matrix<double>>* y);

/**
 * Transposes a sparse table by counting its columns (Gustavson, Two fast algorithms for sparse matrices,
 * 1978).
 *
 * @param x    the table; only entries in the first `rows` rows and the first `cols` columns are taken, with
 *             whatever value is stored
 * @param rows rows of `x`; a count below 0 stands for none
 * @param cols columns of `x`; likewise
 * @param y    replaced by a table of `cols` by `rows`; in each row the entries stand in ascending column
 *             order. May be `x`
 * @throws std::bad_alloc when memory is short; `y` is then as it was
 */
KORVEL_API void M_Transpose(const matrixSparse& x, int rows, int cols, matrixSparse& y);

/**
 * Transposes a dense table in place: `M_Transpose` from a full copy of `x` to `x`.
 *
 * @param x    a block of `rows` by `cols` cells. It takes the shape `cols` by `rows`, unless it is borrowed:
 *             then only its block changes
 * @param rows rows of `x`
 * @param cols columns of `x`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_Transpose2(matrix<double>* x, int rows, int cols);
KORVEL_API void M_Transpose2(matrix<int>* x, int rows, int cols);
KORVEL_API void M_Transpose2(matrix<text>* x, int rows, int cols);

/**
 * From column chunks to column chunks.
 *
 * @param x    `cols` chunks; a row past the end of a chunk reads that chunk's `oobValue`
 * @param rows rows of `x`
 * @param cols columns of `x`
 * @param y    `rows` chunks, sized by the caller; none of `x`. The `oobValue` of each is then the last cell
 *             stored
 */
KORVEL_API void M_TransposeSPV(matrix<double>** x, int rows, int cols, matrix<double>** y);

#endif
