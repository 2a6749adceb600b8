/**
 * @file
 * Copying a block of a table into another: to its top left corner, or to any place.
 *
 * Rows and columns are counted from 1. Access is checked: a cell that a table does not have reads as its
 * `oobValue`, and what falls outside of the target goes to the target's. Of a table of chunks, the columns
 * concerned must all be chunks. Cells of the target that no cell of the block goes to stay.
 *
 * In a triangular table of chunks, chunk c holds column c of a symmetric table from the diagonal down; it is
 * read as the whole symmetric table. The target of a block is always a table of whole columns.
 */
#ifndef KORVEL_TABLES_BLOCKS_H
#define KORVEL_TABLES_BLOCKS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/sparse_matrix.h"
#include "platform/export.h"

/**
 * Copies a block to the top left corner of another table.
 *
 * @param x        the table read
 * @param firstRow first row of the block
 * @param lastRow  last row of the block; below `firstRow` nothing is done
 * @param firstCol first column of the block
 * @param lastCol  last column of the block; below `firstCol` nothing is done
 * @param out      receives the block, sized by the caller; not `x`
 */
KORVEL_API void M_CopyBlock(matrix<double>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                            matrix<double>* out);
KORVEL_API void M_CopyBlock(matrix<text>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                            matrix<text>* out);
KORVEL_API void M_CopyBlockSPV(matrix3D<matrix<double>>* x, int firstRow, int lastRow, int firstCol,
                               int lastCol, matrix3D<matrix<double>>* out);
KORVEL_API void M_CopyBlockSPV(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                               matrix<double>** out);
/** The same under another name. */
KORVEL_API void M_CopyBlockSPV2(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                                matrix<double>** out);
/** From a triangular table. */
KORVEL_API void M_CopyBlockSPV_T(matrix3D<matrix<double>>* x, int firstRow, int lastRow, int firstCol,
                                 int lastCol, matrix3D<matrix<double>>* out);
KORVEL_API void M_CopyBlockSPV2_T(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                                  matrix<double>** out);

/**
 * Writes a table into a larger one.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of the table
 * @param cols columns of the table
 * @param y    receives it; not `x`. A sparse table takes each cell by its own `setElement`
 * @param row  row of `y` for the first row
 * @param col  column of `y` for the first column
 */
KORVEL_API void M_PasteBlock(matrix<double>* x, int rows, int cols, matrix<double>* y, int row, int col);
KORVEL_API void M_PasteBlock(matrix<int>* x, int rows, int cols, matrix<int>* y, int row, int col);
KORVEL_API void M_PasteBlock(matrix<double>* x, int rows, int cols, matrixSparse* y, int row, int col);

/**
 * Copies a block of one table to any place of another.
 *
 * @param x        the table read
 * @param firstRow first row of the block
 * @param lastRow  last row of the block; below `firstRow` nothing is done
 * @param firstCol first column of the block
 * @param lastCol  last column of the block; below `firstCol` nothing is done
 * @param y        receives the block. A dense table may be `x` or have its block: what is read is then what
 *                 it held before
 * @param row      row of `y` for the first row of the block
 * @param col      column of `y` for its first column
 * @throws std::bad_alloc when memory for a copy of `x` is short
 */
KORVEL_API void M_CopyPasteBlock(matrix<double>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                                 matrix<double>* y, int row, int col);
KORVEL_API void M_CopyPasteBlockStr(matrix<text>* x, int firstRow, int lastRow, int firstCol, int lastCol,
                                    matrix<text>* y, int row, int col);
/** On chunks, which must not be shared. */
KORVEL_API void M_CopyPasteBlockSPV(matrix<double>** x, int firstRow, int lastRow, int firstCol, int lastCol,
                                    matrix<double>** y, int row, int col);

#endif
