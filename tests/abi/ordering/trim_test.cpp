#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::texts;
using korvel::test::textsIn;

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
