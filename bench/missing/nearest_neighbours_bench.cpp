// Missing cells filled by the nearest of ten thousand rows, beside the plain loop at -O2, timed in turns in
// one run. The counters are the best time of each in milliseconds, the time of the routine as a share of the
// loop's, and whether both filled in the same bits. The flat function is timed, with its means and variances;
// the loop is given them. The argument is the number of columns; one row in a hundred lacks two of its
// numbers.

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

constexpr int rows = 10'000;

/** What the columns have in common: nothing, or one factor that makes near rows nearer. */
enum class columns_are { independent, correlated };

/** A table with the flags of its rows. */
struct incomplete_table {
    int cols;
    std::vector<double> x;
    std::vector<short int> flags;
    std::vector<double> weights;

    incomplete_table(int columns, columns_are kind)
        : cols(columns), x(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)), flags(rows),
          weights(rows, 1.0)
    {
        std::mt19937 random(1);
        std::normal_distribution<double> normal;
        for (std::size_t i = 0; i < rows; ++i) {
            const double factor = kind == columns_are::correlated ? 2 * normal(random) : 0.0;
            for (std::size_t j = 0; j < static_cast<std::size_t>(cols); ++j) {
                x[i + rows * j] = 10.0 * static_cast<double>(j) + factor + normal(random);
            }
        }
        for (std::size_t i = 50; i < rows; i += 100) {
            flags[i] = -1;
            x[i + rows * (i % static_cast<std::size_t>(cols))] = MISSING_DBL;
            x[i + rows * ((i / 7) % static_cast<std::size_t>(cols))] = MISSING_DBL;
        }
    }
};

void fillByNearest(benchmark::State& state, columns_are kind)
{
    const incomplete_table table(static_cast<int>(state.range(0)), kind);
    const auto n = static_cast<std::size_t>(table.cols);
    std::vector<double> means(n);
    std::vector<double> deviations(n);
    std::vector<double> variances(n);
    VB_M_MeanStDevVar(table.x.data(), rows, table.cols, means.data(), deviations.data(), variances.data(),
                      nullptr, table.weights.data(), -1, -1);
    std::vector<double> ours;
    std::vector<double> plain;
    stop_watch library;
    stop_watch byHand;
    for (auto _ : state) {
        ours = table.x;
        plain = table.x;
        library.time([&] {
            VB_EstimateRowsWithMissingNN(ours.data(), rows, table.cols, table.flags.data(), nullptr, 0,
                                         nullptr, 0, table.weights.data());
        });
        byHand.time([&] {
            korvel::bench::plain::fillByNearest(plain.data(), rows, table.cols, table.flags.data(),
                                                means.data(), variances.data());
        });
    }
    state.counters["ours"] = library.milliseconds();
    state.counters["plain"] = byHand.milliseconds();
    state.counters["share_of_plain"] = library.milliseconds() / byHand.milliseconds();
    state.counters["same_bits"] = std::memcmp(ours.data(), plain.data(), ours.size() * sizeof(double)) == 0;
}

} // namespace

BENCHMARK_CAPTURE(fillByNearest, independent, columns_are::independent)
    ->Arg(5)
    ->Arg(20)
    ->Arg(50)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
BENCHMARK_CAPTURE(fillByNearest, correlated, columns_are::correlated)
    ->Arg(20)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);
