#include "special/log_gamma.h"

#include "containers/missing.h"
#include "support/bits.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

struct value {
    double x;
    double expected;
};

TEST(LogGamma, IsThatOfFortyDigits)
{
    // mpmath, 40 digits.
    const value values[] = {
        {1e-10, 23.025850929882735237}, {0.001, 6.9071788853838536617}, {0.5, 0.57236494292470008707},
        {1.5, -0.12078223763524522235}, {3.0, 0.69314718055994530942},  {10.0, 12.801827480081469611},
        {33.3, 82.603723581654943008},  {100.0, 359.13420536957539878}, {1e6, 12815504.56914761166},
        {1e10, 220258509288.81058147},
    };
    for (const value& v : values) {
        EXPECT_NEAR(GammaLn(v.x), v.expected, 5e-15 * std::fmax(1.0, std::fabs(v.expected))) << v.x;
    }
}

TEST(LogGamma, Of1IsExactly0)
{
    EXPECT_SAME_BITS(GammaLn(1.0), 0.0);
}

TEST(LogGamma, IsMissingOnlyBelowMinusSixAndAHalf)
{
    EXPECT_SAME_BITS(GammaLn(-7.0), MISSING_DBL);
    EXPECT_SAME_BITS(GammaLn(std::nextafter(-6.5, -7.0)), MISSING_DBL);
    EXPECT_SAME_BITS(GammaLn(-infinity), MISSING_DBL);
    EXPECT_NE(GammaLn(std::nextafter(-6.5, 0.0)), MISSING_DBL);
}

TEST(LogGamma, FollowsTheArithmeticAtPolesAndElsewhere)
{
    EXPECT_EQ(GammaLn(0.0), infinity);
    EXPECT_EQ(GammaLn(-6.5), infinity) << "-7 times the logarithm of 0";
    EXPECT_TRUE(std::isnan(GammaLn(-0.5))) << "the series is negative";
    EXPECT_TRUE(std::isnan(GammaLn(-1.0))) << "the series is minus infinity";
    EXPECT_EQ(GammaLn(-2.0), infinity);
    EXPECT_TRUE(std::isnan(GammaLn(std::numeric_limits<double>::quiet_NaN())));
}

TEST(LogGamma, HasItsOwnCoefficients)
{
    // By the formula in 40 digits (mpmath). Gamma has no such value: the last terms tell the coefficients
    // apart.
    EXPECT_NEAR(GammaLn(-6.4), 2.6390364198971569606, 1e-6);
    EXPECT_NEAR(GammaLn(-1.5), 0.86004701537653478084, 1e-13);
}

TEST(LogGamma, AddsItsTermsInOrder)
{
    for (double x = -6.5; x < 40.0; x += 0.0078125) {
        const double s = 0.9999999999995183 + 676.5203681218835 / x - 1259.139216722289 / (x + 1) +
                         771.3234287757674 / (x + 2) - 176.6150291498386 / (x + 3) +
                         12.50734324009056 / (x + 4) - 0.1385710331296526 / (x + 5) +
                         9.934937113930748e-6 / (x + 6) + 1.659470187408462e-7 / (x + 7);
        const double sum = (x - 0.5) * std::log(x + 6.5) + std::log(s) + 0.9189385332046727 - (x + 6.5);
        EXPECT_SAME_BITS(GammaLn(x), x == 1.0 ? 0.0 : sum);
    }
}

TEST(LogGammaCorrection, IsThatOfFortyDigits)
{
    const value values[] = {
        {10.0, 0.0083305634333628712565},   {12.5, 0.0066652470327076824424},
        {100.0, 0.00083333055563491468338}, {1e4, 8.3333333305555555635e-6},
        {9e7, 9.2592592592592592212e-10},
    };
    for (const value& v : values) {
        EXPECT_NEAR(GammaLnCorr(v.x), v.expected, 5e-15 * v.expected) << v.x;
    }
}

TEST(LogGammaCorrection, IsMissingOutsideOfItsRange)
{
    EXPECT_SAME_BITS(GammaLnCorr(9.999), MISSING_DBL);
    EXPECT_NE(GammaLnCorr(10.0), MISSING_DBL);
    EXPECT_SAME_BITS(GammaLnCorr(-20.0), MISSING_DBL);
    EXPECT_SAME_BITS(GammaLnCorr(3.74519403096316e306), MISSING_DBL);
    const double largest = std::nextafter(3.74519403096316e306, 0.0);
    EXPECT_SAME_BITS(GammaLnCorr(largest), 1.0 / (12.0 * largest));
}

TEST(LogGammaCorrection, HasOneTermForLargeNumbers)
{
    EXPECT_SAME_BITS(GammaLnCorr(1e9), 1.0 / 1.2e10);
    EXPECT_SAME_BITS(GammaLnCorr(94906265.6242516), 1.0 / (12.0 * 94906265.6242516));
    const double below = std::nextafter(94906265.6242516, 0.0);
    const double t = 10.0 / below;
    EXPECT_SAME_BITS(GammaLnCorr(below), chebyshev_eval(2.0 * t * t - 1.0, 5) / below);
    EXPECT_NE(GammaLnCorr(below), 1.0 / (12.0 * below));
}

TEST(ChebyshevSeries, RefusesPlacesAndCountsOutside)
{
    EXPECT_SAME_BITS(chebyshev_eval(1.2, 5), MISSING_DBL);
    EXPECT_SAME_BITS(chebyshev_eval(-1.2, 5), MISSING_DBL);
    EXPECT_SAME_BITS(chebyshev_eval(0.0, 0), MISSING_DBL);
    EXPECT_SAME_BITS(chebyshev_eval(0.0, -3), MISSING_DBL);
    EXPECT_SAME_BITS(chebyshev_eval(0.0, 1001), MISSING_DBL);
    EXPECT_NE(chebyshev_eval(1.1, 1), MISSING_DBL);
    EXPECT_NE(chebyshev_eval(-1.1, 15), MISSING_DBL);
    EXPECT_TRUE(std::isnan(chebyshev_eval(std::numeric_limits<double>::quiet_NaN(), 5)));
}

TEST(ChebyshevSeries, IsTheSumOfPolynomials)
{
    constexpr double a0 = 0.16663894804518634;
    constexpr double a1 = -1.384948176067564e-05;
    constexpr double a2 = 9.81082564692473e-09;
    constexpr double x = 0.3125;
    EXPECT_SAME_BITS(chebyshev_eval(x, 1), a0 * 0.5);
    EXPECT_SAME_BITS(chebyshev_eval(x, 2), (2.0 * x * a1 + a0) * 0.5);
    const double b1 = 2.0 * x * a2 + a1;
    EXPECT_SAME_BITS(chebyshev_eval(x, 3), (2.0 * x * b1 - a2 + a0 - a2) * 0.5);
    // At 1 every polynomial is 1: all fifteen coefficients, that of order 0 by half, summed by mpmath.
    EXPECT_NEAR(chebyshev_eval(1.0, 15), 0.08330563433362871816, 3e-17);
}

TEST(ChebyshevSeries, HasFifteenCoefficients)
{
    EXPECT_NE(chebyshev_eval(0.3, 4), chebyshev_eval(0.3, 5));
    for (const int n : {16, 17, 1000}) {
        EXPECT_SAME_BITS(chebyshev_eval(0.3, n), chebyshev_eval(0.3, 15)) << n;
    }
}

} // namespace
