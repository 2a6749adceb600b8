/**
 * @file
 * Flat functions: the positions at which two series are both observed.
 */
#ifndef KORVEL_FRAMES_MISSING_PAIRWISE_DELETION_H
#define KORVEL_FRAMES_MISSING_PAIRWISE_DELETION_H

#include "frames/types.h"

/**
 * Keeps the elements of three series where the first two are both above `KORVEL_MISSING_DBL`; a NaN is not.
 *
 * @param x     [in] n numbers, the first series
 * @param y     [in] n numbers, the second series
 * @param z     [in] n numbers that go with them
 * @param n     length of the series
 * @param xOut  [inout] n + 1 numbers: the kept elements of x, from the second place on. The first place, and
 * those behind the kept elements, stay as they are
 * @param yOut  [inout] n + 1 numbers: likewise for y
 * @param zOut  [inout] n + 1 numbers: likewise for z
 * @param count [out] one integer: how many elements are kept
 * @return 0
 */
KORVEL_FLAT int Cpp_V_PairwiseDeletion(const double* x, const double* y, const double* z, int n, double* xOut,
                                       double* yOut, double* zOut, int* count);

#endif
