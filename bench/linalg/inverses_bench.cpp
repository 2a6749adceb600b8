// The sweep inverse beside the LU inverses of OpenBLAS and Eigen and the plain sweep, on the same tables and
// in turns in one run. The counters are our best time and its share of the others' times. `_apart` is a peer
// restricted to separate multiplication and addition, like ours. The goal is at most 0.65 of dgetrf and
// dgetri so restricted.

#include "linalg/blas_without_fusing.h"
#include "linalg/eigen_inverse.h"
#include "linalg/g2_sweep.h"
#include "linalg/inverse1.h"
#include "linalg/kernels/product.h"
#include "reference/sweeps.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cmath>
#include <random>
#include <vector>

namespace
{

using korvel::bench::lapack_inverse;
using korvel::bench::stop_watch;
using korvel::kernels::forced_set;
using korvel::kernels::instruction_set;

/** A table that needs no search for pivots. */
matrix<double> dominantTable(int n)
{
    std::mt19937_64 random(1);
    matrix<double> made(n, n, 0.0);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
    }
    for (int i = 0; i < n; ++i) {
        made.setElement(i, i, made.getElement(i, i) + n);
    }
    return made;
}

/** LAPACK's inverse of a table, out of place as ours is. */
class lapack_watch
{
public:
    explicit lapack_watch(lapack_inverse routines) : routines_(routines) {}

    void time(const matrix<double>& A, matrix<double>& G)
    {
        const int n = A.nbrows;
        std::vector<int> pivots(static_cast<std::size_t>(n));
        std::vector<double> work(static_cast<std::size_t>(64 * n));
        const int size = 64 * n;
        watch_.time([&] {
            std::copy_n(A.data, A.nbElem, G.data);
            int info = 0;
            routines_.dgetrf(&n, &n, G.data, &n, pivots.data(), &info);
            routines_.dgetri(&n, G.data, &n, pivots.data(), work.data(), &size, &info);
        });
    }

    [[nodiscard]] double milliseconds() const { return watch_.milliseconds(); }

private:
    lapack_inverse routines_;
    stop_watch watch_;
};

void sweepInverse(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    openblas_set_num_threads(1);
    matrix<double> A = dominantTable(n);
    matrix<double> G(n, n, 0.0);
    lapack_watch lapack(korvel::bench::lapackInverse());
    lapack_watch lapackApart(korvel::bench::lapackInverseWithoutFusing());
    stop_watch ours;
    stop_watch oursWithAvx2;
    stop_watch lu;
    stop_watch eigen;
    stop_watch eigenApart;
    stop_watch plain;
    const auto sweep = [&] { M_InverseG2(&A, n, 1e-12, &G); };
    for (auto _ : state) {
        ours.time(sweep);
        if (korvel::kernels::hasSet(instruction_set::avx2)) {
            const forced_set forced(instruction_set::avx2);
            oursWithAvx2.time(sweep);
        }
        lapack.time(A, G);
        lapackApart.time(A, G);
        eigen.time([&] { korvel::bench::eigenInverse(A.data, G.data, n); });
        eigenApart.time([&] { korvel::bench::eigenSeparateInverse(A.data, G.data, n); });
        short int error = 0;
        lu.time([&] { Inverse1(&A, &G, &error, 1e-12); });
    }
    plain.time([&] { korvel::test::plainInverseG2(A, n, 1e-12, G); });
    const double time = ours.milliseconds();
    state.counters["ours_ms"] = time;
    state.counters["to_dgetri"] = time / lapack.milliseconds();
    state.counters["to_dgetri_apart"] = time / lapackApart.milliseconds();
    state.counters["avx2_to_dgetri_apart"] = oursWithAvx2.milliseconds() / lapackApart.milliseconds();
    state.counters["avx2_to_ours"] = oursWithAvx2.milliseconds() / time;
    state.counters["to_eigen"] = time / eigen.milliseconds();
    state.counters["to_eigen_apart"] = time / eigenApart.milliseconds();
    state.counters["to_plain"] = time / plain.milliseconds();
    state.counters["lu_to_dgetri_apart"] = lu.milliseconds() / lapackApart.milliseconds();
}

/** By how much the time grows with the order: the exponent between 200 and 1000. The goal is 3.1 at most. */
void growth(benchmark::State& state)
{
    matrix<double> small = dominantTable(200);
    matrix<double> large = dominantTable(1000);
    matrix<double> smallInverse(200, 200, 0.0);
    matrix<double> largeInverse(1000, 1000, 0.0);
    stop_watch few;
    stop_watch many;
    for (auto _ : state) {
        few.time([&] { M_InverseG2(&small, 200, 1e-12, &smallInverse); });
        many.time([&] { M_InverseG2(&large, 1000, 1e-12, &largeInverse); });
    }
    state.counters["exponent"] = std::log(many.milliseconds() / few.milliseconds()) / std::log(5.0);
}

BENCHMARK(sweepInverse)
    ->Arg(10)
    ->Arg(20)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Arg(500)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(growth)->Unit(benchmark::kMillisecond);

} // namespace
