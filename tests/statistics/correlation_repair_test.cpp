#include "statistics/correlation_repair.h"

#include "linalg/symmetric_eigen.h"
#include "statistics/repair_tables.h"
#include "support/column_tables.h"
#include "support/correlation_tables.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

using namespace korvel::test;

namespace
{

/** The columns of a symmetric table from the diagonal down. */
matrix3D<matrix<double>> triangleOf(const matrix<double>& table)
{
    matrix3D<matrix<double>> made;
    for (int j = 0; j < table.nbcols; ++j) {
        made.chunks.emplace_back(table.nbrows - j, 1, 0.0);
        for (int i = j; i < table.nbrows; ++i) {
            made.setElement(j, i - j, table.getElement(i, j));
        }
    }
    return made;
}

void expectTriangle(matrix3D<matrix<double>>& actual, const matrix<double>& expected)
{
    for (int j = 0; j < expected.nbcols; ++j) {
        for (int i = j; i < expected.nbrows; ++i) {
            ASSERT_SAME_BITS(actual.getElement(j, i - j), expected.getElement(i, j)) << i << ", " << j;
        }
    }
}

/** Repairs a table in all its forms, holds them to be the same, and returns the result. */
matrix<double> repaired(const matrix<double>& table)
{
    const int n = table.nbrows;
    matrix<double> dense(table);
    EXPECT_EQ(M_CorrMatFromSymMat(&dense, n), 0);
    column_chunks chunks(table);
    EXPECT_EQ(M_CorrMatFromSymMatSPV(chunks.get(), n), 0);
    const std::vector<double> cells = chunks.cells();
    for (std::size_t k = 0; k < cells.size(); ++k) {
        EXPECT_SAME_BITS(cells[k], dense.data[k]);
    }
    matrix3D<matrix<double>> triangle = triangleOf(table);
    EXPECT_EQ(M_CorrMatFromSymMatSPV_T(&triangle, n), 0);
    expectTriangle(triangle, dense);
    return dense;
}

/** The table that a reference is for. */
matrix<double> inputOf(const std::string& name, int n)
{
    return name == "higham3" ? bandOf(n, 1, 1) : name == "higham4" ? bandOf(n, 2, -1) : randomIndefinite(n);
}

double smallestEigenvalue(const matrix<double>& table)
{
    matrix<double> values;
    matrix<double> vectors;
    EXPECT_EQ(M_Eigen(table, values, vectors, table.nbrows, -1), 0);
    return values[table.nbrows - 1];
}

} // namespace

TEST(NearestCorrelation, IsThatOfFiftyDigits)
{
    const auto tables = readNearestTables();
    ASSERT_EQ(tables.size(), 6U);
    for (const nearest_table& reference : tables) {
        SCOPED_TRACE(reference.name);
        const matrix<double> made = repaired(inputOf(reference.name, reference.n));
        double toNearest = 0.0;
        double toIterated = 0.0;
        for (const nearest_cell& cell : reference.cells) {
            const double found = made.getElement(cell.i, cell.j);
            toNearest = std::max(toNearest, std::fabs(found - cell.nearest));
            toIterated = std::max(toIterated, std::fabs(found - cell.iterated));
        }
        EXPECT_LT(toNearest, 1e-5);
        EXPECT_LT(toIterated, 1e-14);
    }
}

TEST(NearestCorrelation, OfThePublishedTables)
{
    // Higham (2002) prints four digits.
    const matrix<double> three = repaired(bandOf(3, 1, 1));
    EXPECT_NEAR(three.getElement(1, 0), 0.7607, 5e-5);
    EXPECT_NEAR(three.getElement(2, 0), 0.1573, 5e-5);
    EXPECT_NEAR(three.getElement(2, 1), 0.7607, 5e-5);
    const matrix<double> four = repaired(bandOf(4, 2, -1));
    EXPECT_NEAR(four.getElement(1, 0), -0.8084, 5e-5);
    EXPECT_NEAR(four.getElement(2, 0), 0.1916, 5e-5);
    EXPECT_NEAR(four.getElement(3, 0), 0.1068, 5e-5);
    EXPECT_NEAR(four.getElement(2, 1), -0.6562, 5e-5);
}

TEST(NearestCorrelation, IsThatOfThePlainSteps)
{
    for (const int n : {2, 3, 4, 5, 9, 17, 33}) {
        SCOPED_TRACE(n);
        for (const matrix<double>& table :
             {bandOf(n, 1, 1.2), bandOf(n, 3, -2), randomIndefinite(std::max(n, 5)), bandOf(n, 2, 0.5)}) {
            matrix<double> expected(table);
            plainRepair(expected, table.nbrows);
            expectSymmetricCells(repaired(table), expected);
        }
    }
}

TEST(NearestCorrelation, StopsWhereTheChangeIsOneMillionthAndNotBefore)
{
    // The last change of the first table is 0.9999 millionths, and that of the second one goes on
    // from 1.0001.
    for (const double beside : {1.7772, 1.7773}) {
        const matrix<double> table = bandOf(3, 1, beside);
        matrix<double> expected(table);
        EXPECT_EQ(plainRepair(expected, 3), beside == 1.7772 ? 25 : 26);
        expectSymmetricCells(repaired(table), expected);
    }
}

TEST(NearestCorrelation, OverflowsAsThePlainStepsDo)
{
    // The first eigenvalue is infinite and so is the projection; infinity times the zeros of the weights is
    // NaN.
    const matrix<double> table = bandOf(2, 9.0000000000000045e+307, 9.0000000000000025e+307);
    const matrix<double> made = repaired(table);
    EXPECT_SAME_BITS(made.getElement(0, 0), 1.0);
    EXPECT_SAME_BITS(made.getElement(1, 0), notANumber);
    matrix<double> expected(table);
    plainRepair(expected, 2);
    expectSymmetricCells(made, expected);
}

TEST(NearestCorrelation, TakesAsManyStepsAsInFiftyDigits)
{
    for (const nearest_table& reference : readNearestTables()) {
        matrix<double> table = inputOf(reference.name, reference.n);
        EXPECT_EQ(plainRepair(table, reference.n), reference.steps) << reference.name;
    }
}

TEST(NearestCorrelation, HasADiagonalOfOnesAndNoEigenvalueBelowTheTolerance)
{
    for (const int n : {5, 10, 40}) {
        const matrix<double> made = repaired(randomIndefinite(n));
        for (int i = 0; i < n; ++i) {
            EXPECT_EQ(made.getElement(i, i), 1.0);
            for (int j = 0; j < i; ++j) {
                EXPECT_SAME_BITS(made.getElement(i, j), made.getElement(j, i));
            }
        }
        EXPECT_GT(smallestEigenvalue(made), -1e-5);
        EXPECT_LT(smallestEigenvalue(randomIndefinite(n)), -0.1) << "there was something to do";
    }
}

TEST(NearestCorrelation, OfACorrelationMatrixIsThatMatrix)
{
    matrix<double> regular = bandOf(5, 1, 0.3);
    regular.setElement(4, 0, 0.1);
    regular.setElement(0, 4, 0.1);
    // All ones have no rank but 1, and 1 and -1 crosswise.
    matrix<double> signs(4, 4, 0.0);
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            signs.setElement(i, j, (i + j) % 2 == 0 ? 1.0 : -1.0);
        }
    }
    // Cosines of differences have rank 2; rounding makes the third eigenvalue negative, by more than one unit
    // of the first one.
    matrix<double> cosines = bandOf(3, 1, 0.54030230586813977);
    cosines.setElement(2, 0, -0.41614683654714241);
    cosines.setElement(0, 2, -0.41614683654714241);
    EXPECT_LT(smallestEigenvalue(cosines), -4e-16);
    for (const matrix<double>& table :
         {regular, matrix<double>(3, 3, 1.0), signs, diagonalOfOnes(4), diagonalOfOnes(1), cosines}) {
        expectSymmetricCells(repaired(table), table);
        // The plain steps stop after one pass too, and reach the same but for rounding.
        matrix<double> plain(table);
        EXPECT_EQ(plainRepair(plain, table.nbrows), 1);
        for (std::uint64_t k = 0; k < table.nbElem; ++k) {
            EXPECT_NEAR(plain.data[k], table.data[k], 1e-14);
        }
    }
}

TEST(NearestCorrelation, OfATableThatIsNoneByLittleIsNotThatTable)
{
    // An eigenvalue of -1e-9 is no rounding.
    matrix<double> below = bandOf(2, 1, 1 + 1e-9);
    EXPECT_LT(repaired(below).getElement(1, 0), 1 + 1e-9);
    // Nor is a correlation above 1, though its eigenvalue is no further below 0 than rounding.
    const matrix<double> above = bandOf(2, 1, 1 + 8e-16);
    matrix<double> expected(above);
    plainRepair(expected, 2);
    EXPECT_LT(expected.getElement(1, 0), 1 + 8e-16);
    expectSymmetricCells(repaired(above), expected);
    // A diagonal beside 1 is set.
    matrix<double> beside = bandOf(2, 1 + 1e-9, 0.5);
    EXPECT_EQ(repaired(beside).getElement(1, 1), 1.0);
    // A table that is not symmetric becomes so.
    matrix<double> oblique = columnTable(2, {1, 0.5, 0.25, 1});
    EXPECT_EQ(M_CorrMatFromSymMat(&oblique, 2), 0);
    EXPECT_SAME_BITS(oblique.getElement(0, 1), oblique.getElement(1, 0));
    EXPECT_NEAR(oblique.getElement(0, 1), 0.5, 1e-15);
}

TEST(NearestCorrelation, OfATableWithAMissingCellIsRefused)
{
    for (const auto& [i, j] : {std::pair{0, 0}, std::pair{2, 1}, std::pair{2, 2}}) {
        matrix<double> table = bandOf(3, 1, 1);
        table.setElement(i, j, MISSING_DBL);
        const matrix<double> before(table);
        matrix3D<matrix<double>> triangle = triangleOf(table);
        EXPECT_EQ(M_CorrMatFromSymMat(&table, 3), -1);
        expectSymmetricCells(table, before);
        EXPECT_EQ(M_CovMatFromSymMat(&table, 3), -1);
        expectSymmetricCells(table, before);
        column_chunks chunks(table);
        EXPECT_EQ(M_CorrMatFromSymMatSPV(chunks.get(), 3), -1);
        EXPECT_EQ(chunks.cells(), cellsOf(before));
        EXPECT_EQ(M_CorrMatFromSymMatSPV_T(&triangle, 3), -1);
        expectTriangle(triangle, before);
    }
    // Above the diagonal there is nothing of a triangle; of the other forms all cells are looked at.
    matrix<double> above = bandOf(3, 1, 1);
    above.setElement(0, 1, MISSING_DBL);
    EXPECT_EQ(M_CorrMatFromSymMat(&above, 3), -1);
}

TEST(NearestCorrelation, OfNoCellsIsNothing)
{
    matrix<double> table = bandOf(1, 9, 0);
    matrix<double>* chunk = &table;
    matrix3D<matrix<double>> none;
    for (const int n : {0, -2}) {
        EXPECT_EQ(M_CorrMatFromSymMat(&table, n), 0);
        EXPECT_EQ(M_CorrMatFromSymMatSPV(&chunk, n), 0);
        EXPECT_EQ(M_CorrMatFromSymMatSPV_T(&none, n), 0);
        EXPECT_EQ(M_CovMatFromSymMat(&table, n), 0);
    }
    EXPECT_EQ(table.data[0], 9.0);
    EXPECT_EQ(M_CorrMatFromSymMat(&table, 1), 0);
    EXPECT_EQ(table.data[0], 1.0);
}

TEST(NearestCorrelation, EndsWhateverTheCellsAre)
{
    for (const double odd : {notANumber, infinite, -infinite}) {
        matrix<double> table = bandOf(3, 1, 0.5);
        table.setElement(2, 0, odd);
        table.setElement(0, 2, odd);
        matrix<double> expected(table);
        EXPECT_EQ(plainRepair(expected, 3), 1);
        EXPECT_EQ(M_CorrMatFromSymMat(&table, 3), 0);
        expectSymmetricCells(table, expected);
    }
    // Eigenvalues that overflow in the product.
    matrix<double> huge = bandOf(2, 1e308, 1.5e308);
    matrix<double> expected(huge);
    plainRepair(expected, 2);
    EXPECT_EQ(M_CorrMatFromSymMat(&huge, 2), 0);
    expectSymmetricCells(huge, expected);
}

TEST(NearestCorrelation, TakesACellBelowTheSentinelForANumber)
{
    const double below = std::nextafter(MISSING_DBL, -infinite);
    matrix<double> table = bandOf(2, 1, below);
    matrix<double> expected(table);
    plainRepair(expected, 2);
    EXPECT_EQ(M_CorrMatFromSymMat(&table, 2), 0);
    expectSymmetricCells(table, expected);
    matrix3D<matrix<double>> triangle = triangleOf(bandOf(2, 1, below));
    EXPECT_EQ(M_CorrMatFromSymMatSPV_T(&triangle, 2), 0);
    expectTriangle(triangle, expected);
}

TEST(NearestCorrelation, IsThatOfTheFirstRowsAndColumns)
{
    const matrix<double> made = repaired(bandOf(3, 1, 1));
    matrix<double> larger(4, 5, 7.0);
    larger.setElement(3, 3, MISSING_DBL);
    std::vector<matrix<double>> chunks;
    matrix<double>* columns[3];
    for (int j = 0; j < 3; ++j) {
        chunks.emplace_back(4, 1, 7.0);
        for (int i = 0; i < 3; ++i) {
            larger.setElement(i, j, i == j || i == j - 1 || i == j + 1);
            chunks.back().data[i] = larger.getElement(i, j);
        }
    }
    for (std::size_t j = 0; j < 3; ++j) {
        columns[j] = &chunks[j];
    }
    EXPECT_EQ(M_CorrMatFromSymMat(&larger, 3), 0);
    EXPECT_EQ(M_CorrMatFromSymMatSPV(columns, 3), 0);
    for (int j = 0; j < 3; ++j) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_SAME_BITS(larger.getElement(i, j), made.getElement(i, j));
            EXPECT_SAME_BITS(columns[j]->data[i], made.getElement(i, j));
        }
        EXPECT_EQ(larger.getElement(3, j), 7.0);
        EXPECT_EQ(columns[j]->data[3], 7.0);
    }
    EXPECT_EQ(larger.getElement(0, 3), 7.0);
}

TEST(NearestCorrelation, OfAnObliqueTableIsThatOfTheSteps)
{
    for (const int n : {2, 3, 6}) {
        matrix<double> table = randomIndefinite(n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < i; ++j) {
                table.setElement(j, i, 0.25 * (i + j));
            }
        }
        matrix<double> expected(table);
        plainRepair(expected, n);
        matrix<double> dense(table);
        EXPECT_EQ(M_CorrMatFromSymMat(&dense, n), 0);
        expectSymmetricCells(dense, expected);
        column_chunks chunks(table);
        EXPECT_EQ(M_CorrMatFromSymMatSPV(chunks.get(), n), 0);
        EXPECT_EQ(chunks.cells(), cellsOf(expected));
    }
}
