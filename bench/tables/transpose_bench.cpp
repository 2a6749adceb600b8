// Transposing against a plain copy of the same bytes, the plain loop and Eigen, all timed in turns in one
// run: the counters are the best time of each in milliseconds, and the speed of transposing as a share of the
// copy's.

#include "support/stop_watch.h"
#include "tables/transpose.h"

#include <Eigen/Core>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstring>

namespace
{

using korvel::bench::stop_watch;

matrix<double> numbered(int rows, int cols)
{
    matrix<double> made(rows, cols, 1);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = static_cast<double>(k);
    }
    return made;
}

void transpose(benchmark::State& state)
{
    const auto rows = static_cast<int>(state.range(0));
    const auto cols = static_cast<int>(state.range(1));
    const matrix<double> x = numbered(rows, cols);
    matrix<double> y(cols, rows, 0);
    const Eigen::Map<const Eigen::MatrixXd> from(x.data, rows, cols);
    Eigen::Map<Eigen::MatrixXd> to(y.data, cols, rows);
    stop_watch copy;
    stop_watch plain;
    stop_watch eigen;
    stop_watch ours;
    for (auto _ : state) {
        copy.time([&] { std::memcpy(y.data, x.data, x.nbElem * sizeof(double)); });
        plain.time([&] {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < cols; ++j) {
                    y.data[j + static_cast<std::ptrdiff_t>(cols) * i] =
                        x.data[i + static_cast<std::ptrdiff_t>(rows) * j];
                }
            }
        });
        eigen.time([&] { to = from.transpose(); });
        ours.time([&] { M_Transpose(x, rows, cols, y); });
    }
    state.counters["copy"] = copy.milliseconds();
    state.counters["plain"] = plain.milliseconds();
    state.counters["eigen"] = eigen.milliseconds();
    state.counters["ours"] = ours.milliseconds();
    state.counters["speed_to_copy"] = copy.milliseconds() / ours.milliseconds();
}

} // namespace

BENCHMARK(transpose)->Args({30, 30})->Iterations(200);
BENCHMARK(transpose)->Args({100, 100})->Iterations(200);
BENCHMARK(transpose)->Args({500, 500})->Iterations(100);
BENCHMARK(transpose)->Args({1000, 1000})->Iterations(50);
BENCHMARK(transpose)->Args({4000, 4000})->Iterations(12);
BENCHMARK(transpose)->Args({4001, 3999})->Iterations(12);
BENCHMARK(transpose)->Args({4096, 4096})->Iterations(12);
BENCHMARK(transpose)->Args({1000000, 16})->Iterations(12);
BENCHMARK(transpose)->Args({16, 1000000})->Iterations(12);
