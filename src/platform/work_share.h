/**
 * @file
 * How work is divided among threads.
 */
#ifndef KORVEL_PLATFORM_WORK_SHARE_H
#define KORVEL_PLATFORM_WORK_SHARE_H

#include <algorithm>
#include <cstddef>

namespace korvel
{

/** Neighbouring rows, columns or elements. */
struct stretch {
    std::ptrdiff_t first = 0;
    std::ptrdiff_t count = 0;
};

/**
 * A thread's part of `total`. The parts are in order and as even as possible; the first ones may be longer by
 * one.
 */
[[nodiscard]] constexpr stretch shareOf(std::ptrdiff_t total, int thread, int threads)
{
    const std::ptrdiff_t even = total / threads;
    const std::ptrdiff_t over = total % threads;
    return {thread * even + std::min<std::ptrdiff_t>(thread, over), even + (thread < over ? 1 : 0)};
}

} // namespace korvel

#endif
