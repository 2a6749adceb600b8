// Means, extremes, sums and distances of columns, through the shared library.
#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

/** Three rows by two columns. */
const doubles cells{1, gone, 3, gone, gone, gone};

} // namespace

TEST(FlatColumnMeans, WhatAColumnWithoutCellsGives)
{
    guarded<double> x(cells);
    guarded<double> w{1, 1, 3};
    guarded<double> means{7, 7};
    EXPECT_EQ(VB_M_Mean(x.data(), 3, 2, means.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(means), (doubles{2.5, 0}));
    EXPECT_EQ(Cpp_M_Mean2(x.data(), 3, 2, w.data(), means.data()), 0);
    EXPECT_EQ(valuesOf(means), (doubles{2.5, gone}));
    EXPECT_EQ(Cpp_M_Mean3(x.data(), 3, 2, means.data()), 0);
    EXPECT_EQ(valuesOf(means), (doubles{2, gone}));
    caller_columns columns({{1, gone, 3}, {gone, gone, gone}});
    EXPECT_EQ(Cpp_M_MeanSPV(columns.argument(), 3, 2, means.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(means), (doubles{2.5, 0}));
}

TEST(FlatColumnExtremes, Flags)
{
    guarded<double> x(cells);
    guarded<short int> flags{-1, 0, 0};
    guarded<double> mins{7, 7};
    guarded<double> maxs{7, 7};
    EXPECT_EQ(VB_M_MinMax(x.data(), 3, 2, mins.data(), maxs.data(), flags.data(), -1), 0);
    EXPECT_EQ(valuesOf(mins), (doubles{1, gone}));
    EXPECT_EQ(valuesOf(maxs), (doubles{3, gone}));
    EXPECT_EQ(VB_M_MinMax(x.data(), 3, 2, mins.data(), maxs.data(), flags.data(), 0), 0);
    EXPECT_EQ(valuesOf(mins), (doubles{gone, gone})) << "a missing number of an unflagged row counts";
    caller_columns columns({{1, gone, 3}, {4, 2, 6}});
    EXPECT_EQ(VB_M_MinMaxSPV(columns.argument(), 3, 2, mins.data(), maxs.data(), flags.data(), -1), 0);
    EXPECT_EQ(valuesOf(mins), (doubles{1, 2}));
    EXPECT_EQ(valuesOf(maxs), (doubles{3, 6}));
    caller_columns triangle({{1, 5}, {2}});
    EXPECT_EQ(VB_M_MinMaxSPV_T(triangle.argument(), 2, 2, mins.data(), maxs.data(), nullptr, -1), 0);
    EXPECT_EQ(valuesOf(mins), (doubles{1, 2}));
    EXPECT_EQ(valuesOf(maxs), (doubles{5, 5}));
}

TEST(FlatColumnExtremes, OfColumnsAndOfTheTable)
{
    guarded<double> x(cells);
    guarded<double> out{7, 7};
    EXPECT_EQ(VB_M_Max(x.data(), 3, 2, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{3, gone}));
    EXPECT_EQ(VB_M_Min(x.data(), 3, 2, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{1, gone}));
    EXPECT_TRUE(sameBits(Cpp_M_MinAll(x.data(), 3, 2), 1));
    EXPECT_TRUE(sameBits(Cpp_M_MinAll(nullptr, 0, 0), gone));
}

TEST(FlatColumnSums, ByRowByColumnAndOverall)
{
    guarded<double> x{1, 2, gone, 4, 5, 6};
    guarded<double> rows{7, 7};
    guarded<double> cols{7, 7, 7};
    EXPECT_EQ(VB_M_SumByRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), (doubles{6, 12}));
    EXPECT_EQ(VB_M_SumByCols(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), (doubles{3, 4, 11}));
    EXPECT_TRUE(sameBits(VB_M_SumOfElem(x.data(), 2, 3), 18));
    EXPECT_TRUE(sameBits(VB_M_SumOfElem(nullptr, 0, 3), 0));
    const doubles ofRows{26, 56};
    const doubles ofCols{5, 16, 61};
    EXPECT_EQ(Cpp_M_SumBySquareRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), ofRows);
    EXPECT_EQ(Cpp_M_SumBySquareCols(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), ofCols);
    EXPECT_EQ(VB_M_SquaredRows(x.data(), 2, 3, rows.data()), 0);
    EXPECT_EQ(valuesOf(rows), ofRows);
    EXPECT_EQ(VB_M_SquaredColumns(x.data(), 2, 3, cols.data()), 0);
    EXPECT_EQ(valuesOf(cols), ofCols);
}

TEST(FlatWeightedSums, OfTablesAndOfLabelledTables)
{
    guarded<double> a{1, gone, 3};
    guarded<double> b{10, 20, 30};
    EXPECT_EQ(VB_M_Sums1As2B(a.data(), 3, 1, b.data(), 2.0, 0.5, b.data()), 0);
    EXPECT_EQ(valuesOf(b), (doubles{7, 0, 21}));
    caller_memory caller;
    ST_MVect left = caller.table({caller.column(u"a", doubles{1, gone}), caller.column(u"b", doubles{3, 4})},
                                 {u"a", u"b"});
    ST_MVect out = caller.table({caller.column(u"a", doubles{7, 7, 7}), caller.column(u"b", doubles{7, 7})},
                                {u"a", u"b"});
    EXPECT_EQ(Cpp_M_Sums1As2B_ST(&left, 2, 2, &left, 1.0, 2.0, &out), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(out, 0).Vect), (doubles{3, 0, 7}));
    EXPECT_EQ(numbersIn<double>(columnOf(out, 1).Vect), (doubles{9, 12}));
    ST_MVect right = caller.table(
        {caller.column(u"a", doubles{10, 20}), caller.column(u"b", doubles{30, 40})}, {u"a", u"b"});
    EXPECT_EQ(Cpp_M_Sums1As2B_ST(&left, 2, 2, &right, 1.0, 2.0, &out), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(out, 0).Vect), (doubles{21, 0, 7})) << "each with its own factor";
    EXPECT_EQ(numbersIn<double>(columnOf(out, 1).Vect), (doubles{63, 84}));
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatDistances, BetweenColumnsRowsAndToAVector)
{
    guarded<double> x{0, 3, 4, 3}; // columns 0 3 and 4 3, rows 0 4 and 3 3
    guarded<double> w{1, 1};
    guarded<double> out(doubles(4, 7.0));
    EXPECT_EQ(VB_M_EuclidDist2(x.data(), 2, 2, w.data(), out.data(), 0, 0), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 4, 4, 0}));
    EXPECT_EQ(VB_M_EuclidDist2(x.data(), 2, 2, w.data(), out.data(), -1, 2), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, std::sqrt(10.0), std::sqrt(10.0), 0}));
    guarded<double> v{0, 0};
    guarded<double> distances{7, 7};
    EXPECT_EQ(Cpp_M_EuclidDistToVector(x.data(), 2, 2, v.data(), 0, distances.data()), 0);
    EXPECT_EQ(valuesOf(distances), (doubles{std::sqrt(4.5), std::sqrt(12.5)}));
    EXPECT_EQ(Cpp_M_EuclidDistToVector(x.data(), 2, 2, v.data(), -1, distances.data()), 0);
    EXPECT_EQ(valuesOf(distances), (doubles{std::sqrt(8.0), std::sqrt(9.0)}));
    guarded<double> d{7};
    guarded<int> row{7};
    EXPECT_EQ(Cpp_M_GetMaxDistToOrigin(x.data(), 2, 2, d.data(), row.data()), 0);
    EXPECT_EQ(valuesOf(d), (doubles{std::sqrt(18.0)}));
    EXPECT_EQ(valuesOf(row), (ints{2}));
}
