#include "linalg/singular_values.h"

#include "linalg/singular_values_forms.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

TEST(SingularValues, ScaledResidualsAreThoseOfASoundMethod)
{
    // LAPACK's threshold for these ratios is 35 to 50. Tiny tables are out of reach of the absolute tests.
    for (const matrix_kind kind : allMatrixKinds) {
        for (const int n : matrixOrders) {
            for (const int p : {n, n / 2, 2 * n}) {
                if (n == 0 || p == 0 || p > 250) {
                    continue;
                }
                SCOPED_TRACE(::testing::Message() << kind << " " << n << " by " << p);
                const matrix<double> A = tableOfKind(kind, n, p, false);
                const outcome found = denseForm(A, 21);
                ASSERT_EQ(found.info, 0);
                const int m = std::min(n, p);
                const auto at = [](const std::vector<double>& cells, int rows, int i, int j) {
                    return cells[static_cast<std::size_t>(i) +
                                 static_cast<std::size_t>(rows) * static_cast<std::size_t>(j)];
                };
                EXPECT_TRUE(std::is_sorted(found.s.begin(), found.s.begin() + m, std::greater<>()));
                EXPECT_GE(found.s[static_cast<std::size_t>(m - 1)], 0.0);
                matrix<double> U(n, m, const_cast<double*>(found.U.data()), true);
                matrix<double> V(p, p, const_cast<double*>(found.V.data()), true);
                EXPECT_LT(orthogonalityError(U, m), 35.0);
                EXPECT_LT(orthogonalityError(V, p), 35.0);
                if (kind == matrix_kind::tiny) {
                    continue;
                }
                matrix<double> rest(n, p, 0.0);
                for (int j = 0; j < p; ++j) {
                    for (int i = 0; i < n; ++i) {
                        double sum = A.getElement(i, j);
                        for (int k = 0; k < m; ++k) {
                            sum -= at(found.U, n, i, k) * found.s[static_cast<std::size_t>(k)] *
                                   at(found.V, p, j, k);
                        }
                        rest.setElement(i, j, sum);
                    }
                }
                const double unit = std::max(n, p) * 0x1p-52 * columnSumNorm(A);
                EXPECT_LE(columnSumNorm(rest), 35.0 * unit);
            }
        }
    }
}

TEST(SingularValues, ATinyTableKeepsTheAbsoluteBoundOnly)
{
    // The off-diagonal elements of its bidiagonal form all count as zero.
    for (const double scale : {1e-17, 1e-20, 1e-25}) {
        std::mt19937_64 generator(9);
        matrix<double> A = randomTable(generator, 8, 8, 1);
        const outcome whole = denseForm(A, 21);
        std::transform(A.data, A.data + 64, A.data, [&](double x) { return scale * x; });
        const outcome found = denseForm(A, 21);
        EXPECT_EQ(found.info, 0);
        EXPECT_GT(std::fabs(found.s[0] / scale - whole.s[0]), 1e-3) << "not the table's own values";
        EXPECT_LT(std::fabs(found.s[0] - scale * whole.s[0]), 2.220446049250313e-16);
    }
}

TEST(SingularValues, ValuesOfOtherPrograms)
{
    // R 4.2.2, svd(h) with h <- 1 / outer(1:5, 1:3, function(i, j) i + j - 1), and svd(g).
    const outcome h = denseForm(tableOfKind(matrix_kind::hilbert, 5, 3, false), 21);
    const std::vector<double> hilbert{1.4804850007464319, 0.15789788889776338, 0.0054287568248495132};
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(h.s[k], hilbert[k], 1e-15);
    }
    const matrix<double> A = columnTable(4, {2, 0, 1, -1, 3, 5, -2, 1, 0, 4, 1, 7});
    const std::vector<double> values{9.0048653566797796, 5.0685219735068019, 2.0548685875615322};
    const std::vector<double> left{0.15832534224319156, 0.66394777978753139,  -0.022574693921972633,
                                   0.73047711457178022, -0.60200891575892934, -0.44719545807264155,
                                   0.36997275716892714, 0.54838093199780513,  -0.62643300190452855,
                                   0.16635877885271338, -0.7605198499064153,  -0.038935956670394213};
    const std::vector<double> right{-0.048462815014068905, 0.50754133982610761,  0.86026341543066442,
                                    -0.27274736374285974,  -0.83526689676180521, 0.47742861952885085,
                                    -0.96086431463148447,  0.21149704381249335,  -0.17890994753323256};
    const outcome g = denseForm(A, 21);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(g.s[k], values[k], 1e-14);
        const double sign = g.V[3 * k] * right[3 * k] < 0.0 ? -1.0 : 1.0;
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_NEAR(sign * g.U[4 * k + i], left[4 * k + i], 3e-15);
        }
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(sign * g.V[3 * k + i], right[3 * k + i], 3e-15);
        }
    }
    const outcome flat = denseForm(korvel::test::detail::flipped(A), 0);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(flat.s[k], values[k], 1e-14);
    }
}
