#include "linalg/gauss.h"

#include "containers/record_columns.h"
#include "linalg/rows_as_runs.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace
{

/** Row and column of a pivot, from 0. */
struct pivot_place {
    int row = 0;
    int col = 0;
};

template <class Table>
void swapRows(Table& cells, pivot_place rows, int cols)
{
    for (int j = 0; j < cols; ++j) {
        const double kept = cells.get(rows.row, j);
        cells.set(rows.row, j, cells.get(rows.col, j));
        cells.set(rows.col, j, kept);
    }
}

template <class Table>
void swapColumns(Table& cells, pivot_place cols, int rows)
{
    for (int i = 0; i < rows; ++i) {
        const double kept = cells.get(i, cols.row);
        cells.set(i, cols.row, cells.get(i, cols.col));
        cells.set(i, cols.col, kept);
    }
}

template <class Table>
void multiplyRow(Table& cells, int row, int cols, double factor)
{
    for (int j = 0; j < cols; ++j) {
        cells.set(row, j, cells.get(row, j) * factor);
    }
}

/** Takes `factor` times row `pivot` off another row. */
template <class Table>
void subtractRow(Table& cells, int row, int cols, double factor, int pivot)
{
    for (int j = 0; j < cols; ++j) {
        cells.set(row, j, cells.get(row, j) - factor * cells.get(pivot, j));
    }
}

/** The rows and columns that had a pivot: those of one number are used up together. */
class unused_pivots
{
public:
    explicit unused_pivots(int n) : used_(static_cast<std::size_t>(n), 0) {}

    template <class Table>
    [[nodiscard]] pivot_place largest(const Table& cells) const
    {
        const int n = static_cast<int>(used_.size());
        pivot_place found = first();
        double best = 0.0;
        for (int i = 0; i < n; ++i) {
            if (isUsed(i)) {
                continue;
            }
            for (int j = 0; j < n; ++j) {
                if (isUsed(j)) {
                    continue;
                }
                const double candidate = std::fabs(cells.get(i, j));
                if (candidate - best > 1e-12) {
                    best = candidate;
                    found = {i, j};
                }
            }
        }
        return found;
    }

    void use(int number) { used_[static_cast<std::size_t>(number)] = 1; }

private:
    [[nodiscard]] bool isUsed(int number) const { return used_[static_cast<std::size_t>(number)] != 0; }

    [[nodiscard]] pivot_place first() const
    {
        int number = 0;
        while (isUsed(number)) {
            ++number;
        }
        return {number, number};
    }

    std::vector<int> used_;
};

/** Makes column `col` that of the unit table, and puts the inverse in its place. False at a pivot of 0. */
template <class Table, class Sides>
bool eliminate(Table& a, int n, Sides& b, int m, int col)
{
    if (a.get(col, col) == 0.0) {
        return false;
    }
    const double p = 1.0 / a.get(col, col);
    a.set(col, col, 1.0);
    multiplyRow(a, col, n, p);
    multiplyRow(b, col, m, p);
    for (int l = 0; l < n; ++l) {
        if (l != col) {
            const double q = a.get(l, col);
            a.set(l, col, 0.0);
            subtractRow(a, l, n, q, col);
            subtractRow(b, l, m, q, col);
        }
    }
    return true;
}

/** What to do beside the elimination itself. */
struct gauss_options {
    bool noSwap = false;
    bool noPivot = false;
};

template <class Table, class Sides>
int solve(Table& a, int n, Sides& b, int m, gauss_options options)
{
    const bool swaps = !options.noSwap && !options.noPivot;
    unused_pivots unused(n);
    std::vector<pivot_place> swapped;
    swapped.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        const pivot_place pivot = options.noPivot ? pivot_place{i, i} : unused.largest(a);
        unused.use(pivot.col);
        if (swaps && pivot.row != pivot.col) {
            swapRows(a, pivot, n);
            swapRows(b, pivot, m);
            swapped.push_back(pivot);
        }
        if (!eliminate(a, n, b, m, pivot.col)) {
            return -2;
        }
    }
    while (!swapped.empty()) {
        swapColumns(a, swapped.back(), n);
        swapped.pop_back();
    }
    return 0;
}

} // namespace

int M_Gauss(matrix<double>* A, int n, int m, matrix<double>* B, bool noSwap, bool noPivot)
{
    n = std::max(n, 0);
    return korvel::changeByRows(*A, n, n, [=](auto& a) {
        return korvel::changeByRows(*B, n, m, [&](auto& b) { return solve(a, n, b, m, {noSwap, noPivot}); });
    });
}

int V_Gauss_ST(cST_MVect<double>& A, int n, cST_Vect<double>& b)
{
    n = std::max(n, 0);
    korvel::column_list columns(A, n);
    matrix<double>* side[] = {&b.Vect};
    return korvel::withCells([=](auto& a, auto& x) { return solve(a, n, x, 1, {}); },
                             korvel::writing(columns.table()).table(n, n), korvel::writing(side).table(n, 1));
}
