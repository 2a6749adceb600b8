/**
 * @file
 * Flat functions: numbers as 0 and 1, and tests whether numbers are of two values. Two numbers are the same
 * when they differ by at most the machine epsilon, 2.220446049250313e-16.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_BINARY_TABLES_H
#define KORVEL_FRAMES_QUALITATIVE_BINARY_TABLES_H

#include "frames/types.h"

/**
 * 0 for a number closer to 0 than the machine epsilon, 1 for any other. A missing number stays missing.
 *
 * @param x      [in] n by p numbers
 * @param n      number of rows
 * @param p      number of columns
 * @param result [out] n by p numbers; may be x
 * @return 0
 */
KORVEL_FLAT int VB_M_Binarize(const double* x, int n, int p, double* result);

/**
 * 0 for a number closer to 0 than the machine epsilon, 1 for any other, in place. A missing number becomes 1.
 *
 * @param x [inout] n by p numbers
 * @param n number of rows
 * @param p number of columns
 * @return 0
 */
KORVEL_FLAT int VB_M_Binarize2(double* x, int n, int p);

/**
 * The same of a chunked table.
 *
 * @param x [inout] p columns of n numbers
 * @param p number of columns
 * @param n number of rows
 * @return 0
 */
KORVEL_FLAT int VB_M_Binarize2SPV(Hostarray** x, int p, int n);

/**
 * Whether a table looks like a disjunctive one.
 *
 * The reference row is the first one, or the last of the run of flagged rows that starts with the second. The
 * rows after it that are not flagged are compared with it: their sums must lie within 1e-12 of its truncated
 * sum, and the last column must have a value that differs from the reference row's. The other columns have no
 * influence, nor has the first flag.
 *
 * @param x        [in] n by p numbers
 * @param n        number of rows
 * @param p        number of columns
 * @param rowFlags [in] n flags: -1 moves the reference row, any but 0 leaves a later row out. Null: no row is
 * flagged
 * @param rowSum   [out] one integer: the sum of the reference row, truncated
 * @return -1 for a disjunctive table, and for one without columns; otherwise 0
 */
KORVEL_FLAT short int VB_M_IsDisjTable(const double* x, int n, int p, const short int* rowFlags, int* rowSum);

/**
 * Whether a vector has at most two different values.
 *
 * @param x           [in] n numbers
 * @param n           number of elements
 * @param skipMissing -1: missing numbers are passed over, and at the start a NaN too; otherwise they make the
 * result false
 * @return -1 when there are at least two elements from the first that is kept on, and they have at most two
 * values; -1 for n below 1 unless missing numbers are passed over; otherwise 0
 */
KORVEL_FLAT short int Cpp_V_IsBinaryDbl(const double* x, int n, short int skipMissing);

/**
 * Whether each element of a vector is one of two values.
 *
 * @param x           [in] n numbers
 * @param n           number of elements
 * @param a           a value
 * @param b           another value
 * @param skipMissing -1: missing numbers are passed over, and at the start a NaN too
 * @return -1 when there are at least two elements from the first that is kept on, and each is one of the
 * values; -1 for n below 1 unless missing numbers are passed over; otherwise 0
 */
KORVEL_FLAT short int Cpp_V_IsBinaryDblXY(const double* x, int n, double a, double b, short int skipMissing);

/**
 * Whether each column of a labelled table has at most two different values, as `Cpp_V_IsBinaryDbl` tells it
 * of its first `Count` rows.
 *
 * @param x           [in] labelled table of numbers
 * @param skipMissing -1: missing numbers are passed over, and at the start a NaN too; otherwise they make the
 * result false
 * @return -1 when all have, otherwise 0
 */
KORVEL_FLAT short int Cpp_M_IsBinaryDbl_ST(ST_MVect* x, short int skipMissing);

/**
 * Makes a vector of two values one of 0 and 1, the smaller value becoming 0. The first value is the first
 * number that is neither missing nor a NaN; the second one is the next that differs from it, or 0 when there
 * is none. Other numbers stay. Nothing happens when the first value is the last element.
 *
 * @param x [inout] n numbers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int Cpp_V_ConvertBinaryTo01Dbl(double* x, int n);

/**
 * Each column, followed by 1 less the column. Missing numbers are numbers like any other.
 *
 * @param x      [in] n by p numbers
 * @param n      number of rows
 * @param p      number of columns
 * @param result [out] n by 2 * p numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ConvertBinarytoDisjTable(const double* x, int n, int p, double* result);

#endif
