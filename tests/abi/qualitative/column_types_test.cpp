#include "korvelmathtools/KORVELMathTools.h"

#include <gtest/gtest.h>

TEST(FlatColumnTypes, SomeAreQualitative)
{
    for (int type = -3; type < 12; ++type) {
        EXPECT_EQ(isQuali(type), type == 2 || type == 4 || type == 5 ? -1 : 0) << type;
        EXPECT_EQ(isQualiPure(type), type == 2 || type == 4 ? -1 : 0) << type;
    }
}
