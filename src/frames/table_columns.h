/**
 * @file
 * Flat functions: copying one column or row of a table, and moving a row. All are counted from 1. A result
 * may share memory with the table that is read.
 */
#ifndef KORVEL_FRAMES_TABLE_COLUMNS_H
#define KORVEL_FRAMES_TABLE_COLUMNS_H

#include "frames/types.h"

/**
 * Copies a column of a table into a column of another.
 *
 * @param x      [in] rows by cols numbers
 * @param rows   rows of the table
 * @param cols   columns of the table; 0 stands for 1
 * @param col    the column to copy; one that the table does not have reads as -1
 * @param y      [inout] yRows by yCols numbers; may be x
 * @param yRows  rows of y; what would fall below is left out
 * @param yCols  columns of y; 0 stands for 1
 * @param colTo  the column of y; nothing is stored in one that it does not have
 * @param bReset other than 0: all other cells of y become 0
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixColToMatrixCol(double* x, int rows, int cols, int col, double* y, int yRows,
                                            int yCols, int colTo, short int bReset);

/**
 * Copies a row of a table into a row of another.
 *
 * @param x      [in] rows by cols numbers
 * @param rows   rows of the table
 * @param cols   columns of the table; 0 stands for 1
 * @param row    the row to copy; one that the table does not have reads as -1
 * @param y      [inout] yRows by yCols numbers; may be x
 * @param yRows  rows of y
 * @param yCols  columns of y; 0 stands for 1. What would fall to the right is left out
 * @param rowTo  the row of y; nothing is stored in one that it does not have
 * @param bReset other than 0: all other cells of y become 0
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixRowToMatrixRow(double* x, int rows, int cols, int row, double* y, int yRows,
                                            int yCols, int rowTo, short int bReset);

/**
 * Copies a column of a table into a vector.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param col  the column to copy; one that the table does not have reads as -1
 * @param y    [out] rows numbers
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixColToVector(double* x, int rows, int cols, int col, double* y);

/**
 * Copies a column of a table of texts into a vector.
 *
 * @param x    [in] rows by cols texts
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param col  the column to copy; one that the table does not have reads as empty texts
 * @param y    [out] rows texts
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixColToOneColMatStr(OLECHAR** x, int rows, int cols, int col, OLECHAR** y);

/**
 * Moves a row of a table to another place, in place; the rows between the two move up or down by one.
 *
 * @param x    [inout] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param from the row to move
 * @param to   where it goes. Nothing happens unless both are rows of the table
 * @return 0
 */
KORVEL_FLAT int VB_M_MoveRow(double* x, int rows, int cols, int from, int to);

#endif
