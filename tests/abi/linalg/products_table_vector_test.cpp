#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, WithVectors)
{
    whole_table b = counting(4, 3, 1);
    whole_table three = counting(3, 1, 2);
    whole_table four = counting(4, 1, 3);
    guarded<double> bV = roomFor(times(b, three));
    EXPECT_EQ(VB_M_ProductBV(b.data(), 4, 3, three.data(), bV.data()), 0);
    EXPECT_EQ(valuesOf(bV), times(b, three).cells);
    const numbers down = times(transposed(b), four).cells;
    guarded<double> trBV(numbers(3, 9.0));
    EXPECT_EQ(VB_M_ProductTrBV(b.data(), 4, 3, four.data(), trBV.data()), 0);
    EXPECT_EQ(valuesOf(trBV), down);
    guarded<double> vB(numbers(3, 9.0));
    EXPECT_EQ(VB_M_ProductVB(four.data(), 4, b.data(), 3, vB.data()), 0);
    EXPECT_EQ(valuesOf(vB), down);
    guarded<double> vTrB(numbers(4, 9.0));
    EXPECT_EQ(VB_M_ProductVTrB(three.data(), 3, b.data(), 4, vTrB.data()), 0);
    EXPECT_EQ(valuesOf(vTrB), times(b, three).cells);
    whole_table square = counting(3, 3, 4);
    whole_table other = counting(3, 1, 6);
    const whole_table bilinear = times(times(transposed(other), square), three);
    EXPECT_SAME_BITS(VB_M_ProductTrV1BV2(other.data(), 3, square.data(), three.data()), bilinear.cells[0]);
    const whole_table quadratic = times(times(transposed(three), square), three);
    EXPECT_SAME_BITS(VB_M_ProductTrVBV(three.data(), 3, square.data()), quadratic.cells[0]);
}
