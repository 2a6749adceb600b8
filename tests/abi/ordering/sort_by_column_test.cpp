#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

TEST(FlatSort, ByAColumnOfTheTable)
{
    guarded<double> x{1, 2, 3, 30, 10, 20};
    EXPECT_EQ(Cpp_SortQMatrixCol(x.data(), 3, 2, 2, 1, 3, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1, 10, 20, 30}));
    EXPECT_EQ(Cpp_SortQMatrixCol(x.data(), 3, 2, 3, 1, 3, -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1, 10, 20, 30}));

    guarded<int> integers{1, 2, 3};
    EXPECT_EQ(Cpp_SortQMatrixColLng(integers.data(), 3, 1, 1, 1, 2, 5), 0);
    EXPECT_EQ(valuesOf(integers), (ints{2, 1, 3}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"b", u"", u"ab", u"a", u"1", u"2", u"3", u"4"});
    EXPECT_EQ(Cpp_SortQMatrixColStr(blockOf(labels), 4, 2, 1, 1, 4, 0), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"", u"a", u"ab", u"b", u"2", u"4", u"3", u"1"}));
}

TEST(FlatSort, BySeveralColumns)
{
    guarded<double> x{1, 1, 0, 2, 1, 3};
    EXPECT_EQ(VB_SortMatrixSeqQDbl(x.data(), 3, 2), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 1, 1, 3, 1, 2}));
    EXPECT_EQ(VB_SortMatrixSeqQP1toP2Dbl(x.data(), 3, 2, 1, 2), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 1, 0, 1, 2, 3}));

    guarded<int> integers{1, 1, 0, 2, 1, 3};
    EXPECT_EQ(VB_SortMatrixSeqQLng(integers.data(), 3, 2), 0);
    EXPECT_EQ(valuesOf(integers), (ints{0, 1, 1, 3, 1, 2}));
    EXPECT_EQ(VB_SortMatrixSeqQP1toP2Lng(integers.data(), 3, 2, 2, 9), 0);
    EXPECT_EQ(valuesOf(integers), (ints{1, 1, 0, 1, 2, 3}));
}
