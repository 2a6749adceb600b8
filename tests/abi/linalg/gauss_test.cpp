#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatGauss, SolvesForSeveralSides)
{
    guarded<double> a({0, 4, 2, 0});
    guarded<double> b({6, 8, 2, 12});
    EXPECT_EQ(VB_M_Gauss(a.data(), 2, 2, b.data()), 0);
    EXPECT_EQ(valuesOf(a), (numbers{0, 0.5, 0.25, 0}));
    EXPECT_EQ(valuesOf(b), (numbers{2, 3, 3, 1}));
}

TEST(FlatGauss, SolvesForOneSide)
{
    guarded<double> a({0, 4, 2, 0});
    guarded<double> b({6, 8});
    EXPECT_EQ(VB_V_Gauss(a.data(), 2, b.data()), 0);
    EXPECT_EQ(valuesOf(a), (numbers{0, 0.5, 0.25, 0}));
    EXPECT_EQ(valuesOf(b), (numbers{2, 3}));
}

TEST(FlatGauss, InvertsWithoutSides)
{
    guarded<double> a({0, 4, 2, 0});
    EXPECT_EQ(VB_M_Gauss(a.data(), 2, 0, nullptr), 0);
    EXPECT_EQ(valuesOf(a), (numbers{0, 0.5, 0.25, 0}));
    EXPECT_EQ(VB_M_Gauss(nullptr, 0, 0, nullptr), 0);
}

TEST(FlatGauss, SaysWhenATableIsSingular)
{
    guarded<double> a({1, 2, 2, 4});
    guarded<double> b({1, 1});
    EXPECT_EQ(VB_M_Gauss(a.data(), 2, 1, b.data()), -2);
    guarded<double> zeros({0, 0, 0, 0});
    EXPECT_EQ(VB_V_Gauss(zeros.data(), 2, b.data()), -2);
    EXPECT_TRUE(a.intact() && b.intact() && zeros.intact());
}

TEST(FlatGauss, SolvesInLabelledTables)
{
    caller_memory caller;
    ST_MVect a = labelled(caller, whole_table{2, 2, {0, 4, 2, 0}});
    ST_Vect b = caller.column(u"b", numbers{6, 8});
    EXPECT_EQ(Cpp_V_Gauss_ST(&a, 2, &b), 0);
    EXPECT_EQ(cellsOf(a), (numbers{0, 0.5, 0.25, 0}));
    EXPECT_EQ(numbersIn<double>(b.Vect), (numbers{2, 3}));
    EXPECT_EQ(b.Count, 2);
    ST_MVect zeros = labelled(caller, whole_table{2, 2, {0, 0, 0, 0}});
    EXPECT_EQ(Cpp_V_Gauss_ST(&zeros, 2, &b), -2);
    EXPECT_TRUE(caller.guardsIntact());
}
