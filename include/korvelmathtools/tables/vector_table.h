/**
 * @file
 * Tables laid out as vectors and vectors as tables, by column or by row. Cells are moved as they are. Where a
 * target is smaller than what it receives, the rest finds no place; its `oobValue` is in each case the last
 * cell stored.
 */
#ifndef KORVEL_TABLES_VECTOR_TABLE_H
#define KORVEL_TABLES_VECTOR_TABLE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The columns of a table one below the other.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of the table
 * @param cols columns of the table
 * @param v    receives `rows * cols` elements, sized by the caller
 */
KORVEL_API void MatToVect(matrix<double>* x, int rows, int cols, matrix<double>* v);

/**
 * A vector back in the shape of the table that it was laid out from by `MatToVect`: what is missing in that
 * table is missing in the result, whatever the vector has in its place.
 *
 * @param v       `rows * cols` elements, column after column
 * @param pattern `rows` by `cols`; only its missing cells (equal to `MISSING_DBL`) matter
 * @param rows    rows of the tables
 * @param cols    columns of the tables
 * @param out     receives `rows` by `cols` cells, sized by the caller
 */
KORVEL_API void VectToMat(matrix<double>* v, matrix<double>* pattern, int rows, int cols,
                          matrix<double>* out);

/** `MatToVect` by row: the rows of the table one after the other. */
KORVEL_API void M_CopyTabletoVectorByRow(matrix<double>* x, int rows, int cols, matrix<double>* v);
KORVEL_API void M_CopyTabletoVectorByRow(matrix<text>* x, int rows, int cols, matrix<text>* v);

/** The reverse: row i of `out`, `rows` by `cols`, is the i-th run of `cols` elements of `v`. */
KORVEL_API void M_CopyVectortoTableByRow(matrix<double>* v, int rows, int cols, matrix<double>* out);
KORVEL_API void M_CopyVectortoTableByRow(matrix<text>* v, int rows, int cols, matrix<text>* out);

/**
 * The diagonal of a table.
 *
 * @param x    `rows` by `cols`, square or not
 * @param rows rows of the table
 * @param cols columns of the table
 * @param v    first given as many rows as the diagonal has cells, and one column; not `x`
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_DiagToVect(const matrix<double>& x, int rows, int cols, matrix<double>& v);

#endif
