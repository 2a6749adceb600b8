// The categories of a million texts with their frequencies, beside a search backwards through the known ones
// and R's factor() and table(), in one run. The counters are the best time of each in milliseconds, whether
// the search found the same, and the time of the routine as a share of each other one's. The argument is the
// number of categories.

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

    stop_watch library;
    stop_watch search;
    inventory plain;
    for (auto _ : state) {
        library.time([&] {
            M_InfoQuali2(cells, rows, 1, width, counts, modes, modeFrequencies, names, frequencies, weights,
                         &total, 0);
        });
        search.time([&] { plain = searchBackwards(cells.data, weights.data); });
    }
    const bool same = std::equal(plain.names.begin(), plain.names.end(), names.data, names.data + total) &&
                      std::equal(plain.frequencies.begin(), plain.frequencies.end(), frequencies.data,
                                 frequencies.data + total);

    const cells_file file("codes", codes);
    const auto inR = [&](const char* expression) {
        return 1000.0 * secondsOf(rScript("categories.R") + " " + file.path() + " " + quoted(expression));
    };
    const double factor = inR("factor(x)");
    const double table = inR("table(x)");
    state.counters["ours"] = library.milliseconds();
    state.counters["search"] = search.milliseconds();
    state.counters["R_factor"] = factor;
    state.counters["R_table"] = table;
    state.counters["same"] = same ? 1 : 0;
    state.counters["to_search"] = library.milliseconds() / search.milliseconds();
    state.counters["to_R_factor"] = library.milliseconds() / factor;
    state.counters["to_R_table"] = library.milliseconds() / table;
}

} // namespace

BENCHMARK(countCategories)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(3);
