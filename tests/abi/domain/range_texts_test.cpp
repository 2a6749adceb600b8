#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_memory.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

/** The result of a function that makes a text, which is freed here. */
std::u16string taken(BSTR made)
{
    const std::u16string content = contentOf(made);
    SysFreeString(made);
    return content;
}

} // namespace

TEST(FlatRangeTexts, AreNewTexts)
{
    caller_memory caller;
    BSTR const list = caller.label(u"'S'!$C:$C,'S'!$B:$B");
    BSTR const single = caller.label(u"'S'!$C:$C");
    BSTR const column = caller.label(u"AZ");
    const automation_watch watch;
    EXPECT_EQ(taken(SimplifyRange(list)), u"'S'!$B:$C");
    EXPECT_EQ(taken(SimplifyRange(single)), u"'S'!$C:$C") << "unchanged, and still a new one";
    EXPECT_EQ(taken(SimplifyRange(nullptr)), u"");
    EXPECT_EQ(taken(Increase1Col(column)), u"BA");
    EXPECT_TRUE(watch.texts(4, 4));
    EXPECT_EQ(contentOf(list), u"'S'!$C:$C,'S'!$B:$B");
    EXPECT_EQ(contentOf(column), u"AZ");
}
