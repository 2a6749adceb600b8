#include "tables/cell_maps.h"

#include "containers/element_types.h"
#include "reference/table_maps.h"
#include "tables/map_twins.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(CellMaps, SquareRootsAreThePlainLoop)
{
    forRandomTables([](random_tables given) {
        table x = given.input();
        expectAlike(
            given.input(), [&](table& out) { M_SquareRootAij(&x, given.rows, given.cols, &out); },
            [&](table& out) { plain::squareRoots(x, given.rows, given.cols, out); });
    });
}

TEST(CellMaps, SquareRootsInPlace)
{
    std::vector<double> cells{4, -1, MISSING_DBL, 9, 2, 16};
    matrix<double> x(3, 2, cells.data(), true);
    M_SquareRootAij2(&x, 2, 2);
    EXPECT_EQ(cells, (std::vector<double>{2, MISSING_DBL, MISSING_DBL, 3, std::sqrt(2.0), 16}));
}

TEST(CellMaps, TheFirstColumnIsSubtractedBeyondTheTableToo)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    M_SubstractFirstCol2(&x, 2, 3);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 4), (std::vector<double>{0, 0, 2, 2}));
    EXPECT_EQ(x.oobValue, 0.0);
}
