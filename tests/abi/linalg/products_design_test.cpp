#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

using namespace korvel::test;

TEST(FlatDesign, ReplacesTheColumnsAndTellsTheirNumber)
{
    guarded<double> a{2, 1, 2, 1, 0, 1, 9, 9, 9, 9, 9, 9};
    guarded<double> b{1, 1, 1, 0, 1, 1};
    guarded<double> weights{2, 3, 5};
    guarded<double> sums{9, 9, 9, 9};
    int cols = 2;
    EXPECT_EQ(VB_M_ProductDesignAB2(a.data(), 3, &cols, b.data(), 2, 6, weights.data(), sums.data()), 0);
    EXPECT_EQ(cols, 4);
    // The first column is the reference, and 1 in its second row. The second starts with what the first
    // ended.
    expectCells(a, {2, 1, 2, 2, -7.0 / 3.0, 1, 1, -7.0 / 3.0, 1, 1, -7.0 / 3.0, 1});
    expectCells(sums, {10, 7, 7, 7});
}

TEST(FlatDesign, LeavesWhatHasNoColumns)
{
    guarded<double> a{2, 3};
    guarded<double> weights{1, 1};
    int cols = 1;
    EXPECT_EQ(VB_M_ProductDesignAB2(a.data(), 2, &cols, nullptr, 0, 5, weights.data(), nullptr), 0);
    EXPECT_EQ(cols, 0);
    EXPECT_EQ(VB_M_ProductDesignAB2(a.data(), 2, &cols, a.data(), 1, 5, weights.data(), nullptr), 0);
    EXPECT_EQ(cols, 0);
    expectCells(a, {2, 3});
}

TEST(FlatHorizontalProduct, HasAColumnForEachPair)
{
    guarded<double> a{1, 2, 3, 4};
    guarded<double> b{10, 100, 5, KORVEL_MISSING_DBL};
    guarded<double> c{9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(VB_M_ProductHorizAB(a.data(), 2, 2, b.data(), 2, c.data(), 3), 0);
    const double low = -std::numeric_limits<double>::infinity();
    expectCells(c, {10, 200, 5, low, 30, 400, 15, low});
    guarded<double> wide{1, 2, 3, 4, 9, 9, 9, 9};
    int cols = 2;
    EXPECT_EQ(VB_M_ProductHorizAB2(wide.data(), 2, &cols, b.data(), 2), 0);
    EXPECT_EQ(cols, 4);
    expectCells(wide, {10, 200, 5, KORVEL_MISSING_DBL, 30, 400, 15, KORVEL_MISSING_DBL});
    guarded<double> over{1, 2, 3, 4};
    guarded<double> one{10, 100};
    EXPECT_EQ(VB_M_ProductHorizAB(over.data(), 2, 2, one.data(), 1, over.data(), 0), 0)
        << "over its own table";
    expectCells(over, {10, 200, 30, 400});
}

TEST(FlatHorizontalProduct, OfVectorsRunsOverTheSecondFirst)
{
    guarded<double> x{2, 3};
    guarded<double> y{10, 100, 1000};
    guarded<double> out{9, 9, 9, 9, 9, 9};
    EXPECT_EQ(VB_V_ProductHorizV1V2(x.data(), 2, y.data(), 3, out.data()), 0);
    expectCells(out, {20, 200, 2000, 30, 300, 3000});
    guarded<double> wide{2, 3, 9, 9, 9, 9};
    int n = 2;
    EXPECT_EQ(VB_V_ProductHorizV1V22(wide.data(), &n, y.data(), 3), 0);
    EXPECT_EQ(n, 6);
    expectCells(wide, {20, 200, 2000, 30, 300, 3000});
    // As many products as the compiler keeps in registers, and more.
    for (int m = 0; m <= 6; ++m) {
        guarded<double> many(std::vector<double>(static_cast<std::size_t>(2 * m), 9.0));
        const double factors[]{1, 2, 3, 4, 5, 6};
        std::vector<double> expected;
        for (const double first : {2.0, 3.0}) {
            for (int j = 0; j < m; ++j) {
                expected.push_back(first * factors[j]);
            }
        }
        EXPECT_EQ(VB_V_ProductHorizV1V2(x.data(), 2, factors, m, many.data()), 0);
        expectCells(many, expected);
    }
    n = 0;
    EXPECT_EQ(VB_V_ProductHorizV1V22(nullptr, &n, y.data(), 3), 0);
    EXPECT_EQ(n, 0);
}

TEST(FlatHorizontalProduct, OfVectorsMayLieOverThem)
{
    const std::vector<double> x{2, 3};
    const std::vector<double> y{10, 100, 1000};
    const std::vector<double> expected{20, 200, 2000, 30, 300, 3000};
    for (std::size_t shift = 0; shift <= 8; ++shift) {
        std::vector<double> cells(16, 9.0);
        double* const out = cells.data() + 4;
        std::copy(x.begin(), x.end(), cells.begin() + static_cast<std::ptrdiff_t>(shift));
        VB_V_ProductHorizV1V2(cells.data() + shift, 2, y.data(), 3, out);
        EXPECT_EQ(std::vector<double>(out, out + 6), expected) << shift;
        std::copy(y.begin(), y.end(), cells.begin() + static_cast<std::ptrdiff_t>(shift));
        VB_V_ProductHorizV1V2(x.data(), 2, cells.data() + shift, 3, out);
        EXPECT_EQ(std::vector<double>(out, out + 6), expected) << shift;
    }
}

TEST(FlatDesign, ReadsTheOtherTableBeforeItIsWrittenOver)
{
    // The other table stands where the second column of the result goes.
    const std::vector<double> x{1, 2};
    guarded<double> weights{1, 1};
    for (const bool design : {true, false}) {
        guarded<double> a{1, 2, 3, 4, 5, 6};
        guarded<double> sums{9, 9};
        int cols = 1;
        if (design) {
            VB_M_ProductDesignAB2(a.data(), 2, &cols, a.data() + 2, 2, 4, weights.data(), sums.data());
        } else {
            VB_M_ProductHorizAB2(a.data(), 2, &cols, a.data() + 2, 2);
        }
        EXPECT_EQ(cols, 2);
        expectCells(a, {3, 8, 5, 12, 5, 6});
    }
}

TEST(FlatHorizontalProduct, TakesNegativeCountsForNone)
{
    guarded<double> a{2, 3};
    guarded<double> sums{9};
    int cols = -1;
    EXPECT_EQ(VB_M_ProductDesignAB2(a.data(), 1, &cols, a.data(), 1, 5, a.data(), sums.data()), 0);
    EXPECT_EQ(cols, 0);
    cols = 1;
    EXPECT_EQ(VB_M_ProductHorizAB2(a.data(), 1, &cols, a.data(), -1), 0);
    EXPECT_EQ(cols, 0);
    EXPECT_EQ(VB_M_ProductHorizAB(a.data(), -1, 1, a.data(), 1, sums.data(), 0), 0);
    EXPECT_EQ(VB_M_ProductHorizAB(a.data(), 1, -1, a.data(), 1, sums.data(), 0), 0);
    EXPECT_EQ(VB_V_ProductHorizV1V2(a.data(), -1, a.data(), 2, sums.data()), 0);
    EXPECT_EQ(VB_V_ProductHorizV1V2(a.data(), 2, a.data(), -1, sums.data()), 0);
    int n = 2;
    EXPECT_EQ(VB_V_ProductHorizV1V22(a.data(), &n, a.data(), -1), 0);
    EXPECT_EQ(n, 0);
    expectCells(a, {2, 3});
    expectCells(sums, {9});
}
