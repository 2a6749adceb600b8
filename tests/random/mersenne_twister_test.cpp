#include "random/random_state.h"
#include "support/bits.h"

#include <random>
#include <vector>

namespace korvel::test
{

namespace
{

mersenne_twister seeded(std::uint32_t seed)
{
    mersenne_twister engine{};
    engine.seed(seed);
    return engine;
}

} // namespace

TEST(MersenneTwister, GivesThePublishedOutputsOfTheDefaultSeed)
{
    auto engine = seeded(5489);
    std::mt19937 published;
    EXPECT_EQ(engine.next(), 3499211612U);
    EXPECT_EQ(published(), 3499211612U);
    for (int k = 2; k <= 1000; ++k) {
        ASSERT_EQ(engine.next(), published()) << "output " << k;
    }
    for (int k = 1001; k < 10000; ++k) {
        engine.next();
    }
    // ISO C++ [rand.predef]: the 10000th invocation of a default-constructed mt19937.
    EXPECT_EQ(engine.next(), 4123659995U);
}

TEST(MersenneTwister, FollowsEverySeed)
{
    for (const std::uint32_t seed : {0U, 1U, 19650218U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        auto engine = seeded(seed);
        std::mt19937 published(seed);
        for (int k = 1; k <= 4000; ++k) {
            ASSERT_EQ(engine.next(), published()) << "seed " << seed << ", output " << k;
        }
    }
}

TEST(MersenneTwister, SeedingFillsTheFirstHalfAndStandsBehindIt)
{
    const auto engine = seeded(1);
    EXPECT_EQ(engine.index, 624U);
    EXPECT_EQ(engine.temperingMask, 0xFFFFFFFFU);
    EXPECT_EQ(engine.words[0], 1U);
    // 1812433253 * (1 ^ (1 >> 30)) + 1.
    EXPECT_EQ(engine.words[1], 1812433254U);
    for (std::size_t i = 624; i < 1248; ++i) {
        ASSERT_EQ(engine.words[i], 0U);
    }
}

TEST(MersenneTwister, EachRefillWritesTheOtherHalf)
{
    auto engine = seeded(42);
    const auto start = engine.words;
    engine.next();
    EXPECT_EQ(engine.index, 625U);
    for (std::size_t i = 0; i < 624; ++i) {
        ASSERT_EQ(engine.words[i], start[i]);
    }

    const auto second = engine.words;
    for (int k = 0; k < 624; ++k) {
        engine.next();
    }
    EXPECT_EQ(engine.index, 1U);
    for (std::size_t i = 624; i < 1248; ++i) {
        ASSERT_EQ(engine.words[i], second[i]);
    }
    // The ring holds the recurrence itself: x[k + 624] = x[k + 397] ^ twist(x[k], x[k + 1]).
    const auto word = [&](std::size_t k) { return k < 624 ? second[k] : engine.words[k % 1248]; };
    for (std::size_t k = 624; k < 1248; ++k) {
        const std::uint32_t joined = (word(k) & 0x80000000U) | (word(k + 1) & 0x7FFFFFFFU);
        const std::uint32_t expected =
            word(k + 397) ^ (joined >> 1) ^ ((joined & 1U) != 0 ? 0x9908B0DFU : 0U);
        ASSERT_EQ(engine.words[(k + 624) % 1248], expected) << k;
    }
}

TEST(MersenneTwister, TellsHowManyWordsAreLeft)
{
    auto engine = seeded(7);
    EXPECT_EQ(engine.available(), 624U);
    EXPECT_EQ(engine.index, 624U);
    for (int k = 0; k < 623; ++k) {
        engine.next();
    }
    EXPECT_EQ(engine.available(), 1U);
    engine.next();
    EXPECT_EQ(engine.available(), 624U);
    EXPECT_EQ(engine.index, 0U);
    engine.next();
    EXPECT_EQ(engine.available(), 623U);
}

using MersenneTwisterSource = RandomState;

TEST_F(MersenneTwisterSource, BlocksHoldWhatSingleDrawsGive)
{
    processSource.algo = 1;
    std::mt19937 published;
    for (const std::size_t count : {0U, 1U, 3U, 620U, 1U, 623U, 624U, 625U, 1248U, 5000U, 7U}) {
        std::vector<std::int32_t> block(count);
        drawRawBlock(processSource, block.data(), count);
        for (const auto raw : block) {
            ASSERT_EQ(static_cast<std::uint32_t>(raw), published());
        }
        ASSERT_EQ(static_cast<std::uint32_t>(RandomInt()), published());
    }
}

TEST_F(MersenneTwisterSource, UniformDrawsAreSigned)
{
    processSource.algo = 1;
    std::mt19937 published;
    int negative = 0;
    for (int k = 0; k < 10000; ++k) {
        const auto raw = static_cast<std::int32_t>(published());
        ASSERT_SAME_BITS(Random01(), raw * 4.656612875245797e-10);
        negative += raw < 0 ? 1 : 0;
    }
    EXPECT_GT(negative, 4800);
    EXPECT_LT(negative, 5200);
}

TEST_F(MersenneTwisterSource, UniformDrawsReachTheEndsOfTheRange)
{
    processSource.algo = 1;
    auto& engine = processSource.engine;
    engine.next();
    engine.words[engine.index] = untemper(0x80000000U);
    engine.words[engine.index + 1] = untemper(0x7FFFFFFFU);
    EXPECT_SAME_BITS(Random01(), -1.0000000004656613);
    EXPECT_SAME_BITS(Random01(), 1.0);
}

} // namespace korvel::test
