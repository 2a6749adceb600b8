#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatSortedInsertion, KeepsTheLargestOrTheSmallest)
{
    guarded<double> x{3, 1, 2};
    EXPECT_EQ(Cpp_V_InsertValueLow(x.data(), 3, 2.5, -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 2.5, 3}));
    EXPECT_EQ(Cpp_V_InsertValueUp(x.data(), 3, 1, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 2.5}));
    EXPECT_EQ(Cpp_V_InsertValueLow(x.data(), 3, 9, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 2.5, 9}));
    EXPECT_EQ(Cpp_V_InsertValueLow(nullptr, 0, 9, -1), 0);
    EXPECT_EQ(Cpp_V_InsertValueUp(nullptr, 0, 9, -1), 0);
}
