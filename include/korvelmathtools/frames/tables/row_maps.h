/**
 * @file
 * Flat functions: one result for every row of a table.
 */
#ifndef KORVEL_FRAMES_TABLES_ROW_MAPS_H
#define KORVEL_FRAMES_TABLES_ROW_MAPS_H

#include "frames/types.h"

/**
 * The column of the largest cell of each row. Missing cells are below all others.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows of x
 * @param cols      columns of x
 * @param positions [out] rows column numbers from 1; of equal cells the first
 * @return 0
 */
KORVEL_FLAT int Cpp_M_MaxPosByRow(const double* x, int rows, int cols, int* positions);

/**
 * A new variable as a weighted sum of those of a table.
 *
 * @param x            [in] rows by cols numbers
 * @param rows         rows of x
 * @param cols         columns of x
 * @param coefficients [in] cols factors
 * @param out          [out] rows numbers: the sum over the columns of cell times factor; missing when one of
 * the cells or factors is
 * @return 0
 */
KORVEL_FLAT int VB_ComputeNewVar(const double* x, int rows, int cols, const double* coefficients,
                                 double* out);

/**
 * Picks the rows that are not negligible.
 *
 * @param x         [in] rows by cols numbers
 * @param rows      rows of x
 * @param cols      columns of x
 * @param threshold a row is kept when the sum of squares of its cells, missing ones left out, is greater
 * @param kept      [out] rows flags: -1 for a row that is kept, otherwise 0
 * @return the number of rows kept
 */
KORVEL_FLAT int Cpp_FilterOnSumOfSquares(const double* x, int rows, int cols, double threshold,
                                         short int* kept);

#endif
