/**
 * @file
 * A range of the rows, or of the columns, of a table as a table of its own. Both are counted from 1.
 *
 * Access is checked: a cell that a table does not have reads as its `oobValue`, and what falls outside of the
 * result goes to the result's.
 */
#ifndef KORVEL_TABLES_EXTRACT_H
#define KORVEL_TABLES_EXTRACT_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Takes a range of rows.
 *
 * @param x        the table read; dense, or an array of `cols` chunks in the form named SPV
 * @param cols     its columns
 * @param firstRow first row of the range
 * @param lastRow  last row of the range; below `firstRow` nothing is done
 * @param out      receives `lastRow - firstRow + 1` by `cols`, sized by the caller; not `x`
 */
KORVEL_API void M_ExtractMatToMat(matrix<double>* x, int cols, int firstRow, int lastRow,
                                  matrix<double>* out);
KORVEL_API void M_ExtractMatToMat(matrix<text>* x, int cols, int firstRow, int lastRow, matrix<text>* out);
KORVEL_API void M_ExtractMatToMatSPV(matrix<double>** x, int cols, int firstRow, int lastRow,
                                     matrix<double>* out);
KORVEL_API void M_ExtractMatToMatSPV(matrix<text>** x, int cols, int firstRow, int lastRow,
                                     matrix<text>* out);

/** Rows `i` to `j`: `M_ExtractMatToMat` under another name. */
KORVEL_API void Extractij(matrix<double>* x, int cols, int i, int j, matrix<double>* out);

/**
 * Takes a range of columns.
 *
 * @param x        the table read
 * @param rows     its rows
 * @param firstCol first column of the range
 * @param lastCol  last column of the range; below `firstCol` nothing is done
 * @param out      receives `rows` by `lastCol - firstCol + 1`, sized by the caller; not `x`
 */
KORVEL_API void M_ExtractMatToMatByColDbl(matrix<double>* x, int rows, int firstCol, int lastCol,
                                          matrix<double>* out);

#endif
