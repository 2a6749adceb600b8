#include "linalg/inverse1.h"

#include "linalg/lu_factors.h"
#include "linalg/lu_solutions.h"
#include "linalg/transposed_cells.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

namespace
{

/** The rows that were swapped, from 0. */
std::vector<std::size_t> swappedRows(const matrix<int>& pivots, int n)
{
    std::vector<std::size_t> rows;
    for (int i = 0; i < n; ++i) {
        rows.push_back(static_cast<std::size_t>(pivots[i]) - 1);
    }
    return rows;
}

/** Whether a row was swapped with one before it, which only a column of NaNs brings about. */
bool goBack(const std::vector<std::size_t>& rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] < i) {
            return true;
        }
    }
    return false;
}

/**
 * Whether a pivot, as it stood when its column was done, is no larger than the limit. A row that went back
 * took a pivot from its place, so the swaps are undone one by one, the last first.
 */
bool hasSmallPivot(const matrix<double>& factors, const std::vector<std::size_t>& rows, double limit)
{
    std::vector<std::size_t> origin(rows.size());
    std::iota(origin.begin(), origin.end(), std::size_t{0});
    for (std::size_t j = rows.size(); j-- > 0;) {
        if (std::fabs(factors.data[origin[j] + rows.size() * j]) <= limit) {
            return true;
        }
        std::swap(origin[j], origin[rows[j]]);
    }
    return false;
}

/** Solves for the unit vector of a column, in place, with the swaps made while the sums go on. */
void solveWithSwaps(const matrix<double>& factors, const std::vector<std::size_t>& rows,
                    std::vector<double>& b)
{
    const int n = factors.nbrows;
    const auto at = [&](int i) -> double& { return b[static_cast<std::size_t>(i)]; };
    int first = -1;
    for (int i = 0; i < n; ++i) {
        double& swapped = b[rows[static_cast<std::size_t>(i)]];
        double sum = swapped;
        swapped = at(i);
        if (first >= 0) {
            for (int k = first; k < i; ++k) {
                sum -= factors.getElement(i, k) * at(k);
            }
        } else if (sum != 0.0) {
            first = i;
        }
        at(i) = sum;
    }
    for (int i = n - 1; i >= 0; --i) {
        double sum = at(i);
        for (int k = i + 1; k < n; ++k) {
            sum -= factors.getElement(i, k) * at(k);
        }
        at(i) = sum / factors.getElement(i, i);
    }
}

/** The inverse, transposed: column i holds row i of it. */
matrix<double> solveForUnitsWithSwaps(const matrix<double>& factors, const std::vector<std::size_t>& rows)
{
    const int n = factors.nbrows;
    matrix<double> inverse(n, n, 0);
    std::vector<double> b(rows.size());
    for (int c = 0; c < n; ++c) {
        std::fill(b.begin(), b.end(), 0.0);
        b[static_cast<std::size_t>(c)] = 1.0;
        solveWithSwaps(factors, rows, b);
        for (int i = 0; i < n; ++i) {
            inverse.setElement(c, i, b[static_cast<std::size_t>(i)]);
        }
    }
    return inverse;
}

} // namespace

int Inverse1(matrix<double>* A, matrix<double>* inverse, short int* error, double tolerance)
{
    const int n = A->nbrows;
    if (n < 1) {
        return 0;
    }
    matrix<double> factors(n, n, 1);
    korvel::copyBlock(korvel::reading(*A), {}, korvel::writing(factors), {}, n, n);
    matrix<int> pivots(n, 1);
    const double limit = tolerance > 0.0 ? 1e-8 : std::numeric_limits<double>::epsilon();
    const bool decomposed = korvel::factoriseLU(factors, n, pivots).error == 0;
    const std::vector<std::size_t> rows = swappedRows(pivots, n);
    if (!decomposed || hasSmallPivot(factors, rows, limit)) {
        *error = -1;
        return -1;
    }
    const matrix<double> turned =
        goBack(rows) ? solveForUnitsWithSwaps(factors, rows) : korvel::solveForUnits(factors, rows);
    const auto asItIs = [](int) { return [](double x) { return x; }; };
    korvel::mapTransposed(n, n, asItIs, turned, *inverse);
    return 0;
}
