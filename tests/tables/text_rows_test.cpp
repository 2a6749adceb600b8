#include "tables/text_rows.h"

#include "containers/element_types.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(TextRows, TextsArePassedThroughTheSpareSlotToo)
{
    auto x = numbered<text>(2, 2); // b c, d e
    x.oobValue = u"!";
    matrix<text> out(2, 1, text());
    M_MergeStringsByRow(&x, 2, 3, &out);
    EXPECT_EQ(out.data[0], u"bd!");
    EXPECT_EQ(out.oobValue, u"ce!");

    auto same = numbered<text>(2, 1);
    EXPECT_EQ(CheckSameVectorStr(&same, 3, &same, 3), -1);
    auto other = numbered<text>(2, 1);
    other.oobValue = u"!";
    EXPECT_EQ(CheckSameVectorStr(&same, 2, &other, 2), -1);
    EXPECT_EQ(CheckSameVectorStr(&same, 3, &other, 3), 0);
}
