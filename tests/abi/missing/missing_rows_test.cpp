#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMissingRows, MoveUpInPlace)
{
    guarded<double> x{1, 2, 3, 11, 12, 13};
    guarded<short int> flags{-1, 0, 0};
    EXPECT_EQ(Cpp_M_RemoveRowsWithMissing2(x.data(), 3, 2, flags.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 3, 12, 13, 13}));
    EXPECT_EQ(Cpp_M_RemoveRowsWithMissing2(x.data(), 3, 0, flags.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 3, 3, 12, 13, 13})) << "0 is one column";
}

TEST(FlatMissingRows, AreLeftOutOfACopy)
{
    guarded<double> x{1, 2, 3, 11, 12, 13};
    guarded<short int> flags{0, 5, 0};
    guarded<double> result{70, 70, 70, 70};
    EXPECT_EQ(VB_RemoveRowsWithMissing(x.data(), 3, 2, 1, flags.data(), result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{1, 3, 11, 13}));
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3, 11, 12, 13}));
    guarded<double> column{70, 70};
    EXPECT_EQ(VB_RemoveRowsWithMissing(x.data(), 3, 0, 1, flags.data(), column.data()), 0);
    EXPECT_EQ(valuesOf(column), (doubles{1, 3})) << "0 is one column";
    EXPECT_EQ(Cpp_RemoveRowsWithMissingOniMissing(x.data(), 3, 2, flags.data(), result.data()), 2)
        << "how many stay";
    EXPECT_EQ(valuesOf(result), (doubles{1, 3, 11, 13}));
    EXPECT_EQ(VB_RemoveRowsWithMissing(x.data(), 3, 2, 1, flags.data(), x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 11, 13, 12, 13})) << "over the table itself";
    guarded<short int> cells{-1, 0, 7};
    guarded<short int> shorter{9, 9};
    EXPECT_EQ(VB_RemoveRowsWithMissingBool(cells.data(), 3, 1, 1, flags.data(), shorter.data()), 0);
    EXPECT_EQ(valuesOf(shorter), (shorts{-1, 7}));
    guarded<short int> oneColumn{9, 9};
    EXPECT_EQ(VB_RemoveRowsWithMissingBool(cells.data(), 3, 0, 1, flags.data(), oneColumn.data()), 0);
    EXPECT_EQ(valuesOf(oneColumn), (shorts{-1, 7})) << "0 is one column";
    guarded<double> shortest{70, 70};
    EXPECT_EQ(Cpp_RemoveRowsWithMissingOniMissing(x.data(), 3, 0, flags.data(), shortest.data()), 2);
    EXPECT_EQ(valuesOf(shortest), (doubles{1, 11})) << "of what stands there now";
    EXPECT_EQ(VB_RemoveRowsWithMissing(nullptr, 0, 1, 0, nullptr, nullptr), 0);
}

TEST(FlatMissingRows, OfTextsMoveUpAndAreCopied)
{
    text_block x(texts{u"a", u"b", u"c", u"1", u"2", u"3"});
    text_block result(texts{u"a", u"?", u"?", u""});
    guarded<short int> flags{0, -1, 0};
    BSTR const kept = x.data()[0];
    BSTR const same = result.data()[0];
    const automation_watch watch;
    EXPECT_EQ(VB_RemoveRowsWithMissingStr(x.data(), 3, 2, 1, flags.data(), result.data()), 0);
    EXPECT_EQ(x.values(), (texts{u"a", u"c", u"c", u"1", u"3", u"3"})) << "the block itself is compressed";
    EXPECT_EQ(result.values(), (texts{u"a", u"c", u"1", u"3"}));
    EXPECT_EQ(x.data()[0], kept);
    EXPECT_EQ(result.data()[0], same);
    EXPECT_TRUE(watch.texts(5, 5));
    text_block y(texts{u"a", u"b", u"c"});
    text_block some(texts{u"?", u"?"});
    EXPECT_EQ(Cpp_RemoveRowsWithMissingOniMissingStr(y.data(), 3, 0, flags.data(), some.data()), 2);
    EXPECT_EQ(some.values(), (texts{u"a", u"c"}));
    EXPECT_EQ(y.values(), (texts{u"a", u"b", u"c"}));
}

TEST(FlatMissingRows, AreSpreadAgain)
{
    guarded<double> x{1, 2, 11, 12};
    guarded<short int> flags{0, -1, 0};
    guarded<double> result{70, 70, 70, 70, 70, 70};
    EXPECT_EQ(Cpp_M_InsertMissingDbl(x.data(), 2, 2, flags.data(), 1, result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{1, MISSING_DBL, 2, 11, MISSING_DBL, 12}));
    guarded<short int> none{0, 0};
    guarded<double> copy{70, 70};
    EXPECT_EQ(Cpp_M_InsertMissingDbl(x.data(), 2, 0, none.data(), 0, copy.data()), 0);
    EXPECT_EQ(valuesOf(copy), (doubles{1, 2})) << "a plain copy of the one column";
    guarded<int> k{4, 5};
    guarded<int> longer{70, 70, 70};
    EXPECT_EQ(Cpp_M_InsertMissingLng(k.data(), 2, 1, flags.data(), 1, longer.data()), 0);
    EXPECT_EQ(valuesOf(longer), (ints{4, MISSING_LNG, 5}));
    guarded<int> again{70, 70, 70};
    EXPECT_EQ(Cpp_M_InsertMissingLng(k.data(), 2, 0, flags.data(), 1, again.data()), 0);
    EXPECT_EQ(valuesOf(again), (ints{4, MISSING_LNG, 5})) << "0 is one column";
    guarded<double> over{1, 2, 11, 12, 70, 70};
    EXPECT_EQ(Cpp_M_InsertMissingDbl(over.data(), 2, 2, flags.data(), 1, over.data()), 0);
    EXPECT_EQ(valuesOf(over), (doubles{1, MISSING_DBL, 2, 11, MISSING_DBL, 12})) << "over the table itself";
}
