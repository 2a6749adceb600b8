/**
 * @file
 * Flat functions: a table in another shape, the top left corner that the two shapes share.
 */
#ifndef KORVEL_FRAMES_TABLES_RESIZE_H
#define KORVEL_FRAMES_TABLES_RESIZE_H

#include "frames/types.h"

/**
 * Copies a table of numbers into another shape. Cells that it does not have become -1.
 *
 * @param x       [in] rows by cols numbers
 * @param rows    rows of the table
 * @param cols    columns of the table; 0 stands for 1
 * @param y       [out] newRows by newCols numbers; may be x
 * @param newRows rows of the result
 * @param newCols columns of the result; 0 stands for 1
 * @return 0
 */
KORVEL_FLAT int VB_M_CopyResize(const double* x, int rows, int cols, double* y, int newRows, int newCols);

/**
 * Copies a table of flags into another shape. Cells that it does not have become 0.
 *
 * @like VB_M_CopyResize, flags for numbers
 */
KORVEL_FLAT int VB_M_CopyResizeBool(const short int* x, int rows, int cols, short int* y, int newRows,
                                    int newCols);

/**
 * Copies a table of texts into another shape. Cells that it does not have become the empty text.
 *
 * @like VB_M_CopyResize, texts for numbers
 */
KORVEL_FLAT int VB_M_CopyResizeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int newRows,
                                   int newCols);

/**
 * Copies a table to the top left corner of a larger one, of which all other cells stay. What would fall
 * outside of it is left out.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param y     [inout] yRows by yCols numbers; may be x
 * @param yRows rows of the larger table
 * @param yCols columns of the larger table; 0 stands for 1
 * @return 0
 */
KORVEL_FLAT int VB_M_CopyToBigger(const double* x, int rows, int cols, double* y, int yRows, int yCols);

#endif
