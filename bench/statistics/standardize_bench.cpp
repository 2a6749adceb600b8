// Standardising a table of 100,000 by 50 in place, beside its two halves (the statistics alone, the change of
// the cells alone), a copy of the same bytes (the table read and written once more), the plain loop and R.
// Benchmarks are named ROUTINE/PEER, for bench/side_by_side.
#include "reference/standardize.h"
#include "statistics/centering.h"
#include "statistics/column_deviations.h"
#include "statistics/standardize.h"
#include "support/peer_script.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <random>
#include <string>

namespace
{

using namespace korvel::bench;

constexpr int rows = 100'000;
constexpr int cols = 50;

/** A table with its room for results; two cells in a hundred are missing, or none. */
struct tables {
    matrix<double> x{rows, cols, 0.0};
    matrix<double> copy{rows, cols, 0.0};
    matrix<double> w{rows, 1, 1.0};
    matrix<double> means{cols, 1, 0.0};
    matrix<double> sds{cols, 1, 0.0};

    explicit tables(bool someMissing)
    {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> uniform(0.5, 1.5);
        for (std::uint64_t k = 0; k < x.nbElem; ++k) {
            x.data[k] = someMissing && random() % 50 == 0 ? MISSING_DBL : uniform(random);
        }
    }
};

using call = void (*)(tables&);

void add(const std::string& name, call function, bool someMissing)
{
    benchmark::RegisterBenchmark((name + (someMissing ? ", some missing" : "")).c_str(),
                                 [=](benchmark::State& state) {
                                     static tables complete(false);
                                     static tables gaps(true);
                                     tables& given = someMissing ? gaps : complete;
                                     for ([[maybe_unused]] auto _ : state) {
                                         function(given);
                                         benchmark::ClobberMemory();
                                     }
                                     state.SetItemsProcessed(state.iterations() * rows * cols);
                                 })
        ->Unit(benchmark::kMillisecond);
}

/** The loop that a programmer would write: the statistics of a column, and then its cells. */
void plainStandardize(tables& t)
{
    korvel::reference::standardized_statistics found(cols);
    korvel::reference::changeByMoments(t.x, rows, cols, nullptr, {-1, -1}, korvel::reference::standardized,
                                       nullptr, found);
}

/** R is started once and gives the least of several times. */
void addR(const std::string& name, const std::string& expression)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=, seconds = 0.0](benchmark::State& state) mutable {
                                     if (seconds == 0.0) {
                                         const tables made(false);
                                         const cells_file x("table", {made.x.data, made.x.nbElem});
                                         seconds =
                                             secondsOf(rScript("summaries.R") + " " + x.path() + " " +
                                                       x.path() + " " + x.path() + " " + quoted(expression));
                                     }
                                     for ([[maybe_unused]] auto _ : state) {
                                         state.SetIterationTime(seconds);
                                     }
                                     state.SetItemsProcessed(state.iterations() * rows * cols);
                                 })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    for (const bool someMissing : {false, true}) {
        add(
            "M_Standardize2/korvel", [](tables& t) { M_Standardize2(&t.x, rows, cols, -1); }, someMissing);
        add(
            "M_Standardize/korvel",
            [](tables& t) {
                M_Standardize(&t.x, rows, cols, nullptr, &t.means, &t.sds, nullptr, nullptr, nullptr, -1, -1);
            },
            someMissing);
        add(
            "M_Standardize2/statistics",
            [](tables& t) { M_MeanStDev(&t.x, rows, cols, &t.means, &t.sds, nullptr, &t.w, -1, -1, -1); },
            someMissing);
        add(
            "M_Standardize2/copy",
            [](tables& t) { std::memcpy(t.copy.data, t.x.data, t.x.nbElem * sizeof(double)); }, someMissing);
        add(
            "M_Standardize2/applying",
            [](tables& t) { M_StandardizeApply2(&t.x, rows, cols, &t.means, &t.sds); }, someMissing);
        add("M_Standardize2/plain", plainStandardize, someMissing);
    }
    addR("M_Standardize2/R", "scale(matrix(x, ncol = 50))");
    return true;
}();

} // namespace
