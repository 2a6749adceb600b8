/**
 * @file
 * Flat functions: copies into labelled tables.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_RECORD_COPIES_H
#define KORVEL_FRAMES_CONTAINERS_RECORD_COPIES_H

#include "frames/types.h"

/**
 * Copies a table of numbers into the columns of a labelled one. Its scalars, row counts and labels stay.
 *
 * @param m    [in] rows by cols numbers
 * @param rows number of rows; below 1: nothing is copied
 * @param cols number of columns; below 1: nothing is copied
 * @param mv   [inout] labelled table of Double; column j receives column j of the table. Elements for which a
 * column has no room are dropped, as are columns that it does not have
 * @return 0
 */
KORVEL_FLAT int Cpp_CopyDblToMVDbl(const double* m, int rows, int cols, ST_MVect* mv);

/**
 * Copies a triangle from one labelled table to another: the first j elements of column j, for j from 1 to the
 * smaller number of columns.
 *
 * @param src [in] labelled table of Double; an element that a column does not have counts as -1
 * @param dst [inout] labelled table of Double that receives the elements, as far as its columns have room
 * @return 0
 */
KORVEL_FLAT int Cpp_M_DuplicateMVDblTriang_ST(ST_MVect* src, ST_MVect* dst);

#endif
