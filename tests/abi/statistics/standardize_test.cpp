#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const double none = MISSING_DBL;
const doubles cells{1, none, 3, 50, 2, 2, 2, none};
const doubles standardized{-1, none, 1, none, 0, 0, 0, none};

} // namespace

TEST(FlatStandardize, IntoAResultWithTheStatistics)
{
    guarded<double> x(cells);
    guarded<double> out(doubles(8, 9));
    guarded<double> means{9, 9};
    guarded<double> sds{9, 9};
    guarded<double> vars{9, 9};
    guarded<short int> flags{0, 0, 0, -1};
    guarded<double> w{1, 1, 1, 1};
    EXPECT_EQ(VB_M_Standardize(x.data(), 4, 2, out.data(), means.data(), sds.data(), vars.data(),
                               flags.data(), w.data(), 0, 0),
              0);
    EXPECT_EQ(valuesOf(out), standardized);
    EXPECT_EQ(valuesOf(means), (doubles{2, 2}));
    EXPECT_EQ(valuesOf(sds), (doubles{1, 0}));
    EXPECT_EQ(valuesOf(vars), (doubles{1, 0}));
    EXPECT_EQ(valuesOf(x), cells);
}

TEST(FlatStandardize, NullArguments)
{
    guarded<double> x(cells);
    guarded<short int> flags{0, 0, 0, -1};
    EXPECT_EQ(
        VB_M_Standardize(x.data(), 4, 2, nullptr, nullptr, nullptr, nullptr, flags.data(), nullptr, 0, 0), 0);
    EXPECT_EQ(valuesOf(x), (doubles{-1, none, 1, 50, 0, 0, 0, none})) << "in place";
    guarded<double> y{1, 3};
    EXPECT_EQ(VB_M_Standardize(y.data(), 2, 1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0, 0),
              0);
    EXPECT_EQ(valuesOf(y), (doubles{-1, 1}));
}

TEST(FlatStandardize, AColumnWithoutADenominatorEndsTheWork)
{
    guarded<double> x{4, 5, 6};
    guarded<double> out{9, 9, 9};
    guarded<double> means{9, 9, 9};
    EXPECT_EQ(VB_M_Standardize(x.data(), 1, 3, out.data(), means.data(), nullptr, nullptr, nullptr, nullptr,
                               -1, -1),
              0);
    EXPECT_EQ(valuesOf(out), (doubles{0, 0, 0}));
    EXPECT_EQ(valuesOf(means), (doubles{none, 0, 0}));
}

TEST(FlatStandardize, TheResultMayShareMemoryWithTheTable)
{
    guarded<double> same(cells);
    guarded<short int> flags{0, 0, 0, -1};
    VB_M_Standardize(same.data(), 4, 2, same.data(), nullptr, nullptr, nullptr, flags.data(), nullptr, 0, 0);
    EXPECT_EQ(valuesOf(same), standardized);
    for (const int shift : {-3, 3}) {
        doubles room(11, 9);
        const int from = std::max(-shift, 0);
        std::copy(cells.begin(), cells.end(), room.begin() + from);
        guarded<double> shifted(room);
        VB_M_Standardize(shifted.data() + from, 4, 2, shifted.data() + from + shift, nullptr, nullptr,
                         nullptr, flags.data(), nullptr, 0, 0);
        const doubles found = valuesOf(shifted);
        EXPECT_EQ(doubles(found.begin() + from + shift, found.begin() + from + shift + 8), standardized);
    }
    guarded<double> weighed{1, 3, 1, 1};
    VB_M_Standardize(weighed.data(), 2, 2, nullptr, nullptr, nullptr, nullptr, nullptr, weighed.data() + 2, 0,
                     0);
    EXPECT_EQ(valuesOf(weighed), (doubles{-1, 1, 0, 0})) << "the weights are a column of the table";
}

TEST(FlatStandardize, TheFlagsAndTheStatisticsStandInTheirPlaces)
{
    guarded<double> x{0, 4};
    guarded<double> w{1, 3};
    guarded<double> sds{9};
    guarded<double> vars{9};
    VB_M_Standardize(x.data(), 2, 1, nullptr, nullptr, sds.data(), vars.data(), nullptr, w.data(), -1, 0);
    const double sd = std::sqrt(6.0); // 12 over 4 - 4/2
    EXPECT_EQ(valuesOf(x), (doubles{-3 / sd, 1 / sd}));
    EXPECT_EQ(valuesOf(sds), doubles{sd});
    EXPECT_EQ(valuesOf(vars), doubles{6});
}

TEST(FlatStandardize, Vectors)
{
    guarded<double> x{0, 4, none, 9};
    guarded<double> out{7, 7, 7, 7};
    guarded<short int> flags{0, 0, 0, 1};
    guarded<double> w{1, 3, 5, 7};
    const double sd = std::sqrt(6.0); // not frequency: 12 over 4 - 4/2
    EXPECT_EQ(VB_V_Standardize(x.data(), 4, flags.data(), w.data(), -1, out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{-3 / sd, 1 / sd, none, none}));
    EXPECT_EQ(VB_V_Standardize2(x.data(), 4, flags.data(), w.data(), -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{-3 / sd, 1 / sd, none, 9}));
    EXPECT_EQ(VB_V_Standardize(out.data(), 1, nullptr, nullptr, -1, out.data()), 0);
    EXPECT_EQ(valuesOf(out)[0], 0) << "no denominator";
}

TEST(FlatStandardize, GivenStatistics)
{
    guarded<double> x{3, none, 5, 6};
    guarded<double> means{1, 2};
    guarded<double> sds{2, 0};
    guarded<double> vars{16, 4};
    guarded<double> out{9, 9, 9, 9};
    guarded<short int> flags{0, 1};
    EXPECT_EQ(VB_M_StandardizeKnownMeansStDev(x.data(), 2, 2, means.data(), sds.data(), out.data(), nullptr,
                                              flags.data()),
              0);
    EXPECT_EQ(valuesOf(out), (doubles{1, none, 3, none}));
    EXPECT_EQ(VB_M_StandardizeKnownMeansStDev(x.data(), 2, 2, means.data(), nullptr, out.data(), vars.data(),
                                              nullptr),
              0);
    EXPECT_EQ(valuesOf(out), (doubles{0.5, none, 1.5, 2}));
    EXPECT_EQ(VB_M_StandardizeByVect(x.data(), 2, 2, means.data(), sds.data(), out.data()), 0);
    EXPECT_EQ(valuesOf(out), (doubles{1, none, 3, 4}));
    EXPECT_EQ(valuesOf(x), (doubles{3, none, 5, 6}));
    EXPECT_EQ(VB_M_StandardizeByVect2(x.data(), 2, 2, means.data(), sds.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, none, 3, 4}));
    EXPECT_EQ(VB_M_StandardizeKnownMeansStDev(x.data(), 2, 2, means.data(), nullptr, nullptr, vars.data(),
                                              flags.data()),
              0);
    EXPECT_EQ(valuesOf(x), (doubles{0, none, 0.5, 4})) << "in place";
    EXPECT_EQ(Cpp_M_StandardizeApply2(x.data(), 2, 2, means.data(), sds.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{-0.5, none, none, none}));
}

TEST(FlatStandardize, CountsBelowOne)
{
    for (const int count : {0, -1}) {
        EXPECT_EQ(VB_M_Standardize(nullptr, count, count, nullptr, nullptr, nullptr, nullptr, nullptr,
                                   nullptr, 0, 0),
                  0);
        guarded<double> x{1, 2};
        guarded<double> other{9, 9};
        VB_M_Standardize(x.data(), 2, count, other.data(), other.data(), nullptr, nullptr, nullptr, x.data(),
                         0, 0);
        VB_M_Standardize(x.data(), count, 1, other.data(), nullptr, nullptr, nullptr, nullptr, x.data(), -1,
                         0);
        VB_V_Standardize(x.data(), count, nullptr, nullptr, 0, other.data());
        VB_V_Standardize2(x.data(), count, nullptr, nullptr, 0);
        VB_M_StandardizeKnownMeansStDev(x.data(), count, 2, x.data(), x.data(), other.data(), nullptr,
                                        nullptr);
        VB_M_StandardizeKnownMeansStDev(x.data(), 2, count, x.data(), x.data(), nullptr, nullptr, nullptr);
        VB_M_StandardizeByVect(x.data(), 2, count, x.data(), x.data(), other.data());
        VB_M_StandardizeByVect2(x.data(), count, 1, x.data(), x.data());
        Cpp_M_StandardizeApply2(x.data(), 2, count, x.data(), x.data());
        EXPECT_EQ(valuesOf(x), (doubles{1, 2}));
        EXPECT_EQ(valuesOf(other), (doubles{9, 9}));
    }
}
