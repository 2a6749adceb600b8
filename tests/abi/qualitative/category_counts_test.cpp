#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatCategoryCounts, AreOfDifferentTextsWithoutTheEmptyOne)
{
    text_block data({u"a", u"b", u"a", u"", u"", u""});
    guarded<int> counts{7, 7};
    EXPECT_EQ(Cpp_GetMaxCat(data.data(), 3, 2, counts.data()), 2);
    EXPECT_EQ(valuesOf(counts), (ints{2, 0}));
    EXPECT_EQ(Cpp_GetMaxCat(data.data(), 3, 0, counts.data()), 0);
    EXPECT_EQ(Cpp_GetMaxCat(data.data(), 0, 2, counts.data()), 0);
    EXPECT_EQ(valuesOf(counts), (ints{0, 0}));
}

TEST(FlatCategoryCounts, FindANameThatIsUsedTwice)
{
    guarded<int> counts{3};
    text_block repeated({u"a", u"b", u"a"});
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(repeated.data(), 1, 3, counts.data()), 1);
    guarded<int> two{2, 2};
    text_block crossed({u"a", u"x", u"b", u"a"}); // The rows a, b and x, a.
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(crossed.data(), 2, 2, two.data()), 1);
    text_block sameSlots({u"a", u"a", u"b", u"b"});
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(sameSlots.data(), 2, 2, two.data()), 0);
    text_block empty({u"", u""});
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(empty.data(), 1, 2, two.data()), 1);
    EXPECT_EQ(Cpp_CheckUniqueCatByVar(empty.data(), 0, 2, two.data()), 0);
}
