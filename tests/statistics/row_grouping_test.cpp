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

TEST(GroupBy, ReducesEachRunOfKeysToARow)
{
    // The key, a quantity, and a quality.
    std::vector<double> cells{2, 1, 2, 2, 10, 4, 30, 5, 1, 0, 3, 3};
    matrix<double> x(4, 3, cells.data(), true);
    matrix<int> kinds(3, 1, 0);
    kinds.data[2] = 5;
    const auto grouped = [&](int method) {
        matrix<double> out(4, 3, 0.0);
        int groups = -1;
        M_GroupBy(&x, 4, 3, &kinds, 1, method, groups, &out);
        EXPECT_EQ(groups, 2);
        EXPECT_EQ(out.getElement(0, 0), 1.0);
        EXPECT_EQ(out.getElement(1, 0), 2.0);
        EXPECT_EQ(out.getElement(0, 2), 0.0);
        EXPECT_EQ(out.getElement(1, 2), 3.0) << "the mode";
        EXPECT_EQ(out.getElement(0, 1), method == 7 ? 0.0 : 4.0);
        return out.getElement(1, 1);
    };
    const std::vector<double> expected{45, 15, 10, 10, 5, 5, 30, 25};
    for (int method = 0; method < 8; ++method) {
        EXPECT_EQ(grouped(method), expected[static_cast<std::size_t>(method)]) << method;
    }
    matrix<double> out(4, 3, 0.0);
    int groups = -1;
    M_GroupBy(&x, 0, 3, &kinds, 1, 0, groups, &out);
    EXPECT_EQ(groups, 0);
}
