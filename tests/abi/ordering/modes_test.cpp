#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::guarded;
using korvel::test::texts;
using korvel::test::textsIn;

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
