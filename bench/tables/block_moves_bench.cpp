// Merging, extracting, removing and copying blocks beside a plain copy of the bytes that they move, all timed
// in turns in one run. The counters are the best time of each in milliseconds, and the speed of the routine
// as a share of the copy's. The flat functions are timed, frames included. Some are also timed beside the
// checked loop over the same cells, which shows what runs of memory gain.

#include "containers/matrix.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/stop_watch.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstring>
#include <vector>

namespace
{

using korvel::bench::stop_watch;

/** Two tables of `rows` by `cols`, and room for both. */
struct tables {
    std::vector<double> a;
    std::vector<double> b;
    std::vector<double> out;

    tables(std::size_t rows, std::size_t cols)
        : a(rows * cols, 1.0), b(rows * cols, 2.0), out(2 * rows * cols, 3.0)
    {
    }
};

/** `move(rows, cols, x)` moves `share` times the cells of one table; the copy moves as many. */
template <class Move>
void compare(benchmark::State& state, double share, Move move)
{
    const auto rows = static_cast<int>(state.range(0));
    const auto cols = static_cast<int>(state.range(1));
    tables x(static_cast<std::size_t>(rows), static_cast<std::size_t>(cols));
    const auto moved = static_cast<std::size_t>(share * static_cast<double>(x.a.size()));
    const std::size_t first = std::min(moved, x.a.size());
    stop_watch copy;
    stop_watch ours;
    for (auto _ : state) {
        copy.time([&] {
            std::memcpy(x.out.data(), x.a.data(), first * sizeof(double));
            std::memcpy(x.out.data() + first, x.b.data(), (moved - first) * sizeof(double));
        });
        ours.time([&] { move(rows, cols, x); });
    }
    state.counters["copy"] = copy.milliseconds();
    state.counters["ours"] = ours.milliseconds();
    state.counters["speed_to_copy"] = copy.milliseconds() / ours.milliseconds();
}

void hMerge(benchmark::State& state)
{
    compare(state, 2.0, [](int rows, int cols, tables& x) {
        VB_HMergeTablesDbl(x.a.data(), rows, cols, x.b.data(), rows, cols, x.out.data());
    });
}

void vMerge(benchmark::State& state)
{
    compare(state, 2.0, [](int rows, int cols, tables& x) {
        VB_VMergeTablesDbl(x.a.data(), rows, cols, x.b.data(), rows, cols, x.out.data());
    });
}

void extractRows(benchmark::State& state)
{
    compare(state, 0.5, [](int rows, int cols, tables& x) {
        VB_M_ExtractMatToMatDbl(x.a.data(), rows, cols, rows / 4 + 1, rows / 4 + rows / 2, x.out.data());
    });
}

void extractColumns(benchmark::State& state)
{
    compare(state, 0.5, [](int rows, int cols, tables& x) {
        VB_M_ExtractMatToMatByColDbl(x.a.data(), rows, cols, cols / 4 + 1, cols / 4 + cols / 2, x.out.data());
    });
}

void copyBlock(benchmark::State& state)
{
    compare(state, 0.25, [](int rows, int cols, tables& x) {
        VB_M_CopyBlock(x.a.data(), rows, cols, rows / 4 + 1, rows / 4 + rows / 2, cols / 4 + 1,
                       cols / 4 + cols / 2, x.out.data());
    });
}

void removeRow(benchmark::State& state)
{
    compare(state, 1.0, [](int rows, int cols, tables& x) {
        VB_M_RemoveRow(x.a.data(), rows, cols, rows / 2, x.out.data());
    });
}

/** The same block as `copyBlock`, by the accessors. */
void copyBlockChecked(benchmark::State& state)
{
    compare(state, 0.25, [](int rows, int cols, tables& x) {
        const matrix<double> from(rows, cols, x.a.data(), true);
        matrix<double> to(rows / 2, cols / 2, x.out.data(), true);
        for (int i = 0; i < rows / 2; ++i) {
            for (int j = 0; j < cols / 2; ++j) {
                to.setElement(i, j, from.getElement(rows / 4 + i, cols / 4 + j));
            }
        }
    });
}

void shapes(benchmark::internal::Benchmark* bench)
{
    bench->Args({100, 40})
        ->Args({10'000, 50})
        ->Args({100'000, 50})
        ->Args({2'000, 2'000})
        ->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(hMerge)->Apply(shapes);
BENCHMARK(vMerge)->Apply(shapes);
BENCHMARK(extractRows)->Apply(shapes);
BENCHMARK(extractColumns)->Apply(shapes);
BENCHMARK(copyBlock)->Apply(shapes);
BENCHMARK(removeRow)->Apply(shapes);
BENCHMARK(copyBlockChecked)->Apply(shapes);
