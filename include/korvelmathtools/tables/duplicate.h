/**
 * @file
 * Copying a table into another, of the same form or of another: dense, an array of one-column chunks, a
 * record of labelled columns, a triangle of chunks.
 *
 * `x` is read through the checked access: a cell that it does not have reads as its `oobValue` (of chunks,
 * the chunk's). Its first cell goes to row `row` and column `col` of `y`, counted from 1. What falls outside
 * of `yRows` by `yCols` is left out; all other cells of `y` stay. `y` is not `x`.
 */
#ifndef KORVEL_TABLES_DUPLICATE_H
#define KORVEL_TABLES_DUPLICATE_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Dense to dense.
 *
 * @param x     `rows` by `cols`
 * @param rows  rows of the table read
 * @param cols  columns of the table read
 * @param y     `yRows` by `yCols`
 * @param yRows rows of the table written
 * @param yCols columns of the table written
 * @param row   row of `y` for the first row
 * @param col   column of `y` for the first column
 */
KORVEL_API void M_Duplicate(matrix<double>* x, int rows, int cols, matrix<double>* y, int yRows, int yCols,
                            int row, int col);
KORVEL_API void M_Duplicate(matrix<int>* x, int rows, int cols, matrix<int>* y, int yRows, int yCols, int row,
                            int col);
KORVEL_API void M_Duplicate(matrix<text>* x, int rows, int cols, matrix<text>* y, int yRows, int yCols,
                            int row, int col);

/** Record to record. Columns that `x` does not have are left out, and so are those that `y` does not have. */
KORVEL_API void M_Duplicate(cST_MVect<double>& x, int rows, int cols, cST_MVect<double>& y, int yRows,
                            int yCols, int row, int col);
KORVEL_API void M_Duplicate(cST_MVect<text>& x, int rows, int cols, cST_MVect<text>& y, int yRows, int yCols,
                            int row, int col);

/** Chunks to dense. */
KORVEL_API void M_DuplicateSPV(matrix<double>** x, int rows, int cols, matrix<double>* y, int yRows,
                               int yCols, int row, int col);
KORVEL_API void M_DuplicateStrSPV(matrix<text>** x, int rows, int cols, matrix<text>* y, int yRows, int yCols,
                                  int row, int col);

/** Dense to chunks, of which there are `yCols`. */
KORVEL_API void M_DuplicateSPV2(matrix<double>* x, int rows, int cols, matrix<double>** y, int yRows,
                                int yCols, int row, int col);

/** Chunks to chunks. */
KORVEL_API void M_DuplicateSPV3(matrix<double>** x, int rows, int cols, matrix<double>** y, int yRows,
                                int yCols, int row, int col);

/**
 * Dense to a triangle of `yCols` chunks, of which chunk c holds column c of a table of `yRows` rows from the
 * diagonal down. Cells that would fall above the diagonal are left out.
 */
KORVEL_API void M_DuplicateSPV2_T(matrix<double>* x, int rows, int cols, matrix<double>** y, int yRows,
                                  int yCols, int row, int col);
KORVEL_API void M_DuplicateSPV2_T(matrix<double>* x, int rows, int cols, matrix3D<matrix<double>>* y,
                                  int yRows, int yCols, int row, int col);

/** Triangle, read as the whole symmetric table, to triangle. */
KORVEL_API void M_DuplicateSPV3_T(matrix<double>** x, int rows, int cols, matrix<double>** y, int yRows,
                                  int yCols, int row, int col);

#endif
