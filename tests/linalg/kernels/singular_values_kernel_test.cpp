#include "linalg/kernels/singular_values.h"

#include "linalg/kernels/instruction_sets.h"
#include "linalg/singular_values_forms.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"

#include <gtest/gtest.h>
#include <memory>

using namespace korvel;
using namespace korvel::test;

namespace
{

/** Holds a decomposition by every instruction set against the plain loops. */
void expectPlain(const matrix<double>& A, int job, member form = denseForm)
{
    const plain_svd expected(A, A.nbrows, A.nbcols, job, form == chunkedForm ? stepsOfChunked : stepsOfDense);
    for (const auto set : setsOfThisProcessor()) {
        SCOPED_TRACE(::testing::Message() << "instruction set " << static_cast<int>(set));
        const kernels::forced_set forced(set);
        ASSERT_NO_FATAL_FAILURE(expectPlain(form(A, job), expected));
    }
}

/** A table that is bidiagonal already, with zeros on its diagonal, at which it splits. */
matrix<double> splittingTable(std::mt19937_64& generator, int n, int p)
{
    matrix<double> made(n, p, 0.0);
    for (int k = 0; k < std::min(n, p); ++k) {
        made.setElement(k, k, generator() % 4 == 0 ? 0.0 : uniform(generator));
        if (k + 1 < p) {
            made.setElement(k, k + 1, uniform(generator));
        }
    }
    return made;
}

} // namespace

TEST(SingularValuesKernel, HasTheBitsOfThePlainLoopsAroundEachOfItsSizes)
{
    // Blocks of up to 8 rows, groups of 8 columns, chunks of 16 columns and strips of 16 rows.
    constexpr int sizes[] = {1, 2, 3, 7, 8, 9, 10, 15, 16, 17, 18, 24, 25, 31, 33, 48};
    int job = 0;
    for (const int n : sizes) {
        for (const int p : sizes) {
            std::mt19937_64 generator(static_cast<unsigned>(100 * n + p));
            SCOPED_TRACE(::testing::Message() << n << " by " << p);
            constexpr int jobs[] = {11, 21, 20, 1};
            ASSERT_NO_FATAL_FAILURE(expectPlain(randomTable(generator, n, p, 1), jobs[++job % 4]));
        }
    }
}

TEST(SingularValuesKernel, HasTheBitsOfThePlainLoopsForLargerTables)
{
    // Longer sweeps from 200 columns, larger batches from 256, and columns that would lie a page apart.
    constexpr std::pair<int, int> shapes[] = {{130, 130}, {199, 201}, {201, 199}, {257, 256},
                                              {512, 40},  {40, 300},  {700, 3}};
    for (const auto& [n, p] : shapes) {
        for (const matrix_kind kind : {matrix_kind::random, matrix_kind::clustered, matrix_kind::deficient}) {
            SCOPED_TRACE(::testing::Message() << kind << " " << n << " by " << p);
            ASSERT_NO_FATAL_FAILURE(expectPlain(tableOfKind(kind, n, p, false), 21));
        }
    }
}

TEST(SingularValuesKernel, TablesThatSplit)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 2 + static_cast<int>(generator() % 60);
        const int p = seed % 2 == 0 ? n : 2 + static_cast<int>(generator() % 60);
        SCOPED_TRACE(seed);
        ASSERT_NO_FATAL_FAILURE(expectPlain(splittingTable(generator, n, p), 11));
    }
}

TEST(SingularValuesKernel, OddCellsInEveryForm)
{
    constexpr double odd[] = {0.0,    -0.0,  1e-31,      1e-32,    5e-324,   1e150,
                              -1e200, 1e308, notANumber, infinite, -infinite};
    for (unsigned seed = 1; seed <= 150; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 1 + static_cast<int>(generator() % 50);
        const int p = 1 + static_cast<int>(generator() % 50);
        matrix<double> A = randomTable(generator, n, p, 1 + seed % 12);
        for (unsigned times = 0; times < seed % 9; ++times) {
            A.data[generator() % A.nbElem] = odd[generator() % (seed % 4 == 0 ? 11 : 7)];
        }
        // Where a factor is 0 nothing is added, not even to -0.0.
        for (int k = 0; seed % 5 == 0 && k < n * p; ++k) {
            A.data[k] = generator() % 3 == 0 ? A.data[k] : generator() % 2 == 0 ? 0.0 : -0.0;
        }
        SCOPED_TRACE(seed);
        ASSERT_NO_FATAL_FAILURE(expectPlain(A, 11));
        ASSERT_NO_FATAL_FAILURE(expectPlain(A, 21, chunkedForm));
        if (plain_svd(A, n, p, 0, stepsOfDense).info == 0) {
            ASSERT_NO_FATAL_FAILURE(expectPlain(A, 11, recordForm));
        }
    }
}

TEST(SingularValuesKernel, LeavesARecordInItsReducedForm)
{
    for (unsigned seed = 1; seed <= 30; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 1 + static_cast<int>(generator() % 30);
        const int p = 1 + static_cast<int>(generator() % 30);
        matrix<double> A = randomTable(generator, n, p, 1);
        for (int k = 0; seed % 2 == 0 && k < n * p; ++k) {
            A.data[k] = generator() % 3 == 0 ? A.data[k] : generator() % 2 == 0 ? 0.0 : -0.0;
        }
        const plain_svd expected(A, n, p, 0, noLimit);
        for (const auto set : setsOfThisProcessor()) {
            SCOPED_TRACE(::testing::Message() << seed << ", instruction set " << static_cast<int>(set));
            const kernels::forced_set forced(set);
            cST_MVect<double> record = recordOf(A);
            cST_MVect<double> s(std::min(n + 1, p), 1);
            cST_MVect<double> none(1, 1);
            int info = 9;
            M_SVDecomp_Fast_ST(record, n, p, s, none, none, 0, &info);
            ASSERT_EQ(info, 0);
            ASSERT_TRUE(sameCells(cellsIn(record), expected.A.cells()));
        }
    }
}

TEST(SingularValuesKernel, GivesUpWithTheVectorsAsTheyStand)
{
    std::mt19937_64 generator(4);
    matrix<double> A = randomTable(generator, 30, 20, 1);
    const int needed = plain_svd(A, 30, 20, 0, stepsOfDense).stepsTaken;
    ASSERT_GE(needed, 2);
    for (const int limit : {0, 1, needed, needed + 1}) {
        const plain_svd expected(A, 30, 20, 11, limit);
        ASSERT_EQ(expected.info == 0, limit > needed);
        for (const auto set : setsOfThisProcessor()) {
            const kernels::forced_set forced(set);
            const auto& kernel = kernels::singularValueKernel();
            outcome found;
            found.s.resize(20);
            found.U.resize(900);
            found.V.resize(400);
            kernels::svd_problem problem{svd_shape(30, 20, 30, true, limit)};
            problem.table = {A.data, 30};
            problem.values = found.s.data();
            problem.U = {found.U.data(), 30};
            problem.V = {found.V.data(), 20};
            const auto scratch = std::make_unique<double[]>(kernel.scratchSize(problem.shape));
            found.info = kernel.decompose(problem, scratch.get());
            ASSERT_NO_FATAL_FAILURE(expectPlain(found, expected)) << limit;
        }
    }
}
