#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <vector>

using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::sameBits;
using korvel::test::valuesOf;

namespace
{

const guarded<double> sample{3.7, -1.25, 8, 0.5, 3.7, 12.125, -4, 0.5, 0.5, 7.75, 2.2};

} // namespace

TEST(FlatQuantiles, AgreeWithTypeSevenOfR)
{
    // R 4.2.2: quantile(x, q, type = 7), printed with 17 digits.
    const struct {
        double q;
        double quantile;
    } reference[] = {{0, -4},    {0.05, -2.625}, {0.1, -1.25},  {0.25, 0.5}, {1.0 / 3.0, 0.5},
                     {0.5, 2.2}, {0.62, 3.7},    {0.75, 5.725}, {0.9, 8},    {1, 12.125}};
    guarded<double> x = sample;
    for (const auto& [q, quantile] : reference) {
        EXPECT_NEAR(VB_V_Quantile(x.data(), 11, q), quantile, 4e-16 * std::fabs(quantile)) << q;
    }
    EXPECT_NEAR(VB_V_Quantile(x.data(), 11, 0.99), 11.7125, 4e-15);
    EXPECT_EQ(valuesOf(x), sample.values());
}

TEST(FlatQuantiles, ShortcutsGiveElementsExactly)
{
    guarded<double> x{1, 2, 3, 4};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 4, 0.5), 2.5);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 4, 0.25), 1.75);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 4, 0.0), 1.0);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 4, 1.0), 4.0);
    guarded<double> ties{1, 2, 2, 4};
    EXPECT_SAME_BITS(VB_V_Quantile(ties.data(), 4, 0.5), 2.0);
    // Two neighbours of 0.1 would interpolate to another double at this position.
    guarded<double> tenths{0.1, 0.1, 0.3};
    EXPECT_SAME_BITS(VB_V_Quantile(tenths.data(), 3, 0.15), 0.1);
    // 0.7 * 90 is just below 63; the element at the integer part counts.
    std::vector<double> many(91);
    for (int i = 0; i < 91; ++i) {
        many[static_cast<std::size_t>(i)] = i;
    }
    ASSERT_LT(90 * 0.7, 63.0);
    EXPECT_SAME_BITS(VB_V_Quantile(many.data(), 91, 0.7), 62.0);
}

TEST(FlatQuantiles, APositionIsWholeWithinItsTolerance)
{
    guarded<double> x{0, 1e12};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 2, 9e-13), 0.0);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 2, 1.5e-12), 1.5);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 2, 1 - 9e-13), 0.0) << "the integer part";
    EXPECT_NEAR(VB_V_Quantile(x.data(), 2, 1 - 1.5e-12), 1e12 - 1.5, 2e-4);
}

TEST(FlatQuantiles, BetweenTwoElementsEachTakesItsShare)
{
    // One step from the lower element would give 0.92500000000000004.
    guarded<double> x{0.3, 2.8};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 2, 0.25), 0.75 * 0.3 + 0.25 * 2.8);
    EXPECT_FALSE(sameBits(0.75 * 0.3 + 0.25 * 2.8, 0.3 + 0.25 * (2.8 - 0.3)));
}

TEST(FlatQuantiles, MissingTakesPartAsTheSmallestNumber)
{
    guarded<double> x{2, MISSING_DBL, 1};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 3, 0.0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 3, 0.5), 1.0);
}

TEST(FlatQuantiles, OfNothingAreMissing)
{
    guarded<double> x{MISSING_DBL};
    guarded<double> w{1};
    guarded<short int> flags{0};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 0, 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 0, w.data(), 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 1, w.data(), 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_QuantileW2(x.data(), 1, w.data(), 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_QuantileM(x.data(), 1, flags.data(), 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_QuantileMW(x.data(), 1, flags.data(), w.data(), 0.5), MISSING_DBL);
}

TEST(FlatQuantiles, APositionOutsideTheDataReadsTheSpareSlot)
{
    guarded<double> x{5, 6, 7};
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 3, 2.0), -1.0);
    EXPECT_SAME_BITS(VB_V_Quantile(x.data(), 3, -0.25), 0.5 * -1.0 + 0.5 * 5.0);
}

TEST(FlatQuantiles, WeightedTakesTheFirstValueBeyondItsShare)
{
    guarded<double> x{3, 1, 2};
    guarded<double> w{2, 1, 1};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.5), 2.5);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.4), 2.0);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.0), 1.0);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 1.0), 3.0);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.9), 3.0);
}

TEST(FlatQuantiles, WeightedComparesItsShareExactly)
{
    guarded<double> x{1, 2, 3};
    guarded<double> w{0.1, 0.2, 0.3};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.5), 2.5);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.5 - 1e-15), 2.0);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 3, w.data(), 0.5 + 1e-15), 3.0);
}

TEST(FlatQuantiles, WeightedWithOddWeights)
{
    // A missing weight is left out of the total of 4. But it is added to the running sum, which therefore
    // never reaches the target of 2.
    guarded<double> x{1, 2, 3, 4};
    guarded<double> w{1, MISSING_DBL, 1, 2};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 4, w.data(), 0.5), 4.0);

    // A target of -1 is passed, and a target of 0 met, before the first element. A read there gives -1.
    guarded<double> two{1, 2};
    guarded<double> negative{1, -3};
    EXPECT_SAME_BITS(VB_V_QuantileW(two.data(), 2, negative.data(), 0.5), -1.0);
    guarded<double> none{1, -1};
    EXPECT_SAME_BITS(VB_V_QuantileW(two.data(), 2, none.data(), 0.5), 0.0);

    // If only a missing element has weight, there is none.
    guarded<double> missing{MISSING_DBL, 5, 7};
    guarded<double> onlyThere{1, 0, 0};
    EXPECT_SAME_BITS(VB_V_QuantileW(missing.data(), 3, onlyThere.data(), 1.0), MISSING_DBL);
}

TEST(FlatQuantiles, ConstantWeightsGiveThePlainQuantile)
{
    guarded<double> x{1, 2, 3, 4};
    guarded<double> w{0.3, 0.3, MISSING_DBL, 0.3};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 4, w.data(), 0.25), 1.75);
    guarded<double> zeros{0, 0, 0, 0};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 4, zeros.data(), 0.25), MISSING_DBL);
}

TEST(FlatQuantiles, OnlyTheSecondWeightedFormDropsWhatDoesNotCount)
{
    guarded<double> x{MISSING_DBL, 1, 2, 3};
    guarded<double> w{1, 1, 1, 0};
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 4, w.data(), 0.0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_QuantileW(x.data(), 4, w.data(), 1.0), 3.0);
    EXPECT_SAME_BITS(Cpp_V_QuantileW2(x.data(), 4, w.data(), 0.0), 1.0);
    EXPECT_SAME_BITS(Cpp_V_QuantileW2(x.data(), 4, w.data(), 1.0), 2.0);
    EXPECT_SAME_BITS(Cpp_V_QuantileW2(x.data(), 4, w.data(), 0.5), 1.5);
}

TEST(FlatQuantiles, MaskedLeaveOutFlaggedAndMissing)
{
    guarded<double> x{9, MISSING_DBL, 1, 3};
    guarded<short int> flags{7, 0, 0, 0};
    guarded<double> w{5, 5, 1, 1};
    EXPECT_SAME_BITS(VB_V_QuantileM(x.data(), 4, flags.data(), 0.5), 2.0);
    EXPECT_SAME_BITS(VB_V_QuantileMW(x.data(), 4, flags.data(), w.data(), 0.5), 2.0);
    guarded<double> uneven{5, 5, 1, 3};
    EXPECT_SAME_BITS(VB_V_QuantileMW(x.data(), 4, flags.data(), uneven.data(), 0.5), 3.0);
}

TEST(FlatQuantiles, ThirteenSortTheirDataAndShiftTheirPosition)
{
    guarded<double> x{5, 3, 1, 2, 4};
    guarded<double> out{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(Cpp_V_Quantiles13(x.data(), 5, out.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3, 4, 5}));
    // Positions 0.7, 0.9, 1.3, 1.5, 1.7, 2.1 and 2.5 up to the median; 3.4, 3.8, 4, 4.2, 4.6 and 4.8 above
    // it.
    const doubles expected{1, 1, 1.3, 1.5, 1.7, 2.1, 2.5, 3.4, 3.8, 4, 4.2, 4.6, 4.8};
    const doubles quantiles = valuesOf(out);
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(quantiles[k], expected[k], 1e-15 * expected[k]) << k;
    }
    Cpp_V_Quantiles13(x.data(), 0, out.data());
    EXPECT_EQ(valuesOf(out), doubles(13, MISSING_DBL));
}

TEST(FlatQuantiles, ThirteenTakeTheElementAtAWholePosition)
{
    // Hundredths, so that the positions are exact in integers.
    constexpr std::array percents{5, 10, 20, 25, 30, 40, 50, 60, 70, 75, 80, 90, 95};
    // Computed, the position of the 70 % quantile of 91 elements is just below 64, that of 181 just below
    // 127.
    ASSERT_LT(90 * 0.7 + 1, 64.0);
    ASSERT_LT(180 * 0.7 + 1, 127.0);
    int whole = 0;
    for (int n = 1; n <= 1000; ++n) {
        std::vector<double> x(static_cast<std::size_t>(n));
        std::iota(x.begin(), x.end(), 1.0);
        std::vector<double> out(percents.size());
        Cpp_V_Quantiles13(x.data(), n, out.data());
        for (std::size_t k = 0; k < percents.size(); ++k) {
            const int hundredths = (n - 1) * percents[k] + (percents[k] <= 50 ? 50 : 100);
            if (hundredths % 100 == 0) {
                ++whole;
                ASSERT_SAME_BITS(out[k], hundredths / 100) << n << ' ' << percents[k];
            }
        }
    }
    EXPECT_GT(whole, 1000);
}

TEST(FlatQuantiles, ThirteenTakeEqualNeighboursAsTheyAre)
{
    guarded<double> out{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    constexpr double infinite = std::numeric_limits<double>::infinity();
    guarded<double> equal{infinite, infinite, infinite};
    Cpp_V_Quantiles13(equal.data(), 3, out.data());
    EXPECT_EQ(valuesOf(out), doubles(13, infinite));

    // One step from the lower element; shares of both would give 1.5499999999999998.
    guarded<double> x{0.3, 2.8, 3.1};
    Cpp_V_Quantiles13(x.data(), 3, out.data());
    EXPECT_SAME_BITS(valuesOf(out)[6], 1.55);
}
