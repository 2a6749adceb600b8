#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <limits>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatPackedSweep, SweepsInPlace)
{
    guarded<double> packed({2, 4, 9, 6, 1, 30});
    EXPECT_EQ(VB_M_Sweep(packed.data(), 3, 1), 0);
    EXPECT_EQ(valuesOf(packed), (numbers{-0.5, 2, 1, 3, -11, 12}));
    guarded<double> negative({-2, 4, 9});
    EXPECT_EQ(VB_M_Sweep(negative.data(), 2, 1), 0);
    EXPECT_EQ(valuesOf(negative), (numbers{0.5, 2, 17}));
}

TEST(FlatPackedSweep, DoesNotTestThePivot)
{
    guarded<double> packed({0.0});
    EXPECT_EQ(VB_M_Sweep(packed.data(), 1, 1), 0);
    EXPECT_EQ(valuesOf(packed), numbers{-std::numeric_limits<double>::infinity()});
}

TEST(FlatPackedSweep, CleansWhatIsSmall)
{
    guarded<double> packed({1, 1e-13, 1e-13});
    EXPECT_EQ(VB_M_Sweep(packed.data(), 2, 1), 0);
    EXPECT_EQ(valuesOf(packed), (numbers{-1, 1e-13, 0}));
}

TEST(FlatPackedSweep, ReachesNothingOutside)
{
    guarded<double> packed({2, 4, 9});
    EXPECT_EQ(VB_M_Sweep(packed.data(), 2, 5), 0);
    EXPECT_EQ(VB_M_Sweep(packed.data(), 2, 0), 0);
    EXPECT_TRUE(packed.intact());
}
