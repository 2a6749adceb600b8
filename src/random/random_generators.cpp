#include "random/random_generators.h"

#include "random/random_source.h"

using korvel::processSource;

namespace
{

/** Sum, difference and remainder in 32 bits, which wrap instead of overflowing. */
std::uint32_t bits(int value) noexcept
{
    return static_cast<std::uint32_t>(value);
}

/** A raw number is positive, so only a divisor of magnitude 2^31 or more needs the wider type. */
std::uint32_t drawBelow(std::uint32_t wrappedCount)
{
    const std::int64_t count = static_cast<std::int32_t>(wrappedCount);
    return static_cast<std::uint32_t>(korvel::drawRaw(processSource) % count);
}

std::uint32_t combinedUniform(std::uint32_t a, std::uint32_t b)
{
    const auto difference = static_cast<std::int32_t>(b - a);
    if (difference > 0) {
        return a + drawBelow(b - a + 1);
    }
    return difference == 0 ? a : a - drawBelow(a - b + 1);
}

/**
 * Every remainder has the same number of raw values, except in the last, incomplete run, which is drawn
 * again.
 */
bool favoursNone(std::uint32_t raw, std::uint32_t count) noexcept
{
    constexpr std::uint32_t highest = 0xFFFFFFFFU;
    return raw / count < highest / count || highest % count == count - 1;
}

std::uint32_t twisterUniform(std::uint32_t a, std::uint32_t b)
{
    auto& engine = processSource.engine;
    const std::uint32_t count = b - a + 1;
    if (count == 0) {
        return a + engine.next();
    }
    if (count == 1) {
        return a;
    }
    std::uint32_t raw = engine.next();
    while (!favoursNone(raw, count)) {
        raw = engine.next();
    }
    return a + raw % count;
}

} // namespace

CRand::CRand() noexcept {}

CRand& CRand::operator=(const CRand&) noexcept
{
    return *this;
}

CRand& CRand::operator=(CRand&&) noexcept
{
    return *this;
}

int RandomInt()
{
    return korvel::drawRaw(processSource);
}

double Random01()
{
    return korvel::draw01(processSource);
}

int RandomIntUniform(int a, int b)
{
    return static_cast<int>(processSource.algo == korvel::mersenneTwisterSelected
                                ? twisterUniform(bits(a), bits(b))
                                : combinedUniform(bits(a), bits(b)));
}

void GetSeed(int* seed, short int* flag)
{
    korvel::seedSource(processSource, seed, flag);
}

void GetSeed2(int* seed, short int* flag)
{
    korvel::reseedSource(processSource, seed, flag);
}

void GetSeedUpdate(int* seed)
{
    *seed = korvel::nextSeedOf(processSource);
}

double GenerateRandom01(int* seed, short int flag, int* nextSeed)
{
    GetSeed(seed, &flag);
    const double draw = Random01();
    GetSeedUpdate(nextSeed);
    return draw;
}
