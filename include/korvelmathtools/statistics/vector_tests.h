/**
 * @file
 * Tests that answer true (-1) or false (0) about a vector or a table.
 *
 * Cells are read through the checked access of `matrix`: one that is not there reads as the `oobValue`. A
 * missing cell equals `MISSING_DBL`; a NaN counts as present, and passes no comparison. Unless told otherwise
 * a test of nothing, `n` below 1, is true.
 */
#ifndef KORVEL_STATISTICS_VECTOR_TESTS_H
#define KORVEL_STATISTICS_VECTOR_TESTS_H

#include "containers/matrix.h"
#include "containers/records.h"
#include "platform/export.h"

/** Whether every element that is not missing is at least 0, or, with a `bStrict` other than 0, above 0. */
KORVEL_API short int V_IsPositive(matrix<double>* x, int n, short int bStrict);

/** Whether the elements can be weights: none is negative, and the sum of those not missing is above 0. */
KORVEL_API short int V_IsWeights(matrix<double>* x, int n);

/**
 * `V_IsWeights`, which also looks for weights that are all 1.
 *
 * @param x     the vector
 * @param n     number of elements
 * @param bAll1 receives -1 when every element that is not missing is exactly 1, otherwise 0
 */
KORVEL_API short int V_IsWeightsAndAll1(matrix<double>* x, int n, short int& bAll1);

/** Whether the elements can be counts: `V_IsWeights`, and each is an integer within 1e-12. */
KORVEL_API short int V_IsCWeights(matrix<double>* x, int n);

/** Whether every element is exactly 0 or 1; a missing one is not. */
KORVEL_API short int V_Is01(matrix<double>* x, int n);

/** Whether `V_Is01` holds and some element is 1. */
KORVEL_API short int V_IsIndicator(matrix<double>* x, int n);

/** The same for `n` elements of column `col`, from 1, of an array of columns. */
KORVEL_API short int M_IsIndicatorSPV(matrix<double>** x, int n, int col);

/** Whether every cell of the first `rows` rows and `cols` columns lies from 0 to 1; a missing one does not.
 */
KORVEL_API short int M_IsIn01(matrix<double>* x, int rows, int cols);

/**
 * Whether every element lies in an interval.
 *
 * @param x            the vector
 * @param n            number of elements
 * @param lo           lower end
 * @param hi           upper end
 * @param bOpen        -1: the ends do not belong to the interval
 * @param bSkipMissing -1: missing elements are passed over; otherwise they are compared like the others
 */
KORVEL_API short int V_IsInInterval(matrix<double>* x, int n, double lo, double hi, short int bOpen,
                                    short int bSkipMissing);

/** Whether `v[i] >= m(i, j)` in all `n` rows and `cols` columns; missing values are compared like the others.
 */
KORVEL_API short int V_V1GreaterThanMatCols(matrix<double>* v, int n, matrix<double>* m, int cols);

/** Whether `a[i] <= b[i]`, equal values included, in all `n` rows; missing values are compared like the
 * others. */
KORVEL_API short int V_V1inferiorV2(matrix<double>* a, int n, matrix<double>* b);

/** Whether a value occurs among the elements; false when there are none. */
KORVEL_API short int V_FindLng(matrix<int>* x, int n, int val);
KORVEL_API short int V_FindStr(matrix<text>* x, int n, text val);

/** How many of `n` flags are -1; another value than 0 does not count. */
KORVEL_API int V_NbTrue(short int* x, int n);

/** The same for the positions `from` to `to`, from 1 and included. */
KORVEL_API int V_NbTrueFromTo(short int* x, int from, int to);

namespace korvel
{

/** `V_NbTrue` of a vector, read through the checked access. */
[[nodiscard]] int countTrue(const matrix<short int>& x, int n);

/**
 * `V_IsPositive` for the first `rows` rows and `cols` columns of a table. A row with a flag other than 0 is
 * left out; null: none is. A labelled table is tested as far as it has columns.
 */
[[nodiscard]] short int isPositive(const matrix<double>& x, int rows, int cols, const short int* iMissing,
                                   short int bStrict);
[[nodiscard]] short int isPositive(const cST_MVect<double>& x, int rows, int cols, const short int* iMissing,
                                   short int bStrict);

/** Whether every cell of the first `rows` rows and `cols` columns is an integer within 1e-12. */
[[nodiscard]] short int isWholeTable(const matrix<double>& x, int rows, int cols);
[[nodiscard]] short int isWholeTable(const cST_MVect<double>& x, int rows, int cols);

} // namespace korvel

#endif
