#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatMissingSummaries, OfWhatIsThere)
{
    guarded<double> x{1, 2, MISSING_DBL, 0.5};
    guarded<double> y{3, MISSING_DBL, 3, 3};
    EXPECT_TRUE(sameBits(VB_V_SumIfNotMissing(x.data(), 4, y.data()), 1.5));
    EXPECT_TRUE(sameBits(VB_V_SumIfNotMissing(nullptr, 0, nullptr), MISSING_DBL));
    EXPECT_TRUE(sameBits(Cpp_V_MinIgnoreMissing(x.data(), 4), 0.5));
    EXPECT_TRUE(sameBits(Cpp_V_MinIgnoreMissing(nullptr, 0), MISSING_DBL));
    guarded<double> counts{0, 4};
    guarded<double> strung{70, 70, 70, 70};
    double empty = 0;
    EXPECT_EQ(Cpp_MatToVect_NoMissing(x.data(), 2, 2, counts.data(), &empty, strung.data()), 0);
    EXPECT_EQ(valuesOf(counts), (doubles{2, 5}));
    EXPECT_EQ(valuesOf(strung), (doubles{1, 2, 0.5, 70}));
    EXPECT_TRUE(sameBits(empty, 0.0));
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"a", doubles{MISSING_DBL, 2})}, {u"a"});
    EXPECT_TRUE(sameBits(Cpp_M_MinIgnoreMissing_ST(&record, 2, 1), 2.0));
    EXPECT_TRUE(sameBits(Cpp_M_MinIgnoreMissing_ST(&record, 1, 1), MISSING_DBL));
}
