/**
 * @file
 * Random permutations.
 *
 * From the last place down, each element is exchanged with a drawn one. Every draw is over all places, not
 * only over those that are left. So this is not the unbiased scheme of Fisher and Yates: some permutations
 * occur more often than others.
 */
#ifndef KORVEL_RANDOM_PERMUTATION_H
#define KORVEL_RANDOM_PERMUTATION_H

#include "containers/matrix.h"
#include "platform/export.h"

namespace korvel
{

/**
 * Shuffles a vector, or fills it with a random permutation of 1 to `n`. For `int` and `double`.
 *
 * @param out      the vector, `n` elements, reached by the checked linear access
 * @param n        its number of elements; below 2 nothing is drawn
 * @param bReset   -1: the vector is filled with 1 to `n` first, as it also is when its first element is 0.
 *                 Otherwise what it holds is shuffled
 * @param seed     in: the seed, when `*flag` is not 0. Out: the seed in use, when `*flag` was 0
 * @param flag     in: 0 when no seed is given. Out: -1 in that case, otherwise unchanged
 * @param nextSeed receives what `GetSeedUpdate` gives
 *
 * The source is started from the seed in every case, so that the seed handed back repeats the permutation.
 * Under MT19937 about half the draws are negative. Such a place is outside the vector, and the element is
 * exchanged with `oobValue`.
 */
template <class T>
void random1toN(matrix<T>& out, int n, short int bReset, int* seed, short int* flag, int* nextSeed);

} // namespace korvel

/**
 * Fills a vector with a random permutation of the integers from `a` to `b`. For `int` and `double`.
 *
 * @param out      the vector; it has room for `b - a + 1` elements, and what it has no room for goes to its
 *                 `oobValue`
 * @param a        the smallest integer
 * @param b        the largest integer; below `a` nothing is drawn
 * @param bReset   -1, or a first element of 0: a permutation of 1 to n = `b - a + 1` is drawn. Otherwise what
 *                 the vector holds is shuffled. `a - 1` is added to each element in both cases
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` was 0
 * @param flag     in: 0 when no seed is given. Out: -1 in that case, otherwise unchanged
 * @param nextSeed receives what `GetSeedUpdate` gives
 *
 * The source is started from the seed in every case.
 */
template <class T>
KORVEL_API void RandomAtoB(matrix<T>* out, int a, int b, short int bReset, int& seed, short int& flag,
                           int& nextSeed);

#endif
