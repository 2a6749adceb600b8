/**
 * @file
 * Moving the rows of a table into sorted order, column by column, through a scratch column.
 */
#ifndef KORVEL_ORDERING_MOVE_ROWS_H
#define KORVEL_ORDERING_MOVE_ROWS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <omp.h>
#include <utility>

namespace korvel
{

// Small tables must not pay for threads. A sort by one of the table's own columns shares the work from fewer
// cells on than a sort by another key, as callers expect.

/** Whether threads share the work when a table of this size is sorted by one of its columns. */
[[nodiscard]] constexpr bool sharesColumns(std::int64_t rows, std::int64_t cols)
{
    return rows * cols >= 50'001;
}

/** Whether threads share the work when `moved` rows of a table of this size are sorted by another key. */
[[nodiscard]] constexpr bool sharesRows(std::int64_t rows, std::int64_t cols, std::size_t moved)
{
    return rows * cols >= 500'000 && moved >= 1000;
}

/**
 * Moves rows into sorted order: the row of rank k goes to place k. Sharing the work changes nothing else.
 *
 * @param sorted   the order, with `size()` and `position(k)`
 * @param columns  number of columns
 * @param columnAt `columnAt(j)` points at the first row that moves, in column j, or is null for a column that
 * is left alone
 * @param shared   whether threads share the work
 */
template <class T, class Sorted, class ColumnAt>
void moveRows(const Sorted& sorted, int columns, ColumnAt columnAt, bool shared)
{
    const std::size_t rows = sorted.size();
    if (rows == 0 || columns <= 0) {
        return;
    }
    const int threads = shared ? omp_get_max_threads() : 1;
    if (columns < threads) {
        // Fewer columns than threads: the threads share each column.
        const auto scratch = std::make_unique<T[]>(rows);
        const auto last = static_cast<std::int64_t>(rows);
        for (int j = 0; j < columns; ++j) {
            T* const column = columnAt(j);
            if (column == nullptr) {
                continue;
            }
#pragma omp parallel num_threads(threads)
            {
#pragma omp for schedule(static)
                for (std::int64_t k = 0; k < last; ++k) {
                    scratch[static_cast<std::size_t>(k)] =
                        std::move(column[sorted.position(static_cast<std::size_t>(k))]);
                }
#pragma omp for schedule(static)
                for (std::int64_t k = 0; k < last; ++k) {
                    column[k] = std::move(scratch[static_cast<std::size_t>(k)]);
                }
            }
        }
        return;
    }
    const auto scratch = std::make_unique<T[]>(rows * static_cast<std::size_t>(threads));
    const auto moveColumn = [&](int j, T* spare) {
        T* const column = columnAt(j);
        if (column == nullptr) {
            return;
        }
        for (std::size_t k = 0; k < rows; ++k) {
            spare[k] = std::move(column[sorted.position(k)]);
        }
        std::move(spare, spare + rows, column);
    };
    if (threads == 1) {
        for (int j = 0; j < columns; ++j) {
            moveColumn(j, scratch.get());
        }
        return;
    }
#pragma omp parallel for schedule(static) num_threads(threads)
    for (int j = 0; j < columns; ++j) {
        moveColumn(j, scratch.get() + rows * static_cast<std::size_t>(omp_get_thread_num()));
    }
}

} // namespace korvel

#endif
