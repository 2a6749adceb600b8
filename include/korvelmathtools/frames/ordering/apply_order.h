/**
 * @file
 * Flat functions: putting the rows of a table into a given order.
 */
#ifndef KORVEL_FRAMES_ORDERING_APPLY_ORDER_H
#define KORVEL_FRAMES_ORDERING_APPLY_ORDER_H

#include "frames/types.h"

/**
 * Takes the rows of a table of numbers in a given order: row i of the result is row order[i] of the table.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows of both tables
 * @param cols  columns of both tables
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * -1
 * @param out   [out] rows by cols numbers; may be x
 * @return 0
 */
KORVEL_FLAT int VB_SortApply(const double* x, int rows, int cols, const double* order, double* out);

/**
 * Takes the rows of a table of integers in a given order: row i of the result is row order[i] of the table.
 *
 * @like VB_SortApply, integers for numbers
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * -1
 */
KORVEL_FLAT int VB_SortApplyLng(const int* x, int rows, int cols, const double* order, int* out);

/**
 * Takes the rows of a table of texts in a given order: row i of the result is row order[i] of the table.
 *
 * @like VB_SortApply, texts for numbers
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * an empty text
 */
KORVEL_FLAT int VB_SortApplyStr(OLECHAR* const* x, int rows, int cols, const double* order, OLECHAR** out);

/**
 * Puts the rows of a table of numbers into a given order, in place: row i becomes what row order[i] was.
 *
 * @param x     [inout] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * -1
 * @return 0
 */
KORVEL_FLAT int VB_SortApply2(double* x, int rows, int cols, const double* order);

/**
 * Puts the rows of a table of integers into a given order, in place: row i becomes what row order[i] was.
 *
 * @like VB_SortApply2
 * @param x     [inout] rows by cols integers
 */
KORVEL_FLAT int VB_SortApply2Lng(int* x, int rows, int cols, const double* order);

/**
 * Puts the rows of a table of texts into a given order, in place: row i becomes what row order[i] was.
 *
 * @like VB_SortApply2, texts for numbers
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * an empty text
 */
KORVEL_FLAT int VB_SortApply2Str(OLECHAR** x, int rows, int cols, const double* order);

/**
 * Puts the rows of a table of flags into a given order, in place: row i becomes what row order[i] was.
 *
 * @like VB_SortApply2, flags for numbers
 * @param order [in] rows row numbers from 1, truncated to integers; one that is not the number of a row gives
 * 0
 */
KORVEL_FLAT int Cpp_SortApply2Bool(short int* x, int rows, int cols, const double* order);

/**
 * Puts the rows of a record of labelled columns of numbers into a given order, in place: row i becomes what
 * row order[i] was.
 *
 * @like VB_SortApply2
 * @param x     [inout] the record; its columns are changed in place
 */
KORVEL_FLAT int Cpp_SortApply2_ST(ST_MVect* x, int rows, int cols, const double* order);

#endif
