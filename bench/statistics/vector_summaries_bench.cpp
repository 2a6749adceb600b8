// The vector summaries on ten million cells, beside the plain loop at -O2, GSL, R, and the lower bound: a
// chain of dependent additions. Benchmarks are named ROUTINE/PEER, for bench/side_by_side. A routine that
// leaves cells out is also timed on a vector in which one cell in ten is missing and one flag in ten is set,
// which GSL and R do not support.
#include "containers/matrix3d.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "statistics/plain_loops.h"
#include "statistics/table_extremes.h"
#include "statistics/vector_extremes.h"
#include "statistics/vector_frequencies.h"
#include "statistics/vector_means.h"
#include "statistics/vector_moments.h"
#include "statistics/vector_sums.h"
#include "statistics/vector_variance.h"
#include "support/caller_memory.h"
#include "support/peer_script.h"

#include <benchmark/benchmark.h>
#include <bit>
#include <gsl/gsl_statistics_double.h>
#include <memory>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace
{

using namespace korvel::bench;

constexpr int cells = 10'000'000;
constexpr int chunkCells = 1'000'000;
constexpr int labels = 1'000'000;

/** What every routine is given. */
class vectors
{
public:
    explicit vectors(bool someMissing)
        : x(cells, 1, 0.0), y(cells, 1, 0.0), w(cells, 1, 0.0), out(cells, 1, 0.0), counts(cells, 1, 0),
          flags(cells)
    {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> uniform(0.5, 1.5);
        for (int i = 0; i < cells; ++i) {
            x.data[i] = uniform(random);
            y.data[i] = uniform(random);
            w.data[i] = uniform(random);
            counts.data[i] = static_cast<int>(random() % 1000);
            if (someMissing && random() % 10 == 0) {
                x.data[i] = MISSING_DBL;
            }
            flags[static_cast<std::size_t>(i)] = someMissing && random() % 10 == 0 ? -1 : 0;
        }
    }

    matrix<double> x;
    matrix<double> y;
    matrix<double> w;
    matrix<double> out;
    matrix<int> counts;
    std::vector<short int> flags;
};

vectors& complete()
{
    static vectors made(false);
    return made;
}

vectors& withMissing()
{
    static vectors made(true);
    return made;
}

/** The cells of a vector in ten columns: as a table of chunks, as a labelled record, as pointers. */
class columns
{
public:
    columns()
    {
        std::vector<ST_Vect> records;
        std::vector<std::u16string> names;
        for (int j = 0; j < cells / chunkCells; ++j) {
            double* const first = complete().x.data + static_cast<std::ptrdiff_t>(j) * chunkCells;
            chunks.chunks.emplace_back(chunkCells, 1, first, true);
            pointers.push_back(first);
            names.push_back(u"column");
            records.push_back(memory_.column(names.back(), std::vector<double>(first, first + chunkCells)));
        }
        record = memory_.table(records, names);
    }

    matrix3DVect<matrix<double>> chunks;
    std::vector<const double*> pointers;
    ST_MVect record{};

private:
    korvel::test::caller_memory memory_;
};

columns& inColumns()
{
    static columns made;
    return made;
}

/** One of a hundred labels for each row. */
matrix<text>& someLabels()
{
    static matrix<text> made = [] {
        matrix<text> drawn(labels, 1, text());
        std::mt19937_64 random(1);
        for (int i = 0; i < labels; ++i) {
            const auto digit = [&] { return static_cast<char16_t>(u'0' + random() % 10); };
            drawn.data[i] = {u'l', u'a', u'b', u'e', u'l', u' ', digit(), digit()};
        }
        return drawn;
    }();
    return made;
}

using call = double (*)(vectors&);

/** A routine and its peers; a null pointer, or no text, where there is none. */
struct routine {
    const char* name;
    bool leavesOut;
    call korvelCall;
    call plainCall;
    call gslCall;
    const char* rExpression;
    int cellCount = cells;
};

const routine routines[] = {
    {"V_Sum", true, [](vectors& v) { return V_Sum(&v.x, cells, v.flags.data(), &v.w); },
     [](vectors& v) { return plain::sum(v.x.data, cells, v.flags.data(), v.w.data); }, nullptr, "sum(w * x)"},
    {"V_SumW", false, [](vectors& v) { return Cpp_V_SumW(v.x.data, cells, v.w.data); },
     [](vectors& v) { return plain::sumW(v.x.data, cells, v.w.data); }, nullptr, "sum(x * w)"},
    {"V_Sum2", true, [](vectors& v) { return V_Sum2(v.x, cells); },
     [](vectors& v) { return plain::sum2(v.x.data, cells); }, nullptr, "sum(x)"},
    {"V_Sum2 of integers", false, [](vectors& v) { return V_Sum2(&v.counts, cells); },
     [](vectors& v) { return plain::sumOfIntegers(v.counts.data, cells); }, nullptr, nullptr},
    {"V_SumFromTo", false, [](vectors& v) { return VB_V_SumFromTo(v.x.data, cells, 1, cells); },
     [](vectors& v) { return plain::sumFromTo(v.x.data, 1, cells); }, nullptr, nullptr},
    {"V_SumSq", true, [](vectors& v) { return V_SumSq(&v.x, cells); },
     [](vectors& v) { return plain::sumSq(v.x.data, cells); }, nullptr, "sum(x * x)"},
    {"V_SumSqW", true, [](vectors& v) { return V_SumSqW(&v.x, cells, &v.w); },
     [](vectors& v) { return plain::sumSqW(v.x.data, cells, v.w.data); }, nullptr, "sum(x * w * x)"},
    {"V_Sq", false, [](vectors& v) { return V_Sq(&v.x, cells); },
     [](vectors& v) { return plain::sq(v.x.data, cells); }, nullptr, nullptr},
    {"V_DiffSq", false, [](vectors& v) { return V_DiffSq(&v.x, cells, &v.y); },
     [](vectors& v) { return plain::diffSq(v.x.data, cells, v.y.data); }, nullptr, "sum((x - y)^2)"},
    {"V_DiffSqW", false, [](vectors& v) { return V_DiffSqW(&v.x, cells, &v.y, &v.w); },
     [](vectors& v) { return plain::diffSqW(v.x.data, cells, v.y.data, v.w.data); }, nullptr,
     "sum(w * (x - y)^2)"},
    {"V_DiffSqStart", false, [](vectors& v) { return V_DiffSqStart(&v.x, cells, &v.y, 1); },
     [](vectors& v) { return plain::diffSq(v.x.data, cells, v.y.data); }, nullptr, nullptr},
    {"V_CuSum", false,
     [](vectors& v) {
         V_CuSum(&v.x, cells, &v.out);
         return v.out.data[cells - 1];
     },
     [](vectors& v) { return plain::cuSum(v.x.data, cells, v.out.data); }, nullptr, "cumsum(x)"},

    {"V_Mean", true, [](vectors& v) { return V_Mean(&v.x, cells, v.flags.data(), &v.w); },
     [](vectors& v) { return plain::mean(v.x.data, cells, v.flags.data(), v.w.data); },
     [](vectors& v) { return gsl_stats_wmean(v.w.data, 1, v.x.data, 1, cells); }, "weighted.mean(x, w)"},
    {"V_MeanAbs", true, [](vectors& v) { return V_MeanAbs(&v.x, cells, v.flags.data(), &v.w); },
     [](vectors& v) { return plain::meanAbs(v.x.data, cells, v.flags.data(), v.w.data); }, nullptr, nullptr},
    {"V_Mean2", true, [](vectors& v) { return V_Mean2(v.x, cells); },
     [](vectors& v) { return plain::mean2(v.x.data, cells); },
     [](vectors& v) { return gsl_stats_mean(v.x.data, 1, cells); }, "mean(x)"},
    {"V_MeanW2", true, [](vectors& v) { return V_MeanW2(&v.x, cells, &v.w); },
     [](vectors& v) { return plain::meanW2(v.x.data, cells, v.w.data); },
     [](vectors& v) { return gsl_stats_wmean(v.w.data, 1, v.x.data, 1, cells); }, nullptr},
    {"V_HarmonicMean", true, [](vectors& v) { return V_HarmonicMean(&v.x, cells, v.flags.data(), &v.w); },
     [](vectors& v) { return plain::harmonicMean(v.x.data, cells, v.flags.data(), v.w.data); }, nullptr,
     "sum(w) / sum(w / x)"},
    {"V_GMeanGSD", true,
     [](vectors& v) {
         double mean = 0.0;
         double deviation = 0.0;
         V_GMeanGSD(&v.x, cells, v.flags.data(), &v.w, mean, deviation);
         return mean + deviation;
     },
     [](vectors& v) { return plain::geometricMean(v.x.data, cells, v.flags.data(), v.w.data); }, nullptr,
     "{l <- log(x); g <- weighted.mean(l, w); c(exp(g), exp(sqrt(sum(w * (l - g)^2) / sum(w))))}"},

    {"V_Var", true, [](vectors& v) { return V_Var(&v.x, cells, v.flags.data(), &v.w, -1, -1); },
     [](vectors& v) { return plain::var(v.x.data, cells, v.flags.data(), v.w.data); },
     [](vectors& v) { return gsl_stats_wvariance(v.w.data, 1, v.x.data, 1, cells); },
     "{m <- weighted.mean(x, w); sum(w * (x - m)^2) / (sum(w) - 1)}"},
    {"V_Var with unit weights", true, [](vectors& v) { return Cpp_V_Var2(v.x.data, cells, -1, -1); },
     [](vectors& v) { return plain::unitVar(v.x.data, cells); },
     [](vectors& v) { return gsl_stats_variance(v.x.data, 1, cells); }, "var(x)"},
    {"V_Var2", true, [](vectors& v) { return V_Var2(&v.x, cells, -1, -1); },
     [](vectors& v) { return plain::var2(v.x.data, cells); }, nullptr, nullptr},
    {"V_Stdev", true, [](vectors& v) { return V_Stdev(&v.x, cells, v.flags.data(), &v.w, -1, -1); },
     [](vectors& v) { return plain::var(v.x.data, cells, v.flags.data(), v.w.data); },
     [](vectors& v) { return gsl_stats_wsd(v.w.data, 1, v.x.data, 1, cells); }, nullptr},
    {"V_MeanVar", true,
     [](vectors& v) {
         double mean = 0.0;
         double var = 0.0;
         V_MeanVar(&v.x, cells, &mean, &var, v.flags.data(), &v.w, -1, -1);
         return var;
     },
     [](vectors& v) { return plain::meanVar(v.x.data, cells, v.flags.data(), v.w.data); },
     [](vectors& v) {
         const double mean = gsl_stats_wmean(v.w.data, 1, v.x.data, 1, cells);
         return gsl_stats_wvariance_m(v.w.data, 1, v.x.data, 1, cells, mean);
     },
     nullptr},
    {"V_MeanVarW2", true,
     [](vectors& v) {
         double mean = 0.0;
         double var = 0.0;
         V_MeanVarW2(&v.x, cells, &v.w, &mean, &var, -1, -1);
         return var;
     },
     [](vectors& v) { return plain::meanVarW2(v.x.data, cells, v.w.data); }, nullptr, nullptr},
    {"V_MeanStdev", true,
     [](vectors& v) {
         double mean = 0.0;
         double sd = 0.0;
         V_MeanStdev(&v.x, cells, &mean, &sd, v.flags.data(), &v.w, -1, -1);
         return sd;
     },
     [](vectors& v) { return plain::meanVar(v.x.data, cells, v.flags.data(), v.w.data); }, nullptr, nullptr},
    {"V_MeanStdev2", true,
     [](vectors& v) {
         double mean = 0.0;
         double sd = 0.0;
         V_MeanStdev2(&v.x, cells, -1, mean, sd);
         return sd;
     },
     [](vectors& v) { return plain::meanStdev2(v.x.data, cells); },
     [](vectors& v) { return gsl_stats_sd(v.x.data, 1, cells); }, "c(mean(x), sd(x))"},
    {"V_MeanVarSkewPKurtP", true,
     [](vectors& v) {
         double r[8] = {};
         V_MeanVarSkewPKurtP(&v.x, cells, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], v.flags.data(),
                             &v.w, -1, -1);
         return r[3];
     },
     [](vectors& v) { return plain::moments(v.x.data, cells, v.flags.data(), v.w.data); },
     [](vectors& v) {
         const double mean = gsl_stats_wmean(v.w.data, 1, v.x.data, 1, cells);
         const double sd = gsl_stats_wsd_m(v.w.data, 1, v.x.data, 1, cells, mean);
         return gsl_stats_wskew_m_sd(v.w.data, 1, v.x.data, 1, cells, mean, sd) +
                gsl_stats_wkurtosis_m_sd(v.w.data, 1, v.x.data, 1, cells, mean, sd);
     },
     "{s <- sum(w); m <- sum(w * x) / s; d <- x - m; v <- sum(w * d^2) / s; "
     "c(m, v, sum(w * d^3) / s / v^1.5, sum(w * d^4) / s / v^2 - 3)}"},

    {"V_Freq", false, [](vectors& v) { return V_Freq(&v.x, cells, &v.w, 1.0, 0.25); },
     [](vectors& v) { return plain::freq(v.x.data, cells, v.w.data, 1.0, 0.25); }, nullptr,
     "sum(w[abs(x - 1) < 0.25])"},
    {"V_Freq of integers", false, [](vectors& v) { return V_Freq(&v.counts, cells, &v.w, 500.0, 100.0); },
     [](vectors& v) { return plain::freqOfIntegers(v.counts.data, cells, v.w.data, 500.0, 100.0); }, nullptr,
     nullptr},
    {"V_FreqStr", false, [](vectors& v) { return V_FreqStr(&someLabels(), labels, &v.w, text(u"label 42")); },
     [](vectors& v) { return plain::freqOfTexts(someLabels().data, labels, v.w.data, text(u"label 42")); },
     nullptr, nullptr, labels},

    {"V_Min", true, [](vectors& v) { return V_Min(&v.x, cells, v.flags.data()); },
     [](vectors& v) { return plain::min(v.x.data, cells, v.flags.data()); },
     [](vectors& v) { return gsl_stats_min(v.x.data, 1, cells); }, "min(x)"},
    {"V_Min of integers", true, [](vectors& v) { return V_Min(&v.counts, cells, v.flags.data()); },
     [](vectors& v) { return plain::minOfIntegers(v.counts.data, cells, v.flags.data()); }, nullptr, nullptr},
    {"V_Max", true, [](vectors& v) { return V_Max(&v.x, cells, v.flags.data()); },
     [](vectors& v) { return plain::max(v.x.data, cells, v.flags.data()); },
     [](vectors& v) { return gsl_stats_max(v.x.data, 1, cells); }, "max(x)"},
    {"V_Min2", true, [](vectors& v) { return V_Min2(v.x, cells); },
     [](vectors& v) { return plain::min2(v.x.data, cells); }, nullptr, nullptr},
    {"V_MinMax", true,
     [](vectors& v) {
         double min = 0.0;
         double max = 0.0;
         V_MinMax(&v.x, cells, &min, &max, v.flags.data());
         return min + max;
     },
     [](vectors& v) { return plain::minMax(v.x.data, cells, v.flags.data()); },
     [](vectors& v) {
         double min = 0.0;
         double max = 0.0;
         gsl_stats_minmax(&min, &max, v.x.data, 1, cells);
         return min + max;
     },
     "range(x)"},
    {"V_MinMax2", true,
     [](vectors& v) {
         double min = 0.0;
         double max = 0.0;
         V_MinMax2(&v.x, cells, &min, &max, -1);
         return min + max;
     },
     [](vectors& v) { return plain::minMax2(v.x.data, cells); }, nullptr, nullptr},
    {"V_MinAndMinPos, first", false,
     [](vectors& v) {
         int pos = 0;
         return V_MinAndMinPos(&v.x, cells, &pos, false) + pos;
     },
     [](vectors& v) { return plain::firstMinPos(v.x.data, cells); },
     [](vectors& v) { return static_cast<double>(gsl_stats_min_index(v.x.data, 1, cells)); }, "which.min(x)"},
    {"V_MinAndMinPos, last", false,
     [](vectors& v) {
         int pos = 0;
         return V_MinAndMinPos(&v.x, cells, &pos, true) + pos;
     },
     [](vectors& v) { return plain::lastMinPos(v.x.data, cells); }, nullptr, nullptr},
    {"V_MaxAndMaxPos", false,
     [](vectors& v) {
         int pos = 0;
         return V_MaxAndMaxPos(&v.x, cells, &pos) + pos;
     },
     [](vectors& v) { return plain::maxPos(v.x.data, cells); },
     [](vectors& v) { return static_cast<double>(gsl_stats_max_index(v.x.data, 1, cells)); }, "which.max(x)"},
    {"V_MaxAndMaxPos of integers", false,
     [](vectors& v) {
         int pos = 0;
         return V_MaxAndMaxPos(&v.counts, cells, &pos) + pos;
     },
     [](vectors& v) { return plain::maxPosOfIntegers(v.counts.data, cells); }, nullptr, nullptr},
    {"V_Min_ST", false,
     [](vectors& v) { return V_Min_ST(&inColumns().chunks, cells / chunkCells, chunkCells, v.flags.data()); },
     [](vectors& v) { return plain::minOfChunks(inColumns().pointers, chunkCells, v.flags.data()); }, nullptr,
     nullptr},
    {"V_Min3", false,
     [](vectors&) { return Cpp_V_Min3(&inColumns().record, chunkCells, cells / chunkCells); },
     [](vectors&) { return plain::minOfChunks(inColumns().pointers, chunkCells, nullptr); }, nullptr,
     nullptr},
};

/** The bits of `count` elements, all together. */
template <class T>
std::uint64_t bitsOf(const T* first, std::ptrdiff_t count)
{
    using word = std::conditional_t<sizeof(T) == sizeof(std::uint64_t), std::uint64_t, std::uint16_t>;
    std::uint64_t bits = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        bits ^= std::bit_cast<word>(first[i]);
    }
    return bits;
}

/** Reads the cells of several vectors side by side, as a routine does, and nothing more. */
template <class... T>
double readAlone(const T*... vectors)
{
    constexpr std::ptrdiff_t stretch = 1000;
    std::uint64_t bits = 0;
    for (std::ptrdiff_t i = 0; i < cells; i += stretch) {
        bits ^= (bitsOf(vectors + i, stretch) ^ ...);
    }
    return static_cast<double>(bits);
}

void add(const std::string& name, call function, vectors& (*data)(), int cellCount)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     vectors& given = data();
                                     for ([[maybe_unused]] auto _ : state) {
                                         benchmark::DoNotOptimize(function(given));
                                     }
                                     state.SetItemsProcessed(state.iterations() * cellCount);
                                 })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

/** R is started once for each routine and gives the least of several times. */
void addR(const std::string& name, const std::string& expression)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=, seconds = 0.0](benchmark::State& state) mutable {
                                     static const auto& v = complete();
                                     static const cells_file x("x", {v.x.data, cells});
                                     static const cells_file y("y", {v.y.data, cells});
                                     static const cells_file w("w", {v.w.data, cells});
                                     if (seconds == 0.0) {
                                         seconds =
                                             secondsOf(rScript("summaries.R") + " " + x.path() + " " +
                                                       y.path() + " " + w.path() + " " + quoted(expression));
                                     }
                                     for ([[maybe_unused]] auto _ : state) {
                                         state.SetIterationTime(seconds);
                                     }
                                     state.SetItemsProcessed(state.iterations() * cells);
                                 })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    add(
        "one addition", [](vectors&) { return plain::additions(1.0, cells); }, complete, cells);
    add(
        "reading x and w", [](vectors& v) { return readAlone(v.x.data, v.w.data); }, complete, cells);
    add(
        "reading x, w and flags", [](vectors& v) { return readAlone(v.x.data, v.w.data, v.flags.data()); },
        complete, cells);
    add(
        "reading x, y and w", [](vectors& v) { return readAlone(v.x.data, v.y.data, v.w.data); }, complete,
        cells);
    for (const routine& r : routines) {
        const std::string name = r.name;
        add(name + "/korvel", r.korvelCall, complete, r.cellCount);
        add(name + "/plain", r.plainCall, complete, r.cellCount);
        if (r.gslCall != nullptr) {
            add(name + "/GSL", r.gslCall, complete, r.cellCount);
        }
        if (r.rExpression != nullptr) {
            addR(name + "/R", r.rExpression);
        }
        if (r.leavesOut) {
            add(name + ", some missing/korvel", r.korvelCall, withMissing, r.cellCount);
            add(name + ", some missing/plain", r.plainCall, withMissing, r.cellCount);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
}
