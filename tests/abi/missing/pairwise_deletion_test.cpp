#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <new>

using namespace korvel::test;

TEST(FlatPairwiseDeletion, KeepsPairsFromTheSecondPlaceOn)
{
    guarded<double> x{1, MISSING_DBL, 3, 4};
    guarded<double> y{10, 20, MISSING_DBL, 40};
    guarded<double> z{100, 200, 300, 400};
    guarded<double> a{7, 7, 7, 7, 7};
    guarded<double> b{8, 8, 8, 8, 8};
    guarded<double> c{9, 9, 9, 9, 9};
    guarded<int> count{-5};
    EXPECT_EQ(
        Cpp_V_PairwiseDeletion(x.data(), y.data(), z.data(), 4, a.data(), b.data(), c.data(), count.data()),
        0);
    EXPECT_EQ(valuesOf(count), ints{2});
    EXPECT_EQ(valuesOf(a), (doubles{7, 1, 4, 7, 7}));
    EXPECT_EQ(valuesOf(b), (doubles{8, 10, 40, 8, 8}));
    EXPECT_EQ(valuesOf(c), (doubles{9, 100, 400, 9, 9}));
    EXPECT_EQ(
        Cpp_V_PairwiseDeletion(z.data(), z.data(), z.data(), 4, a.data(), b.data(), c.data(), count.data()),
        0);
    EXPECT_EQ(valuesOf(a), (doubles{7, 100, 200, 300, 400})) << "room for one more than the series has";
}

TEST(FlatPairwiseDeletion, ReadsCopies)
{
    guarded<double> x{1, 2, 3, 4};
    guarded<double> out{7, 7, 7, 7};
    guarded<int> count{-5};
    EXPECT_EQ(Cpp_V_PairwiseDeletion(x.data(), x.data(), x.data(), 3, x.data(), out.data(), out.data(),
                                     count.data()),
              0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 1, 2, 3})) << "over the series itself";
    EXPECT_EQ(valuesOf(out), (doubles{7, 1, 2, 3}));
}

TEST(FlatPairwiseDeletion, OfNoPairLeavesTheResultsAlone)
{
    guarded<double> x{MISSING_DBL, 1};
    guarded<double> y{1, MISSING_DBL};
    guarded<double> out{7, 7, 7};
    guarded<int> count{-5};
    EXPECT_EQ(Cpp_V_PairwiseDeletion(x.data(), y.data(), x.data(), 2, out.data(), out.data(), out.data(),
                                     count.data()),
              0);
    EXPECT_EQ(valuesOf(count), ints{0});
    EXPECT_EQ(valuesOf(out), (doubles{7, 7, 7}));
    EXPECT_THROW(Cpp_V_PairwiseDeletion(x.data(), y.data(), x.data(), -1, out.data(), out.data(), out.data(),
                                        count.data()),
                 std::bad_alloc);
    EXPECT_EQ(valuesOf(count), ints{0});
}
