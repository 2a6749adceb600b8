#include "missing/missing_counts.h"

#include "containers/cell_tests.h"
#include "containers/stretches.h"
#include "containers/views.h"

namespace
{

using korvel::isMissingCell;
using korvel::reading;
using korvel::withCells;

template <class Cells>
int missingIn(const Cells& cells, int n)
{
    return static_cast<int>(withCells([n](auto x) { return korvel::countOf(n, isMissingCell, x); }, cells));
}

/** Calls `take(j, missing cells of column j)` for each column, of which `length(j)` cells are read. */
template <class View, class Length, class Take>
void forEachColumn(const View& x, int cols, Length length, Take take)
{
    for (int j = 0; j < cols; ++j) {
        take(j, missingIn(x.column(j, length(j)), length(j)));
    }
}

/** `counts[j] = count(missing cells of column j)`. */
template <class T, class Count>
void countColumns(const matrix<T>& x, int rows, int cols, matrix<int>& counts, Count count)
{
    withCells(
        [&](auto& out) {
            forEachColumn(
                reading(x), cols, [rows](int) { return rows; },
                [&](int j, int missing) { out.set(j, count(missing)); });
        },
        korvel::writeVector(counts, cols));
}

template <class View, class Length>
int totalOf(const View& x, int cols, Length length)
{
    int total = 0;
    forEachColumn(x, cols, length, [&](int, int missing) { total += missing; });
    return total;
}

template <class View>
int totalOfTable(const View& x, int rows, int cols)
{
    return totalOf(x, cols, [rows](int) { return rows; });
}

template <class View>
int totalOfTriangle(const View& x, int rows, int cols)
{
    return totalOf(x, cols, [rows](int j) { return rows - j; });
}

constexpr auto asItIs = [](int missing) { return missing; };

} // namespace

int V_NbMissing(matrix<double>* x, int n)
{
    return missingIn(korvel::readVector(*x, n), n);
}

int V_NbMissing(matrix<text>* x, int n)
{
    return missingIn(korvel::readVector(*x, n), n);
}

int V_NbNonMissing(matrix<double>* x, int n)
{
    return n < 1 ? 0 : n - V_NbMissing(x, n);
}

void M_NbMissing(matrix<double>* x, int rows, int cols, matrix<int>* counts)
{
    countColumns(*x, rows, cols, *counts, asItIs);
}

void M_NbMissing(matrix<text>* x, int rows, int cols, matrix<int>* counts)
{
    countColumns(*x, rows, cols, *counts, asItIs);
}

void M_NbNonMissing(matrix<double>* x, int rows, int cols, matrix<int>* counts)
{
    countColumns(*x, rows, cols, *counts, [rows](int missing) { return rows < 1 ? 0 : rows - missing; });
}

void M_NbMissingPerRow(matrix<double>* x, int rows, int cols, matrix<int>* counts)
{
    const auto none = [rows](auto& out) {
        for (int i = 0; i < rows; ++i) {
            out.set(i, 0);
        }
    };
    withCells(none, korvel::writeVector(*counts, rows));
    for (int j = 0; j < cols; ++j) {
        withCells(
            [rows](auto cells, auto& out) {
                korvel::forEachFound(rows, isMissingCell, cells, [&](int i) { out.set(i, out[i] + 1); });
            },
            reading(*x).column(j, rows), korvel::writeVector(*counts, rows));
    }
}

int M_NbMissing2(matrix<double>* x, int rows, int cols)
{
    return totalOfTable(reading(*x), rows, cols);
}

int M_NbMissing2(matrix<text>* x, int rows, int cols)
{
    return totalOfTable(reading(*x), rows, cols);
}

int M_NbMissing2(matrix<double>** x, int rows, int cols)
{
    return totalOfTable(reading(x), rows, cols);
}

int M_NbMissing2(matrix3D<matrix<double>>* x, int rows, int cols)
{
    return totalOfTable(reading(*x), rows, cols);
}

int M_NbMissingSPV_T(matrix<double>** x, int rows, int cols)
{
    return totalOfTriangle(reading(x), rows, cols);
}

int M_NbMissingSPV_T(matrix3D<matrix<double>>* x, int rows, int cols)
{
    return totalOfTriangle(reading(*x), rows, cols);
}
