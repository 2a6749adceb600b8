// The regression of 100,000 rows on 30 terms and a constant, on one thread, beside LAPACK's dgels and R's
// lm.fit on the same cells, in turns. The counters are our best time in milliseconds and its share of each
// peer's. The peers give coefficients alone (lm.fit also residuals), ours also standard errors and fitted
// values.

#include "korvelmathtools/KORVELMathTools.h"
#include "support/peer_script.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cmath>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

extern "C" void dgels_(const char*, const int*, const int*, const int*, double*, const int*, double*,
                       const int*, double*, const int*, int*);

namespace
{

using namespace korvel::bench;

constexpr int rows = 100'000;
constexpr int terms = 30;
constexpr int rounds = 7;

/** The columns one behind the other, the response last. */
class table
{
public:
    explicit table(double weight)
        : cells(static_cast<std::size_t>(rows) * (terms + 1)), weights(rows, weight), coefficients(terms + 1),
          errors(terms + 1), fitted(rows)
    {
        std::mt19937_64 random(1);
        std::normal_distribution<double> normal(3.0, 1.0);
        for (double& cell : cells) {
            cell = normal(random);
        }
        for (int j = 0; j < terms; ++j) {
            for (int i = 0; i < rows; ++i) {
                cells[at(i, terms)] += j % 5 * cells[at(i, j)];
            }
        }
    }

    [[nodiscard]] static std::size_t at(int i, int j)
    {
        return static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * rows;
    }
    [[nodiscard]] const double* column(int j) const { return cells.data() + at(0, j); }

    void fit(short int noConstant)
    {
        RunOLSBasic2(rows, terms, column(0), column(terms), weights.data(), 1, 0, noConstant, 1e-12,
                     coefficients.data(), errors.data(), fitted.data());
    }
    void fitInBlocks(short int noConstant)
    {
        RunOLSBasic2Lg(rows, 10, column(0), 10, column(10), 10, column(20), 0, nullptr, 0, nullptr,
                       column(terms), weights.data(), 1, 0, noConstant, 1e-12, coefficients.data(),
                       errors.data(), fitted.data());
    }

    std::vector<double> cells;
    std::vector<double> weights;
    std::vector<double> coefficients;
    std::vector<double> errors;
    std::vector<double> fitted;
};

/** dgels on a copy, which is made before the clock starts; the constant is a column of ones. */
void timeDgels(const table& data, stop_watch& watch)
{
    constexpr int order = terms + 1;
    constexpr int one = 1;
    std::vector<double> A(static_cast<std::size_t>(rows), 1.0);
    A.insert(A.end(), data.cells.begin(), data.cells.end() - rows);
    std::vector<double> b(data.cells.end() - rows, data.cells.end());
    std::vector<double> work(1);
    int room = -1;
    int info = 0;
    dgels_("N", &rows, &order, &one, A.data(), &rows, b.data(), &rows, work.data(), &room, &info);
    room = static_cast<int>(work[0]);
    work.resize(static_cast<std::size_t>(room));
    watch.time([&] {
        dgels_("N", &rows, &order, &one, A.data(), &rows, b.data(), &rows, work.data(), &room, &info);
    });
}

void regression(benchmark::State& state, bool inBlocks, short int noConstant, double weight)
{
    openblas_set_num_threads(1);
    table data(weight);
    const cells_file file("korvel_regression", data.cells);
    const std::string script =
        rScript("least_squares.R") + " " + quoted(file.path()) + " " + std::to_string(terms + 1);
    stop_watch ours;
    stop_watch dgels;
    double lm = 0.0;
    for (auto pass : state) {
        for (int round = 0; round < rounds; ++round) {
            ours.time([&] { inBlocks ? data.fitInBlocks(noConstant) : data.fit(noConstant); });
            timeDgels(data, dgels);
        }
        lm = 1000.0 * secondsOf(script);
    }
    state.counters["ms"] = ours.milliseconds();
    state.counters["of_dgels"] = ours.milliseconds() / dgels.milliseconds();
    state.counters["of_lm.fit"] = ours.milliseconds() / lm;
}

BENCHMARK_CAPTURE(regression, one_table, false, 0, 1.0)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(regression, one_table_weighted, false, 0, 1.5)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(regression, one_table_no_constant, false, -1, 1.0)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(regression, one_table_no_constant_weighted, false, -1, 1.5)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(regression, three_tables, true, 0, 1.0)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(regression, three_tables_no_constant, true, -1, 1.0)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
