#include "ordering/survey_boxes.h"

#include "support/column_tables.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

/** Top and bottom in turn, of one level, of two and of three. */
numbers boxesOf(matrix<double>& x, int n, matrix<double>& w)
{
    numbers b(6, -1.0);
    V_TopBottom3Box(&x, n, &w, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]);
    return b;
}

numbers boxesOf(matrix<double>& x, int n, matrix<double>& w, matrix<double>& group, double value)
{
    numbers b(6, -1.0);
    V_TopBottom3BoxConditional(&x, n, &w, &group, value, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]);
    return b;
}

} // namespace

TEST(SurveyBoxes, AreCumulative)
{
    matrix<double> x = vectorOf<double>({5, 4, 3, 2, 1});
    matrix<double> ones(5, 1, 1.0);
    EXPECT_EQ(boxesOf(x, 5, ones), (numbers{1, 1, 2, 2, 3, 3}));
    matrix<double> w = vectorOf<double>({1, 2, 4, 8, 16});
    EXPECT_EQ(boxesOf(x, 5, w), (numbers{1, 16, 3, 24, 7, 28}));
    EXPECT_EQ(cellsOf(w), (numbers{1, 2, 4, 8, 16}));
    EXPECT_EQ(cellsOf(x), (numbers{5, 4, 3, 2, 1}));
    EXPECT_EQ(boxesOf(x, 0, w), numbers(6, 0.0));
}

TEST(SurveyBoxes, OfAGroupCountTheWeightThatStoodAtTheSortedPosition)
{
    matrix<double> x = vectorOf<double>({3, 1, 2});
    matrix<double> group = vectorOf<double>({1, 1, 0});
    matrix<double> w = vectorOf<double>({10, 20, 30});
    EXPECT_EQ(boxesOf(x, 3, w, group, 1.0), (numbers{30, 10, 30, 10, 40, 40}));
    EXPECT_EQ(cellsOf(w), (numbers{20, 30, 10}));
    EXPECT_EQ(cellsOf(group), (numbers{1, 1, 0}));
    EXPECT_EQ(cellsOf(x), (numbers{3, 1, 2}));
}
