#include "linalg/g2_sweep.h"

#include "containers/record_columns.h"
#include "containers/views.h"
#include "linalg/kernels/sweep.h"
#include "linalg/sweep_pivots.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

/** Order from which on the pivots are taken in blocks; below, laying the table out costs more than it gains.
 */
constexpr int fewestInBlocks = 16;

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

/** Takes `factor` times another column off the cells from `first` up to `last`. */
void takeColumnOff(double* column, double factor, const double* other, int first, int last)
{
    for (int i = first; i < last; ++i) {
        column[i] -= other[i] * factor;
    }
}

/** Adds `factor` times another column to the cells from `first` up to `last`. */
void addColumn(double* column, double factor, const double* other, int first, int last)
{
    for (int i = first; i < last; ++i) {
        column[i] += factor * other[i];
    }
}

/** The same steps on a block that lies inside its table, whose columns are `stride` apart: by columns. */
void sweepInside(double* table, std::ptrdiff_t stride, int n, int k, double tolerance)
{
    double* const pivots = table + stride * k;
    const double d = pivots[k];
    if (std::fabs(d) < tolerance) {
        for (int j = 0; j < n; ++j) {
            table[stride * j + k] = 0.0;
        }
        std::fill_n(pivots, n, 0.0);
        return;
    }
    for (int j = 0; j < n; ++j) {
        double* const column = table + stride * j;
        if (j != k) {
            const double divided = column[k] / d;
            takeColumnOff(column, divided, pivots, 0, k);
            takeColumnOff(column, divided, pivots, k + 1, n);
            column[k] = divided;
        }
    }
    for (int i = 0; i < n; ++i) {
        pivots[i] = -pivots[i] / d;
    }
    pivots[k] = 1.0 / d;
}

/** Sweeps pivot `k`, 0-based, of a dense table. */
void sweepDense(matrix<double>& table, int n, int k, double tolerance)
{
    const int reached = std::max(n, k + 1);
    if (k < n && writing(table).table(n, n).inside()) {
        sweepInside(table.data, table.nbrows, n, k, tolerance);
        table.oobValue = table.data[k + std::ptrdiff_t{table.nbrows} * k];
        return;
    }
    withCells([=](auto& cells) { sweepPivot(cells, n, k, tolerance); },
              writing(table).table(reached, reached));
}

} // namespace

void korvel::sweepPivots(matrix<double>& table, int n, double tolerance)
{
    if (n < fewestInBlocks || !writing(table).table(n, n).inside()) {
        for (int k = 0; k < n; ++k) {
            sweepDense(table, n, k, tolerance);
        }
        return;
    }
    const kernels::sweep_kernel& kernel = kernels::sweepKernel();
    const auto scratch = std::make_unique_for_overwrite<double[]>(kernel.scratchSize(n));
    kernel.sweep(table.data, table.nbrows, n, tolerance, scratch.get());
    table.oobValue = table.getElement(n - 1, n - 1);
}

void G2SweepStep(matrix<double>* A, int n, int k, double tolerance)
{
    sweepDense(*A, n, k - 1, tolerance);
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
    korvel::copyBlock(reading(from.table()), {}, writing(to.table()), {}, n, n);
    withCells(
        [=](auto& cells) {
            for (int k = 0; k < n; ++k) {
                sweepPivot(cells, n, k, tolerance);
            }
        },
        writing(to.table()).table(n, n));
}

void M_InverseG2Selective(matrix<double>* A, int n, matrix<int>* selected, double tolerance,
                          matrix<double>* G, short int zeroOthers)
{
    korvel::copyBlock(reading(*A), {}, writing(*G), {}, n, n);
    for (int k = 0; k < n; ++k) {
        if ((*selected)[k] == 1) {
            sweepDense(*G, n, k, tolerance);
        } else if (zeroOthers == -1) {
            withCells([=](auto& cells) { clearCross(cells, n, k); }, writing(*G).table(n, n));
        }
    }
}
