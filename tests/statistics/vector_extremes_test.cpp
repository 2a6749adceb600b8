#include "statistics/vector_extremes.h"

#include "reference/vector_extremes.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <array>
#include <functional>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using reference::extremes;

namespace
{

template <class T>
extremes minMax(matrix<T>& x, std::vector<short int> flags)
{
    extremes found{notANumber, notANumber};
    V_MinMax(&x, static_cast<int>(flags.size()), &found.smallest, &found.largest, flags.data());
    return found;
}

template <class T>
extremes minMax2(matrix<T>& x, int n, short int bSkipMissing)
{
    extremes found{notANumber, notANumber};
    V_MinMax2(&x, n, &found.smallest, &found.largest, bSkipMissing);
    return found;
}

template <class T>
extremes minMax2(std::vector<T> cells, short int bSkipMissing)
{
    const int n = static_cast<int>(cells.size());
    auto x = vectorOf<T>(std::move(cells));
    return minMax2(x, n, bSkipMissing);
}

testing::AssertionResult same(extremes actual, extremes expected)
{
    const auto sameSmallest = sameBits(actual.smallest, expected.smallest);
    return sameSmallest ? sameBits(actual.largest, expected.largest) : sameSmallest;
}

struct found_position {
    double value;
    int pos;

    friend bool operator==(const found_position&, const found_position&) = default;
};

found_position smallestOf(std::vector<double> cells, bool bLast)
{
    found_position found{0.0, -9};
    auto x = vectorOf<double>(cells);
    found.value = V_MinAndMinPos(&x, static_cast<int>(cells.size()), &found.pos, bLast);
    return found;
}

template <class T>
found_position largestOf(std::vector<T> cells)
{
    found_position found{0.0, -9};
    auto x = vectorOf<T>(cells);
    found.value = V_MaxAndMaxPos(&x, static_cast<int>(cells.size()), &found.pos);
    return found;
}

} // namespace

TEST(VectorExtremes, FlaggedAndMissingElementsAreLeftOut)
{
    auto x = vectorOf<double>({-9, 5, MISSING_DBL, 7, 2, 90, -80});
    std::vector<short int> flags{-1, 0, 0, 0, 0, 1, 7};
    EXPECT_SAME_BITS(V_Min(&x, 7, flags.data()), 2.0);
    EXPECT_SAME_BITS(V_Max(&x, 7, flags.data()), 7.0);
    EXPECT_TRUE(same(minMax(x, flags), {2.0, 7.0}));
    EXPECT_SAME_BITS(V_Max(&x, 7, nullptr), 90.0);
    EXPECT_SAME_BITS(V_Min2(x, 7), -80.0);
    EXPECT_SAME_BITS(V_Min2(&x, 5), -9.0);
    EXPECT_SAME_BITS(V_Max2(x, 5), 7.0);
    EXPECT_SAME_BITS(V_Max2(&x, 7), 90.0);
}

TEST(VectorExtremes, NothingKeptIsMissing)
{
    auto x = vectorOf<double>({1, MISSING_DBL});
    std::vector<short int> flags{7, 0};
    for (const int n : {2, 0, -1}) {
        EXPECT_SAME_BITS(V_Min(&x, n, flags.data()), MISSING_DBL);
        EXPECT_SAME_BITS(V_Max(&x, n, flags.data()), MISSING_DBL);
    }
    EXPECT_TRUE(same(minMax(x, flags), {MISSING_DBL, MISSING_DBL}));
    auto missing = vectorOf<double>({MISSING_DBL});
    matrix<int> none;
    for (const int n : {1, 0, -1}) {
        EXPECT_SAME_BITS(V_Min2(missing, n), MISSING_DBL);
        EXPECT_SAME_BITS(V_Max2(missing, n), MISSING_DBL);
        EXPECT_SAME_BITS(V_Max(&missing, n, nullptr), MISSING_DBL);
    }
    EXPECT_SAME_BITS(V_Min2(&none, 0), MISSING_DBL);
    EXPECT_SAME_BITS(V_Max(&none, 0, nullptr), MISSING_DBL);
    EXPECT_EQ(V_Max2(&none, 0), MISSING_LNG);
    EXPECT_EQ(V_Max2(&none, -1), MISSING_LNG);
}

TEST(VectorExtremes, OnlyTheSentinelItselfIsMissing)
{
    auto x = vectorOf<double>({1, belowSentinel});
    EXPECT_SAME_BITS(V_Min2(x, 2), belowSentinel);
    x.data[1] = -infinite;
    EXPECT_SAME_BITS(V_Min2(x, 2), -infinite);
}

TEST(VectorExtremes, ANanStaysWhenItIsFirstAndNeverWinsLater)
{
    auto first = vectorOf<double>({MISSING_DBL, notANumber, 1, 2, 3, 4, 5, 6, 7});
    EXPECT_SAME_BITS(V_Min2(first, 9), notANumber);
    EXPECT_SAME_BITS(V_Max2(first, 9), notANumber);
    auto later = vectorOf<double>({3, notANumber, 1, notANumber, 7, notANumber, notANumber});
    EXPECT_SAME_BITS(V_Min2(later, 7), 1.0);
    EXPECT_SAME_BITS(V_Max2(later, 7), 7.0);
}

TEST(VectorExtremes, OfTwoZerosTheFirstStays)
{
    for (const double zero : {0.0, -0.0}) {
        auto low = vectorOf<double>({3, -zero, 5, zero, 6, -zero, -zero, zero, 2, -zero});
        std::vector<short int> flags{0, 1, 0, 0, 0, 0, 0, 0, 0, 0};
        EXPECT_SAME_BITS(V_Min(&low, 10, flags.data()), zero);
        EXPECT_SAME_BITS(V_Min2(low, 10), -zero);
        auto high = vectorOf<double>({-3, zero, -5, -zero, -6, -zero, -zero, -zero, -2});
        EXPECT_SAME_BITS(V_Max2(high, 9), zero);
    }
}

TEST(VectorExtremes, NoIntegerIsMissing)
{
    auto x = vectorOf<int>({3, MISSING_LNG, 8, -2});
    std::vector<short int> none(4);
    EXPECT_SAME_BITS(V_Min(&x, 4, none.data()), -2147483648.0);
    EXPECT_SAME_BITS(V_Min2(&x, 4), -2147483648.0);
    EXPECT_SAME_BITS(V_Max(&x, 4, none.data()), 8.0);
    EXPECT_SAME_BITS(V_Max(&x, 2, nullptr), 3.0);
    EXPECT_TRUE(same(minMax(x, none), {-2147483648.0, 8.0}));
    EXPECT_EQ(V_Max2(&x, 4), 8);
    auto low = vectorOf<int>({MISSING_LNG});
    EXPECT_EQ(V_Max2(&low, 1), MISSING_LNG);
    std::vector<short int> flags{0, 1, -1, 7};
    EXPECT_SAME_BITS(V_Min(&x, 4, flags.data()), 3.0);
    EXPECT_SAME_BITS(V_Max(&x, 4, flags.data()), 3.0);
}

TEST(VectorExtremes, MissingElementsArePassedOverOnlyInFront)
{
    EXPECT_TRUE(same(minMax2<double>({5, MISSING_DBL, 7}, -1), {MISSING_DBL, 7.0}));
    EXPECT_TRUE(same(minMax2<double>({MISSING_DBL, MISSING_DBL, 5, 7}, -1), {5.0, 7.0}));
    EXPECT_TRUE(same(minMax2<double>({MISSING_DBL, 5, 7}, 1), {5.0, 7.0})) << "any other value than 0";
    EXPECT_TRUE(same(minMax2<double>({MISSING_DBL, 5, 7}, 0), {MISSING_DBL, 7.0}));
    EXPECT_TRUE(same(minMax2<double>({5, 3, 7}, 0), {3.0, 7.0}));
    EXPECT_TRUE(same(minMax2<double>({MISSING_DBL, MISSING_DBL}, -1), {MISSING_DBL, MISSING_DBL}));
    EXPECT_TRUE(same(minMax2<double>({notANumber, 1, 2}, 0), {notANumber, notANumber}));
    EXPECT_TRUE(same(minMax2<double>({MISSING_DBL, notANumber, 1}, -1), {notANumber, notANumber}));
    EXPECT_TRUE(same(minMax2<int>({5, MISSING_LNG, 7}, -1), {-2147483648.0, 7.0}));
    EXPECT_TRUE(same(minMax2<int>({MISSING_LNG, 5, 7}, -1), {-2147483648.0, 7.0}));
}

TEST(VectorExtremes, BothExtremesOfNothing)
{
    auto x = vectorOf<double>({5, 7});
    matrix<double> none;
    matrix<int> noCounts;
    for (const int n : {0, -2}) {
        EXPECT_TRUE(same(minMax2(x, n, 0), {5.0, 5.0})) << "element 1";
        EXPECT_TRUE(same(minMax2(x, n, -1), {MISSING_DBL, 5.0}));
        EXPECT_TRUE(same(minMax2(none, n, 0), {-1.0, -1.0})) << "the spare slot";
        EXPECT_TRUE(same(minMax2(none, n, -1), {MISSING_DBL, -1.0}));
        EXPECT_TRUE(same(minMax2(noCounts, n, -1), {MISSING_DBL, -1.0}));
    }
    x.data[0] = -0.0;
    EXPECT_TRUE(same(minMax2(x, 0, 0), {-0.0, -0.0}));
}

TEST(VectorExtremes, ShortVectorReadsTheSpareSlot)
{
    auto x = vectorOf<double>({5, 7});
    auto counts = vectorOf<int>({5, 7});
    EXPECT_SAME_BITS(V_Min2(x, 3), -1.0);
    EXPECT_SAME_BITS(V_Min2(&counts, 3), -1.0);
    EXPECT_TRUE(same(minMax2(x, 5, 0), {-1.0, 7.0}));
    int pos = 0;
    EXPECT_SAME_BITS(V_MinAndMinPos(&x, 4, &pos, false), -1.0);
    EXPECT_EQ(pos, 3);
}

TEST(VectorExtremes, PositionOfTheSmallest)
{
    EXPECT_EQ(smallestOf({1, 3, 1}, false), (found_position{1.0, 1}));
    EXPECT_EQ(smallestOf({1, 3, 1}, true), (found_position{1.0, 3}));
    EXPECT_EQ(smallestOf({4, 3, 5, 3, 6}, false), (found_position{3.0, 2}));
    EXPECT_EQ(smallestOf({4, 3, 5, 3, 6}, true), (found_position{3.0, 4}));
    EXPECT_EQ(smallestOf({4, MISSING_DBL, 5}, false), (found_position{MISSING_DBL, 2}));
    EXPECT_EQ(smallestOf({4, notANumber, 5}, true), (found_position{4.0, 1}));
    for (const bool last : {false, true}) {
        const auto found = smallestOf({notANumber, 4, notANumber}, last);
        EXPECT_SAME_BITS(found.value, notANumber);
        EXPECT_EQ(found.pos, 1);
    }
    EXPECT_SAME_BITS(smallestOf({2, -0.0, 0.0, 3}, false).value, -0.0);
    EXPECT_SAME_BITS(smallestOf({2, -0.0, 0.0, 3}, true).value, 0.0);
}

TEST(VectorExtremes, PositionOfTheLargest)
{
    EXPECT_EQ(largestOf<double>({3, 1, 3}), (found_position{3.0, 1}));
    EXPECT_EQ(largestOf<double>({3, 4, 9, 9, 2}), (found_position{9.0, 3}));
    EXPECT_EQ(largestOf<double>({MISSING_DBL, belowSentinel}), (found_position{MISSING_DBL, 1}));
    EXPECT_EQ(largestOf<int>({3, 4, 9, 9, MISSING_LNG}), (found_position{9.0, 3}));
}

TEST(VectorExtremes, PositionsOfOneElementAnywhere)
{
    for (int n = 1; n <= 40; ++n) {
        for (int place = 0; place < n; ++place) {
            auto x = vectorOf<double>(std::vector<double>(static_cast<std::size_t>(n), 7.0));
            auto counts = vectorOf<int>(std::vector<int>(static_cast<std::size_t>(n), 7));
            int pos = 0;
            x.data[place] = 8.0;
            counts.data[place] = 8;
            EXPECT_SAME_BITS(V_MaxAndMaxPos(&x, n, &pos), 8.0);
            EXPECT_EQ(pos, place + 1);
            EXPECT_SAME_BITS(V_MaxAndMaxPos(&counts, n, &pos), 8.0);
            EXPECT_EQ(pos, place + 1);
            x.data[place] = 6.0;
            EXPECT_SAME_BITS(V_MinAndMinPos(&x, n, &pos, false), 6.0);
            EXPECT_EQ(pos, place + 1);
        }
    }
}

TEST(VectorExtremes, PositionsInFewerThanTwoElements)
{
    auto x = vectorOf<double>({8, 1});
    auto counts = vectorOf<int>({8, 1});
    matrix<double> none;
    for (const int n : {1, 0, -3}) {
        int pos = -9;
        EXPECT_SAME_BITS(V_MinAndMinPos(&x, n, &pos, false), 8.0);
        EXPECT_EQ(pos, 1);
        pos = -9;
        EXPECT_SAME_BITS(V_MaxAndMaxPos(&x, n, &pos), 8.0);
        EXPECT_EQ(pos, 1);
        pos = -9;
        EXPECT_SAME_BITS(V_MaxAndMaxPos(&counts, n, &pos), 8.0);
        EXPECT_EQ(pos, 1);
        EXPECT_SAME_BITS(V_MinAndMinPos(&none, n, &pos, true), -1.0) << "the spare slot";
    }
}

namespace
{

/** Every routine against its plain twin, with flags and without. */
void compareAll(matrix<double>& x, matrix<int>& counts, int n, const std::vector<short int>& noted)
{
    std::vector<short int> flags = noted;
    for (short int* mask : {flags.data(), static_cast<short int*>(nullptr)}) {
        const extremes kept = reference::keptExtremes(x, n, mask);
        const extremes keptCounts = reference::keptExtremes(counts, n, mask);
        ASSERT_SAME_BITS(V_Max(&x, n, mask), kept.largest);
        ASSERT_SAME_BITS(V_Max(&counts, n, mask), keptCounts.largest);
        if (mask != nullptr) {
            ASSERT_SAME_BITS(V_Min(&x, n, mask), kept.smallest);
            ASSERT_SAME_BITS(V_Min(&counts, n, mask), keptCounts.smallest);
            ASSERT_TRUE(same(minMax(x, flags), kept));
            ASSERT_TRUE(same(minMax(counts, flags), keptCounts));
        } else {
            ASSERT_SAME_BITS(V_Min2(x, n), kept.smallest);
            ASSERT_SAME_BITS(V_Min2(&counts, n), keptCounts.smallest);
            ASSERT_SAME_BITS(V_Max2(x, n), kept.largest);
        }
    }
    const auto expectPosition = [](double value, int pos, reference::extreme_position expected) {
        EXPECT_SAME_BITS(value, expected.value);
        EXPECT_EQ(pos, expected.pos);
    };
    int pos = 0;
    double found = V_MinAndMinPos(&x, n, &pos, false);
    expectPosition(found, pos, reference::withPosition(x, n, std::less<>{}));
    found = V_MinAndMinPos(&x, n, &pos, true);
    expectPosition(found, pos, reference::withPosition(x, n, std::less_equal<>{}));
    found = V_MaxAndMaxPos(&x, n, &pos);
    expectPosition(found, pos, reference::withPosition(x, n, std::greater<>{}));
    found = V_MaxAndMaxPos(&counts, n, &pos);
    expectPosition(found, pos, reference::withPosition(counts, n, std::greater<>{}));
    for (const short int skip : std::array<short int, 2>{0, -1}) {
        if (n > 0) {
            ASSERT_TRUE(same(minMax2(x, n, skip), reference::allExtremes(x, n, skip != 0)));
            ASSERT_TRUE(same(minMax2(counts, n, skip), reference::allExtremes(counts, n, skip != 0)));
        }
    }
}

} // namespace

TEST(VectorExtremes, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto counts = cells.integers(held, -5, 5);
        compareAll(x, counts, n, cells.flags(n));
    });
}

TEST(VectorExtremes, EqualToThePlainLoopsAmongZeros)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.integers(held, 0, 5);
        auto low = vectorOf<double>(std::vector<double>(static_cast<std::size_t>(held)));
        auto high = vectorOf<double>(std::vector<double>(static_cast<std::size_t>(held)));
        for (int i = 0; i < held; ++i) {
            const double zero = cells.integer(0, 1) == 0 ? 0.0 : -0.0;
            low.data[i] = x[i] < 2 ? zero : 3.5;
            high.data[i] = -low.data[i];
        }
        low.oobValue = 1.0;
        compareAll(low, x, n, cells.flags(n));
        compareAll(high, x, n, cells.flags(n));
    });
}
