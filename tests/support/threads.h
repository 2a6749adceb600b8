/**
 * @file
 * Whether a call starts threads, where the system tells how many a process has.
 */
#ifndef KORVEL_TESTS_SUPPORT_THREADS_H
#define KORVEL_TESTS_SUPPORT_THREADS_H

#if defined(__linux__)

#include <filesystem>
#include <iterator>
#include <omp.h>
#include <thread>

namespace korvel::test
{

/** More threads than any other test asks for, so that a runtime cannot have enough idle ones. */
inline constexpr int threadsToOffer = 24;

/** How many threads `call` starts when OpenMP may use `threadsToOffer`. */
template <class Call>
std::ptrdiff_t threadsStartedBy(Call call)
{
    const auto count = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    };
    std::ptrdiff_t started = 0;
    // A new thread has no team yet, and the members that it gets stay as long as it runs.
    std::thread caller([&] {
        omp_set_num_threads(threadsToOffer);
        const auto before = count();
        call();
        started = count() - before;
    });
    caller.join();
    return started;
}

} // namespace korvel::test

#endif

#endif
