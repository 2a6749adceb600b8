#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

const doubles cells{1, 2, 3, gone, 2, 4, 6, 9, gone, gone, gone, 5};

void expectNumbers(const doubles& found, const doubles& expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t k = 0; k < found.size(); ++k) {
        EXPECT_TRUE(sameBits(found[k], expected[k])) << k;
    }
}

} // namespace

TEST(FlatCovariance, PairwiseDeletion)
{
    guarded<double> x(cells);
    guarded<double> w{1, 1, 1, 1};
    guarded<short int> flags{0, 0, 0, 0};
    guarded<double> out(doubles(9, 7.0));
    EXPECT_EQ(VB_M_CovCorr(x.data(), 4, 3, out.data(), 0, flags.data(), w.data(), -1, -1, 0), 0);
    const double variance = (3.25 * 3.25 + 1.25 * 1.25 + 0.75 * 0.75 + 3.75 * 3.75) / 3.0;
    const doubles found = valuesOf(out);
    EXPECT_TRUE(sameBits(found[0], 1.0));
    EXPECT_TRUE(sameBits(found[1], 2.0));
    EXPECT_TRUE(sameBits(found[3], 2.0));
    EXPECT_DOUBLE_EQ(found[4], variance);
    EXPECT_TRUE(sameBits(found[2], gone));
    EXPECT_TRUE(std::isnan(found[5])) << "one common row: 0 over 0";
    EXPECT_TRUE(std::isnan(found[8]));
    guarded<short int> lastLeftOut{0, 0, 0, 1};
    EXPECT_EQ(VB_M_CovCorr(x.data(), 4, 2, out.data(), 1, lastLeftOut.data(), w.data(), 0, 0, 0), 0);
    expectNumbers({valuesOf(out)[0], valuesOf(out)[1]},
                  {1.0, (4.0 / 3.0) / std::sqrt(2.0 / 3.0 * (8.0 / 3.0))});
    EXPECT_EQ(valuesOf(x), cells);
}

TEST(FlatCovariance, TheResultMayBeTheTable)
{
    guarded<double> x{0, 2, 0, 4};
    guarded<double> w{1, 1};
    VB_M_CovCorr(x.data(), 2, 2, x.data(), 0, nullptr, w.data(), 0, 0, 0);
    expectNumbers(valuesOf(x), {1, 2, 2, 4});
}

TEST(FlatCovariance, LabelledTables)
{
    caller_memory caller;
    ST_MVect x = caller.table({caller.column(u"a", doubles{0, 2, 9}), caller.column(u"b", doubles{0, 4, 9})},
                              {u"a", u"b"});
    ST_MVect out =
        caller.table({caller.column(u"a", doubles{7, 7}), caller.column(u"b", doubles{7, 7})}, {u"a", u"b"});
    shorts flags{0, 0, -1};
    doubles w{1, 1, 1};
    EXPECT_EQ(Cpp_M_CovCorr_ST(&x, 3, 2, &out, 0, flags.data(), w.data(), 0, 0, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1, 2});
    expectNumbers(numbersIn<double>(columnOf(out, 1).Vect), {2, 4});
    EXPECT_EQ(Cpp_M_CovCorr_ST(&x, 3, 2, &out, -1, flags.data(), w.data(), 0, 0, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1, 1});
    EXPECT_EQ(out.nbcols, 2);
    EXPECT_EQ(out.nbrowsmax, 2);
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatCovariance, LabelledTablesHeedEveryArgument)
{
    caller_memory caller;
    ST_MVect x = caller.table({caller.column(u"a", doubles{0, 9, 2}), caller.column(u"b", doubles{0, 9, 4})},
                              {u"a", u"b"});
    ST_MVect flat = caller.table(
        {caller.column(u"a", doubles{0, 9, 2}), caller.column(u"b", doubles{5, 9, 5})}, {u"a", u"b"});
    ST_MVect out =
        caller.table({caller.column(u"a", doubles{7, 7}), caller.column(u"b", doubles{7, 7})}, {u"a", u"b"});
    shorts flags{0, 1, 0};
    doubles w{1, 8, 3};
    // The rows kept sum up to 4, and their squares about the mean of 1.5 to 3.
    EXPECT_EQ(Cpp_M_CovCorr_ST(&x, 3, 2, &out, 0, flags.data(), w.data(), 0, 0, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {0.75, 1.5});
    EXPECT_EQ(Cpp_M_CovCorr_ST(&x, 3, 2, &out, 0, flags.data(), w.data(), -1, -1, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1, 2});
    EXPECT_EQ(Cpp_M_CovCorr_ST(&x, 3, 2, &out, 0, flags.data(), w.data(), -1, 0, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1.5, 3});
    EXPECT_EQ(Cpp_M_CovCorr_ST(&flat, 3, 2, &out, -1, flags.data(), w.data(), 0, 0, 0), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1, gone});
    EXPECT_EQ(Cpp_M_CovCorr_ST(&flat, 3, 2, &out, -1, flags.data(), w.data(), 0, 0, -1), 0);
    expectNumbers(numbersIn<double>(columnOf(out, 0).Vect), {1, 0});
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(FlatCovariance, CentringAndReducingAreAskedForApart)
{
    for (auto* const function : {VB_M_CovCorrAndMeanStDevVar, VB_M_CovCorrVAndMeanStDevVar}) {
        guarded<double> w{1, 1};
        guarded<double> out{7};
        guarded<double> means{7};
        guarded<double> sds{7};
        guarded<double> vars{7};
        const auto changed = [&](short int bCenter, short int bReduce) {
            guarded<double> x{0, 4}; // mean 2, deviation 2
            function(x.data(), 2, 1, out.data(), means.data(), sds.data(), vars.data(), 0, nullptr, w.data(),
                     0, 0, bCenter, bReduce, 0);
            return valuesOf(x);
        };
        expectNumbers(changed(-1, 0), {-2, 2});
        expectNumbers(changed(0, -1), {0, 2});
        expectNumbers(changed(-1, -1), {-1, 1});
        expectNumbers(changed(0, 0), {0, 4});
    }
}

TEST(FlatCovariance, WithStatisticsAndInPlace)
{
    for (auto* const function : {VB_M_CovCorrAndMeanStDevVar, VB_M_CovCorrVAndMeanStDevVar}) {
        guarded<double> x{0, 2, gone, 5, 5, 5};
        guarded<double> w{1, 1, 1};
        guarded<short int> flags{0, 0, 0};
        guarded<double> out(doubles(4, 7.0));
        guarded<double> means{7, 7};
        guarded<double> sds{7, 7};
        guarded<double> vars{7, 7};
        EXPECT_EQ(function(x.data(), 3, 2, out.data(), means.data(), sds.data(), vars.data(), -1,
                           flags.data(), w.data(), 0, 0, -1, -1, 0),
                  0);
        expectNumbers(valuesOf(out), {1, gone, gone, gone});
        expectNumbers(valuesOf(means), {1, 5});
        expectNumbers(valuesOf(sds), {1, 0});
        expectNumbers(valuesOf(vars), {1, 0});
        expectNumbers(valuesOf(x), {-1, 1, gone, 5, 5, 5});
        EXPECT_EQ(function(x.data(), 3, 2, out.data(), means.data(), sds.data(), vars.data(), 1, flags.data(),
                           w.data(), -1, -1, 0, 0, 1),
                  0);
        expectNumbers(valuesOf(out), {2, 0, 0, 0});
    }
}
