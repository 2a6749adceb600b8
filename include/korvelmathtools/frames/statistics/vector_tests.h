/**
 * @file
 * Flat functions: tests about a vector or a table. They return -1 for true and 0 for false; unless told
 * otherwise a test of nothing is true.
 */
#ifndef KORVEL_FRAMES_STATISTICS_VECTOR_TESTS_H
#define KORVEL_FRAMES_STATISTICS_VECTOR_TESTS_H

#include "frames/types.h"

/**
 * Whether no number is negative, missing ones left aside.
 *
 * @param x       [in] n numbers
 * @param n       number of elements
 * @param bStrict not 0: a number must be above 0; 0: it may be 0
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_V_IsPositive(const double* x, int n, short int bStrict);

/**
 * The same for a table.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 stands for 1
 * @param iMissing [in] rows flags, one for each row; a row with a flag other than 0 is left out. Null: none
 * is
 * @param bStrict  not 0: a number must be above 0; 0: it may be 0
 * @return -1 or 0
 */
KORVEL_FLAT short int Cpp_M_IsPositive(const double* x, int rows, int cols, const short int* iMissing,
                                       short int bStrict);

/**
 * The same for a labelled table, as far as it has columns.
 *
 * @param x        [in] table of numbers
 * @param rows     rows to test
 * @param cols     columns to test
 * @param iMissing [in] rows flags, one for each row; a row with a flag other than 0 is left out. Null: none
 * is
 * @param bStrict  not 0: a number must be above 0; 0: it may be 0
 * @return -1 or 0
 */
KORVEL_FLAT short int Cpp_M_IsPositive_ST(ST_MVect* x, int rows, int cols, const short int* iMissing,
                                          short int bStrict);

/**
 * Whether numbers can be weights: none is negative and their sum is above 0, missing ones left aside.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int VB_V_IsWeights(const double* x, int n);

/**
 * The same for a host array.
 *
 * @param x [in] host array of Double
 * @param n number of elements
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int Cpp_V_IsWeights_ST(SAFEARRAY** x, int n);

/**
 * The same, which also looks for weights that are all 1.
 *
 * @param x     [in] host array of Double
 * @param n     number of elements
 * @param bAll1 [out] one flag: -1 when every number that is not missing is exactly 1, otherwise 0
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int Cpp_V_IsWeightsAndAll1_ST(SAFEARRAY** x, int n, short int* bAll1);

/**
 * Whether numbers can be counts: weights, each of them an integer within 1e-12.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int VB_V_IsCWeights(const double* x, int n);

/**
 * Whether every number is 0 or 1, and some number is 1.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int VB_V_IsIndicator(const double* x, int n);

/**
 * The same for a column of a chunked table.
 *
 * @param x   [in] columns of n numbers
 * @param n   number of rows
 * @param col the column, from 1
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int VB_V_IsIndicatorSPV(Hostarray** x, int n, int col);

/**
 * Whether every number is exactly 0 or 1; a missing one is not.
 *
 * @param x [in] n numbers
 * @param n number of elements
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_V_Is01(const double* x, int n);

/**
 * Whether every number lies from 0 to 1; a missing one does not.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_M_IsIn01(const double* x, int rows, int cols);

/**
 * Whether every number lies in an interval.
 *
 * @param x            [in] n numbers
 * @param n            number of elements
 * @param lo           lower end
 * @param hi           upper end
 * @param bOpen        -1: the ends do not belong to the interval
 * @param bSkipMissing -1: missing numbers are passed over
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_V_IsInInterval(const double* x, int n, double lo, double hi, short int bOpen,
                                        short int bSkipMissing);

/**
 * Whether every number is an integer within 1e-12; the missing number is.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_M_IsLong(const double* x, int rows, int cols);

/**
 * The same for a labelled table, as far as it has columns.
 *
 * @param x    [in] table of numbers
 * @param rows rows to test
 * @param cols columns to test
 * @return -1 or 0
 */
KORVEL_FLAT short int Cpp_M_IsLong_ST(ST_MVect* x, int rows, int cols);

/**
 * Whether each row of a vector is at least as large as every number in that row of a table.
 *
 * @param v    [in] n numbers
 * @param n    number of rows
 * @param m    [in] n by cols numbers
 * @param cols columns of the table; 0 stands for 1
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_V_V1GreaterThanMatCols(const double* v, int n, const double* m, int cols);

/**
 * Whether each number of one vector is at most that of another.
 *
 * @param a [in] n numbers
 * @param n number of rows
 * @param b [in] n numbers
 * @return -1 or 0
 */
KORVEL_FLAT short int VB_V_V1inferiorV2(const double* a, int n, const double* b);

/**
 * Whether an integer occurs.
 *
 * @param x   [in] n integers
 * @param n   number of elements
 * @param val the integer to find
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int Cpp_V_FindLng(const int* x, int n, int val);

/**
 * Whether a text occurs.
 *
 * @param x   [in] n texts
 * @param n   number of elements
 * @param val [in] one text, to be found
 * @return -1 or 0; 0 for nothing
 */
KORVEL_FLAT short int Cpp_V_FindStr(OLECHAR* const* x, int n, const OLECHAR* val);

/**
 * Counts the flags that are -1; another value than 0 does not count.
 *
 * @param x [in] n flags
 * @param n number of flags
 * @return the count
 */
KORVEL_FLAT int VB_V_NbTrue(const short int* x, int n);

/**
 * The same for a host array.
 *
 * @param x [in] host array of Boolean
 * @param n number of flags
 * @return the count
 */
KORVEL_FLAT int Cpp_V_NbTrue_ST(SAFEARRAY** x, int n);

/**
 * The same for a stretch of flags.
 *
 * @param x    [in] to flags
 * @param from first position, from 1
 * @param to   last position, included
 * @return the count; 0 when from is above to
 */
KORVEL_FLAT int VB_V_NbTrueFromTo(const short int* x, int from, int to);

#endif
