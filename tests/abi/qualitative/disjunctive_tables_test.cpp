#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/category_records.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

} // namespace

TEST(FlatDisjunctiveTables, OfATable)
{
    text_block data({u"c", u"", u"q", u"p"});
    text_block names({u"a", u"p", u"b", u"q", u"c", u""});
    guarded<int> counts{3, 2};
    guarded<double> frequencies{1, 3, 2, 4, 4, 0};
    guarded<double> result(doubles(10, 7.0));
    EXPECT_EQ(VB_BuildDisjunctiveTable(data.data(), 2, 2, 5, counts.data(), names.data(), frequencies.data(),
                                       result.data(), 3, 0),
              0);
    EXPECT_EQ(valuesOf(result), (doubles{-0.25, missing, -0.5, missing, 1, missing, -0.75, 0, 1, 0}));
    VB_BuildDisjunctiveTable(data.data(), 2, 2, 5, counts.data(), names.data(), frequencies.data(),
                             result.data(), 0, 0);
    EXPECT_EQ(valuesOf(result), (doubles{0, missing, 0, missing, 1, missing, 0, 1, 1, 0}));
    VB_BuildDisjunctiveTable(data.data(), 2, 2, 0, counts.data(), names.data(), frequencies.data(),
                             result.data(), 0, 0);
    EXPECT_TRUE(result.intact()) << "no columns, nothing written";
}

TEST(FlatDisjunctiveTables, OfARecord)
{
    caller_categories categories({texts{u"a", u"b"}, texts{u"p"}});
    caller_memory& memory = categories.memory();
    static_cast<double*>(columnOf(categories.record.CatFreq, 0).Vect->pvData)[0] = 3;
    static_cast<double*>(columnOf(categories.record.CatFreq, 0).Vect->pvData)[1] = 2;
    ST_MVect data = memory.table(
        {memory.column(u"", texts{u"b", u"a"}), memory.column(u"", texts{u"", u"p"})}, {u"v", u"w"});
    ST_MVect result = memory.table({memory.column(u"", doubles{7, 7}), memory.column(u"", doubles{7, 7}),
                                    memory.column(u"", doubles{7, 7})},
                                   {u"", u"", u""});
    EXPECT_EQ(Cpp_BuildDisjunctiveTable_ST(&data, &categories.record, &result, 3, 1), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(result, 0).Vect), (doubles{-1.5, 1}));
    EXPECT_EQ(numbersIn<double>(columnOf(result, 1).Vect), (doubles{1, 0}));
    EXPECT_EQ(numbersIn<double>(columnOf(result, 2).Vect), (doubles{missing, 0}));
    EXPECT_EQ(result.nbcols, 3);
    EXPECT_TRUE(memory.guardsIntact());
}
