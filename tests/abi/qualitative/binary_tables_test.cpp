#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatBinaryTables, Binarize)
{
    guarded<double> x{0, -3, KORVEL_MISSING_DBL, 1e-17};
    guarded<double> result{7, 7, 7, 7};
    EXPECT_EQ(VB_M_Binarize(x.data(), 2, 2, result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{0, 1, KORVEL_MISSING_DBL, 0}));
    caller_columns columns({{0, -3}, {KORVEL_MISSING_DBL, 1e-17}});
    EXPECT_EQ(VB_M_Binarize2SPV(columns.argument(), 2, 2), 0);
    EXPECT_EQ(columns.values(), (caller_columns::columns{{0, 1}, {1, 0}}));
    EXPECT_EQ(VB_M_Binarize2(x.data(), 2, 2), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 1, 1, 0}));
    EXPECT_EQ(VB_M_Binarize(x.data(), 2, 2, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 1, 1, 0}));
}

TEST(FlatBinaryTables, TestForADisjunctiveTable)
{
    guarded<double> x{1, 0, 0, 1, 0, 1};
    guarded<short int> flags{0, 0, 0};
    guarded<int> sum{7};
    EXPECT_EQ(VB_M_IsDisjTable(x.data(), 3, 2, flags.data(), sum.data()), 0) << "the last row has a sum of 1";
    guarded<double> y{1, 0, 0, 1};
    EXPECT_EQ(VB_M_IsDisjTable(y.data(), 2, 2, flags.data(), sum.data()), -1);
    EXPECT_EQ(valuesOf(sum), ints{1});
    EXPECT_EQ(VB_M_IsDisjTable(y.data(), 2, 2, nullptr, sum.data()), -1);
    EXPECT_EQ(VB_M_IsDisjTable(y.data(), 0, 2, flags.data(), sum.data()), 0);
    EXPECT_EQ(VB_M_IsDisjTable(y.data(), 2, 0, flags.data(), sum.data()), -1);
}

TEST(FlatBinaryTables, TestsForTwoValues)
{
    guarded<double> x{1, 2, KORVEL_MISSING_DBL};
    EXPECT_EQ(Cpp_V_IsBinaryDbl(x.data(), 2, 0), -1);
    EXPECT_EQ(Cpp_V_IsBinaryDbl(x.data(), 3, 0), 0);
    EXPECT_EQ(Cpp_V_IsBinaryDbl(x.data(), 3, -1), -1);
    EXPECT_EQ(Cpp_V_IsBinaryDbl(x.data(), 0, 0), -1);
    EXPECT_EQ(Cpp_V_IsBinaryDblXY(x.data(), 3, 2, 1, -1), -1);
    EXPECT_EQ(Cpp_V_IsBinaryDblXY(x.data(), 3, 2, 3, -1), 0);
    EXPECT_EQ(Cpp_V_IsBinaryDblXY(x.data(), 0, 2, 1, -1), 0);
    caller_memory memory;
    ST_MVect table =
        memory.table({memory.column(u"", doubles{0, 1, 0}), memory.column(u"", doubles{5, 5})}, {u"a", u"b"});
    EXPECT_EQ(Cpp_M_IsBinaryDbl_ST(&table, 0), -1);
    ST_MVect other =
        memory.table({memory.column(u"", doubles{0, 1}), memory.column(u"", doubles{5})}, {u"a", u"b"});
    EXPECT_EQ(Cpp_M_IsBinaryDbl_ST(&other, 0), 0);
}

TEST(FlatBinaryTables, ConvertTwoValues)
{
    guarded<double> x{5, 2, 5};
    EXPECT_EQ(Cpp_V_ConvertBinaryTo01Dbl(x.data(), 3), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 0, 1}));
    guarded<double> result(doubles(6, 7.0));
    EXPECT_EQ(Cpp_M_ConvertBinarytoDisjTable(x.data(), 3, 1, result.data()), 0);
    EXPECT_EQ(valuesOf(result), (doubles{1, 0, 1, 0, 1, 0}));
    Cpp_M_ConvertBinarytoDisjTable(x.data(), 3, 0, result.data());
    EXPECT_TRUE(result.intact());
    const doubles table{1, 0.25, 0, 5, 7, 7, 7, 7, 7};
    for (const int distance : {0, 1}) {
        guarded<double> cells(table);
        double* const start = cells.data();
        Cpp_M_ConvertBinarytoDisjTable(start + distance, 2, 2, start);
        const doubles expected = distance == 0 ? doubles{1, 0.25, 0, 0.75, 0, 5, 1, -4, 7}
                                               : doubles{0.25, 0, 0.75, 1, 5, 7, -4, -6, 7};
        EXPECT_EQ(valuesOf(cells), expected) << "over its own input";
    }
}
