#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMissingFlags, OfVectorsAndTables)
{
    guarded<double> x{1, MISSING_DBL, 3, 4, 5, -1.7976931348623157e308};
    guarded<short int> in{-1, 0, 0};
    guarded<short int> out{9, 9, 9};
    EXPECT_EQ(VB_V_GetMissingDbl(x.data(), 3, in.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, -1, 0}));
    EXPECT_EQ(Cpp_M_GetMissingDbl(x.data(), 3, 2, nullptr, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{0, -1, -1})) << "the last cell is below the sentinel";
    EXPECT_EQ(Cpp_M_GetMissingDbl(x.data(), 3, 0, in.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, -1, 0})) << "0 is one column";
    text_block words(texts{u"a", u"", u"c", u"d"});
    const automation_watch watch;
    EXPECT_EQ(VB_V_GetMissingStr(words.data(), 2, nullptr, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{0, -1, 0}));
    EXPECT_EQ(Cpp_M_GetMissingStr(words.data(), 2, 2, in.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, -1, 0}));
    EXPECT_TRUE(watch.texts(0, 0));
    caller_columns chunks({{1, 2}, {MISSING_DBL, 4}});
    EXPECT_EQ(Cpp_M_GetMissingDblSPV(chunks.argument(), 2, 2, nullptr, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, 0, 0}));
    EXPECT_TRUE(x.intact() && in.intact());
}

TEST(FlatMissingFlags, AreSummarized)
{
    guarded<short int> a{-1, 0, 0, 1};
    guarded<short int> b{0, -1, 0, 0};
    guarded<short int> c{-1, 0, -1, 0};
    guarded<short int> result{5, 5, 5, 5};
    int count = 77;
    EXPECT_EQ(VB_SummarizeMissing(4, &count, result.data(), a.data(), b.data(), nullptr), 0);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(valuesOf(result), (shorts{-1, -1, 5, 5}));
    EXPECT_EQ(VB_SummarizeMissing(4, &count, result.data(), a.data(), b.data(), c.data()), 0);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(valuesOf(result), (shorts{-1, -1, -1, 5}));
    EXPECT_EQ(VB_SummarizeAllMissing(4, a.data(), c.data(), &count, b.data()), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(valuesOf(b), (shorts{-1, -1, 0, 0}));
    EXPECT_EQ(VB_SummarizeAllMissing(0, nullptr, nullptr, &count, nullptr), 0);
    EXPECT_EQ(count, 0);
}

TEST(FlatMissingFlags, OfRowsThatHaveNothing)
{
    guarded<double> x{MISSING_DBL, MISSING_DBL, MISSING_DBL, 1};
    guarded<short int> in{-1, -1};
    guarded<short int> out{9, 9};
    EXPECT_EQ(VB_M_AllMissingRows(x.data(), 2, 2, in.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, 9}));
    EXPECT_EQ(VB_M_AllMissingRows(x.data(), 2, 0, in.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (shorts{-1, -1})) << "0 is one column";
    text_block words(texts{u"", u"b"});
    guarded<short int> found{0, 0};
    EXPECT_EQ(VB_M_AllMissingRowsStr(words.data(), 2, 1, in.data(), found.data()), 0);
    EXPECT_EQ(valuesOf(found), (shorts{-1, 0}));
}

TEST(FlatMissingFlags, BesideTheDiagonal)
{
    guarded<double> x{1, 2, MISSING_DBL, 4};
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(x.data(), 2), -1);
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(x.data(), 1), 0);
    x.data()[0] = MISSING_DBL;
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(x.data(), 2), 0);
    caller_columns triangle({{1, MISSING_DBL}, {4}});
    EXPECT_EQ(Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(triangle.argument(), 2), -1);
}
