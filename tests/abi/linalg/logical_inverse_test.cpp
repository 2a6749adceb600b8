#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatLogicalInverse, TurnsFlagsIntoTheirOpposites)
{
    guarded<short int> flags({0, -1, 1, 5, 0, 0});
    EXPECT_EQ(Cpp_M_Inverse(flags.data(), 3, 2), 0);
    EXPECT_EQ(valuesOf(flags), (std::vector<short int>{1, 0, 0, 0, 1, 1}));
    EXPECT_EQ(Cpp_M_Inverse(nullptr, 0, 0), 0);
}
