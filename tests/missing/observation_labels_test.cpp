#include "missing/observation_labels.h"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace
{

using labels = std::vector<text>;
using flags = std::vector<short int>;

labels replaced(labels given, flags flagged)
{
    matrix<text> x(static_cast<int>(given.size()), 1, given.data());
    ReplaceMissingObsLabels(&x, static_cast<int>(given.size()), flagged.data(), u"Obs");
    for (const short int flag : flagged) {
        EXPECT_NE(flag, -1) << "cleared";
    }
    return given;
}

} // namespace

TEST(ObservationLabels, AreMadeOfPrefixAndRow)
{
    EXPECT_EQ(replaced({u"a", u"", u"c"}, {0, -1, 0}), (labels{u"a", u"Obs2", u"c"}));
    EXPECT_EQ(replaced({u"a", u"b"}, {-1, 1}), (labels{u"Obs1", u"b"})) << "only -1 is a flag";
    EXPECT_EQ(replaced({u"Obs1"}, {-1}), (labels{u"Obs1"})) << "its own label is no other's";
    EXPECT_EQ(replaced({}, {}), labels{});
}

TEST(ObservationLabels, StayUnique)
{
    EXPECT_EQ(replaced({u"Obs2", u""}, {0, -1}), (labels{u"Obs2", u"Obs2_2"}));
    EXPECT_EQ(replaced({u"", u"Obs1", u"Obs1_2"}, {-1, 0, 0}), (labels{u"Obs1_3", u"Obs1", u"Obs1_2"}));
    EXPECT_EQ(replaced({u"", u"Obs1"}, {-1, -1}), (labels{u"Obs1_2", u"Obs2"}))
        << "the second still has its label when the first gets one";
    labels many(60, u"Obs7");
    const labels made = replaced(many, flags(60, -1));
    EXPECT_EQ(std::set<text>(made.begin(), made.end()).size(), made.size());
}
