#include "linalg/symmetric_eigen.h"

#include "linalg/symmetric_eigen_forms.h"
#include "support/allocations.h"

#include <gtest/gtest.h>
#include <new>

using namespace korvel::test;
using namespace korvel::test::symmetric_eigen;

TEST(SymmetricEigen, EveryFormHasTheBitsOfThePlainLoops)
{
    for (const int n : {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 25, 33, 41, 64, 65}) {
        for (const matrix_kind kind : allMatrixKinds) {
            for (const short int sortFlag : {short{0}, short{-1}}) {
                const matrix<double> A = tableOfKind(kind, n, n, true);
                SCOPED_TRACE(::testing::Message() << kind << " of order " << n << ", flag " << sortFlag);
                const plain_eigen expected = plainEigen(A, n, sortFlag);
                for (const member form : denseLike) {
                    ASSERT_NO_FATAL_FAILURE(expectSame(form(A, n, sortFlag), expected));
                }
            }
        }
    }
}

TEST(SymmetricEigen, OddCellsGoThroughThePlainLoops)
{
    constexpr double odd[] = {0.0,    -0.0,  1e-18,      5e-324,   1e200,
                              -1e200, 1e308, notANumber, infinite, -infinite};
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const int n = 2 + static_cast<int>(seed % 13);
        matrix<double> A = symmetricTable(n, seed);
        std::mt19937_64 generator(seed);
        for (unsigned times = 0; times < 1 + seed % 9; ++times) {
            const auto place = [&] { return static_cast<int>(generator() % static_cast<unsigned>(n)); };
            const double cell = odd[generator() % (seed % 3 == 0 ? 10 : 6)];
            const int i = place();
            const int j = place();
            A.setElement(i, j, cell);
            A.setElement(j, i, cell);
        }
        SCOPED_TRACE(seed);
        const plain_eigen expected = plainEigen(A, n, -1);
        for (const member form : denseLike) {
            ASSERT_NO_FATAL_FAILURE(expectSame(form(A, n, -1), expected));
        }
    }
}

TEST(SymmetricEigen, OnlyTheLowerTriangleIsUsed)
{
    matrix<double> A = symmetricTable(9, 3);
    const plain_eigen expected = plainEigen(A, 9, -1);
    for (int j = 1; j < 9; ++j) {
        for (int i = 0; i < j; ++i) {
            A.setElement(i, j, notANumber);
        }
    }
    expectSame(denseForm(A, 9, -1), expected);
    expectSame(chunkedForm(A, 9, -1), expected);
}

TEST(SymmetricEigen, SparseTablesStoreSmallNumbersAsZeros)
{
    for (const int n : {0, 1, 2, 3, 5, 8, 17, 40}) {
        for (unsigned seed = 1; seed <= 6; ++seed) {
            const double scale = seed % 3 == 0 ? 1e-17 : 1.0;
            const matrix<double> whole = symmetricTable(n, seed, scale);
            matrix<double> A(n, n, 0.0);
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    const double cell = whole.getElement(i, j);
                    const bool holds = seed % 2 == 0 || i == j || (i + j) % 3 == 0;
                    A.setElement(i, j, holds && std::fabs(cell) > SPARSE_ZERO ? cell : 0.0);
                }
            }
            for (const short int sortFlag : {short{0}, short{-1}}) {
                SCOPED_TRACE(::testing::Message() << "order " << n << ", seed " << seed);
                matrixSparse sparse(n, n, 0.0, false);
                for (int i = 0; i < n; ++i) {
                    for (int j = 0; j < n; ++j) {
                        sparse.setElement(i, j, A.getElement(i, j));
                    }
                }
                outcome found;
                matrixSparse vectors(2, 3, 1.0, false);
                found.status = M_Eigen(&sparse, &found.values, &vectors, n, sortFlag);
                ASSERT_EQ(vectors.nbrows, n);
                ASSERT_EQ(vectors.nbcols, n);
                found.vectors = vectors.to_matrix(n, n);
                expectSame(found, plainEigen(A, n, sortFlag, 29, smallAsZero));
                for (std::size_t k = 0; k < vectors.values.size(); ++k) {
                    ASSERT_GE(std::fabs(vectors.values[k]), SPARSE_ZERO) << "no zero is an entry";
                }
            }
        }
    }
}

TEST(SymmetricEigen, ASparseTableWithoutSmallNumbersAgreesWithTheDenseForm)
{
    auto dense = tableOf({{4, 1, -2, 2}, {1, 2, 0, 1}, {-2, 0, 3, -2}, {2, 1, -2, -1}});
    matrixSparse A(&dense);
    matrix<double> values;
    matrixSparse vectors;
    ASSERT_EQ(M_Eigen(&A, &values, &vectors, 4, -1), 0);
    outcome found{0, std::move(values), vectors.to_matrix(4, 4)};
    expectSame(found, plainEigen(dense, 4, -1));
}

TEST(SymmetricEigen, OrderOne)
{
    const matrix<double> A(1, 1, -2.5);
    for (const member form : denseLike) {
        const outcome found = form(A, 1, -1);
        EXPECT_EQ(found.status, 0);
        ASSERT_EQ(found.values.nbElem, 1U);
        EXPECT_SAME_BITS(found.values.data[0], -2.5);
        EXPECT_SAME_BITS(found.vectors.data[0], 1.0);
    }
    const matrix<double> nan(1, 1, notANumber);
    EXPECT_EQ(denseForm(nan, 1, -1).status, 0) << "nothing has to converge";
}

TEST(SymmetricEigen, OrderZeroLeavesTheResultsEmpty)
{
    const matrix<double> A(2, 2, 1.0);
    matrix<double> values(3, 1, 5.0);
    matrix<double> vectors(3, 3, 5.0);
    EXPECT_EQ(M_Eigen(A, values, vectors, 0, -1), 0);
    EXPECT_EQ(values.nbElem, 0U);
    EXPECT_EQ(vectors.nbElem, 0U);
    matrixSparse sparse(2, 2, 0.0, false);
    matrixSparse sparseVectors(2, 2, 0.0, false);
    EXPECT_EQ(M_Eigen(&sparse, &values, &sparseVectors, 0, 0), 0);
    EXPECT_EQ(sparseVectors.nbrows, 0);
}

TEST(SymmetricEigen, AMissingElementTouchesNothing)
{
    const auto five = [](const matrix<double>& table, std::uint64_t count) {
        return table.nbElem == count &&
               std::all_of(table.data, table.data + count, [](double x) { return x == 5.0; });
    };
    for (int place = 0; place < 9; ++place) {
        matrix<double> A(3, 3, 1.0);
        A.data[place] = MISSING_DBL;
        matrix<double> values(2, 1, 5.0);
        matrix<double> vectors(4, 1, 5.0);
        EXPECT_EQ(M_Eigen(A, values, vectors, 3, -1), -1);
        EXPECT_TRUE(five(values, 2) && five(vectors, 4)) << place;

        auto chunks = chunksOf<matrix<double>>(A);
        matrix3D<matrix<double>> chunkedVectors(3, 3, 3, 5.0);
        auto* result = &values;
        EXPECT_EQ(M_EigenSPV(&chunks, result, &chunkedVectors, 3, -1), -1);
        EXPECT_EQ(M_EigenDestroySPV(&chunks, result, 3, -1), -1);
        EXPECT_TRUE(sameTable(chunks, chunksOf<matrix<double>>(A)));
        EXPECT_TRUE(five(values, 2));

        matrixSparse sparse(3, 3, 0.0, false);
        sparse.setElement(place % 3, place / 3, MISSING_DBL);
        matrixSparse sparseVectors(2, 2, 0.0, false);
        sparseVectors.setElement(1, 1, 5.0);
        EXPECT_EQ(M_Eigen(&sparse, &values, &sparseVectors, 3, -1), -1);
        EXPECT_TRUE(five(values, 2));
        EXPECT_EQ(sparseVectors.getElement(1, 1), 5.0);
        EXPECT_EQ(sparseVectors.nbrows, 2);

        if (place % 3 >= place / 3) {
            matrix3D<matrix<double>> triangle;
            for (int j = 0; j < 3; ++j) {
                triangle.chunks.emplace_back(3 - j, 1, A.data + 4 * j, false);
            }
            EXPECT_EQ(M_EigenSPV_T(&triangle, &values, &chunkedVectors, 3, -1), -1);
        }
        EXPECT_TRUE(five(gathered(chunkedVectors, 3), 9));
    }
    matrix<double> A(2, 2, 1.0);
    A.data[2] = belowSentinel;
    EXPECT_EQ(denseForm(A, 2, -1).status, 0) << "only the very value is missing";
}

TEST(SymmetricEigen, OnlyMinusOneSorts)
{
    const auto A = tableOf({{1, 0, 0}, {0, 3, 0}, {0, 0, 2}});
    for (const short int flag : {short{0}, short{1}, short{2}, short{-2}}) {
        EXPECT_EQ(cellsOf(denseForm(A, 3, flag).values), (std::vector<double>{1, 3, 2})) << flag;
    }
    EXPECT_EQ(cellsOf(denseForm(A, 3, -1).values), (std::vector<double>{3, 2, 1}));
}

TEST(SymmetricEigen, ResultsMayBeBorrowedTablesOfAnyShape)
{
    const matrix<double> A = symmetricTable(6, 8);
    const plain_eigen expected = plainEigen(A, 6, -1);
    std::vector<double> block(9 * 7);
    std::vector<double> places(8);
    matrix<double> values(8, 1, places.data(), true);
    matrix<double> vectors(9, 7, block.data(), true);
    ASSERT_EQ(M_Eigen(A, values, vectors, 6, -1), 0);
    for (int k = 1; k <= 6; ++k) {
        EXPECT_SAME_BITS(places[static_cast<std::size_t>(k - 1)],
                         expected.values[static_cast<std::size_t>(k)]);
        for (int i = 1; i <= 6; ++i) {
            EXPECT_SAME_BITS(vectors.getElement(i - 1, k - 1), expected.vector(i, k));
        }
    }
    EXPECT_EQ(block[6], 0.0) << "row 7 of column 1 is only cleared";
    matrix<double> larger(8, 8, notANumber);
    for (int k = 0; k < 36; ++k) {
        larger.setElement(k % 6, k / 6, A.getElement(k % 6, k / 6));
    }
    expectSame(denseForm(larger, 6, -1), expected);
}

TEST(SymmetricEigen, TablesThatAreTooSmallReadTheirSpareSlot)
{
    matrix<double> A(2, 2, 1.0);
    A.oobValue = 3.0;
    matrix<double> whole(3, 3, 3.0);
    for (const int k : {0, 1, 3, 4}) {
        whole.data[k] = 1.0;
    }
    expectSame(denseForm(A, 3, -1), plainEigen(whole, 3, -1));
    A.oobValue = MISSING_DBL;
    EXPECT_EQ(denseForm(A, 3, -1).status, -1);
    std::vector<double> block(4);
    matrix<double> values;
    matrix<double> vectors(2, 2, block.data(), true);
    EXPECT_LE(M_Eigen(whole, values, vectors, 3, 0), 0) << "no cell outside is written";
}

TEST(SymmetricEigen, WantOfMemoryIsAFailureOrPassesThrough)
{
    const matrix<double> A = symmetricTable(20, 1);
    auto chunks = chunksOf<matrix<double>>(A);
    matrixSparse sparse(20, 20, 0.0, false);
    sparse.setElement(3, 3, 1.0);
    bool passed = false;
    for (int allowed = 0; !passed; ++allowed) {
        matrix<double> values;
        matrix<double> vectors;
        const auto alive = allocationsAlive();
        {
            const allocation_limit limit(allowed);
            passed = M_Eigen(A, values, vectors, 20, -1) == 0;
        }
        EXPECT_LE(allocationsAlive() - alive, 2) << "beyond the two results";
        ASSERT_LT(allowed, 100);
    }
    matrix<double> values;
    matrixSparse vectors;
    {
        const allocation_limit limit(1);
        EXPECT_EQ(M_Eigen(&sparse, &values, &vectors, 20, -1), -1);
    }
    auto* result = &values;
    const allocation_limit limit(0);
    EXPECT_THROW(M_EigenDestroySPV(&chunks, result, 20, -1), std::bad_alloc);
}

TEST(SymmetricEigen, ACountBelowZeroIsAFailure)
{
    matrix<double> A(2, 2, 1.0);
    EXPECT_EQ(denseForm(A, -1, -1).status, -1);
    matrixSparse sparse;
    matrixSparse vectors;
    matrix<double> values;
    EXPECT_EQ(M_Eigen(&sparse, &values, &vectors, -1, -1), -1);
}
