/**
 * @file
 * A sum of terms and the sum of their weights, taken in one walk.
 */
#ifndef KORVEL_STATISTICS_WEIGHTED_TOTAL_H
#define KORVEL_STATISTICS_WEIGHTED_TOTAL_H

#include "containers/missing.h"
#include "statistics/pairs.h"

#include <cstdint>

namespace korvel
{

struct weighted_total {
    double sum;
    double sumW;

    /** Their quotient, missing for a total weight of exactly 0. */
    [[nodiscard]] double mean() const { return sumW == 0.0 ? MISSING_DBL : sum / sumW; }
};

/** The terms and the weights of two elements, +0.0 for an element that is left out. */
struct weighted_terms {
    pair terms;
    pair weights;
};

/**
 * The sums over the positions `first` to `last - 1`, from 0, in ascending order: two chains of additions,
 * side by side in a pair.
 *
 * @param termsOf makes `weighted_terms` from a pair of each of `cells`
 * @param cells   readers of the vectors that the terms are made from
 */
template <class TermsOf, class... Cells>
[[nodiscard]] weighted_total totalOf(std::int64_t first, std::int64_t last, TermsOf termsOf,
                                     const Cells&... cells)
{
    pair total{};
    const auto addPair = [&](std::int64_t i) {
        const weighted_terms both = termsOf(pairAt(cells, i)...);
        total += lanes::firstOf(both.terms, both.weights);
        total += lanes::secondOf(both.terms, both.weights);
    };
    const std::int64_t i = forEachPair(first, last, addPair, cells...);
    if (i < last) {
        const weighted_terms one = termsOf(twice(cells, i)...);
        total += lanes::firstOf(one.terms, one.weights);
    }
    return {total[0], total[1]};
}

} // namespace korvel

#endif
