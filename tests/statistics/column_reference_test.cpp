// Beside R 4.2.2, on the first twelve rows of its data set airquality, printed with "%.17g":
//     a <- as.matrix(airquality[1:12, 1:4]); w <- rep(1:3, 4); b <- a[rep(1:12, w), ]
// Figures agree to the digits that are asserted; bits differ, since R takes two passes.

#include "statistics/column_deviations.h"
#include "statistics/covariance.h"
#include "statistics/cross_covariance.h"
#include "statistics/distances.h"
#include "support/random_cells.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using korvel::test::vectorOf;

namespace
{

constexpr double gone = MISSING_DBL;
constexpr int rows = 12;

matrix<double> airQuality()
{
    std::array cells{41.0,  36.0,  12.0,  18.0,  gone, 28.0, 23.0,  19.0, 8.0,  gone,  7.0,  16.0,
                     190.0, 118.0, 149.0, 313.0, gone, gone, 299.0, 99.0, 19.0, 194.0, gone, 256.0,
                     7.4,   8.0,   12.6,  11.5,  14.3, 14.9, 8.6,   13.8, 20.1, 8.6,   6.9,  9.7,
                     67.0,  72.0,  74.0,  62.0,  56.0, 66.0, 65.0,  59.0, 61.0, 69.0,  74.0, 69.0};
    return matrix<double>(rows, 4, cells.data(), false);
}

matrix<double> repetitions()
{
    return vectorOf<double>({1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3});
}

/** Each figure to 14 digits of the largest one that it could be mixed up with. */
void expectNear(const matrix<double>& found, const std::vector<double>& expected, double scale)
{
    ASSERT_EQ(found.nbElem, expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_NEAR(found.data[k], expected[k], 1e-14 * scale) << k;
    }
}

} // namespace

TEST(ColumnReference, PairwiseCovariances) // cov(a, use = "pairwise.complete.obs")
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

TEST(ColumnReference, PairwiseCorrelationsOverCommonRows) // cor(a, use = "pairwise.complete.obs")
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

TEST(ColumnReference, CorrelationsWithTheVariancesOfWholeColumns) // cov / sqrt(outer(v, v)), v <- diag(cov)
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

TEST(ColumnReference, WeightsAsRepetitions) // cov(b, use = "pairwise.complete.obs"), colMeans, sd
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

TEST(ColumnReference, WeightedCovariances) // cov.wt(a[, 3:4], w / sum(w), method = "ML", cor = TRUE)
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

TEST(ColumnReference, Distances) // dist(t(a[, 3:4])), dist(a[1:4, ])
{
    auto x = airQuality();
    matrix<double> complete(rows, 2, x.data + 2 * rows, true);
    matrix<double> ones(rows, 1, 1.0);
    matrix<double> ofColumns(2, 2, 9.0);
    M_EuclidDist2(&complete, rows, 2, &ones, &ofColumns, 0, 0);
    expectNear(ofColumns, {0, 192.04775447789021, 192.04775447789021, 0}, 1000.0);
    matrix<double> ofRows(4, 4, 9.0);
    M_EuclidDist2(&x, rows, 4, &ones, &ofRows, -1, 4);
    expectNear(ofRows,
               {0, 72.348876978153569, 50.970972131204249, 125.29888267658255, 72.348876978153569, 0,
                39.524169820503502, 196.11539970129832, 50.970972131204249, 39.524169820503502, 0,
                164.55154207724703, 125.29888267658255, 196.11539970129832, 164.55154207724703, 0},
               1000.0);
}
