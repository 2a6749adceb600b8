/**
 * @file
 * Putting the rows of a table into a given order: row i of the result is row `order[i]` of the table.
 */
#ifndef KORVEL_ORDERING_APPLY_ORDER_H
#define KORVEL_ORDERING_APPLY_ORDER_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Takes rows of one table into another.
 *
 * @param x     `rows` by `cols`
 * @param rows  rows of both tables
 * @param cols  columns of both tables
 * @param order `rows` row numbers from 1, truncated to integers. A number that is not one of a row, 0 and
 * below included, reads `x->oobValue`
 * @param out   `rows` by `cols`, sized by the caller; may be `x` or share its storage
 */
KORVEL_API void SortApply(matrix<double>* x, int rows, int cols, matrix<double>* order, matrix<double>* out);
KORVEL_API void SortApply(matrix<int>* x, int rows, int cols, matrix<double>* order, matrix<int>* out);
KORVEL_API void SortApply(matrix<text>* x, int rows, int cols, matrix<double>* order, matrix<text>* out);

/** `SortApply` in place. */
KORVEL_API void SortApply2(matrix<double>* x, int rows, int cols, matrix<double>* order);
KORVEL_API void SortApply2(matrix<int>* x, int rows, int cols, matrix<double>* order);
KORVEL_API void SortApply2(matrix<short int>* x, int rows, int cols, matrix<double>* order);
KORVEL_API void SortApply2(matrix<text>* x, int rows, int cols, matrix<double>* order);
/** On a record, each column reads its own `oobValue` for a number that is not one of its rows. */
KORVEL_API void SortApply2(cST_MVect<double>& x, int rows, int cols, matrix<double>* order);

#endif
