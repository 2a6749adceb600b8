#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(FlatVectorProducts, AllOfThem)
{
    guarded x({2.0, MISSING_DBL, -3.0});
    guarded y({0.5, 2.0, 4.0});
    guarded out(std::vector<double>(3, 9.0));
    EXPECT_SAME_BITS(VB_V_ProductTrV1V2(x.data(), 1, y.data()), 1.0);
    EXPECT_SAME_BITS(VB_V_ProductTrV1V2(x.data(), 2, y.data()), 1.0 + MISSING_DBL * 2.0);
    EXPECT_SAME_BITS(VB_V_ProductTrV1V2(nullptr, 0, nullptr), 0.0);
    EXPECT_EQ(VB_V_ProductV1V2(x.data(), 3, y.data(), out.data()), 0);
    expectCells(out, {1.0, MISSING_DBL, -12.0});

    guarded outer(std::vector<double>(4, 9.0));
    guarded z({3.0, 5.0});
    EXPECT_EQ(VB_V_ProductV1TrV2(z.data(), 2, y.data(), outer.data()), 0);
    expectCells(outer, {1.5, 2.5, 6.0, 10.0});

    EXPECT_EQ(VB_V_ProductV1V22(y.data(), 3, y.data()), 0);
    expectCells(y, {0.25, 4.0, 16.0});
    EXPECT_EQ(VB_V_ProductV1V22(nullptr, 0, nullptr), 0);
    EXPECT_EQ(VB_V_ProductV1V2(nullptr, 0, nullptr, nullptr), 0);
    EXPECT_EQ(VB_V_ProductV1TrV2(nullptr, 0, nullptr, nullptr), 0);
}

TEST(FlatVectorProducts, ProductsOfAllElements)
{
    guarded x({0.5, 3.0, -4.0});
    EXPECT_SAME_BITS(VB_V_Product1toNDbl(x.data(), 3), -6.0);
    EXPECT_SAME_BITS(VB_V_Product1toNDbl(nullptr, 0), 1.0);
    guarded<int> k({100000, 100000, 3});
    EXPECT_SAME_BITS(VB_V_Product1toNLng(k.data(), 3), 3e10);
    EXPECT_SAME_BITS(VB_V_Product1toNLng(nullptr, 0), 1.0);
}
