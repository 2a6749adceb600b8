/**
 * @file
 * The internals of the random source: operations on a given state, and draws by the block. A block holds the
 * same numbers as single draws, and leaves the same state.
 */
#ifndef KORVEL_RANDOM_RANDOM_SOURCE_H
#define KORVEL_RANDOM_RANDOM_SOURCE_H

#include "random/combined_generator.h"
#include "random/random_generators.h"

#include <cstddef>
#include <cstdint>

namespace korvel
{

/** The source of the process. */
extern CRand processSource;

/** What `algo` holds when MT19937 is selected. */
inline constexpr int mersenneTwisterSelected = 1;

/** Turns a raw number into a uniform one: 1 / (2^31 - 1). */
inline constexpr double RAND_SCALE = 4.656612875245797e-10;

/** A block of the combined generator is walked in lanes side by side, each of `laneLength` draws. */
inline constexpr int laneCount = 4;
inline constexpr int laneLength = 256;
inline constexpr std::size_t laneBlock = std::size_t{laneCount} * laneLength;

/** Cells of a table that are drawn at a time. */
inline constexpr int panelCells = 131072;

/** What loading the library does: MT19937 at its default seed, then a seed from the clock. */
void startSource(CRand& source);

/** Selects a generator; nothing is seeded. */
inline void selectGenerator(CRand& source, int algorithm) noexcept
{
    source.algo = algorithm;
}

/** `GetSeed` and `GetSeed2` on a given source. */
void seedSource(CRand& source, int* seed, short int* flag);
void reseedSource(CRand& source, int* seed, short int* flag);

/** Seeds the combined generator from the clock before a draw that finds both states 0. */
void seedIfBlank(CRand& source);

/** `RandomInt` on a given source. */
inline std::int32_t drawRaw(CRand& source)
{
    if (source.algo == mersenneTwisterSelected) {
        return static_cast<std::int32_t>(source.engine.next());
    }
    if (source.s1 == 0 && source.s2 == 0) [[unlikely]] {
        seedIfBlank(source);
    }
    return nextCombined(source.s1, source.s2);
}

/** `Random01` on a given source. */
inline double draw01(CRand& source)
{
    return static_cast<double>(drawRaw(source)) * RAND_SCALE;
}

/** What `GetSeedUpdate` hands back. */
inline int nextSeedOf(CRand& source)
{
    return source.algo == mersenneTwisterSelected ? drawRaw(source) : source.s1;
}

/** `count` numbers as `drawRaw` gives them. */
void drawRawBlock(CRand& source, std::int32_t* out, std::size_t count);

/** `count` numbers as `draw01` gives them. */
void draw01Block(CRand& source, double* out, std::size_t count);

} // namespace korvel

#endif
