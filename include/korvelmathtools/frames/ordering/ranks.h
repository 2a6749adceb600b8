/**
 * @file
 * Flat functions: ranks, and positions in square tables.
 *
 * A NaN is not missing. Where it is sorted to is not defined, so no rank is either when there is one.
 */
#ifndef KORVEL_FRAMES_ORDERING_RANKS_H
#define KORVEL_FRAMES_ORDERING_RANKS_H

#include "frames/types.h"

/**
 * Dense ranks: 1 for the smallest element, one more at each change of value.
 *
 * @param x   [in] n numbers
 * @param n   number of elements
 * @param out [out] n ranks, in the order of x
 * @return 0
 */
KORVEL_FLAT int VB_V_GetRanksDbl(const double* x, int n, double* out);

/**
 * Dense ranks as integers: 1 for the smallest element, one more at each change of value.
 *
 * @like VB_V_GetRanksDbl
 */
KORVEL_FLAT int VB_V_GetRanksLng(const double* x, int n, int* out);

/**
 * Weighted mid-ranks: a weight acts as a count of repetitions; tied elements, closer than 1e-15, share the
 * mean of their ranks; a missing element has a missing rank.
 *
 * @param x        [inout] n numbers, sorted ascending
 * @param n        number of elements
 * @param bRestore -1: x, w and ranks return to the original order; otherwise they stay sorted
 * @param w        [inout] n weights, sorted along
 * @param ranks    [out] n ranks
 * @param nTies    [out] one integer: the number of groups: tied ones, and single elements that weigh more
 * than 1
 * @param tieSizes [out] n numbers; the weight of each group
 * @return 0
 */
KORVEL_FLAT int VB_V_GetRanksTiesDbl(double* x, int n, short int bRestore, double* w, double* ranks,
                                     int* nTies, double* tieSizes);

/**
 * Mid-ranks: tied elements, closer than 1e-15, share the mean of their ranks; a missing element has a missing
 * rank.
 *
 * @like VB_V_GetRanksTiesDbl
 * @param bRestore -1: x and ranks return to the original order; otherwise they stay sorted
 */
KORVEL_FLAT int VB_V_GetRanksTiesDbl2(double* x, int n, short int bRestore, double* ranks, int* nTies,
                                      double* tieSizes);

/**
 * Ranks 1, 2, ... in ascending order, tied elements in their original order; a missing element has a missing
 * rank.
 *
 * @param x        [in] n numbers
 * @param n        number of elements
 * @param w        [in] n weights
 * @param ranks    [out] n ranks, in the order of x
 * @param nTies    [out] one integer: the number of groups: tied ones, and single elements that weigh more
 * than 1
 * @param tieSizes [out] n numbers; the weight of each group
 * @return 0
 */
KORVEL_FLAT int VB_V_GetRanksTiesIntDbl(const double* x, int n, const double* w, double* ranks, int* nTies,
                                        double* tieSizes);

/**
 * Position of a linear index in the strict upper triangle of a square table, read row by row. With n below 2,
 * or past the triangle, nothing is written.
 *
 * @param k   linear index, from 1
 * @param n   order of the table
 * @param row [out] one integer: row, from 1
 * @param col [out] one integer: column, from 1
 * @return 0
 */
KORVEL_FLAT int VB_V_GetPositionInMatNNm1o2(int k, int n, int* row, int* col);

/**
 * Position of a linear index in a square table, read row by row. With n below 1 nothing is written.
 *
 * @like VB_V_GetPositionInMatNNm1o2
 */
KORVEL_FLAT int VB_V_GetPositionInMatNN(int k, int n, int* row, int* col);

#endif
