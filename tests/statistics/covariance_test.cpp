#include "statistics/covariance.h"

#include "reference/covariance.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using korvel::reference::covariance_flags;
using korvel::reference::covariance_table;

namespace
{

/** A table by columns, with flags, weights and room for all results. */
struct sample {
    matrix<double> x;
    std::vector<short int> flags;
    matrix<double> w;
    matrix<double> out{x.nbcols, x.nbcols, 5.0};
    matrix<double> means{x.nbcols, 1, 5.0};
    matrix<double> sds{x.nbcols, 1, 5.0};
    matrix<double> vars{x.nbcols, 1, 5.0};

    void covCorr(const covariance_flags& how)
    {
        auto* from = &x;
        auto* to = &out;
        EXPECT_EQ(M_CovCorr(from, x.nbrows, x.nbcols, to, how.corr, flags.data(), &w, how.how.unbiased,
                            how.how.freq, how.undefinedIsZero),
                  0);
    }
    void withStatistics(const covariance_flags& how)
    {
        EXPECT_EQ(M_CovCorrAndMeanStDevVar(&x, x.nbrows, x.nbcols, &out, &means, &sds, &vars, how.corr,
                                           flags.data(), &w, how.how.unbiased, how.how.freq, how.center,
                                           how.reduce, how.undefinedIsZero),
                  0);
    }
    double cell(int i, int j) const { return out.getElement(i, j); }
};

sample tableOf(const std::vector<std::vector<double>>& columns)
{
    const int rows = static_cast<int>(columns.front().size());
    sample made{matrix<double>(rows, static_cast<int>(columns.size()), 0.0),
                std::vector<short int>(columns.front().size()), matrix<double>(rows, 1, 1.0)};
    double* place = made.x.data;
    for (const auto& column : columns) {
        place = std::copy(column.begin(), column.end(), place);
    }
    return made;
}

constexpr double gone = MISSING_DBL;

} // namespace

TEST(Covariance, PairsHaveTheRowsInWhichBothArePresent)
{
    sample s = tableOf({{1, 2, 3, 10, gone}, {2, 4, 6, gone, 8}});
    s.covCorr({0, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 0), 50.0 / 3.0)) << "over four rows";
    EXPECT_TRUE(sameBits(s.cell(1, 1), 20.0 / 3.0)) << "over four other rows";
    EXPECT_TRUE(sameBits(s.cell(0, 1), 2.0)) << "over the three in common";
    EXPECT_TRUE(sameBits(s.cell(1, 0), 2.0));
    s.covCorr({1, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), 2.0 / std::sqrt(50.0 / 3.0 * (20.0 / 3.0))));
    EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0));
}

TEST(Covariance, ACorrelationMayExceedOne)
{
    // The common rows spread far more than the columns as a whole.
    sample s =
        tableOf({{-9, 9, 0, 0, 0, 0, gone, gone, gone, gone}, {-9, 9, gone, gone, gone, gone, 0, 0, 0, 0}});
    s.covCorr({-1, {0, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), 81.0 / 27.0));
}

TEST(Covariance, NoCommonRow)
{
    for (const short int corr : std::array<short int, 2>{0, -1}) {
        sample s = tableOf({{1, 3, gone, gone}, {gone, gone, 2, 6}});
        s.covCorr({corr, {0, 0}, 0, 0, 0});
        EXPECT_TRUE(sameBits(s.cell(0, 1), MISSING_DBL));
        EXPECT_TRUE(sameBits(s.cell(1, 0), MISSING_DBL));
        EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0)) << "the diagonal stands";
        EXPECT_TRUE(sameBits(s.cell(1, 1), corr != 0 ? 1.0 : 4.0));
        s.covCorr({corr, {0, 0}, 0, 0, 1});
        EXPECT_TRUE(sameBits(s.cell(0, 1), 0.0));
        EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0));
        s.withStatistics({corr, {0, 0}, 0, 0, 0});
        EXPECT_TRUE(sameBits(s.cell(0, 1), MISSING_DBL));
    }
}

TEST(Covariance, AColumnWithoutRows)
{
    for (const short int corr : std::array<short int, 2>{0, -1}) {
        sample s = tableOf({{1, 3}, {gone, gone}, {gone, gone}});
        s.withStatistics({corr, {0, 0}, 0, 0, 0});
        for (const auto& [i, j] : std::array<std::array<int, 2>, 4>{{{0, 1}, {1, 0}, {1, 1}, {1, 2}}}) {
            EXPECT_TRUE(sameBits(s.cell(i, j), MISSING_DBL)) << i << ", " << j;
        }
        EXPECT_TRUE(sameBits(s.means.data[1], MISSING_DBL));
        EXPECT_TRUE(sameBits(s.vars.data[1], MISSING_DBL));
        EXPECT_TRUE(sameBits(s.sds.data[1], MISSING_DBL));
        s.covCorr({corr, {0, 0}, 0, 0, -1});
        EXPECT_TRUE(sameBits(s.cell(0, 1), 0.0));
        EXPECT_TRUE(sameBits(s.cell(1, 1), 0.0));
    }
}

TEST(Covariance, AConstantColumn)
{
    struct {
        covariance_flags how;
        double cell;
    } const cases[] = {
        {{-1, {0, 0}, 0, 0, 0}, MISSING_DBL}, {{-1, {0, 0}, 0, 0, 1}, 0.0}, {{0, {0, 0}, 0, 0, 0}, 0.0}};
    for (const auto& expected : cases) {
        for (const bool withStatistics : {false, true}) {
            sample s = tableOf({{4, 4, 4}, {1, 2, 3}});
            withStatistics ? s.withStatistics(expected.how) : s.covCorr(expected.how);
            EXPECT_TRUE(sameBits(s.cell(0, 0), expected.cell)) << "the diagonal too";
            EXPECT_TRUE(sameBits(s.cell(0, 1), expected.cell));
            EXPECT_TRUE(sameBits(s.cell(1, 0), expected.cell));
            EXPECT_TRUE(sameBits(s.cell(1, 1), expected.how.corr != 0 ? 1.0 : 2.0 / 3.0));
        }
    }
}

TEST(Covariance, ASingleRow)
{
    sample s = tableOf({{4}, {5}});
    s.covCorr({0, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 0), notANumber)) << "0 over 0";
    EXPECT_TRUE(sameBits(s.cell(0, 1), notANumber));
    s.covCorr({0, {-1, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), notANumber));
    s.covCorr({-1, {-1, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 0), MISSING_DBL)) << "a NaN is not greater than 0";
    s.covCorr({0, {0, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), 0.0));
}

TEST(Covariance, Denominators)
{
    struct {
        short int unbiased;
        short int freq;
        double covariance;
    } const cases[] = {{0, 0, 2.0},         {0, -1, 2.0}, {1, -1, 2.0},
                       {-1, -1, 8.0 / 3.0}, {-1, 0, 4.0}, {-1, 1, 4.0}};
    for (const auto& expected : cases) {
        sample s = tableOf({{0, 2}, {0, 4}});
        s.w = vectorOf<double>({2, 2}); // sum of products 8, S 4, two rows
        s.covCorr({0, {expected.unbiased, expected.freq}, 0, 0, 0});
        EXPECT_TRUE(sameBits(s.cell(0, 1), expected.covariance));
    }
}

TEST(Covariance, AWeightOfZeroIsCounted)
{
    sample s = tableOf({{0, 100, 2, 100}, {0, 7, 4, 100}});
    s.w = vectorOf<double>({2, 0, 2, 0}); // S 4, four rows
    s.covCorr({0, {-1, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), 8.0 / 3.0)) << "4 - 4/4";
    EXPECT_TRUE(sameBits(s.cell(0, 0), 4.0 / 3.0)) << "where the deviations of columns divide by 2";
    sample weightless = tableOf({{1, 2}, {3, 4}});
    weightless.w = vectorOf<double>({0, 0});
    weightless.covCorr({0, {0, 0}, 0, 0, 0});
    EXPECT_TRUE(sameBits(weightless.cell(0, 1), notANumber)) << "0 over 0 and not undefined";
}

TEST(Covariance, FlaggedRowsAreLeftOut)
{
    sample s = tableOf({{1, 2, 3, 50}, {2, 4, 6, 9}});
    s.flags = {0, 0, 0, 7};
    s.covCorr({0, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), 2.0));
    auto* from = &s.x;
    auto* to = &s.out;
    M_CovCorr(from, 3, 2, to, 0, nullptr, nullptr, -1, -1, 0);
    EXPECT_TRUE(sameBits(s.cell(0, 1), 2.0)) << "no flags, and weights of 1";
}

TEST(Covariance, OnlyMinusOneAsksForCorrelationsWithStatistics)
{
    for (const short int corr : std::array<short int, 3>{1, 7, -1}) {
        sample s = tableOf({{1, 2, 3}, {2, 4, 6}});
        s.covCorr({corr, {0, 0}, 0, 0, 0});
        EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0)) << corr;
        s.withStatistics({corr, {0, 0}, 0, 0, 0});
        EXPECT_TRUE(sameBits(s.cell(0, 0), corr == -1 ? 1.0 : 2.0 / 3.0)) << corr;
    }
}

TEST(Covariance, AProductOfVariancesBelowZero)
{
    // Sum of squares 0.5 over S - 1 = -0.5 for the first column; the second has rows of its own.
    sample s = tableOf({{0, 2, gone, gone}, {0, 2, 4, 8}});
    s.w = vectorOf<double>({0.25, 0.25, 1, 1});
    s.covCorr({-1, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), notANumber)) << "the root of a negative product";
    EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0)) << "the square of a negative variance";
    s.withStatistics({-1, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.cell(0, 1), MISSING_DBL));
    EXPECT_TRUE(sameBits(s.cell(0, 0), 1.0));
    EXPECT_TRUE(sameBits(s.sds.data[0], -1.0)) << "a variance that has no root stays";
}

TEST(Covariance, StatisticsOfTheColumns)
{
    sample s = tableOf({{1, 2, 3, 6}, {0, gone, 2, gone}, {5, 5, 5, 5}});
    s.withStatistics({0, {-1, -1}, 0, 0, 0});
    EXPECT_TRUE(sameBits(s.means.data[0], 3.0));
    EXPECT_TRUE(sameBits(s.vars.data[0], 14.0 / 3.0));
    EXPECT_TRUE(sameBits(s.sds.data[0], std::sqrt(14.0 / 3.0)));
    EXPECT_TRUE(sameBits(s.means.data[1], 1.0));
    EXPECT_TRUE(sameBits(s.vars.data[1], 2.0));
    EXPECT_TRUE(sameBits(s.sds.data[2], 0.0));
    EXPECT_TRUE(sameBits(s.x.data[0], 1.0)) << "the table stays";
}

TEST(Covariance, CentringAndReducingInPlace)
{
    const double sd = std::sqrt(2.0);
    struct {
        short int center;
        short int reduce;
        std::vector<double> spread;
        std::vector<double> constant;
    } const cases[] = {
        {0, 0, {0, 2, gone, 9}, {5, 5, 5, 5}},
        {1, 1, {0, 2, gone, 9}, {5, 5, 5, 5}},
        {-1, 0, {-1, 1, gone, 9}, {0, 0, 0, 5}},
        {0, -1, {0, 2 / sd, gone, 9}, {5, 5, 5, 5}},
        {-1, -1, {-1 / sd, 1 / sd, gone, 9}, {5, 5, 5, 5}},
    };
    for (const auto& expected : cases) {
        sample s = tableOf({{0, 2, gone, 9}, {5, 5, 5, 5}});
        s.flags = {0, 0, 0, 1};
        s.withStatistics({0, {-1, -1}, expected.center, expected.reduce, 0});
        for (int r = 0; r < 4; ++r) {
            const auto place = static_cast<std::size_t>(r);
            EXPECT_TRUE(sameBits(s.x.getElement(r, 0), expected.spread[place])) << r;
            EXPECT_TRUE(sameBits(s.x.getElement(r, 1), expected.constant[place])) << r;
        }
    }
}

TEST(Covariance, ACentredCellOfWeightZero)
{
    sample s = tableOf({{0, 2, 7}});
    s.w = vectorOf<double>({1, 1, 0});
    s.withStatistics({0, {0, 0}, -1, 0, 0});
    EXPECT_TRUE(sameBits(s.x.data[2], 6.0));
}

TEST(Covariance, ResultsBehindReferencesAreResized)
{
    sample s = tableOf({{1, 2, 3}, {2, 4, 6}});
    matrix<double> out;
    matrix<double> means;
    matrix<double> sds;
    matrix<double> vars;
    auto* from = &s.x;
    auto* toOut = &out;
    auto* toMeans = &means;
    auto* toSds = &sds;
    auto* toVars = &vars;
    EXPECT_EQ(M_CovCorrVAndMeanStDevVar(from, 3, 2, toOut, toMeans, toSds, toVars, 0, nullptr, nullptr, 0, 0,
                                        0, 0, 0),
              0);
    EXPECT_EQ(out.nbrows, 2);
    EXPECT_EQ(out.nbcols, 2);
    EXPECT_TRUE(sameBits(out.getElement(1, 0), 4.0 / 3.0));
    EXPECT_EQ(means.nbrows, 2);
    EXPECT_TRUE(sameBits(means.data[1], 4.0));
    EXPECT_TRUE(sameBits(vars.data[0], 2.0 / 3.0));
    EXPECT_TRUE(sameBits(sds.data[0], std::sqrt(2.0 / 3.0)));
    M_CovCorr(from, 3, 0, toOut, 0, nullptr, nullptr, 0, 0, 0);
    EXPECT_EQ(out.nbrows, 0);
}

TEST(Covariance, OfALabelledTableIsThatOfATable)
{
    sample t = tableOf({{1, 2, gone, 7}, {2, 1, 5, 3}, {0, -4, 1, 1}});
    t.flags[3] = -1;
    cST_MVect<double> x(4, 3);
    cST_MVect<double> out(3, 3);
    for (std::size_t j = 0; j < 3; ++j) {
        std::copy_n(t.x.data + 4 * j, 4, x.Vectors[j].Vect.data);
    }
    for (const short int corr : {short{0}, short{1}}) {
        covariance_flags how;
        how.corr = corr;
        t.covCorr(how);
        EXPECT_EQ(M_CovCorr_ST(x, 4, 3, out, corr, t.flags.data(), &t.w, how.how.unbiased, how.how.freq,
                               how.undefinedIsZero),
                  0);
        for (int j = 0; j < 3; ++j) {
            for (int i = 0; i < 3; ++i) {
                EXPECT_SAME_BITS(out.Vectors[static_cast<std::size_t>(j)].Vect.data[i], t.cell(i, j));
            }
        }
    }
    EXPECT_NE(t.cell(0, 1), 0.0);
}
