#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatObservationLabels, AreMadeForFlaggedRows)
{
    text_block labels(texts{u"a", u"", u"Row2"});
    guarded<short int> flags{0, -1, 0};
    caller_memory caller;
    BSTR const prefix = caller.label(u"Row");
    const automation_watch watch;
    EXPECT_EQ(VB_ReplaceMissingObsLabels(labels.data(), 3, flags.data(), prefix), 0);
    EXPECT_EQ(labels.values(), (texts{u"a", u"Row2_2", u"Row2"}));
    EXPECT_EQ(valuesOf(flags), (shorts{0, 0, 0}));
    EXPECT_TRUE(watch.texts(1, 1));
}
