// Products with a block-diagonal table, in turns with a copy of the result and with the processor's
// arithmetic. `of_copy` is the speed of ours as a share of the copy's, `of_peak` the share of the peak of
// multiplications and additions. Small blocks are bound by memory and large ones by arithmetic: `of_bound` is
// the share of the time of ours that the slower of the two needs, when each table is moved once.

#include "linalg/beside_a_copy.h"
#include "linalg/products_block.h"

#include <benchmark/benchmark.h>
#include <cstdint>

namespace
{

using korvel::bench::besideACopy;
using korvel::bench::least_work;
using korvel::bench::randomTable;

enum block_kind { zero, diagonal, dense };

/** The rows of all blocks of a table together, and the columns or rows of the other table. */
constexpr int order = 4000;
constexpr int others = 500;

/** Blocks of one size. */
struct blocks_of_a_kind {
    blocks_of_a_kind(int size, block_kind kind) : count(order / size), sizes(count, 1)
    {
        for (int b = 0; b < count; ++b) {
            matrix<double> block = kind == dense ? randomTable(size, size) : matrix<double>(size, size, 0.0);
            for (int i = 0; kind == diagonal && i < size; ++i) {
                block.setElement(i, i, 1.5 + i);
            }
            blocks.chunks.push_back(block);
            sizes[b] = size;
        }
        const double cells = static_cast<double>(order) * others;
        const double ofBlocks = static_cast<double>(order) * size;
        // Nothing is read opposite a block of zeros.
        least.moved = (kind == zero ? 1.0 : 2.0) * cells + ofBlocks;
        least.operations = kind == zero ? 0.0 : kind == diagonal ? cells : 2.0 * size * cells;
    }

    int count;
    matrix3D<matrix<double>> blocks;
    matrix<int> sizes;
    least_work least;
};

blocks_of_a_kind blocksOf(const benchmark::State& state)
{
    return {static_cast<int>(state.range(0)), static_cast<block_kind>(state.range(1))};
}

void blockTimesTable(benchmark::State& state)
{
    blocks_of_a_kind given = blocksOf(state);
    matrix<double> A = randomTable(order, others);
    matrix<double> C(order, others, 0.0);
    const auto product = [&] {
        M_BlockProductBckA(&given.blocks, given.count, &given.sizes, &A, others, &C);
    };
    besideACopy(state, C, C.nbElem, product, given.least);
}

using table_times_blocks = void (*)(matrix<double>*, int, matrix3D<matrix<double>>*, int, matrix<int>*,
                                    matrix<double>*);

template <table_times_blocks multiply>
void tableTimes(benchmark::State& state)
{
    blocks_of_a_kind given = blocksOf(state);
    matrix<double> A = randomTable(others, order);
    matrix<double> C(others, order, 0.0);
    const auto product = [&] { multiply(&A, others, &given.blocks, given.count, &given.sizes, &C); };
    besideACopy(state, C, C.nbElem, product, given.least);
}

void kinds(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"size", "kind"});
    for (const int size : {4, 16, 32, 100}) {
        for (const block_kind kind : {zero, diagonal, dense}) {
            bench->Args({size, kind});
        }
    }
}

void denseOnly(benchmark::internal::Benchmark* bench)
{
    bench->ArgNames({"size", "kind"});
    for (const int size : {4, 16, 32, 100}) {
        bench->Args({size, dense});
    }
}

} // namespace

BENCHMARK(blockTimesTable)->Apply(kinds);
BENCHMARK(tableTimes<M_BlockProductABck>)->Name("tableTimesBlock")->Apply(kinds);
BENCHMARK(tableTimes<M_BlockProductATrBck>)->Name("tableTimesTransposedBlock")->Apply(denseOnly);
