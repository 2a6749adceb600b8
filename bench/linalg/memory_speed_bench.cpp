// Products that do little more than write their result, in turns with a copy of that result: `of_copy` is the
// speed of ours as a share of the copy's. Block products are those of structured blocks, where no sums are
// formed, and of small dense ones; the packed product reads its table once, and is held against a copy of
// half of it, which moves as many bytes.

#include "linalg/products_block.h"
#include "linalg/products_design.h"
#include "linalg/products_kronecker.h"
#include "linalg/products_packed.h"
#include "support/stop_watch.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <random>
#include <utility>

namespace
{

using korvel::bench::stop_watch;

matrix<double> randomTable(int rows, int cols)
{
    std::mt19937_64 random(3);
    matrix<double> made(rows, cols, 0.0);
    for (std::uint64_t k = 0; k < made.nbElem; ++k) {
        made.data[k] = std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
    }
    return made;
}

/** Times `work`, which fills `result`, and a copy of so many of its numbers. */
template <class Work>
void compare(benchmark::State& state, matrix<double>& result, std::uint64_t copied, Work work)
{
    const matrix<double> from(result);
    matrix<double> to(result);
    stop_watch ours;
    stop_watch copy;
    for (auto _ : state) {
        ours.time(work);
        copy.time([&] { std::memcpy(to.data, from.data, copied * sizeof(double)); });
    }
    state.counters["ours_ms"] = ours.milliseconds();
    state.counters["of_copy"] = copy.milliseconds() / ours.milliseconds();
}

void kronecker(benchmark::State& state)
{
    const auto first = static_cast<int>(state.range(0));
    const auto second = static_cast<int>(state.range(1));
    matrix<double> A = randomTable(first, first);
    matrix<double> B = randomTable(second, second);
    matrix<double> C(first * second, first * second, 0.0);
    compare(state, C, C.nbElem, [&] { KroneckerTensorProduct(&A, first, first, &B, second, second, &C); });
}

enum block_kind { zero, diagonal, dense };

/** 4000 rows of 500 columns, in blocks of one size. */
struct blocks_of_a_kind {
    blocks_of_a_kind(int size, block_kind kind) : count(4000 / size), sizes(count, 1)
    {
        for (int b = 0; b < count; ++b) {
            matrix<double> block = kind == dense ? randomTable(size, size) : matrix<double>(size, size, 0.0);
            for (int i = 0; kind == diagonal && i < size; ++i) {
                block.setElement(i, i, 1.5 + i);
            }
            blocks.chunks.push_back(block);
            sizes[b] = size;
        }
    }

    int count;
    matrix3D<matrix<double>> blocks;
    matrix<int> sizes;
};

void blockTimesTable(benchmark::State& state)
{
    blocks_of_a_kind given(static_cast<int>(state.range(0)), static_cast<block_kind>(state.range(1)));
    matrix<double> A = randomTable(4000, 500);
    matrix<double> C(4000, 500, 0.0);
    compare(state, C, C.nbElem,
            [&] { M_BlockProductBckA(&given.blocks, given.count, &given.sizes, &A, 500, &C); });
}

void tableTimesBlock(benchmark::State& state)
{
    blocks_of_a_kind given(static_cast<int>(state.range(0)), static_cast<block_kind>(state.range(1)));
    matrix<double> A = randomTable(500, 4000);
    matrix<double> C(500, 4000, 0.0);
    compare(state, C, C.nbElem,
            [&] { M_BlockProductABck(&A, 500, &given.blocks, given.count, &given.sizes, &C); });
}

void horizontal(benchmark::State& state)
{
    matrix<double> A = randomTable(10'000, 10);
    matrix<double> B = randomTable(10'000, 20);
    matrix<double> made(10'000, 200, 0.0);
    matrix<double>* C = &made;
    compare(state, made, made.nbElem, [&] { M_ProductHorizAB(&A, 10'000, 10, &B, 20, C, 0); });
}

void packedTimesVector(benchmark::State& state)
{
    const auto order = static_cast<int>(state.range(0));
    matrix<double> S = randomTable(order * (order + 1) / 2, 1);
    matrix<double> x = randomTable(order, 1);
    matrix<double> y(order, 1, 0.0);
    compare(state, S, S.nbElem / 2, [&] { M_ProductASymV(&S, order, &x, &y); });
}

void kinds(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"size", "kind"});
    for (const int size : {4, 16, 100}) {
        for (const block_kind kind : {zero, diagonal, dense}) {
            bench->Args({size, kind});
        }
    }
}

} // namespace

BENCHMARK(kronecker)
    ->Args({400, 4})
    ->Args({200, 8})
    ->Args({40, 40})
    ->Args({4, 400})
    ->Args({1000, 1})
    ->Args({800, 2})
    ->Args({500, 3})
    ->Args({300, 5});
BENCHMARK(blockTimesTable)->Apply(kinds);
BENCHMARK(tableTimesBlock)->Apply(kinds);
BENCHMARK(horizontal);
BENCHMARK(packedTimesVector)->Arg(500)->Arg(3000);
