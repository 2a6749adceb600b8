#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatReductions, TracesAndNorms)
{
    guarded a({1.0, -2.0, 3.0, 4.0});
    guarded b({0.5, 1.0, 2.0, -1.0});
    EXPECT_SAME_BITS(VB_M_Trace(a.data(), 2), 5.0);
    EXPECT_SAME_BITS(VB_M_Trace(nullptr, 0), 0.0);
    EXPECT_SAME_BITS(VB_M_FrobeniusNorm(a.data(), 2, 2, b.data()), (0.5 - 2.0) + (6.0 - 4.0));
    EXPECT_SAME_BITS(VB_M_FrobeniusNorm(a.data(), 2, 2, a.data()), 30.0) << "no root";
    EXPECT_SAME_BITS(VB_M_FrobeniusNorm(nullptr, 0, 0, nullptr), 0.0);
    EXPECT_SAME_BITS(Cpp_M_RowSumNorm(a.data(), 2, 2), 6.0);
    a.data()[3] = MISSING_DBL;
    EXPECT_SAME_BITS(Cpp_M_RowSumNorm(a.data(), 2, 2), 4.0);
    EXPECT_SAME_BITS(Cpp_M_RowSumNorm(nullptr, 0, 2), 0.0);
}
