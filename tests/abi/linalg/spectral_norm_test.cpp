#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

TEST(FlatSpectralNorm, OfSquareTablesOnly)
{
    guarded a({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 10.0});
    EXPECT_NEAR(Cpp_M_Norm2(a.data(), 3, 3), 17.412505166808597, 1e-13) << "R 4.2.2, norm(x, \"2\")";
    EXPECT_SAME_BITS(Cpp_M_Norm2(a.data(), 3, 2), 0.0);
    EXPECT_SAME_BITS(Cpp_M_Norm2(nullptr, 2, 1), 0.0) << "nothing is read";
    guarded one({-2.0});
    EXPECT_SAME_BITS(Cpp_M_Norm2(one.data(), 1, 1), 2.0);
    EXPECT_SAME_BITS(Cpp_M_Norm2(nullptr, 0, 0), MISSING_DBL);
}
