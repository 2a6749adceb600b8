/**
 * @file
 * Copying numbers into labelled tables. Only the elements of the columns are copied: the scalars, row counts
 * and labels of the target stay as they are.
 */
#ifndef KORVEL_CONTAINERS_RECORD_COPIES_H
#define KORVEL_CONTAINERS_RECORD_COPIES_H

#include "containers/records.h"
#include "platform/export.h"

/**
 * Copies a table, column by column and without any check.
 *
 * @param src the first `src.nbrowsmax` elements of each of its `src.nbcols` columns are read
 * @param dst receives them; it must have as many columns with room for as many elements
 *
 * Every column of `src` must hold `src.nbrowsmax` elements, whatever its own row count. A count below 1
 * copies nothing.
 */
KORVEL_API void MV_DuplicateMVect(cST_MVect<double>& src, cST_MVect<double>& dst);

/**
 * Copies a triangle: the first j elements of column j, for j from 1 to the smaller `nbcols` of the two
 * tables.
 *
 * @param src the table read; an element that a column does not have reads as its `oobValue`
 * @param dst receives the elements; one for which there is no room goes to the column's `oobValue`
 *
 * A column that `nbcols` counts but the table does not have is a column without elements.
 */
KORVEL_API void M_DuplicateMVDblTriang_ST(cST_MVect<double>& src, cST_MVect<double>& dst);

/**
 * Copies a dense table into the columns of a labelled one.
 *
 * @param m    the table read
 * @param rows number of elements that each of the target's columns receives; below 1: none
 * @param cols number of the target's columns to fill; below 1: none
 * @param mv   receives column j of `m` in its column j. Elements for which a column has no room are dropped,
 * as are columns that it does not have
 *
 * An element below the last row of `m` is 0.0. A column of `mv` beyond those of `m` receives the last column
 * of `m` once more; zeros when `m` has none.
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CopyDblToMV(matrix<double>& m, int rows, int cols, cST_MVect<double>& mv);

#endif
