#include "abi/tables/square_forms.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = KORVEL_MISSING_DBL;

template <class Form>
class FlatProximity : public ::testing::Test
{
};
TYPED_TEST_SUITE(FlatProximity, square_forms);

} // namespace

TYPED_TEST(FlatProximity, TellsSimilaritiesFromDissimilarities)
{
    struct given {
        int n;
        doubles cells;
        int expected;
    };
    for (const given& table : std::vector<given>{
             {2, {0, 3, 3, 0}, 2},
             {2, {0, 3, 4, 0}, 2},
             {2, {0, 0, 0, 0}, 2},
             {1, {0}, 2},
             {1, {7}, 1},
             {1, {missing}, 0},
             {2, {1, 0.5, 0.5, 1}, 1},
             {2, {1, -0.5, 0.5, 1}, 1},
             {2, {1, 1, 1, 1}, 1},
             {2, {1, 1.5, 0, 1}, 0},
             {2, {1, 0.5, 0.5, 2}, 0},
             {2, {0, -1, 3, 0}, 0},
             {2, {0, -1, -2, 0}, 1},
             {2, {0, missing, 3, 0}, 2},
             {2, {1, missing, 0.5, 1}, 1},
             {2, {missing, 1, 1, missing}, 0},
             {2, {0, 1, 1, missing}, 0},
             {2, {1, 1, 1, missing}, 0},
             {2, {0, notANumber, 1, 0}, 0},
             {2, {notANumber, 0, 0, notANumber}, 0},
             {3, {0, 1, 2, 1, 0, 3, 2, 3, 0}, 2},
             {3, {0, 1, 2, 1, 0, 3, 2, 3, 1}, 0},
         }) {
        TypeParam x(table.cells, table.n);
        EXPECT_EQ(x.kind(), table.expected) << ::testing::PrintToString(table.cells);
        expectCells(x.cells(), table.cells);
    }
    TypeParam none({1, 2, 3, 4}, 2);
    none.order = 0;
    EXPECT_EQ(none.kind(), 0);
}

TEST(FlatProximityTable, WhichIsNotSquareIsNoProximity)
{
    guarded<double> x(doubles{0, 1, 2, 0, 1, 3});
    EXPECT_EQ(VB_M_CheckIfSimOrDissim(x.data(), 3, 2), 0);
    EXPECT_EQ(VB_M_CheckIfSimOrDissim(x.data(), 2, 3), 0);
    caller_columns y({{0, 1, 2}, {1, 0, 3}});
    EXPECT_EQ(VB_M_CheckIfSimOrDissimSPV(y.argument(), 3, 2), 0);
}

TEST(FlatProximityTable, OfSimilaritiesBecomesDissimilarities)
{
    guarded<double> x(doubles{1, 0.25, missing, 0.25, 1, -0.5, 0.75, -0.5, 1});
    EXPECT_EQ(VB_M_TransformSimToDissim(x.data(), 3), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 0.75, missing, 0.75, 0, 1.5, 0.25, 1.5, 0}));
    guarded<double> none(doubles{missing});
    EXPECT_EQ(VB_M_TransformSimToDissim(none.data(), 1), 0);
    EXPECT_EQ(VB_M_TransformSimToDissim(x.data(), 0), 0);
    EXPECT_EQ(valuesOf(none), doubles{missing});
    guarded<double> lowest(doubles{0, belowSentinel, missing, -1.0});
    EXPECT_EQ(VB_M_TransformSimToDissim(lowest.data(), 2), 0);
    EXPECT_EQ(valuesOf(lowest), (doubles{0, -belowSentinel, missing, 1})) << "missing is one number only";
}
