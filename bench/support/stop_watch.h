#ifndef KORVEL_BENCH_STOP_WATCH_H
#define KORVEL_BENCH_STOP_WATCH_H

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <limits>

namespace korvel::bench
{

/** The best time of a routine over all rounds. */
class stop_watch
{
public:
    template <class Routine>
    void time(Routine routine)
    {
        const auto start = std::chrono::steady_clock::now();
        routine();
        benchmark::ClobberMemory();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        best_ = std::min(best_, taken.count());
    }

    [[nodiscard]] double milliseconds() const { return best_; }

private:
    double best_ = std::numeric_limits<double>::infinity();
};

} // namespace korvel::bench

#endif
