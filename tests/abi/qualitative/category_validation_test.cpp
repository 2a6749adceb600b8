#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/category_records.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatCategoryValidation, AddsWeightsToKnownCategories)
{
    text_block data({u"b", u"", u"b", u"x", u"y", u"x"});
    text_block names({u"a", u"x", u"b", u"y"});
    guarded<int> known{2, 2};
    guarded<double> counts{7, 7, 7, 7};
    guarded<double> weights{1, 2, 4};
    guarded<short int> flag{7};
    EXPECT_EQ(VB_M_InfoQualiValid(data.data(), 3, 2, 2, known.data(), names.data(), counts.data(),
                                  flag.data(), weights.data()),
              0);
    EXPECT_EQ(valuesOf(counts), (doubles{0, 5, 5, 2}));
    EXPECT_EQ(valuesOf(flag), shorts{0});
    known.data()[0] = 1;
    VB_M_InfoQualiValid(data.data(), 3, 2, 2, known.data(), names.data(), counts.data(), flag.data(),
                        weights.data());
    EXPECT_EQ(valuesOf(counts), (doubles{0, 0, 0, 0})) << "cleared, and ended at the first row";
    EXPECT_EQ(valuesOf(flag), shorts{-1});
}

TEST(FlatCategoryValidation, OfRecords)
{
    caller_categories known({texts{u"a", u"b"}});
    caller_categories result({texts{u"", u"", u""}});
    caller_memory& memory = known.memory();
    ST_MVect data = memory.table({memory.column(u"", texts{u"b", u"", u"b", u"new", u"a"})}, {u"v"});
    guarded<double> weights{1, 2, 4, 8, 16};
    guarded<short int> flag{7};
    EXPECT_EQ(
        Cpp_M_InfoQualiValid_ST(&data, 5, 1, &known.record, &result.record, flag.data(), weights.data()), 0);
    EXPECT_EQ(valuesOf(flag), shorts{-1});
    EXPECT_EQ(result.rows(0), (doubles{0, 2, 0}));
    result.record.IgnoreNewCategoryInPred = 1;
    Cpp_M_InfoQualiValid_ST(&data, 5, 1, &known.record, &result.record, flag.data(), weights.data());
    EXPECT_EQ(valuesOf(flag), shorts{0});
    EXPECT_EQ(result.rows(0), (doubles{1, 2, 0}));
    EXPECT_EQ(result.weights(0), (doubles{16, 5, 0}));
    EXPECT_EQ(known.rows(0), (doubles{77, 77}));
    EXPECT_EQ(known.names(0), (texts{u"a", u"b"}));
    EXPECT_TRUE(memory.guardsIntact() && result.memory().guardsIntact());
}
