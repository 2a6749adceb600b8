// Products beside OpenBLAS and Eigen, on the same tables and in turns in one run: the counters are the best
// time of each and the share of the peer's time that ours takes. The peers may fuse a multiplication and an
// addition, which halves their work and changes their bits; ours may not. They also run held to the
// arithmetic of ours, as `..._apart`.

#include "linalg/arithmetic_peak.h"
#include "linalg/blas_without_fusing.h"
#include "linalg/eigen_product.h"
#include "linalg/kernels/product.h"
#include "linalg/products.h"
#include "linalg/products_symmetric.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cmath>
#include <cstddef>
#include <omp.h>
#include <random>

namespace
{

using korvel::bench::stop_watch;
using korvel::kernels::instruction_set;

matrix<double> randomTable(int rows, int cols, unsigned seed)
{
    std::mt19937_64 random(seed);
    matrix<double> made(rows, cols, 0.0);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
    }
    return made;
}

/** While it lives, ours and OpenBLAS have so many threads. */
class threads
{
public:
    explicit threads(int count) : before_(omp_get_max_threads())
    {
        omp_set_num_threads(count);
        openblas_set_num_threads(1);
    }
    ~threads() { omp_set_num_threads(before_); }
    threads(const threads&) = delete;
    threads& operator=(const threads&) = delete;

private:
    int before_;
};

/**
 * A·B of order n on one thread, by the best kernel and by that of each lesser instruction set. `of_peak` is
 * the share of what multiplications and additions in registers alone reach; `fused_gain` is what fusing them
 * would gain there.
 */
void productOfTwo(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    const matrix<double> A = randomTable(n, n, 1);
    const matrix<double> B = randomTable(n, n, 2);
    matrix<double> C(n, n, 0.0);
    const threads one(1);
    stop_watch ours;
    stop_watch avx2;
    stop_watch baseline;
    stop_watch dgemm;
    stop_watch eigen;
    stop_watch dgemmApart;
    stop_watch eigenApart;
    stop_watch separate;
    stop_watch fused;
    double peakOperations = 0.0;
    const auto timeSet = [&](instruction_set set, stop_watch& watch) {
        if (korvel::kernels::hasSet(set)) {
            const korvel::kernels::forced_set forced(set);
            watch.time([&] { M_ProductAB(A, n, n, B, n, C); });
        }
    };
    for (auto _ : state) {
        dgemm.time([&] {
            cblas_dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, A.data, n, B.data, n, 0.0,
                        C.data, n);
        });
        ours.time([&] { M_ProductAB(A, n, n, B, n, C); });
        eigen.time([&] { korvel::bench::eigenProduct(A.data, B.data, C.data, n); });
        dgemmApart.time([&] { korvel::bench::dgemmWithoutFusing(A.data, B.data, C.data, n); });
        eigenApart.time([&] { korvel::bench::eigenSeparateProduct(A.data, B.data, C.data, n); });
        timeSet(instruction_set::avx2, avx2);
        timeSet(instruction_set::baseline, baseline);
        separate.time([&] { peakOperations = korvel::bench::separateArithmetic(); });
        fused.time([&] { peakOperations = korvel::bench::fusedArithmetic(); });
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["to_dgemm"] = ours.milliseconds() / dgemm.milliseconds();
    state.counters["to_eigen"] = ours.milliseconds() / eigen.milliseconds();
    state.counters["to_dgemm_apart"] = ours.milliseconds() / dgemmApart.milliseconds();
    state.counters["to_eigen_apart"] = ours.milliseconds() / eigenApart.milliseconds();
    state.counters["avx2_to_dgemm_apart"] = avx2.milliseconds() / dgemmApart.milliseconds();
    state.counters["avx2_to_dgemm"] = avx2.milliseconds() / dgemm.milliseconds();
    state.counters["base_to_dgemm"] = baseline.milliseconds() / dgemm.milliseconds();
    const double speed = 2e-6 * n * n * n / ours.milliseconds();
    state.counters["Gflop/s"] = speed;
    state.counters["of_peak"] = speed / (1e-6 * peakOperations / separate.milliseconds());
    state.counters["fused_gain"] = separate.milliseconds() / fused.milliseconds();
}

void productWithItself(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    const auto p = static_cast<int>(state.range(1));
    matrix<double> A = randomTable(n, p, 1);
    matrix<double> C(p, p, 0.0);
    const threads one(1);
    stop_watch ours;
    stop_watch dsyrk;
    for (auto _ : state) {
        dsyrk.time([&] {
            cblas_dsyrk(CblasColMajor, CblasUpper, CblasTrans, p, n, 1.0, A.data, n, 0.0, C.data, p);
        });
        ours.time([&] { M_ProductTrAA(&A, n, p, &C); });
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["to_dsyrk"] = ours.milliseconds() / dsyrk.milliseconds();
}

/** What a second thread gains, for ours, for the peer, and in registers alone: what this machine has to give.
 */
void twoThreads(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    const matrix<double> A = randomTable(n, n, 1);
    const matrix<double> B = randomTable(n, n, 2);
    matrix<double> C(n, n, 0.0);
    struct pair_of_watches {
        stop_watch alone;
        stop_watch both;
        [[nodiscard]] double gain(double work) const
        {
            return work * alone.milliseconds() / both.milliseconds();
        }
    };
    pair_of_watches ours;
    pair_of_watches dgemm;
    pair_of_watches registers;
    const auto run = [&](int count, stop_watch pair_of_watches::*watch) {
        const threads some(count);
        openblas_set_num_threads(count);
        (ours.*watch).time([&] { M_ProductAB(A, n, n, B, n, C); });
        (dgemm.*watch).time([&] {
            cblas_dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, A.data, n, B.data, n, 0.0,
                        C.data, n);
        });
        (registers.*watch).time([] {
#pragma omp parallel
            korvel::bench::separateArithmetic();
        });
    };
    for (auto _ : state) {
        run(1, &pair_of_watches::alone);
        run(2, &pair_of_watches::both);
    }
    state.counters["two_ms"] = ours.both.milliseconds();
    state.counters["gain"] = ours.gain(1.0);
    state.counters["dgemm_gain"] = dgemm.gain(1.0);
    // Each thread does the whole work here.
    state.counters["register_gain"] = registers.gain(2.0);
}

/** One call with the team that it forks, a thousand of them at a time. */
void smallProduct(benchmark::State& state)
{
    constexpr int calls = 1000;
    const auto n = static_cast<int>(state.range(0));
    const matrix<double> A = randomTable(n, n, 1);
    const matrix<double> B = randomTable(n, n, 2);
    matrix<double> C(n, n, 0.0);
    stop_watch ours;
    for (auto _ : state) {
        ours.time([&] {
            for (int k = 0; k < calls; ++k) {
                M_ProductAB(A, n, n, B, n, C);
                benchmark::ClobberMemory();
            }
        });
    }
    state.counters["us_a_call"] = ours.milliseconds() * 1000.0 / calls;
}

BENCHMARK(productOfTwo)->Arg(100)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(productWithItself)
    ->Args({100000, 20})
    ->Args({100000, 50})
    ->Args({20000, 100})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(twoThreads)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(smallProduct)->Arg(1)->Arg(2)->Arg(4)->Arg(8)->Arg(20)->Arg(50)->Unit(benchmark::kMillisecond);

} // namespace
