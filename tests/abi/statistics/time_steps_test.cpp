#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatTimeSteps, AreFound)
{
    guarded<double> x{3, 1, 2};
    EXPECT_TRUE(sameBits(VB_V_TimeIntervalSize(x.data(), 3, -1), 1.0));
    EXPECT_TRUE(sameBits(VB_V_TimeIntervalSize(x.data(), 3, 0), MISSING_DBL));
    EXPECT_TRUE(sameBits(VB_V_TimeIntervalSize(nullptr, 0, -1), MISSING_DBL));
    EXPECT_EQ(valuesOf(x), (std::vector<double>{3, 1, 2}));
    // The first days of January, February and March 2022.
    guarded<double> months{44562, 44593, 44621};
    double step = 77;
    EXPECT_EQ(Cpp_V_CheckDateInterval(months.data(), 3, 2, &step), 0);
    EXPECT_TRUE(sameBits(step, 31.0));
    EXPECT_EQ(Cpp_V_CheckDateInterval(months.data(), 3, 1, &step), 0);
    EXPECT_TRUE(sameBits(step, MISSING_DBL));
}
