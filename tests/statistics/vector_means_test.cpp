#include "statistics/vector_means.h"

#include "reference/vector_sums.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <cmath>
#include <limits>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

std::vector<short int> noFlags(int n)
{
    return std::vector<short int>(static_cast<std::size_t>(n));
}

/** The geometric mean and standard deviation together. */
struct geometric {
    double mean = notANumber;
    double deviation = notANumber;
    int status = -9;
};

geometric geometricOf(matrix<double> x, std::vector<short int> flags, matrix<double> w)
{
    geometric found;
    found.status =
        V_GMeanGSD(&x, static_cast<int>(flags.size()), flags.data(), &w, found.mean, found.deviation);
    return found;
}

/** Whether a result of `exp` is right within two units in the last place, which is what libraries differ by.
 */
testing::AssertionResult withinTwoUlp(double actual, double expected)
{
    const double ulp = std::nextafter(std::abs(expected), infinite) - std::abs(expected);
    if (std::abs(actual - expected) <= 2.0 * ulp) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << actual << " is not " << expected;
}

} // namespace

TEST(VectorMeans, MeanWeighsAndLeavesOut)
{
    auto x = vectorOf<double>({1, 2, MISSING_DBL, 4, 100, 1000});
    auto w = vectorOf<double>({1, 3, 5, 4, 1, 1});
    std::vector<short int> flags{0, 0, 0, 0, 1, 7};
    EXPECT_SAME_BITS(V_Mean(&x, 6, flags.data(), &w), 23.0 / 8.0);
    flags = {-1, 0, 0, 0, 1, -1};
    EXPECT_SAME_BITS(V_Mean(&x, 6, flags.data(), &w), 22.0 / 7.0);
}

TEST(VectorMeans, AMissingWeightIsANumberToTheMeans)
{
    auto x = vectorOf<double>({1, 2});
    auto w = vectorOf<double>({MISSING_DBL, 1});
    auto flags = noFlags(2);
    EXPECT_SAME_BITS(V_Mean(&x, 2, flags.data(), &w), (MISSING_DBL + 2.0) / (MISSING_DBL + 1.0));
    EXPECT_SAME_BITS(V_MeanAbs(&x, 2, flags.data(), &w), (MISSING_DBL + 2.0) / (MISSING_DBL + 1.0));
    EXPECT_SAME_BITS(V_MeanW2(&x, 2, &w), MISSING_DBL) << "the total weight is not above 0";
}

TEST(VectorMeans, MeanOfNothingIsMissing)
{
    auto x = vectorOf<double>({1, MISSING_DBL});
    auto w = vectorOf<double>({1, 1});
    std::vector<short int> flags{1, 0};
    for (const int n : {2, 0, -1}) {
        EXPECT_SAME_BITS(V_Mean(&x, n, flags.data(), &w), MISSING_DBL);
        EXPECT_SAME_BITS(V_MeanAbs(&x, n, flags.data(), &w), MISSING_DBL);
        EXPECT_SAME_BITS(V_HarmonicMean(&x, n, flags.data(), &w), MISSING_DBL);
    }
    auto missing = vectorOf<double>({MISSING_DBL, MISSING_DBL});
    for (const int n : {2, 0, -1}) {
        EXPECT_SAME_BITS(V_Mean2(missing, n), MISSING_DBL);
        EXPECT_SAME_BITS(V_Mean2(&missing, n), MISSING_DBL);
        EXPECT_SAME_BITS(V_MeanW2(&missing, n, &w), MISSING_DBL);
    }
}

TEST(VectorMeans, ATotalWeightOfZeroGivesMissingAndANegativeOneOnlyWhereItMustBePositive)
{
    auto x = vectorOf<double>({1, 3});
    auto flags = noFlags(2);
    auto cancelling = vectorOf<double>({1, -1});
    EXPECT_SAME_BITS(V_Mean(&x, 2, flags.data(), &cancelling), MISSING_DBL);
    EXPECT_SAME_BITS(V_MeanAbs(&x, 2, flags.data(), &cancelling), MISSING_DBL);
    EXPECT_SAME_BITS(V_MeanW2(&x, 2, &cancelling), MISSING_DBL);
    auto negative = vectorOf<double>({1, -2});
    EXPECT_SAME_BITS(V_Mean(&x, 2, flags.data(), &negative), 5.0);
    EXPECT_SAME_BITS(V_MeanW2(&x, 2, &negative), MISSING_DBL);
    auto unknown = vectorOf<double>({1, notANumber});
    EXPECT_SAME_BITS(V_Mean(&x, 2, flags.data(), &unknown), notANumber);
    EXPECT_SAME_BITS(V_MeanW2(&x, 2, &unknown), MISSING_DBL);
}

TEST(VectorMeans, MeanOfAbsoluteValues)
{
    auto x = vectorOf<double>({-1, 2, -4, MISSING_DBL});
    auto w = vectorOf<double>({1, 2, 1, 1});
    auto flags = noFlags(4);
    EXPECT_SAME_BITS(V_MeanAbs(&x, 4, flags.data(), &w), 9.0 / 4.0);
    x.data[0] = notANumber;
    EXPECT_SAME_BITS(V_MeanAbs(&x, 4, flags.data(), &w), notANumber);
}

TEST(VectorMeans, MeanOfPresentElements)
{
    auto x = vectorOf<double>({1, MISSING_DBL, 2, 4});
    auto w = vectorOf<double>({2, 7, 1, 1});
    EXPECT_SAME_BITS(V_Mean2(x, 4), 7.0 / 3.0);
    EXPECT_SAME_BITS(V_Mean2(&x, 2), 1.0);
    EXPECT_SAME_BITS(V_MeanW2(&x, 4, &w), 2.0);
    EXPECT_SAME_BITS(V_Mean2(x, 6), 5.0 / 5.0) << "two elements read the spare slot, -1";
}

TEST(VectorMeans, HarmonicMean)
{
    auto x = vectorOf<double>({1, 2, 4, MISSING_DBL, 0});
    auto w = vectorOf<double>({1, 1, 2, 9, 9});
    std::vector<short int> flags{0, 0, 0, 0, 1};
    EXPECT_SAME_BITS(V_HarmonicMean(&x, 5, flags.data(), &w), 4.0 / 2.0) << "the zero is left out";
    flags[4] = 0;
    EXPECT_SAME_BITS(V_HarmonicMean(&x, 5, flags.data(), &w), MISSING_DBL);
}

TEST(VectorMeans, HarmonicMeanStopsAtAZeroOfEitherSignAndWeight)
{
    auto flags = noFlags(3);
    auto ones = vectorOf<double>({1, 1, 1});
    auto noWeight = vectorOf<double>({0, 1, 1});
    for (const double zero : {0.0, -0.0}) {
        auto x = vectorOf<double>({zero, 5, 7});
        EXPECT_SAME_BITS(V_HarmonicMean(&x, 3, flags.data(), &ones), MISSING_DBL);
        EXPECT_SAME_BITS(V_HarmonicMean(&x, 3, flags.data(), &noWeight), MISSING_DBL);
    }
    auto cancelling = vectorOf<double>({-2, 2, MISSING_DBL});
    EXPECT_SAME_BITS(V_HarmonicMean(&cancelling, 3, flags.data(), &ones), MISSING_DBL);
}

TEST(VectorMeans, GeometricMeanAndDeviation)
{
    // ln 2 and ln 8 have mean ln 4 and, over 2 - 1, variance 2 (ln 2)^2.
    const auto found = geometricOf(vectorOf<double>({2, 8}), noFlags(2), vectorOf<double>({1, 1}));
    EXPECT_EQ(found.status, 0);
    EXPECT_TRUE(withinTwoUlp(found.mean, 4.0));
    EXPECT_TRUE(withinTwoUlp(found.deviation, 2.6651441426902251886502972498731)); // 2^sqrt(2), by mpmath
}

TEST(VectorMeans, GeometricMeanLeavesOutFlaggedAndMissingElements)
{
    const auto found = geometricOf(vectorOf<double>({2, -3, MISSING_DBL, 0, 8}), {0, 1, 0, 7, 0},
                                   vectorOf<double>({1, 1, 1, 1, 1}));
    EXPECT_EQ(found.status, 0);
    EXPECT_TRUE(withinTwoUlp(found.mean, 4.0));
}

TEST(VectorMeans, GeometricMeanOfWhatHasNoLogarithmIsMissing)
{
    for (const double bad : {0.0, -0.0, -1.0, notANumber}) {
        const auto found =
            geometricOf(vectorOf<double>({2, bad, 8}), noFlags(3), vectorOf<double>({1, 0, 1}));
        EXPECT_EQ(found.status, 0);
        EXPECT_SAME_BITS(found.mean, MISSING_DBL) << bad;
        EXPECT_SAME_BITS(found.deviation, MISSING_DBL) << bad;
    }
}

TEST(VectorMeans, GeometricMeanOfNothingIsMissing)
{
    for (const auto& found :
         {geometricOf(matrix<double>(), {}, matrix<double>()),
          geometricOf(vectorOf<double>({2, MISSING_DBL}), {-1, 0}, vectorOf<double>({1, 1}))}) {
        EXPECT_EQ(found.status, 0);
        EXPECT_SAME_BITS(found.mean, MISSING_DBL);
        EXPECT_SAME_BITS(found.deviation, MISSING_DBL);
    }
}

TEST(VectorMeans, GeometricDeviationOverADenominatorThatIsZeroOrNegative)
{
    const auto one = geometricOf(vectorOf<double>({1}), noFlags(1), vectorOf<double>({3}));
    EXPECT_SAME_BITS(one.mean, 1.0);
    EXPECT_SAME_BITS(one.deviation, MISSING_DBL) << "3 - 3/1 is 0";

    // Weights 4 and -1: the second share is -1/3, so the sum of squares is negative over a denominator
    // of 1.5.
    const auto negative = geometricOf(vectorOf<double>({1, 2}), noFlags(2), vectorOf<double>({4, -1}));
    EXPECT_SAME_BITS(negative.deviation, 0.0);

    // An element of weight 0 counts in the mean weight: 2 - 2/3 and not 2 - 2/2.
    const auto zero = geometricOf(vectorOf<double>({2, 8, 64}), noFlags(3), vectorOf<double>({1, 1, 0}));
    EXPECT_TRUE(withinTwoUlp(zero.mean, 4.0));
    EXPECT_TRUE(withinTwoUlp(zero.deviation, 2.3371411566174040)); // 2^sqrt(3/2), by mpmath
}

TEST(VectorMeans, GeometricMeanOfNegativeWeightsAndOfALeadingWeightOfZero)
{
    // Over a denominator of -4 + 2 the sum of squares, -0.75 (ln 2)^2, is a variance again.
    const auto negative = geometricOf(vectorOf<double>({1, 2}), noFlags(2), vectorOf<double>({-3, -1}));
    EXPECT_TRUE(withinTwoUlp(negative.deviation, 1.52877112630288907)); // 2^sqrt(3/8), by mpmath

    const auto leading = geometricOf(vectorOf<double>({5, 2, 8}), noFlags(3), vectorOf<double>({0, 1, 1}));
    EXPECT_TRUE(withinTwoUlp(leading.mean, 4.0));
}

TEST(VectorMeans, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto w = cells.weights(cells.integer(0, 1) == 0 ? n : held);
        auto flags = cells.flags(n);
        const auto itself = [](double value) { return value; };
        const auto absolute = [](double value) { return std::abs(value); };
        ASSERT_SAME_BITS(V_Mean(&x, n, flags.data(), &w), reference::meanOf(x, n, flags.data(), &w, itself));
        ASSERT_SAME_BITS(V_MeanAbs(&x, n, flags.data(), &w),
                         reference::meanOf(x, n, flags.data(), &w, absolute));
        ASSERT_SAME_BITS(V_Mean2(x, n), reference::meanOf(x, n, nullptr, nullptr, itself));
        ASSERT_SAME_BITS(
            V_MeanW2(&x, n, &w),
            reference::meanOf(x, n, nullptr, &w, itself, reference::no_mean_when::weight_is_not_positive));
        ASSERT_SAME_BITS(V_HarmonicMean(&x, n, flags.data(), &w),
                         reference::harmonicMean(x, n, flags.data(), w));
    });
}
