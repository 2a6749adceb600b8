/**
 * @file
 * Flat functions: whether a vector, or each column of a table, holds one value only. All return -1 for true
 * and 0 for false; nothing at all is constant.
 */
#ifndef KORVEL_FRAMES_STATISTICS_CONSTANT_TESTS_H
#define KORVEL_FRAMES_STATISTICS_CONSTANT_TESTS_H

#include "frames/types.h"

/**
 * Tests a column of a table.
 *
 * @param x            [in] n by col numbers or more
 * @param n            number of rows
 * @param bSkipMissing -1: missing numbers are passed over; otherwise every one is compared with the first
 * @param col          the column, from 1; 0 stands for 1
 * @return -1 when it holds one value only, otherwise 0
 */
KORVEL_FLAT short int VB_V_IsConstant(const double* x, int n, short int bSkipMissing, int col);

/**
 * Tests integers.
 *
 * @param x            [in] n integers
 * @param n            number of elements
 * @param bSkipMissing -1: missing integers are passed over; otherwise every one is compared with the first
 * @return -1 when all are equal, otherwise 0
 */
KORVEL_FLAT short int VB_V_IsConstantLng(const int* x, int n, short int bSkipMissing);

/**
 * Tests texts.
 *
 * @param x            [in] n texts
 * @param n            number of elements
 * @param bSkipMissing -1: empty texts are passed over; otherwise every one is compared with the first
 * @return -1 when all are equal, otherwise 0
 */
KORVEL_FLAT short int VB_V_IsConstantStr(OLECHAR* const* x, int n, short int bSkipMissing);

/**
 * Tests flags.
 *
 * @param x [in] n flags
 * @param n number of flags
 * @return -1 when all are equal, otherwise 0
 */
KORVEL_FLAT short int VB_V_IsConstantBool(const short int* x, int n);

/**
 * Tests each column of a table by itself, passing over missing numbers.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @return -1 when every column is constant, otherwise 0
 */
KORVEL_FLAT short int VB_M_IsColConstant(const double* x, int rows, int cols);

/**
 * The same for a chunked table.
 *
 * @param x    [in] cols columns of rows numbers
 * @param rows rows of the table
 * @param cols columns of the table
 * @return -1 when every column is constant, otherwise 0
 */
KORVEL_FLAT short int VB_M_IsColConstantSPV(Hostarray** x, int rows, int cols);

#endif
