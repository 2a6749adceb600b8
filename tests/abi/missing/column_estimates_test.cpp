#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;

} // namespace

TEST(FlatColumnEstimates, AreMeans)
{
    guarded<double> x{1, missing, 5, missing, 4, 8};
    guarded<short int> flags{0, -1, -1};
    guarded<double> w{3, 1, 1};
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(x.data(), 3, 2, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 5, missing, 4, 8})) << "a row without flag stays missing";
    guarded<double> nothing{missing, missing, missing};
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(nothing.data(), 3, 0, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(nothing), (doubles{missing, missing, missing})) << "as a vector";
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(nothing.data(), 3, 1, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(nothing), (doubles{missing, 0, 0})) << "as a table";
    guarded<double> y{1, missing, 5};
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(y.data(), 3, 0, nullptr, w.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, missing, 5}));
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(y.data(), 3, 0, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{1, 2, 5}));
    EXPECT_EQ(VB_EstimateRowsWithMissingMean(nullptr, 0, 0, nullptr, nullptr), 0);
}

TEST(FlatColumnEstimates, AreMeansOfAnotherTable)
{
    guarded<double> statistics{1, 2, 3, 10, 20, 60};
    guarded<double> w{1, 1, 1};
    guarded<double> x{missing, 7, 8, missing};
    guarded<short int> flags{-1, -1};
    EXPECT_EQ(
        VB_EstimateRowsWithMissingMeanPred(statistics.data(), 3, x.data(), 2, 2, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 7, 8, 30}));
    guarded<double> y{missing, 7};
    EXPECT_EQ(
        VB_EstimateRowsWithMissingMeanPred(statistics.data(), 3, y.data(), 2, 0, flags.data(), w.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{2, 7}));
}

TEST(FlatColumnEstimates, AreMeansOfChunks)
{
    caller_columns x({{1, missing, 5}, {missing, 4, 8}});
    guarded<short int> flags{0, -1, -1};
    guarded<double> w{1, 1, 1};
    EXPECT_EQ(VB_EstimateRowsWithMissingMeanSPV(x.argument(), 3, 2, flags.data(), w.data()), 0);
    EXPECT_EQ(x.values(), (caller_columns::columns{{1, 3, 5}, {missing, 4, 8}}));
}

TEST(FlatColumnEstimates, AreModes)
{
    text_block x(texts{u"a", u"b", u"b", u"", u"x", u"", u"", u"y"});
    guarded<double> w{5, 2, 2, 9};
    BSTR const kept = x.data()[0];
    EXPECT_EQ(VB_EstimateRowsWithMissingMode(x.data(), 4, 2, w.data()), 0);
    EXPECT_EQ(x.values(), (texts{u"a", u"b", u"b", u"a", u"x", u"y", u"y", u"y"}));
    EXPECT_EQ(x.data()[0], kept);
    text_block column(texts{u"", u"b"});
    EXPECT_EQ(VB_EstimateRowsWithMissingMode(column.data(), 2, 0, w.data()), 0);
    EXPECT_EQ(column.values(), (texts{u"b", u"b"})) << "0 is one column";
    text_block statistics(texts{u"k", u"l", u"l"});
    guarded<double> unit{1, 1, 1};
    text_block filled(texts{u"", u"b"});
    EXPECT_EQ(VB_EstimateRowsWithMissingModePred(statistics.data(), 3, filled.data(), 2, 1, unit.data()), 0);
    EXPECT_EQ(filled.values(), (texts{u"l", u"b"}));
    EXPECT_EQ(statistics.values(), (texts{u"k", u"l", u"l"}));
    text_block vector(texts{u"", u"b"});
    EXPECT_EQ(VB_EstimateRowsWithMissingModePred(statistics.data(), 3, vector.data(), 2, 0, unit.data()), 0);
    EXPECT_EQ(vector.values(), (texts{u"l", u"b"})) << "0 is one column";
}
