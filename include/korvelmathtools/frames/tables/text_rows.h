/**
 * @file
 * Flat functions: rows of texts joined, and vectors of texts compared.
 */
#ifndef KORVEL_FRAMES_TABLES_TEXT_ROWS_H
#define KORVEL_FRAMES_TABLES_TEXT_ROWS_H

#include "frames/types.h"

/**
 * Joins the cells of each row of texts, from the first column on, with nothing between them.
 *
 * @param x    [in] rows by cols texts
 * @param rows rows of x
 * @param cols columns of x
 * @param out  [inout] rows texts, replaced where they differ; may be x
 * @return 0
 */
KORVEL_FLAT int Cpp_M_MergeStringsByRow(OLECHAR* const* x, int rows, int cols, OLECHAR** out);

/**
 * Tells whether two vectors have the same texts in the same order.
 *
 * @param a  [in] nA texts
 * @param nA number of elements of a
 * @param b  [in] nB texts
 * @param nB number of elements of b
 * @return -1 when the numbers are the same and so is every text, letter by letter; otherwise 0
 */
KORVEL_FLAT short int Cpp_CheckSameVectorStr(OLECHAR* const* a, int nA, OLECHAR* const* b, int nB);

#endif
