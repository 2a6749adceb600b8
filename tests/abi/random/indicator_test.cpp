#include "korvelmathtools/KORVELMathTools.h"
#include "reference/random_plain.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <algorithm>
#include <gtest/gtest.h>

using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::numbersIn;
using korvel::test::plain_source;
using korvel::test::valuesOf;

namespace
{

constexpr int seedInUse = 2026;

} // namespace

TEST(FlatIndicator, MarksARange)
{
    guarded<double> out(doubles(5, 9.0));
    EXPECT_EQ(VB_GenerateIndicator(out.data(), 5, 2, 3), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 1, 1, 0, 0}));
    EXPECT_EQ(VB_GenerateIndicator(out.data(), 5, 0, 9), 0);
    EXPECT_EQ(valuesOf(out), doubles(5, 1.0));

    caller_memory memory;
    SAFEARRAY* array = memory.array(doubles(5, 9.0));
    EXPECT_EQ(Cpp_GenerateIndicator_ST(&array, 4, 2, 3), 0);
    EXPECT_EQ(numbersIn<double>(array), (doubles{0, 1, 1, 0, 9}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatIndicator, MarksARandomSubset)
{
    constexpr int n = 12;
    constexpr int k = 5;
    plain_source source(0, seedInUse);
    doubles draws;
    for (int i = 0; i < n; ++i) {
        draws.push_back(source.uniform());
    }
    doubles sorted = draws;
    std::sort(sorted.begin(), sorted.end());
    doubles expected;
    for (const double u : draws) {
        expected.push_back(u <= sorted[k - 1] ? 1.0 : 0.0);
    }

    guarded<double> out(doubles(n, 9.0));
    int seed = seedInUse;
    int next = 0;
    EXPECT_EQ(VB_GenerateRandomIndicator(out.data(), n, k, &seed, 1, &next), 0);
    EXPECT_EQ(valuesOf(out), expected);
    EXPECT_EQ(next, source.nextSeed());

    caller_memory memory;
    SAFEARRAY* array = memory.array(doubles(n, 9.0));
    EXPECT_EQ(Cpp_GenerateRandomIndicator_ST(&array, n, k, &seed, 1, &next), 0);
    EXPECT_EQ(numbersIn<double>(array), expected);
    EXPECT_TRUE(memory.guardsIntact());

    VB_GenerateRandomIndicator(out.data(), n, 0, &seed, 1, &next);
    EXPECT_EQ(valuesOf(out), doubles(n, 0.0));
    VB_GenerateRandomIndicator(out.data(), n, n, &seed, 1, &next);
    EXPECT_EQ(valuesOf(out), doubles(n, 1.0));
}
