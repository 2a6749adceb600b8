#include "random/clock_seed.h"

#include "platform/local_time.h"

#include <cmath>
#include <optional>
#include <utility>

namespace korvel
{

namespace
{

local_clock currentClock = readLocalTime;

/** Half a second, in days. */
constexpr double halfSecond = 5.787037037037037e-6;

bool sameSecond(const SYSTEMTIME& a, const SYSTEMTIME& b) noexcept
{
    return a.wYear == b.wYear && a.wMonth == b.wMonth && a.wDay == b.wDay && a.wHour == b.wHour &&
           a.wMinute == b.wMinute && a.wSecond == b.wSecond;
}

/** The automation date of a calendar time, or nothing when it does not convert back to the same second. */
std::optional<double> automationDate(SYSTEMTIME time)
{
    double date = 0.0;
    SYSTEMTIME back{};
    if (SystemTimeToVariantTime(&time, &date) == 0 || VariantTimeToSystemTime(date, &back) == 0 ||
        !sameSecond(time, back)) {
        return std::nullopt;
    }
    return date;
}

/**
 * Days since 30 December 1899 as a plain number. The fraction of an automation date counts forward from
 * midnight even before day 0: -1.25 is a quarter of a day after -1, and becomes -0.75 here.
 */
double continuousDays(double date)
{
    if (date > -halfSecond) {
        return date;
    }
    const double midnight = std::ceil(date);
    return midnight - (date - midnight);
}

/**
 * Whole days from one date to the other. A difference within half a second of a whole day counts as whole.
 */
int wholeDays(double from, double to)
{
    const double span = continuousDays(to) - continuousDays(from);
    return static_cast<int>(span + (span < 0.0 ? -halfSecond : halfSecond));
}

struct clock_fields {
    int hour = -1;
    int minute = -1;
    int second = -1;
};

clock_fields fieldsOf(std::optional<double> date)
{
    SYSTEMTIME time{};
    if (!date || VariantTimeToSystemTime(*date, &time) == 0) {
        return {};
    }
    return {time.wHour, time.wMinute, time.wSecond};
}

} // namespace

local_clock exchangeLocalClock(local_clock clock) noexcept
{
    return std::exchange(currentClock, clock);
}

int clockSeed()
{
    SYSTEMTIME now{};
    const std::optional<double> date = currentClock(now) ? automationDate(now) : std::nullopt;

    SYSTEMTIME firstDay{};
    firstDay.wYear = 1899;
    firstDay.wMonth = 12;
    firstDay.wDay = 30;
    const std::optional<double> reference = automationDate(firstDay);

    const int days = date && reference ? wholeDays(*reference, *date) : 0;
    const clock_fields clock = fieldsOf(date);
    return clock.second + 100 * (100 * clock.hour + days + clock.minute);
}

} // namespace korvel
