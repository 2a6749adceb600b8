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
