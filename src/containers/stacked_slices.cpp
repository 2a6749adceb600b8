#include "containers/stacked_slices.h"

#include "containers/bstr.h"
#include "containers/conversion.h"
#include "containers/views.h"

#include <algorithm>
#include <cstdint>

using namespace korvel;

namespace
{

template <class T>
void makeSlices(matrix<T>** m, int n, int rows, int cols)
{
    for (int k = 0; k < n; ++k) {
        m[k] = new matrix<T>(rows, cols, T{});
    }
}

/** Calls `visit(slice, i, j, cell)` for every cell of the flat block, in memory order. */
template <class T, class Flat, class Visit>
void walkSlices(matrix<T>** m, Flat* flat, int n, int rows, int cols, Visit visit)
{
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            for (int k = 0; k < n; ++k) {
                visit(*m[k], i, j, *flat++);
            }
        }
    }
}

} // namespace

void iniSuperMat(matrix<double>** m, int n, int rows, int cols)
{
    makeSlices(m, n, rows, cols);
}

void loadSuperMat(matrix<double>** m, double* flat, int n, int rows, int cols)
{
    makeSlices(m, n, rows, cols);
    walkSlices(m, flat, n, rows, cols,
               [](auto& slice, int i, int j, double cell) { slice.setElement(i, j, cell); });
}

void loadSuperMat(matrix<text>** m, OLECHAR** flat, int n, int rows, int cols)
{
    makeSlices(m, n, rows, cols);
    walkSlices(m, flat, n, rows, cols,
               [](auto& slice, int i, int j, BSTR cell) { slice.setElement(i, j, readBstr(cell)); });
}

void loadSuperMatLng(matrix<double>** m, int* flat, int n, int rows, int cols)
{
    makeSlices(m, n, rows, cols);
    walkSlices(m, flat, n, rows, cols,
               [](auto& slice, int i, int j, int cell) { slice.setElement(i, j, cell); });
}

void unloadSuperMat(matrix<double>** m, double* flat, int n, int rows, int cols)
{
    walkSlices(m, flat, n, rows, cols,
               [](const auto& slice, int i, int j, double& cell) { cell = slice.getElement(i, j); });
}

void unloadSuperMat(matrix<text>** m, OLECHAR** flat, int n, int rows, int cols)
{
    walkSlices(m, flat, n, rows, cols, [](const auto& slice, int i, int j, BSTR& cell) {
        replaceIfDifferent(cell, slice.getElement(i, j));
    });
}

void unloadSuperMatLng(matrix<double>** m, int* flat, int n, int rows, int cols)
{
    walkSlices(m, flat, n, rows, cols, [](const auto& slice, int i, int j, int& cell) {
        const double value = slice.getElement(i, j);
        cell = value == MISSING_DBL ? 0 : truncateToInt(value);
    });
}

void SuperMatSetToValue(matrix<double>** m, int n, int rows, int cols, double value)
{
    const std::int64_t count = std::int64_t{std::max(rows, 0)} * std::max(cols, 0);
    for (int k = 0; k < n; ++k) {
        if (m[k]->nbrows < rows || m[k]->nbcols < cols) {
            m[k]->Redim(rows, cols, value);
        } else {
            std::fill_n(m[k]->data, count, value);
        }
    }
}

void CopyCol(matrix<double>** m, int n, int k, int j, matrix<double>* out)
{
    if (k < 0 || j < 0 || k >= n || j >= out->nbcols) {
        return;
    }
    const int count = static_cast<int>(m[k]->nbElem);
    withCells(
        [count](auto from, auto& to) {
            for (int i = 0; i < count; ++i) {
                to.set(i, from[i]);
            }
        },
        readVector(*m[k], count), writing(*out).column(j, count));
}
