#include "random/random_source.h"

#include "random/clock_seed.h"

#include <algorithm>
#include <array>

namespace korvel
{

namespace
{

/**
 * `laneBlock` numbers of the combined generator. Each step waits for the one before, so the block is divided
 * into lanes that are walked side by side; each lane starts where the one before it will end.
 */
void combinedLanes(CRand& source, std::int32_t* out) noexcept
{
    std::array<std::int32_t, laneCount> s1{source.s1};
    std::array<std::int32_t, laneCount> s2{source.s2};
    for (std::size_t lane = 1; lane < laneCount; ++lane) {
        s1[lane] = first_step::jump<laneLength>(s1[lane - 1]);
        s2[lane] = second_step::jump<laneLength>(s2[lane - 1]);
    }
    for (int i = 0; i < laneLength; ++i) {
        for (std::size_t lane = 0; lane < laneCount; ++lane) {
            out[lane * laneLength + static_cast<std::size_t>(i)] = nextCombined(s1[lane], s2[lane]);
        }
    }
    source.s1 = s1.back();
    source.s2 = s2.back();
}

void drawTwisterBlock(mersenne_twister& engine, std::int32_t* out, std::size_t count) noexcept
{
    for (std::size_t done = 0; done < count;) {
        const std::size_t run = std::min(engine.available(), count - done);
        const std::uint32_t* const words = engine.words.data() + engine.index;
        for (std::size_t i = 0; i < run; ++i) {
            out[done + i] = static_cast<std::int32_t>(engine.temper(words[i]));
        }
        engine.index += static_cast<std::uint32_t>(run);
        done += run;
    }
}

/** Starts the combined generator from a seed, and MT19937 too when it is the one in use. */
void startFrom(CRand& source, int seed) noexcept
{
    source.s1 = seed;
    source.s2 = seed / 10;
    if (source.algo == mersenneTwisterSelected) {
        source.engine.seed(static_cast<std::uint32_t>(seed));
    }
}

void reportSeed(const CRand& source, int* seed, short int* flag) noexcept
{
    *seed = source.s1;
    *flag = -1;
}

} // namespace

CRand processSource;

namespace
{

/**
 * Runs when the library is loaded. The source above is in the same file and is therefore initialised first.
 */
[[maybe_unused]] const bool started = (startSource(processSource), true);

} // namespace

void startSource(CRand& source)
{
    source.algo = 0;
    source.engine.words.fill(0);
    source.engine.seed(mersenne_twister::defaultSeed);
    source.s1 = 0;
    source.s2 = 0;
    seedIfBlank(source);
}

void seedIfBlank(CRand& source)
{
    int seed = 0;
    short int flag = 0;
    seedSource(source, &seed, &flag);
}

void seedSource(CRand& source, int* seed, short int* flag)
{
    if (*flag != 0) {
        startFrom(source, *seed);
        return;
    }
    if (source.s1 == 0) {
        startFrom(source, clockSeed());
    }
    source.s2 = source.s1 / 10;
    reportSeed(source, seed, flag);
}

void reseedSource(CRand& source, int* seed, short int* flag)
{
    startFrom(source, *flag != 0 ? *seed : clockSeed());
    if (*flag == 0) {
        reportSeed(source, seed, flag);
    }
}

void drawRawBlock(CRand& source, std::int32_t* out, std::size_t count)
{
    if (source.algo == mersenneTwisterSelected) {
        drawTwisterBlock(source.engine, out, count);
        return;
    }
    const bool blank = source.s1 == 0 && source.s2 == 0;
    std::size_t done = 0;
    for (; !blank && done + laneBlock <= count; done += laneBlock) {
        combinedLanes(source, out + done);
    }
    for (; done < count; ++done) {
        out[done] = drawRaw(source);
    }
}

void draw01Block(CRand& source, double* out, std::size_t count)
{
    std::array<std::int32_t, laneBlock> raw;
    for (std::size_t done = 0; done < count;) {
        const std::size_t run = std::min(raw.size(), count - done);
        drawRawBlock(source, raw.data(), run);
        for (std::size_t i = 0; i < run; ++i) {
            out[done + i] = static_cast<double>(raw[i]) * RAND_SCALE;
        }
        done += run;
    }
}

} // namespace korvel
