#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const double none = MISSING_DBL;

/** Mean 3, sum of squares 14; mean 2, sum of squares 2. */
const doubles cells{1, 2, 3, 6, 1, none, none, 3};

enum class change { centre, reduce, standardize };

doubles expectedFrom(change kind, double first, double second)
{
    doubles found;
    for (std::size_t k = 0; k < cells.size(); ++k) {
        const double mean = k < 4 ? 3 : 2;
        const double sd = k < 4 ? first : second;
        const double x = cells[k];
        found.push_back(x == none                ? none
                        : kind == change::centre ? x - mean
                        : kind == change::reduce ? x / sd
                                                 : (x - mean) / sd);
    }
    return found;
}

struct arrays {
    double* x;
    double* w;
    double* out;
    double* means;
    double* sds;
};

/** A function, called with both flags -1 where it takes them. */
struct flat {
    const char* name;
    int (*run)(const arrays&);
    change kind;
    bool intoResult;
    bool returnsStatistics;
};

const flat functions[] = {
    {"VB_M_Standardize2", [](const arrays& a) { return VB_M_Standardize2(a.x, 4, 2, -1); },
     change::standardize, false, false},
    {"VB_M_Standardize3",
     [](const arrays& a) { return VB_M_Standardize3(a.x, 4, 2, a.means, a.sds, -1, -1); },
     change::standardize, false, true},
    {"VB_M_StandardizeW", [](const arrays& a) { return VB_M_StandardizeW(a.x, 4, 2, a.w, -1, -1, a.out); },
     change::standardize, true, false},
    {"VB_M_StandardizeW2", [](const arrays& a) { return VB_M_StandardizeW2(a.x, 4, 2, a.w, -1, -1); },
     change::standardize, false, false},
    {"VB_M_StandardizeW3",
     [](const arrays& a) { return VB_M_StandardizeW3(a.x, 4, 2, a.w, a.means, a.sds, -1, -1); },
     change::standardize, false, true},
    {"VB_M_Center", [](const arrays& a) { return VB_M_Center(a.x, 4, 2, a.out); }, change::centre, true,
     false},
    {"VB_M_CenterW", [](const arrays& a) { return VB_M_CenterW(a.x, 4, 2, a.w, a.out); }, change::centre,
     true, false},
    {"VB_M_Center2", [](const arrays& a) { return VB_M_Center2(a.x, 4, 2); }, change::centre, false, false},
    {"VB_M_CenterW2", [](const arrays& a) { return VB_M_CenterW2(a.x, 4, 2, a.w); }, change::centre, false,
     false},
    {"VB_M_Reduce", [](const arrays& a) { return VB_M_Reduce(a.x, 4, 2, a.out, -1, -1); }, change::reduce,
     true, false},
    {"VB_M_ReduceW", [](const arrays& a) { return VB_M_ReduceW(a.x, 4, 2, a.w, a.out, -1, -1); },
     change::reduce, true, false},
    {"VB_M_Reduce2", [](const arrays& a) { return VB_M_Reduce2(a.x, 4, 2, -1); }, change::reduce, false,
     false},
    {"VB_M_ReduceW2", [](const arrays& a) { return VB_M_ReduceW2(a.x, 4, 2, a.w, -1, -1); }, change::reduce,
     false, false},
};

} // namespace

TEST(FlatCentering, EachFunction)
{
    const double first = std::sqrt(14.0 / 3.0);
    const double second = std::sqrt(2.0);
    for (const flat& each : functions) {
        SCOPED_TRACE(each.name);
        guarded<double> x(cells);
        guarded<double> w{1, 1, 1, 1};
        guarded<double> out(doubles(8, 9));
        guarded<double> means{9, 9};
        guarded<double> sds{9, 9};
        EXPECT_EQ(each.run({x.data(), w.data(), out.data(), means.data(), sds.data()}), 0);
        const doubles expected = expectedFrom(each.kind, first, second);
        EXPECT_EQ(valuesOf(x), each.intoResult ? cells : expected);
        EXPECT_EQ(valuesOf(out), each.intoResult ? expected : doubles(8, 9));
        EXPECT_EQ(valuesOf(means), each.returnsStatistics ? (doubles{3, 2}) : (doubles{9, 9}));
        EXPECT_EQ(valuesOf(sds), each.returnsStatistics ? (doubles{first, second}) : (doubles{9, 9}));
    }
}

TEST(FlatCentering, TheResultAndTheWeightsMayShareMemoryWithTheTable)
{
    const double first = std::sqrt(14.0 / 3.0);
    for (const flat& each : functions) {
        SCOPED_TRACE(each.name);
        doubles rows(cells.begin(), cells.begin() + 4);
        rows.insert(rows.end(), 4, 1.0);
        guarded<double> x(rows);
        doubles statistics(4);
        EXPECT_EQ(each.run({x.data(), x.data() + 4, x.data(), statistics.data(), statistics.data() + 2}), 0);
        const doubles expected = expectedFrom(each.kind, first, 0);
        const doubles found = valuesOf(x);
        EXPECT_EQ(doubles(found.begin(), found.begin() + 4), doubles(expected.begin(), expected.begin() + 4));
    }
}

TEST(FlatCentering, WeightsAndFlags)
{
    guarded<double> x{0, 100, 2};
    guarded<double> w{2, 0, 2};
    guarded<double> out{9, 9, 9};
    VB_M_StandardizeW(x.data(), 3, 1, w.data(), 0, -1, out.data());
    EXPECT_EQ(valuesOf(out), (doubles{-1, 99, 1}));
    const double sd = std::sqrt(2.0);
    VB_M_StandardizeW(x.data(), 3, 1, w.data(), -1, 0, out.data());
    EXPECT_EQ(valuesOf(out), (doubles{-1 / sd, 99 / sd, 1 / sd})) << "4 over 4 - 4/2";
    VB_M_ReduceW(x.data(), 3, 1, w.data(), out.data(), 1, -1);
    EXPECT_EQ(valuesOf(out), (doubles{0, 100, 2})) << "1 is not true";
}

TEST(FlatCentering, TheTwoFlagsStandInTheirPlaces)
{
    const doubles cellsOfTwo{0, 4};
    guarded<double> w{1, 3};
    const double sd = std::sqrt(8.0);         // 8 over 2 - 2/2
    const double weightedSd = std::sqrt(6.0); // 12 over 4 - 4/2
    const doubles weighted{-3 / weightedSd, 1 / weightedSd};
    guarded<double> means{9};
    guarded<double> sds{9};
    guarded<double> x(cellsOfTwo);
    VB_M_Standardize3(x.data(), 2, 1, means.data(), sds.data(), -1, 0);
    EXPECT_EQ(valuesOf(x), (doubles{-2 / sd, 2 / sd}));
    guarded<double> second(cellsOfTwo);
    VB_M_StandardizeW2(second.data(), 2, 1, w.data(), -1, 0);
    EXPECT_EQ(valuesOf(second), weighted);
    guarded<double> third(cellsOfTwo);
    VB_M_StandardizeW3(third.data(), 2, 1, w.data(), means.data(), sds.data(), -1, 0);
    EXPECT_EQ(valuesOf(third), weighted);
    EXPECT_EQ(valuesOf(sds), doubles{weightedSd});
    guarded<double> out{9, 9};
    VB_M_Reduce(cellsOfTwo.data(), 2, 1, out.data(), -1, 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 4 / sd}));
    guarded<double> fourth(cellsOfTwo);
    VB_M_ReduceW2(fourth.data(), 2, 1, w.data(), -1, 0);
    EXPECT_EQ(valuesOf(fourth), (doubles{0, 4 / weightedSd}));
}

TEST(FlatCentering, SeparateColumns)
{
    const double sd = std::sqrt(14.0 / 3.0);
    caller_columns x({{1, 2, 3, 6}, {5, none, 5, 5}});
    EXPECT_EQ(VB_M_Standardize2SPV(x.argument(), 4, 2, -1), 0);
    EXPECT_EQ(x.values(), (caller_columns::columns{{-2 / sd, -1 / sd, 0, 3 / sd}, {5, none, 5, 5}}));
    caller_columns y({{1, 2, 3, 6}, {5, none, 5, 5}});
    EXPECT_EQ(VB_M_Center2SPV(y.argument(), 4, 2), 0);
    EXPECT_EQ(y.values(), (caller_columns::columns{{-2, -1, 0, 3}, {0, none, 0, 0}}));
    EXPECT_EQ(VB_M_Center2SPV(y.argument(), 0, 2), 0);
    EXPECT_EQ(VB_M_Standardize2SPV(y.argument(), 4, 0, -1), 0);
    EXPECT_EQ(y.values(), (caller_columns::columns{{-2, -1, 0, 3}, {0, none, 0, 0}}));
}

TEST(FlatCentering, CountsBelowOne)
{
    for (const int count : {0, -1}) {
        guarded<double> x{1, 2};
        guarded<double> out{9, 9};
        double* const a = x.data();
        double* const b = out.data();
        for (const auto& [rows, cols] : {std::pair{2, count}, std::pair{count, 2}, std::pair{count, count}}) {
            VB_M_Standardize2(a, rows, cols, -1);
            VB_M_StandardizeW(a, rows, cols, a, -1, 0, b);
            VB_M_StandardizeW2(a, rows, cols, a, -1, 0);
            VB_M_Center(a, rows, cols, b);
            VB_M_CenterW(a, rows, cols, a, b);
            VB_M_Center2(a, rows, cols);
            VB_M_CenterW2(a, rows, cols, a);
            VB_M_Reduce(a, rows, cols, b, -1, 0);
            VB_M_ReduceW(a, rows, cols, a, b, -1, 0);
            VB_M_Reduce2(a, rows, cols, -1);
            VB_M_ReduceW2(a, rows, cols, a, -1, 0);
        }
        VB_M_Standardize3(a, 2, count, b, b, -1, 0);
        VB_M_StandardizeW3(a, 2, count, a, b, b, -1, 0);
        EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
        EXPECT_EQ(valuesOf(out), (doubles{9, 9}));
    }
}
