#include "statistics/row_grouping.h"

#include <gtest/gtest.h>
#include <vector>

TEST(GroupByW, PutsTheWeightsIntoTheOrderOfTheRows)
{
    double cells[] = {2, 1, 2, 1, 10, 4, 30, 6};
    double weights[] = {3, 1, 5, 4};
    matrix<double> x(4, 2, cells, true);
    matrix<double> w(4, 1, weights, true);
    matrix<int> kinds(2, 1, 0);
    matrix<double> out(4, 2, 0.0);
    int groups = -1;
    M_GroupByW(&x, 4, 2, &kinds, 1, 0, groups, &out, &w);
    EXPECT_EQ(groups, 2);
    EXPECT_EQ(std::vector<double>(weights, weights + 4), (std::vector<double>{1, 4, 3, 5}));
    EXPECT_EQ(std::vector<double>(out.data, out.data + 8),
              (std::vector<double>{1, 2, 2, 2, 28, 180, 10, 30}));
}

TEST(Dedupe, PutsKeptRowsFirstWhereADroppedOneHasTheLeastIdentifier)
{
    // Rows (data, identifier): (1, 9), (0, 5), (1, 2), (1, 4)
    double cells[] = {1, 0, 1, 1, 9, 5, 2, 4};
    matrix<double> x(4, 2, cells, true);
    matrix<double> out(4, 4, -7.0);
    int kept = -1;
    M_Dedupe(&x, 4, 1, kept, &out);
    EXPECT_EQ(kept, 2);
    EXPECT_EQ(std::vector<double>(out.data, out.data + 16), (std::vector<double>{0, 1, 1, 1, //
                                                                                 1, 3, 0, 0, //
                                                                                 5, 9, 2, 4, //
                                                                                 1, 1, 0, 0}));
}
