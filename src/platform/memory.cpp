#include "platform/memory.h"

#if defined(_WIN32)

#include <windows.h>

namespace korvel::platform
{

std::uint64_t availableAddressSpace()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) != 0 ? status.ullAvailVirtual : 0;
}

void* commitPages(std::size_t bytes) noexcept
{
    return VirtualAlloc(nullptr, bytes, MEM_COMMIT, PAGE_EXECUTE_READWRITE);
}

void releasePages(void* block, std::size_t) noexcept
{
    if (block != nullptr) {
        VirtualFree(block, 0, MEM_RELEASE);
    }
}

} // namespace korvel::platform

#else

#include <algorithm>
#include <fstream>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

namespace korvel::platform
{

std::uint64_t availableAddressSpace()
{
    constexpr std::uint64_t userHalf = std::uint64_t{1} << 47;
    rlimit limit{};
    const bool limited = getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    const std::uint64_t whole = limited ? std::min<std::uint64_t>(limit.rlim_cur, userHalf) : userHalf;

    // The first number in this file is the size of all mappings, in pages.
    std::uint64_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return whole - std::min(whole, pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)));
}

void* commitPages(std::size_t bytes) noexcept
{
    void* block = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return block != MAP_FAILED ? block : nullptr;
}

void releasePages(void* block, std::size_t bytes) noexcept
{
    if (block != nullptr) {
        munmap(block, bytes);
    }
}

} // namespace korvel::platform

#endif
