#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatSquareRoot, HandsOnTheStatusAndLeavesTheResultOnFailure)
{
    guarded<double> a{9, 0, 0, 4};
    guarded<double> r{7, 7, 7, 7};
    EXPECT_EQ(Cpp_M_SquareRoot(a.data(), 2, r.data()), 0);
    std::vector<double> sizes = valuesOf(r);
    for (double& x : sizes) {
        x = std::fabs(x);
    }
    EXPECT_EQ(sizes, (std::vector<double>{3, 0, 0, 2}));
    guarded<double> negative{9, 0, 0, -4};
    guarded<double> kept{7, 7, 7, 7};
    EXPECT_EQ(Cpp_M_SquareRoot(negative.data(), 2, kept.data()), -1);
    expectCells(kept, {7, 7, 7, 7});
    const std::vector<double> before = valuesOf(r);
    EXPECT_EQ(Cpp_M_SquareRoot(a.data(), 2, a.data()), 0) << "over its own table";
    expectCells(a, before);
}
