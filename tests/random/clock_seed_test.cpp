#include "random/clock_seed.h"

#include "platform/local_time.h"
#include "random/random_state.h"

#include <ctime>

namespace korvel::test
{

namespace
{

SYSTEMTIME at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    const auto field = [](int value) { return static_cast<decltype(SYSTEMTIME::wYear)>(value); };
    SYSTEMTIME time{};
    time.wYear = field(year);
    time.wMonth = field(month);
    time.wDay = field(day);
    time.wHour = field(hour);
    time.wMinute = field(minute);
    time.wSecond = field(second);
    return time;
}

/** The seed of a time without an exact automation date: day 0 and -1 for each field. */
constexpr int unreadable = -1 + 100 * (100 * -1 + 0 - 1);

class ClockSeed : public RandomState
{
protected:
    static int seedAt(const SYSTEMTIME& time)
    {
        now = time;
        return clockSeed();
    }
};

} // namespace

// Day counts from Python's datetime: (date(y, m, d) - date(1899, 12, 30)).days.
TEST_F(ClockSeed, AddsTheFieldsAndTheDays)
{
    EXPECT_EQ(seedAt(at(2026, 3, 14, 15, 9, 26)), 26 + 100 * (100 * 15 + 46095 + 9));
    EXPECT_EQ(seedAt(at(2026, 12, 31, 23, 59, 59)), 59 + 100 * (100 * 23 + 46387 + 59));
    EXPECT_EQ(seedAt(at(2026, 12, 31)), 4638700);
}

TEST_F(ClockSeed, IsNoPositionalNumber)
{
    // An hour more and a hundred days less make the same seed.
    EXPECT_EQ(seedAt(at(2026, 3, 14, 1)), seedAt(at(2026, 6, 22, 0)));
}

TEST_F(ClockSeed, KnowsLeapDays)
{
    EXPECT_EQ(seedAt(at(2000, 2, 29, 12, 30, 1)), 1 + 100 * (1200 + 36585 + 30));
    EXPECT_EQ(seedAt(at(2024, 2, 29)), 4535100);
    EXPECT_EQ(seedAt(at(1900, 2, 28)), 6000);
    EXPECT_EQ(seedAt(at(1900, 3, 1)), 6100);
    EXPECT_EQ(seedAt(at(2100, 3, 1)), 7311000);
}

TEST_F(ClockSeed, CountsFromTheThirtiethOfDecember1899)
{
    EXPECT_EQ(seedAt(at(1899, 12, 30)), 0);
    EXPECT_EQ(seedAt(at(1899, 12, 30, 0, 0, 1)), 1);
    EXPECT_EQ(seedAt(at(1899, 12, 30, 23, 59, 59)), 59 + 100 * (2300 + 0 + 59));
    EXPECT_EQ(seedAt(at(1899, 12, 31)), 100);
}

TEST_F(ClockSeed, FoldsDatesBeforeDayZero)
{
    EXPECT_EQ(seedAt(at(1899, 12, 29)), -100);
    // A quarter past the start of day -1 is three quarters of a day before day 0: no whole day.
    EXPECT_EQ(seedAt(at(1899, 12, 29, 6)), 60000);
    EXPECT_EQ(seedAt(at(1899, 12, 29, 0, 0, 1)), 1);
    EXPECT_EQ(seedAt(at(1899, 12, 28)), -200);
    EXPECT_EQ(seedAt(at(1899, 12, 28, 12)), 100 * (1200 - 1));
    EXPECT_EQ(seedAt(at(1899, 12, 28, 23, 59, 59)), 59 + 100 * (2300 - 1 + 59));
    EXPECT_EQ(seedAt(at(1601, 1, 1, 18, 0, 5)), 5 + 100 * (1800 - 109204));
}

TEST_F(ClockSeed, ReachesTheLastDay)
{
    EXPECT_EQ(seedAt(at(9999, 12, 31, 1, 2, 3)), 3 + 100 * (100 + 2958465 + 2));
}

TEST_F(ClockSeed, CountsATimeWithoutADateAsUnreadable)
{
    EXPECT_EQ(seedAt(at(10000, 1, 1)), unreadable);
    EXPECT_EQ(seedAt(at(2026, 13, 1)), unreadable);
}

TEST_F(ClockSeed, ChecksByConvertingBack)
{
    // A year of two digits and a day that the month does not have stand for other dates.
    EXPECT_EQ(seedAt(at(29, 6, 15, 10)), unreadable);
    EXPECT_EQ(seedAt(at(2023, 2, 29)), unreadable);
    EXPECT_EQ(seedAt(at(2016, 12, 31, 23, 59, 60)), unreadable);
}

TEST_F(ClockSeed, CountsAClockThatFailsAsUnreadable)
{
    exchangeLocalClock([](SYSTEMTIME& time) {
        time = at(2026, 3, 14);
        return false;
    });
    EXPECT_EQ(clockSeed(), unreadable);
}

TEST_F(ClockSeed, IsTheSameWithinASecond)
{
    EXPECT_EQ(clockSeed(), clockSeed());
}

TEST(LocalTime, IsTheTimeOfTheSystem)
{
    const std::time_t before = std::time(nullptr);
    SYSTEMTIME read{};
    ASSERT_TRUE(readLocalTime(read));
    const std::time_t after = std::time(nullptr);

    std::tm fields{};
    fields.tm_year = read.wYear - 1900;
    fields.tm_mon = read.wMonth - 1;
    fields.tm_mday = read.wDay;
    fields.tm_hour = read.wHour;
    fields.tm_min = read.wMinute;
    fields.tm_sec = read.wSecond;
    fields.tm_isdst = std::localtime(&before)->tm_isdst;
    const std::time_t then = std::mktime(&fields);
    EXPECT_GE(then, before);
    EXPECT_LE(then, after);
    EXPECT_EQ(read.wMilliseconds, 0);
}

} // namespace korvel::test
