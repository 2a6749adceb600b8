#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::shorts;
using korvel::test::valuesOf;

TEST(FlatReverse, EveryForm)
{
    guarded<double> x{1, 2, 3};
    guarded<double> out{0, 0, 0};
    EXPECT_EQ(VB_V_ReverseDbl(x.data(), 3, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{3, 2, 1}));
    EXPECT_EQ(VB_V_ReverseDbl(x.data(), 3, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 2, 1}));
    EXPECT_EQ(Cpp_V_Reverse2Dbl(x.data(), 2), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1}));
    guarded<short int> booleans{-1, 0, 0};
    guarded<short int> booleansOut{0, 0, 0};
    EXPECT_EQ(VB_V_ReverseBool(booleans.data(), 3, booleansOut.data()), 0);
    EXPECT_EQ(valuesOf(booleansOut), (shorts{0, 0, -1}));
    EXPECT_EQ(VB_V_ReverseBool(booleansOut.data(), 3, booleansOut.data()), 0);
    EXPECT_EQ(valuesOf(booleansOut), (shorts{-1, 0, 0})) << "onto itself";
    EXPECT_EQ(Cpp_V_Reverse2Bool(booleans.data(), 3), 0);
    EXPECT_EQ(valuesOf(booleans), (shorts{0, 0, -1}));
    guarded<int> integers{1, 2, 3};
    EXPECT_EQ(Cpp_V_Reverse2Lng(integers.data(), 3), 0);
    EXPECT_EQ(valuesOf(integers), (ints{3, 2, 1}));
    EXPECT_EQ(Cpp_V_Reverse2Lng(integers.data(), 0), 0);
    EXPECT_EQ(valuesOf(integers), (ints{3, 2, 1}));
}
