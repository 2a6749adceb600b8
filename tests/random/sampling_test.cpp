#include "random/sampling.h"

#include "random/random_state.h"
#include "reference/random_plain.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace korvel::test
{

namespace
{

using doubles = std::vector<double>;
using texts = std::vector<text>;

text cell(int row, int col)
{
    std::string name = std::to_string(row);
    name.append(" ").append(std::to_string(col));
    return text(name.begin(), name.end());
}

/** Row i, column j holds "<i> <j>", both from 1. */
matrix<text> numbered(int rows, int cols)
{
    matrix<text> table(rows, cols, text{});
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            table.setElement(i, j, cell(i + 1, j + 1));
        }
    }
    return table;
}

constexpr int columns = 2;

/**
 * The table, the sample and the vector of row numbers of one call. The results are filled with values that
 * must be overwritten.
 */
struct sampling_call {
    matrix<text> table;
    matrix<text> sample;
    matrix<double> selected;
    int seed = 12345;
    int next = 0;

    sampling_call(int rows, int sampleRows, int selectedRows)
        : table(numbered(rows, columns)), sample(sampleRows, columns, text(u"old")),
          selected(selectedRows, 1, -7.0)
    {
    }

    [[nodiscard]] doubles numbers() const { return doubles(selected.data, selected.data + selected.nbElem); }
};

/** Whether the sample holds these rows of the table, 0 standing for a row of empty texts. */
void expectRows(const sampling_call& call, const std::vector<int>& rows)
{
    for (int j = 0; j < columns; ++j) {
        for (std::size_t t = 0; t < rows.size(); ++t) {
            const text expected = rows[t] > 0 ? cell(rows[t], j + 1) : text{};
            EXPECT_EQ(call.sample.getElement(static_cast<int>(t), j), expected) << "row " << t;
        }
        for (int t = static_cast<int>(rows.size()); t < call.sample.nbrows; ++t) {
            EXPECT_EQ(call.sample.getElement(t, j), u"old") << "row " << t;
        }
    }
}

doubles asNumbers(const std::vector<int>& rows)
{
    return doubles(rows.begin(), rows.end());
}

/** `rows + 1` for the rows that are not taken, and the old values for the others. */
doubles marks(int rows, const std::vector<int>& taken)
{
    doubles expected(static_cast<std::size_t>(rows), rows + 1.0);
    for (const int row : taken) {
        expected[static_cast<std::size_t>(row - 1)] = -7.0;
    }
    return expected;
}

std::vector<int> everyNth(int start, int step, int count)
{
    std::vector<int> rows;
    for (int t = 0; t < count; ++t) {
        rows.push_back(start + t * step);
    }
    return rows;
}

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

/** A table in chunks, one for each column. */
class text_chunks
{
public:
    text_chunks(const matrix<text>& table, int rows)
    {
        for (int j = 0; j < columns; ++j) {
            owned_.push_back(std::make_unique<matrix<text>>(rows, 1, text(u"old")));
            for (int i = 0; i < std::min(rows, table.nbrows); ++i) {
                owned_.back()->data[i] = table.getElement(i, j);
            }
            pointers_.push_back(owned_.back().get());
        }
    }

    [[nodiscard]] matrix<text>** get() { return pointers_.data(); }

    /** Whether the chunks hold what the dense sample holds. */
    void expectSameAs(const matrix<text>& sample) const
    {
        for (int j = 0; j < columns; ++j) {
            for (int t = 0; t < sample.nbrows; ++t) {
                EXPECT_EQ(owned_[static_cast<std::size_t>(j)]->data[t], sample.getElement(t, j)) << t;
            }
        }
    }

private:
    std::vector<std::unique_ptr<matrix<text>>> owned_;
    std::vector<matrix<text>*> pointers_;
};

TEST_F(Sampling, ChunksGiveTheSameSamples)
{
    const matrix<text> nothing;
    for (const int algorithm : {0, 1}) {
        for (const int k : {1, 4, 6}) {
            processSource.algo = algorithm;
            sampling_call dense(12, 7, 12);
            sampling_call other(12, 7, 12);
            text_chunks table(dense.table, 12);

            text_chunks systematic(nothing, 7);
            M_SamplingSystematicRdStart(&dense.table, 12, columns, k, &dense.sample, &dense.selected,
                                        &dense.seed, 1, &dense.next);
            M_SamplingSystematicRdStartSPV(table.get(), 12, columns, k, systematic.get(), &other.selected,
                                           &other.seed, 1, &other.next);
            systematic.expectSameAs(dense.sample);
            EXPECT_EQ(other.numbers(), dense.numbers());
            EXPECT_EQ(other.next, dense.next);

            text_chunks centred(dense.sample, 7);
            M_SamplingSystematicCentered(&dense.table, 12, columns, k, &dense.sample, &dense.selected);
            M_SamplingSystematicCenteredSPV(table.get(), 12, columns, k, centred.get(), &other.selected);
            centred.expectSameAs(dense.sample);
            EXPECT_EQ(other.numbers(), dense.numbers());

            // Eight rows and a k of 4 or below: no stratum reaches beyond the table.
            text_chunks stratified(dense.sample, 7);
            const int strata = std::min(k, 4);
            M_SamplingRandomStratified(&dense.table, 8, columns, strata, &dense.sample, &dense.selected,
                                       &dense.seed, 1, &dense.next);
            M_SamplingRandomStratifiedSPV(table.get(), 8, columns, strata, stratified.get(), &other.selected,
                                          &other.seed, 1, &other.next);
            EXPECT_EQ(other.numbers(), dense.numbers());
            EXPECT_EQ(other.next, dense.next);
            if (algorithm == 0) {
                stratified.expectSameAs(dense.sample);
            }

            matrix<double> counts(12, 1, 0.0);
            counts.data[2] = k;
            counts.data[11] = 1.0;
            text_chunks userDefined(dense.sample, 7);
            M_SampleUserDefined(&dense.table, 12, columns, &dense.sample, &counts, &dense.selected);
            M_SampleUserDefinedSPV(table.get(), 12, columns, userDefined.get(), &counts, &other.selected);
            EXPECT_EQ(other.numbers(), dense.numbers());
            for (int t = 0; t <= k; ++t) {
                EXPECT_EQ(userDefined.get()[1]->data[t], cell(t < k ? 3 : 12, 2));
            }
        }
    }
}

TEST_F(Sampling, ByLabelSamplesEachGroup)
{
    for (const int algorithm : {0, 1}) {
        processSource.algo = algorithm;
        sampling_call call(8, 9, 9);
        matrix<text> strata(8, 1, text{});
        const texts labels{u"b", u"a", u"c", u"b", u"a", u"b", u"ab", u"b"};
        std::copy(labels.begin(), labels.end(), strata.data);
        matrix<double> counts(4, 1, 0.0);
        std::copy_n(doubles{2.0, 1.7, 3.0, 1.0}.begin(), 4, counts.data);
        M_SamplingRandomStratifiedByStr(&call.table, 8, columns, 8, &call.sample, &strata, &call.selected,
                                        &counts, &call.seed, 1, &call.next);

        // In order of the labels: a, ab, b, c, with the rows of each in row order.
        const std::vector<std::pair<int, std::vector<int>>> groups{
            {2, {2, 5}}, {1, {7}}, {3, {1, 4, 6, 8}}, {1, {3}}};
        plain_source source(algorithm, 12345);
        std::int64_t s1 = 12345;
        std::vector<int> expected;
        int next = 0;
        for (const auto& [size, members] : groups) {
            // Without a seed a call goes on, but the second state of the combined generator starts anew.
            if (algorithm == 0) {
                source = plain_source(0, static_cast<int>(s1));
            }
            std::vector<int> ranks;
            for (int t = 0; t < size; ++t) {
                ranks.push_back(
                    static_cast<int>(std::floor(static_cast<double>(members.size()) * source.uniform())));
            }
            next = source.nextSeed();
            s1 = next;
            std::sort(ranks.begin(), ranks.end());
            for (const int rank : ranks) {
                expected.push_back(rank >= 0 ? members[static_cast<std::size_t>(rank)] : 0);
            }
        }
        expectRows(call, expected);
        doubles numbers = asNumbers(expected);
        numbers.resize(9, -7.0);
        EXPECT_EQ(call.numbers(), numbers);
        EXPECT_EQ(call.next, next);
        EXPECT_EQ(call.seed, 12345);
        EXPECT_EQ(strata.data[0], u"b");
        EXPECT_EQ(call.table.data[0], cell(1, 1));
    }
}

TEST_F(Sampling, ByLabelStoresNoMoreThanItIsTold)
{
    sampling_call call(4, 4, 4);
    matrix<text> strata(4, 1, text(u"one"));
    matrix<double> counts(1, 1, 4.0);
    M_SamplingRandomStratifiedByStr(&call.table, 4, columns, 2, &call.sample, &strata, &call.selected,
                                    &counts, &call.seed, 1, &call.next);
    EXPECT_EQ(call.numbers()[2], -7.0);
    EXPECT_EQ(call.sample.getElement(2, 0), u"old");
    plain_source source(0, 12345);
    for (int t = 0; t < 4; ++t) {
        source.raw();
    }
    EXPECT_EQ(call.next, source.nextSeed());
}

TEST_F(Sampling, ByLabelWithoutACountTakesNone)
{
    sampling_call call(2, 2, 2);
    matrix<text> strata(2, 1, text(u"x"));
    strata.data[1] = text(u"y");
    matrix<double> counts(1, 1, 1.0);
    M_SamplingRandomStratifiedByStr(&call.table, 2, columns, 2, &call.sample, &strata, &call.selected,
                                    &counts, &call.seed, 1, &call.next);
    expectRows(call, {1});
    EXPECT_EQ(call.numbers(), (doubles{1, -7}));
}

TEST_F(Sampling, ByLabelOfNothingDoesNothing)
{
    sampling_call call(1, 1, 1);
    matrix<text> strata(1, 1, text(u"x"));
    matrix<double> counts(1, 1, 1.0);
    M_SamplingRandomStratifiedByStr(&call.table, 0, columns, 1, &call.sample, &strata, &call.selected,
                                    &counts, &call.seed, 1, &call.next);
    expectRows(call, {});
    EXPECT_EQ(call.numbers(), doubles{-7});
}

} // namespace korvel::test
