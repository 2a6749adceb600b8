#include "tables/labels.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{

using labels = std::vector<text>;

labels distinct(labels given)
{
    matrix<text> x(static_cast<int>(given.size()), 1, given.data());
    V_ReplaceDoubles(&x, static_cast<int>(given.size()));
    return given;
}

/** Each label compared with all behind it. */
labels walked(labels given)
{
    for (std::size_t i = 0; i < given.size(); ++i) {
        int number = 2;
        const text label = given[i];
        for (std::size_t j = i + 1; j < given.size(); ++j) {
            if (given[j] != label) {
                continue;
            }
            const auto isInFront = [&](const text& made) {
                for (std::size_t k = 0; k < i; ++k) {
                    if (given[k] == made) {
                        return true;
                    }
                }
                return false;
            };
            do {
                const std::string digits = std::to_string(number++);
                given[j] = label + text(digits.begin(), digits.end());
            } while (isInFront(given[j]));
        }
    }
    return given;
}

} // namespace

TEST(Labels, RepeatsAreNumberedFromTwo)
{
    EXPECT_EQ(distinct({}), labels{});
    EXPECT_EQ(distinct({u"a", u"b"}), (labels{u"a", u"b"}));
    EXPECT_EQ(distinct({u"a", u"a", u"b", u"a"}), (labels{u"a", u"a2", u"b", u"a3"}));
    EXPECT_EQ(distinct({u"a", u"b", u"a", u"b"}), (labels{u"a", u"b", u"a2", u"b2"})) << "each from 2";
    EXPECT_EQ(distinct({u"a", u"A"}), (labels{u"a", u"A"}));
    EXPECT_EQ(distinct({u"", u""}), (labels{u"", u"2"}));
    EXPECT_EQ(distinct(labels(12, u"x")).back(), u"x12");
}

TEST(Labels, ARepeatThatMakesAnotherRepeatIsNumberedAgain)
{
    EXPECT_EQ(distinct({u"a", u"a", u"a2"}), (labels{u"a", u"a2", u"a22"}));
    EXPECT_EQ(distinct({u"a", u"a2", u"a"}), (labels{u"a", u"a2", u"a22"}));
    EXPECT_EQ(distinct({u"a2", u"a", u"a"}), (labels{u"a2", u"a", u"a3"})) << "what stands in front is taken";
    EXPECT_EQ(distinct({u"", u"2", u""}), (labels{u"", u"2", u"22"}));
}

TEST(Labels, AreDistinctAndEqualThePlainWalk)
{
    std::mt19937 random(7);
    const labels pieces{u"", u"a", u"a2", u"a22", u"2", u"22", u"a3", u"b", u"b2"};
    for (int round = 0; round < 400; ++round) {
        labels given(random() % 30);
        for (text& label : given) {
            label = pieces[random() % pieces.size()];
        }
        const labels made = distinct(given);
        EXPECT_EQ(made, walked(given));
        EXPECT_EQ(std::set<text>(made.begin(), made.end()).size(), made.size());
    }
}

TEST(Labels, BehindTheEndOnlyTheSpareSlotChanges)
{
    labels given{u"a", u"a"};
    matrix<text> x(2, 1, given.data());
    V_ReplaceDoubles(&x, 4);
    EXPECT_EQ(given, (labels{u"a", u"a2"}));
}

TEST(Labels, AreJoined)
{
    labels first{u"a", u"", u"c"};
    labels second{u"1", u"2", u""};
    labels joined{u"?", u"?", u"?"};
    matrix<text> a(3, 1, first.data());
    matrix<text> b(3, 1, second.data());
    matrix<text> out(3, 1, joined.data());
    V_MergeVectorsStr(&a, 2, &b, u" - ", &out);
    EXPECT_EQ(joined, (labels{u"a - 1", u" - 2", u"?"}));
    V_MergeVectorsStr(&a, 3, &b, u"", &a);
    EXPECT_EQ(first, (labels{u"a1", u"2", u"c"}));
    V_MergeVectorsStr(&a, 0, &b, u"", &out);
    EXPECT_EQ(joined, (labels{u"a - 1", u" - 2", u"?"}));
}
