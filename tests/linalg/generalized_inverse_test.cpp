#include "linalg/generalized_inverse.h"

#include "linalg/square_tables.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

struct inverted {
    matrix<double> G;
    int rank = -7;
    int status = -7;
};

inverted invertedOf(const matrix<double>& A, double tolerance)
{
    inverted found{matrix<double>(A.nbrows, A.nbrows, 9.0)};
    found.status = M_InvGeneralized(A, A.nbrows, found.G, tolerance, found.rank);
    return found;
}

matrix<double> transposedTable(const matrix<double>& a)
{
    matrix<double> made(a.nbcols, a.nbrows, 0.0);
    for (int i = 0; i < a.nbrows; ++i) {
        for (int j = 0; j < a.nbcols; ++j) {
            made.setElement(j, i, a.getElement(i, j));
        }
    }
    return made;
}

/** The four conditions of Penrose, each residual scaled. */
void expectMoorePenrose(const matrix<double>& A, const matrix<double>& G)
{
    const double a = largestColumnSum(A);
    const double g = largestColumnSum(G);
    const matrix<double> AG = timesTable(A, G);
    const matrix<double> GA = timesTable(G, A);
    EXPECT_LT(scaledDistance(timesTable(AG, A), A, a * a * g), lapackThreshold);
    EXPECT_LT(scaledDistance(timesTable(GA, G), G, a * g * g), lapackThreshold);
    EXPECT_LT(scaledDistance(AG, transposedTable(AG), a * g), lapackThreshold);
    EXPECT_LT(scaledDistance(GA, transposedTable(GA), a * g), lapackThreshold);
}

} // namespace

TEST(GeneralizedInverse, OfATableOfRankOne)
{
    const inverted found = invertedOf(tableOf({{1, 2}, {2, 4}}), 1e-12);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.rank, 1);
    const std::array exact{0.04, 0.08, 0.08, 0.16};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(found.G.data[k], exact[k], 1e-16);
    }
}

TEST(GeneralizedInverse, OfZerosIsZeroAndHasNoRank)
{
    const inverted found = invertedOf(matrix<double>(3, 3, 0.0), 1e-12);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.rank, 0);
    for (int k = 0; k < 9; ++k) {
        EXPECT_SAME_BITS(found.G.data[k], 0.0);
    }
}

TEST(GeneralizedInverse, KeepsAValueThatEqualsTheTolerance)
{
    const matrix<double> A = tableOf({{2, 0}, {0, 0.5}});
    EXPECT_EQ(invertedOf(A, 0.5).rank, 2);
    const inverted found = invertedOf(A, std::nextafter(0.5, 1.0));
    EXPECT_EQ(found.rank, 1);
    EXPECT_EQ(found.G.getElement(0, 0), 0.5);
    EXPECT_EQ(found.G.getElement(1, 1), 0.0);
}

TEST(GeneralizedInverse, ToleranceIsNotScaledToTheTable)
{
    EXPECT_EQ(invertedOf(tableOf({{1e-13, 0}, {0, 1e-13}}), 1e-12).rank, 0) << "regular, but tiny";
    EXPECT_EQ(invertedOf(tableOf({{1e20, 0}, {0, 1}}), 1e-12).rank, 2);
}

TEST(GeneralizedInverse, SaysThatNothingConvergedAndDeliversAllTheSame)
{
    matrix<double> A = tableOf({{1, notANumber}, {2, 3}});
    inverted found = invertedOf(A, 1e-12);
    EXPECT_EQ(found.status, -1);
    EXPECT_NE(found.G.data[0], 9.0);
    EXPECT_GE(found.rank, 0);
    EXPECT_LE(found.rank, 2);
    EXPECT_EQ(M_InvGeneralizedSym(&A, 2, &found.G, 1e-12, found.rank), -1);
    EXPECT_EQ(M_Rank(&A, 2, 2), -1);
}

TEST(GeneralizedInverse, HasTheSameBitsInEveryForm)
{
    std::mt19937_64 generator(41);
    for (const int n : {1, 2, 3, 5, 10}) {
        matrix<double> A = madeTable(table_kind::random, n, generator);
        const matrix<double> before(A);
        const inverted found = invertedOf(A, 1e-12);
        matrix<double> G(n, n, 0.0);
        int rank = -1;
        EXPECT_EQ(M_InvGeneralized(&A, n, &G, 1e-12, rank), 0);
        expectSame(G, found.G);
        EXPECT_EQ(rank, found.rank);
        std::vector<matrix<double>> columns;
        std::vector<matrix<double>*> list;
        for (int j = 0; j < n; ++j) {
            columns.emplace_back(n, 1, A.data + n * j, false);
        }
        for (auto& column : columns) {
            list.push_back(&column);
        }
        matrix<double> chunked(n, n, 0.0);
        EXPECT_EQ(M_InvGeneralizedSPV(list.data(), n, &chunked, 1e-12, rank), 0);
        expectSame(chunked, found.G);
        matrixSparse sparse(&A);
        matrixSparse sparseInverse;
        EXPECT_EQ(M_InvGeneralized(&sparse, n, &sparseInverse, 1e-12, rank), 0);
        matrix<double> dense(found.G);
        EXPECT_TRUE(sameStorage(sparseInverse, matrixSparse(&dense)));
        M_InvGeneralizedSym(&A, n, &G, 1e-12, rank);
        M_Rank(&A, n, n);
        for (std::uint64_t k = 0; k < A.nbElem; ++k) {
            EXPECT_SAME_BITS(A.data[k], before.data[k]) << "the table stays";
        }
    }
}

TEST(GeneralizedInverse, OfASymmetricTableHasTheLeftVectorsOnBothSides)
{
    matrix<double> A = tableOf({{2, 0}, {0, -4}});
    matrix<double> G(2, 2, 9.0);
    int rank = 0;
    EXPECT_EQ(M_InvGeneralizedSym(&A, 2, &G, 1e-12, rank), 0);
    EXPECT_EQ(rank, 2);
    EXPECT_DOUBLE_EQ(G.getElement(0, 0), 0.5);
    EXPECT_DOUBLE_EQ(G.getElement(1, 1), 0.25) << "a negative eigenvalue has a positive inverse";
    EXPECT_DOUBLE_EQ(invertedOf(A, 1e-12).G.getElement(1, 1), -0.25);
}

TEST(GeneralizedInverse, OfNothing)
{
    matrix<double> A(0, 0, 0.0);
    int rank = 5;
    EXPECT_EQ(M_InvGeneralized(A, 0, A, 1e-12, rank), 0);
    EXPECT_EQ(rank, 0);
    rank = 5;
    EXPECT_EQ(M_InvGeneralizedSym(&A, -1, &A, 1e-12, rank), 0);
    EXPECT_EQ(rank, 0);
    EXPECT_EQ(M_Rank(&A, 0, 3), 0);
    EXPECT_EQ(M_Rank(&A, 3, 0), 0);
}

TEST(GeneralizedInverse, MeetsTheConditionsOfPenrose)
{
    std::mt19937_64 generator(42);
    for (const table_kind kind : {table_kind::random, table_kind::diagonallyDominant, table_kind::diagonal}) {
        for (const int n : {1, 2, 3, 5, 10, 50}) {
            SCOPED_TRACE(::testing::Message() << "kind " << static_cast<int>(kind) << ", order " << n);
            matrix<double> A = madeTable(kind, n, generator);
            for (int i = 0; n > 1 && i < n; ++i) {
                A.setElement(i, n - 1, A.getElement(i, 0));
            }
            const inverted found = invertedOf(A, 1e-9);
            EXPECT_EQ(found.status, 0);
            EXPECT_EQ(found.rank, n > 1 ? n - 1 : 1);
            expectMoorePenrose(A, found.G);
            matrix<double> cross = crossProduct(A);
            matrix<double> G(n, n, 0.0);
            int rank = 0;
            EXPECT_EQ(M_InvGeneralizedSym(&cross, n, &G, 1e-9, rank), 0);
            EXPECT_EQ(rank, n > 1 ? n - 1 : 1);
            expectMoorePenrose(cross, G);
        }
    }
}

TEST(Rank, CountsValuesAboveTheLimit)
{
    matrix<double> A = tableOf({{1, 2, 3}, {2, 4, 6}, {0, 1, 1}, {5, 5, 10}});
    EXPECT_EQ(M_Rank(&A, 4, 3), 2);
    matrix<double> wide = tableOf({{1, 2, 3, 4}, {2, 4, 6, 8}});
    EXPECT_EQ(M_Rank(&wide, 2, 4), 1);
    EXPECT_EQ(M_Rank(&wide, 1, 4), 1);
    matrix<double> zeros(3, 2, 0.0);
    EXPECT_EQ(M_Rank(&zeros, 3, 2), 0);
    matrix<double> one = tableOf({{1e-12}});
    EXPECT_EQ(M_Rank(&one, 1, 1), 0) << "equal does not count";
    one.data[0] = std::nextafter(1e-12, 1.0);
    EXPECT_EQ(M_Rank(&one, 1, 1), 1);
    matrix<double> tiny = tableOf({{1e-13, 0}, {0, 1e-13}});
    EXPECT_EQ(M_Rank(&tiny, 2, 2), 0) << "the limit is not scaled";
}
