#include "statistics/vector_sums.h"

#include "reference/vector_sums.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <cstdint>
#include <limits>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

TEST(VectorSums, SumLeavesOutEveryNonZeroFlag)
{
    auto x = vectorOf<double>({1, 2, 4, 8, 16});
    auto w = vectorOf<double>({1, 1, 1, 1, 0.5});
    std::vector<short int> flags{0, -1, 1, 7, 0};
    EXPECT_SAME_BITS(V_Sum(&x, 5, flags.data(), &w), 9.0);
    EXPECT_SAME_BITS(V_Sum(&x, 5, nullptr, &w), 23.0);
    EXPECT_SAME_BITS(V_Sum(&x, 5, flags.data(), nullptr), 17.0);
}

TEST(VectorSums, SumLeavesOutMissingValuesAndMissingWeights)
{
    auto x = vectorOf<double>({1, MISSING_DBL, 4, 8});
    auto w = vectorOf<double>({1, 1, MISSING_DBL, 3});
    EXPECT_SAME_BITS(V_Sum(&x, 4, nullptr, &w), 25.0);
    auto none = vectorOf<double>({MISSING_DBL, MISSING_DBL, MISSING_DBL});
    EXPECT_SAME_BITS(V_Sum(&none, 3, nullptr, &w), 0.0);
}

TEST(VectorSums, SumWithoutFlagsAndWeightsIsTheSumOfPresentElements)
{
    auto x = vectorOf<double>({0.1, MISSING_DBL, 0.2, 0.3, -0.4});
    EXPECT_SAME_BITS(V_Sum(&x, 5, nullptr, nullptr), V_Sum2(x, 5));
    EXPECT_SAME_BITS(V_Sum2(x, 5), ((0.1 + 0.2) + 0.3) - 0.4);
}

TEST(VectorSums, OnlyTheSentinelItselfIsMissing)
{
    auto x = vectorOf<double>({belowSentinel, 1.0});
    EXPECT_SAME_BITS(V_Sum(&x, 2, nullptr, nullptr), belowSentinel);
    EXPECT_SAME_BITS(V_Sum2(x, 2), belowSentinel);
    auto withNan = vectorOf<double>({1.0, notANumber});
    EXPECT_SAME_BITS(V_Sum(&withNan, 2, nullptr, nullptr), notANumber);
    EXPECT_SAME_BITS(V_Sum2(withNan, 2), notANumber);
    EXPECT_SAME_BITS(V_SumSq(&withNan, 2), notANumber);
}

TEST(VectorSums, AnElementLeftOutTakesItsNanWithIt)
{
    auto x = vectorOf<double>({notANumber, 2, MISSING_DBL});
    auto w = vectorOf<double>({1, 1, notANumber});
    std::vector<short int> flags{1, 0, 0};
    EXPECT_SAME_BITS(V_Sum(&x, 3, flags.data(), &w), 2.0);
    x.data[0] = 0.0;
    EXPECT_SAME_BITS(V_SumSqW(&x, 3, &w), 4.0);
}

TEST(VectorSums, SumsStartFromPositiveZero)
{
    auto x = vectorOf<double>({-0.0, -0.0});
    EXPECT_SAME_BITS(V_Sum(&x, 2, nullptr, nullptr), 0.0);
    EXPECT_SAME_BITS(V_Sum2(x, 2), 0.0);
    EXPECT_SAME_BITS(korvel::sumOfProducts(x, 2, x), 0.0);
    EXPECT_SAME_BITS(korvel::sumFromTo(x.data, 1, 2), 0.0);
}

TEST(VectorSums, ShortVectorReadsTheSpareSlot)
{
    matrix<double> x(2, 1, 3.0);
    matrix<int> counts(2, 1, 3);
    EXPECT_SAME_BITS(V_Sum(&x, 3, nullptr, nullptr), 3.0 + 3.0 - 1.0);
    EXPECT_SAME_BITS(V_Sum2(x, 4), 3.0 + 3.0 - 2.0);
    EXPECT_SAME_BITS(V_Sum2(&counts, 4), 3.0 + 3.0 - 2.0);
    x.setElement(0, 0, 7.0);
    EXPECT_SAME_BITS(V_SumSq(&x, 3), 49.0 + 9.0 + 49.0);
}

TEST(VectorSums, MissingElementsMultiplyThroughWhereNothingIsSkipped)
{
    auto x = vectorOf<double>({1, MISSING_DBL});
    auto half = vectorOf<double>({1, 0.5});
    EXPECT_SAME_BITS(korvel::sumOfProducts(x, 2, half), 1.0 + MISSING_DBL * 0.5);
    EXPECT_SAME_BITS(V_Sq(&x, 2), infinite);
    EXPECT_SAME_BITS(V_DiffSq(&x, 2, &half), infinite);
    EXPECT_SAME_BITS(V_SumSq(&x, 2), 1.0);
    auto missingWeight = vectorOf<double>({0.5, MISSING_DBL});
    auto ones = vectorOf<double>({1, 1});
    EXPECT_SAME_BITS(V_SumSqW(&ones, 2, &missingWeight), MISSING_DBL);
    EXPECT_SAME_BITS(V_SumSqW(&x, 2, &missingWeight), 0.5);
}

TEST(VectorSums, SquaresAndDistances)
{
    auto x = vectorOf<double>({1, 2, 3});
    auto y = vectorOf<double>({4, 0, 2.5});
    auto w = vectorOf<double>({2, 0.5, 4});
    EXPECT_SAME_BITS(V_SumSq(&x, 3), 14.0);
    EXPECT_SAME_BITS(V_Sq(&x, 3), 14.0);
    EXPECT_SAME_BITS(V_SumSqW(&x, 3, &w), 2.0 + 2.0 + 36.0);
    EXPECT_SAME_BITS(V_DiffSq(&x, 3, &y), 9.0 + 4.0 + 0.25);
    EXPECT_SAME_BITS(V_DiffSqW(&x, 3, &y, &w), 18.0 + 2.0 + 1.0);
}

TEST(VectorSums, DistanceFromAPosition)
{
    auto x = vectorOf<double>({1, 2, 3, 4});
    auto y = vectorOf<double>({0, 0, 0, 0});
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 4, &y, 1), 30.0);
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 4, &y, 3), 25.0);
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 4, &y, 4), 16.0);
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 4, &y, 5), 0.0);
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 5, &y, 5), 0.0) << "both spare slots hold -1";
    x.oobValue = 2.0;
    EXPECT_SAME_BITS(V_DiffSqStart(&x, 1, &y, -1), 9.0 + 9.0 + 1.0) << "positions -1 and 0 lie outside";
}

TEST(VectorSums, EmptyInputGivesZeroAndReadsNothing)
{
    matrix<double> x;
    matrix<int> counts;
    for (const int n : {0, -3}) {
        EXPECT_SAME_BITS(V_Sum(&x, n, nullptr, nullptr), 0.0);
        EXPECT_SAME_BITS(V_Sum(&x, n, nullptr, &x), 0.0);
        EXPECT_SAME_BITS(V_Sum2(&x, n), 0.0);
        EXPECT_SAME_BITS(V_Sum2(&counts, n), 0.0);
        EXPECT_SAME_BITS(V_Sum2(counts.data, n), 0.0);
        EXPECT_SAME_BITS(V_SumSq(&x, n), 0.0);
        EXPECT_SAME_BITS(V_SumSqW(&x, n, &x), 0.0);
        EXPECT_SAME_BITS(V_Sq(&x, n), 0.0);
        EXPECT_SAME_BITS(V_DiffSq(&x, n, &x), 0.0);
        EXPECT_SAME_BITS(V_DiffSqW(&x, n, &x, &x), 0.0);
        EXPECT_SAME_BITS(V_DiffSqStart(&x, n, &x, 1), 0.0);
        EXPECT_SAME_BITS(korvel::sumOfProducts(x, n, x), 0.0);
    }
}

TEST(VectorSums, IntegerSumWrapsAround)
{
    auto x = vectorOf<int>({2147483647, 1, 5});
    EXPECT_SAME_BITS(V_Sum2(&x, 2), -2147483648.0);
    EXPECT_SAME_BITS(V_Sum2(x.data, 3), -2147483643.0);
    auto low = vectorOf<int>({MISSING_LNG, -1});
    EXPECT_SAME_BITS(V_Sum2(&low, 1), -2147483648.0) << "no integer is missing here";
    EXPECT_SAME_BITS(V_Sum2(&low, 2), 2147483647.0);
}

TEST(VectorSums, StretchOfAnArray)
{
    const std::vector<double> x{1, 2, 4, 8, MISSING_DBL};
    EXPECT_SAME_BITS(korvel::sumFromTo(x.data(), 2, 4), 14.0);
    EXPECT_SAME_BITS(korvel::sumFromTo(x.data(), 3, 3), 4.0);
    EXPECT_SAME_BITS(korvel::sumFromTo(x.data(), 3, 2), 0.0);
    EXPECT_SAME_BITS(korvel::sumFromTo(x.data(), 4, 5), 8.0 + MISSING_DBL);
    const std::vector<int> counts{1, 2147483647, 1, 1};
    EXPECT_EQ(korvel::sumFromTo(counts.data(), 2, 4), -2147483647);
    EXPECT_EQ(korvel::sumFromTo(counts.data(), 4, 1), 0);
}

TEST(VectorSums, RunningSumKeepsMissingElementsAndWorksInPlace)
{
    auto x = vectorOf<double>({-0.0, 2, 0.5, 4});
    auto out = vectorOf<double>({9, 9, 9, 9});
    V_CuSum(&x, 3, &out);
    EXPECT_SAME_BITS(out[0], -0.0) << "the first element as it is";
    EXPECT_SAME_BITS(out[1], 2.0);
    EXPECT_SAME_BITS(out[2], 2.5);
    EXPECT_SAME_BITS(out[3], 9.0);
    V_CuSum(&x, x.nbrows, &x);
    EXPECT_SAME_BITS(x[3], 6.5);
    auto missing = vectorOf<double>({1e300, MISSING_DBL});
    V_CuSum(&missing, 2, &out);
    EXPECT_SAME_BITS(out[1], 1e300 + MISSING_DBL);
}

TEST(VectorSums, RunningSumOfNothingWritesNothing)
{
    matrix<double> none;
    V_CuSum(&none, 0, &none);
    auto x = vectorOf<double>({1});
    auto out = vectorOf<double>({9});
    V_CuSum(&x, 0, &out);
    V_CuSum(&x, -1, &out);
    EXPECT_SAME_BITS(out[0], 9.0);
}

TEST(VectorSums, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto y = cells.values(cells.integer(0, 1) == 0 ? n : held);
        auto w = cells.weights(n);
        auto flags = cells.flags(n);
        const int start = cells.integer(-2, n + 2);
        ASSERT_SAME_BITS(V_Sum(&x, n, flags.data(), &w), reference::sum(x, n, flags.data(), &w));
        ASSERT_SAME_BITS(V_Sum(&x, n, nullptr, &w), reference::sum(x, n, nullptr, &w));
        ASSERT_SAME_BITS(V_Sum(&x, n, flags.data(), nullptr), reference::sum(x, n, flags.data(), nullptr));
        ASSERT_SAME_BITS(V_Sum2(x, n), reference::sum(x, n, nullptr, nullptr));
        ASSERT_SAME_BITS(V_SumSq(&x, n), reference::sumSq(x, n, true));
        ASSERT_SAME_BITS(V_Sq(&x, n), reference::sumSq(x, n, false));
        ASSERT_SAME_BITS(V_SumSqW(&x, n, &w), reference::sumSqW(x, n, w));
        ASSERT_SAME_BITS(V_DiffSq(&x, n, &y), reference::diffSq(x, n, y, nullptr, 1));
        ASSERT_SAME_BITS(V_DiffSqW(&x, n, &y, &w), reference::diffSq(x, n, y, &w, 1));
        ASSERT_SAME_BITS(V_DiffSqStart(&x, n, &y, start), reference::diffSq(x, n, y, nullptr, start));
        ASSERT_SAME_BITS(korvel::sumOfProducts(x, n, w), reference::sumW(x, n, w));
        const int to = cells.integer(0, held);
        const int from = cells.integer(1, to + 2);
        ASSERT_SAME_BITS(korvel::sumFromTo(x.data, from, to), reference::sumFromTo(x, from, to));
        auto counts = cells.integers(held, MISSING_LNG, std::numeric_limits<int>::max());
        ASSERT_SAME_BITS(V_Sum2(&counts, n), reference::wrappedSum(counts, n));
    });
}

TEST(VectorSums, RunningSumsEqualToThePlainLoop)
{
    forRandomVectors([](random_cells& cells, int n, int) {
        if (n < 1) {
            return;
        }
        auto x = cells.values(n);
        matrix<double> out(n, 1, 0.0);
        matrix<double> expected(n, 1, 0.0);
        V_CuSum(&x, n, &out);
        reference::runningSums(x, n, expected);
        V_CuSum(&x, n, &x);
        for (int i = 0; i < n; ++i) {
            ASSERT_SAME_BITS(out[i], expected[i]) << i << " of " << n;
            ASSERT_SAME_BITS(x[i], expected[i]) << i << " of " << n << ", in place";
        }
    });
}
