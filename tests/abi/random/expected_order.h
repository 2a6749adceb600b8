/**
 * @file
 * What a random permutation is expected to be, from the plain loops.
 */
#ifndef KORVEL_TESTS_ABI_RANDOM_EXPECTED_ORDER_H
#define KORVEL_TESTS_ABI_RANDOM_EXPECTED_ORDER_H

#include "reference/random_plain.h"
#include "support/caller_memory.h"

#include <vector>

namespace korvel::test
{

inline constexpr int seedInUse = 2026;

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

} // namespace korvel::test

#endif
