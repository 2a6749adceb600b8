/**
 * @file
 * Host arrays: reading their shape and resizing them with their own allocator.
 */
#ifndef KORVEL_CONTAINERS_HOST_ARRAY_H
#define KORVEL_CONTAINERS_HOST_ARRAY_H

#include "platform/automation.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace korvel
{

/** Rows and columns as a matrix sees them. */
struct table_shape {
    int rows;
    int cols;

    friend bool operator==(const table_shape&, const table_shape&) = default;
};

/**
 * Shape of a host array: the leftmost dimension gives the rows, the next one the columns. A dimension that
 * does not exist counts as 1. Further dimensions and all lower bounds are ignored.
 * @throws boost::numeric::positive_overflow when one of the two counts is above 0x7FFFFFFF
 */
[[nodiscard]] table_shape hostArrayShape(const SAFEARRAY& array);

/** Number of elements over all dimensions. An array without dimensions has 1, as a matrix sees it. */
[[nodiscard]] std::uint64_t hostArrayLength(const SAFEARRAY& array);

/** The records that a host array holds, as many as its leftmost dimension says; none when it is null or has
 * no block. */
template <class Record>
[[nodiscard]] std::span<Record> recordsIn(const SAFEARRAY* array)
{
    if (array == nullptr || array->pvData == nullptr) {
        return {};
    }
    return {static_cast<Record*>(array->pvData), static_cast<std::size_t>(hostArrayShape(*array).rows)};
}

/**
 * Gives a host array a new shape in place. The contents are not rearranged: a block that is large enough
 * stays as it is, otherwise the task allocator gives a fresh one. The texts of a text array are freed first.
 *
 * @param array  the array; its lower bounds stay
 * @param counts new element counts, the leftmost dimension first; after a count of 0 all later ones are 0
 * @param clear  whether to fill the block with zero bytes
 * @return false, with the array unchanged, when the array has a fixed size, or when `counts` is empty, has a
 * negative entry, or has another length than the array has dimensions. Also false when memory is short; by
 * then the texts are freed and their places are null.
 */
bool resizeHostArray(SAFEARRAY& array, std::span<const int> counts, bool clear);

} // namespace korvel

#endif
