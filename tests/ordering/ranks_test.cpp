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
