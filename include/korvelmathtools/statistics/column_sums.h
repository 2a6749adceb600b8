/**
 * @file
 * Sums, sums of squares and sums of powers of a table, by column, by row and over all cells.
 *
 * A table is its first rows and columns, through the checked access of its form. Each sum is one running sum
 * from 0.0: down a column, along a row from the first column on, over a table column after column. Where
 * nothing else is said, cells that equal `MISSING_DBL` are left out; a NaN is not. A sum of nothing is 0.0.
 */
#ifndef KORVEL_STATISTICS_COLUMN_SUMS_H
#define KORVEL_STATISTICS_COLUMN_SUMS_H

#include "containers/matrix.h"
#include "platform/export.h"

/** The sum of all cells in the storage. */
KORVEL_API double M_Sum2(matrix<double>* x);

/** The sum of the first `rows` cells of column `col`, counted from 1. */
KORVEL_API double M_ColSum2(matrix<double>* x, int rows, int col);

/** The sum of each row; `out` receives `rows` sums. */
KORVEL_API void M_SumByRows(matrix<double>* x, int rows, int cols, matrix<double>* out);

/** The sum of squares of each column; `out` receives `cols` sums. */
KORVEL_API void M_SumBySquareCols(matrix<double>* x, int rows, int cols, matrix<double>* out);

/** The sum of squares of each row; `out` receives `rows` sums. */
KORVEL_API void M_SumBySquareRows(matrix<double>* x, int rows, int cols, matrix<double>* out);

/** `M_SumBySquareRows`; `out` is resized to `rows` by 1. */
KORVEL_API void M_SquaredRows(matrix<double>* x, int rows, int cols, matrix<double>*& out);
/** The same on `cols` chunks. */
KORVEL_API void M_SquaredRowsSPV(matrix<double>** x, int rows, int cols, matrix<double>*& out);

/** `M_SumBySquareCols`; `out` is resized to `cols` by 1. */
KORVEL_API void M_SquaredColumns(matrix<double>* x, int rows, int cols, matrix<double>*& out);

/**
 * The sum of the powers of the diagonal. Missing cells are numbers here.
 *
 * @param x a square table of order `n`
 * @param n order; below 1 gives 0.0
 * @param p the exponent, for `pow`; the third argument is not used
 */
KORVEL_API double M_SumDiagPow(matrix<double>* x, int n, int, double p);

/** The sum of the powers of all cells, column after column. Missing cells are numbers here. */
KORVEL_API double M_Sum2Pow(matrix<double>* x, int rows, int cols, double p);

namespace korvel
{

/** The sum of each column; `out` receives `cols` sums. */
void sumByColumns(const matrix<double>& x, int rows, int cols, matrix<double>& out);

/** The sum of all cells. */
[[nodiscard]] double sumOfCells(const matrix<double>& x, int rows, int cols);

} // namespace korvel

#endif
