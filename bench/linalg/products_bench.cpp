// Products beside OpenBLAS and Eigen, on the same tables and in turns in one run. The counters are the best
// time of each, and our share of the peer's time. Peers may fuse multiplication and addition, which halves
// their work and changes their bits; ours may not. `..._apart` are peers restricted to our arithmetic. The
// head of the report names the kernels that OpenBLAS runs.

#include "linalg/arithmetic_peak.h"
#include "linalg/blas_without_fusing.h"
#include "linalg/eigen_product.h"
#include "linalg/kernels/product.h"
#include "linalg/products.h"
#include "linalg/products_symmetric.h"
#include "linalg/products_triple.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cmath>
#include <cstddef>
#include <omp.h>
#include <random>
#include <string>
#include <vector>

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

/** An instruction set with a kernel of ours, and the peak of the machine in its registers. */
struct tested_set {
    instruction_set set;
    double (*arithmetic)();
    std::string prefix; ///< of its counters
};

/** The sets of this machine, the best one first and its counters without a prefix. */
std::vector<tested_set> setsOfThisMachine()
{
    std::vector<tested_set> sets;
    for (const tested_set& one :
         {tested_set{instruction_set::avx512, korvel::bench::separateArithmetic, "avx512_"},
          tested_set{instruction_set::avx2, korvel::bench::separateArithmeticOfAvx2, "avx2_"},
          tested_set{instruction_set::baseline, korvel::bench::separateArithmeticOfBaseline, "base_"}}) {
        if (korvel::kernels::hasSet(one.set)) {
            sets.push_back(one);
        }
    }
    sets.front().prefix.clear();
    return sets;
}

/** Work that is timed with each instruction set, beside the arithmetic in its registers and in turns. */
class shares_of_peak
{
public:
    template <class Work>
    void time(Work work)
    {
        for (measured& one : all_) {
            const korvel::kernels::forced_set forced(one.tested.set);
            one.registers.time([&] { one.operations = one.tested.arithmetic(); });
            one.ours.time(work);
        }
    }

    /** The share of the peak that `operations` reach, as a counter for each set. */
    void report(benchmark::State& state, double operations) const
    {
        for (const measured& one : all_) {
            state.counters[one.tested.prefix + "of_peak"] =
                operations / one.ours.milliseconds() * one.registers.milliseconds() / one.operations;
        }
    }

private:
    struct measured {
        tested_set tested;
        stop_watch ours{};
        stop_watch registers{};
        double operations = 0.0;
    };

    static std::vector<measured> watches()
    {
        std::vector<measured> made;
        for (const tested_set& one : setsOfThisMachine()) {
            made.push_back({one});
        }
        return made;
    }

    std::vector<measured> all_ = watches();
};

/**
 * A·B of order n on one thread, by the best kernel and by that of each lesser instruction set. `of_peak` is
 * our share of the peak of multiplications and additions in that set's registers. `fused_gain` is what fusing
 * them would gain.
 */
void productOfTwo(benchmark::State& state)
{
    const auto n = static_cast<int>(state.range(0));
    const matrix<double> A = randomTable(n, n, 1);
    const matrix<double> B = randomTable(n, n, 2);
    matrix<double> C(n, n, 0.0);
    const threads one(1);
    stop_watch ours;
    shares_of_peak shares;
    stop_watch dgemm;
    stop_watch eigen;
    stop_watch dgemmApart;
    stop_watch eigenApart;
    stop_watch separate;
    stop_watch fused;
    for (auto _ : state) {
        dgemm.time([&] {
            cblas_dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, A.data, n, B.data, n, 0.0,
                        C.data, n);
        });
        ours.time([&] { M_ProductAB(A, n, n, B, n, C); });
        eigen.time([&] { korvel::bench::eigenProduct(A.data, B.data, C.data, n); });
        dgemmApart.time([&] { korvel::bench::dgemmWithoutFusing(A.data, B.data, C.data, n); });
        eigenApart.time([&] { korvel::bench::eigenSeparateProduct(A.data, B.data, C.data, n); });
        shares.time([&] { M_ProductAB(A, n, n, B, n, C); });
        separate.time([&] { korvel::bench::separateArithmetic(); });
        fused.time([&] { korvel::bench::fusedArithmetic(); });
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["to_dgemm"] = ours.milliseconds() / dgemm.milliseconds();
    state.counters["to_eigen"] = ours.milliseconds() / eigen.milliseconds();
    state.counters["to_dgemm_apart"] = ours.milliseconds() / dgemmApart.milliseconds();
    state.counters["to_eigen_apart"] = ours.milliseconds() / eigenApart.milliseconds();
    state.counters["Gflop/s"] = 2e-6 * n * n * n / ours.milliseconds();
    shares.report(state, 2.0 * n * n * n);
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
    shares_of_peak shares;
    for (auto _ : state) {
        dsyrk.time([&] {
            cblas_dsyrk(CblasColMajor, CblasUpper, CblasTrans, p, n, 1.0, A.data, n, 0.0, C.data, p);
        });
        ours.time([&] { M_ProductTrAA(&A, n, p, &C); });
        shares.time([&] { M_ProductTrAA(&A, n, p, &C); });
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["to_dsyrk"] = ours.milliseconds() / dsyrk.milliseconds();
    // The half with its diagonal. Tiles that the diagonal cuts through are summed whole.
    shares.report(state, 1.0 * n * p * (p + 1));
}

/** Products whose operands must be packed, or that use each row of a first product at once. */
template <class Work>
void packed(benchmark::State& state, double operations, Work work)
{
    const auto n = static_cast<int>(state.range(0));
    matrix<double> A = randomTable(n, n, 1);
    matrix<double> B = randomTable(n, n, 2);
    matrix<double> C(n, n, 0.0);
    const threads one(1);
    shares_of_peak shares;
    for (auto _ : state) {
        shares.time([&] { work(n, A, B, C); });
    }
    shares.report(state, operations * n * n * n);
}

void transposedLeft(benchmark::State& state)
{
    packed(state, 2.0, [](int n, matrix<double>& A, matrix<double>& B, matrix<double>& C) {
        matrix<double>* result = &C;
        M_ProductTrAB(&A, n, n, &B, n, result);
    });
}

void transposedRight(benchmark::State& state)
{
    packed(state, 2.0, [](int n, matrix<double>& A, matrix<double>& B, matrix<double>& C) {
        M_ProductATrB(&A, n, n, &B, n, &C);
    });
}

void chunkedTables(benchmark::State& state)
{
    packed(state, 2.0, [](int n, matrix<double>& A, matrix<double>& B, matrix<double>& C) {
        std::vector<matrix<double>> columns;
        std::vector<matrix<double>*> lists[3];
        columns.reserve(3 * static_cast<std::size_t>(n));
        matrix<double>* const tables[] = {&A, &B, &C};
        for (int t = 0; t < 3; ++t) {
            for (int j = 0; j < n; ++j) {
                columns.emplace_back(n, 1, tables[t]->data + std::ptrdiff_t{n} * j, true);
                lists[t].push_back(&columns.back());
            }
        }
        M_ProductABSPV2(lists[0].data(), n, n, lists[1].data(), n, lists[2].data());
    });
}

void threeTables(benchmark::State& state)
{
    packed(state, 4.0, [](int n, matrix<double>& A, matrix<double>& B, matrix<double>& C) {
        M_ProductABC(&A, n, n, &B, n, &A, n, &C);
    });
}

/**
 * What a second thread gains: for ours, for the peer, and in registers alone, which is all that this machine
 * can give.
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
BENCHMARK(transposedLeft)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(transposedRight)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(chunkedTables)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(threeTables)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(productWithItself)
    ->Args({100000, 20})
    ->Args({100000, 50})
    ->Args({20000, 100})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(twoThreads)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(smallProduct)->Arg(1)->Arg(2)->Arg(4)->Arg(8)->Arg(20)->Arg(50)->Unit(benchmark::kMillisecond);

} // namespace
