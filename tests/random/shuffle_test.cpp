#include "random/shuffle.h"

#include "random/random_state.h"
#include "reference/random_plain.h"

#include <string>
#include <type_traits>
#include <vector>

namespace korvel::test
{

namespace
{

template <class T>
T labelled(int k)
{
    if constexpr (std::is_same_v<T, text>) {
        const std::string digits = "cell " + std::to_string(k);
        return text(digits.begin(), digits.end());
    } else {
        return static_cast<T>(100 + k);
    }
}

template <class T>
matrix<T> numbered(int rows, int cols)
{
    matrix<T> table(rows, cols, T{});
    for (int k = 0; k < rows * cols; ++k) {
        table.data[k] = labelled<T>(k);
    }
    return table;
}

std::vector<int> plainOrder(int algorithm, int n, int seed)
{
    plain_source source(algorithm, seed);
    plain_vector<int> order{std::vector<int>(static_cast<std::size_t>(n))};
    plainFill(order, n);
    plainShuffle(order, n, source);
    return order.cells;
}

template <class T>
class Shuffle : public RandomState
{
};

using Elements = ::testing::Types<double, int, text>;
TYPED_TEST_SUITE(Shuffle, Elements);

} // namespace

TYPED_TEST(Shuffle, PutsEveryColumnIntoOneOrder)
{
    for (const int algorithm : {0, 1}) {
        for (const int rows : {1, 2, 3, 10, 57, 2000}) {
            processSource.algo = algorithm;
            const auto table = numbered<TypeParam>(rows, 3);
            matrix<TypeParam> out(rows, 3, TypeParam{});
            int seed = 2718 + rows;
            int next = 0;
            shuffleRows(table, rows, 3, out, &seed, 1, &next);
            const auto order = plainOrder(algorithm, rows, seed);
            for (int j = 0; j < 3; ++j) {
                for (int i = 0; i < rows; ++i) {
                    const int from = order[static_cast<std::size_t>(i)];
                    const auto expected = from >= 1 ? table.getElement(from - 1, j)
                                                    : korvel::initialOutOfBoundsValue<TypeParam>();
                    ASSERT_EQ(out.getElement(i, j), expected) << "algorithm " << algorithm;
                }
            }
            EXPECT_EQ(table.data[0], labelled<TypeParam>(0));
        }
    }
}

TYPED_TEST(Shuffle, MayBeDoneInPlace)
{
    auto inPlace = numbered<TypeParam>(300, 2);
    const auto table = numbered<TypeParam>(300, 2);
    matrix<TypeParam> out(300, 2, TypeParam{});
    int seed = 5;
    int next = 0;
    shuffleRows(inPlace, 300, 2, inPlace, &seed, 1, &next);
    int nextOfOther = 0;
    shuffleRows(table, 300, 2, out, &seed, 1, &nextOfOther);
    for (int k = 0; k < 600; ++k) {
        ASSERT_EQ(inPlace[k], out[k]);
    }
    EXPECT_EQ(next, nextOfOther);
}

TYPED_TEST(Shuffle, OfNothingSeedsAllTheSame)
{
    for (const int rows : {0, -4}) {
        auto table = numbered<TypeParam>(2, 2);
        int seed = 12345;
        int next = 0;
        shuffleRows(table, rows, 2, table, &seed, 1, &next);
        EXPECT_EQ(next, 12345);
        EXPECT_EQ(table.data[0], labelled<TypeParam>(0));
    }
}

TYPED_TEST(Shuffle, WithoutColumnsDrawsAllTheSame)
{
    auto table = numbered<TypeParam>(4, 1);
    int seed = 12345;
    int next = 0;
    shuffleRows(table, 4, 0, table, &seed, 1, &next);
    plain_source source(0, 12345);
    for (int k = 0; k < 3; ++k) {
        source.raw();
    }
    EXPECT_EQ(next, source.nextSeed());
    EXPECT_EQ(table.data[0], labelled<TypeParam>(0));
}

TYPED_TEST(Shuffle, RowsOutsideTheTableReadItsSpareElement)
{
    auto table = numbered<TypeParam>(3, 1);
    table.oobValue = labelled<TypeParam>(77);
    matrix<TypeParam> out(5, 1, TypeParam{});
    int seed = 8;
    int next = 0;
    shuffleRows(table, 5, 1, out, &seed, 1, &next);
    const auto order = plainOrder(0, 5, 8);
    for (int i = 0; i < 5; ++i) {
        const int from = order[static_cast<std::size_t>(i)];
        EXPECT_EQ(out.data[i], from <= 3 ? table.data[from - 1] : labelled<TypeParam>(77));
    }
}

TYPED_TEST(Shuffle, WithoutASeedReportsTheOneInUse)
{
    auto table = numbered<TypeParam>(10, 1);
    auto again = numbered<TypeParam>(10, 1);
    RandomState::setStates(0, 493972830, 50213928);
    int seed = 0;
    int next = 0;
    shuffleRows(table, 10, 1, table, &seed, 0, &next);
    EXPECT_EQ(seed, 493972830);
    int nextAgain = 0;
    shuffleRows(again, 10, 1, again, &seed, 1, &nextAgain);
    for (int k = 0; k < 10; ++k) {
        EXPECT_EQ(table[k], again[k]);
    }
    EXPECT_EQ(next, nextAgain);
}

} // namespace korvel::test
