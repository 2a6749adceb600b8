#include "statistics/column_deviations.h"

#include "reference/column_moments.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using korvel::reference::denominator_flags;
using korvel::reference::moments_of_column;

namespace
{

constexpr std::array<denominator_flags, 5> allFlags{{{0, 0}, {-1, -1}, {-1, 0}, {1, -1}, {-1, 7}}};

/** A table with its flags and weights, and what a routine makes of it. */
struct sample {
    matrix<double> x;
    std::vector<short int> flags;
    matrix<double> w;
    matrix<double> means{x.nbcols, 1, 5.0};
    matrix<double> sds{x.nbcols, 1, 5.0};
    matrix<double> vars{x.nbcols, 1, 5.0};

    void meanStDev(denominator_flags how, short int flag)
    {
        M_MeanStDev(&x, x.nbrows, x.nbcols, &means, &sds, flags.data(), &w, how.unbiased, how.freq, flag);
    }
    void meanStDevVar(denominator_flags how)
    {
        M_MeanStDevVar(&x, x.nbrows, x.nbcols, &means, &sds, &vars, flags.data(), &w, how.unbiased, how.freq);
    }
};

sample columnOf(std::vector<double> cells)
{
    const auto n = cells.size();
    return {vectorOf<double>(std::move(cells)), std::vector<short int>(n),
            vectorOf<double>(std::vector<double>(n, 1.0))};
}

sample columnOf(std::vector<double> cells, std::vector<double> weights)
{
    const auto n = cells.size();
    return {vectorOf<double>(std::move(cells)), std::vector<short int>(n),
            vectorOf<double>(std::move(weights))};
}

} // namespace

TEST(ColumnDeviations, EachColumnHasItsOwnRows)
{
    sample s{matrix<double>(4, 2, 0.0), {0, 0, 0, 0}, matrix<double>(4, 1, 1.0)};
    const std::array cells{1.0, 2.0, 3.0, 6.0, 0.0, MISSING_DBL, 2.0, MISSING_DBL};
    std::copy(cells.begin(), cells.end(), s.x.data);
    s.meanStDevVar({-1, -1});
    EXPECT_SAME_BITS(s.means.data[0], 3.0);
    EXPECT_SAME_BITS(s.means.data[1], 1.0);
    EXPECT_SAME_BITS(s.vars.data[0], 14.0 / 3.0);
    EXPECT_SAME_BITS(s.vars.data[1], 2.0);
    EXPECT_SAME_BITS(s.sds.data[0], std::sqrt(14.0 / 3.0));
    EXPECT_SAME_BITS(s.sds.data[1], std::sqrt(2.0));
    EXPECT_SAME_BITS(s.vars.oobValue, 2.0) << "stored through the checked access";
}

TEST(ColumnDeviations, TheLastFlagChoosesTheRows)
{
    struct {
        short int flag;
        double mean;
        double sd;
    } const cases[] = {{0, 1.5, 0.5},
                       {-1, 3.0, std::sqrt(14.0 / 4.0)},
                       {1, 0.0, MISSING_DBL},
                       {7, 0.0, MISSING_DBL},
                       {-2, 0.0, MISSING_DBL}};
    for (const auto& expected : cases) {
        sample s = columnOf({1, 2, 3, 6});
        s.flags = {0, 0, -1, 3};
        s.meanStDev({0, 0}, expected.flag);
        EXPECT_SAME_BITS(s.means.data[0], expected.mean) << expected.flag;
        EXPECT_SAME_BITS(s.sds.data[0], expected.sd) << expected.flag;
    }
    sample s = columnOf({1, 2, 3, 6});
    M_MeanStDev(&s.x, 4, 1, &s.means, &s.sds, nullptr, &s.w, 0, 0, -1);
    EXPECT_SAME_BITS(s.means.data[0], 3.0) << "the flags are not read";
    M_MeanStDev(&s.x, 2, 1, &s.means, &s.sds, nullptr, &s.w, 0, 0, 0);
    EXPECT_SAME_BITS(s.means.data[0], 1.5) << "none is set";
}

TEST(ColumnDeviations, AWeightOfZeroIsNotCounted)
{
    sample s = columnOf({0, 100, 2, 100}, {2, 0, 2, -0.0}); // S 4, m 2
    s.meanStDevVar({-1, 0});
    EXPECT_SAME_BITS(s.means.data[0], 1.0);
    EXPECT_SAME_BITS(s.vars.data[0], 4.0 / 2.0) << "not 4/3, as the variance of a vector";
    s.meanStDev({-1, 0}, -1);
    EXPECT_SAME_BITS(s.sds.data[0], std::sqrt(2.0));
}

TEST(ColumnDeviations, Denominators)
{
    struct {
        denominator_flags how;
        double variance;
    } const cases[] = {{{0, 0}, 1.0},         {{0, -1}, 1.0}, {{1, -1}, 1.0},
                       {{-1, -1}, 4.0 / 3.0}, {{-1, 0}, 2.0}, {{-1, 1}, 2.0}};
    for (const auto& expected : cases) {
        sample s = columnOf({0, 2}, {2, 2});
        s.meanStDevVar(expected.how);
        EXPECT_SAME_BITS(s.vars.data[0], expected.variance);
        EXPECT_SAME_BITS(s.sds.data[0], std::sqrt(expected.variance));
    }
}

TEST(ColumnDeviations, NothingKept)
{
    struct {
        denominator_flags how;
        double variance;
        double deviation;
    } const cases[] = {
        {{0, 0}, MISSING_DBL, MISSING_DBL}, {{-1, -1}, -0.0, 0.0}, {{-1, 0}, notANumber, notANumber}};
    for (const auto& expected : cases) {
        sample flagged = columnOf({1, 2});
        flagged.flags = {-1, 1};
        sample missing = columnOf({MISSING_DBL, MISSING_DBL});
        sample weightless = columnOf({1, 2}, {0, 0});
        for (sample* s : {&flagged, &missing, &weightless}) {
            s->meanStDevVar(expected.how);
            EXPECT_SAME_BITS(s->means.data[0], 0.0);
            EXPECT_SAME_BITS(s->vars.data[0], expected.variance);
            EXPECT_SAME_BITS(s->sds.data[0], expected.deviation);
        }
    }
}

TEST(ColumnDeviations, NegativeVariancesHaveNoDeviation)
{
    sample s = columnOf({0, 2}, {0.25, 0.25}); // sum of squares 0.5, S - 1 = -0.5
    s.meanStDevVar({-1, -1});
    EXPECT_SAME_BITS(s.vars.data[0], -1.0);
    EXPECT_SAME_BITS(s.sds.data[0], MISSING_DBL);
    sample one = columnOf({5});
    one.meanStDevVar({-1, -1});
    EXPECT_SAME_BITS(one.means.data[0], 5.0);
    EXPECT_SAME_BITS(one.vars.data[0], MISSING_DBL);
    EXPECT_SAME_BITS(one.sds.data[0], MISSING_DBL);
    sample constant = columnOf({5, 5, 5});
    constant.meanStDevVar({-1, -1});
    EXPECT_SAME_BITS(constant.sds.data[0], 0.0);
}

TEST(ColumnDeviations, OnlyTheSentinelIsMissing)
{
    for (const double odd : {notANumber, belowSentinel, infinite, -infinite}) {
        sample s = columnOf({1, odd});
        s.meanStDev({0, 0}, 0);
        EXPECT_FALSE(std::isfinite(s.sds.data[0])) << odd;
    }
    sample s = columnOf({1, 2}, {MISSING_DBL, 1});
    s.meanStDev({0, 0}, 0);
    EXPECT_NE(s.means.data[0], 2.0) << "a missing weight is a number";
}

TEST(ColumnDeviations, ByRow)
{
    sample s{matrix<double>(2, 3, 0.0), {}, vectorOf<double>({2, 0, 2})};
    const std::array cells{0.0, 4.0, 100.0, 100.0, 2.0, MISSING_DBL};
    std::copy(cells.begin(), cells.end(), s.x.data);
    matrix<double> means;
    matrix<double> sds;
    auto* toMeans = &means;
    auto* toSds = &sds;
    M_MeanStDevByRow(&s.x, 2, 3, toMeans, toSds, &s.w, -1, 0);
    ASSERT_EQ(means.nbrows, 2);
    ASSERT_EQ(sds.nbrows, 2);
    EXPECT_SAME_BITS(means.data[0], 1.0);
    EXPECT_SAME_BITS(sds.data[0], std::sqrt(2.0));
    EXPECT_SAME_BITS(means.data[1], 4.0);
    EXPECT_SAME_BITS(sds.data[1], MISSING_DBL) << "2 - 2/1";
}

TEST(ColumnDeviations, AllCellsAsOneSample)
{
    matrix<double> x(2, 2, 0.0);
    const std::array cells{0.0, 2.0, MISSING_DBL, 5.0};
    std::copy(cells.begin(), cells.end(), x.data);
    auto w = vectorOf<double>({1, 2});
    double mean = 7.0;
    double sd = 7.0;
    double var = 7.0;
    M_MeanStDevVarOneInMat(&x, 2, 2, &mean, &sd, &var, &w, 0, 0); // 0, 2, 2, 5, 5 has the mean 14/5
    EXPECT_DOUBLE_EQ(mean, 2.8);
    EXPECT_DOUBLE_EQ(var, (2.8 * 2.8 + 2 * 0.8 * 0.8 + 2 * 2.2 * 2.2) / 5.0);
    EXPECT_SAME_BITS(sd, std::sqrt(var));
    M_MeanStDevVarOneInMat(&x, 0, 2, &mean, &sd, &var, &w, 0, 0);
    EXPECT_SAME_BITS(mean, 0.0);
    EXPECT_SAME_BITS(var, MISSING_DBL);
    EXPECT_SAME_BITS(sd, MISSING_DBL);
}

TEST(ColumnDeviations, EqualToThePlainLoops)
{
    forRandomTables([](random_cells& cells, table_sizes sizes) {
        matrix<double> x = randomTable(cells, sizes.n - sizes.rowsShort, sizes.p - sizes.colsShort);
        x.oobValue = cells.value();
        auto flags = cells.flags(sizes.n);
        const bool unit = cells.integer(0, 3) == 0;
        auto w = unit ? matrix<double>(sizes.n, 1, 1.0) : cells.weights(sizes.n);
        auto across = cells.weights(sizes.p);
        const denominator_flags how = allFlags[static_cast<std::size_t>(cells.integer(0, 4))];

        matrix<double> means(sizes.p, 1, 0.0);
        matrix<double> sds(sizes.p, 1, 0.0);
        matrix<double> vars(sizes.p, 1, 0.0);
        const auto expect = [&](const short int* kept, bool withVariances) {
            for (int j = 0; j < sizes.p; ++j) {
                moments_of_column plain;
                plain.add([&](int i) { return x.getElement(i, j); }, sizes.n, kept, &w);
                ASSERT_SAME_BITS(means.data[j], plain.mean()) << j;
                ASSERT_SAME_BITS(sds.data[j], plain.deviation(how)) << j;
                if (withVariances) {
                    ASSERT_SAME_BITS(vars.data[j], plain.variance(how)) << j;
                }
            }
        };
        M_MeanStDev(&x, sizes.n, sizes.p, &means, &sds, flags.data(), &w, how.unbiased, how.freq, 0);
        expect(flags.data(), false);
        M_MeanStDev(&x, sizes.n, sizes.p, &means, &sds, flags.data(), &w, how.unbiased, how.freq, -1);
        expect(nullptr, false);
        M_MeanStDevVar(&x, sizes.n, sizes.p, &means, &sds, &vars, flags.data(), &w, how.unbiased, how.freq);
        expect(flags.data(), true);

        moments_of_column whole;
        for (int j = 0; j < sizes.p; ++j) {
            whole.add([&](int i) { return x.getElement(i, j); }, sizes.n, nullptr, &w);
        }
        double mean = 0.0;
        double sd = 0.0;
        double var = 0.0;
        M_MeanStDevVarOneInMat(&x, sizes.n, sizes.p, &mean, &sd, &var, &w, how.unbiased, how.freq);
        ASSERT_SAME_BITS(mean, whole.mean());
        ASSERT_SAME_BITS(var, whole.variance(how));
        ASSERT_SAME_BITS(sd, whole.deviation(how));

        auto* toMeans = &means;
        auto* toSds = &sds;
        M_MeanStDevByRow(&x, sizes.n, sizes.p, toMeans, toSds, &across, how.unbiased, how.freq);
        for (int i = 0; i < sizes.n; ++i) {
            moments_of_column plain;
            plain.add([&](int j) { return x.getElement(i, j); }, sizes.p, nullptr, &across);
            ASSERT_SAME_BITS(means.data[i], plain.mean()) << i;
            ASSERT_SAME_BITS(sds.data[i], plain.deviation(how)) << i;
        }
    });
}

TEST(ColumnDeviations, ChunksAsTheDenseTable)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        random_chunks<double> chunks(cells, cols, [&](int) { return rows; });
        auto flags = cells.flags(rows);
        auto w = cells.weights(rows);
        matrix<double> means(cols, 1, 0.0);
        matrix<double> sds(cols, 1, 0.0);
        matrix<double> vars(cols, 1, 0.0);
        M_MeanStDevVarSPV(chunks.get(), rows, cols, &means, &sds, &vars, flags.data(), &w, -1, 0);
        for (int j = 0; j < cols; ++j) {
            moments_of_column plain;
            const matrix<double>& chunk = chunks[j];
            plain.add([&](int i) { return chunk[i]; }, rows, flags.data(), &w);
            ASSERT_SAME_BITS(means.data[j], plain.mean());
            ASSERT_SAME_BITS(sds.data[j], plain.deviation({-1, 0}));
            ASSERT_SAME_BITS(vars.data[j], plain.variance({-1, 0}));
        }
    });
}
