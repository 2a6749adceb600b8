/**
 * @file
 * Work in turns with a copy of its result and with the processor's arithmetic: what either of the two takes
 * is the least that the work can take.
 */
#ifndef KORVEL_BENCH_BESIDE_A_COPY_H
#define KORVEL_BENCH_BESIDE_A_COPY_H

#include "containers/matrix.h"
#include "linalg/arithmetic_peak.h"
#include "support/stop_watch.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace korvel::bench
{

inline matrix<double> randomTable(int rows, int cols)
{
    std::mt19937_64 random(3);
    matrix<double> made(rows, cols, 0.0);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
    }
    return made;
}

/** What a routine must do at least. */
struct least_work {
    double moved = 0.0;      ///< numbers that are read from memory or written there, each once
    double operations = 0.0; ///< multiplications and additions
};

/**
 * Times `work`, which fills `result`. The counters are the speed of ours as a share of that of a copy of
 * `copied` numbers; and, when `least` is given, the share of the peak of multiplications and additions on one
 * thread that ours reaches, and the share of the time of ours that the slower of moving and computing needs.
 */
template <class Work>
void besideACopy(benchmark::State& state, matrix<double>& result, std::uint64_t copied, Work work,
                 least_work least = {})
{
    const matrix<double> from(result);
    matrix<double> to(result);
    stop_watch ours;
    stop_watch copy;
    stop_watch registers;
    double operations = 0.0;
    for (auto _ : state) {
        ours.time(work);
        copy.time([&] { std::memcpy(to.data, from.data, copied * sizeof(double)); });
        if (least.moved > 0.0) {
            registers.time([&] { operations = separateArithmetic(); });
        }
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["of_copy"] = copy.milliseconds() / ours.milliseconds();
    if (least.moved > 0.0) {
        const double computing = least.operations * registers.milliseconds() / operations;
        const double moving = least.moved * copy.milliseconds() / (2.0 * static_cast<double>(copied));
        state.counters["of_peak"] = computing / ours.milliseconds();
        state.counters["of_bound"] = std::max(computing, moving) / ours.milliseconds();
    }
}

} // namespace korvel::bench

#endif
