#include "special/beta_choice.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using korvel::beta_way;
using korvel::chooseBetaWay;

double above(double x)
{
    return std::nextafter(x, 1e300);
}

double below(double x)
{
    return std::nextafter(x, -1e300);
}

struct edge {
    double a;
    double b;
    double x;
    beta_way way;
};

void expectWays(const std::vector<edge>& edges)
{
    for (const edge& e : edges) {
        const auto chosen = chooseBetaWay(e.a, e.b, e.x, 1.0 - e.x);
        EXPECT_EQ(chosen.way, e.way) << e.a << ' ' << e.b << ' ' << e.x;
        EXPECT_FALSE(chosen.isTurned) << e.a << ' ' << e.b << ' ' << e.x;
    }
}

} // namespace

TEST(BetaChoice, TinyParametersHaveWaysOfTheirOwn)
{
    constexpr double tiny = 0.001 * 1e-15;
    expectWays({{below(tiny), below(tiny), 0.5, beta_way::tinyBoth},
                {1e-30, tiny, 0.5, beta_way::complementSeries},
                {tiny, 1e-40, 0.5, beta_way::tinyB},
                {2.0, below(1e-15), 0.5, beta_way::tinyB},
                {2.0, 1e-15, 0.5, beta_way::series},
                {0.5, below(5e-16), 0.5, beta_way::tinyB},
                {0.5, 5e-16, 0.5, beta_way::series},
                {below(1e-15), 2.0, 0.5, beta_way::tinyA},
                {below(1e-15), above(2.0), 0.5, beta_way::complementSeries},
                {1e-15, 2.0, 0.5, beta_way::complementSeries},
                {below(5e-16), 0.5, 0.25, beta_way::tinyA},
                {5e-16, 0.5, 0.25, beta_way::stepsAndExpansion}});
}

TEST(BetaChoice, OneSmallParameter)
{
    expectWays({{2.0, 1.0, 0.4, beta_way::series},
                {1.0, above(1.0), 0.4, beta_way::complementSeries},
                {0.5, 1.5, 0.29, beta_way::complementSeries},
                {0.5, 1.5, below(0.29), beta_way::stepsAndExpansion},
                {1.0, 2.0, 0.1, beta_way::stepsAndExpansion},
                {1.0, 2.0, below(0.1), beta_way::series},
                {1.0, 16.0, 0.7 / 16.0, beta_way::series},
                {1.0, 16.0, above(0.7 / 16.0), beta_way::expansion},
                {1.0, 15.0, 0.2, beta_way::stepsAndExpansion},
                {1.0, above(15.0), 0.2, beta_way::expansion}});
}

TEST(BetaChoice, TwoSmallParameters)
{
    // 0.9 to the 10th power is 0.34868.
    expectWays({{0.1, 0.1, 0.4, beta_way::series},
                {below(0.1), 0.1, 0.4, beta_way::complementSeries},
                {0.1, 0.5, 0.3486, beta_way::series},
                {0.1, 0.5, 0.3487, beta_way::complementSeries},
                {0.05, 0.5, 0.3, beta_way::complementSeries},
                {0.05, 0.5, below(0.3), beta_way::stepsAndExpansion},
                {0.05, 1.0, 0.25, beta_way::stepsAndExpansion}});
}

TEST(BetaChoice, TwoLargeParameters)
{
    expectWays({{2.0, 8.0, 0.7 / 8.0, beta_way::series},
                {2.0, 8.0, above(0.7 / 8.0), beta_way::wholeAndSeries},
                {30.0, 5.0, 0.7, beta_way::wholeAndSeries},
                {30.0, 5.0, above(0.7), beta_way::wholeAndExpansion},
                {15.0, 2.0, 0.75, beta_way::wholeStepsExpansion},
                {above(15.0), 2.0, 0.75, beta_way::wholeAndExpansion},
                {45.0, 40.0, 0.4, beta_way::fraction},
                {45.0, below(40.0), 0.4, beta_way::wholeAndSeries},
                {100.0, 200.0, 0.333, beta_way::fraction},
                {above(100.0), 200.0, 0.333, beta_way::largeBoth},
                {200.0, 100.0, 0.666, beta_way::fraction},
                {200.0, above(100.0), 0.666, beta_way::largeBoth},
                // Three in a hundred of 200 are 6: the distances are 5.96 and 6.04.
                {200.0, 200.0, 0.4851, beta_way::largeBoth},
                {200.0, 200.0, 0.4849, beta_way::fraction}});
}

TEST(BetaChoice, TurnsPlacesAboveOneHalfOrTheMean)
{
    EXPECT_FALSE(chooseBetaWay(1.0, 50.0, 0.5, 0.5).isTurned);
    const auto turned = chooseBetaWay(1.0, 50.0, above(0.5), 0.5);
    EXPECT_TRUE(turned.isTurned) << "a parameter of 1 is small";
    EXPECT_EQ(turned.a, 50.0);
    EXPECT_EQ(turned.b, 1.0);
    EXPECT_EQ(turned.x, 0.5);
    EXPECT_EQ(turned.y, above(0.5));
    EXPECT_FALSE(chooseBetaWay(2.0, 2.0, 0.5, 0.5).isTurned);
    const auto behind = chooseBetaWay(2.0, 6.0, 0.5, 0.5);
    EXPECT_TRUE(behind.isTurned);
    EXPECT_EQ(behind.a, 6.0);
    EXPECT_EQ(behind.lambda, 2.0);
    const auto before = chooseBetaWay(6.0, 2.0, 0.625, 0.375);
    EXPECT_FALSE(before.isTurned) << "the mean is 0.75";
    EXPECT_EQ(before.lambda, 1.0);
}
