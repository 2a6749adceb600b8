#include "domain/range_texts.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

struct simplified {
    const char* rule;
    text value;
    text expected;
};

const std::vector<simplified> lists{
    {"neighbours are joined, the next range follows", u"'S'!$B:$B,'S'!$C:$C,'S'!$F:$G",
     u"'S'!$B:$C,'S'!$F:$G"},
    {"reverse order", u"'S'!$D:$D,'S'!$C:$C,'S'!$B:$B", u"'S'!$B:$D"},
    {"two neighbours", u"'My sheet'!$C:$D,'My sheet'!$A:$B", u"'My sheet'!$A:$D"},
    {"a last column without its dollar", u"'S'!$B:$B,'S'!$D:$E", u"'S'!$B:B,'S'!$D:$E"},
    {"three apart", u"'S'!$A:$A,'S'!$C:$D,'S'!$F:$F", u"'S'!$A:A,'S'!$C:D,'S'!$F:$F"},
    {"apart, then joined", u"'S'!$A:$A,'S'!$C:$C,'S'!$D:$D", u"'S'!$A:A,'S'!$C:$D"},
    {"joined twice", u"'S'!$A:$A,'S'!$B:$B,'S'!$D:$D,'S'!$E:$E", u"'S'!$A:$B,'S'!$D:$E"},
    {"joined, then two apart", u"'S'!$A:$A,'S'!$B:$B,'S'!$D:$D,'S'!$F:$F", u"'S'!$A:$B,'S'!$D:D,'S'!$F:$F"},
    {"joined, apart, joined", u"'S'!$A:$A,'S'!$B:$B,'S'!$D:$D,'S'!$F:$F,'S'!$G:$H",
     u"'S'!$A:$B,'S'!$D:D,'S'!$F:$H"},
    {"Z and AA are not neighbours", u"'S'!$AA:$AA,'S'!$Z:$Z", u"'S'!$Z:Z,'S'!$AA:$AA"},
    {"AZ and BA are", u"'S'!$BA:$BB,'S'!$AY:$AZ", u"'S'!$AY:$BB"},
    {"overlapping ranges are not merged", u"'S'!$A:$C,'S'!$B:$D", u"'S'!$A:C,'S'!$B:$D"},
    {"equal first columns keep their order", u"'S'!$B:$D,'S'!$B:$C,'S'!$A:$A", u"'S'!$A:$D,'S'!$B:$C"},
    {"the last range ends where another one goes on", u"'S'!$B:$C,'S'!$D:$E,'S'!$A:$F",
     u"'S'!$A:F,'S'!$B:$E"},
    {"a sheet without a name", u"''!$C:$C,''!$B:$B", u"''!$B:$C"},
    {"columns are sorted by number", u"'S'!$AB:$AC,'S'!$Y:$Y,'S'!$B:$B", u"'S'!$B:B,'S'!$Y:Y,'S'!$AB:$AC"},
};

const std::vector<simplified> unchanged{
    {"a single range", u"'S'!$B:$B", u""},
    {"nothing", u"", u""},
    {"a single range with more around it", u"see 'S'!x$B:$C", u""},
    {"two sheets", u"'S'!$C:$C,'T'!$B:$B", u""},
    {"the last one of three on another sheet", u"'S'!$C:$C,'S'!$B:$B,'T'!$A:$A", u""},
    {"rows", u"'S'!$2:$5,'S'!$1:$1", u""},
    {"a last column that begins with a digit", u"'S'!$B:$9,'S'!$A:$A", u""},
    {"of the last range too", u"'S'!$B:$B,'S'!$A:$0", u""},
    {"no quotes", u"S!$B:$B,S!$A:$A", u""},
    {"one without quotes", u"'S'!$B:$B,S!$A:$A", u""},
    {"one quote", u"'S!$B:$B,S!$A:$A", u""},
    {"no dollars", u"'S'!B:B,'S'!A:A", u""},
    {"no colon", u"'S'!$B,'S'!$A", u""},
    {"no dollar before a last column", u"'S'!$B:B,'S'!$A", u""},
    {"commas alone", u",,", u""},
};

} // namespace

TEST(RangeTexts, AreSortedAndJoined)
{
    for (const simplified& list : lists) {
        EXPECT_EQ(cSimplifyRange(list.value), list.expected) << list.rule;
    }
}

TEST(RangeTexts, ComeBackAsTheyAreWhereTheyAreNoList)
{
    for (const simplified& list : unchanged) {
        EXPECT_EQ(cSimplifyRange(list.value), list.value) << list.rule;
    }
}

TEST(RangeTexts, OnlyTestTheFirstCharacterForARow)
{
    EXPECT_EQ(cSimplifyRange(u"'S'!$B2:$C4,'S'!$A:$A"), u"'S'!$A:A,'S'!$B2:$C4");
    EXPECT_EQ(cSimplifyRange(u"'S'!$B:$B,'S'!$A:"), u"'S'!$A:,'S'!$B:$B") << "an empty column is not a row";
}

TEST(RangeTexts, StepFromColumnToColumn)
{
    const std::vector<std::vector<text>> steps{
        {u"A", u"B"},     {u"Y", u"Z"},     {u"Z", u"A"}, {u"ZZ", u"AA"},   {u"AZ", u"BA"}, {u"AAZ", u"ABA"},
        {u"AZZ", u"BAA"}, {u"ZZZ", u"AAA"}, {u"", u""},   {u"XFC", u"XFD"}, {u"ZA", u"ZB"}};
    for (const auto& step : steps) {
        EXPECT_EQ(cIncrease1Col(step[0]), step[1]);
        EXPECT_EQ(AreContiguous(step[0], step[1]), -1);
        EXPECT_EQ(AreContiguous(step[0], step[1] + u"A"), 0);
    }
    EXPECT_EQ(AreContiguous(u"Z", u"AA"), 0);
    EXPECT_EQ(AreContiguous(u"B", u"A"), 0);
    EXPECT_EQ(AreContiguous(u"B", u"B"), 0);
}
