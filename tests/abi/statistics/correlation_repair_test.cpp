#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>

using namespace korvel::test;

namespace
{

// The table of three that Higham (2002) gives, and what he prints of its nearest correlation matrix.
const std::vector<double> published{1, 1, 0, 1, 1, 1, 0, 1, 1};
constexpr double beside = 0.7607;
constexpr double corner = 0.1573;

} // namespace

TEST(FlatNearestCorrelation, ReplacesATable)
{
    guarded<double> x(published);
    EXPECT_EQ(Cpp_M_CorrMatFromSymMat(x.data(), 3), 0);
    const std::vector<double> cells = valuesOf(x);
    EXPECT_EQ(cells[4], 1.0);
    EXPECT_NEAR(cells[1], beside, 5e-5);
    EXPECT_NEAR(cells[2], corner, 5e-5);
    EXPECT_EQ(cells[1], cells[3]);
    caller_columns columns({{1, 1, 0}, {1, 1, 1}, {0, 1, 1}});
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV(columns.argument(), 3), 0);
    EXPECT_EQ(columns.values(), (caller_columns::columns{{cells[0], cells[1], cells[2]},
                                                         {cells[3], cells[4], cells[5]},
                                                         {cells[6], cells[7], cells[8]}}));
    caller_columns triangle({{1, 1, 0}, {1, 1}, {1}});
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV_T(triangle.argument(), 3), 0);
    EXPECT_EQ(triangle.values(),
              (caller_columns::columns{{cells[0], cells[1], cells[2]}, {cells[4], cells[5]}, {cells[8]}}));
}

TEST(FlatNearestCorrelation, RefusesAMissingCell)
{
    const double missing = KORVEL_MISSING_DBL;
    guarded<double> x{1, missing, missing, 1};
    EXPECT_EQ(Cpp_M_CorrMatFromSymMat(x.data(), 2), -1);
    EXPECT_EQ(Cpp_M_CovMatFromSymMat(x.data(), 2), -1);
    expectCells(x, {1, missing, missing, 1});
    caller_columns columns({{1, 2}, {missing, 1}});
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV(columns.argument(), 2), -1);
    EXPECT_EQ(columns.values(), (caller_columns::columns{{1, 2}, {missing, 1}}));
    caller_columns triangle({{1, 2}, {missing}});
    EXPECT_EQ(Cpp_M_CorrMatFromSymMatSPV_T(triangle.argument(), 2), -1);
    EXPECT_EQ(triangle.values(), (caller_columns::columns{{1, 2}, {missing}}));
}

TEST(FlatNearestCorrelation, LeavesACorrelationMatrixAsItIs)
{
    const std::vector<double> cells{1, 0.3, -0.1, 0.3, 1, 0.7, -0.1, 0.7, 1};
    guarded<double> x(cells);
    EXPECT_EQ(Cpp_M_CorrMatFromSymMat(x.data(), 3), 0);
    expectCells(x, cells);
    EXPECT_EQ(Cpp_M_CorrMatFromSymMat(nullptr, 0), 0);
}

TEST(FlatNearestCovariance, KeepsTheVariances)
{
    guarded<double> x{4, 4, 0, 4, 4, 4, 0, 4, 4};
    EXPECT_EQ(Cpp_M_CovMatFromSymMat(x.data(), 3), 0);
    const std::vector<double> cells = valuesOf(x);
    EXPECT_EQ(cells[0], 4.0);
    EXPECT_NEAR(cells[1], 4 * beside, 2e-4);
    EXPECT_NEAR(cells[2], 4 * corner, 2e-4);
}
