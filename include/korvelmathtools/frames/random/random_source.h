/**
 * @file
 * Flat functions: the random source of the process.
 *
 * All draws come from this one source, which is seeded from the clock when the library is loaded. It has no
 * lock: draws and seedings are for one thread at a time.
 */
#ifndef KORVEL_FRAMES_RANDOM_RANDOM_SOURCE_H
#define KORVEL_FRAMES_RANDOM_RANDOM_SOURCE_H

#include "frames/types.h"

/**
 * Selects the random generator. Both generators keep their states; nothing is seeded.
 *
 * @param algorithm 1: MT19937 (Matsumoto and Nishimura 1998). Anything else: the combined generator of
 * L'Ecuyer (1988), which is the one in use after loading
 * @return 0
 */
KORVEL_FLAT int Cpp_set_rand_algo(int algorithm);

#endif
