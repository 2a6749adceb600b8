#include "linalg/cholesky.h"

#include "linalg/kernels/instruction_sets.h"
#include "linalg/square_kinds.h"
#include "reference/cholesky.h"
#include "support/near_tables.h"
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

struct decomposition {
    matrix<double> L{};
    int status;

    explicit decomposition(matrix<double> table) : status(M_CholDecomp(&table, table.nbrows, &L)) {}
};

struct pivoted {
    matrix<double> table;
    matrix<double> L{};
    matrix<int> perm;
    int status;

    explicit pivoted(const matrix<double>& from, short int replace = 0)
        : table(from), perm(from.nbrows, 1),
          status(M_CholDecompPrinc(&table, from.nbrows, &L, &perm, replace))
    {
    }

    [[nodiscard]] std::vector<int> order() const { return {perm.data, perm.data + perm.nbElem}; }
};

matrix<double> transposed(const matrix<double>& x)
{
    return squareOf(x.nbrows, [&](int i, int j) { return x.getElement(j, i); });
}

/** Symmetric tables for the twins: positive definite, nearly so, and with odd cells. */
matrix<double> symmetric(random_cells& cells, int n, odd_cells odd)
{
    matrix<double> made = gramian(randomTable(cells, n, n + 2), 0.5);
    if (odd == odd_cells::all && n > 0) {
        random_cells others(static_cast<std::uint64_t>(n), odd);
        for (int k = 0; k < 1 + n / 20; ++k) {
            made.setElement(cells.integer(0, n - 1), cells.integer(0, n - 1), others.value());
        }
    } else if (odd == odd_cells::missing && n > 0) {
        const int k = cells.integer(0, n - 1);
        made.setElement(k, k, 1e-3);
    }
    made.oobValue = cells.value();
    return made;
}

void compareWithThePlainLoop()
{
    constexpr std::array sizes{0,  1,  2,  3,  4,  5,  7,  8,  9,  15, 16, 17,  23,
                               24, 25, 31, 32, 33, 47, 48, 49, 63, 64, 65, 100, 130};
    std::uint64_t seed = 0;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing, odd_cells::all}) {
        for (const int n : sizes) {
            random_cells cells(++seed, odd_cells::none);
            matrix<double> A = symmetric(cells, n, odd);
            const bool isShort = seed % 5 == 0 && n > 0;
            matrix<double> block(n * n, 1, 0.0);
            matrix<double> L(isShort ? n - 1 : n, n, block.data, true);
            matrix<double> expectedBlock(n * n, 1, 0.0);
            matrix<double> expected(isShort ? n - 1 : n, n, expectedBlock.data, true);
            SCOPED_TRACE(::testing::Message() << "order " << n << " seed " << seed);
            const int status = M_CholDecomp(&A, n, &L);
            EXPECT_EQ(status, plainCholesky(A, n, expected));
            ASSERT_TRUE(sameTable(L, expected));
        }
    }
}

} // namespace

TEST(Cholesky, GivesTheLowerFactor)
{
    const decomposition found(tableOf({{4, 2, -2}, {2, 10, 5}, {-2, 5, 9}}));
    EXPECT_EQ(found.status, 0);
    expectTable(found.L, tableOf({{2, 0, 0}, {1, 3, 0}, {-1, 2, 2}}));
}

TEST(Cholesky, ReadsTheUpperHalfOnly)
{
    const decomposition found(tableOf({{4, 2, -2}, {notANumber, 10, 5}, {notANumber, infinite, 9}}));
    EXPECT_EQ(found.status, 0);
    expectTable(found.L, tableOf({{2, 0, 0}, {1, 3, 0}, {-1, 2, 2}}));
}

TEST(Cholesky, SubtractsInDescendingOrder)
{
    // 1e16 + 1 - 1 - 1e16: the products of column 2 go first.
    matrix<double> A = tableOf({{1, 0, 1e8, 1e8}, {0, 1, 1, 1}, {0, 0, 2e16, 1e16 + 2}, {0, 0, 0, 4e16}});
    const decomposition found(A);
    EXPECT_EQ(found.status, 0);
    const double ascending = (1e16 + 2) - 1e16 - 1.0;
    const double descending = (1e16 + 2) - 1.0 - 1e16;
    ASSERT_NE(ascending, descending);
    EXPECT_SAME_BITS(found.L.getElement(3, 2), descending / found.L.getElement(2, 2));
}

TEST(Cholesky, RefusesAPivotBelowItsThreshold)
{
    EXPECT_EQ(decomposition(scaled(identity(2), 1e-12)).status, 0) << "the threshold itself passes";
    EXPECT_EQ(decomposition(scaled(identity(2), 0.999e-12)).status, -1);
    EXPECT_EQ(decomposition(tableOf({{0}})).status, -1);
    EXPECT_EQ(decomposition(tableOf({{-4}})).status, -1);
    EXPECT_EQ(decomposition(tableOf({{1, 1}, {1, 1}})).status, -1) << "semidefinite";
    matrix<double> outside;
    matrix<double> L;
    outside.oobValue = 1e-12;
    EXPECT_EQ(M_CholDecomp(&outside, 1, &L), 0) << "where cells are read outside the table too";
    outside.oobValue = 0.999e-12;
    EXPECT_EQ(M_CholDecomp(&outside, 1, &L), -1);
}

TEST(Cholesky, LeavesTheColumnsThatWereFinished)
{
    const decomposition found(tableOf({{4, 2, -2}, {2, 1, 5}, {-2, 5, 9}}));
    EXPECT_EQ(found.status, -1);
    expectTable(found.L, tableOf({{2, 0, 0}, {1, 0, 0}, {-1, 0, 0}}));
}

TEST(Cholesky, LetsANaNThrough)
{
    const decomposition found(tableOf({{notANumber, 1}, {1, 4}}));
    EXPECT_EQ(found.status, 0);
    EXPECT_TRUE(std::isnan(found.L.getElement(0, 0)));
    EXPECT_TRUE(std::isnan(found.L.getElement(1, 1)));
}

TEST(Cholesky, OfNothingSucceeds)
{
    EXPECT_EQ(decomposition(identity(0)).status, 0);
    matrix<double> A = identity(2);
    matrix<double> L(2, 2, 7.0);
    EXPECT_EQ(M_CholDecomp(&A, 0, &L), 0);
    expectTable(L, matrix<double>(2, 2, 7.0));
}

TEST(Cholesky, ClearsItsResultInStorageOrder)
{
    matrix<double> A = tableOf({{4, 0}, {0, 9}});
    matrix<double> L(3, 3, 7.0);
    EXPECT_EQ(M_CholDecomp(&A, 2, &L), 0);
    expectTable(L, tableOf({{2, 0, 7}, {0, 3, 7}, {0, 7, 7}}));
}

TEST(Cholesky, HasTheBitsOfThePlainLoop)
{
    for (const auto set : korvel::test::setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        compareWithThePlainLoop();
    }
}

TEST(Cholesky, MultipliedAgainGivesTheTable)
{
    for (const int n : orders) {
        const matrix<double> regular = scaled(gramian(randomSquare(n), 1.0), 1.0 / (n + 1));
        std::vector<square_kind> kinds{
            {"random", regular},
            {"graded", graded(regular, n < 50 ? 2.0 : 1.01)},
            {"diagonal", squareOf(n, [](int i, int j) { return i == j ? 1.0 / (i + 1) : 0.0; })},
            {"huge", scaled(regular, 1e290)}};
        if (n <= 10) {
            kinds.push_back({"Hilbert", hilbert(n)});
        }
        for (const square_kind& kind : kinds) {
            SCOPED_TRACE(kind.name + " " + std::to_string(n));
            const decomposition found(kind.table);
            ASSERT_EQ(found.status, 0);
            EXPECT_LT(scaledResidual(found.L, transposed(found.L), kind.table), lapackThreshold);
        }
    }
}

TEST(Cholesky, OfTinyAndNearlySingularTablesIsRefused)
{
    // The threshold is absolute. The last pivot of a Hilbert table is 1.4e-12 for order 11, 8.7e-14 for 12.
    EXPECT_EQ(decomposition(scaled(identity(5), 1e-13)).status, -1);
    EXPECT_EQ(decomposition(hilbert(11)).status, 0);
    EXPECT_EQ(decomposition(hilbert(12)).status, -1);
    EXPECT_EQ(decomposition(scaled(identity(3), 0.0)).status, -1);
    EXPECT_EQ(decomposition(graded(identity(50), 2.0)).status, -1);
}

TEST(CholeskyWithPivoting, BringsTheLargestScoreToTheFront)
{
    const pivoted found(tableOf({{4, 2, -2}, {2, 10, 5}, {-2, 5, 9}}));
    EXPECT_EQ(found.status, 0);
    // First 10. Then 4 - 2*2/sqrt(10) = 2.7 and 9 - 5*5/sqrt(10) = 1.1: the first one, though what is left
    // of the third, 9 - 25/10, is larger.
    EXPECT_EQ(found.order(), (std::vector<int>{2, 1, 3}));
    EXPECT_SAME_BITS(found.L.getElement(0, 0), std::sqrt(10.0));
    EXPECT_SAME_BITS(found.L.getElement(1, 0), 2.0 / std::sqrt(10.0));
}

TEST(CholeskyWithPivoting, TakesTheFirstOfEqualScores)
{
    EXPECT_EQ(pivoted(identity(3)).order(), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(pivoted(tableOf({{1, 0, 0}, {0, 2, 0}, {0, 0, 2}})).order(), (std::vector<int>{2, 3, 1}))
        << "2 before 3";
}

TEST(CholeskyWithPivoting, DoesNotLookBackAtEarlierPivots)
{
    // The score of the third column ignores what the first one takes off variable 3.
    const pivoted found(tableOf({{100, 0, 90, 0}, {0, 50, 0, 0}, {90, 0, 85, 0}, {0, 0, 0, 5}}));
    EXPECT_EQ(found.order()[1], 2) << "85 - 8100/10 is negative";
    EXPECT_EQ(found.order()[2], 3) << "85 - 0, though only 4 of it is left, and 5 of the fourth";
}

TEST(CholeskyWithPivoting, SearchesNothingForOneVariable)
{
    const pivoted found(tableOf({{9}}), -1);
    EXPECT_EQ(found.status, 0);
    EXPECT_SAME_BITS(found.L.data[0], 3.0);
    EXPECT_EQ(found.order(), (std::vector<int>{1}));
    const pivoted refused(tableOf({{0}}));
    EXPECT_EQ(refused.status, -1);
    EXPECT_EQ(refused.order(), (std::vector<int>{1}));
}

TEST(CholeskyWithPivoting, ReplacesItsInputOnDemandAndOnFailureToo)
{
    const matrix<double> table = tableOf({{1, 2, 3}, {2, 4, 5}, {3, 5, 9}});
    const matrix<double> permuted = tableOf({{9, 3, 5}, {3, 1, 2}, {5, 2, 4}});
    const pivoted replaced(table, -1);
    EXPECT_EQ(replaced.status, -1) << "nothing is left of the first variable";
    EXPECT_EQ(replaced.order(), (std::vector<int>{3, 1, 2}));
    expectTable(replaced.table, permuted);
    EXPECT_SAME_BITS(replaced.L.getElement(0, 0), 3.0) << "the finished column is there";
    EXPECT_SAME_BITS(replaced.L.getElement(1, 0), 1.0) << "its rows were exchanged too";
    EXPECT_SAME_BITS(replaced.L.getElement(2, 0), 5.0 / 3.0);
    for (const short int flag : {short{0}, short{1}, short{-2}}) {
        expectTable(pivoted(table, flag).table, table);
    }
}

TEST(CholeskyWithPivoting, TellsTheOrderAsNumbersOrIntegers)
{
    matrix<double> A = tableOf({{1, 0}, {0, 2}});
    matrix<double> L;
    matrix<double> numbers(2, 1, 0.0);
    EXPECT_EQ(M_CholDecompPrinc(&A, 2, &L, &numbers, 0), 0);
    expectTable(numbers, tableOf({{2}, {1}}));
}

TEST(CholeskyWithPivoting, HasTheBitsOfThePlainLoop)
{
    constexpr std::array sizes{0, 1, 2, 3, 4, 5, 8, 9, 16, 17, 33, 50, 64, 65};
    std::uint64_t seed = 0;
    for (const odd_cells odd : {odd_cells::none, odd_cells::missing, odd_cells::all}) {
        for (const int n : sizes) {
            random_cells cells(++seed, odd_cells::none);
            const matrix<double> A = symmetric(cells, n, odd);
            const pivoted found(A, -1);
            matrix<double> W(A);
            matrix<double> L(n, n, 0.0);
            std::vector<int> perm;
            SCOPED_TRACE(::testing::Message() << "order " << n << " seed " << seed);
            EXPECT_EQ(found.status, plainCholeskyPrinc(W, n, L, perm));
            EXPECT_EQ(found.order(), perm);
            expectTable(found.L, L);
            expectTable(found.table, W);
        }
    }
}

TEST(CholeskyWithPivoting, MultipliedAgainGivesThePermutedTable)
{
    for (const int n : orders) {
        const matrix<double> regular = scaled(gramian(randomSquare(n), 1.0), 1.0 / (n + 1));
        const pivoted found(regular, -1);
        ASSERT_EQ(found.status, 0);
        EXPECT_LT(scaledResidual(found.L, transposed(found.L), found.table), lapackThreshold);
        for (int k = 0; k < n * n; ++k) {
            const int i = k % n;
            const int j = k / n;
            EXPECT_SAME_BITS(found.table.getElement(i, j),
                             regular.getElement(found.perm[i] - 1, found.perm[j] - 1));
        }
    }
}

TEST(SparseCholesky, HasTheBitsOfThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = static_cast<int>(seed % 12);
        const matrix<double> dense = gramian(randomTable(generator, n, n, 3), seed % 4 == 0 ? 0.0 : 1e-6);
        matrix<double> source(dense);
        matrixSparse A(&source);
        matrixSparse L;
        matrixSparse expected;
        expected.Redim(n, n, 0.0);
        SCOPED_TRACE(seed);
        EXPECT_EQ(M_CholDecomp(&A, n, &L), plainCholesky(A, n, expected));
        EXPECT_TRUE(sameStorage(L, expected));
        matrixSparse pivotedL(2, 2, 3.0, false);
        matrix<double> perm(n, 1, 0.0);
        matrix<double> W = squareOf(n, [&](int i, int j) { return A.getElement(i, j); });
        std::vector<int> expectedPerm;
        expected.Redim(n, n, 0.0);
        EXPECT_EQ(M_CholDecompPrinc(&A, n, &pivotedL, &perm, -1),
                  plainCholeskyPrinc(W, n, expected, expectedPerm));
        EXPECT_TRUE(sameStorage(pivotedL, expected));
        EXPECT_EQ(std::vector<int>(perm.data, perm.data + n), expectedPerm);
        matrix<double> permuted = A.to_matrix(n, n);
        expectTable(permuted, W);
    }
}

TEST(SparseCholesky, HasNoEntryForWhatIsBelowTheZeroOfSparseTables)
{
    matrix<double> source = tableOf({{1, 2e-18}, {2e-18, 1}});
    matrixSparse A(&source);
    A.setElement(0, 0, 16.0);
    matrixSparse L;
    EXPECT_EQ(M_CholDecomp(&A, 2, &L), 0);
    EXPECT_EQ(L.nnz, 2) << "2e-18 / 4 is no entry";
    matrix<double> dense = A.to_matrix();
    matrix<double> denseL;
    EXPECT_EQ(M_CholDecomp(&dense, 2, &denseL), 0);
    EXPECT_SAME_BITS(denseL.getElement(1, 0), 0.5e-18);
}

TEST(SparseCholesky, RefusesWhatTheDenseOneRefuses)
{
    matrix<double> source = scaled(identity(2), 1e-12);
    matrixSparse A(&source);
    matrixSparse L;
    EXPECT_EQ(M_CholDecomp(&A, 2, &L), 0);
    A.setElement(1, 1, 0.9e-12);
    EXPECT_EQ(M_CholDecomp(&A, 2, &L), -1);
    EXPECT_EQ(L.nnz, 1);
}
