#include "KORVELMathTools.h"

#include <gtest/gtest.h>

TEST(FlatVersion, IsThatOfTheHeaders)
{
    EXPECT_EQ(KORVEL_Version(), KORVEL_VERSION_NUMBER);
}
