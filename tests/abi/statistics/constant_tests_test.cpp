#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatConstantTests, OfVectors)
{
    guarded<double> x{3, MISSING_DBL, 3, 1, 1, 1};
    EXPECT_EQ(VB_V_IsConstant(x.data(), 3, 0, 1), 0);
    EXPECT_EQ(VB_V_IsConstant(x.data(), 3, -1, 1), -1);
    EXPECT_EQ(VB_V_IsConstant(x.data(), 3, 0, 2), -1);
    EXPECT_EQ(VB_V_IsConstant(x.data(), 3, -1, 0), -1) << "0 stands for the first column";
    EXPECT_EQ(VB_V_IsConstant(nullptr, 0, 0, 1), -1);
    guarded<int> counts{3, MISSING_LNG, 3};
    EXPECT_EQ(VB_V_IsConstantLng(counts.data(), 3, 0), 0);
    EXPECT_EQ(VB_V_IsConstantLng(counts.data(), 3, -1), -1);
    guarded<short int> flags{-1, -1, 1};
    EXPECT_EQ(VB_V_IsConstantBool(flags.data(), 2), -1);
    EXPECT_EQ(VB_V_IsConstantBool(flags.data(), 3), 0);
    text_block words(texts{u"a", u"", u"a"});
    const automation_watch watch;
    EXPECT_EQ(VB_V_IsConstantStr(words.data(), 3, 0), 0);
    EXPECT_EQ(VB_V_IsConstantStr(words.data(), 3, -1), -1);
    EXPECT_TRUE(watch.texts(0, 0));
}

TEST(FlatConstantTests, OfColumns)
{
    guarded<double> x{1, MISSING_DBL, 2, 2, 5, 6};
    EXPECT_EQ(VB_M_IsColConstant(x.data(), 2, 2), -1);
    EXPECT_EQ(VB_M_IsColConstant(x.data(), 2, 3), 0);
    EXPECT_EQ(VB_M_IsColConstant(x.data(), 2, 0), -1) << "0 is one column";
    caller_columns chunks({{1, MISSING_DBL}, {2, 2}, {5, 6}});
    EXPECT_EQ(VB_M_IsColConstantSPV(chunks.argument(), 2, 2), -1);
    EXPECT_EQ(VB_M_IsColConstantSPV(chunks.argument(), 2, 3), 0);
}
