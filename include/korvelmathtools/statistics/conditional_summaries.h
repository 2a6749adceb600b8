/**
 * @file
 * Summaries of the rows of one group: those whose code in `g` equals `val`, exactly.
 *
 * A row counts when, besides, neither its value nor its code is missing (`MISSING_DBL`, for integers
 * `MISSING_LNG`); a NaN counts as present. Vectors are the first `n` elements of a `matrix`, read through its
 * checked access: a vector shorter than `n` reads the matrix's `oobValue`. Sums are taken in ascending order
 * of rows. With `n` below 1 nothing is read.
 */
#ifndef KORVEL_STATISTICS_CONDITIONAL_SUMMARIES_H
#define KORVEL_STATISTICS_CONDITIONAL_SUMMARIES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Counts the elements that equal a value. The sentinel is a value like the others here: its count is that of
 * the missing elements.
 *
 * @param x   the vector, `n` elements
 * @param n   number of elements
 * @param val the value
 * @return the count; 0.0 when there are none
 */
KORVEL_API double V_NbIf(matrix<double>* x, int n, double val);
KORVEL_API double V_NbIf(matrix<int>* x, int n, int val);

/**
 * Total weight of the elements that equal a value, the sentinel like the others. Only weights above 0 count.
 *
 * @param x   the vector, `n` elements
 * @param n   number of elements
 * @param w   `n` weights
 * @param val the value
 * @return the total; 0.0 when there are none
 */
KORVEL_API double V_NbIfW(matrix<double>* x, int n, matrix<double>* w, double val);

/**
 * Sum of a group.
 *
 * @param y   `n` values
 * @param n   number of rows
 * @param g   `n` codes
 * @param val code of the group
 * @return the sum of the values; `MISSING_DBL` when no row counts
 */
KORVEL_API double V_SumIf(matrix<double>* y, int n, matrix<double>* g, double val);
KORVEL_API double V_SumIf(matrix<double>* y, int n, matrix<int>* g, int val);

/** Mean of a group: the sum of the values, divided by their number. Arguments and empty result as above. */
KORVEL_API double V_MeanIf(matrix<double>* y, int n, matrix<double>* g, double val);

/**
 * Weighted sum of a group. Only rows of a weight above 0 count.
 *
 * @param y   `n` values
 * @param n   number of rows
 * @param g   `n` codes
 * @param w   `n` weights
 * @param val code of the group
 * @return the sum of `w * y`; `MISSING_DBL` when no row counts
 */
KORVEL_API double V_SumIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val);

/**
 * Weighted mean of a group: the sum of `w * y`, divided by the sum of `w`. No weight is tested by itself.
 * @return `MISSING_DBL` unless the total weight is greater than 0
 */
KORVEL_API double V_MeanIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val);

/**
 * Largest value of a group.
 *
 * @param y   `n` values
 * @param n   number of rows
 * @param g   `n` codes
 * @param val code of the group
 * @return the largest of the values above `MISSING_DBL`, from which the search starts; `MISSING_DBL` when
 * there are none. No NaN is ever the largest
 */
KORVEL_API double V_MaxIf(matrix<double>* y, int n, matrix<double>* g, double val);
KORVEL_API double V_MaxIf(matrix<double>* y, int n, matrix<int>* g, int val);
KORVEL_API double V_MaxIf(matrix<int>* y, int n, matrix<int>* g, int val);

/**
 * Smallest value of a group.
 * @return the smallest of the values below 1.79769313486231e308, from which the search starts; `MISSING_DBL`
 * when there are none. No NaN is ever the smallest
 */
KORVEL_API double V_MinIf(matrix<double>* y, int n, matrix<double>* g, double val);
KORVEL_API double V_MinIf(matrix<double>* y, int n, matrix<int>* g, int val);
KORVEL_API double V_MinIf(matrix<int>* y, int n, matrix<int>* g, int val);

/**
 * Variance of a group, by Welford's update, in one walk. Only the value is tested for missing: with `val` the
 * sentinel, the group is that of the rows without a code.
 *
 * @param y         `n` values
 * @param n         number of rows
 * @param g         `n` codes
 * @param val       code of the group
 * @param bUnbiased -1 to divide by the number of rows less 1; otherwise by their number
 * @return the variance; `MISSING_DBL` unless that divisor is greater than 0
 */
KORVEL_API double V_VarIf(matrix<double>* y, int n, matrix<double>* g, double val, short int bUnbiased);

/**
 * Weighted variance of a group, by West's update, in one walk. A weight of 0 in the first row gives 0/0, a
 * NaN.
 *
 * @param y         `n` values
 * @param n         number of rows
 * @param g         `n` codes
 * @param w         `n` weights
 * @param val       code of the group
 * @param bUnbiased -1 to divide by the total weight less 1; otherwise by the total weight
 * @return the variance; `MISSING_DBL` unless that divisor is greater than 0
 */
KORVEL_API double V_VarIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val,
                           short int bUnbiased);

/**
 * `V_VarIfW` over the rows whose code is above 1e-12 and whose value is above `MISSING_DBL`, which leaves out
 * a NaN too. The step that a row adds is `(w - w/S) * d * d`, S being the total weight so far, where
 * `V_VarIfW` adds `(1 - w/S) * d * d * w`.
 */
KORVEL_API double V_VarIfSup0W(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w,
                               short int bUnbiased);

#endif
