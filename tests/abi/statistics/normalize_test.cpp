#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const double none = MISSING_DBL;

} // namespace

TEST(FlatNormalize, Vectors)
{
    guarded<double> x{3, none, 4};
    EXPECT_EQ(VB_V_Norm(x.data(), 3), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3.0 / 5, none, 4.0 / 5}));
    guarded<double> y{1, 2};
    guarded<double> w{4, 3};
    EXPECT_EQ(VB_V_NormW(y.data(), 2, w.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{0.25, 0.5}));
    guarded<double> z{3, 4};
    EXPECT_EQ(VB_V_NormToVal(z.data(), 2, 100), 0);
    EXPECT_EQ(valuesOf(z), (doubles{6, 8}));
    guarded<double> v{1, 2};
    EXPECT_EQ(VB_V_NormToValW(v.data(), 2, 4, w.data()), 0);
    EXPECT_EQ(valuesOf(v), (doubles{0.5, 1}));
    guarded<double> cubes{1, 2, 3};
    EXPECT_EQ(VB_V_NormW(cubes.data(), 3, cubes.data()), 0);
    EXPECT_EQ(valuesOf(cubes), (doubles{1 / 6.0, 2 / 6.0, 3 / 6.0})) << "weights that are the vector";
}

TEST(FlatNormalize, Tables)
{
    const double factor = std::sqrt(2.0);
    guarded<double> x{3, 4, 6, 8};
    EXPECT_EQ(VB_M_Normalize(x.data(), 2, 2, nullptr, nullptr), 0);
    EXPECT_EQ(valuesOf(x),
              (doubles{3.0 / 5 * factor, 4.0 / 5 * factor, 6.0 / 10 * factor, 8.0 / 10 * factor}));
    guarded<double> y{1, 5, 2, 7};
    guarded<double> w{5, 1, 1, 1};
    guarded<short int> flags{0, -1, 0, 1};
    EXPECT_EQ(VB_M_Normalize(y.data(), 4, 1, w.data(), flags.data()), 0);
    const double ofFour = std::sqrt(4.0 / 3.0);
    EXPECT_EQ(valuesOf(y), (doubles{1.0 / 3 * ofFour, 5, 2.0 / 3 * ofFour, 7}));
    guarded<double> one{-3};
    EXPECT_EQ(VB_M_Normalize(one.data(), 1, 1, nullptr, nullptr), 0);
    EXPECT_TRUE(std::isinf(valuesOf(one)[0]));
}

TEST(FlatNormalize, WeightsThatAreAColumnOfTheTable)
{
    guarded<double> x{1, 2, 5, 1};
    EXPECT_EQ(VB_M_Normalize(x.data(), 2, 2, x.data() + 2, nullptr), 0);
    const double factor = std::sqrt(2.0);
    const double root = std::sqrt(126.0);
    EXPECT_EQ(valuesOf(x),
              (doubles{1.0 / 3 * factor, 2.0 / 3 * factor, 5 / root * factor, 1 / root * factor}));
}

TEST(FlatNormalize, Companions)
{
    guarded<double> x{3, 4};
    guarded<double> y{10};
    guarded<double> z{5, none, 15};
    EXPECT_EQ(VB_M_NormalizeMatrix(x.data(), 2, 1, y.data(), 1, z.data(), 3), 0);
    const double factor = std::sqrt(2.0);
    EXPECT_EQ(valuesOf(x), (doubles{3.0 / 5 * factor, 4.0 / 5 * factor}));
    EXPECT_EQ(valuesOf(y), doubles{2 * factor});
    EXPECT_EQ(valuesOf(z), (doubles{factor, none, 3 * factor}));
    EXPECT_EQ(VB_M_NormalizeMatrix(y.data(), 1, 0, nullptr, 0, nullptr, -1), 0);
    EXPECT_EQ(valuesOf(y), doubles{2 * factor});
}

TEST(FlatNormalize, CountsBelowOne)
{
    for (const int count : {0, -1}) {
        guarded<double> x{1, 2};
        VB_V_Norm(x.data(), count);
        VB_V_NormW(x.data(), count, x.data());
        VB_V_NormToVal(x.data(), count, 3);
        VB_V_NormToValW(x.data(), count, 3, x.data());
        VB_M_Normalize(x.data(), count, 1, x.data(), nullptr);
        VB_M_Normalize(x.data(), 2, count, nullptr, nullptr);
        EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
    }
}
