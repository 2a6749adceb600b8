#include "scales.h"

#include "text_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace report
{

double roundStep(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

scale::scale(double low, double high, double begin, double end)
    : low_(low), high_(high), begin_(begin), end_(end)
{
    if (!(high > low)) {
        const double half = std::max(std::abs(low) / 2.0, 0.5);
        low_ = low - half;
        high_ = low + half;
    }
}

std::vector<double> scale::ticks(int count, double leastStep) const
{
    // What lies on an end but for a rounding error is inside.
    constexpr double rounding = 1e-9;
    const double step = roundStep(std::max((high_ - low_) / count, leastStep));
    std::vector<double> found;
    const double last = std::floor(high_ / step + rounding);
    for (double k = std::ceil(low_ / step - rounding); k <= last && found.size() < 100; k += 1.0) {
        found.push_back(k * step);
    }
    return found;
}

std::vector<std::string> shownTicks(const std::vector<double>& ticks)
{
    const double between = ticks.size() > 1 ? ticks[1] - ticks[0] : 1.0;
    // Neighbours among numbers of many digits may be equal.
    const double step = between > 0.0 ? between : 1.0;
    const int decimals = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
    std::vector<std::string> texts;
    for (const double tick : ticks) {
        texts.push_back(std::abs(tick) < step / 2.0 ? "0" : shown(tick, decimals));
    }
    return texts;
}

} // namespace report
