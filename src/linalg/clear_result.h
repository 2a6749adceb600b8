/**
 * @file
 * Makes a result ready before its cells are stored.
 */
#ifndef KORVEL_LINALG_CLEAR_RESULT_H
#define KORVEL_LINALG_CLEAR_RESULT_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"

#include <algorithm>
#include <cstddef>

namespace korvel
{

/**
 * Makes ready a result that is to start from zeros: one with too few rows or columns is given the counts
 * asked for and filled with zeros; any other keeps its shape, and its first `rows * cols` elements in storage
 * order become 0.
 */
template <class T>
void clearResult(matrix<T>& result, int rows, int cols)
{
    if (result.nbrows < rows || result.nbcols < cols) {
        result.Redim(rows, cols, T{});
    } else {
        const std::ptrdiff_t count = std::ptrdiff_t{std::max(rows, 0)} * std::max(cols, 0);
        std::fill_n(result.data, count, T{});
    }
}

/** Gives a result that may be written in part its shape: zeros, unless it has that shape and keeps its cells.
 */
template <class T>
void shapeResult(matrix<T>& result, int rows, int cols)
{
    if (result.nbrows != rows || result.nbcols != cols) {
        result.Redim(std::max(rows, 0), cols, T{});
    }
}

/** `clearResult` for the first columns of a table of chunks, each of its own. */
template <class M>
void clearResult(matrix3D<M>& result, int rows, int cols)
{
    for (int j = 0; j < cols; ++j) {
        clearResult(result.chunks[static_cast<std::size_t>(j)], rows, 1);
    }
}

} // namespace korvel

#endif
