/**
 * @file
 * Flat functions: sums and sums of squares of a table, by column, by row and over all cells. Each is one sum
 * from 0.0: down a column, along a row from the first column on, over a table column after column. Missing
 * numbers are left out; a NaN is not. A sum of nothing is 0.0.
 */
#ifndef KORVEL_FRAMES_STATISTICS_COLUMN_SUMS_H
#define KORVEL_FRAMES_STATISTICS_COLUMN_SUMS_H

#include "frames/types.h"

/**
 * The sum of each row.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] rows sums
 * @return 0
 */
KORVEL_FLAT int VB_M_SumByRows(const double* x, int rows, int cols, double* out);

/**
 * The sum of each column.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] cols sums
 * @return 0
 */
KORVEL_FLAT int VB_M_SumByCols(const double* x, int rows, int cols, double* out);

/**
 * The sum of all cells.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @return the sum
 */
KORVEL_FLAT double VB_M_SumOfElem(const double* x, int rows, int cols);

/**
 * The sum of squares of each column.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] cols sums
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SumBySquareCols(const double* x, int rows, int cols, double* out);

/**
 * The sum of squares of each row.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] rows sums
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SumBySquareRows(const double* x, int rows, int cols, double* out);

/**
 * The sum of squares of each row.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] rows sums
 * @return 0
 */
KORVEL_FLAT int VB_M_SquaredRows(const double* x, int rows, int cols, double* out);

/**
 * The sum of squares of each column.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] cols sums
 * @return 0
 */
KORVEL_FLAT int VB_M_SquaredColumns(const double* x, int rows, int cols, double* out);

#endif
