/**
 * @file
 * Copying a block of cells from one table into another: what merging, removing, extracting, pasting and
 * duplicating consist of.
 *
 * Tables come as views (`containers/views.h`) of any form and, save for texts, of any element type. A column
 * of the block that lies inside both tables is moved as memory, and the whole block at once when its columns
 * stand one behind the other in both. All else goes cell by cell, row after row, through the checked access,
 * where an index outside, a negative one too, reads the spare slot and stores nothing in the table. Either
 * way the target's spare slot ends with the last value stored: that of the block's last row in its last
 * column.
 */
#ifndef KORVEL_TABLES_BLOCK_COPY_H
#define KORVEL_TABLES_BLOCK_COPY_H

#include "containers/conversion.h"
#include "containers/views.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <type_traits>

namespace korvel
{

/** A cell, counted from 0; it need not be one of the table's. */
struct cell_place {
    std::int64_t row = 0;
    std::int64_t col = 0;
};

/** The same cell, counted from 1 as callers do. */
[[nodiscard]] constexpr cell_place placeOf(int row, int col) noexcept
{
    return {std::int64_t{row} - 1, std::int64_t{col} - 1};
}

/** How many numbers there are from `first` to `last`; none when `first` is above `last`. */
[[nodiscard]] constexpr int countOf(int first, int last) noexcept
{
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return first <= last ? static_cast<int>(std::min(std::int64_t{last} - first + 1, most)) : 0;
}

namespace detail
{

/** A cell's value in the target's element type; a number loses its fraction on the way to an integer. */
template <class To, class From>
[[nodiscard]] decltype(auto) cellAs(const From& value)
{
    if constexpr (std::same_as<To, From>) {
        return (value);
    } else if constexpr (std::same_as<To, int> && std::same_as<From, double>) {
        return truncateToInt(value);
    } else {
        return static_cast<To>(value);
    }
}

/** An index for the checked access, which tests a dense table's from above only. No table has the largest. */
[[nodiscard]] constexpr int refusedIfOutside(std::int64_t index) noexcept
{
    constexpr int nowhere = std::numeric_limits<int>::max();
    return 0 <= index && index < nowhere ? static_cast<int>(index) : nowhere;
}

/** Moves `count` cells; both runs may be parts of one. */
template <class From, class To>
void moveCells(const From* from, To* to, std::int64_t count)
{
    if constexpr (std::same_as<From, To> && std::is_trivially_copyable_v<To>) {
        std::memmove(to, from, static_cast<std::size_t>(count) * sizeof(To));
    } else if constexpr (std::same_as<From, To>) {
        if (std::less<const To*>{}(from, to)) {
            std::copy_backward(from, from + count, to + count);
        } else if (from != to) {
            std::copy(from, from + count, to);
        }
    } else {
        std::transform(from, from + count, to, [](const From& value) { return cellAs<To>(value); });
    }
}

/** Copies a block that is one run of memory in both tables. Returns whether it is. */
template <class From, class To>
bool copyRun(const From& from, cell_place source, const To& to, cell_place target, std::int64_t rows,
             std::int64_t cols)
{
    if constexpr (requires { to.leave(target.col, *to.run(0, 0, 0, 0)); }) {
        const auto* const in = from.run(source.row, source.col, rows, cols);
        if (in == nullptr) {
            return false;
        }
        auto* const out = to.run(target.row, target.col, rows, cols);
        if (out == nullptr) {
            return false;
        }
        moveCells(in, out, rows * cols);
        to.leave(target.col, out[rows * cols - 1]);
        return true;
    } else {
        return false;
    }
}

/** Whether the block's first and last columns lie inside both tables. All of a dense table's then do. */
template <class From, class To>
bool isInside(const From& from, cell_place source, const To& to, cell_place target, std::int64_t rows,
              std::int64_t cols)
{
    const auto has = [rows, cols](const auto& view, cell_place place) {
        return view.run(place.row, place.col, rows, 1) != nullptr &&
               view.run(place.row, place.col + cols - 1, rows, 1) != nullptr;
    };
    return has(from, source) && has(to, target);
}

/** Copies a block through the checked access, row after row. */
template <class From, class To>
void copyCells(const From& from, cell_place source, const To& to, cell_place target, std::int64_t rows,
               std::int64_t cols)
{
    using element = typename To::value_type;
    for (std::int64_t i = 0; i < rows; ++i) {
        const int in = refusedIfOutside(source.row + i);
        const int out = refusedIfOutside(target.row + i);
        for (std::int64_t j = 0; j < cols; ++j) {
            to.set(out, refusedIfOutside(target.col + j),
                   cellAs<element>(from.get(in, refusedIfOutside(source.col + j))));
        }
    }
}

} // namespace detail

/**
 * Copies `rows` by `cols` cells. The two tables may be one, when the block moves up or to the left in it.
 *
 * @param from   view of the table read
 * @param source where the block starts in it
 * @param to     view of the table written
 * @param target where the block starts in it
 * @param rows   rows of the block; below 1 nothing is done
 * @param cols   columns of the block; below 1 nothing is done. Of a table of chunks, all must be chunks
 */
template <class From, class To>
void copyBlock(const From& from, cell_place source, const To& to, cell_place target, std::int64_t rows,
               std::int64_t cols)
{
    if (rows <= 0 || cols <= 0 || detail::copyRun(from, source, to, target, rows, cols)) {
        return;
    }
    if (!detail::isInside(from, source, to, target, rows, cols)) {
        detail::copyCells(from, source, to, target, rows, cols);
        return;
    }
    for (std::int64_t j = 0; j < cols; ++j) {
        const cell_place in{source.row, source.col + j};
        const cell_place out{target.row, target.col + j};
        if (!detail::copyRun(from, in, to, out, rows, 1)) {
            detail::copyCells(from, in, to, out, rows, 1);
        }
    }
}

/**
 * Copies a table of `rows` by `cols` into another of `toRows` by `toCols`, its first cell to `target`. What
 * would fall outside of that shape is left out, and not stored anywhere.
 */
template <class From, class To>
void copyClipped(const From& from, int rows, int cols, const To& to, int toRows, int toCols,
                 cell_place target)
{
    const cell_place skipped{std::max<std::int64_t>(-target.row, 0), std::max<std::int64_t>(-target.col, 0)};
    copyBlock(from, skipped, to, {target.row + skipped.row, target.col + skipped.col},
              std::min<std::int64_t>(rows, toRows - target.row) - skipped.row,
              std::min<std::int64_t>(cols, toCols - target.col) - skipped.col);
}

/**
 * Copies `rows` cells of one column of a symmetric table, of which chunk j of `stored` holds column j from
 * the diagonal down.
 */
template <class Stored, class To>
void copySymmetricColumn(const Stored& stored, cell_place source, const To& to, cell_place target,
                         std::int64_t rows)
{
    const symmetric_access whole(stored);
    const std::int64_t above = std::min(std::max<std::int64_t>(source.col - source.row, 0), rows);
    copyBlock(whole, source, to, target, above, 1);
    copyBlock(whole, {source.row + above, source.col}, to, {target.row + above, target.col}, rows - above, 1);
}

/** Stores one value in `rows` by `cols` cells of a dense table, by the rules of `copyBlock`. */
template <class T>
void fillBlock(matrix<T>& to, cell_place target, std::int64_t rows, std::int64_t cols, const T& value)
{
    const auto view = writing(to);
    for (std::int64_t j = 0; rows > 0 && j < cols; ++j) {
        if (T* const cells = view.run(target.row, target.col + j, rows, 1); cells != nullptr) {
            std::fill_n(cells, rows, value);
            view.leave(target.col + j, value);
        } else {
            for (std::int64_t i = 0; i < rows; ++i) {
                view.set(detail::refusedIfOutside(target.row + i), detail::refusedIfOutside(target.col + j),
                         value);
            }
        }
    }
}

/**
 * `Redim(rows, cols, T{})` for a table that is about to be filled: the zeros are left out where every cell of
 * the new shape is going to be stored.
 */
template <class T>
void redimToFill(matrix<T>& out, int rows, int cols, bool allStored)
{
    if (allStored) {
        out.Redim(rows, cols);
        if (out.nbrows == rows && out.nbcols == cols) {
            return;
        }
    }
    out.Redim(rows, cols, T{});
}

} // namespace korvel

#endif
