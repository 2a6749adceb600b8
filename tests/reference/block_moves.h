/**
 * @file
 * Plain twins of merging, removing and other ways of moving blocks of cells: loops over the checked access,
 * row after row, with nothing done for speed. Rows and columns are counted from 1. A table is a dense matrix,
 * or an array of chunks; an index outside, a negative one too, reaches the spare slot.
 */
#ifndef KORVEL_TESTS_REFERENCE_BLOCK_MOVES_H
#define KORVEL_TESTS_REFERENCE_BLOCK_MOVES_H

#include "containers/matrix.h"

#include <cstdint>
#include <vector>

namespace korvel::reference
{

template <class T>
T cell(const matrix<T>& x, std::int64_t i, std::int64_t j)
{
    const bool inside = 1 <= i && i <= x.nbrows && 1 <= j && j <= x.nbcols;
    return inside ? x.data[(i - 1) + (j - 1) * x.nbrows] : x.oobValue;
}

template <class T>
void store(matrix<T>& y, std::int64_t i, std::int64_t j, const T& value)
{
    const T kept = value;
    if (1 <= i && i <= y.nbrows && 1 <= j && j <= y.nbcols) {
        y.data[(i - 1) + (j - 1) * y.nbrows] = kept;
    }
    y.oobValue = kept;
}

template <class T>
T cell(matrix<T>** x, std::int64_t i, std::int64_t j)
{
    const matrix<T>& chunk = *x[j - 1];
    return 1 <= i && i <= static_cast<std::int64_t>(chunk.nbElem) ? chunk.data[i - 1] : chunk.oobValue;
}

template <class T>
void store(matrix<T>** y, std::int64_t i, std::int64_t j, const T& value)
{
    matrix<T>& chunk = *y[j - 1];
    if (1 <= i && i <= static_cast<std::int64_t>(chunk.nbElem)) {
        chunk.data[i - 1] = value;
    }
    chunk.oobValue = value;
}

/**
 * A symmetric table whose chunks hold it from the diagonal down: chunk c holds column c. Stores above the
 * diagonal are dropped.
 */
struct triangle {
    matrix<double>** chunks;
};

inline double cell(const triangle& x, std::int64_t i, std::int64_t j)
{
    return i >= j ? cell(x.chunks, i - j + 1, j) : cell(x.chunks, j - i + 1, i);
}

inline void store(const triangle& y, std::int64_t i, std::int64_t j, double value)
{
    if (i >= j) {
        store(y.chunks, i - j + 1, j, value);
    }
}

/** y(rowTo + i, colTo + j) = x(row + i, col + j) for i below `rows` and j below `cols`. */
template <class From, class To>
void copy(const From& x, std::int64_t row, std::int64_t col, To& y, std::int64_t rowTo, std::int64_t colTo,
          std::int64_t rows, std::int64_t cols)
{
    for (std::int64_t i = 0; i < rows; ++i) {
        for (std::int64_t j = 0; j < cols; ++j) {
            store(y, rowTo + i, colTo + j, cell(x, row + i, col + j));
        }
    }
}

template <class A, class B, class Out>
void hMerge(const A& a, int rowsA, int colsA, const B& b, int rowsB, int colsB, Out& out)
{
    copy(a, 1, 1, out, 1, 1, rowsA, colsA);
    copy(b, 1, 1, out, 1, std::int64_t{colsA} + 1, rowsB, colsB);
}

template <class A, class B, class Out>
void vMerge(const A& a, int rowsA, int colsA, const B& b, int rowsB, int colsB, Out& out)
{
    copy(a, 1, 1, out, 1, 1, rowsA, colsA);
    copy(b, 1, 1, out, std::int64_t{rowsA} + 1, 1, rowsB, colsB);
}

/** `removed[k]` says whether row k + 1 is left out. */
template <class T>
void removeRows(const matrix<T>& x, int rows, int cols, const std::vector<bool>& removed, matrix<T>& out)
{
    int kept = 0;
    for (int i = 1; i <= rows; ++i) {
        if (removed[static_cast<std::size_t>(i) - 1]) {
            continue;
        }
        ++kept;
        for (int j = 1; j <= cols; ++j) {
            store(out, kept, j, cell(x, i, j));
        }
    }
}

template <class T>
void removeCols(const matrix<T>& x, int rows, int cols, const std::vector<bool>& removed, matrix<T>& out)
{
    for (int i = 1; i <= rows; ++i) {
        int kept = 0;
        for (int j = 1; j <= cols; ++j) {
            if (!removed[static_cast<std::size_t>(j) - 1]) {
                store(out, i, ++kept, cell(x, i, j));
            }
        }
    }
}

} // namespace korvel::reference

#endif
