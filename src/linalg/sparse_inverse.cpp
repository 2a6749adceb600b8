#include "containers/sparse_matrix.h"

#include "linalg/lu_solutions.h"

#include <cmath>
#include <limits>
#include <new>

namespace
{

double* columnOf(matrix<double>& a, std::size_t j)
{
    return a.data + static_cast<std::size_t>(a.nbrows) * j;
}

/** The reciprocal of the largest magnitude of each row; false when a row has only zeros. */
bool scaleRows(matrix<double>& a, std::vector<double>& scale)
{
    for (std::size_t j = 0; j < scale.size(); ++j) {
        const double* const column = columnOf(a, j);
        for (std::size_t i = 0; i < scale.size(); ++i) {
            const double magnitude = std::fabs(column[i]);
            scale[i] = magnitude > scale[i] ? magnitude : scale[i];
        }
    }
    for (double& s : scale) {
        if (s == 0.0) {
            return false;
        }
        s = 1.0 / s;
    }
    return true;
}

/** The row from `j` on with the largest scaled element in this column; the last one of equals. */
std::size_t choosePivot(const double* column, const std::vector<double>& scale, std::size_t j)
{
    std::size_t pivot = j;
    double largest = 0.0;
    for (std::size_t i = j; i < scale.size(); ++i) {
        const double candidate = scale[i] * std::fabs(column[i]);
        if (candidate >= largest) {
            largest = candidate;
            pivot = i;
        }
    }
    return pivot;
}

/**
 * Replaces `a` by its LU factors, without the unit diagonal of L. `pivots` receives the row that was swapped
 * with each row. Returns false when a pivot is not above the threshold.
 */
bool factorise(matrix<double>& a, std::vector<double>& scale, std::vector<std::size_t>& pivots,
               double threshold)
{
    const std::size_t n = scale.size();
    for (std::size_t j = 0; j < n; ++j) {
        double* const target = columnOf(a, j);
        // Each earlier column is subtracted from all elements below its diagonal. So every element has its
        // terms subtracted in ascending order, and element k is complete before it serves as a factor.
        for (std::size_t k = 0; k < j; ++k) {
            const double* const column = columnOf(a, k);
            const double factor = target[k];
            for (std::size_t i = k + 1; i < n; ++i) {
                target[i] -= column[i] * factor;
            }
        }
        pivots[j] = choosePivot(target, scale, j);
        if (pivots[j] != j) {
            for (std::size_t k = 0; k < n; ++k) {
                std::swap(columnOf(a, k)[pivots[j]], columnOf(a, k)[j]);
            }
            scale[pivots[j]] = scale[j];
        }
        if (!(std::fabs(target[j]) > threshold)) {
            return false;
        }
        const double reciprocal = 1.0 / target[j];
        for (std::size_t i = j + 1; i < n; ++i) {
            target[i] *= reciprocal;
        }
    }
    return true;
}

bool isZero(double v)
{
    return std::fabs(v) < SPARSE_ZERO;
}

/**
 * Appends to `colIndex` and `values` what `row` of `dst` would be after `dst.setElement(i, c, cells[c])` for
 * every column c in ascending order. Each element is set once, so a column is searched only among the old
 * entries; new entries go in front of them, the last one first. `found` is scratch, one place for each
 * column.
 */
void mergeRow(const matrixSparse& dst, korvel::entry_range row, const double* cells,
              std::vector<std::size_t>& found, std::vector<int>& colIndex, std::vector<double>& values)
{
    const auto isInside = [&](std::size_t k) {
        return dst.colIndex[k] >= 0 && static_cast<std::size_t>(dst.colIndex[k]) < found.size();
    };
    constexpr auto nowhere = std::numeric_limits<std::size_t>::max();
    std::fill(found.begin(), found.end(), nowhere);
    for (std::size_t k = row.last; k-- > row.first;) {
        if (isInside(k)) {
            found[static_cast<std::size_t>(dst.colIndex[k])] = k;
        }
    }
    for (std::size_t c = found.size(); c-- > 0;) {
        const bool overwrites = found[c] != nowhere && !isZero(dst.values[found[c]]);
        if (!isZero(cells[c]) && !overwrites) {
            colIndex.push_back(static_cast<int>(c));
            values.push_back(cells[c]);
            found[c] = nowhere;
        }
    }
    for (std::size_t k = row.first; k < row.last; ++k) {
        const bool isSet = isInside(k) && found[static_cast<std::size_t>(dst.colIndex[k])] == k;
        const double value = isSet ? cells[dst.colIndex[k]] : dst.values[k];
        if (!isSet || !isZero(value)) {
            colIndex.push_back(dst.colIndex[k]);
            values.push_back(value);
        }
    }
}

/**
 * Sets every element of `dst`, column after column, from the square table whose row i is column i of
 * `source`. The result is that of single `setElement` calls, but later rows are not moved at each of them.
 */
void store(matrixSparse& dst, matrix<double>& source)
{
    std::vector<int> rowStart(dst.rowStart);
    std::vector<int> colIndex;
    std::vector<double> values;
    // An index equal to the number of columns passes the bounds of setElement.
    const std::int64_t columns = std::min(std::int64_t{source.nbcols}, std::int64_t{dst.nbcols} + 1);
    std::vector<std::size_t> found(static_cast<std::size_t>(std::max<std::int64_t>(columns, 0)));
    for (std::int64_t i = 0; korvel::hasRow(dst, i); ++i) {
        const auto row = static_cast<std::size_t>(i);
        const korvel::entry_range old = korvel::entriesOfRow(dst, i);
        if (i < source.nbrows) {
            mergeRow(dst, old, columnOf(source, row), found, colIndex, values);
        } else {
            colIndex.insert(colIndex.end(), dst.colIndex.data() + old.first, dst.colIndex.data() + old.last);
            values.insert(values.end(), dst.values.data() + old.first, dst.values.data() + old.last);
        }
        rowStart[row + 1] = static_cast<int>(values.size());
    }
    dst.nnz += static_cast<std::int32_t>(values.size()) - static_cast<std::int32_t>(dst.values.size());
    dst.colIndex.swap(colIndex);
    dst.rowStart.swap(rowStart);
    dst.values.swap(values);
}

} // namespace

int matrixSparse::inverse1(matrixSparse* dst, short int& singular, double tol)
{
    if (nbrows < 1) {
        return 0;
    }
    const auto n = static_cast<std::size_t>(nbrows);
    if (n * n != korvel::elementCount(nbrows, nbrows)) {
        throw std::bad_alloc(); // more elements than a dense table can have
    }
    matrix<double> a = to_matrix(nbrows, nbrows);
    std::vector<double> scale(n);
    std::vector<std::size_t> pivots(n);
    const double threshold = tol > 0.0 ? 1e-8 : std::numeric_limits<double>::epsilon();
    if (!scaleRows(a, scale) || !factorise(a, scale, pivots, threshold)) {
        singular = -1;
        return -1;
    }
    matrix<double> inverse = korvel::solveForUnits(a, pivots);
    store(*dst, inverse);
    return 0;
}
