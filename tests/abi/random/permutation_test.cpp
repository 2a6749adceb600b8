#include "abi/random/expected_order.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "random/permutation.h"
#include "reference/random_plain.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

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
