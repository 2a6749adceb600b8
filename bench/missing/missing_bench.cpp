// Missing cells and groups in ten million cells, beside a plain copy of the bytes that are read and the plain
// loop at -O2, all timed in turns in one run. The counters are the best time of each in milliseconds, and the
// speed of the routine as a share of the copy's and of the loop's. The flat functions are timed, frames
// included. The argument is how many cells, or rows, in a thousand are missing, or belong to the group.

#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "missing/plain_missing.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstring>
#include <random>
#include <vector>

namespace
{

using korvel::bench::stop_watch;
namespace plain = korvel::bench::plain;

constexpr int rows = 100'000;
constexpr int cols = 100;
constexpr int cells = rows * cols;

/**
 * A table, flags of its rows, and codes of its cells. `perMille` of each are missing, set or in the group.
 */
struct tables {
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> out;
    std::vector<double> codes;
    std::vector<short int> flags;
    int kept = rows;

    explicit tables(int perMille) : x(cells), y(cells, 1.5), out(cells), codes(cells), flags(rows)
    {
        std::mt19937 random(1);
        const auto isFound = [&] { return static_cast<int>(random() % 1000) < perMille; };
        for (int i = 0; i < cells; ++i) {
            const auto k = static_cast<std::size_t>(i);
            x[k] = isFound() ? MISSING_DBL : static_cast<double>(random() % 1000);
            codes[k] = isFound() ? 1.0 : 2.0;
        }
        for (short int& flag : flags) {
            flag = isFound() ? -1 : 0;
            kept += flag;
        }
    }
};

/** Times `ours(t)` and `loop(t)` beside a copy of `bytes`. */
template <class Ours, class Loop>
void compare(benchmark::State& state, std::size_t bytes, Ours ours, Loop loop)
{
    tables t(static_cast<int>(state.range(0)));
    std::vector<double> target(bytes / sizeof(double) + 1);
    std::vector<double> source(target.size(), 1.0);
    stop_watch copy;
    stop_watch library;
    stop_watch byHand;
    for (auto _ : state) {
        copy.time([&] { std::memcpy(target.data(), source.data(), bytes); });
        library.time([&] { ours(t); });
        byHand.time([&] { loop(t); });
    }
    state.counters["copy"] = copy.milliseconds();
    state.counters["ours"] = library.milliseconds();
    state.counters["plain"] = byHand.milliseconds();
    state.counters["speed_to_copy"] = copy.milliseconds() / library.milliseconds();
    state.counters["speed_to_plain"] = byHand.milliseconds() / library.milliseconds();
}

constexpr std::size_t oneTable = sizeof(double) * cells;

void count(benchmark::State& state)
{
    compare(
        state, oneTable, [](tables& t) { benchmark::DoNotOptimize(VB_M_NbMissing2(t.x.data(), rows, cols)); },
        [](tables& t) { benchmark::DoNotOptimize(plain::count(t.x.data(), cells)); });
}

void countGroup(benchmark::State& state)
{
    compare(
        state, oneTable, [](tables& t) { benchmark::DoNotOptimize(VB_V_NbIf(t.codes.data(), cells, 1.0)); },
        [](tables& t) { benchmark::DoNotOptimize(plain::countIf(t.codes.data(), cells, 1.0)); });
}

void flagRows(benchmark::State& state)
{
    compare(
        state, oneTable,
        [](tables& t) { Cpp_M_GetMissingDbl(t.x.data(), rows, cols, nullptr, t.flags.data()); },
        [](tables& t) { plain::flagRows(t.x.data(), rows, cols, t.flags.data()); });
}

/** The next replacement makes the replaced cells missing again. */
void replace(benchmark::State& state)
{
    compare(
        state, oneTable, [](tables& t) { VB_M_ReplaceMissingByVal(t.x.data(), rows, cols, MISSING_DBL); },
        [](tables& t) { plain::replace(t.x.data(), cells, MISSING_DBL); });
}

void removeRows(benchmark::State& state)
{
    compare(
        state, oneTable,
        [](tables& t) {
            VB_RemoveRowsWithMissing(t.x.data(), rows, cols, rows - t.kept, t.flags.data(), t.out.data());
        },
        [](tables& t) { plain::removeRows(t.x.data(), rows, cols, t.flags.data(), t.out.data(), t.kept); });
}

void insertRows(benchmark::State& state)
{
    compare(
        state, oneTable,
        [](tables& t) {
            Cpp_M_InsertMissingDbl(t.x.data(), t.kept, cols, t.flags.data(), rows - t.kept, t.out.data());
        },
        [](tables& t) { plain::insertRows(t.x.data(), t.kept, cols, t.flags.data(), t.out.data(), rows); });
}

void isPositive(benchmark::State& state)
{
    compare(
        state, oneTable, [](tables& t) { benchmark::DoNotOptimize(VB_V_IsPositive(t.x.data(), cells, 0)); },
        [](tables& t) { benchmark::DoNotOptimize(plain::isPositive(t.x.data(), cells)); });
}

void sumIf(benchmark::State& state)
{
    compare(
        state, 2 * oneTable,
        [](tables& t) { benchmark::DoNotOptimize(VB_V_SumIf(t.y.data(), cells, t.codes.data(), 1.0)); },
        [](tables& t) { benchmark::DoNotOptimize(plain::sumIf(t.y.data(), cells, t.codes.data(), 1.0)); });
}

void varIf(benchmark::State& state)
{
    compare(
        state, 2 * oneTable,
        [](tables& t) { benchmark::DoNotOptimize(Cpp_V_VarIf(t.y.data(), cells, t.codes.data(), 1.0, 0)); },
        [](tables& t) { benchmark::DoNotOptimize(plain::varIf(t.y.data(), cells, t.codes.data(), 1.0)); });
}

void shares(benchmark::internal::Benchmark* bench)
{
    bench->Arg(0)->Arg(1)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond)->Iterations(15);
}

} // namespace

BENCHMARK(count)->Apply(shares);
BENCHMARK(countGroup)->Apply(shares);
BENCHMARK(flagRows)->Apply(shares);
BENCHMARK(replace)->Apply(shares);
BENCHMARK(removeRows)->Apply(shares);
BENCHMARK(insertRows)->Apply(shares);
BENCHMARK(isPositive)->Apply(shares);
BENCHMARK(sumIf)->Apply(shares);
BENCHMARK(varIf)->Apply(shares);
