#include "linalg/vector_products.h"

#include "reference/cell_products.h"
#include "support/random_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

TEST(VectorProducts, InnerProducts)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto y = cells.values(n);
        auto w = cells.weights(n);
        double sum = 0.0;
        double weighted = 0.0;
        double total = 0.0;
        for (int i = 0; i < n; ++i) {
            sum += x[i] * y[i];
            if (x[i] != MISSING_DBL && y[i] != MISSING_DBL) {
                weighted += x[i] * y[i] * w[i];
            }
            if (w[i] != MISSING_DBL) {
                total += w[i];
            }
        }
        EXPECT_SAME_BITS(V_ProductTrV1V2(&x, n, &y), sum);
        EXPECT_SAME_BITS(V_ProductWTrV1V2(&x, n, &y, &w), total > 0.0 ? weighted / total : weighted);
    });
}

TEST(VectorProducts, WeightOfAnElementThatIsLeftOutCounts)
{
    auto x = vectorOf<double>({2.0, MISSING_DBL, 5.0});
    auto y = vectorOf<double>({3.0, 1.0, 7.0});
    auto w = vectorOf<double>({1.0, 2.0, MISSING_DBL});
    EXPECT_SAME_BITS(V_ProductWTrV1V2(&x, 2, &y, &w), 6.0 / 3.0);
    EXPECT_SAME_BITS(V_ProductWTrV1V2(&x, 3, &y, &w), (6.0 + 35.0 * MISSING_DBL) / 3.0);
    matrix<double> none(3, 1, 0.0);
    EXPECT_SAME_BITS(V_ProductWTrV1V2(&x, 2, &y, &none), 0.0) << "without weight the sum is not divided";
    auto cancelling = vectorOf<double>({3.0, -3.0});
    EXPECT_SAME_BITS(V_ProductWTrV1V2(&x, 2, &y, &cancelling), 18.0);
}

TEST(VectorProducts, ElementByElement)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(n);
        auto y = cells.values(held);
        matrix<double> actual(n, 1, 0.5);
        matrix<double> expected(n, 1, 0.5);
        V_ProductV1V2(&x, n, &y, &actual);
        reference::fill(expected, n, 1, [&](int i, int) { return reference::orMissing(x[i], y[i]); });
        EXPECT_TRUE(sameTable(actual, expected));

        matrix<double> inPlace(x);
        matrix<double> expectedInPlace(x);
        V_ProductV1V22(&inPlace, n, &y);
        reference::fill(expectedInPlace, n, 1, [&](int i, int) { return x[i] * y[i]; });
        EXPECT_TRUE(sameTable(inPlace, expectedInPlace));
    });
}

TEST(VectorProducts, OuterProduct)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto x = cells.values(s.n - s.rowsShort);
        auto y = cells.values(s.n);
        matrix<double> actual(s.n, s.n, 0.5);
        matrix<double> expected(s.n, s.n, 0.5);
        V_ProductV1TrV2(&x, s.n, &y, &actual);
        reference::fill(expected, s.n, s.n, [&](int i, int j) { return x[i] * y[j]; });
        EXPECT_TRUE(sameTable(actual, expected));
    });
    auto x = vectorOf<double>({1.0, 2.0});
    matrix<double> larger(3, 2, 9.0);
    V_ProductV1TrV2(&x, 2, &x, &larger);
    EXPECT_EQ(larger.nbrows, 3);
    EXPECT_SAME_BITS(larger.getElement(1, 1), 4.0);
    EXPECT_SAME_BITS(larger.getElement(2, 0), 0.0);
    EXPECT_SAME_BITS(larger.getElement(2, 1), 9.0);
}

TEST(VectorProducts, ProductOfAllElements)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto k = cells.integers(held, -9, 9);
        double product = 1.0;
        double ofIntegers = 1.0;
        for (int i = 0; i < n; ++i) {
            product *= x[i];
            ofIntegers *= k[i];
        }
        EXPECT_SAME_BITS(V_Product1toN(&x, n), product);
        EXPECT_SAME_BITS(V_Product1toN(&k, n), ofIntegers);
    });
    auto thirteen = vectorOf<int>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    EXPECT_SAME_BITS(V_Product1toN(&thirteen, 13), 6227020800.0) << "13!, past what an int holds";
}

TEST(VectorProducts, ElementByElementTakeTheResultAsItIs)
{
    auto x = vectorOf<double>({2.0, 3.0});
    matrix<double> row(1, 3, 9.0);
    V_ProductV1V2(&x, 2, &x, &row);
    EXPECT_EQ(row.nbcols, 3);
    EXPECT_SAME_BITS(row.data[0], 4.0);
    EXPECT_SAME_BITS(row.data[1], 9.0);
    matrix<double> one(1, 1, 8.0);
    V_ProductV1V2(&x, 2, &x, &one);
    EXPECT_EQ(one.nbrows, 1);
    EXPECT_SAME_BITS(one.data[0], 4.0);
}
