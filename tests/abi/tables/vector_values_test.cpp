#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/automation_watch.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <numeric>

using namespace korvel::test;

TEST(FlatVectorValues, AddAndReplace)
{
    guarded<double> x{1, MISSING_DBL, 3};
    guarded<short int> flags{0, 0, 5};
    EXPECT_EQ(VB_V_PlusVal(x.data(), 3, 2, flags.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, MISSING_DBL + 2, 3}));
    EXPECT_EQ(VB_V_PlusVal(x.data(), 1, 2, nullptr), 0);
    x.data()[1] = MISSING_DBL;
    EXPECT_EQ(VB_V_PlusVal2(x.data(), 3, 1e300), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1e300, MISSING_DBL, 1e300}));
    guarded<double> out{9, 9, 9};
    EXPECT_EQ(VB_V_ReplaceVal(x.data(), 2, 1e300, 4, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{4, MISSING_DBL, 9}));
    EXPECT_EQ(valuesOf(x), (doubles{1e300, MISSING_DBL, 1e300}));
    EXPECT_EQ(VB_V_ReplaceVal(x.data(), 3, 1e300, 4, x.data()), 0);
    EXPECT_EQ(VB_V_ReplaceVal2(x.data(), 3, MISSING_DBL, 5), 0);
    EXPECT_EQ(valuesOf(x), (doubles{4, 5, 4}));
    EXPECT_EQ(VB_V_ReplaceVal2(nullptr, 0, 1, 2), 0);
}

TEST(FlatVectorValues, LeaveOneOut)
{
    const auto without = [](int n, int pos, const doubles& expected) {
        guarded<double> x{1, 2, 3};
        guarded<double> out(doubles(expected.size(), 9.0));
        EXPECT_EQ(VB_V_RemoveVal(x.data(), n, pos, out.data()), 0);
        EXPECT_EQ(valuesOf(out), expected) << pos;
        EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3}));
    };
    without(3, 1, {2, 3});
    without(3, 2, {1, 3});
    without(3, 3, {1, 2});
    without(3, 4, {1, 2});
    without(3, 0, {2, 3});
    without(1, 1, {});
    without(0, 1, {});
    guarded<double> x{1, 2, 3};
    EXPECT_EQ(VB_V_RemoveVal(x.data(), 3, 1, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 3, 3}));
}

TEST(FlatVectorValues, AreSet)
{
    guarded<double> x{1, 2, 3};
    EXPECT_EQ(VB_V_SetToValue(x.data(), 2, 8), 0);
    EXPECT_EQ(valuesOf(x), (doubles{8, 8, 3}));
    guarded<int> k{1, 2, 3};
    EXPECT_EQ(VB_V_SetToValueLng(k.data(), 2, 8), 0);
    EXPECT_EQ(valuesOf(k), (ints{8, 8, 3}));
    text_block words(texts{u"same", u"b", u"c"});
    BSTR const kept = words.data()[0];
    caller_memory caller;
    BSTR const same = caller.label(u"same");
    const automation_watch watch;
    EXPECT_EQ(VB_V_SetToValueStr(words.data(), 2, same), 0);
    EXPECT_EQ(words.values(), (texts{u"same", u"same", u"c"}));
    EXPECT_EQ(words.data()[0], kept) << "a text that reads the same stays";
    EXPECT_TRUE(watch.texts(1, 1));
    SAFEARRAY* numbers = caller.array<double>({1, 2, 3});
    EXPECT_EQ(Cpp_V_SetToValue_ST(&numbers, 2, 7), 0);
    EXPECT_EQ(Cpp_V_SetToValue_ST(&numbers, 0, 5), 0);
    EXPECT_EQ(numbersIn<double>(numbers), (doubles{7, 7, 3}));
    SAFEARRAY* integers = caller.array<int>({1, 2, 3});
    EXPECT_EQ(Cpp_V_SetToValueLng_ST(&integers, 5, 7), 0);
    EXPECT_EQ(numbersIn<int>(integers), (ints{7, 7, 7})) << "no further than the array goes";
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatVectorValues, AreConvertedAndExchanged)
{
    guarded<double> x{1.9, -1.9, 3e9, MISSING_DBL};
    guarded<int> k{9, 9, 9, 9};
    EXPECT_EQ(Cpp_V_CopyDoubleToLong(x.data(), 4, k.data()), 0);
    EXPECT_EQ(valuesOf(k), (ints{1, -1, MISSING_LNG, MISSING_LNG}));
    EXPECT_EQ(Cpp_V_CopyLongToDouble(k.data(), 3, x.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, -1, -2147483648.0, MISSING_DBL}));
    guarded<double> y{5, 6, 7, 8};
    EXPECT_EQ(Cpp_V_SwapDbl(x.data(), 2, y.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{5, 6, -2147483648.0, MISSING_DBL}));
    EXPECT_EQ(valuesOf(y), (doubles{1, -1, 7, 8}));
    text_block a(texts{u"a", u"same", u"c"});
    text_block b(texts{u"1", u"same", u"3"});
    const automation_watch watch;
    EXPECT_EQ(Cpp_V_SwapStr(a.data(), 2, b.data()), 0);
    EXPECT_EQ(a.values(), (texts{u"1", u"same", u"c"}));
    EXPECT_EQ(b.values(), (texts{u"a", u"same", u"3"}));
    EXPECT_TRUE(watch.texts(2, 2));
}

TEST(FlatVectorValues, AreCleaned)
{
    guarded<double> x{1, MISSING_DBL, 3};
    guarded<double> w{10, 20, 30};
    int m = 77;
    EXPECT_EQ(Cpp_V_CleanVectDblW2(x.data(), 3, w.data(), &m), 0);
    EXPECT_EQ(m, 2);
    EXPECT_EQ(valuesOf(x), (doubles{1, 3, 3}));
    EXPECT_EQ(valuesOf(w), (doubles{10, 30, 30}));
    x.data()[0] = MISSING_DBL;
    EXPECT_EQ(Cpp_V_CleanVectDbl2(x.data(), 3, &m), 0);
    EXPECT_EQ(m, 2);
    EXPECT_EQ(valuesOf(x), (doubles{3, 3, 3}));
    EXPECT_EQ(Cpp_V_CleanVectDbl2(nullptr, 0, &m), 0);
    EXPECT_EQ(m, 0);
}

TEST(FlatVectorValues, AResultMayLieAcrossTheVector)
{
    for (const int shift : {-1, 0, 1}) {
        SCOPED_TRACE(shift);
        guarded<double> x{9, 1, 2, 1, 3, 9};
        VB_V_ReplaceVal(x.data() + 1, 4, 1, 5, x.data() + 1 + shift);
        const doubles replaced = valuesOf(x);
        EXPECT_EQ(doubles(replaced.begin() + 1 + shift, replaced.begin() + 5 + shift), (doubles{5, 2, 5, 3}));
        guarded<double> y{9, 1, 2, 3, 4, 9};
        VB_V_RemoveVal(y.data() + 1, 4, 2, y.data() + 1 + shift);
        const doubles removed = valuesOf(y);
        EXPECT_EQ(doubles(removed.begin() + 1 + shift, removed.begin() + 4 + shift), (doubles{1, 3, 4}));
    }
}

TEST(FlatVectorValues, AConversionMayLieAcrossTheVector)
{
    // More elements than a loop over lanes has read before it stores.
    constexpr int count = 37;
    std::array<int, count> integers{};
    std::iota(integers.begin(), integers.end(), -5);
    for (int shift = -count; shift <= 2 * count; ++shift) {
        SCOPED_TRACE(shift);
        std::array<double, 3 * count> room{};
        double* const x = room.data() + count;
        std::copy(integers.begin(), integers.end(), x);
        int* const y = reinterpret_cast<int*>(x) + shift;
        Cpp_V_CopyDoubleToLong(x, count, y);
        std::array<int, count> found{};
        std::memcpy(found.data(), y, sizeof found);
        EXPECT_EQ(found, integers);
    }
    for (int shift = -count; shift <= 2 * count; ++shift) {
        SCOPED_TRACE(shift);
        std::array<double, 3 * count> room{};
        double* const y = room.data() + count;
        int* const x = reinterpret_cast<int*>(y) + shift;
        std::memcpy(x, integers.data(), sizeof integers);
        Cpp_V_CopyLongToDouble(x, count, y);
        EXPECT_TRUE(std::equal(integers.begin(), integers.end(), y));
    }
}
