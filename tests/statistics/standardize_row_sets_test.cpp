#include "statistics/standardize_row_sets.h"

#include "statistics/centering.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using doubles = std::vector<double>;

namespace
{

const double none = MISSING_DBL;

doubles byGroup(matrix<double> x, std::vector<int> codes, int nGroups, short int standardize,
                short int unbiased)
{
    auto groups = vectorOf<int>(std::move(codes));
    M_StandardizeByGroup(&x, x.nbrows, x.nbcols, &groups, nGroups, standardize, unbiased);
    return cellsOf(x);
}

} // namespace

TEST(StandardizeCompanions, ByTheStatisticsOfTheTable)
{
    auto first = columnTable(3, {1, 2, 3, 4, none, 8});
    auto second = columnTable(2, {2, 7, none, 10});
    auto third = columnTable(1, {0, 6});
    matrix<double>* x = &first;
    matrix<double>* y = &second;
    matrix<double>* z = &third;
    M_StandardizeMatrix(x, 3, 2, y, 2, z, 1);
    const double sd = std::sqrt(8.0);
    EXPECT_EQ(cellsOf(first), (doubles{-1, 0, 1, -2 / sd, none, 2 / sd}));
    EXPECT_EQ(cellsOf(second), (doubles{0, 5, none, 4 / sd}));
    EXPECT_EQ(cellsOf(third), (doubles{-2, 0}));
}

TEST(StandardizeCompanions, AColumnWithoutSpreadStaysInAll)
{
    auto first = columnTable(2, {5, 5, 1, none, 1, 3});
    auto second = columnTable(1, {6, 7, 4});
    matrix<double>* x = &first;
    matrix<double>* y = &second;
    matrix<double>* z = nullptr;
    M_StandardizeMatrix(x, 2, 3, y, 1, z, 0);
    const double sd = std::sqrt(2.0);
    EXPECT_EQ(cellsOf(first), (doubles{5, 5, 1, none, -1 / sd, 1 / sd}));
    EXPECT_EQ(cellsOf(second), (doubles{6, 7, 2 / sd}));
    M_StandardizeMatrix(x, 2, 0, y, 1, z, 0);
    M_StandardizeMatrix(x, 0, 3, y, 1, z, 0);
    EXPECT_EQ(cellsOf(second), (doubles{6, 7, 2 / sd})) << "no rows, no deviation";
}

TEST(StandardizeByGroup, EachGroupForItself)
{
    const auto table = columnTable(5, {1, 10, 3, 14, 9, 0, 1, none, 1, 9});
    const double sd = std::sqrt(8.0);
    EXPECT_EQ(byGroup(table, {1, 2, 1, 2, 3}, 2, -1, -1),
              (doubles{-1 / std::sqrt(2.0), -2 / sd, 1 / std::sqrt(2.0), 2 / sd, 9, 0, 1, none, 1, 9}))
        << "a column without spread stays";
    EXPECT_EQ(byGroup(table, {1, 2, 1, 2, 3}, 2, -1, 0), (doubles{-1, -1, 1, 1, 9, 0, 1, none, 1, 9}));
    for (const short int other : {short{0}, short{1}}) {
        EXPECT_EQ(byGroup(table, {1, 2, 1, 2, 3}, 2, other, -1), (doubles{-1, -2, 1, 2, 9, 0, 0, none, 0, 9}))
            << "centred";
    }
}

TEST(StandardizeByGroup, CodesOutsideStay)
{
    EXPECT_EQ(byGroup(columnTable(4, {1, 3, 5, 7}), {0, 2, -1, 2}, 2, 0, 0), (doubles{1, -2, 5, 2}));
    EXPECT_EQ(byGroup(columnTable(2, {1, 3}), {3, 3}, 2, 0, 0), (doubles{1, 3}));
    EXPECT_EQ(byGroup(columnTable(2, {1, 3}), {1, 1}, 2000000000, 0, 0), (doubles{-1, 1}))
        << "the number of groups costs nothing";
}

TEST(StandardizeByGroup, WithoutGroupsNothingIsDone)
{
    for (const int nGroups : {0, -1}) {
        EXPECT_EQ(byGroup(columnTable(2, {1, 3}), {1, 1}, nGroups, -1, -1), (doubles{1, 3}));
        EXPECT_EQ(byGroup(columnTable(2, {1, 3}), {0, -1}, nGroups, -1, -1), (doubles{1, 3}));
    }
    auto x = columnTable(2, {1, 3});
    auto groups = vectorOf<int>({1, 1});
    for (const int count : {0, -1}) {
        M_StandardizeByGroup(&x, count, 1, &groups, 1, -1, -1);
        M_StandardizeByGroup(&x, 2, count, &groups, 1, -1, -1);
    }
    EXPECT_EQ(cellsOf(x), (doubles{1, 3}));
}

TEST(StandardizeByGroup, EqualToOneTableAGroup)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        matrix<double> actual(rows, cols, 0.0);
        fillRandomly(cells, actual);
        matrix<double> expected = twinOf(actual);
        auto groups = cells.integers(rows, 0, 4);
        const short int standardize = cells.integer(0, 1) == 0 ? short{-1} : short{0};
        M_StandardizeByGroup(&actual, rows, cols, &groups, 3, standardize, -1);
        for (int group = 1; group <= 3; ++group) {
            const auto n = static_cast<int>(std::count(groups.data, groups.data + rows, group));
            matrix<double> rowsOfGroup(n, cols, 0.0);
            const auto forEachMember = [&](auto move) {
                for (int j = 0; j < cols; ++j) {
                    for (int i = 0, k = 0; i < rows; ++i) {
                        if (groups.data[i] == group) {
                            move(rowsOfGroup.data[k++ + n * j], expected.data[i + rows * j]);
                        }
                    }
                }
            };
            forEachMember([](double& to, double from) { to = from; });
            matrix<double>* work = &rowsOfGroup;
            standardize == -1 ? M_Standardize2(work, n, cols, -1) : M_Center2(work, n, cols);
            forEachMember([](double from, double& to) { to = from; });
        }
        expected.oobValue = actual.oobValue;
        expectSame(actual, expected);
    });
}
