#include "support/allocations.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>
#include <utility>

namespace
{

constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

thread_local std::int64_t made = 0;
thread_local std::int64_t freed = 0;
thread_local std::int64_t bytes = 0;
thread_local std::int64_t largest = 0;
thread_local std::int64_t madeAtMost = unlimited;

} // namespace

namespace korvel::test
{

std::int64_t allocationCount()
{
    return made;
}

std::int64_t bytesAllocated()
{
    return bytes;
}

std::int64_t takeLargestAllocation()
{
    return std::exchange(largest, 0);
}

std::int64_t allocationsAlive()
{
    return made - freed;
}

allocation_limit::allocation_limit(std::int64_t allowed)
{
    madeAtMost = made + allowed;
}

allocation_limit::~allocation_limit()
{
    madeAtMost = unlimited;
}

} // namespace korvel::test

// All forms are replaced: a sanitizer would replace any form left out.
void* operator new(std::size_t size)
{
    if (made >= madeAtMost) {
        throw std::bad_alloc();
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++made;
    bytes += static_cast<std::int64_t>(size);
    largest = std::max(largest, static_cast<std::int64_t>(size));
    return block;
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return operator new(size, std::nothrow);
}

void operator delete(void* block) noexcept
{
    if (block != nullptr) {
        ++freed;
        std::free(block);
    }
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

void operator delete[](void* block) noexcept
{
    operator delete(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    operator delete(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    operator delete(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    operator delete(block);
}
