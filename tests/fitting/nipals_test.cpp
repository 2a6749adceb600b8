#include "fitting/nipals.h"

#include "reference/nipals.h"
#include "support/bits.h"
#include "support/example_data.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

/** A table and the arguments of a call. */
struct small_table {
    small_table(int rowCount, std::vector<double> cells)
        : n(rowCount), p(static_cast<int>(cells.size()) / n), X(vectorOf<double>(std::move(cells))),
          weights(n, 1, 1.0)
    {
        X.nbrows = n;
        X.nbcols = p;
    }

    int run() { return NIPALS(n, p, &X, &weights, tolerance, components, columnShare, tableShare); }
    int runAgain()
    {
        matrix<double> before(X);
        const int status = run();
        for (std::uint64_t k = 0; k < X.nbElem; ++k) {
            EXPECT_SAME_BITS(X.data[k], before.data[k]) << "unchanged";
        }
        return status;
    }

    [[nodiscard]] double cell(int i, int j) const { return X.getElement(i, j); }

    int n;
    int p;
    matrix<double> X;
    matrix<double> weights;
    double tolerance = 1e-12;
    int components = 1;
    double columnShare = 1.0;
    double tableShare = 1.0;
};

} // namespace

TEST(Nipals, AgreesWithADirectEigenSolution)
{
    // R 4.2.2 on USArrests without the six cells: the leading eigenvector of the cross-products of the
    // centred table, its gaps refilled with what that component makes of them until they rest; then the same
    // on what is left.
    const int cells[][2] = {{2, 1}, {9, 0}, {9, 3}, {21, 2}, {36, 1}, {49, 3}};
    const double expected[2][6] = {
        {321.94258330634, 9.2418730576447, 24.424397097429, 69.31919382779, 230.58353284032, 20.677334567558},
        {321.55150091711, 9.4731273130212, 22.986523435694, 102.82064871965, 230.60204194119,
         19.690225566197}};
    for (const int components : {1, 2}) {
        small_table states(50,
                           exampleColumns("usarrests_values.csv", {"Murder", "Assault", "UrbanPop", "Rape"}));
        for (const auto& cell : cells) {
            states.X.setElement(cell[0], cell[1], gone);
        }
        states.components = components;
        states.tolerance = 1e-30;
        EXPECT_EQ(states.run(), 0);
        for (int k = 0; k < 6; ++k) {
            EXPECT_NEAR(states.cell(cells[k][0], cells[k][1]), expected[components - 1][k], 1e-9) << k;
        }
    }
}

TEST(Nipals, LeavesACompleteTable)
{
    small_table complete(3, {1, 2, 3, 4, 6, 5});
    complete.tolerance = notANumber;
    complete.columnShare = -1.0;
    EXPECT_EQ(complete.runAgain(), 0) << "before any iteration or screening";
    EXPECT_EQ(NIPALS(3, 0, &complete.X, &complete.weights, 0.0, 1, 0.0, 0.0), 0);
}

TEST(Nipals, RefusesTooManyMissingCellsInAColumn)
{
    small_table table(4, {1, 2, gone, gone, 4, 6, 5, 7});
    table.columnShare = 0.49;
    EXPECT_EQ(table.runAgain(), -6) << "though the table as a whole passes";
    table.columnShare = 0.5;
    EXPECT_EQ(table.run(), 0) << "exactly the share";
}

TEST(Nipals, RefusesTooManyMissingCellsInTheTable)
{
    small_table table(4, {1, 2, gone, gone, 4, 6, 5, 7});
    table.tableShare = 0.24;
    EXPECT_EQ(table.runAgain(), -6);
    table.tableShare = 0.25;
    EXPECT_EQ(table.run(), 0);
}

TEST(Nipals, FillsARowOfWeightZeroWithZero)
{
    small_table table(4, {1, 2, gone, 5, 4, 6, 5, 7});
    table.weights[2] = 0.0;
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 0.0);
}

TEST(Nipals, DividesByTheWeightOfTheRow)
{
    small_table table(4, {1, 2, gone, 5, 4, 6, 5, 7});
    table.weights[2] = 4.0;
    table.components = 0;
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), (8.0 / 3.0) / 4.0);
}

TEST(Nipals, TakesTheMeanWithoutComponents)
{
    small_table table(4, {1, 2, gone, 5, 4, 6, 5, 7});
    table.components = 0;
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 8.0 / 3.0);
    table.X.setElement(2, 0, gone);
    table.components = -3;
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 8.0 / 3.0);
}

TEST(Nipals, FillsAConstantColumnWithItsMean)
{
    small_table table(4, {3, 3, gone, 3, 4, 6, 5, 7});
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 3.0) << "its loading is 0";
    small_table first(4, {4, 6, 5, 7, 3, 3, gone, 3});
    EXPECT_EQ(first.run(), 0);
    EXPECT_SAME_BITS(first.cell(2, 1), 3.0);
}

TEST(Nipals, FillsARowWithoutCellsWithMeans)
{
    small_table table(4, {1, 2, gone, 5, 4, 6, gone, 7});
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 8.0 / 3.0);
    EXPECT_SAME_BITS(table.cell(2, 1), 17.0 / 3.0);
}

TEST(Nipals, EndsWhenTheScoresVanish)
{
    // The first component explains two proportional columns; nothing is left for the second.
    small_table table(4, {1, 2, gone, 5, 2, 4, 6, 10});
    table.components = 1;
    EXPECT_EQ(table.run(), 0);
    small_table twice(4, {1, 2, 3, 5, 2, 4, 6, 10, 3, 6, gone, 15});
    twice.components = 3;
    EXPECT_EQ(twice.runAgain(), 1);
}

TEST(Nipals, EndsWithOneColumn)
{
    small_table table(4, {1, 2, gone, 5});
    EXPECT_EQ(table.runAgain(), 1);
    table.components = 0;
    EXPECT_EQ(table.run(), 0);
}

TEST(Nipals, EndsWhenItWouldNot)
{
    small_table table(4, {1, 2, gone, 5, 4, 6, 5, 7, 1, 1, 2, 9});
    for (const double never : {-1.0, notANumber}) {
        table.tolerance = never;
        EXPECT_EQ(table.runAgain(), 1);
    }
}

TEST(Nipals, StartsFromTheLastColumnThatMissesFewerCellsThanItsNeighbour)
{
    // Columns miss 0, 2, 1, 1: the start is the third, though the first misses none. It is constant, so that
    // the scores are all 0 at once.
    small_table table(4, {1, 2, 3, 5, gone, gone, 6, 9, 3, 3, gone, 3, 4, 1, gone, 2});
    EXPECT_EQ(table.runAgain(), 1);
}

TEST(Nipals, IsThePlainOne)
{
    int compared = 0;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 3 == 0 ? odd_cells::missing_and_zeros : odd_cells::missing);
        const int n = cells.integer(1, 14);
        const int p = cells.integer(1, 6);
        small_table actual(n, std::vector<double>(static_cast<std::size_t>(n * p), 0.0));
        fillRandomly(cells, actual.X);
        for (int i = 0; i < n && seed % 2 == 0; ++i) {
            actual.weights[i] = cells.integer(0, 5) == 0 ? 0.0 : cells.integer(1, 30) / 8.0;
        }
        actual.tolerance = cells.integer(0, 2) == 0 ? 1e-20 : 1e-6;
        actual.components = cells.integer(0, p + 2);
        actual.columnShare = cells.integer(0, 4) == 0 ? 0.3 : 1.0;
        actual.tableShare = cells.integer(0, 4) == 0 ? 0.1 : 1.0;
        matrix<double> expected(actual.X);
        const int status =
            korvel::reference::plainNipals(n, p, expected, actual.weights, actual.tolerance,
                                           actual.components, actual.columnShare, actual.tableShare);
        if (status == korvel::reference::unfinished) {
            continue;
        }
        ++compared;
        EXPECT_EQ(actual.run(), status);
        for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
            EXPECT_SAME_BITS(actual.X.data[k], expected.data[k]) << k;
        }
    }
    EXPECT_GT(compared, 300);
}

TEST(Nipals, TakesAVariableOfASmallDeviationForAConstantAndEndsWhereNothingChanges)
{
    // The first variable deviates by less than 1e-6, so that the second alone makes the component. Its
    // loadings are the same at the second pass: their changes have the variance 0, which a tolerance of 0
    // reaches.
    small_table table(4, {1.0, 1.0 + 5e-7, gone, 1.0, 1.0, 5.0, 9.0, 2.0});
    for (int i = 0; i < 4; ++i) {
        table.weights[i] = 100.0;
    }
    table.tolerance = 0.0;
    EXPECT_EQ(table.run(), 0);
    const double mean = (100.0 + 100.0 * (1.0 + 5e-7) + 100.0) / 300.0;
    EXPECT_SAME_BITS(table.cell(2, 0), mean / 100.0);
}

TEST(Nipals, FillsARowThatMissesAllWithTheMeansOverItsWeight)
{
    small_table table(5, {1, 2, gone, 4, 6, 2, 3, gone, 7, 11});
    table.weights[2] = 4.0;
    EXPECT_EQ(table.run(), 0);
    EXPECT_SAME_BITS(table.cell(2, 0), 13.0 / 4.0 / 4.0);
    EXPECT_SAME_BITS(table.cell(2, 1), 23.0 / 4.0 / 4.0);
}
