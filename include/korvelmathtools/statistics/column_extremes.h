/**
 * @file
 * The smallest and the largest cell of each column of a table, and of a whole table.
 *
 * A table is its first rows and columns, through the checked access of its form. The first cell that counts
 * starts both extremes, and only a cell that is smaller, or larger, replaces one: a NaN stays when it comes
 * first and is passed over afterwards, and of two zeros the first stays. Where no cell counts the extremes
 * are missing. A missing cell is one that equals `MISSING_DBL`.
 */
#ifndef KORVEL_STATISTICS_COLUMN_EXTREMES_H
#define KORVEL_STATISTICS_COLUMN_EXTREMES_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Both extremes of each column.
 *
 * @param x        the table
 * @param rows     rows
 * @param cols     columns
 * @param mins     receives `cols` smallest cells
 * @param maxs     receives `cols` largest cells
 * @param iMissing `rows` flags, read only when `flag` is 0; null: none is set
 * @param flag     -1: every cell that is not missing counts. 0: every cell of a row whose flag is 0 counts, a
 *                 missing one too. Any other value: no cell counts
 */
KORVEL_API void M_MinMax(matrix<double>* x, int rows, int cols, matrix<double>* mins, matrix<double>* maxs,
                         short int* iMissing, short int flag);
/** The same on `cols` chunks. */
KORVEL_API void M_MinMaxSPV(matrix<double>** x, int rows, int cols, matrix<double>* mins,
                            matrix<double>* maxs, short int* iMissing, short int flag);
/**
 * The same for a symmetric table of which chunk j holds column j from the diagonal down. A column is a whole
 * one: what lies above its diagonal is read from the other half.
 */
KORVEL_API void M_MinMaxSPV_T(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>* mins,
                              matrix<double>* maxs, short int* iMissing, short int flag);

/** The largest cell of each column that is not missing; `out` receives `cols` numbers. */
KORVEL_API void M_Max(matrix<double>* x, int rows, int cols, matrix<double>* out);

/** The smallest cell of each column that is not missing; `out` receives `cols` numbers. */
KORVEL_API void M_Min(matrix<double>* x, int rows, int cols, matrix<double>* out);

/** The smallest cell of the table, column after column, that is not missing; missing when there is none. */
KORVEL_API double M_MinAll(matrix<double>* x, int rows, int cols);

#endif
