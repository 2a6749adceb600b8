/**
 * @file
 * Limits of the address space of a process, for tests of what is done when memory is short.
 */
#ifndef KORVEL_TESTS_SUPPORT_ADDRESS_SPACE_H
#define KORVEL_TESTS_SUPPORT_ADDRESS_SPACE_H

#if !defined(_WIN32)

#include <algorithm>
#include <cstdint>
#include <sys/resource.h>

namespace korvel::test
{

/** The limit of the address space of this process. */
inline std::uint64_t addressSpaceLimit()
{
    rlimit limit{};
    getrlimit(RLIMIT_AS, &limit);
    return limit.rlim_cur;
}

/** Limits the address space of this process, at most to its hard limit. */
inline void limitAddressSpace(std::uint64_t bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = std::min<std::uint64_t>(bytes, limit.rlim_max);
    setrlimit(RLIMIT_AS, &limit);
}

/** Whether the system keeps such a limit. The emulator of another processor ignores it. */
inline bool addressSpaceCanBeLimited()
{
    const std::uint64_t before = addressSpaceLimit();
    const std::uint64_t wanted = std::min(before, std::uint64_t{1} << 46) - 4096;
    limitAddressSpace(wanted);
    const bool isKept = addressSpaceLimit() == wanted;
    limitAddressSpace(before);
    return isKept;
}

} // namespace korvel::test

#endif
#endif
