// The categories of a million texts with their frequencies, by the core routine and by the flat function,
// beside a search backwards through the known ones and R's factor() and table(), in one run. R has each
// different text once and compares places in memory; the texts of the core and of the caller are a million
// blocks. The counters are the best time of each in milliseconds, whether all found the same, and the time of
// the core routine and of the flat function as a share of others. The argument is the number of categories.

#include "containers/bstr.h"
#include "frames/qualitative/category_info.h"
#include "qualitative/category_info.h"
#include "support/peer_script.h"
#include "support/stop_watch.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace
{

using namespace korvel::bench;

constexpr int rows = 1'000'000;

std::vector<double> drawCodes(int categories)
{
    std::mt19937 random(1);
    std::vector<double> codes(rows);
    for (double& code : codes) {
        code = static_cast<double>(random() % static_cast<unsigned>(categories));
    }
    return codes;
}

text nameOf(double code)
{
    char name[32];
    const int length = std::snprintf(name, sizeof name, "category %04d", static_cast<int>(code));
    return {name, name + length};
}

/** Categories in order of first appearance. */
struct inventory {
    std::vector<text> names;
    std::vector<double> frequencies;
};

inventory searchBackwards(const text* cells, const double* weights)
{
    inventory found;
    for (int i = 0; i < rows; ++i) {
        std::size_t k = found.names.size();
        while (k > 0 && found.names[k - 1] != cells[i]) {
            --k;
        }
        if (k > 0) {
            found.frequencies[k - 1] += weights[i];
        } else {
            found.names.push_back(cells[i]);
            found.frequencies.push_back(weights[i]);
        }
    }
    return found;
}

void countCategories(benchmark::State& state)
{
    const auto width = static_cast<int>(state.range(0));
    const std::vector<double> codes = drawCodes(width);
    matrix<text> cells(rows, 1, text());
    std::transform(codes.begin(), codes.end(), cells.data, nameOf);
    matrix<double> weights(rows, 1, 1.0);
    matrix<int> counts;
    matrix<text> modes;
    matrix<double> modeFrequencies;
    matrix<text> names;
    matrix<double> frequencies;
    int total = 0;

    std::vector<BSTR> callerTexts(rows);
    std::transform(cells.data, cells.data + rows, callerTexts.begin(), korvel::makeBstr);
    const auto places = static_cast<std::size_t>(width);
    std::vector<BSTR> flatNames(places);
    std::vector<double> flatFrequencies(places);
    BSTR flatMode = nullptr;
    double flatModeFrequency = 0;
    int flatCount = 0;
    int flatTotal = 0;

    stop_watch library;
    stop_watch flat;
    stop_watch search;
    inventory plain;
    for (auto _ : state) {
        library.time([&] {
            M_InfoQuali2(cells, rows, 1, width, counts, modes, modeFrequencies, names, frequencies, weights,
                         &total, 0);
        });
        flat.time([&] {
            VB_M_InfoQuali2(callerTexts.data(), rows, 1, width, &flatCount, &flatMode, &flatModeFrequency,
                            flatNames.data(), flatFrequencies.data(), weights.data, &flatTotal, 0);
        });
        search.time([&] { plain = searchBackwards(cells.data, weights.data); });
    }
    const bool same = std::equal(plain.names.begin(), plain.names.end(), names.data, names.data + total) &&
                      std::equal(plain.frequencies.begin(), plain.frequencies.end(), frequencies.data,
                                 frequencies.data + total) &&
                      std::equal(plain.frequencies.begin(), plain.frequencies.end(), flatFrequencies.begin(),
                                 flatFrequencies.begin() + flatTotal);
    std::for_each(callerTexts.begin(), callerTexts.end(), SysFreeString);
    std::for_each(flatNames.begin(), flatNames.end(), SysFreeString);
    SysFreeString(flatMode);

    const cells_file file("codes", codes);
    const auto inR = [&](const char* expression) {
        return 1000.0 * secondsOf(rScript("categories.R") + " " + file.path() + " " + quoted(expression));
    };
    const double factor = inR("factor(x)");
    const double table = inR("table(x)");
    state.counters["ours"] = library.milliseconds();
    state.counters["flat"] = flat.milliseconds();
    state.counters["search"] = search.milliseconds();
    state.counters["R_factor"] = factor;
    state.counters["R_table"] = table;
    state.counters["same"] = same ? 1 : 0;
    state.counters["to_search"] = library.milliseconds() / search.milliseconds();
    state.counters["to_R_factor"] = library.milliseconds() / factor;
    state.counters["to_R_table"] = library.milliseconds() / table;
    state.counters["flat_to_R_factor"] = flat.milliseconds() / factor;
    state.counters["flat_to_R_table"] = flat.milliseconds() / table;
}

} // namespace

BENCHMARK(countCategories)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(3);
