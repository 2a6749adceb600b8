#include "linalg/g2_sweep.h"

#include "linalg/square_tables.h"
#include "reference/sweeps.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

/** Tolerances that leave all pivots, some of them, or none. */
constexpr std::array tolerances{0.0, 1e-12, 150.0, infinite, notANumber, -1.0};

double someTolerance(random_cells& cells)
{
    return tolerances[static_cast<std::size_t>(cells.integer(0, static_cast<int>(tolerances.size()) - 1))];
}

} // namespace

TEST(G2Sweep, OfOneStepIsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17}, [](random_cells& cells, int n) {
        matrix<double> actual = squareTable(cells, n);
        matrix<double> expected = twinOf(actual);
        const int k = cells.integer(1, n + 1);
        const double tolerance = someTolerance(cells);
        G2SweepStep(&actual, n, k, tolerance);
        plainSweepStep(expected, n, k, tolerance);
        expectSame(actual, expected);
    });
}

TEST(G2Sweep, OfRawNumbersIsThePlainOneByColumns)
{
    forSquareTables({1, 2, 3, 5, 8, 9, 17}, [](random_cells& cells, int n) {
        const matrix<double> table = cells.values(n * n);
        std::vector<double> expected(table.data, table.data + table.nbElem);
        std::vector<double> actual(expected);
        for (int k = 1; k <= n; ++k) {
            const double tolerance = someTolerance(cells);
            G2SweepStep(actual.data(), n, k, tolerance);
            plainRawSweepStep(expected, n, k, tolerance);
        }
        for (std::size_t i = 0; i < expected.size(); ++i) {
            ASSERT_SAME_BITS(actual[i], expected[i]) << i;
        }
    });
}

TEST(G2Sweep, OfASparseTableIsThePlainOneEntryForEntry)
{
    std::mt19937_64 generator(5);
    for (int repeat = 0; repeat < 60; ++repeat) {
        const int n = repeat % 7;
        matrix<double> dense = randomTable(generator, n, n, 2);
        matrixSparse actual(&dense);
        matrixSparse expected(&dense);
        for (int k = 1; k <= n; ++k) {
            const double tolerance = repeat % 3 == 0 ? 0.25 : 1e-12;
            G2SweepStep(&actual, n, k, tolerance);
            plainSweepStep(expected, n, k, tolerance);
            ASSERT_TRUE(sameStorage(actual, expected)) << repeat << ", pivot " << k;
        }
    }
}

TEST(G2Sweep, OfEveryPivotIsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17, 24, 31, 48}, [](random_cells& cells, int n) {
        matrix<double> A = squareTable(cells, n);
        matrix<double> actual = squareTable(cells, n);
        matrix<double> expected = twinOf(actual);
        const double tolerance = someTolerance(cells);
        M_InverseG2(&A, n, tolerance, &actual);
        plainInverseG2(A, n, tolerance, expected);
        expectSame(actual, expected);
    });
}

TEST(G2Sweep, OfSelectedPivotsIsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17}, [](random_cells& cells, int n) {
        matrix<double> A = squareTable(cells, n);
        matrix<double> actual = squareTable(cells, n);
        matrix<double> expected = twinOf(actual);
        matrix<int> selected = cells.integers(n, -1, 2);
        const auto zeroOthers = static_cast<short int>(cells.integer(-1, 1));
        const double tolerance = someTolerance(cells);
        M_InverseG2Selective(&A, n, &selected, tolerance, &actual, zeroOthers);
        plainInverseG2Selective(A, n, selected, tolerance, expected, zeroOthers);
        expectSame(actual, expected);
    });
}

TEST(G2Sweep, OfALabelledTableIsThatOfTheTable)
{
    forSquareTables({0, 1, 2, 3, 5, 9}, [](random_cells& cells, int n) {
        matrix<double> A(n, n, 0.0);
        fillRandomly(cells, A);
        cST_MVect<double> from(n, n);
        cST_MVect<double> to(n, n);
        const auto columnOf = [](cST_MVect<double>& record, int j) -> matrix<double>& {
            return record.Vectors[static_cast<std::size_t>(j)].Vect;
        };
        for (int j = 0; j < n; ++j) {
            std::copy_n(A.data + n * j, n, columnOf(from, j).data);
        }
        const double tolerance = someTolerance(cells);
        matrix<double> expected(n, n, 0.0);
        plainInverseG2(A, n, tolerance, expected);
        M_InverseG2_ST(from, n, tolerance, to);
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < n; ++i) {
                ASSERT_SAME_BITS(columnOf(to, j).data[i], expected.getElement(i, j));
            }
        }
        EXPECT_EQ(to.nbcols, n);
    });
}

TEST(G2Sweep, OfALabelledTableReachesNoColumnThatIsNotThere)
{
    cST_MVect<double> from(2, 1);
    from.Vectors[0].Vect.data[0] = 2.0;
    from.Vectors[0].Vect.data[1] = 4.0;
    cST_MVect<double> to(1, 1);
    M_InverseG2_ST(from, 2, 1e-12, to);
    // The first pivot is 2; what lies outside the result is one spare number for each column.
    EXPECT_SAME_BITS(to.Vectors[0].Vect.data[0], 0.5);
}

TEST(G2Sweep, TakesAPivotThatEqualsTheTolerance)
{
    for (const double d : {0.5, -0.5}) {
        matrix<double> A = tableOf({{d}});
        matrix<double> G(1, 1, 9.0);
        M_InverseG2(&A, 1, 0.5, &G);
        EXPECT_SAME_BITS(G.data[0], 1.0 / d);
        M_InverseG2(&A, 1, std::nextafter(0.5, 1.0), &G);
        EXPECT_SAME_BITS(G.data[0], 0.0);
        double raw = d;
        G2SweepStep(&raw, 1, 1, 0.5);
        EXPECT_SAME_BITS(raw, 1.0 / d);
        raw = d;
        G2SweepStep(&raw, 1, 1, std::nextafter(0.5, 1.0));
        EXPECT_SAME_BITS(raw, 0.0);
        matrixSparse sparse(&A);
        G2SweepStep(&sparse, 1, 1, 0.5);
        EXPECT_SAME_BITS(sparse.getElement(0, 0), 1.0 / d);
        matrixSparse passedOver(&A);
        G2SweepStep(&passedOver, 1, 1, std::nextafter(0.5, 1.0));
        EXPECT_EQ(passedOver.nnz, 0);
    }
}

TEST(G2Sweep, TakesANaNForAPivot)
{
    matrix<double> A = tableOf({{notANumber, 1}, {1, 1}});
    G2SweepStep(&A, 2, 1, 1e-12);
    EXPECT_TRUE(std::isnan(A.getElement(0, 0)) && std::isnan(A.getElement(1, 1)));
}

TEST(G2Sweep, PassesOverAPivotAndGoesOn)
{
    // 4 and 9 on the diagonal, and a row that is a multiple of the first.
    matrix<double> A = tableOf({{4, 8, 0}, {8, 16, 0}, {0, 0, 9}});
    matrix<double> G(3, 3, 5.0);
    M_InverseG2(&A, 3, 1e-12, &G);
    EXPECT_EQ(std::vector<double>(G.data, G.data + 9),
              (std::vector<double>{0.25, 0, 0, 0, 0, 0, 0, 0, 1.0 / 9.0}));
}

TEST(G2Sweep, OfRawNumbersSkipsElementsOfThePivotRowThatAreNoLargerThanTheTolerance)
{
    const std::vector<double> cells{4, 1, 0.5, 3};
    std::vector<double> raw(cells);
    G2SweepStep(raw.data(), 2, 1, 0.5);
    // t = 0.5 is not larger: the second column keeps its 3, and only t itself is divided.
    EXPECT_EQ(raw, (std::vector<double>{0.25, -0.25, 0.125, 3}));
    matrix<double> table = tableOf({{4, 0.5}, {1, 3}});
    G2SweepStep(&table, 2, 1, 0.5);
    EXPECT_SAME_BITS(table.getElement(1, 1), 3 - 0.125);
    raw = cells;
    G2SweepStep(raw.data(), 2, 1, std::nextafter(0.5, 0.0));
    EXPECT_EQ(raw, (std::vector<double>{0.25, -0.25, 0.125, 3 - 0.125}));
}

TEST(G2Sweep, MultipliesByAReciprocalOnRawNumbersAndDividesInATable)
{
    std::vector<double> raw{3, 5, 0, 0};
    G2SweepStep(raw.data(), 2, 1, 0.0);
    matrix<double> table = tableOf({{3, 0}, {5, 0}});
    G2SweepStep(&table, 2, 1, 0.0);
    EXPECT_SAME_BITS(raw[1], 5 * (-1.0 / 3));
    EXPECT_SAME_BITS(table.getElement(1, 0), -5.0 / 3);
    EXPECT_NE(raw[1], table.getElement(1, 0)) << "the two differ in the last place";
}

TEST(G2Sweep, DropsFromASparseTableWhatIsNoLargerThanAZero)
{
    matrix<double> dense = tableOf({{4, 2}, {2, 1}});
    matrixSparse sparse(&dense);
    G2SweepStep(&sparse, 2, 1, 1e-12);
    EXPECT_EQ(sparse.nnz, 3) << "1 - 2 * 0.5 is not stored";
    EXPECT_SAME_BITS(sparse.getElement(1, 0), -0.5);
}

TEST(G2Sweep, OfSelectedPivotsSelectsWhereANumberIsOne)
{
    matrix<double> A = tableOf({{2, 1}, {1, 4}});
    matrix<double> G(2, 2, 0.0);
    matrix<int> selected = vectorOf<int>({1, -1});
    M_InverseG2Selective(&A, 2, &selected, 1e-12, &G, 0);
    EXPECT_SAME_BITS(G.getElement(1, 1), 3.5) << "-1 does not select";
    M_InverseG2Selective(&A, 2, &selected, 1e-12, &G, 1);
    EXPECT_SAME_BITS(G.getElement(1, 1), 3.5) << "and 1 does not zero";
    M_InverseG2Selective(&A, 2, &selected, 1e-12, &G, -1);
    EXPECT_SAME_BITS(G.getElement(0, 0), 0.5);
    EXPECT_SAME_BITS(G.getElement(0, 1), 0.0);
    EXPECT_SAME_BITS(G.getElement(1, 0), 0.0);
    EXPECT_SAME_BITS(G.getElement(1, 1), 0.0);
}

TEST(G2Sweep, MayWorkInPlace)
{
    matrix<double> A = tableOf({{2, 1}, {1, 4}});
    matrix<double> G(2, 2, 0.0);
    M_InverseG2(&A, 2, 1e-12, &G);
    M_InverseG2(&A, 2, 1e-12, &A);
    expectSame(A, G);
}

TEST(G2Sweep, InvertsAsWellAsLapackAsks)
{
    std::mt19937_64 generator(11);
    for (const table_kind kind : tableKinds) {
        for (const int n : tableOrders) {
            if ((kind == table_kind::hilbert && n > 10) || kind == table_kind::random) {
                continue; // the cross products below replace random tables
            }
            matrix<double> A = madeTable(kind, n, generator);
            if (kind == table_kind::tiny || kind == table_kind::huge) {
                for (int i = 0; i < n; ++i) {
                    A.setElement(i, i, A.getElement(i, i) * 4.0 * n);
                }
            }
            matrix<double> G(n, n, 0.0);
            M_InverseG2(&A, n, 0.0, &G);
            EXPECT_LT(inverseResidual(A, G), lapackThreshold)
                << "kind " << static_cast<int>(kind) << ", order " << n;
        }
    }
    for (const int n : tableOrders) {
        matrix<double> A = crossProduct(madeTable(table_kind::random, n, generator));
        matrix<double> G(n, n, 0.0);
        M_InverseG2(&A, n, 0.0, &G);
        EXPECT_LT(inverseResidual(A, G), lapackThreshold) << "cross product of order " << n;
    }
}

TEST(G2Sweep, OfATableWithoutFullRankIsAGeneralisedInverse)
{
    std::mt19937_64 generator(12);
    for (const int n : {2, 3, 5, 10, 50}) {
        matrix<double> x = madeTable(table_kind::random, n, generator);
        for (int i = 0; i < n; ++i) {
            x.setElement(i, n - 1, x.getElement(i, 0) + (n > 2 ? x.getElement(i, 1) : 0.0));
        }
        const matrix<double> A = crossProduct(x);
        matrix<double> from(A);
        matrix<double> G(n, n, 0.0);
        M_InverseG2(&from, n, 1e-8, &G);
        for (int i = 0; i < n; ++i) {
            EXPECT_SAME_BITS(G.getElement(n - 1, i), 0.0);
            EXPECT_SAME_BITS(G.getElement(i, n - 1), 0.0);
        }
        const double normA = largestColumnSum(A);
        const double normG = largestColumnSum(G);
        EXPECT_LT(scaledDistance(timesTable(timesTable(A, G), A), A, normA * normA * normG), lapackThreshold);
        EXPECT_LT(scaledDistance(timesTable(timesTable(G, A), G), G, normA * normG * normG), lapackThreshold);
    }
}

TEST(G2Sweep, ToleranceIsNotScaledToTheTable)
{
    // A regular table of tiny numbers has no pivot, and one of huge numbers and rank 1 has two.
    matrix<double> tiny = tableOf({{3e-13, 1e-13}, {1e-13, 2e-13}});
    matrix<double> G(2, 2, 9.0);
    M_InverseG2(&tiny, 2, 1e-12, &G);
    for (int k = 0; k < 4; ++k) {
        EXPECT_SAME_BITS(G.data[k], 0.0);
    }
    matrix<double> huge = tableOf({{7e20, 1e20}, {1e20, 1e20 * 1e20 / 7e20}});
    M_InverseG2(&huge, 2, 1e-12, &G);
    EXPECT_NE(G.getElement(1, 1), 0.0) << "what is left of the second pivot is rounding error";
}
