#include "statistics/time_steps.h"

#include "containers/cells.h"
#include "containers/missing.h"
#include "ordering/sort_vector.h"
#include "platform/automation.h"
#include "tables/columns.h"

#include <cmath>
#include <optional>

namespace
{

/** The first difference when `isRegular(x)`. */
template <class Regular>
double stepOf(const matrix<double>& x, int n, Regular isRegular)
{
    if (n < 2) {
        return MISSING_DBL;
    }
    return korvel::withCells([&](auto cells) { return isRegular(cells) ? cells[1] - cells[0] : MISSING_DBL; },
                             n, x);
}

/** Whether all differences are within a tolerance of the first; a NaN is not. */
auto withinOfFirst(int n, double tolerance)
{
    return [=](auto x) {
        const double first = x[1] - x[0];
        for (int i = 2; i < n; ++i) {
            if (!(std::fabs(x[i] - x[i - 1] - first) <= tolerance)) {
                return false;
            }
        }
        return true;
    };
}

/** A date in months, a year being 12, and days; or a step between two. */
struct calendar_steps {
    int months;
    int days;

    bool operator==(const calendar_steps&) const = default;
};

std::optional<calendar_steps> dateOf(double date)
{
    SYSTEMTIME moment{};
    // Not every system refuses a NaN.
    if (std::isnan(date) || VariantTimeToSystemTime(date, &moment) == 0) {
        return std::nullopt;
    }
    return calendar_steps{12 * moment.wYear + moment.wMonth, moment.wDay};
}

/** Whether all steps are the same in the calendar. */
auto sameInCalendar(int n)
{
    return [n](auto x) {
        std::optional<calendar_steps> first;
        std::optional<calendar_steps> before = dateOf(x[0]);
        for (int i = 1; i < n; ++i) {
            const std::optional<calendar_steps> date = dateOf(x[i]);
            if (!before || !date) {
                return false;
            }
            const calendar_steps step{date->months - before->months, date->days - before->days};
            if (first.value_or(step) != step) {
                return false;
            }
            first = step;
            before = date;
        }
        return true;
    };
}

} // namespace

double V_TimeIntervalSize(matrix<double>* x, int n, short int bSort)
{
    constexpr double tolerance = 1e-6;
    if (bSort != -1 || n < 2) {
        return stepOf(*x, n, withinOfFirst(n, tolerance));
    }
    matrix<double> sorted(n, 1, 1);
    V_Duplicate2(x, n, &sorted);
    SortQVector(&sorted, n, 1, n, false);
    return stepOf(sorted, n, withinOfFirst(n, tolerance));
}

void V_CheckDateInterval(matrix<double>* x, int n, int kind, double& d)
{
    constexpr int dates = 2;
    d = kind == dates ? stepOf(*x, n, sameInCalendar(n)) : stepOf(*x, n, withinOfFirst(n, 1e-8));
}
