#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

} // namespace

TEST(FlatCorrelationConversion, ThereAndBack)
{
    guarded<double> cov{4, 6, 0, 6, 36, 0, 0, 0, 0};
    guarded<double> corr(doubles(9, 7.0));
    EXPECT_EQ(VB_M_CorrMatFromCovMat(cov.data(), 3, corr.data(), 0), 0);
    expectCells(corr, {1, 0.5, gone, 0.5, 1, gone, gone, gone, gone});
    EXPECT_EQ(VB_M_CorrMatFromCovMat(cov.data(), 3, corr.data(), -1), 0);
    expectCells(corr, {1, 0.5, 0, 0.5, 1, 0, 0, 0, 0});
    guarded<double> vars{4, 36, 1};
    guarded<double> back(doubles(9, 7.0));
    EXPECT_EQ(Cpp_M_CovMatFromCorrMat(corr.data(), 3, vars.data(), back.data()), 0);
    expectCells(back, valuesOf(cov));
    EXPECT_EQ(VB_M_CorrMatFromCovMat(cov.data(), 3, cov.data(), -1), 0);
    expectCells(cov, valuesOf(corr));
}

TEST(FlatCorrelationConversion, InPlaceOnSeparateColumns)
{
    caller_columns table({{4, 6, 0}, {36, 0}, {0}});
    EXPECT_EQ(Cpp_M_CorrMatFromCovMatSPV2_T(table.argument(), 3), 0);
    EXPECT_EQ(table.values(), (caller_columns::columns{{1, 0.5, gone}, {1, gone}, {gone}}));
}
