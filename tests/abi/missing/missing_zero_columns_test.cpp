// A column count of 0 stands for one column.
#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/caller_tables.h"
#include "support/guarded.h"
#include "support/host_arrays.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

} // namespace

TEST(FlatMissingOfOneColumn, IsReplacedAndMarked)
{
    guarded<double> x{gone, 2, gone};
    EXPECT_EQ(VB_M_ReplaceMissingByVal(x.data(), 2, 0, 7), 0);
    EXPECT_EQ(valuesOf(x), (doubles{7, 2, gone}));
    text_block words(texts{u"", u"b", u""});
    bstr_block value{u"none"};
    EXPECT_EQ(VB_M_ReplaceMissingByStr(words.data(), 2, 0, value[0]), 0);
    EXPECT_EQ(words.values(), (texts{u"none", u"b", u""}));
    guarded<int> marks{0, 1, 0};
    EXPECT_EQ(Cpp_M_ReplaceByMissing(x.data(), 2, 0, marks.data(), 0, -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{7, gone, gone}));
    EXPECT_EQ(Cpp_M_ReplaceByMissingIfVal(x.data(), 2, 0, marks.data(), 0, 0, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{gone, gone, gone}));
    guarded<double> y{1, gone, gone};
    EXPECT_EQ(Cpp_M_IdentifyMissingInMat(y.data(), 2, 0, marks.data()), 0);
    EXPECT_EQ(valuesOf(marks), (ints{0, 1, 0}));
    guarded<double> weights{5, 6, 7};
    EXPECT_EQ(VB_M_SetWeightsToZeroForMissing(y.data(), 2, 0, weights.data(), 0), 0);
    EXPECT_EQ(valuesOf(weights), (doubles{5, 0, 7}));
}

TEST(FlatMissingOfOneColumn, IsCounted)
{
    guarded<double> x{gone, 2, gone};
    guarded<int> counts{9, 9};
    VB_M_NbMissing(x.data(), 2, 0, counts.data());
    EXPECT_EQ(valuesOf(counts), (ints{1, 9}));
    VB_M_NbNonMissing(x.data(), 1, 0, counts.data());
    EXPECT_EQ(valuesOf(counts), (ints{0, 9}));
    EXPECT_EQ(VB_M_NbMissing2(x.data(), 2, 0), 1);
    text_block words(texts{u"", u"b", u""});
    VB_M_NbMissingStr(words.data(), 2, 0, counts.data());
    EXPECT_EQ(valuesOf(counts), (ints{1, 9}));
    EXPECT_EQ(VB_M_NbMissing2Str(words.data(), 2, 0), 1);
    guarded<double> found{0, 9};
    guarded<double> strung{8, 8, 8};
    double empty = 0.0;
    EXPECT_EQ(Cpp_MatToVect_NoMissing(x.data(), 2, 0, found.data(), &empty, strung.data()), 0);
    EXPECT_EQ(valuesOf(found), (doubles{1, 9}));
    EXPECT_EQ(valuesOf(strung), (doubles{2, 8, 8}));
}

TEST(FlatMissingOfOneColumn, SetsTheFlagsOfItsRows)
{
    guarded<double> x{gone, 2, gone};
    text_block words(texts{u"", u"b", u""});
    guarded<short int> in{-1, -1};
    guarded<short int> out{9, 9};
    Cpp_M_GetMissingDbl(x.data(), 2, 0, nullptr, out.data());
    EXPECT_EQ(valuesOf(out), (shorts{-1, 0}));
    guarded<short int> ofTexts{9, 9};
    Cpp_M_GetMissingStr(words.data(), 2, 0, nullptr, ofTexts.data());
    EXPECT_EQ(valuesOf(ofTexts), (shorts{-1, 0}));
    guarded<short int> all{9, 9};
    VB_M_AllMissingRows(x.data(), 2, 0, in.data(), all.data());
    EXPECT_EQ(valuesOf(all), (shorts{-1, 9}));
    guarded<short int> allOfTexts{9, 9};
    VB_M_AllMissingRowsStr(words.data(), 2, 0, in.data(), allOfTexts.data());
    EXPECT_EQ(valuesOf(allOfTexts), (shorts{-1, 9}));
}

TEST(FlatMissingOfOneColumn, IsCompressed)
{
    guarded<short int> flags{-1, 0};
    text_block words(texts{u"a", u"b"});
    text_block shorter(texts{u"?"});
    EXPECT_EQ(VB_RemoveRowsWithMissingStr(words.data(), 2, 0, 1, flags.data(), shorter.data()), 0);
    EXPECT_EQ(words.values(), (texts{u"b", u"b"}));
    EXPECT_EQ(shorter.values(), (texts{u"b"}));
}
