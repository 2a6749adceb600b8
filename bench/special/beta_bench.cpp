// The incomplete beta ratio beside R's (libRmath) and Boost's, at the points of the tests' table, by the ways
// that they take. Benchmarks are named WAY/PEER, for bench/side_by_side; a cell is a point. With the argument
// "errors" the program prints instead, way by way, the largest error of ours and of R's in units of epsilon.
#include "special/beta.h"
#include "special/peers.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace korvel::bench;
using points = std::vector<point>;

struct ratio_and_complement {
    double ratio;
    double complement;
};

ratio_and_complement ours(const point& p, bool logarithm)
{
    ratio_and_complement found{};
    int status = 0;
    bratio(p.a, p.b, p.x, p.y, &found.ratio, &found.complement, &status, logarithm ? 1 : 0);
    return found;
}

template <class Ratio>
void add(const std::string& name, const std::shared_ptr<points>& at, Ratio ratio)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        for (auto _ : state) {
            double sum = 0.0;
            for (const point& p : *at) {
                sum += ratio(p);
            }
            benchmark::DoNotOptimize(sum);
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(at->size()));
    });
}

void addAll(const std::string& way, const points& at)
{
    const auto shared = std::make_shared<points>(at);
    add(way + "/korvel", shared, [](const point& p) { return ours(p, false).ratio; });
    add(way + "/R", shared, [](const point& p) { return ratioOfR(p, false, false); });
    add(way + "/Boost", shared, ratioOfBoost);
    add(way + "/Boost in long doubles", shared, ratioOfBoostPromoted);
    // R prints a line where a logarithm underflows.
    constexpr double surelyComputed = -300.0;
    const auto moderate = std::make_shared<points>();
    std::copy_if(at.begin(), at.end(), std::back_inserter(*moderate), [](const point& p) {
        return p.logRatio > surelyComputed && p.logComplement > surelyComputed;
    });
    add(way + ", logarithm/korvel", moderate, [](const point& p) { return ours(p, true).ratio; });
    add(way + ", logarithm/R", moderate, [](const point& p) { return ratioOfR(p, false, true); });
}

/** Relative to the truth, in units of epsilon; 0 for numbers without all their digits. */
double errorOf(double found, double truth)
{
    constexpr double allDigits = 1e-306;
    return std::fabs(truth) < allDigits ? 0.0 : std::fabs(found - truth) / std::fabs(truth) / DBL_EPSILON;
}

void printErrors(const std::string& way, const points& at)
{
    double largest[2][2] = {};
    for (const point& p : at) {
        for (const bool logarithm : {false, true}) {
            const auto [ratio, complement] = ours(p, logarithm);
            const double truth = logarithm ? p.logRatio : p.ratio;
            const double truthOfComplement = logarithm ? p.logComplement : p.complement;
            const double errors[2][2] = {{errorOf(ratio, truth), errorOf(complement, truthOfComplement)},
                                         {errorOf(ratioOfR(p, false, logarithm), truth),
                                          errorOf(ratioOfR(p, true, logarithm), truthOfComplement)}};
            for (int peer = 0; peer < 2; ++peer) {
                double& most = largest[logarithm ? 1 : 0][peer];
                most = std::max({most, errors[peer][0], errors[peer][1]});
            }
        }
    }
    std::fprintf(stderr, "%-20s ratio: %8.4g (R %8.4g)  logarithm: %8.4g (R %8.4g)\n", way.c_str(),
                 largest[0][0], largest[0][1], largest[1][0], largest[1][1]);
}

} // namespace

int main(int argc, char** argv)
{
    std::map<std::string, points> ways;
    points all;
    for (const point& p : korvel::test::readIncompleteBetaPoints()) {
        ways[p.way].push_back(p);
        all.push_back(p);
    }
    if (argc == 2 && std::string(argv[1]) == "errors") {
        for (const auto& [way, at] : ways) {
            printErrors(way, at);
        }
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    addAll("all ways", all);
    for (const auto& [way, at] : ways) {
        addAll(way, at);
    }
    benchmark::RunSpecifiedBenchmarks();
}
