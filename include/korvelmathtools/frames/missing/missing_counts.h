/**
 * @file
 * Flat functions: how many cells are missing.
 */
#ifndef KORVEL_FRAMES_MISSING_MISSING_COUNTS_H
#define KORVEL_FRAMES_MISSING_MISSING_COUNTS_H

#include "frames/types.h"

/**
 * Counts the missing numbers.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the count
 */
KORVEL_FLAT int VB_V_NbMissing(const double* x, int n);

/**
 * Counts the empty texts.
 *
 * @param x [in] n texts
 * @param n number of elements
 * @return the count
 */
KORVEL_FLAT int VB_V_NbMissingStr(OLECHAR* const* x, int n);

/**
 * Counts the numbers that are not missing.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return the count
 */
KORVEL_FLAT int VB_V_NbNonMissing(const double* x, int n);

/**
 * Counts the missing numbers of each column.
 *
 * @param x      [in] rows by cols numbers
 * @param rows   rows of the table
 * @param cols   columns of the table; 0 stands for 1
 * @param counts [out] cols counts
 * @return 0
 */
KORVEL_FLAT int VB_M_NbMissing(const double* x, int rows, int cols, int* counts);

/**
 * Counts the empty texts of each column.
 *
 * @param x      [in] rows by cols texts
 * @param rows   rows of the table
 * @param cols   columns of the table; 0 stands for 1
 * @param counts [out] cols counts
 * @return 0
 */
KORVEL_FLAT int VB_M_NbMissingStr(OLECHAR* const* x, int rows, int cols, int* counts);

/**
 * Counts the numbers of each column that are not missing.
 *
 * @param x      [in] rows by cols numbers
 * @param rows   rows of the table
 * @param cols   columns of the table; 0 stands for 1
 * @param counts [out] cols counts
 * @return 0
 */
KORVEL_FLAT int VB_M_NbNonMissing(const double* x, int rows, int cols, int* counts);

/**
 * Counts the missing numbers of a whole table.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @return the count
 */
KORVEL_FLAT int VB_M_NbMissing2(const double* x, int rows, int cols);

/**
 * Counts the empty texts of a whole table.
 *
 * @param x    [in] rows by cols texts
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @return the count
 */
KORVEL_FLAT int VB_M_NbMissing2Str(OLECHAR* const* x, int rows, int cols);

/**
 * Counts the missing numbers of a chunked table.
 *
 * @param x    [in] cols columns of rows numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @return the count
 */
KORVEL_FLAT int Cpp_M_NbMissingSPV(Hostarray** x, int rows, int cols);

/**
 * Counts the missing numbers of a triangle.
 *
 * @param x    [in] cols columns, the first of rows numbers and each next one of a number less
 * @param rows numbers in the first column
 * @param cols number of columns
 * @return the count
 */
KORVEL_FLAT int VB_M_NbMissingSPV_T(Hostarray** x, int rows, int cols);

#endif
