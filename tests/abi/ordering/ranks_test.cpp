#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::shorts;
using korvel::test::texts;
using korvel::test::textsIn;
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
    // Sorted: missing, missing, 4 (weight 3), 6. The first two are equal, so the heavy 4 opens no group.
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

TEST(FlatModes, Codes)
{
    guarded<double> x{2, 2, 0, 0, 1};
    EXPECT_EQ(VB_V_ModeCatDbl(x.data(), 5), 0.0);
    guarded<double> fractions{1.9, 1.2, 0.3, MISSING_DBL, MISSING_DBL, MISSING_DBL};
    EXPECT_EQ(VB_V_ModeCatDbl(fractions.data(), 6), 1.0);
    EXPECT_EQ(VB_V_ModeCatDbl(fractions.data() + 3, 3), MISSING_DBL);
    EXPECT_EQ(VB_V_ModeCatDbl(fractions.data(), 0), MISSING_DBL);
    guarded<double> wide{-5, -5, 1e9};
    EXPECT_EQ(VB_V_ModeCatDbl(wide.data(), 3), 1e9);
    guarded<double> belowZero{-0.5, -0.5, 1};
    EXPECT_EQ(VB_V_ModeCatDbl(belowZero.data(), 3), 1.0) << "no code";
}

TEST(FlatModes, Texts)
{
    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"b", u"a", u"c", u"a", u"b", u""});
    SAFEARRAY* mode = memory.texts({u"old"});
    guarded<double> w{2, 1, 2.5, 1, 0.5, 99};
    EXPECT_EQ(Cpp_V_ModeW2(blockOf(labels), 6, w.data(), blockOf(mode)), 0);
    EXPECT_EQ(textsIn(mode), (texts{u"b"}));
    guarded<short int> missingRows{0, 0, 0, 0, 3, 0};
    EXPECT_EQ(VB_V_Mode(blockOf(labels), 6, missingRows.data(), w.data(), blockOf(mode)), 0);
    EXPECT_EQ(textsIn(mode), (texts{u"c"}));
    EXPECT_EQ(VB_V_Mode(blockOf(labels), 2, nullptr, w.data(), blockOf(mode)), 0);
    EXPECT_EQ(textsIn(mode), (texts{u"b"}));
    EXPECT_EQ(Cpp_V_ModeW2(blockOf(labels), 0, w.data(), blockOf(mode)), 0);
    EXPECT_EQ(textsIn(mode), (texts{u""}));
    guarded<double> zeros{0, 0};
    EXPECT_EQ(Cpp_V_ModeW2(blockOf(labels), 2, zeros.data(), blockOf(mode)), 0);
    EXPECT_EQ(textsIn(mode), (texts{u"a"})) << "the greatest sum of weights is 0";
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatDistinct, Counts)
{
    guarded<double> x{2, 1, MISSING_DBL, 2, 1 + 1e-16};
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 5), 3);
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 1), 1);
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 0), 1);
    guarded<double> close{0.1, 0.1 + 2e-16, 1, 1 + 4.4408920985006262e-16};
    EXPECT_EQ(VB_V_NbDistinct(close.data(), 4), 3);
    guarded<int> integers{3, -1, 3};
    EXPECT_EQ(VB_V_NbDistinctLng(integers.data(), 3), 2);
    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"", u"A", u"a"});
    EXPECT_EQ(Cpp_V_NbDistinctStr(blockOf(labels), 4), 3);
}

TEST(FlatDistinct, AStepOfTheToleranceFromTheOneBeforeIsNone)
{
    constexpr double epsilon = 2.220446049250313e-16;
    guarded<double> x{1, 1 + epsilon, 1 + 2 * epsilon, 3, 3 + 2 * epsilon};
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 5), 3);
    guarded<double> out{0, 0, 0, 0, 0};
    int n = -1;
    VB_V_ExtractDistinct(x.data(), 5, out.data(), &n);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(valuesOf(out), (doubles{1, 3, 3 + 2 * epsilon, 0, 0}));
    VB_V_ExtractDistinct(x.data(), 5, x.data(), &n);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 3 + 2 * epsilon, 3, 3 + 2 * epsilon})) << "over the data";
}

TEST(FlatDistinct, Lists)
{
    guarded<double> x{2, 1, 2};
    guarded<double> out{0, 0, 0};
    int n = -1;
    EXPECT_EQ(VB_V_ExtractDistinct(x.data(), 3, out.data(), &n), 0);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(valuesOf(out), (doubles{1, 2, 0}));
    // The range of these is smaller than the machine epsilon, so it is the tolerance.
    guarded<double> tiny{1e-20, 0, 2e-20};
    EXPECT_EQ(VB_V_ExtractDistinct(tiny.data(), 3, out.data(), &n), 0);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(VB_V_ExtractDistinct(tiny.data(), 0, out.data(), &n), 0);
    EXPECT_EQ(n, 0);
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

TEST(FlatReverse, EveryForm)
{
    guarded<double> x{1, 2, 3};
    guarded<double> out{0, 0, 0};
    EXPECT_EQ(VB_V_ReverseDbl(x.data(), 3, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{3, 2, 1}));
    EXPECT_EQ(VB_V_ReverseDbl(x.data(), 3, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 2, 1}));
    EXPECT_EQ(Cpp_V_Reverse2Dbl(x.data(), 2), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1}));
    guarded<short int> booleans{-1, 0, 0};
    guarded<short int> booleansOut{0, 0, 0};
    EXPECT_EQ(VB_V_ReverseBool(booleans.data(), 3, booleansOut.data()), 0);
    EXPECT_EQ(valuesOf(booleansOut), (shorts{0, 0, -1}));
    EXPECT_EQ(VB_V_ReverseBool(booleansOut.data(), 3, booleansOut.data()), 0);
    EXPECT_EQ(valuesOf(booleansOut), (shorts{-1, 0, 0})) << "onto itself";
    EXPECT_EQ(Cpp_V_Reverse2Bool(booleans.data(), 3), 0);
    EXPECT_EQ(valuesOf(booleans), (shorts{0, 0, -1}));
    guarded<int> integers{1, 2, 3};
    EXPECT_EQ(Cpp_V_Reverse2Lng(integers.data(), 3), 0);
    EXPECT_EQ(valuesOf(integers), (ints{3, 2, 1}));
    EXPECT_EQ(Cpp_V_Reverse2Lng(integers.data(), 0), 0);
    EXPECT_EQ(valuesOf(integers), (ints{3, 2, 1}));
}

TEST(FlatTrim, EndsAsAsked)
{
    const texts rough{u"  a b ", u"   ", u"", u"\ta ", u"\u00A0x"};
    caller_memory memory;
    SAFEARRAY* labels = memory.texts(rough);
    SAFEARRAY* out = memory.texts({u"", u"", u"", u"", u""});
    EXPECT_EQ(Cpp_V_Trim(blockOf(labels), 5, -1, 0, blockOf(out)), 0);
    EXPECT_EQ(textsIn(out), (texts{u"a b ", u"", u"", u"\ta ", u"\u00A0x"}));
    EXPECT_EQ(Cpp_V_Trim(blockOf(labels), 5, 0, -1, blockOf(out)), 0);
    EXPECT_EQ(textsIn(out), (texts{u"  a b", u"", u"", u"\ta", u"\u00A0x"}));
    EXPECT_EQ(Cpp_V_Trim(blockOf(labels), 5, 1, 1, blockOf(out)), 0);
    EXPECT_EQ(textsIn(out), rough);
    EXPECT_EQ(Cpp_V_Trim2(blockOf(labels), 5, -1, -1), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"a b", u"", u"", u"\ta", u"\u00A0x"}));
    EXPECT_TRUE(memory.guardsIntact());
}

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
