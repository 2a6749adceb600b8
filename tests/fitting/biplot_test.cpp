#include "fitting/biplot.h"

#include "support/bits.h"
#include "support/near_tables.h"
#include "support/special_values.h"

#include <cmath>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

matrix<double> tableOf(int rows, std::vector<double> cells)
{
    return matrix<double>(rows, static_cast<int>(cells.size()) / rows, cells.data(), false);
}

void expectCells(const matrix<double>& found, const std::vector<double>& expected)
{
    ASSERT_EQ(found.nbElem, expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(found.data[k], expected[k]) << "cell " << k;
    }
}

/** Two rows, one extra row and two columns on axes with singular values 4 and 9. */
struct small_biplot {
    void run(double alpha, double scale = 1.0)
    {
        EXPECT_EQ(
            BiplotTransData(&points, &extra, &arrows, 2, 1, 2, 2, &values, scale, alpha, &ofRows, &ofColumns),
            0);
    }

    matrix<double> points = tableOf(2, {2, gone, 6, 3});
    matrix<double> extra = tableOf(1, {4, 9});
    matrix<double> arrows = tableOf(2, {8, 4, gone, 18});
    matrix<double> values = tableOf(2, {4, 9});
    matrix<double> ofRows;
    matrix<double> ofColumns;
};

} // namespace

TEST(Biplot, LeavesRowsWithAnAlphaOfOne)
{
    small_biplot plot;
    plot.run(1.0);
    EXPECT_EQ(plot.ofRows.nbrows, 3);
    EXPECT_EQ(plot.ofRows.nbcols, 2);
    expectCells(plot.ofRows, {2, gone, 4, 6, 3, 9});
    expectCells(plot.ofColumns, {8 * 0.5, 4 * 0.5, gone, 18 * std::pow(9.0, -0.5)});
}

TEST(Biplot, LeavesColumnsWithAnAlphaOfZero)
{
    small_biplot plot;
    plot.values[1] = 0.0;
    plot.run(0.0);
    expectCells(plot.ofColumns, {8, 4, gone, 18});
    expectCells(plot.ofRows, {1, gone, 2, infinite, infinite, infinite});
}

TEST(Biplot, SharesTheSingularValues)
{
    small_biplot plot;
    plot.run(0.5);
    const double four = std::pow(4.0, -0.25);
    const double nine = std::pow(9.0, -0.25);
    expectCells(plot.ofRows, {2 * four, gone, 4 * four, 6 * nine, 3 * nine, 9 * nine});
    expectCells(plot.ofColumns, {8 * four, 4 * four, gone, 18 * nine});
}

TEST(Biplot, ScalesColumns)
{
    small_biplot plot;
    plot.run(1.0, 4.0);
    expectCells(plot.ofColumns, {8, 4, gone, 2.0 * (18 * std::pow(9.0, -0.5))});
    expectCells(plot.ofRows, {2, gone, 4, 6, 3, 9});
    plot.run(0.0, -1.0);
    expectCells(plot.ofColumns, {gone * 8, gone * 4, gone, gone * 18});
}

TEST(Biplot, TakesChunks)
{
    small_biplot plot;
    plot.run(0.5, 3.0);
    random_cells cells(1, odd_cells::none);
    std::vector<matrix<double>> columns;
    for (const matrix<double>* table : {&plot.points, &plot.arrows}) {
        for (int j = 0; j < 2; ++j) {
            columns.emplace_back(2, 1, table->data + 2 * j, true);
        }
    }
    matrix<double>* points[] = {&columns[0], &columns[1]};
    matrix<double>* arrows[] = {&columns[2], &columns[3]};
    matrix<double> ofRows(9, 9, 5.0);
    matrix<double> ofColumns(1, 1, 5.0);
    EXPECT_EQ(
        BiplotTransData(points, &plot.extra, arrows, 2, 1, 2, 2, &plot.values, 3.0, 0.5, &ofRows, &ofColumns),
        0);
    expectSame(ofRows, plot.ofRows);
    expectSame(ofColumns, plot.ofColumns);
}

TEST(Biplot, NeedsNoExtraRows)
{
    small_biplot plot;
    EXPECT_EQ(BiplotTransData(&plot.points, nullptr, &plot.arrows, 2, 0, 2, 2, &plot.values, 1.0, 1.0,
                              &plot.ofRows, &plot.ofColumns),
              0);
    expectCells(plot.ofRows, {2, gone, 6, 3});
}

TEST(Cosines, AreSquaresOverTheSumOfTheirRow)
{
    matrix<double> x = tableOf(3, {3, 0, 1e-7, 4, 0, 0});
    matrix<double> result(3, 2, 7.0);
    auto* place = &result;
    cComputeCosines(&x, 3, 2, place);
    expectCells(result, {9.0 / 25.0, 7, 7, 16.0 / 25.0, 7, 7});
    matrix3D<matrix<double>> chunks(2, 3, 1, 0.0);
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 2; ++j) {
            chunks.chunks[static_cast<std::size_t>(j)].data[i] = x.getElement(i, j);
        }
    }
    matrix<double> other(3, 2, 7.0);
    auto* second = &other;
    cComputeCosinesSPV(&chunks, 3, 2, second);
    expectSame(other, result);
}

TEST(Cosines, NeedMoreThanAlmostNothing)
{
    matrix<double> x = tableOf(2, {1e-6, 1.0000001e-6});
    matrix<double> result(2, 1, 7.0);
    auto* place = &result;
    cComputeCosines(&x, 2, 1, place);
    EXPECT_SAME_BITS(result[0], 7.0) << "1e-12 is not above 1e-12";
    EXPECT_SAME_BITS(result[1], 1.0);
}

TEST(Cosines, MayBeWrittenOverTheirTable)
{
    matrix<double> x = tableOf(1, {3, 4});
    auto* place = &x;
    cComputeCosines(&x, 1, 2, place);
    expectCells(x, {9.0 / 25.0, 16.0 / 25.0});
}

TEST(Cosines, AreMarkedByRow)
{
    matrix<int> table(3, 2);
    matrix<int> positions = vectorOf<int>({2, 1, 2});
    M_BoldCosines(&positions, 3, &table);
    const int expected[] = {0, -1, 0, -1, 0, -1};
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(table.data[k], expected[k]) << k;
    }
    positions = vectorOf<int>({0, 3, -5});
    M_BoldCosines(&positions, 3, &table);
    EXPECT_EQ(table.data[0], 0);
    EXPECT_EQ(table.data[4], 0);
    // Nor is there a column before the first one, in a table that lies amid other memory.
    std::vector<int> memory(9, 7);
    matrix<int> amid(3, 1, memory.data() + 3, true);
    positions = vectorOf<int>({0, 0, 1});
    M_BoldCosines(&positions, 3, &amid);
    EXPECT_EQ(memory, (std::vector<int>{7, 7, 7, 7, 7, -1, 7, 7, 7}));
}

TEST(Cosines, SizeTheirResult)
{
    matrix<double> x = tableOf(2, {3, 0, 4, 0});
    matrix<double> result;
    auto* place = &result;
    cComputeCosines(&x, 2, 2, place);
    EXPECT_EQ(place, &result);
    ASSERT_EQ(result.nbrows, 2);
    ASSERT_EQ(result.nbcols, 2);
    EXPECT_SAME_BITS(result.data[0], 9.0 / 25.0);
    matrix3D<matrix<double>> chunks(2, 2, 1, 1.0);
    matrix<double> larger(3, 3, 7.0);
    auto* second = &larger;
    cComputeCosinesSPV(&chunks, 2, 2, second);
    EXPECT_EQ(larger.nbrows, 2);
    expectCells(larger, {0.5, 0.5, 0.5, 0.5});
}

TEST(Cosines, OfMissingCellsAndOfNaN)
{
    // A missing cell is left out of the sum of squares, though it is a number where it is squared itself.
    matrix<double> x = tableOf(3, {3, notANumber, gone, gone, 1, gone});
    matrix<double> result(3, 2, 7.0);
    auto* place = &result;
    cComputeCosines(&x, 3, 2, place);
    expectCells(result, {1, 7, 7, infinite, 7, 7});
}

TEST(Biplot, TakesAScaleOfOneAloneForNone)
{
    small_biplot plot;
    plot.run(0.0, std::nextafter(1.0, 2.0));
    EXPECT_SAME_BITS(plot.ofColumns.data[0], 8.0 * std::sqrt(std::nextafter(1.0, 2.0)));
    plot.run(0.0, 0.0);
    expectCells(plot.ofColumns, {0, 0, gone, 0});
    plot.run(0.0, notANumber);
    expectCells(plot.ofColumns, {notANumber, notANumber, gone, notANumber});
}
