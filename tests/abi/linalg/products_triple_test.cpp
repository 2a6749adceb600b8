#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, OfThreeTables)
{
    whole_table a = counting(4, 3, 1);
    const whole_table tr = transposed(a);
    whole_table inner = symmetricTable(3);
    whole_table outer = symmetricTable(4);
    for (const short int symmetric : {short{0}, short{-1}, short{1}}) {
        const whole_table aBTrA = times(times(a, inner), tr);
        guarded<double> first = roomFor(aBTrA);
        EXPECT_EQ(VB_M_ProductABTrA(a.data(), 4, 3, inner.data(), symmetric, first.data()), 0);
        EXPECT_EQ(valuesOf(first), aBTrA.cells);
        const whole_table trABA = times(times(tr, outer), a);
        guarded<double> second = roomFor(trABA);
        EXPECT_EQ(VB_M_ProductTrABA(a.data(), 4, 3, outer.data(), symmetric, second.data()), 0);
        EXPECT_EQ(valuesOf(second), trABA.cells);
    }
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(2, 5, 3);
    const whole_table abc = times(times(a, b), c);
    guarded<double> third = roomFor(abc);
    EXPECT_EQ(VB_M_ProductABC(a.data(), 4, 3, b.data(), 2, c.data(), 5, third.data()), 0);
    EXPECT_EQ(valuesOf(third), abc.cells);
    whole_table d = counting(4, 2, 6);
    const whole_table trADC = times(times(tr, d), c);
    guarded<double> fourth = roomFor(trADC);
    EXPECT_EQ(VB_M_ProductTrABC(a.data(), 4, 3, d.data(), 2, c.data(), 5, fourth.data()), 0);
    EXPECT_EQ(valuesOf(fourth), trADC.cells);
    whole_table e = counting(2, 3, 6);
    const whole_table aTrEC = times(times(a, transposed(e)), c);
    guarded<double> fifth = roomFor(aTrEC);
    EXPECT_EQ(VB_M_ProductATrBC(a.data(), 4, 3, e.data(), 2, c.data(), 5, fifth.data()), 0);
    EXPECT_EQ(valuesOf(fifth), aTrEC.cells);
    whole_table v = counting(2, 1, 5);
    const whole_table trADv = times(times(tr, d), v);
    guarded<double> sixth = roomFor(trADv);
    EXPECT_EQ(Cpp_M_ProductTrABV(a.data(), 4, 3, d.data(), 2, v.data(), sixth.data()), 0);
    EXPECT_EQ(valuesOf(sixth), trADv.cells);
}
