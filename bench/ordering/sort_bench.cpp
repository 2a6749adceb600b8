// The sort engine beside the sorts that a user would pick, on the same keys in one run. Benchmarks are named
// KEYS/PEER, for bench/side_by_side. Ours and the standard library's make a list of pairs and sort it. NumPy
// and R (one thread) give the order of the keys, which is the same work. Ours makes no list when the keys are
// already in order.
#include "ordering/sorted_keys.h"
#include "support/peer_script.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <parallel/algorithm>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace
{

using namespace korvel::bench;

using key_list = std::span<const double>;

struct pair {
    double key;
    int position;
};

enum class shape { uniform, few_values, any_magnitude, in_order, in_reverse };

struct keys_case {
    const char* name;
    std::size_t count; ///< Keys in a list.
    shape keys;
    bool scripts; ///< Whether it is worth starting NumPy and R.
};

constexpr keys_case keysCases[] = {
    {"20 uniform keys", 20, shape::uniform, false},
    {"300 uniform keys", 300, shape::uniform, false},
    {"10,000 uniform keys", 10'000, shape::uniform, false},
    {"99,999 uniform keys", 99'999, shape::uniform, false},
    {"1,000,000 uniform keys", 1'000'000, shape::uniform, true},
    {"10,000,000 uniform keys", 10'000'000, shape::uniform, true},
    {"10,000,000 keys of 1000 values", 10'000'000, shape::few_values, true},
    {"10,000,000 keys of any magnitude", 10'000'000, shape::any_magnitude, true},
    {"10,000,000 keys in order", 10'000'000, shape::in_order, true},
    {"10,000,000 keys in reverse order", 10'000'000, shape::in_reverse, true},
};

std::vector<double> makeKeys(const keys_case& wanted)
{
    std::mt19937_64 random(1);
    // Many short lists: with a single one the branch predictor would learn it.
    std::vector<double> keys(wanted.count * std::max<std::size_t>(1, 100'000 / wanted.count));
    for (std::size_t k = 0; k < keys.size(); ++k) {
        const double uniform = std::ldexp(static_cast<double>(random() >> 11), -53);
        switch (wanted.keys) {
        case shape::uniform:
            keys[k] = uniform;
            break;
        case shape::few_values:
            keys[k] = static_cast<double>(random() % 1000);
            break;
        case shape::any_magnitude:
            keys[k] = std::ldexp(1.0 + uniform, static_cast<int>(random() % 600) - 300);
            break;
        case shape::in_order:
            keys[k] = static_cast<double>(k);
            break;
        case shape::in_reverse:
            keys[k] = -static_cast<double>(k);
            break;
        }
    }
    return keys;
}

/** The lists of keys of a case, one after the other, made on first use. */
key_list keysOf(const keys_case& wanted)
{
    static std::vector<std::vector<double>> made(std::size(keysCases));
    std::vector<double>& keys = made[static_cast<std::size_t>(&wanted - keysCases)];
    if (keys.empty()) {
        keys = makeKeys(wanted);
    }
    return keys;
}

template <class Sort>
void sortPairs(key_list keys, Sort sort)
{
    std::vector<pair> pairs(keys.size());
    for (std::size_t k = 0; k < keys.size(); ++k) {
        pairs[k] = {keys[k], static_cast<int>(k)};
    }
    sort(pairs.begin(), pairs.end(), [](const pair& a, const pair& b) { return a.key < b.key; });
    benchmark::DoNotOptimize(pairs.data());
}

void engineSort(key_list keys)
{
    const korvel::sorted_order<double> sorted(static_cast<int>(keys.size()), false, [&](std::int32_t k) {
        return keys[static_cast<std::size_t>(k)];
    });
    benchmark::DoNotOptimize(sorted.position(0));
}

void standardSort(key_list keys)
{
    sortPairs(keys, [](auto first, auto last, auto before) { std::stable_sort(first, last, before); });
}

void parallelModeSort(key_list keys)
{
    sortPairs(keys,
              [](auto first, auto last, auto before) { __gnu_parallel::stable_sort(first, last, before); });
}

void add(const keys_case& keys, const char* peer, void (*sort)(key_list))
{
    const auto run = [&keys, sort](benchmark::State& state) {
        const key_list given = keysOf(keys);
        for ([[maybe_unused]] auto _ : state) {
            for (std::size_t first = 0; first < given.size(); first += keys.count) {
                sort(given.subspan(first, keys.count));
            }
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(given.size()));
    };
    benchmark::RegisterBenchmark((std::string(keys.name) + "/" + peer).c_str(), run)
        ->Iterations(1)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

/** A script is started once for each list of keys and gives the least of several times. */
void addScript(const keys_case& keys, const char* peer, const std::string& script)
{
    const auto run = [&keys, script, seconds = 0.0](benchmark::State& state) mutable {
        const key_list given = keysOf(keys);
        if (seconds == 0.0) {
            const cells_file file("keys", given);
            seconds = secondsOf(script + " " + file.path());
        }
        for ([[maybe_unused]] auto _ : state) {
            state.SetIterationTime(seconds);
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(given.size()));
    };
    benchmark::RegisterBenchmark((std::string(keys.name) + "/" + peer).c_str(), run)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    for (const keys_case& keys : keysCases) {
        add(keys, "korvel", engineSort);
        add(keys, "std::stable_sort", standardSort);
        add(keys, "__gnu_parallel", parallelModeSort);
        if (keys.scripts) {
            addScript(keys, "NumPy", pythonScript("argsort.py"));
            addScript(keys, "R", rScript("order.R"));
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}
