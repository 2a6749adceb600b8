#include "tables/row_maps.h"

#include "containers/views.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{

/** Folds the columns of a table, in ascending order, into one running value a row, by
 * `step(value, cell, column)`. */
template <class State, class Step>
std::vector<State> foldRows(const matrix<double>& x, int rows, int cols, const State& start, Step step)
{
    std::vector<State> states(static_cast<std::size_t>(std::max(rows, 0)), start);
    for (int j = 0; j < cols; ++j) {
        korvel::withCells(
            [&](auto in) {
                for (int i = 0; i < rows; ++i) {
                    step(states[static_cast<std::size_t>(i)], in[i], j);
                }
            },
            korvel::reading(x).column(j, rows));
    }
    return states;
}

/** Stores `of(state)` of each row. */
template <class T, class State, class Of>
void storeRows(const std::vector<State>& states, matrix<T>& out, Of of)
{
    const auto rows = static_cast<int>(states.size());
    korvel::withCells(
        [&](auto& result) {
            for (int i = 0; i < rows; ++i) {
                result.set(i, of(states[static_cast<std::size_t>(i)]));
            }
        },
        korvel::writing(out).column(0, rows));
}

struct largest_cell {
    double value = 0.0;
    int position = 1;
};

struct weighted_sum {
    double sum = 0.0;
    bool isMissing = false;
};

} // namespace

void M_MaxPosByRow(matrix<double>* x, int rows, int cols, matrix<int>* positions)
{
    const auto largest =
        foldRows(*x, rows, cols, largest_cell{}, [](largest_cell& best, double cell, int column) {
            if (column == 0 || cell > best.value) {
                best = {cell, column + 1};
            }
        });
    storeRows(largest, *positions, [](const largest_cell& best) { return best.position; });
}

void ComputeNewVar(matrix<double>* x, int rows, int cols, matrix<double>* coefficients, matrix<double>* out)
{
    const matrix<double>& factors = *coefficients;
    const auto sums =
        foldRows(*x, rows, cols, weighted_sum{}, [&](weighted_sum& row, double cell, int column) {
            const double factor = factors[column];
            row.isMissing = row.isMissing || cell == MISSING_DBL || factor == MISSING_DBL;
            row.sum += cell * factor;
        });
    storeRows(sums, *out, [](const weighted_sum& row) { return row.isMissing ? MISSING_DBL : row.sum; });
}

void ComputeNewVar2(matrix<double>* x, int rows, int cols, matrix<double>* coefficients)
{
    ComputeNewVar(x, rows, cols, coefficients, x);
}

int FilterOnSumOfSquares(matrix<double>* x, int rows, int cols, double threshold, matrix<short int>* kept)
{
    const auto sums = foldRows(*x, rows, cols, 0.0, [](double& sum, double cell, int) {
        sum += cell == MISSING_DBL ? 0.0 : cell * cell;
    });
    const auto isKept = [threshold](double sum) { return sum > threshold; };
    storeRows(sums, *kept, [&](double sum) { return isKept(sum) ? short{-1} : short{0}; });
    return static_cast<int>(std::count_if(sums.begin(), sums.end(), isKept));
}
