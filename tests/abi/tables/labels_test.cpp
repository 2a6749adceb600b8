#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatLabels, BecomeDistinct)
{
    text_block labels(texts{u"a", u"b", u"a", u"a2"});
    BSTR const kept = labels.data()[1];
    const automation_watch watch;
    EXPECT_EQ(VB_V_ReplaceDoubles(labels.data(), 4), 0);
    EXPECT_EQ(labels.values(), (texts{u"a", u"b", u"a2", u"a22"}));
    EXPECT_EQ(labels.data()[1], kept);
    EXPECT_TRUE(watch.texts(2, 2));
    EXPECT_EQ(VB_V_ReplaceDoubles(nullptr, 0), 0);
}

TEST(FlatLabels, AreJoined)
{
    text_block a(texts{u"a", u"b"});
    text_block b(texts{u"1", u""});
    text_block out(texts{u"a|1", u"?"});
    caller_memory caller;
    BSTR const bar = caller.label(u"|");
    const automation_watch watch;
    EXPECT_EQ(Cpp_V_MergeVectorsStr(a.data(), 2, b.data(), bar, out.data()), 0);
    EXPECT_EQ(out.values(), (texts{u"a|1", u"b|"}));
    EXPECT_TRUE(watch.texts(1, 1));
    EXPECT_EQ(Cpp_V_MergeVectorsStr(a.data(), 2, b.data(), nullptr, a.data()), 0);
    EXPECT_EQ(a.values(), (texts{u"a1", u"b"}));
}
