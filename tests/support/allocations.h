#ifndef KORVEL_TESTS_SUPPORT_ALLOCATIONS_H
#define KORVEL_TESTS_SUPPORT_ALLOCATIONS_H

#include <cstdint>

namespace korvel::test
{

/** How many blocks this thread has had from `operator new` since it started. */
[[nodiscard]] std::int64_t allocationCount();

/** How many bytes it has asked for in all these blocks, an upper bound of what it had at once. */
[[nodiscard]] std::int64_t bytesAllocated();

/** The bytes of the largest of these blocks since the last call. */
[[nodiscard]] std::int64_t takeLargestAllocation();

/** How many of these blocks it has not given back. */
[[nodiscard]] std::int64_t allocationsAlive();

/** While it lives, this thread gets `allowed` further blocks from `operator new`, and then std::bad_alloc. */
class allocation_limit
{
public:
    explicit allocation_limit(std::int64_t allowed);
    allocation_limit(const allocation_limit&) = delete;
    allocation_limit& operator=(const allocation_limit&) = delete;
    ~allocation_limit();
};

} // namespace korvel::test

#endif
