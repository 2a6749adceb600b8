#include "domain/triangular_distribution.h"

#include "containers/missing.h"
#include "support/bits.h"
#include "support/special_values.h"

#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

/** The distribution function of the triangular distribution on [a, b] with a mode. */
double shareUpTo(double x, double a, double mode, double b)
{
    return x <= mode ? (x - a) * (x - a) / ((b - a) * (mode - a))
                     : 1 - (b - x) * (b - x) / ((b - a) * (b - mode));
}

struct bounds {
    double a = -7;
    double b = -7;
};

bounds found(double q1, double mode, double q2, double p1, double p2)
{
    bounds made;
    TriangularQFindAB(q1, mode, q2, p1, p2, &made.a, &made.b);
    return made;
}

/** The upper bound by a plain loop, with other limits than the routine's. */
double iterated(double q1, double mode, double q2, double p1, double p2, int mostSteps, double tolerance)
{
    double b = 0;
    int steps = 0;
    for (double start = 5; steps < mostSteps; start += 1) {
        b = start * q2;
        for (double change = tolerance; change >= tolerance && steps < mostSteps; ++steps) {
            const double before = b;
            b -= TriangularFunc(b, q1, mode, q2, p1, p2) / TriangularFuncDeriv(b, q1, mode, q2, p1, p2);
            change = std::fabs(b - before);
        }
        if (b > mode) {
            break;
        }
    }
    return b;
}

struct distribution {
    const char* mode;
    double a;
    double m;
    double b;
    double q1;
    double q2;
};

const std::vector<distribution> distributions{
    {"between", 2, 6, 11, 4, 9},
    {"between", 0, 1, 3, 0.5, 2},
    {"between, far right", 1, 9, 10, 4, 9.5},
    {"at q1", 2, 4, 11, 4, 9},
    {"at q2", 2, 9, 11, 4, 9},
    {"right of both", 2, 10, 12, 4, 7},
    {"left of both", 2, 3, 12, 4, 7},
    {"right of negative ones", -9, -1, 3, -5, -2},
    {"left of negative ones", -9, -8, 3, -5, -2},
};

} // namespace

TEST(TriangularDistribution, IsFoundFromTwoPoints)
{
    for (const distribution& d : distributions) {
        SCOPED_TRACE(::testing::Message() << "mode " << d.mode << " on " << d.a << " to " << d.b);
        const bounds made =
            found(d.q1, d.m, d.q2, shareUpTo(d.q1, d.a, d.m, d.b), shareUpTo(d.q2, d.a, d.m, d.b));
        EXPECT_NEAR(made.a, d.a, 1e-9);
        EXPECT_NEAR(made.b, d.b, 1e-9);
    }
}

TEST(TriangularDistribution, HasClosedFormsOutsideTheQuantiles)
{
    // By the formulas of each case, with shares that have exact roots.
    const bounds left = found(1, 8, 2, 0.09, 0.36);
    const double s = std::sqrt(0.09 / 0.36);
    const double a = (s * 2 - 1) / (s - 1);
    EXPECT_SAME_BITS(left.a, a);
    EXPECT_SAME_BITS(left.b, ((8 * 0.36 - 2 * 2) * a + a * a * (1 - 0.36) + 2.0 * 2) / ((8 - a) * 0.36));
    const bounds right = found(3, 1, 5, 0.36, 0.91);
    const double t = std::sqrt((1 - 0.91) / (1 - 0.36));
    const double b = (t * 3 - 5) / (t - 1);
    const double g = b - 3;
    const double h = (3.0 - 1) * (1 - 0.36);
    EXPECT_SAME_BITS(right.b, b);
    EXPECT_SAME_BITS(right.a, ((h - g * 0.36) * b + g * 3) / (g * (1 - 0.36) + h));
}

TEST(TriangularDistribution, DividesByZeroWhereSharesAreEqual)
{
    const bounds made = found(1, 8, 2, 0.3, 0.3);
    EXPECT_TRUE(std::isinf(made.a) && made.a > 0) << "1 over 0";
    EXPECT_TRUE(std::isnan(made.b));
    const bounds other = found(3, 1, 5, 0.3, 0.3);
    EXPECT_TRUE(std::isinf(other.b) && other.b < 0) << "-2 over 0";
}

TEST(TriangularDistribution, HasNoRootOfANegativeRatio)
{
    const double s = MISSING_DBL;
    EXPECT_SAME_BITS(found(0.5, 8, 0.25, -0.3, 0.3).a, (s * 0.25 - 0.5) / (s - 1));
    EXPECT_SAME_BITS(found(0.5, 0.25, 0.75, 0.3, 1.5).b, (s * 0.5 - 0.75) / (s - 1));
}

TEST(TriangularDistribution, EndsAtAQuantileWithNothingBeyond)
{
    EXPECT_SAME_BITS(found(1, 8, 2, 0.0, 0.36).a, 1.0);
    EXPECT_SAME_BITS(found(3, 1, 5, 0.36, 1.0).b, 5.0);
}

TEST(TriangularDistribution, TakesTheModeAtAQuantileAsBetween)
{
    const bounds made = found(4, 4, 9, 0.2, 0.8);
    EXPECT_NEAR(shareUpTo(4, made.a, 4, made.b), 0.2, 1e-9);
    EXPECT_NEAR(shareUpTo(9, made.a, 4, made.b), 0.8, 1e-9);
    EXPECT_GT(made.b, 9);
}

TEST(TriangularDistribution, TakesTheModeAtAnUpperQuantileBelowTheLowerOneAsLeftOfBoth)
{
    const double s = std::sqrt((1 - 0.8) / (1 - 0.3));
    EXPECT_SAME_BITS(found(5, 2, 2, 0.3, 0.8).b, (s * 5 - 2) / (s - 1));
}

TEST(TriangularDistribution, StartsAgainFartherAway)
{
    // From 5 times the upper quantile the iteration ends below the mode.
    const bounds made = found(-6.5, -1.5, 1.5, 0.4, 0.8);
    EXPECT_GT(made.b, 1.5);
    EXPECT_NEAR(shareUpTo(-6.5, made.a, -1.5, made.b), 0.4, 1e-9);
    EXPECT_NEAR(shareUpTo(1.5, made.a, -1.5, made.b), 0.8, 1e-9);
}

TEST(TriangularDistribution, EndsWhenTheStepsAreSpent)
{
    // Nothing converges from a NaN: the last value stands.
    EXPECT_TRUE(std::isnan(found(1, 2, 3, notANumber, 0.8).b));
    EXPECT_TRUE(std::isnan(found(0, 0, 0, 0.2, 0.8).b)) << "no start is above the mode";
}

TEST(TriangularDistribution, StopsAfter501StepsInAllAndAStepBelowTheTolerance)
{
    // With equal quantiles at the mode the iteration wanders about the mode, and starts again when it ends
    // below it.
    EXPECT_SAME_BITS(found(-8, -8, -8, 0.05, 0.35).b, iterated(-8, -8, -8, 0.05, 0.35, 501, 1e-12));
    EXPECT_NE(iterated(-8, -8, -8, 0.05, 0.35, 501, 1e-12), iterated(-8, -8, -8, 0.05, 0.35, 500, 1e-12));
    EXPECT_NE(iterated(-8, -8, -8, 0.05, 0.35, 501, 1e-12), iterated(-8, -8, -8, 0.05, 0.35, 502, 1e-12));
    // A step just above the tolerance is not the last one in the first, one just below it is in the second.
    EXPECT_SAME_BITS(found(-1, -1, 7, 0.25, 0.5).b, iterated(-1, -1, 7, 0.25, 0.5, 501, 1e-12));
    EXPECT_NE(iterated(-1, -1, 7, 0.25, 0.5, 501, 1e-12), iterated(-1, -1, 7, 0.25, 0.5, 501, 1.005e-12));
    EXPECT_SAME_BITS(found(-4, -3, 1, 0.25, 0.95).b, iterated(-4, -3, 1, 0.25, 0.95, 501, 1e-12));
    EXPECT_NE(iterated(-4, -3, 1, 0.25, 0.95, 501, 1e-12), iterated(-4, -3, 1, 0.25, 0.95, 501, 0.995e-12));
}

TEST(TriangularDistribution, HasFunctionsThatAreZeroAtItsBounds)
{
    for (const distribution& d : distributions) {
        const double p1 = shareUpTo(d.q1, d.a, d.m, d.b);
        const double p2 = shareUpTo(d.q2, d.a, d.m, d.b);
        if (d.q1 <= d.m && d.m <= d.q2) {
            EXPECT_NEAR(TriangularFunc(d.b, d.q1, d.m, d.q2, p1, p2), 0, 1e-9) << d.mode;
            // The mirror form takes the share above the upper quantile.
            EXPECT_NEAR(TriangularFunc2(d.a, d.q1, d.m, d.q2, p1, 1 - p2), 0, 1e-9) << d.mode;
        }
    }
}

TEST(TriangularDistribution, HasFunctionsAsWritten)
{
    const double q1 = 4;
    const double mode = 6;
    const double q2 = 9;
    const double p1 = 0.3;
    const double p2 = 0.85;
    for (const double x : {7.0, 11.5, 20.0, -3.0, 6.5}) {
        const double a = (((1 - p2) * mode - 2 * q2) * x + x * x * p2 + q2 * q2) / ((mode - x) * (1 - p2));
        EXPECT_SAME_BITS(TriangularFunc(x, q1, mode, q2, p1, p2),
                         (mode - a) * (x * p1) - ((mode * p1 - 2 * q1) * a + a * a * (1 - p1) + q1 * q1));
        const double b = ((mode * p1 - 2 * q1) * x + x * x * (1 - p1) + q1 * q1) / ((mode - x) * p1);
        EXPECT_SAME_BITS(TriangularFunc2(x, q1, mode, q2, p1, p2),
                         (mode - b) * (x * p2) - ((mode * p2 - 2 * q2) * b + b * b * (1 - p2) + q2 * q2));
        const double step = 1e-5;
        const double slope = (TriangularFunc(x + step, q1, mode, q2, p1, p2) -
                              TriangularFunc(x - step, q1, mode, q2, p1, p2)) /
                             (2 * step);
        EXPECT_NEAR(TriangularFuncDeriv(x, q1, mode, q2, p1, p2), slope, 1e-5 * (1 + std::fabs(slope)));
    }
}
