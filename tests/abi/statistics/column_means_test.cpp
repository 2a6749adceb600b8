#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

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
