#include "statistics/rescale.h"

#include "ordering/deviations.h"
#include "reference/standardize.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using doubles = std::vector<double>;

namespace
{

const double none = MISSING_DBL;

doubles rescaled(doubles cells, double lo, double hi, std::vector<short int> flags = {})
{
    auto x = vectorOf<double>(cells);
    matrix<double> out(x.nbrows, 1, 9.0);
    V_Rescale(&x, x.nbrows, lo, hi, flags.empty() ? nullptr : flags.data(), &out);
    EXPECT_EQ(cellsOf(x), cells) << "only read";
    return cellsOf(out);
}

doubles rescaledInPlace(doubles cells, double lo, double hi, std::vector<short int> flags = {})
{
    auto x = vectorOf<double>(std::move(cells));
    V_Rescale(&x, x.nbrows, lo, hi, flags.empty() ? nullptr : flags.data(), nullptr);
    return cellsOf(x);
}

/** The scores, with the centre and the scale as they end. */
struct scored {
    doubles scores;
    double centre;
    double scale;
};

scored zScores(doubles cells, short int robust, double centre, double scale)
{
    auto x = vectorOf<double>(std::move(cells));
    matrix<double> out(x.nbrows, 1, 9.0);
    V_ZScores(&x, x.nbrows, robust, centre, scale, &out);
    return {cellsOf(out), centre, scale};
}

} // namespace

TEST(Rescale, SmallestAndLargestBecomeTheEnds)
{
    EXPECT_EQ(rescaled({2, 6, 3, 4}, 0, 1), (doubles{0, 1, 0.25, 0.5}));
    EXPECT_EQ(rescaled({2, 6, 3, 4}, -10, 10), (doubles{-10, 10, -5, 0}));
    EXPECT_EQ(rescaled({2, 6, 3, 4}, 1, 0), (doubles{1, 0, 0.75, 0.5})) << "upside down";
    EXPECT_EQ(rescaledInPlace({2, 6, 3, 4}, 0, 1), (doubles{0, 1, 0.25, 0.5}));
}

TEST(Rescale, TheProductIsFormedBeforeTheQuotient)
{
    EXPECT_SAME_BITS(rescaled({0, 0.1, 0.7}, 0, 0.3)[1], 0.1 * 0.3 / 0.7);
    EXPECT_FALSE(sameBits(0.1 * 0.3 / 0.7, 0.1 * (0.3 / 0.7))) << "the cells tell them apart";
}

TEST(Rescale, WhatIsLeftOutIsMissingInAResultAndStaysInPlace)
{
    const std::vector<short int> flags{0, 7, 0, 0, -1};
    EXPECT_EQ(rescaled({2, 100, none, 4, -100}, 0, 1, flags), (doubles{0, none, none, 1, none}));
    EXPECT_EQ(rescaledInPlace({2, 100, none, 4, -100}, 0, 1, flags), (doubles{0, 100, none, 1, -100}));
}

TEST(Rescale, WithoutARangeTheDivisionDecides)
{
    EXPECT_TRUE(std::isnan(rescaled({5, 5}, 0, 1)[1]));
    EXPECT_TRUE(std::isnan(rescaledInPlace({5}, 0, 1)[0]));
    EXPECT_EQ(rescaled({none, none}, 0, 1), (doubles{none, none})) << "nothing to rescale";
    EXPECT_EQ(rescaled({}, 0, 1), doubles{});
}

TEST(Rescale, TheResultMayBeTheVector)
{
    auto x = vectorOf<double>({2, 100, 6});
    std::vector<short int> flags{0, 1, 0};
    V_Rescale(&x, 3, 0, 1, flags.data(), &x);
    EXPECT_EQ(cellsOf(x), (doubles{0, none, 1}));
    V_Rescale(&x, -1, 0, 1, flags.data(), &x);
    EXPECT_EQ(cellsOf(x), (doubles{0, none, 1})) << "no element, nothing written";
}

TEST(Rescale, ColumnsEachToItsOwnRange)
{
    auto x = columnTable(3, {2, 6, 4, 0, none, 8});
    std::vector<short int> flags{0, 0, 3};
    matrix<double> out(3, 2, 9.0);
    const auto lo = vectorOf<double>({0, 10});
    const auto hi = vectorOf<double>({1, 20});
    korvel::rescaleColumns(x, 3, 2, lo, hi, nullptr, &out);
    EXPECT_EQ(cellsOf(out), (doubles{0, 1, 0.5, 10, none, 20}));
    korvel::rescaleColumns(x, 3, 2, lo, hi, flags.data(), nullptr);
    EXPECT_EQ((doubles{x.data[0], x.data[1], x.data[2]}), (doubles{0, 1, 4}));
    EXPECT_TRUE(std::isnan(x.data[3]));
    EXPECT_EQ(x.data[5], 8);
}

TEST(Rescale, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int n, int) {
        matrix<double> x = cells.values(std::max(n + cells.integer(-2, 2), 0));
        x.oobValue = cells.value();
        const auto flags = cells.flags(n);
        const short int* const given = cells.integer(0, 2) == 0 ? nullptr : flags.data();
        const double lo = cells.value();
        const double hi = cells.value();
        for (const bool inPlace : {true, false}) {
            matrix<double> actual = twinOf(x);
            matrix<double> expected = twinOf(x);
            matrix<double> out(n, 1, 3.0);
            matrix<double> plain(n, 1, 3.0);
            V_Rescale(&actual, n, lo, hi, const_cast<short int*>(given), inPlace ? nullptr : &out);
            reference::rescale(expected, n, lo, hi, given, inPlace ? nullptr : &plain);
            expectSame(actual, expected);
            expectSame(out, plain);
        }
    });
}

TEST(ZScores, AMissingCentreIsFoundAndReturned)
{
    const auto found = zScores({1, none, 2, 3, 6}, 0, none, 99);
    const double sd = std::sqrt(14.0 / 3.0);
    EXPECT_EQ(found.centre, 3);
    EXPECT_EQ(found.scale, sd);
    EXPECT_EQ(found.scores, (doubles{-2 / sd, none, -1 / sd, 0, 3 / sd}));
}

TEST(ZScores, AGivenCentreIsUsedAsItStands)
{
    const auto found = zScores({1, none, 5}, 0, 3, 4);
    EXPECT_EQ(found.scores, (doubles{-0.5, none, 0.5}));
    EXPECT_EQ(found.centre, 3);
    EXPECT_EQ(found.scale, 4);
    EXPECT_EQ(zScores({1, 5}, 0, 3, none).scores, (doubles{none, none})) << "a missing scale is not above 0";
    EXPECT_EQ(zScores({1}, 0, 3, -2).scores, doubles{none});
}

TEST(ZScores, TheScaleMustBeAboveEpsilon)
{
    constexpr double epsilon = std::numeric_limits<double>::epsilon();
    EXPECT_EQ(zScores({1, 2}, 0, 1, epsilon).scores, (doubles{none, none}));
    EXPECT_EQ(zScores({1, 2}, 0, 1, 2 * epsilon).scores, (doubles{0, 1 / (2 * epsilon)}));
    EXPECT_EQ(zScores({5, 5}, 0, none, 0).scores, (doubles{none, none})) << "no spread";
    EXPECT_EQ(zScores({5}, 0, none, 0).scores, doubles{none}) << "the deviation of one is a NaN";
}

TEST(ZScores, RobustScoresLeaveTheArgumentsAlone)
{
    // Median 3, deviations 2, 1, 0, 1, 97: MAD 1.
    for (const short int robust : {short{-1}, short{1}}) {
        const auto found = zScores({1, 2, 3, 4, 100}, robust, none, 99);
        EXPECT_EQ(found.scores, (doubles{0.6745 * -2, 0.6745 * -1, 0, 0.6745, 0.6745 * 97}));
        EXPECT_EQ(found.centre, none);
        EXPECT_EQ(found.scale, 99);
    }
    auto x = vectorOf<double>({1, 2, 3, 4, 100});
    korvel::zScores(x, 5, -1, nullptr, nullptr, x);
    EXPECT_EQ(cellsOf(x), (doubles{0.6745 * -2, 0.6745 * -1, 0, 0.6745, 0.6745 * 97}));
}

TEST(ZScores, RobustScoresFormTheProductBeforeTheQuotient)
{
    // Median 0, MAD 7.
    EXPECT_SAME_BITS(zScores({-9, -7, 0, 5, 8}, -1, none, 0).scores[3], 0.6745 * 5.0 / 7.0);
    EXPECT_FALSE(sameBits(0.6745 * 5.0 / 7.0, 0.6745 * (5.0 / 7.0))) << "the cells tell them apart";
}

TEST(ZScores, RobustWithoutADeviationIsMissingEverywhere)
{
    EXPECT_EQ(zScores({5, 5, 5, 9}, -1, 0, 1).scores, (doubles{none, none, none, none}));
    EXPECT_EQ(zScores({}, -1, 0, 1).scores, doubles{});
}

TEST(ZScores, AMissingElementCountsAsTheSmallestInTheMedian)
{
    doubles cells{1, none, 4, 6, 7};
    auto x = vectorOf<double>(cells);
    double median = none;
    const double deviation = V_MedianAbsDev2(&x, 5, median);
    EXPECT_EQ(median, 4);
    EXPECT_EQ(deviation, 2) << "missing, 0, 2, 3, 3";
    EXPECT_EQ(zScores(cells, -1, 0, 0).scores,
              (doubles{0.6745 * -3 / 2, none, 0, 0.6745 * 2 / 2, 0.6745 * 3 / 2}));
}

TEST(ZScores, OddNumbersAreNumbers)
{
    const auto found = zScores({notANumber, infinite, belowSentinel, 2}, 0, 1, 2);
    EXPECT_TRUE(std::isnan(found.scores[0]));
    EXPECT_EQ(found.scores[1], infinite);
    EXPECT_EQ(found.scores[2], belowSentinel / 2);
    EXPECT_EQ(found.scores[3], 0.5);
}
