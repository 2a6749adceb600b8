#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/nist.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

std::array x{1.0, 2.0, MISSING_DBL, 3.0, 50.0, 6.0};
std::array w{1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
std::array<short int, 6> flags{0, 0, 0, 0, 7, 0};

} // namespace

TEST(FlatVectorVariance, VarianceAndDeviation)
{
    EXPECT_SAME_BITS(VB_V_Var(x.data(), 6, flags.data(), w.data(), 0, 0), 14.0 / 4.0);
    EXPECT_SAME_BITS(VB_V_Var(x.data(), 6, flags.data(), w.data(), -1, -1), 14.0 / 3.0);
    EXPECT_SAME_BITS(VB_V_Var(x.data(), 6, flags.data(), w.data(), 1, -1), 14.0 / 4.0);
    EXPECT_SAME_BITS(VB_V_Stdev(x.data(), 6, flags.data(), w.data(), -1, 0), std::sqrt(14.0 / 3.0));
    EXPECT_SAME_BITS(VB_V_Stdev(x.data(), 1, flags.data(), w.data(), -1, 0), MISSING_DBL);
}

TEST(FlatVectorVariance, VarianceOfNothingReadsNothing)
{
    EXPECT_SAME_BITS(VB_V_Var(nullptr, 0, nullptr, nullptr, 0, 0), MISSING_DBL);
    EXPECT_SAME_BITS(VB_V_Var(nullptr, 0, nullptr, nullptr, -1, -1), -0.0);
    EXPECT_SAME_BITS(VB_V_Var(nullptr, 0, nullptr, nullptr, -1, 0), notANumber);
    EXPECT_SAME_BITS(VB_V_Stdev(nullptr, 0, nullptr, nullptr, 0, 0), MISSING_DBL);
    EXPECT_SAME_BITS(Cpp_V_Var2(nullptr, 0, 0, 0), MISSING_DBL);
}

TEST(FlatVectorVariance, UnweightedVarianceIsGuardedAsTheWeightedOneIs)
{
    EXPECT_SAME_BITS(Cpp_V_Var2(x.data(), 4, 0, 0), 2.0 / 3.0);
    EXPECT_SAME_BITS(Cpp_V_Var2(x.data(), 4, -1, -1), 1.0);
    EXPECT_SAME_BITS(Cpp_V_Var2(x.data(), 4, -1, 0), 1.0);
    EXPECT_SAME_BITS(Cpp_V_Var2(x.data(), 1, -1, 0), MISSING_DBL) << "not the NaN of an unguarded division";
}

TEST(FlatVectorVariance, MeanWithItsSpread)
{
    guarded<double> mean{77};
    guarded<double> spread{77};
    const auto expectBoth = [&](double expectedMean, double expectedSpread) {
        EXPECT_SAME_BITS(valuesOf(mean)[0], expectedMean);
        EXPECT_SAME_BITS(valuesOf(spread)[0], expectedSpread);
    };
    EXPECT_EQ(VB_V_MeanVar(x.data(), 6, mean.data(), spread.data(), flags.data(), w.data(), -1, 0), 0);
    expectBoth(3.0, 14.0 / 3.0);
    EXPECT_EQ(VB_V_MeanStdev(x.data(), 6, mean.data(), spread.data(), flags.data(), w.data(), 0, 0), 0);
    expectBoth(3.0, std::sqrt(14.0 / 4.0));
    EXPECT_EQ(Cpp_V_MeanVarW2(x.data(), 4, w.data(), mean.data(), spread.data(), -1, -1), 0);
    expectBoth(2.0, 1.0);
    EXPECT_EQ(Cpp_V_MeanStdev2(x.data(), 4, -1, mean.data(), spread.data()), 0);
    expectBoth(2.0, 1.0);
    EXPECT_EQ(VB_V_MeanVar(nullptr, 0, mean.data(), spread.data(), nullptr, nullptr, -1, 0), 0);
    expectBoth(0.0, 0.0);
    EXPECT_EQ(Cpp_V_MeanVarW2(nullptr, 0, nullptr, mean.data(), spread.data(), 0, 0), 0);
    expectBoth(0.0, MISSING_DBL);
    EXPECT_EQ(Cpp_V_MeanStdev2(nullptr, 0, 0, mean.data(), spread.data()), 0);
    expectBoth(0.0, notANumber);
}

TEST(FlatVectorVariance, CertifiedSets)
{
    for (const measured_digits& row : univariateSets) {
        univariate_set set = readUnivariateSet(row.set);
        std::vector<double> weights(set.cells.size(), 1.0);
        std::vector<short int> none(set.cells.size());
        const int n = static_cast<int>(set.cells.size());
        double mean = 0.0;
        double spread = 0.0;
        VB_V_MeanStdev(set.cells.data(), n, &mean, &spread, none.data(), weights.data(), -1, 0);
        EXPECT_GE(correctDigits(mean, set.mean), row.meanByUpdates) << row.set;
        EXPECT_GE(correctDigits(spread, set.deviation), row.deviation) << row.set;
        VB_V_MeanVar(set.cells.data(), n, &mean, &spread, none.data(), weights.data(), -1, -1);
        EXPECT_GE(correctDigits(mean, set.mean), row.meanByUpdates) << row.set;
        EXPECT_GE(correctDigits(std::sqrt(spread), set.deviation), row.deviation) << row.set;
    }
}
