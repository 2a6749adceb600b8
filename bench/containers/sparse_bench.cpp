// The sparse table beside Eigen's. Each iteration does the same work in both, one after the other. The time
// shown is ours, "Eigen_ms" is the peer's, and "ratio" is ours over the peer's.
#include "containers/sparse_matrix.h"

#include <Eigen/Dense>
#include <Eigen/SparseCore>
#include <benchmark/benchmark.h>
#include <ctime>
#include <random>
#include <vector>

namespace
{

using eigen_sparse = Eigen::SparseMatrix<double, Eigen::RowMajor>;
using triplets = std::vector<Eigen::Triplet<double>>;

template <class Work>
double secondsOf(Work&& work)
{
    const std::clock_t begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

template <class Ours, class Theirs>
void compare(benchmark::State& state, Ours&& ours, Theirs&& theirs)
{
    double ourSeconds = 0.0;
    double theirSeconds = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = secondsOf(ours);
        state.SetIterationTime(seconds);
        ourSeconds += seconds;
        theirSeconds += secondsOf(theirs);
    }
    state.counters["Eigen_ms"] = 1e3 * theirSeconds / static_cast<double>(state.iterations());
    state.counters["ratio"] = ourSeconds / theirSeconds;
}

/** A table in which one cell of a hundred is filled. */
matrix<double> fewCells(int n)
{
    std::mt19937_64 generator(1);
    matrix<double> dense(n, n, 0.0);
    for (std::uint64_t k = 0; k < dense.nbElem; ++k) {
        if (generator() % 100 == 0) {
            dense.data[k] = 1.0 + static_cast<double>(generator() % 1000);
        }
    }
    return dense;
}

triplets gather(const matrix<double>& dense)
{
    triplets found;
    for (int j = 0; j < dense.nbcols; ++j) {
        for (int i = 0; i < dense.nbrows; ++i) {
            if (const double x = dense.getElement(i, j); x != 0.0) {
                found.emplace_back(i, j, x);
            }
        }
    }
    return found;
}

/** Eigen is given triplets; ours must find the cells in the dense table. */
void loadBesideSetFromTriplets(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    matrix<double> dense = fewCells(n);
    const triplets given = gather(dense);
    matrixSparse m;
    eigen_sparse peer(n, n);
    compare(
        state, [&] { m.outputSparse(&dense); }, [&] { peer.setFromTriplets(given.begin(), given.end()); });
}

/** Both find the cells in the dense table. */
void loadBesideTripletsFromTheTable(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    matrix<double> dense = fewCells(n);
    matrixSparse m;
    eigen_sparse peer(n, n);
    compare(
        state, [&] { m.outputSparse(&dense); },
        [&] {
            const triplets found = gather(dense);
            peer.setFromTriplets(found.begin(), found.end());
        });
}

/** The inverse of a full table, stored sparsely, beside a dense one. */
void inverseBesidePartialPivLU(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    std::mt19937_64 generator(2);
    matrixSparse m(n, n, 0.0, false);
    Eigen::MatrixXd a(n, n);
    matrix<double> dense(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            a(i, j) = static_cast<double>(static_cast<std::int64_t>(generator())) * 0x1p-63;
            dense.setElement(i, j, a(i, j));
        }
    }
    m.outputSparse(&dense);
    Eigen::MatrixXd peer;
    compare(
        state,
        [&] {
            matrixSparse inverse(n, n, 0.0, false);
            short int singular = 0;
            benchmark::DoNotOptimize(m.inverse1(&inverse, singular, 0.0));
        },
        [&] { peer = a.partialPivLu().inverse(); });
}

} // namespace

BENCHMARK(loadBesideSetFromTriplets)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadBesideTripletsFromTheTable)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(inverseBesidePartialPivLU)->Arg(50)->Arg(500)->UseManualTime()->Unit(benchmark::kMillisecond);
