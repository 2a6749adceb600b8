// Tables and vectors of random cells, now and then smaller than the counts say, against the plain loops.

#include "containers/element_types.h"
#include "reference/table_maps.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "tables/cell_maps.h"
#include "tables/fill.h"
#include "tables/proximity.h"
#include "tables/row_maps.h"
#include "tables/symmetric.h"
#include "tables/text_rows.h"
#include "tables/triangular.h"
#include "tables/vector_table.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

using namespace korvel::test;
namespace plain = korvel::reference;

namespace
{

using table = matrix<double>;

/** The same cells and counts, and the same spare slot. */
template <class T>
void expectSame(const matrix<T>& actual, const matrix<T>& expected)
{
    ASSERT_EQ(actual.nbrows, expected.nbrows);
    ASSERT_EQ(actual.nbcols, expected.nbcols);
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        ASSERT_SAME_BITS(actual.data[k], expected.data[k]) << "cell " << k;
    }
    EXPECT_SAME_BITS(actual.oobValue, expected.oobValue);
}

/** Counts, and tables of random cells that mostly have them. */
class random_tables
{
public:
    random_tables(std::uint64_t seed, int rowCount, int colCount)
        : rows(rowCount), cols(colCount), cells_(seed, odd_cells::all), isShort_(seed % 3 == 0)
    {
    }

    table made(int tableRows, int tableCols)
    {
        const int held = isShort_ && tableRows > 0 ? cells_.integer(0, tableRows) : tableRows;
        const int heldCols = isShort_ && tableCols > 1 ? cells_.integer(1, tableCols) : tableCols;
        table x(held, heldCols, 0.0);
        for (std::uint64_t k = 0; k < x.nbElem; ++k) {
            x.data[k] = cells_.value();
        }
        x.oobValue = 4.5;
        return x;
    }
    table input() { return made(rows, cols); }
    table vector() { return made(rows * cols, 1); }

    int rows;
    int cols;

private:
    random_cells cells_;
    bool isShort_;
};

template <class Compare>
void forRandomTables(Compare compare)
{
    for (const auto& [rows, cols] : std::vector<std::pair<int, int>>{
             {0, 0}, {0, 3}, {3, 0}, {1, 1}, {1, 7}, {7, 1}, {2, 3}, {5, 5}, {8, 9}, {33, 17}, {100, 4}}) {
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            compare(random_tables(seed, rows, cols));
        }
    }
}

/** Runs `core` and `twin` on tables of their own that start alike. */
template <class T, class Core, class Twin>
void expectAlike(const matrix<T>& start, Core core, Twin twin)
{
    matrix<T> actual(start);
    matrix<T> expected(start);
    actual.oobValue = start.oobValue;
    expected.oobValue = start.oobValue;
    core(actual);
    twin(expected);
    expectSame(actual, expected);
}

} // namespace

TEST(TableMaps, BetweenTableAndVectorAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        table x = given.input();
        table v = given.vector();
        table pattern = given.input();
        const auto [rows, cols] = std::pair{given.rows, given.cols};
        expectAlike(
            given.vector(), [&, r = rows, c = cols](table& out) { MatToVect(&x, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toVector(x, r, c, out); });
        expectAlike(
            given.input(), [&, r = rows, c = cols](table& out) { VectToMat(&v, &pattern, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toTable(v, pattern, r, c, out); });
        expectAlike(
            given.vector(), [&, r = rows, c = cols](table& out) { M_CopyTabletoVectorByRow(&x, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toVectorByRow(x, r, c, out); });
        expectAlike(
            given.input(), [&, r = rows, c = cols](table& out) { M_CopyVectortoTableByRow(&v, r, c, &out); },
            [&, r = rows, c = cols](table& out) { plain::toTableByRow(v, r, c, out); });
    });
}

TEST(TableMaps, OfPackedTrianglesAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        table x = given.made(n, n);
        table v = given.made(n * (n + 1) / 2, 1);
        expectAlike(
            given.made(n * (n + 1) / 2, 1), [&](table& out) { M_CopySymMatToVector(&x, n, &out); },
            [&](table& out) { plain::pack(x, n, out); });
        expectAlike(
            given.made(n, n), [&](table& out) { M_CopyVectorToSymMat(&v, n, &out); },
            [&](table& out) { plain::unpack(v, n, out); });
    });
}

TEST(TableMaps, OfSquareTablesAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        const auto on = [n](auto core) {
            return [n, core](table& x) {
                table* changed = &x;
                core(changed, n);
            };
        };
        expectAlike(given.made(n, n), on([](table*& x, int order) { M_Symmetrize(x, order, order); }),
                    on([](table* x, int order) { plain::symmetrize(*x, order); }));
        expectAlike(given.made(n, n), on([](table*& x, int order) { M_TransformSimToDissim(x, order); }),
                    on([](table* x, int order) { plain::toDissimilarities(*x, order); }));

        // Cells that can be alike: pairs and diagonals are equal now and then.
        for (const double spare : {0.0, 1.0, -1.0}) {
            for (const bool bLower : {false, true}) {
                table x = given.made(n, n);
                for (int j = 0; j < x.nbcols; ++j) {
                    for (int i = 0; i < x.nbrows; ++i) {
                        x.data[i + x.nbrows * j] = i == j ? spare : (i > j) == bLower ? 0.0 : -spare;
                    }
                }
                x.oobValue = spare;
                EXPECT_EQ(M_IsSymmetric(&x, n), plain::isSymmetric(x, n) ? -1 : 0);
                EXPECT_EQ(M_IsDiagConstant(&x, n), plain::hasConstantDiagonal(x, n) ? -1 : 0);
                EXPECT_EQ(M_CheckIfSimOrDissim(&x, n, n), plain::kindOfProximity(x, n));
                EXPECT_EQ(M_IsTriangular(x, n, 0), plain::filledHalf(x, n));
            }
        }
    });
}

TEST(TableMaps, OfCellsAndRowsAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        table x = given.input();
        table factors = given.made(given.cols, 1);
        const int rows = given.rows;
        const int cols = given.cols;
        expectAlike(
            given.input(), [&](table& out) { M_SquareRootAij(&x, rows, cols, &out); },
            [&](table& out) { plain::squareRoots(x, rows, cols, out); });
        expectAlike(
            given.made(rows, 1), [&](table& out) { ComputeNewVar(&x, rows, cols, &factors, &out); },
            [&](table& out) { plain::newVariable(x, rows, cols, factors, out); });
        expectAlike(
            matrix<int>(rows, 1, 5), [&](matrix<int>& out) { M_MaxPosByRow(&x, rows, cols, &out); },
            [&](matrix<int>& out) { plain::largestPositions(x, rows, cols, out); });
        int kept = 0;
        int expectedKept = 0;
        expectAlike(
            matrix<short int>(rows, 1, 5),
            [&](matrix<short int>& out) { kept = FilterOnSumOfSquares(&x, rows, cols, 1e5, &out); },
            [&](matrix<short int>& out) { expectedKept = plain::keptRows(x, rows, cols, 1e5, out); });
        EXPECT_EQ(kept, expectedKept);
    });
}

TEST(TableMaps, ANewVariableTakesThePlaceOfTheFirstColumn)
{
    auto x = numbered<double>(2, 3); // 1 2, 3 4, 5 6
    auto factors = vectorOf<double>({1, 10, 100});
    ComputeNewVar2(&x, 2, 3, &factors);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{531, 642, 3, 4, 5, 6}));
}

TEST(TableMaps, TheDiagonalBecomesAVector)
{
    const auto x = numbered<double>(2, 3); // 1 2, 3 4, 5 6
    matrix<double> v(7, 1, 9.0);
    M_DiagToVect(x, 2, 3, v);
    EXPECT_EQ(v.nbrows, 2);
    EXPECT_EQ(v.nbcols, 1);
    EXPECT_EQ(v.data[0], 1.0);
    EXPECT_EQ(v.data[1], 4.0);
    EXPECT_EQ(v.oobValue, 4.0);
    M_DiagToVect(x, 3, 3, v);
    EXPECT_EQ(v.nbrows, 3);
    EXPECT_EQ(v.data[2], -1.0) << "a cell that the table does not have";
    M_DiagToVect(x, -1, 3, v);
    EXPECT_EQ(v.nbElem, 0u);
}

TEST(TableMaps, AVectorIsSetToAValue)
{
    matrix<double> x(5, 2, 1.0);
    matrix<double>* vector = &x;
    EXPECT_EQ(SetVectorToValue(vector, 3, 2.5), 0);
    EXPECT_EQ(x.nbrows, 3);
    EXPECT_EQ(x.nbcols, 1);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 3), std::vector<double>(3, 2.5));
    EXPECT_EQ(x.oobValue, 2.5);

    std::vector<double> block(4, 1.0);
    auto borrowed = viewOf(4, 1, block.data());
    vector = &borrowed;
    EXPECT_EQ(SetVectorToValue(vector, 2, MISSING_DBL), 0);
    EXPECT_EQ(block, (std::vector<double>{MISSING_DBL, MISSING_DBL, 1, 1}))
        << "a borrowed one keeps its shape";
}

TEST(TableMaps, NumberingPastTheEndReachesTheSpareSlot)
{
    matrix<double> x(2, 1, 0.0);
    V_Set1toN(&x, 3);
    EXPECT_EQ(x.data[1], 2.0);
    EXPECT_EQ(x.oobValue, 3.0);
    matrix<int> y(2, 1, 0);
    V_Set1toN(&y, 2);
    EXPECT_EQ(y.oobValue, 2);
    matrix<text> z(2, 1, text());
    V_Set1toN(&z, 12);
    EXPECT_EQ(z.data[0], u"1");
    EXPECT_EQ(z.oobValue, u"12");
}

TEST(TableMaps, TheFirstColumnIsSubtractedBeyondTheTableToo)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    M_SubstractFirstCol2(&x, 2, 3);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 4), (std::vector<double>{0, 0, 2, 2}));
    EXPECT_EQ(x.oobValue, 0.0);
}

TEST(TableMaps, TextsArePassedThroughTheSpareSlotToo)
{
    auto x = numbered<text>(2, 2); // b c, d e
    x.oobValue = u"!";
    matrix<text> out(2, 1, text());
    M_MergeStringsByRow(&x, 2, 3, &out);
    EXPECT_EQ(out.data[0], u"bd!");
    EXPECT_EQ(out.oobValue, u"ce!");

    auto same = numbered<text>(2, 1);
    EXPECT_EQ(CheckSameVectorStr(&same, 3, &same, 3), -1);
    auto other = numbered<text>(2, 1);
    other.oobValue = u"!";
    EXPECT_EQ(CheckSameVectorStr(&same, 2, &other, 2), -1);
    EXPECT_EQ(CheckSameVectorStr(&same, 3, &other, 3), 0);
}

TEST(TableMaps, MirroringLeavesTheLastCellInTheSpareSlot)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    x.data[1] = 0.0;
    EXPECT_EQ(M_IsTriangular(x, 2, 0), 2);
    EXPECT_EQ(x.oobValue, -1.0);
    EXPECT_EQ(M_IsTriangular(x, 2, -1), 2);
    EXPECT_EQ(x.oobValue, 3.0);
    EXPECT_EQ(x.data[1], 3.0);
}
