#include "ordering/apply_order.h"
#include "ordering/distinct.h"
#include "ordering/quantiles.h"
#include "ordering/ranks.h"
#include "ordering/reverse.h"
#include "ordering/selection.h"
#include "ordering/sort_vector.h"

#include "support/bits.h"

#include <limits>
#include <random>
#include <vector>

using korvel::test::sameBits;

namespace
{

matrix<double> vectorOf(const std::vector<double>& values)
{
    matrix<double> x(static_cast<int>(values.size()), 1, 0.0);
    std::copy(values.begin(), values.end(), x.data);
    return x;
}

} // namespace

TEST(RankedValues, SelectWhatASortWouldPutThere)
{
    std::mt19937_64 random(21);
    const double few[] = {0.0, -0.0, 1.0, -1.0, MISSING_DBL, 2.5, std::numeric_limits<double>::infinity()};
    for (const int n : {1, 2, 63, 64, 65, 66, 1000}) {
        for (int trial = 0; trial < 20; ++trial) {
            std::vector<double> values(static_cast<std::size_t>(n));
            for (double& value : values) {
                value = trial % 2 == 0 ? few[random() % std::size(few)]
                                       : static_cast<double>(random() % 100) - 50.0;
            }
            matrix<double> sorted = vectorOf(values);
            SortQVector(&sorted, n, 1, n, false);
            korvel::ranked_values ranked(values);
            for (int question = 0; question < 20; ++question) {
                const auto k = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(n));
                ASSERT_TRUE(sameBits(ranked[k], sorted[k])) << "rank " << k << " of " << n;
            }
        }
    }
}

TEST(RankedValues, WithANaNAreThoseOfTheSort)
{
    std::vector<double> values(200, 1.0);
    for (std::size_t k = 0; k < values.size(); ++k) {
        values[k] = static_cast<double>((k * 7) % 11);
    }
    values[50] = std::numeric_limits<double>::quiet_NaN();
    matrix<double> sorted = vectorOf(values);
    SortQVector(&sorted, 200, 1, 200, false);
    korvel::ranked_values ranked(values);
    for (int k = 0; k < 200; ++k) {
        ASSERT_TRUE(sameBits(ranked[k], sorted[k]));
    }
}

TEST(Quantile, OfAShortVectorReadsTheSpareSlot)
{
    matrix<double> x(2, 1, 3.0);
    EXPECT_TRUE(sameBits(V_Quantile(&x, 3, 0.0), -1.0));
    EXPECT_TRUE(sameBits(V_Quantile(&x, 3, 0.5), 3.0));
}

TEST(Quantile, OfAColumn)
{
    matrix<double> table(3, 2, 0.0);
    for (int i = 0; i < 3; ++i) {
        table.setElement(i, 1, 10.0 * (i + 1));
    }
    matrix<double> w(3, 1, 1.0);
    short int flags[] = {0, 0, -1};
    EXPECT_TRUE(sameBits(M_QuantileMW(&table, 3, 2, flags, &w, 0.5), 15.0));
    EXPECT_TRUE(sameBits(M_QuantileMW(&table, 3, 1, flags, &w, 0.5), 0.0));
}

TEST(Ranks, LowestRankOfATiedGroup)
{
    matrix<double> x = vectorOf({20, 10, 30, 20});
    matrix<double> ranks(4, 1, 0.0);
    matrix<double> sizes(4, 1, 0.0);
    int ties = -1;
    V_GetRanksTiesMinDbl2(&x, 4, -1, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 4), (std::vector<double>{2, 1, 4, 2}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(sizes[0], 2.0);
    V_GetRanksTiesMinDbl2(&x, 4, 0, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 4), (std::vector<double>{1, 2, 2, 4}));
    EXPECT_EQ(std::vector<double>(x.data, x.data + 4), (std::vector<double>{10, 20, 20, 30}));
}

TEST(Ranks, OfEachColumnInTurn)
{
    matrix<double> x(3, 2, 0.0);
    const double cells[] = {3, 1, 2, 5, 5, 4};
    std::copy(cells, cells + 6, x.data);
    matrix<double> w(3, 1, 1.0);
    matrix<double> ranks(3, 2, 0.0);
    matrix<double> sizes(3, 2, 0.0);
    int ties[] = {-1, -1};
    M_GetRanksTies(&x, 3, 2, -1, &w, &ranks, ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 6), (std::vector<double>{3, 1, 2, 2.5, 2.5, 1}));
    EXPECT_EQ(ties[0], 0);
    EXPECT_EQ(ties[1], 1);
    EXPECT_EQ(sizes.getElement(0, 1), 2.0);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{3, 1, 2, 5, 5, 4}));
}

TEST(ApplyOrder, InPlaceReadsTheTablesOwnSpareSlot)
{
    matrix<double> x = vectorOf({1, 2, 3});
    x.oobValue = 9.0;
    matrix<double> order = vectorOf({3, 7, 1});
    SortApply2(&x, 3, 1, &order);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{3, 9, 1}));
}

TEST(ApplyOrder, ReadsAndLeavesTheSpareSlotOfEachColumnOfARecord)
{
    cST_MVect<double> table(3, 2);
    for (int j = 0; j < 2; ++j) {
        matrix<double>& column = table.Vectors[static_cast<std::size_t>(j)].Vect;
        for (int i = 0; i < 3; ++i) {
            column[i] = 10.0 * j + i + 1;
        }
        column.oobValue = 9.0 + j;
    }
    matrix<double> order = vectorOf({3, 7, 1});
    SortApply2(table, 3, 2, &order);
    const auto cells = [&](std::size_t j) {
        const matrix<double>& column = table.Vectors[j].Vect;
        return std::vector<double>(column.data, column.data + 3);
    };
    EXPECT_EQ(cells(0), (std::vector<double>{3, 9, 1}));
    EXPECT_EQ(cells(1), (std::vector<double>{13, 10, 11}));
    // Each store into a column leaves its value there too.
    EXPECT_EQ(table.Vectors[0].Vect.oobValue, 1.0);
    EXPECT_EQ(table.Vectors[1].Vect.oobValue, 11.0);
}

TEST(ApplyOrder, TheResultMayBeTheTable)
{
    std::vector<double> cells{1, 2, 3, 4, 5, 6};
    matrix<double> x(3, 2, cells.data(), true);
    matrix<double> out(3, 2, cells.data(), true);
    matrix<double> order = vectorOf({2, 3, 1});
    SortApply(&x, 3, 2, &order, &out);
    EXPECT_EQ(cells, (std::vector<double>{2, 3, 1, 5, 6, 4}));

    std::vector<int> integers{1, 2, 3};
    matrix<int> y(3, 1, integers.data(), true);
    matrix<int> yOut(3, 1, integers.data(), true);
    SortApply(&y, 3, 1, &order, &yOut);
    EXPECT_EQ(integers, (std::vector<int>{2, 3, 1}));

    matrix<text> texts(3, 1, text());
    const text names[] = {u"one", u"two", u"three"};
    std::copy(std::begin(names), std::end(names), texts.data);
    SortApply(&texts, 3, 1, &order, &texts);
    EXPECT_EQ(std::vector<text>(texts.data, texts.data + 3), (std::vector<text>{u"two", u"three", u"one"}));
}

TEST(Reverse, TheResultMayBeTheVector)
{
    for (const int n : {0, 1, 2, 3, 4, 5}) {
        std::vector<double> numbers{1, 2, 3, 4, 5};
        std::vector<short int> flags{1, 2, 3, 4, 5};
        std::vector<double> expected = numbers;
        std::reverse(expected.begin(), expected.begin() + n);
        matrix<double> x(5, 1, numbers.data(), true);
        matrix<double> out(5, 1, numbers.data(), true);
        V_Reverse(&x, n, &out);
        EXPECT_EQ(numbers, expected) << n;
        V_ReverseBool(flags.data(), n, flags.data());
        EXPECT_EQ(std::vector<double>(flags.begin(), flags.end()), expected) << n;
    }
    short int untouched = 7;
    V_ReverseBool(&untouched, -1, &untouched);
    EXPECT_EQ(untouched, 7);
}

TEST(Reverse, OntoItselfLeavesAVectorThatDoesNotHoldTheCount)
{
    matrix<double> x = vectorOf({1, 2, 3});
    V_Reverse(&x, 4, &x);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{1, 2, 3}));
}

TEST(Reverse, InPlaceLeavesAVectorThatDoesNotHoldTheCount)
{
    matrix<double> x = vectorOf({1, 2, 3});
    V_Reverse2(&x, 4);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), (std::vector<double>{1, 2, 3}));
}
