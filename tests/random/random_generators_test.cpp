#include "random/random_generators.h"

#include "random/random_state.h"
#include "support/bits.h"

#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace korvel::test
{

namespace
{

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/** The raw numbers that a seed gives under an algorithm. */
std::vector<int> rawNumbers(int count)
{
    std::vector<int> raw;
    for (int k = 0; k < count; ++k) {
        raw.push_back(RandomInt());
    }
    return raw;
}

using RandomSeeds = RandomState;
using RandomRange = RandomState;

} // namespace

TEST(RandomRecord, KeepsTheOrderOfItsFields)
{
    EXPECT_EQ(offsetof(mersenne_twister, index), 0U);
    EXPECT_EQ(offsetof(mersenne_twister, words), 4U);
    EXPECT_EQ(offsetof(mersenne_twister, temperingMask), 4U + 1248U * 4U);
    CRand record;
    const auto* const start = reinterpret_cast<const char*>(&record);
    const auto at = [&](const auto& field) { return reinterpret_cast<const char*>(&field) - start; };
    EXPECT_EQ(at(record.algo), 0);
    EXPECT_EQ(at(record.engine), 4);
    EXPECT_EQ(at(record.s1), 4 + 5000);
    EXPECT_EQ(at(record.s2), 8 + 5000);
    EXPECT_EQ(sizeof(CRand), 5012U);
}

TEST(RandomRecord, AssigningDoesNothing)
{
    CRand one;
    CRand other;
    one.algo = 1;
    one.s1 = 11;
    other.algo = 2;
    other.s1 = 22;
    EXPECT_EQ(&(one = other), &one);
    EXPECT_EQ(one.algo, 1);
    EXPECT_EQ(one.s1, 11);
    EXPECT_EQ(&(one = std::move(other)), &one);
    EXPECT_EQ(one.algo, 1);
    EXPECT_EQ(one.s1, 11);
    static_assert(!std::is_copy_constructible_v<CRand>);
}

TEST(RandomRecord, ConstructingDoesNothing)
{
    alignas(CRand) unsigned char storage[sizeof(CRand)];
    std::fill(std::begin(storage), std::end(storage), static_cast<unsigned char>(0x5A));
    auto* const volatile place = storage;
    new (place) CRand();
    const volatile unsigned char* const bytes = place;
    for (std::size_t k = 0; k < sizeof(CRand); ++k) {
        ASSERT_EQ(bytes[k], 0x5A) << k;
    }
}

TEST_F(RandomSeeds, StartIsTheCombinedGeneratorFromTheClock)
{
    CRand source;
    source.algo = 1;
    source.s1 = 77;
    source.s2 = 78;
    startSource(source);
    EXPECT_EQ(source.algo, 0);
    EXPECT_EQ(source.s1, seedOfNow);
    EXPECT_EQ(source.s2, seedOfNow / 10);
    EXPECT_EQ(source.engine.index, 624U);
    EXPECT_EQ(source.engine.next(), 3499211612U);
}

TEST_F(RandomSeeds, SwitchingSeedsNothing)
{
    const int s1 = processSource.s1;
    selectGenerator(processSource, 1);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 3499211612U);
    selectGenerator(processSource, 0);
    EXPECT_EQ(processSource.s1, s1);
    selectGenerator(processSource, 1);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 581869302U); // second output of seed 5489
}

TEST_F(RandomSeeds, AnythingButOneIsTheCombinedGenerator)
{
    for (const int algorithm : {2, -1, highest, lowest}) {
        selectGenerator(processSource, algorithm);
        seedWith(12345);
        EXPECT_EQ(RandomInt(), 443758902);
        seedWith(12345);
        EXPECT_EQ(RandomIntUniform(0, 9), 443758902 % 10);
        int next = 0;
        GetSeedUpdate(&next);
        EXPECT_EQ(next, 493972830);
        EXPECT_EQ(processSource.engine.index, 624U);
    }
}

TEST_F(RandomSeeds, AGivenSeedIsLeftAsItIs)
{
    int seed = 12345;
    short int flag = 7;
    GetSeed(&seed, &flag);
    EXPECT_EQ(seed, 12345);
    EXPECT_EQ(flag, 7);
    EXPECT_EQ(processSource.s1, 12345);
    EXPECT_EQ(processSource.s2, 1234);
}

TEST_F(RandomSeeds, NegativeSeedsTruncateTowardZero)
{
    seedWith(-12345);
    EXPECT_EQ(processSource.s1, -12345);
    EXPECT_EQ(processSource.s2, -1234);
}

TEST_F(RandomSeeds, AGivenSeedReachesTheTwisterOnlyWhenItIsSelected)
{
    seedWith(1);
    selectGenerator(processSource, 1);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 3499211612U);
    seedWith(1);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), std::mt19937(1)());
    seedWith(5489);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 3499211612U);
    seedWith(-2);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), std::mt19937(0xFFFFFFFEU)());
}

TEST_F(RandomSeeds, WithoutASeedABlankSourceTakesTheClock)
{
    for (const int algorithm : {0, 1}) {
        setStates(algorithm, 0, 5);
        int seed = 1;
        short int flag = 0;
        GetSeed(&seed, &flag);
        EXPECT_EQ(seed, seedOfNow);
        EXPECT_EQ(flag, -1);
        EXPECT_EQ(processSource.s1, seedOfNow);
        EXPECT_EQ(processSource.s2, seedOfNow / 10);
    }
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), std::mt19937(static_cast<std::uint32_t>(seedOfNow))());
}

TEST_F(RandomSeeds, WithoutASeedTheSequenceGoesOn)
{
    setStates(0, 493972830, 50213928);
    int seed = 1;
    short int flag = 0;
    GetSeed(&seed, &flag);
    EXPECT_EQ(seed, 493972830);
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(processSource.s1, 493972830);
    EXPECT_EQ(processSource.s2, 49397283);
}

TEST_F(RandomSeeds, WithoutASeedTheTwisterGoesOn)
{
    selectGenerator(processSource, 1);
    RandomInt();
    int seed = 1;
    short int flag = 0;
    GetSeed(&seed, &flag);
    EXPECT_EQ(seed, 1); // the s1 of the fixture
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 581869302U);
}

TEST_F(RandomSeeds, SeedZeroIsTheClock)
{
    seedWith(0);
    EXPECT_EQ(processSource.s1, 0);
    EXPECT_EQ(processSource.s2, 0);
    const int first = RandomInt();
    seedWith(seedOfNow);
    EXPECT_EQ(first, RandomInt());
    now.wSecond = 27;
    seedWith(0);
    EXPECT_NE(first, RandomInt());
}

TEST_F(RandomSeeds, SmallSeedsLeaveTheSecondStateAtZero)
{
    for (int seed = 1; seed <= 9; ++seed) {
        seedWith(seed);
        std::int64_t s1 = seed;
        for (int k = 0; k < 100; ++k) {
            s1 = 40014 * s1 % 2147483563;
            ASSERT_EQ(RandomInt(), s1);
            ASSERT_EQ(processSource.s2, 0);
        }
    }
}

TEST_F(RandomSeeds, GetSeed2TakesTheClockEveryTime)
{
    setStates(0, 493972830, 50213928);
    int seed = 1;
    short int flag = 0;
    GetSeed2(&seed, &flag);
    EXPECT_EQ(seed, seedOfNow);
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(processSource.s1, seedOfNow);
    EXPECT_EQ(processSource.s2, seedOfNow / 10);
    EXPECT_EQ(processSource.engine.next(), 3499211612U);

    selectGenerator(processSource, 1);
    flag = 0;
    now.wMinute = 10;
    GetSeed2(&seed, &flag);
    EXPECT_EQ(seed, seedOfNow + 100);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), std::mt19937(static_cast<std::uint32_t>(seed))());
}

TEST_F(RandomSeeds, GetSeed2TakesAGivenSeed)
{
    for (const int algorithm : {0, 1}) {
        selectGenerator(processSource, algorithm);
        int seed = 4321;
        short int flag = 1;
        GetSeed2(&seed, &flag);
        EXPECT_EQ(seed, 4321);
        EXPECT_EQ(flag, 1);
        EXPECT_EQ(processSource.s1, 4321);
        EXPECT_EQ(processSource.s2, 432);
        const std::uint_fast32_t first = algorithm == 1 ? std::mt19937(4321)() : 3499211612U;
        EXPECT_EQ(processSource.engine.next(), first);
    }
}

TEST_F(RandomSeeds, TheNextSeedOfTheCombinedGeneratorIsItsFirstState)
{
    seedWith(12345);
    RandomInt();
    int next = 0;
    GetSeedUpdate(&next);
    EXPECT_EQ(next, 493972830);
    EXPECT_EQ(processSource.s1, 493972830);
    EXPECT_EQ(processSource.s2, 50213928);
}

TEST_F(RandomSeeds, TheNextSeedOfTheTwisterIsADraw)
{
    selectGenerator(processSource, 1);
    seedWith(5489);
    int next = 0;
    GetSeedUpdate(&next);
    EXPECT_EQ(static_cast<std::uint32_t>(next), 3499211612U);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomInt()), 581869302U);
}

TEST_F(RandomSeeds, AChainOfSeedsRepeats)
{
    for (const int algorithm : {0, 1}) {
        selectGenerator(processSource, algorithm);
        const auto chain = [] {
            std::vector<double> draws;
            int seed = 2026;
            for (int k = 0; k < 200; ++k) {
                int next = 0;
                draws.push_back(GenerateRandom01(&seed, -1, &next));
                seed = next;
            }
            return draws;
        };
        const auto once = chain();
        rawNumbers(17);
        EXPECT_EQ(once, chain());
        EXPECT_NE(once[0], once[1]);
    }
}

TEST_F(RandomSeeds, OneDrawSeedsDrawsAndHandsBackTheNextSeed)
{
    int seed = 12345;
    int next = 0;
    EXPECT_SAME_BITS(GenerateRandom01(&seed, 1, &next), 443758902 * 4.656612875245797e-10);
    EXPECT_EQ(seed, 12345);
    EXPECT_EQ(next, 493972830);

    // Without a seed: s2 becomes 49397283 before the draw.
    const std::int64_t s1 = 40014LL * 493972830 % 2147483563;
    const std::int64_t s2 = 40692LL * 49397283 % 2147483399;
    const std::int64_t z = s1 - s2 < 1 ? s1 - s2 + 2147483562 : s1 - s2;
    EXPECT_SAME_BITS(GenerateRandom01(&seed, 0, &next), static_cast<double>(z) * 4.656612875245797e-10);
    EXPECT_EQ(seed, 493972830);
    EXPECT_EQ(next, s1);
}

TEST_F(RandomRange, EqualBoundsDrawNothing)
{
    for (const int algorithm : {0, 1}) {
        selectGenerator(processSource, algorithm);
        const auto index = processSource.engine.index;
        EXPECT_EQ(RandomIntUniform(5, 5), 5);
        EXPECT_EQ(RandomIntUniform(lowest, lowest), lowest);
        EXPECT_EQ(processSource.s1, 1);
        EXPECT_EQ(processSource.s2, 1);
        EXPECT_EQ(processSource.engine.index, index);
    }
}

TEST_F(RandomRange, CombinedTakesTheRemainderInEitherOrder)
{
    seedWith(314159);
    const auto raw = rawNumbers(3000);
    seedWith(314159);
    for (std::size_t k = 0; k < raw.size(); k += 3) {
        ASSERT_EQ(RandomIntUniform(3, 7), 3 + raw[k] % 5);
        ASSERT_EQ(RandomIntUniform(7, 3), 7 - raw[k + 1] % 5);
        ASSERT_EQ(RandomIntUniform(-1000000, 1), -1000000 + raw[k + 2] % 1000002);
    }
}

TEST_F(RandomRange, CombinedWrapsAtTheEndsOfTheIntegers)
{
    seedWith(271828);
    const auto raw = rawNumbers(6);
    seedWith(271828);
    // A range of 2^31 integers: the divisor wraps to -2^31, which leaves the raw number as it is.
    EXPECT_EQ(RandomIntUniform(0, highest), raw[0]);
    EXPECT_EQ(RandomIntUniform(-1, highest - 1), -1 + raw[1]);
    // A difference of 2^31 wraps to a negative one; the divisor of the reversed range wraps to -2^31 + 1.
    EXPECT_EQ(RandomIntUniform(lowest, 0), static_cast<int>(2147483648U - static_cast<unsigned>(raw[2])));
    // The whole range of integers has a difference of -1, so two values are left.
    EXPECT_EQ(RandomIntUniform(lowest, highest), raw[3] % 2 == 0 ? lowest : highest);
    EXPECT_EQ(RandomIntUniform(highest, lowest), raw[4] % 2 == 0 ? highest : lowest);
    EXPECT_EQ(RandomIntUniform(highest, 0), highest - raw[5]);
}

TEST_F(RandomRange, TwisterRejectsWhatWouldFavourSomeValues)
{
    selectGenerator(processSource, 1);
    for (const std::uint32_t count : {2U, 3U, 5U, 1000U, 65536U, 0x55555555U, 0x80000000U, 0x80000001U,
                                      0xC0000000U, 0xFFFFFFFEU, 0xFFFFFFFFU}) {
        seedWith(777);
        std::mt19937 published(777);
        // The largest multiple of `count` up to 2^32; raw numbers from there on are thrown away.
        const std::uint64_t fair = (std::uint64_t{1} << 32) / count * count;
        const std::uint32_t a = 0xFFFFFFF0U;
        for (int k = 0; k < 500; ++k) {
            std::uint_fast32_t raw = published();
            while (raw >= fair) {
                raw = published();
            }
            const int drawn = RandomIntUniform(static_cast<int>(a), static_cast<int>(a + (count - 1)));
            ASSERT_EQ(static_cast<std::uint32_t>(drawn), static_cast<std::uint32_t>(a + raw % count))
                << "count " << count;
        }
        ASSERT_EQ(static_cast<std::uint32_t>(RandomInt()), published());
    }
}

TEST_F(RandomRange, TwisterTakesTheWholeRangeAsItComes)
{
    selectGenerator(processSource, 1);
    seedWith(5489);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomIntUniform(lowest, highest)), 3499211612U + 0x80000000U);
    EXPECT_EQ(static_cast<std::uint32_t>(RandomIntUniform(8, 7)), 581869302U + 8U);
}

TEST_F(RandomRange, TwisterDoesNotTurnReversedBoundsRound)
{
    selectGenerator(processSource, 1);
    seedWith(5489);
    // From 7 up to 3 there are 2^32 - 3 integers.
    EXPECT_EQ(static_cast<std::uint32_t>(RandomIntUniform(7, 3)), 7U + 3499211612U);
}

} // namespace korvel::test
