#include "ordering/trim.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using words = std::vector<text>;

words trimmed(const words& given, short int left, short int right)
{
    words cells = given;
    matrix<text> labels(static_cast<int>(cells.size()), 1, cells.data());
    matrix<text> out(static_cast<int>(cells.size()), 1, text(u"old"));
    EXPECT_EQ(V_Trim(&labels, static_cast<int>(cells.size()), left, right, &out), 0);
    EXPECT_EQ(cells, given);
    const words found(out.data, out.data + out.nbElem);
    EXPECT_EQ(V_Trim2(&labels, static_cast<int>(cells.size()), left, right), 0);
    EXPECT_EQ(cells, found) << "in place";
    return found;
}

const words rough{u"  a b ", u"   ", u"", u"\ta ", u"\u00A0x"};

} // namespace

TEST(Trim, StripsSpacesFromTheEndsAsked)
{
    EXPECT_EQ(trimmed(rough, -1, 0), (words{u"a b ", u"", u"", u"\ta ", u"\u00A0x"}));
    EXPECT_EQ(trimmed(rough, 0, -1), (words{u"  a b", u"", u"", u"\ta", u"\u00A0x"}));
    EXPECT_EQ(trimmed(rough, -1, -1), (words{u"a b", u"", u"", u"\ta", u"\u00A0x"}));
    EXPECT_EQ(trimmed(rough, 1, 1), rough) << "only -1 asks for it";
}

TEST(Trim, StripsBothEndsOfOneText)
{
    EXPECT_EQ(StrLRTrim(u"  a b "), u"a b");
    EXPECT_EQ(StrLRTrim(u"   "), u"");
    EXPECT_EQ(StrLRTrim(u""), u"");
    EXPECT_EQ(StrLRTrim(u"\ta "), u"\ta");
}

TEST(Trim, BeyondTheVectorReachesTheSpareSlot)
{
    matrix<text> labels(1, 1, text(u" a "));
    matrix<text> out(1, 1, text());
    labels.oobValue = u" b ";
    V_Trim(&labels, 2, -1, -1, &out);
    EXPECT_EQ(out.data[0], u"a");
    EXPECT_EQ(out.oobValue, u"b");
}
