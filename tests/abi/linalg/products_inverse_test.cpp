#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatProductsThroughAnInverse, AreThoseOfTheFormula)
{
    // b is diag(2, 4).
    const numbers b{2, 0, 0, 4};
    const numbers a{2, 4, 6, 8};
    guarded<double> c(numbers(4, 9.0));
    for (const short int symmetric : {short{0}, short{-1}, short{1}}) {
        EXPECT_EQ(VB_M_ProductTrAinvBA(a.data(), 2, 2, b.data(), symmetric, c.data()), 0);
        EXPECT_EQ(valuesOf(c), (numbers{6, 14, 14, 34}));
    }
    EXPECT_EQ(VB_M_ProductAinvBTrA(a.data(), 2, 2, b.data(), c.data()), 0);
    EXPECT_EQ(valuesOf(c), (numbers{11, 16, 16, 24}));
    const numbers v{2, 4};
    EXPECT_EQ(VB_M_ProductTrVinvBV(v.data(), 2, b.data()), 6.0);
}

TEST(FlatProductsThroughAnInverse, MayBeWrittenOverWhatTheyRead)
{
    guarded<double> b({2, 0, 0, 4});
    const numbers a{2, 4, 6, 8};
    EXPECT_EQ(VB_M_ProductTrAinvBA(a.data(), 2, 2, b.data(), 0, b.data()), 0);
    EXPECT_EQ(valuesOf(b), (numbers{6, 14, 14, 34}));
    guarded<double> other({2, 0, 0, 4});
    EXPECT_EQ(VB_M_ProductAinvBTrA(a.data(), 2, 2, other.data(), other.data()), 0);
    EXPECT_EQ(valuesOf(other), (numbers{11, 16, 16, 24}));
}

TEST(FlatProductsThroughAnInverse, AreZeroForASingularTable)
{
    const numbers b{1, 2, 2, 4};
    const numbers v{3, 4};
    EXPECT_EQ(VB_M_ProductTrVinvBV(v.data(), 2, b.data()), 0.0);
    guarded<double> c({9});
    EXPECT_EQ(VB_M_ProductAinvBTrA(v.data(), 1, 2, b.data(), c.data()), 0);
    EXPECT_EQ(valuesOf(c), numbers{0});
    EXPECT_EQ(VB_M_ProductTrVinvBV(nullptr, 0, nullptr), 0.0);
}
