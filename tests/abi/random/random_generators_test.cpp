#include "korvelmathtools/KORVELMathTools.h"
#include "random/random_generators.h"
#include "random/random_table.h"
#include "support/bits.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <random>
#include <vector>

using korvel::test::sameBits;

namespace
{

constexpr double scale = 4.656612875245797e-10;

/** Starts each test, and leaves the process, at the combined generator and a fixed seed. */
class FlatRandom : public ::testing::Test
{
protected:
    FlatRandom() { restart(); }
    ~FlatRandom() override { restart(); }
    FlatRandom(const FlatRandom&) = delete;
    FlatRandom& operator=(const FlatRandom&) = delete;

    static void restart()
    {
        Cpp_set_rand_algo(0);
        int seed = 777;
        int next = 0;
        Cpp_Random01(&seed, -1, &next);
    }
};

/** The seed that a local time gives, worked out from the days since 1 January 1970. */
int clockSeedOf(std::time_t moment)
{
    std::tm local = *std::localtime(&moment);
    std::tm day{};
    day.tm_year = local.tm_year;
    day.tm_mon = local.tm_mon;
    day.tm_mday = local.tm_mday;
    day.tm_hour = 12;
    std::tm first{};
    first.tm_year = 70;
    first.tm_mday = 2;
    first.tm_hour = 12;
    const double seconds = std::difftime(std::mktime(&day), std::mktime(&first));
    const int days = static_cast<int>(std::lround(seconds / 86400.0)) + 25570;
    return local.tm_sec + 100 * (100 * local.tm_hour + days + local.tm_min);
}

/** In a process where nothing has been drawn yet: 0 when the source is as loading leaves it. */
int checkFreshLibrary()
{
    int seed = 0;
    int next = 0;
    // The clock seed is the first state; under MT19937 asking for it moves no other state.
    Cpp_set_rand_algo(1);
    const double firstTwisterDraw = Cpp_Random01(&seed, 0, &next);
    if (!sameBits(firstTwisterDraw, static_cast<std::int32_t>(3499211612U) * scale) ||
        static_cast<std::uint32_t>(next) != 581869302U) {
        return 2;
    }
    const std::time_t now = std::time(nullptr);
    for (std::time_t moment = now; moment > now - 120; --moment) {
        if (clockSeedOf(moment) == seed) {
            return 0;
        }
    }
    return 3;
}

int checkFreshAlgorithm()
{
    int seed = 0;
    int next = 0;
    Cpp_Random01(&seed, 0, &next);
    return std::int64_t{40014} * seed % 2147483563 == next ? 0 : 2;
}

} // namespace

// A death test of this style starts the program anew, so that the library is loaded anew too.
TEST(FreshRandomSourceDeathTest, HasAClockSeedAndTheDefaultTwister)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(checkFreshLibrary()), ::testing::ExitedWithCode(0), "");
}

TEST(FreshRandomSourceDeathTest, RunsTheCombinedGenerator)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(checkFreshAlgorithm()), ::testing::ExitedWithCode(0), "");
}

TEST_F(FlatRandom, OneDrawOfAGivenSeed)
{
    std::array seeds{-5, 12345, -5, -5, 0, -5};
    EXPECT_TRUE(sameBits(Cpp_Random01(&seeds[1], 1, &seeds[4]), 443758902 * scale));
    EXPECT_EQ(seeds, (std::array{-5, 12345, -5, -5, 493972830, -5}));
}

TEST_F(FlatRandom, OneDrawWithoutASeedReportsTheState)
{
    int seed = 12345;
    int next = 0;
    Cpp_Random01(&seed, 1, &next);
    Cpp_Random01(&seed, 0, &next);
    EXPECT_EQ(seed, 493972830);
    EXPECT_EQ(next, std::int64_t{40014} * 493972830 % 2147483563);
}

TEST_F(FlatRandom, CoreAndFlatNamesAreOneRoutine)
{
    int seed = 4711;
    int flatNext = 0;
    int coreNext = 0;
    const double flat = Cpp_Random01(&seed, 1, &flatNext);
    EXPECT_TRUE(sameBits(GenerateRandom01(&seed, 1, &coreNext), flat));
    EXPECT_EQ(coreNext, flatNext);
}

TEST_F(FlatRandom, SelectsTheGenerator)
{
    int seed = 5489;
    int next = 0;
    EXPECT_EQ(Cpp_set_rand_algo(1), 0);
    EXPECT_TRUE(sameBits(Cpp_Random01(&seed, 1, &next), static_cast<std::int32_t>(3499211612U) * scale));
    EXPECT_EQ(static_cast<std::uint32_t>(next), 581869302U);
    EXPECT_EQ(Cpp_set_rand_algo(2), 0);
    seed = 12345;
    EXPECT_TRUE(sameBits(Cpp_Random01(&seed, 1, &next), 443758902 * scale));
    EXPECT_EQ(next, 493972830);
}

TEST_F(FlatRandom, FillsAnArrayInStorageOrder)
{
    constexpr double guard = -77.0;
    std::vector<double> out(2 + 6 + 2, guard);
    int seed = 12345;
    int next = 0;
    EXPECT_EQ(VB_M_GenerateRandom01(out.data() + 2, 2, 3, &seed, -1, &next), 0);
    EXPECT_TRUE(sameBits(out[2], 443758902 * scale));
    std::int64_t s1 = 12345;
    std::int64_t s2 = 1234;
    for (std::size_t k = 2; k < 8; ++k) {
        s1 = 40014 * s1 % 2147483563;
        s2 = 40692 * s2 % 2147483399;
        const std::int64_t z = s1 - s2 < 1 ? s1 - s2 + 2147483562 : s1 - s2;
        EXPECT_TRUE(sameBits(out[k], static_cast<double>(z) * scale));
    }
    for (const std::size_t k : {0U, 1U, 8U, 9U}) {
        EXPECT_EQ(out[k], guard);
    }
    EXPECT_EQ(seed, 12345);
    EXPECT_EQ(next, s1);
}

TEST_F(FlatRandom, FillsALongArrayFromTheTwister)
{
    Cpp_set_rand_algo(1);
    std::vector<double> out(100 * 101 + 1, -77.0);
    int seed = 2026;
    int next = 0;
    VB_M_GenerateRandom01(out.data(), 100, 101, &seed, -1, &next);
    std::mt19937 published(2026);
    for (std::size_t k = 0; k + 1 < out.size(); ++k) {
        ASSERT_TRUE(sameBits(out[k], static_cast<std::int32_t>(published()) * scale)) << k;
    }
    EXPECT_EQ(out.back(), -77.0);
    EXPECT_EQ(static_cast<std::uint32_t>(next), published());
}

TEST_F(FlatRandom, FillsNothingButSeeds)
{
    double untouched = -77.0;
    int seed = 12345;
    int next = 0;
    EXPECT_EQ(VB_M_GenerateRandom01(&untouched, 0, 3, &seed, 1, &next), 0);
    EXPECT_EQ(next, 12345);
    next = 0;
    EXPECT_EQ(VB_M_GenerateRandom01(&untouched, 3, 0, &seed, 1, &next), 0);
    EXPECT_EQ(next, 12345);
    EXPECT_EQ(untouched, -77.0);
}

TEST_F(FlatRandom, CoreRoutinesAreExported)
{
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    GetSeed(&seed, &flag);
    EXPECT_EQ(RandomInt(), 443758902);
    GetSeed2(&seed, &flag);
    EXPECT_TRUE(sameBits(Random01(), 443758902 * scale));
    GetSeedUpdate(&next);
    EXPECT_EQ(next, 493972830);
    EXPECT_EQ(RandomIntUniform(4, 4), 4);

    matrix<double> table(1, 1, 0.0);
    M_GenerateRandom01(table, 1, 1, &seed, 1, &next);
    EXPECT_TRUE(sameBits(table.data[0], 443758902 * scale));
    matrix<int> integers(1, 1, 5);
    M_GenerateRandom01(&integers, 1, 1, &seed, 1, &next);
    EXPECT_EQ(integers.data[0], 0);

    CRand record;
    CRand other;
    EXPECT_EQ(&(record = other), &record);
    EXPECT_EQ(&(record = std::move(other)), &record);
}
