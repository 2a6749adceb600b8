#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, OfTwoTables)
{
    whole_table a = counting(4, 3, 1);
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(4, 2, 7);
    whole_table d = counting(5, 3, 2);
    guarded<double> ab = roomFor(times(a, b));
    EXPECT_EQ(VB_M_ProductAB(a.data(), 4, 3, b.data(), 2, ab.data()), 0);
    EXPECT_EQ(valuesOf(ab), times(a, b).cells);
    guarded<double> heeding = roomFor(times(a, b));
    EXPECT_EQ(VB_M_ProductABMissing(a.data(), 4, 3, b.data(), 2, heeding.data()), 0);
    EXPECT_EQ(valuesOf(heeding), times(a, b).cells);
    guarded<double> trAB = roomFor(times(transposed(a), c));
    EXPECT_EQ(VB_M_ProductTrAB(a.data(), 4, 3, c.data(), 2, trAB.data()), 0);
    EXPECT_EQ(valuesOf(trAB), times(transposed(a), c).cells);
    guarded<double> aTrB = roomFor(times(a, transposed(d)));
    EXPECT_EQ(VB_M_ProductATrB(a.data(), 4, 3, d.data(), 5, aTrB.data()), 0);
    EXPECT_EQ(valuesOf(aTrB), times(a, transposed(d)).cells);
}

TEST(FlatProducts, MayWriteOverWhatTheyRead)
{
    whole_table a = counting(3, 3, 1);
    whole_table b = counting(3, 3, 4);
    guarded<double> first(a.cells);
    VB_M_ProductAB(first.data(), 3, 3, b.data(), 3, first.data());
    EXPECT_EQ(valuesOf(first), times(a, b).cells);
    guarded<double> second(b.cells);
    VB_M_ProductTrAB(a.data(), 3, 3, second.data(), 3, second.data());
    EXPECT_EQ(valuesOf(second), times(transposed(a), b).cells);
    guarded<double> squared(a.cells);
    VB_M_ProductTrAA(squared.data(), 3, 3, squared.data());
    EXPECT_EQ(valuesOf(squared), times(transposed(a), a).cells);
    guarded<double> three(a.cells);
    VB_M_ProductABTrA(three.data(), 3, 3, b.data(), 0, three.data());
    EXPECT_EQ(valuesOf(three), times(times(a, b), transposed(a)).cells);
    guarded<double> vector(numbers{1, 2, 3});
    VB_M_ProductBV(a.data(), 3, 3, vector.data(), vector.data());
    EXPECT_EQ(valuesOf(vector), times(a, whole_table{3, 1, {1, 2, 3}}).cells);
}

TEST(FlatProducts, OfIntegers)
{
    integers a{2147483647, 3, 1, 4};
    integers b{2, 5};
    guarded<int> ab{9, 9};
    EXPECT_EQ(VB_M_ProductABLng(a.data(), 2, 2, b.data(), 1, ab.data()), 0);
    EXPECT_EQ(valuesOf(ab), (integers{3, 26}));
    integers x{46340, 46340, 1, 2};
    guarded<int> own{9, 9, 9, 9};
    EXPECT_EQ(Cpp_M_ProductTrAALng(x.data(), 2, 2, own.data()), 0);
    EXPECT_EQ(valuesOf(own), (integers{-2147483647 - 1, 139020, 139020, 5}));
}

TEST(FlatProducts, WithADiagonalBetweenTwoTables)
{
    whole_table a = counting(4, 3, 1);
    whole_table b = counting(3, 2, 4);
    whole_table c = counting(5, 3, 6);
    numbers d{4, 7, -2};
    const whole_table scaled = times(a, diagonalOf(d));
    guarded<double> first = roomFor(times(scaled, b));
    EXPECT_EQ(VB_M_ProductADiagVB(a.data(), 4, 3, d.data(), b.data(), 2, first.data()), 0);
    EXPECT_EQ(valuesOf(first), times(scaled, b).cells);
    guarded<double> second = roomFor(times(scaled, transposed(c)));
    EXPECT_EQ(VB_M_ProductADiagVTrB(a.data(), 4, 3, d.data(), c.data(), 5, second.data()), 0);
    EXPECT_EQ(valuesOf(second), times(scaled, transposed(c)).cells);
}

TEST(FlatProducts, OfNothing)
{
    guarded<double> c{9, 9};
    EXPECT_EQ(VB_M_ProductAB(nullptr, 2, 0, nullptr, 1, c.data()), 0);
    EXPECT_EQ(valuesOf(c), (numbers{0, 0}));
    guarded<double> kept{9, 9};
    EXPECT_EQ(VB_M_ProductAB(nullptr, 0, 0, nullptr, 0, kept.data()), 0);
    EXPECT_EQ(VB_M_ProductABTrA(nullptr, 0, 0, nullptr, 0, kept.data()), 0);
    EXPECT_EQ(valuesOf(kept), (numbers{9, 9}));
    EXPECT_SAME_BITS(VB_M_ProductTrVBV(nullptr, 0, nullptr), 0.0);
}
