#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <array>

using namespace korvel::test;

TEST(FlatVectorMeans, MeanOfNothingReadsNothingAndIsMissing)
{
    EXPECT_SAME_BITS(VB_V_Mean(nullptr, 0, nullptr, nullptr), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_MeanAbs(nullptr, 0, nullptr, nullptr), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Mean2(nullptr, 0), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_MeanW2(nullptr, 0, nullptr), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_HarmonicMean(nullptr, 0, nullptr, nullptr), MISSING_DBL);
}

TEST(FlatVectorMeans, Means)
{
    std::array x{-1.0, 2.0, MISSING_DBL, 4.0};
    std::array w{1.0, 2.0, 1.0, 1.0};
    std::array<short int, 4> flags{0, 0, 0, 1};
    EXPECT_SAME_BITS(VB_V_Mean(x.data(), 4, flags.data(), w.data()), 3.0 / 3.0);
    EXPECT_SAME_BITS(VB_V_MeanAbs(x.data(), 4, flags.data(), w.data()), 5.0 / 3.0);
    EXPECT_SAME_BITS(VB_V_Mean2(x.data(), 4), 5.0 / 3.0);
    EXPECT_SAME_BITS(Cpp_V_MeanW2(x.data(), 4, w.data()), 7.0 / 4.0);
    EXPECT_SAME_BITS(Cpp_V_HarmonicMean(x.data(), 2, flags.data(), w.data()), MISSING_DBL) << "-1 + 2/2 is 0";
    x[0] = 0.5;
    EXPECT_SAME_BITS(Cpp_V_HarmonicMean(x.data(), 4, flags.data(), w.data()), 3.0 / 3.0);
}

TEST(FlatVectorMeans, GeometricMeanWritesBothResults)
{
    std::array x{1.0, 1.0, -1.0};
    std::array w{1.0, 2.0, 1.0};
    std::array<short int, 3> flags{0, 0, 7};
    guarded<double> mean{77};
    guarded<double> deviation{77};
    EXPECT_EQ(Cpp_V_GMeanGSD(x.data(), 3, flags.data(), w.data(), mean.data(), deviation.data()), 0);
    EXPECT_SAME_BITS(mean.values()[0], 1.0);
    EXPECT_SAME_BITS(deviation.values()[0], 1.0);
    flags[2] = 0;
    EXPECT_EQ(Cpp_V_GMeanGSD(x.data(), 3, flags.data(), w.data(), mean.data(), deviation.data()), 0);
    EXPECT_SAME_BITS(mean.values()[0], MISSING_DBL);
    EXPECT_SAME_BITS(deviation.values()[0], MISSING_DBL);
    EXPECT_TRUE(mean.intact() && deviation.intact());
}
