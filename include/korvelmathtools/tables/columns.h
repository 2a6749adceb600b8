/**
 * @file
 * Copying one column or one row of a table, or a part of a column, and moving a row. All are counted from 1.
 *
 * Access is checked: a cell that a table does not have reads as its `oobValue`, and what falls outside of the
 * target goes to the target's. Cells of the target that nothing goes to stay, save where said otherwise.
 */
#ifndef KORVEL_TABLES_COLUMNS_H
#define KORVEL_TABLES_COLUMNS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Copies a column into a column of another table.
 *
 * @param x      the table read
 * @param rows   its rows
 * @param col    the column to copy
 * @param y      receives it
 * @param colTo  the column of `y`
 * @param bReset other than 0: `y` is redimensioned first, to `rows` by `colTo` zeros
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CopyMatrixColToMatrixCol(const matrix<double>& x, int rows, int col, matrix<double>& y,
                                         int colTo, short int bReset);

/**
 * Copies a row into a row of another table.
 *
 * @param x      the table read
 * @param cols   its columns
 * @param row    the row to copy
 * @param y      receives it
 * @param yRows  rows of `y`
 * @param rowTo  the row of `y`
 * @param bReset other than 0: `y` is redimensioned first, to `yRows` by `cols` zeros
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CopyMatrixRowToMatrixRow(matrix<double>* x, int cols, int row, matrix<double>*& y, int yRows,
                                         int rowTo, short int bReset);

/**
 * Copies a column into a vector.
 *
 * @param x    the table read
 * @param rows its rows
 * @param col  the column to copy
 * @param y    is redimensioned to `rows` elements; not `x`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CopyMatrixColToVector(const matrix<double>& x, int rows, int col, matrix<double>& y);

/** The same for texts. */
KORVEL_API void CopyMatrixColToOneColMatStr(const matrix<text>& x, int rows, int col, matrix<text>& y);

/** Copies chunk `col` of `x`, `rows` elements, into a vector that the caller has sized. */
KORVEL_API void CopyMatrixColToVectorSPV(matrix<double>** x, int rows, int col, matrix<double>* y);

/**
 * Moves a row to another place, in place; the rows between the two move up or down by one.
 *
 * @param x    the table
 * @param cols its columns; further ones stay as they are
 * @param from the row to move
 * @param to   where it goes. Nothing happens unless both are rows of the table
 */
KORVEL_API void M_MoveRow(matrix<double>*& x, int cols, int from, int to);

/**
 * Copies rows `from` to `to` of a column to a place in another table.
 *
 * @param src    the table read
 * @param col    the column to copy
 * @param from   first row
 * @param to     last row; below `from` nothing is done
 * @param dst    receives them. It may be `src` when all rows concerned are its own: what is read is then
 *               what they held before
 * @param dstRow row of `dst` for the first
 * @param dstCol column of `dst`
 *
 * A number loses its fraction in an integer table, in which what no integer holds, a missing number too, is
 * `MISSING_LNG`. An integer becomes the same number: `MISSING_LNG` is -2147483648.0, not missing.
 */
KORVEL_API void V_Duplicate(matrix<double>* src, int col, int from, int to, matrix<double>* dst, int dstRow,
                            int dstCol);
KORVEL_API void V_Duplicate(matrix<int>* src, int col, int from, int to, matrix<int>* dst, int dstRow,
                            int dstCol);
KORVEL_API void V_Duplicate(matrix<int>* src, int col, int from, int to, matrix<double>* dst, int dstRow,
                            int dstCol);
KORVEL_API void V_Duplicate(matrix<double>* src, int col, int from, int to, matrix<int>* dst, int dstRow,
                            int dstCol);
KORVEL_API void V_Duplicate(matrix<short int>* src, int col, int from, int to, matrix<short int>* dst,
                            int dstRow, int dstCol);
KORVEL_API void V_Duplicate(matrix<text>* src, int col, int from, int to, matrix<text>* dst, int dstRow,
                            int dstCol);

/** Copies the first `n` elements, in linear order. */
KORVEL_API void V_Duplicate2(matrix<short int>* src, int n, matrix<short int>* dst);
KORVEL_API void V_Duplicate2(matrix<double>* src, int n, matrix<double>* dst);
KORVEL_API void V_Duplicate2(matrix<int>* src, int n, matrix<int>* dst);
KORVEL_API void V_Duplicate2(matrix<text>* src, int n, matrix<text>* dst);

#endif
