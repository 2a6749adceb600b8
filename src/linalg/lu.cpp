#include "linalg/lu.h"

#include "containers/views.h"
#include "linalg/clear_result.h"
#include "linalg/lu_factors.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace
{

using korvel::lu_outcome;

constexpr double insteadOfZero = 1e-20;

/** The largest magnitude of each row; a NaN is passed over. */
template <class Table>
void findScales(const Table& a, std::vector<double>& scales)
{
    const int n = static_cast<int>(scales.size());
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            double& largest = scales[static_cast<std::size_t>(i)];
            largest = std::max(largest, std::fabs(a.get(i, j)));
        }
    }
}

/** Turns largest magnitudes into the factors that make them 1. False when one is 0. */
bool invert(std::vector<double>& scales)
{
    for (double& scale : scales) {
        if (scale == 0.0) {
            return false;
        }
        scale = 1.0 / scale;
    }
    return true;
}

/** Element (i, j) less its products with the first `depth` columns. */
template <class Table>
double reduced(const Table& a, int i, int j, int depth)
{
    double value = a.get(i, j);
    for (int k = 0; k < depth; ++k) {
        value -= a.get(i, k) * a.get(k, j);
    }
    return value;
}

template <class Table>
void swapRows(Table& a, int n, int i, int other)
{
    for (int k = 0; k < n; ++k) {
        const double kept = a.get(other, k);
        a.set(other, k, a.get(i, k));
        a.set(i, k, kept);
    }
}

/** Crout's method, column by column. */
template <class Table, class Pivots>
lu_outcome decompose(Table& a, int n, Pivots& pivots, std::vector<double>& scales)
{
    lu_outcome outcome;
    int pivotRow = -1; // A column in which no element compares leaves it as it was.
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            a.set(i, j, reduced(a, i, j, i));
        }
        double largest = 0.0;
        for (int i = j; i < n; ++i) {
            const double value = reduced(a, i, j, j);
            a.set(i, j, value);
            const double scaled = scales[static_cast<std::size_t>(i)] * std::fabs(value);
            if (scaled >= largest) {
                largest = scaled;
                pivotRow = i;
            }
        }
        if (pivotRow < 0) {
            outcome.error = 1;
            return outcome;
        }
        if (pivotRow != j) {
            swapRows(a, n, j, pivotRow);
            outcome.sign = -outcome.sign;
            scales[static_cast<std::size_t>(pivotRow)] = scales[static_cast<std::size_t>(j)];
        }
        pivots.set(j, pivotRow + 1);
        if (a.get(j, j) == 0.0) {
            a.set(j, j, insteadOfZero);
            outcome.singular = true;
        }
        const double reciprocal = 1.0 / a.get(j, j);
        for (int i = j + 1; i < n; ++i) {
            a.set(i, j, a.get(i, j) * reciprocal);
        }
    }
    return outcome;
}

} // namespace

namespace korvel
{

lu_outcome factoriseLU(matrix<double>& A, int n, matrix<int>& pivots)
{
    clearResult(pivots, n, 1);
    std::vector<double> scales(static_cast<std::size_t>(std::max(n, 0)));
    return withCells(
        [&](auto& a, auto& rows) -> lu_outcome {
            findScales(a, scales);
            if (!invert(scales)) {
                return {1, -1, false};
            }
            return decompose(a, n, rows, scales);
        },
        writing(A).table(n, n), writeVector(pivots, n));
}

} // namespace korvel

void M_LUDecomp(matrix<double>* A, int n, matrix<int>* pivots, int& sign, short int* error)
{
    *error = 0;
    sign = 1;
    const lu_outcome outcome = korvel::factoriseLU(*A, n, *pivots);
    sign = outcome.sign;
    *error = outcome.error;
}
