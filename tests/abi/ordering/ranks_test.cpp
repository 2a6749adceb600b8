#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::valuesOf;

TEST(FlatRanks, DenseRanksKeepTheirData)
{
    guarded<double> x{20, 10, 30, 20};
    guarded<double> out{0, 0, 0, 0};
    EXPECT_EQ(VB_V_GetRanksDbl(x.data(), 4, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{2, 1, 3, 2}));
    EXPECT_EQ(valuesOf(x), (doubles{20, 10, 30, 20}));
    guarded<int> integers{0, 0, 0, 0};
    EXPECT_EQ(VB_V_GetRanksLng(x.data(), 4, integers.data()), 0);
    EXPECT_EQ(valuesOf(integers), (ints{2, 1, 3, 2}));
}

TEST(FlatRanks, MidRanksAgreeWithR)
{
    // R 4.2.2: rank(x, ties.method = "average") and "first"
    guarded<double> x{3.7, -1.25, 8, 0.5, 3.7, 12.125, -4, 0.5, 0.5, 7.75, 2.2};
    const doubles original = x.values();
    guarded<double> ranks{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    guarded<double> sizes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    guarded<double> ones{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    int ties = -1;
    EXPECT_EQ(VB_V_GetRanksTiesDbl2(x.data(), 11, -1, ranks.data(), &ties, sizes.data()), 0);
    EXPECT_EQ(valuesOf(ranks), (doubles{7.5, 2, 10, 4, 7.5, 11, 1, 4, 4, 9, 6}));
    EXPECT_EQ(valuesOf(x), original);
    EXPECT_EQ(ties, 2);
    EXPECT_EQ(valuesOf(sizes)[0], 3.0);
    EXPECT_EQ(valuesOf(sizes)[1], 2.0);

    EXPECT_EQ(VB_V_GetRanksTiesDbl(x.data(), 11, -1, ones.data(), ranks.data(), &ties, sizes.data()), 0);
    EXPECT_EQ(valuesOf(ranks), (doubles{7.5, 2, 10, 4, 7.5, 11, 1, 4, 4, 9, 6}));
    EXPECT_EQ(ties, 2);

    EXPECT_EQ(VB_V_GetRanksTiesIntDbl(x.data(), 11, ones.data(), ranks.data(), &ties, sizes.data()), 0);
    EXPECT_EQ(valuesOf(ranks), (doubles{7, 2, 10, 3, 8, 11, 1, 4, 5, 9, 6}));
    EXPECT_EQ(ties, 2);
    EXPECT_EQ(valuesOf(x), original);
}

TEST(FlatRanks, WeightsCountAsRepetitions)
{
    guarded<double> x{2, 1};
    guarded<double> w{1, 3};
    guarded<double> ranks{0, 0};
    guarded<double> sizes{0, 0};
    int ties = -1;
    VB_V_GetRanksTiesDbl(x.data(), 2, 0, w.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
    EXPECT_EQ(valuesOf(w), (doubles{3, 1}));
    EXPECT_EQ(valuesOf(ranks), (doubles{2, 4}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(valuesOf(sizes)[0], 3.0);

    guarded<double> y{2, 1};
    guarded<double> v{1, 3};
    VB_V_GetRanksTiesDbl(y.data(), 2, -1, v.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(y), (doubles{2, 1}));
    EXPECT_EQ(valuesOf(v), (doubles{1, 3}));
    EXPECT_EQ(valuesOf(ranks), (doubles{4, 2}));

    VB_V_GetRanksTiesDbl(y.data(), 2, 1, v.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(y), (doubles{1, 2})) << "restored at -1 only";
    EXPECT_EQ(valuesOf(v), (doubles{3, 1}));
    EXPECT_EQ(valuesOf(ranks), (doubles{2, 4}));
}

TEST(FlatRanks, HeavyElementsCountAsGroupsUnlessTied)
{
    // In order: 1 (weight 2), 5 and 5 (weights 2 and 3), 7 (weight 4).
    guarded<double> x{1, 5, 5, 7};
    guarded<double> w{2, 2, 3, 4};
    guarded<double> ranks{0, 0, 0, 0};
    guarded<double> sizes{0, 0, 0, 0};
    int ties = -1;
    VB_V_GetRanksTiesDbl(x.data(), 4, -1, w.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{1.5, 5, 5, 9.5}));
    EXPECT_EQ(ties, 3);
    EXPECT_EQ(valuesOf(sizes), (doubles{2, 5, 4, 0}));
}

TEST(FlatRanks, TheFirstGroupLooksAtTheFirstTwoElementsWhateverIsMissing)
{
    // Sorted: missing, missing, 4 (weight 3), 6. The first two are equal, so the 4 with its weight of 3
    // starts no group.
    guarded<double> x{MISSING_DBL, MISSING_DBL, 4, 6};
    guarded<double> w{1, 1, 3, 1};
    guarded<double> ranks{0, 0, 0, 0};
    guarded<double> sizes{0, 0, 0, 0};
    int ties = -1;
    VB_V_GetRanksTiesDbl(x.data(), 4, -1, w.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{MISSING_DBL, MISSING_DBL, 2, 4}));
    EXPECT_EQ(ties, 0);

    guarded<double> y{MISSING_DBL, 4, 4};
    guarded<double> v{1, 3, 1};
    guarded<double> three{0, 0, 0};
    guarded<double> groups{0, 0, 0};
    VB_V_GetRanksTiesDbl(y.data(), 3, -1, v.data(), three.data(), &ties, groups.data());
    EXPECT_EQ(valuesOf(three), (doubles{MISSING_DBL, 2.5, 2.5}));
    EXPECT_EQ(ties, 2);
    EXPECT_EQ(valuesOf(groups), (doubles{3, 4, 0}));
}

TEST(FlatRanks, MissingOnlyAndNothing)
{
    guarded<double> x{MISSING_DBL, MISSING_DBL};
    guarded<double> w{1, 1};
    guarded<double> ranks{0, 0};
    guarded<double> sizes{0, 0};
    int ties = 9;
    VB_V_GetRanksTiesDbl(x.data(), 2, -1, w.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(ties, 0);
    EXPECT_EQ(valuesOf(ranks), (doubles{MISSING_DBL, MISSING_DBL}));
    VB_V_GetRanksTiesIntDbl(x.data(), 2, w.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{MISSING_DBL, MISSING_DBL}));
    ties = 9;
    VB_V_GetRanksTiesDbl2(x.data(), 0, -1, ranks.data(), &ties, sizes.data());
    EXPECT_EQ(ties, 0);
}

TEST(FlatRanks, TiesAreCloserThanTheirWidth)
{
    guarded<double> x{1, 1 + 8.9e-16, 1 + 2e-15};
    guarded<double> ranks{0, 0, 0};
    guarded<double> sizes{0, 0, 0};
    int ties = -1;
    VB_V_GetRanksTiesDbl2(x.data(), 3, -1, ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{1.5, 1.5, 3}));
    EXPECT_EQ(ties, 1);

    guarded<double> apart{0, 1e-15, 1.9e-15};
    VB_V_GetRanksTiesDbl2(apart.data(), 3, -1, ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{1, 2.5, 2.5})) << "exactly the width is no tie";
    guarded<double> close{2e-16, 1e-16, 3e-16};
    VB_V_GetRanksDbl(close.data(), 3, ranks.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{2, 1, 3})) << "dense ranks know no ties but equals";
}

TEST(FlatRanks, IntegerRanksAndGroupsMayReplaceTheirData)
{
    int ties = -1;
    guarded<double> ones{1, 1, 1, 1};
    guarded<double> ranks{0, 0, 0, 0};
    guarded<double> sizes{0, 0, 0, 0};
    guarded<double> x{20, 10, 30, 20};
    VB_V_GetRanksTiesIntDbl(x.data(), 4, ones.data(), x.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(x), (doubles{2, 1, 4, 3}));
    guarded<double> y{20, 10, 30, 20};
    VB_V_GetRanksTiesIntDbl(y.data(), 4, ones.data(), ranks.data(), &ties, y.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{2, 1, 4, 3}));
    EXPECT_EQ(valuesOf(y), (doubles{2, 10, 30, 20}));

    guarded<double> z{5, 1, 5, 9};
    guarded<double> w{2, 3, 1, 0.5};
    VB_V_GetRanksTiesIntDbl(z.data(), 4, w.data(), w.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(w), (doubles{2, 1, 3, 4}));
    EXPECT_EQ(ties, 2);
    EXPECT_EQ(valuesOf(sizes)[0], 3.0);
    EXPECT_EQ(valuesOf(sizes)[1], 3.0);
}

TEST(FlatRanks, IntegerRanksCountFromTheFirstThatIsNotMissing)
{
    guarded<double> x{7, MISSING_DBL, 3, MISSING_DBL, 7};
    guarded<double> ones{1, 1, 1, 1, 1};
    guarded<double> ranks{0, 0, 0, 0, 0};
    guarded<double> sizes{0, 0, 0, 0, 0};
    int ties = -1;
    VB_V_GetRanksTiesIntDbl(x.data(), 5, ones.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(ranks), (doubles{2, MISSING_DBL, 1, MISSING_DBL, 3}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(valuesOf(sizes)[0], 2.0);
}

TEST(FlatRanks, WeightsMayBeTheElementsThemselves)
{
    guarded<double> x{3, 1, 2};
    guarded<double> ranks{0, 0, 0};
    guarded<double> sizes{0, 0, 0};
    int ties = -1;
    VB_V_GetRanksTiesDbl(x.data(), 3, -1, x.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(x), (doubles{3, 1, 2}));
    EXPECT_EQ(valuesOf(ranks), (doubles{5, 1, 2.5}));
    EXPECT_EQ(valuesOf(sizes), (doubles{2, 3, 0}));
    VB_V_GetRanksTiesDbl(x.data(), 3, 0, x.data(), ranks.data(), &ties, sizes.data());
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3}));
    EXPECT_EQ(valuesOf(ranks), (doubles{1, 2.5, 5}));
}

TEST(FlatRanks, PositionsInSquareTables)
{
    int row = 0;
    int col = 0;
    int k = 0;
    for (int i = 1; i <= 4; ++i) {
        for (int j = i + 1; j <= 4; ++j) {
            EXPECT_EQ(VB_V_GetPositionInMatNNm1o2(++k, 4, &row, &col), 0);
            EXPECT_EQ(row, i);
            EXPECT_EQ(col, j);
        }
    }
    row = col = -7;
    VB_V_GetPositionInMatNNm1o2(1, 1, &row, &col);
    EXPECT_EQ(row, -7);
    EXPECT_EQ(col, -7);

    k = 0;
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= 3; ++j) {
            EXPECT_EQ(VB_V_GetPositionInMatNN(++k, 3, &row, &col), 0);
            EXPECT_EQ(row, i);
            EXPECT_EQ(col, j);
        }
    }
    row = -7;
    VB_V_GetPositionInMatNN(1, 0, &row, &col);
    EXPECT_EQ(row, -7);
}

TEST(FlatRanks, DistinctRanksMayTakeThePlaceOfTheirNumbers)
{
    guarded<double> x{30, 10, 20, 10};
    guarded<double> w{1, 1, 1, 1};
    guarded<double> sizes{0, 0, 0, 0};
    int ties = -1;
    EXPECT_EQ(VB_V_GetRanksTiesIntDbl(x.data(), 4, w.data(), x.data(), &ties, sizes.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{4, 1, 3, 2}));
    EXPECT_EQ(ties, 1);
}
