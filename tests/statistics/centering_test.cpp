#include "statistics/centering.h"

#include "reference/standardize.h"
#include "support/column_tables.h"
#include "support/near_tables.h"
#include "support/random_tables.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using reference::denominator_flags;
using doubles = std::vector<double>;

namespace
{

/** What a member is given, and where its results go. */
struct call {
    matrix<double>* x;
    int rows;
    int cols;
    matrix<double>* w;
    denominator_flags how;
    matrix<double>* out;
    matrix<double>* means;
    matrix<double>* sds;
};

/** A member, and how it differs from the others. */
struct member {
    const char* name;
    void (*run)(call);
    double (*change)(double x, double mean, double sd);
    bool weighted;
    bool intoResult;
    bool takesFreq;
    bool returnsStatistics;
};

const member members[] = {
    {"M_Standardize2", [](call c) { M_Standardize2(c.x, c.rows, c.cols, c.how.unbiased); },
     reference::standardized, false, false, false, false},
    {"M_Standardize3",
     [](call c) { M_Standardize3(c.x, c.rows, c.cols, c.means, c.sds, c.how.unbiased, c.how.freq); },
     reference::standardized, false, false, true, true},
    {"M_StandardizeW",
     [](call c) { M_StandardizeW(c.x, c.rows, c.cols, c.w, c.how.unbiased, c.how.freq, c.out); },
     reference::standardized, true, true, true, false},
    {"M_StandardizeW2", [](call c) { M_StandardizeW2(c.x, c.rows, c.cols, c.w, c.how.unbiased, c.how.freq); },
     reference::standardized, true, false, true, false},
    {"M_StandardizeW3",
     [](call c) { M_StandardizeW3(c.x, c.rows, c.cols, c.w, c.means, c.sds, c.how.unbiased, c.how.freq); },
     reference::standardized, true, false, true, true},
    {"M_Center", [](call c) { M_Center(c.x, c.rows, c.cols, c.out); }, reference::centred, false, true, true,
     false},
    {"M_CenterW", [](call c) { M_CenterW(c.x, c.rows, c.cols, c.w, c.out); }, reference::centred, true, true,
     true, false},
    {"M_Center2", [](call c) { M_Center2(c.x, c.rows, c.cols); }, reference::centred, false, false, true,
     false},
    {"M_CenterW2", [](call c) { M_CenterW2(c.x, c.rows, c.cols, c.w); }, reference::centred, true, false,
     true, false},
    {"M_Reduce", [](call c) { M_Reduce(c.x, c.rows, c.cols, c.out, c.how.unbiased, c.how.freq); },
     reference::reduced, false, true, true, false},
    {"M_ReduceW", [](call c) { M_ReduceW(c.x, c.rows, c.cols, c.w, c.out, c.how.unbiased, c.how.freq); },
     reference::reduced, true, true, true, false},
    {"M_Reduce2", [](call c) { M_Reduce2(c.x, c.rows, c.cols, c.how.unbiased); }, reference::reduced, false,
     false, false, false},
    {"M_ReduceW2", [](call c) { M_ReduceW2(c.x, c.rows, c.cols, c.w, c.how.unbiased, c.how.freq); },
     reference::reduced, true, false, true, false},
};

constexpr std::array<denominator_flags, 5> allFlags{{{0, 0}, {-1, -1}, {-1, 0}, {1, -1}, {-1, 7}}};

/** What a member makes of a table, with unit weights where it takes none. */
struct outcome {
    doubles cells;
    doubles means;
    doubles sds;
};

outcome resultOf(const member& m, matrix<double> x, doubles weights, denominator_flags how)
{
    matrix<double> w = vectorOf<double>(std::move(weights));
    matrix<double> out(x.nbrows, x.nbcols, 9.0);
    matrix<double> means;
    matrix<double> sds;
    m.run({&x, x.nbrows, x.nbcols, &w, how, &out, &means, &sds});
    return {cellsOf(m.intoResult ? out : x), cellsOf(means), cellsOf(sds)};
}

using change_of_cell = double (*)(double, double, double);

const double none = MISSING_DBL;

} // namespace

TEST(Centering, EachMember)
{
    // Mean 3 and variance 14 / 4, 14 / 3 when unbiased; the second column 1 and 1, or 2.
    const auto table = columnTable(4, {1, 2, 3, 6, 0, none, 2, none});
    for (const member& m : members) {
        SCOPED_TRACE(m.name);
        for (const denominator_flags how : {denominator_flags{0, 0}, denominator_flags{-1, -1}}) {
            const double sd = std::sqrt(how.unbiased == -1 ? 14.0 / 3.0 : 14.0 / 4.0);
            const double second = how.unbiased == -1 ? std::sqrt(2.0) : 1.0;
            doubles expected;
            for (const double x : {1, 2, 3, 6}) {
                expected.push_back(m.change(x, 3, sd));
            }
            expected.insert(expected.end(), {m.change(0, 1, second), none, m.change(2, 1, second), none});
            const auto found = resultOf(m, table, {1, 1, 1, 1}, how);
            EXPECT_EQ(found.cells, expected);
            EXPECT_EQ(found.means, m.returnsStatistics ? (doubles{3, 1}) : doubles{});
            EXPECT_EQ(found.sds, m.returnsStatistics ? (doubles{sd, second}) : doubles{});
        }
    }
}

TEST(Centering, WeightsAndTheirDenominators)
{
    // S 4, m 2 (the row of weight 0 is not counted), mean 1, sum of squares 4.
    const auto table = columnTable(3, {0, 100, 2});
    for (const member& m : members) {
        if (!m.weighted) {
            continue;
        }
        SCOPED_TRACE(m.name);
        struct {
            denominator_flags how;
            double variance;
        } const cases[] = {{{0, -1}, 1}, {{1, -1}, 1}, {{-1, -1}, 4.0 / 3.0}, {{-1, 0}, 2}, {{-1, 1}, 2}};
        for (const auto& expected : cases) {
            const double sd = std::sqrt(expected.variance);
            EXPECT_EQ(resultOf(m, table, {2, 0, 2}, expected.how).cells,
                      (doubles{m.change(0, 1, sd), m.change(100, 1, sd), m.change(2, 1, sd)}));
        }
    }
}

TEST(Centering, WithoutTheSecondFlagItIsTrue)
{
    for (const member& m : members) {
        if (!m.weighted && m.takesFreq) {
            const auto table = columnTable(3, {0, 1, 2});
            EXPECT_EQ(resultOf(m, table, {1, 1, 1}, {-1, 0}).cells,
                      resultOf(m, table, {1, 1, 1}, {-1, -1}).cells)
                << m.name << ": no difference for unit weights";
        }
    }
    // With unit weights S - 1 and S - S/m differ only if no row is kept.
    for (const member& m : members) {
        if (!m.weighted && m.returnsStatistics) {
            EXPECT_TRUE(std::isnan(resultOf(m, columnTable(1, {none}), {1}, {-1, 0}).sds[0]));
            EXPECT_SAME_BITS(resultOf(m, columnTable(1, {none}), {1}, {-1, -1}).sds[0], 0.0);
        }
    }
}

TEST(Centering, AColumnWithoutSpread)
{
    const auto table = columnTable(3, {5, none, 5, 0, 0, 0});
    for (const member& m : members) {
        SCOPED_TRACE(m.name);
        const auto found = resultOf(m, table, {1, 1, 1}, {-1, -1}).cells;
        if (m.change == change_of_cell{reference::standardized}) {
            EXPECT_EQ(found, cellsOf(table)) << "left as it is";
        } else if (m.change == change_of_cell{reference::centred}) {
            EXPECT_EQ(found, (doubles{0, none, 0, 0, 0, 0}));
        } else {
            EXPECT_EQ((doubles{found[0], found[1], found[2]}), (doubles{infinite, none, infinite}));
            EXPECT_TRUE(std::isnan(found[3])) << "0 over 0";
        }
    }
}

TEST(Centering, AColumnWithoutADeviation)
{
    // One cell, unbiased: the denominator is 0 and the deviation missing.
    const auto table = columnTable(2, {8, none, 4, 6});
    for (const member& m : members) {
        SCOPED_TRACE(m.name);
        const auto found = resultOf(m, table, {1, 1}, {-1, -1});
        if (m.change == change_of_cell{reference::standardized}) {
            EXPECT_EQ(found.cells[0], 8) << "left as it is";
            EXPECT_EQ(found.cells[2], -1 / std::sqrt(2.0)) << "and the work goes on";
        } else if (m.change == change_of_cell{reference::reduced}) {
            EXPECT_SAME_BITS(found.cells[0], 8 / MISSING_DBL) << "divided by like any number";
        }
        if (m.returnsStatistics) {
            EXPECT_EQ(found.sds, (doubles{none, std::sqrt(2.0)}));
            EXPECT_EQ(found.means, (doubles{8, 5}));
        }
    }
}

TEST(Centering, NullWeightsAreOnes)
{
    for (const member& m : members) {
        auto x = columnTable(3, {1, 2, 4});
        matrix<double> out(3, 1, 9.0);
        matrix<double> means;
        matrix<double> sds;
        m.run({&x, 3, 1, nullptr, {-1, 0}, &out, &means, &sds});
        EXPECT_EQ(cellsOf(m.intoResult ? out : x),
                  resultOf(m, columnTable(3, {1, 2, 4}), {1, 1, 1}, {-1, 0}).cells)
            << m.name;
    }
}

TEST(Centering, ResultsOfTheirOwnSize)
{
    auto x = columnTable(2, {1, 3, 5, 9});
    matrix<double> empty;
    matrix<double>* out = &empty;
    M_Reduce(&x, 2, 2, out, 0, 0);
    EXPECT_EQ(cellsOf(empty), (doubles{1, 3, 2.5, 4.5})) << "resized";
    matrix<double> other(7, 1, 0.0);
    out = &other;
    auto w = vectorOf<double>({1, 1});
    M_ReduceW(&x, 2, 2, &w, out, 0, 0);
    EXPECT_EQ(cellsOf(other), (doubles{1, 3, 2.5, 4.5}));
    EXPECT_EQ(cellsOf(x), (doubles{1, 3, 5, 9}));
}

TEST(Centering, TheResultMayBeTheTable)
{
    const auto table = columnTable(4, {1, 2, 3, 6, 0, none, 2, none});
    for (const member& m : members) {
        if (m.intoResult) {
            auto x = table;
            matrix<double> w(4, 1, 1.0);
            m.run({&x, 4, 2, &w, {-1, -1}, &x, nullptr, nullptr});
            EXPECT_EQ(cellsOf(x), resultOf(m, table, {1, 1, 1, 1}, {-1, -1}).cells) << m.name;
        }
    }
}

TEST(Centering, CountsBelowOne)
{
    for (const member& m : members) {
        for (const int count : {0, -1}) {
            SCOPED_TRACE(m.name);
            auto x = columnTable(1, {4, 6});
            auto w = vectorOf<double>({1});
            matrix<double> out(1, 2, 9.0);
            matrix<double> means(1, 2, 9.0);
            matrix<double> sds(1, 2, 9.0);
            m.run({&x, 1, count, &w, {0, 0}, &out, &means, &sds});
            m.run({&x, count, 2, &w, {0, 0}, &out, &means, &sds});
            EXPECT_EQ(cellsOf(x), (doubles{4, 6}));
            EXPECT_EQ(cellsOf(out), (doubles{9, 9}));
            EXPECT_EQ(cellsOf(means), m.returnsStatistics ? (doubles{0, 0}) : (doubles{9, 9}));
            EXPECT_EQ(cellsOf(sds), m.returnsStatistics ? (doubles{none, none}) : (doubles{9, 9}));
        }
    }
}

TEST(Centering, ChunksAsColumns)
{
    struct {
        const char* dense;
        void (*run)(matrix<double>** x, call c);
    } const chunked[] = {
        {"M_Standardize2",
         [](matrix<double>** x, call c) { M_Standardize2SPV(x, c.rows, c.cols, c.how.unbiased); }},
        {"M_StandardizeW3",
         [](matrix<double>** x, call c) {
             M_StandardizeW3SPV(x, c.rows, c.cols, c.w, c.means, c.sds, c.how.unbiased, c.how.freq);
         }},
        {"M_CenterW2", [](matrix<double>** x, call c) { M_CenterW2SPV(x, c.rows, c.cols, c.w); }},
    };
    const auto table = columnTable(3, {1, 2, 6, none, 7, 7, 3, 0, none});
    const doubles weights{1, 0.5, 2};
    for (const auto& form : chunked) {
        const member& m = *std::find_if(std::begin(members), std::end(members), [&](const member& each) {
            return each.name == std::string(form.dense);
        });
        for (const denominator_flags how : allFlags) {
            const auto expected = resultOf(m, table, weights, how);
            column_chunks x(table);
            auto w = vectorOf<double>(weights);
            matrix<double> means;
            matrix<double> sds;
            form.run(x.get(), {nullptr, 3, 3, &w, how, nullptr, &means, &sds});
            EXPECT_EQ(x.cells(), expected.cells) << form.dense;
            EXPECT_EQ(cellsOf(means), expected.means);
            EXPECT_EQ(cellsOf(sds), expected.sds);
        }
    }
}

TEST(Centering, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        if (cells.integer(0, 3) == 0) {
            std::fill_n(x.data, x.nbrows, 0.1);
        }
        auto w = nearTable<double>(cells, rows, 1);
        std::generate_n(w.data, w.nbElem, [&] { return cells.weight(); });
        for (const member& m : members) {
            for (denominator_flags how : allFlags) {
                SCOPED_TRACE(m.name);
                matrix<double> actual = twinOf(x);
                matrix<double> expected = twinOf(x);
                matrix<double> out(rows, cols, 3.0);
                matrix<double> plain(rows, cols, 3.0);
                matrix<double> means(cols, 1, 0.0);
                matrix<double> sds(cols, 1, 0.0);
                m.run({&actual, rows, cols, &w, how, &out, &means, &sds});
                how.freq = m.takesFreq ? how.freq : short{-1};
                reference::standardized_statistics found(cols);
                reference::changeByMoments(expected, rows, cols, m.weighted ? &w : nullptr, how, m.change,
                                           m.intoResult ? &plain : nullptr, found);
                expectSame(actual, expected);
                expectSame(out, plain);
                if (m.returnsStatistics) {
                    expectSame(means, found.means);
                    expectSame(sds, found.sds);
                }
            }
        }
    });
}
