#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <array>
#include <vector>

using namespace korvel::test;

TEST(FlatVectorSums, SumOfNothingReadsNothing)
{
    EXPECT_SAME_BITS(VB_V_Sum(nullptr, 0, nullptr, nullptr), 0.0);
    EXPECT_SAME_BITS(Cpp_V_SumW(nullptr, 0, nullptr), 0.0);
    EXPECT_SAME_BITS(VB_V_Sum2Dbl(nullptr, 0), 0.0);
    EXPECT_SAME_BITS(VB_V_Sum2Lng(nullptr, 0), 0.0);
    EXPECT_SAME_BITS(VB_V_SumFromTo(nullptr, 5, 1, 0), 0.0);
    EXPECT_EQ(VB_V_SumFromToLng(nullptr, 5, 3, 2), 0);
    EXPECT_SAME_BITS(VB_V_SumSq(nullptr, 0), 0.0);
    EXPECT_SAME_BITS(VB_V_SumSqW(nullptr, 0, nullptr), 0.0);
    EXPECT_SAME_BITS(VB_V_DiffSq(nullptr, 0, nullptr), 0.0);
    EXPECT_SAME_BITS(VB_V_DiffSqW(nullptr, 0, nullptr, nullptr), 0.0);
    EXPECT_SAME_BITS(Cpp_V_DiffSqStart(nullptr, 0, nullptr, 1), 0.0);
    EXPECT_EQ(Cpp_V_CuSum(nullptr, 0, nullptr), 0);
}

TEST(FlatVectorSums, SumWeighsAndSkips)
{
    std::array x{1.0, 2.0, 4.0};
    std::array w{1.0, 0.5, 2.0};
    std::array<short int, 3> flags{0, 0, -1};
    EXPECT_SAME_BITS(VB_V_Sum(x.data(), 3, flags.data(), w.data()), 2.0);
    EXPECT_SAME_BITS(VB_V_Sum(x.data(), 3, nullptr, w.data()), 10.0);
    w[1] = MISSING_DBL;
    EXPECT_SAME_BITS(VB_V_Sum(x.data(), 3, nullptr, w.data()), 9.0);
}

TEST(FlatVectorSums, WeightedSumSkipsNothing)
{
    std::array x{1.0, MISSING_DBL};
    std::array w{3.0, 0.5};
    EXPECT_SAME_BITS(Cpp_V_SumW(x.data(), 1, w.data()), 3.0);
    EXPECT_SAME_BITS(Cpp_V_SumW(x.data(), 2, w.data()), 3.0 + MISSING_DBL * 0.5);
}

TEST(FlatVectorSums, PlainSums)
{
    std::array x{1.0, MISSING_DBL, 4.0};
    EXPECT_SAME_BITS(VB_V_Sum2Dbl(x.data(), 3), 5.0);
    std::array counts{2147483647, 2, 5};
    EXPECT_SAME_BITS(VB_V_Sum2Lng(counts.data(), 2), -2147483647.0);
}

TEST(FlatVectorSums, SumsOfHostArrays)
{
    caller_memory caller;
    SAFEARRAY* numbers = caller.array<double>({1.5, MISSING_DBL, 4.0});
    SAFEARRAY* counts = caller.array<int>({2147483647, 2, 5});
    EXPECT_SAME_BITS(Cpp_V_Sum2Dbl_ST(&numbers, 3), 5.5);
    EXPECT_SAME_BITS(Cpp_V_Sum2Dbl_ST(&numbers, 1), 1.5);
    EXPECT_SAME_BITS(Cpp_V_Sum2Dbl_ST(&numbers, 5), 3.5) << "two elements past the end read as -1";
    EXPECT_SAME_BITS(Cpp_V_Sum2Lng_ST(&counts, 2), -2147483647.0);
    SAFEARRAY* none = nullptr;
    EXPECT_SAME_BITS(Cpp_V_Sum2Dbl_ST(&none, 2), -2.0);
    EXPECT_SAME_BITS(Cpp_V_Sum2Lng_ST(&none, 0), 0.0);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatVectorSums, StretchesCountFromOneAndIgnoreTheLength)
{
    std::array x{1.0, 2.0, 4.0, 8.0};
    EXPECT_SAME_BITS(VB_V_SumFromTo(x.data(), 0, 2, 4), 14.0);
    EXPECT_SAME_BITS(VB_V_SumFromTo(x.data(), -9, 1, 1), 1.0);
    std::array counts{1, 2147483647, 1, 1};
    EXPECT_EQ(VB_V_SumFromToLng(counts.data(), 0, 2, 4), -2147483647);
}

TEST(FlatVectorSums, SquaresAndDistances)
{
    std::array x{1.0, 2.0, MISSING_DBL};
    std::array y{4.0, 0.0, MISSING_DBL};
    std::array w{2.0, 0.5, 1.0};
    EXPECT_SAME_BITS(VB_V_SumSq(x.data(), 3), 5.0);
    EXPECT_SAME_BITS(VB_V_SumSqW(x.data(), 3, w.data()), 4.0);
    EXPECT_SAME_BITS(VB_V_DiffSq(x.data(), 3, y.data()), 13.0);
    EXPECT_SAME_BITS(VB_V_DiffSqW(x.data(), 3, y.data(), w.data()), 20.0);
    EXPECT_SAME_BITS(Cpp_V_DiffSqStart(x.data(), 3, y.data(), 2), 4.0);
    EXPECT_SAME_BITS(Cpp_V_DiffSqStart(x.data(), 3, y.data(), 4), 0.0);
}

TEST(FlatVectorSums, RunningSumFillsTheCallersArray)
{
    std::array x{1.0, 2.0, 4.0};
    guarded<double> out{77, 77, 77};
    EXPECT_EQ(Cpp_V_CuSum(x.data(), 2, out.data()), 0);
    EXPECT_SAME_BITS(out.values()[0], 1.0);
    EXPECT_SAME_BITS(out.values()[1], 3.0);
    EXPECT_SAME_BITS(out.values()[2], 77.0);
    EXPECT_EQ(Cpp_V_CuSum(x.data(), 3, x.data()), 0);
    EXPECT_SAME_BITS(x[2], 7.0);
    EXPECT_TRUE(out.intact());
}
