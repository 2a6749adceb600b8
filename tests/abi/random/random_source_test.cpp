#include "abi/random/flat_random.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double scale = 4.656612875245797e-10;

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

/** For a process that has drawn nothing yet. Returns 0 if the source is as loading leaves it. */
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

// A death test of this style restarts the program and so loads the library again.
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

TEST_F(FlatRandom, SelectsTheGenerator)
{
    int seed = 5489;
    int next = 0;
    EXPECT_EQ(Cpp_set_rand_algo(1), 0);
    EXPECT_SAME_BITS(Cpp_Random01(&seed, 1, &next), static_cast<std::int32_t>(3499211612U) * scale);
    EXPECT_EQ(static_cast<std::uint32_t>(next), 581869302U);
    EXPECT_EQ(Cpp_set_rand_algo(2), 0);
    seed = 12345;
    EXPECT_SAME_BITS(Cpp_Random01(&seed, 1, &next), 443758902 * scale);
    EXPECT_EQ(next, 493972830);
}
