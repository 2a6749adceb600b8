// The incomplete beta ratio and its logarithm beside those of a hundred digits, at 2,160 points over all
// ways.
#include "special/beta.h"
#include "special/beta_choice.h"
#include "support/incomplete_beta_table.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace
{

using namespace korvel;
using namespace korvel::test;

/**
 * The largest errors that are allowed, in units of epsilon, relative to the result. About one and a half
 * times those that were seen: logarithms and powers differ a little between systems. Results grow out of
 * exponents of up to 700, of which one rounding is some hundred units.
 */
struct way_limits {
    beta_way way;
    double value;
    double logarithm;
};

const std::map<std::string, way_limits>& limitsOfWays()
{
    static const std::map<std::string, way_limits> limits{
        {"tinyBoth", {beta_way::tinyBoth, 5.0, 5.0}},
        {"tinyB", {beta_way::tinyB, 15.0, 700.0}},
        {"tinyA", {beta_way::tinyA, 700.0, 700.0}},
        {"series", {beta_way::series, 250.0, 400.0}},
        {"complementSeries", {beta_way::complementSeries, 300.0, 200.0}},
        {"expansion", {beta_way::expansion, 350.0, 350.0}},
        {"stepsAndExpansion", {beta_way::stepsAndExpansion, 40.0, 40.0}},
        {"fraction", {beta_way::fraction, 700.0, 850.0}},
        {"largeBoth", {beta_way::largeBoth, 160.0, 150.0}},
        {"wholeAndSeries", {beta_way::wholeAndSeries, 700.0, 700.0}},
        {"wholeAndExpansion", {beta_way::wholeAndExpansion, 300.0, 300.0}},
        {"wholeStepsExpansion", {beta_way::wholeStepsExpansion, 12.0, 13.0}},
    };
    return limits;
}

/** In units of epsilon, relative to the truth. Numbers without all their digits have no such error. */
double errorOf(double found, double truth)
{
    constexpr double allDigits = 1e-306;
    return std::fabs(truth) < allDigits ? 0.0 : std::fabs(found - truth) / std::fabs(truth) / DBL_EPSILON;
}

TEST(BetaRatioAccuracy, IsThatOfAHundredDigitsAtPointsOfEveryWay)
{
    std::map<std::string, int> counts;
    for (const incomplete_beta_point& point : readIncompleteBetaPoints()) {
        SCOPED_TRACE(::testing::Message()
                     << point.way << ' ' << point.a << ' ' << point.b << ' ' << point.x << ' ' << point.y);
        ++counts[point.way];
        const way_limits& limits = limitsOfWays().at(point.way);
        double w = -2.0;
        double w1 = -2.0;
        int status = -2;
        bratio(point.a, point.b, point.x, point.y, &w, &w1, &status, 0);
        EXPECT_EQ(status, 0);
        EXPECT_LE(errorOf(w, point.ratio), limits.value);
        EXPECT_LE(errorOf(w1, point.complement), limits.value);
        bratio(point.a, point.b, point.x, point.y, &w, &w1, &status, 1);
        EXPECT_EQ(status, 0);
        EXPECT_LE(errorOf(w, point.logRatio), limits.logarithm);
        EXPECT_LE(errorOf(w1, point.logComplement), limits.logarithm);
    }
    ASSERT_EQ(counts.size(), limitsOfWays().size());
    for (const auto& [way, count] : counts) {
        EXPECT_EQ(count, 180) << way;
    }
}

TEST(BetaRatioAccuracy, TakesTheWayOfThePaperAtEveryPoint)
{
    for (const incomplete_beta_point& point : readIncompleteBetaPoints()) {
        EXPECT_EQ(chooseBetaWay(point.a, point.b, point.x, point.y).way, limitsOfWays().at(point.way).way)
            << point.way << ' ' << point.a << ' ' << point.b << ' ' << point.x << ' ' << point.y;
    }
}

TEST(BetaRatioAccuracy, ReachesTheExtremes)
{
    const auto points = readIncompleteBetaPoints();
    const auto has = [&](auto what) { return std::any_of(points.begin(), points.end(), what); };
    EXPECT_TRUE(has([](const auto& p) { return p.a < 1e-9 && p.b > 1e9; }));
    EXPECT_TRUE(has([](const auto& p) { return p.a > 1e9 && p.b > 1e9; }));
    EXPECT_TRUE(has([](const auto& p) { return p.a < 1e-9 && p.b < 1e-9; }));
    EXPECT_TRUE(has([](const auto& p) { return p.ratio < 1e-250 && p.ratio > 0.0; }));
    EXPECT_TRUE(has([](const auto& p) { return p.logRatio < -1e6; }));
    EXPECT_TRUE(has([](const auto& p) { return p.logComplement < -1e6; }));
}

} // namespace
