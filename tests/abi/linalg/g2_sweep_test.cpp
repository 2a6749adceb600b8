#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatSweeps, InvertATable)
{
    guarded<double> a({4, 8, 0, 8, 16, 0, 0, 0, 2});
    const numbers expected{0.25, 0, 0, 0, 0, 0, 0, 0, 0.5};
    guarded<double> g(numbers(9, 9.0));
    EXPECT_EQ(Cpp_M_InverseG2(a.data(), 3, 1e-12, g.data()), 0);
    EXPECT_EQ(valuesOf(g), expected);
    EXPECT_EQ(valuesOf(a)[1], 8) << "what is read stays";
    EXPECT_EQ(Cpp_M_InverseG2(a.data(), 3, 1e-12, a.data()), 0);
    EXPECT_EQ(valuesOf(a), expected) << "over the table itself";
}

TEST(FlatSweeps, TakeTheToleranceAsItIs)
{
    const double d = 0.5;
    guarded<double> g({9});
    Cpp_M_InverseG2(&d, 1, 0.5, g.data());
    EXPECT_EQ(valuesOf(g), numbers{2});
    Cpp_M_InverseG2(&d, 1, 0.75, g.data());
    EXPECT_EQ(valuesOf(g), numbers{0});
}

TEST(FlatSweeps, InvertALabelledTable)
{
    caller_memory caller;
    const whole_table a{2, 2, {4, 0, 0, 2}};
    ST_MVect table = labelled(caller, a);
    ST_MVect result = labelled(caller, blankLike(a));
    EXPECT_EQ(Cpp_M_InverseG2_ST(&table, 2, 1e-12, &result), 0);
    EXPECT_EQ(cellsOf(result), (numbers{0.25, 0, 0, 0.5}));
    EXPECT_EQ(cellsOf(table), a.cells);
    EXPECT_EQ(result.nbcols, 2);
    EXPECT_EQ(result.nbrowsmax, 2);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatSweeps, SweepSelectedPivots)
{
    const numbers a{2, 1, 1, 4};
    const integers selected{1, 0};
    guarded<double> g(numbers(4, 9.0));
    EXPECT_EQ(Cpp_M_InverseG2Selective(a.data(), 2, selected.data(), 1e-12, g.data(), 0), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, -0.5, 0.5, 3.5}));
    EXPECT_EQ(Cpp_M_InverseG2Selective(a.data(), 2, selected.data(), 1e-12, g.data(), -1), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, 0, 0, 0}));
    EXPECT_EQ(Cpp_M_InverseG2Selective(a.data(), 2, selected.data(), 1e-12, g.data(), 1), 0);
    EXPECT_EQ(valuesOf(g), (numbers{0.5, -0.5, 0.5, 3.5})) << "only -1 zeroes the others";
}

TEST(FlatSweeps, OfNothingReadNothing)
{
    EXPECT_EQ(Cpp_M_InverseG2(nullptr, 0, 1e-12, nullptr), 0);
    EXPECT_EQ(Cpp_M_InverseG2(nullptr, -1, 1e-12, nullptr), 0);
    EXPECT_EQ(Cpp_M_InverseG2Selective(nullptr, 0, nullptr, 1e-12, nullptr, -1), 0);
}
