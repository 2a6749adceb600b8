/**
 * @file
 * Flat functions: replacing missing cells, making cells missing, and marking them.
 */
#ifndef KORVEL_FRAMES_MISSING_MISSING_CELLS_H
#define KORVEL_FRAMES_MISSING_MISSING_CELLS_H

#include "frames/types.h"

/**
 * Replaces the missing numbers of a table.
 *
 * @param x    [inout] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param val  what a missing number becomes
 * @return 0
 */
KORVEL_FLAT int VB_M_ReplaceMissingByVal(double* x, int rows, int cols, double val);

/**
 * Replaces the missing numbers of a chunked table.
 *
 * @param x    [inout] cols columns of rows numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @param val  what a missing number becomes
 * @return 0
 */
KORVEL_FLAT int VB_M_ReplaceMissingByValSPV(Hostarray** x, int rows, int cols, double val);

/**
 * Replaces the empty texts of a table.
 *
 * @param x    [inout] rows by cols texts, replaced where they are empty
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param val  [in] one text: what an empty one becomes
 * @return 0
 */
KORVEL_FLAT int VB_M_ReplaceMissingByStr(OLECHAR** x, int rows, int cols, const OLECHAR* val);

/**
 * Replaces the missing numbers of a labelled table, as far as it has columns.
 *
 * @param x    [inout] table of numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @param val  what a missing number becomes
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ReplaceMissingByVal_ST(ST_MVect* x, int rows, int cols, double val);

/**
 * Replaces the empty texts of a labelled table, as far as it has columns.
 *
 * @param x    [inout] table of texts
 * @param rows rows of the table
 * @param cols columns of the table
 * @param val  [in] one text: what an empty one becomes
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ReplaceMissingByStr_ST(ST_MVect* x, int rows, int cols, const OLECHAR* val);

/**
 * Makes cells missing where a table of marks has a 1.
 *
 * @param x           [inout] n by p numbers
 * @param n           rows of both tables
 * @param p           columns of the table; 0 stands for 1
 * @param marks       [in] n by markColumns integers
 * @param markColumns columns of the marks; 0 stands for 1
 * @param wholeRow    -1: all cells of a row with a mark become missing; otherwise only the cell in the same
 * column
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ReplaceByMissing(double* x, int n, int p, const int* marks, int markColumns,
                                       short int wholeRow);

/**
 * Makes cells missing where a table of marks has a value.
 *
 * @param x           [inout] n by p numbers
 * @param n           rows of both tables
 * @param p           columns of the table; 0 stands for 1
 * @param marks       [in] n by markColumns integers
 * @param markColumns columns of the marks; 0 stands for 1
 * @param value       the mark
 * @param wholeRow    -1: all cells of a row with a mark become missing; otherwise only the cell in the same
 * column
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ReplaceByMissingIfVal(double* x, int n, int p, const int* marks, int markColumns,
                                            int value, short int wholeRow);

/**
 * Marks the missing numbers of a table.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param marks [inout] rows by cols integers: 1 where the number is missing; the others stay
 * @return 0
 */
KORVEL_FLAT int Cpp_M_IdentifyMissingInMat(const double* x, int rows, int cols, int* marks);

/**
 * Marks the missing numbers of a chunked table.
 *
 * @param x     [in] cols columns of rows numbers
 * @param rows  rows of the table
 * @param cols  columns of the table
 * @param marks [inout] rows by cols integers: 1 where the number is missing; the others stay
 * @return 0
 */
KORVEL_FLAT int Cpp_M_IdentifyMissingInMatSPV(Hostarray** x, int rows, int cols, int* marks);

/**
 * Sets weights to 0 where numbers are missing.
 *
 * @param x       [in] n by p numbers
 * @param n       rows of the table
 * @param p       columns of the table; 0 stands for 1
 * @param weights [inout] n by p weights, or n weights when mode is 1
 * @param mode    1: a row with a missing number gets weight 0; otherwise the weight cell of each missing
 * number does
 * @return 0
 */
KORVEL_FLAT int VB_M_SetWeightsToZeroForMissing(const double* x, int n, int p, double* weights, int mode);

#endif
