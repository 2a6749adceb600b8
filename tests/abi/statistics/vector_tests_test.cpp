#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatVectorTests, OfNumbers)
{
    guarded<double> x{0, 1, MISSING_DBL, 2.5};
    EXPECT_EQ(VB_V_IsPositive(x.data(), 4, 0), -1);
    EXPECT_EQ(VB_V_IsPositive(x.data(), 4, -1), 0);
    EXPECT_EQ(VB_V_IsWeights(x.data(), 4), -1);
    EXPECT_EQ(VB_V_IsWeights(x.data(), 1), 0);
    EXPECT_EQ(VB_V_IsCWeights(x.data(), 3), -1);
    EXPECT_EQ(VB_V_IsCWeights(x.data(), 4), 0);
    EXPECT_EQ(VB_V_IsIndicator(x.data(), 2), -1);
    EXPECT_EQ(VB_V_IsIndicator(x.data(), 1), 0);
    EXPECT_EQ(VB_V_Is01(x.data(), 2), -1);
    EXPECT_EQ(VB_V_Is01(x.data(), 3), 0) << "a missing element fails";
    EXPECT_EQ(VB_V_IsInInterval(x.data(), 2, 0, 1, 0, 0), -1);
    EXPECT_EQ(VB_V_IsInInterval(x.data(), 2, 0, 1, -1, 0), 0);
    EXPECT_EQ(VB_V_IsInInterval(x.data(), 3, 0, 1, 0, -1), -1);
    for (const short int result :
         {VB_V_IsPositive(nullptr, 0, 0), VB_V_Is01(nullptr, 0), VB_V_IsInInterval(nullptr, 0, 0, 1, 0, 0),
          VB_V_V1inferiorV2(nullptr, 0, nullptr), VB_V_V1GreaterThanMatCols(nullptr, 0, nullptr, 2)}) {
        EXPECT_EQ(result, -1) << "of nothing";
    }
    for (const short int result : {VB_V_IsWeights(nullptr, 0), VB_V_IsCWeights(nullptr, 0),
                                   VB_V_IsIndicator(nullptr, 0), Cpp_V_FindLng(nullptr, 0, 1)}) {
        EXPECT_EQ(result, 0) << "of nothing";
    }
    EXPECT_TRUE(x.intact());
}

TEST(FlatVectorTests, OfHostArrays)
{
    caller_memory caller;
    SAFEARRAY* ones = caller.array<double>({1, MISSING_DBL, 1, 2});
    EXPECT_EQ(Cpp_V_IsWeights_ST(&ones, 4), -1);
    EXPECT_EQ(Cpp_V_IsWeights_ST(&ones, 5), 0) << "an element past the end reads as -1";
    short int all1 = 77;
    EXPECT_EQ(Cpp_V_IsWeightsAndAll1_ST(&ones, 3, &all1), -1);
    EXPECT_EQ(all1, -1);
    EXPECT_EQ(Cpp_V_IsWeightsAndAll1_ST(&ones, 4, &all1), -1);
    EXPECT_EQ(all1, 0);
    EXPECT_EQ(Cpp_V_IsWeightsAndAll1_ST(&ones, 0, &all1), 0);
    SAFEARRAY* flags = caller.array<short int>({-1, 1, -1});
    EXPECT_EQ(Cpp_V_NbTrue_ST(&flags, 3), 2);
    EXPECT_EQ(Cpp_V_NbTrue_ST(&flags, 9), 2);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatVectorTests, OfTables)
{
    guarded<double> x{0, 1, 0.5, -2};
    guarded<short int> second{0, 5};
    EXPECT_EQ(Cpp_M_IsPositive(x.data(), 2, 2, nullptr, 0), 0);
    EXPECT_EQ(Cpp_M_IsPositive(x.data(), 2, 2, second.data(), 0), -1);
    EXPECT_EQ(Cpp_M_IsPositive(x.data(), 2, 2, second.data(), -1), 0);
    EXPECT_EQ(Cpp_M_IsPositive(x.data(), 2, 0, nullptr, 0), -1) << "0 is one column";
    EXPECT_EQ(VB_M_IsIn01(x.data(), 2, 1), -1);
    EXPECT_EQ(VB_M_IsIn01(x.data(), 2, 2), 0);
    EXPECT_EQ(VB_M_IsIn01(x.data(), 2, 0), -1) << "0 is one column";
    EXPECT_EQ(VB_M_IsLong(x.data(), 2, 1), -1);
    EXPECT_EQ(VB_M_IsLong(x.data(), 2, 2), 0);
    EXPECT_EQ(VB_M_IsLong(x.data(), 2, 0), -1) << "0 is one column";
    guarded<double> bounds{0.5, 1};
    EXPECT_EQ(VB_V_V1GreaterThanMatCols(bounds.data(), 2, x.data(), 2), -1);
    bounds.data()[1] = 0.5;
    EXPECT_EQ(VB_V_V1GreaterThanMatCols(bounds.data(), 2, x.data(), 2), 0);
    EXPECT_EQ(VB_V_V1inferiorV2(bounds.data(), 2, x.data() + 1), -1);
    EXPECT_EQ(VB_V_V1inferiorV2(bounds.data(), 2, x.data()), 0);

    caller_memory caller;
    ST_MVect record = caller.table(
        {caller.column(u"a", doubles{0, 1}), caller.column(u"b", doubles{0.5, -2})}, {u"a", u"b"});
    EXPECT_EQ(Cpp_M_IsPositive_ST(&record, 2, 2, nullptr, 0), 0);
    EXPECT_EQ(Cpp_M_IsPositive_ST(&record, 2, 2, second.data(), 0), -1);
    EXPECT_EQ(Cpp_M_IsPositive_ST(&record, 2, 1, nullptr, 0), -1);
    EXPECT_EQ(Cpp_M_IsPositive_ST(&record, 2, 1, nullptr, -1), 0) << "0 is not above 0";
    EXPECT_EQ(Cpp_M_IsLong_ST(&record, 2, 1), -1);
    EXPECT_EQ(Cpp_M_IsLong_ST(&record, 2, 2), 0);
    EXPECT_EQ(Cpp_M_IsLong_ST(&record, 2, 7), 0) << "as far as it has columns";
    ST_MVect wide = caller.table({caller.column(u"a", doubles{1, 0.5}), caller.column(u"b", doubles{1, 0.5}),
                                  caller.column(u"c", doubles{0.5, 1})},
                                 {u"a", u"b", u"c"});
    EXPECT_EQ(Cpp_M_IsLong_ST(&wide, 1, 2), -1);
    EXPECT_EQ(Cpp_M_IsLong_ST(&wide, 1, 3), 0);
    EXPECT_EQ(Cpp_M_IsLong_ST(&wide, 1, 7), 0) << "as far as it has columns";
    EXPECT_EQ(Cpp_M_IsLong_ST(&wide, 2, 0), -1) << "0 is no column";
    caller_columns chunks({{0, 0.5}, {0, 1}});
    EXPECT_EQ(VB_V_IsIndicatorSPV(chunks.argument(), 2, 1), 0);
    EXPECT_EQ(VB_V_IsIndicatorSPV(chunks.argument(), 2, 2), -1);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatVectorTests, FindAndCount)
{
    guarded<int> x{3, 5};
    EXPECT_EQ(Cpp_V_FindLng(x.data(), 2, 5), -1);
    EXPECT_EQ(Cpp_V_FindLng(x.data(), 1, 5), 0);
    text_block words(texts{u"a", u"bc"});
    caller_memory caller;
    const automation_watch watch;
    EXPECT_EQ(Cpp_V_FindStr(words.data(), 2, words.data()[1]), -1);
    EXPECT_EQ(Cpp_V_FindStr(words.data(), 1, words.data()[1]), 0);
    EXPECT_EQ(Cpp_V_FindStr(words.data(), 2, nullptr), 0) << "no empty text";
    EXPECT_TRUE(watch.texts(0, 0));
    guarded<short int> flags{-1, 1, 0, -1};
    EXPECT_EQ(VB_V_NbTrue(flags.data(), 4), 2);
    EXPECT_EQ(VB_V_NbTrue(nullptr, 0), 0);
    EXPECT_EQ(VB_V_NbTrueFromTo(flags.data(), 2, 4), 1);
    EXPECT_EQ(VB_V_NbTrueFromTo(flags.data(), 3, 2), 0);
}

TEST(FlatVectorTests, OfATableWithoutAColumnCountLookAtOneColumn)
{
    guarded<double> x{1, -1, 1};
    EXPECT_EQ(Cpp_M_IsPositive(x.data(), 2, 0, nullptr, 0), 0);
    guarded<double> y{1, 1.5, 1};
    EXPECT_EQ(VB_M_IsIn01(y.data(), 2, 0), 0);
    EXPECT_EQ(VB_M_IsLong(y.data(), 2, 0), 0);
    EXPECT_EQ(VB_V_V1GreaterThanMatCols(x.data(), 2, y.data(), 0), 0);
    EXPECT_EQ(VB_M_IsColConstant(y.data(), 2, 0), 0);
    EXPECT_EQ(VB_V_IsConstant(y.data(), 2, 0, 0), 0);
    EXPECT_EQ(VB_V_IsConstant(y.data(), 1, 0, 0), -1);
}
