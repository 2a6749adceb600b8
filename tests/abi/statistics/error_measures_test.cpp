#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatErrorMeasures, Percentages)
{
    guarded<double> actual{2, 4, 8};
    guarded<double> predicted{3, 2, 8};
    guarded<double> w{2, 1, 1};
    EXPECT_TRUE(sameBits(VB_MAPE(actual.data(), predicted.data(), 3, w.data(), 1), 37.5));
    EXPECT_TRUE(sameBits(VB_MAPE(actual.data(), predicted.data(), 3, w.data(), 0), 37.5));
    EXPECT_TRUE(sameBits(VB_MAPE(actual.data(), predicted.data(), 3, nullptr, 2), 25.0));
    EXPECT_TRUE(sameBits(VB_MPE(actual.data(), predicted.data(), 3, w.data(), 1), -12.5));
    EXPECT_TRUE(sameBits(VB_MAE(actual.data(), predicted.data(), 3, w.data(), 1), 1.0));
    guarded<double> zeros{0, 0, 0};
    EXPECT_TRUE(sameBits(VB_MAPE(zeros.data(), predicted.data(), 3, w.data(), 1), 0.0));
    EXPECT_TRUE(sameBits(VB_MPE(zeros.data(), predicted.data(), 3, w.data(), 1), MISSING_DBL));
    EXPECT_TRUE(sameBits(VB_MAE(actual.data(), predicted.data(), 3, w.data(), 4), MISSING_DBL));
    EXPECT_TRUE(actual.intact() && predicted.intact() && w.intact());
}

TEST(FlatErrorMeasures, RootMeanSquare)
{
    guarded<double> x{9, 9, 1, MISSING_DBL};
    guarded<double> y{0, 0, 5, 100};
    EXPECT_TRUE(sameBits(VB_RMSE(x.data(), 2, 2, y.data(), 4.0), 2.0));
    EXPECT_TRUE(sameBits(VB_RMSE(x.data(), 2, 2, y.data(), 0.0), 1.0 / 0.0));
    EXPECT_TRUE(sameBits(VB_RMSE(x.data(), 2, 1, y.data(), 162.0), 1.0));
    EXPECT_TRUE(sameBits(VB_RMSE(x.data(), 2, 0, y.data(), 4.0), 0.0));
}
