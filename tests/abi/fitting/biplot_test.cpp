#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = KORVEL_MISSING_DBL;

} // namespace

TEST(FlatBiplot, RescalesCoordinates)
{
    guarded<double> points{2, gone, 6, 3};
    guarded<double> extra{4, 9};
    guarded<double> arrows{8, 4, 1, gone, 18, 1};
    guarded<double> values{4, 16};
    guarded<double> ofRows{7, 7, 7, 7, 7, 7};
    guarded<double> ofColumns{7, 7, 7, 7, 7, 7};
    EXPECT_EQ(VB_BiplotTransData(points.data(), extra.data(), arrows.data(), 2, 1, 3, 2, values.data(), 4.0,
                                 1.0, ofRows.data(), ofColumns.data()),
              0);
    expectCells(ofRows, {2, gone, 4, 6, 3, 9});
    expectCells(ofColumns, {8, 4, 1, gone, 9, 0.5});
    caller_columns pointColumns({{2, gone}, {6, 3}});
    caller_columns arrowColumns({{8, 4, 1}, {gone, 18, 1}});
    EXPECT_EQ(VB_BiplotTransDataSPV(pointColumns.argument(), extra.data(), arrowColumns.argument(), 2, 1, 3,
                                    2, values.data(), 1.0, 0.0, ofRows.data(), ofColumns.data()),
              0);
    expectCells(ofRows, {1, gone, 2, 1.5, 0.75, 2.25});
    expectCells(ofColumns, {8, 4, 1, gone, 18, 1});
}

TEST(FlatBiplot, ComputesSquaredCosines)
{
    guarded<double> x{3, 0, 4, 0};
    guarded<double> result{7, 7, 7, 7};
    EXPECT_EQ(ComputeCosines(x.data(), 2, 2, result.data()), 0);
    expectCells(result, {9.0 / 25.0, 7, 16.0 / 25.0, 7});
    EXPECT_EQ(ComputeCosines(x.data(), 2, 2, x.data()), 0);
    expectCells(x, {9.0 / 25.0, 0, 16.0 / 25.0, 0});
}

TEST(FlatBiplot, MarksCosines)
{
    guarded<int> positions{2, 1, 0};
    guarded<int> table{5, 5, 5, 5, 5, 5, 5, 5, 5};
    EXPECT_EQ(Cpp_M_BoldCosines(positions.data(), 3, table.data()), 0);
    EXPECT_EQ(valuesOf(table), (std::vector<int>{5, -1, 5, -1, 5, 5, 5, 5, 5}));
}
