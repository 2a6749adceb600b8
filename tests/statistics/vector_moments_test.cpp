#include "statistics/vector_moments.h"

#include "reference/vector_variance.h"
#include "support/bits.h"
#include "support/nist.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using reference::denominator_flags;
using reference::eight_moments;

namespace
{

enum moment { mean, var, skewP, kurtP, skew, kurt, seSkew, seKurt };

constexpr std::array<const char*, 8> momentNames{"mean", "var",  "skewP",  "kurtP",
                                                 "skew", "kurt", "seSkew", "seKurt"};

eight_moments momentsOf(matrix<double> x, std::vector<short int> flags, matrix<double> w,
                        denominator_flags how)
{
    eight_moments found;
    found.fill(notANumber);
    V_MeanVarSkewPKurtP(&x, static_cast<int>(flags.size()), found[mean], found[var], found[skewP],
                        found[kurtP], found[skew], found[kurt], found[seSkew], found[seKurt], flags.data(),
                        &w, how.unbiased, how.freq);
    return found;
}

eight_moments momentsOf(const std::vector<double>& cells, const std::vector<double>& weights,
                        denominator_flags how)
{
    return momentsOf(vectorOf<double>(cells), std::vector<short int>(cells.size()), vectorOf<double>(weights),
                     how);
}

eight_moments unitMomentsOf(const std::vector<double>& cells, denominator_flags how)
{
    return momentsOf(cells, std::vector<double>(cells.size(), 1.0), how);
}

void expectSameBits(const eight_moments& actual, const eight_moments& expected)
{
    for (std::size_t k = 0; k < actual.size(); ++k) {
        EXPECT_SAME_BITS(actual[k], expected[k]) << momentNames[k];
    }
}

constexpr double none = MISSING_DBL;

} // namespace

TEST(VectorMoments, FourElements)
{
    // Deviations -3, -1, 1, 3: the sums of their powers are 20, 0, 164.
    const auto population = unitMomentsOf({1, 3, 5, 7}, {0, 0});
    expectSameBits(population,
                   {4.0, 5.0, 0.0, 41.0 / 25.0 - 3.0, 0.0,
                    3.0 / (2.0 * 1.0) * ((41.0 / 25.0 - 3.0 + 3.0) * 5.0 - 3.0 * 3.0), std::sqrt(72.0 / 70.0),
                    2.0 * std::sqrt(72.0 / 70.0) * std::sqrt(15.0 / 9.0)});
    EXPECT_SAME_BITS(unitMomentsOf({1, 3, 5, 7}, {-1, 0})[var], 20.0 / 3.0);
    EXPECT_SAME_BITS(unitMomentsOf({1, 3, 5, 7}, {-1, -1})[var], 20.0 / 3.0);
    EXPECT_SAME_BITS(unitMomentsOf({1, 3, 5, 7}, {1, -1})[var], 5.0) << "1 is not true";
    EXPECT_SAME_BITS(unitMomentsOf({1, 3, 5, 7}, {-1, 0})[kurtP], 41.0 / (20.0 / 3.0 * (20.0 / 3.0)) - 3.0);
}

TEST(VectorMoments, AConstantVectorHasNoShape)
{
    for (const denominator_flags how : {denominator_flags{0, 0}, {-1, 0}, {-1, -1}, {1, 0}}) {
        expectSameBits(unitMomentsOf({5, 5, 5, 5}, how), {5.0, 0.0, none, none, none, none, 0.0, 0.0});
    }
}

TEST(VectorMoments, ThreeElementsHaveASkewnessAndNoKurtosis)
{
    for (const short int freq : std::array<short int, 2>{-1, 0}) {
        const auto found = unitMomentsOf({1, 2, 6}, {-1, freq});
        // Deviations -2, -1, 3: the sums of their powers are 14, 18, 98.
        EXPECT_DOUBLE_EQ(found[mean], 3.0);
        EXPECT_DOUBLE_EQ(found[var], 7.0);
        EXPECT_DOUBLE_EQ(found[skewP], 6.0 / (7.0 * std::sqrt(7.0)));
        EXPECT_DOUBLE_EQ(found[kurtP], 98.0 / 3.0 / 49.0 - 3.0);
        EXPECT_SAME_BITS(found[skew], found[skewP] * std::sqrt(6.0));
        EXPECT_SAME_BITS(found[seSkew], std::sqrt(36.0 / 24.0));
        EXPECT_SAME_BITS(found[kurt], none);
        EXPECT_SAME_BITS(found[seKurt], none);
    }
}

TEST(VectorMoments, TwoElementsHaveNeither)
{
    const auto found = unitMomentsOf({1, 3}, {0, 0});
    expectSameBits(found, {2.0, 1.0, 0.0, -2.0, none, none, none, none});
}

TEST(VectorMoments, NothingKept)
{
    const auto missing = std::vector<double>{MISSING_DBL, MISSING_DBL};
    for (const short int freq : std::array<short int, 2>{0, -1}) {
        expectSameBits(unitMomentsOf(missing, {0, freq}), {0.0, none, none, none, none, none, 0.0, 0.0});
        expectSameBits(unitMomentsOf({}, {0, freq}), {0.0, none, none, none, none, none, 0.0, 0.0});
    }
    expectSameBits(unitMomentsOf(missing, {-1, 0}), {0.0, none, none, none, none, none, 0.0, 0.0});
    // 0 over -1: a variance of 0.
    expectSameBits(unitMomentsOf(missing, {-1, -1}), {0.0, -0.0, none, none, none, none, 0.0, 0.0});
    // With a flag that is neither -1 nor 0, nothing prevents 0 over 0.
    expectSameBits(unitMomentsOf(missing, {1, 0}),
                   {0.0, notANumber, notANumber, notANumber, none, none, none, none});
}

TEST(VectorMoments, OneElement)
{
    for (const short int freq : std::array<short int, 2>{0, -1}) {
        expectSameBits(unitMomentsOf({5}, {-1, freq}), {5.0, none, none, none, none, none, 0.0, 0.0});
        expectSameBits(unitMomentsOf({5}, {0, freq}), {5.0, 0.0, none, none, none, none, 0.0, 0.0});
    }
}

TEST(VectorMoments, FlaggedMissingAndWeightlessElements)
{
    const auto plain = unitMomentsOf({1, 2, 4, 9, 3}, {-1, -1});
    const auto found = momentsOf(vectorOf<double>({100, 1, 2, MISSING_DBL, 4, 50, 60, 9, 70, 3, 80}),
                                 {0, 0, 0, 0, 0, -1, 1, 0, 7, 0, 0},
                                 vectorOf<double>({0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0}), {-1, -1});
    expectSameBits(found, plain);
    // With the mean weight 5/7 as unit the two weightless elements count.
    const auto scaled = momentsOf({100, 1, 2, 4, 9, 3, 80}, {0, 1, 1, 1, 1, 1, 0}, {-1, 0});
    EXPECT_SAME_BITS(scaled[var], plain[var] * 4.0 / (5.0 - 5.0 / 7.0));
}

TEST(VectorMoments, OnlyTheSentinelItselfIsMissing)
{
    EXPECT_TRUE(std::isnan(unitMomentsOf({1, notANumber, 3, 4}, {0, 0})[mean]));
    EXPECT_FALSE(std::isfinite(unitMomentsOf({1, belowSentinel, 3, 4}, {0, 0})[var]));
}

TEST(VectorMoments, TwoHeavyElementsAsFrequencies)
{
    // S is 20, its unit 1 and the mean weight 10: no skewness, since S is not above twice the mean weight,
    // but a kurtosis, with a standard error made from a missing one.
    const auto found = momentsOf({1, 3}, {10, 10}, {-1, -1});
    EXPECT_SAME_BITS(found[var], 20.0 / 19.0);
    EXPECT_SAME_BITS(found[skew], none);
    EXPECT_SAME_BITS(found[seSkew], none);
    EXPECT_SAME_BITS(found[kurt], 19.0 / (18.0 * 17.0) * ((found[kurtP] + 3.0) * 21.0 - 3.0 * 19.0));
    EXPECT_SAME_BITS(found[seKurt], -infinite);
}

TEST(VectorMoments, ANegativeVarianceHasAMissingDeviation)
{
    const auto found = momentsOf({0, 1}, {4, -1}, {0, 0}); // S 3, a 1.5
    ASSERT_LT(found[var], 0.0);
    // The deviation itself becomes missing, and the formula goes on with it.
    const double m3 = (1.0 - 3.0 * (-1.0 / 3.0) + 2.0 * (-1.0 / 3.0 * (-1.0 / 3.0))) * -1.0;
    EXPECT_SAME_BITS(found[skewP], m3 / 3.0 / (found[var] * MISSING_DBL));
}

TEST(VectorMoments, ANegativeNumberUnderARootGivesAMissingRoot)
{
    // As frequencies S is 0.6 and its unit 1, so S(S - 1) is negative while S is above twice the mean weight
    // 0.2.
    const auto found = momentsOf({1, 2, 6}, {0.2, 0.2, 0.2}, {0, -1});
    const double s = 0.2 + 0.2 + 0.2;
    EXPECT_SAME_BITS(found[skew], found[skewP] * MISSING_DBL / (s - 2.0));
    EXPECT_SAME_BITS(found[seSkew], std::sqrt(6.0 * s * (s - 1.0) / ((s - 2.0) * (s + 1.0) * (s + 3.0))));
    EXPECT_SAME_BITS(found[kurt], none) << "S is not above 2";
    EXPECT_SAME_BITS(found[seKurt], none);

    // S is 1.5: the numerator of the standard error is positive, its denominator negative.
    const auto between = momentsOf({1, 2, 6}, {0.5, 0.5, 0.5}, {0, -1});
    EXPECT_SAME_BITS(between[skew], between[skewP] * std::sqrt(1.5 * 0.5) / -0.5);
    EXPECT_SAME_BITS(between[seSkew], none);
}

TEST(VectorMoments, ShapeDoesNotDependOnTheUnitOfTheWeights)
{
    random_cells cells(7, odd_cells::none);
    for (const denominator_flags how : {denominator_flags{0, 0}, {-1, 0}}) {
        std::vector<double> x;
        std::vector<double> w;
        for (int i = 0; i < 50; ++i) {
            x.push_back(cells.value());
            w.push_back(cells.weight());
        }
        std::vector<double> heavier;
        for (const double weight : w) {
            heavier.push_back(4.0 * weight);
        }
        const auto once = momentsOf(x, w, how);
        const auto fourfold = momentsOf(x, heavier, how);
        for (const moment k : {mean, var, skewP, kurtP, skew, kurt}) {
            EXPECT_SAME_BITS(fourfold[k], once[k]) << momentNames[k];
        }
        EXPECT_SAME_BITS(fourfold[seSkew], once[seSkew] / 2.0);
    }
}

// Skewness and kurtosis of NIST data sets by their definitions in two passes with 50 digits (mpmath 1.2), for
// the elements as they are and for element i, from 0, repeated 1 + i mod 3 times; the former agree with
// scipy.stats.skew and kurtosis of SciPy 1.10.1 to 11 digits.
TEST(VectorMoments, AgreesWithTheDefinitions)
{
    struct expected {
        const char* set;
        bool repeated;
        eight_moments moments;
        std::array<double, 8> digits; ///< What was measured, cut to a tenth.
    };
    const std::array<expected, 6> table{{
        {"Lew",
         false,
         {-177.435, 76528.565775, -0.050226295458212984, -1.4887601738140265, -0.050606638756334016,
          -1.4960497921444712, 0.1719247962911448, 0.34220238921115604},
         {15, 15, 15, 15, 15, 15, 15, 15}},
        {"Lew",
         true,
         {-177.58395989974937, 77892.608865522201, -0.051275811264721792, -1.508794360686143,
          -0.05146950807299562, -1.5126839059437827, 0.12217021368287761, 0.24374099817320956},
         {15, 15, 15, 15, 15, 15, 15, 15}},
        {"Michelso",
         false,
         {299.8524, 0.00618024, -0.018259613963112966, 0.26353053231139161, -0.01853886377521839,
          0.33968459842011411, 0.24137977904012977, 0.47833113299481335},
         {15, 12.0, 10.2, 11.4, 10.2, 11.5, 15, 15}},
        {"Michelso",
         true,
         {299.85211055276382, 0.0059965505921567637, -0.044125664754718865, 0.21061208397884812,
          -0.04446150592296994, 0.24676884195489447, 0.17234987108210844, 0.34304052799506894},
         {15, 12.3, 10.5, 11.1, 10.5, 11.2, 15, 15}},
        {"PiDigits",
         false,
         {4.5348, 8.21998896, -0.0079903206234641209, -1.2199888438978841, -0.0079927186389017364,
          -1.2200087510472773, 0.034630629906234596, 0.069247431095775371},
         {14.6, 14.9, 13.9, 14.2, 13.9, 14.2, 15, 15}},
        {"PiDigits",
         true,
         {4.5437543754375438, 8.1130720532799355, -0.014337379438009872, -1.1973843867708669,
          -0.014339530672371469, -1.1973830543455881, 0.024492448550449214, 0.048980002284639696},
         {14.8, 15, 14.1, 14.2, 14.1, 14.2, 15, 15}},
    }};
    for (const expected& row : table) {
        const auto cells = readUnivariateSet(row.set).cells;
        std::vector<double> weights;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            weights.push_back(row.repeated ? 1.0 + static_cast<double>(i % 3) : 1.0);
        }
        const auto found = momentsOf(cells, weights, {0, -1});
        for (std::size_t k = 0; k < found.size(); ++k) {
            EXPECT_GE(correctDigits(found[k], row.moments[k]), row.digits[k])
                << row.set << (row.repeated ? ", repeated: " : ": ") << momentNames[k];
        }
    }
}

TEST(VectorMoments, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto w = cells.weights(cells.integer(0, 1) == 0 ? n : held);
        auto flags = cells.flags(n);
        for (const denominator_flags how :
             {denominator_flags{0, 0}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {1, 0}}) {
            const auto expected = reference::moments(x, n, flags.data(), w, how);
            const auto found = momentsOf(x, flags, w, how);
            for (std::size_t k = 0; k < found.size(); ++k) {
                ASSERT_SAME_BITS(found[k], expected[k]) << momentNames[k];
            }
        }
    });
}
