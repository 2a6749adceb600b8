#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatExpectedFrequencies, FillARecord)
{
    caller_memory caller;
    ST_MVect record =
        caller.table({caller.column(u"a", doubles{1, MISSING_DBL, 8}), caller.column(u"b", doubles{2, 8, 5})},
                     {u"a", u"b"});
    const ST_MVect before = record;
    EXPECT_EQ(Cpp_ReplaceMissingInContengencyByExp_ST(&record, 3), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), (doubles{1, 3, 8}));
    EXPECT_EQ(numbersIn<double>(columnOf(record, 1).Vect), (doubles{2, 8, 5}));
    EXPECT_EQ(record.nbcols, before.nbcols);
    EXPECT_EQ(record.samenbrows, before.samenbrows);
    EXPECT_EQ(record.nbrowsmax, before.nbrowsmax);
    EXPECT_EQ(columnOf(record, 0).Count, 3);
    EXPECT_TRUE(caller.guardsIntact());
}
