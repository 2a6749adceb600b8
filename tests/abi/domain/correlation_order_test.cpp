#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatCorrelationOrder, MovesFourArrays)
{
    guarded<double> corr{1, 0.2, 0.9, 0.2, 1, -0.3, 0.9, -0.3, 1};
    text_block labels(texts{u"a", u"b", u"c"});
    guarded<double> pValues{1, 2, 3, 4, 5, 6, 7, 8, 9};
    guarded<int> flags{1, 2, 3, 4, 5, 6, 7, 8, 9};
    const automation_watch watch;
    EXPECT_EQ(Cpp_ReOrderCorrelations(corr.data(), 3, 1, labels.data(), pValues.data(), flags.data()), 0);
    EXPECT_EQ(valuesOf(corr), (doubles{1, -0.3, 0.2, -0.3, 1, 0.9, 0.2, 0.9, 1}));
    EXPECT_EQ(labels.values(), (texts{u"b", u"c", u"a"}));
    EXPECT_EQ(valuesOf(pValues), (doubles{5, 8, 2, 6, 9, 3, 4, 7, 1})) << "transposed";
    EXPECT_EQ(valuesOf(flags), (ints{5, 8, 2, 6, 9, 3, 4, 7, 1}));
    EXPECT_TRUE(watch.texts(3, 3));
    EXPECT_EQ(Cpp_ReOrderCorrelations(nullptr, 0, 3, nullptr, nullptr, nullptr), 0);
}
