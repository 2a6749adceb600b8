/**
 * @file
 * Rows of texts joined, and vectors of texts compared.
 */
#ifndef KORVEL_TABLES_TEXT_ROWS_H
#define KORVEL_TABLES_TEXT_ROWS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Joins the cells of each row, from the first column on, with nothing between them.
 *
 * @param x    `rows` by `cols`, read through the checked access
 * @param rows rows of the table
 * @param cols columns of the table
 * @param out  receives `rows` texts, sized by the caller; may be `x`, of which then only the first column
 *             changes. Its `oobValue` is then the last text stored
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_MergeStringsByRow(matrix<text>* x, int rows, int cols, matrix<text>* out);

/**
 * Tells whether two vectors have the same texts in the same order.
 *
 * @param a  the first vector, read through the checked access
 * @param nA its number of elements
 * @param b  the second vector
 * @param nB its number of elements
 * @return -1 when the numbers are the same and so is every text, letter by letter; two vectors without
 * elements are the same. 0 otherwise
 */
KORVEL_API short int CheckSameVectorStr(matrix<text>* a, int nA, matrix<text>* b, int nB);

#endif
