#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, OfATableWithItself)
{
    whole_table a = counting(4, 3, 1);
    const whole_table tr = transposed(a);
    numbers down{2, -1, 3, 5};
    numbers along{4, 7, -2};
    whole_table downSquare = diagonalOf(down);
    whole_table alongSquare = diagonalOf(along);
    downSquare.cells[1] = 99; // only the diagonal is read
    alongSquare.cells[1] = 99;
    const whole_table byRows = times(times(tr, diagonalOf(down)), a);
    const whole_table byColumns = times(times(a, diagonalOf(along)), tr);
    guarded<double> trAA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrAA(a.data(), 4, 3, trAA.data()), 0);
    EXPECT_EQ(valuesOf(trAA), times(tr, a).cells);
    guarded<double> aTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductATrA(a.data(), 4, 3, aTrA.data()), 0);
    EXPECT_EQ(valuesOf(aTrA), times(a, tr).cells);
    guarded<double> trADA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrADA(a.data(), 4, 3, downSquare.data(), trADA.data()), 0);
    EXPECT_EQ(valuesOf(trADA), byRows.cells);
    guarded<double> trAdA = roomFor(byRows);
    EXPECT_EQ(VB_M_ProductTrADiagVA(a.data(), 4, 3, down.data(), trAdA.data()), 0);
    EXPECT_EQ(valuesOf(trAdA), byRows.cells);
    guarded<double> aDTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductADTrA(a.data(), 4, 3, alongSquare.data(), aDTrA.data()), 0);
    EXPECT_EQ(valuesOf(aDTrA), byColumns.cells);
    guarded<double> adTrA = roomFor(byColumns);
    EXPECT_EQ(VB_M_ProductADiagVTrA(a.data(), 4, 3, along.data(), adTrA.data()), 0);
    EXPECT_EQ(valuesOf(adTrA), byColumns.cells);
}
