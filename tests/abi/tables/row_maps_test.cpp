#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"
#include "support/special_values.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double missing = -1.79769313486231e308;

using flat_map = int (*)(const double*, int, int, double*);

} // namespace

TEST(FlatRowMaps, FindTheLargestCellOfARow)
{
    guarded<double> x(
        doubles{1, 5, missing, notANumber, 2, 3, 5, missing, 7, notANumber, 3, 4, missing, 9, 1});
    guarded<int> positions(ints(5));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.data(), 5, 3, positions.data()), 0);
    EXPECT_EQ(valuesOf(positions), (ints{2, 1, 1, 1, 1}));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.data(), 3, 5, positions.data()), 0);
    EXPECT_EQ(valuesOf(positions), (ints{3, 5, 3, 1, 1}));
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.data(), 5, 0, positions.data()), 0);
    EXPECT_EQ(valuesOf(positions), (ints{1, 1, 1, 1, 1}));
    guarded<int> none(ints{8});
    EXPECT_EQ(Cpp_M_MaxPosByRow(x.data(), 0, 3, none.data()), 0);
    EXPECT_EQ(valuesOf(none), ints{8});
}

TEST(FlatRowMaps, AddWeightedColumnsUp)
{
    guarded<double> x(doubles{1, 2, missing, 10, 20, 30, 0x1p60, 0, 5});
    guarded<double> factors(doubles{3, 0.5, 1});
    guarded<double> out(doubles(3));
    EXPECT_EQ(VB_ComputeNewVar(x.data(), 3, 3, factors.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0x1p60, 16, missing}));

    guarded<double> lacking(doubles{3, missing});
    EXPECT_EQ(VB_ComputeNewVar(x.data(), 2, 2, lacking.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{missing, missing, missing}));
    EXPECT_EQ(VB_ComputeNewVar(x.data(), 2, 0, factors.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 0, missing}));
}

TEST(FlatRowMaps, PickTheRowsThatAreNotNegligible)
{
    guarded<double> x(doubles{3, 0, 1, missing, 2, missing, 4, 0, 2, 5, 1, missing});
    guarded<short int> kept(shorts(6, 7));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.data(), 6, 2, 5.0, kept.data()), 2);
    EXPECT_EQ(valuesOf(kept), (shorts{-1, 0, 0, -1, 0, 0}));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.data(), 6, 2, 0.0, kept.data()), 4);
    EXPECT_EQ(valuesOf(kept), (shorts{-1, 0, -1, -1, -1, 0}));
    EXPECT_EQ(Cpp_FilterOnSumOfSquares(x.data(), 0, 2, 0.0, kept.data()), 0);
    EXPECT_EQ(valuesOf(kept), (shorts{-1, 0, -1, -1, -1, 0}));
}
