#include "containers/lu_solutions.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace
{

/** How many right sides are solved side by side. Each has sums of its own, so the number changes no bit. */
constexpr std::size_t unitsAtOnce = 8;
using lane_row = std::array<double, unitsAtOnce>;

double* columnOf(matrix<double>& a, std::size_t j)
{
    return a.data + static_cast<std::size_t>(a.nbrows) * j;
}

void transpose(matrix<double>& a, std::size_t n)
{
    for (std::size_t j = 0; j < n; ++j) {
        for (std::size_t i = 0; i < j; ++i) {
            std::swap(columnOf(a, j)[i], columnOf(a, i)[j]);
        }
    }
}

/**
 * Solves for the unit vectors whose 1 stands, after the swaps, at rows `first` to `first + unitsAtOnce - 1`.
 * Column i of `factors` holds row i of the factors. `b` has a place for each row of the right sides and
 * receives the solutions.
 */
void solve(matrix<double>& factors, std::size_t first, std::vector<lane_row>& b)
{
    const std::size_t n = b.size();
    std::fill(b.begin(), b.end(), lane_row{});
    for (std::size_t lane = 0; lane < unitsAtOnce && first + lane < n; ++lane) {
        b[first + lane][lane] = 1.0;
    }
    const auto subtract = [](lane_row& sum, double factor, const lane_row& solved) {
        for (std::size_t lane = 0; lane < unitsAtOnce; ++lane) {
            sum[lane] -= factor * solved[lane];
        }
    };
    for (std::size_t i = first + 1; i < n; ++i) {
        const double* const row = columnOf(factors, i);
        lane_row sum = b[i];
        // A right side starts at its 1. The zeros before it must be skipped: a factor may be infinite, and
        // its product with 0 a NaN.
        const std::size_t allEntered = std::min(i, first + unitsAtOnce);
        for (std::size_t k = first; k < allEntered; ++k) {
            for (std::size_t lane = 0; lane <= k - first; ++lane) {
                sum[lane] -= row[k] * b[k][lane];
            }
        }
        for (std::size_t k = allEntered; k < i; ++k) {
            subtract(sum, row[k], b[k]);
        }
        b[i] = sum;
    }
    for (std::size_t i = n; i-- > 0;) {
        const double* const row = columnOf(factors, i);
        lane_row sum = b[i];
        for (std::size_t k = i + 1; k < n; ++k) {
            subtract(sum, row[k], b[k]);
        }
        for (std::size_t lane = 0; lane < unitsAtOnce; ++lane) {
            b[i][lane] = sum[lane] / row[i];
        }
    }
}

} // namespace

matrix<double> korvel::solveForUnits(matrix<double>& factors, const std::vector<std::size_t>& pivots)
{
    const std::size_t n = pivots.size();
    // The row that ends in each place after all swaps.
    std::vector<std::size_t> origin(n);
    std::iota(origin.begin(), origin.end(), std::size_t{0});
    for (std::size_t i = 0; i < n; ++i) {
        std::swap(origin[i], origin[pivots[i]]);
    }
    transpose(factors, n);
    matrix<double> inverse(factors.nbrows, factors.nbcols, 0);
    std::vector<lane_row> b(n);
    for (std::size_t first = 0; first < n; first += unitsAtOnce) {
        solve(factors, first, b);
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t lane = 0; lane < unitsAtOnce && first + lane < n; ++lane) {
                columnOf(inverse, i)[origin[first + lane]] = b[i][lane];
            }
        }
    }
    return inverse;
}
