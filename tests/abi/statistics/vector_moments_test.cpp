#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <array>
#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

std::vector<double> momentsOf(double* x, int n, short int* flags, double* w, short int bUnbiased,
                              short int bFreq)
{
    guarded<double> found{77, 77, 77, 77, 77, 77, 77, 77};
    double* places = found.data();
    EXPECT_EQ(VB_V_MeanVarSkewPKurtP(x, n, places, places + 1, places + 2, places + 3, places + 4, places + 5,
                                     places + 6, places + 7, flags, w, bUnbiased, bFreq),
              0);
    return valuesOf(found);
}

void expectSameBits(const std::vector<double>& actual, const std::array<double, 8>& expected)
{
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(actual[k], expected[k]) << k;
    }
}

} // namespace

TEST(FlatVectorMoments, EachResultGoesToItsPlace)
{
    std::array x{1.0, 3.0, 50.0, 5.0, MISSING_DBL, 7.0};
    std::array w{1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
    std::array<short int, 6> flags{0, 0, 1, 0, 0, 0};
    expectSameBits(momentsOf(x.data(), 6, flags.data(), w.data(), 0, 0),
                   {4.0, 5.0, 0.0, 41.0 / 25.0 - 3.0, 0.0, 1.5 * ((41.0 / 25.0 - 3.0 + 3.0) * 5.0 - 9.0),
                    std::sqrt(72.0 / 70.0), 2.0 * std::sqrt(72.0 / 70.0) * std::sqrt(15.0 / 9.0)});
}

TEST(FlatVectorMoments, NothingReadsNothing)
{
    expectSameBits(momentsOf(nullptr, 0, nullptr, nullptr, -1, 0),
                   {0.0, MISSING_DBL, MISSING_DBL, MISSING_DBL, MISSING_DBL, MISSING_DBL, 0.0, 0.0});
}

TEST(FlatVectorMoments, ResultsThatAreNotWantedMayShareAPlace)
{
    std::array x{1.0, 2.0, 4.0, 9.0};
    std::array w{1.0, 1.0, 1.0, 1.0};
    std::array<short int, 4> flags{};
    const auto apart = momentsOf(x.data(), 4, flags.data(), w.data(), 0, 0);
    double unwanted = 0.0;
    double skew = 0.0;
    double seKurt = 0.0;
    VB_V_MeanVarSkewPKurtP(x.data(), 4, &unwanted, &unwanted, &unwanted, &unwanted, &skew, &unwanted,
                           &unwanted, &seKurt, flags.data(), w.data(), 0, 0);
    EXPECT_SAME_BITS(skew, apart[4]);
    EXPECT_SAME_BITS(seKurt, apart[7]);
}
