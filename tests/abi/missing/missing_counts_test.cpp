#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMissingCounts, OfNumbers)
{
    guarded<double> x{1, MISSING_DBL, MISSING_DBL, MISSING_DBL};
    guarded<int> counts{9, 9};
    EXPECT_EQ(VB_V_NbMissing(x.data(), 4), 3);
    EXPECT_EQ(VB_V_NbNonMissing(x.data(), 4), 1);
    EXPECT_EQ(VB_V_NbMissing(nullptr, 0), 0);
    EXPECT_EQ(VB_V_NbNonMissing(nullptr, 0), 0);
    EXPECT_EQ(VB_M_NbMissing(x.data(), 2, 2, counts.data()), 0);
    EXPECT_EQ(valuesOf(counts), (ints{1, 2}));
    EXPECT_EQ(VB_M_NbNonMissing(x.data(), 2, 2, counts.data()), 0);
    EXPECT_EQ(valuesOf(counts), (ints{1, 0}));
    EXPECT_EQ(VB_M_NbMissing(x.data(), 4, 0, counts.data()), 0);
    EXPECT_EQ(valuesOf(counts), (ints{3, 0})) << "0 is one column";
    EXPECT_EQ(VB_M_NbMissing2(x.data(), 2, 2), 3);
    EXPECT_EQ(VB_M_NbMissing2(x.data(), 2, 0), 1) << "0 is one column";
    caller_columns chunks({{MISSING_DBL, 2}, {MISSING_DBL, MISSING_DBL}});
    EXPECT_EQ(Cpp_M_NbMissingSPV(chunks.argument(), 2, 2), 3);
    EXPECT_EQ(VB_M_NbMissingSPV_T(chunks.argument(), 2, 2), 2);
    caller_columns high({{MISSING_DBL, 2, MISSING_DBL, MISSING_DBL}, {1, MISSING_DBL, MISSING_DBL}});
    EXPECT_EQ(VB_M_NbMissingSPV_T(high.argument(), 4, 2), 5) << "columns of 4 and of 3";
    EXPECT_EQ(VB_M_NbMissingSPV_T(high.argument(), 3, 2), 3) << "columns of 3 and of 2";
    EXPECT_EQ(VB_M_NbMissingSPV_T(high.argument(), 1, 2), 1) << "of 1, and none";
}

TEST(FlatMissingCounts, OfTexts)
{
    text_block x(texts{u"a", u"", u"", u""});
    guarded<int> counts{9, 9};
    const automation_watch watch;
    EXPECT_EQ(VB_V_NbMissingStr(x.data(), 3), 2);
    EXPECT_EQ(VB_M_NbMissingStr(x.data(), 2, 2, counts.data()), 0);
    EXPECT_EQ(valuesOf(counts), (ints{1, 2}));
    EXPECT_EQ(VB_M_NbMissing2Str(x.data(), 2, 2), 3);
    EXPECT_TRUE(watch.texts(0, 0));
}
