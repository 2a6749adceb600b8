// Eigenvalues and singular values with their vectors beside OpenBLAS's LAPACK and Eigen, on one table, in
// turns and on one thread. The counters are our best time and its share of each peer's. Peers fuse
// multiplication and addition, which ours may not. `..._apart` are the same peers restricted to our
// arithmetic; the goals are for these: eigenvalues 0.35 of dsyev and 0.75 of dsyevd at n = 100, 0.30 and 1.2
// at 500 and 1000; singular values 0.5 of dgesvd and 1.0 of dgesdd at n = 100, 0.30 and 1.25 at 500. `growth`
// is the power of n that the time follows from n = 200 to 1000, with 3.1 as its goal.

#include "linalg/blas_without_fusing.h"
#include "linalg/eigen_spectrum.h"
#include "linalg/kernels/product.h"
#include "linalg/singular_values.h"
#include "linalg/symmetric_eigen.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cmath>
#include <random>
#include <string>
#include <vector>

extern "C" {
void dsyev_(const char*, const char*, const int*, double*, const int*, double*, double*, const int*, int*);
void dsyevd_(const char*, const char*, const int*, double*, const int*, double*, double*, const int*, int*,
             const int*, int*);
void dgesvd_(const char*, const char*, const int*, const int*, double*, const int*, double*, double*,
             const int*, double*, const int*, double*, const int*, int*);
void dgesdd_(const char*, const int*, const int*, double*, const int*, double*, double*, const int*, double*,
             const int*, double*, const int*, int*, int*);
}

namespace
{

using korvel::bench::stop_watch;
using korvel::kernels::instruction_set;

matrix<double> randomTable(int n, bool symmetric)
{
    std::mt19937_64 random(7);
    matrix<double> made(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            const double cell = std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
            made.setElement(i, j, symmetric && i < j ? made.getElement(j, i) : cell);
        }
    }
    if (symmetric) {
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < j; ++i) {
                made.setElement(i, j, made.getElement(j, i));
            }
        }
    }
    return made;
}

/** What a driver of LAPACK is given room for. */
struct lapack_room {
    explicit lapack_room(const matrix<double>& from)
        : n(from.nbrows), table(from.data, from.data + from.nbElem), values(static_cast<std::size_t>(n)),
          left(table.size()), right(table.size()), work(table.size() * 12 + 100000),
          integers(static_cast<std::size_t>(n) * 20 + 100), workSize(static_cast<int>(work.size())),
          integerSize(static_cast<int>(integers.size()))
    {
    }

    int n;
    std::vector<double> table;
    std::vector<double> values;
    std::vector<double> left;
    std::vector<double> right;
    std::vector<double> work;
    std::vector<int> integers;
    int workSize;
    int integerSize;
    int info = 0;
};

/** The same driver in both copies of OpenBLAS, each timed on its own table. */
template <class Driver>
class pair_of_peers
{
public:
    pair_of_peers(Driver fused, const char* name)
        : fused_(fused), apart_(reinterpret_cast<Driver>(korvel::bench::routineWithoutFusing(name))),
          name_(name)
    {
    }

    template <class Call>
    void time(const matrix<double>& table, Call call)
    {
        lapack_room one(table);
        lapack_room two(table);
        fusedWatch_.time([&] { call(fused_, one); });
        apartWatch_.time([&] { call(apart_, two); });
    }

    void report(benchmark::State& state, const stop_watch& ours) const
    {
        const std::string to = "to_" + name_.substr(0, name_.size() - 1);
        state.counters[to] = ours.milliseconds() / fusedWatch_.milliseconds();
        state.counters[to + "_apart"] = ours.milliseconds() / apartWatch_.milliseconds();
    }

private:
    Driver fused_;
    Driver apart_;
    std::string name_;
    stop_watch fusedWatch_;
    stop_watch apartWatch_;
};

/** The time with the best set of this processor, and with AVX2. */
class our_times
{
public:
    template <class Work>
    void time(Work work)
    {
        best.time(work);
        if (korvel::kernels::hasSet(instruction_set::avx2)) {
            const korvel::kernels::forced_set forced(instruction_set::avx2);
            avx2_.time(work);
        }
    }

    void report(benchmark::State& state) const
    {
        state.counters["ours_ms"] = best.milliseconds();
        state.counters["avx2_to_best"] = avx2_.milliseconds() / best.milliseconds();
    }

    stop_watch best;

private:
    stop_watch avx2_;
};

void eigenvalues(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    const matrix<double> A = randomTable(n, true);
    openblas_set_num_threads(1);
    our_times ours;
    stop_watch eigen;
    stop_watch eigenApart;
    pair_of_peers<decltype(&dsyev_)> dsyev(dsyev_, "dsyev_");
    pair_of_peers<decltype(&dsyevd_)> dsyevd(dsyevd_, "dsyevd_");
    lapack_room room(A);
    for (auto _ : state) {
        ours.time([&] {
            matrix<double> values;
            matrix<double> vectors;
            M_Eigen(A, values, vectors, n, -1);
        });
        dsyev.time(A, [](auto driver, lapack_room& r) {
            driver("V", "L", &r.n, r.table.data(), &r.n, r.values.data(), r.work.data(), &r.workSize,
                   &r.info);
        });
        dsyevd.time(A, [](auto driver, lapack_room& r) {
            driver("V", "L", &r.n, r.table.data(), &r.n, r.values.data(), r.work.data(), &r.workSize,
                   r.integers.data(), &r.integerSize, &r.info);
        });
        eigen.time([&] { korvel::bench::eigenSpectrum(A.data, room.values.data(), room.left.data(), n); });
        eigenApart.time(
            [&] { korvel::bench::eigenSeparateSpectrum(A.data, room.values.data(), room.left.data(), n); });
    }
    ours.report(state);
    dsyev.report(state, ours.best);
    dsyevd.report(state, ours.best);
    state.counters["to_eigen"] = ours.best.milliseconds() / eigen.milliseconds();
    state.counters["to_eigen_apart"] = ours.best.milliseconds() / eigenApart.milliseconds();
}

void singularValues(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    matrix<double> A = randomTable(n, false);
    openblas_set_num_threads(1);
    our_times ours;
    pair_of_peers<decltype(&dgesvd_)> dgesvd(dgesvd_, "dgesvd_");
    pair_of_peers<decltype(&dgesdd_)> dgesdd(dgesdd_, "dgesdd_");
    matrix<double> s(n, 1, 0.0);
    matrix<double> U(n, n, 0.0);
    matrix<double> V(n, n, 0.0);
    int info = 0;
    for (auto _ : state) {
        ours.time([&] { M_SVDecomp(&A, n, n, &s, &U, &V, 11, &info); });
        dgesvd.time(A, [](auto driver, lapack_room& r) {
            driver("A", "A", &r.n, &r.n, r.table.data(), &r.n, r.values.data(), r.left.data(), &r.n,
                   r.right.data(), &r.n, r.work.data(), &r.workSize, &r.info);
        });
        dgesdd.time(A, [](auto driver, lapack_room& r) {
            driver("A", &r.n, &r.n, r.table.data(), &r.n, r.values.data(), r.left.data(), &r.n,
                   r.right.data(), &r.n, r.work.data(), &r.workSize, r.integers.data(), &r.info);
        });
    }
    ours.report(state);
    dgesvd.report(state, ours.best);
    dgesdd.report(state, ours.best);
}

/** The power of n that the time of a decomposition follows from n = 200 to 1000. */
template <class Decompose>
void growthOf(benchmark::State& state, bool symmetric, Decompose decompose)
{
    stop_watch watches[2];
    constexpr int orders[] = {200, 1000};
    for (auto _ : state) {
        for (int k = 0; k < 2; ++k) {
            matrix<double> A = randomTable(orders[k], symmetric);
            watches[k].time([&] { decompose(A); });
        }
    }
    state.counters["growth"] =
        std::log(watches[1].milliseconds() / watches[0].milliseconds()) / std::log(5.0);
}

void growthOfEigenvalues(benchmark::State& state)
{
    matrix<double> values;
    matrix<double> vectors;
    growthOf(state, true, [&](matrix<double>& A) { M_Eigen(A, values, vectors, A.nbrows, -1); });
}

void growthOfSingularValues(benchmark::State& state)
{
    matrix<double> s;
    matrix<double> U;
    matrix<double> V;
    growthOf(state, false, [&](matrix<double>& A) {
        const int n = A.nbrows;
        int info = 0;
        s.Redim(n, 1, 0.0);
        U.Redim(n, n, 0.0);
        V.Redim(n, n, 0.0);
        M_SVDecomp(&A, n, n, &s, &U, &V, 11, &info);
    });
}

BENCHMARK(eigenvalues)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(growthOfEigenvalues)->Unit(benchmark::kMillisecond);
BENCHMARK(growthOfSingularValues)->Unit(benchmark::kMillisecond);
BENCHMARK(singularValues)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond);

} // namespace
