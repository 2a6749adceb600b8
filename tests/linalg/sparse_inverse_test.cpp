#include "containers/sparse_matrix.h"

#include "reference/sparse_matrix.h"
#include "support/allocations.h"
#include "support/sparse_tables.h"

#include <cmath>
#include <limits>
#include <new>

using korvel::test::sameStorage;
using korvel::test::tableOf;

namespace
{

constexpr double epsilon = std::numeric_limits<double>::epsilon();

/** A sparse table from a dense one by its setter, so that row 0 stays row 0. */
matrixSparse sparseOf(const matrix<double>& dense)
{
    matrixSparse m(dense.nbrows, dense.nbcols, 0.0, false);
    for (int i = dense.nbrows - 1; i >= 0; --i) {
        for (int j = dense.nbcols - 1; j >= 0; --j) {
            m.setElement(i, j, dense.getElement(i, j));
        }
    }
    return m;
}

struct inversion {
    int status;
    short int singular;
    matrixSparse result;
};

/** Inverts into an empty table of the right size. `singular` starts from 5. */
inversion invert(const matrix<double>& dense, double tol = 0.0)
{
    matrixSparse m = sparseOf(dense);
    inversion outcome{0, 5, matrixSparse(dense.nbrows, dense.nbrows, 0.0, false)};
    outcome.status = m.inverse1(&outcome.result, outcome.singular, tol);
    return outcome;
}

double norm1(const matrix<double>& a)
{
    double largest = 0.0;
    for (int j = 0; j < a.nbcols; ++j) {
        double sum = 0.0;
        for (int i = 0; i < a.nbrows; ++i) {
            sum += std::fabs(a.getElement(i, j));
        }
        largest = std::max(largest, sum);
    }
    return largest;
}

/** ||A X - I|| / (n ||A|| ||X|| eps), in the 1-norm. */
double residual(const matrix<double>& a, const matrix<double>& x)
{
    const int n = a.nbrows;
    matrix<double> difference(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            long double sum = i == j ? -1.0L : 0.0L;
            for (int k = 0; k < n; ++k) {
                sum += static_cast<long double>(a.getElement(i, k)) *
                       static_cast<long double>(x.getElement(k, j));
            }
            difference.setElement(i, j, static_cast<double>(sum));
        }
    }
    return norm1(difference) / (n * norm1(a) * norm1(x) * epsilon);
}

/** Compares with reference values, relative to the largest of their column. */
void expectInverse(const matrix<double>& source, const matrix<double>& expected, double tolerance)
{
    const inversion outcome = invert(source);
    ASSERT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.singular, 5) << "left alone when there is nothing to report";
    for (int j = 0; j < expected.nbcols; ++j) {
        double largest = 0.0;
        for (int i = 0; i < expected.nbrows; ++i) {
            largest = std::max(largest, std::fabs(expected.getElement(i, j)));
        }
        for (int i = 0; i < expected.nbrows; ++i) {
            EXPECT_NEAR(outcome.result.getElement(i, j), expected.getElement(i, j), tolerance * largest)
                << i << ", " << j;
        }
    }
}

} // namespace

// Expected values below: mpmath 1.2.1 with 60 digits, `matrix(A)**-1`, rounded to double.

TEST(SparseInverse, InvertsADominantTable)
{
    expectInverse(
        tableOf({{4.0, -2.0, 0.0, 0.5}, {0.0, 3.0, 1.25, 0.0}, {1.0, 0.0, -6.0, 2.0}, {0.75, 0.0, 0.0, 5.0}}),
        tableOf({{0.24861878453038674, 0.16574585635359115, 0.034530386740331494, -0.03867403314917127},
                 {-0.012085635359116022, 0.32527624309392267, 0.06776588397790055, -0.02589779005524862},
                 {0.029005524861878452, 0.019337016574585635, -0.16263812154696133, 0.062154696132596686},
                 {-0.03729281767955801, -0.024861878453038673, -0.0051795580110497235, 0.2058011049723757}}),
        4 * epsilon);
}

TEST(SparseInverse, InvertsATableThatNeedsRowSwaps)
{
    expectInverse(
        tableOf({{0.0, 2.0, 0.0, 0.0, 1.0},
                 {3.0, 0.0, 0.0, 1.0, 0.0},
                 {0.0, 0.0, 0.0, 4.0, 0.5},
                 {1.0, 0.0, 2.0, 0.0, 0.0},
                 {0.0, 1.0, 0.0, 0.0, -3.0}}),
        tableOf(
            {{0.005952380952380952, 0.3333333333333333, -0.08333333333333333, 0.0, -0.011904761904761904},
             {0.42857142857142855, 0.0, 0.0, 0.0, 0.14285714285714285},
             {-0.002976190476190476, -0.16666666666666666, 0.041666666666666664, 0.5, 0.005952380952380952},
             {-0.017857142857142856, 0.0, 0.25, 0.0, 0.03571428571428571},
             {0.14285714285714285, 0.0, 0.0, 0.0, -0.2857142857142857}}),
        4 * epsilon);
}

TEST(SparseInverse, InvertsRowsOfUnlikeScale)
{
    expectInverse(tableOf({{1e6, 2e6, 0.0}, {1.0, 0.0, 3.0}, {0.0, 0.0009765625, 0.001953125}}),
                  tableOf({{4.2857142857142857e-07, 0.5714285714285714, -877.7142857142857},
                           {2.857142857142857e-07, -0.2857142857142857, 438.85714285714283},
                           {-1.4285714285714285e-07, 0.14285714285714285, 292.57142857142856}}),
                  4 * epsilon);
}

TEST(SparseInverse, InvertsTheHilbertTableOfOrderFour)
{
    // Condition number 1.6e4.
    expectInverse(tableOf({{1.0, 0.5, 0.3333333333333333, 0.25},
                           {0.5, 0.3333333333333333, 0.25, 0.2},
                           {0.3333333333333333, 0.25, 0.2, 0.16666666666666666},
                           {0.25, 0.2, 0.16666666666666666, 0.14285714285714285}}),
                  tableOf({{15.99999999999893, -119.99999999998734, 239.99999999996888, -139.9999999999795},
                           {-119.99999999998734, 1199.9999999998513, -2699.999999999636, 1679.9999999997613},
                           {239.99999999996888, -2699.999999999636, 6479.9999999991105, -4199.999999999417},
                           {-139.9999999999795, 1679.9999999997613, -4199.999999999417, 2799.9999999996185}}),
                  1.6e4 * epsilon);
}

TEST(SparseInverse, EqualsThePlainRoutineBitForBit)
{
    std::mt19937_64 generator(31);
    for (int n = 1; n <= 40; ++n) {
        for (const unsigned oneIn : {1u, 3u}) {
            matrix<double> dense = korvel::test::randomTable(generator, n, n, oneIn);
            for (int i = 0; i < n; ++i) {
                dense.setElement(
                    i, static_cast<int>((static_cast<unsigned>(i) * 7u + 3u) % static_cast<unsigned>(n)),
                    2.0);
            }
            matrixSparse m = sparseOf(dense);
            // A target with contents of its own: overwritten, erased, and doubled entries, too narrow or too
            // wide.
            matrix<double> old =
                korvel::test::randomTable(generator, n + static_cast<int>(generator() % 3) - 1,
                                          n + static_cast<int>(generator() % 3) - 1, 2);
            matrixSparse actual = sparseOf(old);
            if (!actual.values.empty()) {
                actual.values[generator() % actual.values.size()] = 0.0;
            }
            matrixSparse expected(actual);
            short int singular = 0;
            short int expectedSingular = 0;
            const int status = m.inverse1(&actual, singular, 0.0);
            ASSERT_EQ(status, korvel::reference::invertSparse(m, expected, expectedSingular, 0.0)) << n;
            ASSERT_EQ(singular, expectedSingular) << n;
            ASSERT_TRUE(sameStorage(actual, expected)) << n;
        }
    }
}

TEST(SparseInverse, EqualsThePlainRoutineOnNumbersOutOfRange)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    std::mt19937_64 generator(32);
    int succeeded = 0;
    for (int round = 0; round < 600; ++round) {
        const int n = 1 + static_cast<int>(generator() % 14);
        matrix<double> dense =
            korvel::test::randomTable(generator, n, n, 1 + static_cast<unsigned>(generator() % 3));
        constexpr std::array<double, 6> special = {infinity, -infinity, notANumber,
                                                   1e308,    1e-310,    MISSING_DBL};
        for (std::uint64_t count = generator() % 3; count > 0; --count) {
            dense.data[generator() % dense.nbElem] = special[generator() % special.size()];
        }
        matrixSparse m = sparseOf(dense);
        matrixSparse actual(n, n, 0.0, false);
        matrixSparse expected(actual);
        short int singular = 0;
        short int expectedSingular = 0;
        const int status = m.inverse1(&actual, singular, 0.0);
        ASSERT_EQ(status, korvel::reference::invertSparse(m, expected, expectedSingular, 0.0)) << round;
        ASSERT_EQ(singular, expectedSingular) << round;
        ASSERT_TRUE(sameStorage(actual, expected)) << round;
        succeeded += status == 0 ? 1 : 0;
    }
    EXPECT_GT(succeeded, 100);
}

TEST(SparseInverse, LeavesASmallResidual)
{
    std::mt19937_64 generator(33);
    for (const int n : {1, 2, 3, 5, 10, 50, 101}) {
        matrix<double> dense = korvel::test::randomTable(generator, n, n, 2);
        for (int i = 0; i < n; ++i) {
            dense.setElement(i, (i + 1) % n, 1.5);
        }
        inversion outcome = invert(dense);
        ASSERT_EQ(outcome.status, 0) << n;
        EXPECT_LT(residual(dense, outcome.result.to_matrix()), 30.0) << n;
    }
}

TEST(SparseInverse, TakesTheLastOfEqualPivots)
{
    // Both rows are pivot candidates of the same scaled size. If the last one is taken, the second pivot is 1
    // - 0.3 * 3 and not -(0.3 * 3 - 1) by way of 1/3, which differ in the last bits.
    const matrix<double> dense = tableOf({{1.0, 0.1}, {3.0, 3.0}});
    inversion outcome = invert(dense);
    ASSERT_EQ(outcome.status, 0);
    // Row 1 becomes the first: factor 1/3, second pivot 0.1 - (1/3) * 3.
    const double second = 0.1 - (1.0 / 3.0) * 3.0;
    const double x10 = 1.0 / second;
    EXPECT_SAME_BITS(outcome.result.getElement(1, 0), x10);
    EXPECT_SAME_BITS(outcome.result.getElement(0, 0), (0.0 - 3.0 * x10) / 3.0);
}

TEST(SparseInverse, WritesInColumnOrderByTheSetter)
{
    const inversion outcome = invert(tableOf({{2.0, 0.0, 1.0}, {0.0, 4.0, 0.0}, {1.0, 0.0, 2.0}}));
    ASSERT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.result.nnz, 5) << "zeros are not stored";
    EXPECT_EQ(outcome.result.rowStart, (std::vector<int>{0, 2, 3, 5}));
    EXPECT_EQ(outcome.result.colIndex, (std::vector<int>{2, 0, 1, 2, 0})) << "later columns in front";
}

TEST(SparseInverse, DropsResultsBelowTheThresholdOfStoring)
{
    const inversion outcome = invert(tableOf({{1e18, 0.0, 0.0}, {0.0, 2e18, 0.0}, {0.0, 0.0, -1.0}}));
    ASSERT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.result.getElement(0, 0), 1.0 / 1e18);
    EXPECT_EQ(outcome.result.nnz, 1 + (1.0 / 1e18 < 1e-18 ? 0 : 1));
    EXPECT_EQ(outcome.result.getElement(1, 1), 0.0);
}

TEST(SparseInverse, FailsOnARowOfZeros)
{
    matrixSparse m = sparseOf(tableOf({{1.0, 2.0}, {0.0, 0.0}}));
    matrixSparse target(2, 2, 0.0, false);
    target.setElement(1, 1, 9.0);
    const matrixSparse before(target);
    short int singular = 0;
    EXPECT_EQ(m.inverse1(&target, singular, 0.0), -1);
    EXPECT_EQ(singular, -1);
    EXPECT_TRUE(sameStorage(target, before));
}

TEST(SparseInverse, FailsOnAPivotNotAboveTheThreshold)
{
    for (const auto& dense :
         {tableOf({{1.0, 2.0}, {2.0, 4.0}}), tableOf({{1.0, 0.0, 2.0}, {3.0, 0.0, 4.0}, {5.0, 0.0, 7.0}})}) {
        const inversion outcome = invert(dense);
        EXPECT_EQ(outcome.status, -1);
        EXPECT_EQ(outcome.singular, -1);
        EXPECT_EQ(outcome.result.nnz, 0);
    }
}

TEST(SparseInverse, TheToleranceChoosesBetweenTwoThresholds)
{
    const auto status = [](double first, double last, double tol) {
        return invert(tableOf({{first, 0.0}, {0.0, last}}), tol).status;
    };
    constexpr double loose = 1e-8;
    for (const double tol : {1e-300, 1e-8, 1.0, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(status(loose, 1.0, tol), -1) << tol;
        EXPECT_EQ(status(1.0, loose, tol), -1) << tol;
        EXPECT_EQ(status(std::nextafter(loose, 1.0), 1.0, tol), 0) << tol;
        EXPECT_EQ(status(1.0, -std::nextafter(loose, 1.0), tol), 0) << tol;
    }
    for (const double tol : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(status(epsilon, 1.0, tol), -1) << tol;
        EXPECT_EQ(status(1.0, epsilon, tol), -1) << tol;
        EXPECT_EQ(status(std::nextafter(epsilon, 1.0), 1.0, tol), 0) << tol;
        EXPECT_EQ(status(1.0, std::nextafter(epsilon, 1.0), tol), 0) << tol;
    }
}

TEST(SparseInverse, TakesTheFirstRowsColumnsOfATableThatIsNotSquare)
{
    matrixSparse wide = sparseOf(tableOf({{2.0, 0.0, 7.0}, {0.0, 4.0, 8.0}}));
    matrixSparse target(2, 2, 0.0, false);
    short int singular = 0;
    EXPECT_EQ(wide.inverse1(&target, singular, 0.0), 0);
    EXPECT_EQ(target.getElement(0, 0), 0.5);
    EXPECT_EQ(target.getElement(1, 1), 0.25);
    matrixSparse tall = sparseOf(tableOf({{2.0, 0.0}, {0.0, 4.0}, {1.0, 1.0}}));
    matrixSparse large(3, 3, 0.0, false);
    EXPECT_EQ(tall.inverse1(&large, singular, 0.0), -1) << "the third column is one of zeros";
}

TEST(SparseInverse, FillsOnlyWhatTheTargetHasRoomFor)
{
    matrixSparse m = sparseOf(tableOf({{0.0, 0.0, 1.0}, {0.0, 2.0, 0.0}, {4.0, 0.0, 0.0}}));
    matrixSparse small(1, 1, 0.0, false);
    short int singular = 0;
    EXPECT_EQ(m.inverse1(&small, singular, 0.0), 0);
    EXPECT_EQ(small.nnz, 0) << "its only element is 0";
    matrixSparse empty;
    EXPECT_EQ(m.inverse1(&empty, singular, 0.0), 0);
    EXPECT_TRUE(sameStorage(empty, {}));
    matrixSparse large(4, 4, 0.0, false);
    large.setElement(3, 3, 7.0);
    EXPECT_EQ(m.inverse1(&large, singular, 0.0), 0);
    EXPECT_EQ(large.getElement(0, 2), 0.25);
    EXPECT_EQ(large.getElement(3, 3), 7.0);
    EXPECT_EQ(large.nnz, 4);
}

TEST(SparseInverse, MayReplaceItself)
{
    const matrix<double> dense = tableOf({{0.0, 2.0, 1.0}, {4.0, 0.0, 0.0}, {1.0, 0.0, 8.0}});
    matrixSparse m = sparseOf(dense);
    matrixSparse expected(m);
    short int singular = 0;
    ASSERT_EQ(korvel::reference::invertSparse(m, expected, singular, 0.0), 0);
    ASSERT_EQ(m.inverse1(&m, singular, 0.0), 0);
    EXPECT_TRUE(sameStorage(m, expected));
}

TEST(SparseInverse, KeepsTheSurplusOfAReservedTarget)
{
    matrixSparse m = sparseOf(tableOf({{2.0, 0.0}, {0.0, 4.0}}));
    matrixSparse target(2, 2, 0.0, true);
    short int singular = 0;
    ASSERT_EQ(m.inverse1(&target, singular, 0.0), 0);
    EXPECT_EQ(target.nnz, 6);
}

TEST(SparseInverse, HasNothingToDoWithoutRows)
{
    matrixSparse m;
    matrixSparse target(2, 2, 0.0, false);
    target.setElement(0, 0, 3.0);
    const matrixSparse before(target);
    short int singular = 5;
    EXPECT_EQ(m.inverse1(&target, singular, 0.0), 0);
    matrixSparse fewerThanNone(-1, 3, 0.0, false);
    EXPECT_EQ(fewerThanNone.inverse1(&target, singular, 0.0), 0);
    EXPECT_EQ(singular, 5);
    EXPECT_TRUE(sameStorage(target, before));
}

TEST(SparseInverse, RaisesWhenMemoryIsShort)
{
    matrixSparse huge(65537, 1, 0.0, false); // its square has 131073 elements in 32 bits
    matrixSparse target(2, 2, 0.0, false);
    short int singular = 5;
    EXPECT_THROW(huge.inverse1(&target, singular, 0.0), std::bad_alloc);

    matrixSparse m = sparseOf(tableOf({{2.0, 1.0}, {0.0, 4.0}}));
    for (int allowed = 0;; ++allowed) {
        ASSERT_LT(allowed, 50);
        try {
            const korvel::test::allocation_limit limit(allowed);
            EXPECT_EQ(m.inverse1(&target, singular, 0.0), 0);
            EXPECT_GT(allowed, 5);
            break;
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(target.nnz, 0);
        }
    }
    EXPECT_EQ(singular, 5);
    EXPECT_EQ(target.nnz, 3);
}
