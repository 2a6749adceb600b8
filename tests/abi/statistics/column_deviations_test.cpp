#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

const doubles cells{1, 2, 3, 6, 0, MISSING_DBL, 2, 50};

} // namespace

TEST(FlatColumnDeviations, MeansAndDeviations)
{
    guarded<double> x(cells);
    guarded<short int> flags{0, 0, 0, 7};
    guarded<double> w{1, 1, 1, 1};
    guarded<double> means{9, 9};
    guarded<double> sds{9, 9};
    EXPECT_EQ(VB_M_MeanStDev(x.data(), 4, 2, means.data(), sds.data(), flags.data(), w.data(), 0, 0, 0), 0);
    EXPECT_EQ(valuesOf(means), (doubles{2, 1}));
    EXPECT_EQ(valuesOf(sds), (doubles{std::sqrt(2.0 / 3.0), 1}));
    EXPECT_EQ(VB_M_MeanStDev(x.data(), 4, 1, means.data(), sds.data(), nullptr, w.data(), -1, -1, -1), 0);
    EXPECT_EQ(valuesOf(means), (doubles{3, 1}));
    EXPECT_EQ(valuesOf(sds), (doubles{std::sqrt(14.0 / 3.0), 1}));
    EXPECT_EQ(VB_M_MeanStDev(x.data(), 4, 2, means.data(), sds.data(), flags.data(), w.data(), 0, 0, 1), 0);
    EXPECT_EQ(valuesOf(means), (doubles{0, 0}));
    EXPECT_EQ(valuesOf(sds), (doubles{MISSING_DBL, MISSING_DBL}));
    EXPECT_EQ(valuesOf(x), cells);
}

TEST(FlatColumnDeviations, WithVariances)
{
    guarded<double> x(cells);
    guarded<short int> flags{0, 0, 0, 7};
    guarded<double> w{1, 1, 1, 1};
    guarded<double> means{9, 9};
    guarded<double> sds{9, 9};
    guarded<double> vars{9, 9};
    EXPECT_EQ(VB_M_MeanStDevVar(x.data(), 4, 2, means.data(), sds.data(), vars.data(), flags.data(), w.data(),
                                -1, 0),
              0);
    EXPECT_EQ(valuesOf(means), (doubles{2, 1}));
    EXPECT_EQ(valuesOf(sds), (doubles{1, std::sqrt(2.0)}));
    EXPECT_EQ(valuesOf(vars), (doubles{1, 2}));
}

TEST(FlatColumnDeviations, ByRow)
{
    guarded<double> x(cells);
    guarded<double> w{1, 1};
    guarded<double> means{9, 9, 9, 9};
    guarded<double> sds{9, 9, 9, 9};
    EXPECT_EQ(VB_M_MeanStDevByRow(x.data(), 4, 2, means.data(), sds.data(), w.data(), 0, 0), 0);
    EXPECT_EQ(valuesOf(means), (doubles{0.5, 2, 2.5, 28}));
    EXPECT_EQ(valuesOf(sds), (doubles{0.5, 0, 0.5, 22}));
}

TEST(FlatColumnDeviations, AllCellsAsOneSample)
{
    guarded<double> x(cells);
    guarded<double> w{1, 0, 1, 0};
    guarded<double> mean{9};
    guarded<double> sd{9};
    guarded<double> var{9};
    EXPECT_EQ(VB_M_MeanStDevVarOneInMat(x.data(), 4, 2, mean.data(), sd.data(), var.data(), w.data(), 0, 0),
              0);
    EXPECT_EQ(valuesOf(mean), (doubles{1.5}));
    EXPECT_EQ(valuesOf(var), (doubles{1.25}));
    EXPECT_EQ(valuesOf(sd), (doubles{std::sqrt(1.25)}));
    EXPECT_EQ(VB_M_MeanStDevVarOneInMat(nullptr, 0, 0, mean.data(), sd.data(), var.data(), nullptr, 0, 0), 0);
    EXPECT_EQ(valuesOf(mean), (doubles{0}));
    EXPECT_EQ(valuesOf(var), (doubles{MISSING_DBL}));
    EXPECT_EQ(valuesOf(sd), (doubles{MISSING_DBL}));
}
