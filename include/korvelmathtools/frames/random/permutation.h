/**
 * @file
 * Flat functions: random permutations.
 *
 * From the last place down, each element changes places with one that is drawn from all places. Seed and flag
 * as in Cpp_Random01, save that the random source is started from the seed in every case: the seed handed
 * back when flag is 0 repeats the permutation. With MT19937 selected about half the draws point outside the
 * vector; the element then changes places with a spare one, which starts as -1.
 */
#ifndef KORVEL_FRAMES_RANDOM_PERMUTATION_H
#define KORVEL_FRAMES_RANDOM_PERMUTATION_H

#include "frames/types.h"

/**
 * Random permutation of the integers 1 to n.
 *
 * @param out      [inout] n integers
 * @param n        number of elements; below 2 nothing is drawn
 * @param bReset   -1: start from 1 to n in order, as is also done when the first element is 0. Otherwise what
 * out holds is shuffled
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     [inout] one flag: 0 when no seed is given, and then set to -1
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int Cpp_Random1toNLong(int* out, int n, short int bReset, int* seed, short int* flag,
                                   int* nextSeed);

/**
 * Random permutation of the numbers 1 to n.
 *
 * @like Cpp_Random1toNLong, numbers for integers
 */
KORVEL_FLAT int Cpp_Random1toNDbl(double* out, int n, short int bReset, int* seed, short int* flag,
                                  int* nextSeed);

/**
 * Random permutation of the integers from a to b, of which the array gets all but the last two.
 *
 * @param out      [inout] b - a - 1 integers, the first ones of the b - a + 1 that are permuted; a single one
 * when a equals b
 * @param a        the smallest integer
 * @param b        the largest integer
 * @param bReset   -1: start from a to b in order, as is also done when the first element is 0. Otherwise what
 * out holds is shuffled, and a - 1 added to it
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     [inout] one flag: 0 when no seed is given, and then set to -1
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int Cpp_RandomAtoBLng(int* out, int a, int b, short int bReset, int* seed, short int* flag,
                                  int* nextSeed);

/**
 * Random permutation of the numbers from a to b in steps of 1, of which the array gets all but the last two.
 *
 * @like Cpp_RandomAtoBLng, numbers for integers
 * @param a        the smallest number
 * @param b        the largest number
 */
KORVEL_FLAT int Cpp_RandomAtoBDbl(double* out, int a, int b, short int bReset, int* seed, short int* flag,
                                  int* nextSeed);

#endif
