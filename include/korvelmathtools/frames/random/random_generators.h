/**
 * @file
 * Flat functions: one random number.
 */
#ifndef KORVEL_FRAMES_RANDOM_RANDOM_GENERATORS_H
#define KORVEL_FRAMES_RANDOM_RANDOM_GENERATORS_H

#include "frames/types.h"

/**
 * Seeds the random source and draws one uniform number.
 *
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: the source starts from the seed; 0: the sequence goes on, with the second state of
 * the combined generator set to a tenth of the first
 * @param nextSeed [out] one integer: a seed for the next run: the first state of the combined generator, or a
 * further raw draw of MT19937
 * @return strictly between 0 and 1 from the combined generator; from -1.0000000004656613 to 1.0 from MT19937,
 * whose outputs count as signed. Seed 0 with a non-zero flag makes the combined generator take the clock
 */
KORVEL_FLAT double Cpp_Random01(int* seed, short int flag, int* nextSeed);

#endif
