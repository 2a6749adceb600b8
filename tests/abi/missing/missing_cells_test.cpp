#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMissingCells, TakeAValue)
{
    guarded<double> x{1, MISSING_DBL, MISSING_DBL, 4};
    EXPECT_EQ(VB_M_ReplaceMissingByVal(x.data(), 2, 0, 7), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 7, MISSING_DBL, 4})) << "0 is one column";
    EXPECT_EQ(VB_M_ReplaceMissingByVal(x.data(), 2, 2, 8), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 7, 8, 4}));
    caller_columns chunks({{MISSING_DBL, 2}, {3, MISSING_DBL}});
    EXPECT_EQ(VB_M_ReplaceMissingByValSPV(chunks.argument(), 2, 2, 7), 0);
    EXPECT_EQ(chunks.values(), (caller_columns::columns{{7, 2}, {3, 7}}));
    caller_memory caller;
    ST_MVect record = caller.table(
        {caller.column(u"a", doubles{MISSING_DBL, 2}), caller.column(u"b", doubles{3, MISSING_DBL})},
        {u"a", u"b"});
    EXPECT_EQ(Cpp_M_ReplaceMissingByVal_ST(&record, 2, 5, 7), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), (doubles{7, 2}));
    EXPECT_EQ(numbersIn<double>(columnOf(record, 1).Vect), (doubles{3, 7}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatMissingCells, TakeAText)
{
    text_block x(texts{u"a", u"", u"c", u""});
    BSTR const kept = x.data()[0];
    caller_memory caller;
    BSTR const none = caller.label(u"none");
    ST_MVect record = caller.table({caller.column(u"a", texts{u"", u"b"})}, {u"a"});
    const automation_watch watch;
    EXPECT_EQ(VB_M_ReplaceMissingByStr(x.data(), 2, 1, none), 0);
    EXPECT_EQ(x.values(), (texts{u"a", u"none", u"c", u""}));
    EXPECT_EQ(x.data()[0], kept);
    EXPECT_TRUE(watch.texts(1, 1));
    EXPECT_EQ(VB_M_ReplaceMissingByStr(x.data(), 2, 2, none), 0);
    EXPECT_EQ(x.values(), (texts{u"a", u"none", u"c", u"none"}));
    EXPECT_EQ(Cpp_M_ReplaceMissingByStr_ST(&record, 2, 1, none), 0);
    EXPECT_EQ(textsIn(columnOf(record, 0).Vect), (texts{u"none", u"b"}));
}

TEST(FlatMissingCells, AreMadeMarkedAndWeighed)
{
    guarded<double> x{1, 2, 3, 4};
    guarded<int> marks{0, 1, 0, 0};
    EXPECT_EQ(Cpp_M_ReplaceByMissing(x.data(), 2, 2, marks.data(), 2, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, MISSING_DBL, 3, 4})) << "only the marked cell";
    EXPECT_EQ(Cpp_M_ReplaceByMissing(x.data(), 2, 2, marks.data(), 2, -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, MISSING_DBL, 3, MISSING_DBL}));
    marks.data()[2] = 5;
    EXPECT_EQ(Cpp_M_ReplaceByMissingIfVal(x.data(), 2, 2, marks.data(), 2, 5, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, MISSING_DBL, MISSING_DBL, MISSING_DBL}));
    EXPECT_EQ(Cpp_M_IdentifyMissingInMat(x.data(), 2, 2, marks.data()), 0);
    EXPECT_EQ(valuesOf(marks), (ints{0, 1, 1, 1}));
    caller_columns chunks({{MISSING_DBL, 2}});
    EXPECT_EQ(Cpp_M_IdentifyMissingInMatSPV(chunks.argument(), 2, 1, marks.data()), 0);
    EXPECT_EQ(valuesOf(marks), (ints{1, 1, 1, 1}));
    guarded<double> w{5, 6, 7, 8};
    EXPECT_EQ(VB_M_SetWeightsToZeroForMissing(x.data(), 2, 2, w.data(), 0), 0);
    EXPECT_EQ(valuesOf(w), (doubles{5, 0, 0, 0}));
    guarded<double> rows{5, 6};
    EXPECT_EQ(VB_M_SetWeightsToZeroForMissing(x.data(), 2, 1, rows.data(), 1), 0);
    EXPECT_EQ(valuesOf(rows), (doubles{5, 0}));
    guarded<double> y{1, 2, MISSING_DBL, 4};
    EXPECT_EQ(VB_M_SetWeightsToZeroForMissing(y.data(), 2, 2, rows.data(), 1), 0);
    EXPECT_EQ(valuesOf(rows), (doubles{0, 0})) << "a weight for each row, whatever column misses";
}
