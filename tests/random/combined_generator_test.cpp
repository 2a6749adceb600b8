#include "random/random_state.h"
#include "support/bits.h"

#include <limits>
#include <random>
#include <vector>

namespace korvel::test
{

namespace
{

constexpr std::int64_t firstModulus = 2147483563;
constexpr std::int64_t secondModulus = 2147483399;

/** The two generators by 64-bit products and a remainder that is never negative. */
struct modular_twin {
    std::int64_t s1;
    std::int64_t s2;

    std::int64_t next()
    {
        s1 = ((40014 * s1) % firstModulus + firstModulus) % firstModulus;
        s2 = ((40692 * s2) % secondModulus + secondModulus) % secondModulus;
        const std::int64_t z = s1 - s2;
        return z < 1 ? z + 2147483562 : z;
    }
};

/** Schrage's method in 32 bits, step by step. */
std::int32_t schrage(std::int32_t s, std::int32_t multiplier, std::int32_t modulus)
{
    const std::int32_t quotient = modulus / multiplier;
    const std::int32_t remainder = modulus % multiplier;
    const std::int32_t k = s / quotient;
    const std::int32_t moved = multiplier * (s - k * quotient) - k * remainder;
    return moved < 0 ? moved + modulus : moved;
}

using CombinedGenerator = RandomState;

} // namespace

TEST_F(CombinedGenerator, FollowsTheModularComputationForAMillionDraws)
{
    seedWith(12345);
    modular_twin twin{12345, 1234};
    for (int k = 0; k < 1000000; ++k) {
        ASSERT_EQ(RandomInt(), twin.next()) << "draw " << k;
        ASSERT_EQ(processSource.s1, twin.s1);
        ASSERT_EQ(processSource.s2, twin.s2);
    }
}

TEST_F(CombinedGenerator, IsThePairOfStandardEngines)
{
    seedWith(987654321);
    std::linear_congruential_engine<std::uint64_t, 40014, 0, 2147483563> first(987654321);
    std::linear_congruential_engine<std::uint64_t, 40692, 0, 2147483399> second(98765432);
    for (int k = 0; k < 1000000; ++k) {
        const auto z = static_cast<std::int64_t>(first()) - static_cast<std::int64_t>(second());
        ASSERT_EQ(RandomInt(), z < 1 ? z + 2147483562 : z) << "draw " << k;
    }
}

TEST_F(CombinedGenerator, TakesAnyStateAsSchragesMethodDoes)
{
    std::vector<std::int32_t> states{0,
                                     1,
                                     -1,
                                     52773,
                                     52774,
                                     53667,
                                     53668,
                                     2147483398,
                                     2147483399,
                                     2147483400,
                                     2147483562,
                                     2147483563,
                                     2147483564,
                                     std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::min() + 1};
    std::mt19937 any(20260314);
    for (int k = 0; k < 200000; ++k) {
        states.push_back(static_cast<std::int32_t>(any()));
    }
    for (const auto s : states) {
        ASSERT_EQ(first_step::next(s), schrage(s, 40014, 2147483563)) << s;
        ASSERT_EQ(second_step::next(s), schrage(s, 40692, 2147483399)) << s;
    }
}

TEST_F(CombinedGenerator, FirstDrawOfSeed12345)
{
    for (int again = 0; again < 2; ++again) {
        seedWith(12345);
        EXPECT_EQ(processSource.s1, 12345);
        EXPECT_EQ(processSource.s2, 1234);
        EXPECT_EQ(RandomInt(), 443758902);
        EXPECT_EQ(processSource.s1, 493972830);
        EXPECT_EQ(processSource.s2, 50213928);
    }
}

TEST_F(CombinedGenerator, OutputsStayInTheirRange)
{
    EXPECT_EQ(combine(5, 5), 2147483562);
    EXPECT_EQ(combine(6, 5), 1);
    EXPECT_EQ(combine(0, 2147483398), 164);
    EXPECT_EQ(combine(2147483562, 0), 2147483562);
    EXPECT_EQ(combine(0, 0), 2147483562);
}

TEST_F(CombinedGenerator, UniformDrawsLieInsideZeroToOne)
{
    // Equal states after the step give the largest output, 2147483562.
    setStates(0, 0, 2147483399);
    EXPECT_SAME_BITS(Random01(), 2147483562.0 / 2147483647.0);
    seedWith(12345);
    EXPECT_SAME_BITS(Random01(), 443758902 * 4.656612875245797e-10);
    for (int k = 0; k < 100000; ++k) {
        const double u = Random01();
        ASSERT_GT(u, 0.0);
        ASSERT_LT(u, 1.0);
    }
}

TEST_F(CombinedGenerator, BlocksHoldWhatSingleDrawsGive)
{
    for (const int seed : {12345, 5, -7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        seedWith(seed);
        modular_twin twin{seed, seed / 10};
        for (const std::size_t count : {std::size_t{0}, std::size_t{1}, laneBlock - 1, laneBlock,
                                        laneBlock + 1, std::size_t{5000}, std::size_t{2}}) {
            std::vector<std::int32_t> block(count);
            drawRawBlock(processSource, block.data(), count);
            for (const auto raw : block) {
                ASSERT_EQ(raw, twin.next()) << "seed " << seed;
            }
            ASSERT_EQ(processSource.s1, twin.s1);
            ASSERT_EQ(processSource.s2, twin.s2);
        }
    }
}

TEST_F(CombinedGenerator, UniformBlocksHoldWhatSingleDrawsGive)
{
    for (const int algorithm : {0, 1}) {
        processSource.algo = algorithm;
        seedWith(99);
        std::vector<double> single(3000);
        for (auto& u : single) {
            u = Random01();
        }
        seedWith(99);
        std::vector<double> block(3000);
        draw01Block(processSource, block.data(), 1);
        draw01Block(processSource, block.data() + 1, 2999);
        for (std::size_t k = 0; k < single.size(); ++k) {
            ASSERT_SAME_BITS(block[k], single[k]) << "algorithm " << algorithm << ", draw " << k;
        }
    }
}

TEST_F(CombinedGenerator, BlankStatesTakeTheClockFirst)
{
    const auto expectFromClock = [](std::int32_t raw) {
        modular_twin twin{seedOfNow, seedOfNow / 10};
        EXPECT_EQ(raw, twin.next());
        EXPECT_EQ(processSource.s1, twin.s1);
        EXPECT_EQ(processSource.s2, twin.s2);
    };
    setStates(0, 0, 0);
    expectFromClock(RandomInt());

    setStates(0, 0, 0);
    std::vector<std::int32_t> block(3000);
    drawRawBlock(processSource, block.data(), block.size());
    modular_twin twin{seedOfNow, seedOfNow / 10};
    for (const auto raw : block) {
        ASSERT_EQ(raw, twin.next());
    }
}

TEST_F(CombinedGenerator, OneBlankStateIsNotBlank)
{
    setStates(0, 0, 17);
    modular_twin twin{0, 17};
    EXPECT_EQ(RandomInt(), twin.next());
    EXPECT_EQ(processSource.s1, 0);
}

} // namespace korvel::test
