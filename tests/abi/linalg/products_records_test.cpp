#include "abi/linalg/whole_tables.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatProducts, OfLabelledTables)
{
    caller_memory caller;
    const whole_table a = counting(4, 3, 1);
    const whole_table b = counting(3, 2, 4);
    const whole_table c = counting(4, 2, 7);
    const whole_table d = counting(5, 3, 2);
    const whole_table inner = symmetricTable(3);
    ST_MVect left = labelled(caller, a);
    ST_MVect right = labelled(caller, b);
    ST_MVect below = labelled(caller, c);
    ST_MVect rows = labelled(caller, d);
    ST_MVect middle = labelled(caller, inner);
    const auto expectCells = [](const ST_MVect& actual, const whole_table& expected) {
        EXPECT_EQ(cellsOf(actual), expected.cells);
        EXPECT_EQ(actual.nbcols, expected.cols);
        EXPECT_EQ(actual.nbrowsmax, expected.rows);
        EXPECT_EQ(actual.samenbrows, -1);
    };
    ST_MVect ab = labelled(caller, blankLike(times(a, b)));
    ab.nbcols = 0;
    ab.nbrowsmax = 0;
    EXPECT_EQ(Cpp_M_ProductAB_ST(&left, 4, 3, &right, 2, &ab), 0);
    expectCells(ab, times(a, b));
    ST_MVect trAC = labelled(caller, blankLike(times(transposed(a), c)));
    EXPECT_EQ(Cpp_M_ProductTrAB_ST(&left, 4, 3, &below, 2, &trAC), 0);
    expectCells(trAC, times(transposed(a), c));
    ST_MVect aTrD = labelled(caller, blankLike(times(a, transposed(d))));
    EXPECT_EQ(Cpp_M_ProductATrB_ST(&left, 4, 3, &rows, 5, &aTrD), 0);
    expectCells(aTrD, times(a, transposed(d)));
    const whole_table three = times(times(a, inner), transposed(a));
    for (const short int symmetric : {short{0}, short{-1}, short{1}}) {
        ST_MVect result = labelled(caller, blankLike(three));
        EXPECT_EQ(Cpp_M_ProductABTrA_ST(&left, 4, 3, &middle, symmetric, &result), 0);
        expectCells(result, three);
    }
    const whole_table lopsided = counting(3, 3, 1);
    ST_MVect crooked = labelled(caller, lopsided);
    ST_MVect whole = labelled(caller, blankLike(three));
    Cpp_M_ProductABTrA_ST(&left, 4, 3, &crooked, 1, &whole);
    expectCells(whole, times(times(a, lopsided), transposed(a)));
    EXPECT_TRUE(caller.guardsIntact());
}
