#include "random/sampling.h"

#include "random/sampling_call.h"
#include "reference/random_plain.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace korvel::test
{

namespace
{

using Sampling = RandomState;

} // namespace

TEST_F(Sampling, WithReplacementDrawsRowsAndOrdersThem)
{
    for (const int k : {1, 2, 20, 1500}) {
        sampling_call call(10, k, k);
        M_SamplingWithReplacement(&call.table, 10, columns, k, &call.sample, &call.selected, &call.seed, 1,
                                  &call.next);
        plain_source source(0, 12345);
        std::vector<int> rows;
        for (int t = 0; t < k; ++t) {
            rows.push_back(static_cast<int>(std::floor(10 * source.uniform())) + 1);
        }
        std::sort(rows.begin(), rows.end());
        expectRows(call, rows);
        EXPECT_EQ(call.numbers(), asNumbers(rows));
        EXPECT_EQ(call.next, source.nextSeed());
        EXPECT_EQ(call.seed, 12345);
    }
}

TEST_F(Sampling, WithReplacementTakesNegativeDrawsForRowsThatAreNotThere)
{
    processSource.algo = 1;
    sampling_call call(10, 12, 12);
    M_SamplingWithReplacement(&call.table, 10, columns, 12, &call.sample, &call.selected, &call.seed, 1,
                              &call.next);
    plain_source source(1, 12345);
    std::vector<int> rows;
    for (int t = 0; t < 12; ++t) {
        rows.push_back(static_cast<int>(std::floor(10 * source.uniform())) + 1);
    }
    std::sort(rows.begin(), rows.end());
    ASSERT_LT(rows.front(), 1);
    EXPECT_EQ(call.numbers(), asNumbers(rows));
    std::replace_if(
        rows.begin(), rows.end(), [](int row) { return row < 1; }, 0);
    expectRows(call, rows);
    EXPECT_EQ(call.next, source.nextSeed());
}

TEST_F(Sampling, WithReplacementOfNothingSeedsAllTheSame)
{
    for (const int k : {0, -2}) {
        sampling_call call(3, 1, 1);
        M_SamplingWithReplacement(&call.table, 3, columns, k, &call.sample, &call.selected, &call.seed, 1,
                                  &call.next);
        expectRows(call, {});
        EXPECT_EQ(call.numbers(), doubles{-7});
        EXPECT_EQ(call.next, 12345);
    }
}

TEST_F(Sampling, WithoutASeedReportsTheOneInUse)
{
    setStates(0, 493972830, 1);
    sampling_call call(3, 1, 1);
    M_SamplingWithReplacement(&call.table, 3, columns, 1, &call.sample, &call.selected, &call.seed, 0,
                              &call.next);
    EXPECT_EQ(call.seed, 493972830);
    setStates(0, 493972830, 1);
    sampling_call other(3, 2, 3);
    M_SamplingSystematicRdStart(&other.table, 3, columns, 2, &other.sample, &other.selected, &other.seed, 0,
                                &other.next);
    EXPECT_EQ(other.seed, 493972830);
    setStates(0, 493972830, 1);
    M_SamplingRandomStratified(&other.table, 3, columns, 2, &other.sample, &other.selected, &other.seed, 0,
                               &other.next);
    EXPECT_EQ(other.seed, 493972830);
}

TEST_F(Sampling, UserDefinedRepeatsRows)
{
    matrix<double> counts(3, 1, 0.0);
    std::copy_n(doubles{2.9, 0.99, 1.0}.begin(), 3, counts.data);
    sampling_call call(3, 4, 4);
    EXPECT_EQ(userDefinedSampleSize(counts, 3), 3);
    M_SampleUserDefined(&call.table, 3, columns, &call.sample, &counts, &call.selected);
    expectRows(call, {1, 1, 3});
    EXPECT_EQ(call.numbers(), (doubles{1, 1, 3, -7}));
}

TEST_F(Sampling, UserDefinedLeavesOutWhatIsNoCount)
{
    matrix<double> counts(5, 1, 1.0);
    std::copy_n(doubles{-2.0, MISSING_DBL, std::nan(""), 1e300}.begin(), 4, counts.data);
    sampling_call call(5, 2, 2);
    EXPECT_EQ(userDefinedSampleSize(counts, 5), 1);
    M_SampleUserDefined(&call.table, 5, columns, &call.sample, &counts, &call.selected);
    expectRows(call, {5});
    EXPECT_EQ(call.numbers(), (doubles{5, -7}));
}

TEST_F(Sampling, UserDefinedOfNothingDoesNothing)
{
    matrix<double> counts(1, 1, 3.0);
    for (const int rows : {0, -1}) {
        sampling_call call(1, 1, 1);
        EXPECT_EQ(userDefinedSampleSize(counts, rows), 0);
        M_SampleUserDefined(&call.table, rows, columns, &call.sample, &counts, &call.selected);
        expectRows(call, {});
        EXPECT_EQ(call.numbers(), doubles{-7});
    }
}

TEST_F(Sampling, UserDefinedSizeDoesNotWrap)
{
    matrix<double> counts(3, 1, 2147483647.0);
    EXPECT_EQ(userDefinedSampleSize(counts, 3), std::numeric_limits<int>::max());
}

TEST_F(Sampling, RowsBeyondTheSampleGoToTheSpareElement)
{
    matrix<double> counts(3, 1, 1.0);
    sampling_call call(3, 2, 2);
    M_SampleUserDefined(&call.table, 3, columns, &call.sample, &counts, &call.selected);
    expectRows(call, {1, 2});
    EXPECT_EQ(call.sample.oobValue, cell(3, columns));
    EXPECT_EQ(call.selected.oobValue, 3.0);
}

TEST_F(Sampling, SystematicTakesEveryNthRowFromARandomStart)
{
    struct shape {
        int rows;
        int k;
        int step;
        int span;
    };
    for (const auto [rows, k, step, span] :
         {shape{10, 4, 3, 1}, shape{12, 4, 3, 3}, shape{100, 7, 16, 4}, shape{9, 9, 1, 1}, shape{2, 2, 1, 1},
          shape{50, 2, 49, 1}, shape{30, 4, 9, 3}}) {
        for (int seed = 10; seed < 30; ++seed) {
            sampling_call call(rows, k, rows);
            call.seed = seed;
            M_SamplingSystematicRdStart(&call.table, rows, columns, k, &call.sample, &call.selected,
                                        &call.seed, 1, &call.next);
            plain_source source(0, seed);
            const int start = static_cast<int>(std::floor(source.uniform() * span)) + 1;
            const auto taken = everyNth(start, step, k);
            expectRows(call, taken);
            ASSERT_EQ(call.numbers(), marks(rows, taken)) << rows << ", " << k << ", seed " << seed;
            EXPECT_EQ(call.next, source.nextSeed());
        }
    }
}

TEST_F(Sampling, SystematicTakesNoMoreThanItIsTold)
{
    // Step 2 and span 4: from a start of 1 or 2 a seventh row would fit.
    for (int seed = 10; seed < 30; ++seed) {
        sampling_call call(14, 7, 14);
        call.seed = seed;
        M_SamplingSystematicRdStart(&call.table, 14, columns, 6, &call.sample, &call.selected, &call.seed, 1,
                                    &call.next);
        plain_source source(0, seed);
        const auto taken = everyNth(static_cast<int>(std::floor(source.uniform() * 4)) + 1, 2, 6);
        expectRows(call, taken);
        EXPECT_EQ(call.numbers(), marks(14, taken));
    }
}

TEST_F(Sampling, SystematicOfOneOrTooManyTakesTheStart)
{
    for (const int k : {1, 6, 50}) {
        sampling_call call(5, 2, 5);
        M_SamplingSystematicRdStart(&call.table, 5, columns, k, &call.sample, &call.selected, &call.seed, 1,
                                    &call.next);
        plain_source source(0, 12345);
        const int start = static_cast<int>(std::floor(source.uniform() * 5)) + 1;
        expectRows(call, {start});
        EXPECT_EQ(call.numbers(), marks(5, {start}));
    }
    for (const int k : {0, -3, std::numeric_limits<int>::min()}) {
        sampling_call call(5, 1, 5);
        M_SamplingSystematicRdStart(&call.table, 5, columns, k, &call.sample, &call.selected, &call.seed, 1,
                                    &call.next);
        expectRows(call, {});
        EXPECT_EQ(call.numbers(), doubles(5, 6.0));
    }
}

TEST_F(Sampling, SystematicWritesNothingBeforeTheTable)
{
    processSource.algo = 1;
    int before = 0;
    for (int seed = 1; seed < 40; ++seed) {
        sampling_call call(30, 4, 30);
        call.seed = seed;
        M_SamplingSystematicRdStart(&call.table, 30, columns, 4, &call.sample, &call.selected, &call.seed, 1,
                                    &call.next);
        plain_source source(1, seed);
        const int start = static_cast<int>(std::floor(source.uniform() * 3)) + 1;
        auto taken = everyNth(start, 9, 4);
        before += start < 1 ? 1 : 0;
        std::vector<int> inside;
        for (int& row : taken) {
            if (row >= 1) {
                inside.push_back(row);
            } else {
                row = 0;
            }
        }
        expectRows(call, taken);
        EXPECT_EQ(call.numbers(), marks(30, inside));
    }
    EXPECT_GT(before, 5);
}

TEST_F(Sampling, CentredStartsInTheMiddleOfTheSpan)
{
    struct shape {
        int rows;
        int k;
        int step;
        int start;
    };
    // Spans 1, 3, 4 and 2.
    for (const auto [rows, k, step, start] :
         {shape{10, 4, 3, 1}, shape{12, 4, 3, 2}, shape{14, 6, 2, 3}, shape{8, 4, 2, 2}}) {
        sampling_call call(rows, k, rows);
        const auto s1 = processSource.s1;
        M_SamplingSystematicCentered(&call.table, rows, columns, k, &call.sample, &call.selected);
        const auto taken = everyNth(start, step, k);
        expectRows(call, taken);
        EXPECT_EQ(call.numbers(), marks(rows, taken));
        EXPECT_EQ(processSource.s1, s1);
    }
}

TEST_F(Sampling, StratifiedTakesARandomRowFromEachStratum)
{
    struct shape {
        int rows;
        int k;
        int step;
        int span;
        int strata;
    };
    for (const auto [rows, k, step, span, strata] :
         {shape{10, 4, 3, 1, 4}, shape{12, 4, 3, 3, 4}, shape{11, 5, 2, 3, 5}, shape{100, 7, 16, 4, 7},
          shape{8, 4, 2, 2, 4}}) {
        for (int seed = 10; seed < 30; ++seed) {
            sampling_call call(rows, strata + 1, strata + 1);
            call.seed = seed;
            M_SamplingRandomStratified(&call.table, rows, columns, k, &call.sample, &call.selected,
                                       &call.seed, 1, &call.next);
            plain_source source(0, seed);
            std::vector<int> rowsTaken;
            for (int t = 0; t < strata; ++t) {
                rowsTaken.push_back(static_cast<int>(std::floor(source.uniform() * span)) + t * step + 1);
            }
            expectRows(call, rowsTaken);
            doubles expected = asNumbers(rowsTaken);
            expected.push_back(-7.0);
            ASSERT_EQ(call.numbers(), expected);
            EXPECT_EQ(call.next, source.nextSeed());
        }
    }
}

TEST_F(Sampling, StratifiedMayHaveAStratumMoreThatReachesBeyondTheTable)
{
    // 14 rows and a k of 6: step 2, span 4, centres 2, 4, ... 14. The seventh stratum is rows 13 to 16.
    int beyond = 0;
    for (int seed = 10; seed < 50; ++seed) {
        sampling_call call(14, 7, 7);
        call.seed = seed;
        M_SamplingRandomStratified(&call.table, 14, columns, 6, &call.sample, &call.selected, &call.seed, 1,
                                   &call.next);
        plain_source source(0, seed);
        std::vector<int> rows;
        for (int t = 0; t < 7; ++t) {
            rows.push_back(static_cast<int>(std::floor(source.uniform() * 4)) + 2 * t + 1);
        }
        EXPECT_EQ(call.numbers(), asNumbers(rows));
        if (rows.back() > 14) {
            ++beyond;
            // A read there gives the last text stored into the table.
            EXPECT_EQ(call.sample.getElement(6, 0), call.table.oobValue);
        }
        EXPECT_EQ(call.next, source.nextSeed());
    }
    EXPECT_GT(beyond, 5);
}

TEST_F(Sampling, StratifiedOfOneOrTooManyIsOneStratum)
{
    for (const int k : {1, 0, -4, 6, 50}) {
        sampling_call call(5, 2, 2);
        M_SamplingRandomStratified(&call.table, 5, columns, k, &call.sample, &call.selected, &call.seed, 1,
                                   &call.next);
        plain_source source(0, 12345);
        source.uniform();
        EXPECT_EQ(call.next, source.nextSeed()) << k;
        EXPECT_EQ(call.sample.getElement(1, 0), u"old");
    }
}

} // namespace korvel::test
