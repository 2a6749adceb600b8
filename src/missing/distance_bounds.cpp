#include "missing/distance_bounds.h"

#include "platform/lanes.h"

#include <algorithm>

namespace korvel
{

namespace
{

constexpr int width = lanes::registerWidth;
constexpr int registers = distance_bounds::candidatesAtOnce / width;

/** Columns between two looks at whether all candidates are too far already. */
constexpr std::size_t stride = 4;

/**
 * What a sum of products by inverses must be above before the sum of quotients is not below `best`. The two
 * differ by a few roundings for each column, or, where quotients are too small for a normal number, by less
 * than any normal number.
 */
double limitFor(double best)
{
    constexpr double roundings = 1e-6;
    constexpr double smallest = 1e-290;
    return best * (1.0 + roundings) + smallest;
}

} // namespace

distance_bounds::distance_bounds(std::size_t candidates, std::size_t columns)
    : candidates_(candidates), columns_(columns),
      cells_((candidates + candidatesAtOnce - 1) / candidatesAtOnce * candidatesAtOnce * columns)
{
}

double distance_bounds::inverseOf(double variance)
{
    constexpr double smallest = 1e-300;
    return variance >= smallest ? 1.0 / variance : 0.0;
}

distance_bounds::choice distance_bounds::maybeNearer(std::size_t block, double best) const
{
    const double limit = limitFor(best);
    lanes::doubles<width> sums[registers] = {};
    unsigned open = (1U << candidatesAtOnce) - 1;
    for (std::size_t k = 0; k < compared_.size() && open != 0;) {
        for (const std::size_t stop = std::min(k + stride, compared_.size()); k < stop; ++k) {
            const compared_column& compared = compared_[k];
            const double* const cells = cells_.data() + placeOf(block, compared.column);
            for (int a = 0; a < registers; ++a) {
                const auto difference = compared.x - lanes::load<width>(cells + a * width);
                sums[a] += difference * difference * compared.inverse;
            }
        }
        open = 0;
        for (int a = 0; a < registers; ++a) {
            open |= lanes::chosenBits(~(sums[a] > limit)) << (a * width);
        }
    }
    const std::size_t left = candidates_ - block * candidatesAtOnce;
    return left < candidatesAtOnce ? open & ((1U << left) - 1) : open;
}

} // namespace korvel
