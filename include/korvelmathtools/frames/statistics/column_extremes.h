/**
 * @file
 * Flat functions: the smallest and the largest number of each column of a table, and of a whole table. The
 * first number that counts starts both, and only a smaller, or larger, one replaces it. Where none counts the
 * results are missing. A NaN is a number that no comparison finds smaller or larger.
 */
#ifndef KORVEL_FRAMES_STATISTICS_COLUMN_EXTREMES_H
#define KORVEL_FRAMES_STATISTICS_COLUMN_EXTREMES_H

#include "frames/types.h"

/**
 * Both extremes of each column.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows
 * @param cols     columns
 * @param mins     [out] cols smallest numbers
 * @param maxs     [out] cols largest numbers
 * @param iMissing [in] rows flags, read only when flag is 0; a row with a flag other than 0 is left
 * out; may be null, then none is
 * @param flag     -1: every number that is not missing counts; 0: every number of a row whose flag is 0
 * counts, a missing one too; any other value: none counts
 * @return 0
 */
KORVEL_FLAT int VB_M_MinMax(const double* x, int rows, int cols, double* mins, double* maxs,
                            const short int* iMissing, short int flag);

/**
 * VB_M_MinMax on a table of separate columns.
 *
 * @param x        [in] host array of cols columns of rows numbers
 * @param rows     rows
 * @param cols     columns
 * @param mins     [out] cols smallest numbers
 * @param maxs     [out] cols largest numbers
 * @param iMissing [in] rows flags, read only when flag is 0; a row with a flag other than 0 is left
 * out; may be null, then none is
 * @param flag     -1: every number that is not missing counts; 0: every number of a row whose flag is 0
 * counts, a missing one too; any other value: none counts
 * @return 0
 */
KORVEL_FLAT int VB_M_MinMaxSPV(Hostarray** x, int rows, int cols, double* mins, double* maxs,
                               const short int* iMissing, short int flag);

/**
 * VB_M_MinMax on a symmetric table, of which each separate column starts at the diagonal. A column is a whole
 * one: what lies above its diagonal is read from the other half.
 *
 * @param x        [in] host array of cols columns of numbers, column j holding rows - j + 1 of them
 * @param rows     rows
 * @param cols     columns
 * @param mins     [out] cols smallest numbers
 * @param maxs     [out] cols largest numbers
 * @param iMissing [in] rows flags, read only when flag is 0; a row with a flag other than 0 is left
 * out; may be null, then none is
 * @param flag     -1: every number that is not missing counts; 0: every number of a row whose flag is 0
 * counts, a missing one too; any other value: none counts
 * @return 0
 */
KORVEL_FLAT int VB_M_MinMaxSPV_T(Hostarray** x, int rows, int cols, double* mins, double* maxs,
                                 const short int* iMissing, short int flag);

/**
 * The largest number of each column; missing numbers do not count.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] cols numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_Max(const double* x, int rows, int cols, double* out);

/**
 * The smallest number of each column; missing numbers do not count.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @param out  [out] cols numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_Min(const double* x, int rows, int cols, double* out);

/**
 * The smallest number of a table; missing numbers do not count.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows
 * @param cols columns
 * @return the number
 */
KORVEL_FLAT double Cpp_M_MinAll(const double* x, int rows, int cols);

#endif
