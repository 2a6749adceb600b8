/**
 * @file
 * Failing each allocation of an action in turn.
 */
#ifndef KORVEL_TESTS_FAULTS_EACH_ALLOCATION_H
#define KORVEL_TESTS_FAULTS_EACH_ALLOCATION_H

#include "support/allocations.h"
#include "support/automation_watch.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <new>
#include <omp.h>

namespace korvel::test
{

/** Has OpenMP allocate what its first use needs. Clang's runtime keeps a lock for ever when that fails. */
inline void startOpenMP()
{
    (void)omp_get_max_threads();
}

/**
 * Runs `action` with no allocation allowed, then with one, and so on, until it goes through. Each failure
 * must come out as std::bad_alloc and leave nothing behind, neither blocks nor texts nor host arrays.
 * @return how many allocations it takes
 */
template <class Action>
int failEachAllocation(Action&& action)
{
    constexpr int tooMany = 1000;
    startOpenMP();
    for (int allowed = 0; allowed < tooMany; ++allowed) {
        const automation_watch watch;
        const std::int64_t before = allocationsAlive();
        bool failed = false;
        try {
            const allocation_limit limit(allowed);
            action();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        EXPECT_EQ(allocationsAlive(), before) << "with " << allowed << " allowed";
        if (!failed) {
            return allowed;
        }
        EXPECT_TRUE(watch.nothingAlive()) << "with " << allowed << " allowed";
    }
    ADD_FAILURE() << "still failing";
    return tooMany;
}

} // namespace korvel::test

#endif
