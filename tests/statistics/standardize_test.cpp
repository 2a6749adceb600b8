#include "statistics/standardize.h"

#include "reference/standardize.h"
#include "support/column_tables.h"
#include "support/near_tables.h"
#include "support/random_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;
using reference::denominator_flags;
using doubles = std::vector<double>;

namespace
{

constexpr std::array<denominator_flags, 5> allFlags{{{0, 0}, {-1, -1}, {-1, 0}, {1, -1}, {-1, 7}}};

/** What `M_Standardize` makes of a table. */
struct outcome {
    matrix<double> x;
    matrix<double> out;
    matrix<double> means;
    matrix<double> sds;
    matrix<double> vars;
};

outcome standardizedTable(matrix<double> x, denominator_flags how, std::vector<short int> flags = {},
                          doubles weights = {})
{
    outcome found;
    matrix<double> w = vectorOf<double>(weights);
    found.x = std::move(x);
    M_Standardize(&found.x, found.x.nbrows, found.x.nbcols, &found.out, &found.means, &found.sds, &found.vars,
                  flags.empty() ? nullptr : flags.data(), weights.empty() ? nullptr : &w, how.unbiased,
                  how.freq);
    return found;
}

doubles standardizedInPlace(matrix<double> x, denominator_flags how, std::vector<short int> flags = {})
{
    M_Standardize(&x, x.nbrows, x.nbcols, nullptr, nullptr, nullptr, nullptr,
                  flags.empty() ? nullptr : flags.data(), nullptr, how.unbiased, how.freq);
    return cellsOf(x);
}

} // namespace

TEST(Standardize, EachColumnByItsOwnStatistics)
{
    const auto found = standardizedTable(columnTable(4, {1, 2, 3, 6, 0, 0, 4, 4}), {0, 0});
    EXPECT_EQ(cellsOf(found.means), (doubles{3, 2}));
    EXPECT_EQ(cellsOf(found.vars), (doubles{3.5, 4}));
    EXPECT_EQ(cellsOf(found.sds), (doubles{std::sqrt(3.5), 2}));
    const double sd = std::sqrt(3.5);
    EXPECT_EQ(cellsOf(found.out), (doubles{-2 / sd, -1 / sd, 0, 3 / sd, -1, -1, 1, 1}));
    EXPECT_EQ(cellsOf(found.x), (doubles{1, 2, 3, 6, 0, 0, 4, 4})) << "only read";
    EXPECT_EQ(found.out.nbcols, 2);
}

TEST(Standardize, DenominatorsOfTheVariance)
{
    struct {
        denominator_flags how;
        double variance;
    } const cases[] = {{{0, 0}, 3}, {{1, -1}, 3}, {{-1, -1}, 4}, {{-1, 0}, 6}, {{-1, 1}, 6}};
    for (const auto& expected : cases) {
        // S 4, m 2, sum of squares 12.
        const auto found = standardizedTable(columnTable(2, {0, 4}), expected.how, {}, {1, 3});
        EXPECT_EQ(cellsOf(found.vars), doubles{expected.variance}) << expected.how.unbiased;
        EXPECT_EQ(cellsOf(found.means), doubles{3});
    }
}

TEST(Standardize, ARowOfWeightZeroIsCounted)
{
    const auto found = standardizedTable(columnTable(4, {0, 100, 2, 100}), {-1, 0}, {}, {2, 0, 2, 0});
    EXPECT_EQ(cellsOf(found.vars), doubles{4.0 / 3.0}) << "S 4, m 4";
    EXPECT_EQ(cellsOf(found.means), doubles{1});
    EXPECT_EQ(found.out.data[1], 99 / std::sqrt(4.0 / 3.0)) << "and changed";
}

TEST(Standardize, WhatIsNotKeptIsMissingInAResultAndStaysInPlace)
{
    const auto table = columnTable(5, {1, MISSING_DBL, 50, 3, 70});
    const std::vector<short int> flags{0, 0, -1, 0, 3};
    EXPECT_EQ(cellsOf(standardizedTable(table, {0, 0}, flags).out),
              (doubles{-1, MISSING_DBL, MISSING_DBL, 1, MISSING_DBL}));
    EXPECT_EQ(standardizedInPlace(table, {0, 0}, flags), (doubles{-1, MISSING_DBL, 50, 1, 70}));
}

TEST(Standardize, AConstantColumnBecomesZeros)
{
    const auto found = standardizedTable(columnTable(3, {5, 5, 5, 1, 2, 3}), {-1, -1});
    EXPECT_EQ(cellsOf(found.out), (doubles{0, 0, 0, -1, 0, 1}));
    EXPECT_EQ(cellsOf(found.sds), (doubles{0, 1}));
    EXPECT_EQ(cellsOf(found.vars), (doubles{0, 1}));
    EXPECT_EQ(cellsOf(found.means), (doubles{5, 2}));
}

TEST(Standardize, AColumnWithoutADenominatorEndsTheWork)
{
    // The second column has one cell, and so nothing to divide by.
    const auto table = columnTable(3, {1, 2, 3, MISSING_DBL, 8, MISSING_DBL, 4, 5, 6});
    for (const denominator_flags how : {denominator_flags{-1, -1}, denominator_flags{-1, 0}}) {
        const auto found = standardizedTable(table, how);
        EXPECT_EQ(cellsOf(found.out), (doubles{-1, 0, 1, 0, 0, 0, 0, 0, 0}));
        EXPECT_EQ(cellsOf(found.means), (doubles{2, MISSING_DBL, 0}));
        EXPECT_EQ(cellsOf(found.sds), (doubles{1, MISSING_DBL, 0}));
        EXPECT_EQ(cellsOf(found.vars), (doubles{1, MISSING_DBL, 0}));
        EXPECT_EQ(standardizedInPlace(table, how), (doubles{-1, 0, 1, MISSING_DBL, 8, MISSING_DBL, 4, 5, 6}));
    }
    const auto biased = standardizedTable(table, {0, -1});
    EXPECT_EQ(biased.out.data[4], 0.0) << "a constant column has a denominator";
    EXPECT_EQ(biased.out.data[7], 0.0);
    EXPECT_NE(biased.out.data[6], 0.0);
}

TEST(Standardize, ASingleRow)
{
    const auto found = standardizedTable(columnTable(1, {4, 5, 6}), {-1, -1});
    EXPECT_EQ(cellsOf(found.means), (doubles{MISSING_DBL, 0, 0}));
    EXPECT_EQ(cellsOf(found.sds), (doubles{MISSING_DBL, 0, 0}));
    EXPECT_EQ(cellsOf(found.out), (doubles{0, 0, 0}));
    EXPECT_EQ(standardizedInPlace(columnTable(1, {4, 5, 6}), {-1, -1}), (doubles{4, 5, 6}));
}

TEST(Standardize, OnlyAnExactZeroEndsTheWork)
{
    const auto negative = standardizedTable(columnTable(2, {0, 2}), {-1, -1}, {}, {0.25, 0.25});
    EXPECT_EQ(cellsOf(negative.vars), doubles{-1}) << "0.5 over -0.5";
    EXPECT_TRUE(std::isnan(negative.sds.data[0]));
    EXPECT_TRUE(std::isnan(negative.out.data[0]));
    EXPECT_EQ(cellsOf(negative.means), doubles{1});
    const auto nothing = standardizedTable(columnTable(2, {MISSING_DBL, MISSING_DBL, 1, 3}), {-1, 0});
    EXPECT_TRUE(std::isnan(nothing.vars.data[0])) << "0 over 0 - 0/0";
    EXPECT_EQ(nothing.vars.data[1], 2);
    const auto minusOne = standardizedTable(columnTable(2, {MISSING_DBL, MISSING_DBL, 1, 3}), {-1, -1});
    EXPECT_SAME_BITS(minusOne.vars.data[0], -0.0) << "0 over -1";
    EXPECT_SAME_BITS(minusOne.sds.data[0], -0.0);
    EXPECT_EQ(minusOne.vars.data[1], 2);
}

TEST(Standardize, TheResultMayBeTheTable)
{
    auto table = columnTable(3, {1, MISSING_DBL, 3, 7, 8, MISSING_DBL});
    std::vector<short int> flags{0, 0, 0};
    M_Standardize(&table, 3, 2, &table, nullptr, nullptr, nullptr, flags.data(), nullptr, 0, 0);
    EXPECT_EQ(cellsOf(table), (doubles{-1, MISSING_DBL, 1, -1, 1, MISSING_DBL}));
    auto ends = columnTable(2, {1, MISSING_DBL, 7, 8});
    M_Standardize(&ends, 2, 2, &ends, nullptr, nullptr, nullptr, nullptr, nullptr, -1, -1);
    EXPECT_EQ(cellsOf(ends), (doubles{0, 0, 0, 0})) << "zeros from where the work ends";
}

TEST(Standardize, CountsBelowOne)
{
    auto table = columnTable(2, {1, 2});
    for (const int rows : {0, -1}) {
        matrix<double> out(2, 1, 9.0);
        matrix<double> means(1, 1, 9.0);
        M_Standardize(&table, rows, 1, &out, &means, nullptr, nullptr, nullptr, nullptr, 0, 0);
        EXPECT_EQ(cellsOf(means), doubles{MISSING_DBL}) << "no row, so no denominator";
        EXPECT_EQ(cellsOf(out), (doubles{9, 9}));
        M_Standardize(&table, 2, rows, &out, &means, nullptr, nullptr, nullptr, nullptr, 0, 0);
        EXPECT_EQ(cellsOf(out), (doubles{9, 9}));
        EXPECT_EQ(cellsOf(means), doubles{MISSING_DBL}) << "as it was";
    }
    V_Standardize2(&table, 0, nullptr, nullptr, 0);
    EXPECT_EQ(cellsOf(table), (doubles{1, 2}));
}

TEST(Standardize, OfAVectorTheDenominatorIsThatOfMeanWeights)
{
    auto x = vectorOf<double>({0, 4, MISSING_DBL, 9});
    auto w = vectorOf<double>({1, 3, 5, 7});
    std::vector<short int> flags{0, 0, 0, -1};
    V_Standardize2(&x, 4, flags.data(), &w, -1);
    const double sd = std::sqrt(6.0);
    EXPECT_EQ(cellsOf(x), (doubles{-3 / sd, 1 / sd, MISSING_DBL, 9}));
    matrix<double> row(1, 3, 0.0);
    row.data[1] = 3;
    row.data[2] = 6;
    V_Standardize2(&row, 3, nullptr, nullptr, -1);
    EXPECT_EQ(cellsOf(row), (doubles{-1, 0, 1})) << "by linear index";
}

TEST(StandardizeByGivenStatistics, DeviationsOrRootsOfVariances)
{
    auto means = vectorOf<double>({1, 2});
    auto sds = vectorOf<double>({2, 0});
    auto vars = vectorOf<double>({16, 4});
    matrix<double> out;
    auto x = columnTable(2, {3, MISSING_DBL, 5, 6});
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&x, 2, 2, &means, &sds, &out, &vars, nullptr), 0);
    EXPECT_EQ(cellsOf(out), (doubles{1, MISSING_DBL, 3, 4})) << "a deviation of 0 is not divided by";
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&x, 2, 2, &means, nullptr, &out, &vars, nullptr), 0);
    EXPECT_EQ(cellsOf(out), (doubles{0.5, MISSING_DBL, 1.5, 2}));
    std::vector<short int> flags{0, 1};
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&x, 2, 2, &means, &sds, &out, nullptr, flags.data()), 0);
    EXPECT_EQ(cellsOf(out), (doubles{1, MISSING_DBL, 3, MISSING_DBL}));
    EXPECT_EQ(M_StandardizeKnownMeansStDev(&x, 2, 2, &means, &sds, nullptr, nullptr, flags.data()), 0);
    EXPECT_EQ(cellsOf(x), (doubles{1, MISSING_DBL, 3, 6}));
}

TEST(StandardizeByGivenStatistics, WithoutAMeanOrADeviationTheCellsAreMissing)
{
    auto means = vectorOf<double>({MISSING_DBL, 0, 0, notANumber});
    auto sds = vectorOf<double>({1, MISSING_DBL, -2, 1});
    auto vars = vectorOf<double>({1, MISSING_DBL, -4, 1});
    matrix<double> out;
    auto x = columnTable(1, {3, 4, 5, 6});
    M_StandardizeKnownMeansStDev(&x, 1, 4, &means, &sds, &out, nullptr, nullptr);
    EXPECT_EQ((doubles{out.data[0], out.data[1], out.data[2]}), (doubles{MISSING_DBL, MISSING_DBL, -2.5}));
    EXPECT_TRUE(std::isnan(out.data[3]));
    M_StandardizeKnownMeansStDev(&x, 1, 4, &means, nullptr, &out, &vars, nullptr);
    EXPECT_EQ((doubles{out.data[0], out.data[1], out.data[2]}),
              (doubles{MISSING_DBL, MISSING_DBL, MISSING_DBL}));
}

TEST(StandardizeByGivenStatistics, AppliedInPlaceAColumnWithoutSpreadIsMissing)
{
    auto x = columnTable(2, {3, MISSING_DBL, 4, 5, 6, 7, 8, 9});
    auto means = vectorOf<double>({1, 1, 1, 1});
    auto sds = vectorOf<double>({2, 0, -1, notANumber});
    M_StandardizeApply2(&x, 2, 4, &means, &sds);
    const double none = MISSING_DBL;
    EXPECT_EQ(cellsOf(x), (doubles{1, none, none, none, none, none, none, none}));
    auto left = columnTable(1, {3});
    M_StandardizeApply2(&left, 0, 1, &means, &sds);
    M_StandardizeApply2(&left, 1, -1, &means, &sds);
    EXPECT_EQ(cellsOf(left), doubles{3});
}

TEST(Standardize, EqualToThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        const auto flags = cells.flags(rows);
        const short int* const given = cells.integer(0, 2) == 0 ? nullptr : flags.data();
        auto w = nearTable<double>(cells, rows, 1);
        std::generate_n(w.data, w.nbElem, [&] { return cells.weight(); });
        matrix<double>* const weights = cells.integer(0, 2) == 0 ? nullptr : &w;
        const bool isConstant = cells.integer(0, 3) == 0;
        if (isConstant) {
            std::fill_n(x.data, std::min(x.nbElem, static_cast<std::uint64_t>(x.nbrows)), 0.1);
        }
        for (const denominator_flags how : allFlags) {
            for (const bool inPlace : {true, false}) {
                matrix<double> actual = twinOf(x);
                matrix<double> expected = twinOf(x);
                matrix<double> out(rows, cols, 3.0);
                matrix<double> plain(rows, cols, 3.0);
                matrix<double> means(cols, 1, 7.0);
                matrix<double> sds(cols, 1, 7.0);
                matrix<double> vars(cols, 1, 7.0);
                reference::standardized_statistics found(cols);
                M_Standardize(&actual, rows, cols, inPlace ? nullptr : &out, &means, &sds, &vars,
                              const_cast<short int*>(given), weights, how.unbiased, how.freq);
                reference::standardize(expected, rows, cols, inPlace ? nullptr : &plain, found, given,
                                       weights, how);
                expectSame(actual, expected);
                expectSame(out, plain);
                expectSame(means, found.means);
                expectSame(sds, found.sds);
                expectSame(vars, found.vars);
            }
        }
    });
}
