/**
 * @file
 * How many threads the machine runs at once.
 */
#ifndef KORVEL_PLATFORM_THREADS_H
#define KORVEL_PLATFORM_THREADS_H

#include <algorithm>
#include <thread>

namespace korvel::platform
{

/** Hardware threads of this machine, at least 1. */
[[nodiscard]] inline unsigned hardwareThreads() noexcept
{
    return std::max(1u, std::thread::hardware_concurrency());
}

} // namespace korvel::platform

#endif
