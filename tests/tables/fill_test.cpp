#include "tables/fill.h"

#include "containers/element_types.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(Fill, AVectorIsSetToAValue)
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

TEST(Fill, NumberingPastTheEndReachesTheSpareSlot)
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

TEST(Fill, FlagsAreSet)
{
    std::vector<short int> flags{1, 2, 3};
    EXPECT_EQ(InitVectorToTrue(flags.data(), 2), 0);
    EXPECT_EQ(flags, (std::vector<short int>{-1, -1, 3}));
    EXPECT_EQ(InitVectorToFalse(flags.data(), 1), 0);
    EXPECT_EQ(flags, (std::vector<short int>{0, -1, 3}));
    for (const int none : {0, -1}) {
        EXPECT_EQ(InitVectorToTrue(nullptr, none), 0);
        EXPECT_EQ(InitVectorToFalse(nullptr, none), 0);
    }
}

TEST(Fill, CellsThatEqualANumberAreFlagged)
{
    std::vector<int> cells{1, MISSING_LNG, 1, 3, 1, 2};
    matrix<int> x(3, 2, cells.data(), true);
    matrix<short int> flags(3, 2, short{7});
    M_SetBooleanIfLng(&x, 3, 2, 1, &flags);
    EXPECT_EQ(std::vector<short int>(flags.data, flags.data + 6),
              (std::vector<short int>{-1, 0, -1, 0, -1, 0}));
    M_SetBooleanIfLng(&x, 2, 1, MISSING_LNG, &flags);
    EXPECT_EQ(std::vector<short int>(flags.data, flags.data + 6),
              (std::vector<short int>{0, -1, -1, 0, -1, 0}));
}
