#include "statistics/correlation_conversion.h"
#include "statistics/correlation_repair.h"
#include "statistics/repair_tables.h"
#include "support/column_tables.h"

#include <cmath>

using namespace korvel::test;

TEST(NearestCovariance, KeepsTheVariances)
{
    const double deviations[]{2, 0.5, 3};
    matrix<double> covariances = bandOf(3, 1, 1);
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            covariances.setElement(i, j, covariances.getElement(i, j) * deviations[i] * deviations[j]);
        }
    }
    EXPECT_EQ(M_CovMatFromSymMat(&covariances, 3), 0);
    matrix<double> correlations = bandOf(3, 1, 1);
    EXPECT_EQ(M_CorrMatFromSymMat(&correlations, 3), 0);
    for (int j = 0; j < 3; ++j) {
        EXPECT_EQ(covariances.getElement(j, j), deviations[j] * deviations[j]);
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(covariances.getElement(i, j),
                        correlations.getElement(i, j) * deviations[i] * deviations[j], 1e-14);
        }
    }
}

TEST(NearestCovariance, IsTheStepsOfItsRule)
{
    constexpr int n = 6;
    matrix<double> table = randomIndefinite(n);
    matrix<double> variances(n, 1, 0.0);
    for (int i = 0; i < n; ++i) {
        table.setElement(i, i, 0.5 + i);
        variances[i] = 0.5 + i;
    }
    matrix<double> correlations(n, n, 0.0);
    M_CorrMatFromCovMat(&table, n, &correlations, -1);
    EXPECT_EQ(M_CorrMatFromSymMat(&correlations, n), 0);
    matrix<double> expected(n, n, 0.0);
    M_CovMatFromCorrMat(&correlations, n, &variances, &expected);
    EXPECT_EQ(M_CovMatFromSymMat(&table, n), 0);
    expectSymmetricCells(table, expected);
}

TEST(NearestCovariance, TakesCorrelationsOfNoVarianceForZero)
{
    matrix<double> table = columnTable(3, {4, 7, 5, 7, 0, 3, 5, 3, 1});
    EXPECT_EQ(M_CovMatFromSymMat(&table, 3), 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(table.getElement(i, 1), 0.0);
        EXPECT_EQ(table.getElement(1, i), 0.0);
    }
    EXPECT_EQ(table.getElement(0, 0), 4.0);
    EXPECT_NEAR(table.getElement(2, 0), 2.0, 1e-5) << "a correlation of 2.5 becomes 1";
}

TEST(NearestCovariance, OfNegativeAndTinyVariances)
{
    // Two negative variances have a product above 0, but their own correlations are 0. Those of variances up
    // to 1e-12 too; their covariances are not.
    for (const double variance : {-4.0, 1e-12, std::nextafter(1e-12, 1.0), 9e-13, 0.0}) {
        const double own = 0.9 * variance; // no correlation matrix has such cells
        const double other = 0.8 * std::sqrt(std::fabs(variance));
        matrix<double> table =
            columnTable(3, {variance, own, other, own, variance, -other, other, -other, 1});
        const bool counts = variance > 1e-12;
        matrix<double> correlations(3, 3, 0.0);
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                const double product = table.getElement(i, i) * table.getElement(j, j);
                const double diagonal = i == 2 || counts ? 1.0 : 0.0;
                const double beside = product > 0.0 ? table.getElement(i, j) / std::sqrt(product) : 0.0;
                correlations.setElement(i, j, i == j ? diagonal : beside);
            }
        }
        plainRepair(correlations, 3);
        matrix<double> expected(3, 3, 0.0);
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                expected.setElement(i, j,
                                    std::sqrt(table.getElement(i, i) * table.getElement(j, j)) *
                                        correlations.getElement(i, j));
            }
        }
        EXPECT_EQ(M_CovMatFromSymMat(&table, 3), 0);
        expectSymmetricCells(table, expected);
    }
}
