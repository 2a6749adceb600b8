/**
 * @file
 * Flat functions: copying a table into another, of the same form or of another. Rows and columns are counted
 * from 1. What would fall outside of the table written is left out, and all its other cells stay.
 */
#ifndef KORVEL_FRAMES_TABLES_DUPLICATE_H
#define KORVEL_FRAMES_TABLES_DUPLICATE_H

#include "frames/types.h"

/**
 * Copies a table of numbers into another.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows of x
 * @param cols  columns of x; 0 stands for 1
 * @param y     [inout] yRows by yCols numbers; may be x
 * @param yRows rows of y
 * @param yCols columns of y; 0 stands for 1
 * @param row   row of y for the first row of x
 * @param col   column of y for the first column of x
 * @return 0
 */
KORVEL_FLAT int VB_M_DuplicateDbl(const double* x, int rows, int cols, double* y, int yRows, int yCols,
                                  int row, int col);

/**
 * Copies a table of integers into another.
 *
 * @like VB_M_DuplicateDbl, integers for numbers
 */
KORVEL_FLAT int VB_M_DuplicateLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row,
                                  int col);

/**
 * Copies a table of texts into another.
 *
 * @like VB_M_DuplicateDbl, texts for numbers
 */
KORVEL_FLAT int VB_M_DuplicateStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int yRows, int yCols,
                                  int row, int col);

/**
 * Copies a chunked table of texts into a dense one.
 *
 * @like VB_M_DuplicateDbl
 * @param x     [in] host array of cols records, each with a text column of rows texts
 * @param cols  columns of x
 * @param y     [inout] yRows by yCols texts
 */
KORVEL_FLAT int VB_M_DuplicateStrSPV(Hostarray** x, int rows, int cols, OLECHAR** y, int yRows, int yCols,
                                     int row, int col);

/**
 * Copies a table of labelled columns of numbers into another. Columns that either does not have are left out.
 *
 * @param x     [in] the record, with columns of numbers; an element that a column does not have reads as -1
 * @param rows  rows of x
 * @param cols  columns of x
 * @param y     [inout] another record; elements for which a column has no room are left out
 * @param yRows rows of y
 * @param yCols columns of y
 * @param row   row of y for the first row of x
 * @param col   column of y for the first column of x
 * @return 0
 */
KORVEL_FLAT int Cpp_M_DuplicateDbl_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols,
                                      int row, int col);

/**
 * Copies a table of labelled columns of texts into another. Columns that either does not have are left out.
 *
 * @like Cpp_M_DuplicateDbl_ST
 * @param x     [in] the record, with columns of texts; an element that a column does not have reads as the
empty text
 */
KORVEL_FLAT int Cpp_M_DuplicateStr_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols,
                                      int row, int col);

/**
 * Copies a chunked table into a dense one.
 *
 * @like VB_M_DuplicateDbl
 * @param x     [in] host array of cols records, each with a numeric column of rows numbers
 * @param cols  columns of x
 * @param y     [inout] yRows by yCols numbers
 */
KORVEL_FLAT int Cpp_M_DuplicateDblSPV(Hostarray** x, int rows, int cols, double* y, int yRows, int yCols,
                                      int row, int col);

/**
 * Copies a dense table into a chunked one.
 *
 * @like VB_M_DuplicateDbl
 * @param y     [inout] host array of yCols records, each with a numeric column of yRows numbers
 * @param yCols columns of y
 */
KORVEL_FLAT int Cpp_M_DuplicateDblSPV2(const double* x, int rows, int cols, Hostarray** y, int yRows,
                                       int yCols, int row, int col);

/**
 * Copies a dense table into a triangle, of which each column is held from the diagonal down. What would fall
above
 * the diagonal is left out.
 *
 * @like VB_M_DuplicateDbl
 * @param y     [inout] host array of yCols records, each with a numeric column: of yRows numbers the first,
and of one less each next
 * @param yCols columns of y
 */
KORVEL_FLAT int Cpp_M_DuplicateDblSPV2_T(const double* x, int rows, int cols, Hostarray** y, int yRows,
                                         int yCols, int row, int col);

/**
 * Copies a chunked table into another.
 *
 * @like Cpp_M_DuplicateDbl_ST
 * @param x     [in] host array of cols records, each with a numeric column of rows numbers
 * @param y     [inout] host array of yCols records, each with a numeric column of yRows numbers; another than
 * x
 */
KORVEL_FLAT int Cpp_M_DuplicateDblSPV3(Hostarray** x, int rows, int cols, Hostarray** y, int yRows, int yCols,
                                       int row, int col);

#endif
