/**
 * @file
 * Where the elements of a packed symmetric table stand: the lower triangle, row after row.
 */
#ifndef KORVEL_CONTAINERS_PACKED_SYMMETRIC_H
#define KORVEL_CONTAINERS_PACKED_SYMMETRIC_H

#include <cstdint>

namespace korvel
{

/** Where row `i` starts: element (i, j), both counted from 1, is at `packedRow(i) + j`, counted from 0. */
[[nodiscard]] constexpr std::int64_t packedRow(std::int64_t i) noexcept
{
    return i * (i - 1) / 2 - 1;
}

/** The place, counted from 0, of element (i, j) or (j, i), both counted from 1. */
[[nodiscard]] constexpr std::int64_t packedPlace(std::int64_t i, std::int64_t j) noexcept
{
    return i < j ? packedRow(j) + i : packedRow(i) + j;
}

/** Elements of a table of order `n`; none below 1. */
[[nodiscard]] constexpr int packedLength(int n) noexcept
{
    return n > 0 ? static_cast<int>(packedPlace(n, n) + 1) : 0;
}

} // namespace korvel

#endif
