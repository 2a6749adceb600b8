#include "korvelmathtools/KORVELMathTools.h"
#include "random/permutation.h"
#include "reference/random_plain.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::plain_source;
using korvel::test::plain_vector;
using korvel::test::plainFill;
using korvel::test::plainShuffle;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

namespace
{

constexpr int seedInUse = 2026;

/** The permutation that the seed gives, and the seed after it. */
struct expected_order {
    ints places;
    int next;

    explicit expected_order(int n)
    {
        plain_source source(0, seedInUse);
        plain_vector<int> plain{ints(static_cast<std::size_t>(n))};
        plainFill(plain, n);
        plainShuffle(plain, n, source);
        places = plain.cells;
        next = source.nextSeed();
    }
};

template <class T>
std::vector<T> reordered(const std::vector<T>& column, const ints& places)
{
    std::vector<T> result;
    for (const int place : places) {
        result.push_back(column[static_cast<std::size_t>(place - 1)]);
    }
    return result;
}

/** The seed triple of a call. */
struct seeds {
    int seed = seedInUse;
    short int flag = 1;
    int next = 0;
};

} // namespace

TEST(FlatPermutation, Of1ToN)
{
    const expected_order expected(9);
    guarded<int> integers(ints(9));
    seeds used;
    EXPECT_EQ(Cpp_Random1toNLong(integers.data(), 9, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(integers), expected.places);
    EXPECT_EQ(used.next, expected.next);
    EXPECT_EQ(used.seed, seedInUse);
    EXPECT_EQ(used.flag, 1);

    guarded<double> numbers(doubles(9, 4.0));
    EXPECT_EQ(Cpp_Random1toNDbl(numbers.data(), 9, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(numbers), doubles(expected.places.begin(), expected.places.end()));

    // Not reset: the permutation is applied to itself.
    EXPECT_EQ(Cpp_Random1toNLong(integers.data(), 9, 0, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(integers), reordered(expected.places, expected.places));
}

TEST(FlatPermutation, HandsBackTheSeedThatRepeatsIt)
{
    guarded<int> first(ints(30));
    guarded<int> second(ints(30));
    seeds used;
    used.flag = 0;
    Cpp_Random1toNLong(first.data(), 30, -1, &used.seed, &used.flag, &used.next);
    EXPECT_EQ(used.flag, -1);
    const int next = used.next;
    Cpp_Random1toNLong(second.data(), 30, -1, &used.seed, &used.flag, &used.next);
    EXPECT_EQ(valuesOf(second), valuesOf(first));
    EXPECT_EQ(used.next, next);
}

TEST(FlatPermutation, OfARangeKeepsAllButTheLastTwo)
{
    // Seven numbers; the array has five. The other two share one spare element, as in a vector of five.
    plain_source source(0, seedInUse);
    plain_vector<int> plain{ints(5)};
    plainFill(plain, 7);
    plainShuffle(plain, 7, source);
    for (auto& place : plain.cells) {
        place += 9;
    }

    guarded<int> integers(ints(5));
    seeds used;
    EXPECT_EQ(Cpp_RandomAtoBLng(integers.data(), 10, 16, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(integers), plain.cells);
    EXPECT_EQ(used.next, source.nextSeed());

    guarded<double> numbers(doubles(5));
    EXPECT_EQ(Cpp_RandomAtoBDbl(numbers.data(), 10, 16, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(numbers), doubles(plain.cells.begin(), plain.cells.end()));
}

TEST(FlatPermutation, OfAShortRange)
{
    seeds used;
    guarded<int> none{5};
    EXPECT_EQ(Cpp_RandomAtoBLng(none.data(), 3, 4, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(none), ints{5});
    guarded<double> one{5};
    EXPECT_EQ(Cpp_RandomAtoBDbl(one.data(), 3, 3, -1, &used.seed, &used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(one), doubles{3});
}

TEST(FlatPermutation, CoreNamesHaveRoomForTheWholeRange)
{
    const expected_order expected(7);
    ints places = expected.places;
    for (int& place : places) {
        place += 9;
    }
    seeds used;
    matrix<int> integers(7, 1);
    RandomAtoB(&integers, 10, 16, -1, used.seed, used.flag, used.next);
    EXPECT_EQ(ints(integers.data, integers.data + 7), places);
    matrix<double> numbers(7, 1, 0.0);
    RandomAtoB(&numbers, 10, 16, -1, used.seed, used.flag, used.next);
    EXPECT_EQ(doubles(numbers.data, numbers.data + 7), doubles(places.begin(), places.end()));
}

TEST(FlatShuffle, OfVectors)
{
    const expected_order expected(6);
    const doubles values{1.5, 2.5, 3.5, 4.5, 5.5, 6.5};
    guarded<double> numbers(values);
    seeds used;
    EXPECT_EQ(Cpp_V_Shuffle(numbers.data(), 6, &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(numbers), reordered(values, expected.places));
    EXPECT_EQ(used.next, expected.next);

    const ints codes{10, 20, 30, 40, 50, 60};
    guarded<int> integers(codes);
    EXPECT_EQ(Cpp_V_ShuffleLng(integers.data(), 6, &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(integers), reordered(codes, expected.places));
}

TEST(FlatShuffle, OfTablesKeepsRowsTogether)
{
    const expected_order expected(5);
    const doubles first{1, 2, 3, 4, 5};
    const doubles second{-1, -2, -3, -4, -5};
    doubles both = first;
    both.insert(both.end(), second.begin(), second.end());
    doubles shuffled = reordered(first, expected.places);
    for (const double value : reordered(second, expected.places)) {
        shuffled.push_back(value);
    }

    guarded<double> x(both);
    guarded<double> out(doubles(10));
    seeds used;
    EXPECT_EQ(Cpp_M_ShuffleDbl(x.data(), 5, 2, out.data(), &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(out), shuffled);
    EXPECT_EQ(valuesOf(x), both);
    EXPECT_EQ(used.next, expected.next);
    EXPECT_EQ(Cpp_M_ShuffleDbl2(x.data(), 5, 2, &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(x), shuffled);

    guarded<double> same(both);
    EXPECT_EQ(Cpp_M_ShuffleDbl(same.data(), 5, 2, same.data(), &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(valuesOf(same), shuffled);
}

TEST(FlatShuffle, OfTexts)
{
    const expected_order expected(4);
    const texts first{u"a", u"", u"c", u"d"};
    const texts second{u"A", u"B", u"C", u"D"};
    texts both = first;
    both.insert(both.end(), second.begin(), second.end());
    texts shuffled = reordered(first, expected.places);
    for (const auto& value : reordered(second, expected.places)) {
        shuffled.push_back(value);
    }

    caller_memory memory;
    SAFEARRAY* x = memory.texts(both);
    SAFEARRAY* out = memory.texts(texts(8, u"old"));
    seeds used;
    EXPECT_EQ(Cpp_M_ShuffleStr(blockOf(x), 4, 2, blockOf(out), &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(textsIn(out), shuffled);
    EXPECT_EQ(textsIn(x), both);
    EXPECT_EQ(used.next, expected.next);
    EXPECT_EQ(Cpp_M_ShuffleStr2(blockOf(x), 4, 2, &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(textsIn(x), shuffled);

    // A table without columns leaves the result alone.
    EXPECT_EQ(Cpp_M_ShuffleStr(blockOf(x), 4, 0, blockOf(out), &used.seed, used.flag, &used.next), 0);
    EXPECT_EQ(textsIn(out), shuffled);
    EXPECT_TRUE(memory.guardsIntact());
}
