#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

using namespace korvel::test;

TEST(FlatConditionalSummaries, SummariseAGroup)
{
    guarded<double> y{1, 7, 3, MISSING_DBL, 9};
    guarded<double> g{1, 2, 1, 1, MISSING_DBL};
    guarded<double> w{0.5, 4, 1.5, 8, 2};
    EXPECT_TRUE(sameBits(VB_V_NbIf(g.data(), 5, 1.0), 3.0));
    EXPECT_TRUE(sameBits(VB_V_NbIf(g.data(), 5, MISSING_DBL), 1.0)) << "counts the missing ones";
    EXPECT_TRUE(sameBits(VB_V_NbIfW(g.data(), 5, w.data(), 1.0), 10.0));
    EXPECT_TRUE(sameBits(VB_V_SumIf(y.data(), 5, g.data(), 1.0), 4.0));
    EXPECT_TRUE(sameBits(VB_V_MeanIf(y.data(), 5, g.data(), 1.0), 2.0));
    EXPECT_TRUE(sameBits(VB_V_SumIfW(y.data(), 5, g.data(), w.data(), 1.0), 5.0));
    EXPECT_TRUE(sameBits(VB_V_MeanIfW(y.data(), 5, g.data(), w.data(), 1.0), 2.5));
    EXPECT_TRUE(sameBits(VB_V_MaxIf(y.data(), 5, g.data(), 1.0), 3.0));
    EXPECT_TRUE(sameBits(VB_V_MinIf(y.data(), 5, g.data(), 1.0), 1.0));
    EXPECT_TRUE(sameBits(Cpp_V_VarIf(y.data(), 5, g.data(), 1.0, -1), 2.0));
    EXPECT_TRUE(sameBits(Cpp_V_VarIfW(y.data(), 5, g.data(), w.data(), 1.0, 0), 0.75));
    EXPECT_TRUE(sameBits(Cpp_V_VarIfW(y.data(), 5, g.data(), w.data(), 1.0, -1), 1.5));
    g.data()[1] = 0.0;
    EXPECT_TRUE(sameBits(Cpp_V_VarIfSup0W(y.data(), 5, g.data(), w.data(), 0), 1.25)) << "-0.5 and 3, over 2";
    EXPECT_TRUE(sameBits(Cpp_V_VarIfSup0W(y.data(), 5, g.data(), w.data(), -1), 2.5));
    EXPECT_TRUE(y.intact() && g.intact() && w.intact());
    const double below = -2.0;
    const double code = 1.0;
    const double weight = 3.0;
    EXPECT_TRUE(sameBits(VB_V_SumIfW(&below, 1, &code, &weight, 1.0), -6.0));
}

TEST(FlatConditionalSummaries, OfNothing)
{
    EXPECT_TRUE(sameBits(VB_V_NbIf(nullptr, 0, 1.0), 0.0));
    EXPECT_TRUE(sameBits(VB_V_NbIfLng(nullptr, 0, 1), 0.0));
    EXPECT_TRUE(sameBits(VB_V_NbIfW(nullptr, 0, nullptr, 1.0), 0.0));
    for (const double result :
         {VB_V_SumIf(nullptr, 0, nullptr, 1.0), VB_V_MeanIf(nullptr, 0, nullptr, 1.0),
          VB_V_SumIfW(nullptr, 0, nullptr, nullptr, 1.0), VB_V_MeanIfW(nullptr, 0, nullptr, nullptr, 1.0),
          VB_V_MaxIf(nullptr, 0, nullptr, 1.0), VB_V_MinIf(nullptr, 0, nullptr, 1.0),
          Cpp_V_VarIf(nullptr, 0, nullptr, 1.0, 0), Cpp_V_VarIfW(nullptr, 0, nullptr, nullptr, 1.0, 0),
          Cpp_V_VarIfSup0W(nullptr, 0, nullptr, nullptr, 0)}) {
        EXPECT_TRUE(sameBits(result, MISSING_DBL));
    }
}

TEST(FlatConditionalSummaries, CountIntegers)
{
    guarded<int> x{4, MISSING_LNG, 4};
    EXPECT_TRUE(sameBits(VB_V_NbIfLng(x.data(), 3, 4), 2.0));
    EXPECT_TRUE(sameBits(VB_V_NbIfLng(x.data(), 3, MISSING_LNG), 1.0));
}
