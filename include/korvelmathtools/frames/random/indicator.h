/**
 * @file
 * Flat functions: indicators.
 *
 * Seed, flag and next seed as in Cpp_Random01.
 */
#ifndef KORVEL_FRAMES_RANDOM_INDICATOR_H
#define KORVEL_FRAMES_RANDOM_INDICATOR_H

#include "frames/types.h"

/**
 * Marks a range of elements.
 *
 * @param out   [out] n numbers: 1 at positions first..last, 0 elsewhere
 * @param n     number of elements
 * @param first first position to mark, from 1; a position outside is left out
 * @param last  last position to mark, included
 * @return 0
 */
KORVEL_FLAT int VB_GenerateIndicator(double* out, int n, int first, int last);

/**
 * Marks a range of elements of a host array.
 *
 * @param out   [inout] host array of Double: its first n elements become 1 at positions first..last, 0
 * elsewhere
 * @param n     number of elements
 * @param first first position to mark, from 1; a position outside the array is left out
 * @param last  last position to mark, included
 * @return 0
 */
KORVEL_FLAT int Cpp_GenerateIndicator_ST(SAFEARRAY** out, int n, int first, int last);

/**
 * Marks a random subset of k out of n elements: those of the k smallest of n uniform draws.
 *
 * @param out      [out] n numbers, 1 for the elements of the subset, 0 for the others
 * @param n        number of elements
 * @param k        size of the subset; below 1 none, from n on all
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int VB_GenerateRandomIndicator(double* out, int n, int k, int* seed, short int flag,
                                           int* nextSeed);

/**
 * Marks a random subset of k out of n elements of a host array.
 *
 * @like VB_GenerateRandomIndicator
 * @param out      [inout] host array of Double: its first n elements become 1 for the elements of the subset,
 * 0 for the others
 */
KORVEL_FLAT int Cpp_GenerateRandomIndicator_ST(SAFEARRAY** out, int n, int k, int* seed, short int flag,
                                               int* nextSeed);

#endif
