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

using SamplingByLabel = RandomState;

} // namespace

TEST_F(SamplingByLabel, SamplesEachGroup)
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

TEST_F(SamplingByLabel, StoresNoMoreThanItIsTold)
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

TEST_F(SamplingByLabel, WithoutACountTakesNone)
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

TEST_F(SamplingByLabel, OfNothingDoesNothing)
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
