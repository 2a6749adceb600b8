#include "linalg/lu_inverse.h"

#include "linalg/inverse1.h"
#include "linalg/kernels/instruction_sets.h"
#include "linalg/square_tables.h"
#include "reference/lu_inverse.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

/** The status of a table, with a check that error flag and result agree with it. */
int statusOf(matrix<double> A, double tolerance)
{
    matrix<double> inverse(A.nbrows, A.nbrows, 9.0);
    short int error = 5;
    const int status = Inverse1(&A, &inverse, &error, tolerance);
    EXPECT_EQ(error, status == 0 ? 5 : -1);
    if (status != 0) {
        EXPECT_TRUE(std::all_of(inverse.data, inverse.data + inverse.nbElem, [](double x) {
            return x == 9.0;
        })) << "a result that failed is left alone";
    }
    return status;
}

/** Puts an infinity or a NaN into some cells of the table. */
void spoil(random_cells& cells, matrix<double>& table)
{
    for (int repeat = cells.integer(0, 3); repeat > 0 && table.nbElem != 0; --repeat) {
        const int cell = cells.integer(0, static_cast<int>(table.nbElem) - 1);
        table.data[cell] = cells.integer(0, 1) == 0 ? infinite : notANumber;
    }
}

} // namespace

TEST(LUInverse, IsThePlainOne)
{
    int failures = 0;
    int nans = 0;
    forSquareTables({0, 1, 2, 3, 4, 5, 7, 8, 9, 16, 17, 33, 65}, [&](random_cells& cells, int n) {
        for (int repeat = 0; repeat < (n < 6 ? 40 : 2); ++repeat) {
            matrix<double> A = squareTable(cells, n);
            spoil(cells, A);
            const matrix<double> before = squareTable(cells, n);
            matrix<double> expected(before);
            short int expectedError = 3;
            const double tolerance = cells.integer(-1, 1);
            const int expectedStatus = plainInverse1(A, expected, expectedError, tolerance);
            for (const auto set : setsOfThisProcessor()) {
                const korvel::kernels::forced_set forced(set);
                matrix<double> actual(before);
                short int error = 3;
                ASSERT_EQ(Inverse1(&A, &actual, &error, tolerance), expectedStatus);
                ASSERT_EQ(error, expectedError);
                expectSame(actual, expected);
            }
            failures += expectedStatus != 0;
            nans += expectedStatus == 0 && expected.nbElem != 0 && std::isnan(expected.data[0]);
        }
    });
    EXPECT_GT(failures, 10);
    EXPECT_GT(nans, 10);
}

TEST(LUInverse, OfAListOfColumnsIsThatOfTheTable)
{
    forSquareTables({0, 1, 2, 3, 5, 9}, [](random_cells& cells, int n) {
        random_chunks<double> columns(cells, n, [n](int) { return n; });
        const int chunks = cells.integer(0, 2) == 0 ? std::max(n - 1, 0) : n;
        matrix<double> table(n, n, -1.0);
        for (int j = 0; j < chunks; ++j) {
            for (int i = 0; i < n; ++i) {
                table.data[i + n * j] = columns[j][i];
            }
        }
        matrix<double> actual(n, n, 9.0);
        matrix<double> expected(n, n, 9.0);
        short int error = 0;
        short int expectedError = 0;
        ASSERT_EQ(Inverse1SPV(columns.get(), &actual, n, chunks, error, 1e-12),
                  plainInverse1(table, expected, expectedError, 1e-12));
        ASSERT_EQ(error, expectedError);
        expectSame(actual, expected);
    });
}

TEST(LUInverse, LooksAtTheSignOfTheToleranceAlone)
{
    const matrix<double> small = tableOf({{1e-10, 0}, {0, 1}});
    for (const double tolerance : {1e-300, 1e-12, 1e-9, 1.0, infinite}) {
        EXPECT_EQ(statusOf(small, tolerance), -1) << tolerance;
    }
    for (const double tolerance : {0.0, -0.0, -1.0, -infinite, notANumber}) {
        EXPECT_EQ(statusOf(small, tolerance), 0) << tolerance;
    }
}

TEST(LUInverse, FailsAtAPivotThatEqualsTheLimit)
{
    constexpr double epsilon = 2.220446049250313e-16;
    for (const double sign : {1.0, -1.0}) {
        for (const bool last : {false, true}) {
            const auto withPivot = [&](double x) {
                return last ? tableOf({{1, 0}, {0, sign * x}}) : tableOf({{sign * x, 0}, {0, 1}});
            };
            EXPECT_EQ(statusOf(withPivot(1e-8), 1.0), -1);
            EXPECT_EQ(statusOf(withPivot(std::nextafter(1e-8, 1.0)), 1.0), 0);
            EXPECT_EQ(statusOf(withPivot(epsilon), 0.0), -1);
            EXPECT_EQ(statusOf(withPivot(std::nextafter(epsilon, 1.0)), 0.0), 0);
        }
    }
}

TEST(LUInverse, FailsAtARowOfZeros)
{
    EXPECT_EQ(statusOf(tableOf({{1, 2}, {0, 0}}), 0.0), -1);
    EXPECT_EQ(statusOf(tableOf({{0}}), 0.0), -1);
    EXPECT_EQ(statusOf(tableOf({{notANumber, 1}, {notANumber, 1}}), 0.0), -1) << "a first column of NaN";
    EXPECT_EQ(statusOf(tableOf({{1, 2}, {2, 4}}), 0.0), -1);
    EXPECT_EQ(statusOf(tableOf({{0, 1}, {1, 0}}), 1.0), 0) << "rows are swapped";
    EXPECT_EQ(statusOf(matrix<double>(0, 0, 0.0), 1.0), 0) << "nothing to invert";
}

TEST(LUInverse, LeavesTheTableAndMayBeWrittenOverIt)
{
    matrix<double> A = tableOf({{0, 2}, {4, 0}});
    const matrix<double> before(A);
    matrix<double> inverse(2, 2, 0.0);
    short int error = 0;
    EXPECT_EQ(Inverse1(&A, &inverse, &error, 1e-12), 0);
    EXPECT_TRUE(std::equal(A.data, A.data + 4, before.data));
    EXPECT_EQ(std::vector<double>(inverse.data, inverse.data + 4), (std::vector<double>{0, 0.5, 0.25, 0}));
    EXPECT_EQ(Inverse1(&A, &A, &error, 1e-12), 0);
    EXPECT_EQ(std::vector<double>(A.data, A.data + 4), (std::vector<double>{0, 0.5, 0.25, 0}));
}

TEST(LUInverse, LimitIsNotScaledToTheTable)
{
    std::mt19937_64 generator(31);
    for (const int n : {1, 2, 5, 50}) {
        EXPECT_EQ(statusOf(madeTable(table_kind::tiny, n, generator), 1e-12), -1) << "however regular";
    }
    EXPECT_EQ(statusOf(tableOf({{1.1e20, 1e20}, {1e20, 1e20 * 1e20 / 1.1e20}}), 1e-12), 0)
        << "what is left of the second pivot is rounding error";
}

TEST(LUInverse, InvertsAsWellAsLapackAsks)
{
    std::mt19937_64 generator(32);
    for (const table_kind kind : tableKinds) {
        for (const int n : tableOrders) {
            if ((kind == table_kind::hilbert && n > 10) || (kind == table_kind::tiny && n > 0)) {
                continue; // singular to working precision, and below the limit
            }
            matrix<double> A = madeTable(kind, n, generator);
            matrix<double> inverse(n, n, 0.0);
            short int error = 0;
            ASSERT_EQ(Inverse1(&A, &inverse, &error, 0.0), 0) << static_cast<int>(kind) << ' ' << n;
            EXPECT_LT(inverseResidual(A, inverse), lapackThreshold)
                << "kind " << static_cast<int>(kind) << ", order " << n;
        }
    }
}
