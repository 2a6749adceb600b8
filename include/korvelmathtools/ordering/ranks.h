/**
 * @file
 * Ranks of the elements of a vector, from 1, under several tie rules, and positions in square tables.
 *
 * Where ties are counted, two neighbours in ascending order are tied when they differ by less than 1e-15.
 * Missing elements, which a sort puts first, get a missing rank. The place of a NaN is not defined.
 */
#ifndef KORVEL_ORDERING_RANKS_H
#define KORVEL_ORDERING_RANKS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Dense ranks: 1 for the smallest element, one more at each change of value, compared exactly. Missing
 * elements are ranked like any other.
 *
 * @param x   `n` numbers, not modified
 * @param out receives `n` ranks, in the order of `x`
 */
KORVEL_API void V_GetRanks(matrix<double>* x, int n, matrix<double>* out);
KORVEL_API void V_GetRanks(matrix<double>* x, int n, matrix<int>* out);

/**
 * Weighted mid-ranks: a weight acts as a count of repetitions, and every member of a tied group gets the mean
 * of the ranks that the group occupies. Sorts in place.
 *
 * @param x        `n` numbers, sorted ascending
 * @param n        number of elements
 * @param bRestore -1: `x`, `w` and `ranks` are put back into the original order; otherwise all three stay
 * sorted
 * @param w        `n` weights, sorted along; may be `x`
 * @param ranks    receives `n` ranks
 * @param nTies    receives the number of groups: tied ones, and single elements that weigh more than 1
 * @param tieSizes room for `n` numbers; receives the weight of each group
 *
 * The first ranked element counts as a group of its own when it weighs more than 1 and the second element of
 * the sorted data exceeds the first, whichever those are.
 */
KORVEL_API void V_GetRanksTies(matrix<double>* x, int n, short int bRestore, matrix<double>* w,
                               matrix<double>* ranks, int* nTies, matrix<double>* tieSizes);

/** `V_GetRanksTies` with all weights 1. */
KORVEL_API void V_GetRanksTies2(matrix<double>* x, int n, short int bRestore, matrix<double>* ranks,
                                int* nTies, matrix<double>* tieSizes);

/** `V_GetRanksTies2`, with the lowest rank of the group for every member of a tied group. */
KORVEL_API void V_GetRanksTiesMinDbl2(matrix<double>* x, int n, short int bRestore, matrix<double>* ranks,
                                      int* nTies, matrix<double>* tieSizes);

/**
 * Ranks 1, 2, ... in ascending order, tied elements in their original order; missing for a missing element.
 * Nothing but the results is modified, each of which may be `x` or `w`. The groups are those of
 * `V_GetRanksTies`.
 */
KORVEL_API void V_GetRanksTiesInt(matrix<double>* x, int n, matrix<double>* w, matrix<double>* ranks,
                                  int* nTies, matrix<double>* tieSizes);

/**
 * `V_GetRanksTies` on each column of a table in turn, with the weights as the column before left them.
 *
 * @param x        `rows` by `cols`, sorted column by column unless `bRestore` is -1
 * @param ranks    receives `rows` by `cols` ranks
 * @param nTies    receives the number of groups of each column, `cols` numbers
 * @param tieSizes receives the weights of the groups, `rows` by `cols`
 */
KORVEL_API void M_GetRanksTies(matrix<double>* x, int rows, int cols, short int bRestore, matrix<double>* w,
                               matrix<double>* ranks, int* nTies, matrix<double>* tieSizes);

/**
 * Position of linear index `k`, from 1, in the strict upper triangle of a square table of order `n`, read row
 * by row. With `n` below 2, or past the triangle, nothing is written.
 *
 * @param row receives the row, from 1
 * @param col receives the column, from 1
 */
KORVEL_API void V_GetPositionInMatNNm1o2(int k, int n, int* row, int* col);

namespace korvel
{

/** Position of linear index `k`, from 1, in a square table of order `n`, read row by row; nothing for `n`
 * below 1. */
void positionInSquare(int k, int n, int* row, int* col);

} // namespace korvel

#endif
