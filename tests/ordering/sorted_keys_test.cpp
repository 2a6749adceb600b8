#include "ordering/sorted_keys.h"

#include "support/bits.h"

#include <limits>
#include <numeric>
#include <omp.h>
#include <random>
#include <string>
#include <vector>

namespace
{

/** The order by the standard library's stable sort, on positions. */
template <class Key>
std::vector<int> expectedOrder(const std::vector<Key>& keys, bool descending)
{
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const auto& x = keys[static_cast<std::size_t>(a)];
        const auto& y = keys[static_cast<std::size_t>(b)];
        return descending ? x > y : x < y;
    });
    return order;
}

template <class Key>
void expectSortsLikeTheStandardLibrary(const std::vector<Key>& keys, bool descending)
{
    const std::vector<int> expected = expectedOrder(keys, descending);
    const korvel::sorted_keys<Key> sorted(
        static_cast<int>(keys.size()), descending,
        [&](std::int32_t k) -> const Key& { return keys[static_cast<std::size_t>(k)]; });
    const korvel::sorted_order<Key> order(
        static_cast<int>(keys.size()), descending,
        [&](std::int32_t k) -> const Key& { return keys[static_cast<std::size_t>(k)]; });
    ASSERT_EQ(sorted.size(), keys.size());
    ASSERT_EQ(order.size(), keys.size());
    for (std::size_t k = 0; k < keys.size(); ++k) {
        ASSERT_EQ(sorted.position(k), expected[k]) << "rank " << k << " of " << keys.size();
        ASSERT_EQ(order.position(k), expected[k]) << "rank " << k << " of " << keys.size();
        if constexpr (std::same_as<Key, double>) {
            ASSERT_SAME_BITS(sorted.key(k), keys[static_cast<std::size_t>(expected[k])]);
        } else {
            ASSERT_EQ(sorted.key(k), keys[static_cast<std::size_t>(expected[k])]);
        }
    }
}

/** Doubles of many shapes: few distinct values, both zeros, infinities, denormals, the missing value, any
 * exponent. */
std::vector<double> randomDoubles(std::size_t count, int shape, std::mt19937_64& random)
{
    const double oddities[] = {0.0,
                               -0.0,
                               MISSING_DBL,
                               std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::denorm_min(),
                               -std::numeric_limits<double>::denorm_min(),
                               std::numeric_limits<double>::lowest()};
    std::vector<double> keys(count);
    for (double& key : keys) {
        switch (shape) {
        case 0:
            key = static_cast<double>(random() % 7) - 3.0;
            break;
        case 1:
            key = std::ldexp(static_cast<double>(random() >> 11), -53);
            break;
        case 2:
            key = oddities[random() % std::size(oddities)];
            break;
        case 3:
            do {
                key = std::bit_cast<double>(random());
            } while (std::isnan(key));
            break;
        default:
            key = 1.0 + std::ldexp(static_cast<double>(random() % 3), -52);
            break;
        }
    }
    return keys;
}

constexpr std::size_t counts[] = {0,   1,    2,    3,    31,   32,   33,    63,    64,     65,
                                  500, 1023, 1024, 1025, 4095, 4096, 10000, 99999, 100000, 250001};

class SortedKeys : public ::testing::TestWithParam<int>
{
protected:
    void SetUp() override { omp_set_num_threads(GetParam()); }
    void TearDown() override { omp_set_num_threads(threads_); }

private:
    int threads_ = omp_get_max_threads();
};

} // namespace

TEST_P(SortedKeys, DoublesComeOutAsFromAStableSort)
{
    std::mt19937_64 random(1);
    for (const std::size_t count : counts) {
        for (int shape = 0; shape < 5; ++shape) {
            const std::vector<double> keys = randomDoubles(count, shape, random);
            expectSortsLikeTheStandardLibrary(keys, false);
            expectSortsLikeTheStandardLibrary(keys, true);
        }
    }
}

TEST_P(SortedKeys, IntegersComeOutAsFromAStableSort)
{
    std::mt19937_64 random(2);
    for (const std::size_t count : counts) {
        for (const std::uint64_t modulus : {std::uint64_t{3}, std::uint64_t{1} << 32}) {
            std::vector<int> keys(count);
            for (int& key : keys) {
                key = static_cast<int>(static_cast<std::uint32_t>(random() % modulus + 0x7FFFFFFFu));
            }
            expectSortsLikeTheStandardLibrary(keys, false);
            expectSortsLikeTheStandardLibrary(keys, true);
        }
    }
}

TEST_P(SortedKeys, TextsComeOutAsFromAStableSort)
{
    std::mt19937_64 random(3);
    for (const std::size_t count : counts) {
        std::vector<text> keys(std::min<std::size_t>(count, 20000));
        for (text& key : keys) {
            key.resize(random() % 4);
            for (char16_t& unit : key) {
                unit = u"aBb\uFFFF"[random() % 4];
            }
        }
        expectSortsLikeTheStandardLibrary(keys, false);
        expectSortsLikeTheStandardLibrary(keys, true);
    }
}

TEST_P(SortedKeys, KeysInOrderOrInReverseComeOutAsFromAStableSort)
{
    for (const std::size_t count : {0U, 1U, 2U, 31U, 32U, 33U, 34U, 1000U, 100'000U}) {
        for (const std::size_t ties : {1U, 2U, 50U}) {
            std::vector<double> rising(count);
            for (std::size_t k = 0; k < count; ++k) {
                const double value = static_cast<double>(k / ties) - static_cast<double>(count / ties / 2);
                rising[k] = value == 0.0 && k % 2 == 1 ? -0.0 : value;
            }
            std::vector<std::vector<double>> lists(4, rising);
            std::reverse(lists[1].begin(), lists[1].end());
            if (count > 2) {
                // Only the last pair is out of order.
                std::swap(lists[2].end()[-1], lists[2].end()[-2]);
                lists[3] = lists[1];
                std::swap(lists[3].end()[-1], lists[3].end()[-2]);
            }
            for (const std::vector<double>& keys : lists) {
                std::vector<int> integers(keys.begin(), keys.end());
                std::vector<text> texts;
                for (std::size_t k = 0; k < std::min<std::size_t>(count, 5000); ++k) {
                    texts.push_back(text(1, static_cast<char16_t>(integers[k] + 30'000)));
                }
                for (const bool descending : {false, true}) {
                    expectSortsLikeTheStandardLibrary(keys, descending);
                    expectSortsLikeTheStandardLibrary(integers, descending);
                    expectSortsLikeTheStandardLibrary(texts, descending);
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, SortedKeys, ::testing::Values(1, 2, 3, 7));

TEST(SortedKeysWithNaN, StayWhereNoComparisonMovesThem)
{
    // Sorted by insertion: no key is below the NaN, and the NaN is below no key.
    const double keys[] = {3.0, std::numeric_limits<double>::quiet_NaN(), 1.0, 2.0};
    for (const bool descending : {false, true}) {
        const korvel::sorted_keys<double> sorted(4, descending, [&](std::int32_t k) { return keys[k]; });
        EXPECT_EQ(sorted.position(0), 0);
        EXPECT_EQ(sorted.position(1), 1);
        EXPECT_EQ(sorted.position(2), descending ? 3 : 2);
        EXPECT_EQ(sorted.position(3), descending ? 2 : 3);
    }
}

TEST(SortedKeysWithNaN, KeepEveryKeyAndTheSameOrderOnAnyNumberOfThreads)
{
    std::mt19937_64 random(4);
    std::vector<double> keys = randomDoubles(150000, 0, random);
    for (std::size_t k = 0; k < keys.size(); k += 97) {
        keys[k] = std::numeric_limits<double>::quiet_NaN();
    }
    const auto keyAt = [&](std::int32_t k) { return keys[static_cast<std::size_t>(k)]; };
    const int threads = omp_get_max_threads();
    omp_set_num_threads(1);
    const korvel::sorted_keys<double> one(static_cast<int>(keys.size()), false, keyAt);
    omp_set_num_threads(3);
    const korvel::sorted_keys<double> three(static_cast<int>(keys.size()), false, keyAt);
    omp_set_num_threads(threads);

    std::vector<bool> seen(keys.size());
    for (std::size_t k = 0; k < keys.size(); ++k) {
        ASSERT_EQ(one.position(k), three.position(k));
        const auto position = static_cast<std::size_t>(one.position(k));
        ASSERT_FALSE(seen[position]);
        seen[position] = true;
        ASSERT_SAME_BITS(one.key(k), keys[position]);
    }
}

TEST(SortedKeysWithNaN, AreInNoOrder)
{
    // They take the steps of the comparison sort, whose outcome depends on them.
    std::vector<double> keys(100);
    std::iota(keys.begin(), keys.end(), 0.0);
    for (const std::size_t place : {0U, 1U, 50U, 99U}) {
        std::vector<double> withNaN = keys;
        withNaN[place] = std::numeric_limits<double>::quiet_NaN();
        expectSortsLikeTheStandardLibrary(withNaN, false);
        expectSortsLikeTheStandardLibrary(withNaN, true);
    }
}
