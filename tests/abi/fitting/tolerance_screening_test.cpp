#include "korvelmathtools/KORVELMathTools.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>
#include <new>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = KORVEL_MISSING_DBL;

} // namespace

TEST(FlatToleranceScreening, ScreensTheSelectedGroups)
{
    // The second variable repeats the first; the third is constant; the fourth is of a group that is not
    // selected.
    guarded<double> r{1, 1, 0, 0.5, 1, 1, 0, 0.5, 0, 0, 0, 0, 0.5, 0.5, 0, 1};
    guarded<double> selection{1, 0};
    guarded<double> groups{1, 1, 1, 2};
    guarded<double> status{7, 7, 7, 7};
    guarded<double> tolerances{7, 7, 7, 7};
    guarded<double> factors{7, 7, 7, 7};
    EXPECT_EQ(VB_CheckTolerance(r.data(), 4, 2, selection.data(), groups.data(), 1e-4, 1, 0, 0, 0,
                                status.data(), tolerances.data(), factors.data()),
              0);
    expectCells(status, {-1, 60000, 50000, -1});
    expectCells(tolerances, {0.75, 0, 0, 7});
    expectCells(factors, {1 / 0.75, gone, gone, 7});
}

TEST(FlatToleranceScreening, PassesEachFlagInItsPlace)
{
    guarded<double> r{1, 1, 0.5, 1, 1, 0.5, 0.5, 0.5, 1};
    guarded<double> selection{1, 1};
    guarded<double> groups{1, 1, 2};
    guarded<double> status{7, 7, 7};
    guarded<double> tolerances{7, 7, 7};
    guarded<double> factors{7, 7, 7};
    const auto run = [&](short int duplicates, short int entered, short int reverse, short int skipGroup) {
        VB_CheckTolerance(r.data(), 3, 2, selection.data(), groups.data(), 1e-4, duplicates, entered, reverse,
                          skipGroup, status.data(), tolerances.data(), factors.data());
    };
    run(0, 0, 0, 0);
    expectCells(status, {-1, -1, -1});
    expectCells(tolerances, {0, 0, 0.75});
    run(0, 0, 0, -1);
    expectCells(tolerances, {0.75, 0.75, 0.75});
    run(-1, 0, 0, 0);
    expectCells(status, {-1, 60000, -1});
    expectCells(tolerances, {0.75, 0, 0.75});
    run(1, -1, 0, 0);
    expectCells(tolerances, {0, 0, 0.75});
}

TEST(FlatToleranceScreening, PassesTheFlagOfTheReverseOrder)
{
    // The third variable is (x1 + x2) / sqrt(2) of two that are independent. From the back it is found before
    // the first two are screened, and left out then.
    const double h = std::sqrt(0.5);
    guarded<double> r{1, 0, h, 0, 0, 1, h, 0, h, h, 1, 0, 0, 0, 0, 1};
    guarded<double> selection{1};
    guarded<double> groups{1, 1, 1, 1};
    guarded<double> status{7, 7, 7, 7};
    guarded<double> tolerances{7, 7, 7, 7};
    guarded<double> factors{7, 7, 7, 7};
    const auto run = [&](short int reverse) {
        VB_CheckTolerance(r.data(), 4, 1, selection.data(), groups.data(), 1e-4, -1, 0, reverse, 0,
                          status.data(), tolerances.data(), factors.data());
    };
    run(0);
    EXPECT_LT(valuesOf(tolerances)[0], 1e-10);
    run(-1);
    EXPECT_SAME_BITS(valuesOf(tolerances)[0], 1.0);
    EXPECT_SAME_BITS(valuesOf(status)[2], 60000.0);
}

TEST(FlatToleranceScreening, RefusesANegativeCount)
{
    guarded<double> one{1};
    guarded<double> status{7};
    EXPECT_THROW(VB_CheckTolerance(one.data(), 1, -1, one.data(), one.data(), 1e-4, 0, 0, 0, 0, status.data(),
                                   status.data(), status.data()),
                 std::bad_alloc)
        << "of groups";
    EXPECT_THROW(VB_CheckTolerance(one.data(), -1, 1, one.data(), one.data(), 1e-4, 0, 0, 0, 0, status.data(),
                                   status.data(), status.data()),
                 std::bad_alloc)
        << "of variables";
    expectCells(status, {7});
    EXPECT_EQ(VB_CheckTolerance(one.data(), 1, 0, nullptr, one.data(), 1e-4, 0, 0, 0, 0, status.data(),
                                one.data(), one.data()),
              0);
    expectCells(status, {-1});
}
