#include "linalg/projections.h"

#include "linalg/cone_projection.h"
#include "linalg/square_kinds.h"
#include "reference/projections.h"
#include "support/column_tables.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

matrix<double> symmetricTable(int n, std::uint64_t seed)
{
    std::mt19937_64 generator(seed);
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            made.setElement(i, j, uniform(generator));
            made.setElement(j, i, made.getElement(i, j));
        }
    }
    return made;
}

void expectCellsOf(const matrix<double>& actual, const matrix<double>& expected)
{
    ASSERT_EQ(actual.nbElem, expected.nbElem);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        ASSERT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
}

} // namespace

TEST(ConeProjection, IsThePlainOne)
{
    for (const int n : {1, 2, 3, 5, 8, 9, 17, 40}) {
        SCOPED_TRACE(n);
        matrix<double> A = symmetricTable(n, static_cast<std::uint64_t>(n));
        matrix<double> one = identity(n);
        matrix<double> weights = gramian(randomSquare(n), 1.0);
        for (matrix<double>* const W : {&one, &weights}) {
            matrix<double> X(n, n, 9.0);
            M_SProject(&A, n, W, &X);
            expectCellsOf(X, plainProjection(A, n, *W));
        }
    }
}

TEST(ConeProjection, SetsNegativeEigenvaluesToZero)
{
    // 1 2 / 2 1 has the eigenvalues 3 and -1; what is left is 1.5 everywhere.
    matrix<double> A = columnTable(2, {1, 2, 2, 1});
    matrix<double> W = identity(2);
    matrix<double> X(2, 2, 9.0);
    M_SProject(&A, 2, &W, &X);
    for (const double cell : cellsOf(X)) {
        EXPECT_NEAR(cell, 1.5, 1e-15);
    }
    // Nothing is left of a table that has none above 0, and a table that has none below stays.
    matrix<double> negative = columnTable(2, {-1, 0, 0, -2});
    M_SProject(&negative, 2, &W, &X);
    expectCellsOf(X, matrix<double>(2, 2, 0.0));
    matrix<double> positive = columnTable(2, {3, 1, 1, 3});
    M_SProject(&positive, 2, &W, &X);
    EXPECT_NEAR(X.data[0], 3.0, 1e-14);
    EXPECT_NEAR(X.data[1], 1.0, 1e-14);
}

TEST(ConeProjection, UsesTheRootOfTheWeightsOnBothSides)
{
    // With the weights 4 and 9 the roots of the diagonal stand crosswise: the larger value comes first.
    matrix<double> W = columnTable(2, {4, 0, 0, 9});
    matrix<double> A = columnTable(2, {1, 0, 0, -1});
    matrix<double> X(2, 2, 9.0);
    M_SProject(&A, 2, &W, &X);
    expectCellsOf(X, plainProjection(A, 2, W));
    // The root is 0 3 / 2 0 up to signs, and of -6 and 6 on the diagonal between one is left: 6 / 2 / 3.
    EXPECT_NEAR(std::fabs(X.data[0]) + std::fabs(X.data[3]), 1.0, 1e-14);
}

TEST(ConeProjection, OfWeightsWithoutRootOrInverseIsZero)
{
    matrix<double> A = columnTable(2, {1, 2, 2, 1});
    for (const std::vector<double>& cells :
         {std::vector<double>{1, 0, 0, -1}, std::vector<double>{1, 0, 0, 1e-18},
          std::vector<double>{1, 0, 0, MISSING_DBL}}) {
        matrix<double> W = columnTable(2, cells);
        matrix<double> X(2, 2, 9.0);
        M_SProject(&A, 2, &W, &X);
        for (const double cell : cellsOf(X)) {
            EXPECT_EQ(cell, 0.0);
        }
    }
    // The limit of the inverse is 1e-8, whatever the tolerance of 1e-6 says.
    matrix<double> W = columnTable(2, {1, 0, 0, 1e-14});
    matrix<double> X(2, 2, 9.0);
    M_SProject(&A, 2, &W, &X);
    EXPECT_NE(X.data[3], 0.0);
}

TEST(ConeProjection, OfATableWithAMissingCellIsZero)
{
    matrix<double> A = columnTable(1, {MISSING_DBL});
    matrix<double> W = identity(1);
    matrix<double> X(1, 1, 9.0);
    M_SProject(&A, 1, &W, &X);
    EXPECT_EQ(X.data[0], 0.0);
    M_SProject(&A, 0, &W, &X);
    EXPECT_EQ(X.data[0], 0.0);
}

TEST(ConeProjection, TellsWhetherTheTableWasInside)
{
    korvel::cone_projection projection;
    matrix<double> X(3, 3, 0.0);
    projection.form(identity(3), 3, X);
    EXPECT_TRUE(projection.wasInside());
    // All ones: eigenvalues 3, 0 and 0, which come out as rounding leaves them.
    projection.form(matrix<double>(3, 3, 1.0), 3, X);
    EXPECT_TRUE(projection.wasInside());
    projection.form(squareOf(3, [](int i, int j) { return i == j ? 1.0 : -0.5001; }), 3, X);
    EXPECT_FALSE(projection.wasInside());
    projection.form(matrix<double>(3, 3, MISSING_DBL), 3, X);
    EXPECT_FALSE(projection.wasInside());
}

TEST(UnitProjection, IsACopyWithOnesOnTheDiagonal)
{
    random_cells cells(3, odd_cells::all);
    matrix<double> A = randomTable(cells, 4, 4);
    matrix<double> expected(A);
    for (int i = 0; i < 4; ++i) {
        expected.setElement(i, i, 1.0);
    }
    matrix<double> X(4, 4, 9.0);
    M_UProject(&A, 4, &X);
    EXPECT_TRUE(sameTable(X, expected));
    const matrix<double> nines(4, 4, 9.0);
    column_chunks chunks(nines);
    M_UProjectSPV(&A, 4, chunks.get());
    for (std::size_t k = 0; k < 16; ++k) {
        EXPECT_SAME_BITS(chunks.cells()[k], expected.data[k]);
    }
    EXPECT_EQ(chunks[3].oobValue, 1.0);
    matrix3D<matrix<double>> triangle;
    for (int j = 0; j < 4; ++j) {
        triangle.chunks.emplace_back(4 - j, 1, 9.0);
    }
    M_UProjectSPV_T(&A, 4, &triangle);
    for (int j = 0; j < 4; ++j) {
        for (int i = j; i < 4; ++i) {
            EXPECT_SAME_BITS(triangle.getElement(j, i - j), expected.getElement(i, j));
        }
        EXPECT_EQ(triangle.chunks[static_cast<std::size_t>(j)].oobValue, 1.0);
    }
    M_UProject(&A, 4, &A);
    EXPECT_TRUE(sameTable(A, expected));
    // The counts that are passed say what is copied.
    matrix<double> larger(4, 4, 9.0);
    M_UProject(&A, 2, &larger);
    EXPECT_EQ(larger.getElement(2, 2), 9.0);
    EXPECT_SAME_BITS(larger.getElement(1, 0), A.getElement(1, 0));
}
