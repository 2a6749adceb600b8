#include "platform/automation.h"
#include "support/bits.h"

#include <utility>
#include <vector>

namespace
{

SYSTEMTIME moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
                  int milliseconds = 0)
{
    SYSTEMTIME result{};
    result.wYear = static_cast<WORD>(year);
    result.wMonth = static_cast<WORD>(month);
    result.wDay = static_cast<WORD>(day);
    result.wHour = static_cast<WORD>(hour);
    result.wMinute = static_cast<WORD>(minute);
    result.wSecond = static_cast<WORD>(second);
    result.wMilliseconds = static_cast<WORD>(milliseconds);
    return result;
}

bool sameClock(const SYSTEMTIME& a, const SYSTEMTIME& b)
{
    return a.wYear == b.wYear && a.wMonth == b.wMonth && a.wDay == b.wDay && a.wHour == b.wHour &&
           a.wMinute == b.wMinute && a.wSecond == b.wSecond && a.wMilliseconds == b.wMilliseconds;
}

constexpr double halfSecond = 0.5 / 86400.0;

/** Dates that are exact both ways. The day numbers are those that spreadsheets show from March 1900 on. */
struct known_date {
    SYSTEMTIME clock;
    int weekday;
    double date;
};

const std::vector<known_date>& knownDates()
{
    static const std::vector<known_date> dates{
        {moment(1899, 12, 30), 6, 0.0},          {moment(1899, 12, 30, 6), 6, 0.25},
        {moment(1899, 12, 31), 0, 1.0},          {moment(1900, 1, 1, 12), 1, 2.5},
        {moment(1900, 2, 28), 3, 60.0},          {moment(1900, 3, 1), 4, 61.0},
        {moment(1970, 1, 1), 4, 25569.0},        {moment(2000, 2, 29), 2, 36585.0},
        {moment(2000, 3, 1), 3, 36586.0},        {moment(2026, 11, 21), 6, 46347.0},
        {moment(2026, 11, 21, 18), 6, 46347.75}, {moment(9999, 12, 31), 5, 2958465.0},
        {moment(1899, 12, 29), 5, -1.0},         {moment(1899, 12, 29, 6), 5, -1.25},
        {moment(1899, 12, 29, 18), 5, -1.75},    {moment(1600, 12, 31), 0, -109206.0},
        {moment(100, 1, 1), 5, -657434.0},       {moment(100, 1, 1, 12), 5, -657434.5},
    };
    return dates;
}

} // namespace

TEST(Calendar, KnownMomentsHaveTheirDate)
{
    for (const known_date& known : knownDates()) {
        SYSTEMTIME clock = known.clock;
        double date = -99.0;
        ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
        EXPECT_SAME_BITS(date, known.date);
    }
}

TEST(Calendar, KnownDatesHaveTheirMoment)
{
    for (const known_date& known : knownDates()) {
        SYSTEMTIME clock = moment(7, 7, 7, 7, 7, 7, 7);
        ASSERT_EQ(VariantTimeToSystemTime(known.date, &clock), 1) << known.date;
        EXPECT_TRUE(sameClock(clock, known.clock)) << known.date;
        EXPECT_EQ(clock.wDayOfWeek, known.weekday) << known.date;
    }
}

TEST(Calendar, EveryUnitOfTheClockHasItsFraction)
{
    SYSTEMTIME clock = moment(2026, 11, 21, 13, 45, 59);
    double date = 0.0;
    ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
    EXPECT_SAME_BITS(date, 46347.573599537034);

    clock = moment(1899, 12, 1, 13, 45, 59);
    ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
    EXPECT_SAME_BITS(date, -29.0 - 13.0 / 24.0 - 45.0 / 1440.0 - 59.0 / 86400.0);
}

TEST(Calendar, MillisecondsAreNotRead)
{
    SYSTEMTIME clock = moment(2000, 12, 31, 0, 0, 0, 999);
    double date = 0.0;
    ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
    EXPECT_SAME_BITS(date, 36891.0);
}

TEST(Calendar, ShortYearsBelongToTheCenturiesAround2000)
{
    const std::vector<std::pair<int, double>> years{
        {0, 36526.0}, {29, 47119.0}, {50, 18264.0}, {99, 36161.0}, {100, -657434.0}};
    for (const auto& [year, expected] : years) {
        SYSTEMTIME clock = moment(year, 1, 1);
        double date = 0.0;
        ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
        EXPECT_SAME_BITS(date, expected) << year;
    }
}

TEST(Calendar, DaysThatAMonthDoesNotHaveRoll)
{
    struct rolled {
        SYSTEMTIME clock;
        double date;
    };
    const std::vector<rolled> cases{
        {moment(1900, 2, 29), 61.0},        {moment(2001, 2, 29), 36951.0}, {moment(2001, 2, 31), 36953.0},
        {moment(2001, 2, 30, 12), 36952.5}, {moment(2001, 4, 31), 37012.0}, {moment(2001, 2, 0), 36922.0},
        {moment(2001, 3, 0), 36950.0},      {moment(2001, 1, 0), 36891.0},
    };
    for (const rolled& each : cases) {
        SYSTEMTIME clock = each.clock;
        double date = 0.0;
        ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
        EXPECT_SAME_BITS(date, each.date);
    }
}

TEST(Calendar, ImpossibleMomentsAreRefused)
{
    for (SYSTEMTIME clock : {moment(10000, 1, 1), moment(65535, 1, 1), moment(2001, 13, 1),
                             moment(2001, 12, 32), moment(2001, 1, 65535)}) {
        double date = -99.0;
        EXPECT_EQ(SystemTimeToVariantTime(&clock, &date), 0);
        EXPECT_SAME_BITS(date, -99.0);
    }
}

TEST(Calendar, DatesOutsideTheYears100To9999AreRefused)
{
    for (const double date : {-657435.0, -1e9, -1e300, 2958466.0, 1e9, 1e300}) {
        SYSTEMTIME clock = moment(7, 7, 7, 7, 7, 7, 7);
        EXPECT_EQ(VariantTimeToSystemTime(date, &clock), 0) << date;
        EXPECT_TRUE(sameClock(clock, moment(7, 7, 7, 7, 7, 7, 7))) << date;
    }
    SYSTEMTIME clock{};
    EXPECT_EQ(VariantTimeToSystemTime(-657434.99999, &clock), 1);
    EXPECT_EQ(VariantTimeToSystemTime(2958465.99999, &clock), 1);
}

TEST(Calendar, TheFractionOfANegativeDateCountsForward)
{
    SYSTEMTIME clock{};
    ASSERT_EQ(VariantTimeToSystemTime(-0.25, &clock), 1);
    EXPECT_TRUE(sameClock(clock, moment(1899, 12, 30, 6)));
    ASSERT_EQ(VariantTimeToSystemTime(-0.0, &clock), 1);
    EXPECT_TRUE(sameClock(clock, moment(1899, 12, 30)));
}

TEST(Calendar, TimesRoundToTheNearestSecond)
{
    struct rounded {
        double date;
        SYSTEMTIME clock;
    };
    const std::vector<rounded> cases{
        {0.4999 / 86400.0, moment(1899, 12, 30)},
        {halfSecond, moment(1899, 12, 30, 0, 0, 1)},
        {0.5001 / 86400.0, moment(1899, 12, 30, 0, 0, 1)},
        {2.5 / 86400.0, moment(1899, 12, 30, 0, 0, 3)},
        {50000.0 + 2.499 / 86400.0, moment(2036, 11, 21, 0, 0, 2)},
        {50000.0 + 2.501 / 86400.0, moment(2036, 11, 21, 0, 0, 3)},
        {1.0 - 0.5001 / 86400.0, moment(1899, 12, 30, 23, 59, 59)},
        {1.0 - 0.4999 / 86400.0, moment(1899, 12, 31)},
        {36585.999999, moment(2000, 3, 1)},
        {-1.0 - halfSecond, moment(1899, 12, 29, 0, 0, 1)},
        {-1.999999, moment(1899, 12, 30)},
        {-0.9999999, moment(1899, 12, 31)},
    };
    for (const rounded& each : cases) {
        SYSTEMTIME clock{};
        ASSERT_EQ(VariantTimeToSystemTime(each.date, &clock), 1) << each.date;
        EXPECT_TRUE(sameClock(clock, each.clock)) << each.date;
    }
}

TEST(Calendar, EverySecondSurvivesTheRoundTrip)
{
    for (int year = 100; year <= 9999; year += 83) {
        for (int second = year % 61; second < 86400; second += 61) {
            SYSTEMTIME clock =
                moment(year, 1 + second % 12, 1 + second % 28, second / 3600, second / 60 % 60, second % 60);
            double date = 0.0;
            SYSTEMTIME back{};
            ASSERT_EQ(SystemTimeToVariantTime(&clock, &date), 1);
            ASSERT_EQ(VariantTimeToSystemTime(date, &back), 1);
            ASSERT_TRUE(sameClock(clock, back)) << year << ' ' << second;
        }
    }
}
