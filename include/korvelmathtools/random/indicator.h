/**
 * @file
 * Indicators: vectors of 0 and 1 that mark elements.
 */
#ifndef KORVEL_RANDOM_INDICATOR_H
#define KORVEL_RANDOM_INDICATOR_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Marks a range of elements.
 *
 * @param out   receives 0 in its first `n` elements, and then 1 at positions `first..last`. Elements that it
 *              does not have go to its `oobValue`
 * @param n     number of elements
 * @param first first position to mark, from 1
 * @param last  last position to mark, included; below `first` none is marked
 */
KORVEL_API void GenerateIndicator(matrix<double>* out, int n, int first, int last);

/**
 * Marks a random subset of `k` out of `n` elements: those with the `k` smallest of `n` draws of `Random01`,
 * the first ones where draws are equal.
 *
 * @param out      receives `n` elements, 1 for each element of the subset and 0 for the others
 * @param n        number of elements; below 1 nothing is drawn
 * @param k        size of the subset; below 1 all are 0, from `n` on all are 1
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 */
KORVEL_API void GenerateRandomIndicator(matrix<double>* out, int n, int k, int* seed, short int flag,
                                        int* nextSeed);

#endif
