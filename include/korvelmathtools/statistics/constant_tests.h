/**
 * @file
 * Tests whether a vector, or each column of a table, holds one value only. Values are compared exactly: a NaN
 * differs from every value. All results are -1 for true and 0 for false; with `n` below 1 they are true.
 *
 * Cells are read through the checked access of `matrix`. A missing cell is `MISSING_DBL`, `MISSING_LNG` or
 * the empty text.
 */
#ifndef KORVEL_STATISTICS_CONSTANT_TESTS_H
#define KORVEL_STATISTICS_CONSTANT_TESTS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

/**
 * Tests a column of a table.
 *
 * @param x            the table
 * @param n            rows to read
 * @param bSkipMissing -1: missing cells are passed over, and a column without others is constant. Otherwise
 *                     every cell is compared with the first one
 * @param col          the column, from 1
 */
KORVEL_API short int V_IsConstant(matrix<double>* x, int n, short int bSkipMissing, int col);

/** The same for a vector of integers or texts. */
KORVEL_API short int V_IsConstantLng(matrix<int>* x, int n, short int bSkipMissing);
KORVEL_API short int V_IsConstantStr(matrix<text>* x, int n, short int bSkipMissing);

/** Tests `n` flags, which are never missing. */
KORVEL_API short int V_IsConstantBool(short int* x, int n);

/** `V_IsConstant` on all cells that a table has, column after column. The second argument is not used. */
KORVEL_API short int M_IsConstant(matrix<double>* x, int n, short int bSkipMissing);

/**
 * Tests each column of a table by itself, passing over missing cells.
 *
 * @param x    the table
 * @param rows rows to read
 * @param cols columns to test; of a `matrix3D`, chunks, of which there must be as many
 * @return -1 when every column is constant
 */
KORVEL_API short int M_EachColIsConstant(matrix<double>* x, int rows, int cols);
KORVEL_API short int M_EachColIsConstant(matrix3D<matrix<double>>* x, int rows, int cols);

#endif
