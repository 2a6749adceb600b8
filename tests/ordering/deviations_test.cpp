#include "ordering/deviations.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(Deviations, MeanAbsoluteIsWeighted)
{
    matrix<double> x = vectorOf<double>({1, 3, MISSING_DBL, 8});
    matrix<double> w = vectorOf<double>({1, 3, 5, 7});
    std::vector<short int> flags{0, 0, 0, 1};
    // (1 * 1 + 3 * 1) / 4
    EXPECT_SAME_BITS(V_MeanAbsDev(&x, 4, 2.0, flags.data(), &w), 1.0);
    flags[3] = 0;
    EXPECT_SAME_BITS(V_MeanAbsDev(&x, 4, 2.0, flags.data(), &w), (1.0 + 3.0 + 7.0 * 6.0) / 11.0);
    EXPECT_SAME_BITS(V_MeanAbsDev(&x, 0, 2.0, flags.data(), &w), MISSING_DBL);
    matrix<double> balanced = vectorOf<double>({1, -1, 5, 0});
    EXPECT_SAME_BITS(V_MeanAbsDev(&x, 4, 2.0, flags.data(), &balanced), MISSING_DBL);
}

TEST(Deviations, MedianAbsoluteIsWeightedUnlessTheWeightsAreConstant)
{
    matrix<double> x = vectorOf<double>({1, 2, 4, 8});
    matrix<double> constant = vectorOf<double>({2, MISSING_DBL, 2, 2});
    matrix<double> uneven = vectorOf<double>({1, 1, 1, 7});
    std::vector<short int> flags{0, 0, 0, 0};
    EXPECT_SAME_BITS(V_MedianAbsDev(&x, 4, 0.0, flags.data(), &constant), 3.0);
    EXPECT_SAME_BITS(V_MedianAbsDev(&x, 4, 0.0, flags.data(), &uneven), 8.0);
    EXPECT_SAME_BITS(V_MedianAbsDev(&x, 4, 5.0, flags.data(), &constant), 3.0);
    EXPECT_EQ(x.data[0], 1.0);
}

TEST(Deviations, WinsorizingPullsInTheTails)
{
    matrix<double> x = vectorOf<double>({1, 2, 3, 4, MISSING_DBL, 10});
    V_Winsorize2(&x, 6, 0.0, 1.0);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{1, 2, 3, 4, MISSING_DBL, 10}));
    // The missing value takes part: 2 and 4 are the quantiles.
    V_Winsorize2(&x, 6, 0.4, 0.8);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{2, 2, 3, 4, MISSING_DBL, 4}));
}
