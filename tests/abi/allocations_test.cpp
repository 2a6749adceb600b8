// Flat functions that borrow the caller's arrays take no memory at all, however long the arrays are. On
// Windows the library has its own operator new, which a program cannot count.
#if !defined(_WIN32)

#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/allocations.h"
#include "support/caller_memory.h"
#include "support/host_arrays.h"

#include <array>
#include <vector>

using namespace korvel::test;

namespace
{

/** Arguments for every function below, and room for what it writes. */
struct arguments {
    explicit arguments(int count)
        : n(count), x(size(), 1.5), y(size(), 0.5), w(size(), 2.0), out(size()), flags(size()),
          counts(size(), 3), numbers(memory.array(x)), longs(memory.array(counts))
    {
        for (std::size_t i = 2; i < size(); i += 3) {
            x[i] = static_cast<double>(i);
            counts[i] = static_cast<int>(i);
        }
        if (n > 3) {
            x[1] = MISSING_DBL;
            flags[3] = -1;
        }
    }

    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(n); }

    int n;
    std::vector<double> x, y, w, out;
    std::vector<short int> flags;
    std::vector<int> counts;
    caller_memory memory;
    SAFEARRAY* numbers;
    SAFEARRAY* longs;
    std::array<double, 8> results{};
    int pos = 0;
};

struct flat_function {
    const char* name;
    void (*call)(arguments& a);
};

// The flags are given, or a null pointer where the function takes one.
const flat_function borrowing[] = {
    {"VB_V_Sum", [](arguments& a) { VB_V_Sum(a.x.data(), a.n, a.flags.data(), a.w.data()); }},
    {"VB_V_Sum, no flags", [](arguments& a) { VB_V_Sum(a.x.data(), a.n, nullptr, a.w.data()); }},
    {"Cpp_V_SumW", [](arguments& a) { Cpp_V_SumW(a.x.data(), a.n, a.w.data()); }},
    {"VB_V_Sum2Dbl", [](arguments& a) { VB_V_Sum2Dbl(a.x.data(), a.n); }},
    {"VB_V_Sum2Lng", [](arguments& a) { VB_V_Sum2Lng(a.counts.data(), a.n); }},
    {"Cpp_V_Sum2Dbl_ST", [](arguments& a) { Cpp_V_Sum2Dbl_ST(&a.numbers, a.n); }},
    {"Cpp_V_Sum2Lng_ST", [](arguments& a) { Cpp_V_Sum2Lng_ST(&a.longs, a.n); }},
    {"VB_V_SumFromTo", [](arguments& a) { VB_V_SumFromTo(a.x.data(), a.n, 1, a.n); }},
    {"VB_V_SumFromToLng", [](arguments& a) { VB_V_SumFromToLng(a.counts.data(), a.n, 1, a.n); }},
    {"VB_V_SumSq", [](arguments& a) { VB_V_SumSq(a.x.data(), a.n); }},
    {"VB_V_SumSqW", [](arguments& a) { VB_V_SumSqW(a.x.data(), a.n, a.w.data()); }},
    {"VB_V_DiffSq", [](arguments& a) { VB_V_DiffSq(a.x.data(), a.n, a.y.data()); }},
    {"VB_V_DiffSqW", [](arguments& a) { VB_V_DiffSqW(a.x.data(), a.n, a.y.data(), a.w.data()); }},
    {"Cpp_V_DiffSqStart", [](arguments& a) { Cpp_V_DiffSqStart(a.x.data(), a.n, a.y.data(), 1); }},
    {"Cpp_V_CuSum", [](arguments& a) { Cpp_V_CuSum(a.x.data(), a.n, a.out.data()); }},

    {"VB_V_Mean", [](arguments& a) { VB_V_Mean(a.x.data(), a.n, a.flags.data(), a.w.data()); }},
    {"VB_V_MeanAbs", [](arguments& a) { VB_V_MeanAbs(a.x.data(), a.n, a.flags.data(), a.w.data()); }},
    {"VB_V_Mean2", [](arguments& a) { VB_V_Mean2(a.x.data(), a.n); }},
    {"Cpp_V_MeanW2", [](arguments& a) { Cpp_V_MeanW2(a.x.data(), a.n, a.w.data()); }},
    {"Cpp_V_HarmonicMean",
     [](arguments& a) { Cpp_V_HarmonicMean(a.x.data(), a.n, a.flags.data(), a.w.data()); }},
    {"Cpp_V_GMeanGSD",
     [](arguments& a) {
         Cpp_V_GMeanGSD(a.x.data(), a.n, a.flags.data(), a.w.data(), &a.results[0], &a.results[1]);
     }},

    {"VB_V_Var", [](arguments& a) { VB_V_Var(a.x.data(), a.n, a.flags.data(), a.w.data(), -1, -1); }},
    {"Cpp_V_Var2", [](arguments& a) { Cpp_V_Var2(a.x.data(), a.n, -1, -1); }},
    {"VB_V_Stdev", [](arguments& a) { VB_V_Stdev(a.x.data(), a.n, a.flags.data(), a.w.data(), -1, -1); }},
    {"VB_V_MeanVar",
     [](arguments& a) {
         VB_V_MeanVar(a.x.data(), a.n, &a.results[0], &a.results[1], a.flags.data(), a.w.data(), -1, -1);
     }},
    {"Cpp_V_MeanVarW2",
     [](arguments& a) {
         Cpp_V_MeanVarW2(a.x.data(), a.n, a.w.data(), &a.results[0], &a.results[1], -1, -1);
     }},
    {"VB_V_MeanStdev",
     [](arguments& a) {
         VB_V_MeanStdev(a.x.data(), a.n, &a.results[0], &a.results[1], a.flags.data(), a.w.data(), -1, -1);
     }},
    {"Cpp_V_MeanStdev2",
     [](arguments& a) { Cpp_V_MeanStdev2(a.x.data(), a.n, -1, &a.results[0], &a.results[1]); }},
    {"VB_V_MeanVarSkewPKurtP",
     [](arguments& a) {
         auto& r = a.results;
         VB_V_MeanVarSkewPKurtP(a.x.data(), a.n, &r[0], &r[1], &r[2], &r[3], &r[4], &r[5], &r[6], &r[7],
                                a.flags.data(), a.w.data(), -1, -1);
     }},

    {"VB_V_Freq", [](arguments& a) { VB_V_Freq(a.x.data(), a.n, a.w.data(), 1.5, 0.25); }},
    {"VB_V_FreqLng", [](arguments& a) { VB_V_FreqLng(a.counts.data(), a.n, a.w.data(), 3.0, 0.25); }},

    {"VB_V_Min", [](arguments& a) { VB_V_Min(a.x.data(), a.n, a.flags.data()); }},
    {"VB_V_Min2", [](arguments& a) { VB_V_Min2(a.x.data(), a.n); }},
    {"VB_V_Min2Lng", [](arguments& a) { VB_V_Min2Lng(a.counts.data(), a.n); }},
    {"VB_V_Max", [](arguments& a) { VB_V_Max(a.x.data(), a.n, a.flags.data()); }},
    {"VB_V_Max, no flags", [](arguments& a) { VB_V_Max(a.x.data(), a.n, nullptr); }},
    {"VB_V_Max2", [](arguments& a) { VB_V_Max2(a.x.data(), a.n); }},
    {"VB_V_Max2Lng", [](arguments& a) { VB_V_Max2Lng(a.counts.data(), a.n); }},
    {"Cpp_V_Max2_ST", [](arguments& a) { Cpp_V_Max2_ST(&a.numbers, a.n); }},
    {"Cpp_V_Max2Lng_ST", [](arguments& a) { Cpp_V_Max2Lng_ST(&a.longs, a.n); }},
    {"VB_V_MaxInt", [](arguments& a) { VB_V_MaxInt(a.counts.data(), a.n, a.flags.data()); }},
    {"VB_V_MaxInt, no flags", [](arguments& a) { VB_V_MaxInt(a.counts.data(), a.n, nullptr); }},
    {"VB_V_MinMax",
     [](arguments& a) { VB_V_MinMax(a.x.data(), a.n, &a.results[0], &a.results[1], a.flags.data()); }},
    {"VB_V_MinMaxLng",
     [](arguments& a) {
         VB_V_MinMaxLng(a.counts.data(), a.n, &a.results[0], &a.results[1], a.flags.data());
     }},
    {"VB_V_MinMax2", [](arguments& a) { VB_V_MinMax2(a.x.data(), a.n, &a.results[0], &a.results[1], -1); }},
    {"VB_V_MinMaxLng2",
     [](arguments& a) { VB_V_MinMaxLng2(a.counts.data(), a.n, &a.results[0], &a.results[1], -1); }},
    {"VB_V_MinAndMinPos", [](arguments& a) { VB_V_MinAndMinPos(a.x.data(), a.n, &a.pos, -1); }},
    {"VB_V_MaxAndMaxPos", [](arguments& a) { VB_V_MaxAndMaxPos(a.x.data(), a.n, &a.pos); }},

    {"VB_IsMissingValueDbl", [](arguments& a) { VB_IsMissingValueDbl(a.x[0]); }},
};

} // namespace

TEST(FlatAllocations, AFrameThatBorrowsTakesNoMemory)
{
    for (const int n : {1, 2, 7, 5000}) {
        arguments given(n);
        for (const flat_function& function : borrowing) {
            const auto before = allocationCount();
            function.call(given);
            EXPECT_EQ(allocationCount() - before, 0) << function.name << " on " << n << " elements";
        }
    }
}

TEST(FlatAllocations, AFrameThatCopiesIsSeenToTakeMemory)
{
    bstr_block labels{u"longer than what a text holds in place", u"b"};
    std::array w{1.0, 2.0};
    const auto before = allocationCount();
    EXPECT_EQ(VB_V_FreqStr(labels.data(), 2, w.data(), labels[1]), 2.0);
    EXPECT_GE(allocationCount() - before, 2) << "the copy of the texts, and the long one";
}

#endif
