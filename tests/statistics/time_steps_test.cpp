#include "statistics/time_steps.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;
constexpr double missing = MISSING_DBL;

double interval(const numbers& cells, short int bSort)
{
    auto x = vectorOf(cells);
    const double step = V_TimeIntervalSize(&x, static_cast<int>(cells.size()), bSort);
    EXPECT_TRUE(std::equal(cells.begin(), cells.end(), x.data, [](double a, double b) {
        return bool(sameBits(a, b));
    })) << "the vector stays";
    return step;
}

double checked(const numbers& cells, int kind)
{
    auto x = vectorOf(cells);
    double step = 77.0;
    V_CheckDateInterval(&x, static_cast<int>(cells.size()), kind, step);
    return step;
}

/** Days since 30 December 1899. */
double day(int year, int month, int dayOfMonth)
{
    SYSTEMTIME moment{};
    moment.wYear = static_cast<WORD>(year);
    moment.wMonth = static_cast<WORD>(month);
    moment.wDay = static_cast<WORD>(dayOfMonth);
    double date = 0.0;
    EXPECT_NE(SystemTimeToVariantTime(&moment, &date), 0);
    return date;
}

} // namespace

TEST(TimeSteps, AreRegularWithinATolerance)
{
    struct given {
        numbers cells;
        short int bSort;
        double expected;
    };
    for (const given& scale : std::vector<given>{
             {{1, 2, 3}, 0, 1},
             {{1, 2, 4}, 0, missing},
             {{3, 1, 2}, 0, missing},
             {{3, 1, 2}, -1, 1},
             {{3, 1, 2}, 1, missing},
             {{3, 2, 1}, 0, -1},
             {{1, 2, 3.0000005}, 0, 1},
             {{1, 2, 3.000002}, 0, missing},
             {{1, 2, 2.9999995}, 0, 1},
             {{5, 8}, 0, 3},
             {{5}, 0, missing},
             {{5}, -1, missing},
             {{}, 0, missing},
             {{1, notANumber, 3}, 0, missing},
             {{missing, 0, 1}, 0, missing},
             {{4, 4, 4}, 0, 0},
         }) {
        EXPECT_TRUE(sameBits(interval(scale.cells, scale.bSort), scale.expected))
            << ::testing::PrintToString(scale.cells);
    }
}

TEST(TimeSteps, OfNumbersAreCheckedMoreClosely)
{
    EXPECT_TRUE(sameBits(checked({1, 2, 3}, 1), 1.0));
    EXPECT_TRUE(sameBits(checked({1, 2, 3.000000005}, 0), 1.0));
    EXPECT_TRUE(sameBits(checked({1, 2, 3.00000002}, 0), missing));
    EXPECT_TRUE(sameBits(checked({1, 2, 2.99999998}, 0), missing));
    EXPECT_TRUE(sameBits(checked({3, 1, 2}, 0), missing)) << "as they stand";
    EXPECT_TRUE(sameBits(checked({1}, 0), missing));
    EXPECT_TRUE(sameBits(checked({}, 2), missing));
}

TEST(TimeSteps, OfDatesAreCheckedInTheCalendar)
{
    const numbers months{day(2021, 11, 15), day(2021, 12, 15), day(2022, 1, 15), day(2022, 2, 15)};
    EXPECT_TRUE(sameBits(checked(months, 2), 30.0)) << "across the year";
    EXPECT_TRUE(sameBits(checked(months, 1), missing)) << "30, 31 and 31 days";
    EXPECT_TRUE(sameBits(checked({day(2019, 3, 1), day(2020, 3, 1), day(2021, 3, 1)}, 2), 366.0));
    EXPECT_TRUE(sameBits(checked({day(2020, 2, 28), day(2020, 2, 29), day(2020, 3, 1)}, 2), missing))
        << "a day each, but not in the calendar";
    EXPECT_TRUE(sameBits(checked({day(2021, 1, 31), day(2021, 2, 28), day(2021, 3, 31)}, 2), missing));
    EXPECT_TRUE(sameBits(checked({day(2021, 1, 10), day(2021, 1, 12), day(2021, 1, 14)}, 2), 2.0));
    EXPECT_TRUE(sameBits(checked({day(2021, 1, 1), day(2021, 3, 1), day(2021, 4, 1)}, 2), missing));
    EXPECT_TRUE(sameBits(checked({day(2021, 5, 1), day(2021, 4, 1), day(2021, 3, 1)}, 2), -30.0));
    EXPECT_TRUE(sameBits(checked({day(1899, 11, 30), day(1899, 12, 30), day(1900, 1, 30)}, 2), 30.0));
    EXPECT_TRUE(sameBits(checked({44562.25, 44593.75}, 2), 31.5))
        << "the time of day counts in the step alone";
    EXPECT_TRUE(sameBits(checked({0, missing, 1}, 2), missing)) << "no date";
    EXPECT_TRUE(sameBits(checked({missing, missing}, 2), missing)) << "no date";
    EXPECT_TRUE(sameBits(checked({notANumber, 3}, 2), missing)) << "no date";
}
