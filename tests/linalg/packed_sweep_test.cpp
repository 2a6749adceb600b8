#include "linalg/packed_sweep.h"

#include "linalg/square_tables.h"
#include "reference/sweeps.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

matrix<double> packedOf(const matrix<double>& table)
{
    matrix<double> packed(korvel::packedElements(table.nbrows), 1, 0.0);
    int k = 0;
    for (int i = 0; i < table.nbrows; ++i) {
        for (int j = 0; j <= i; ++j) {
            packed.data[k++] = table.getElement(i, j);
        }
    }
    return packed;
}

/** Sweeps all pivots and expects the negative inverse. */
double residualOfAllSweeps(const matrix<double>& table)
{
    const int n = table.nbrows;
    matrix<double> packed = packedOf(table);
    for (int k = 1; k <= n; ++k) {
        M_Sweep(&packed, n, k);
    }
    matrix<double> inverse(n, n, 0.0);
    int place = 0;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            inverse.setElement(i, j, -packed.data[place]);
            inverse.setElement(j, i, -packed.data[place++]);
        }
    }
    return inverseResidual(table, inverse);
}

/** A symmetric table as correlations are: ones on the diagonal, and smaller numbers beside it. */
matrix<double> unitDiagonal(int n, std::mt19937_64& generator)
{
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            const double x = i == j ? 1.0 : uniform(generator) / n;
            made.setElement(i, j, x);
            made.setElement(j, i, x);
        }
    }
    return made;
}

} // namespace

TEST(PackedSweep, IsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17, 33}, [](random_cells& cells, int n) {
        const int count = korvel::packedElements(n);
        matrix<double> actual =
            cells.integer(0, 3) == 0 ? nearTable<double>(cells, count, 1) : cells.values(count);
        matrix<double> expected = twinOf(actual);
        for (int repeat = 0; repeat < 3; ++repeat) {
            const int k = cells.integer(0, n + 1);
            EXPECT_EQ(M_Sweep(&actual, n, k), 0);
            plainPackedSweep(expected, n, k);
            expectSame(actual, expected);
        }
    });
}

TEST(PackedSweep, OfAllPivotsIsTheNegativeInverse)
{
    std::mt19937_64 generator(3);
    for (const int n : tableOrders) {
        EXPECT_LT(residualOfAllSweeps(unitDiagonal(n, generator)), lapackThreshold) << n;
    }
}

TEST(PackedSweep, OfLargeNumbersLosesWhatIsBelowTheLimit)
{
    // In units of 1e10 the elements of the inverse beside its diagonal fall below 1e-12, and become 0.
    std::mt19937_64 generator(3);
    matrix<double> table = unitDiagonal(50, generator);
    for (std::uint64_t k = 0; k < table.nbElem; ++k) {
        table.data[k] *= 1e10;
    }
    EXPECT_GT(residualOfAllSweeps(table), 1000 * lapackThreshold);
}

TEST(PackedSweep, OfAZeroPivotIsInfinite)
{
    matrix<double> packed = vectorOf<double>({0.0, 2.0, 3.0});
    M_Sweep(&packed, 2, 1);
    EXPECT_SAME_BITS(packed.data[0], -infinite);
    EXPECT_SAME_BITS(packed.data[1], infinite);
    EXPECT_SAME_BITS(packed.data[2], -infinite);
    packed.data[0] = -0.0;
    M_Sweep(&packed, 2, 1);
    EXPECT_SAME_BITS(packed.data[0], infinite);
}

TEST(PackedSweep, KeepsTheSignOfARowBesideANegativePivot)
{
    // With the pivot 2: -1/2, 4/2, and 9 - 4 * 2. With -2: +1/2, still 4/2, and 9 + 4 * 2.
    matrix<double> positive = vectorOf<double>({2.0, 4.0, 9.0});
    M_Sweep(&positive, 2, 1);
    EXPECT_SAME_BITS(positive.data[0], -0.5);
    EXPECT_SAME_BITS(positive.data[1], 2.0);
    EXPECT_SAME_BITS(positive.data[2], 1.0);
    matrix<double> negative = vectorOf<double>({-2.0, 4.0, 9.0});
    M_Sweep(&negative, 2, 1);
    EXPECT_SAME_BITS(negative.data[0], 0.5);
    EXPECT_SAME_BITS(negative.data[1], 2.0);
    EXPECT_SAME_BITS(negative.data[2], 17.0);
}

TEST(PackedSweep, StoresAZeroForWhatIsBelowTheLimit)
{
    const auto rest = [](double x) {
        matrix<double> packed = vectorOf<double>({1.0, 0.0, x});
        M_Sweep(&packed, 2, 1);
        return packed.data[2];
    };
    EXPECT_SAME_BITS(rest(std::nextafter(1e-12, 0.0)), 0.0);
    EXPECT_SAME_BITS(rest(-std::nextafter(1e-12, 0.0)), 0.0) << "and not -0.0";
    EXPECT_SAME_BITS(rest(1e-12), 1e-12);
    EXPECT_SAME_BITS(rest(-1e-12), -1e-12);
    matrix<double> packed = vectorOf<double>({1.0, 1e-13, 5.0});
    M_Sweep(&packed, 2, 1);
    EXPECT_SAME_BITS(packed.data[1], 1e-13) << "the pivot's own column is not cleaned";
}

TEST(PackedSweep, IsNotExactlyReversible)
{
    matrix<double> packed = vectorOf<double>({1.0, 1.0, 1.0 + 1e-13});
    M_Sweep(&packed, 2, 1);
    EXPECT_SAME_BITS(packed.data[2], 0.0);
    M_Sweep(&packed, 2, 1);
    EXPECT_SAME_BITS(packed.data[2], 1.0);
}

TEST(PackedSweep, CountsTheElementsOfAPackedTable)
{
    EXPECT_EQ(korvel::packedElements(-3), 0);
    EXPECT_EQ(korvel::packedElements(0), 0);
    EXPECT_EQ(korvel::packedElements(3), 6);
    EXPECT_EQ(korvel::packedElements(65535), 2147450880);
    EXPECT_EQ(korvel::packedElements(100000), 2147450880);
}
