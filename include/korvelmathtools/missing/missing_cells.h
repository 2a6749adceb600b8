/**
 * @file
 * Replacing missing cells, replacing cells by missing ones, and marking them. Numbers are missing when they
 * equal `MISSING_DBL`, exactly, texts when they are empty.
 *
 * Tables are read and written through the checked access of `matrix`; cells that no rule names stay as they
 * are.
 */
#ifndef KORVEL_MISSING_MISSING_CELLS_H
#define KORVEL_MISSING_MISSING_CELLS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Replaces each missing cell by a number, or by a text.
 *
 * @param x    `rows` by `cols`, in place
 * @param rows rows of the table
 * @param cols columns of the table
 * @param val  what a missing cell becomes
 */
KORVEL_API void M_ReplaceMissingByVal(matrix<double>* x, int rows, int cols, double val);
KORVEL_API void M_ReplaceMissingByStr(matrix<text>* x, int rows, int cols, text val);

/** The same for an array of columns. */
KORVEL_API void M_ReplaceMissingByValSPV(matrix<double>** x, int rows, int cols, double val);
KORVEL_API void M_ReplaceMissingByValSPV(matrix3D<matrix<double>>* x, int rows, int cols, double val);

/** The same for a triangle, of which the first chunk has `rows` cells and each next one a cell less. */
KORVEL_API void M_ReplaceMissingByValSPV_T(matrix<double>** x, int rows, int cols, double val);
KORVEL_API void M_ReplaceMissingByValSPV_T(matrix3D<matrix<double>>* x, int rows, int cols, double val);

/**
 * Makes cells missing where a table of marks has a value.
 *
 * @param x           `n` by `p`, in place
 * @param n           rows of both tables
 * @param p           columns of the table
 * @param marks       `n` by `markColumns`
 * @param markColumns columns of the marks
 * @param value       the mark
 * @param wholeRow    -1: all cells of a row with a mark become missing; otherwise only the cell in the same
 * column
 */
KORVEL_API void M_ReplaceByMissingIfVal(matrix<double>* x, int n, int p, matrix<int>* marks, int markColumns,
                                        int value, short int wholeRow);

/** The same with the mark 1, as `M_IdentifyMissingInMat` leaves it. */
KORVEL_API void M_ReplaceByMissing(matrix<double>* x, int n, int p, matrix<int>* marks, int markColumns,
                                   short int wholeRow);

/** Puts a 1 into `marks`, `rows` by `cols`, where the cell of `x` is missing. */
KORVEL_API void M_IdentifyMissingInMat(matrix<double>* x, int rows, int cols, matrix<int>* marks);
KORVEL_API void M_IdentifyMissingInMatSPV(matrix<double>** x, int rows, int cols, matrix<int>* marks);

/**
 * Takes the weight from missing cells.
 *
 * @param x       `n` by `p`
 * @param n       rows of the table
 * @param p       columns of the table
 * @param weights with a mode other than 1 a table like `x`, in which the weight of each missing cell becomes
 * 0; with mode 1 a column of `n` weights, in which that of each row with a missing cell becomes 0
 * @param mode    see above
 */
KORVEL_API void M_SetWeightsToZeroForMissing(matrix<double>* x, int n, int p, matrix<double>* weights,
                                             int mode);

namespace korvel
{

/** `M_ReplaceMissingByVal` and `M_ReplaceMissingByStr` for a labelled table, as far as it has columns. */
template <class T>
void replaceMissing(cST_MVect<T>& x, int rows, int cols, const T& val);

} // namespace korvel

#endif
