#include "korvelmathtools/KORVELMathTools.h"
#include "support/category_records.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatCategoryRecords, AreFilledAndTellTheCaller)
{
    caller_categories categories({texts{u"?", u"?", u"?"}, texts{u"?", u"?"}}, 4);
    caller_memory& memory = categories.memory();
    ST_MVect data = memory.table({memory.column(u"", texts{u"10", u"9", u"", u"10"}),
                                  memory.column(u"", texts{u"x", u"x", u"x", u"y"})},
                                 {u"size", u"kind"});
    guarded<double> weights{1, 2, 4, KORVEL_MISSING_DBL};
    ST_QualiInfo& record = categories.record;
    record.withRecode = -1;
    record.codeStart = 1;
    record.withSort = -1;
    record.NbCatTotal = 99;
    record.FreqMax = 1;
    EXPECT_EQ(Cpp_M_InfoQuali3_ST(&data, weights.data(), &record), 0);
    EXPECT_EQ(categories.names(0), (texts{u"9", u"10", u"?"}));
    EXPECT_EQ(categories.rows(0), (doubles{1, 2, 77}));
    EXPECT_EQ(categories.weights(0), (doubles{2, 1 + KORVEL_MISSING_DBL, 77}));
    EXPECT_EQ(categories.names(1), (texts{u"x", u"y"}));
    EXPECT_EQ(categories.rows(1), (doubles{3, 1}));
    EXPECT_EQ(numbersIn<int>(record.NbCat), (ints{2, 2}));
    EXPECT_EQ(textsIn(record.VarLabels), (texts{u"size", u"kind"}));
    EXPECT_EQ(record.Count, 2);
    EXPECT_EQ(record.NbCatTotal, 4);
    EXPECT_EQ(record.FreqMax, 3.0);
    EXPECT_EQ(record.SumW, 7.0);
    const doubles expected{2, 1, KORVEL_MISSING_DBL, 2, 1, 1, 1, 2};
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(categories.code(static_cast<int>(k)), expected[k]) << "cell " << k;
    }
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatCategoryRecords, TakeNoWeights)
{
    caller_categories categories({texts{u"?", u"?", u"?"}}, 3);
    caller_memory& memory = categories.memory();
    ST_MVect data = memory.table({memory.column(u"", texts{u"b", u"b", u"b"})}, {u"v"});
    categories.record.noWeights = -1;
    categories.record.withLongLabels = -1;
    EXPECT_EQ(Cpp_M_InfoQuali3_ST(&data, nullptr, &categories.record), 0);
    EXPECT_EQ(categories.names(0), (texts{u"v-b", u"v-b", u"v-b"}));
    EXPECT_EQ(categories.weights(0), (doubles{1, 1, 1}));
    EXPECT_EQ(categories.record.SumW, 3.0);
    EXPECT_EQ(categories.code(0), 77.0);
    EXPECT_TRUE(memory.guardsIntact());
}
