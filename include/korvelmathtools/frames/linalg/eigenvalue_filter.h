/**
 * @file
 * Flat functions: how many of the leading eigenvalues are worth keeping.
 */
#ifndef KORVEL_FRAMES_LINALG_EIGENVALUE_FILTER_H
#define KORVEL_FRAMES_LINALG_EIGENVALUE_FILTER_H

#include "frames/types.h"

/**
 * Drops small eigenvalues from the end, takes each one's share of the sum of those that are left, and counts
 * how many of the leading ones satisfy all bounds. The first value is never dropped.
 *
 * @param values            [inout] n eigenvalues in descending order; the last may be set to 0
 * @param n                 number of values
 * @param dropTail          not 0: values below the threshold are dropped from the end. 0: the last one below
 * it is set to 0, and with a threshold above 0 the call then does not return
 * @param threshold         what is below it is not kept
 * @param cumulativePercent with a number above 0, the first values whose shares, in percent, sum up to at
 * least it are enough
 * @param maxCount          with a number above 0, no more than so many are enough
 * @param minValue          with a number above 0, each value below minValue + 1e-12 lowers the number by one
 * @param kept              [out] one integer: how many values were not dropped; 0 when their sum is NaN
 * @param retained          [out] one integer: the smallest of the four numbers
 * @param percents          [out] n shares of the values in the sum of those kept, in percent; 0.0 for a
 * dropped one
 * @return 0
 */
KORVEL_FLAT int VB_FilterEigen(double* values, int n, short int dropTail, double threshold,
                               double cumulativePercent, int maxCount, double minValue, int* kept,
                               int* retained, double* percents);

#endif
