// Covariances of 10,000 rows by 50 columns, and means and deviations of 100,000 by 50, beside the plain loop
// at -O2, R and NumPy. One cell in fifty is missing, at random, or none is. Benchmarks are named
// ROUTINE/PEER, for bench/side_by_side.
#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "statistics/plain_columns.h"
#include "support/peer_script.h"

#include <benchmark/benchmark.h>
#include <cstddef>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace korvel::bench;

constexpr int cols = 50;
constexpr short int unbiased = -1;
constexpr short int byCount = -1;

/** A table, its weights of 1, and room for every result. */
class table
{
public:
    table(int rowCount, bool someMissing)
        : rows(rowCount), x(static_cast<std::size_t>(rowCount) * cols),
          w(static_cast<std::size_t>(rowCount), 1.0), out(cols * cols), means(cols), sds(cols)
    {
        std::mt19937_64 random(1);
        std::normal_distribution<double> normal(3.0, 1.0);
        for (double& cell : x) {
            cell = someMissing && random() % 50 == 0 ? MISSING_DBL : normal(random);
        }
    }

    int rows;
    std::vector<double> x;
    std::vector<double> w;
    std::vector<double> out;
    std::vector<double> means;
    std::vector<double> sds;

    void covariances()
    {
        VB_M_CovCorr(x.data(), rows, cols, out.data(), 0, nullptr, w.data(), unbiased, byCount, 0);
    }
    void plainCovariances() { plain::covariances(x.data(), rows, cols, w.data(), out.data()); }
    void deviations()
    {
        VB_M_MeanStDev(x.data(), rows, cols, means.data(), sds.data(), nullptr, w.data(), unbiased, byCount,
                       -1);
    }
    void plainDeviations() { plain::deviations(x.data(), rows, cols, w.data(), means.data(), sds.data()); }

    /** The cells with a NaN for each missing one, as peers expect. */
    [[nodiscard]] std::vector<double> forPeers() const
    {
        std::vector<double> cells = x;
        for (double& cell : cells) {
            cell = cell == MISSING_DBL ? std::numeric_limits<double>::quiet_NaN() : cell;
        }
        return cells;
    }
};

table& wide(bool someMissing)
{
    static table complete(10'000, false);
    static table withMissing(10'000, true);
    return someMissing ? withMissing : complete;
}

table& tall(bool someMissing)
{
    static table complete(100'000, false);
    static table withMissing(100'000, true);
    return someMissing ? withMissing : complete;
}

void add(const std::string& name, table& (*data)(bool), bool someMissing, void (table::*routine)())
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        table& cells = data(someMissing);
        for (auto _ : state) {
            (cells.*routine)();
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(cells.x.size()));
    })->Unit(benchmark::kMillisecond);
}

/** A script is started once for each run and gives the least of several times. */
void addPeer(const std::string& name, table& (*data)(bool), bool someMissing, const std::string& command)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     const table& cells = data(someMissing);
                                     const cells_file file("columns", cells.forPeers());
                                     for (auto _ : state) {
                                         state.SetIterationTime(secondsOf(command + " " + file.path()));
                                     }
                                     state.SetItemsProcessed(state.iterations() *
                                                             static_cast<std::int64_t>(cells.x.size()));
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1);
}

const bool added = [] {
    for (const bool someMissing : {true, false}) {
        const std::string kind = someMissing ? ", 2 % missing" : ", none missing";
        const std::string covariances = "covariances" + kind;
        add(covariances + "/korvel", wide, someMissing, &table::covariances);
        add(covariances + "/plain", wide, someMissing, &table::plainCovariances);
        addPeer(covariances + "/R", wide, someMissing, rScript("covariances.R"));
        const std::string deviations = "means and deviations" + kind;
        add(deviations + "/korvel", tall, someMissing, &table::deviations);
        add(deviations + "/plain", tall, someMissing, &table::plainDeviations);
        addPeer(deviations + "/NumPy", tall, someMissing, pythonScript("column_deviations.py"));
    }
    return true;
}();

} // namespace
