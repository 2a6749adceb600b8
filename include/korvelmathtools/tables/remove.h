/**
 * @file
 * A table without some of its columns or rows, which are counted from 1. What stays keeps its order.
 *
 * Access is checked: a cell that a table does not have reads as its `oobValue`, and what falls outside of the
 * result goes to the result's.
 */
#ifndef KORVEL_TABLES_REMOVE_H
#define KORVEL_TABLES_REMOVE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Copies a table without one column.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of the table
 * @param cols columns of the table
 * @param k    the column to leave out. One above `cols` leaves out none, so that the last column falls
 *             outside of the result; one below 1 leaves out none either, and the first column does
 * @param out  receives `rows` by `cols - 1`, sized by the caller
 */
KORVEL_API void M_RemoveCol(matrix<double>* x, int rows, int cols, int k, matrix<double>* out);

/**
 * Copies a table without one row.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of the table
 * @param cols columns of the table
 * @param k    the row to leave out. One above `rows` leaves out none, so that the last row falls outside of
 *             the result; one below 1 leaves out none either, and the first row does
 * @param out  receives `rows - 1` by `cols`, sized by the caller
 */
KORVEL_API void M_RemoveRow(matrix<double>* x, int rows, int cols, int k, matrix<double>* out);

/**
 * Takes a run of columns out in place: those behind it move left. The shape stays, and so do the cells of the
 * columns that become free at the right.
 *
 * @param x     `rows` by `cols`
 * @param rows  rows of the table
 * @param cols  columns of the table
 * @param first first column of the run; one below 1 counts as 1
 * @param last  last column of the run; one above `cols` counts as `cols`. Nothing happens when it is below
 *              `first`
 */
KORVEL_API void M_RemoveCols2(matrix<double>* x, int rows, int cols, int first, int last);

/** The same for a run of rows: those below it move up. */
KORVEL_API void M_RemoveRows2(matrix<double>*& x, int rows, int cols, int first, int last);
KORVEL_API void M_RemoveRows2(matrix<text>*& x, int rows, int cols, int first, int last);

/**
 * Copies a table without the columns in a list.
 *
 * @param x    `rows` by `cols`
 * @param rows rows of the table
 * @param cols columns of the table
 * @param list the numbers of the columns to leave out, as many as the list has elements, in any order, also
 *             more than once. One that is not exactly the number of a column leaves out none
 * @param out  receives the `rows` by as many columns as stay, sized by the caller
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int M_RemoveColsInList(matrix<double>* x, int rows, int cols, matrix<double>* list,
                                  matrix<double>* out);

/** The same for the rows in a list: `out` receives as many rows as stay by `cols`. */
KORVEL_API int M_RemoveRowsInList(matrix<double>* x, int rows, int cols, matrix<int>* list,
                                  matrix<double>* out);

namespace korvel
{

/** How many of the numbers from 1 to `n` are not in the list; 0 when `n` is below 1. */
template <class T>
[[nodiscard]] int countNotListed(const matrix<T>& list, int n);

} // namespace korvel

#endif
