#include "ordering/sort_vector.h"

#include "containers/missing.h"
#include "ordering/sort_table.h"
#include "support/threads.h"

#include <gtest/gtest.h>
#include <string>

#if defined(__linux__)

using korvel::test::threadsStartedBy;

namespace
{

/** Long enough for a sort that may share its work to do so, and in no order. */
constexpr int count = 150'000;

template <class T, class Make>
matrix<T> scattered(Make make)
{
    matrix<T> x(count, 1, T{});
    for (int i = 0; i < count; ++i) {
        x[i] = make(static_cast<int>(i * 7919LL % count));
    }
    return x;
}

} // namespace

TEST(SortQVector, StartsNoThread)
{
    auto numbers = scattered<double>([](int k) { return k * 0.5; });
    EXPECT_EQ(threadsStartedBy([&] { SortQVector(&numbers, count, 1, count, false); }), 0);
    EXPECT_EQ(V_IsSorted(&numbers, count, true), -1);

    auto integers = scattered<int>([](int k) { return k; });
    EXPECT_EQ(threadsStartedBy([&] { SortQVector(&integers, count, 1, count, true); }), 0);
    EXPECT_EQ(integers[0], count - 1);

    const auto asText = [](int k) { return text(u"key ") + static_cast<char16_t>(k % 20'000 + 32); };
    auto texts = scattered<text>(asText);
    EXPECT_EQ(threadsStartedBy([&] { SortQVector(&texts, count, 1, count, false); }), 0);
    EXPECT_EQ(texts[0], asText(0));

    auto indexed = scattered<text>(asText);
    matrix<int> index(count, 1, 0);
    EXPECT_EQ(threadsStartedBy([&] { SortQVector2(&indexed, count, 1, count, false, &index); }), 0);
    EXPECT_EQ(indexed[0], asText(0));
}

TEST(SortQVector, LeavesThreadsToTheSortsOfTables)
{
    auto key = scattered<double>([](int k) { return k; });
    auto table = scattered<double>([](int k) { return k; });
    EXPECT_GT(threadsStartedBy([&] {
                  SortQ(&table, count, 1, 1, count, &key, static_cast<matrix<double>*>(nullptr), 0, false,
                        true);
              }),
              0);
}

#endif
