/**
 * @file
 * Numbers as 0 and 1, and tests whether numbers are of two values. Two numbers are the same when they differ
 * by at most the machine epsilon, 2.220446049250313e-16.
 */
#ifndef KORVEL_QUALITATIVE_BINARY_TABLES_H
#define KORVEL_QUALITATIVE_BINARY_TABLES_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * 0 for a number closer to 0 than the machine epsilon, 1 for any other. A missing number stays missing.
 *
 * @param x      `n` by `p`
 * @param n      number of rows
 * @param p      number of columns
 * @param result receives `n` by `p` numbers; may be `x`
 */
KORVEL_API void M_Binarize(matrix<double>* x, int n, int p, matrix<double>* result);

/** The same in place; a missing number becomes 1. */
KORVEL_API void M_Binarize2(matrix<double>* x, int n, int p);

/** The same in place, of chunks: one for each of `p` columns of `n` rows. */
KORVEL_API void M_Binarize2SPV(matrix<double>** x, int p, int n);

/**
 * Whether a table looks like a disjunctive one.
 *
 * The reference row is the first one, or the last of the run of flagged rows that starts with the second. The
 * rows after it that are not flagged are compared with it: their sums must lie within 1e-12 of its truncated
 * sum, and the last column must have a value that differs from the reference row's. The other columns have no
 * influence, nor has the first flag.
 *
 * @param x        `n` by `p`
 * @param n        number of rows
 * @param p        number of columns
 * @param rowFlags a flag for each row, or null: -1 moves the reference row, and any but 0 leaves a later row
 * out
 * @param rowSum   receives the sum of the reference row, truncated
 * @return -1 for a disjunctive table, and for one without columns; otherwise 0
 */
KORVEL_API short int M_IsDisjTable(matrix<double>* x, int n, int p, short int* rowFlags, int& rowSum);

/**
 * Whether a vector has at most two different values.
 *
 * @param x           `n` numbers
 * @param n           number of elements
 * @param skipMissing -1: missing numbers are passed over, and at the start a NaN too; otherwise they make the
 * result false
 * @return -1 when there are at least two elements from the first that is kept on, and they have at most two
 * values; -1 for `n` below 1 unless missing numbers are passed over; otherwise 0
 */
KORVEL_API short int V_IsBinary(matrix<double> const& x, int n, short int skipMissing);

/**
 * Whether each element of a vector is one of two values. As `V_IsBinary`, with the values given.
 *
 * @param x           `n` numbers
 * @param n           number of elements
 * @param a           a value
 * @param b           another value
 * @param skipMissing -1: missing numbers are passed over, and at the start a NaN too
 * @return -1 or 0
 */
KORVEL_API short int V_IsBinaryXY(matrix<double>* x, int n, double a, double b, short int skipMissing);

/**
 * Whether each column of a labelled table has at most two different values, as `V_IsBinary` tells it of its
 * first `Count` rows.
 *
 * @return -1 when all have, otherwise 0
 */
KORVEL_API short int M_IsBinary_ST(cST_MVect<double>& x, short int skipMissing);

/**
 * Makes a vector of two values one of 0 and 1, the smaller value becoming 0. The first value is the first
 * number that is neither missing nor a NaN; the second one is the next that differs from it, or 0 when there
 * is none. Other numbers stay. Nothing happens when the first value is the last element.
 *
 * @param x `n` numbers, changed in place
 * @param n number of elements
 */
KORVEL_API void V_ConvertBinaryTo01(matrix<double>* x, int n);

/**
 * Each column, followed by 1 less the column. Missing numbers are numbers like any other.
 *
 * @param x      `n` by `p`
 * @param n      number of rows
 * @param p      number of columns
 * @param result receives `n` by `2 p` numbers
 */
KORVEL_API void M_ConvertBinarytoDisjTable(matrix<double>* x, int n, int p, matrix<double>* result);

#endif
