/**
 * @file
 * How many cells are missing: numbers that equal `MISSING_DBL`, exactly, and empty texts.
 *
 * Cells are read through the checked access of `matrix`. Counts below 1 read nothing.
 */
#ifndef KORVEL_MISSING_MISSING_COUNTS_H
#define KORVEL_MISSING_MISSING_COUNTS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/** Number of missing elements among the first `n`. */
KORVEL_API int V_NbMissing(matrix<double>* x, int n);
KORVEL_API int V_NbMissing(matrix<text>* x, int n);

/** Number of the other elements. */
KORVEL_API int V_NbNonMissing(matrix<double>* x, int n);

/**
 * Counts the missing cells of each column.
 *
 * @param x      `rows` by `cols`
 * @param rows   rows of the table
 * @param cols   columns of the table
 * @param counts receives `cols` counts, sized by the caller
 */
KORVEL_API void M_NbMissing(matrix<double>* x, int rows, int cols, matrix<int>* counts);
KORVEL_API void M_NbMissing(matrix<text>* x, int rows, int cols, matrix<int>* counts);

/** Counts the other cells of each column. */
KORVEL_API void M_NbNonMissing(matrix<double>* x, int rows, int cols, matrix<int>* counts);

/** Counts the missing cells of each row: `counts` receives `rows` counts. */
KORVEL_API void M_NbMissingPerRow(matrix<double>* x, int rows, int cols, matrix<int>* counts);

/** Number of missing cells in a whole table. */
KORVEL_API int M_NbMissing2(matrix<double>* x, int rows, int cols);
KORVEL_API int M_NbMissing2(matrix<text>* x, int rows, int cols);
KORVEL_API int M_NbMissing2(matrix<double>** x, int rows, int cols);
KORVEL_API int M_NbMissing2(matrix3D<matrix<double>>* x, int rows, int cols);

/** The same in a triangle, of which the first chunk has `rows` cells and each next one a cell less. */
KORVEL_API int M_NbMissingSPV_T(matrix<double>** x, int rows, int cols);
KORVEL_API int M_NbMissingSPV_T(matrix3D<matrix<double>>* x, int rows, int cols);

#endif
