#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::valuesOf;

namespace
{

doubles boxesOf(guarded<double>& x, int n, guarded<double>& w)
{
    doubles boxes(6, -1.0);
    EXPECT_EQ(Cpp_V_TopBottom3Box(x.data(), n, w.data(), &boxes[0], &boxes[1], &boxes[2], &boxes[3],
                                  &boxes[4], &boxes[5]),
              0);
    return boxes;
}

doubles boxesOf(guarded<double>& x, int n, guarded<double>& w, guarded<double>& group, double value)
{
    doubles boxes(6, -1.0);
    EXPECT_EQ(Cpp_V_TopBottom3BoxConditional(x.data(), n, w.data(), group.data(), value, &boxes[0], &boxes[1],
                                             &boxes[2], &boxes[3], &boxes[4], &boxes[5]),
              0);
    return boxes;
}

} // namespace

TEST(FlatSurveyBoxes, AreCumulative)
{
    guarded<double> x{5, 4, 3, 2, 1};
    guarded<double> ones{1, 1, 1, 1, 1};
    EXPECT_EQ(boxesOf(x, 5, ones), (doubles{1, 1, 2, 2, 3, 3}));
    guarded<double> w{1, 2, 4, 8, 16};
    EXPECT_EQ(boxesOf(x, 5, w), (doubles{1, 16, 3, 24, 7, 28}));
    EXPECT_EQ(valuesOf(w), (doubles{1, 2, 4, 8, 16}));
    guarded<double> few{2, 2 + 1e-13, 1};
    guarded<double> fewOnes{1, 1, 1};
    EXPECT_EQ(boxesOf(few, 3, fewOnes), (doubles{2, 1, 3, 3, 3, 3}));
    EXPECT_EQ(boxesOf(x, 0, ones), (doubles{0, 0, 0, 0, 0, 0}));
    guarded<double> apart{1, 1 + 1e-11, 1 + 2e-11};
    EXPECT_EQ(boxesOf(apart, 3, fewOnes), (doubles{1, 1, 2, 2, 3, 3}));
    guarded<double> drifting{0, 6e-13, 1.2e-12};
    EXPECT_EQ(boxesOf(drifting, 3, fewOnes), (doubles{2, 2, 3, 3, 3, 3}))
        << "compared with the level's first";
}

TEST(FlatSurveyBoxes, OfAGroupCountTheWeightThatStoodAtTheSortedPosition)
{
    guarded<double> x{3, 1, 2};
    guarded<double> group{1, 1, 0};
    guarded<double> ones{1, 1, 1};
    EXPECT_EQ(boxesOf(x, 3, ones, group, 1.0), (doubles{1, 1, 1, 1, 2, 2}));
    guarded<double> w{10, 20, 30};
    // Sorted scores 1, 2, 3 belong to groups 1, 0, 1, and the weights before the sort are 10, 20, 30.
    EXPECT_EQ(boxesOf(x, 3, w, group, 1.0), (doubles{30, 10, 30, 10, 40, 40}));
    EXPECT_EQ(valuesOf(w), (doubles{20, 30, 10}));
    EXPECT_EQ(valuesOf(x), (doubles{3, 1, 2}));
    EXPECT_EQ(valuesOf(group), (doubles{1, 1, 0}));
}

TEST(FlatSurveyBoxes, TheWeightsMayBeTheGroups)
{
    guarded<double> x{3, 1, 2};
    guarded<double> both{1, 2, 1};
    EXPECT_EQ(boxesOf(x, 3, both, both, 1.0), (doubles{1, 0, 3, 2, 3, 3}));
    EXPECT_EQ(valuesOf(both), (doubles{2, 1, 1}));
}

TEST(FlatSurveyBoxes, AGroupIsAsWideAsALevel)
{
    guarded<double> x{1, 2, 3};
    guarded<double> ones{1, 1, 1};
    guarded<double> group{1 + 1e-13, 1 + 1e-11, 1 - 1e-13};
    EXPECT_EQ(boxesOf(x, 3, ones, group, 1.0), (doubles{1, 1, 1, 1, 2, 2}));
}
