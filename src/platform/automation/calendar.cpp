#include "platform/automation.h"

#include <chrono>
#include <cmath>

namespace
{

using namespace std::chrono;

constexpr sys_days dayZero = year{1899} / December / 30;
constexpr sys_days firstDay = year{100} / January / 1;
constexpr sys_days lastDay = year{9999} / December / 31;

/** Days since day 0, as the whole part of an automation date. */
constexpr double dayNumber(sys_days day)
{
    return static_cast<double>((day - dayZero).count());
}

/** The full year meant by a year of one or two digits. */
int fullYear(int written)
{
    if (written < 50) {
        return written + 2000;
    }
    return written < 100 ? written + 1900 : written;
}

bool inRange(const SYSTEMTIME& moment)
{
    return moment.wYear <= 9999 && moment.wMonth >= 1 && moment.wMonth <= 12 && moment.wDay <= 31 &&
           moment.wHour <= 23 && moment.wMinute <= 59 && moment.wSecond <= 59;
}

} // namespace

extern "C" int SystemTimeToVariantTime(SYSTEMTIME* moment, double* date)
{
    if (!inRange(*moment)) {
        return 0;
    }
    const sys_days monthStart = year{fullYear(moment->wYear)} / month{moment->wMonth} / 1;
    const double day = dayNumber(monthStart + days{moment->wDay - 1});
    const double sign = day < 0.0 ? -1.0 : 1.0;
    *date = day + sign * moment->wHour / 24.0 + sign * moment->wMinute / 1440.0 +
            sign * moment->wSecond / 86400.0;
    return 1;
}

extern "C" int VariantTimeToSystemTime(double date, SYSTEMTIME* moment)
{
    // The bounds are compared as doubles: a NaN or a huge date must not be converted to an integer.
    const double day = std::trunc(date);
    if (!(day >= dayNumber(firstDay) && day <= dayNumber(lastDay))) {
        return 0;
    }
    const auto secondOfDay = static_cast<int>(std::floor(std::fabs(date - day) * 86400.0 + 0.5));
    const sys_seconds rounded = dayZero + days{static_cast<int>(day)} + seconds{secondOfDay};
    const sys_days dayOfMoment = floor<days>(rounded);
    if (dayOfMoment > lastDay) {
        return 0;
    }

    const year_month_day calendar{dayOfMoment};
    const hh_mm_ss clock{rounded - dayOfMoment};
    moment->wYear = static_cast<WORD>(static_cast<int>(calendar.year()));
    moment->wMonth = static_cast<WORD>(static_cast<unsigned>(calendar.month()));
    moment->wDayOfWeek = static_cast<WORD>(weekday{dayOfMoment}.c_encoding());
    moment->wDay = static_cast<WORD>(static_cast<unsigned>(calendar.day()));
    moment->wHour = static_cast<WORD>(clock.hours().count());
    moment->wMinute = static_cast<WORD>(clock.minutes().count());
    moment->wSecond = static_cast<WORD>(clock.seconds().count());
    moment->wMilliseconds = 0;
    return 1;
}
