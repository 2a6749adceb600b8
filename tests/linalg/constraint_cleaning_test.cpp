#include "linalg/constraint_cleaning.h"

#include "linalg/cholesky.h"
#include "linalg/determinants.h"
#include "linalg/g2_sweep.h"
#include "linalg/inverse1.h"
#include "linalg/square_kinds.h"
#include "reference/cholesky.h"
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

/** The constraints as integers and as numbers. */
struct constraints {
    matrix<int> integers;
    matrix<double> numbers;

    constraints(std::initializer_list<int> values)
        : integers(static_cast<int>(values.size()), 1), numbers(static_cast<int>(values.size()), 1, 0.0)
    {
        std::copy(values.begin(), values.end(), integers.data);
        std::copy(values.begin(), values.end(), numbers.data);
    }
};

const matrix<double> sample = tableOf({{4, 9, 2, -2}, {9, 9, 9, 9}, {2, 9, 10, 5}, {-2, 9, 5, 9}});

void expectDeterminant(constraints fixed, double expected, short int expectedError)
{
    matrix<double> A(sample);
    const int n = static_cast<int>(fixed.integers.nbElem);
    short int error = 9;
    EXPECT_SAME_BITS(M_DeterminantCleaned(&A, n, &fixed.integers, &error), expected);
    EXPECT_EQ(error, expectedError);
    error = 9;
    EXPECT_SAME_BITS(M_DeterminantCleaned(&A, n, &fixed.numbers, &error), expected);
    EXPECT_EQ(error, expectedError);
    matrix3D<matrix<double>> triangle(n, n, 1, 0.0);
    std::vector<matrix<double>*> chunks;
    for (int j = 0; j < n; ++j) {
        matrix<double>& chunk = triangle.chunks[static_cast<std::size_t>(j)];
        chunk.Redim(n - j, 1);
        for (int i = j; i < n; ++i) {
            chunk[i - j] = A.getElement(i, j);
        }
        chunks.push_back(&chunk);
    }
    error = 9;
    EXPECT_SAME_BITS(M_DeterminantCleanedSPV_T(chunks.data(), n, &fixed.integers, &error), expected);
    EXPECT_EQ(error, expectedError);
}

double determinantOf(matrix<double> table)
{
    short int error = 9;
    return M_Determinant(&table, table.nbrows, &error, 0);
}

} // namespace

TEST(CleanedDeterminant, IsThatOfTheFreePart)
{
    expectDeterminant({0, 1, 0, 0}, determinantOf(tableOf({{4, 2, -2}, {2, 10, 5}, {-2, 5, 9}})), 0);
    expectDeterminant({3, 0, 1, 0}, determinantOf(tableOf({{9, 9}, {9, 9}})), 0);
    expectDeterminant({1, 1, 0, 1}, determinantOf(tableOf({{10}})), 0);
    expectDeterminant({0, 0, 0, 0}, determinantOf(sample), 0);
}

TEST(CleanedDeterminant, OfNothingIsOne)
{
    expectDeterminant({1, 2, 3, 4}, 1.0, 0);
    expectDeterminant({}, 1.0, 0);
}

TEST(CleanedDeterminant, OfANegativeConstraintHasARowOfZeros)
{
    expectDeterminant({0, -1, 0, 0}, 0.0, -1);
    expectDeterminant({-1, 1, 1, 1}, 0.0, -1);
    matrix<double> A(sample);
    matrix<double> missing = tableOf({{0}, {MISSING_DBL}, {1}, {notANumber}});
    short int error = 9;
    EXPECT_SAME_BITS(M_DeterminantCleaned(&A, 4, &missing, &error), 0.0);
    EXPECT_EQ(error, -1) << "neither free nor constrained";
}

TEST(CleanedCholesky, PutsTheFactorIntoTheFreePositions)
{
    constraints fixed{0, 1, 0, 0};
    for (const bool asNumbers : {false, true}) {
        matrix<double> A(sample);
        matrix<double> L(4, 4, 7.0);
        EXPECT_EQ(asNumbers ? M_CholDecompCleaned(&A, 4, &fixed.numbers, &L)
                            : M_CholDecompCleaned(&A, 4, &fixed.integers, &L),
                  0);
        expectTable(L, tableOf({{2, 7, 0, 0}, {0, 7, 0, 0}, {1, 7, 3, 0}, {-1, 7, 2, 2}}));
    }
}

TEST(CleanedCholesky, LetsAPivotOfZeroStandAtTheEnd)
{
    constraints none{0, 0};
    matrix<double> A = tableOf({{1, 1}, {1, 1}});
    matrix<double> L(2, 2, 7.0);
    EXPECT_EQ(M_CholDecomp(&A, 2, &L), -1);
    L.Redim(2, 2, 7.0);
    EXPECT_EQ(M_CholDecompCleaned(&A, 2, &none.integers, &L), 0);
    expectTable(L, tableOf({{1, 0}, {1, 0}}));
    EXPECT_EQ(M_CholDecompCleaned(&A, 2, &none.numbers, &L), 0);
    A = scaled(identity(2), 1e-30);
    EXPECT_EQ(M_CholDecompCleaned(&A, 2, &none.integers, &L), 0) << "no threshold but 0";
    expectTable(L, scaled(identity(2), std::sqrt(1e-30)));
}

TEST(CleanedCholesky, RefusesAZeroPivotBeforeTheEndAndANegativeOneAnywhere)
{
    constraints none{0, 0};
    for (matrix<double> A :
         {tableOf({{0, 0}, {0, 1}}), tableOf({{1, 0}, {0, -1e-30}}), tableOf({{-1, 0}, {0, 1}})}) {
        matrix<double> L(2, 2, 7.0);
        EXPECT_EQ(M_CholDecompCleaned(&A, 2, &none.integers, &L), -1);
        EXPECT_EQ(M_CholDecompCleaned(&A, 2, &none.numbers, &L), -1);
        expectTable(L, matrix<double>(2, 2, 7.0));
    }
}

TEST(CleanedCholesky, OfANegativeConstraintEndsWithAPivotOfZero)
{
    constraints fixed{0, -1, 0, 0};
    matrix<double> A(sample);
    matrix<double> L(4, 4, 7.0);
    EXPECT_EQ(M_CholDecompCleaned(&A, 4, &fixed.integers, &L), 0);
    expectTable(L, tableOf({{2, 7, 0, 0}, {0, 7, 0, 0}, {1, 7, 3, 0}, {-1, 7, 2, 2}}));
    constraints two{0, -1, -1, 0};
    EXPECT_EQ(M_CholDecompCleaned(&A, 4, &two.integers, &L), -1)
        << "the first of two such has an element below";
}

TEST(CleanedCholesky, WritesNothingWhenNothingIsFree)
{
    constraints all{1, 1};
    matrix<double> A = identity(2);
    matrix<double> L(2, 2, 7.0);
    EXPECT_EQ(M_CholDecompCleaned(&A, 2, &all.integers, &L), 0);
    expectTable(L, matrix<double>(2, 2, 7.0));
}

TEST(CleanedCholesky, HasTheBitsOfThePlainLoopOnTheFreePart)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const int n = cells.integer(1, 40);
        matrix<double> A = gramian(randomTable(cells, n, n), 0.0);
        matrix<int> fixed(n, 1);
        std::vector<int> kept;
        for (int i = 0; i < n; ++i) {
            fixed[i] = cells.integer(0, 3) == 0 ? 1 : 0;
            if (fixed[i] == 0) {
                kept.push_back(i);
            }
        }
        const auto at = [&kept](int i) { return kept[static_cast<std::size_t>(i)]; };
        const int m = static_cast<int>(kept.size());
        const matrix<double> reduced = squareOf(m, [&](int i, int j) { return A.getElement(at(i), at(j)); });
        matrix<double> factor(m, m, 0.0);
        int expected = 0;
        for (int i = 0; i < m && expected == 0; ++i) {
            expected = plainColumn(reduced, m, i, factor, [](double pivot) { return pivot < 0.0; });
        }
        matrix<double> L(n, n, 0.0);
        SCOPED_TRACE(seed);
        ASSERT_EQ(M_CholDecompCleaned(&A, n, &fixed, &L), expected);
        for (int k = 0; expected == 0 && k < m * m; ++k) {
            EXPECT_SAME_BITS(L.getElement(at(k % m), at(k / m)), factor.data[k]);
        }
    }
}

namespace
{

/** The inverse in all four forms, which must agree. The result holds sevens before. */
matrix<double> expectInverse(constraints fixed, const matrix<double>& H, int status)
{
    const int n = H.nbrows;
    matrix<double> table(H);
    const matrix<double> sevens(n, n, 7.0);
    matrix<double> result(sevens);
    EXPECT_EQ(cCleanConstraintsAndInvert(n, fixed.integers, table, result), status);
    matrix<double> other(sevens);
    EXPECT_EQ(cCleanConstraintsAndInvert(n, fixed.numbers, table, other), status);
    expectTable(other, result);
    matrix<double> third(sevens);
    EXPECT_EQ(cCleanConstraintsAndInvert(n, &fixed.integers, &table, &third), status);
    expectTable(third, result);
    matrix<double> fourth(sevens);
    EXPECT_EQ(cCleanConstraintsAndInvert(n, &fixed.numbers, &table, &fourth), status);
    expectTable(fourth, result);
    expectTable(table, H);
    return result;
}

matrix<double> expectTriangularInverse(constraints fixed, const matrix<double>& T, short int lowerFlag,
                                       int status)
{
    const int n = T.nbrows;
    matrix<double> table(T);
    matrix<double> result(n, n, 7.0);
    EXPECT_EQ(cCleanConstraintsAndInvertTriang(n, &fixed.integers, &table, lowerFlag, &result), status);
    matrix<double> other(n, n, 7.0);
    matrix<double>* place = &other;
    EXPECT_EQ(cCleanConstraintsAndInvertTriang(n, &fixed.numbers, &table, lowerFlag, place), status);
    EXPECT_EQ(place, &other);
    expectTable(other, result);
    return result;
}

} // namespace

TEST(CleanedInverse, LandsAtTheFreePositions)
{
    const matrix<double> H = tableOf({{2, 9, 0}, {9, 9, 9}, {0, 9, 4}});
    expectTable(expectInverse({0, 5, 0}, H, 0), tableOf({{0.5, 7, 0}, {0, 7, 0}, {0, 7, 0.25}}));
}

TEST(CleanedInverse, IsThatOfTheReducedTable)
{
    matrix<double> reduced = tableOf({{4, 2, -2}, {1, 10, 5}, {-2, 3, 9}});
    matrix<double> expected(3, 3, 0.0);
    short int error = 0;
    ASSERT_EQ(Inverse1(&reduced, &expected, &error, 1e-12), 0);
    const matrix<double> H = tableOf({{4, 9, 2, -2}, {9, 9, 9, 9}, {1, 9, 10, 5}, {-2, 9, 3, 9}});
    const matrix<double> found = expectInverse({0, 1, 0, 0}, H, 0);
    const int at[] = {0, 2, 3};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_SAME_BITS(found.getElement(at[i], at[j]), expected.getElement(i, j));
        }
    }
}

TEST(CleanedInverse, WithoutFreePositionsWritesNothing)
{
    expectTable(expectInverse({1, 2}, identity(2), 0), matrix<double>(2, 2, 7.0));
    expectInverse({}, identity(0), 0);
}

TEST(CleanedInverse, OfOneFreePositionIsAReciprocal)
{
    expectTable(expectInverse({1, 0}, tableOf({{9, 9}, {9, 4}}), 0), tableOf({{7, 0}, {7, 0.25}}));
    expectTable(expectInverse({1, 0}, tableOf({{9, 9}, {9, 0}}), 0), tableOf({{7, 0}, {7, 1.0 / 1e-12}}));
    expectTable(expectInverse({1, 0}, tableOf({{9, 9}, {9, 1e-30}}), 0), tableOf({{7, 0}, {7, 1.0 / 1e-30}}));
}

TEST(CleanedInverse, OfASingularTableIsTheSweptOne)
{
    expectTable(expectInverse({0, 0}, tableOf({{1, 1}, {1, 1}}), 1), tableOf({{1, 0}, {0, 0}}));
    // All of a pivot's row and column in the reduced table become 0, and a constrained position has none.
    expectTable(expectInverse({0, 1, 0}, tableOf({{1, 9, 1}, {9, 9, 9}, {1, 9, 1}}), 1),
                tableOf({{1, 7, 0}, {0, 7, 0}, {0, 7, 0}}));
}

TEST(CleanedInverse, WithAPivotBetweenTheLimitsIsSweptInFull)
{
    const matrix<double> H = tableOf({{1, 0}, {0, 0x1p-30}});
    expectTable(expectInverse({0, 0}, H, 1), tableOf({{1, -0.0}, {-0.0, 0x1p30}}));
    expectTable(expectInverse({0, 0}, tableOf({{1, 0}, {0, 0.9e-12}}), 1), tableOf({{1, 0}, {0, 0}}));
}

TEST(CleanedInverse, OfANegativeConstraintIsSingular)
{
    const matrix<double> H = tableOf({{2, 9, 0}, {9, 9, 9}, {0, 9, 4}});
    const matrix<double> found = expectInverse({0, -1, 0}, H, 1);
    expectTable(squareOf(3, [&](int i, int j) { return std::fabs(found.getElement(i, j)); }),
                tableOf({{0.5, 7, 0}, {0, 7, 0}, {0, 7, 0.25}}));
    // One free position beside one that is neither: the reduced table has order 2, so there is no reciprocal.
    expectTable(expectInverse({0, -1}, tableOf({{2, 9}, {9, 9}}), 1), tableOf({{0.5, 7}, {0, 7}}));
    expectTable(expectInverse({-1}, tableOf({{2}}), 0), tableOf({{7}}));
}

TEST(CleanedInverse, OfASingularTableHasTheBitsOfTheSweep)
{
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const int n = cells.integer(2, 30);
        matrix<double> H = gramian(randomTable(cells, n, n / 2), 0.0);
        matrix<int> fixed(n, 1);
        matrix<double> expected(n, n, 0.0);
        M_InverseG2(&H, n, 1e-12, &expected);
        matrix<double> regular(n, n, 0.0);
        short int error = 0;
        const bool isSingular = Inverse1(&H, &regular, &error, 1e-12) != 0;
        matrix<double> found(n, n, 0.0);
        EXPECT_EQ(cCleanConstraintsAndInvert(n, fixed, H, found), isSingular ? 1 : 0);
        expectTable(found, isSingular ? expected : regular);
    }
}

TEST(CleanedTriangularInverse, LandsAtTheFreePositions)
{
    const matrix<double> lower = tableOf({{2, 0, 0}, {9, 9, 0}, {1, 9, 4}});
    const matrix<double> upper = tableOf({{2, 9, 1}, {0, 9, 9}, {0, 0, 4}});
    for (const short int flag : {short{-1}, short{1}}) {
        expectTable(expectTriangularInverse({0, 1, 0}, lower, flag, 0),
                    tableOf({{0.5, 7, 0}, {0, 7, 0}, {-0.125, 7, 0.25}}));
    }
    expectTable(expectTriangularInverse({0, 1, 0}, upper, 0, 0),
                tableOf({{0.5, 7, -0.125}, {0, 7, 0}, {0, 7, 0.25}}));
}

TEST(CleanedTriangularInverse, LeavesItsResultOnFailure)
{
    const matrix<double> sevens(2, 2, 7.0);
    expectTable(expectTriangularInverse({0, 0}, tableOf({{1, 0}, {1, 0.9e-12}}), -1, -1), sevens);
    expectTable(expectTriangularInverse({0, -1}, tableOf({{1, 0}, {1, 1}}), -1, -1), sevens);
    expectTable(expectTriangularInverse({1, 1}, tableOf({{0, 0}, {0, 0}}), -1, 0), sevens);
}

TEST(CleanedTriangularInverse, OfOneFreePositionIsAReciprocal)
{
    expectTable(expectTriangularInverse({0, 1}, tableOf({{0, 9}, {9, 9}}), 0, 0),
                tableOf({{1.0 / 1e-12, 7}, {0, 7}}));
    expectTable(expectTriangularInverse({0, 1}, tableOf({{1e-30, 9}, {9, 9}}), 0, 0),
                tableOf({{1.0 / 1e-30, 7}, {0, 7}}));
}
