#include "ordering/ranks.h"

#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

TEST(Ranks, LowestRankOfATiedGroup)
{
    matrix<double> x = vectorOf<double>({20, 10, 30, 20});
    matrix<double> ranks(4, 1, 0.0);
    matrix<double> sizes(4, 1, 0.0);
    int ties = -1;
    V_GetRanksTiesMinDbl2(&x, 4, -1, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 4), (std::vector<double>{2, 1, 4, 2}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(sizes[0], 2.0);
    V_GetRanksTiesMinDbl2(&x, 4, 0, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 4), (std::vector<double>{1, 2, 2, 4}));
    EXPECT_EQ(std::vector<double>(x.data, x.data + 4), (std::vector<double>{10, 20, 20, 30}));
}

TEST(Ranks, OfEachColumnInTurn)
{
    matrix<double> x(3, 2, 0.0);
    const double cells[] = {3, 1, 2, 5, 5, 4};
    std::copy(cells, cells + 6, x.data);
    matrix<double> w(3, 1, 1.0);
    matrix<double> ranks(3, 2, 0.0);
    matrix<double> sizes(3, 2, 0.0);
    int ties[] = {-1, -1};
    M_GetRanksTies(&x, 3, 2, -1, &w, &ranks, ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 6), (std::vector<double>{3, 1, 2, 2.5, 2.5, 1}));
    EXPECT_EQ(ties[0], 0);
    EXPECT_EQ(ties[1], 1);
    EXPECT_EQ(sizes.getElement(0, 1), 2.0);
    EXPECT_EQ(std::vector<double>(x.data, x.data + 6), (std::vector<double>{3, 1, 2, 5, 5, 4}));
}

TEST(Ranks, GrowByOneAtEachValue)
{
    matrix<double> x = vectorOf<double>({20, 10, 30, 20});
    matrix<double> ranks(4, 1, 0.0);
    V_GetRanks(&x, 4, &ranks);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 4), (std::vector<double>{2, 1, 3, 2}));
    EXPECT_EQ(std::vector<double>(x.data, x.data + 4), (std::vector<double>{20, 10, 30, 20}));
    matrix<int> integers(4, 1, 0);
    V_GetRanks(&x, 4, &integers);
    EXPECT_EQ(std::vector<int>(integers.data, integers.data + 4), (std::vector<int>{2, 1, 3, 2}));
}

TEST(Ranks, OfTiedGroupsAreTheirMean)
{
    matrix<double> x = vectorOf<double>({20, 10, MISSING_DBL, 30, 20});
    matrix<double> ranks(5, 1, 0.0);
    matrix<double> sizes(5, 1, 0.0);
    int ties = -1;
    V_GetRanksTies2(&x, 5, -1, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 5),
              (std::vector<double>{2.5, 1, MISSING_DBL, 4, 2.5}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(sizes[0], 2.0);
    EXPECT_EQ(x.data[0], 20.0);
    matrix<double> w(5, 1, 1.0);
    matrix<double> integers(5, 1, 0.0);
    V_GetRanksTiesInt(&x, 5, &w, &integers, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(integers.data, integers.data + 5),
              (std::vector<double>{2, 1, MISSING_DBL, 4, 3}));
    EXPECT_EQ(ties, 1);
    V_GetRanksTies2(&x, 5, 0, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 5),
              (std::vector<double>{MISSING_DBL, 1, 2.5, 2.5, 4}));
    EXPECT_EQ(x.data[4], 30.0) << "stays sorted";
}

TEST(Ranks, TakeWeightsForRepetitions)
{
    matrix<double> x = vectorOf<double>({2, 1});
    matrix<double> w = vectorOf<double>({1, 3});
    matrix<double> ranks(2, 1, 0.0);
    matrix<double> sizes(2, 1, 0.0);
    int ties = -1;
    V_GetRanksTies(&x, 2, -1, &w, &ranks, &ties, &sizes);
    EXPECT_EQ(std::vector<double>(ranks.data, ranks.data + 2), (std::vector<double>{4, 2}));
    EXPECT_EQ(std::vector<double>(w.data, w.data + 2), (std::vector<double>{1, 3}));
    EXPECT_EQ(ties, 1);
    EXPECT_EQ(sizes[0], 3.0);
}

TEST(Ranks, NumberTheCellsOfATriangle)
{
    int k = 0;
    for (int i = 1; i <= 4; ++i) {
        for (int j = i + 1; j <= 4; ++j) {
            int row = -1;
            int col = -1;
            V_GetPositionInMatNNm1o2(++k, 4, &row, &col);
            EXPECT_EQ(row, i) << k;
            EXPECT_EQ(col, j) << k;
        }
    }
    int row = -1;
    int col = -1;
    V_GetPositionInMatNNm1o2(1, 1, &row, &col);
    EXPECT_EQ(row, -1);
    EXPECT_EQ(col, -1);
}
