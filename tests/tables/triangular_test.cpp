#include "tables/triangular.h"

#include "containers/element_types.h"
#include "reference/table_maps.h"
#include "tables/map_twins.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(Triangular, TheFilledHalfIsThatOfThePlainLoop)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        forTwoHalves(given, [n](table& x) { EXPECT_EQ(M_IsTriangular(x, n, 0), plain::filledHalf(x, n)); });
    });
}

TEST(Triangular, MirroringLeavesTheLastCellInTheSpareSlot)
{
    auto x = numbered<double>(2, 2); // 1 2, 3 4
    x.data[1] = 0.0;
    EXPECT_EQ(M_IsTriangular(x, 2, 0), 2);
    EXPECT_EQ(x.oobValue, -1.0);
    EXPECT_EQ(M_IsTriangular(x, 2, -1), 2);
    EXPECT_EQ(x.oobValue, 3.0);
    EXPECT_EQ(x.data[1], 3.0);
}
