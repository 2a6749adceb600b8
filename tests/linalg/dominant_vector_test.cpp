#include "linalg/dominant_vector.h"

#include "containers/missing.h"
#include "linalg/symmetric_eigen.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

/** The plain steps. Returns how many it took. */
int plainVonMises(const matrix<double>& A, std::vector<double>& x)
{
    const std::size_t n = x.size();
    std::fill(x.begin(), x.end(), 1.0);
    for (int step = 1; step <= 1000; ++step) {
        std::vector<double> y(n);
        double lambda = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t k = 0; k < n; ++k) {
                y[i] += A.getElement(static_cast<int>(i), static_cast<int>(k)) * x[k];
            }
            lambda += y[i] * x[i];
        }
        double above = 0.0;
        double below = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            const double q = x[i] == MISSING_DBL ? MISSING_DBL : x[i] * lambda;
            x[i] = y[i] == MISSING_DBL ? MISSING_DBL : y[i] * (1.0 / lambda);
            above += (y[i] - q) * (y[i] - q);
            below += q * q;
        }
        if (std::sqrt(above) / std::sqrt(below) <= 1e-6) {
            return step;
        }
    }
    return 1000;
}

} // namespace

TEST(DominantVector, HasTheBitsOfThePlainSteps)
{
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const int n = static_cast<int>(seed % 12);
        std::mt19937_64 generator(seed);
        matrix<double> A = randomTable(generator, n, n, 1);
        for (int i = 0; i < n; ++i) {
            A.setElement(i, i, A.getElement(i, i) + 3.0 * i);
        }
        // The scale of the table decides nothing: the step is held against the length of the vector.
        const double scale = seed % 3 == 0 ? 1e-4 : 1.0;
        std::transform(A.data, A.data + A.nbElem, A.data, [=](double x) { return scale * x; });
        std::vector<double> expected(static_cast<std::size_t>(n));
        plainVonMises(A, expected);
        matrix<double> x(2, 2, 9.0);
        EXPECT_EQ(M_VonMises(&A, &x, n), 0);
        ASSERT_EQ(x.nbElem, expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_SAME_BITS(x.data[i], expected[i]) << seed;
        }
    }
}

TEST(DominantVector, PointsAlongTheEigenvectorOfTheLargestValue)
{
    matrix<double> A = tableOf({{4, 1, 0}, {1, 3, 1}, {0, 1, 2}});
    matrix<double> x;
    ASSERT_EQ(M_VonMises(&A, &x, 3), 0);
    matrix<double> values;
    matrix<double> vectors;
    ASSERT_EQ(M_Eigen(A, values, vectors, 3, -1), 0);
    for (int i = 1; i < 3; ++i) {
        EXPECT_NEAR(x.data[i] / x.data[0], vectors.data[i] / vectors.data[0], 1e-5);
    }
    const double length = x.data[0] * x.data[0] + x.data[1] * x.data[1] + x.data[2] * x.data[2];
    EXPECT_GT(std::fabs(length - 1.0), 1e-9) << "it is not brought to unit length";
}

TEST(DominantVector, AUnitTableStopsAtOnceOnlyWhereLambdaIsOne)
{
    matrix<double> one(1, 1, 1.0);
    matrix<double> x;
    M_VonMises(&one, &x, 1);
    EXPECT_SAME_BITS(x.data[0], 1.0);
    matrix<double> four(1, 1, 4.0);
    M_VonMises(&four, &x, 1);
    EXPECT_SAME_BITS(x.data[0], 1.0) << "y = 4, lambda = 4, x = y / lambda";
}

TEST(DominantVector, AZeroTableRunsThroughAllSteps)
{
    matrix<double> A(3, 3, 0.0);
    matrix<double> x;
    EXPECT_EQ(M_VonMises(&A, &x, 3), 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(std::isnan(x.data[i]));
    }
    std::vector<double> plain(3);
    EXPECT_EQ(plainVonMises(A, plain), 1000);
}

TEST(DominantVector, MissingElementsStayMissing)
{
    // The first sum is the missing value itself, so y(1) and then x(1) are missing.
    matrix<double> A = tableOf({{MISSING_DBL, 0}, {0, 1}});
    matrix<double> x;
    M_VonMises(&A, &x, 2);
    std::vector<double> expected(2);
    plainVonMises(A, expected);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_SAME_BITS(x.data[i], expected[i]);
    }
}

TEST(DominantVector, OrderZero)
{
    matrix<double> A(1, 1, 1.0);
    matrix<double> x(4, 1, 2.0);
    EXPECT_EQ(M_VonMises(&A, &x, 0), 0);
    EXPECT_EQ(x.nbElem, 0U);
}
