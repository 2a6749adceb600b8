#include "linalg/singular_values.h"

#include "linalg/singular_values_forms.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

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

TEST(SingularValues, OddCellsHaveTheBitsOfThePlainLoops)
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
