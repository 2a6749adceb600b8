#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatTableExtremes, SmallestOfARecord)
{
    caller_memory memory;
    ST_MVect record =
        memory.table({memory.column(u"p", doubles{5, MISSING_DBL, 3}), memory.column(u"q", doubles{4, 1, 9})},
                     {u"p", u"q"});
    EXPECT_EQ(Cpp_V_Min3(&record, 3, 2), 1.0);
    EXPECT_EQ(Cpp_V_Min3(&record, 3, 1), 3.0);
    EXPECT_EQ(Cpp_V_Min3(&record, 1, 2), 4.0);
    EXPECT_EQ(Cpp_V_Min3(&record, 0, 2), MISSING_DBL);
    ST_MVect nothing =
        memory.table({memory.column(u"p", doubles{MISSING_DBL, 1.79769313486231e308})}, {u"p"});
    EXPECT_EQ(Cpp_V_Min3(&nothing, 2, 1), MISSING_DBL);
}
