#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::texts;
using korvel::test::valuesOf;

TEST(FlatDistinct, Counts)
{
    guarded<double> x{2, 1, MISSING_DBL, 2, 1 + 1e-16};
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 5), 3);
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 1), 1);
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 0), 1);
    guarded<double> close{0.1, 0.1 + 2e-16, 1, 1 + 4.4408920985006262e-16};
    EXPECT_EQ(VB_V_NbDistinct(close.data(), 4), 3);
    guarded<int> integers{3, -1, 3};
    EXPECT_EQ(VB_V_NbDistinctLng(integers.data(), 3), 2);
    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"", u"A", u"a"});
    EXPECT_EQ(Cpp_V_NbDistinctStr(blockOf(labels), 4), 3);
}

TEST(FlatDistinct, AStepOfTheToleranceFromTheOneBeforeIsNone)
{
    constexpr double epsilon = 2.220446049250313e-16;
    guarded<double> x{1, 1 + epsilon, 1 + 2 * epsilon, 3, 3 + 2 * epsilon};
    EXPECT_EQ(VB_V_NbDistinct(x.data(), 5), 3);
    guarded<double> out{0, 0, 0, 0, 0};
    int n = -1;
    VB_V_ExtractDistinct(x.data(), 5, out.data(), &n);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(valuesOf(out), (doubles{1, 3, 3 + 2 * epsilon, 0, 0}));
    VB_V_ExtractDistinct(x.data(), 5, x.data(), &n);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 3 + 2 * epsilon, 3, 3 + 2 * epsilon})) << "over the data";
}

TEST(FlatDistinct, Lists)
{
    guarded<double> x{2, 1, 2};
    guarded<double> out{0, 0, 0};
    int n = -1;
    EXPECT_EQ(VB_V_ExtractDistinct(x.data(), 3, out.data(), &n), 0);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(valuesOf(out), (doubles{1, 2, 0}));
    // The range of these is smaller than the machine epsilon, so it is the tolerance.
    guarded<double> tiny{1e-20, 0, 2e-20};
    EXPECT_EQ(VB_V_ExtractDistinct(tiny.data(), 3, out.data(), &n), 0);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(VB_V_ExtractDistinct(tiny.data(), 0, out.data(), &n), 0);
    EXPECT_EQ(n, 0);
}
