/**
 * @file
 * One result for every row of a table. Tables are reached through the checked access; the `oobValue` of a
 * result is the last element stored.
 */
#ifndef KORVEL_TABLES_ROW_MAPS_H
#define KORVEL_TABLES_ROW_MAPS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The column of the largest cell of each row.
 *
 * @param x         `rows` by `cols`
 * @param rows      rows of the table
 * @param cols      columns of the table
 * @param positions receives `rows` column numbers from 1, sized by the caller. Missing cells are compared
 *                  like any other, and so are below all that are present; of equal cells the first is taken,
 *                  column 1 for a row of missing cells. A NaN stays when it comes first and is passed over
 *                  afterwards
 *
 * Without columns every position is 1.
 */
KORVEL_API void M_MaxPosByRow(matrix<double>* x, int rows, int cols, matrix<int>* positions);

/**
 * A new variable as a weighted sum of those of a table: element i is the sum over j, in ascending order from
 * 0.0, of `x(i, j) * coefficients[j]`.
 *
 * @param x            `rows` by `cols`
 * @param rows         rows of the table
 * @param cols         columns of the table
 * @param coefficients `cols` factors
 * @param out          receives `rows` elements, sized by the caller: `MISSING_DBL` when a cell of the row or
 *                     a factor is missing
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void ComputeNewVar(matrix<double>* x, int rows, int cols, matrix<double>* coefficients,
                              matrix<double>* out);
/** The same in place: the new variable takes the place of the first column. */
KORVEL_API void ComputeNewVar2(matrix<double>* x, int rows, int cols, matrix<double>* coefficients);

/**
 * Picks the rows that are not negligible.
 *
 * @param x         `rows` by `cols`
 * @param rows      rows of the table
 * @param cols      columns of the table
 * @param threshold a row is kept when the sum of its squares, over the cells that are not missing and in
 *                  ascending order from 0.0, is greater
 * @param kept      receives `rows` flags, sized by the caller: -1 for a row that is kept, otherwise 0
 * @return the number of rows kept
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int FilterOnSumOfSquares(matrix<double>* x, int rows, int cols, double threshold,
                                    matrix<short int>* kept);

#endif
