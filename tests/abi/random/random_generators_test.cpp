#include "abi/random/flat_random.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "random/random_generators.h"
#include "random/random_table.h"
#include "support/bits.h"

#include <array>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double scale = 4.656612875245797e-10;

} // namespace

TEST_F(FlatRandom, OneDrawOfAGivenSeed)
{
    std::array seeds{-5, 12345, -5, -5, 0, -5};
    EXPECT_SAME_BITS(Cpp_Random01(&seeds[1], 1, &seeds[4]), 443758902 * scale);
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
    EXPECT_SAME_BITS(GenerateRandom01(&seed, 1, &coreNext), flat);
    EXPECT_EQ(coreNext, flatNext);
}

TEST_F(FlatRandom, CoreRoutinesAreExported)
{
    int seed = 12345;
    short int flag = 1;
    int next = 0;
    GetSeed(&seed, &flag);
    EXPECT_EQ(RandomInt(), 443758902);
    GetSeed2(&seed, &flag);
    EXPECT_SAME_BITS(Random01(), 443758902 * scale);
    GetSeedUpdate(&next);
    EXPECT_EQ(next, 493972830);
    EXPECT_EQ(RandomIntUniform(4, 4), 4);

    matrix<double> table(1, 1, 0.0);
    M_GenerateRandom01(table, 1, 1, &seed, 1, &next);
    EXPECT_SAME_BITS(table.data[0], 443758902 * scale);
    matrix<int> integers(1, 1, 5);
    M_GenerateRandom01(&integers, 1, 1, &seed, 1, &next);
    EXPECT_EQ(integers.data[0], 0);

    CRand record;
    CRand other;
    EXPECT_EQ(&(record = other), &record);
    EXPECT_EQ(&(record = std::move(other)), &record);
}
