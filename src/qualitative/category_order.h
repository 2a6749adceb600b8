/**
 * @file
 * Categories in order: as numbers when all names read as numbers, otherwise as texts.
 */
#ifndef KORVEL_QUALITATIVE_CATEGORY_ORDER_H
#define KORVEL_QUALITATIVE_CATEGORY_ORDER_H

#include "ordering/sorted_keys.h"
#include "qualitative/leading_number.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <optional>
#include <type_traits>
#include <vector>

namespace korvel
{

/** For each rank, from the first on, the position from 0 of the category that belongs there. */
using category_order = std::vector<int>;

/** The values of the first `count` names; fewer when one of them is not a number, with which the reading
 * ends. */
template <class Names>
[[nodiscard]] std::vector<double> categoryValues(const Names& names, int count)
{
    std::vector<double> values;
    for (int k = 0; k < count; ++k) {
        const std::optional<double> value = categoryValue(names.get(k));
        if (!value) {
            break;
        }
        values.push_back(*value);
    }
    return values;
}

/** The ascending order of the first `count` names; equal ones keep theirs. Works on the caller's thread
 * alone. */
template <class Names>
[[nodiscard]] category_order orderOfCategories(const Names& names, int count)
{
    const auto positionsIn = [](const auto& sorted) {
        category_order order(sorted.size());
        for (std::size_t k = 0; k < order.size(); ++k) {
            order[k] = sorted.position(k);
        }
        return order;
    };
    const std::vector<double> values = categoryValues(names, count);
    if (static_cast<int>(values.size()) >= count) {
        return positionsIn(sorted_order<double>(
            count, false, [&](std::int32_t k) { return values[static_cast<std::size_t>(k)]; },
            sort_threads::one));
    }
    return positionsIn(sorted_order<text>(
        count, false, [&](std::int32_t k) -> const text& { return names.get(k); }, sort_threads::one));
}

/** Puts slots into an order. */
template <class Slots>
void permute(const category_order& order, const Slots& slots)
{
    using value = std::remove_cvref_t<decltype(slots.get(0))>;
    std::vector<value> moved;
    moved.reserve(order.size());
    for (const int position : order) {
        moved.push_back(slots.get(position));
    }
    for (std::size_t k = 0; k < moved.size(); ++k) {
        slots.set(static_cast<int>(k), moved[k]);
    }
}

/**
 * `result[j] = work(j)` for each variable, on several threads. `work` writes nothing that another variable's
 * work reads or writes. What it throws comes out when all threads are done.
 */
template <class Result, class Work>
[[nodiscard]] std::vector<Result> forEachVariable(int variables, const Work& work)
{
    std::vector<Result> results(static_cast<std::size_t>(std::max(variables, 0)));
    std::exception_ptr failure;
#pragma omp parallel for schedule(static) if (variables > 1)
    for (int j = 0; j < variables; ++j) {
        try {
            results[static_cast<std::size_t>(j)] = work(j);
        } catch (...) {
#pragma omp critical(korvel_variable_failed)
            failure = std::current_exception();
        }
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
    return results;
}

} // namespace korvel

#endif
