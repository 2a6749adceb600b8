#include "tables/transpose.h"

#include "containers/views.h"
#include "tables/transposed_block.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace
{

/** Cells of a table, none for a count below 1. */
std::uint64_t cellCount(int rows, int cols)
{
    return rows > 0 && cols > 0 ? static_cast<std::uint64_t>(rows) * static_cast<std::uint64_t>(cols) : 0;
}

template <class From, class To>
void transposeDense(const matrix<From>& x, int rows, int cols, matrix<To>& y)
{
    y.Redim(cols, rows);
    // Every cell inside the shape will be written, so only the cells outside it are cleared.
    if (const std::uint64_t written = cellCount(rows, cols); written < y.nbElem) {
        std::fill(y.data + written, y.data + y.nbElem, To{});
    }
    korvel::transposeBlock(x.data, rows, cols, y.data);
}

template <class T>
void transposeInPlace(matrix<T>& x, int rows, int cols)
{
    const matrix<T> copy(x);
    transposeDense(copy, rows, cols, x);
}

/**
 * Goes column by column through the target, because the stores must happen in that order there. It works in
 * strips, so that each cache line of the source is read once for all its rows.
 */
template <class From, class To>
void transposeView(const From& from, int rows, int cols, const To& to)
{
    using korvel::detail::runCols;
    using korvel::detail::stripRows;
    korvel::withCells(
        [&](auto in) {
            for (int firstRow = 0; firstRow < rows; firstRow += stripRows) {
                const int endRow = std::min(rows, firstRow + stripRows);
                for (int firstCol = 0; firstCol < cols; firstCol += runCols) {
                    const int endCol = std::min(cols, firstCol + runCols);
                    for (int i = firstRow; i < endRow; ++i) {
                        korvel::withCells(
                            [&](auto& out) {
                                for (int j = firstCol; j < endCol; ++j) {
                                    out.set(j, in.get(i, j));
                                }
                            },
                            to.column(i, cols));
                    }
                }
            }
        },
        from.table(rows, cols));
}

/** Calls `visit(row, column, value)` for each entry of the first `rows` rows and `cols` columns. */
template <class Visit>
void forEachEntry(const matrixSparse& x, int rows, int cols, Visit visit)
{
    for (int i = 0; i < rows; ++i) {
        const korvel::entry_range row = korvel::entriesOfRow(x, i);
        for (std::size_t k = row.first; k < row.last; ++k) {
            if (x.colIndex[k] >= 0 && x.colIndex[k] < cols) {
                visit(i, static_cast<std::size_t>(x.colIndex[k]), x.values[k]);
            }
        }
    }
}

} // namespace

void M_Transpose(const matrix<double>& x, int rows, int cols, matrix<double>& y)
{
    transposeDense(x, rows, cols, y);
}

void M_Transpose(const matrix<int>& x, int rows, int cols, matrix<int>& y)
{
    transposeDense(x, rows, cols, y);
}

void M_Transpose(const matrix<int>& x, int rows, int cols, matrix<double>& y)
{
    transposeDense(x, rows, cols, y);
}

void M_Transpose(const matrix<text>& x, int rows, int cols, matrix<text>& y)
{
    transposeDense(x, rows, cols, y);
}

void M_Transpose(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>*& y)
{
    y->Redim(cols, rows, 0.0);
    transposeView(korvel::reading(*x), rows, cols, korvel::writing(*y));
}

void M_Transpose(matrix<double>* x, int rows, int cols, matrix3D<matrix<double>>* y)
{
    transposeView(korvel::reading(*x), rows, cols, korvel::writing(*y));
}

void M_Transpose(const matrixSparse& x, int rows, int cols, matrixSparse& y)
{
    // Entries of each row of the result, one place ahead, and from them where each row starts.
    std::vector<int> starts(static_cast<std::size_t>(std::max(cols, 0)) + 1);
    forEachEntry(x, rows, cols, [&](int, std::size_t j, double) { ++starts[j + 1]; });
    for (std::size_t j = 1; j < starts.size(); ++j) {
        starts[j] += starts[j - 1];
    }
    std::vector<int> colIndex(static_cast<std::size_t>(starts.back()));
    std::vector<double> values(colIndex.size());
    std::vector<int> next = starts;
    forEachEntry(x, rows, cols, [&](int i, std::size_t j, double value) {
        const auto place = static_cast<std::size_t>(next[j]++);
        colIndex[place] = i;
        values[place] = value;
    });
    y.nbrows = std::max(cols, 0);
    y.nbcols = std::max(rows, 0);
    y.nnz = starts.back();
    y.colIndex.swap(colIndex);
    y.rowStart.swap(starts);
    y.values.swap(values);
}

void M_Transpose2(matrix<double>* x, int rows, int cols)
{
    transposeInPlace(*x, rows, cols);
}

void M_Transpose2(matrix<int>* x, int rows, int cols)
{
    transposeInPlace(*x, rows, cols);
}

void M_Transpose2(matrix<text>* x, int rows, int cols)
{
    transposeInPlace(*x, rows, cols);
}

void M_TransposeSPV(matrix<double>** x, int rows, int cols, matrix<double>** y)
{
    transposeView(korvel::reading(x), rows, cols, korvel::writing(y));
}
