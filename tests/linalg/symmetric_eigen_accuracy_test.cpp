#include "linalg/symmetric_eigen.h"

#include "linalg/symmetric_eigen_forms.h"

#include <gtest/gtest.h>

using namespace korvel::test;
using namespace korvel::test::symmetric_eigen;

TEST(SymmetricEigenAccuracy, ADiagonalTableHasUnitVectorsAndEqualValuesKeepTheirOrder)
{
    const auto A = tableOf({{2, 0, 0, 0}, {0, 5, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, -1}});
    for (const member form : denseLike) {
        const outcome found = form(A, 4, -1);
        EXPECT_EQ(cellsOf(found.values), (std::vector<double>{5, 2, 2, -1}));
        EXPECT_EQ(cellsOf(found.vectors),
                  (std::vector<double>{0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    }
}

TEST(SymmetricEigenAccuracy, AValueMayTakeTwentyEightSweepsAndOneMoreInATriangle)
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

TEST(SymmetricEigenAccuracy, NaNAndInfiniteElementsDoNotConverge)
{
    for (const double bad : {notANumber, infinite, -infinite}) {
        matrix<double> A = symmetricTable(4, 1);
        A.setElement(2, 1, bad);
        for (const member form : denseLike) {
            EXPECT_EQ(form(A, 4, -1).status, -1);
        }
    }
}

TEST(SymmetricEigenAccuracy, AnOffDiagonalElementIsHeldAgainstTheBoundItself)
{
    constexpr double bound = 2.220446049250313e-16;
    const auto below = tableOf({{2, 0}, {std::nextafter(bound, 0.0), 1}});
    EXPECT_EQ(cellsOf(denseForm(below, 2, 0).vectors), (std::vector<double>{1, 0, 0, 1}));
    const auto at = tableOf({{2e-16, 0}, {bound, 1e-16}});
    EXPECT_NE(denseForm(at, 2, 0).vectors.data[1], 0.0);
}

TEST(SymmetricEigenAccuracy, ATinyTableIsItsOwnTridiagonalForm)
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

TEST(SymmetricEigenAccuracy, ScaledResidualsAreThoseOfASoundMethod)
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

TEST(SymmetricEigenAccuracy, ValuesOfOtherPrograms)
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
