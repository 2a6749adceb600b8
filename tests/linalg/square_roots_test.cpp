#include "linalg/square_roots.h"

#include "linalg/products.h"
#include "linalg/products_symmetric.h"
#include "linalg/root_factor.h"
#include "linalg/square_kinds.h"
#include "linalg/symmetric_eigen.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

void expectTable(const matrix<double>& actual, const matrix<double>& expected)
{
    ASSERT_EQ(actual.nbElem, expected.nbElem);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        EXPECT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
}

matrix<double> diagonal(const std::vector<double>& d)
{
    return squareOf(static_cast<int>(d.size()),
                    [&](int i, int j) { return i == j ? d[static_cast<std::size_t>(i)] : 0.0; });
}

matrix<double> transposed(const matrix<double>& x)
{
    return squareOf(x.nbrows, [&](int i, int j) { return x.getElement(j, i); });
}

const matrix<double> untouched(2, 2, 7.0);

} // namespace

TEST(SquareRoot, HasTheRootsOfTheEigenvaluesTimesTheVectors)
{
    matrix<double> A = diagonal({4, 25, 9});
    matrix<double> R;
    EXPECT_EQ(M_SquareRoot(&A, 3, &R), 0);
    const matrix<double> sizes = squareOf(3, [&](int i, int j) { return std::fabs(R.getElement(i, j)); });
    expectTable(sizes, tableOf({{0, 5, 0}, {0, 0, 3}, {2, 0, 0}}));
}

TEST(SquareRoot, MultipliedWithItsTransposeGivesTheTable)
{
    for (const int n : orders) {
        const matrix<double> regular = scaled(gramian(randomSquare(n), 1.0), 1.0 / (n + 1));
        matrix<double> flat = randomSquare(n, 9);
        for (int i = 0; n > 2 && i < n; ++i) {
            flat.setElement(n - 1, i, flat.getElement(0, i));
        }
        const std::vector<square_kind> kinds{{"random", regular},
                                             {"graded", graded(regular, n < 50 ? 2.0 : 1.01)},
                                             {"rank deficient", scaled(gramian(flat, 0.0), 1.0 / (n + 1))},
                                             {"Hilbert", n <= 10 ? hilbert(n) : regular},
                                             {"huge", scaled(regular, 1e100)}};
        for (const square_kind& kind : kinds) {
            SCOPED_TRACE(kind.name + " " + std::to_string(n));
            matrix<double> A(kind.table);
            matrix<double> R;
            ASSERT_EQ(M_SquareRoot(&A, n, &R), 0);
            EXPECT_LT(scaledResidual(transposed(R), R, kind.table), lapackThreshold);
            matrix<double> S(n, n, 9.0);
            M_SquareRootSDP(kind.table, n, S);
            EXPECT_LT(scaledResidual(S, S, kind.table), lapackThreshold);
            EXPECT_TRUE(sameTable(squareOf(n, [&](int i, int j) { return S.getElement(j, i); }),
                                  squareOf(n, [&](int i, int j) { return S.getElement(i, j); })))
                << "symmetric to the last bit";
        }
    }
}

TEST(SquareRoot, IsTheProductOfItsRule)
{
    constexpr int n = 12;
    matrix<double> A = scaled(gramian(randomSquare(n), 1.0), 0.25);
    matrix<double> values;
    matrix<double> U;
    ASSERT_EQ(M_Eigen(A, values, U, n, -1), 0);
    matrix<double> G;
    M_ProductTrAA(&U, n, n, &G);
    ASSERT_TRUE(std::any_of(G.data + 1, G.data + n, [](double x) { return x != 0.0; }))
        << "what rounding leaves";
    for (int i = 0; i < n; ++i) {
        G.setElement(i, i, (1.0 / std::sqrt(G.getElement(i, i))) * std::sqrt(values[i]));
    }
    matrix<double> expected;
    M_ProductATrB(&G, n, n, &U, n, &expected);
    matrix<double> R;
    EXPECT_EQ(M_SquareRoot(&A, n, &R), 0);
    expectTable(R, expected);
}

TEST(SquareRoot, CountsASlightlyNegativeEigenvalueAsZero)
{
    matrix<double> A = diagonal({1, -1e-13});
    matrix<double> R;
    EXPECT_EQ(M_SquareRoot(&A, 2, &R), 0);
    EXPECT_SAME_BITS(std::fabs(R.getElement(1, 1)), 0.0);
    EXPECT_SAME_BITS(std::fabs(R.getElement(0, 0)), 1.0);
}

TEST(SquareRoot, RefusesANegativeEigenvalue)
{
    for (const double value : {-1e-12, -2.0}) {
        matrix<double> A = diagonal({1, value});
        matrix<double> R(untouched);
        EXPECT_EQ(M_SquareRoot(&A, 2, &R), -1);
        expectTable(R, untouched);
    }
    matrix<double> A = scaled(diagonal({1, -1}), 1e-13);
    matrix<double> R;
    EXPECT_EQ(M_SquareRoot(&A, 2, &R), 0) << "a table of tiny scale passes whatever it is";
}

TEST(SquareRoot, RefusesAMissingCell)
{
    matrix<double> A = diagonal({1, MISSING_DBL});
    matrix<double> R(untouched);
    EXPECT_EQ(M_SquareRoot(&A, 2, &R), -1);
    expectTable(R, untouched);
    M_SquareRootSDP(A, 2, R);
    expectTable(R, untouched);
}

TEST(SquareRoot, RefusesAVectorWithoutLength)
{
    const matrix<double> values = tableOf({{4}, {1}});
    matrix<double> vectors = tableOf({{1, 0}, {0, 0}});
    matrix<double> R(untouched);
    EXPECT_EQ(korvel::formRootFactor(values, vectors, 2, R), -2);
    expectTable(R, untouched);
    // The first position that fails decides, and in it the vector.
    EXPECT_EQ(korvel::formRootFactor(tableOf({{-1}, {1}}), vectors, 2, R), -1);
    EXPECT_EQ(korvel::formRootFactor(tableOf({{1}, {-1}}), vectors, 2, R), -2);
    vectors = tableOf({{2, 0}, {0, 1}});
    EXPECT_EQ(korvel::formRootFactor(values, vectors, 2, R), 0);
    expectTable(R, tableOf({{2, 0}, {0, 1}})); // 2 / 2 times the row (2, 0)
}

TEST(SquareRoot, OfASparseTableIsThatOfTheDenseOne)
{
    matrix<double> A = tableOf({{4, 1, 0}, {1, 3, 0}, {0, 0, 2}});
    matrixSparse sparse(&A);
    matrix<double> R;
    matrix<double> expected;
    EXPECT_EQ(M_SquareRoot(&sparse, 3, &R), 0);
    EXPECT_EQ(M_SquareRoot(&A, 3, &expected), 0);
    expectTable(R, expected);
    sparse.setElement(2, 2, -1.0);
    EXPECT_EQ(M_SquareRoot(&sparse, 3, &R), -1);
}

TEST(SymmetricSquareRoot, SetsEveryNegativeEigenvalueToZero)
{
    matrix<double> R(2, 2, 7.0);
    M_SquareRootSDP(diagonal({4, -100}), 2, R);
    expectTable(R, diagonal({2, 0}));
    M_SquareRootSDP(tableOf({{5, 4}, {4, 5}}), 2, R);
    for (int k = 0; k < 4; ++k) {
        EXPECT_NEAR(R.data[k], k % 3 == 0 ? 2.0 : 1.0, 1e-15);
    }
}

TEST(SymmetricSquareRoot, IsTheProductOfItsRule)
{
    const matrix<double> A = scaled(gramian(randomSquare(6), 1.0), 0.25);
    matrix<double> values;
    matrix<double> U;
    ASSERT_EQ(M_Eigen(A, values, U, 6, 0), 0);
    for (int i = 0; i < 6; ++i) {
        values[i] = std::sqrt(values[i]);
    }
    matrix<double> expected(6, 6, 0.0);
    M_ProductADiagVTrA(&U, 6, 6, &values, &expected);
    matrix<double> R(6, 6, 0.0);
    M_SquareRootSDP(A, 6, R);
    expectTable(R, expected);
}
