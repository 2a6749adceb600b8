/**
 * @file
 * Flat functions: sorting the rows of a table, or its columns, by an outside key.
 *
 * All sorts are stable in both directions: equal keys keep their order, also when descending. The missing
 * number is smaller than every other finite number; the place of a NaN key is not defined. Rows outside
 * `from..to` are neither read nor moved; an empty range, or one outside the table, changes nothing.
 */
#ifndef KORVEL_FRAMES_ORDERING_SORT_TABLE_H
#define KORVEL_FRAMES_ORDERING_SORT_TABLE_H

#include "frames/types.h"

/**
 * Orders the rows of a table of numbers by a key, on copies that then replace the caller's arrays.
 *
 * @param x        [inout] rows by cols numbers
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 counts as 1
 * @param from     first row to sort, from 1
 * @param to       last row to sort, included
 * @param key      [inout] rows keys, read at positions from..to, rewritten in sorted order when bSortKey is
 * set
 * @param aux      [inout] rows by auxCols numbers, a second table that moves along; may be null when auxCols
 * is below 0
 * @param auxCols  columns of aux; 0 counts as 1, so there must be one; below 0 there is none
 * @param bDesc    not 0: descending
 * @param bSortKey not 0: the key is rewritten in sorted order
 * @return 0
 */
KORVEL_FLAT int VB_SortQDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux,
                            int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a table of numbers by a key, in the caller's arrays. With bSortKey set and the key at
 * the table's own address, the key is the table's first column, and the columns from the second on move.
 *
 * @like VB_SortQDbl
 * @param aux      [inout] rows by auxCols numbers, moved along unless it is the key or the table itself; may
 * be null when auxCols is below 0
 * @param auxCols  columns of aux; 0 counts as 1, so there must be one; below 0 there is none
 */
KORVEL_FLAT int VB_SortQDbl2(double* x, int rows, int cols, int from, int to, double* key, double* aux,
                             int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the columns of a table of numbers by a key with one entry a column: the column of rank k, from 0,
 * goes to column from + k.
 *
 * @param x        [inout] rows by cols numbers
 * @param rows     rows of the table; 0 counts as 1
 * @param cols     columns of the table
 * @param from     first column to sort, from 1
 * @param to       last column to sort, included
 * @param key      [inout] cols keys, read at positions from..to, rewritten in sorted order when bSortKey is
 * set
 * @param aux      [inout] auxRows by cols numbers, a second table whose columns move along
 * @param auxRows  rows of aux; 0 counts as 1
 * @param bDesc    not 0: descending
 * @param bSortKey not 0: the key is rewritten in sorted order
 * @return 0
 */
KORVEL_FLAT int VB_SortQByColDbl(double* x, int rows, int cols, int from, int to, double* key, double* aux,
                                 int auxRows, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a table of integers by a key of integers.
 *
 * @like VB_SortQDbl, integers for numbers
 */
KORVEL_FLAT int VB_SortQLng(int* x, int rows, int cols, int from, int to, int* key, int* aux, int auxCols,
                            short int bDesc, short int bSortKey);

/**
 * Orders the rows of a table of flags by a key of numbers.
 *
 * @like VB_SortQDbl, flags for numbers
 */
KORVEL_FLAT int VB_SortQBool(short int* x, int rows, int cols, int from, int to, double* key, short int* aux,
                             int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a table of texts by a key of numbers. A text that stays in its place keeps its BSTR.
 *
 * @like VB_SortQDbl, texts for numbers
 */
KORVEL_FLAT int VB_SortQStr(OLECHAR** x, int rows, int cols, int from, int to, double* key, OLECHAR** aux,
                            int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a record of labelled columns of numbers by a key. A column shorter than `to` is left
 * alone.
 *
 * @like VB_SortQDbl
 * @param x        [inout] the record; its columns are changed in place
 */
KORVEL_FLAT int Cpp_SortQDbl_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, double* aux,
                                int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a table of integers, a single array that comes out of a record, by a key of integers.
 *
 * @like VB_SortQDbl, integers for numbers
 * @param x        [inout] host array of Long, rows by cols
 */
KORVEL_FLAT int Cpp_SortQLng_ST(SAFEARRAY** x, int rows, int cols, int from, int to, int* key, int* aux,
                                int auxCols, short int bDesc, short int bSortKey);

/**
 * Orders the rows of a record of labelled columns of texts by a key. A column shorter than `to` is left
 * alone.
 *
 * @like VB_SortQDbl, texts for numbers
 * @param x        [inout] the record; the texts of its columns are put back where they changed
 */
KORVEL_FLAT int Cpp_SortQStr_ST(ST_MVect* x, int rows, int cols, int from, int to, double* key, OLECHAR** aux,
                                int auxCols, short int bDesc, short int bSortKey);

/**
 * Puts the rows of a table of numbers with key 0 first, in their order, then those with key 1.
 *
 * @like VB_SortQDbl
 * @param key  [inout] rows keys, rewritten in sorted order
 */
KORVEL_FLAT int VB_SortDataBy01(double* x, int rows, int cols, double* key);

/**
 * Puts the rows of a table of flags with key 0 first, in their order, then those with key 1.
 *
 * @like VB_SortQDbl, flags for numbers
 * @param key  [inout] rows keys, rewritten in sorted order
 */
KORVEL_FLAT int VB_SortDataBy01Bool(short int* x, int rows, int cols, double* key);

/**
 * Puts the rows of a table of texts with key 0 first, in their order, then those with key 1.
 *
 * @like VB_SortQDbl, texts for numbers
 * @param key  [inout] rows keys, rewritten in sorted order
 */
KORVEL_FLAT int VB_SortDataBy01Str(OLECHAR** x, int rows, int cols, double* key);

#endif
