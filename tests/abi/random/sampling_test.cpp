#include "korvelmathtools/KORVELMathTools.h"
#include "reference/random_plain.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::plain_source;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

namespace
{

constexpr int seedInUse = 2026;

/** A table of two columns in the caller's memory, with "a1", "a2", ... and "b1", "b2", ... */
class FlatSampling : public ::testing::Test
{
protected:
    static std::u16string cell(char16_t column, int row)
    {
        const std::string digits = std::to_string(row);
        return column + std::u16string(digits.begin(), digits.end());
    }

    static texts rowsOf(const std::vector<int>& rows)
    {
        texts cells;
        for (const char16_t column : {u'a', u'b'}) {
            for (const int row : rows) {
                cells.push_back(cell(column, row));
            }
        }
        return cells;
    }

    SAFEARRAY* table(int rows)
    {
        std::vector<int> all;
        for (int row = 1; row <= rows; ++row) {
            all.push_back(row);
        }
        return memory.texts(rowsOf(all));
    }

    SAFEARRAY* sample(int k) { return memory.texts(texts(static_cast<std::size_t>(2 * k), u"old")); }

    ~FlatSampling() override { EXPECT_TRUE(memory.guardsIntact()); }

    caller_memory memory;
    plain_source source{0, seedInUse};
    int seed = seedInUse;
    int next = 0;
};

/** Two text columns in the caller's memory, each in a record of a chunked table. */
class FlatChunkedSampling : public FlatSampling
{
protected:
    struct chunked_table {
        SAFEARRAY* columns[2];
        SAFEARRAY* records;

        Hostarray** argument() { return reinterpret_cast<Hostarray**>(&records); }

        [[nodiscard]] texts cells() const
        {
            texts all = textsIn(columns[0]);
            for (const auto& value : textsIn(columns[1])) {
                all.push_back(value);
            }
            return all;
        }
    };

    chunked_table chunked(const texts& first, const texts& second)
    {
        chunked_table made{};
        made.columns[0] = memory.texts(first);
        made.columns[1] = memory.texts(second);
        made.records =
            memory.array(std::vector<Hostarray>{{nullptr, made.columns[0]}, {nullptr, made.columns[1]}});
        return made;
    }

    chunked_table chunkedTable(int rows)
    {
        texts first;
        texts second;
        for (int row = 1; row <= rows; ++row) {
            first.push_back(cell(u'a', row));
            second.push_back(cell(u'b', row));
        }
        return chunked(first, second);
    }

    chunked_table chunkedSample(int k)
    {
        const texts old(static_cast<std::size_t>(k), u"old");
        return chunked(old, old);
    }
};

} // namespace

TEST_F(FlatSampling, WithReplacement)
{
    std::vector<int> rows;
    for (int t = 0; t < 8; ++t) {
        rows.push_back(static_cast<int>(std::floor(5 * source.uniform())) + 1);
    }
    std::sort(rows.begin(), rows.end());
    SAFEARRAY* from = table(5);
    SAFEARRAY* to = sample(8);
    guarded<double> selected(doubles(8));
    EXPECT_EQ(
        VB_M_SamplingWithReplacement(blockOf(from), 5, 2, 8, blockOf(to), selected.data(), &seed, 1, &next),
        0);
    EXPECT_EQ(textsIn(to), rowsOf(rows));
    EXPECT_EQ(valuesOf(selected), doubles(rows.begin(), rows.end()));
    EXPECT_EQ(next, source.nextSeed());
    EXPECT_EQ(seed, seedInUse);
}

TEST_F(FlatSampling, UserDefined)
{
    SAFEARRAY* from = table(3);
    SAFEARRAY* to = sample(3);
    guarded<double> counts{2, 0, 1};
    guarded<double> selected(doubles(3));
    EXPECT_EQ(VB_M_SampleUserDefined(blockOf(from), 3, 2, blockOf(to), counts.data(), selected.data()), 0);
    EXPECT_EQ(textsIn(to), rowsOf({1, 1, 3}));
    EXPECT_EQ(valuesOf(selected), (doubles{1, 1, 3}));
}

TEST_F(FlatSampling, SystematicFromARandomStart)
{
    // 30 rows and a k of 4: step 9, span 3.
    const int start = static_cast<int>(std::floor(source.uniform() * 3)) + 1;
    doubles marks(30, 31.0);
    for (int t = 0; t < 4; ++t) {
        marks[static_cast<std::size_t>(start - 1 + 9 * t)] = 0.0;
    }
    SAFEARRAY* from = table(30);
    SAFEARRAY* to = sample(4);
    guarded<double> selected(doubles(30));
    EXPECT_EQ(VB_M_SamplingSystematicRdStart(blockOf(from), 30, 2, 4, blockOf(to), selected.data(), &seed, 1,
                                             &next),
              0);
    EXPECT_EQ(textsIn(to), rowsOf({start, start + 9, start + 18, start + 27}));
    EXPECT_EQ(valuesOf(selected), marks);
    EXPECT_EQ(next, source.nextSeed());
}

TEST_F(FlatSampling, SystematicFromTheCentre)
{
    SAFEARRAY* from = table(10);
    SAFEARRAY* to = sample(4);
    guarded<double> selected(doubles(10));
    EXPECT_EQ(VB_M_SamplingSystematicCentered(blockOf(from), 10, 2, 4, blockOf(to), selected.data()), 0);
    EXPECT_EQ(textsIn(to), rowsOf({1, 4, 7, 10}));
    EXPECT_EQ(valuesOf(selected), (doubles{0, 11, 11, 0, 11, 11, 0, 11, 11, 0}));
}

TEST_F(FlatSampling, SystematicLeavesRowsOfTheSampleThatItDoesNotFill)
{
    SAFEARRAY* from = table(2);
    SAFEARRAY* to = sample(3);
    guarded<double> selected(doubles(2));
    // More than there are rows: only the start, row 2.
    VB_M_SamplingSystematicCentered(blockOf(from), 2, 2, 3, blockOf(to), selected.data());
    EXPECT_EQ(textsIn(to), (texts{u"a2", u"old", u"old", u"b2", u"old", u"old"}));
    EXPECT_EQ(valuesOf(selected), (doubles{3, 0}));

    const auto expectOnlyTheFirst = [&] {
        texts found = textsIn(to);
        EXPECT_EQ(found[0].substr(0, 1), u"a");
        EXPECT_EQ(found[3].substr(0, 1), u"b");
        found.erase(found.begin() + 3);
        found.erase(found.begin());
        EXPECT_EQ(found, texts(4, u"old"));
    };
    to = sample(3);
    VB_M_SamplingSystematicRdStart(blockOf(from), 2, 2, 3, blockOf(to), selected.data(), &seed, 1, &next);
    expectOnlyTheFirst();
    to = sample(3);
    guarded<double> numbers(doubles(3));
    VB_M_SamplingRandomStratified(blockOf(from), 2, 2, 3, blockOf(to), numbers.data(), &seed, 1, &next);
    expectOnlyTheFirst();
}

TEST_F(FlatSampling, Stratified)
{
    // 12 rows and a k of 4: step 3, span 3.
    std::vector<int> rows;
    for (int t = 0; t < 4; ++t) {
        rows.push_back(static_cast<int>(std::floor(source.uniform() * 3)) + 3 * t + 1);
    }
    SAFEARRAY* from = table(12);
    SAFEARRAY* to = sample(4);
    guarded<double> selected(doubles(4));
    EXPECT_EQ(
        VB_M_SamplingRandomStratified(blockOf(from), 12, 2, 4, blockOf(to), selected.data(), &seed, 1, &next),
        0);
    EXPECT_EQ(textsIn(to), rowsOf(rows));
    EXPECT_EQ(valuesOf(selected), doubles(rows.begin(), rows.end()));
    EXPECT_EQ(next, source.nextSeed());
}

TEST_F(FlatSampling, StratifiedWritesNothingBehindTheSample)
{
    // Seven strata for a k of 6.
    SAFEARRAY* from = table(14);
    SAFEARRAY* to = sample(6);
    guarded<double> selected(doubles(6));
    VB_M_SamplingRandomStratified(blockOf(from), 14, 2, 6, blockOf(to), selected.data(), &seed, 1, &next);
    std::vector<int> rows;
    for (int t = 0; t < 6; ++t) {
        rows.push_back(static_cast<int>(std::floor(source.uniform() * 4)) + 2 * t + 1);
    }
    EXPECT_EQ(textsIn(to), rowsOf(rows));
    EXPECT_EQ(valuesOf(selected), doubles(rows.begin(), rows.end()));
    source.raw();
    EXPECT_EQ(next, source.nextSeed());
}

TEST_F(FlatChunkedSampling, UserDefined)
{
    auto from = chunkedTable(3);
    auto to = chunkedSample(3);
    guarded<double> counts{2, 0, 1};
    guarded<double> selected(doubles(3));
    EXPECT_EQ(VB_M_SampleUserDefinedSPV(from.argument(), 3, 2, to.argument(), counts.data(), selected.data()),
              0);
    EXPECT_EQ(to.cells(), rowsOf({1, 1, 3}));
    EXPECT_EQ(valuesOf(selected), (doubles{1, 1, 3}));
}

TEST_F(FlatChunkedSampling, SystematicFromARandomStart)
{
    const int start = static_cast<int>(std::floor(source.uniform() * 3)) + 1;
    doubles marks(12, 13.0);
    for (int t = 0; t < 4; ++t) {
        marks[static_cast<std::size_t>(start - 1 + 3 * t)] = 0.0;
    }
    auto from = chunkedTable(12);
    auto to = chunkedSample(4);
    guarded<double> selected(doubles(12));
    EXPECT_EQ(VB_M_SamplingSystematicRdStartSPV(from.argument(), 12, 2, 4, to.argument(), selected.data(),
                                                &seed, 1, &next),
              0);
    EXPECT_EQ(to.cells(), rowsOf({start, start + 3, start + 6, start + 9}));
    EXPECT_EQ(valuesOf(selected), marks);
    EXPECT_EQ(next, source.nextSeed());
}

TEST_F(FlatChunkedSampling, SystematicFromTheCentre)
{
    auto from = chunkedTable(10);
    auto to = chunkedSample(4);
    guarded<double> selected(doubles(10));
    EXPECT_EQ(VB_M_SamplingSystematicCenteredSPV(from.argument(), 10, 2, 4, to.argument(), selected.data()),
              0);
    EXPECT_EQ(to.cells(), rowsOf({1, 4, 7, 10}));
    EXPECT_EQ(valuesOf(selected), (doubles{0, 11, 11, 0, 11, 11, 0, 11, 11, 0}));
}

TEST_F(FlatChunkedSampling, Stratified)
{
    std::vector<int> rows;
    for (int t = 0; t < 4; ++t) {
        rows.push_back(static_cast<int>(std::floor(source.uniform() * 3)) + 3 * t + 1);
    }
    auto from = chunkedTable(12);
    auto to = chunkedSample(4);
    guarded<double> selected(doubles(4));
    EXPECT_EQ(VB_M_SamplingRandomStratifiedSPV(from.argument(), 12, 2, 4, to.argument(), selected.data(),
                                               &seed, 1, &next),
              0);
    EXPECT_EQ(to.cells(), rowsOf(rows));
    EXPECT_EQ(valuesOf(selected), doubles(rows.begin(), rows.end()));
    EXPECT_EQ(next, source.nextSeed());
}

TEST_F(FlatSampling, StratifiedByLabel)
{
    SAFEARRAY* from = table(4);
    SAFEARRAY* to = sample(3);
    SAFEARRAY* strata = memory.texts({u"y", u"x", u"y", u"y"});
    guarded<double> counts{1, 2};
    guarded<double> selected(doubles(3));
    EXPECT_EQ(Cpp_M_SamplingRandomStratifiedByStr(blockOf(from), 4, 2, 3, blockOf(to), blockOf(strata),
                                                  selected.data(), counts.data(), 2, &seed, 1, &next),
              0);
    // One row of x from the seed; the two of y from where that left off.
    source.raw();
    source = plain_source(0, source.nextSeed());
    std::vector<int> ranks{static_cast<int>(std::floor(3 * source.uniform()))};
    ranks.push_back(static_cast<int>(std::floor(3 * source.uniform())));
    std::sort(ranks.begin(), ranks.end());
    const int members[] = {1, 3, 4};
    EXPECT_EQ(textsIn(to), rowsOf({2, members[ranks[0]], members[ranks[1]]}));
    EXPECT_EQ(valuesOf(selected),
              (doubles{2.0, static_cast<double>(members[ranks[0]]), static_cast<double>(members[ranks[1]])}));
    EXPECT_EQ(next, source.nextSeed());
}
