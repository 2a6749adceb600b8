/**
 * @file
 * Contingency tables without empty rows and columns.
 */
#ifndef KORVEL_DOMAIN_MARGINAL_SUMS_H
#define KORVEL_DOMAIN_MARGINAL_SUMS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Copies a table without the rows and columns whose sum is not above 1e-12; a NaN is not. Both sums are those
 * of the whole table, cells that equal `MISSING_DBL` left out.
 *
 * Tables are read and written through the checked access of `matrix`.
 *
 * @param table       `rows` by `cols`
 * @param rows        rows of the table
 * @param cols        columns of the table
 * @param result      `rows` by `cols`, sized by the caller: the rows and columns that stay come to its top
 * left corner. Columns behind them stay as they were, and rows below them as copying the columns left them.
 * May be `table`
 * @param keptRows    receives how many rows stay; a number of rows below 0 as it is
 * @param keptCols    receives how many columns stay; a number of columns below 0 as it is
 * @param droppedRows `rows` integers, of which those of rows left out become 1; zero-filled by the caller
 * @param droppedCols `cols` integers, likewise for columns
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CheckForMarginalSums(matrix<double>& table, int rows, int cols, matrix<double>& result,
                                     int& keptRows, int& keptCols, matrix<int>& droppedRows,
                                     matrix<int>& droppedCols);

#endif
