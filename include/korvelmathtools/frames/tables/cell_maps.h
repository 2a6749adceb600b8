/**
 * @file
 * Flat functions: one expression applied to every cell of a table.
 */
#ifndef KORVEL_FRAMES_TABLES_CELL_MAPS_H
#define KORVEL_FRAMES_TABLES_CELL_MAPS_H

#include "frames/types.h"

/**
 * Natural logarithms.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of both tables
 * @param cols columns of both tables; 0 stands for 1
 * @param y    [out] rows by cols numbers, missing for a cell of 0 or below and for a missing one; may be x
 * @return 0
 */
KORVEL_FLAT int VB_M_LogMatrix(const double* x, int rows, int cols, double* y);

/**
 * Logarithms to base 10.
 *
 * @like VB_M_LogMatrix
 */
KORVEL_FLAT int VB_M_Log10Matrix(const double* x, int rows, int cols, double* y);

/**
 * Square roots.
 *
 * @like VB_M_LogMatrix
 * @param y    [out] rows by cols numbers, missing for a cell below 0 and for a missing one; may be x
 */
KORVEL_FLAT int Cpp_M_SquareRootAij(const double* x, int rows, int cols, double* y);

/**
 * Square roots, in place.
 *
 * @param x    [inout] rows by cols numbers; a cell below 0 becomes missing
 * @param rows rows of x
 * @param cols columns of x; 0 stands for 1
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SquareRootAij2(double* x, int rows, int cols);

/**
 * Subtracts the first cell of its row from each cell, in place; the first column becomes 0.
 *
 * @param x    [inout] rows by cols numbers. A missing cell stays missing, and a row whose first cell is
 * missing becomes missing
 * @param rows rows of x
 * @param cols columns of x
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SubstractFirstCol2(double* x, int rows, int cols);

/**
 * Tells whether all cells of a table lie in an interval.
 *
 * @param x            [in] chunked table of cols columns of rows numbers
 * @param rows         rows of x
 * @param cols         columns of x
 * @param lo           lower end
 * @param hi           upper end
 * @param bOpen        -1: a cell equal to an end is outside; otherwise it is inside
 * @param bSkipMissing -1: missing cells are passed over; otherwise they are compared like others
 * @return -1 when no cell is outside, also when there is none; otherwise 0
 */
KORVEL_FLAT short int VB_M_IsInIntervalSPV(Hostarray** x, int rows, int cols, double lo, double hi,
                                           short int bOpen, short int bSkipMissing);

#endif
