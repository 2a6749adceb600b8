/**
 * @file
 * A table in another shape: the top left corner that the two shapes share.
 */
#ifndef KORVEL_TABLES_RESIZE_H
#define KORVEL_TABLES_RESIZE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Copies a table into another shape. Cells that the table does not have receive its `oobValue`: of a fresh
 * table -1, or 0 for flags, or the empty text.
 *
 * @param x       `rows` by `cols`, read through the checked access
 * @param rows    rows of the table
 * @param cols    columns of the table
 * @param y       receives `newRows` by `newCols`, sized by the caller; not `x`. What falls outside of it goes
 *                to its `oobValue`
 * @param newRows rows of the result
 * @param newCols columns of the result
 */
KORVEL_API void M_CopyResize(matrix<double>* x, int rows, int cols, matrix<double>* y, int newRows,
                             int newCols);
KORVEL_API void M_CopyResize(matrix<short int>* x, int rows, int cols, matrix<short int>* y, int newRows,
                             int newCols);
KORVEL_API void M_CopyResizeStr(matrix<text>* x, int rows, int cols, matrix<text>* y, int newRows,
                                int newCols);

/**
 * Copies a table to the top left corner of a larger one, of which all other cells stay.
 *
 * @param x    `rows` by `cols`, read through the checked access
 * @param rows rows of the table
 * @param cols columns of the table
 * @param y    receives it; not `x`. What falls outside of it goes to its `oobValue`
 */
KORVEL_API void M_CopyToBigger(matrix<double>* x, int rows, int cols, matrix<double>* y);

#endif
