#include "ordering/selection.h"

#include "containers/cells.h"
#include "containers/conversion.h"
#include "ordering/sorted_keys.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace korvel
{

namespace
{

/** Up to this length sorting costs no more than selecting. */
constexpr std::size_t sortLength = 64;

std::vector<double> firstOf(const matrix<double>& x, int n)
{
    std::vector<double> values(static_cast<std::size_t>(std::max(n, 0)));
    withCells(
        [&](auto cells) {
            for (int i = 0; i < n; ++i) {
                values[static_cast<std::size_t>(i)] = cells[i];
            }
        },
        n, x);
    return values;
}

} // namespace

ranked_values::ranked_values(const matrix<double>& x, int n) : original_(firstOf(x, n))
{
    prepare();
}

ranked_values::ranked_values(std::vector<double> values) : original_(std::move(values))
{
    prepare();
}

void ranked_values::prepare()
{
    const bool ordered =
        std::none_of(original_.begin(), original_.end(), [](double x) { return std::isnan(x); });
    if (ordered && original_.size() > sortLength) {
        working_ = original_;
        return;
    }
    const sorted_numbers<double> sorted(
        size(), false, [&](std::int32_t k) { return original_[static_cast<std::size_t>(k)]; });
    working_.reserve(original_.size());
    for (std::size_t k = 0; k < original_.size(); ++k) {
        working_.push_back(sorted.key(k));
    }
    sorted_ = true;
}

double ranked_values::operator[](std::int64_t k)
{
    if (k < 0 || k >= size()) {
        return -1.0;
    }
    if (!sorted_ && k != placed_) {
        // An earlier split has put rank k on one side: only that side is searched.
        const auto first = working_.begin() + (k > placed_ ? placed_ + 1 : 0);
        const auto last = k < placed_ ? working_.begin() + placed_ : working_.end();
        std::nth_element(first, working_.begin() + k, last);
        placed_ = k;
    }
    const double value = working_[static_cast<std::size_t>(k)];
    if (sorted_ || value != 0.0) {
        return value;
    }
    // Zeros of both signs are equal, so a stable sort leaves them in their original order.
    auto before = k - std::count_if(original_.begin(), original_.end(), [](double x) { return x < 0.0; });
    return *std::find_if(original_.begin(), original_.end(),
                         [&](double x) { return x == 0.0 && before-- == 0; });
}

bool isWholePosition(double position)
{
    const double fraction = position - std::floor(position);
    return fraction < 1e-12 || fraction > 1.0 - 1e-12;
}

double quantileOf(ranked_values& ranked, double q)
{
    if (ranked.size() == 0) {
        return MISSING_DBL;
    }
    // A q of 0 or 1 needs no case of its own: its position is whole.
    const double position = (ranked.size() - 1) * q;
    if (isWholePosition(position)) {
        return ranked[truncateToInt(position)];
    }
    const double below = std::floor(position);
    const double lower = ranked[truncateToInt(below)];
    const double upper = ranked[std::int64_t{truncateToInt(below)} + 1];
    if (lower == upper) {
        return lower;
    }
    const double g = position - below;
    return (1.0 - g) * lower + g * upper;
}

} // namespace korvel
