/**
 * @file
 * Flat functions: copying a column, a row, or a part of a column, and moving a row. Rows and columns are
 * counted from 1, those of a host array from its first one. All other cells of the table written stay. A
 * dense result may share memory with the table that is read.
 */
#ifndef KORVEL_FRAMES_TABLES_COLUMNS_H
#define KORVEL_FRAMES_TABLES_COLUMNS_H

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
 * @param bReset not 0: all other cells of y become 0
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixColToMatrixCol(const double* x, int rows, int cols, int col, double* y,
                                            int yRows, int yCols, int colTo, short int bReset);

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
 * @param bReset not 0: all other cells of y become 0
 * @return 0
 */
KORVEL_FLAT int VB_CopyMatrixRowToMatrixRow(const double* x, int rows, int cols, int row, double* y,
                                            int yRows, int yCols, int rowTo, short int bReset);

/**
 * Copies a column of a table into a vector.
 *
 * @like VB_CopyMatrixColToMatrixCol
 * @param y    [out] rows numbers
 */
KORVEL_FLAT int VB_CopyMatrixColToVector(const double* x, int rows, int cols, int col, double* y);

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
KORVEL_FLAT int VB_CopyMatrixColToOneColMatStr(OLECHAR* const* x, int rows, int cols, int col, OLECHAR** y);

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

/**
 * Copies a range of rows of a column of numbers to a place in a table.
 *
 * @param x     [in] rows by cols numbers; cells outside of them read as -1
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param col   the column to copy
 * @param from  first row to copy
 * @param to    last row to copy; below from nothing is done
 * @param y     [inout] yRows by yCols numbers; may be x
 * @param yRows rows of the table written; what would fall outside is left out
 * @param yCols columns of the table written; 0 stands for 1
 * @param row   row of y for the first
 * @param yCol  column of y
 * @return 0
 */
KORVEL_FLAT int VB_V_DuplicateDbl(const double* x, int rows, int cols, int col, int from, int to, double* y,
                                  int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of integers to a place in a table.
 *
 * @like VB_V_DuplicateDbl, integers for numbers
 */
KORVEL_FLAT int VB_V_DuplicateLng(const int* x, int rows, int cols, int col, int from, int to, int* y,
                                  int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of numbers to a place in a table of integers.
 *
 * A number loses its fraction; what no integer holds, a missing number too, becomes the missing integer.
 *
 * @like VB_V_DuplicateDbl
 * @param y     [inout] yRows by yCols integers
 */
KORVEL_FLAT int VB_V_DuplicateDblToLng(const double* x, int rows, int cols, int col, int from, int to, int* y,
                                       int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of integers to a place in a table of numbers.
 *
 * An integer becomes the same number, a missing integer -2147483648, which is not missing.
 *
 * @like VB_V_DuplicateDbl, integers for numbers
 * @param y     [inout] yRows by yCols numbers
 */
KORVEL_FLAT int VB_V_DuplicateLngToDbl(const int* x, int rows, int cols, int col, int from, int to, double* y,
                                       int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of texts to a place in a table.
 *
 * @like VB_V_DuplicateDbl, texts for numbers
 * @param x     [in] rows by cols texts; cells outside of them read as the empty text
 */
KORVEL_FLAT int VB_V_DuplicateStr(OLECHAR* const* x, int rows, int cols, int col, int from, int to,
                                  OLECHAR** y, int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of flags to a place in a table.
 *
 * @like VB_V_DuplicateDbl, flags for numbers
 * @param x     [in] rows by cols flags; cells outside of them read as 0
 */
KORVEL_FLAT int Cpp_V_DuplicateBool(const short int* x, int rows, int cols, int col, int from, int to,
                                    short int* y, int yRows, int yCols, int row, int yCol);

/**
 * Copies a range of rows of a column of numbers to a place in a table, both host arrays that come out of a
 * record.
 *
 * @like VB_V_DuplicateDbl
 * @param x    [in] host array of Double; cells outside of it read as -1
 * @param y    [inout] host array of Double; may be x. What would fall outside is left out
 */
KORVEL_FLAT int Cpp_V_DuplicateDbl_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row,
                                      int yCol);

/**
 * Copies a range of rows of a column of integers to a place in a table, both host arrays that come out of a
 * record.
 *
 * @like VB_V_DuplicateDbl
 * @param x    [in] host array of Long; cells outside of it read as -1
 * @param y    [inout] host array of Long; may be x. What would fall outside is left out
 */
KORVEL_FLAT int Cpp_V_DuplicateLng_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row,
                                      int yCol);

/**
 * Copies a range of rows of a column of texts to a place in a table, both host arrays that come out of a
 * record.
 *
 * @like VB_V_DuplicateDbl
 * @param x    [in] host array of String; cells outside of it read as the empty text
 * @param y    [inout] host array of String; may be x. What would fall outside is left out
 */
KORVEL_FLAT int Cpp_V_DuplicateStr_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row,
                                      int yCol);

#endif
