// Products that do little more than write their result, in turns with a copy of that result: `of_copy` is the
// speed of ours as a share of the copy's. The packed product reads its table once, and is held against a copy
// of half of it, which moves as many bytes.

#include "linalg/beside_a_copy.h"
#include "linalg/products_design.h"
#include "linalg/products_kronecker.h"
#include "linalg/products_packed.h"

#include <benchmark/benchmark.h>

namespace
{

using korvel::bench::besideACopy;
using korvel::bench::randomTable;

void kronecker(benchmark::State& state)
{
    const auto first = static_cast<int>(state.range(0));
    const auto second = static_cast<int>(state.range(1));
    matrix<double> A = randomTable(first, first);
    matrix<double> B = randomTable(second, second);
    matrix<double> C(first * second, first * second, 0.0);
    besideACopy(state, C, C.nbElem,
                [&] { KroneckerTensorProduct(&A, first, first, &B, second, second, &C); });
}

void horizontal(benchmark::State& state)
{
    matrix<double> A = randomTable(10'000, 10);
    matrix<double> B = randomTable(10'000, 20);
    matrix<double> made(10'000, 200, 0.0);
    matrix<double>* C = &made;
    besideACopy(state, made, made.nbElem, [&] { M_ProductHorizAB(&A, 10'000, 10, &B, 20, C, 0); });
}

void packedTimesVector(benchmark::State& state)
{
    const auto order = static_cast<int>(state.range(0));
    matrix<double> S = randomTable(order * (order + 1) / 2, 1);
    matrix<double> x = randomTable(order, 1);
    matrix<double> y(order, 1, 0.0);
    besideACopy(state, S, S.nbElem / 2, [&] { M_ProductASymV(&S, order, &x, &y); });
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
BENCHMARK(horizontal);
BENCHMARK(packedTimesVector)->Arg(500)->Arg(3000);
