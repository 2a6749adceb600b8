#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::columnOf;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::numbersIn;
using korvel::test::shorts;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

TEST(FlatApplyOrder, TakesRowsInTheGivenOrder)
{
    guarded<double> order{3, 1, 2.9};
    guarded<double> x{1, 2, 3, 10, 20, 30};
    guarded<double> out{0, 0, 0, 0, 0, 0};
    EXPECT_EQ(VB_SortApply(x.data(), 3, 2, order.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{3, 1, 2, 30, 10, 20}));
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3, 10, 20, 30}));
    EXPECT_EQ(VB_SortApply(x.data(), 3, 2, order.data(), x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 1, 2, 30, 10, 20}));

    guarded<int> integers{1, 2, 3};
    guarded<int> integerOut{0, 0, 0};
    EXPECT_EQ(VB_SortApplyLng(integers.data(), 3, 1, order.data(), integerOut.data()), 0);
    EXPECT_EQ(valuesOf(integerOut), (ints{3, 1, 2}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c"});
    SAFEARRAY* labelsOut = memory.texts({u"c", u"", u""});
    BSTR kept = blockOf(labelsOut)[0];
    EXPECT_EQ(VB_SortApplyStr(blockOf(labels), 3, 1, order.data(), blockOf(labelsOut)), 0);
    EXPECT_EQ(textsIn(labelsOut), (texts{u"c", u"a", u"b"}));
    EXPECT_EQ(blockOf(labelsOut)[0], kept);
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatApplyOrder, ATableWithoutColumnsLeavesTheResultAlone)
{
    guarded<double> order{3, 1, 2};
    guarded<double> x{1, 2, 3};
    guarded<double> out{7, 8, 9};
    EXPECT_EQ(VB_SortApply(x.data(), 3, 0, order.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{7, 8, 9}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c"});
    SAFEARRAY* labelsOut = memory.texts({u"x", u"y", u"z"});
    EXPECT_EQ(VB_SortApplyStr(blockOf(labels), 3, 0, order.data(), blockOf(labelsOut)), 0);
    EXPECT_EQ(textsIn(labelsOut), (texts{u"x", u"y", u"z"}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatApplyOrder, WorksInPlaceOnEveryForm)
{
    guarded<double> order{3, 1, 2};
    guarded<double> x{1, 2, 3};
    EXPECT_EQ(VB_SortApply2(x.data(), 3, 1, order.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 1, 2}));
    guarded<int> integers{1, 2, 3};
    EXPECT_EQ(VB_SortApply2Lng(integers.data(), 3, 1, order.data()), 0);
    EXPECT_EQ(valuesOf(integers), (ints{3, 1, 2}));
    guarded<short int> booleans{0, 0, -1};
    EXPECT_EQ(Cpp_SortApply2Bool(booleans.data(), 3, 1, order.data()), 0);
    EXPECT_EQ(valuesOf(booleans), (shorts{-1, 0, 0}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c"});
    EXPECT_EQ(VB_SortApply2Str(blockOf(labels), 3, 1, order.data()), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"c", u"a", u"b"}));

    ST_MVect table = memory.table({memory.column(u"p", doubles{1, 2, 3}), memory.column(u"q", doubles{4, 5})},
                                  {u"p", u"q"});
    EXPECT_EQ(Cpp_SortApply2_ST(&table, 3, 5, order.data()), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(table, 0).Vect), (doubles{3, 1, 2}));
    EXPECT_EQ(numbersIn<double>(columnOf(table, 1).Vect), (doubles{-1, 4}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatApplyOrder, ANumberThatIsNoRowReadsTheSpareSlot)
{
    guarded<double> order{4, 0, -1e300, std::numeric_limits<double>::quiet_NaN(), 2147483648.0, 5};
    guarded<double> x{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(VB_SortApply2(x.data(), 6, 1, order.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{4, -1, -1, -1, -1, 5}));
}

TEST(FlatApplyOrder, TheOrderMayBeTheTableOrTheResult)
{
    guarded<double> x{3, 1, 2};
    VB_SortApply2(x.data(), 3, 1, x.data());
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1}));
    guarded<double> table{10, 20, 30};
    VB_SortApply(table.data(), 3, 1, x.data(), x.data());
    EXPECT_EQ(valuesOf(x), (doubles{20, 30, 10}));
}
