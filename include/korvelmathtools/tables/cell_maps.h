/**
 * @file
 * One expression applied to every cell of a table. A cell is missing when it equals `MISSING_DBL`. Tables are
 * reached through the checked access; the `oobValue` of a result is the last cell stored.
 */
#ifndef KORVEL_TABLES_CELL_MAPS_H
#define KORVEL_TABLES_CELL_MAPS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Natural logarithms.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of both tables
 * @param cols columns of both tables
 * @param y    `rows` by `cols`, sized by the caller; may be `x`. `MISSING_DBL` for a cell of 0 or below, a
 *             missing one among them; a NaN stays one
 */
KORVEL_API void M_LogMatrix(matrix<double>* x, int rows, int cols, matrix<double>* y);
/** Logarithms to base 10, in the same way. */
KORVEL_API void M_Log10Matrix(matrix<double>* x, int rows, int cols, matrix<double>* y);

/** Square roots, in the same way; `MISSING_DBL` for a cell below 0. */
KORVEL_API void M_SquareRootAij(matrix<double>* x, int rows, int cols, matrix<double>* y);
/** The same in place. */
KORVEL_API void M_SquareRootAij2(matrix<double>* x, int rows, int cols);

/**
 * Subtracts the first cell of its row from each cell, in place; the first column becomes 0. What is missing
 * stays so, and a row without a first cell becomes missing.
 */
KORVEL_API void M_SubstractFirstCol2(matrix<double>* x, int rows, int cols);

/**
 * Tells whether all cells of a table of chunks lie in an interval.
 *
 * @param x            `cols` chunks
 * @param rows         rows of the table
 * @param cols         columns of the table
 * @param lo           lower end
 * @param hi           upper end
 * @param bOpen        -1: a cell equal to an end is outside; otherwise it is inside
 * @param bSkipMissing -1: missing cells are passed over; otherwise they are compared like others
 * @return -1 when no cell is outside, also when there is none; 0 otherwise. A NaN is outside
 */
KORVEL_API short int M_IsInIntervalSPV(matrix<double>** x, int rows, int cols, double lo, double hi,
                                       short int bOpen, short int bSkipMissing);

#endif
