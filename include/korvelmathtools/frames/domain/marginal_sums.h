/**
 * @file
 * Flat functions: contingency tables without empty rows and columns.
 */
#ifndef KORVEL_FRAMES_DOMAIN_MARGINAL_SUMS_H
#define KORVEL_FRAMES_DOMAIN_MARGINAL_SUMS_H

#include "frames/types.h"

/**
 * Copies a table without the rows and columns whose sum is not above 1e-12. Missing cells are left out of the
 * sums.
 *
 * @param table       [in] rows by cols numbers
 * @param rows        rows of the table
 * @param cols        columns of the table
 * @param result      [inout] rows by cols numbers: the rows and columns that stay come to its top left
 * corner. Columns behind them stay as they were, and what is below them has no meaning
 * @param keptRows    [out] one integer: how many rows stay
 * @param keptCols    [out] one integer: how many columns stay
 * @param droppedRows [inout] rows integers, of which those of rows left out become 1
 * @param droppedCols [inout] cols integers, of which those of columns left out become 1
 * @return 0
 */
KORVEL_FLAT int Cpp_CheckForMarginalSums(const double* table, int rows, int cols, double* result,
                                         int* keptRows, int* keptCols, int* droppedRows, int* droppedCols);

#endif
