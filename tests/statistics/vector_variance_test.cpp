#include "statistics/vector_variance.h"

#include "reference/vector_variance.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using reference::denominator_flags;
using reference::spread;

namespace
{

/** Every reading of the two flags; 1 and 7 are as false as 0. */
constexpr std::array<denominator_flags, 6> allFlags{{{0, 0}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {1, -1}}};

/** A vector with its flags and weights. */
struct sample {
    matrix<double> x;
    std::vector<short int> flags;
    matrix<double> w;

    int size() const { return static_cast<int>(flags.size()); }

    double variance(denominator_flags how)
    {
        return V_Var(&x, size(), flags.data(), &w, how.unbiased, how.freq);
    }
    double deviation(denominator_flags how)
    {
        return V_Stdev(&x, size(), flags.data(), &w, how.unbiased, how.freq);
    }
    spread meanVar(denominator_flags how)
    {
        spread found{notANumber, notANumber};
        V_MeanVar(&x, size(), &found.mean, &found.size, flags.data(), &w, how.unbiased, how.freq);
        return found;
    }
    spread meanStdev(denominator_flags how)
    {
        spread found{notANumber, notANumber};
        V_MeanStdev(&x, size(), &found.mean, &found.size, flags.data(), &w, how.unbiased, how.freq);
        return found;
    }
    spread meanVarW2(denominator_flags how)
    {
        spread found{notANumber, notANumber};
        V_MeanVarW2(&x, size(), &w, &found.mean, &found.size, how.unbiased, how.freq);
        return found;
    }
};

sample unitSample(std::vector<double> cells)
{
    const auto n = cells.size();
    return {vectorOf<double>(cells), std::vector<short int>(n),
            vectorOf<double>(std::vector<double>(n, 1.0))};
}

sample weightedSample(std::vector<double> cells, std::vector<double> weights)
{
    const auto n = cells.size();
    return {vectorOf<double>(std::move(cells)), std::vector<short int>(n),
            vectorOf<double>(std::move(weights))};
}

spread meanStdev2(matrix<double> x, int n, short int unbiased)
{
    spread found{notANumber, notANumber};
    V_MeanStdev2(&x, n, unbiased, found.mean, found.size);
    return found;
}

testing::AssertionResult sameSpread(spread actual, double mean, double size)
{
    const auto same = sameBits(actual.mean, mean);
    return same ? sameBits(actual.size, size) : same;
}

} // namespace

TEST(VectorVariance, DenominatorsForUnitWeights)
{
    auto s = unitSample({1, 2, 3, 6}); // mean 3, sum of squares 14
    EXPECT_SAME_BITS(s.variance({0, 0}), 14.0 / 4.0);
    EXPECT_SAME_BITS(s.variance({1, 0}), 14.0 / 4.0) << "1 is not true";
    EXPECT_SAME_BITS(s.variance({1, -1}), 14.0 / 4.0);
    EXPECT_SAME_BITS(s.variance({-1, -1}), 14.0 / 3.0);
    EXPECT_SAME_BITS(s.variance({-1, 0}), 14.0 / 3.0);
}

TEST(VectorVariance, DenominatorsForOtherWeights)
{
    auto s = weightedSample({0, 2}, {2, 2}); // sum of squares 4, S 4, m 2
    EXPECT_SAME_BITS(s.variance({0, -1}), 1.0);
    EXPECT_SAME_BITS(s.variance({-1, -1}), 4.0 / 3.0);
    EXPECT_SAME_BITS(s.variance({-1, 0}), 2.0);
    EXPECT_SAME_BITS(s.variance({-1, 1}), 2.0);
    EXPECT_SAME_BITS(s.variance({-1, 7}), 2.0);
}

TEST(VectorVariance, AnElementOfWeightZeroCountsAndDoesNothingElse)
{
    auto s = weightedSample({0, 100, 2, 100}, {2, 0, 2, 0}); // S 4, m 4
    EXPECT_SAME_BITS(s.variance({-1, 0}), 4.0 / 3.0);
    EXPECT_TRUE(sameSpread(s.meanVar({-1, 0}), 1.0, 4.0 / 3.0));
    EXPECT_TRUE(sameSpread(s.meanVarW2({-1, 0}), 1.0, 4.0 / 3.0));
    auto leading = weightedSample({100, 0, 2}, {0, 2, 2});
    EXPECT_SAME_BITS(leading.variance({0, 0}), 1.0);
    EXPECT_TRUE(sameSpread(leading.meanVar({0, 0}), 1.0, 1.0));
    EXPECT_TRUE(sameSpread(leading.meanVarW2({0, 0}), 1.0, 1.0)) << "a share of 0/0 is taken as 0";
}

TEST(VectorVariance, FlaggedAndMissingElementsAreLeftOut)
{
    auto s = unitSample({1, 50, 2, MISSING_DBL, 60, 3, 6, 70});
    s.flags = {0, -1, 0, 0, 1, 0, 0, 7};
    EXPECT_SAME_BITS(s.variance({-1, 0}), 14.0 / 3.0);
    EXPECT_SAME_BITS(s.deviation({-1, 0}), std::sqrt(14.0 / 3.0));
    EXPECT_TRUE(sameSpread(s.meanVar({-1, 0}), 3.0, 14.0 / 3.0));
    EXPECT_TRUE(sameSpread(s.meanStdev({-1, 0}), 3.0, std::sqrt(14.0 / 3.0)));
}

TEST(VectorVariance, OnlyTheSentinelItselfIsLeftOut)
{
    for (const double odd : {notANumber, belowSentinel, infinite}) {
        auto s = unitSample({1, odd});
        EXPECT_FALSE(std::isfinite(s.variance({0, 0}))) << odd;
        EXPECT_FALSE(std::isfinite(V_Var2(&s.x, 2, 0, 0))) << odd;
        EXPECT_FALSE(std::isfinite(s.meanVarW2({0, 0}).size)) << odd;
    }
    auto missingWeight = weightedSample({1, 2}, {MISSING_DBL, 1});
    EXPECT_NE(missingWeight.meanVar({0, 0}).mean, 2.0) << "a missing weight is a number";
}

TEST(VectorVariance, VarianceOfNothing)
{
    auto flagged = unitSample({1, 2});
    flagged.flags = {-1, 1};
    auto missing = unitSample({MISSING_DBL, MISSING_DBL});
    auto empty = unitSample({});
    for (sample* s : {&flagged, &missing, &empty}) {
        EXPECT_SAME_BITS(s->variance({0, 0}), MISSING_DBL);
        EXPECT_SAME_BITS(s->variance({1, -1}), MISSING_DBL);
        EXPECT_SAME_BITS(s->variance({-1, -1}), -0.0) << "0 over -1";
        EXPECT_SAME_BITS(s->variance({-1, 0}), notANumber) << "0 over 0 - 0/0";
        EXPECT_SAME_BITS(s->deviation({0, 0}), MISSING_DBL);
        EXPECT_SAME_BITS(s->deviation({-1, -1}), 0.0) << "the zero loses its sign";
        EXPECT_SAME_BITS(s->deviation({-1, 0}), notANumber);
        for (const denominator_flags how : allFlags) {
            EXPECT_TRUE(sameSpread(s->meanVar(how), 0.0, 0.0));
            EXPECT_TRUE(sameSpread(s->meanStdev(how), 0.0, 0.0));
        }
    }
    for (const denominator_flags how : allFlags) {
        EXPECT_TRUE(sameSpread(missing.meanVarW2(how), 0.0, MISSING_DBL));
        EXPECT_TRUE(sameSpread(empty.meanVarW2(how), 0.0, MISSING_DBL));
        EXPECT_SAME_BITS(V_Var2(&missing.x, 2, how.unbiased, how.freq),
                         how.unbiased == -1 && how.freq == -1 ? -0.0 : notANumber);
    }
    EXPECT_SAME_BITS(V_Var(&empty.x, -4, nullptr, &empty.w, 0, 0), MISSING_DBL);
}

TEST(VectorVariance, VarianceOfOneElement)
{
    auto s = unitSample({5});
    EXPECT_SAME_BITS(s.variance({-1, -1}), MISSING_DBL);
    EXPECT_SAME_BITS(s.variance({-1, 0}), MISSING_DBL);
    EXPECT_SAME_BITS(s.variance({0, 0}), 0.0);
    EXPECT_SAME_BITS(s.deviation({-1, 0}), MISSING_DBL);
    EXPECT_SAME_BITS(s.deviation({0, 0}), 0.0);
    EXPECT_TRUE(sameSpread(s.meanVar({-1, 0}), 5.0, MISSING_DBL));
    EXPECT_TRUE(sameSpread(s.meanStdev({-1, -1}), 5.0, MISSING_DBL));
    EXPECT_TRUE(sameSpread(s.meanVarW2({-1, -1}), 5.0, MISSING_DBL));
    EXPECT_SAME_BITS(V_Var2(&s.x, 1, -1, -1), notANumber) << "0 over 0, with no guard";
    EXPECT_SAME_BITS(V_Var2(&s.x, 1, -1, 0), notANumber);
    EXPECT_SAME_BITS(V_Var2(&s.x, 1, 0, 0), 0.0);
}

TEST(VectorVariance, WeightsThatSumToZero)
{
    auto s = weightedSample({1, 2}, {0, 0});
    EXPECT_SAME_BITS(s.variance({0, 0}), MISSING_DBL);
    EXPECT_SAME_BITS(s.deviation({0, 0}), MISSING_DBL);
    EXPECT_SAME_BITS(s.variance({-1, 0}), MISSING_DBL) << "0 - 0/2";
    EXPECT_SAME_BITS(s.variance({-1, -1}), -0.0);
    EXPECT_TRUE(sameSpread(s.meanVar({0, 0}), 0.0, MISSING_DBL));
    EXPECT_TRUE(sameSpread(s.meanVarW2({0, 0}), 0.0, MISSING_DBL));
}

TEST(VectorVariance, ANegativeDenominatorIsDividedByOnlyInTheVariance)
{
    auto s = weightedSample({0, 2}, {0.25, 0.25}); // sum of squares 0.5, S - 1 = -0.5
    EXPECT_SAME_BITS(s.variance({-1, -1}), -1.0);
    EXPECT_SAME_BITS(s.deviation({-1, -1}), MISSING_DBL);
    EXPECT_TRUE(sameSpread(s.meanVar({-1, -1}), 1.0, MISSING_DBL));
    EXPECT_TRUE(sameSpread(s.meanStdev({-1, -1}), 1.0, MISSING_DBL));
    EXPECT_TRUE(sameSpread(s.meanVarW2({-1, -1}), 1.0, MISSING_DBL));
}

TEST(VectorVariance, ANegativeVarianceHasNoRoot)
{
    auto s = weightedSample({0, 1}, {4, -1}); // S 3, sum of squares 4 * -1/3
    EXPECT_LT(s.meanVar({0, 0}).size, 0.0);
    EXPECT_SAME_BITS(s.meanStdev({0, 0}).size, MISSING_DBL);
    EXPECT_LT(s.variance({0, 0}), 0.0);
    EXPECT_SAME_BITS(s.deviation({0, 0}), MISSING_DBL);
}

TEST(VectorVariance, WithoutWeights)
{
    auto s = unitSample({1, MISSING_DBL, 2, 3, 6});
    EXPECT_SAME_BITS(V_Var2(&s.x, 5, 0, -1), 14.0 / 4.0);
    EXPECT_SAME_BITS(V_Var2(&s.x, 5, 1, -1), 14.0 / 4.0);
    EXPECT_SAME_BITS(V_Var2(&s.x, 5, -1, -1), 14.0 / 3.0);
    EXPECT_SAME_BITS(V_Var2(&s.x, 5, -1, 1), 14.0 / 3.0);
    for (const denominator_flags how : allFlags) {
        EXPECT_SAME_BITS(korvel::unweightedVariance(s.x, 5, how.unbiased, how.freq), s.variance(how));
    }
}

TEST(VectorVariance, MeanAndDeviationKeepOnlyWhatIsAboveTheSentinel)
{
    const auto cells = vectorOf<double>({1, notANumber, MISSING_DBL, 2, belowSentinel, -infinite, 3, 6});
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 8, -1), 3.0, std::sqrt(14.0 / 3.0)));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 8, 0), 3.0, std::sqrt(14.0 / 4.0)));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 8, 1), 3.0, std::sqrt(14.0 / 4.0)));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 1, -1), 1.0, notANumber));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 1, 0), 1.0, 0.0));
    EXPECT_TRUE(sameSpread(meanStdev2(vectorOf<double>({MISSING_DBL}), 1, 0), 0.0, notANumber));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, 0, 0), 0.0, notANumber));
    EXPECT_TRUE(sameSpread(meanStdev2(cells, -1, -1), 0.0, -0.0)) << "the root of 0 over -1";
}

TEST(VectorVariance, ShortVectorReadsTheSpareSlot)
{
    auto s = unitSample({1, 3});
    s.flags.resize(4);
    s.w = vectorOf<double>({1, 1, 1, 1});
    auto whole = unitSample({1, 3, -1, -1});
    EXPECT_SAME_BITS(s.variance({-1, 0}), whole.variance({-1, 0}));
    EXPECT_SAME_BITS(V_Var2(&s.x, 4, 0, 0), V_Var2(&whole.x, 4, 0, 0));
}

TEST(VectorVariance, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        sample s{cells.values(held), cells.flags(n), cells.weights(cells.integer(0, 1) == 0 ? n : held)};
        for (const denominator_flags how : allFlags) {
            const short int* flags = s.flags.data();
            ASSERT_SAME_BITS(s.variance(how), reference::variance(s.x, n, flags, &s.w, how));
            ASSERT_SAME_BITS(s.deviation(how), reference::standardDeviation(s.x, n, flags, &s.w, how));
            ASSERT_SAME_BITS(korvel::unweightedVariance(s.x, n, how.unbiased, how.freq),
                             reference::variance(s.x, n, nullptr, nullptr, how));
            ASSERT_SAME_BITS(V_Var2(&s.x, n, how.unbiased, how.freq),
                             reference::unweightedVariance(s.x, n, how));
            const spread weighted = reference::meanAndVariance(s.x, n, flags, s.w, how);
            ASSERT_TRUE(sameSpread(s.meanVar(how), weighted.mean, weighted.size));
            ASSERT_TRUE(sameSpread(s.meanStdev(how), weighted.mean, reference::rootOrMissing(weighted.size)));
            const spread shares = reference::meanAndVarianceByShares(s.x, n, s.w, how);
            ASSERT_TRUE(sameSpread(s.meanVarW2(how), shares.mean, shares.size));
            const spread plain = reference::unweightedMeanAndDeviation(s.x, n, how.unbiased);
            ASSERT_TRUE(sameSpread(meanStdev2(s.x, n, how.unbiased), plain.mean, plain.size));
        }
    });
}
