#include "linalg/spectral_norm.h"

#include "containers/missing.h"
#include "support/bits.h"
#include "support/column_tables.h"
#include "support/special_values.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(SpectralNorm, OfOneColumnIsItsLength)
{
    matrix<double> x = columnTable(2, {3, 4});
    EXPECT_SAME_BITS(getNorm2(&x), 5.0);
    matrix<double> one = columnTable(1, {-2});
    EXPECT_SAME_BITS(getNorm2(&one), 2.0);
    matrix<double> none(0, 1, 0.0);
    EXPECT_SAME_BITS(getNorm2(&none), 0.0);
}

TEST(SpectralNorm, IsTheLargestSingularValue)
{
    // R 4.2.2, norm(x, "2").
    matrix<double> A = columnTable(3, {1, 2, 3, 4, 5, 6, 7, 8, 10});
    EXPECT_NEAR(getNorm2(&A), 17.412505166808597, 1e-13);
    EXPECT_EQ(cellsOf(A), (std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8, 10}));
    // R 4.2.2, svd(g)$d[1] of this table of 4 by 3.
    matrix<double> tall = columnTable(4, {2, 0, 1, -1, 3, 5, -2, 1, 0, 4, 1, 7});
    EXPECT_NEAR(getNorm2(&tall), 9.0048653566797796, 1e-13);
}

TEST(SpectralNorm, IsMissingWhenTheProductHasAMissingElement)
{
    matrix<double> A = columnTable(2, {MISSING_DBL, 0, 0, 1});
    A.data[0] = 1.0;
    A.data[2] = MISSING_DBL;
    EXPECT_SAME_BITS(getNorm2(&A), MISSING_DBL);
}
