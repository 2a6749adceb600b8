#include "linalg/products_inverse.h"

#include "linalg/inverse1.h"
#include "linalg/square_tables.h"
#include "reference/lu_inverse.h"
#include "reference/products.h"
#include "reference/sweeps.h"
#include "support/random_tables.h"

using namespace korvel::test;

namespace
{

/** The plain LU inverse, or zeros. */
matrix<double> plainInverseOrZeros(const matrix<double>& B, int order)
{
    matrix<double> inverse(order, order, 0.0);
    short int error = 0;
    plainInverse1(B, inverse, error, 1.0);
    return inverse;
}

/** Whether all cells have the same bits. The spare slot is not compared: several threads write to it. */
bool sameCells(const matrix<double>& actual, const matrix<double>& expected)
{
    return std::equal(actual.data, actual.data + actual.nbElem, expected.data,
                      [](double a, double b) { return static_cast<bool>(sameBits(a, b)); });
}

} // namespace

TEST(ProductsThroughAnInverse, SweepWithTheLimitOfTheirOwn)
{
    forSquareTables({0, 1, 2, 3, 5, 9, 17}, [](random_cells& cells, int n) {
        const int p = cells.integer(0, 6);
        matrix<double> A = randomTable(cells, n, p);
        matrix<double> B = randomTable(cells, n, n);
        const matrix<double> before(B);
        for (const short int symmetric : {short{0}, short{1}, short{-1}}) {
            matrix<double> inverse(n, n, 0.0);
            plainInverseG2(B, n, 1e-12, inverse);
            matrix<double> actual(p, p, 0.5);
            matrix<double> expected(p, p, 0.5);
            M_ProductTrAinvBA(&A, n, p, &B, symmetric, &actual);
            plainTrABA(A, n, p, inverse, symmetric != 0, expected);
            EXPECT_TRUE(sameCells(actual, expected));
            EXPECT_TRUE(sameCells(B, before));
        }
    });
}

TEST(ProductsThroughAnInverse, MultiplyByTheLUInverse)
{
    forSquareTables({0, 1, 2, 3, 5, 9, 17}, [](random_cells& cells, int p) {
        const int n = cells.integer(0, 6);
        matrix<double> A = randomTable(cells, n, p);
        matrix<double> B = randomTable(cells, p, p);
        matrix<double> inverse = plainInverseOrZeros(B, p);
        matrix<double> product(n, p, 0.0);
        plainAB(A, n, p, inverse, p, product);
        matrix<double> expected(n, n, 0.0);
        plainATrB(product, n, p, A, n, expected);
        matrix<double> actual(n, n, 0.5);
        M_ProductAinvBTrA(&A, n, p, &B, &actual);
        EXPECT_TRUE(sameCells(actual, expected));
        auto chunks = chunksOf<matrix<double>>(matrix<double>(n, n, 0.5));
        M_ProductAinvBTrASPV(&A, n, p, &B, &chunks);
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < n; ++i) {
                EXPECT_SAME_BITS(chunks.chunks[static_cast<std::size_t>(j)].data[i],
                                 expected.getElement(i, j));
            }
        }
    });
}

TEST(ProductsThroughAnInverse, OfAVectorAreSumsOfSums)
{
    forSquareTables({0, 1, 2, 3, 5, 9, 17}, [](random_cells& cells, int n) {
        matrix<double> v = cells.values(n);
        matrix<double> B = randomTable(cells, n, n);
        const matrix<double> inverse = plainInverseOrZeros(B, n);
        double expected = 0.0;
        for (int i = 0; i < n; ++i) {
            double sum = 0.0;
            for (int k = 0; k < n; ++k) {
                sum += inverse.getElement(i, k) * v[k];
            }
            expected += v[i] * sum;
        }
        EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, n, &B), expected);
        matrixSparse sparse(&B);
        matrix<double> laidOut = sparse.to_matrix();
        EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, n, &sparse), M_ProductTrVinvBV(&v, n, &laidOut));
    });
}

TEST(ProductsThroughAnInverse, AreZeroForASingularTable)
{
    matrix<double> v = vectorOf<double>({3, 4});
    matrix<double> singular = tableOf({{1, 2}, {2, 4}});
    EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, 2, &singular), 0.0);
    matrixSparse sparse(&singular);
    EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, 2, &sparse), 0.0);
    matrix<double> A = tableOf({{1, 1}});
    matrix<double> C(1, 1, 9.0);
    M_ProductAinvBTrA(&A, 1, 2, &singular, &C);
    EXPECT_SAME_BITS(C.data[0], 0.0);
    matrix<double> turned = tableOf({{1}, {1}});
    M_ProductTrAinvBA(&turned, 2, 1, &singular, short{0}, &C);
    EXPECT_SAME_BITS(C.data[0], 1.0) << "the sweep passes over the second pivot";
    EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, 0, &singular), 0.0);
}

TEST(ProductsThroughAnInverse, HaveALimitThatIsNotScaled)
{
    // Both run with 1e-8, whatever tolerance they hand over; the sweep with 1e-12.
    matrix<double> v = vectorOf<double>({1.0});
    for (const double pivot : {1e-8, 1e-9}) {
        matrix<double> B = tableOf({{pivot}});
        matrix<double> C(1, 1, 9.0);
        EXPECT_SAME_BITS(M_ProductTrVinvBV(&v, 1, &B), 0.0);
        M_ProductAinvBTrA(&v, 1, 1, &B, &C);
        EXPECT_SAME_BITS(C.data[0], 0.0);
        M_ProductTrAinvBA(&v, 1, 1, &B, short{0}, &C);
        EXPECT_SAME_BITS(C.data[0], 1.0 / pivot);
    }
    matrix<double> tiny = tableOf({{0.9e-12}});
    matrix<double> C(1, 1, 9.0);
    M_ProductTrAinvBA(&v, 1, 1, &tiny, short{0}, &C);
    EXPECT_SAME_BITS(C.data[0], 0.0);
}
