// The nearest correlation matrix of random indefinite tables beside R's Matrix::nearPD at the same tolerance,
// both on one thread. Benchmarks are named ROUTINE/PEER, for bench/side_by_side.
#include "statistics/correlation_repair.h"
#include "support/peer_script.h"

#include <benchmark/benchmark.h>
#include <random>
#include <string>

namespace
{

using namespace korvel::bench;

/** Ones on the diagonal, and any correlations beside it. */
matrix<double> indefiniteTable(int n)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    matrix<double> made(n, n, 1.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < i; ++j) {
            const double cell = uniform(random);
            made.setElement(i, j, cell);
            made.setElement(j, i, cell);
        }
    }
    return made;
}

void addOurs(const std::string& routine, int n)
{
    benchmark::RegisterBenchmark((routine + "/korvel").c_str(), [=](benchmark::State& state) {
        const matrix<double> table = indefiniteTable(n);
        for ([[maybe_unused]] auto _ : state) {
            matrix<double> x(table);
            M_CorrMatFromSymMat(&x, n);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * n * n);
    })->Unit(benchmark::kMillisecond);
}

/** R is started once and gives the least of several times. */
void addR(const std::string& routine, int n)
{
    benchmark::RegisterBenchmark((routine + "/R").c_str(),
                                 [=, seconds = 0.0](benchmark::State& state) mutable {
                                     if (seconds == 0.0) {
                                         const matrix<double> table = indefiniteTable(n);
                                         const cells_file file("indefinite", {table.data, table.nbElem});
                                         seconds =
                                             secondsOf("OPENBLAS_NUM_THREADS=1 " +
                                                       rScript("nearest_correlation.R") + " " + file.path());
                                     }
                                     for ([[maybe_unused]] auto _ : state) {
                                         state.SetIterationTime(seconds);
                                     }
                                     state.SetItemsProcessed(state.iterations() * n * n);
                                 })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    for (const int n : {3, 10, 30, 100, 200}) {
        const std::string routine = "M_CorrMatFromSymMat of " + std::to_string(n);
        addOurs(routine, n);
        addR(routine, n);
    }
    return true;
}();

} // namespace
