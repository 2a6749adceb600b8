#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;
using numbers = std::vector<double>;

TEST(FlatHermiteForm, ReducesForward)
{
    guarded<double> a({4, 99, 2, 2});
    guarded<double> h(numbers(4, 9.0));
    EXPECT_EQ(Cpp_M_ForwardDoolittle(a.data(), 2, h.data()), 0);
    EXPECT_EQ(valuesOf(h), (numbers{1, 0, 0.5, 1}));
    EXPECT_EQ(Cpp_M_ForwardDoolittle(a.data(), 2, a.data()), 0);
    EXPECT_EQ(valuesOf(a), (numbers{1, 0, 0.5, 1})) << "over the table itself";
    EXPECT_EQ(Cpp_M_ForwardDoolittle(nullptr, 0, nullptr), 0);
}

TEST(FlatHermiteForm, IsCanonical)
{
    const numbers a{2, 0, 2, 0, 1, 1, 2, 1, 3};
    guarded<double> h(numbers(9, 9.0));
    EXPECT_EQ(Cpp_M_HermiteCanonical(a.data(), 3, h.data()), 0);
    EXPECT_EQ(valuesOf(h), (numbers{1, 0, 0, 0, 1, 0, 1, 1, 0}));
    EXPECT_EQ(Cpp_M_HermiteCanonical(nullptr, 0, nullptr), 0);
}
