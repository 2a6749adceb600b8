/**
 * @file
 * Flat functions: random numbers.
 *
 * All draws come from the one random source of the process, which is seeded from the clock when the library
 * is loaded. It has no lock: draws and seedings are for one thread at a time.
 */
#ifndef KORVEL_FRAMES_RANDOM_H
#define KORVEL_FRAMES_RANDOM_H

#include "frames/types.h"

/**
 * Selects the random generator. Both generators keep their states; nothing is seeded.
 *
 * @param algorithm 1: MT19937 (Matsumoto and Nishimura 1998). Anything else: the combined generator of
 * L'Ecuyer (1988), which is the one in use after loading
 * @return 0
 */
KORVEL_FLAT int Cpp_set_rand_algo(int algorithm);

/**
 * Seeds the random source and draws one uniform number.
 *
 * @param seed     [inout] the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     0 when no seed is given: the sequence goes on, with the second state of the combined
 * generator set to a tenth of the first; non-zero to start from the seed
 * @param nextSeed [out] a seed for the next run: the first state of the combined generator, or a further raw
 * draw of MT19937
 * @return strictly between 0 and 1 from the combined generator; from -1.0000000004656613 to 1.0 from MT19937,
 * whose outputs count as signed. Seed 0 with a non-zero flag makes the combined generator take the clock
 */
KORVEL_FLAT double Cpp_Random01(int* seed, short int flag, int* nextSeed);

/**
 * Seeds the random source and fills an array with uniform numbers in storage order, column after column.
 *
 * @param out      [out] rows by cols numbers, each as Cpp_Random01 returns it
 * @param rows     number of rows; below 1 nothing is drawn
 * @param cols     number of columns; below 1 nothing is drawn
 * @param seed     [inout] the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     0 when no seed is given
 * @param nextSeed [out] a seed for the next run
 * @return 0
 *
 * The seeding and the next seed are done in every case.
 */
KORVEL_FLAT int VB_M_GenerateRandom01(double* out, int rows, int cols, int* seed, short int flag,
                                      int* nextSeed);

#endif
