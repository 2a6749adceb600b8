#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatLUInverse, InvertsARegularTable)
{
    guarded<double> a({0, 4, 2, 0});
    guarded<double> inverse(numbers(4, 9.0));
    short int error = 3;
    EXPECT_EQ(VB_M_Inverse1(a.data(), 2, inverse.data(), &error, 1e-12), 0);
    EXPECT_EQ(valuesOf(inverse), (numbers{0, 0.5, 0.25, 0}));
    EXPECT_EQ(error, 3) << "left alone";
    EXPECT_EQ(VB_M_Inverse1(a.data(), 2, a.data(), &error, 1e-12), 0);
    EXPECT_EQ(valuesOf(a), (numbers{0, 0.5, 0.25, 0})) << "over the table itself";
}

TEST(FlatLUInverse, SaysWhenATableIsSingular)
{
    const numbers a{1, 2, 2, 4};
    guarded<double> inverse(numbers(4, 9.0));
    short int error = 0;
    EXPECT_EQ(VB_M_Inverse1(a.data(), 2, inverse.data(), &error, 1e-12), -1);
    EXPECT_EQ(error, -1);
    EXPECT_EQ(valuesOf(inverse), numbers(4, 9.0));
}

TEST(FlatLUInverse, LooksAtTheSignOfTheToleranceAlone)
{
    const double small = 1e-9;
    guarded<double> inverse({9});
    short int error = 0;
    EXPECT_EQ(VB_M_Inverse1(&small, 1, inverse.data(), &error, 1e-300), -1);
    EXPECT_EQ(VB_M_Inverse1(&small, 1, inverse.data(), &error, 0.0), 0);
    EXPECT_EQ(valuesOf(inverse), numbers{1.0 / small});
    EXPECT_EQ(VB_M_Inverse1(nullptr, 0, nullptr, &error, 1.0), 0);
}
