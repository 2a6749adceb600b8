#include "linalg/symmetric_eigen.h"

#include "reference/symmetric_eigen.h"
#include "support/allocations.h"
#include "support/column_tables.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>
#include <new>

using namespace korvel::test;

namespace
{

matrix<double> symmetricTable(int n, unsigned seed, double scale = 1.0)
{
    std::mt19937_64 generator(seed);
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            const double cell = scale * uniform(generator);
            made.setElement(i, j, cell);
            made.setElement(j, i, cell);
        }
    }
    return made;
}

/** What a member returned and left behind. */
struct outcome {
    int status = 0;
    matrix<double> values;
    matrix<double> vectors; ///< gathered from whatever form they had
};

using member = outcome (*)(const matrix<double>&, int, short int);

outcome denseForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    found.status = M_Eigen(A, found.values, found.vectors, n, sortFlag);
    return found;
}

outcome pointerForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    matrix<double> copy(A);
    found.status = M_Eigen(&copy, &found.values, &found.vectors, n, sortFlag);
    return found;
}

matrix<double> gathered(const matrix3D<matrix<double>>& chunks, int n)
{
    matrix<double> made(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            made.setElement(i, j, chunks.chunks[static_cast<std::size_t>(j)][i]);
        }
    }
    return made;
}

outcome chunkedForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    matrix3D<matrix<double>> vectors(n, 0, n, 0.0);
    auto* values = &found.values;
    found.status = M_EigenSPV(&chunks, values, &vectors, n, sortFlag);
    EXPECT_TRUE(sameTable(chunks, chunksOf<matrix<double>>(A)));
    found.vectors = found.status == 0 ? gathered(vectors, n) : matrix<double>();
    return found;
}

outcome destructiveForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    auto* values = &found.values;
    found.status = M_EigenDestroySPV(&chunks, values, n, sortFlag);
    found.vectors = gathered(chunks, n);
    return found;
}

outcome triangularForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    matrix3D<matrix<double>> triangle;
    for (int j = 0; j < n; ++j) {
        triangle.chunks.emplace_back(n - j, 1, A.data + j + std::ptrdiff_t{n} * j, false);
    }
    matrix3D<matrix<double>> vectors(n, n, n, 7.0);
    found.status = M_EigenSPV_T(&triangle, &found.values, &vectors, n, sortFlag);
    found.vectors = gathered(vectors, n);
    return found;
}

constexpr member denseLike[] = {denseForm, pointerForm, chunkedForm, destructiveForm, triangularForm};

void expectSame(const outcome& found, const plain_eigen& expected)
{
    ASSERT_EQ(found.status, expected.status);
    if (expected.status != 0) {
        return;
    }
    ASSERT_EQ(found.values.nbElem, static_cast<std::uint64_t>(expected.n));
    ASSERT_EQ(found.vectors.nbElem, expected.vectors.size());
    for (int k = 1; k <= expected.n; ++k) {
        ASSERT_SAME_BITS(found.values.data[k - 1], expected.values[static_cast<std::size_t>(k)])
            << "value " << k;
        for (int i = 1; i <= expected.n; ++i) {
            ASSERT_SAME_BITS(found.vectors.getElement(i - 1, k - 1), expected.vector(i, k))
                << "row " << i << " of vector " << k;
        }
    }
}

/** In units of the order, the norm and the precision. */
double residual(const matrix<double>& A, const outcome& found)
{
    const int n = A.nbrows;
    matrix<double> rest(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            double sum = 0.0;
            for (int k = 0; k < n; ++k) {
                sum += A.getElement(i, k) * found.vectors.getElement(k, j);
            }
            rest.setElement(i, j, sum - found.values.data[j] * found.vectors.getElement(i, j));
        }
    }
    const double size = columnSumNorm(A);
    return size > 0.0 ? columnSumNorm(rest) / (n * 0x1p-52 * size) : columnSumNorm(rest);
}

} // namespace

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

TEST(SymmetricEigen, ADiagonalTableHasUnitVectorsAndEqualValuesKeepTheirOrder)
{
    const auto A = tableOf({{2, 0, 0, 0}, {0, 5, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, -1}});
    for (const member form : denseLike) {
        const outcome found = form(A, 4, -1);
        EXPECT_EQ(cellsOf(found.values), (std::vector<double>{5, 2, 2, -1}));
        EXPECT_EQ(cellsOf(found.vectors),
                  (std::vector<double>{0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    }
}

TEST(SymmetricEigen, AValueMayTakeTwentyEightSweepsAndOneMoreInATriangle)
{
    constexpr int n = 12;
    constexpr int never = 1000;
    struct known {
        unsigned seed;
        int sweeps;
        int status;
        int statusOfTriangle;
    };
    for (const known& one : {known{226, 28, 0, 0}, known{366, 29, -1, 0}, known{93, 30, -1, -1}}) {
        const matrix<double> A = symmetricTable(n, one.seed, 1e305);
        ASSERT_EQ(plainEigen(A, n, 0, never).mostSweeps, one.sweeps);
        EXPECT_EQ(denseForm(A, n, -1).status, one.status);
        EXPECT_EQ(chunkedForm(A, n, -1).status, one.status);
        EXPECT_EQ(destructiveForm(A, n, -1).status, one.status);
        matrixSparse sparse(n, n, 0.0, false);
        for (int k = 0; k < n * n; ++k) {
            sparse.setElement(k % n, k / n, A.data[k]);
        }
        matrix<double> values;
        matrixSparse vectors;
        EXPECT_EQ(M_Eigen(&sparse, &values, &vectors, n, -1), one.status);
        EXPECT_EQ(triangularForm(A, n, -1).status, one.statusOfTriangle);
    }
}

TEST(SymmetricEigen, NaNAndInfiniteElementsDoNotConverge)
{
    for (const double bad : {notANumber, infinite, -infinite}) {
        matrix<double> A = symmetricTable(4, 1);
        A.setElement(2, 1, bad);
        for (const member form : denseLike) {
            EXPECT_EQ(form(A, 4, -1).status, -1);
        }
    }
}

TEST(SymmetricEigen, AnOffDiagonalElementIsHeldAgainstTheBoundItself)
{
    constexpr double bound = 2.220446049250313e-16;
    const auto below = tableOf({{2, 0}, {std::nextafter(bound, 0.0), 1}});
    EXPECT_EQ(cellsOf(denseForm(below, 2, 0).vectors), (std::vector<double>{1, 0, 0, 1}));
    const auto at = tableOf({{2e-16, 0}, {bound, 1e-16}});
    EXPECT_NE(denseForm(at, 2, 0).vectors.data[1], 0.0);
}

TEST(SymmetricEigen, ATinyTableIsItsOwnTridiagonalForm)
{
    // All of its off-diagonal elements count as zero, so that its diagonal is taken for its values.
    const auto A = tableOf({{2e-17, 3e-17}, {3e-17, 1e-17}});
    const outcome found = denseForm(A, 2, -1);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(cellsOf(found.values), (std::vector<double>{2e-17, 1e-17}));
    EXPECT_EQ(cellsOf(found.vectors), (std::vector<double>{1, 0, 0, 1}));
    for (const double scale : {1e-16, 1e-20, 1e-100, 1e-300}) {
        const matrix<double> tiny = symmetricTable(10, 5, scale);
        const outcome tinyFound = denseForm(tiny, 10, -1);
        EXPECT_EQ(tinyFound.status, 0);
        EXPECT_LT(orthogonalityError(tinyFound.vectors, 10), 30.0);
        const double error = residual(tiny, tinyFound) * 10 * 0x1p-52 * columnSumNorm(tiny);
        EXPECT_LT(error, 10 * 2.220446049250313e-16) << "absolute";
    }
    EXPECT_GT(residual(symmetricTable(10, 5, 1e-20), denseForm(symmetricTable(10, 5, 1e-20), 10, -1)), 1e10);
}

TEST(SymmetricEigen, ScaledResidualsAreThoseOfASoundMethod)
{
    // The thresholds are LAPACK's own: 30 for both. Only tables of tiny cells cannot keep to them, because of
    // the absolute bound for off-diagonal elements.
    for (const matrix_kind kind : allMatrixKinds) {
        for (const int n : matrixOrders) {
            SCOPED_TRACE(::testing::Message() << kind << " of order " << n);
            const matrix<double> A = tableOfKind(kind, n, n, true);
            const outcome found = denseForm(A, n, -1);
            ASSERT_EQ(found.status, 0);
            EXPECT_LT(orthogonalityError(found.vectors, n), 30.0);
            if (kind != matrix_kind::tiny || n == 1) {
                EXPECT_LT(residual(A, found), 30.0);
            }
            EXPECT_TRUE(std::is_sorted(found.values.data, found.values.data + n, std::greater<>()));
        }
    }
}

TEST(SymmetricEigen, ValuesOfOtherPrograms)
{
    // The roots of the characteristic polynomials, formed in fractions and solved in 60 digits; R 4.2.2
    // agrees to 3e-14.
    const std::vector<double> hilbert{1.5670506910982307955, 0.20853421861101333590, 0.011407491623419806559,
                                      0.00030589804015119172688, 3.2879287721718629571e-06};
    const outcome h = denseForm(tableOfKind(matrix_kind::hilbert, 5, 5, true), 5, -1);
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_NEAR(h.values.data[k], hilbert[k], 1e-15);
    }
    const std::vector<double> values{6.8446211072349657881, 2.2685314064312420364, 1.0843644637732169887,
                                     -2.1975169774394248133};
    // R 4.2.2, eigen(m, symmetric = TRUE); signs aside.
    const std::vector<double> vectors{
        0.71804595945067951,  0.2211529881551807,   -0.55735137713750971, 0.3533564748939928,
        -0.20171109662094328, -0.78944991248743823, -0.57963416931678924, -0.01028099868633181,
        0.64226000676603223,  -0.54418784819468791, 0.52022185093861428,  -0.14398227457618973,
        0.17670517062447774,  0.17810046990630102,  -0.28766803431969934, -0.92428491674611324};
    const outcome m =
        denseForm(tableOf({{4, 1, -2, 2}, {1, 2, 0, 1}, {-2, 0, 3, -2}, {2, 1, -2, -1}}), 4, -1);
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(m.values.data[k], values[k], 4e-15);
        const double sign = m.vectors.data[4 * k] * vectors[4 * k] < 0.0 ? -1.0 : 1.0;
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_NEAR(sign * m.vectors.data[4 * k + i], vectors[4 * k + i], 4e-15);
        }
    }
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
