/**
 * @file
 * The transposed copy of a column-major block, laid out for the caches.
 */
#ifndef KORVEL_TABLES_TRANSPOSED_BLOCK_H
#define KORVEL_TABLES_TRANSPOSED_BLOCK_H

#include "platform/lanes.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>

namespace korvel
{

namespace detail
{

inline constexpr std::size_t cacheLine = 64;

/** Side of the square tiles, and the bytes of a result from which on it is written past the caches. */
inline constexpr std::ptrdiff_t tileSide = 16;
inline constexpr std::ptrdiff_t streamedFrom = std::ptrdiff_t{4} << 20;

/** Rows that are written past the caches side by side. */
inline constexpr std::ptrdiff_t streamedRows = 512;

/** Rows and columns that are taken at a time where a table is transposed cell by cell. */
inline constexpr int stripRows = 16;
inline constexpr int runCols = 128;

/** Fills the cache line at `to` with `at(0)`, `at(1)`, ..., past the caches. */
template <class At>
void streamLine(double* to, At at)
{
    for (std::ptrdiff_t k = 0; k < 8; k += 2) {
        lanes::stream(to + k, lanes::doubles<2>{at(k), at(k + 1)});
    }
}

template <class At>
void streamLine(int* to, At at)
{
    for (std::ptrdiff_t k = 0; k < 16; k += 4) {
        lanes::stream(to + k, lanes::integers4{at(k), at(k + 1), at(k + 2), at(k + 3)});
    }
}

/**
 * For results that no cache holds: whole lines are written past the caches, which need not read them first.
 * Few rows at a time, so that their pages stay known to the processor.
 */
template <class From, class To>
void transposeStreaming(const From* x, std::ptrdiff_t rows, std::ptrdiff_t cols, To* y)
{
    constexpr auto width = static_cast<std::ptrdiff_t>(cacheLine / sizeof(To));
    const auto cell = [=](std::ptrdiff_t i, std::ptrdiff_t j) { return static_cast<To>(x[i + rows * j]); };
    // The first column of row i whose cell in the result opens a cache line.
    const auto head = [=](std::ptrdiff_t i) {
        const auto address = reinterpret_cast<std::uintptr_t>(y + cols * i);
        return static_cast<std::ptrdiff_t>(-address % cacheLine / sizeof(To));
    };
    for (std::ptrdiff_t firstRow = 0; firstRow < rows; firstRow += streamedRows) {
        const std::ptrdiff_t endRow = std::min(rows, firstRow + streamedRows);
        for (std::ptrdiff_t firstCol = 0; firstCol < cols; firstCol += width) {
            for (std::ptrdiff_t i = firstRow; i < endRow; ++i) {
                const std::ptrdiff_t j = firstCol + head(i);
                if (j + width <= cols) {
                    streamLine(y + cols * i + j, [=](std::ptrdiff_t k) { return cell(i, j + k); });
                }
            }
        }
        for (std::ptrdiff_t i = firstRow; i < endRow; ++i) {
            const std::ptrdiff_t opening = std::min(head(i), cols);
            for (std::ptrdiff_t j = 0; j < opening; ++j) {
                y[cols * i + j] = cell(i, j);
            }
            for (std::ptrdiff_t j = opening + (cols - opening) / width * width; j < cols; ++j) {
                y[cols * i + j] = cell(i, j);
            }
        }
    }
    lanes::finishStreaming();
}

} // namespace detail

/**
 * `y[j + cols * i] = x[i + rows * j]` for each row i and column j; the two blocks must not overlap.
 *
 * Small square tiles use each cache line that they touch on both sides. Large tables of numbers are written
 * past the caches.
 */
template <class From, class To>
void transposeBlock(const From* x, int rows, int cols, To* y)
{
    const auto height = static_cast<std::ptrdiff_t>(rows);
    const auto width = static_cast<std::ptrdiff_t>(cols);
    if constexpr (std::same_as<To, double> || std::same_as<To, int>) {
        if (height > 0 && width > 0 &&
            height * width * static_cast<std::ptrdiff_t>(sizeof(To)) >= detail::streamedFrom) {
            detail::transposeStreaming(x, height, width, y);
            return;
        }
    }
    using detail::tileSide;
    for (std::ptrdiff_t firstCol = 0; firstCol < width; firstCol += tileSide) {
        const std::ptrdiff_t endCol = std::min(width, firstCol + tileSide);
        for (std::ptrdiff_t firstRow = 0; firstRow < height; firstRow += tileSide) {
            const std::ptrdiff_t endRow = std::min(height, firstRow + tileSide);
            for (std::ptrdiff_t i = firstRow; i < endRow; ++i) {
                for (std::ptrdiff_t j = firstCol; j < endCol; ++j) {
                    y[j + width * i] = static_cast<To>(x[i + height * j]);
                }
            }
        }
    }
}

} // namespace korvel

#endif
