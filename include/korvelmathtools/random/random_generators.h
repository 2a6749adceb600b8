/**
 * @file
 * The random source of the process: its state, its seeding and single draws.
 *
 * There is one source, with two generators side by side and a switch between them. Every random draw of the
 * library comes from it. Loading the library seeds it from the clock. It has no lock: draws and seedings are
 * for one thread at a time.
 *
 * Routines that draw take a seed triple: `seed`, a flag that tells whether a seed is given (non-zero) or to
 * be chosen (0), and `nextSeed`, which receives a seed for the caller's next run.
 */
#ifndef KORVEL_RANDOM_RANDOM_GENERATORS_H
#define KORVEL_RANDOM_RANDOM_GENERATORS_H

#include "platform/export.h"
#include "random/mersenne_twister.h"

#include <cstdint>

/**
 * The state of a random source. The one of the process is set up when the library is loaded; constructing or
 * assigning a `CRand` does nothing, so that no assignment can disturb a sequence.
 */
struct CRand {
    int algo;                        ///< 1: MT19937. Anything else: the combined generator.
    korvel::mersenne_twister engine; ///< MT19937; at load it stands at the start of seed 5489.
    std::int32_t s1;                 ///< First state of the combined generator.
    std::int32_t s2;                 ///< Second state of the combined generator.

    /** Leaves every field as its storage has it: zero in a static object. */
    KORVEL_API CRand() noexcept;
    /** Does nothing. */
    KORVEL_API CRand& operator=(const CRand&) noexcept;
    /** Does nothing. */
    KORVEL_API CRand& operator=(CRand&&) noexcept;
    ~CRand() = default;
};

/**
 * The next raw number of the selected generator.
 *
 * @return combined generator (L'Ecuyer 1988): 1 to 2147483562; if both states are 0, it is seeded from the
 * clock first. MT19937: the 32-bit output read as a signed number
 */
KORVEL_API int RandomInt();

/**
 * The next raw number times 4.656612875245797e-10, that is divided by 2^31 - 1.
 *
 * @return combined generator: strictly between 0 and 1. MT19937: from -1.0000000004656613 to 1.0, below zero
 * about half the time, since outputs with the top bit set count as negative
 */
KORVEL_API double Random01();

/**
 * A random integer between two bounds, both included.
 *
 * @param a one bound
 * @param b the other bound
 * @return combined generator: `a` plus or minus a raw number modulo the number of integers in the range, the
 * bounds in either order. MT19937: the unsigned raw number modulo the number of integers, drawn again while
 * it would favour some of them; with `b` below `a` the range goes up from `a` and wraps. With `a` equal to
 * `b` nothing is drawn.
 */
KORVEL_API int RandomIntUniform(int a, int b);

/**
 * Seeds the source, or tells which seed is in use.
 *
 * @param seed in: the seed, when `*flag` is not 0. Out: the seed in use, when `*flag` was 0
 * @param flag in: 0 when no seed is given. Out: -1 in that case, otherwise unchanged
 *
 * With a seed given, s1 is the seed and s2 a tenth of it, truncated; MT19937 is seeded too when it is
 * selected. Without one, a source whose s1 is 0 is seeded from the clock in the same way; otherwise the
 * sequence goes on, except that s2 becomes a tenth of the present s1. Seed 0 leaves both states 0, so that
 * the next draw of the combined generator takes the clock; seeds 1 to 9 leave s2 at 0 for good.
 */
KORVEL_API void GetSeed(int* seed, short int* flag);

/**
 * Like `GetSeed`, but if no seed is given it always takes the clock, and it always seeds MT19937 from s1 when
 * that is selected.
 *
 * @param seed in: the seed, when `*flag` is not 0. Out: the seed taken from the clock, when `*flag` was 0
 * @param flag in: 0 when no seed is given. Out: -1 in that case, otherwise unchanged
 */
KORVEL_API void GetSeed2(int* seed, short int* flag);

/**
 * A seed for the caller's next run.
 *
 * @param seed receives a further raw draw under MT19937, and otherwise the present s1, without a draw. Given
 * back as a seed it does not continue the sequence of the combined generator, whose s2 starts anew
 */
KORVEL_API void GetSeedUpdate(int* seed);

/**
 * Seeds as `GetSeed(seed, &flag)`, draws one `Random01`, and hands back the next seed.
 *
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 * @return the draw
 */
KORVEL_API double GenerateRandom01(int* seed, short int flag, int* nextSeed);

#endif
