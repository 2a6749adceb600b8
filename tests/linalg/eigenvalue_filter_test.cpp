#include "linalg/eigenvalue_filter.h"

#include "containers/missing.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

#if !defined(_WIN32)
#include <csignal>
#include <unistd.h>
#endif

using namespace korvel::test;

namespace
{

struct bounds {
    short int dropTail = -1;
    double threshold = 0.0;
    double cumulativePercent = 0.0;
    int maxCount = 0;
    double minValue = 0.0;
};

struct filtered {
    std::vector<double> values;
    int kept = -9;
    int retained = -9;
    std::vector<double> percents;
};

filtered filter(std::vector<double> cells, const bounds& b)
{
    const int n = static_cast<int>(cells.size());
    matrix<double> values(n, 1, cells.data(), true);
    matrix<double> percents(2, 2, 9.0);
    auto* shares = &percents;
    filtered found;
    EXPECT_EQ(FilterEigen(&values, n, b.dropTail, b.threshold, b.cumulativePercent, b.maxCount, b.minValue,
                          found.kept, found.retained, shares),
              0);
    EXPECT_EQ(percents.nbElem, cells.size());
    found.values = cells;
    found.percents.assign(percents.data, percents.data + percents.nbElem);
    return found;
}

void expectCells(const std::vector<double>& found, const std::vector<double>& expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t k = 0; k < found.size(); ++k) {
        EXPECT_SAME_BITS(found[k], expected[k]) << k;
    }
}

} // namespace

TEST(EigenvalueFilter, SharesAreInPercentOfTheSum)
{
    const filtered found = filter({6, 3, 1}, {});
    EXPECT_EQ(found.kept, 3);
    EXPECT_EQ(found.retained, 3);
    const double onePercent = 10.0 / 100.0;
    expectCells(found.percents, {6 / onePercent, 3 / onePercent, 1 / onePercent});
}

TEST(EigenvalueFilter, TheTailBelowTheThresholdIsDropped)
{
    const filtered found = filter({6, 3, 1, 0.5}, {.dropTail = 1, .threshold = 1.0});
    EXPECT_EQ(found.kept, 3) << "a value at the threshold is not below it";
    EXPECT_EQ(found.retained, 3);
    expectCells(found.percents, {6 / 0.1, 3 / 0.1, 1 / 0.1, 0.0});
    expectCells(found.values, {6, 3, 1, 0.5});
}

TEST(EigenvalueFilter, TheFirstValueIsNeverDropped)
{
    const filtered found = filter({0.5, 0.25}, {.threshold = 1.0});
    EXPECT_EQ(found.kept, 1);
    EXPECT_EQ(found.retained, 1);
    expectCells(found.percents, {0.5 / (0.5 / 100.0), 0.0});
}

TEST(EigenvalueFilter, WithoutDroppingOnlyTheLastValueBecomesZero)
{
    const filtered found = filter({6, -1, -2}, {.dropTail = 0, .threshold = 0.0});
    expectCells(found.values, {6, -1, 0});
    EXPECT_EQ(found.kept, 3);
    expectCells(found.percents, {6 / 0.05, -1 / 0.05, 0 / 0.05});
    expectCells(filter({6, 1, 0.5}, {.dropTail = 0, .threshold = 0.0}).values, {6, 1, 0.5});
    expectCells(filter({-6}, {.dropTail = 0, .threshold = 0.0}).values, {-6});
}

TEST(EigenvalueFilter, SharesUpToThePercentageAreEnough)
{
    EXPECT_EQ(filter({6, 3, 1}, {.cumulativePercent = 59.0}).retained, 1);
    EXPECT_EQ(filter({4, 4, 8}, {.cumulativePercent = 50.0}).retained, 2) << "at the bound is enough";
    EXPECT_EQ(filter({6, 3, 1}, {.cumulativePercent = 91.0}).retained, 3);
    EXPECT_EQ(filter({6, 3, 1}, {.cumulativePercent = 101.0}).retained, 3) << "never reached";
    EXPECT_EQ(filter({6, 3, 1}, {.cumulativePercent = -5.0}).retained, 3);
}

TEST(EigenvalueFilter, NoMoreThanTheLargestCount)
{
    EXPECT_EQ(filter({6, 3, 1}, {.maxCount = 2}).retained, 2);
    EXPECT_EQ(filter({6, 3, 1}, {.maxCount = 20}).retained, 3);
    EXPECT_EQ(filter({6, 3, 1}, {.maxCount = -2}).retained, 3);
}

TEST(EigenvalueFilter, EachValueBelowTheLeastLowersTheNumber)
{
    EXPECT_EQ(filter({6, 3, 1}, {.minValue = 2.0}).retained, 2);
    EXPECT_EQ(filter({6, 3, 1}, {.minValue = 3.0}).retained, 1) << "3 is below 3 + 1e-12";
    EXPECT_EQ(filter({6, 3, 1}, {.minValue = 3.0 - 2e-12}).retained, 2);
    EXPECT_EQ(filter({1, 6, 3}, {.minValue = 2.0}).retained, 2) << "wherever they stand";
    EXPECT_EQ(filter({6, 3, 1}, {.minValue = 10.0}).retained, 0);
    EXPECT_EQ(filter({6, 3, 0.1}, {.threshold = 1.0, .minValue = 2.0}).retained, 2)
        << "dropped values do not count twice";
}

TEST(EigenvalueFilter, ASumOfZeroOrNaNGivesNoShares)
{
    const filtered zero = filter({1, -1}, {.threshold = -5.0});
    EXPECT_EQ(zero.kept, 2);
    EXPECT_EQ(zero.retained, 2);
    expectCells(zero.percents, {0, 0});
    const filtered nan = filter({3, notANumber}, {.cumulativePercent = 10.0});
    EXPECT_EQ(nan.kept, 0);
    EXPECT_EQ(nan.retained, 0);
    expectCells(nan.percents, {0, 0});
}

TEST(EigenvalueFilter, MissingValuesAreNotInTheSum)
{
    const filtered found = filter({6, MISSING_DBL, 4}, {.threshold = -1.0});
    expectCells(found.percents, {6 / 0.1, MISSING_DBL / 0.1, 4 / 0.1});
}

TEST(EigenvalueFilter, NoValues)
{
    matrix<double> values;
    matrix<double> percents(2, 2, 9.0);
    auto* shares = &percents;
    int kept = 5;
    int retained = 5;
    EXPECT_EQ(FilterEigen(&values, 0, -1, 1.0, 50.0, 3, 0.0, kept, retained, shares), 0);
    EXPECT_EQ(kept, 0);
    EXPECT_EQ(retained, 0);
    EXPECT_EQ(percents.nbElem, 0U);
}

#if !defined(_WIN32)
TEST(EigenvalueFilterDeathTest, AValueSetToZeroBelowAThresholdIsLookedAtForEver)
{
    EXPECT_EXIT(
        {
            alarm(1);
            filter({6, 3, 0.5}, {.dropTail = 0, .threshold = 1.0});
        },
        ::testing::KilledBySignal(SIGALRM), "");
}
#endif
