#include "special/beta.h"

#include "containers/missing.h"
#include "special/log_gamma.h"
#include "support/bits.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(LogBeta, OfSmallArgumentsIsThatOfGammas)
{
    EXPECT_SAME_BITS(betaln(9.0, 9.5), GammaLn(9.0) + GammaLn(9.5) - GammaLn(18.5));
    EXPECT_SAME_BITS(betaln(9.5, 9.0), GammaLn(9.5) + GammaLn(9.0) - GammaLn(18.5));
    EXPECT_SAME_BITS(betaln(0.5, std::nextafter(10.0, 0.0)), GammaLn(0.5) +
                                                                 GammaLn(std::nextafter(10.0, 0.0)) -
                                                                 GammaLn(0.5 + std::nextafter(10.0, 0.0)));
}

TEST(LogBeta, OfOneLargeArgumentHasTwoCorrections)
{
    const double r = -9.0 / 19.0;
    const double expected = GammaLn(9.0) + (GammaLnCorr(10.0) - GammaLnCorr(19.0)) + 9.0 -
                            9.0 * std::log(19.0) + (10.0 - 0.5) * std::log1p(r);
    EXPECT_SAME_BITS(betaln(9.0, 10.0), expected);
    EXPECT_SAME_BITS(betaln(10.0, 9.0), expected);
}

TEST(LogBeta, OfLargeArgumentsHasThreeCorrections)
{
    const double corrections = GammaLnCorr(10.0) + GammaLnCorr(12.0) - GammaLnCorr(22.0);
    const double expected = 12.0 * std::log1p(-10.0 / 22.0) + (10.0 - 0.5) * std::log(10.0 / 22.0) +
                            0.9189385332046728 - 0.5 * std::log(12.0) + corrections;
    EXPECT_SAME_BITS(betaln(10.0, 12.0), expected);
    EXPECT_SAME_BITS(betaln(12.0, 10.0), expected);
}

TEST(LogBeta, IsThatOfFortyDigits)
{
    // mpmath, 40 digits.
    EXPECT_NEAR(betaln(0.5, 0.5), 1.1447298858494001741, 2e-15);
    EXPECT_NEAR(betaln(2.0, 3.0), -2.4849066497880003102, 5e-15);
    EXPECT_NEAR(betaln(9.0, 9.5), -12.649379453334299146, 3e-14);
    EXPECT_NEAR(betaln(9.0, 10.0), -12.989014825206333737, 2e-14);
    EXPECT_NEAR(betaln(10.0, 10.0), -13.736229227036554814, 1e-14);
    EXPECT_NEAR(betaln(0.1, 1000.0), 1.5619821298353163966, 2e-15);
    EXPECT_NEAR(betaln(30.0, 1e6), -343.20871276748277719, 3e-13);
    EXPECT_NEAR(betaln(1e5, 2e5), -190958.88527911684967, 2e-10);
}

TEST(LogBeta, TestsNoArgument)
{
    EXPECT_EQ(betaln(0.0, 5.0), infinity);
    EXPECT_SAME_BITS(betaln(-8.0, 5.0), GammaLn(-8.0) + GammaLn(5.0) - GammaLn(-3.0));
    EXPECT_TRUE(std::isnan(betaln(-30.0, 20.0)));
    for (const double other : {0.5, 9.0, 10.0, 12.0, nan}) {
        EXPECT_TRUE(std::isnan(betaln(nan, other))) << other;
        EXPECT_TRUE(std::isnan(betaln(other, nan))) << other;
    }
}

struct outcome {
    double w;
    double w1;
    int status;
};

outcome ratio(double a, double b, double x, double y, int logarithms = 0)
{
    outcome found{-2.0, -2.0, -2};
    bratio(a, b, x, y, &found.w, &found.w1, &found.status, logarithms);
    return found;
}

struct refused {
    int status;
    double a;
    double b;
    double x;
    double y;
};

TEST(BetaRatio, RefusesArgumentsAndLeavesTheValueOf0)
{
    const refused all[] = {
        {1, -1.0, 2.0, 0.5, 0.5},      {1, 2.0, -1e-300, 0.5, 0.5},     {1, -1.0, 0.0, 2.0, 2.0},
        {2, 0.0, 0.0, 0.5, 0.5},       {2, 0.0, 0.0, -1.0, 0.5},        {3, 1.0, 2.0, -1e-300, 1.0},
        {3, 1.0, 2.0, 1.0000001, 3.0}, {4, 1.0, 2.0, 0.5, -0.1},        {4, 1.0, 2.0, 0.5, 1.0000001},
        {5, 1.0, 2.0, 0.5, 0.6},       {5, 1.0, 2.0, 0.5, 0.5 - 1e-15}, {6, 0.0, 2.0, 0.0, 1.0},
        {7, 2.0, 0.0, 1.0, 0.0},       {9, nan, 2.0, 0.5, 0.5},         {9, 1.0, nan, 0.5, 0.5},
        {9, 1.0, 2.0, nan, 0.5},       {9, 1.0, 2.0, 0.5, nan},
    };
    for (const refused& r : all) {
        const outcome plain = ratio(r.a, r.b, r.x, r.y);
        EXPECT_EQ(plain.status, r.status);
        EXPECT_SAME_BITS(plain.w, 0.0);
        EXPECT_SAME_BITS(plain.w1, 0.0);
        for (const int notZero : {1, -1}) {
            const outcome logarithmic = ratio(r.a, r.b, r.x, r.y, notZero);
            EXPECT_EQ(logarithmic.status, r.status);
            EXPECT_SAME_BITS(logarithmic.w, MISSING_DBL);
            EXPECT_SAME_BITS(logarithmic.w1, MISSING_DBL);
        }
    }
}

TEST(BetaRatio, TakesAPlaceAndItsComplementWithinARoundingError)
{
    // 6.66e-16 is three times 2.22e-16, which is the distance of two numbers above 1/2 twice.
    EXPECT_EQ(ratio(1.0, 2.0, 0.5, 0.5 + 6.661338147750939e-16).status, 0);
    EXPECT_EQ(ratio(1.0, 2.0, 0.5, 0.5 + 7.771561172376096e-16).status, 5);
    EXPECT_EQ(ratio(1.0, 2.0, 0.5, 0.5 - 6.661338147750939e-16).status, 0);
}

TEST(BetaRatio, AtTheEndsIsZeroOrOne)
{
    for (const bool atZero : {true, false}) {
        const double x = atZero ? 0.0 : 1.0;
        const outcome plain = ratio(2.0, 3.0, x, 1.0 - x);
        EXPECT_EQ(plain.status, 0);
        EXPECT_SAME_BITS(plain.w, x);
        EXPECT_SAME_BITS(plain.w1, 1.0 - x);
        const outcome logarithmic = ratio(2.0, 3.0, x, 1.0 - x, 1);
        EXPECT_EQ(logarithmic.status, 0);
        EXPECT_SAME_BITS(logarithmic.w, atZero ? MISSING_DBL : 0.0);
        EXPECT_SAME_BITS(logarithmic.w1, atZero ? 0.0 : MISSING_DBL);
    }
}

TEST(BetaRatio, OfAParameterOf0HasAllWeightAtOneEnd)
{
    EXPECT_SAME_BITS(ratio(0.0, 2.0, 0.3, 0.7).w, 1.0);
    EXPECT_SAME_BITS(ratio(0.0, 2.0, 0.3, 0.7).w1, 0.0);
    EXPECT_SAME_BITS(ratio(2.0, 0.0, 0.3, 0.7).w, 0.0);
    EXPECT_SAME_BITS(ratio(2.0, 0.0, 0.3, 0.7).w1, 1.0);
    EXPECT_SAME_BITS(ratio(2.0, 0.0, 0.3, 0.7, 1).w, MISSING_DBL);
    EXPECT_SAME_BITS(ratio(2.0, 0.0, 0.3, 0.7, 1).w1, 0.0);
    // The end that has no weight.
    EXPECT_SAME_BITS(ratio(0.0, 2.0, 1.0, 0.0).w, 1.0);
    EXPECT_SAME_BITS(ratio(2.0, 0.0, 0.0, 1.0).w, 0.0);
}

TEST(BetaRatio, OfInfiniteParametersIsItsLimit)
{
    EXPECT_SAME_BITS(ratio(infinity, 2.0, 0.9, 0.1).w, 0.0);
    EXPECT_SAME_BITS(ratio(infinity, 2.0, 1.0, 0.0).w, 1.0);
    EXPECT_SAME_BITS(ratio(2.0, infinity, 0.1, 0.9).w, 1.0);
    EXPECT_SAME_BITS(ratio(2.0, infinity, 0.0, 1.0).w, 0.0);
    EXPECT_SAME_BITS(ratio(infinity, infinity, 0.49, 0.51).w, 0.0);
    EXPECT_SAME_BITS(ratio(infinity, infinity, 0.5, 0.5).w, 1.0);
    EXPECT_SAME_BITS(ratio(infinity, 50.0, 0.9, 0.1, 1).w, MISSING_DBL);
    EXPECT_SAME_BITS(ratio(infinity, 50.0, 0.9, 0.1, 1).w1, 0.0);
}

TEST(BetaRatio, HandsOnTheCodesOfTheExpansion)
{
    // The argument of the expansion underflows: b times z is 0.
    const outcome plain = ratio(1e-320, 20.0, 1e-300, 1.0);
    EXPECT_EQ(plain.status, 0);
    const outcome underflown = ratio(1e-5, 0.5, 1e-320, 1.0);
    EXPECT_EQ(underflown.status, 11);
}

TEST(BetaRatio, OfTinyLogarithmsIsMissingWhereTheRatioIs0)
{
    // log I is a log x, about, and below all doubles.
    const outcome found = ratio(1e307, 1.0, 1e-30, 1.0, 1);
    EXPECT_EQ(found.status, 0);
    EXPECT_SAME_BITS(found.w, MISSING_DBL);
    EXPECT_EQ(found.w1, 0.0);
}

TEST(BetaRatio, OfHugeParametersKeepsTheExponentOfItsLogarithm)
{
    // Powers of the exponent overflow. The logarithm is a log(4 x y) up to far smaller terms.
    for (const double a : {1e36, 1e300}) {
        const outcome found = ratio(a, a, 0.49, 0.51, 1);
        EXPECT_EQ(found.status, 0);
        EXPECT_NEAR(found.w / (a * std::log1p(-0.0004)), 1.0, 1e-12);
        EXPECT_EQ(found.w1, 0.0);
    }
}

TEST(BetaRatio, OfALongFractionKeepsItsTermsSmall)
{
    // The terms of the fraction grow beyond 1e100. mpmath, 60 digits.
    EXPECT_NEAR(ratio(1443.0, 10578689.0, 0.0001425, 1.0 - 0.0001425).w1, 0.045852400924723900797, 1e-13);
    EXPECT_NEAR(ratio(693.0, 19847488.0, 3.6875e-05, 1.0 - 3.6875e-05).w1, 0.071651255395210546716, 1e-13);
}

TEST(BetaRatio, HasClosedForms)
{
    for (const double x : {1e-300, 1e-8, 0.03, 0.25, 0.5, 0.61, 0.97}) {
        EXPECT_NEAR(IncompleteBetaR(x, 1.0, 1.0) / x, 1.0, 4e-16) << x;
        EXPECT_NEAR(IncompleteBetaR(x, 0.5, 0.5), 2.0 / std::acos(-1.0) * std::asin(std::sqrt(x)), 1e-15)
            << x;
        EXPECT_NEAR(IncompleteBetaR(x, 3.0, 1.0), x * x * x, 2e-15) << x;
        EXPECT_NEAR(IncompleteBetaR(x, 2.0, 2.0), x * x * (3.0 - 2.0 * x), 1e-15) << x;
    }
}

TEST(BetaRatio, OfTurnedArgumentsIsTurned)
{
    for (const double a : {0.3, 2.0, 45.0, 300.0}) {
        for (const double b : {0.7, 12.0, 200.0}) {
            for (const double x : {0.125, 0.5, 0.625}) {
                for (const int logarithms : {0, 1}) {
                    const outcome one = ratio(a, b, x, 1.0 - x, logarithms);
                    const outcome other = ratio(b, a, 1.0 - x, x, logarithms);
                    EXPECT_NEAR(one.w, other.w1, 1e-13 * std::fabs(one.w)) << a << ' ' << b << ' ' << x;
                    EXPECT_NEAR(one.w1, other.w, 1e-13 * std::fabs(one.w1)) << a << ' ' << b << ' ' << x;
                }
            }
        }
    }
}

TEST(IncompleteBetaRatio, IsTheRatioAtAPlace)
{
    EXPECT_SAME_BITS(IncompleteBetaR(0.3, 2.5, 7.0), ratio(2.5, 7.0, 0.3, 1.0 - 0.3).w);
    EXPECT_SAME_BITS(IncompleteBetaR(0.0, 2.5, 7.0), 0.0);
    EXPECT_SAME_BITS(IncompleteBetaR(1.0, 2.5, 7.0), 1.0);
}

TEST(IncompleteBetaRatio, OfArgumentsThatAreRefusedIs0)
{
    EXPECT_SAME_BITS(IncompleteBetaR(-0.1, 2.0, 3.0), 0.0);
    EXPECT_SAME_BITS(IncompleteBetaR(1.5, 2.0, 3.0), 0.0);
    EXPECT_SAME_BITS(IncompleteBetaR(0.5, -2.0, 3.0), 0.0);
    EXPECT_SAME_BITS(IncompleteBetaR(0.5, 0.0, 0.0), 0.0);
    EXPECT_SAME_BITS(IncompleteBeta(1.5, 2.0, 3.0), 0.0);
}

TEST(IncompleteBetaIntegral, IsTheRatioTimesTheBetaFunction)
{
    EXPECT_SAME_BITS(IncompleteBeta(0.3, 2.5, 7.0),
                     std::exp(betaln(2.5, 7.0)) * IncompleteBetaR(0.3, 2.5, 7.0));
    // The integral of t (1 - t)^2 from 0 to 1/2 is 11/192.
    EXPECT_NEAR(IncompleteBeta(0.5, 2.0, 3.0), 11.0 / 192.0, 1e-15);
}

} // namespace
