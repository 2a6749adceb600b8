#include "linalg/singular_values.h"

#include "containers/views.h"
#include "linalg/golub_kahan.h"
#include "reference/singular_values.h"
#include "support/column_tables.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

namespace
{

/** What a member left behind; the cells of U and V column after column. */
struct outcome {
    int info = 9;
    std::vector<double> s;
    std::vector<double> U;
    std::vector<double> V;
};

using member = outcome (*)(const matrix<double>&, int job);

struct wanted {
    int columnsOfU;
    int columnsOfV;
    int values;

    wanted(const matrix<double>& A, int job)
        : columnsOfU(svd_job(job, A.nbrows, A.nbcols).columnsOfU),
          columnsOfV(svd_job(job, A.nbrows, A.nbcols).wantsV ? A.nbcols : 0),
          values(std::min(A.nbrows + 1, A.nbcols))
    {
    }
};

std::vector<double> cellsIn(const matrix3D<matrix<double>>& chunks)
{
    std::vector<double> cells;
    for (const auto& chunk : chunks.chunks) {
        cells.insert(cells.end(), chunk.data, chunk.data + chunk.nbElem);
    }
    return cells;
}

::testing::AssertionResult sameCells(const std::vector<double>& found, const std::vector<double>& expected)
{
    if (found.size() != expected.size()) {
        return ::testing::AssertionFailure() << found.size() << " cells and not " << expected.size();
    }
    for (std::size_t k = 0; k < found.size(); ++k) {
        if (const auto same = sameBits(found[k], expected[k]); !same) {
            return ::testing::AssertionFailure() << "cell " << k << ": " << same.message();
        }
    }
    return ::testing::AssertionSuccess();
}

outcome denseForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    matrix<double> copy(A);
    matrix<double> s(size.values, 1, 7.0);
    matrix<double> U(A.nbrows, size.columnsOfU, 7.0);
    matrix<double> V(A.nbcols, size.columnsOfV, 7.0);
    M_SVDecomp(&copy, A.nbrows, A.nbcols, &s, size.columnsOfU > 0 ? &U : nullptr,
               size.columnsOfV > 0 ? &V : nullptr, job, &found.info);
    EXPECT_TRUE(sameCells(cellsOf(copy), cellsOf(A))) << "the table comes out as it was";
    found.s = cellsOf(s);
    found.U = size.columnsOfU > 0 ? cellsOf(U) : std::vector<double>();
    found.V = size.columnsOfV > 0 ? cellsOf(V) : std::vector<double>();
    return found;
}

outcome chunkedForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    matrix<double> s(size.values, 1, 7.0);
    matrix3D<matrix<double>> U(size.columnsOfU, A.nbrows, 0, 7.0);
    matrix3D<matrix<double>> V(size.columnsOfV, A.nbcols, 0, 7.0);
    M_SVDecompSPV(&chunks, A.nbrows, A.nbcols, &s, &U, &V, job, &found.info);
    EXPECT_TRUE(sameTable(chunks, chunksOf<matrix<double>>(A)));
    found.s = cellsOf(s);
    found.U = cellsIn(U);
    found.V = cellsIn(V);
    return found;
}

cST_MVect<double> recordOf(const matrix<double>& from)
{
    cST_MVect<double> made(from.nbrows, from.nbcols);
    for (int j = 0; j < from.nbcols; ++j) {
        std::copy_n(from.data + std::ptrdiff_t{from.nbrows} * j, from.nbrows,
                    made.Vectors[static_cast<std::size_t>(j)].Vect.data);
    }
    return made;
}

std::vector<double> cellsIn(const cST_MVect<double>& record)
{
    std::vector<double> cells;
    for (const auto& column : record.Vectors) {
        cells.insert(cells.end(), column.Vect.data, column.Vect.data + column.Vect.nbElem);
    }
    return cells;
}

outcome recordForm(const matrix<double>& A, int job)
{
    const wanted size(A, job);
    outcome found;
    cST_MVect<double> record = recordOf(A);
    cST_MVect<double> s(size.values, 1);
    cST_MVect<double> U(A.nbrows, size.columnsOfU);
    cST_MVect<double> V(A.nbcols, size.columnsOfV);
    M_SVDecomp_Fast_ST(record, A.nbrows, A.nbcols, s, U, V, job, &found.info);
    found.s = cellsIn(s);
    found.U = size.columnsOfU > 0 ? cellsIn(U) : std::vector<double>();
    found.V = size.columnsOfV > 0 ? cellsIn(V) : std::vector<double>();
    return found;
}

void expectPlain(const outcome& found, const plain_svd& expected)
{
    ASSERT_EQ(found.info, expected.info);
    ASSERT_TRUE(sameCells(found.s, {expected.s.begin() + 1, expected.s.end()})) << "s";
    ASSERT_TRUE(sameCells(found.U, expected.U.cells())) << "U";
    ASSERT_TRUE(sameCells(found.V, expected.V.cells())) << "V";
}

matrix<double> transposeOf(const matrix<double>& from)
{
    return korvel::test::detail::flipped(from);
}

} // namespace

TEST(SingularValues, EveryFormHasTheBitsOfThePlainLoops)
{
    constexpr std::pair<int, int> shapes[] = {{1, 1},   {1, 2},  {2, 1},   {1, 9},   {9, 1},   {2, 2},
                                              {2, 3},   {3, 2},  {3, 3},   {4, 4},   {5, 5},   {8, 8},
                                              {7, 9},   {9, 7},  {16, 16}, {17, 17}, {16, 33}, {33, 16},
                                              {31, 32}, {65, 8}, {8, 65},  {40, 40}, {41, 20}, {20, 41}};
    for (const auto& [n, p] : shapes) {
        for (const matrix_kind kind : allMatrixKinds) {
            const matrix<double> A = tableOfKind(kind, n, p, false);
            for (const int job : {0, 1, 10, 11, 20, 21, 31, 95, 1121}) {
                SCOPED_TRACE(::testing::Message() << kind << " " << n << " by " << p << ", job " << job);
                const plain_svd expected(A, n, p, job, 500);
                for (const member form : {denseForm, chunkedForm, recordForm}) {
                    ASSERT_NO_FATAL_FAILURE(expectPlain(form(A, job), expected));
                }
            }
        }
    }
}

TEST(SingularValues, OddCellsGoThroughThePlainLoops)
{
    constexpr double odd[] = {0.0,   -0.0,   1e-31,      1e-32,    5e-324,
                              1e150, -1e200, notANumber, infinite, -infinite};
    for (unsigned seed = 1; seed <= 90; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 1 + static_cast<int>(generator() % 20);
        const int p = 1 + static_cast<int>(generator() % 20);
        matrix<double> A = randomTable(generator, n, p, 1 + seed % 3);
        for (unsigned times = 0; times < 1 + seed % 9; ++times) {
            A.data[generator() % A.nbElem] = odd[generator() % (seed % 3 == 0 ? 10 : 7)];
        }
        SCOPED_TRACE(seed);
        const plain_svd dense(A, n, p, 11, 500);
        ASSERT_NO_FATAL_FAILURE(expectPlain(denseForm(A, 11), dense));
        ASSERT_NO_FATAL_FAILURE(expectPlain(chunkedForm(A, 11), plain_svd(A, n, p, 11, 60)));
        if (dense.info == 0) {
            ASSERT_NO_FATAL_FAILURE(expectPlain(recordForm(A, 11), dense));
        }
    }
}

TEST(SingularValues, StepsAreLimited)
{
    EXPECT_EQ(stepsOfDense, 500);
    EXPECT_EQ(stepsOfChunked, 60);
    std::mt19937_64 generator(4);
    matrix<double> A = randomTable(generator, 12, 12, 1);
    const int needed = plain_svd(A, 12, 12, 0, 500).stepsTaken;
    ASSERT_GE(needed, 2);
    for (const int limit : {0, 1, needed, needed + 1, noLimit}) {
        matrix<double> copy(A);
        matrix<double> s(12, 1, 0.0);
        raw_table<double> cells(copy);
        raw_table<double> none(copy);
        raw_writer<double> values(s.data, s.oobValue);
        const svd_shape shape{12, 12, 0, false, limit};
        const int info = golub_kahan(cells, none, none, values, shape).run();
        EXPECT_EQ(info, plain_svd(A, 12, 12, 0, limit).info);
        EXPECT_EQ(info == 0, limit > needed) << limit << ": the count is looked at before the test";
    }
}

TEST(SingularValues, WhatDoesNotConvergeIsCounted)
{
    for (const double bad : {notANumber, infinite}) {
        matrix<double> A(3, 3, 1.0);
        A.data[4] = bad;
        EXPECT_EQ(denseForm(A, 11).info, -3);
        EXPECT_EQ(chunkedForm(A, 11).info, -3);
    }
}

TEST(SingularValues, AZeroTable)
{
    const matrix<double> A(4, 3, 0.0);
    const outcome found = denseForm(A, 11);
    EXPECT_EQ(found.info, 0);
    EXPECT_EQ(found.s, (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(found.U, (std::vector<double>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(found.V, (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST(SingularValues, AColumnOfASmallNormCountsAsZero)
{
    // Without a reflector the second element of the column stays out of the result.
    const outcome small = denseForm(columnTable(2, {6e-33, 8e-33}), 21);
    EXPECT_SAME_BITS(small.s[0], 1e-32) << "the norm stands for the value";
    EXPECT_EQ(small.U, (std::vector<double>{1, 0}));
    const outcome larger = denseForm(columnTable(2, {6e-31, 8e-31}), 21);
    EXPECT_NEAR(larger.U[1] / larger.U[0], 8.0 / 6.0, 1e-14);
}

TEST(SingularValues, AJobTellsWhatIsWanted)
{
    const svd_job none(100, 5, 3);
    EXPECT_EQ(none.columnsOfU, 0);
    EXPECT_FALSE(none.wantsV);
    EXPECT_EQ(svd_job(10, 5, 3).columnsOfU, 5);
    EXPECT_EQ(svd_job(20, 5, 3).columnsOfU, 3);
    EXPECT_EQ(svd_job(90, 3, 5).columnsOfU, 3);
    EXPECT_TRUE(svd_job(7, 5, 3).wantsV);
}

TEST(SingularValues, WithoutRowsOrColumns)
{
    matrix<double> none(0, 0, 0.0);
    matrix<double> s(1, 1, 7.0);
    matrix<double> U(2, 2, 7.0);
    matrix<double> V(2, 2, 7.0);
    int info = 9;
    M_SVDecomp(&none, 0, 2, &s, &U, &V, 11, &info);
    EXPECT_EQ(info, 0);
    EXPECT_EQ(s.data[0], 0.0);
    EXPECT_EQ(cellsOf(V), (std::vector<double>{1, 0, 0, 1}));
    EXPECT_EQ(U.data[0], 7.0);
    M_SVDecomp(&none, 2, 0, &s, &U, &V, 11, &info);
    EXPECT_EQ(info, 0);
    EXPECT_EQ(cellsOf(U), (std::vector<double>{1, 0, 0, 1}));
    M_SVDecomp(&none, 0, 0, &s, &U, &V, 11, &info);
    EXPECT_EQ(info, 0);
}

TEST(SingularValues, ARecordIsDestroyed)
{
    std::mt19937_64 generator(2);
    const matrix<double> A = randomTable(generator, 5, 4, 1);
    cST_MVect<double> record = recordOf(A);
    cST_MVect<double> s(4, 1);
    cST_MVect<double> U(5, 0);
    cST_MVect<double> V(4, 0);
    int info = 9;
    M_SVDecomp_Fast_ST(record, 5, 4, s, U, V, 0, &info);
    EXPECT_FALSE(sameCells(cellsIn(record), cellsOf(A)));
    plain_svd plain(A, 5, 4, 0, 500);
    EXPECT_TRUE(sameCells(cellsIn(record), plain.A.cells())) << "it is the reduced form";
}

TEST(SingularValues, TablesThatAreTooSmallGoThroughTheCheckedAccess)
{
    std::mt19937_64 generator(3);
    matrix<double> A = randomTable(generator, 3, 3, 1);
    A.oobValue = 2.0;
    const matrix<double> before(A);
    std::vector<double> block(16, 7.0);
    matrix<double> s(2, 1, 7.0);
    matrix<double> U(3, 3, block.data() + 3, true);
    matrix<double> V(4, 4, 7.0);
    int info = 9;
    M_SVDecomp(&A, 4, 4, &s, &U, &V, 11, &info);
    EXPECT_EQ(cellsOf(A), cellsOf(before)) << "restored";
    for (const std::size_t k : {0U, 1U, 2U, 12U, 13U, 14U, 15U}) {
        EXPECT_EQ(block[k], 7.0) << "nothing outside is written";
    }
}

TEST(SingularValues, TablesMayBeLargerThanWhatIsDecomposed)
{
    std::mt19937_64 generator(5);
    const matrix<double> large = randomTable(generator, 9, 8, 1);
    matrix<double> part(6, 5, 0.0);
    for (int k = 0; k < 30; ++k) {
        part.setElement(k % 6, k / 6, large.getElement(k % 6, k / 6));
    }
    matrix<double> A(large);
    matrix<double> s(9, 1, 7.0);
    matrix<double> U(8, 9, 7.0);
    matrix<double> V(7, 6, 7.0);
    int info = 9;
    M_SVDecomp(&A, 6, 5, &s, &U, &V, 11, &info);
    plain_svd expected(part, 6, 5, 11, 500);
    EXPECT_EQ(info, 0);
    EXPECT_EQ(s.data[5], 7.0);
    for (int i = 1; i <= 6; ++i) {
        for (int j = 1; j <= 6; ++j) {
            EXPECT_SAME_BITS(U.getElement(i - 1, j - 1), expected.U(i, j));
        }
    }
    EXPECT_EQ(U.getElement(6, 0), 7.0);
    EXPECT_TRUE(sameCells(cellsOf(A), cellsOf(large)));
}

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
    const outcome flat = denseForm(transposeOf(A), 0);
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(flat.s[k], values[k], 1e-14);
    }
}

TEST(SingularValues, Generalised)
{
    std::mt19937_64 generator(11);
    for (const auto& [n, p] : {std::pair(6, 4), std::pair(4, 6), std::pair(5, 5)}) {
        const matrix<double> A = randomTable(generator, n, p, 1);
        cST_MVect<double> record = recordOf(A);
        cST_MVect<double> rows(n, 1);
        cST_MVect<double> cols(p, 1);
        matrix<double> scaled(n, p, 0.0);
        const auto weight = [](cST_MVect<double>& w, int i) -> double& { return w.Vectors[0].Vect.data[i]; };
        for (int i = 0; i < n; ++i) {
            weight(rows, i) = 0.5 + i;
        }
        for (int j = 0; j < p; ++j) {
            weight(cols, j) = 2.0 + j * j;
        }
        for (int k = 0; k < n * p; ++k) {
            scaled.data[k] = std::sqrt(weight(rows, k % n)) * A.data[k] * std::sqrt(weight(cols, k / n));
        }
        plain_svd plain(scaled, n, p, 21, 500);
        cST_MVect<double> s(std::min(n + 1, p), 1);
        cST_MVect<double> U(n, p);
        cST_MVect<double> V(p, p);
        U.Vectors[static_cast<std::size_t>(p - 1)].Vect.data[0] = 7.0;
        int info = 9;
        M_GeneralizedSVDecomp_Fast_ST(record, n, p, rows, cols, s, U, V, 0, &info);
        EXPECT_EQ(info, 0);
        EXPECT_TRUE(sameCells(cellsIn(record), cellsOf(A)));
        EXPECT_TRUE(sameCells(cellsIn(s), {plain.s.begin() + 1, plain.s.end()}));
        for (int j = 1; j <= p; ++j) {
            for (int i = 1; i <= n && j <= std::min(p, n - 1); ++i) {
                EXPECT_SAME_BITS(U.Vectors[static_cast<std::size_t>(j - 1)].Vect.data[i - 1],
                                 1.0 / std::sqrt(weight(rows, i - 1)) * plain.U(i, j));
            }
            for (int i = 1; i <= p; ++i) {
                EXPECT_SAME_BITS(V.Vectors[static_cast<std::size_t>(j - 1)].Vect.data[i - 1],
                                 1.0 / std::sqrt(weight(cols, i - 1)) * plain.V(i, j));
            }
        }
        if (p > n - 1) {
            EXPECT_EQ(U.Vectors[static_cast<std::size_t>(p - 1)].Vect.data[0], 7.0) << "left out";
        }
        weight(rows, 0) = 0.0;
        M_GeneralizedSVDecomp_Fast_ST(record, n, p, rows, cols, s, U, V, 0, &info);
        EXPECT_FALSE(std::isfinite(U.Vectors[0].Vect.data[0]));
    }
}
