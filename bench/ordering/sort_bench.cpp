// The sort engine beside the library sorts that a user would pick, on the same keys in one run. Each
// benchmark makes its list of pairs, as the engine does, and sorts it. The counter `by std` is the time as a
// share of std::stable_sort's on the same keys, so run the peers first: they stand first in this file.
#include "ordering/sorted_keys.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <limits>
#include <map>
#include <parallel/algorithm>
#include <random>
#include <utility>
#include <vector>

namespace
{

struct pair {
    double key;
    int position;
};

/** Keys of one shape: 0 uniform, 1 a thousand distinct values, 2 of any magnitude, 3 in order. */
const std::vector<double>& keysOf(std::int64_t count, std::int64_t shape)
{
    static std::map<std::pair<std::int64_t, std::int64_t>, std::vector<double>> made;
    std::vector<double>& keys = made[{count, shape}];
    if (keys.empty()) {
        std::mt19937_64 random(1);
        keys.resize(static_cast<std::size_t>(count));
        for (std::size_t k = 0; k < keys.size(); ++k) {
            const double uniform = std::ldexp(static_cast<double>(random() >> 11), -53);
            switch (shape) {
            case 0:
                keys[k] = uniform;
                break;
            case 1:
                keys[k] = static_cast<double>(random() % 1000);
                break;
            case 2:
                keys[k] = std::ldexp(1.0 + uniform, static_cast<int>(random() % 600) - 300);
                break;
            default:
                keys[k] = static_cast<double>(k);
                break;
            }
        }
    }
    return keys;
}

std::map<std::pair<std::int64_t, std::int64_t>, double>& standardSeconds()
{
    static std::map<std::pair<std::int64_t, std::int64_t>, double> seconds;
    return seconds;
}

/** Times `sort(keys)` and reports the least time as a share of the standard library's. */
template <class Sort>
void timeSort(benchmark::State& state, bool isStandard, Sort sort)
{
    const auto id = std::pair{state.range(0), state.range(1)};
    const std::vector<double>& keys = keysOf(id.first, id.second);
    double least = std::numeric_limits<double>::infinity();
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        sort(keys);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
        least = std::min(least, elapsed.count());
    }
    if (isStandard) {
        standardSeconds()[id] = least;
    }
    state.counters["by std"] = least / standardSeconds()[id];
}

template <class Sort>
void sortPairs(const std::vector<double>& keys, Sort sort)
{
    std::vector<pair> pairs(keys.size());
    for (std::size_t k = 0; k < keys.size(); ++k) {
        pairs[k] = {keys[k], static_cast<int>(k)};
    }
    sort(pairs.begin(), pairs.end(), [](const pair& a, const pair& b) { return a.key < b.key; });
    benchmark::DoNotOptimize(pairs.data());
}

void standardSort(benchmark::State& state)
{
    timeSort(state, true, [](const std::vector<double>& keys) {
        sortPairs(keys, [](auto first, auto last, auto before) { std::stable_sort(first, last, before); });
    });
}

void parallelModeSort(benchmark::State& state)
{
    timeSort(state, false, [](const std::vector<double>& keys) {
        sortPairs(keys, [](auto first, auto last, auto before) {
            __gnu_parallel::stable_sort(first, last, before);
        });
    });
}

void sortEngine(benchmark::State& state)
{
    timeSort(state, false, [](const std::vector<double>& keys) {
        const korvel::sorted_keys<double> sorted(static_cast<int>(keys.size()), false, [&](std::int32_t k) {
            return keys[static_cast<std::size_t>(k)];
        });
        benchmark::DoNotOptimize(sorted.position(0));
    });
}

void shapes(benchmark::internal::Benchmark* bench)
{
    for (const int count : {20, 300, 10'000, 99'999, 1'000'000}) {
        bench->Args({count, 0});
    }
    for (const int shape : {0, 1, 2, 3}) {
        bench->Args({10'000'000, shape});
    }
    bench->ArgNames({"pairs", "shape"})->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(standardSort)->Apply(shapes);
BENCHMARK(parallelModeSort)->Apply(shapes);
BENCHMARK(sortEngine)->Apply(shapes);

} // namespace
