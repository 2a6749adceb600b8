#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::valuesOf;

namespace
{

/** Keys 2, 1, 2, 1, 2; a quantitative column; codes. */
const doubles table{2, 1, 2, 1, 2, 10, 4, 30, MISSING_DBL, 20, 7, 5, 7, 5, 8};

struct grouped {
    int groups = -1;
    doubles cells;
};

grouped groupBy(int method)
{
    guarded<double> x(table);
    guarded<int> kinds{0, 0, 1};
    guarded<double> out(doubles(15, -7.0));
    grouped result;
    EXPECT_EQ(VB_M_GroupBy(x.data(), 5, 3, kinds.data(), 1, method, &result.groups, out.data()), 0);
    EXPECT_EQ(valuesOf(x), table);
    result.cells = valuesOf(out);
    return result;
}

} // namespace

TEST(FlatGroupBy, EveryMethodAggregatesTheRunsOfTheKey)
{
    const double expected[8][2] = {{4, 60},           {4, 20}, {0, 20}, {4, 10},
                                   {MISSING_DBL, 20}, {4, 10}, {4, 30}, {0, 20}};
    for (int method = 0; method < 8; ++method) {
        const grouped result = groupBy(method);
        EXPECT_EQ(result.groups, 2);
        EXPECT_EQ(result.cells[0], 1.0);
        EXPECT_EQ(result.cells[1], 2.0);
        if (method != 2) {
            EXPECT_EQ(result.cells[5], expected[method][0]) << method;
        }
        EXPECT_EQ(result.cells[6], expected[method][1]) << method;
        EXPECT_EQ(result.cells[10], 5.0);
        EXPECT_EQ(result.cells[11], 7.0);
    }
    // The median of 4 and a missing value, which counts as the smallest number.
    EXPECT_EQ(groupBy(2).cells[5], 0.5 * MISSING_DBL + 0.5 * 4.0);
}

TEST(FlatGroupBy, RowsBelowTheResultKeepTheSortedInput)
{
    const grouped result = groupBy(0);
    EXPECT_EQ(doubles(result.cells.begin() + 2, result.cells.begin() + 5), (doubles{2, 2, 2}));
    EXPECT_EQ(doubles(result.cells.begin() + 7, result.cells.begin() + 10), (doubles{10, 30, 20}));
}

TEST(FlatGroupBy, AnUnknownMethodLeavesTheSortedInput)
{
    for (const int method : {-1, 8}) {
        const grouped result = groupBy(method);
        EXPECT_EQ(result.groups, 2);
        EXPECT_EQ(result.cells[5], 4.0);
        EXPECT_EQ(result.cells[6], MISSING_DBL);
        EXPECT_EQ(result.cells[10], 5.0);
    }
}

TEST(FlatGroupBy, ByAColumnThatIsNotTheFirst)
{
    guarded<double> x{10, 4, 30, 6, 2, 1, 2, 1, 5, 7, 5, 8};
    guarded<int> kinds{0, 1, 1};
    guarded<double> out(doubles(12, -7.0));
    int groups = -1;
    VB_M_GroupBy(x.data(), 4, 3, kinds.data(), 2, 0, &groups, out.data());
    EXPECT_EQ(groups, 2);
    EXPECT_EQ(valuesOf(out), (doubles{10, 40, 10, 30, 1, 2, 2, 2, 7, 5, 5, 5}));
    VB_M_GroupBy(x.data(), 4, 3, kinds.data(), 2, 0, &groups, x.data());
    EXPECT_EQ(valuesOf(x), valuesOf(out)) << "over its own table";
}

TEST(FlatGroupBy, RangeOfNothingIsMissingAndOfOneRowIsZero)
{
    guarded<double> x{1, 2, 3, 5, MISSING_DBL, 7};
    guarded<int> kinds{0, 0};
    guarded<double> out{0, 0, 0, 0, 0, 0};
    int groups = -1;
    VB_M_GroupBy(x.data(), 3, 2, kinds.data(), 1, 7, &groups, out.data());
    EXPECT_EQ(groups, 3);
    EXPECT_EQ(valuesOf(out), (doubles{1, 2, 3, 0, MISSING_DBL, 0}));
}

TEST(FlatGroupBy, ANaNKeyIsAGroupOfItsOwn)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    guarded<double> x{nan, nan, 1, 1};
    guarded<int> kinds{0};
    guarded<double> out{0, 0, 0, 0};
    int groups = -1;
    VB_M_GroupBy(x.data(), 4, 1, kinds.data(), 1, 0, &groups, out.data());
    EXPECT_EQ(groups, 3);
}

TEST(FlatGroupBy, WithoutRowsThereIsNoGroup)
{
    guarded<double> x{1};
    guarded<int> kinds{0};
    guarded<double> out{-7};
    int groups = -1;
    VB_M_GroupBy(x.data(), 0, 1, kinds.data(), 1, 0, &groups, out.data());
    EXPECT_EQ(groups, 0);
    EXPECT_EQ(valuesOf(out), (doubles{-7}));
}

TEST(FlatGroupBy, WeightsStayWithTheirRows)
{
    guarded<double> x{2, 1, 2, 1, 10, 4, 30, 6};
    guarded<int> kinds{0, 0};
    guarded<double> w{3, 1, 1, 4};
    guarded<double> out(doubles(8, 0.0));
    int groups = -1;
    const doubles weights = w.values();
    EXPECT_EQ(VB_M_GroupByW(x.data(), 4, 2, kinds.data(), 1, 0, &groups, out.data(), w.data()), 0);
    EXPECT_EQ(groups, 2);
    EXPECT_EQ(valuesOf(out)[4], 28.0);
    EXPECT_EQ(valuesOf(out)[5], 60.0);
    VB_M_GroupByW(x.data(), 4, 2, kinds.data(), 1, 1, &groups, out.data(), w.data());
    EXPECT_EQ(valuesOf(out)[4], 28.0 / 5.0);
    EXPECT_EQ(valuesOf(out)[5], 15.0);
    VB_M_GroupByW(x.data(), 4, 2, kinds.data(), 1, 2, &groups, out.data(), w.data());
    EXPECT_EQ(valuesOf(out)[4], 6.0);
    EXPECT_EQ(valuesOf(out)[5], 10.0);
    EXPECT_EQ(valuesOf(w), weights);
}

TEST(FlatGroupBy, WeightedSumsAndMeansPassOverMissingCells)
{
    // In sorted order: key 1 with 4 (weight 2), missing (5), 6 (1); key 2 with 3 (weight 8).
    guarded<double> x{1, 2, 1, 1, 4, 3, MISSING_DBL, 6};
    guarded<int> kinds{0, 0};
    guarded<double> w{2, 8, 5, 1};
    const double expected[8][2] = {{14, 24}, {14.0 / 3, 3}, {MISSING_DBL, 3}, {4, 3},
                                   {6, 3},   {4, 3},        {6, 3},           {2, 0}};
    for (int method = 0; method < 8; ++method) {
        guarded<double> out(doubles(8, -7.0));
        int groups = -1;
        VB_M_GroupByW(x.data(), 4, 2, kinds.data(), 1, method, &groups, out.data(), w.data());
        EXPECT_EQ(groups, 2);
        EXPECT_EQ(valuesOf(out)[4], expected[method][0]) << method;
        EXPECT_EQ(valuesOf(out)[5], expected[method][1]) << method;
    }
}

TEST(FlatDedupe, MergesEqualRowsAndListsTheDropped)
{
    // Rows (data, identifier): (1, 2, 50), (3, 4, 40), (1, 2, 30), (1, 2, 20), (3, 5, 10)
    guarded<double> x{1, 3, 1, 1, 3, 2, 4, 2, 2, 5, 50, 40, 30, 20, 10};
    guarded<double> out(doubles(25, -7.0));
    int kept = -1;
    EXPECT_EQ(VB_M_Dedupe(x.data(), 5, 2, &kept, out.data()), 0);
    EXPECT_EQ(kept, 3);
    EXPECT_EQ(valuesOf(out), (doubles{3,  3,  1,  1,  1,  //
                                      5,  4,  2,  2,  2,  //
                                      1,  1,  3,  0,  0,  //
                                      10, 40, 50, 20, 30, //
                                      1,  1,  1,  0,  0}));
}

TEST(FlatDedupe, DistinctRowsAreAllKept)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    guarded<double> x{2, 1, nan, nan, 3, 4, 1, 2};
    guarded<double> out(doubles(16, -7.0));
    int kept = -1;
    VB_M_Dedupe(x.data(), 4, 1, &kept, out.data());
    EXPECT_EQ(kept, 4);
    const doubles cells = valuesOf(out);
    EXPECT_EQ(doubles(cells.begin() + 4, cells.begin() + 8), (doubles{1, 1, 1, 1}));
    EXPECT_EQ(doubles(cells.begin() + 8, cells.begin() + 12), (doubles{1, 2, 3, 4}));
    VB_M_Dedupe(x.data(), 0, 1, &kept, out.data());
    EXPECT_EQ(kept, 0);
}

TEST(FlatDedupe, EqualIdentifiersKeepTheOrderOfTheData)
{
    // The last data column orders first: (2, 1) comes before (1, 2), and its copy before the other's.
    guarded<double> x{1, 1, 2, 2, 2, 2, 1, 1, 7, 7, 7, 7};
    guarded<double> out(doubles(20, -7.0));
    int kept = -1;
    VB_M_Dedupe(x.data(), 4, 2, &kept, out.data());
    EXPECT_EQ(kept, 2);
    EXPECT_EQ(valuesOf(out), (doubles{2, 1, 2, 1, 1, 2, 1, 2, 2, 2, 0, 0, 7, 7, 7, 7, 1, 1, 0, 0}));
}
