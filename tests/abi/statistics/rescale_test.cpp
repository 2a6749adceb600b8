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

TEST(FlatRescale, Vectors)
{
    guarded<double> x{2, 6, none, 50, 4};
    guarded<double> out{9, 9, 9, 9, 9};
    guarded<short int> flags{0, 0, 0, 1, 0};
    EXPECT_EQ(VB_V_Rescale(x.data(), 5, 0, 1, flags.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 1, none, none, 0.5}));
    EXPECT_EQ(valuesOf(x), (doubles{2, 6, none, 50, 4}));
    EXPECT_EQ(VB_V_Rescale2(x.data(), 5, -2, 2, flags.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{-2, 2, none, 50, 0}));
    EXPECT_EQ(VB_V_Rescale(x.data(), 5, 0, 104, nullptr, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 8, none, 104, 4})) << "no flags, the result over the vector";
}

TEST(FlatRescale, ColumnsToRangesOfTheirOwn)
{
    guarded<double> x{2, 6, 4, 0, none, 8};
    guarded<double> out{9, 9, 9, 9, 9, 9};
    guarded<double> lo{0, 10};
    guarded<double> hi{1, 20};
    guarded<short int> flags{0, 0, 3};
    EXPECT_EQ(VB_M_RescaleByVect(x.data(), 3, 2, lo.data(), hi.data(), nullptr, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 1, 0.5, 10, none, 20}));
    EXPECT_EQ(VB_M_RescaleByVect2(x.data(), 3, 1, lo.data(), hi.data(), flags.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 1, 4, 0, none, 8}));
    EXPECT_EQ(VB_M_RescaleByVect(x.data(), 3, 1, lo.data(), hi.data(), flags.data(), x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{0, 1, none, 0, none, 8}));
    guarded<double> own{0, 1, 10, 30};
    EXPECT_EQ(VB_M_RescaleByVect2(own.data(), 2, 2, own.data(), own.data() + 2, nullptr), 0);
    EXPECT_EQ(valuesOf(own), (doubles{0, 10, 1, 30})) << "ranges that are cells of the table";
}

TEST(FlatRescale, Scores)
{
    guarded<double> x{1, none, 2, 3, 6};
    guarded<double> out{9, 9, 9, 9, 9};
    guarded<double> centre{none};
    guarded<double> scale{9};
    const double sd = std::sqrt(14.0 / 3.0);
    EXPECT_EQ(Cpp_V_ZScores(x.data(), 5, 0, centre.data(), scale.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{-2 / sd, none, -1 / sd, 0, 3 / sd}));
    EXPECT_EQ(valuesOf(centre), doubles{3});
    EXPECT_EQ(valuesOf(scale), doubles{sd});
    guarded<double> y{1, 2, 3, 4, 100};
    EXPECT_EQ(Cpp_V_ZScores(y.data(), 5, 1, nullptr, nullptr, y.data()), 0);
    EXPECT_EQ(valuesOf(y), (doubles{0.6745 * -2, 0.6745 * -1, 0, 0.6745, 0.6745 * 97}));
}

TEST(FlatRescale, CountsBelowOne)
{
    for (const int count : {0, -1}) {
        guarded<double> x{1, 2};
        guarded<double> out{9, 9};
        guarded<double> centre{none};
        guarded<double> scale{9};
        VB_V_Rescale(x.data(), count, 0, 1, nullptr, out.data());
        VB_V_Rescale2(x.data(), count, 0, 1, nullptr);
        VB_M_RescaleByVect(x.data(), 2, count, x.data(), x.data(), nullptr, out.data());
        VB_M_RescaleByVect2(x.data(), count, 1, out.data(), out.data(), nullptr);
        Cpp_V_ZScores(x.data(), count, 0, centre.data(), scale.data(), out.data());
        Cpp_V_ZScores(x.data(), count, -1, nullptr, nullptr, out.data());
        EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
        EXPECT_EQ(valuesOf(out), (doubles{9, 9}));
        EXPECT_EQ(valuesOf(centre), doubles{0}) << "the mean of nothing";
    }
}
