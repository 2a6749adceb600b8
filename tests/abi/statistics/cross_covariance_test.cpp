#include "KORVELMathTools.h"
#include "containers/missing.h"
#include "support/bits.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

constexpr double gone = MISSING_DBL;

} // namespace

TEST(FlatCrossCovariance, OfTwoTables)
{
    guarded<double> x{1, 2, 3, gone};
    guarded<double> y{2, 4, 6, 0, -1, -2, -3, 5};
    guarded<double> w{1, 1, 1, 1};
    guarded<double> out{7, 7};
    EXPECT_EQ(VB_M_CorrMatMat(x.data(), 4, 1, y.data(), 2, out.data(), nullptr, w.data(), 0, 0, -1, -1, 0),
              0);
    expectCells(out, {2, -1});
    EXPECT_EQ(VB_M_CorrMatMat(x.data(), 4, 1, y.data(), 2, out.data(), nullptr, w.data(), 1, 0, -1, -1, 0),
              0);
    expectCells(out, {1, -1});
    EXPECT_EQ(VB_M_CorrMatMat(x.data(), 4, 1, y.data(), 2, out.data(), nullptr, w.data(), 1, 1, -1, -1, 0),
              0);
    expectCells(out, {1, 1});
    EXPECT_EQ(VB_M_CorrMatMat(x.data(), 1, 1, y.data(), 2, out.data(), nullptr, w.data(), 1, 1, 0, 0, 1), 0);
    expectCells(out, {0, 0});
}

TEST(FlatCrossCovariance, TheDenominatorIsAskedForByTwoFlags)
{
    guarded<double> x{1, 2, 3};
    guarded<double> y{2, 4, 6};
    guarded<double> w{2, 2, 2};
    const auto covariance = [&](short int bUnbiased, short int bFreq) {
        guarded<double> out{7};
        VB_M_CorrMatMat(x.data(), 3, 1, y.data(), 1, out.data(), nullptr, w.data(), 0, 0, bUnbiased, bFreq,
                        0);
        return out.data()[0];
    };
    EXPECT_DOUBLE_EQ(covariance(0, 0), 8.0 / 6.0);
    EXPECT_DOUBLE_EQ(covariance(-1, -1), 8.0 / 5.0);
    EXPECT_DOUBLE_EQ(covariance(-1, 0), 8.0 / 4.0);
}

TEST(FlatCrossCovariance, OfSeparateColumns)
{
    caller_columns x({{1, 2, 3, 9}});
    caller_columns y({{2, 4, 6, 9}, {-1, -2, -3, 9}});
    caller_columns out({{7}, {7}});
    guarded<double> w{1, 1, 1, 1};
    guarded<short int> flags{0, 0, 0, 1};
    EXPECT_EQ(VB_M_CorrMatMatSPV(x.argument(), 4, 1, y.argument(), 2, out.argument(), flags.data(), w.data(),
                                 0, 0, -1, -1, 0),
              0);
    EXPECT_EQ(out.values(), (caller_columns::columns{{2}, {-1}}));
    VB_M_CorrMatMatSPV(x.argument(), 4, 1, y.argument(), 2, out.argument(), flags.data(), w.data(), 1, 0, -1,
                       -1, 0);
    EXPECT_EQ(out.values(), (caller_columns::columns{{1}, {-1}}));
    VB_M_CorrMatMatSPV(x.argument(), 4, 1, y.argument(), 2, out.argument(), flags.data(), w.data(), 1, 1, -1,
                       -1, 0);
    EXPECT_EQ(out.values(), (caller_columns::columns{{1}, {1}})) << "squared";
}

TEST(FlatCrossCovariance, OfTwoVectors)
{
    guarded<double> x{1, 2, gone, 3};
    guarded<double> y{2, 4, 5, 6};
    guarded<double> w{1, 1, 1, 1};
    EXPECT_TRUE(sameBits(Cpp_V_Correl2W(x.data(), 4, y.data(), w.data()), 1.0));
    EXPECT_TRUE(sameBits(Cpp_V_Correl2W(x.data(), 1, y.data(), w.data()), gone));
    EXPECT_TRUE(sameBits(Cpp_V_Correl2W(nullptr, 0, nullptr, nullptr), gone));
}
