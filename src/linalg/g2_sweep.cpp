#include "linalg/g2_sweep.h"

#include "containers/record_columns.h"
#include "containers/views.h"
#include "linalg/sweep_pivots.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

/** Zeros in row and column `k`, 0-based. */
template <class Table>
void clearCross(Table& cells, int n, int k)
{
    for (int j = 0; j < n; ++j) {
        cells.set(k, j, 0.0);
        cells.set(j, k, 0.0);
    }
}

/** Sweeps pivot `k`, 0-based, through any access to the cells. */
template <class Table>
void sweepPivot(Table& cells, int n, int k, double tolerance)
{
    const double d = cells.get(k, k);
    if (std::fabs(d) < tolerance) {
        clearCross(cells, n, k);
        return;
    }
    for (int j = 0; j < n; ++j) {
        cells.set(k, j, cells.get(k, j) / d);
    }
    for (int i = 0; i < n; ++i) {
        if (i == k) {
            continue;
        }
        const double b = cells.get(i, k);
        for (int j = 0; j < n; ++j) {
            cells.set(i, j, cells.get(i, j) - b * cells.get(k, j));
        }
        cells.set(i, k, -b / d);
    }
    cells.set(k, k, 1.0 / d);
}

/** Where the cells from `first` up to `last` of a column get `factor` times those of another added. */
void addColumn(double* column, double factor, const double* other, int first, int last)
{
    for (int i = first; i < last; ++i) {
        column[i] += factor * other[i];
    }
}

/** Copies the top left block, and hands its pivots to `sweep(cells, k)`, k from 0. */
template <class From, class To, class Sweep>
void sweepCopy(const From& from, int n, const To& to, Sweep sweep)
{
    korvel::copyBlock(from, {}, to, {}, n, n);
    withCells(
        [&](auto& cells) {
            for (int k = 0; k < n; ++k) {
                sweep(cells, k);
            }
        },
        to.table(n, n));
}

} // namespace

void korvel::sweepPivots(matrix<double>& table, int n, double tolerance)
{
    withCells(
        [=](auto& cells) {
            for (int k = 0; k < n; ++k) {
                sweepPivot(cells, n, k, tolerance);
            }
        },
        writing(table).table(n, n));
}

void G2SweepStep(matrix<double>* A, int n, int k, double tolerance)
{
    const int reached = std::max(n, k);
    withCells([=](auto& cells) { sweepPivot(cells, n, k - 1, tolerance); },
              writing(*A).table(reached, reached));
}

void G2SweepStep(matrixSparse* A, int n, int k, double tolerance)
{
    auto cells = writing(*A);
    sweepPivot(cells, n, k - 1, tolerance);
}

void G2SweepStep(double* A, int n, int k, double tolerance)
{
    const int row = k - 1;
    const auto column = [A, n](int j) { return A + std::ptrdiff_t{n} * j; };
    double* const pivots = column(row);
    const double d = pivots[row];
    if (std::fabs(d) < tolerance) {
        for (int j = 0; j < n; ++j) {
            column(j)[row] = 0.0;
        }
        std::fill_n(pivots, n, 0.0);
        return;
    }
    const double factor = -1.0 / d;
    for (int i = 0; i < n; ++i) {
        pivots[i] *= factor;
    }
    for (int j = 0; j < n; ++j) {
        const double t = column(j)[row];
        if (j == row) {
            continue;
        }
        column(j)[row] = t / d;
        if (std::fabs(t) > tolerance) {
            addColumn(column(j), t, pivots, 0, row);
            addColumn(column(j), t, pivots, row + 1, n);
        }
    }
    pivots[row] = 1.0 / d;
}

void M_InverseG2(matrix<double>* A, int n, double tolerance, matrix<double>* G)
{
    korvel::copyBlock(reading(*A), {}, writing(*G), {}, n, n);
    korvel::sweepPivots(*G, n, tolerance);
}

void M_InverseG2_ST(cST_MVect<double>& A, int n, double tolerance, cST_MVect<double>& G)
{
    korvel::column_list from(A, n);
    korvel::column_list to(G, n);
    sweepCopy(reading(from.table()), n, writing(to.table()),
              [=](auto& cells, int k) { sweepPivot(cells, n, k, tolerance); });
}

void M_InverseG2Selective(matrix<double>* A, int n, matrix<int>* selected, double tolerance,
                          matrix<double>* G, short int zeroOthers)
{
    sweepCopy(reading(*A), n, writing(*G), [&](auto& cells, int k) {
        if ((*selected)[k] == 1) {
            sweepPivot(cells, n, k, tolerance);
        } else if (zeroOthers == -1) {
            clearCross(cells, n, k);
        }
    });
}
