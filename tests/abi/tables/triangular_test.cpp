#include "abi/tables/square_forms.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

template <class Form>
class FlatTriangular : public ::testing::Test
{
};
TYPED_TEST_SUITE(FlatTriangular, square_forms);

} // namespace

TYPED_TEST(FlatTriangular, TellsWhichHalfIsFilledAndMirrorsIt)
{
    struct given {
        int n;
        doubles cells;
        int expected;
        doubles mirrored;
    };
    // Cells column after column: of order 2 the second is below the diagonal, the third above it.
    for (const given& table : std::vector<given>{
             {1, {5}, 2, {5}},
             {2, {1, 0, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, missing, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, 4, 0, 1}, 1, {1, 4, 4, 1}},
             {2, {1, 4, missing, 1}, 1, {1, 4, 4, 1}},
             {2, {1, 4, 5, 1}, 0, {1, 4, 5, 1}},
             {2, {1, missing, 0, 1}, 2, {1, 0, 0, 1}},
             {2, {1, 0, missing, 1}, 2, {1, missing, missing, 1}},
             {2, {1, -0.0, 4, 1}, 2, {1, 4, 4, 1}},
             {2, {1, notANumber, 0, 1}, 1, {1, notANumber, notANumber, 1}},
             {2, {1, 0, notANumber, 1}, 2, {1, notANumber, notANumber, 1}},
             {2, {1, notANumber, 2, 1}, 0, {1, notANumber, 2, 1}},
             {2, {1, belowSentinel, 0, 1}, 1, {1, belowSentinel, belowSentinel, 1}},
             {3, {1, 0, 0, 2, 3, 0, 0, 4, 5}, 2, {1, 2, 0, 2, 3, 4, 0, 4, 5}},
             {3, {1, 0, 7, 0, 3, 0, 0, 0, 5}, 1, {1, 0, 7, 0, 3, 0, 7, 0, 5}},
             {3, {1, 0, 7, 0, 3, 0, 0, 1, 5}, 0, {1, 0, 7, 0, 3, 0, 0, 1, 5}},
         }) {
        TypeParam x(table.cells, table.n);
        for (const short int bMirror : std::vector<short int>{0, 1, -2}) {
            EXPECT_EQ(x.triangle(bMirror), table.expected) << ::testing::PrintToString(table.cells);
            expectCells(x.cells(), table.cells);
        }
        EXPECT_EQ(x.triangle(-1), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.mirrored);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    for (const int n : {1, 0}) {
        none.order = n;
        EXPECT_EQ(none.triangle(-1), 2);
        expectCells(none.cells(), {1, 2, 3, 4});
    }
}
