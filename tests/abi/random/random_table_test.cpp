#include "abi/random/flat_random.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double scale = 4.656612875245797e-10;

} // namespace

TEST_F(FlatRandom, FillsAnArrayInStorageOrder)
{
    constexpr double guard = -77.0;
    std::vector<double> out(2 + 6 + 2, guard);
    int seed = 12345;
    int next = 0;
    EXPECT_EQ(VB_M_GenerateRandom01(out.data() + 2, 2, 3, &seed, -1, &next), 0);
    EXPECT_SAME_BITS(out[2], 443758902 * scale);
    std::int64_t s1 = 12345;
    std::int64_t s2 = 1234;
    for (std::size_t k = 2; k < 8; ++k) {
        s1 = 40014 * s1 % 2147483563;
        s2 = 40692 * s2 % 2147483399;
        const std::int64_t z = s1 - s2 < 1 ? s1 - s2 + 2147483562 : s1 - s2;
        EXPECT_SAME_BITS(out[k], static_cast<double>(z) * scale);
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
        ASSERT_SAME_BITS(out[k], static_cast<std::int32_t>(published()) * scale) << k;
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
