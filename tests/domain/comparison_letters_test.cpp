#include "domain/comparison_letters.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <cstddef>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using rows = std::vector<std::vector<text>>;

/** A display: the letters of each row, with the rest that comes back. */
struct display {
    int groups = -7;
    short int success = 7;
    std::vector<int> order;
    numbers means;
    matrix<text> labels;

    /** The letters of each row, empty ones left out. */
    rows letters() const
    {
        rows found;
        for (int i = 0; i < labels.nbrows; ++i) {
            found.emplace_back();
            for (int j = 0; j < labels.nbcols; ++j) {
                if (!labels.getElement(i, j).empty()) {
                    found.back().push_back(labels.getElement(i, j));
                }
            }
        }
        return found;
    }
};

/** Pairs of levels that differ significantly, the larger number first. */
using pairs = std::vector<std::pair<int, int>>;

matrix<int> tableOf(int k, const pairs& significant)
{
    matrix<int> made(k, k);
    for (const auto& [larger, smaller] : significant) {
        made.vbset(larger, smaller, (larger + smaller) % 2 == 0 ? 5 : -1);
    }
    return made;
}

display displayOf(numbers means, matrix<int> significance, short int sortResult, short int descending = 0)
{
    const int k = static_cast<int>(means.size());
    display made{-7, 7, {}, {}, matrix<text>(k, k, text(u"?"))};
    matrix<double> values(k, 1, means.data(), true);
    matrix<int> order(k, 1);
    GetCompMatrices(values, k, 0, significance, sortResult, order, &made.labels, &made.groups, &made.success,
                    descending);
    made.order.assign(order.data, order.data + k);
    made.means = means;
    return made;
}

pairs allPairs(int k)
{
    pairs made;
    for (int larger = 2; larger <= k; ++larger) {
        for (int smaller = 1; smaller < larger; ++smaller) {
            made.emplace_back(larger, smaller);
        }
    }
    return made;
}

} // namespace

TEST(ComparisonLetters, AreOneWithoutSignificantPairs)
{
    const display made = displayOf({3, 1, 2}, tableOf(3, {}), 0);
    EXPECT_EQ(made.letters(), (rows{{u"A"}, {u"A"}, {u"A"}}));
    EXPECT_EQ(made.groups, 1);
    EXPECT_EQ(made.success, -1);
    EXPECT_EQ(made.order, (std::vector<int>{2, 3, 1}));
    EXPECT_EQ(made.means, (numbers{1, 2, 3}));
}

TEST(ComparisonLetters, AreOneForEachLevelWhenAllPairsAreSignificant)
{
    const display made = displayOf({3, 1, 2}, tableOf(3, allPairs(3)), 0);
    EXPECT_EQ(made.letters(), (rows{{u"A"}, {u"B"}, {u"C"}}));
    EXPECT_EQ(made.groups, 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(made.labels.getElement(i, i).empty()) << "each letter has a column";
    }
}

TEST(ComparisonLetters, ComeBackInTheOrderOfTheLevels)
{
    const display made = displayOf({3, 1, 2}, tableOf(3, allPairs(3)), 1);
    EXPECT_EQ(made.letters(), (rows{{u"C"}, {u"A"}, {u"B"}}));
    EXPECT_EQ(made.order, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(made.means, (numbers{3, 1, 2}));
    const display down = displayOf({3, 1, 2}, tableOf(3, allPairs(3)), -1, 1);
    EXPECT_EQ(down.letters(), (rows{{u"A"}, {u"C"}, {u"B"}}));
}

TEST(ComparisonLetters, FollowDescendingMeansAndKeepTies)
{
    const display made = displayOf({2, 5, 2, 9}, tableOf(4, allPairs(4)), 0, -1);
    EXPECT_EQ(made.order, (std::vector<int>{4, 2, 1, 3}));
    EXPECT_EQ(made.means, (numbers{9, 5, 2, 2}));
}

TEST(ComparisonLetters, OfTwoLevelsComeFromOnePair)
{
    EXPECT_EQ(displayOf({1, 2}, tableOf(2, {{2, 1}}), 0).letters(), (rows{{u"A"}, {u"B"}}));
    EXPECT_EQ(displayOf({1, 2}, tableOf(2, {}), 0).letters(), (rows{{u"A"}, {u"A"}}));
    matrix<int> upper(2, 2);
    upper.vbset(1, 2, 1);
    upper.vbset(1, 1, 1);
    EXPECT_EQ(displayOf({1, 2}, upper, 0).letters(), (rows{{u"A"}, {u"A"}}))
        << "only the row of the larger number is read";
    const display one = displayOf({5}, tableOf(1, {}), 0);
    EXPECT_EQ(one.letters(), rows{{u"A"}});
    EXPECT_EQ(one.groups, 1);
    const display none = displayOf({}, tableOf(0, {}), 0);
    EXPECT_EQ(none.groups, 1);
    EXPECT_EQ(none.success, -1);
}

TEST(ComparisonLetters, AreSharedByOverlappingRuns)
{
    // Levels 1 to 4 in order; the ends of every run of three or more differ.
    const display made = displayOf({1, 2, 3, 4}, tableOf(4, {{3, 1}, {4, 1}, {4, 2}}), 0);
    EXPECT_EQ(made.letters(), (rows{{u"A"}, {u"A", u"B"}, {u"B", u"C"}, {u"C"}}));
    EXPECT_EQ(made.groups, 3);
    // Level 1 differs from level 3, so that it shares nothing with level 4 either.
    EXPECT_EQ(displayOf({1, 2, 3, 4}, tableOf(4, {{3, 1}}), 0).letters(),
              (rows{{u"A"}, {u"A", u"B"}, {u"B"}, {u"B"}}));
    // Level 2 differs from level 3, level 1 from none: it shares a letter with all.
    EXPECT_EQ(displayOf({1, 2, 3}, tableOf(3, {{3, 2}}), 0).letters(), (rows{{u"A", u"B"}, {u"A"}, {u"B"}}));
}

TEST(ComparisonLetters, AreNotForMissingValues)
{
    const display first = displayOf({2, missing, 1}, tableOf(3, {{3, 1}}), 0);
    EXPECT_EQ(first.order, (std::vector<int>{2, 3, 1}));
    EXPECT_EQ(first.letters(), (rows{{}, {u"A"}, {u"B"}})) << "the first level that has a value gets A";
    EXPECT_EQ(first.groups, 3) << "the column of the missing level counts";
    EXPECT_EQ(first.labels.getElement(1, 1), u"A");
    EXPECT_EQ(first.labels.getElement(2, 2), u"B");
    const display last = displayOf({2, missing, 1}, tableOf(3, {{3, 1}}), 0, 1);
    EXPECT_EQ(last.letters(), (rows{{u"A"}, {u"B"}, {}}));
    EXPECT_EQ(last.groups, 2);
    EXPECT_EQ(last.labels.getElement(0, 0), u"A");
    const display none = displayOf({missing, missing}, tableOf(2, {}), 0);
    EXPECT_EQ(none.letters(), (rows{{}, {}}));
    EXPECT_EQ(none.groups, 1);
    EXPECT_EQ(none.success, -1);
}

TEST(ComparisonLetters, AreTwoBehindZ)
{
    numbers means(60);
    std::iota(means.begin(), means.end(), 1.0);
    const display made = displayOf(means, tableOf(60, allPairs(60)), 0);
    EXPECT_EQ(made.letters()[25], std::vector<text>{u"Z"});
    EXPECT_EQ(made.letters()[26], std::vector<text>{u"AA"});
    EXPECT_EQ(made.letters()[27], std::vector<text>{u"AB"});
    EXPECT_EQ(made.letters()[51], std::vector<text>{u"AZ"});
    EXPECT_EQ(made.letters()[52], std::vector<text>{u"BA"});
}

TEST(ComparisonLetters, EndBehind256)
{
    numbers means(258);
    std::iota(means.begin(), means.end(), 1.0);
    const display made = displayOf(means, tableOf(258, allPairs(258)), 0);
    EXPECT_EQ(made.letters()[255], std::vector<text>{u"IV"});
    EXPECT_TRUE(made.letters()[256].empty());
    EXPECT_TRUE(made.letters()[257].empty());
    EXPECT_EQ(made.groups, 257);
    EXPECT_EQ(made.success, 0);
    means.resize(256);
    const display fitting = displayOf(means, tableOf(256, allPairs(256)), 0);
    EXPECT_EQ(fitting.groups, 256);
    EXPECT_EQ(fitting.success, -1);
}

TEST(ComparisonLetters, UseAColumnOfATable)
{
    numbers cells{7, 8, 9, 3, 1, 2};
    matrix<double> means(3, 2, cells.data(), true);
    matrix<int> significance = tableOf(3, allPairs(3));
    matrix<int> order(3, 1);
    matrix<text> labels(3, 1, text());
    int groups = 0;
    short int success = 0;
    GetCompMatrices(means, 3, 2, significance, 0, order, &labels, &groups, &success, 0);
    EXPECT_EQ(cells, (numbers{7, 8, 9, 1, 2, 3}));
    EXPECT_EQ(groups, 3);
    EXPECT_EQ(labels.getElement(0, 0), u"A");
    EXPECT_TRUE(labels.getElement(1, 0).empty()) << "there is no second column";
}

TEST(ComparisonLetters, ComeFromListedPairs)
{
    numbers cells{30, 10, 20, 3, 1, 2};
    matrix<double> values(3, 2, cells.data(), true);
    auto order = vectorOf<double>({1, 2, 3});
    // The columns are the smaller number, another one, and the larger number.
    numbers listed{1, 1, 2, 9, 9, 9, 3, 3, 3};
    const matrix<double> pairsOf(3, 3, listed.data(), true);
    const auto significance = vectorOf<int>({4, 0, 0});
    matrix<text> labels(3, 3, text());
    int groups = 0;
    short int done = 0;
    EXPECT_EQ(
        BuildGroupingForDiffs(values, 2, pairsOf, 3, significance, labels, groups, order, 3, 1, done, 0), -1);
    EXPECT_EQ(done, -1);
    EXPECT_EQ(cells, (numbers{10, 20, 30, 1, 2, 3})) << "rows move as a whole";
    EXPECT_EQ(numbers(order.data, order.data + 3), (numbers{2, 3, 1}));
    // Only 3 and 1 differ, by the first of the two rows for them; 2 and 1 are not listed.
    const rows expected{{u"A", u"B", u""}, {u"A", u"", u""}, {u"", u"B", u""}};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_EQ(labels.getElement(i, j),
                      expected[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)]);
        }
    }
    EXPECT_EQ(groups, 2);
    // Of two pairs only, none is significant: the last one is not read.
    matrix<int> last(3, 1);
    last.data[2] = 1;
    auto levels = vectorOf<double>({2, 3, 1});
    matrix<text> shared(3, 3, text());
    BuildGroupingForDiffs(values, 2, pairsOf, 2, last, shared, groups, levels, 3, 1, done, 0);
    EXPECT_EQ(groups, 1);
    BuildGroupingForDiffs(values, 2, pairsOf, 3, last, shared, groups, levels, 3, 1, done, 0);
    EXPECT_EQ(groups, 2);
    // Sorted already: nothing moves.
    auto again = vectorOf<double>({3, 2, 1});
    BuildGroupingForDiffs(values, 2, pairsOf, 3, significance, labels, groups, again, 3, 1, done, 1);
    EXPECT_EQ(numbers(again.data, again.data + 3), (numbers{3, 2, 1}));
    EXPECT_EQ(cells, (numbers{10, 20, 30, 1, 2, 3}));
}

TEST(ComparisonLetters, LeaveTheRestOfALargerTableEmpty)
{
    for (const short int sortResult : {short{0}, short{-1}}) {
        numbers cells{3, 1, 2};
        matrix<double> means(3, 1, cells.data(), true);
        matrix<int> significance = tableOf(3, allPairs(3));
        matrix<int> order(3, 1);
        matrix<text> labels(5, 300, text(u"?"));
        int groups = 0;
        short int success = 0;
        GetCompMatrices(means, 3, 0, significance, sortResult, order, &labels, &groups, &success, 0);
        const rows expected = sortResult == 0 ? rows{{u"A"}, {u"B"}, {u"C"}} : rows{{u"C"}, {u"A"}, {u"B"}};
        for (int i = 0; i < 5; ++i) {
            for (int j = 0; j < 300; ++j) {
                const bool isLetter =
                    i < 3 && j < 3 && expected[static_cast<std::size_t>(i)][0] == text(1, u"ABC"[j]);
                EXPECT_EQ(labels.getElement(i, j), isLetter ? text(1, u"ABC"[j]) : text()) << i << ' ' << j;
            }
        }
        EXPECT_EQ(groups, 3);
    }
}

TEST(ComparisonLetters, LeaveMeansAndNumbersBehindTheLevels)
{
    for (const int column : {0, 1}) {
        numbers cells{3, 1, 2, 7};
        matrix<double> means(4, 1, cells.data(), true);
        matrix<int> significance = tableOf(3, {});
        matrix<int> order(4, 1, 9);
        matrix<text> labels(3, 3, text());
        int groups = 0;
        short int success = 0;
        GetCompMatrices(means, 3, column, significance, 0, order, &labels, &groups, &success, 0);
        EXPECT_EQ(cells, (numbers{1, 2, 3, 7}));
        EXPECT_EQ(std::vector<int>(order.data, order.data + 4), (std::vector<int>{2, 3, 1, 9}));
    }
}

TEST(ComparisonLetters, FindEachOfManyPairs)
{
    for (const int k : {60, 258}) {
        numbers listed;
        matrix<int> significance(k, k);
        std::vector<int> perPair;
        for (const auto& [larger, smaller] : allPairs(k)) {
            const bool differ = (larger * larger + 5 * smaller) % 7 < 2;
            significance.vbset(larger, smaller, differ ? 1 : 0);
            perPair.push_back(differ ? 1 : 0);
            listed.push_back(larger);
        }
        const int count = static_cast<int>(listed.size());
        for (const auto& [larger, smaller] : allPairs(k)) {
            listed.push_back(smaller);
        }
        numbers means;
        auto levels = vectorOf<double>({});
        levels.Redim(k, 1);
        for (int i = 0; i < k; ++i) {
            means.push_back(i * 101 % k);
            levels.data[i] = i + 1;
        }
        const display made = displayOf(means, significance, 0);
        const matrix<double> pairTable(count, 2, listed.data(), true);
        const matrix<int> flags(count, 1, perPair.data(), true);
        matrix<double> values(k, 1, means.data(), true);
        matrix<text> labels(k, k, text());
        int groups = 0;
        short int done = 0;
        EXPECT_EQ(
            BuildGroupingForDiffs(values, 1, pairTable, count, flags, labels, groups, levels, 1, 2, done, 0),
            -1);
        EXPECT_GT(groups, k / 2);
        EXPECT_EQ(made.groups, groups);
        for (std::size_t i = 0; i < labels.nbElem; ++i) {
            ASSERT_EQ(made.labels.data[i], labels.data[i]) << k << ' ' << i;
        }
    }
}
