/**
 * @file
 * How many of the leading eigenvalues are worth keeping.
 */
#ifndef KORVEL_LINALG_EIGENVALUE_FILTER_H
#define KORVEL_LINALG_EIGENVALUE_FILTER_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Drops small eigenvalues from the end, takes each one's share of the sum of those that are left, and counts
 * how many of the leading ones satisfy all bounds.
 *
 * The walk from the end goes on while the last value is below `threshold`, and never drops the first one.
 * Values are dropped when `dropTail` is set. When it is not, the last value is set to 0 and looked at once
 * more: with a `threshold` above 0 **the call does not return**, and otherwise only that one value can become
 * 0.
 *
 * @param values            `n` eigenvalues in descending order; not null. The last may be set to 0
 * @param n                 number of values
 * @param dropTail          not 0: values below the threshold are dropped
 * @param threshold         what is below it is not kept
 * @param cumulativePercent with a number above 0, the first values whose shares, in percent, sum up to at
 * least it are enough
 * @param maxCount          with a number above 0, no more than so many are enough
 * @param minValue          with a number above 0, each value below `minValue + 1e-12` lowers the number by
 * one
 * @param kept              receives how many values were not dropped; 0 when the sum of these is NaN
 * @param retained          receives the smallest of the four numbers
 * @param percents          receives each kept value's share of their sum, in percent, and 0.0 elsewhere, `n`
 * by 1: first given that shape; not null. All 0.0 when the sum is 0 or NaN. Missing values are not in the sum
 * @return 0
 * @throws std::bad_alloc when memory is short or `n` is below 0
 */
KORVEL_API int FilterEigen(matrix<double>* values, int n, short int dropTail, double threshold,
                           double cumulativePercent, int maxCount, double minValue, int& kept, int& retained,
                           matrix<double>*& percents);

#endif
