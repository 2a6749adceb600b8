/**
 * @file
 * Teams of threads for the product family: who does which stretch of the work, and the scratch of each.
 */
#ifndef KORVEL_LINALG_TEAM_H
#define KORVEL_LINALG_TEAM_H

#include "platform/work_share.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <omp.h>

namespace korvel
{

/** Threads that a team can have. */
[[nodiscard]] inline int mostThreads()
{
    return std::max(1, omp_get_max_threads());
}

/** Calls `work(thread, stretch)` on each thread that has something to do. The team is forked whatever the
 * size. `work` must not throw. */
template <class Work>
void inTeam(std::ptrdiff_t total, Work work)
{
#pragma omp parallel
    {
        const int thread = omp_get_thread_num();
        const stretch share = shareOf(total, thread, omp_get_num_threads());
        if (share.count > 0) {
            work(thread, share);
        }
    }
}

/**
 * Scratch for each thread, allocated before the team is forked, since an exception could not leave it. Small
 * scratch is the thread's own array, so that small products allocate nothing.
 */
class scratch_space
{
public:
    static constexpr std::size_t smallSize = 2048;

    scratch_space(std::size_t size, int threads) : size_(size)
    {
        if (size > smallSize) {
            block_ = std::make_unique_for_overwrite<double[]>(size * static_cast<std::size_t>(threads));
        }
    }

    /** The scratch of a thread, which offers `atHand`, an array of `smallSize`. */
    [[nodiscard]] double* of(int thread, double* atHand) const
    {
        return block_ == nullptr ? atHand : block_.get() + size_ * static_cast<std::size_t>(thread);
    }

private:
    std::size_t size_;
    std::unique_ptr<double[]> block_;
};

} // namespace korvel

#endif
