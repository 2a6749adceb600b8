#include "tables/row_maps.h"

#include "containers/element_types.h"
#include "reference/table_maps.h"
#include "support/random_cells.h"
#include "tables/map_twins.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(RowMaps, OfRowsAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        table x = given.input();
        table factors = given.made(given.cols, 1);
        const int rows = given.rows;
        const int cols = given.cols;
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

TEST(RowMaps, ANewVariableTakesThePlaceOfTheFirstColumn)
{
    auto x = numbered<double>(2, 3); // 1 2, 3 4, 5 6
    auto factors = vectorOf<double>({1, 10, 100});
    ComputeNewVar2(&x, 2, 3, &factors);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{531, 642, 3, 4, 5, 6}));
}
