#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
const doubles unit{1, 1, 1};

} // namespace

TEST(FlatNearestNeighbours, FillThreeGroups)
{
    guarded<double> primary{1, 1, 2, 10, missing, 20};
    guarded<double> second{5, missing, 7};
    text_block third(texts{u"a", u"", u"b"});
    guarded<short int> flags{0, -1, 0};
    guarded<double> w(unit);
    BSTR const kept = third.data()[0];
    const automation_watch watch;
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(primary.data(), 3, 2, flags.data(), second.data(), 1, third.data(),
                                           1, w.data()),
              0);
    EXPECT_EQ(valuesOf(primary), (doubles{1, 1, 2, 10, 10, 20}));
    EXPECT_EQ(valuesOf(second), (doubles{5, 6, 7})) << "nothing to compare: the mean";
    EXPECT_EQ(third.values(), (texts{u"a", u"a", u"b"})) << "both as far";
    EXPECT_EQ(third.data()[0], kept);
    EXPECT_TRUE(watch.texts(1, 1)) << "only the text that was filled is replaced";
}

TEST(FlatNearestNeighbours, NeedNoTableForAnAbsentGroup)
{
    guarded<double> x{1, 1, 2, 10, missing, 20};
    guarded<short int> flags{0, -1, 0};
    guarded<double> w(unit);
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(x.data(), 3, 2, flags.data(), nullptr, 0, nullptr, 0, w.data()),
              0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 1, 2, 10, 10, 20}));
    guarded<double> y{1, 1.8, 2, 10, missing, 20};
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(nullptr, 3, 0, flags.data(), y.data(), 2, nullptr, -1, w.data()),
              0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 1.8, 2, 10, 20, 20}));
    text_block t(texts{u"a", u"b", u"b", u"x", u"", u"y"});
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(nullptr, 3, -1, flags.data(), nullptr, 0, t.data(), 2, w.data()),
              0);
    EXPECT_EQ(t.values()[4], u"x");
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(x.data(), 3, 2, nullptr, nullptr, 0, nullptr, 0, w.data()), 0);
    EXPECT_EQ(VB_EstimateRowsWithMissingNN(nullptr, 0, 0, nullptr, nullptr, 0, nullptr, 0, nullptr), 0);
}

TEST(FlatNearestNeighbours, LearnFromOtherTables)
{
    guarded<double> primaryStatistics{0, 100, 50, 50.1, 3, 5};
    guarded<double> secondStatistics{1, 2};
    text_block thirdStatistics(texts{u"m", u"n"});
    guarded<double> w{1, 3};
    guarded<short int> flags{0, -1, 0};
    guarded<double> primary{0, 1, 1, 50, 50, 45, 7, missing, 8};
    guarded<double> second{2, missing, 2};
    text_block third(texts{u"a", u"", u"b"});
    EXPECT_EQ(VB_EstimateRowsWithMissingNNPred(primaryStatistics.data(), 2, primary.data(), 3, 3,
                                               flags.data(), secondStatistics.data(), second.data(), 1,
                                               thirdStatistics.data(), third.data(), 1, w.data()),
              0);
    EXPECT_EQ(valuesOf(primary), (doubles{0, 1, 1, 50, 50, 45, 7, 7, 8})) << "by the other table's variances";
    EXPECT_EQ(valuesOf(second), (doubles{2, 1.75, 2})) << "its mean";
    EXPECT_EQ(third.values(), (texts{u"a", u"a", u"b"}));
    guarded<short int> all{-1, -1, -1};
    text_block alone(texts{u"", u"c", u""});
    EXPECT_EQ(VB_EstimateRowsWithMissingNNPred(nullptr, 2, nullptr, 3, 0, all.data(), nullptr, nullptr, 0,
                                               thirdStatistics.data(), alone.data(), 1, w.data()),
              0);
    EXPECT_EQ(alone.values(), (texts{u"n", u"c", u"n"})) << "its mode, by its weights";
    EXPECT_EQ(thirdStatistics.values(), (texts{u"m", u"n"}));
}

TEST(FlatNearestNeighbours, FillChunks)
{
    caller_columns primary({{1, 1, 2}, {10, missing, 20}});
    guarded<double> second{5, missing, 7};
    text_block third(texts{u"a", u"", u"b"});
    guarded<short int> flags{0, -1, 0};
    guarded<double> w(unit);
    EXPECT_EQ(VB_EstimateRowsWithMissingNNSPV(primary.argument(), 3, 2, flags.data(), second.data(), 1,
                                              third.data(), 1, w.data()),
              0);
    EXPECT_EQ(primary.values(), (caller_columns::columns{{1, 1, 2}, {10, 10, 20}}));
    EXPECT_EQ(valuesOf(second), (doubles{5, 6, 7}));
    EXPECT_EQ(third.values(), (texts{u"a", u"a", u"b"}));
    caller_columns both({{1, 1.8, 2}, {10, missing, 20}});
    caller_columns others({{5, missing, 7}});
    text_block words(texts{u"a", u"", u"b"});
    EXPECT_EQ(VB_EstimateRowsWithMissingNNSPV2(both.argument(), 3, 2, flags.data(), others.argument(), 1,
                                               words.data(), 1, w.data()),
              0);
    EXPECT_EQ(both.values(), (caller_columns::columns{{1, 1.8, 2}, {10, 20, 20}}));
    EXPECT_EQ(others.values(), (caller_columns::columns{{5, 6, 7}}));
    EXPECT_EQ(words.values(), (texts{u"a", u"a", u"b"}));
    caller_columns alone({{1, 1.8, 2}, {10, missing, 20}});
    EXPECT_EQ(VB_EstimateRowsWithMissingNNSPV2(alone.argument(), 3, 2, flags.data(), nullptr, 0, nullptr, 0,
                                               w.data()),
              0);
    EXPECT_EQ(alone.values(), (caller_columns::columns{{1, 1.8, 2}, {10, 20, 20}}));
    guarded<double> numbers{1, 1.8, 2, 10, missing, 20};
    EXPECT_EQ(
        VB_EstimateRowsWithMissingNNSPV(nullptr, 3, 0, flags.data(), numbers.data(), 2, nullptr, 0, w.data()),
        0);
    EXPECT_EQ(valuesOf(numbers), (doubles{1, 1.8, 2, 10, 20, 20}));
}

TEST(FlatNearestNeighbours, FillPrimaryTexts)
{
    text_block primary(texts{u"a", u"b", u"b", u"x", u"", u"y"});
    guarded<double> second{5, 5, 6};
    text_block third(texts{u"p", u"", u"q"});
    guarded<short int> flags{0, -1, 0};
    guarded<double> w(unit);
    EXPECT_EQ(VB_EstimateRowsWithMissingNNStr(primary.data(), 3, 2, flags.data(), second.data(), 1,
                                              third.data(), 1, w.data()),
              0);
    EXPECT_EQ(primary.values(), (texts{u"a", u"b", u"b", u"x", u"x", u"y"}));
    EXPECT_EQ(third.values(), (texts{u"p", u"p", u"q"}));
    text_block statistics(texts{u"k", u"k", u"l", u"m"});
    guarded<double> weights{1, 2};
    guarded<short int> all{-1, -1, -1};
    text_block filled(texts{u"", u"b", u"b", u"x", u"", u"y"});
    EXPECT_EQ(VB_EstimateRowsWithMissingNNStrPred(statistics.data(), 2, filled.data(), 3, 2, all.data(),
                                                  nullptr, nullptr, 0, nullptr, nullptr, 0, weights.data()),
              0);
    EXPECT_EQ(filled.values(), (texts{u"k", u"b", u"b", u"x", u"m", u"y"}));
    EXPECT_EQ(statistics.values(), (texts{u"k", u"k", u"l", u"m"}));
}
