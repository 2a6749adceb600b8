/**
 * @file
 * Flat functions: a table without some of its columns or rows. What stays keeps its order.
 *
 * Results are the caller's arrays, have room for all their cells, and may be, or share memory with, the table
 * that is read.
 */
#ifndef KORVEL_FRAMES_TABLES_REMOVE_H
#define KORVEL_FRAMES_TABLES_REMOVE_H

#include "frames/types.h"

/**
 * Copies a table without one column.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param k    the column to leave out; one below 1 counts as 1, and one above cols as cols
 * @param out  [out] rows by cols - 1 numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_RemoveCol(const double* x, int rows, int cols, int k, double* out);

/**
 * Copies a table without one row.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param k    the row to leave out; one below 1 counts as 1, and one above rows as rows
 * @param out  [out] rows - 1 by cols numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_RemoveRow(const double* x, int rows, int cols, int k, double* out);

/**
 * Takes a run of columns out of a table in place: those behind it move left. The columns that become free at
 * the right keep their numbers.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param first first column of the run; one below 1 counts as 1
 * @param last  last column of the run; one above cols counts as cols. Below first, nothing happens
 * @return 0
 */
KORVEL_FLAT int VB_M_RemoveCols2(double* x, int rows, int cols, int first, int last);

/**
 * Takes a run of rows out of a table in place: those below it move up. The table keeps its shape, and the
 * rows that become free at the bottom keep their numbers.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param first first row of the run; one below 1 counts as 1
 * @param last  last row of the run; one above rows counts as rows. Below first, nothing happens
 * @return 0
 */
KORVEL_FLAT int VB_M_RemoveRows2(double* x, int rows, int cols, int first, int last);

/**
 * Takes a run of rows out of a table of texts in place: those below it move up. The table keeps its shape,
 * and the rows that become free at the bottom keep their texts.
 *
 * @like VB_M_RemoveRows2, texts for numbers
 */
KORVEL_FLAT int Cpp_M_RemoveRowsStr2(OLECHAR** x, int rows, int cols, int first, int last);

/**
 * Copies a table without the columns in a list.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param list [in] n numbers of columns, in any order, also more than once. One that is not exactly the
 * number of a column leaves out none
 * @param n    length of the list
 * @param out  [out] rows by cols numbers, of which as many columns as stay are written
 * @return 0
 */
KORVEL_FLAT int VB_M_RemoveColsInList(const double* x, int rows, int cols, const double* list, int n,
                                      double* out);

/**
 * Copies a table without the rows in a list.
 *
 * @like VB_M_RemoveColsInList
 * @param list [in] n numbers of rows, in any order, also more than once. One that is not the number of a row
 * leaves out none
 * @param out  [out] rows by cols numbers, of which as many rows as stay, by cols, are written
 */
KORVEL_FLAT int VB_M_RemoveRowsInList(const double* x, int rows, int cols, const int* list, int n,
                                      double* out);

#endif
