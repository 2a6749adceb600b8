// Uniform draws beside the same generator elsewhere. "Array" fills a column of doubles, "Single" makes one
// call for each draw. Both peers use MT19937.
#include "frames/random/random_generators.h"
#include "frames/random/random_source.h"
#include "frames/random/random_table.h"
#include "random/random_generators.h"
#include "random/random_table.h"
#include "support/peer_script.h"

#include <benchmark/benchmark.h>
#include <gsl/gsl_rng.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{

constexpr int cells = 10'000'000;
constexpr int singles = 1'000'000;

void select(benchmark::State& state, int algorithm)
{
    Cpp_set_rand_algo(algorithm);
    int seed = 12345;
    short int given = -1;
    GetSeed(&seed, &given);
    state.SetLabel(algorithm == 1 ? "MT19937" : "combined");
}

void countDraws(benchmark::State& state, std::int64_t draws)
{
    state.SetItemsProcessed(state.iterations() * draws);
}

void korvelArray(benchmark::State& state)
{
    select(state, static_cast<int>(state.range(0)));
    std::vector<double> out(cells);
    int seed = 12345;
    int next = 0;
    for ([[maybe_unused]] auto _ : state) {
        VB_M_GenerateRandom01(out.data(), cells, 1, &seed, -1, &next);
        benchmark::ClobberMemory();
    }
    countDraws(state, cells);
}

void korvelTable(benchmark::State& state)
{
    select(state, static_cast<int>(state.range(0)));
    const auto cols = static_cast<int>(state.range(1));
    matrix<double> out(cells / cols, cols, 0.0);
    int seed = 12345;
    int next = 0;
    for ([[maybe_unused]] auto _ : state) {
        M_GenerateRandom01(out, cells / cols, cols, &seed, -1, &next);
        benchmark::ClobberMemory();
    }
    countDraws(state, cells);
}

void korvelSingle(benchmark::State& state)
{
    select(state, static_cast<int>(state.range(0)));
    double sum = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        for (int k = 0; k < singles; ++k) {
            sum += Random01();
        }
        benchmark::DoNotOptimize(sum);
    }
    countDraws(state, singles);
}

template <class Draw>
void peerArray(benchmark::State& state, Draw draw)
{
    std::vector<double> out(cells);
    for ([[maybe_unused]] auto _ : state) {
        for (auto& cell : out) {
            cell = draw();
        }
        benchmark::ClobberMemory();
    }
    countDraws(state, cells);
}

template <class Draw>
void peerSingle(benchmark::State& state, Draw draw)
{
    double sum = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        for (int k = 0; k < singles; ++k) {
            sum += draw();
        }
        benchmark::DoNotOptimize(sum);
    }
    countDraws(state, singles);
}

/** The cheapest uniform draw of the standard engine: its output scaled, as this library does. */
auto standardDraw()
{
    return [engine = std::mt19937(12345)]() mutable {
        return static_cast<double>(engine()) * (1.0 / 4294967296.0);
    };
}

auto gslDraw(gsl_rng* generator)
{
    return [generator] { return gsl_rng_uniform(generator); };
}

using gsl_generator = std::unique_ptr<gsl_rng, decltype(&gsl_rng_free)>;

void standardArray(benchmark::State& state)
{
    peerArray(state, standardDraw());
}

void standardSingle(benchmark::State& state)
{
    peerSingle(state, standardDraw());
}

void gslArray(benchmark::State& state)
{
    const gsl_generator generator(gsl_rng_alloc(gsl_rng_mt19937), &gsl_rng_free);
    peerArray(state, gslDraw(generator.get()));
}

void gslSingle(benchmark::State& state)
{
    const gsl_generator generator(gsl_rng_alloc(gsl_rng_mt19937), &gsl_rng_free);
    peerSingle(state, gslDraw(generator.get()));
}

void rArray(benchmark::State& state)
{
    const std::string command = korvel::bench::rScript("runif.R") + " " + std::to_string(cells);
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(korvel::bench::secondsOf(command));
    }
    countDraws(state, cells);
}

BENCHMARK(korvelArray)->Arg(0)->Arg(1);
BENCHMARK(korvelTable)->Args({0, 1})->Args({0, 10})->Args({0, 3000})->Args({1, 10})->Args({1, 3000});
BENCHMARK(standardArray);
BENCHMARK(gslArray);
BENCHMARK(rArray)->UseManualTime()->Iterations(3);
BENCHMARK(korvelSingle)->Arg(0)->Arg(1);
BENCHMARK(standardSingle);
BENCHMARK(gslSingle);

} // namespace
