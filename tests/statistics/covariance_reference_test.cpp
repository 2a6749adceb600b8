// Beside R 4.2.2, printed with "%.17g":
//     a <- as.matrix(airquality[1:12, 1:4]); w <- rep(1:3, 4); b <- a[rep(1:12, w), ]
// Figures agree to the digits that are asserted; bits differ, since R takes two passes.

#include "statistics/column_deviations.h"
#include "statistics/covariance.h"
#include "statistics/cross_covariance.h"
#include "support/air_quality.h"
#include "support/random_cells.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr int rows = airQualityRows;

matrix<double> repetitions()
{
    return vectorOf<double>({1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3});
}

} // namespace

TEST(CovarianceReference, PairwiseCovariances) // cov(a, use = "pairwise.complete.obs")
{
    auto x = airQuality();
    matrix<double> out;
    auto* from = &x;
    auto* to = &out;
    M_CovCorr(from, rows, 4, to, 0, nullptr, nullptr, -1, -1, 0);
    expectNear(out,
               {129.06666666666666, 180.16071428571428, -18.855555555555558, 0.20000000000000001,
                180.16071428571428, 9397.1111111111113, -243.1819444444445, 46.680555555555557,
                -18.855555555555558, -243.1819444444445, 15.447878787878791, -13.739393939393942,
                0.20000000000000001, 46.680555555555557, -13.739393939393942, 33.969696969696969},
               10000.0);
}

TEST(CovarianceReference, PairwiseCorrelationsOverCommonRows) // cor(a, use = "pairwise.complete.obs")
{
    auto x = airQuality();
    matrix<double> out;
    auto* to = &out;
    M_CorrMatMat(&x, rows, 4, &x, 4, to, nullptr, nullptr, -1, 0, -1, -1, 0);
    expectNear(out,
               {1, 0.1523174729867241, -0.401666914812007, 0.0032950510789475072, 0.1523174729867241, 1,
                -0.62607337331589963, 0.094388762012880822, -0.401666914812007, -0.62607337331589963, 1,
                -0.59977355489347883, 0.0032950510789475072, 0.094388762012880822, -0.59977355489347883, 1},
               1.0);
}

TEST(CovarianceReference,
     CorrelationsWithTheVariancesOfWholeColumns) // cov / sqrt(outer(v, v)), v <- diag(cov)
{
    auto x = airQuality();
    matrix<double> out;
    auto* from = &x;
    auto* to = &out;
    M_CovCorr(from, rows, 4, to, -1, nullptr, nullptr, -1, -1, 0);
    EXPECT_NEAR(out.getElement(0, 1), 180.16071428571428 / std::sqrt(129.06666666666666 * 9397.1111111111113),
                1e-14);
    EXPECT_NEAR(out.getElement(1, 2), -243.1819444444445 / std::sqrt(9397.1111111111113 * 15.447878787878791),
                1e-14);
}

TEST(CovarianceReference, WeightsAsRepetitions) // cov(b, use = "pairwise.complete.obs"), colMeans, sd
{
    auto x = airQuality();
    auto w = repetitions();
    matrix<double> out(4, 4, 0.0);
    matrix<double> means(4, 1, 0.0);
    matrix<double> sds(4, 1, 0.0);
    matrix<double> vars(4, 1, 0.0);
    M_CovCorrAndMeanStDevVar(&x, rows, 4, &out, &means, &sds, &vars, 0, nullptr, &w, -1, -1, 0, 0, 0);
    const std::vector<double> expectedMeans{18.952380952380953, 158.94117647058823, 12.25,
                                            66.458333333333329};
    const std::vector<double> expectedSds{10.360869608658293, 94.667490848386876, 4.0813467513000941,
                                          5.9489068536684275};
    expectNear(out,
               {107.34761904761905, 242.80000000000001, -15.428571428571431, 0.26666666666666666,
                242.80000000000001, 8961.9338235294126, -299.48308823529419, 153.86764705882354,
                -15.428571428571431, -299.48308823529419, 16.657391304347829, -14.815217391304349,
                0.26666666666666666, 153.86764705882354, -14.815217391304349, 35.389492753623188},
               10000.0);
    expectNear(means, expectedMeans, 100.0);
    expectNear(sds, expectedSds, 100.0);
    M_MeanStDev(&x, rows, 4, &means, &sds, nullptr, &w, -1, -1, 0);
    expectNear(means, expectedMeans, 100.0);
    expectNear(sds, expectedSds, 100.0);
}

TEST(CovarianceReference, WeightedCovariances) // cov.wt(a[, 3:4], w / sum(w), method = "ML", cor = TRUE)
{
    auto x = airQuality();
    matrix<double> complete(rows, 2, x.data + 2 * rows, true);
    auto w = repetitions();
    matrix<double> out;
    auto* from = &complete;
    auto* to = &out;
    M_CovCorr(from, rows, 2, to, 0, nullptr, &w, 0, 0, 0);
    expectNear(out, {15.963333333333336, -14.19791666666667, -14.19791666666667, 33.914930555555557}, 100.0);
    M_CovCorr(from, rows, 2, to, 1, nullptr, &w, 0, 0, 0);
    expectNear(out, {1.0, -0.61019320282993217, -0.61019320282993217, 1.0}, 1.0);
    matrix<double> wind(rows, 1, x.data + 2 * rows, true);
    matrix<double> temperature(rows, 1, x.data + 3 * rows, true);
    EXPECT_NEAR(V_Correl2W(&wind, rows, &temperature, &w), -0.61019320282993217, 1e-14);
}
