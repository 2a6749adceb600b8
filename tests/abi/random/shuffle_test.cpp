#include "abi/random/expected_order.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

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
