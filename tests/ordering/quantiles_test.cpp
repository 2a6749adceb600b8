#include "ordering/quantiles.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(Quantile, OfAShortVectorReadsTheSpareSlot)
{
    matrix<double> x(2, 1, 3.0);
    EXPECT_SAME_BITS(V_Quantile(&x, 3, 0.0), -1.0);
    EXPECT_SAME_BITS(V_Quantile(&x, 3, 0.5), 3.0);
}

TEST(Quantile, OfAColumn)
{
    matrix<double> table(3, 2, 0.0);
    for (int i = 0; i < 3; ++i) {
        table.setElement(i, 1, 10.0 * (i + 1));
    }
    matrix<double> w(3, 1, 1.0);
    short int flags[] = {0, 0, -1};
    EXPECT_SAME_BITS(M_QuantileMW(&table, 3, 2, flags, &w, 0.5), 15.0);
    EXPECT_SAME_BITS(M_QuantileMW(&table, 3, 1, flags, &w, 0.5), 0.0);
}

TEST(Quantile, OfWeightsIsTheFirstBehindTheShare)
{
    matrix<double> x = vectorOf<double>({3, 1, 2});
    matrix<double> w = vectorOf<double>({2, 1, 1});
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &w, 0.5), 2.5) << "a share that is met exactly";
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &w, 0.6), 3.0);
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &w, 0.0), 1.0);
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &w, 1.0), 3.0);
    EXPECT_SAME_BITS(V_QuantileW(&x, 0, &w, 0.5), MISSING_DBL);
    matrix<double> constant(3, 1, 7.0);
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &constant, 0.25), 1.5);
    matrix<double> zeros(3, 1, 0.0);
    EXPECT_SAME_BITS(V_QuantileW(&x, 3, &zeros, 0.25), MISSING_DBL);
    EXPECT_EQ(x.data[0], 3.0);
    EXPECT_EQ(w.data[0], 2.0);
}

TEST(Quantile, LeavesOutWhatItIsToldTo)
{
    matrix<double> x = vectorOf<double>({MISSING_DBL, 4, 1, 2, 8});
    matrix<double> w = vectorOf<double>({1, 3, 3, 3, 0});
    short int flags[] = {0, 0, 0, 0, -1};
    // 1, 2 and 4 are kept.
    EXPECT_SAME_BITS(V_QuantileM(&x, 5, flags, 0.25), 1.5);
    EXPECT_SAME_BITS(V_QuantileM(&x, 0, flags, 0.25), MISSING_DBL);
    EXPECT_SAME_BITS(V_QuantileM(&x, 1, flags, 0.25), MISSING_DBL);
    EXPECT_SAME_BITS(V_QuantileMW(&x, 5, flags, &w, 0.25), 1.5) << "kept weights are constant";
    w.data[1] = 9.0;
    EXPECT_SAME_BITS(V_QuantileMW(&x, 5, flags, &w, 0.5), 4.0);
    EXPECT_SAME_BITS(V_QuantileMW(&x, 1, flags, &w, 0.5), MISSING_DBL);
    EXPECT_SAME_BITS(V_QuantileW2(&x, 5, &w, 0.5), 4.0) << "8 has no weight";
    w.data[1] = 3.0;
    EXPECT_SAME_BITS(V_QuantileW2(&x, 5, &w, 0.25), 1.5);
    matrix<double> negative(5, 1, -1.0);
    EXPECT_SAME_BITS(V_QuantileW2(&x, 5, &negative, 0.5), MISSING_DBL);
}

TEST(Quantile, OfThirteenSharesSortsTheVector)
{
    matrix<double> x = vectorOf<double>({5, 1, 4, 2, 3});
    matrix<double> out(13, 1, 0.0);
    V_Quantiles13(&x, 5, &out);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(x.data[i], i + 1.0);
    }
    // Of 1 to 5 each quantile is its position, which is 4 p + 0.5 up to one half and 4 p + 1 above.
    const double expected[] = {1, 1, 1.3, 1.5, 1.7, 2.1, 2.5, 3.4, 3.8, 4, 4.2, 4.6, 4.8};
    for (int i = 0; i < 13; ++i) {
        EXPECT_NEAR(out.data[i], expected[i], 1e-14) << i;
    }
}
